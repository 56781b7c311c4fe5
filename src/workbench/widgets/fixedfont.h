#pragma once

#include <QFont>

namespace Workbench
{

// The desktop's font for texts in columns; where it names none, a monospaced one in the size of the
// application's font.
QFont fixedFont();

} // namespace Workbench
