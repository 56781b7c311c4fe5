// The functions that a board calls:
//
//   board_sent(uart, byte)
#include "core/boardhost.h"
#include "loading.h"

namespace
{

// Made with the first call: the command line is known then.
CortexM1::BoardHost &host()
{
    static CortexM1::BoardHost made(
        Dpi::simulator().argument("mark") ? Dpi::simulator().argument("mark") : "board",
        [](const std::string &line) { Dpi::simulator().print(line + "\n"); });
    return made;
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) void board_sent(int uart, int byte)
{
    host().sent(uart, static_cast<std::uint8_t>(byte));
}
}
