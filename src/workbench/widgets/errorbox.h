#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QString;
class QWidget;
QT_END_NAMESPACE

namespace Workbench
{

// Says what is wrong, as plain text, and returns when it was read.
void showError(QWidget *parent, const QString &message);

} // namespace Workbench
