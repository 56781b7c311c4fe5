// The functions that a board calls:
//
//   board_sent(uart, byte)
#include "core/boardhost.h"
#include "loading.h"

extern "C" {

__attribute__((visibility("default"))) void board_sent(int uart, int byte)
{
    CortexM1::BoardHost::shared(Dpi::simulator()).sent(uart, static_cast<std::uint8_t>(byte));
}
}
