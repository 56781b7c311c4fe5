#pragma once

#include "gdbpackets.h"
#include "processor.h"

#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace CortexM1
{

// The line to a debugger, one at a time.
class DebuggerLink
{
public:
    enum class Event {
        Nothing,      // not now; only if it was not to wait
        Connected,    // a debugger has come
        Bytes,        // it has sent something
        Disconnected, // it has gone
        Interrupted   // the waiting is to end, for the sake of the simulator
    };

    virtual ~DebuggerLink() = default;
    // `bytes`: of Event::Bytes, a few thousand at most. Without a debugger it waits for one.
    virtual Event receive(std::string &bytes, bool waits) = 0;
    // What cannot be sent counts as a disconnection.
    virtual void send(const std::string &bytes) = 0;
    // No debugger from now on.
    virtual void close() = 0;
};

// Serves gdb over a link: halts the processor between two instructions, and answers as long as it
// is halted. It begins halted, before the first instruction. When the debugger goes, its
// breakpoints go too and the program goes on; the next one that comes halts it again.
class Debugger
{
public:
    Debugger(Processor &processor, DebuggerLink &link);

    // To be called before each step of the processor; waits while the processor is halted. False:
    // a clock cycle has to pass first, without a step.
    bool mayStep();

    // To be called when the program has ended, until it is true. A program that failed can be
    // looked at before.
    bool mayEnd();

    // The processor has been reset.
    void noteReset() { m_wasReset = true; }

    // Time does not count for the processor.
    bool isHalted() const { return m_state == State::Halted; }

private:
    enum class State { Running, Stepping, Halted, Resetting };

    // Kind as in the packets Z0 to Z4, address, bytes.
    using Point = std::tuple<char, std::uint32_t, std::uint32_t>;
    using Command = void (Debugger::*)(const std::string &packet);
    struct CommandRow;
    static const std::vector<CommandRow> &commands();

    bool poll();
    bool exchange(bool waits);
    void take(Received what, const std::string &packet);
    void execute(const std::string &packet);
    void reply(const std::string &contents);
    void report(const std::string &text);
    void halt(const std::string &stopReply);
    bool goesOn();
    std::string watched() const;
    void finishReset();
    void connected();
    void disconnected();

    void supported(const std::string &packet);
    void description(const std::string &packet);
    void noAcknowledgements(const std::string &packet);
    void okay(const std::string &packet);
    void thread(const std::string &packet);
    void firstThreads(const std::string &packet);
    void moreThreads(const std::string &packet);
    void attached(const std::string &packet);
    void whyHalted(const std::string &packet);
    void readRegisters(const std::string &packet);
    void writeRegisters(const std::string &packet);
    void readRegister(const std::string &packet);
    void writeRegister(const std::string &packet);
    void readMemory(const std::string &packet);
    void writeMemory(const std::string &packet);
    void writeBinary(const std::string &packet);
    void resume(const std::string &packet);
    void resumable(const std::string &packet);
    void point(const std::string &packet);
    void kill(const std::string &packet);
    void detach(const std::string &packet);
    void monitor(const std::string &packet);

    void storeBytes(std::uint32_t address, const std::string &bytes);
    bool access(Transfer &transfer);
    std::string status() const;

    Processor &m_processor;
    DebuggerLink &m_link;
    PacketReader m_reader;
    State m_state = State::Halted;
    State m_stateBefore = State::Halted; // the debugger that is connected came
    bool m_isConnected = false;
    bool m_hasSpoken = false; // a packet; otherwise it only tried the port
    bool m_acknowledges = true;
    bool m_isEnding = false;
    bool m_isKilled = false;
    bool m_hasStepped = false;
    bool m_ignoresWatchpoints = false; // for the instruction at which the program goes on
    bool m_wasLockedUp = false;
    bool m_wasReset = false;
    bool m_isAbandoned = false; // an access, since the processor is about to be reset
    int m_untilPoll = 0;
    int m_resetCycles = 0;
    std::string m_stopReply;
    std::string m_lastReply; // as it was sent
    std::string m_refusal;   // of the last access that failed
    std::set<Point> m_points;
};

} // namespace CortexM1
