#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace CortexM1
{

// Puts the segments of a little-endian ARM ELF file into what an instruction memory is to hold that
// stands at 0, and at 0x10000000 too if `hasUpperAlias`: `contents`, of the memory's size. Returns
// what is wrong with the file, naming it; the contents are unchanged then. Empty: done. `end`: the
// first byte behind all segments.
std::string readElf(const std::string &path, bool hasUpperAlias,
                    std::vector<std::uint8_t> &contents, std::size_t *end = nullptr);

} // namespace CortexM1
