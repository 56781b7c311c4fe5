#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace CortexM1
{

enum class Verb {
    Nothing,
    Unknown, // a line that is no command
    TooLong, // likewise
    Write,
    Read,
    Error,
    Poll,
    Wait,
    Interrupt,
    NonMaskable,
    Reset,
    Repeat,
    End,
    Include,
    Pipeline,
    BurstWrite,
    BurstRead,
    ExpectUart,
    SendUart,
    Gpio,
    GpioDrive
};

// A line of a script.
struct ScriptLine {
    static constexpr std::size_t longest = 255;  // characters, without the line end
    static constexpr std::size_t mostWords = 20; // what follows is not looked at

    Verb verb = Verb::Nothing;
    int bytes = 4; // of a transfer: 1, 2 or 4
    // Values of the words, 0 for one that is no number; as many as there are words, the command
    // among them.
    std::vector<std::uint32_t> numbers;
    std::string name;    // of a file, of a burst, "on" or "off": as it stands
    std::string text;    // bytes
    std::string mistake; // why it is not played; empty: none
};

// Reads a line without its end.
ScriptLine parseLine(const std::string &text);

// Reads all lines; the last one may lack its end.
std::vector<ScriptLine> parseScript(const std::string &text);

// What a line without a mistake in its words asks for in vain; empty: nothing.
std::string contradictionIn(const ScriptLine &line);

// A burst of AHB-Lite.
struct BurstKind {
    const char *name;
    int code;               // HBURST
    std::size_t words;      // 0: any number
    std::uint32_t wrapSpan; // bytes; 0: it does not wrap
};
constexpr int singleBurst = 0;

// Null for an unknown name.
const BurstKind *burstNamed(const std::string &name);

// Whether a transfer may overlap with the one before it when this command comes.
bool keepsTransferOpen(Verb verb);

// The name of a file that a script of this name includes: names are seen from its folder.
std::string nameBeside(const std::string &script, const std::string &included);

// Bytes as a text in quotes, with escapes for all that is not printable.
std::string quotedBytes(const std::string &bytes);

} // namespace CortexM1
