#include "datasheet.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionvalue.h"
#include "datasheetpictures.h"
#include "names.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

using namespace Document;

Text code(const QString &text)
{
    return {text, Text::Code};
}

Text strong(const QString &text)
{
    return {text, Text::Strong};
}

// "7:0", or "3" of a single bit.
QString bounds(int left, int right)
{
    return left == right ? QString::number(left)
                         : QString::number(left) + u':' + QString::number(right);
}

QString number(quint32 value)
{
    return value < 10 ? QString::number(value) : "0x"_l1 + QString::number(value, 16).toUpper();
}

// "reading clears; ones clear": what an access does beside the obvious.
QString effects(const RegisterField &field)
{
    QStringList texts;
    switch (field.readEffect) {
    case ReadEffect::None:
        break;
    case ReadEffect::Clear:
        texts.append(QStringLiteral("reading clears"));
        break;
    case ReadEffect::Set:
        texts.append(QStringLiteral("reading sets"));
        break;
    case ReadEffect::Modify:
        texts.append(QStringLiteral("reading changes it"));
        break;
    case ReadEffect::External:
        texts.append(QStringLiteral("reading acts elsewhere"));
        break;
    }
    switch (field.writeEffect) {
    case WriteEffect::Store:
        break;
    case WriteEffect::OneToClear:
        // The access says it of the field itself.
        if (field.access != RegisterAccess::WriteOneToClear)
            texts.append(QStringLiteral("ones clear"));
        break;
    case WriteEffect::OneToSet:
        texts.append(QStringLiteral("ones set or start"));
        break;
    }
    if (field.minimum > 0)
        texts.append("at least "_l1 + QString::number(field.minimum));
    return texts.join("; "_l1);
}

// Of the ports of a block, or of a bus of it that is led out.
QString portHeading(const QString &block, const QString &bus)
{
    const QString name = block.isEmpty() ? QStringLiteral("Others") : block;
    return bus.isEmpty() ? name : name + ", bus "_l1 + bus;
}

// Of the first port whose name begins so; empty if there is none.
QStringList placeOfPorts(const SystemMap &map, const QString &beginning)
{
    const auto port =
        std::find_if(map.ports.begin(), map.ports.end(), [&beginning](const Port &candidate) {
            return candidate.name.startsWith(beginning);
        });
    if (beginning.isEmpty() || port == map.ports.end())
        return {};
    return {DatasheetChapter::ports, portHeading(port->block, port->bus)};
}

class Datasheet
{
public:
    explicit Datasheet(const SystemMap &map)
        : m_map(map)
        , m_blocks(blockPicture(map))
        , m_memory(memoryPicture(map).picture)
        , m_interrupts(interruptPicture(map).picture)
    {
        addSummary();
        addBlocks();
        addMemory();
        addInterrupts();
        addPorts();
        addClocksAndResets();
        addRegisters();
        addBlackBoxes();
        addResources();
    }

    const Parts &parts() const { return m_parts; }
    QVector<Picture> pictures() const { return {m_blocks, m_memory, m_interrupts}; }

private:
    void heading(int level, const QString &text) { m_parts.append(Heading{level, text}); }
    void paragraph(const QString &text) { m_parts.append(Paragraph{{Text(text)}}); }

