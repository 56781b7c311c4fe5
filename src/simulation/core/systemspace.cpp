#include "systemspace.h"

#include "text.h"

namespace CortexM1
{

namespace
{

namespace Address
{
constexpr std::uint32_t auxiliaryControl = 0xE000E008;
constexpr std::uint32_t timerControl = 0xE000E010;
constexpr std::uint32_t timerReload = 0xE000E014;
constexpr std::uint32_t timerValue = 0xE000E018;
constexpr std::uint32_t timerCalibration = 0xE000E01C;
constexpr std::uint32_t setEnable = 0xE000E100;
constexpr std::uint32_t clearEnable = 0xE000E180;
constexpr std::uint32_t setPending = 0xE000E200;
constexpr std::uint32_t clearPending = 0xE000E280;
constexpr std::uint32_t priorities = 0xE000E400; // eight words
constexpr std::uint32_t identity = 0xE000ED00;
constexpr std::uint32_t controlState = 0xE000ED04;
constexpr std::uint32_t applicationReset = 0xE000ED0C;
constexpr std::uint32_t sleepControl = 0xE000ED10;
constexpr std::uint32_t configuration = 0xE000ED14;
constexpr std::uint32_t handlerPriority2 = 0xE000ED1C;
constexpr std::uint32_t handlerPriority3 = 0xE000ED20;
constexpr std::uint32_t handlerState = 0xE000ED24;
constexpr std::uint32_t debugFirst = 0xE000EDF0;
constexpr std::uint32_t debugLast = 0xE000EDFC;
} // namespace Address

constexpr std::uint32_t timerEnabled = 1;
constexpr std::uint32_t timerInterrupts = 2;
constexpr std::uint32_t timerOwnClock = 4; // there is no other
constexpr std::uint32_t timerWrapped = 1u << 16;
constexpr std::uint32_t timerMask = 0x00FFFFFF;

constexpr std::uint32_t resetKey = 0x05FA;

} // namespace

SystemSpace::SystemSpace(const Configuration &configuration, Exceptions &exceptions)
    : m_configuration(configuration)
    , m_exceptions(exceptions)
{
}

void SystemSpace::reset()
{
    m_resetRequested = false;
    m_sleepControl = 0;
    m_timerControl = 0;
    m_timerReload = 0;
    m_timerValue = 0;
}

void SystemSpace::tick()
{
    if (!(m_timerControl & timerEnabled))
        return;
    if (m_timerValue == 0) {
        m_timerValue = m_timerReload;
        return;
    }
    if (--m_timerValue != 0)
        return;
    m_timerControl |= timerWrapped;
    if (m_timerControl & timerInterrupts)
        m_exceptions.setPending(sysTick, true);
}

std::uint32_t SystemSpace::controlState(int running) const
{
    const int next = m_exceptions.mostUrgent();
    std::uint32_t value = static_cast<std::uint32_t>(running | next << 12);
    if (m_exceptions.pendingInterrupts() != 0)
        value |= 1u << 22;
    if (m_exceptions.isPending(sysTick))
        value |= 1u << 26;
    if (m_exceptions.isPending(pendSv))
        value |= 1u << 28;
    if (m_exceptions.isPending(nonMaskable))
        value |= 1u << 31;
    return value;
}

std::uint32_t SystemSpace::priorities(int firstException) const
{
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value |= static_cast<std::uint32_t>(m_exceptions.priority(firstException + i))
                 << (8 * i + 6);
    return value;
}

void SystemSpace::setPriorities(int firstException, std::uint32_t value)
{
    for (int i = 0; i < 4; ++i) {
        const int number = firstException + i;
        const bool exists = number >= firstInterrupt
                                ? m_exceptions.inputs() >> (number - firstInterrupt) & 1
                                : number == supervisorCall || number == pendSv || number == sysTick;
        if (exists)
            m_exceptions.setPriority(number, static_cast<int>(value >> (8 * i + 6) & 3));
    }
}

std::string SystemSpace::read(std::uint32_t address, int running, std::uint32_t &value)
{
    using namespace Address;
    value = 0;
    const bool hasOs = m_configuration.hasOsExtension;
    if (address >= Address::priorities && address < Address::priorities + 32) {
        value = priorities(firstInterrupt + static_cast<int>(address - Address::priorities));
        return {};
    }
    switch (address) {
    case auxiliaryControl:
        value = m_configuration.hasUpperAlias << 4 | m_configuration.hasLowerAlias << 3;
        return {};
    case timerControl:
        if (hasOs)
            value = m_timerControl | timerOwnClock;
        m_timerControl &= ~timerWrapped;
        return {};
    case timerReload:
        value = m_timerReload;
        return {};
    case timerValue:
        value = m_timerValue;
        return {};
    case timerCalibration:
        value = hasOs ? 1u << 31 : 0; // no reference clock, no calibration
        return {};
    case setEnable:
    case clearEnable:
        value = m_exceptions.enabled();
        return {};
    case setPending:
    case clearPending:
        value = m_exceptions.pendingInterrupts();
        return {};
    case identity:
        value = 0x411CC210;
        return {};
    case Address::controlState:
        value = controlState(running);
        return {};
    case applicationReset:
        value = 0xFA050000 | m_configuration.isBigEndian << 15;
        return {};
    case sleepControl:
        value = m_sleepControl;
        return {};
    case configuration:
        value = 0x208; // frames aligned to eight, unaligned accesses are faults
        return {};
    case handlerPriority2:
        value = hasOs ? priorities(8) : 0;
        return {};
    case handlerPriority3:
        value = hasOs ? priorities(12) : 0;
        return {};
    case handlerState:
        value = static_cast<std::uint32_t>(m_exceptions.isPending(supervisorCall)) << 15;
        return {};
    default:
        break;
    }
    if (address >= debugFirst && address <= debugLast)
        return {}; // no debugger is there
    return "the register at " + hexadecimal(address) + " is not modelled";
}

std::string SystemSpace::write(std::uint32_t address, std::uint32_t value)
{
    using namespace Address;
    const bool hasOs = m_configuration.hasOsExtension;
    if (address >= Address::priorities && address < Address::priorities + 32) {
        setPriorities(firstInterrupt + static_cast<int>(address - Address::priorities), value);
        return {};
    }
    switch (address) {
    case auxiliaryControl: {
        std::uint32_t aliases = 0;
        read(address, 0, aliases);
        if ((value & 0x18) != aliases)
            return "moving the instruction memory to another alias is not modelled";
        return {};
    }
    case timerControl:
        if (hasOs)
            m_timerControl =
                (m_timerControl & timerWrapped) | (value & (timerEnabled | timerInterrupts));
        return {};
    case timerReload:
        if (hasOs)
            m_timerReload = value & timerMask;
        return {};
    case timerValue:
        m_timerValue = 0;
        m_timerControl &= ~timerWrapped;
        return {};
    case setEnable:
        m_exceptions.setEnabled(m_exceptions.enabled() | value);
        return {};
    case clearEnable:
        m_exceptions.setEnabled(m_exceptions.enabled() & ~value);
        return {};
    case setPending:
    case clearPending:
        for (int i = 0; i < 32; ++i) {
            if (value & m_exceptions.inputs() & 1u << i)
                m_exceptions.setPending(firstInterrupt + i, address == setPending);
        }
        return {};
    case Address::controlState:
        if (value & 1u << 31)
            m_exceptions.setPending(nonMaskable, true);
        if (!hasOs)
            return {};
        if (value & 1u << 28)
            m_exceptions.setPending(pendSv, true);
        if (value & 1u << 27)
            m_exceptions.setPending(pendSv, false);
        if (value & 1u << 26)
            m_exceptions.setPending(sysTick, true);
        if (value & 1u << 25)
            m_exceptions.setPending(sysTick, false);
        return {};
    case applicationReset:
        if (value >> 16 != resetKey)
            return {};
        if (value & 2)
            return "clearing the active exceptions is not modelled";
        if (value & 4)
            m_resetRequested = true;
        return {};
    case sleepControl:
        m_sleepControl = value & 0x16;
        return {};
    case handlerPriority2:
        if (hasOs)
            setPriorities(8, value);
        return {};
    case handlerPriority3:
        if (hasOs)
            setPriorities(12, value);
        return {};
    case handlerState:
        if (hasOs)
            m_exceptions.setPending(supervisorCall, value >> 15 & 1);
        return {};
    case timerCalibration:
    case identity:
    case configuration:
        return {}; // read only
    default:
        break;
    }
    if (address >= debugFirst && address <= debugLast)
        return {};
    return "the register at " + hexadecimal(address) + " is not modelled";
}

} // namespace CortexM1
