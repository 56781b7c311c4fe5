#include "stepname.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "dialogdefaults.h"
#include "tcmsizes.h"

#include <QStringList>

#include <iterator>

namespace TARVOORIXM1
{

namespace
{

// How an option's value is said.
enum class Saying {
    Switch, // "OS extension on"
    Value,  // "port JTAG"
    Count,  // "16 interrupts"
    Size,   // "ITCM 32 KB"
    Place,  // "instruction memory external"
    Bare,   // "initialization path": the value is too long
};

// An option that is no switch of a block. Rows of one group follow each other.
struct OptionRow {
    QLatin1String key;
    QLatin1String group; // page of the core's dialog, or title of the block
    QLatin1String text;
    Saying saying;
};

constexpr QLatin1String core = "Cortex-M1"_l1;

constexpr OptionRow optionRows[] = {
    {Key::numberOfInterrupts, "Common"_l1, "interrupt"_l1, Saying::Count},
    {Key::osExtension, "Common"_l1, "OS extension"_l1, Saying::Switch},
    {Key::smallMultiplier, "Common"_l1, "small multiplier"_l1, Saying::Switch},
    {Key::bigEndian, "Common"_l1, "big endian"_l1, Saying::Switch},
    {Key::externalInterrupts, "Common"_l1, "external interrupts"_l1, Saying::Switch},
    {Key::enableDebug, "Debug"_l1, "debug"_l1, Saying::Switch},
    {Key::debugPortSelect, "Debug"_l1, "port"_l1, Saying::Value},
    {Key::smallDebug, "Debug"_l1, "small debug"_l1, Saying::Switch},
    {Key::externalInstructionMemory, "Memory"_l1, "instruction memory"_l1, Saying::Place},
    {Key::itcmSize, "Memory"_l1, "ITCM"_l1, Saying::Size},
    {Key::initializeItcm, "Memory"_l1, "ITCM initialization"_l1, Saying::Switch},
    {Key::itcmInitializationPath, "Memory"_l1, "ITCM initialization path"_l1, Saying::Bare},
    {Key::externalDataMemory, "Memory"_l1, "data memory"_l1, Saying::Place},
    {Key::dtcmSize, "Memory"_l1, "DTCM"_l1, Saying::Size},
    {Key::canBufferDepth, "CAN"_l1, "buffer depth"_l1, Saying::Value},
    {Key::ethernetInterface, "Ethernet"_l1, "interface"_l1, Saying::Value},
    {Key::ethernetInputDelay, "Ethernet"_l1, "input delay"_l1, Saying::Value},
    {Key::ethernetClockDivider, "Ethernet"_l1, "clock divider"_l1, Saying::Value},
};

const OptionRow *findRow(const QString &key)
{
    for (const OptionRow &row : optionRows) {
        if (key == row.key)
            return &row;
    }
    return nullptr;
}

QLatin1String onOrOff(bool on)
{
    return on ? "on"_l1 : "off"_l1;
}

QString said(const OptionRow &row, const QVariant &value)
{
    switch (row.saying) {
    case Saying::Switch:
        return row.text + u' ' + onOrOff(value.toBool());
    case Saying::Value:
        return row.text + u' ' +
               (value.toString().isEmpty() ? QStringLiteral("unset") : value.toString());
    case Saying::Count:
        return value.toString() + u' ' + row.text + (value.toInt() == 1 ? ""_l1 : "s"_l1);
    case Saying::Size: {
        const int index = value.toInt();
        const QStringList sizes = tcmSizeList(index);
        return row.text + u' ' +
               (index >= 0 && index < sizes.size() ? sizes.at(index) : QStringLiteral("unset"));
    }
    case Saying::Place:
        return row.text + (value.toBool() ? " external"_l1 : " internal"_l1);
    case Saying::Bare:
        break;
    }
    return row.text;
}

// "AHB Master" of "AHB Master [1-6]".
QString titleOfPorts(const Block &block)
{
    return QString(block.title).section(" ["_l1, 0, 0);
}

QString nameOfSwitch(const Block &block, int index)
{
    const SwitchRow &row = block.switches[index];
    if (row.port > 0)
        return titleOfPorts(block) + " ["_l1 + QString::number(row.port) + u']';
    if (row.isInterface)
        return block.title + " I/O"_l1;
    return index < int(std::size(block.boxes)) && block.boxes[index].label.size() > 0
               ? block.boxes[index].label
               : block.title;
}

// Whose dialog stores the key; empty: none's.
QString ownerOf(const QString &key)
{
    for (const Block &block : blocks()) {
        for (const SwitchRow &row : block.switches) {
            if (row.key() == key)
                return block.title;
        }
    }
    const OptionRow *row = findRow(key);
    for (const Block &block : blocks()) {
        if (row && row->group == block.title)
            return block.title;
    }
    const Option *option = findOption(key);
    return option && option->isOption ? QString(core) : QString();
}

struct Changes {
    Changes(const OptionMap &from, const OptionMap &to)
        : before(from)
        , after(to)
        , deviceBefore(textOf(from, Key::ipDevice))
        , deviceAfter(textOf(to, Key::ipDevice))
    {
    }

