#pragma once

namespace Vpi
{

// The tasks that a board calls:
//
//   $board_sent(uart, byte)
void addBoardTasks();

} // namespace Vpi
