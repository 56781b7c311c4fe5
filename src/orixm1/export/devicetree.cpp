#include "devicetree.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "names.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// How a peripheral or a black box of this name appears in a tree. Others take their own name.
struct NodeRow {
    QLatin1String name;
    QLatin1String node;       // the generic name that bindings know
    QLatin1String alias;      // what its aliases begin with; empty: none
    QLatin1String properties; // what every node of this generic name has, one a line
};

constexpr QLatin1String serialBus = "#address-cells = <1>;\n#size-cells = <0>;"_l1;

constexpr NodeRow nodeRows[] = {
    {"UART"_l1, "serial"_l1, "serial"_l1, QLatin1String()},
    {"SPI"_l1, "spi"_l1, "spi"_l1, serialBus},
    {"I2C"_l1, "i2c"_l1, "i2c"_l1, serialBus},
    {"GPIO"_l1, "gpio"_l1, QLatin1String(), "gpio-controller;\n#gpio-cells = <2>;"_l1},
    {"TIMER"_l1, "timer"_l1, QLatin1String(), QLatin1String()},
    {"DTIMER"_l1, "timer"_l1, QLatin1String(), QLatin1String()},
    {"WDOG"_l1, "watchdog"_l1, "watchdog"_l1, QLatin1String()},
    {"RTC"_l1, "rtc"_l1, "rtc"_l1, QLatin1String()},
    {"SD"_l1, "mmc"_l1, "mmc"_l1, QLatin1String()},
    {"SPIFLASH"_l1, "flash-controller"_l1, QLatin1String(), QLatin1String()},
    {"ETH"_l1, "ethernet"_l1, "ethernet"_l1, QLatin1String()},
    {"TRNG"_l1, "rng"_l1, QLatin1String(), QLatin1String()},
};

constexpr QLatin1String mainClock = "HCLK"_l1;
constexpr int longestNodeName = 31;

QString hex(quint32 value)
{
    return "0x"_l1 + QString::number(value, 16);
}

// "flash-window" of "FLASH_WINDOW".
QString treeName(const QString &name)
{
    return name.toLower().replace(u'_', u'-').left(longestNodeName);
}

NodeRow nodeRow(const QString &name)
{
    const auto row =
        std::find_if(std::begin(nodeRows), std::end(nodeRows),
                     [&name](const NodeRow &candidate) { return candidate.name == name; });
    return row == std::end(nodeRows) ? NodeRow() : *row;
}

QString nodeName(const QString &name)
{
    const NodeRow row = nodeRow(name);
    return row.node.size() > 0 ? QString(row.node) : treeName(name);
}

QString quoted(const QString &text)
{
    QString string(u'"');
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\')
            string += u'\\';
        string += c.category() == QChar::Other_Control ? QChar(u' ') : c;
    }
    return string + u'"';
}

// Gives each thing a label of its own: its name, with a number where that is taken or, as a
// property of the node of symbols, would be read as something else.
class Labels
{
public:
    QString unique(const QString &name)
    {
        QString label = name.toLower();
        for (int i = 0; m_taken.contains(label); ++i)
            label = name.toLower() + QString::number(i);
        m_taken.insert(label);
        return label;
    }

private:
    QSet<QString> m_taken{
        QStringLiteral("clocks"), QStringLiteral("compatible"), QStringLiteral("gpio"),
        QStringLiteral("gpios"),  QStringLiteral("interrupts"), QStringLiteral("label"),
        QStringLiteral("model"),  QStringLiteral("phandle"),    QStringLiteral("ranges"),
        QStringLiteral("reg"),    QStringLiteral("status")};
};

