#include "script.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace CortexM1
{

namespace
{

// What the words behind a command are, a letter each:
//   n a number, t a text in quotes, f a file's name, s a switch, b a burst's name.
struct Command {
    const char *name;
    Verb verb;
    int bytes;
    std::size_t needed; // words, the command among them
    std::size_t most;   // more are a mistake; mostWords: more do not matter
    const char *kinds;
};

constexpr std::size_t any = ScriptLine::mostWords;
constexpr Command commands[] = {
    {"write", Verb::Write, 4, 3, any, "nnnn"},
    {"write16", Verb::Write, 2, 3, any, "nnnn"},
    {"write8", Verb::Write, 1, 3, any, "nnnn"},
    {"read", Verb::Read, 4, 3, any, "nnnn"},
    {"read16", Verb::Read, 2, 3, any, "nnnn"},
    {"read8", Verb::Read, 1, 3, any, "nnnn"},
    {"error", Verb::Error, 4, 2, any, "nnnn"},
    {"poll", Verb::Poll, 4, 5, any, "nnnn"},
    {"wait", Verb::Wait, 0, 2, any, "nnnn"},
    {"irq", Verb::Interrupt, 0, 4, any, "nnnn"},
    {"nmi", Verb::NonMaskable, 0, 3, any, "nnnn"},
    {"reset", Verb::Reset, 0, 1, any, "nnnn"},
    {"repeat", Verb::Repeat, 0, 2, 2, "nnnn"},
    {"end", Verb::End, 0, 1, 1, ""},
    {"include", Verb::Include, 0, 2, 2, "f"},
    {"pipeline", Verb::Pipeline, 0, 2, 2, "s"},
    {"burst-write", Verb::BurstWrite, 4, 4, 19, "bnnnnnnnnnnnnnnnnn"},
    {"burst-read", Verb::BurstRead, 4, 4, 19, "bnnnnnnnnnnnnnnnnn"},
    {"expect-uart", Verb::ExpectUart, 0, 4, 4, "ntn"},
    {"uart", Verb::SendUart, 0, 3, 3, "nt"},
    {"gpio", Verb::Gpio, 0, 4, 4, "nnn"},
    {"gpio-drive", Verb::GpioDrive, 0, 3, 3, "nn"},
};

constexpr BurstKind bursts[] = {
    {"single", singleBurst, 0, 0}, {"incr", 1, 0, 0},  {"wrap4", 2, 4, 16},   {"incr4", 3, 4, 0},
    {"wrap8", 4, 8, 32},           {"incr8", 5, 8, 0}, {"wrap16", 6, 16, 64}, {"incr16", 7, 16, 0},
};

const Command *commandNamed(const std::string &name)
{
    const auto *found = std::find_if(std::begin(commands), std::end(commands),
                                     [&name](const Command &row) { return name == row.name; });
    return found == std::end(commands) ? nullptr : found;
}

bool isSpace(char c)
{
    return c == ' ' || c == '\0' || (c >= '\t' && c <= '\r');
}

// Splits what is no comment. Only a command with a text has words in quotes.
std::vector<std::string> split(const std::string &text)
{
    std::vector<std::string> words;
    bool isInWord = false;
    bool hasText = false;
    for (std::size_t i = 0; i < text.size() && text[i] != '#'; ++i) {
        const char c = text[i];
        if (isSpace(c)) {
            if (isInWord && words.size() == 1) {
                const Command *command = commandNamed(words[0]);
                hasText = command && std::strchr(command->kinds, 't');
            }
            isInWord = false;
        } else if (isInWord) {
            words.back() += c;
        } else if (words.size() == ScriptLine::mostWords) {
            break;
        } else {
            isInWord = true;
            words.emplace_back(1, c);
            // Up to the quote before which the word goes on.
            for (bool isOpen = hasText && c == '"'; isOpen && i + 1 < text.size();) {
                words.back() += text[++i];
                isOpen = text[i] != '"';
                if (text[i] == '\\' && i + 1 < text.size())
                    words.back() += text[++i];
            }
        }
    }
    return words;
}

int digitOf(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return 16;
}

// Decimal with or without a sign, or hexadecimal; underscores may stand between digits. Returns
// the mistake.
std::string readNumber(const std::string &word, std::uint32_t &value)
{
    constexpr const char *none = "not a number";
    const bool isHexadecimal = word.size() > 2 && word.compare(0, 2, "0x") == 0;
    const bool isSigned = !isHexadecimal && (word[0] == '-' || word[0] == '+');
    const int base = isHexadecimal ? 16 : 10;
    std::uint64_t sum = 0;
    bool hasDigits = false;
    for (std::size_t i = isHexadecimal ? 2 : isSigned ? 1 : 0; i < word.size(); ++i) {
        const int digit = digitOf(word[i]);
        if (digit < base) {
            sum = sum * unsigned(base) + unsigned(digit);
            hasDigits = true;
        } else if (word[i] != '_' || !hasDigits) {
            return none;
        }
        if (sum >> 32 != 0)
            return "a number of more than 32 bits";
    }
    if (!hasDigits)
        return none;
    value = static_cast<std::uint32_t>(word[0] == '-' ? 0 - sum : sum);
    return {};
}

// Returns the mistake.
std::string readText(const std::string &word, std::string &bytes)
{
    if (word[0] != '"')
        return "not a text in quotes";
    std::size_t i = 1;
    for (; i < word.size() && word[i] != '"'; ++i) {
        if (word[i] != '\\') {
            bytes += word[i];
            continue;
        }
        const char escape = ++i < word.size() ? word[i] : '\0';
        if (escape == 'n') {
            bytes += '\n';
        } else if (escape == 'r') {
            bytes += '\r';
        } else if (escape == 't') {
            bytes += '\t';
        } else if (escape == '\\' || escape == '"') {
            bytes += escape;
        } else if (escape == 'x' && i + 2 < word.size() && digitOf(word[i + 1]) < 16 &&
                   digitOf(word[i + 2]) < 16) {
            bytes += static_cast<char>(digitOf(word[i + 1]) * 16 + digitOf(word[i + 2]));
            i += 2;
        } else {
            return "not an escape: \\n, \\r, \\t, \\\\, \\\" and \\xHH are";
        }
    }
    if (i + 1 != word.size())
        return i < word.size() ? "the text ends before the word does"
                               : "the text has no quote at its end";
    return bytes.empty() ? "the text is empty" : std::string();
}

const char *missing(char kind)
{
    switch (kind) {
    case 'f':
        return "the name of a file is missing";
    case 's':
        return "neither on nor off";
    case 't':
        return "a text is missing";
    default:
        return "a number is missing";
    }
}

void readWords(const std::vector<std::string> &words, const Command &command, ScriptLine &line)
{
    const std::size_t kinds = std::strlen(command.kinds);
    for (std::size_t i = 1; i < words.size() && i <= kinds; ++i) {
        const char kind = command.kinds[i - 1];
        if (kind == 'n')
            line.mistake = readNumber(words[i], line.numbers[i]);
        else if (kind == 't')
            line.mistake = readText(words[i], line.text);
        else
            line.name = words[i];
        if (!line.mistake.empty())
            return;
    }
    if (words.size() < command.needed)
        line.mistake = missing(command.kinds[words.size() - 1]);
    else if (words.size() > command.most)
        line.mistake = "too many words";
}

std::string contradictionInBurst(const ScriptLine &line)
{
    const BurstKind *burst = burstNamed(line.name);
    if (!burst)
        return "no burst of this name";
    const std::size_t words = line.numbers.size() - 3;
    const std::uint32_t address = line.numbers[2];
    if (burst->words != 0 && words != burst->words)
        return "not as many data as the burst has";
    if (address % 4 != 0)
        return "the address of a burst is not a multiple of 4";
    if (burst->code != singleBurst && burst->wrapSpan == 0 && address % 1024 + 4 * words > 1024)
        return "the burst crosses a boundary of 1 KB";
    return {};
}

} // namespace

ScriptLine parseLine(const std::string &text)
{
    ScriptLine line;
    if (text.size() > ScriptLine::longest) {
        line.verb = Verb::TooLong;
        line.mistake = "a line of more than 255 characters";
        return line;
    }
    const std::vector<std::string> words = split(text);
    if (words.empty())
        return line;
    line.numbers.resize(words.size());
    const Command *command = commandNamed(words[0]);
    if (!command) {
        line.verb = Verb::Unknown;
        line.mistake = "unknown command";
        return line;
    }
    line.verb = command->verb;
    line.bytes = command->bytes;
    readWords(words, *command, line);
    return line;
}

std::vector<ScriptLine> parseScript(const std::string &text)
{
    std::vector<ScriptLine> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        lines.push_back(parseLine(text.substr(at, end - at)));
        at = end + 1;
    }
    return lines;
}

