#include "exceptions.h"

#include <algorithm>

namespace CortexM1
{

void Exceptions::reset()
{
    const std::uint32_t inputs = m_inputs;
    *this = Exceptions(0);
    m_inputs = inputs;
}

void Exceptions::sample(std::uint32_t interruptInputs, bool nonMaskableInput)
{
    const std::uint32_t levels = interruptInputs & m_inputs;
    const auto active = static_cast<std::uint32_t>(m_active >> firstInterrupt);
    const std::uint64_t requests = levels & (~active | ~m_levels);
    m_pending |= requests << firstInterrupt;
    m_levels = levels;
    if (nonMaskableInput && (!isActive(nonMaskable) || !m_nonMaskableLevel))
        setPending(nonMaskable, true);
    m_nonMaskableLevel = nonMaskableInput;
}

void Exceptions::setPending(int number, bool pending)
{
    const std::uint64_t bit = std::uint64_t(1) << number;
    m_pending = pending ? m_pending | bit : m_pending & ~bit;
}

int Exceptions::activeCount() const
{
    int count = 0;
    for (int number = 0; number < exceptionCount; ++number)
        count += isActive(number);
    return count;
}

int Exceptions::priority(int number) const
{
    if (number == nonMaskable)
        return nonMaskablePriority;
    if (number == hardFault)
        return hardFaultPriority;
    return m_priority[static_cast<std::size_t>(number)];
}

void Exceptions::setPriority(int number, int priority)
{
    m_priority[static_cast<std::size_t>(number)] = static_cast<std::uint8_t>(priority & 3);
}

int Exceptions::executionPriority(bool primask) const
{
    int result = primask ? 0 : threadPriority;
    for (int number = 0; number < exceptionCount; ++number) {
        if (isActive(number))
            result = std::min(result, priority(number));
    }
    return result;
}

int Exceptions::mostUrgent() const
{
    const std::uint64_t enabled =
        std::uint64_t(m_enabled) << firstInterrupt | ((1u << firstInterrupt) - 1);
    const std::uint64_t candidates = m_pending & enabled;
    if (candidates == 0)
        return 0;
    int best = 0;
    for (int number = 1; number < exceptionCount; ++number) {
        if ((candidates >> number & 1) && (best == 0 || priority(number) < priority(best)))
            best = number;
    }
    return best;
}

int Exceptions::preempting(bool primask) const
{
    const int number = mostUrgent();
    return number != 0 && priority(number) < executionPriority(primask) ? number : 0;
}

void Exceptions::activate(int number)
{
    setPending(number, false);
    m_active |= std::uint64_t(1) << number;
}

void Exceptions::deactivate(int number)
{
    m_active &= ~(std::uint64_t(1) << number);
}

} // namespace CortexM1
