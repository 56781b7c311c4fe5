#include "fuzz.h"

#include <core/elfimage.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const std::string path = Fuzz::file(QStringLiteral("program.elf"), bytes).toStdString();
    for (const bool hasUpperAlias : {false, true}) {
        const std::vector<std::uint8_t> before(4096, 0xa5);
        std::vector<std::uint8_t> contents = before;
        std::size_t end = 0;
        const std::string mistake = CortexM1::readElf(path, hasUpperAlias, contents, &end);
        REQUIRE(contents.size() == before.size());
        if (mistake.empty()) {
            REQUIRE(end <= contents.size());
            REQUIRE(std::equal(contents.begin() + long(end), contents.end(),
                               before.begin() + long(end)));
        } else {
            REQUIRE(contents == before);
            REQUIRE(mistake.find(path) != std::string::npos);
            REQUIRE(mistake.find('\n') == std::string::npos && mistake.size() < path.size() + 300);
        }
    }
    return 0;
}
