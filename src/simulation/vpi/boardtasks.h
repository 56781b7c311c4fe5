#pragma once

namespace Vpi
{

// The tasks and functions that a board calls (CortexM1::BoardHost):
//
//   $board_sent(uart, byte)                  $board_input(uart)
//   $board_pins(levels, driven)              $board_drive_mask(), $board_drive_levels()
//   $board_time(low, high)                   cycles, 32 bits each
//   $board_store(storage, address, byte)     $board_load(storage, address), $board_size(storage)
void addBoardTasks();

// The simulation has ended.
void finishBoard();

} // namespace Vpi
