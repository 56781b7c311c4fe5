#include "pins.h"

#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "config/pintables.h"
#include "devicerules.h"

namespace TARVOORIXM1
{

namespace
{

bool isAmong(const QString &device, PinDevices devices)
{
    switch (devices) {
    case PinDevices::All:
        return true;
    case PinDevices::WithDdr3Stop:
        return hasDdr3StopSignal(device);
    }
    Q_UNREACHABLE();
}

bool applies(const PinGroup &group, const BlockState &state)
{
    if ((state.switches & group.on) != group.on || (state.switches & group.off) != 0)
        return false;
    if (group.choices != anyChoice &&
        (state.choice < 0 || (group.choices & switchBit(state.choice)) == 0))
        return false;
    return isAmong(state.device, group.devices);
}

} // namespace

QList<Utils::PinFigure> blockPins(const Block &block, const BlockState &state)
{
    QList<Utils::PinFigure> pins;
    for (const PinGroup &group : block.pins) {
        if (!applies(group, state))
            continue;
        const QString prefix =
            group.number < 0 ? QString() : QString(group.prefix + QString::number(group.number));
        for (const PinRow &row : group.rows) {
            pins.append(
                {prefix + row.name, row.direction, row.bus,
                 row.direction == Utils::PinFigure::Input ? Qt::AlignLeft : Qt::AlignRight});
        }
    }
    return pins;
}

BlockState blockState(const Block &block, const OptionMap &options, const QString &device)
{
    BlockState state;
    for (int i = 0; i < block.switches.size(); ++i) {
        if (isOn(options, block.switches[i].key()))
            state.switches |= switchBit(i);
    }
    if (const Option *choice = findOption(block.choiceKey))
        state.choice = choice->choices.indexOf(textOf(options, block.choiceKey));
    state.device = device;
    return state;
}

QList<BlockPins> peripheralPins(const OptionMap &options, const QString &device)
{
    QList<BlockPins> list;
    for (const Block &block : blocks())
        list.append({&block, blockPins(block, blockState(block, options, device))});
    return list;
}

} // namespace TARVOORIXM1