// The text of a source, indented by tabs.
class Source
{
public:
    void line(const QString &text) { m_text += QString(m_depth, u'\t') + text + u'\n'; }
    void blank() { m_text += u'\n'; }
    void comment(QString text) { line("/* "_l1 + text.replace("*/"_l1, "* /"_l1) + " */"_l1); }
    void open(const QString &node)
    {
        line(node + " {"_l1);
        ++m_depth;
    }
    void close()
    {
        --m_depth;
        line(QStringLiteral("};"));
    }
    void flag(QLatin1String name) { line(name + u';'); }
    void set(QLatin1String name, const QString &value) { line(name + " = "_l1 + value + u';'); }
    void setText(QLatin1String name, const QString &value) { set(name, quoted(value)); }
    void setTexts(QLatin1String name, const QStringList &values)
    {
        QStringList list;
        for (const QString &value : values)
            list.append(quoted(value));
        set(name, list.join(", "_l1));
    }
    void setNumber(QLatin1String name, quint32 value)
    {
        set(name, u'<' + QString::number(value) + u'>');
    }
    void cells(int address, int size)
    {
        setNumber("#address-cells"_l1, quint32(address));
        setNumber("#size-cells"_l1, quint32(size));
    }
    void setRange(QLatin1String name, quint32 base, quint32 size)
    {
        set(name, u'<' + hex(base) + u' ' + hex(size) + u'>');
    }
    void lines(QLatin1String text)
    {
        for (const QString &entry : QString(text).split(u'\n', Qt::SkipEmptyParts))
            line(entry);
    }
    QByteArray bytes() const { return m_text.toUtf8(); }

private:
    QString m_text;
    int m_depth = 0;
};

// A clock that the board gives.
struct Clock {
    QString port;
    QString label;
    QString block; // title of the block that it serves alone; empty: it is not one block's
    QString text;
};

// A memory whose bytes are not the subsystem's: how many there are the board says.
bool isConnectedMemory(RegionKind kind)
{
    return kind == RegionKind::ExternalMemory || kind == RegionKind::MemoryDevice;
}

class Tree
{
public:
    explicit Tree(const SystemMap &map)
        : m_map(map)
    {
        for (const auto name :
             {"cpu0"_l1, "nvic"_l1, "systick"_l1, "soc"_l1, "external_interrupts"_l1})
            m_labels.unique(name);
        findClocks();
        for (const Region &region : map.regions)
            m_regionLabels.append(m_labels.unique(region.name));
    }

    QByteArray tree()
    {
        m_out = Source();
        m_out.flag("/dts-v1/"_l1);
        m_out.blank();
        m_out.comment("What software sees of this configuration of "_l1 + systemName(m_map) +
                      ". "_l1 + fileName(m_map, "-overlay.dts"_l1) + " is where a board"_l1);
        m_out.comment(QStringLiteral("states its clocks, its console and what is connected."));
        m_out.open(QStringLiteral("/"));
        m_out.setText("model"_l1, model());
        m_out.setText("compatible"_l1, QStringLiteral("tarvo,orix-m1"));
        m_out.cells(1, 1);
        m_out.set("interrupt-parent"_l1, QStringLiteral("<&nvic>"));
        writeAliases();
        m_out.blank();
        m_out.open(QStringLiteral("chosen"));
        m_out.close();
        writeProcessor();
        writeClocks();
        writeMemories();
        writeSystem();
        writeExternalInterrupts();
        m_out.close();
        return m_out.bytes();
    }

    QByteArray overlay()
    {
        m_out = Source();
        m_out.flag("/dts-v1/"_l1);
        m_out.flag("/plugin/"_l1);
        m_out.blank();
        m_out.comment(
            QStringLiteral("Fill in what the board decides: each frequency in hertz, the bytes of "
                           "memories that are connected,"));
        m_out.comment(QStringLiteral("the console, and which blocks the board uses (\"okay\" or "
                                     "\"disabled\")."));
        writeBoard();
        for (const Clock &clock : qAsConst(m_clocks)) {
            m_out.blank();
            m_out.open(u'&' + clock.label);
            m_out.comment("frequency at port "_l1 + clock.port + ", to be filled in"_l1);
            m_out.setNumber("clock-frequency"_l1, 0);
            m_out.close();
        }
        for (int i = 0; i < m_map.regions.size(); ++i) {
            const Region &region = m_map.regions.at(i);
            if (isMemory(region.kind))
                continue;
            m_out.blank();
            m_out.open(u'&' + m_regionLabels.at(i));
            m_out.setText("status"_l1, status(region));
            m_out.close();
        }
        return m_out.bytes();
    }

private:
    QString model() const
    {
        const QString device = m_map.device.device();
        return device.isEmpty() ? systemName(m_map) : systemName(m_map) + " on "_l1 + device;
    }

    static QString status(const Region &region)
    {
        const bool isUsable =
            region.kind == RegionKind::Registers || region.kind == RegionKind::ReadWindow;
        return isUsable ? QStringLiteral("okay") : QStringLiteral("disabled");
    }

