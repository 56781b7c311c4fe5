#include "corepins.h"

#include "config/optionkeys.h"

namespace TARVOORIXM1
{

namespace
{

using Direction = Utils::PinFigure::Direction;

struct PinRow {
    QLatin1String name;
    Direction direction;
    bool bus = false;
};

constexpr PinRow basicPins[] = {
    {QLatin1String("HCLK"), Direction::Input},
    {QLatin1String("hwRstn"), Direction::Input},
    {QLatin1String("LOCKUP"), Direction::Output},
};

constexpr PinRow debugPins[] = {
    {QLatin1String("HALTED"), Direction::Output},
    {QLatin1String("JTAG_7"), Direction::Bidirectional},
    {QLatin1String("JTAG_9"), Direction::Bidirectional},
};

constexpr PinRow jtagPins[] = {
    {QLatin1String("JTAG_3"), Direction::Bidirectional},
    {QLatin1String("JTAG_4"), Direction::Bidirectional},
    {QLatin1String("JTAG_5"), Direction::Bidirectional},
    {QLatin1String("JTAG_6"), Direction::Bidirectional},
    {QLatin1String("JTAG_8"), Direction::Bidirectional},
    {QLatin1String("JTAG_10"), Direction::Bidirectional},
    {QLatin1String("JTAG_11"), Direction::Bidirectional},
    {QLatin1String("JTAG_12"), Direction::Bidirectional},
    {QLatin1String("JTAG_13"), Direction::Bidirectional},
    {QLatin1String("JTAG_14"), Direction::Bidirectional},
    {QLatin1String("JTAG_15"), Direction::Bidirectional},
    {QLatin1String("JTAG_16"), Direction::Bidirectional},
    {QLatin1String("JTAG_17"), Direction::Bidirectional},
    {QLatin1String("JTAG_18"), Direction::Bidirectional},
};

constexpr PinRow interruptPins[] = {
    {QLatin1String("EXTINT[3:0]"), Direction::Input, true},
};

// Signals of a port to an external memory, seen from the core: its clock and reset are outputs.
constexpr PinRow memoryPortPins[] = {
    {QLatin1String("HRDATA[31:0]"), Direction::Input, true},
    {QLatin1String("HREADYOUT"), Direction::Input},
    {QLatin1String("HRESP[1:0]"), Direction::Input, true},
    {QLatin1String("HTRANS[1:0]"), Direction::Output, true},
    {QLatin1String("HBURST[2:0]"), Direction::Output, true},
    {QLatin1String("HPROT[3:0]"), Direction::Output, true},
    {QLatin1String("HSIZE[2:0]"), Direction::Output, true},
    {QLatin1String("HWRITE"), Direction::Output},
    {QLatin1String("HREADYMUX"), Direction::Output},
    {QLatin1String("HMASTER[3:0]"), Direction::Output, true},
    {QLatin1String("HMASTLOCK"), Direction::Output},
    {QLatin1String("HADDR[31:0]"), Direction::Output, true},
    {QLatin1String("HWDATA[31:0]"), Direction::Output, true},
    {QLatin1String("HSEL"), Direction::Output},
    {QLatin1String("HCLK"), Direction::Output},
    {QLatin1String("HRESET"), Direction::Output},
};

template <int count>
void append(QList<Utils::PinFigure> &pins, const PinRow (&rows)[count],
            QLatin1String prefix = QLatin1String())
{
    for (const PinRow &row : rows) {
        pins.append({prefix + row.name, row.direction, row.bus,
                     row.direction == Direction::Input ? Qt::AlignLeft : Qt::AlignRight});
    }
}

} // namespace

QList<Utils::PinFigure> corePins(const CoreSwitches &switches)
{
    QList<Utils::PinFigure> pins;
    append(pins, basicPins);
    if (switches.debug)
        append(pins, debugPins);
    if (switches.debug && switches.jtag)
        append(pins, jtagPins);
    if (switches.externalInterrupts)
        append(pins, interruptPins);
    if (switches.externalInstructionMemory)
        append(pins, memoryPortPins, QLatin1String("EXTFLASH0"));
    if (switches.externalDataMemory)
        append(pins, memoryPortPins, QLatin1String("EXTSRAM0"));
    return pins;
}

CoreSwitches coreSwitches(const OptionMap &options)
{
    const auto isOn = [&options](QLatin1String key, bool byDefault) {
        return options.value(key, byDefault).toBool();
    };
    const QString port =
        options.value(Key::debugPortSelect, QString(Value::jtagAndSerialWire)).toString();
    CoreSwitches switches;
    switches.debug = isOn(Key::enableDebug, true);
    switches.jtag = port == Value::jtag || port == Value::jtagAndSerialWire;
    switches.externalInterrupts = isOn(Key::externalInterrupts, false);
    switches.externalInstructionMemory =
        !isOn(Key::internalInstructionMemory, true) && isOn(Key::externalInstructionMemory, false);
    switches.externalDataMemory =
        !isOn(Key::internalDataMemory, true) && isOn(Key::externalDataMemory, false);
    return switches;
}

} // namespace TARVOORIXM1
