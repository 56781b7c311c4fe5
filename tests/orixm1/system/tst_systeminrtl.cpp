// Holds the system map and the RTL against each other: for random configurations, scripts made from
// the map try the first and the last word of each region and the words beside it, each register
// after reset, and each interrupt. Its ports are those of the elaborated top and of the figures,
// its black boxes the modules that the elaboration leaves empty.
//
// Whatever is no part of the RTL answers with a word of its own: black boxes are given a body,
// extension ports are connected to constants. So a word tells who answered.

#include "drawnoptions.h"
#include "testsupport.h"

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <config/optionvalue.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <generate/sourcefiles.h>
#include <registers/registerdocs.h>
#include <rules/check.h>
#include <rules/corepins.h>
#include <rules/pins.h>
#include <system/systemmap.h>
#include <utils/descriptor.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <functional>

using namespace TARVOORIXM1;

namespace
{

using TestSupport::below;
using TestSupport::Random;

// What the device can have; memories of at most 32 KB, since a simulated one is cleared word by
// word.
OptionMap anyOptions(const DEV::DeviceArg &device, Random &random)
{
    OptionMap map = TestSupport::drawnOptions(device, random);
    map.insert(Key::itcmSize, below(6, random));
    map.insert(Key::dtcmSize, below(6, random));
    return map;
}

QString hex(quint32 value)
{
    return QStringLiteral("0x%1").arg(value, 8, 16, QLatin1Char('0'));
}

QString verilogWord(quint32 value)
{
    return QStringLiteral("32'h%1").arg(value, 8, 16, QLatin1Char('0'));
}

// The word by which a region that is not in the RTL is known.
quint32 wordOf(const Region &region)
{
    return 0xC0DE0000u | (qHash(region.name, 0) & 0xFFFFu);
}

// By the name that the source file of a black box begins with; the value is the region that it
// serves.
const QMap<QString, QString> &blackBoxFiles()
{
    static const QMap<QString, QString> files = {
        {QStringLiteral("can_core.v"), QStringLiteral("CAN")},
        {QStringLiteral("triple_speed_mac.v"), QStringLiteral("ETH")},
        {QStringLiteral("trng_core.v"), QStringLiteral("TRNG")},
        {QStringLiteral("psram_interface.v"), QStringLiteral("PSRAM")},
        {QStringLiteral("ddr3_controller.v"), QStringLiteral("DDR3")}};
    return files;
}

struct Pin {
    QString name;
    QString range; // "[31:0]", or empty
    Utils::PinFigure::Direction direction = Utils::PinFigure::Input;
};

QVector<Pin> pinsOf(const OptionMap &options, const QString &device)
{
    QList<Utils::PinFigure> figures = corePins(coreSwitches(options));
    const QList<BlockPins> blocks = peripheralPins(options, device);
    for (const BlockPins &block : blocks)
        figures += block.pins;
    QVector<Pin> pins;
    for (const Utils::PinFigure &figure : qAsConst(figures)) {
        const QString label = figure.name().trimmed();
        const int bracket = label.indexOf(u'[');
        Pin pin;
        pin.name = bracket < 0 ? label : label.left(bracket);
        pin.range = bracket < 0 ? QString() : label.mid(bracket);
        pin.direction = Utils::PinFigure::Direction(figure.direction());
        pins.append(pin);
    }
    return pins;
}

// "input UART0RXD", "output [31:0] AHB1HADDR", a port each.
QStringList portTexts(const QVector<Port> &ports)
{
    QStringList list;
    for (const Port &port : ports) {
        const QString direction = port.direction == PortDirection::Input ? QStringLiteral("input")
                                  : port.direction == PortDirection::Output
                                      ? QStringLiteral("output")
                                      : QStringLiteral("inout");
        const QString range =
            port.isVector() ? QStringLiteral(" [%1:%2]").arg(port.left).arg(port.right) : QString();
        list.append(direction + range + u' ' + port.name);
    }
    return list;
}

QStringList pinTexts(const QVector<Pin> &pins)
{
    static const QString directions[] = {QStringLiteral("input"), QStringLiteral("output"),
                                         QStringLiteral("inout")};
    QStringList list;
    for (const Pin &pin : pins)
        list.append(directions[pin.direction] +
                    (pin.range.isEmpty() ? QString() : QString(u' ' + pin.range)) + u' ' +
                    pin.name);
    return list;
}

// What the tool says of the elaborated top.
struct Elaborated {
    QStringList ports; // sorted
    QStringList boxes; // likewise
    QString message;   // why there is none
};

// The signal of the RTL that carries an interrupt, as its block drives it.
QString requestOf(const InterruptLine &line)
{
    if (line.number == InterruptLine::nonMaskable)
        return QStringLiteral("dut.u_wdog.nmi");
    if (line.source == QLatin1String("EXTINT"))
        return QStringLiteral("p_EXTINT[%1]").arg(line.name.rightRef(1));
    const QString block =
        line.source == QLatin1String("ETH") ? QStringLiteral("ethernet") : line.source.toLower();
    return QStringLiteral("dut.u_%1.irq").arg(block);
}

class Bench
{
public:
    Bench(const SystemMap &map, const QVector<Pin> &pins)
        : m_map(map)
        , m_pins(pins)
    {
    }