    void findClocks()
    {
        m_clocks.append({mainClock, m_labels.unique(mainClock), {}, QStringLiteral("all of it")});
        for (const ExternalSource &source : m_map.clocks) {
            if (source.port == mainClock) {
                m_clocks.first().text = source.text;
                continue;
            }
            const auto port =
                std::find_if(m_map.ports.begin(), m_map.ports.end(),
                             [&source](const Port &entry) { return entry.name == source.port; });
            // The debugger's clock serves nothing that software sees.
            if (port != m_map.ports.end() && port->role == PortRole::Debug)
                continue;
            m_clocks.append({source.port, m_labels.unique(source.port),
                             port == m_map.ports.end() ? QString() : port->block, source.text});
        }
    }

    // The peripheral whose registers answer at the region; null for other regions.
    const Peripheral *peripheralOf(const Region &region) const
    {
        for (const Peripheral &peripheral : m_map.peripherals) {
            for (const PeripheralInstance &instance : peripheral.instances) {
                if (region.kind == RegionKind::Registers && instance.name == region.name)
                    return &peripheral;
            }
        }
        return nullptr;
    }

    // What the node is made after: the peripheral's name, or the region's own.
    QString kindName(const Region &region) const
    {
        const Peripheral *peripheral = peripheralOf(region);
        return peripheral ? peripheral->name : region.name;
    }

    QString path(const Region &region) const
    {
        return nodeName(kindName(region)) + u'@' + QString::number(region.base, 16);
    }

    void writeAliases()
    {
        QStringList aliases;
        QHash<QString, int> counts;
        for (int i = 0; i < m_map.regions.size(); ++i) {
            const Region &region = m_map.regions.at(i);
            if (region.kind != RegionKind::Registers && region.kind != RegionKind::BlackBox)
                continue;
            const QLatin1String alias = nodeRow(kindName(region)).alias;
            if (alias.size() > 0)
                aliases.append(alias + QString::number(counts[alias]++) + " = &"_l1 +
                               m_regionLabels.at(i) + u';');
        }
        m_hasConsole = counts.contains(QStringLiteral("serial"));
        if (aliases.isEmpty())
            return;
        m_out.blank();
        m_out.open(QStringLiteral("aliases"));
        for (const QString &alias : qAsConst(aliases))
            m_out.line(alias);
        m_out.close();
    }

    void writeProcessor()
    {
        const Processor &processor = m_map.processor;
        m_out.blank();
        m_out.open(QStringLiteral("cpus"));
        m_out.cells(1, 0);
        m_out.blank();
        m_out.open(QStringLiteral("cpu0: cpu@0"));
        m_out.setText("device_type"_l1, QStringLiteral("cpu"));
        m_out.setText("compatible"_l1, QStringLiteral("arm,cortex-m1"));
        m_out.set("reg"_l1, QStringLiteral("<0>"));
        m_out.set("clocks"_l1, "<&"_l1 + m_clocks.first().label + u'>');
        if (processor.isBigEndian) {
            m_out.comment(QStringLiteral("BE8: data big-endian, instructions little-endian"));
            m_out.flag("tarvo,big-endian-data"_l1);
        }
        if (processor.hasOsExtension)
            m_out.flag("tarvo,os-extension"_l1);
        if (processor.hasSmallMultiplier)
            m_out.flag("tarvo,small-multiplier"_l1);
        if (processor.hasDebug)
            m_out.flag("tarvo,debug"_l1);
        m_out.close();
        m_out.close();
    }

    void writeClocks()
    {
        for (const Clock &clock : qAsConst(m_clocks)) {
            m_out.blank();
            m_out.comment("port "_l1 + clock.port +
                          (clock.text.isEmpty() ? QString() : ": "_l1 + clock.text));
            m_out.open(clock.label + ": clock-"_l1 + treeName(clock.port));
            m_out.setText("compatible"_l1, QStringLiteral("fixed-clock"));
            m_out.setNumber("#clock-cells"_l1, 0);
            m_out.comment(QStringLiteral("in hertz; the board's overlay says how many"));
            m_out.setNumber("clock-frequency"_l1, 0);
            m_out.setText("clock-output-names"_l1, clock.port);
            m_out.close();
        }
    }

