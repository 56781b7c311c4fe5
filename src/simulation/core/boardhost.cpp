#include "boardhost.h"

#include "session.h"

#include <cstdio>

namespace CortexM1
{

BoardHost::BoardHost(Simulator &simulator)
    : m_simulator(simulator)
    , m_mark(simulator.argument("mark") ? simulator.argument("mark") : "board")
{
}

BoardHost &BoardHost::shared(Simulator &simulator)
{
    static BoardHost made(simulator);
    return made;
}

void BoardHost::tell(const std::string &event)
{
    m_simulator.print('\036' + m_mark + ' ' + event + '\n');
}

void BoardHost::sent(int uart, std::uint8_t byte)
{
    if (m_observer)
        m_observer->sent(uart, byte);
    char text[32];
    std::snprintf(text, sizeof text, "uart %d %02x", uart, unsigned(byte));
    tell(text);
}

int BoardHost::input(int uart)
{
    if (uart < 0 || uart >= uarts || m_input[uart].empty())
        return -1;
    const std::uint8_t byte = m_input[uart].front();
    m_input[uart].pop_front();
    return byte;
}

void BoardHost::pins(std::uint32_t levels, std::uint32_t driven)
{
    if (m_observer)
        m_observer->pinsChanged(levels, driven);
    char text[32];
    std::snprintf(text, sizeof text, "gpio %04x %04x", unsigned(levels), unsigned(driven));
    tell(text);
}

void BoardHost::send(int uart, const std::string &bytes)
{
    if (uart >= 0 && uart < uarts)
        m_input[uart].insert(m_input[uart].end(), bytes.begin(), bytes.end());
}

void BoardHost::drive(std::uint32_t mask, std::uint32_t levels)
{
    m_driveMask = static_cast<int>(mask);
    m_driveLevels = static_cast<int>(levels & mask);
}

} // namespace CortexM1
