#include "find.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "config/pintables.h"
#include "rules/corepins.h"
#include "rules/optionmeaning.h"
#include "systemmap.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String coreBox = "Cortex-M1"_l1;

QString boxOfSwitch(const Block &block, int index)
{
    const bool own = !block.hasPorts() && index < int(std::size(block.boxes)) &&
                     block.boxes[index].label.size() > 0;
    return block.boxes[own ? index : 0].label;
}

// The box whose dialog stores the option; empty for what no dialog stores.
QString boxOfOption(const QString &key)
{
    for (const Block &block : blocks()) {
        for (int i = 0; i < block.switches.size(); ++i) {
            if (block.switches[i].key() == key)
                return boxOfSwitch(block, i);
        }
    }
    if (key == Key::canBufferDepth)
        return boxOfOption(Key::enableCan);
    if (key == Key::ethernetInterface || key == Key::ethernetInputDelay ||
        key == Key::ethernetClockDivider)
        return boxOfOption(Key::enableEthernet);
    const Option *option = findOption(key);
    return option && option->isOption ? QString(coreBox) : QString();
}

QString boxOfTitle(const QString &title)
{
    for (const Block &block : blocks()) {
        if (title == block.title)
            return block.boxes[0].label;
    }
    return coreBox;
}

QString withoutRange(const QString &pin)
{
    return pin.section(u'[', 0, 0).trimmed();
}

QString directionOf(Utils::PinFigure::Direction direction)
{
    switch (direction) {
    case Utils::PinFigure::Input:
        return directionName(PortDirection::Input);
    case Utils::PinFigure::Output:
        return directionName(PortDirection::Output);
    case Utils::PinFigure::Bidirectional:
        break;
    }
    return directionName(PortDirection::Inout);
}

QString onOrOff(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

void addBlocks(const OptionMap &options, QVector<Findable> *all)
{
    all->append({Findable::Block, coreBox, {QStringLiteral("Cortex M1")}, "processor"_l1, coreBox});
    for (const Block &block : blocks()) {
        for (int i = 0; i < int(std::size(block.boxes)); ++i) {
            const QString label = block.boxes[i].label;
            if (label.isEmpty())
                continue;
            Findable entry{Findable::Block, label, {block.title}, {}, label};
            if (block.hasPorts()) {
                const auto count = std::count_if(
                    block.switches.begin(), block.switches.end(),
                    [&options](const SwitchRow &row) { return isOn(options, row.key()); });
                entry.detail = QString::number(count) + " of "_l1 +
                               QString::number(block.switches.size()) + " ports on"_l1;
            } else {
                entry.detail = onOrOff(isOn(options, block.switches[i].key()));
            }
            all->append(entry);
        }
    }
}

void addOptions(const OptionMap &options, const DEV::DeviceArg &device, QVector<Findable> *all)
{
    for (const Option &option : optionTable()) {
        if (!option.isOption)
            continue;
        const QVariant value = meaningOf(options, option.key, device).dialog;
        Findable entry{
            Findable::Option, option.key, {option.description}, {}, boxOfOption(option.key)};
        entry.detail = option.description;
        if (!valueText(value).isEmpty())
            entry.detail += ": "_l1 + valueText(value);
        all->append(entry);
    }
}

void addPins(const SystemMap &now, const SystemMap &most, QVector<Findable> *all)
{
    QSet<QString> present;
    for (const Port &port : now.ports)
        present.insert(port.name);
    QSet<QString> known;
    const auto add = [&](const QString &pin, const QString &direction, const QString &box) {
        const QString name = withoutRange(pin);
        if (known.contains(name))
            return;
        known.insert(name);
        Findable entry{Findable::Pin, name, {}, {}, box};
        if (pin.trimmed() != name)
            entry.aliases.append(pin.trimmed());
        entry.detail = direction + (present.contains(name) ? ""_l1 : ", not there now"_l1);
        all->append(entry);
    };
    CoreSwitches core;
    core.debug = core.jtag = core.externalInterrupts = true;
    core.externalInstructionMemory = core.externalDataMemory = true;
    QList<Utils::PinFigure> corePinFigures = corePins(core);
    core.jtag = false;
    corePinFigures += corePins(core);
    for (const Utils::PinFigure &pin : qAsConst(corePinFigures))
        add(pin.name(), directionOf(Utils::PinFigure::Direction(pin.direction())), coreBox);
    for (const Block &block : blocks()) {
        for (const PinGroup &group : block.pins) {
            int index = 0;
            while (index < block.switches.size() - 1 && (group.on & switchBit(index)) == 0)
                ++index;
            const QString prefix = group.number < 0
                                       ? QString()
                                       : QString(group.prefix + QString::number(group.number));
            for (const PinRow &row : group.rows)
                add(prefix + row.name, directionOf(row.direction), boxOfSwitch(block, index));
        }
    }
    // What a netlist has beside them.
    for (const QVector<Port> &ports : {now.ports, most.ports}) {
        for (const Port &port : ports)
            add(port.name, directionName(port.direction), boxOfTitle(port.block));
    }
}

QString shown(quint32 address)
{
    return "0x"_l1 + QString::number(address, 16).toUpper().rightJustified(8, u'0');
}

void addRegions(const SystemMap &now, const SystemMap &most, QVector<Findable> *all)
{
    const auto add = [all](const Region &region, QLatin1String state) {
        Findable entry{
            Findable::Region, region.name, {shown(region.base)}, {}, boxOfOption(region.option)};
        entry.base = region.base;
        entry.last = region.last;
        entry.detail =
            shown(region.base) + " to "_l1 + shown(region.last) + state + "; "_l1 + region.text;
        all->append(entry);
    };
    QSet<QString> present;
    for (const Region &region : now.regions) {
        present.insert(region.name);
        add(region, ""_l1);
    }
    for (const Region &region : most.regions) {
        if (!present.contains(region.name))
            add(region, ", not there now"_l1);
    }
}

void addInterrupts(const OptionMap &options, const SystemDescription &description,
                   QVector<Findable> *all)
{
    for (const Peripheral &peripheral : description.peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            if (instance.interrupt == "NMI"_l1)
                all->append(
                    {Findable::Interrupt,
                     instance.name,
                     {QStringLiteral("NMI")},
                     "non-maskable interrupt"_l1 +
                         (isSwitchedOn(options, instance.option) ? ""_l1 : ", not there now"_l1),
                     boxOfOption(instance.option)});
        }
    }
    const QVector<InterruptSource> sources =
        interruptSources(description.peripherals, description.otherInterrupts);
    for (const InterruptSource &source : sources) {
        for (int i = 0; i < source.count; ++i) {
            const QString name = source.count > 1 ? source.name + QString::number(i) : source.name;
            Findable entry{Findable::Interrupt, name, {}, {}, {}};
            entry.number = source.number + i;
            const QString number = QString::number(entry.number);
            entry.aliases = QStringList{"IRQ"_l1 + number, "interrupt "_l1 + number};
            entry.detail = "interrupt "_l1 + number;
            const QString lost = maskedInterrupt({name, entry.number, 1, source.option}, options);
            if (!isSwitchedOn(options, source.option))
                entry.detail += ", not there now"_l1;
            else if (!lost.isEmpty())
                entry.detail += "; "_l1 + lost;
            entry.box = boxOfOption(source.option);
            all->append(entry);
        }
    }
}