    void writeMemories()
    {
        for (int i = 0; i < m_map.regions.size(); ++i) {
            const Region &region = m_map.regions.at(i);
            if (!isMemory(region.kind))
                continue;
            m_out.blank();
            m_out.comment(region.text);
            m_out.open(m_regionLabels.at(i) + ": memory@"_l1 + QString::number(region.base, 16));
            m_out.setText("device_type"_l1, QStringLiteral("memory"));
            m_out.setText("compatible"_l1, "tarvo,orix-m1-"_l1 + treeName(region.name));
            m_out.setRange("reg"_l1, region.base, quint32(region.size()));
            if (isConnectedMemory(region.kind)) {
                m_out.comment(QStringLiteral("the addresses that the memory may have; the board's "
                                             "overlay says how many it has"));
                m_out.setText("status"_l1, QStringLiteral("disabled"));
            }
            m_out.close();
        }
    }

    void writeSystem()
    {
        m_out.blank();
        m_out.open(QStringLiteral("soc: soc"));
        m_out.setText("compatible"_l1, QStringLiteral("simple-bus"));
        m_out.cells(1, 1);
        m_out.flag("ranges"_l1);
        for (int i = 0; i < m_map.regions.size(); ++i) {
            if (!isMemory(m_map.regions.at(i).kind))
                writeRegion(m_map.regions.at(i), m_regionLabels.at(i));
        }
        if (m_map.processor.hasOsExtension) {
            m_out.blank();
            m_out.open(QStringLiteral("systick: timer@e000e010"));
            m_out.setText("compatible"_l1, QStringLiteral("arm,armv6m-systick"));
            m_out.setRange("reg"_l1, 0xE000E010, 0x10);
            m_out.set("clocks"_l1, "<&"_l1 + m_clocks.first().label + u'>');
            m_out.close();
        }
        m_out.blank();
        m_out.open(QStringLiteral("nvic: interrupt-controller@e000e100"));
        m_out.setText("compatible"_l1, QStringLiteral("arm,v6m-nvic"));
        m_out.setRange("reg"_l1, 0xE000E100, 0xC00);
        m_out.flag("interrupt-controller"_l1);
        m_out.setNumber("#address-cells"_l1, 0);
        m_out.comment(QStringLiteral("number and priority"));
        m_out.setNumber("#interrupt-cells"_l1, 2);
        m_out.setNumber("arm,num-irq-priority-bits"_l1, quint32(m_map.processor.priorityBits));
        m_out.setNumber("tarvo,interrupt-inputs"_l1,
                        quint32(std::max(m_map.processor.interruptInputs, 0)));
        m_out.close();
        m_out.close();
    }

    void writeRegion(const Region &region, const QString &label)
    {
        const QString kind = kindName(region);
        m_out.blank();
        if (!region.text.isEmpty())
            m_out.comment(region.text);
        if (region.kind == RegionKind::BlackBox)
            m_out.comment(QStringLiteral("A black box: its supplier describes its registers."));
        m_out.open(label + ": "_l1 + path(region));
        QStringList compatible{"tarvo,orix-m1-"_l1 + treeName(kind)};
        const quint32 size = quint32(region.size());
        if (region.kind == RegionKind::ExtensionPort) {
            compatible = QStringList{"tarvo,orix-m1-"_l1 + treeName(region.bus) + "-port"_l1,
                                     QStringLiteral("simple-bus")};
            m_out.setTexts("compatible"_l1, compatible);
            m_out.setRange("reg"_l1, region.base, size);
            m_out.comment(QStringLiteral("what is connected has addresses from 0 here"));
            m_out.cells(1, 1);
            m_out.set("ranges"_l1, "<0x0 "_l1 + hex(region.base) + u' ' + hex(size) + u'>');
        } else {
            m_out.setTexts("compatible"_l1, compatible);
            m_out.setRange("reg"_l1, region.base, size);
        }
        if (region.kind == RegionKind::ReadWindow)
            m_out.flag("read-only"_l1);
        if (region.kind == RegionKind::Registers || region.kind == RegionKind::BlackBox) {
            writeInterrupts({region.name});
            writeClocksOf(region);
        }
        if (region.kind == RegionKind::Registers)
            m_out.lines(nodeRow(kind).properties);
        m_out.setText("status"_l1, status(region));
        m_out.close();
    }

