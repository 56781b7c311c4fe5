#pragma once

#include <future>

namespace Workbench
{

// Has the system's fonts looked up in another thread, which is a sixth of the work until the window
// stands; the library for it remembers what it has found. Needs the QApplication. The first that
// asks for a font waits for the result, or does it again.
std::future<void> readFontConfiguration();

} // namespace Workbench
