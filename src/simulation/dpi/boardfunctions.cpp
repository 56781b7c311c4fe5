// The functions that a board calls; see the macros in its text.
#include "core/boardhost.h"
#include "loading.h"

#define BOARD_FUNCTION extern "C" __attribute__((visibility("default")))

namespace
{

CortexM1::BoardHost &host()
{
    return CortexM1::BoardHost::shared(Dpi::simulator());
}

std::uint32_t bits(int number)
{
    return static_cast<std::uint32_t>(number);
}

} // namespace

BOARD_FUNCTION void board_sent(int uart, int byte)
{
    host().sent(uart, static_cast<std::uint8_t>(byte));
}

BOARD_FUNCTION int board_input(int uart)
{
    return host().input(uart);
}

BOARD_FUNCTION void board_pins(int levels, int driven)
{
    host().pins(bits(levels), bits(driven));
}

BOARD_FUNCTION int board_drive_mask()
{
    return host().driveMask();
}

BOARD_FUNCTION int board_drive_levels()
{
    return host().driveLevels();
}

BOARD_FUNCTION void board_time(int low, int high)
{
    host().time(std::uint64_t(bits(high)) << 32 | bits(low));
}

BOARD_FUNCTION int board_size(int storage)
{
    return host().size(storage);
}

BOARD_FUNCTION int board_load(int storage, int address)
{
    return host().load(storage, bits(address));
}

BOARD_FUNCTION void board_store(int storage, int address, int byte)
{
    host().store(storage, bits(address), static_cast<std::uint8_t>(byte));
}

BOARD_FUNCTION void board_waves(int low, int high, int *wanted)
{
    *wanted = host().waves(bits(low), bits(high));
}