    QString verilog() const
    {
        QString text = QStringLiteral(
            "module tb;\n    reg clk = 1'b0;\n    always #5 clk = ~clk;\n"
            "    reg rstn = 1'b0;\n    initial #42 rstn = 1'b1;\n"
            "    integer failures = 0;\n"
            "    task same(input integer is, input integer expected);\n"
            "        if (is !== expected) begin failures = failures + 1;"
            " $display(\"processor: %0d, not %0d\", is, expected); end\n"
            "    endtask\n"
            // The last two cycles of a transfer in place of the core's: those of an error.
            "    reg errs;\n    integer waits;\n"
            "    task refused(input [31:0] address);\n        begin\n"
            "            @(negedge clk); force dut.haddr = address;"
            " force dut.htrans = 2'b10; force dut.hwrite = 1'b1;\n"
            "            @(negedge clk); force dut.htrans = 2'b00;\n"
            "            errs = 1'b0;\n"
            "            for (waits = 0; dut.hready !== 1'b1 && waits < 16; waits = waits + 1) "
            "begin\n"
            "                errs = dut.hresp;\n                @(negedge clk);\n            "
            "end\n"
            "            if (dut.hresp !== 1'b1 || dut.hready !== 1'b1 || errs !== 1'b1) begin\n"
            "                failures = failures + 1; $display(\"write to %h\", address);\n"
            "            end\n            @(negedge clk);\n        end\n    endtask\n");
        QStringList connections;
        for (const Pin &pin : m_pins) {
            if (pin.name == QLatin1String("HCLK") || pin.name == QLatin1String("hwRstn"))
                continue;
            if (pin.direction == Utils::PinFigure::Output)
                continue;
            text += QStringLiteral("    %1 %2 p_%3%4;\n")
                        .arg(netType(pin), pin.range, pin.name, constantOf(pin));
            connections.append(QStringLiteral(".%1(p_%1)").arg(pin.name));
        }
        text += QStringLiteral("    Tarvo_ORIX_M1_Top dut (.HCLK(clk), .hwRstn(rstn)");
        for (const QString &connection : qAsConst(connections))
            text += QStringLiteral(",\n        ") + connection;
        text += QStringLiteral(");\n    initial begin\n        wait (dut.u_core.done);\n");
        text += processorCheck();
        for (const InterruptLine &line : m_map.interrupts)
            text += interruptCheck(line);
        text += refusedWrites();
        text += QStringLiteral("        if (failures == 0) $display(\"INTERRUPTS OK\");\n"
                               "        $finish;\n    end\nendmodule\n");
        return text;
    }

