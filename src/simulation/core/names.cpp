#include "names.h"

#include <algorithm>
#include <sstream>

namespace CortexM1
{

Names::Names(std::istream &lines)
{
    std::string line;
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string kind;
        Range range;
        words >> kind >> std::hex >> range.address >> std::dec >> range.bytes;
        words.ignore(1);
        if (!words || !std::getline(words, range.name))
            continue;
        if (kind == "function")
            m_functions.push_back(range);
        else if (kind == "register")
            m_registers.push_back(range);
    }
    for (Ranges *ranges : {&m_functions, &m_registers})
        std::sort(ranges->begin(), ranges->end(),
                  [](const Range &a, const Range &b) { return a.address < b.address; });
}

const std::string &Names::at(const Ranges &ranges, std::uint32_t address)
{
    static const std::string none;
    const auto behind = std::upper_bound(
        ranges.begin(), ranges.end(), address,
        [](std::uint32_t wanted, const Range &range) { return wanted < range.address; });
    if (behind == ranges.begin())
        return none;
    const Range &range = *std::prev(behind);
    return address - range.address < range.bytes ? range.name : none;
}

} // namespace CortexM1
