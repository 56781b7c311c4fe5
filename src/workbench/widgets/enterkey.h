#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QKeyEvent)

namespace Workbench
{

// Lets Enter press the button that has the focus, as Space does and as it is in dialogs: for the
// keys that a window without a default button gets since nothing in it has taken them. Accepts the
// event and returns true if there was such a button. The window may be gone then.
bool pressFocusedButton(QKeyEvent *event);

} // namespace Workbench
