#include "boardhost.h"

#include "session.h"
#include "storage.h"
#include "wavewindow.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace CortexM1
{

namespace
{

constexpr std::size_t longestLine = 16384; // characters
constexpr std::size_t filePiece = 4096;    // bytes
constexpr int mostPinCredit = 1000;
constexpr std::uint32_t allPins = 0xFFFF;
constexpr auto timeBetweenTimes = std::chrono::milliseconds(100);

std::vector<std::string> wordsOf(const std::string &line)
{
    std::vector<std::string> words;
    std::size_t from = 0;
    while ((from = line.find_first_not_of(' ', from)) != std::string::npos) {
        const std::size_t to = std::min(line.find(' ', from), line.size());
        words.push_back(line.substr(from, to - from));
        from = to;
    }
    return words;
}

bool isHex(const std::string &digits)
{
    return !digits.empty() &&
           digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

bool readPins(const std::string &digits, int *pins)
{
    if (!isHex(digits) || digits.size() > 8)
        return false;
    const unsigned long value = std::stoul(digits, nullptr, 16);
    if (value > allPins)
        return false;
    *pins = static_cast<int>(value);
    return true;
}

} // namespace

BoardHost::BoardHost(Simulator &simulator)
    : m_simulator(simulator)
    , m_mark(simulator.argument("mark") ? simulator.argument("mark") : "board")
{
    try {
        open();
    } catch (const std::exception &error) {
        end(error.what());
    }
}

BoardHost::~BoardHost() = default;

std::unique_ptr<BoardHost> &BoardHost::sharedHost()
{
    static std::unique_ptr<BoardHost> made;
    return made;
}

BoardHost &BoardHost::shared(Simulator &simulator)
{
    std::unique_ptr<BoardHost> &made = sharedHost();
    if (!made)
        made = std::make_unique<BoardHost>(simulator);
    return *made;
}

void BoardHost::finishShared()
{
    if (sharedHost())
        sharedHost()->finish();
    sharedHost().reset();
}

std::string BoardHost::argument(const std::string &name) const
{
    const char *value = m_simulator.argument(name);
    return value ? value : "";
}

void BoardHost::open()
{
    m_tellsTime = m_simulator.argument("progress") != nullptr;
    for (int i = 0; i < storages; ++i)
        m_storages[i] = std::make_unique<Storage>(storageKinds[i], argument(storageKinds[i].name));
    for (int i = 0; i < uarts; ++i) {
        const std::string path = argument("uart" + std::to_string(i) + "-input");
        if (!path.empty())
            m_lines[i].file = std::make_unique<InputFile>(path);
    }
    if (const std::string path = argument("host"); !path.empty())
        m_pipe = std::make_unique<InputPipe>(path);
}

void BoardHost::tell(const std::string &event)
{
    m_simulator.print('\036' + m_mark + ' ' + event + '\n');
}

void BoardHost::end(const std::string &reason)
{
    if (m_ending.empty())
        m_ending = reason;
}

void BoardHost::sent(int uart, std::uint8_t byte)
{
    if (m_observer)
        m_observer->sent(uart, byte);
    char text[32];
    std::snprintf(text, sizeof text, "uart %d %02x", uart, unsigned(byte));
    tell(text);
    WaveWindow::shared().noteText(1 + uart, std::string(1, static_cast<char>(byte)));
}

bool BoardHost::waves(std::uint32_t cyclesLow, std::uint32_t cyclesHigh)
{
    m_hasWaves = WaveWindow::shared().wants(std::uint64_t(cyclesHigh) << 32 | cyclesLow);
    return m_hasWaves;
}

int BoardHost::input(int uart)
{
    if (uart < 0 || uart >= uarts)
        return -1;
    Line &line = m_lines[uart];
    if (line.taken == line.piece.size() && line.file) {
        line.piece.resize(filePiece);
        line.piece.resize(line.file->read(line.place, line.piece.data(), filePiece));
        line.place += line.piece.size();
        line.taken = 0;
        if (line.piece.empty())
            line.file.reset();
    }
    if (line.taken < line.piece.size())
        return line.piece[line.taken++];
    if (line.bytes.empty())
        return -1;
    const std::uint8_t byte = line.bytes.front();
    line.bytes.pop_front();
    return byte;
}

void BoardHost::pins(std::uint32_t levels, std::uint32_t driven)
{
    m_pins = {levels & allPins, driven & allPins};
    if (m_observer)
        m_observer->pinsChanged(m_pins.levels, m_pins.driven);
    m_hasUntoldPins = true;
    tellPins();
}

void BoardHost::tellPins()
{
    if (!m_hasUntoldPins || m_pinCredit == 0)
        return;
    --m_pinCredit;
    m_hasUntoldPins = false;
    char text[32];
    std::snprintf(text, sizeof text, "gpio %04x %04x", unsigned(m_pins.levels),
                  unsigned(m_pins.driven));
    tell(text);
}

void BoardHost::time(std::uint64_t cycles)
{
    m_pinCredit = std::min(m_pinCredit + 1, mostPinCredit);
    tellPins();
    readPipe();
    if (!m_tellsTime)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextTime)
        return;
    m_nextTime = now + timeBetweenTimes;
    tell("time " + std::to_string(cycles));
}

void BoardHost::readPipe()
{
    if (!m_pipe)
        return;
    const std::string text = m_pipe->read();
    for (const char character : text) {
        if (character == '\n') {
            if (!m_isSkipping)
                takeLine(m_piece);
            m_piece.clear();
            m_isSkipping = false;
        } else if (m_piece.size() < longestLine) {
            m_piece += character;
        } else {
            m_isSkipping = true;
        }
    }
}

void BoardHost::takeLine(const std::string &line)
{
    const std::vector<std::string> words = wordsOf(line);
    int mask = 0;
    int levels = 0;
    if (words.size() == 3 && words[0] == "uart" && (words[1] == "0" || words[1] == "1")) {
        takeBytes(words[1][0] - '0', words[2]);
    } else if (words.size() == 3 && words[0] == "gpio" && readPins(words[1], &mask) &&
               readPins(words[2], &levels)) {
        drive(static_cast<std::uint32_t>(mask), static_cast<std::uint32_t>(levels));
    } else if (words.size() == 1 && words[0] == "stop") {
        end("it was stopped from outside");
    }
}

void BoardHost::takeBytes(int uart, const std::string &digits)
{
    if (!isHex(digits) || digits.size() % 2 != 0)
        return;
    Line &line = m_lines[uart];
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        if (line.bytes.size() >= mostInput) {
            if (!line.isCutOff)
                m_simulator.print("(UART" + std::to_string(uart) +
                                  " is not read: input that it cannot take is dropped)\n");
            line.isCutOff = true;
            return;
        }
        line.bytes.push_back(
            static_cast<std::uint8_t>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    }
}

void BoardHost::send(int uart, const std::string &bytes)
{
    if (uart < 0 || uart >= uarts)
        return;
    std::deque<std::uint8_t> &waiting = m_lines[uart].bytes;
    waiting.insert(waiting.end(), bytes.begin(), bytes.end());
}

void BoardHost::drive(std::uint32_t mask, std::uint32_t levels)
{
    m_driveMask = static_cast<int>(mask);
    m_driveLevels = static_cast<int>(levels & mask);
}

Storage *BoardHost::storageOf(int number) const
{
    return number >= 0 && number < storages ? m_storages[number].get() : nullptr;
}

int BoardHost::size(int storage)
{
    if (!m_ending.empty()) {
        if (!m_isEndingTold)
            m_simulator.print("FAIL: " + m_ending + "\n");
        m_isEndingTold = true;
        return -1;
    }
    const Storage *found = storageOf(storage);
    return found ? static_cast<int>(found->size()) : 0;
}

int BoardHost::load(int storage, std::uint32_t address)
{
    Storage *found = storageOf(storage);
    return found ? found->load(address) : 0xFF;
}

void BoardHost::store(int storage, std::uint32_t address, std::uint8_t byte)
{
    if (Storage *found = storageOf(storage))
        found->store(address, byte);
}

void BoardHost::finish()
{
    if (m_isFinished)
        return;
    m_isFinished = true;
    m_pinCredit = 1;
    tellPins();
    for (int i = 0; i < storages; ++i) {
        const std::string path = argument(std::string(storageKinds[i].name) + "-result");
        if (path.empty() || !m_storages[i])
            continue;
        try {
            m_storages[i]->save(path);
        } catch (const std::exception &error) {
            m_simulator.print(std::string(error.what()) + "\n");
        }
    }
}

} // namespace CortexM1
