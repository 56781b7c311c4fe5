#include "scriptplayer.h"

#include "lanes.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <utility>

namespace CortexM1
{

namespace
{

constexpr std::size_t mostFiles = 9; // the script and those that include each other
constexpr std::size_t mostLoops = 8;
constexpr std::uint32_t longestWait = 1000000;    // clock cycles, for HREADY
constexpr std::size_t mostScriptBytes = 16 << 20; // of a file
constexpr std::size_t mostUartBytes = 16 << 20;   // that nobody has expected yet
constexpr std::uint32_t upperAlias = 0x10000000;
constexpr std::uint32_t dataMemoryBase = 0x20000000;
constexpr std::uint32_t memoryWords = 1u << 18; // that ITCMADDR and DTCMADDR reach

std::string hexadecimal(std::uint32_t value, int digits)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%0*x", digits, static_cast<unsigned>(value));
    return text;
}

// As a Verilog simulator prints it: a digit of unknown bits is x, of floating ones z, and upper
// case if only some of its bits are. Of an unknown bit the value says which.
std::string shown(std::uint32_t value, std::uint32_t unknown)
{
    std::string text = hexadecimal(value & ~unknown, 8);
    for (int digit = 0; digit < 8; ++digit) {
        const std::uint32_t lost = unknown >> 4 * digit & 15;
        const std::uint32_t x = lost & value >> 4 * digit;
        if (lost != 0)
            text[static_cast<std::size_t>(9 - digit)] = x == 15      ? 'x'
                                                        : x != 0     ? 'X'
                                                        : lost == 15 ? 'z'
                                                                     : 'Z';
    }
    return text;
}

// False for what cannot be opened or is far too large. A folder is empty.
bool readLines(const std::string &name, std::vector<ScriptLine> &lines)
{
    std::ifstream file(name, std::ios::binary);
    if (!file)
        return false;
    std::string text;
    char piece[4096];
    while (file.read(piece, sizeof piece) || file.gcount() > 0) {
        text.append(piece, static_cast<std::size_t>(file.gcount()));
        if (text.size() > mostScriptBytes)
            return false;
    }
    lines = parseScript(text);
    return true;
}

} // namespace

ScriptPlayer::ScriptPlayer(const Configuration &configuration, BoardHost &host,
                           const std::string &file, Tell tell)
    : m_configuration(configuration)
    , m_host(host)
    , m_name(file)
    , m_tell(std::move(tell))
    , m_program([this] { run(); })
{
    const std::uint32_t sizes[] = {configuration.itcmBytes, configuration.dtcmBytes};
    for (const int memory : {0, 1}) {
        const std::size_t words =
            configuration.hasOuterMemories ? 0 : std::min(sizes[memory] / 4, memoryWords);
        m_memories[memory] = {std::vector<std::uint32_t>(words, ~0u),
                              std::vector<std::uint32_t>(words, ~0u)};
    }
    m_outputs.size = 0;
    m_host.observe(this);
}

ScriptPlayer::~ScriptPlayer()
{
    m_host.observe(nullptr);
}

const Outputs &ScriptPlayer::clock(const Inputs &inputs)
{
    m_inputs = inputs;
    if (!m_outputs.isDone)
        m_program.resume();
    return m_outputs;
}

void ScriptPlayer::sent(int uart, std::uint8_t byte)
{
    if (uart < 0 || uart > 1 || m_sent[uart].size() >= mostUartBytes)
        return;
    m_sent[uart] += static_cast<char>(byte);
}

void ScriptPlayer::pinsChanged(std::uint32_t levels, std::uint32_t)
{
    m_pins = levels;
}

void ScriptPlayer::run()
{
    play();
    m_outputs.isDone = true;
    m_outputs.hasPassed = m_failures == 0 && m_checks > 0;
    for (;;)
        cycle();
}

void ScriptPlayer::play()
{
    if (!open(m_name)) {
        ++m_failures;
        m_tell({m_name, 0, "the script \"" + m_name + "\" cannot be read"});
        return;
    }
    while (!m_inputs.isReset)
        cycle();
    while (m_inputs.isReset)
        cycle();
    cycle();
    while (!m_files.empty() && !m_isStopped)
        playNext();
}

bool ScriptPlayer::open(const std::string &name)
{
    File file;
    file.name = name;
    if (!readLines(name, file.lines))
        return false;
    m_files.push_back(std::move(file));
    return true;
}

