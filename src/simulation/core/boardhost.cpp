#include "boardhost.h"

#include "wavewindow.h"

#include <cstdio>
#include <utility>

namespace CortexM1
{

BoardHost::BoardHost(std::string mark, Tell tell)
    : m_mark(std::move(mark))
    , m_tell(std::move(tell))
{
}

void BoardHost::tell(const std::string &event)
{
    m_tell('\036' + m_mark + ' ' + event);
}

void BoardHost::sent(int uart, std::uint8_t byte)
{
    char text[32];
    std::snprintf(text, sizeof text, "uart %d %02x", uart, unsigned(byte));
    tell(text);
    WaveWindow::shared().noteText(1 + uart, std::string(1, static_cast<char>(byte)));
}

bool BoardHost::waves(std::uint32_t cyclesLow, std::uint32_t cyclesHigh)
{
    return WaveWindow::shared().wants(std::uint64_t(cyclesHigh) << 32 | cyclesLow);
}

} // namespace CortexM1