    void addSummary()
    {
        const DEV::DeviceArg &device = m_map.device;
        QString title = systemName(m_map);
        if (!device.isNull())
            title += " on "_l1 + device.device();
        heading(1, title);
        paragraph(QStringLiteral(
            "A Cortex-M1 subsystem as it is configured: what software and the surrounding design "
            "need to know of it."));
        heading(2, QStringLiteral("Summary"));
        Table table;
        table.columns = {{QStringLiteral("item")}, {QStringLiteral("value")}};
        const auto add = [&table](const QString &item, const QString &value) {
            table.rows.append({Text(item), Text(value)});
        };
        add(QStringLiteral("Device"), device.isNull() ? QStringLiteral("none") : device.device());
        if (!device.isNull()) {
            add(QStringLiteral("Part number"), device.partNumber());
            add(QStringLiteral("Package"), device.package());
            add(QStringLiteral("Speed grade"), device.speed());
        }
        const Processor &processor = m_map.processor;
        add(QStringLiteral("Processor"), QStringLiteral("Cortex-M1, ARMv6-M; vector table fixed "
                                                        "at 0x00000000, no memory protection, "
                                                        "no floating point"));
        add(QStringLiteral("Endianness"),
            processor.isBigEndian
                ? QStringLiteral("BE8: data big-endian, instructions little-endian")
                : QStringLiteral("little-endian"));
        add(QStringLiteral("Interrupt inputs"), QString::number(processor.interruptInputs));
        add(QStringLiteral("Interrupt priorities"),
            QString::number(1 << processor.priorityBits) + " ("_l1 +
                QString::number(processor.priorityBits) + " bits)"_l1);
        add(QStringLiteral("OS extension"),
            processor.hasOsExtension ? QStringLiteral("yes: SysTick, SVCall, PendSV")
                                     : QStringLiteral("no: neither SysTick nor SVCall nor PendSV"));
        add(QStringLiteral("Multiplier"),
            processor.hasSmallMultiplier ? QStringLiteral("small") : QStringLiteral("fast"));
        add(QStringLiteral("Debug"), debugText(processor));
        for (const Region &region : m_map.regions) {
            if (isMemory(region.kind))
                add(region.name, memoryText(region));
        }
        m_parts.append(table);
    }

    static QString debugText(const Processor &processor)
    {
        if (!processor.hasDebug)
            return QStringLiteral("no");
        QStringList ports;
        if (processor.hasJtag)
            ports.append(QStringLiteral("JTAG"));
        if (processor.hasSerialWire)
            ports.append(QStringLiteral("Serial Wire"));
        return ports.join(" and "_l1) + (processor.hasSmallDebug ? ", small"_l1 : ", full"_l1);
    }

    static QString memoryText(const Region &region)
    {
        const QString size = sizeText(region.size());
        return region.text +
               (region.kind == RegionKind::TightlyCoupledMemory
                    ? ", "_l1 + size
                    : ": addresses for up to "_l1 + size) +
               " at "_l1 + hexAddress(region.base);
    }

    void addBlocks()
    {
        heading(2, QStringLiteral("Block diagram"));
        m_parts.append(m_blocks);
        Table table;
        table.columns = {{QStringLiteral("block")},
                         {QStringLiteral("bus")},
                         {QStringLiteral("in this configuration")}};
        for (const Block &block : blocks()) {
            QStringList on;
            QVector<int> ports;
            for (const SwitchRow &entry : block.switches) {
                if (!isOn(m_map.options, entry.key()) || entry.isInterface)
                    continue;
                on.append(entry.description());
                ports.append(entry.port);
            }
            if (block.hasPorts() && !on.isEmpty())
                on = QStringList{(ports.size() > 1 ? "ports "_l1 : "port "_l1) + rangesText(ports)};
            table.rows.append(
                {Text(block.title),
                 Text(block.bus == Bus::Ahb ? QStringLiteral("AHB") : QStringLiteral("APB")),
                 Text(on.isEmpty() ? QStringLiteral("no") : on.join("; "_l1))});
        }
        m_parts.append(table);
    }

    void addMemory()
    {
        heading(2, DatasheetChapter::memory);
        m_parts.append(m_memory);
        paragraph("What lies in no region gives an error response, except for the processor's own "
                  "registers from "_l1 +
                  hexAddress(ownRegistersBase) + " to "_l1 + hexAddress(ownRegistersLast) +
                  ". A region of registers is as large as the block decodes; a memory behind a "
                  "port or a controller may be smaller than its region."_l1);
        Table table;
        table.columns = {{QStringLiteral("first")},      {QStringLiteral("last")},
                         {QStringLiteral("size"), true}, {QStringLiteral("name")},
                         {QStringLiteral("kind")},       {QStringLiteral("bus")},
                         {QStringLiteral("ports")},      {QStringLiteral("what it is")}};
        for (const Region &region : m_map.regions)
            table.rows.append({code(hexAddress(region.base)), code(hexAddress(region.last)),
                               Text(sizeText(region.size())), code(region.name),
                               Text(regionKindName(region.kind)), Text(region.bus),
                               region.ports.isEmpty() ? Text() : code(region.ports + u'\u2026'),
                               Text(region.text)});
        addTable(table, QStringLiteral("This configuration has no region."));
    }

