#pragma once

#include <cstdint>

namespace CortexM1
{

// A value on every lane of the bus where its size may stand. `bytes`: 1, 2 or 4.
inline std::uint32_t onAllLanes(std::uint32_t value, int bytes)
{
    switch (bytes) {
    case 1:
        return (value & 0xFF) * 0x01010101u;
    case 2:
        return (value & 0xFFFF) * 0x00010001u;
    default:
        return value;
    }
}

// The addressed lanes of a word, in its low bits. Of an address that is no multiple of `bytes` the
// low bits do not count.
inline std::uint32_t fromLanes(std::uint32_t word, std::uint32_t address, int bytes)
{
    const unsigned first = address & 3 & ~(static_cast<unsigned>(bytes) - 1);
    const std::uint32_t shifted = word >> 8 * first;
    return bytes == 4 ? word : shifted & ((1u << 8 * bytes) - 1);
}

// The lanes that hold `bytes` at the address, a bit for each.
inline unsigned lanesOf(std::uint32_t address, int bytes)
{
    const unsigned first = address & 3 & ~(static_cast<unsigned>(bytes) - 1);
    return ((1u << bytes) - 1) << first;
}

} // namespace CortexM1
