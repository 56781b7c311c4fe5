#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace CortexM1
{

// The part of a run that waves are written of: from a clock cycle, or from the first event at or
// after it, to a clock cycle. The processor and the board tell it what happens.
class WaveWindow
{
public:
    // The whole run.
    WaveWindow() = default;

    // As on the command line, null where there is none:
    //   +waves-from=CYCLE, +waves-to=CYCLE   decimal, both are in the window
    //   +waves-at=address:FIRST-LAST   an instruction there, or a transfer on the bus; hexadecimal
    //   +waves-at=exception:NUMBER     the exception is taken; as in IPSR
    //   +waves-at=message:TEXT         the program says it by semihosting or on a UART
    // Throws std::runtime_error for anything else.
    WaveWindow(const char *from, const char *to, const char *at);

    // The one of this process.
    static WaveWindow &shared();

    // Whether the waves have this clock cycle. Each call is about a later cycle than the one
    // before.
    bool wants(std::uint64_t cycle);

    // Whether it is an event that has not come.
    bool isWaiting() const { return m_event != Event::None && !m_hasHappened; }
    void noteInstruction(std::uint32_t address, int exception);
    void noteTransfer(std::uint32_t address, int bytes);
    // `source`: texts of different ones are not joined; semihosting 0, UART n is 1 + n.
    void noteText(int source, const std::string &text);

private:
    enum class Event { None, Address, Exception, Message };

    void happen() { m_hasHappened = m_hasHappened || m_isOpen; }

    std::uint64_t m_from = 0;
    std::uint64_t m_to = UINT64_MAX;
    Event m_event = Event::None;
    std::uint32_t m_first = 0;
    std::uint32_t m_last = 0;
    int m_exception = 0;
    std::string m_text;
    std::vector<std::string> m_said; // the last of it, by source
    bool m_isOpen = true;            // events count
    bool m_hasHappened = false;
};

} // namespace CortexM1