    void addInterrupts()
    {
        heading(2, DatasheetChapter::interrupts);
        m_parts.append(m_interrupts);
        const int inputs = m_map.processor.interruptInputs;
        paragraph("The processor has "_l1 + QString::number(inputs) +
                  (inputs == 1 ? " interrupt input"_l1 : " interrupt inputs"_l1) +
                  " and the non-maskable interrupt (NMI), which has no number."_l1);
        Table table;
        table.columns = {{QStringLiteral("number"), true},
                         {QStringLiteral("name")},
                         {QStringLiteral("requested by")},
                         {QStringLiteral("reaches the processor")}};
        for (const InterruptLine &line : m_map.interrupts)
            table.rows.append(
                {Text(line.number == InterruptLine::nonMaskable ? QStringLiteral("NMI")
                                                                : QString::number(line.number)),
                 code(line.name), code(line.source),
                 Text(line.lost.isEmpty() ? QStringLiteral("yes") : "no: "_l1 + line.lost)});
        addTable(table, QStringLiteral("Nothing in this configuration requests an interrupt."));
    }

    void addPorts()
    {
        heading(2, DatasheetChapter::ports);
        if (m_map.ports.isEmpty()) {
            paragraph(QStringLiteral("The ports of the top module are not known."));
            return;
        }
        paragraph(QStringLiteral(
            "Of the top module, by the block that they belong to. A pull-up is needed outside of "
            "the device or in the surrounding logic. A port without a clock is asynchronous."));
        // A bus that is led out stands by itself.
        struct Group {
            QString block;
            QString bus;
            QVector<const Port *> ports;
        };
        QVector<Group> groups;
        for (const Port &port : m_map.ports) {
            auto group = std::find_if(groups.begin(), groups.end(), [&port](const Group &entry) {
                return entry.block == port.block && entry.bus == port.bus;
            });
            if (group == groups.end())
                group = groups.insert(groups.end(), {port.block, port.bus, {}});
            group->ports.append(&port);
        }
        for (const Group &group : qAsConst(groups)) {
            heading(3, portHeading(group.block, group.bus));
            m_parts.append(portTable(group.ports, !group.bus.isEmpty()));
        }
    }

    static Table portTable(const QVector<const Port *> &ports, bool isBus)
    {
        Table table;
        table.columns = {{QStringLiteral("port")},        {QStringLiteral("direction")},
                         {QStringLiteral("width"), true}, {QStringLiteral("polarity")},
                         {QStringLiteral("pull-up")},     {QStringLiteral("clock")},
                         {QStringLiteral("role")}};
        if (isBus)
            table.columns.append({QStringLiteral("signal of the bus")});
        table.columns.append({QStringLiteral("meaning")});
        for (const Port *port : ports) {
            QString name = port->name;
            if (port->isVector())
                name +=
                    u'[' + QString::number(port->left) + u':' + QString::number(port->right) + u']';
            QVector<Text> row = {code(name),
                                 Text(directionName(port->direction)),
                                 Text(QString::number(port->width())),
                                 Text(port->isActiveLow ? QStringLiteral("active low") : QString()),
                                 Text(port->needsPullUp ? QStringLiteral("needed") : QString()),
                                 code(port->clock),
                                 Text(roleName(port->role))};
            if (isBus)
                row.append(code(port->signal));
            row.append(Text(port->text));
            table.rows.append(row);
        }
        return table;
    }

    void addClocksAndResets()
    {
        heading(2, QStringLiteral("Clocks and resets"));
        Table table;
        table.columns = {{QStringLiteral("port")},
                         {QStringLiteral("kind")},
                         {QStringLiteral("polarity")},
                         {QStringLiteral("what it serves")}};
        const auto add = [&table](const QVector<ExternalSource> &sources, const QString &kind) {
            for (const ExternalSource &source : sources)
                table.rows.append(
                    {code(source.port), Text(kind),
                     Text(source.isActiveLow ? QStringLiteral("active low") : QString()),
                     Text(source.text)});
        };
        add(m_map.clocks, QStringLiteral("clock"));
        add(m_map.resets, QStringLiteral("reset"));
        addTable(table, QStringLiteral("The clocks and resets are not known."));
    }