std::string contradictionIn(const ScriptLine &line)
{
    constexpr std::uint32_t uarts = 2;
    constexpr std::uint32_t pins = 0xFFFF;
    switch (line.verb) {
    case Verb::BurstWrite:
    case Verb::BurstRead:
        return contradictionInBurst(line);
    case Verb::Pipeline:
        return line.name == "on" || line.name == "off" ? std::string() : missing('s');
    case Verb::ExpectUart:
    case Verb::SendUart:
        return line.numbers[1] < uarts ? std::string() : "no UART of this number";
    case Verb::Gpio:
    case Verb::GpioDrive:
        if ((line.numbers[1] & ~pins) != 0)
            return "the GPIO has 16 pins";
        return (line.numbers[2] & ~line.numbers[1]) == 0 ? std::string()
                                                         : "levels of pins outside of the mask";
    default:
        return {};
    }
}

const BurstKind *burstNamed(const std::string &name)
{
    const auto *found = std::find_if(std::begin(bursts), std::end(bursts),
                                     [&name](const BurstKind &row) { return name == row.name; });
    return found == std::end(bursts) ? nullptr : found;
}

bool keepsTransferOpen(Verb verb)
{
    switch (verb) {
    case Verb::Nothing:
    case Verb::TooLong:
    case Verb::Write:
    case Verb::Read:
    case Verb::Error:
    case Verb::Repeat:
    case Verb::End:
        return true;
    default:
        return false;
    }
}

std::string nameBeside(const std::string &script, const std::string &included)
{
    const bool isFull = !included.empty() && (included[0] == '/' || included[0] == '\\' ||
                                              (included.size() > 1 && included[1] == ':'));
    const std::size_t slash = script.find_last_of("/\\");
    if (isFull || slash == std::string::npos)
        return included;
    return script.substr(0, slash + 1) + included;
}

std::string quotedBytes(const std::string &bytes)
{
    std::string text = "\"";
    for (const char c : bytes) {
        switch (c) {
        case '\n':
            text += "\\n";
            break;
        case '\r':
            text += "\\r";
            break;
        case '\t':
            text += "\\t";
            break;
        case '\\':
        case '"':
            text += {'\\', c};
            break;
        default:
            if (c >= ' ' && c <= '~') {
                text += c;
            } else {
                char escape[5];
                std::snprintf(escape, sizeof escape, "\\x%02X", static_cast<unsigned char>(c));
                text += escape;
            }
        }
    }
    return text + '"';
}

} // namespace CortexM1