    // For the model of the processor.
    QString script() const
    {
        QString text;
        // Registers as they are after the reset, before other accesses change them: reading the
        // window of the serial flash leads the flash back first, and register RECOVER tells.
        for (const bool isRegisters : {true, false}) {
            for (const Region &region : m_map.regions) {
                if ((region.kind == RegionKind::Registers) == isRegisters)
                    text += accesses(region);
            }
        }
        for (const Region &region : m_map.regions) {
            if (region.base != 0)
                text += refused(region.base - 4);
            if (region.last != 0xFFFFFFFF)
                text += refused(region.last + 1);
        }
        // The place of the other alias.
        if (!m_map.processor.itcmAtUpperAlias)
            text += refused(0x10000000);
        // Nothing is there in any configuration.
        for (const quint32 address : {0x4F000000u, 0x90000000u, 0xC0000000u, 0xDFFFFFFCu})
            text += QStringLiteral("error %1\n").arg(hex(address));
        // The places that other configurations have.
        for (const Region &region : everyRegion()) {
            text += refused(region.base);
            text += refused(region.last - 3);
        }
        return text;
    }

    void setEveryRegion(const QVector<Region> &regions) { m_everyRegion = regions; }

private:
    QString refused(quint32 address) const
    {
        return isRefused(m_map, address, BusAccess::Read)
                   ? QStringLiteral("error %1\n").arg(hex(address))
                   : QString();
    }

    const QVector<Region> &everyRegion() const { return m_everyRegion; }

    static QString netType(const Pin &pin)
    {
        static const QRegularExpression high(
            QStringLiteral("RXD$|^SCL$|^SDA$|^JTAG_15$|^JTAG_3$|^SD_CHECKIN$|^MDIO$"));
        if (pin.name == QLatin1String("EXTINT"))
            return QStringLiteral("reg");
        return high.match(pin.name).hasMatch() ? QStringLiteral("tri1") : QStringLiteral("tri0");
    }

    QString constantOf(const Pin &pin) const
    {
        if (pin.name == QLatin1String("EXTINT"))
            return QStringLiteral(" = 4'd0");
        for (const Region &region : m_map.regions) {
            if (region.kind != RegionKind::ExtensionPort &&
                region.kind != RegionKind::ExternalMemory)
                continue;
            if (pin.name == region.ports + QLatin1String("RDATA"))
                return QStringLiteral(" = ") + verilogWord(wordOf(region));
            if (pin.name == region.ports + QLatin1String("READYOUT") ||
                pin.name == region.ports + QLatin1String("REDADY"))
                return QStringLiteral(" = 1'b1");
        }
        return {};
    }

    // What the top makes of the processor.
    QString processorCheck() const
    {
        const Processor &processor = m_map.processor;
        const auto sizeCode = [this](QLatin1String name) {
            const Region *region = findRegion(m_map, name);
            int code = 0;
            while (region && quint64(512) << code < region->size())
                ++code;
            return code;
        };
        QString text;
        const auto same = [&text](const char *parameter, int value) {
            text += QStringLiteral("        same(dut.u_core.%1, %2);\n")
                        .arg(QLatin1String(parameter))
                        .arg(value);
        };
        same("NUM_IRQ", processor.interruptInputs);
        same("OS", processor.hasOsExtension);
        same("SMALL_MUL", processor.hasSmallMultiplier);
        same("BE8", processor.isBigEndian);
        same("DEBUG", processor.hasDebug);
        same("JTAG", processor.hasJtag);
        same("SW", processor.hasSerialWire);
        same("SMALL_DEBUG", processor.hasSmallDebug);
        same("ITCM_LA_EN", processor.itcmAtLowerAlias);
        same("ITCM_UA_EN", processor.itcmAtUpperAlias);
        same("ITCMSIZE", sizeCode(QLatin1String("ITCM")));
        same("DTCMSIZE", sizeCode(QLatin1String("DTCM")));
        return text;
    }

    QString refusedWrites() const
    {
        QString text;
        const auto tryOut = [&](quint32 address) {
            if (isRefused(m_map, address, BusAccess::Write))
                text += QStringLiteral("        refused(%1);\n").arg(verilogWord(address));
        };
        for (const Region &region : everyRegion()) {
            for (const quint32 address : {region.base, region.last - 3, region.last + 1})
                tryOut(address);
        }
        for (const Region &region : m_map.regions) {
            for (const quint32 address : {region.base, region.last - 3, region.last + 1})
                tryOut(address);
        }
        return text;
    }