    void addRegisters()
    {
        heading(2, DatasheetChapter::registers);
        if (m_map.peripherals.isEmpty()) {
            paragraph(QStringLiteral("This configuration has no block with described registers."));
            return;
        }
        paragraph(QStringLiteral(
            "All registers have 32 bits. What is not listed reads as 0 and takes no writes. "
            "Access: "
            "R/W reads back what was written, R takes no writes, W reads as 0, R/W1C is cleared by "
            "writing 1, and \"R, W\" means one thing when read and another when written."));
        for (const Peripheral &peripheral : m_map.peripherals)
            addPeripheral(peripheral);
    }

    void addPeripheral(const Peripheral &peripheral)
    {
        heading(3, peripheral.name);
        paragraph(peripheral.text);
        if (!peripheral.parts.isEmpty())
            paragraph("When a byte or a halfword is written: "_l1 + peripheral.parts);
        Table instances;
        instances.columns = {{QStringLiteral("instance")},
                             {QStringLiteral("base address")},
                             {QStringLiteral("bus")},
                             {QStringLiteral("interrupt")},
                             {QStringLiteral("purpose")}};
        for (const PeripheralInstance &instance : peripheral.instances)
            instances.rows.append({code(instance.name), code(hexAddress(instance.base)),
                                   Text(peripheral.bus), Text(interruptText(instance)),
                                   Text(instance.text)});
        m_parts.append(instances);

        Table registers;
        registers.columns = {{QStringLiteral("offset")},     {QStringLiteral("register")},
                             {QStringLiteral("bits"), true}, {QStringLiteral("field")},
                             {QStringLiteral("access")},     {QStringLiteral("reset")},
                             {QStringLiteral("effects")},    {QStringLiteral("meaning")}};
        Table values;
        values.columns = {{QStringLiteral("register or field")},
                          {QStringLiteral("value"), true},
                          {QStringLiteral("name")},
                          {QStringLiteral("meaning")}};
        for (const Register &entry : peripheral.registers) {
            const QString offset =
                "0x"_l1 + QString::number(entry.offset, 16).toUpper().rightJustified(2, u'0');
            registers.rows.append({code(offset), strong(entry.name), Text(), Text(), Text(),
                                   code(hexAddress(resetValue(entry))), Text(changesText(entry)),
                                   Text(entry.text)});
            const auto addValues = [&values](const QString &place,
                                             const QVector<FieldValue> &named) {
                for (const FieldValue &value : named)
                    values.rows.append({code(place), Text(number(value.value)), code(value.name),
                                        Text(value.text)});
            };
            addValues(entry.name, entry.words);
            for (const RegisterField &field : entry.fields) {
                registers.rows.append(
                    {Text(), Text(), Text(bounds(field.high, field.low)), code(field.name),
                     Text(accessName(field.access)),
                     Text(field.hasReset ? number(field.reset) : QStringLiteral("varies")),
                     Text(effects(field)), Text(field.text)});
                addValues(entry.name + u'.' + field.name, field.values);
            }
        }
        m_parts.append(registers);
        if (!values.rows.isEmpty())
            m_parts.append(values);
    }

    static QString interruptText(const PeripheralInstance &instance)
    {
        if (!instance.maskedInterrupt.isEmpty())
            return "none: "_l1 + instance.maskedInterrupt;
        return instance.interrupt.isEmpty() ? QStringLiteral("none") : instance.interrupt;
    }

    static QString changesText(const Register &entry)
    {
        return entry.changes.isEmpty() ? QString()
                                       : "writing changes "_l1 + entry.changes.join(", "_l1);
    }

    void addBlackBoxes()
    {
        heading(2, DatasheetChapter::blackBoxes);
        paragraph(QStringLiteral(
            "The netlist holds a black box as a name with pins. Its contents are added later, its "
            "supplier describes its registers, and no figure of resources counts it."));
        Table table;
        table.columns = {{QStringLiteral("module")},
                         {QStringLiteral("answers at")},
                         {QStringLiteral("what it is")}};
        for (const BlackBox &box : m_map.blackBoxes) {
            const Region *region = findRegion(m_map, box.region);
            table.rows.append(
                {code(box.module),
                 region ? code(region->name + u' ' + hexAddress(region->base)) : Text(),
                 Text(box.text)});
        }
        addTable(table, QStringLiteral("This configuration names none."));
    }