// What counts of a text.
QString essence(const QString &text)
{
    QString result;
    for (const QChar letter : text) {
        if (!letter.isSpace() && letter != u'-' && letter != u'_')
            result.append(letter.toLower());
    }
    return result;
}

constexpr int noMatch = 3;

// 0 exact, 1 at the beginning, 2 inside.
int rankOfText(const Findable &entry, const QString &query)
{
    const auto rank = [&query](const QString &text) {
        const QString known = essence(text);
        if (known == query)
            return 0;
        return known.startsWith(query) ? 1 : known.contains(query) ? 2 : noMatch;
    };
    int best = rank(entry.name);
    for (const QString &alias : entry.aliases)
        best = qMin(best, rank(alias));
    return best;
}

int rankOf(const Findable &entry, const QString &query, std::optional<quint32> address,
           std::optional<int> number)
{
    if (address && entry.kind == Findable::Region && *address >= entry.base &&
        *address <= entry.last)
        return *address == entry.base ? 0 : 1;
    if (number && entry.kind == Findable::Interrupt && entry.number == *number)
        return 0;
    return rankOfText(entry, query);
}

} // namespace

QVector<Findable> findables(const OptionMap &options, const DEV::DeviceArg &device,
                            const SystemDescription &description)
{
    OptionMap everything = options;
    for (const Block &block : blocks()) {
        for (const SwitchRow &row : block.switches) {
            if (!row.isInterface)
                everything.insert(row.key(), true);
        }
    }
    SystemDescription parts;
    parts.peripherals = description.peripherals;
    parts.otherInterrupts = description.otherInterrupts;
    const SystemMap now = systemMap(options, device, parts);
    const SystemMap most = systemMap(everything, device, parts);
    QVector<Findable> all;
    addBlocks(options, &all);
    addOptions(options, device, &all);
    addPins(now, most, &all);
    addRegions(now, most, &all);
    addInterrupts(options, parts, &all);
    return all;
}

std::optional<quint32> queriedAddress(const QString &query)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(?:0[xX]([0-9a-fA-F_]+)|([0-9a-fA-F]{4}_?[0-9a-fA-F]{4}))\\s*$"));
    const QRegularExpressionMatch match = form.match(query);
    if (!match.hasMatch())
        return std::nullopt;
    bool ok = false;
    const quint32 address =
        QString(match.captured(1) + match.captured(2)).remove(u'_').toUInt(&ok, 16);
    return ok ? std::optional<quint32>(address) : std::nullopt;
}

QVector<Findable> found(const QVector<Findable> &all, const QString &query)
{
    const QString text = essence(query);
    if (!std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); }))
        return {};
    const std::optional<quint32> address = queriedAddress(query);
    bool isNumber = false;
    const int plain = text.toInt(&isNumber);
    const std::optional<int> number = isNumber ? std::optional<int>(plain) : std::nullopt;
    QVector<QPair<int, const Findable *>> ranked;
    for (const Findable &entry : all) {
        const int rank = rankOf(entry, text, address, number);
        if (rank < noMatch)
            ranked.append({rank, &entry});
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QVector<Findable> result;
    for (const auto &entry : qAsConst(ranked))
        result.append(*entry.second);
    return result;
}

QString kindName(Findable::Kind kind)
{
    switch (kind) {
    case Findable::Block:
        return QStringLiteral("block");
    case Findable::Option:
        return QStringLiteral("option");
    case Findable::Pin:
        return QStringLiteral("pin");
    case Findable::Region:
        return QStringLiteral("address");
    case Findable::Interrupt:
        return QStringLiteral("interrupt");
    }
    return {};
}

} // namespace TARVOORIXM1
