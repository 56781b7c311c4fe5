#pragma once

#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace CortexM1
{

// Names of functions and registers, for people who look at waves. They come in lines
//   function ADDRESS BYTES NAME
//   register ADDRESS BYTES NAME
// with addresses in hexadecimal and sizes in decimal; ranges of one kind do not overlap. Other
// lines count for nothing.
class Names
{
public:
    Names() = default;
    explicit Names(std::istream &lines);

    // Empty if it is in none.
    const std::string &functionAt(std::uint32_t address) const { return at(m_functions, address); }
    const std::string &registerAt(std::uint32_t address) const { return at(m_registers, address); }

private:
    struct Range {
        std::uint32_t address = 0;
        std::uint32_t bytes = 0;
        std::string name;
    };
    using Ranges = std::vector<Range>; // by address

    static const std::string &at(const Ranges &ranges, std::uint32_t address);

    Ranges m_functions;
    Ranges m_registers;
};

} // namespace CortexM1