void ScriptPlayer::playNext()
{
    File &file = m_files.back();
    if (file.line == file.lines.size()) {
        leave();
        return;
    }
    const ScriptLine &line = file.lines[file.line];
    m_line = ++file.line;
    if (line.verb == Verb::TooLong) {
        fail(line.mistake);
    } else if (m_skipping == 0) {
        playLine(line);
    } else if (line.verb == Verb::Repeat) {
        ++m_skipping;
    } else if (line.verb == Verb::End) {
        --m_skipping;
    }
}

// The end of a file.
void ScriptPlayer::leave()
{
    close();
    if (m_skipping != 0) {
        m_line = m_skippedLine;
        fail("repeat without end");
        m_skipping = 0;
    }
    for (; !m_loops.empty() && m_loops.back().depth == m_files.size(); m_loops.pop_back()) {
        m_line = m_loops.back().line;
        fail("repeat without end");
    }
    const bool wasEmpty = m_files.back().line == 0;
    m_files.pop_back();
    if (wasEmpty && !m_files.empty()) {
        m_line = m_files.back().line;
        fail("the included script is empty"); // or a folder
    }
}

void ScriptPlayer::playLine(const ScriptLine &line)
{
    if (!line.mistake.empty())
        fail(line.mistake);
    if (!keepsTransferOpen(line.verb))
        close();
    if (line.verb == Verb::Repeat) {
        playRepeat(line);
        return;
    }
    if (!line.mistake.empty())
        return;
    if (const std::string contradiction = contradictionIn(line); !contradiction.empty()) {
        fail(contradiction);
        return;
    }
    const std::vector<std::uint32_t> &number = line.numbers;
    switch (line.verb) {
    case Verb::Nothing:
    case Verb::Unknown:
    case Verb::TooLong:
    case Verb::Repeat:
        break;
    case Verb::Write:
        transfer(Kind::Write, line);
        break;
    case Verb::Read:
        transfer(Kind::Read, line);
        break;
    case Verb::Error:
        transfer(Kind::Error, line);
        break;
    case Verb::BurstWrite:
    case Verb::BurstRead:
        playBurst(line, line.verb == Verb::BurstWrite);
        break;
    case Verb::Poll:
        playPoll(line);
        break;
    case Verb::Wait:
        for (std::uint32_t left = number[1]; left != 0; --left)
            cycle();
        break;
    case Verb::Interrupt: {
        const auto hasLevel = [this, &number] {
            return (m_inputs.interrupts >> (number[1] & 31) & 1) == (number[2] & 1);
        };
        for (std::uint32_t left = number[3]; left != 0 && !hasLevel(); --left)
            cycle();
        checkThat(hasLevel(), "the interrupt input does not get the level");
        break;
    }
    case Verb::NonMaskable: {
        const auto hasLevel = [this, &number] {
            return m_inputs.nonMaskable == ((number[1] & 1) != 0);
        };
        for (std::uint32_t left = number[2]; left != 0 && !hasLevel(); --left)
            cycle();
        checkThat(hasLevel(), "the non-maskable interrupt does not get the level");
        break;
    }
    case Verb::Reset:
        playReset();
        break;
    case Verb::End:
        playEnd();
        break;
    case Verb::Include:
        playInclude(line.name);
        break;
    case Verb::Pipeline:
        m_isPipelined = line.name == "on";
        break;
    case Verb::ExpectUart:
        expectUart(line);
        break;
    case Verb::SendUart:
        m_host.send(static_cast<int>(number[1]), line.text);
        break;
    case Verb::Gpio:
        expectPins(line);
        break;
    case Verb::GpioDrive:
        m_host.drive(number[1], number[2]);
        break;
    }
}

void ScriptPlayer::playBurst(const ScriptLine &line, bool isWrite)
{
    const BurstKind &burst = *burstNamed(line.name);
    const std::size_t words = line.numbers.size() - 3;
    const Kind kind = isWrite ? Kind::Write : Kind::Read;
    std::uint32_t address = line.numbers[2];
    if (isMemory(address) || isMemory(address + 4 * static_cast<std::uint32_t>(words - 1))) {
        fail("no bursts in the ITCM and the DTCM");
        return;
    }
    for (std::size_t i = 0; i < words; ++i) {
        addressPhase(i != 0 && burst.code != singleBurst, burst.code, address, isWrite, 4,
                     isWrite ? line.numbers[3 + i] : 0);
        if (i != 0)
            check(kind, line.numbers[2 + i], ~0u);
        const std::uint32_t inside = burst.wrapSpan == 0 ? ~0u : burst.wrapSpan - 1;
        address = (address & ~inside) | ((address + 4) & inside);
    }
    dataPhase();
    check(kind, line.numbers[2 + words], ~0u);
}

