#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace CortexM1
{

// "0x0000002A"
inline std::string hexadecimal(std::uint32_t value)
{
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(value));
    return text;
}

} // namespace CortexM1