    QString interruptCheck(const InterruptLine &line) const
    {
        const QString request = requestOf(line);
        const bool isPort = line.source == QLatin1String("EXTINT");
        const bool isNmi = line.number == InterruptLine::nonMaskable;
        const QString set =
            isPort ? QStringLiteral("%1 = 1'b%2;") : QStringLiteral("force %1 = 1'b%2;");
        const QString seen = isNmi ? QStringLiteral("dut.u_core.NMI")
                                   : QStringLiteral("dut.u_core.IRQ[%1]").arg(line.number);
        const QString others =
            isNmi ? QStringLiteral("dut.u_core.IRQ !== 32'd0")
                  : QStringLiteral("(dut.u_core.IRQ & ~(32'd1 << %1)) !== 32'd0").arg(line.number);
        return QStringLiteral(
                   "        %1\n        repeat (5) @(negedge clk);\n"
                   "        if (%2 !== 1'b%3 || %4) begin failures = failures + 1; "
                   "$display(\"interrupt %5: %b %b\", dut.u_core.NMI, dut.u_core.IRQ); end\n"
                   "        %6\n        repeat (5) @(negedge clk);\n")
            .arg(set.arg(request, QStringLiteral("1")), seen, line.lost.isEmpty() ? u"1" : u"0",
                 others, line.name, set.arg(request, QStringLiteral("0")));
    }

    const Peripheral *peripheralAt(const Region &region) const
    {
        for (const Peripheral &peripheral : m_map.peripherals) {
            for (const PeripheralInstance &instance : peripheral.instances) {
                if (instance.name == region.name)
                    return &peripheral;
            }
        }
        return nullptr;
    }

    QString registersAfterReset(const Region &region) const
    {
        QString text;
        const Peripheral *peripheral = peripheralAt(region);
        if (!peripheral)
            return QStringLiteral("no registers are described for %1\n").arg(region.name);
        bool lastIsRegister = false;
        for (const Register &entry : peripheral->registers) {
            quint32 mask = ~0u;
            for (const RegisterField &field : entry.fields) {
                if (!field.hasReset)
                    mask &= ~field.mask();
            }
            text +=
                QStringLiteral("read %1 %2 %3\n")
                    .arg(hex(region.base + entry.offset), hex(resetValue(entry) & mask), hex(mask));
            lastIsRegister = lastIsRegister || region.base + entry.offset == region.last - 3;
        }
        if (!lastIsRegister)
            text += QStringLiteral("read %1 0\n").arg(hex(region.last - 3));
        return text;
    }

    QString accesses(const Region &region) const
    {
        const quint32 first = region.base;
        const quint32 last = region.last - 3;
        switch (region.kind) {
        case RegionKind::TightlyCoupledMemory:
            return QStringLiteral("write %1 0x%3\nwrite %2 0x%4\nread %1 0x%3\nread %2 0x%4\n")
                .arg(hex(first), hex(last))
                .arg(wordOf(region), 8, 16, QLatin1Char('0'))
                .arg(~wordOf(region), 8, 16, QLatin1Char('0'));
        case RegionKind::ExternalMemory:
        case RegionKind::ExtensionPort:
        case RegionKind::MemoryDevice:
        case RegionKind::BlackBox:
            return QStringLiteral("read %1 %3\nread %2 %3\n")
                .arg(hex(first), hex(last), hex(wordOf(region)));
        case RegionKind::ReadWindow:
            return QStringLiteral("read %1 0\nread %2 0\n").arg(hex(first), hex(last));
        case RegionKind::Registers:
            return registersAfterReset(region);
        }
        return {};
    }

