#pragma once

#include <QString>

namespace Synthesis
{
struct RunReport;
}

namespace Workbench
{

// What a run says of itself, in the language of the window where it tells figures; else as the tool
// has said it.
QString shownSummary(const Synthesis::RunReport &report);

} // namespace Workbench
