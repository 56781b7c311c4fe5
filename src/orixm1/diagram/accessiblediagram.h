#pragma once

namespace TARVOORIXM1
{

// Lets assistive tools see the boxes of every IPView: a child of the view for each, with name,
// role, state and actions. Taken back when the library is unloaded; may be called again.
void installAccessibleDiagram();

} // namespace TARVOORIXM1