    const SystemMap &m_map;
    const QVector<Pin> &m_pins;
    QVector<Region> m_everyRegion;
};

// The declaration of a black box with a body that answers each access with `word`.
QString withBody(QString text, quint32 word)
{
    QString body = QStringLiteral("\n    assign irq = 1'b0;\n");
    if (!text.contains(QRegularExpression(QStringLiteral("output +wire +irq\\b"))))
        body.clear();
    if (text.contains(QLatin1String("HRDATA")))
        body += QStringLiteral("    assign HRDATA = %1;\n    assign HREADYOUT = 1'b1;\n"
                               "    assign HRESP = 1'b0;\n")
                    .arg(verilogWord(word));
    else
        body += QStringLiteral("    assign PRDATA = %1;\n    assign PREADY = 1'b1;\n"
                               "    assign PSLVERR = 1'b0;\n")
                    .arg(verilogWord(word));
    text.remove(QLatin1String("(* blackbox *)"));
    const int begin = text.indexOf(QLatin1String("\n);\n")) + 4; // of what the stand-in does
    text.remove(begin, text.indexOf(QLatin1String("endmodule")) - begin);
    return text.replace(QLatin1String("endmodule"), body + QLatin1String("endmodule"));
}

QString run(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(-1))
        return process.errorString();
    return QString::fromUtf8(process.readAll());
}

} // namespace

class tst_SystemInRtl : public QObject
{
    Q_OBJECT

public:
    tst_SystemInRtl(unsigned seed, int draws)
        : m_seed(seed)
        , m_draws(draws)
    {
    }

private Q_SLOTS:
    void initTestCase();
    void mapIsWhatTheRtlDoes_data();
    void mapIsWhatTheRtlDoes();
    void mistakesAreFound_data();
    void mistakesAreFound();
    void cleanupTestCase();

private:
    struct Tried {
        int regions = 0;
        int interrupts = 0;
        int lost = 0;
        int nonMaskable = 0;
        int ports = 0;
        int boxes = 0;
    };
    void count(const SystemMap &map);
    QString wrongAbout(const SystemMap &map) const;
    Elaborated elaborate(const OptionMap &options, const DEV::DeviceArg &device,
                         const QString &folder) const;
    QStringList sources(const OptionMap &options, const SystemMap &map,
                        const QString &folder) const;

    const unsigned m_seed;
    const int m_draws;
    QString m_data = QStringLiteral(TARVO_IP_DATA_DIR);
    QVariantMap m_ipInfo;
    SystemDescription m_description;
    QList<DEV::DeviceArg> m_devices;
    QVector<Region> m_everyRegion;
    Tried m_tried;
};

void tst_SystemInRtl::count(const SystemMap &map)
{
    m_tried.regions += map.regions.size();
    m_tried.ports += map.ports.size();
    m_tried.boxes += map.blackBoxes.size();
    for (const InterruptLine &line : map.interrupts) {
        m_tried.interrupts += 1;
        m_tried.lost += !line.lost.isEmpty();
        m_tried.nonMaskable += line.number == InterruptLine::nonMaskable;
    }
}

void tst_SystemInRtl::cleanupTestCase()
{
    qInfo("tried: %d regions, %d interrupts (%d lost, %d non-maskable), %d ports, %d black boxes",
          m_tried.regions, m_tried.interrupts, m_tried.lost, m_tried.nonMaskable, m_tried.ports,
          m_tried.boxes);
}

void tst_SystemInRtl::initTestCase()
{
    const auto ipInfo = Utils::readDescriptor(descriptorPath(m_data));
    QVERIFY2(ipInfo, qPrintable(ipInfo.reason()));
    m_ipInfo = *ipInfo;
    addDataFolders(m_ipInfo, m_data);
    auto description = readSystemDescription(m_data);
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
    m_devices = DEV::DeviceDb::bundled().devices();
    OptionMap everything;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool)
            everything.insert(option.key, true);
    }
    m_everyRegion = systemMap(everything, m_devices.first(), m_description).regions;
}

void tst_SystemInRtl::mapIsWhatTheRtlDoes_data()
{
    QTest::addColumn<int>("draw");
    for (int draw = 0; draw < m_draws; ++draw)
        QTest::addRow("seed %u, configuration %d", m_seed, draw) << draw;
}

