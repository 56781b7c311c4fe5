#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace Workbench
{

// Lets `inner` take the focus that `outer`, a widget around it, is given. Unlike a focus proxy this
// leaves out nothing of `outer` when Tab walks: a proxy makes Tab jump to the inner widget, past
// what stands before it.
void forwardFocus(QWidget *outer, QWidget *inner);

} // namespace Workbench