void ScriptPlayer::playPoll(const ScriptLine &line)
{
    const std::uint32_t expected = line.numbers[2];
    const std::uint32_t mask = line.numbers[3];
    look(line.numbers[1]);
    for (std::uint32_t left = line.numbers[4]; left > 1 && !m_hasFailed && !matches(expected, mask);
         --left)
        look(line.numbers[1]);
    checkRead(expected, mask);
}

void ScriptPlayer::playReset()
{
    m_outputs.requestsReset = true;
    while (!m_inputs.isReset)
        cycle();
    m_outputs.requestsReset = false;
    while (m_inputs.isReset)
        cycle();
    cycle();
}

void ScriptPlayer::playRepeat(const ScriptLine &line)
{
    bool isPlayed = line.mistake.empty();
    if (isPlayed && m_loops.size() == mostLoops) {
        fail("the repeats nest more than 8 deep");
        isPlayed = false;
    }
    if (isPlayed && line.numbers[1] != 0) {
        m_loops.push_back({m_files.size(), m_line, line.numbers[1]});
    } else {
        m_skipping = 1;
        m_skippedLine = m_line;
    }
}

void ScriptPlayer::playEnd()
{
    if (m_loops.empty() || m_loops.back().depth != m_files.size())
        fail("end without repeat");
    else if (--m_loops.back().left != 0)
        m_files.back().line = m_loops.back().line;
    else
        m_loops.pop_back();
}

void ScriptPlayer::playInclude(const std::string &included)
{
    if (m_files.size() == mostFiles) {
        fail("the includes nest more than 8 deep");
        m_isStopped = true;
        return;
    }
    const std::string name = nameBeside(m_files.back().name, included);
    if (!open(name))
        fail("the script \"" + name + "\" cannot be read");
}

void ScriptPlayer::expectUart(const ScriptLine &line)
{
    std::string &sent = m_sent[line.numbers[1]];
    for (std::uint32_t left = line.numbers[3]; left != 0 && sent.size() < line.text.size(); --left)
        cycle();
    ++m_checks;
    const std::string came = sent.substr(0, line.text.size());
    sent.erase(0, came.size());
    if (came != line.text)
        fail("UART" + std::to_string(line.numbers[1]) + " has sent " +
             (came.empty() ? "nothing" : quotedBytes(came)) + " instead of " +
             quotedBytes(line.text));
}

void ScriptPlayer::expectPins(const ScriptLine &line)
{
    const std::uint32_t mask = line.numbers[1];
    const std::uint32_t levels = line.numbers[2];
    const auto areShown = [this, mask, levels] { return (m_pins & mask) == levels; };
    for (std::uint32_t left = line.numbers[3]; left != 0 && !areShown(); --left)
        cycle();
    ++m_checks;
    if (!areShown())
        fail("the GPIO pins show " + hexadecimal(m_pins, 4) + ", expected " +
             hexadecimal(levels, 4) + " in the pins " + hexadecimal(mask, 4));
}

void ScriptPlayer::waitForReady()
{
    std::uint32_t left = longestWait;
    for (; !m_inputs.isReady && left != 0; --left)
        cycle();
    if (left == 0)
        fail("HREADY stays low");
}

// The end of a data phase.
void ScriptPlayer::dataPhase()
{
    cycle();
    waitForReady();
    m_hasFailed = m_inputs.isError;
    m_data = m_inputs.data;
    m_unknown = m_inputs.unknown;
}

// And the data phase of the transfer before it, if one is open.
void ScriptPlayer::addressPhase(bool isSequential, int burst, std::uint32_t address, bool isWrite,
                                int bytes, std::uint32_t value)
{
    m_outputs.address = address;
    m_outputs.isTransfer = true;
    m_outputs.isSequential = isSequential;
    m_outputs.burst = burst;
    m_outputs.size = bytes / 2;
    m_outputs.isWrite = isWrite;
    dataPhase();
    m_outputs.isTransfer = false;
    m_outputs.isSequential = false;
    m_outputs.burst = singleBurst;
    m_outputs.isWrite = false;
    m_outputs.data = onAllLanes(value, bytes);
}

bool ScriptPlayer::isInstructionMemory(std::uint32_t address) const
{
    const std::uint32_t bytes = m_configuration.itcmBytes;
    return (m_configuration.hasLowerAlias && address < bytes) ||
           (m_configuration.hasUpperAlias && address - upperAlias < bytes);
}

bool ScriptPlayer::isMemory(std::uint32_t address) const
{
    return isInstructionMemory(address) || address - dataMemoryBase < m_configuration.dtcmBytes;
}

