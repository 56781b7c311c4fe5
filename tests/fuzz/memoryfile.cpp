#include "fuzz.h"

#include <config/memoryfile.h>

using namespace TARVOORIXM1;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr int bytes = 64;
    const QByteArray text = Fuzz::bytesOf(data, size);
    const MemoryText read = readMemoryText(text, bytes);
    REQUIRE(read.given.size() == bytes && read.firstMissing() < bytes);
    REQUIRE((read.firstMissing() < 0) == (read.given.count(true) == bytes));
    REQUIRE(read.lines >= 1 && read.lines <= Fuzz::lineCount(text));
    int before = 1;
    for (const MemoryMistake &mistake : read.mistakes) {
        REQUIRE(mistake.line >= 1 && mistake.line <= Fuzz::lineCount(text));
        REQUIRE(mistake.reason.size() < 120 && !mistake.reason.contains(u'\n'));
        // In order, but for a comment without an end, which is told last.
        REQUIRE(mistake.line >= before || &mistake == &read.mistakes.last());
        before = mistake.line;
    }
    // A comment and a line in front change the numbers of the lines alone.
    const MemoryText behind = readMemoryText("/* @ff zz */ // x\n" + text, bytes);
    REQUIRE(behind.given == read.given && behind.mistakes.size() == read.mistakes.size());
    for (int i = 0; i < read.mistakes.size(); ++i)
        REQUIRE(behind.mistakes.at(i).line == read.mistakes.at(i).line + 1 &&
                behind.mistakes.at(i).reason == read.mistakes.at(i).reason);
    // What is given without a mistake can be given once more.
    if (read.mistakes.isEmpty()) {
        const MemoryText twice = readMemoryText(text + "\n@0\n" + text, bytes);
        REQUIRE(twice.mistakes.isEmpty() && twice.given == read.given);
    }
    return 0;
}
