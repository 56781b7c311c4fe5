#pragma once

#include <array>
#include <cstdint>

namespace CortexM1
{

// Numbers of exceptions, as the processor shows them in IPSR.
constexpr int resetException = 1;
constexpr int nonMaskable = 2;
constexpr int hardFault = 3;
constexpr int supervisorCall = 11;
constexpr int pendSv = 14;
constexpr int sysTick = 15;
constexpr int firstInterrupt = 16;
constexpr int exceptionCount = 48;

// Priorities: the smaller the more urgent. Those of interrupts are 0 to 3.
constexpr int threadPriority = 4;
constexpr int hardFaultPriority = -1;
constexpr int nonMaskablePriority = -2;

// Which exceptions are pending, enabled and active, and which one comes next: the rules of ARMv6-M
// without a processor around them.
class Exceptions
{
public:
    // `interrupts`: inputs in use, 0 to 32.
    explicit Exceptions(int interrupts)
        : m_inputs(interrupts >= 32 ? ~0u : (1u << interrupts) - 1)
    {
    }

    void reset();

    // Takes the inputs of one clock cycle: a level requests as long as its handler does not run, an
    // edge also while it runs.
    void sample(std::uint32_t interruptInputs, bool nonMaskableInput);

    bool isPending(int number) const { return m_pending >> number & 1; }
    void setPending(int number, bool pending);
    bool isActive(int number) const { return m_active >> number & 1; }
    int activeCount() const;

    // 0 to 3; of the exceptions whose priority can be set.
    int priority(int number) const;
    void setPriority(int number, int priority);

    // One bit an interrupt.
    std::uint32_t inputs() const { return m_inputs; }
    std::uint32_t enabled() const { return m_enabled; }
    void setEnabled(std::uint32_t interrupts) { m_enabled = interrupts & m_inputs; }
    std::uint32_t pendingInterrupts() const
    {
        return static_cast<std::uint32_t>(m_pending >> firstInterrupt);
    }

    // What the running code counts as; with PRIMASK set not less urgent than 0.
    int executionPriority(bool primask) const;

    // The most urgent pending and enabled exception, 0 if there is none; of equals the lowest.
    int mostUrgent() const;

    // The exception that interrupts the running code now, 0 if none does.
    int preempting(bool primask) const;

    void activate(int number);   // pending becomes active
    void deactivate(int number); // at its return

private:
    std::uint32_t m_inputs;
    std::uint32_t m_enabled = 0;
    std::uint64_t m_pending = 0; // one bit an exception, by number
    std::uint64_t m_active = 0;
    std::array<std::uint8_t, exceptionCount> m_priority{};
    std::uint32_t m_levels = 0; // of the cycle before
    bool m_nonMaskableLevel = false;
};

} // namespace CortexM1
