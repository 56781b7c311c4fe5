#include "fuzz.h"

#include <core/script.h>

#include <algorithm>
#include <string>

using namespace CortexM1;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string input(reinterpret_cast<const char *>(data), size);
    const std::vector<ScriptLine> lines = parseScript(input);
    const auto ends = static_cast<size_t>(std::count(input.begin(), input.end(), '\n'));
    REQUIRE(lines.size() == ends + (input.empty() || input.back() == '\n' ? 0 : 1));
    for (const ScriptLine &line : lines) {
        REQUIRE(line.numbers.size() <= ScriptLine::mostWords);
        REQUIRE(line.text.size() <= ScriptLine::longest);
        if (!line.mistake.empty())
            continue;
        REQUIRE(line.verb != Verb::Unknown && line.verb != Verb::TooLong);
        const std::string contradiction = contradictionIn(line);
        if (line.verb == Verb::BurstRead || line.verb == Verb::BurstWrite)
            REQUIRE(!contradiction.empty() || burstNamed(line.name));
        // What is asked of a UART can be told.
        if (line.verb == Verb::SendUart)
            REQUIRE(parseLine("uart 0 " + quotedBytes(line.text.substr(0, 60))).text ==
                    line.text.substr(0, 60));
        REQUIRE(!nameBeside("folder/file", line.name).empty());
    }
    return 0;
}