    bool contains(const QString &key) const
    {
        const auto old = before.constFind(key);
        const auto present = after.constFind(key);
        if (old != before.cend() && present != after.cend())
            return *old != *present;
        if (old == before.cend() && present == after.cend() && deviceBefore == deviceAfter)
            return false;
        return dialogValue(before, key, deviceBefore) != now(key);
    }
    QVariant now(const QString &key) const { return dialogValue(after, key, deviceAfter); }

    const OptionMap &before;
    const OptionMap &after;
    const QString deviceBefore;
    const QString deviceAfter;
};

void appendPorts(const Changes &changes, const Block &block, QStringList *parts)
{
    for (const bool on : {true, false}) {
        QVector<int> ports;
        for (int i = 0; i < block.switches.size(); ++i) {
            const QString key = block.switches[i].key();
            if (changes.contains(key) && changes.now(key).toBool() == on)
                ports.append(i);
        }
        if (ports.size() == 1)
            parts->append(nameOfSwitch(block, ports.first()) + u' ' + onOrOff(on));
        else if (ports.size() > 1)
            parts->append(titleOfPorts(block) + ": "_l1 + QString::number(ports.size()) +
                          " ports "_l1 + onOrOff(on));
    }
}

void appendSwitches(const Changes &changes, QStringList *parts)
{
    for (const Block &block : blocks()) {
        if (block.hasPorts()) {
            appendPorts(changes, block, parts);
            continue;
        }
        for (int i = 0; i < block.switches.size(); ++i) {
            const QString key = block.switches[i].key();
            if (changes.contains(key))
                parts->append(nameOfSwitch(block, i) + u' ' + onOrOff(changes.now(key).toBool()));
        }
    }
}

void appendOptions(const Changes &changes, QStringList *parts)
{
    QLatin1String group;
    for (const OptionRow &row : optionRows) {
        if (!changes.contains(row.key))
            continue;
        const QString text = said(row, changes.now(row.key));
        parts->append(row.group == group ? text : QString(row.group + ": "_l1 + text));
        group = row.group;
    }
}

// What no dialog shows.
void appendOthers(const Changes &changes, QStringList *parts)
{
    OptionMap both = changes.before;
    for (auto it = changes.after.cbegin(); it != changes.after.cend(); ++it)
        both.insert(it.key(), it.value());
    for (auto it = both.cbegin(); it != both.cend(); ++it) {
        if (!findOption(it.key()) && changes.contains(it.key()))
            parts->append(u'"' + it.key() + "\" changed"_l1);
    }
}

// The first block of which a key is stored otherwise than before.
QString confirmedBlock(const OptionMap &before, const OptionMap &after)
{
    for (const Option &option : optionTable()) {
        const QString owner = ownerOf(option.key);
        if (!owner.isEmpty() && (before.contains(option.key) != after.contains(option.key) ||
                                 before.value(option.key) != after.value(option.key)))
            return owner;
    }
    return {};
}

} // namespace

QString stepName(const OptionMap &before, const OptionMap &after)
{
    const Changes changes(before, after);
    QStringList parts;
    appendSwitches(changes, &parts);
    appendOptions(changes, &parts);
    appendOthers(changes, &parts);
    if (parts.isEmpty()) {
        const QString confirmed = confirmedBlock(before, after);
        return confirmed.isEmpty() ? QStringLiteral("Options confirmed")
                                   : QString(confirmed + " confirmed"_l1);
    }
    constexpr int most = 3;
    if (parts.size() <= most)
        return parts.join(", "_l1);
    return parts.mid(0, most).join(", "_l1) + " and "_l1 + QString::number(parts.size() - most) +
           " more"_l1;
}

} // namespace TARVOORIXM1
