#pragma once

#include <QIcon>
#include <QPalette>

namespace Workbench
{

// One of the icons under :/workbench/icons. Drawn in the palette's text colour at any size, so that
// it is as sharp and as readable as the text beside it, light or dark; `ink` is the role of that
// text. A null icon for a name that there is not.
QIcon symbolIcon(const QString &name, QPalette::ColorRole ink = QPalette::WindowText);

// The icon of the program, in its own colours.
QIcon applicationIcon();

} // namespace Workbench
