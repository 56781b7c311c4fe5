#pragma once

#include <QVector>

namespace Workbench
{

// Texts of Qt's own that its buttons and context menus show. Our catalogues have them for where
// Qt's translations, a package of their own, are not installed.
struct QtText {
    const char *context;
    const char *text;
};

const QVector<QtText> &qtTexts();
// Whether it is one of theirs.
bool isQtContext(const char *context);

} // namespace Workbench