    void addResources()
    {
        heading(2, QStringLiteral("Resources"));
        Table table;
        table.columns = {{QStringLiteral("resource")},
                         {QStringLiteral("used"), true},
                         {QStringLiteral("available"), true},
                         {QStringLiteral("share"), true}};
        if (m_map.resources) {
            for (const ResourceLine &line : m_map.resources->lines)
                table.rows.append({Text(line.name), Text(QString::number(line.used)),
                                   Text(availableText(line.available)), Text(shareText(line))});
            m_parts.append(table);
            if (!m_map.resources->notCounted.isEmpty())
                paragraph(m_map.resources->notCounted);
            return;
        }
        const DEV::DeviceResources total = m_map.device.resources();
        const std::pair<QLatin1String, int> totals[] = {{"LUT4"_l1, total.lut4},
                                                        {"Flip-flops"_l1, total.flipFlops},
                                                        {"Carry"_l1, total.carry},
                                                        {"Block RAM"_l1, total.blockRam}};
        for (const auto &[name, available] : totals)
            table.rows.append(
                {Text(name), Text(unknown()), Text(availableText(available)), Text(unknown())});
        m_parts.append(table);
        paragraph(QStringLiteral(
            "How much of the device is used, a run of synthesis tells: \"orixm1 export --netlist\" "
            "puts what a netlist takes into this table. The contents of black boxes are not "
            "counted."));
    }

    static QString unknown() { return QStringLiteral("not known"); }
    static QString availableText(int available)
    {
        return available < 0 ? unknown() : QString::number(available);
    }
    // Rounded up, so that nothing used is 0.
    static QString shareText(const ResourceLine &line)
    {
        if (line.available <= 0)
            return unknown();
        const qint64 share = (qint64(line.used) * 100 + line.available - 1) / line.available;
        return QString::number(share) + " %"_l1;
    }

    void addTable(const Table &table, const QString &whenEmpty)
    {
        if (table.rows.isEmpty())
            paragraph(whenEmpty);
        else
            m_parts.append(table);
    }

    const SystemMap &m_map;
    Picture m_blocks;
    Picture m_memory;
    Picture m_interrupts;
    Parts m_parts;
};

} // namespace

QString datasheetPage(const SystemMap &map)
{
    return "datasheet/"_l1 + fileName(map, ".html"_l1);
}

QVector<ExportedFile> datasheetFiles(const SystemMap &map)
{
    const Datasheet datasheet(map);
    QVector<ExportedFile> files = {
        {"datasheet/"_l1 + fileName(map, ".md"_l1), markdownOf(datasheet.parts())},
        {datasheetPage(map), htmlOf(datasheet.parts(), DatasheetStyle::Screen)}};
    const QVector<Picture> pictures = datasheet.pictures();
    for (const Picture &picture : pictures)
        files.append({"datasheet/"_l1 + picture.file, picture.svg});
    return files;
}

QStringList datasheetPlaceOf(const SystemMap &map, const Region &region)
{
    // The registers beside a window are those of what it looks into.
    for (const Peripheral &peripheral : map.peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            if (instance.name == region.name ||
                (region.kind == RegionKind::ReadWindow && instance.option == region.option))
                return {DatasheetChapter::registers, peripheral.name};
        }
    }
    if (std::any_of(map.blackBoxes.begin(), map.blackBoxes.end(),
                    [&region](const BlackBox &box) { return box.region == region.name; }))
        return {DatasheetChapter::blackBoxes};
    const QStringList ports = placeOfPorts(map, region.ports);
    return ports.isEmpty() ? QStringList(DatasheetChapter::memory) : ports;
}

QStringList datasheetPlaceOf(const SystemMap &map, const InterruptLine &line)
{
    if (const Region *region = findRegion(map, line.source))
        return datasheetPlaceOf(map, *region);
    const QStringList ports = placeOfPorts(map, line.source);
    return ports.isEmpty() ? QStringList(DatasheetChapter::interrupts) : ports;
}

QByteArray datasheetHtml(const SystemMap &map, DatasheetStyle style)
{
    return htmlOf(Datasheet(map).parts(), style);
}

} // namespace TARVOORIXM1