// Two clock cycles, also where the memories are the player's. What the pins show counts for the
// rising edge between them.
void ScriptPlayer::accessMemory(std::uint32_t address, bool isWrite, int bytes, std::uint32_t value)
{
    const bool isInstruction = isInstructionMemory(address);
    const std::uint32_t word = address / 4 % memoryWords;
    const unsigned lanes = isWrite ? lanesOf(address, bytes) : 0;
    const std::uint32_t data = onAllLanes(value, bytes);
    cycle();
    m_hasFailed = false;
    if (m_configuration.hasOuterMemories) {
        m_outputs.memory = {isInstruction, !isInstruction, lanes, word, data};
        cycle();
        m_outputs.memory = {};
        m_data = isInstruction ? m_inputs.instructionMemory : m_inputs.dataMemory;
        m_unknown = isInstruction ? m_inputs.instructionMemoryUnknown : m_inputs.dataMemoryUnknown;
        return;
    }
    cycle();
    Memory &memory = m_memories[isInstruction ? 0 : 1];
    const std::size_t place = word % memory.words.size();
    for (unsigned lane = 0; lane < 4; ++lane) {
        const std::uint32_t bits = lanes >> lane & 1 ? 0xFFu << 8 * lane : 0;
        memory.words[place] = (memory.words[place] & ~bits) | (data & bits);
        memory.unknown[place] &= ~bits;
    }
    m_data = memory.words[place];
    m_unknown = memory.unknown[place];
}

// A transfer that is checked: the number behind the address is what is written or expected.
void ScriptPlayer::transfer(Kind kind, const ScriptLine &line)
{
    const std::uint32_t address = line.numbers[1];
    const std::uint32_t value = kind == Kind::Error ? 0 : line.numbers[2];
    const std::uint32_t written = kind == Kind::Write ? value : 0;
    const std::uint32_t mask =
        kind == Kind::Read ? (line.numbers.size() > 3 ? line.numbers[3] : ~0u) : 0;
    if (isMemory(address)) {
        close();
        accessMemory(address, kind == Kind::Write, line.bytes, written);
        m_data = fromLanes(m_data, address, line.bytes);
        m_unknown = fromLanes(m_unknown, address, line.bytes);
        check(kind, value, mask);
        return;
    }
    addressPhase(false, singleBurst, address, kind == Kind::Write, line.bytes, written);
    if (m_hasOpen)
        checkOpen();
    m_hasOpen = true;
    m_open = {kind, address, line.bytes, value, mask, m_line};
    if (!m_isPipelined)
        close();
}

// A word is read and not checked.
void ScriptPlayer::look(std::uint32_t address)
{
    if (isMemory(address)) {
        accessMemory(address, false, 4, 0);
    } else {
        addressPhase(false, singleBurst, address, false, 4, 0);
        dataPhase();
    }
}

void ScriptPlayer::close()
{
    if (!m_hasOpen)
        return;
    dataPhase();
    checkOpen();
}

void ScriptPlayer::checkOpen()
{
    const std::size_t line = std::exchange(m_line, m_open.line);
    m_hasOpen = false;
    m_data = fromLanes(m_data, m_open.address, m_open.bytes);
    m_unknown = fromLanes(m_unknown, m_open.address, m_open.bytes);
    check(m_open.kind, m_open.expected, m_open.mask);
    m_line = line;
}

// What the last transfer was to do.
void ScriptPlayer::check(Kind kind, std::uint32_t expected, std::uint32_t mask)
{
    if (kind == Kind::Read)
        checkRead(expected, mask);
    else if (kind == Kind::Write)
        checkThat(!m_hasFailed, "error response");
    else
        checkThat(m_hasFailed, "no error response");
}

bool ScriptPlayer::matches(std::uint32_t expected, std::uint32_t mask) const
{
    return (m_unknown & mask) == 0 && (m_data & mask) == expected;
}

void ScriptPlayer::checkRead(std::uint32_t expected, std::uint32_t mask)
{
    checkThat(!m_hasFailed, "error response");
    if (!m_hasFailed && !matches(expected, mask))
        fail("read " + shown(m_data, m_unknown) + ", expected " + hexadecimal(expected, 8) +
             " in the bits " + hexadecimal(mask, 8));
}

void ScriptPlayer::checkThat(bool holds, const char *otherwise)
{
    ++m_checks;
    if (!holds)
        fail(otherwise);
}

void ScriptPlayer::fail(const std::string &text)
{
    ++m_failures;
    m_tell({m_files.empty() ? m_name : m_files.back().name, static_cast<int>(m_line), text});
}

} // namespace CortexM1
