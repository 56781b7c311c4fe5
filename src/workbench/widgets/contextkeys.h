#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Workbench
{

// The Menu key and Shift+F10 open the widget's context menu, whatever the desktop makes of them.
void openContextMenuByKeys(QWidget *widget);

} // namespace Workbench