    void writeInterrupts(const QStringList &sources)
    {
        QStringList arriving;
        QStringList names;
        for (const InterruptLine &line : m_map.interrupts) {
            if (!sources.contains(line.source))
                continue;
            if (line.number == InterruptLine::nonMaskable) {
                m_out.comment(
                    QStringLiteral("It requests the non-maskable interrupt, which has no number."));
                m_out.flag("tarvo,non-maskable-interrupt"_l1);
            } else if (!line.lost.isEmpty()) {
                m_out.comment(line.name + " requests no interrupt: "_l1 + line.lost);
            } else {
                arriving.append(u'<' + QString::number(line.number) + " 0>"_l1);
                names.append(line.name);
            }
        }
        if (arriving.isEmpty())
            return;
        m_out.set("interrupts"_l1, arriving.join(", "_l1));
        if (names.size() > 1)
            m_out.setTexts("interrupt-names"_l1, names);
    }

    void writeClocksOf(const Region &region)
    {
        QStringList clocks{"<&"_l1 + m_clocks.first().label + u'>'};
        QStringList names{m_clocks.first().label};
        const QString title = blockTitle(region.option);
        for (const Clock &clock : qAsConst(m_clocks)) {
            if (title.isEmpty() || clock.block != title)
                continue;
            clocks.append("<&"_l1 + clock.label + u'>');
            names.append(clock.label);
        }
        m_out.set("clocks"_l1, clocks.join(", "_l1));
        if (names.size() > 1)
            m_out.setTexts("clock-names"_l1, names);
    }

    static QString blockTitle(const QString &option)
    {
        for (const Block &block : blocks()) {
            for (const SwitchRow &entry : block.switches) {
                if (entry.key() == option)
                    return block.title;
            }
        }
        return {};
    }

    // Interrupts that no node of the tree requests: they come from outside.
    void writeExternalInterrupts()
    {
        QStringList sources;
        bool arrive = false;
        for (const InterruptLine &line : m_map.interrupts) {
            if (findRegion(m_map, line.source))
                continue;
            if (!sources.contains(line.source))
                sources.append(line.source);
            arrive = arrive || line.lost.isEmpty();
        }
        if (sources.isEmpty())
            return;
        m_out.blank();
        m_out.comment("requested by whatever is connected to "_l1 + sources.join(", "_l1));
        m_out.open(QStringLiteral("external_interrupts: external-interrupts"));
        m_out.setText("compatible"_l1, QStringLiteral("tarvo,orix-m1-external-interrupts"));
        writeInterrupts(sources);
        m_out.setText("status"_l1,
                      arrive ? QStringLiteral("reserved") : QStringLiteral("disabled"));
        m_out.close();
    }

    // What is said of the root: console and memories.
    void writeBoard()
    {
        const bool hasMemory =
            std::any_of(m_map.regions.begin(), m_map.regions.end(),
                        [](const Region &region) { return isConnectedMemory(region.kind); });
        if (m_hasConsole) {
            m_out.blank();
            m_out.open(QStringLiteral("&{/chosen}"));
            m_out.setText("stdout-path"_l1, QStringLiteral("serial0"));
            m_out.close();
        }
        if (!hasMemory)
            return;
        m_out.blank();
        m_out.open(QStringLiteral("&{/}"));
        m_out.cells(1, 1);
        for (const Region &region : m_map.regions) {
            if (!isConnectedMemory(region.kind))
                continue;
            m_out.blank();
            m_out.comment(region.text + ": the bytes that it has, then \"okay\""_l1);
            m_out.open("memory@"_l1 + QString::number(region.base, 16));
            m_out.setRange("reg"_l1, region.base, quint32(region.size()));
            m_out.setText("status"_l1, QStringLiteral("disabled"));
            m_out.close();
        }
        m_out.close();
    }

    const SystemMap &m_map;
    Labels m_labels;
    QStringList m_regionLabels; // of map.regions, in their order
    QVector<Clock> m_clocks;    // the processor's first
    bool m_hasConsole = false;
    Source m_out;
};

} // namespace

QVector<ExportedFile> devicetreeFiles(const SystemMap &map)
{
    Tree tree(map);
    const QByteArray base = tree.tree();
    return {{fileName(map, ".dtsi"_l1), base}, {fileName(map, "-overlay.dts"_l1), tree.overlay()}};
}

} // namespace TARVOORIXM1
