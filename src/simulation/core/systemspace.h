#pragma once

#include "exceptions.h"

#include <cstdint>
#include <string>

namespace CortexM1
{

// What a core is built with: the parameters of CortexM1Core.
struct Configuration {
    int interrupts = 32;         // inputs in use, 1 to 32
    bool hasOsExtension = true;  // SysTick, SVCall, PendSV and the process stack
    bool isBigEndian = false;    // refused by the processor
    bool hasLowerAlias = true;   // the ITCM stands at 0x00000000
    bool hasUpperAlias = false;  // the ITCM stands at 0x10000000
    std::uint32_t itcmBytes = 0; // a power of two, or 0
    std::uint32_t dtcmBytes = 0;
    bool hasOuterMemories = false; // no parameter: the ITCM and DTCM are the surroundings'
};

// The registers of the processor itself, 0xE0000000 to 0xE00FFFFF: interrupt controller, system
// control and system timer.
class SystemSpace
{
public:
    SystemSpace(const Configuration &configuration, Exceptions &exceptions);

    void reset();

    // Counts a clock cycle of the system timer.
    void tick();

    // Words only. What is wrong with an access that the model does not have, otherwise empty.
    // `running`: the exception that runs, 0 in thread mode.
    std::string read(std::uint32_t address, int running, std::uint32_t &value);
    std::string write(std::uint32_t address, std::uint32_t value);

    bool resetRequested() const { return m_resetRequested; } // until the reset
    void requestReset(bool requested) { m_resetRequested = requested; }
    bool sleepsOnExit() const { return m_sleepControl & 2; }
    bool pendingWakes() const { return m_sleepControl & 16; } // an event for WFE

private:
    std::uint32_t controlState(int running) const;
    std::uint32_t priorities(int firstException) const;
    void setPriorities(int firstException, std::uint32_t value);

    const Configuration m_configuration;
    Exceptions &m_exceptions;
    bool m_resetRequested = false;
    std::uint32_t m_sleepControl = 0;
    std::uint32_t m_timerControl = 0;
    std::uint32_t m_timerReload = 0;
    std::uint32_t m_timerValue = 0;
};

} // namespace CortexM1