QStringList tst_SystemInRtl::sources(const OptionMap &options, const SystemMap &map,
                                     const QString &folder) const
{
    QStringList list;
    const QStringList all = buildSourceFiles(options, m_ipInfo, map.device.device(), folder);
    for (const QString &source : all) {
        const QString name = QFileInfo(source).fileName();
        if (name == QLatin1String("cortex_m1_core.v"))
            continue;
        const Region *region = findRegion(map, blackBoxFiles().value(name));
        if (!blackBoxFiles().contains(name)) {
            list.append(source);
            continue;
        }
        if (!region)
            continue;
        const QString made = folder + u'/' + name;
        TestSupport::write(
            made,
            withBody(QString::fromUtf8(TestSupport::contentsOf(source)), wordOf(*region)).toUtf8());
        list.append(made);
    }
    return list;
}

// `folder` has the include files.
Elaborated tst_SystemInRtl::elaborate(const OptionMap &options, const DEV::DeviceArg &device,
                                      const QString &folder) const
{
    QByteArray script;
    const QStringList sources = buildSourceFiles(options, m_ipInfo, device.device(), folder);
    for (const QString &source : sources)
        script += "read_verilog -I. -I" + QFileInfo(source).path().toUtf8() + ' ' +
                  source.toUtf8() + '\n';
    script += "hierarchy -check -top Tarvo_ORIX_M1_Top\n"
              "hierarchy -top Tarvo_ORIX_M1_Top -purge_lib\n"
              "tee -q -o boxes.txt select -list =A:blackbox\n"
              "blackbox *\nwrite_json ports.json\n";
    const QDir dir(folder);
    TestSupport::write(dir.filePath(QStringLiteral("elaborate.ys")), script);
    Elaborated result;
    const QString told =
        run(QStringLiteral("yosys"),
            {QStringLiteral("-q"), QStringLiteral("-s"), QStringLiteral("elaborate.ys")}, folder);
    const QJsonObject top =
        QJsonDocument::fromJson(TestSupport::contentsOf(dir.filePath(QStringLiteral("ports.json"))))
            .object()
            .value(QLatin1String("modules"))
            .toObject()
            .value(QLatin1String("Tarvo_ORIX_M1_Top"))
            .toObject();
    const QJsonObject ports = top.value(QLatin1String("ports")).toObject();
    if (ports.isEmpty())
        result.message = told;
    for (auto it = ports.begin(); it != ports.end(); ++it) {
        const QJsonObject port = it->toObject();
        const int width = port.value(QLatin1String("bits")).toArray().size();
        const int lowest = port.value(QLatin1String("offset")).toInt();
        QString text = port.value(QLatin1String("direction")).toString();
        if (width > 1 || lowest != 0 || port.contains(QLatin1String("upto")))
            text += QStringLiteral(" [%1:%2]").arg(lowest + width - 1).arg(lowest);
        result.ports.append(text + u' ' + it.key());
    }
    // "can_core", among lines such as "can_core/HCLK".
    static const QRegularExpression name(QStringLiteral("^([^/\\n]+)$"),
                                         QRegularExpression::MultilineOption);
    const QString boxes =
        QString::fromUtf8(TestSupport::contentsOf(dir.filePath(QStringLiteral("boxes.txt"))));
    for (auto it = name.globalMatch(boxes); it.hasNext();)
        result.boxes.append(it.next().captured(1));
    result.ports.sort();
    result.boxes.sort();
    return result;
}

