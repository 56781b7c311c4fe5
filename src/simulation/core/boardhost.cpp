#include "boardhost.h"

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
}

} // namespace CortexM1
