#include "debugger.h"

#include "text.h"

#include <algorithm>
#include <array>

namespace CortexM1
{

namespace
{

constexpr int pollInterval = 64;     // steps between two looks at the line
constexpr int longestReset = 100000; // clock cycles
constexpr std::size_t mostPoints = 1024;
constexpr std::uint32_t mostRead = longestPacket / 2 - 1; // bytes in one reply

const std::string okayReply = "OK";
const std::string malformed = "E01";
const std::string noAccess = "E02"; // "monitor status" has the reason
const std::string notPossible = "E03";

// Signals, by gdb's numbers.
const std::string interruptedReply = "S02";
const std::string trapReply = "S05";
const std::string abortReply = "S06";
const std::string faultReply = "S0b";

// Names in the order of their numbers.
constexpr std::array<const char *, Processor::debugRegisters> registerNames = {
    "r0",  "r1",  "r2", "r3", "r4", "r5",   "r6",  "r7",  "r8",      "r9",     "r10",
    "r11", "r12", "sp", "lr", "pc", "xpsr", "msp", "psp", "primask", "control"};

const std::string &targetDescription()
{
    static const std::string text = [] {
        std::string result = "<?xml version=\"1.0\"?>\n<target version=\"1.0\">\n"
                             "<architecture>arm</architecture>\n"
                             "<feature name=\"org.gnu.gdb.arm.m-profile\">\n";
        for (std::size_t i = 0; i < registerNames.size(); ++i) {
            const std::string name = registerNames[i];
            if (i == Processor::mainStack)
                result += "</feature>\n<feature name=\"org.gnu.gdb.arm.m-system\">\n";
            result += "<reg name=\"" + name + "\" bitsize=\"32\"";
            if (i == 13 || i == Processor::mainStack || i == Processor::processStack)
                result += " type=\"data_ptr\"";
            if (i == 15)
                result += " type=\"code_ptr\"";
            result += "/>\n";
        }
        return result + "</feature>\n</target>\n";
    }();
    return text;
}

bool startsWith(const std::string &text, const std::string &start)
{
    return text.compare(0, start.size(), start) == 0;
}

// The bytes that one access takes of `left` from an address on.
int accessBytes(std::uint32_t address, std::size_t left)
{
    if (address % 4 == 0 && left >= 4)
        return 4;
    return address % 2 == 0 && left >= 2 ? 2 : 1;
}

bool overlap(std::uint32_t a, std::uint32_t aBytes, std::uint32_t b, std::uint32_t bBytes)
{
    return a - b < bBytes || b - a < aBytes;
}

} // namespace

struct Debugger::CommandRow {
    const char *start; // of the packet
    bool isWhole;      // the packet is nothing more
    Command command;
};

const std::vector<Debugger::CommandRow> &Debugger::commands()
{
    static const std::vector<CommandRow> rows = {
        {"?", true, &Debugger::whyHalted},
        {"g", true, &Debugger::readRegisters},
        {"G", false, &Debugger::writeRegisters},
        {"p", false, &Debugger::readRegister},
        {"P", false, &Debugger::writeRegister},
        {"m", false, &Debugger::readMemory},
        {"M", false, &Debugger::writeMemory},
        {"X", false, &Debugger::writeBinary},
        {"c", false, &Debugger::resume},
        {"s", false, &Debugger::resume},
        {"vCont;", false, &Debugger::resume},
        {"vCont?", true, &Debugger::resumable},
        {"Z", false, &Debugger::point},
        {"z", false, &Debugger::point},
        {"k", false, &Debugger::kill},
        {"vKill", false, &Debugger::kill},
        {"D", false, &Debugger::detach},
        {"H", false, &Debugger::okay},
        {"T", false, &Debugger::okay},
        {"qSupported", false, &Debugger::supported},
        {"qXfer:features:read:target.xml:", false, &Debugger::description},
        {"QStartNoAckMode", true, &Debugger::noAcknowledgements},
        {"qC", true, &Debugger::thread},
        {"qfThreadInfo", true, &Debugger::firstThreads},
        {"qsThreadInfo", true, &Debugger::moreThreads},
        {"qAttached", false, &Debugger::attached},
        {"qSymbol::", true, &Debugger::okay},
        {"qRcmd,", false, &Debugger::monitor},
    };
    return rows;
}

Debugger::Debugger(Processor &processor, DebuggerLink &link)
    : m_processor(processor)
    , m_link(link)
    , m_stopReply(trapReply)
{
}

// ---- between instructions

bool Debugger::mayStep()
{
    if (m_processor.next() == Processor::Next::Start)
        return true; // there are no registers to look at
    if (m_state == State::Resetting)
        finishReset();
    if (m_state != State::Halted && !poll())
        return false;
    for (;;) {
        while (m_state == State::Halted) {
            if (!exchange(true))
                return false;
        }
        if (m_state == State::Resetting)
            return false;
        if (goesOn())
            return true;
    }
}

bool Debugger::mayEnd()
{
    if (!m_isEnding) {
        m_isEnding = true;
        m_state = State::Running;
        if (m_isConnected && !m_isKilled && !m_processor.ending().passed) {
            report("FAIL: " + m_processor.ending().reason + "\n");
            halt(abortReply);
        }
    }
    while (m_state == State::Halted) {
        if (!exchange(true))
            return false;
    }
    if (m_isConnected && !m_isKilled)
        reply(m_processor.ending().passed ? "W00" : "W01");
    m_link.close();
    m_isConnected = false;
    return true;
}

bool Debugger::poll()
{
    if (m_untilPoll-- > 0)
        return true;
    m_untilPoll = pollInterval;
    return exchange(false);
}

// Whether the next step may be taken; otherwise the program is halted now.
bool Debugger::goesOn()
{
    const Processor::Next next = m_processor.next();
    if (m_processor.isLockedUp() != m_wasLockedUp) {
        m_wasLockedUp = m_processor.isLockedUp();
        if (m_wasLockedUp) {
            halt(faultReply);
            return false;
        }
    }
    if (m_state == State::Stepping) {
        if (m_hasStepped) {
            halt(trapReply);
            return false;
        }
        m_hasStepped = next == Processor::Next::Instruction || next == Processor::Next::Exception;
    }
    if (next != Processor::Next::Instruction || m_points.empty())
        return true;
    if (m_state == State::Running) {
        const std::uint32_t place = m_processor.registerValue(15);
        const auto isHere = [place](const Point &point) {
            return std::get<0>(point) < '2' && std::get<1>(point) == place;
        };
        if (std::any_of(m_points.begin(), m_points.end(), isHere)) {
            halt(trapReply);
            return false;
        }
    }
    const std::string stop = m_ignoresWatchpoints ? std::string() : watched();
    m_ignoresWatchpoints = false;
    if (!stop.empty()) {
        halt(stop);
        return false;
    }
    return true;
}

// The reply for a watchpoint that the next instruction meets, if one is met.
std::string Debugger::watched() const
{
    const bool any = std::any_of(m_points.begin(), m_points.end(),
                                 [](const Point &point) { return std::get<0>(point) >= '2'; });
    const AccessRange range = any ? m_processor.nextAccess() : AccessRange();
    if (range.bytes == 0)
        return {};
    for (const auto &[kind, address, bytes] : m_points) {
        const bool matters =
            kind == '4' || (kind == '2' && range.isWrite) || (kind == '3' && !range.isWrite);
        if (matters && overlap(range.address, range.bytes, address, bytes))
            return std::string("T05") +
                   (kind == '2'   ? ""
                    : kind == '3' ? "r"
                                  : "a") +
                   "watch:" + hexadecimal(address).substr(2) + ";";
    }
    return {};
}

void Debugger::halt(const std::string &stopReply)
{
    m_state = State::Halted;
    m_stopReply = stopReply;
    reply(stopReply);
}

void Debugger::finishReset()
{
    if (m_wasReset) {
        m_processor.requestReset(false);
        m_wasLockedUp = false;
    } else if (--m_resetCycles > 0) {
        return;
    } else {
        m_processor.requestReset(false);
        report("the subsystem does not answer the request for a reset\n");
    }
    m_state = State::Halted;
    m_stopReply = trapReply;
    reply(okayReply);
}

// ---- the line

// Takes what the debugger has sent; false if the simulator has to go on.
bool Debugger::exchange(bool waits)
{
    std::string bytes;
    switch (m_link.receive(bytes, waits)) {
    case DebuggerLink::Event::Nothing:
        return true;
    case DebuggerLink::Event::Interrupted:
        return false;
    case DebuggerLink::Event::Connected:
        connected();
        return true;
    case DebuggerLink::Event::Disconnected:
        disconnected();
        return true;
    case DebuggerLink::Event::Bytes:
        break;
    }
    m_reader.feed(bytes);
    m_isAbandoned = false;
    std::string packet;
    for (;;) {
        const Received what = m_reader.next(packet);
        if (what == Received::Nothing)
            break;
        take(what, packet);
    }
    return !m_isAbandoned;
}

void Debugger::connected()
{
    m_isConnected = true;
    m_hasSpoken = false;
    m_stateBefore = m_state;
    m_acknowledges = true;
    m_reader.clear();
    m_lastReply.clear();
    m_stopReply = trapReply;
    m_state = State::Halted;
}

void Debugger::disconnected()
{
    if (m_state == State::Resetting)
        m_processor.requestReset(false);
    m_isConnected = false;
    m_points.clear();
    m_state = m_hasSpoken ? State::Running : m_stateBefore;
}

void Debugger::take(Received what, const std::string &packet)
{
    switch (what) {
    case Received::Packet:
        m_hasSpoken = true;
        if (m_acknowledges)
            m_link.send("+");
        execute(packet);
        return;
    case Received::TooLong:
        if (m_acknowledges)
            m_link.send("+");
        reply(malformed);
        return;
    case Received::Broken:
        if (m_acknowledges)
            m_link.send("-");
        return;
    case Received::Refused:
        if (m_acknowledges && !m_lastReply.empty())
            m_link.send(m_lastReply);
        return;
    case Received::Interrupt:
        if (m_state == State::Running || m_state == State::Stepping)
            halt(interruptedReply);
        return;
    case Received::Acknowledged:
    case Received::Nothing:
        return;
    }
}

void Debugger::reply(const std::string &contents)
{
    m_lastReply = framed(contents);
    m_link.send(m_lastReply);
}

// For the debugger's console, while it waits for a reply.
void Debugger::report(const std::string &text)
{
    reply("O" + toHex(text));
}

void Debugger::execute(const std::string &packet)
{
    for (const CommandRow &row : commands()) {
        if (row.isWhole ? packet == row.start : startsWith(packet, row.start)) {
            (this->*row.command)(packet);
            return;
        }
    }
    reply({}); // not known
}

// ---- commands

void Debugger::supported(const std::string &)
{
    reply("PacketSize=" + hexadecimal(longestPacket).substr(6) +
          ";qXfer:features:read+;QStartNoAckMode+");
}

void Debugger::description(const std::string &packet)
{
    PacketArguments arguments(packet, packet.rfind(':') + 1);
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
    if (!arguments.number(offset) || !arguments.character(',') || !arguments.number(length) ||
        !arguments.isAtEnd()) {
        reply(malformed);
        return;
    }
    const std::string &text = targetDescription();
    if (offset > text.size()) {
        reply(malformed);
        return;
    }
    const std::size_t count = std::min<std::size_t>(length, mostRead);
    reply((offset + count < text.size() ? "m" : "l") + text.substr(offset, count));
}

void Debugger::noAcknowledgements(const std::string &)
{
    reply(okayReply);
    m_acknowledges = false;
}

void Debugger::okay(const std::string &)
{
    reply(okayReply);
}

void Debugger::thread(const std::string &)
{
    reply("QC1");
}

void Debugger::firstThreads(const std::string &)
{
    reply("m1");
}

void Debugger::moreThreads(const std::string &)
{
    reply("l");
}

// A debugger that quits lets the program go on.
void Debugger::attached(const std::string &)
{
    reply("1");
}

void Debugger::whyHalted(const std::string &)
{
    reply(m_stopReply);
}

void Debugger::readRegisters(const std::string &)
{
    std::string text;
    for (int number = 0; number < Processor::debugRegisters; ++number)
        text += wordToHex(m_processor.debugRegister(number));
    reply(text);
}

void Debugger::writeRegisters(const std::string &packet)
{
    std::array<std::uint32_t, Processor::debugRegisters> values{};
    bool isRight = packet.size() == 1 + 8 * values.size();
    for (std::size_t i = 0; i < values.size() && isRight; ++i)
        isRight = wordFromHex(packet.substr(1 + 8 * i, 8), values[i]);
    if (!isRight) {
        reply(malformed);
        return;
    }
    // CONTROL comes first, since it selects which of the stack pointers is "sp"; of the others only
    // the one that is not in use counts.
    bool done = m_processor.setDebugRegister(Processor::control, values[Processor::control]);
    const int inUse = m_processor.debugRegister(Processor::control) & 2 ? Processor::processStack
                                                                        : Processor::mainStack;
    for (int number = 0; number < Processor::control; ++number) {
        if (number != inUse)
            done &= m_processor.setDebugRegister(number, values[static_cast<std::size_t>(number)]);
    }
    reply(done ? okayReply : notPossible);
}

void Debugger::readRegister(const std::string &packet)
{
    PacketArguments arguments(packet, 1);
    std::uint32_t number = 0;
    if (!arguments.number(number) || !arguments.isAtEnd() || number >= Processor::debugRegisters)
        reply(malformed);
    else
        reply(wordToHex(m_processor.debugRegister(static_cast<int>(number))));
}

void Debugger::writeRegister(const std::string &packet)
{
    PacketArguments arguments(packet, 1);
    std::uint32_t number = 0;
    std::uint32_t value = 0;
    if (!arguments.number(number) || !arguments.character('=') ||
        !wordFromHex(arguments.rest(), value) || number >= Processor::debugRegisters)
        reply(malformed);
    else
        reply(m_processor.setDebugRegister(static_cast<int>(number), value) ? okayReply
                                                                            : notPossible);
}

bool Debugger::access(Transfer &transfer)
{
    std::string mistake;
    const TransferEnd end = m_processor.debugAccess(transfer, mistake);
    if (end == TransferEnd::Done)
        return true;
    m_isAbandoned |= end == TransferEnd::Abandoned;
    if (mistake.empty())
        mistake = end == TransferEnd::Abandoned ? "a reset came in between"
                                                : "the bus answers with an error";
    m_refusal = std::string(transfer.isWrite ? "write to " : "read from ") +
                hexadecimal(transfer.address) + ": " + mistake;
    return false;
}

// A reply may have fewer bytes than were asked for.
void Debugger::readMemory(const std::string &packet)
{
    PacketArguments arguments(packet, 1);
    std::uint32_t address = 0;
    std::uint32_t length = 0;
    if (!arguments.number(address) || !arguments.character(',') || !arguments.number(length) ||
        !arguments.isAtEnd()) {
        reply(malformed);
        return;
    }
    length = std::min(length, mostRead);
    std::string text;
    while (length > 0) {
        Transfer transfer{address, accessBytes(address, length), false, 0};
        if (!access(transfer))
            break;
        text += wordToHex(transfer.data).substr(0, 2 * static_cast<std::size_t>(transfer.bytes));
        address += static_cast<std::uint32_t>(transfer.bytes);
        length -= static_cast<std::uint32_t>(transfer.bytes);
    }
    reply(text.empty() && length > 0 ? noAccess : text);
}

void Debugger::storeBytes(std::uint32_t address, const std::string &bytes)
{
    for (std::size_t at = 0; at < bytes.size();) {
        Transfer transfer{address, accessBytes(address, bytes.size() - at), true, 0};
        for (int i = 0; i < transfer.bytes; ++i)
            transfer.data |= std::uint32_t(static_cast<std::uint8_t>(bytes[at++])) << 8 * i;
        if (!access(transfer)) {
            reply(noAccess);
            return;
        }
        address += static_cast<std::uint32_t>(transfer.bytes);
    }
    reply(okayReply);
}

void Debugger::writeMemory(const std::string &packet)
{
    PacketArguments arguments(packet, 1);
    std::uint32_t address = 0;
    std::uint32_t length = 0;
    std::string bytes;
    if (!arguments.number(address) || !arguments.character(',') || !arguments.number(length) ||
        !arguments.character(':') || !fromHex(arguments.rest(), bytes) || bytes.size() != length)
        reply(malformed);
    else
        storeBytes(address, bytes);
}

void Debugger::writeBinary(const std::string &packet)
{
    PacketArguments arguments(packet, 1);
    std::uint32_t address = 0;
    std::uint32_t length = 0;
    std::string bytes;
    if (!arguments.number(address) || !arguments.character(',') || !arguments.number(length) ||
        !arguments.character(':') || !unescaped(arguments.rest(), bytes) || bytes.size() != length)
        reply(malformed);
    else
        storeBytes(address, bytes);
}

void Debugger::resumable(const std::string &)
{
    reply("vCont;c;C;s;S");
}

// c, s, each with an address if wanted; vCont with one action, since there is one thread.
void Debugger::resume(const std::string &packet)
{
    const bool isList = packet[0] == 'v';
    const std::size_t at = isList ? 6 : 0;
    const char action = at < packet.size() ? packet[at] : ' ';
    const bool steps = action == 's' || action == 'S';
    if (!steps && action != 'c' && action != 'C') {
        reply(malformed);
        return;
    }
    PacketArguments arguments(packet, 1);
    std::uint32_t address = 0;
    if (!isList && !arguments.isAtEnd()) {
        if (!arguments.number(address) || !arguments.isAtEnd()) {
            reply(malformed);
            return;
        }
        m_processor.setDebugRegister(15, address);
    }
    // gdb steps over what it has been told of.
    m_ignoresWatchpoints = m_stopReply.find("watch:") != std::string::npos;
    m_state = steps ? State::Stepping : State::Running;
    m_hasStepped = false;
    m_untilPoll = pollInterval;
}

// Z or z, kind, address, bytes.
void Debugger::point(const std::string &packet)
{
    const char kind = packet.size() > 1 ? packet[1] : ' ';
    if (kind < '0' || kind > '4') {
        reply({});
        return;
    }
    PacketArguments arguments(packet, 2);
    std::uint32_t address = 0;
    std::uint32_t bytes = 0;
    if (!arguments.character(',') || !arguments.number(address) || !arguments.character(',') ||
        !arguments.number(bytes) || !arguments.isAtEnd()) {
        reply(malformed);
        return;
    }
    const Point wanted{kind, kind < '2' ? address & ~1u : address, bytes};
    if (packet[0] == 'z') {
        m_points.erase(wanted);
    } else if (m_points.size() >= mostPoints && m_points.count(wanted) == 0) {
        reply(notPossible);
        return;
    } else {
        m_points.insert(wanted);
    }
    reply(okayReply);
}

void Debugger::kill(const std::string &packet)
{
    if (packet[0] == 'v')
        reply(okayReply);
    m_isKilled = true;
    m_processor.stop("the debugger has ended the program");
    m_points.clear();
    m_state = State::Running;
}

void Debugger::detach(const std::string &)
{
    reply(okayReply);
    m_points.clear();
    m_state = State::Running;
}

void Debugger::monitor(const std::string &packet)
{
    std::string text;
    if (!fromHex(packet.substr(6), text)) {
        reply(malformed);
        return;
    }
    if (text == "reset") {
        if (m_isEnding) {
            report("the program has ended\n");
            reply(okayReply);
            return;
        }
        m_processor.requestReset(true);
        m_wasReset = false;
        m_resetCycles = longestReset;
        m_state = State::Resetting;
        return;
    }
    report(text == "status" ? status()
                            : "\"monitor reset\" resets the subsystem and halts at the program's "
                              "beginning; \"monitor status\" tells of the processor\n");
    reply(okayReply);
}

std::string Debugger::status() const
{
    std::string text = m_processor.isLockedUp()   ? "locked up"
                       : m_processor.isSleeping() ? "asleep"
                                                  : "halted";
    text += " at " + hexadecimal(m_processor.registerValue(15));
    text += m_processor.runningException() == 0
                ? ", in thread mode\n"
                : ", in exception " + std::to_string(m_processor.runningException()) + "\n";
    if (m_isEnding)
        text += "the program has ended: " + m_processor.ending().reason + "\n";
    if (!m_refusal.empty())
        text += "the last access that failed: " + m_refusal + "\n";
    return text;
}

} // namespace CortexM1
