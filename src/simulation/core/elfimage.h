#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace CortexM1
{

// Loads the segments of a little-endian ARM ELF file into an instruction memory that stands at 0,
// and at 0x10000000 too if `hasUpperAlias`. Returns what is wrong with the file, naming it; the
// memory is unchanged then. Empty: loaded.
std::string loadElf(const std::string &path, bool hasUpperAlias,
                    std::vector<std::uint8_t> &instructionMemory);

} // namespace CortexM1