// What `map` says that the RTL of its configuration does not do; empty: nothing.
QString tst_SystemInRtl::wrongAbout(const SystemMap &map) const
{
    const OptionMap &options = map.options;
    const QString device = map.device.device();
    const QVector<Pin> pins = pinsOf(options, device);
    const QTemporaryDir dir;
    const QVector<IncludeFile> files = buildIncludeFiles(options, map.device);
    for (const IncludeFile &file : files)
        TestSupport::write(dir.filePath(file.name), file.lines.join(u'\n').toUtf8() + '\n');
    QStringList ports = portTexts(map.ports);
    QStringList figures = pinTexts(pins);
    QStringList boxes;
    for (const BlackBox &box : map.blackBoxes) {
        boxes.append(box.module);
        if (!box.region.isEmpty() && !findRegion(map, box.region))
            return QStringLiteral("no region of a black box: ") + box.region;
    }
    for (QStringList *list : {&ports, &figures, &boxes})
        list->sort();
    const Elaborated elaborated = elaborate(options, map.device, dir.path());
    if (!elaborated.message.isEmpty())
        return elaborated.message;
    const auto unequal = [](const char *what, const QStringList &told, const QStringList &is) {
        QStringList more = told;
        QStringList less = is;
        for (const QString &entry : is)
            more.removeOne(entry);
        for (const QString &entry : told)
            less.removeOne(entry);
        return more.isEmpty() && less.isEmpty()
                   ? QString()
                   : QStringLiteral("%1: not there: %2; not told: %3\n")
                         .arg(QLatin1String(what), more.join(QLatin1String(", ")),
                              less.join(QLatin1String(", ")));
    };
    const QString lists = unequal("figures", ports, figures) +
                          unequal("ports", ports, elaborated.ports) +
                          unequal("black boxes", boxes, elaborated.boxes);
    if (!lists.isEmpty())
        return lists;

    Bench bench(map, pins);
    bench.setEveryRegion(m_everyRegion);
    TestSupport::write(dir.filePath(QStringLiteral("tb.v")), bench.verilog().toUtf8());
    TestSupport::write(dir.filePath(QStringLiteral("play.txt")), bench.script().toUtf8());
    const QString rtl =
        m_ipInfo.value(isOn(options, Key::enableDebug) ? InfoKey::debug : InfoKey::noDebug)
            .toString();
    const QString compiled =
        run(QStringLiteral("iverilog"),
            QStringList{QStringLiteral("-g2012"), QStringLiteral("-s"), QStringLiteral("tb"),
                        QStringLiteral("-I."), QStringLiteral("-I") + rtl, QStringLiteral("-o"),
                        QStringLiteral("bench")} +
                sources(options, map, dir.path()) +
                QStringList{m_data + QLatin1String("/simulation/cortex_m1_core_bfm.v"),
                            dir.filePath(QStringLiteral("tb.v"))},
            dir.path());
    const QString told =
        run(QStringLiteral("vvp"), {QStringLiteral("-n"), QStringLiteral("bench")}, dir.path());
    const bool passed = told.contains(QRegularExpression(QStringLiteral("^PASS"),
                                                         QRegularExpression::MultilineOption)) &&
                        told.contains(QLatin1String("INTERRUPTS OK"));
    if (passed)
        return {};
    // The model of the processor tells the line of the script.
    QString text = compiled + told;
    const QStringList script = bench.script().split(u'\n');
    static const QRegularExpression line(QStringLiteral("line (\\d+): "));
    for (auto it = line.globalMatch(told); it.hasNext();)
        text +=
            QStringLiteral("failed: ") + script.value(it.next().captured(1).toInt() - 1) + u'\n';
    return text;
}

void tst_SystemInRtl::mapIsWhatTheRtlDoes()
{
    QFETCH(int, draw);
    Random random(m_seed * 100003u + unsigned(draw));
    const DEV::DeviceArg device = m_devices.at(below(m_devices.size(), random));
    const OptionMap options = anyOptions(device, random);
    const SystemMap map = systemMap(options, device, m_description);
    count(map);
    const QString wrong = wrongAbout(map);
    // What is wrong comes first: long messages are cut.
    QString text = wrong + device.id();
    for (auto it = options.begin(); it != options.end(); ++it)
        text += QStringLiteral("\n    %1=%2").arg(it.key(), it.value().toString());
    QVERIFY2(wrong.isEmpty(), qPrintable(text));
}

void tst_SystemInRtl::mistakesAreFound_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("wrong");
    const auto row = [](const char *what, const char *wrong) {
        QTest::newRow(what) << QString::fromLatin1(what) << QString::fromLatin1(wrong);
    };
    row("nothing", "");
    row("a region too long", "failed: read 0x60300ffc");
    row("a region too short", "failed: error 0x602ff000");
    row("a region left out", "failed: error 0x50004000");
    row("a register elsewhere", "failed: read 0x50004ff8");
    row("another interrupt", "interrupt UART0: 0 0000");
    row("an interrupt that is not lost", "interrupt TRNG: 0 0000");
    row("another direction", "ports: not there: output UART0RXD; not told: input UART0RXD");
    row("a port left out", "not told: output UART0TXD");
    row("a black box left out", "black boxes: not there: ; not told: trng_core");
    row("another black box", "black boxes: not there: trng; not told: trng_core");
    row("another alias", "processor: 0, not 1");
    row("another byte order", "processor: 0, not 1");
    row("a memory of twice the size", "processor: 3, not 4");
}

