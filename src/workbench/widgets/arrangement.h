#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QBoxLayout)

namespace Workbench
{

// Lays out side by side what `room`, in pixels, is wide enough for, and below one another what it
// is not.
void arrangeIn(QBoxLayout *layout, int room);

} // namespace Workbench
