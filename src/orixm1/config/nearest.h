#pragma once

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// The one of `known` that is spelled most alike, letter case apart, for "did you mean"; the first
// of several, and an empty text if none is near (more than a third of `text` differs).
QString nearestText(const QString &text, const QStringList &known);

} // namespace TARVOORIXM1