// Maps that are wrong in one point do not pass.
void tst_SystemInRtl::mistakesAreFound()
{
    QFETCH(QString, what);
    QFETCH(QString, wrong);
    const OptionMap options = {
        {Key::enableUart0, true},
        {Key::enableTrng, true},
        {Key::itcmSize, 2},
        {Key::dtcmSize, 2},
        {Key::numberOfInterrupts, QStringLiteral("16")},
        {Key::extensionPortKey(Key::enableApbMaster, 3), true},
    };
    SystemMap map = systemMap(options, m_devices.first(), m_description);
    const auto region = [&map](const char *name) {
        const auto found =
            std::find_if(map.regions.begin(), map.regions.end(),
                         [name](const Region &r) { return r.name == QLatin1String(name); });
        Q_ASSERT(found != map.regions.end());
        return found;
    };
    const auto interrupt = [&map](const char *name) {
        const auto found =
            std::find_if(map.interrupts.begin(), map.interrupts.end(),
                         [name](const InterruptLine &l) { return l.name == QLatin1String(name); });
        Q_ASSERT(found != map.interrupts.end());
        return found;
    };
    const auto port = [&map](const char *name) {
        const auto found = std::find_if(map.ports.begin(), map.ports.end(), [name](const Port &p) {
            return p.name == QLatin1String(name);
        });
        Q_ASSERT(found != map.ports.end());
        return found;
    };
    const QMap<QString, std::function<void()>> mistakes = {
        {QStringLiteral("nothing"), [] {}},
        {QStringLiteral("a region too long"), [&] { region("APB3")->last += 0x1000; }},
        {QStringLiteral("a region too short"), [&] { region("APB3")->last -= 0x1000; }},
        {QStringLiteral("a region left out"), [&] { map.regions.erase(region("UART0")); }},
        {QStringLiteral("a register elsewhere"),
         [&] { map.peripherals[0].registers.last().offset -= 4; }},
        {QStringLiteral("another interrupt"), [&] { interrupt("UART0")->number = 1; }},
        {QStringLiteral("an interrupt that is not lost"), [&] { interrupt("TRNG")->lost.clear(); }},
        {QStringLiteral("another direction"),
         [&] { port("UART0RXD")->direction = PortDirection::Output; }},
        {QStringLiteral("a port left out"), [&] { map.ports.erase(port("UART0TXD")); }},
        {QStringLiteral("a black box left out"), [&] { map.blackBoxes.removeLast(); }},
        {QStringLiteral("another black box"),
         [&] { map.blackBoxes.last().module = QStringLiteral("trng"); }},
        {QStringLiteral("another alias"), [&] { map.processor.itcmAtUpperAlias = true; }},
        {QStringLiteral("another byte order"), [&] { map.processor.isBigEndian = true; }},
        {QStringLiteral("a memory of twice the size"), [&] { region("DTCM")->last += 0x1000; }},
    };
    QVERIFY(mistakes.contains(what));
    mistakes.value(what)();
    const QString told = wrongAbout(map);
    QCOMPARE(told.isEmpty(), wrong.isEmpty());
    QVERIFY2(told.contains(wrong), qPrintable(told));
}

int main(int argc, char *argv[])
{
    TestSupport::useUtf8();
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    const unsigned seed = arguments.value(1).toUInt();
    const int draws = arguments.value(2).toInt();
    if (seed == 0 || draws <= 0) {
        std::fprintf(stderr, "usage: tst_systeminrtl SEED DRAWS\n");
        return 2;
    }
    arguments.erase(arguments.begin() + 1, arguments.begin() + 3);
    tst_SystemInRtl test(seed, draws);
    return QTest::qExec(&test, arguments);
}

#include "tst_systeminrtl.moc"
