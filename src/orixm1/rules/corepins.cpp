#include "corepins.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"

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
    {"HCLK"_l1, Direction::Input},
    {"hwRstn"_l1, Direction::Input},
    {"LOCKUP"_l1, Direction::Output},
};

constexpr PinRow debugPins[] = {
    {"HALTED"_l1, Direction::Output},
    {"JTAG_7"_l1, Direction::Bidirectional},
    {"JTAG_9"_l1, Direction::Bidirectional},
};

constexpr PinRow jtagPins[] = {
    {"JTAG_3"_l1, Direction::Bidirectional},  {"JTAG_4"_l1, Direction::Bidirectional},
    {"JTAG_5"_l1, Direction::Bidirectional},  {"JTAG_6"_l1, Direction::Bidirectional},
    {"JTAG_8"_l1, Direction::Bidirectional},  {"JTAG_10"_l1, Direction::Bidirectional},
    {"JTAG_11"_l1, Direction::Bidirectional}, {"JTAG_12"_l1, Direction::Bidirectional},
    {"JTAG_13"_l1, Direction::Bidirectional}, {"JTAG_14"_l1, Direction::Bidirectional},
    {"JTAG_15"_l1, Direction::Bidirectional}, {"JTAG_16"_l1, Direction::Bidirectional},
    {"JTAG_17"_l1, Direction::Bidirectional}, {"JTAG_18"_l1, Direction::Bidirectional},
};

constexpr PinRow interruptPins[] = {
    {"EXTINT[3:0]"_l1, Direction::Input, true},
};

// Signals of a port to an external memory, seen from the core: its clock and reset are outputs.
constexpr PinRow memoryPortPins[] = {
    {"HRDATA[31:0]"_l1, Direction::Input, true},
    {"HREADYOUT"_l1, Direction::Input},
    {"HRESP[1:0]"_l1, Direction::Input, true},
    {"HTRANS[1:0]"_l1, Direction::Output, true},
    {"HBURST[2:0]"_l1, Direction::Output, true},
    {"HPROT[3:0]"_l1, Direction::Output, true},
    {"HSIZE[2:0]"_l1, Direction::Output, true},
    {"HWRITE"_l1, Direction::Output},
    {"HREADYMUX"_l1, Direction::Output},
    {"HMASTER[3:0]"_l1, Direction::Output, true},
    {"HMASTLOCK"_l1, Direction::Output},
    {"HADDR[31:0]"_l1, Direction::Output, true},
    {"HWDATA[31:0]"_l1, Direction::Output, true},
    {"HSEL"_l1, Direction::Output},
    {"HCLK"_l1, Direction::Output},
    {"HRESET"_l1, Direction::Output},
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
        append(pins, memoryPortPins, "EXTFLASH0"_l1);
    if (switches.externalDataMemory)
        append(pins, memoryPortPins, "EXTSRAM0"_l1);
    return pins;
}

CoreSwitches coreSwitches(const OptionMap &options)
{
    const QString port = textOf(options, Key::debugPortSelect);
    CoreSwitches switches;
    switches.debug = isOn(options, Key::enableDebug);
    switches.jtag = port == Value::jtag || port == Value::jtagAndSerialWire;
    switches.externalInterrupts = isOn(options, Key::externalInterrupts);
    switches.externalInstructionMemory = !isOn(options, Key::internalInstructionMemory) &&
                                         isOn(options, Key::externalInstructionMemory);
    switches.externalDataMemory =
        !isOn(options, Key::internalDataMemory) && isOn(options, Key::externalDataMemory);
    return switches;
}

} // namespace TARVOORIXM1
