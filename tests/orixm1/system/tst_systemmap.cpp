// What the system map says of configurations, as values.

#include "testsupport.h"

#include <config/blocks.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <config/pintables.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <system/systemmap.h>

#include <QRegularExpression>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// The words between bars.
QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u'|', Qt::SkipEmptyParts);
}

QString fileOf(const QString &path)
{
    return QString::fromUtf8(TestSupport::contentsOf(path));
}

// What each match of `pattern` captures, line by line.
QVector<QStringList> matchesOf(const QString &pattern, const QString &text)
{
    const QRegularExpression rule(pattern, QRegularExpression::MultilineOption);
    QVector<QStringList> matches;
    for (auto it = rule.globalMatch(text); it.hasNext();)
        matches.append(it.next().capturedTexts());
    return matches;
}

using Range = QPair<quint32, quint32>; // first and last address

// Addresses that a block of the RTL decodes, with the names that the RTL has for them.
QMap<QString, Range> rangesOf(const QVector<Region> &regions)
{
    QMap<QString, Range> ranges;
    const auto add = [&ranges](const QString &name, const Region &region) {
        if (!ranges.contains(name))
            ranges.insert(name, {region.base, region.last});
        ranges[name].second = region.last;
    };
    for (const Region &region : regions) {
        if (region.name.startsWith(QLatin1String("SPIFLASH")))
            add(QStringLiteral("SPIFLASH"), region);
        else if (region.kind == RegionKind::ExtensionPort && region.bus == QLatin1String("APB"))
            add(QStringLiteral("APBEXT"), region);
        else if (region.bus == QLatin1String("AHB"))
            add(region.name, region);
    }
    return ranges;
}

} // namespace

class tst_SystemMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void regionsOfConfigurations_data();
    void regionsOfConfigurations();
    void memoriesHaveTheSizeOfTheConfiguration_data();
    void memoriesHaveTheSizeOfTheConfiguration();
    void everythingOnIsTheMapOfTheGuide();
    void regionsNeverOverlap();
    void interruptsAreThoseOfTheGuide();
    void interruptsBeyondTheInputsAreLost();
    void processorFollowsTheOptions();
    void findsTheRegionOfAnAddress();
    void tellsWhatIsRefused();
    void theAliasIsTheGeneratedOne();
    void everyPinIsAPortWithAMeaning();
    void portsStandInTheOrderOfTheTop();
    void notesOfTheTopAreThePortsTraits();
    void clocksAndResetsOfConfigurations_data();
    void clocksAndResetsOfConfigurations();
    void blackBoxesOfConfigurations_data();
    void blackBoxesOfConfigurations();
    void definesOfTheRtlAreTheMap();
    void commentsOfTheRtlAreTheMap();
    void theGuideNamesThePorts();

private:
    SystemMap map(const OptionMap &options,
                  const QString &device = QStringLiteral("TV2KR-18C")) const
    {
        DEV::ChipFilter filter;
        filter.device = device;
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().filterDevice(filter);
        return systemMap(options, devices.value(0), m_description);
    }
    OptionMap everything() const
    {
        OptionMap options;
        for (const Option &option : optionTable()) {
            if (option.isOption && option.type == OptionType::Bool)
                options.insert(option.key, true);
        }
        return options;
    }

    OptionMap with(OptionMap options, std::initializer_list<QLatin1String> keys, bool on) const
    {
        for (const QLatin1String key : keys)
            options.insert(key, on);
        return options;
    }
    // Configurations that have every port between them.
    QVector<SystemMap> maps() const
    {
        QVector<SystemMap> list;
        const QStringList interfaces = findOption(Key::ethernetInterface)->choices;
        for (const QString &interface : interfaces) {
            OptionMap options = with(
                everything(), {Key::internalInstructionMemory, Key::internalDataMemory}, false);
            options.insert(Key::ethernetInterface, interface);
            options.insert(Key::debugPortSelect, QString(Value::jtagAndSerialWire));
            list.append(map(options, QStringLiteral("TV5KT-138B")));
            list.append(map(with(options, {Key::enableGpioIo, Key::enableI2cIo}, false)));
        }
        return list;
    }
    QString rtl(const char *file) const
    {
        return fileOf(QStringLiteral(TARVO_IP_DATA_DIR "/data/debug/") + QLatin1String(file));
    }
    QVector<Region> everyRegion() const
    {
        return map(with(everything(), {Key::internalInstructionMemory, Key::internalDataMemory},
                        false))
            .regions;
    }

    SystemDescription m_description;
};

void tst_SystemMap::initTestCase()
{
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    auto description = readSystemDescription(data);
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
    QVERIFY(!m_description.peripherals.isEmpty());
}

void tst_SystemMap::regionsOfConfigurations_data()
{
    QTest::addColumn<QStringList>("on");
    QTest::addColumn<QStringList>("off");
    QTest::addColumn<QStringList>("regions");
    const QStringList both = words("ITCM|DTCM");
    QTest::newRow("nothing said: the internal memories") << QStringList() << QStringList() << both;
    QTest::newRow("external memories in place of internal ones")
        << words("External_Instruction_Memory|External_Data_Memory")
        << words("Internal_Instruction_Memory|Internal_Data_Memory") << words("EXTFLASH|EXTSRAM");
    QTest::newRow("the internal memory wins over the external one")
        << words("External_Instruction_Memory|Internal_Instruction_Memory|External_Data_Memory|"
                 "Internal_Data_Memory")
        << QStringList() << both;
    QTest::newRow("no memory at all")
        << QStringList() << words("Internal_Instruction_Memory|Internal_Data_Memory")
        << QStringList();
    QTest::newRow("one instance of two") << words("Enable UART1|Enable Timer0") << QStringList()
                                         << words("ITCM|DTCM|TIMER0|UART1|SYS");
    QTest::newRow("the flash has registers and a window")
        << words("Enable SPI-Flash") << QStringList()
        << words("ITCM|DTCM|SPIFLASH_WINDOW|SPIFLASH");
    QTest::newRow("ports") << words("Enable_AHB_Master3|Enable_APB_Master16") << QStringList()
                           << words("ITCM|DTCM|APB16|AHB3");
}

void tst_SystemMap::regionsOfConfigurations()
{
    QFETCH(QStringList, on);
    QFETCH(QStringList, off);
    QFETCH(QStringList, regions);
    OptionMap options;
    for (const QString &key : qAsConst(on))
        options.insert(key, true);
    for (const QString &key : qAsConst(off))
        options.insert(key, false);
    QStringList names;
    const QVector<Region> list = map(options).regions;
    for (const Region &region : list)
        names.append(region.name);
    QCOMPARE(names, regions);
}

void tst_SystemMap::memoriesHaveTheSizeOfTheConfiguration_data()
{
    QTest::addColumn<QVariant>("index");
    QTest::addColumn<QString>("device");
    QTest::addColumn<quint64>("bytes");
    QTest::newRow("smallest") << QVariant(0) << "TV2KR-18C" << quint64(1024);
    QTest::newRow("largest") << QVariant(9) << "TV2KR-18C" << quint64(524288);
    QTest::newRow("beyond the largest: what generation makes of it")
        << QVariant(10) << "TV2KR-18C" << quint64(32768);
    QTest::newRow("below the smallest") << QVariant(-1) << "TV2KR-18C" << quint64(32768);
    QTest::newRow("text, as in a file")
        << QVariant(QStringLiteral("3")) << "TV2KR-18C" << quint64(8192);
    QTest::newRow("the device's default") << QVariant() << "TV2KR-18C" << quint64(32768);
    QTest::newRow("another device's default") << QVariant() << "TV5KT-138B" << quint64(131072);
}

void tst_SystemMap::memoriesHaveTheSizeOfTheConfiguration()
{
    QFETCH(QVariant, index);
    QFETCH(QString, device);
    QFETCH(quint64, bytes);
    for (const auto &[key, name, base] :
         {std::make_tuple(Key::itcmSize, QStringLiteral("ITCM"), 0u),
          std::make_tuple(Key::dtcmSize, QStringLiteral("DTCM"), 0x20000000u)}) {
        OptionMap options;
        if (index.isValid())
            options.insert(key, index);
        const SystemMap made = map(options, device);
        const Region *region = findRegion(made, name);
        QVERIFY(region);
        QCOMPARE(region->base, base);
        QCOMPARE(region->size(), bytes);
    }
}

// The guide has a row for each region but the memories and the peripherals on the internal APB.
void tst_SystemMap::everythingOnIsTheMapOfTheGuide()
{
    OptionMap options = everything();
    const SystemMap internal = map(options);
    options.insert(Key::internalInstructionMemory, false);
    options.insert(Key::internalDataMemory, false);
    const SystemMap external = map(options);

    const QString guide = QString::fromUtf8(
        TestSupport::contentsOf(QStringLiteral(DOCS_DIR) + QStringLiteral("/user-guide.md")));
    static const QRegularExpression row(
        QStringLiteral("^\\| 0x([0-9A-F]{8}) \\| 0x([0-9A-F]{8}) \\| ([^|]*) \\|"),
        QRegularExpression::MultilineOption);
    int rows = 0;
    for (auto it = row.globalMatch(guide); it.hasNext(); ++rows) {
        const QRegularExpressionMatch match = it.next();
        const quint32 base = match.captured(1).toUInt(nullptr, 16);
        const quint32 last = match.captured(2).toUInt(nullptr, 16);
        if (base == 0x50000000)
            continue;
        const Region *region = regionAt(external, base);
        QVERIFY2(region, qPrintable(match.captured(0)));
        QCOMPARE(region->base, base);
        QCOMPARE(region->last, last);
    }
    QCOMPARE(rows,
             int(std::count_if(external.regions.begin(), external.regions.end(),
                               [](const Region &region) { return region.base >> 24 != 0x50; })) +
                 1);
    // 4 KB for each peripheral of the internal APB.
    for (const Region &region : internal.regions) {
        if (region.base >> 24 == 0x50)
            QCOMPARE(region.size(), quint64(0x1000));
    }
}

void tst_SystemMap::regionsNeverOverlap()
{
    const SystemMap made = map(everything(), QStringLiteral("TV5KT-138B"));
    QVERIFY(made.regions.size() > 35);
    for (int i = 1; i < made.regions.size(); ++i)
        QVERIFY2(made.regions.at(i - 1).last < made.regions.at(i).base,
                 qPrintable(made.regions.at(i).name));
    QSet<QString> names;
    for (const Region &region : made.regions) {
        QVERIFY2(!names.contains(region.name), qPrintable(region.name));
        names.insert(region.name);
        QVERIFY(
            QRegularExpression(QStringLiteral("^[A-Z][A-Z0-9_]*$")).match(region.name).hasMatch());
        QVERIFY(isSwitch(region.option));
        QCOMPARE(region.base % 4, 0u);
        QCOMPARE(region.last % 4, 3u);
    }
}

void tst_SystemMap::interruptsAreThoseOfTheGuide()
{
    const SystemMap made = map(everything());
    QStringList lines;
    for (const InterruptLine &line : made.interrupts) {
        QCOMPARE(line.lost, QString());
        lines.append(QStringLiteral("%1 %2").arg(line.number).arg(line.name));
    }
    const QStringList expected = words(
        "-1 WDOG|0 UART0|1 UART1|2 TIMER0|3 TIMER1|4 GPIO|5 DTIMER|6 I2C|7 RTC|"
        "8 SPI|9 CAN|10 ETH|11 SD|12 EXTINT0|13 EXTINT1|14 EXTINT2|15 EXTINT3|16 TRNG|17 SYS");
    QCOMPARE(lines, expected);
    QVERIFY(map({}).interrupts.isEmpty());
}

void tst_SystemMap::interruptsBeyondTheInputsAreLost()
{
    for (const int inputs : {1, 8, 16, 32}) {
        OptionMap options = everything();
        options.insert(Key::numberOfInterrupts, inputs);
        const SystemMap made = map(options);
        QCOMPARE(made.processor.interruptInputs, inputs);
        for (const InterruptLine &line : made.interrupts)
            QCOMPARE(line.lost.isEmpty(), line.number < inputs);
    }
}

void tst_SystemMap::processorFollowsTheOptions()
{
    const Processor usual = map({}).processor;
    QCOMPARE(usual.interruptInputs, 32);
    QVERIFY(usual.hasOsExtension && !usual.hasSmallMultiplier && !usual.isBigEndian);
    QVERIFY(usual.hasDebug && usual.hasJtag && usual.hasSerialWire && !usual.hasSmallDebug);

    const Processor other = map({{Key::numberOfInterrupts, QStringLiteral("8")},
                                 {Key::osExtension, QStringLiteral("false")},
                                 {Key::smallMultiplier, true},
                                 {Key::bigEndian, true},
                                 {Key::debugPortSelect, QString(Value::serialWire)},
                                 {Key::smallDebug, true}})
                                .processor;
    QCOMPARE(other.interruptInputs, 8);
    QVERIFY(!other.hasOsExtension && other.hasSmallMultiplier && other.isBigEndian);
    QVERIFY(other.hasDebug && !other.hasJtag && other.hasSerialWire && other.hasSmallDebug);

    const Processor quiet = map({{Key::enableDebug, false}, {Key::smallDebug, true}}).processor;
    QVERIFY(!quiet.hasDebug && !quiet.hasJtag && !quiet.hasSerialWire && !quiet.hasSmallDebug);
}

void tst_SystemMap::findsTheRegionOfAnAddress()
{
    const SystemMap made = map(everything());
    const auto nameAt = [&made](quint32 address) {
        const Region *region = regionAt(made, address);
        return region ? region->name : QString();
    };
    QCOMPARE(nameAt(0x00000000), QStringLiteral("ITCM"));
    QCOMPARE(nameAt(0x0FFFFFFF), QString());
    QCOMPARE(nameAt(0x50004FFF), QStringLiteral("UART0"));
    QCOMPARE(nameAt(0x50005000), QStringLiteral("UART1"));
    QCOMPARE(nameAt(0x60FFFFFF), QStringLiteral("APB16"));
    QCOMPARE(nameAt(0x61000000), QString());
    QCOMPARE(nameAt(0xBFFFFFFF), QStringLiteral("DDR3"));
    QCOMPARE(nameAt(0xFFFFFFFF), QString());
    QVERIFY(!findRegion(made, QStringLiteral("uart0")));
}

void tst_SystemMap::tellsWhatIsRefused()
{
    const SystemMap made = map({{Key::enableSpiFlash, true}, {Key::enableUart0, true}});
    const auto refused = [&made](quint32 address) {
        return QStringList{
            isRefused(made, address, BusAccess::Read) ? QStringLiteral("r") : QStringLiteral("-"),
            isRefused(made, address, BusAccess::Write) ? QStringLiteral("w") : QStringLiteral("-")}
            .join(QString());
    };
    QCOMPARE(refused(0x00000000), QStringLiteral("--"));
    QCOMPARE(refused(0x10000000), QStringLiteral("rw"));
    QCOMPARE(refused(0x50004FFC), QStringLiteral("--"));
    QCOMPARE(refused(0x50005000), QStringLiteral("rw"));
    QCOMPARE(refused(0x68000000), QStringLiteral("-w"));
    QCOMPARE(refused(0x68FFFFFC), QStringLiteral("-w"));
    QCOMPARE(refused(0x69000000), QStringLiteral("--"));
    QCOMPARE(refused(0xDFFFFFFC), QStringLiteral("rw"));
    QCOMPARE(refused(0xE0000000), QStringLiteral("--")); // the processor's own
    QCOMPARE(refused(0xE00FFFFC), QStringLiteral("--"));
    QCOMPARE(refused(0xE0100000), QStringLiteral("rw"));
    QCOMPARE(refused(0xFFFFFFFC), QStringLiteral("rw"));
}

void tst_SystemMap::theAliasIsTheGeneratedOne()
{
    const OptionMap external = {{Key::internalInstructionMemory, false},
                                {Key::externalInstructionMemory, true}};
    for (const OptionMap &options :
         {OptionMap(), external, OptionMap{{Key::internalInstructionMemory, false}}}) {
        const SystemMap made = map(options);
        const QVector<IncludeFile> files = buildIncludeFiles(options, made.device);
        const QString lines = files.first().lines.join(u'\n');
        QCOMPARE(lines.contains(QLatin1String("`define CM1_ITCM_LA_EN 1")),
                 made.processor.itcmAtLowerAlias);
        QCOMPARE(lines.contains(QLatin1String("`define CM1_ITCM_UA_EN 1")),
                 made.processor.itcmAtUpperAlias);
        QCOMPARE(made.processor.itcmAtLowerAlias,
                 findRegion(made, QStringLiteral("ITCM")) != nullptr);
    }
}

void tst_SystemMap::everyPinIsAPortWithAMeaning()
{
    QSet<QString> seen;
    const QVector<SystemMap> list = maps();
    for (const SystemMap &made : list) {
        QSet<QString> names;
        for (const Port &port : made.ports) {
            QVERIFY2(!names.contains(port.name), qPrintable(port.name));
            names.insert(port.name);
        }
        for (const Port &port : made.ports) {
            const QByteArray name = port.name.toUtf8();
            QVERIFY2(!port.text.isEmpty() && !port.block.isEmpty(), name.constData());
            QVERIFY2(port.clock.isEmpty() ||
                         (names.contains(port.clock) && port.clock != port.name),
                     name.constData());
            QCOMPARE(port.bus.isEmpty(), port.signal.isEmpty());
            QVERIFY2(port.bus.isEmpty() || findRegion(made, port.bus), name.constData());
            QVERIFY2(port.role != PortRole::BusSignal || !port.bus.isEmpty(), name.constData());
            QVERIFY2(port.name == port.name.trimmed() && !port.name.contains(u'['),
                     name.constData());
            // A pull-up is for what is not driven by us.
            QVERIFY2(!port.needsPullUp || port.direction != PortDirection::Output,
                     name.constData());
        }
        seen += names;
        // A bus that is led out has a clock and a reset, and each of its signals once.
        QMap<QString, QStringList> buses;
        for (const Port &port : made.ports) {
            if (!port.bus.isEmpty())
                buses[port.bus].append(port.signal);
        }
        QCOMPARE(buses.size(), 2 + Key::ahbMasterCount + Key::apbMasterCount);
        for (auto it = buses.begin(); it != buses.end(); ++it) {
            it->sort();
            const bool isApb = it.key().startsWith(QLatin1String("APB"));
            QCOMPARE(it->join(u' '),
                     isApb ? QStringLiteral("PADDR PCLK PENABLE PPROT PRDATA PREADY PRESETn PSEL "
                                            "PSLVERR PSTRB PWDATA PWRITE")
                           : QStringLiteral("HADDR HBURST HCLK HMASTER HMASTLOCK HPROT HRDATA "
                                            "HREADY HREADYOUT HRESETn HRESP HSEL HSIZE HTRANS "
                                            "HWDATA HWRITE"));
        }
    }
    for (const Block &block : blocks()) {
        for (const PinGroup &group : block.pins) {
            for (const PinRow &row : group.rows) {
                const QString name =
                    (group.number < 0 ? QString() : group.prefix + QString::number(group.number)) +
                    QString(row.name).section(u'[', 0, 0);
                QVERIFY2(seen.contains(name), qPrintable(name));
            }
        }
    }
    QCOMPARE(seen.size(),
             rtl("tarvo_orix_m1_top.v")
                     .section(QStringLiteral("\n);"), 0, 0)
                     .count(QRegularExpression(QStringLiteral("(input|output|inout) +wire"))) -
                 1); // GTX_CLK stands twice
}

void tst_SystemMap::portsStandInTheOrderOfTheTop()
{
    const QString header = rtl("tarvo_orix_m1_top.v").section(QStringLiteral("\n);"), 0, 0);
    QStringList order;
    for (const QStringList &match : matchesOf(
             QStringLiteral("(input|output|inout) +wire +(?:\\[[^\\]]*\\] +)?(\\w+)"), header))
        order.append(match.at(2));
    const QVector<SystemMap> list = maps();
    for (const SystemMap &made : list) {
        int last = -1;
        for (const Port &port : made.ports) {
            const int place = order.indexOf(port.name, last + 1);
            QVERIFY2(place > last, qPrintable(port.name));
            last = place;
        }
    }
}

// Polarity, pull-ups and idle pins: what the top says of its ports, and of the pins that everybody
// knows by their names.
void tst_SystemMap::notesOfTheTopAreThePortsTraits()
{
    const QString top = rtl("tarvo_orix_m1_top.v");
    QMap<QString, QString> notes;
    for (const QStringList &match : matchesOf(
             QStringLiteral("\\(\\* note = \"([^\"]*)\" \\*\\)\\s+(?:input|output|inout) +wire +"
                            "(?:\\[[^\\]]*\\] +)?(\\w+)"),
             top))
        notes.insert(match.at(2), match.at(1));
    QVERIFY(notes.size() > 60);
    QSet<QString> low;
    for (const QStringList &match :
         matchesOf(QStringLiteral("assign (JTAG_\\d+) += 1'b[0z];"), top))
        low.insert(match.at(1));
    QCOMPARE(low.size(), 10);
    const QStringList lowByName =
        words("FLASH_SPI_HOLDN|FLASH_SPI_CSN|FLASH_SPI_WPN|O_psram_reset_n|O_psram_cs_n|DDR_RSTN_I|"
              "DDR_CS_N_O|DDR_RAS_N_O|DDR_CAS_N_O|DDR_WE_N_O|DDR_RESET_N_O|NSS|SD_CS|SD_CHECKIN");
    const QStringList unused = words("driven low|not connected");
    const QVector<SystemMap> list = maps();
    for (const SystemMap &made : list) {
        for (const Port &port : made.ports) {
            const QByteArray name = port.name.toUtf8();
            const QString note = notes.value(port.name);
            QVERIFY2(port.isActiveLow == (note.contains(QLatin1String("active low")) ||
                                          lowByName.contains(port.name)),
                     name.constData());
            QVERIFY2(port.needsPullUp == note.contains(QLatin1String("pull it up")),
                     name.constData());
            const bool isUnused = port.role == PortRole::Unused;
            QVERIFY2(isUnused == unused.contains(note), name.constData());
            QVERIFY2(isUnused == low.contains(port.name), name.constData());
            QVERIFY2(!isUnused || port.text == note, name.constData());
            QVERIFY2((port.role == PortRole::Debug) ==
                         (port.name.startsWith(QLatin1String("JTAG_")) && !isUnused),
                     name.constData());
            if (note.contains(QLatin1String(" of the port")) && port.role == PortRole::BusSignal)
                QVERIFY2(note.startsWith(port.signal), name.constData());
            QVERIFY2(!note.startsWith(QLatin1String("reset of the port")) ||
                         port.role == PortRole::Reset,
                     name.constData());
        }
    }
    // What the names of the inverted selects mean, in the modules that drive them.
    QVERIFY(rtl("apb_spi.v").contains(QLatin1String("nss     = ~((select[0]")));
    QVERIFY(rtl("apb_sdcard.v").contains(QLatin1String("sd_cs        = ~(ctrl[0] | hold)")));
}

void tst_SystemMap::clocksAndResetsOfConfigurations_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QString>("clocks");
    QTest::addColumn<QString>("resets");
    const auto row = [](const char *name, const OptionMap &options, const char *clocks,
                        const char *resets) {
        QTest::newRow(name) << options << QString::fromLatin1(clocks)
                            << QString::fromLatin1(resets);
    };
    const OptionMap quiet = {{Key::enableDebug, false}};
    const auto more = [quiet](QLatin1String key, const QString &interface = QString()) {
        OptionMap options = quiet;
        options.insert(key, true);
        if (!interface.isEmpty())
            options.insert(Key::ethernetInterface, interface);
        return options;
    };
    row("no debug", quiet, "HCLK", "!hwRstn");
    row("JTAG", {{Key::debugPortSelect, QString(Value::jtag)}}, "HCLK JTAG_9",
        "!hwRstn !JTAG_3 !JTAG_15");
    row("Serial Wire", {{Key::debugPortSelect, QString(Value::serialWire)}}, "HCLK JTAG_9",
        "!hwRstn");
    row("a clock that is sampled", more(Key::enableRtc), "HCLK RTCSRCCLK", "!hwRstn");
    row("the card's", more(Key::enableSdCard), "HCLK SD_SPICLK", "!hwRstn");
    row("PSRAM", more(Key::enablePsram), "HCLK psram_ref_clk psram_memory_clk", "!hwRstn");
    row("DDR3", more(Key::enableDdr3), "HCLK DDR_CLK_I DDR_MEM_CLK_I", "!hwRstn !DDR_RSTN_I");
    row("RGMII", more(Key::enableEthernet, Value::rgmii), "HCLK RGMII_RXC GTX_CLK", "!hwRstn");
    row("GMII", more(Key::enableEthernet, Value::gmii), "HCLK GMII_RX_CLK GTX_CLK", "!hwRstn");
    row("MII", more(Key::enableEthernet, Value::mii), "HCLK MII_RX_CLK MII_TX_CLK", "!hwRstn");
    row("ports bring none",
        {{Key::enableDebug, false}, {Key::extensionPortKey(Key::enableAhbMaster, 1), true}}, "HCLK",
        "!hwRstn");
}

void tst_SystemMap::clocksAndResetsOfConfigurations()
{
    QFETCH(OptionMap, options);
    const auto names = [](const QVector<ExternalSource> &sources) {
        QStringList list;
        for (const ExternalSource &source : sources)
            list.append((source.isActiveLow ? QStringLiteral("!") : QString()) + source.port);
        return list.join(u' ');
    };
    const SystemMap made = map(options);
    QTEST(names(made.clocks), "clocks");
    QTEST(names(made.resets), "resets");
    for (const Port &port : made.ports) {
        const bool comesIn = port.direction == PortDirection::Input;
        const auto isAmong = [&port](const QVector<ExternalSource> &sources) {
            return std::any_of(
                sources.begin(), sources.end(),
                [&port](const ExternalSource &source) { return source.port == port.name; });
        };
        if (comesIn && port.role == PortRole::Clock)
            QVERIFY2(isAmong(made.clocks), qPrintable(port.name));
        if (comesIn && port.role == PortRole::Reset)
            QVERIFY2(isAmong(made.resets), qPrintable(port.name));
    }
}

void tst_SystemMap::blackBoxesOfConfigurations_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("boxes");
    const auto row = [](const char *name, const char *device, const char *keys, const char *boxes) {
        QTest::newRow(name) << QString::fromLatin1(device) << words(keys)
                            << QString::fromLatin1(boxes);
    };
    row("nothing", "TV2KR-18C", "", "CortexM1Core");
    row("blocks with RTL", "TV2KR-18C", "Enable UART0|Enable SPI-Flash", "CortexM1Core");
    row("licensed blocks", "TV2KR-18C", "Enable CAN|Enable Ethernet|Enable TRNG|Enable PSRAM",
        "CortexM1Core can_core@CAN mac@ETH trng_core@TRNG PSRAM_Memory_Interface_Top@PSRAM");
    row("DDR3 of the small family", "TV2KR-18C", "Enable DDR3",
        "CortexM1Core DDR3_Controller_2K@DDR3");
    row("DDR3 of 25K", "TV5K-25A", "Enable DDR3", "CortexM1Core DDR3_Controller_25K@DDR3");
    row("DDR3 of 138K", "TV5KT-75B", "Enable DDR3", "CortexM1Core DDR3_Controller_138K@DDR3");
}

void tst_SystemMap::blackBoxesOfConfigurations()
{
    QFETCH(QString, device);
    QFETCH(QStringList, keys);
    OptionMap options;
    for (const QString &key : qAsConst(keys)) {
        QVERIFY2(findOption(key), qPrintable(key));
        options.insert(key, true);
    }
    QStringList boxes;
    const QVector<BlackBox> found = map(options, device).blackBoxes;
    for (const BlackBox &box : found) {
        QVERIFY(!box.text.isEmpty());
        boxes.append(box.region.isEmpty() ? box.module : QString(box.module + u'@' + box.region));
    }
    QTEST(boxes.join(u' '), "boxes");
}

void tst_SystemMap::definesOfTheRtlAreTheMap()
{
    const QString defines = rtl("define.vh");
    const QString decoder = rtl("ahb_decoder.v");
    // Region codes: the upper bits of an address.
    QMap<QString, Range> decoded;
    int slot = 0;
    for (const QStringList &match : matchesOf(
             QStringLiteral("^`define ORIX_REGION_(\\w+) +(\\d)'([hb])([0-9A-F]+)"), defines)) {
        const int bits = match.at(2).toInt();
        const quint32 base = match.at(4).toUInt(nullptr, match.at(3) == QLatin1String("h") ? 16 : 2)
                             << (32 - bits);
        decoded.insert(match.at(1), {base, base | (0xFFFFFFFFu >> bits)});
        const QString compared = bits == 8 ? QString() : QStringLiteral("[7:%1]").arg(8 - bits);
        QVERIFY2(decoder.contains(QRegularExpression(
                     QStringLiteral("hit\\[`ORIX_S_%1\\] += region%2 == `ORIX_REGION_%1;")
                         .arg(match.at(1), QRegularExpression::escape(compared)))),
                 qPrintable(match.at(0)));
        ++slot;
    }
    QCOMPARE(decoder.count(QLatin1String("assign hit[")), slot);
    QVERIFY(decoded.contains(QStringLiteral("APBINT")));
    const Range internal = decoded.take(QStringLiteral("APBINT"));
    QCOMPARE(decoded, rangesOf(everyRegion()));

    // Slots of the internal APB.
    QMap<QString, quint32> apbBases;
    for (const QStringList &match :
         matchesOf(QStringLiteral("^`define ORIX_P_(\\w+) +(\\d+)$"), defines))
        apbBases.insert(match.at(1), internal.first + match.at(2).toUInt() * 0x1000);
    QMap<QString, quint32> bases;
    for (const Region &region : everyRegion()) {
        if (region.base >= internal.first && region.last <= internal.second) {
            bases.insert(region.name, region.base);
            QCOMPARE(region.size(), quint64(0x1000));
        }
    }
    QCOMPARE(apbBases, bases);

    QMap<QString, int> numbers;
    for (const QStringList &match :
         matchesOf(QStringLiteral("^`define ORIX_IRQ_(\\w+) +(\\d+)$"), defines))
        numbers.insert(match.at(1), match.at(2).toInt());
    QMap<QString, int> lines;
    const SystemMap all = map(everything());
    for (const InterruptLine &line : all.interrupts) {
        if (line.number != InterruptLine::nonMaskable && !lines.contains(line.source))
            lines.insert(line.source, line.number);
    }
    QCOMPARE(lines, numbers);
}

// The head of define.vh, which people read.
void tst_SystemMap::commentsOfTheRtlAreTheMap()
{
    const QString defines = rtl("define.vh");
    const QMap<QString, Range> ranges = rangesOf(everyRegion());
    QVector<Range> told;
    for (const QStringList &match :
         matchesOf(QStringLiteral("^//   0x([0-9A-F]{8}) - 0x([0-9A-F]{8}) +(\\d+) MB +(.*)$"),
                   defines)) {
        const Range range = {match.at(1).toUInt(nullptr, 16), match.at(2).toUInt(nullptr, 16)};
        QCOMPARE(quint64(range.second) - range.first + 1, match.at(3).toULongLong() << 20);
        if (range.first != 0x50000000)
            told.append(range);
    }
    QVector<Range> expected;
    for (const Range &range : ranges)
        expected.append(range);
    std::sort(expected.begin(), expected.end());
    QCOMPARE(told, expected);

    const SystemMap all = map(everything());
    const auto interruptOf = [&all](const QString &source) {
        QStringList numbers;
        for (const InterruptLine &line : all.interrupts) {
            if (line.source == source)
                numbers.append(line.number < 0 ? QStringLiteral("NMI")
                                               : QString::number(line.number));
        }
        return numbers;
    };
    int rows = 0;
    for (const QStringList &match :
         matchesOf(QStringLiteral("^//   (\\w+) +0x([0-9A-F]{8}) +(\\w+)$"), defines)) {
        const Region *region = findRegion(all, match.at(1));
        QVERIFY2(region, qPrintable(match.at(0)));
        QCOMPARE(region->base, match.at(2).toUInt(nullptr, 16));
        QCOMPARE(interruptOf(region->name), QStringList(match.at(3)));
        ++rows;
    }
    QCOMPARE(rows,
             int(std::count_if(all.regions.begin(), all.regions.end(),
                               [](const Region &region) { return region.base >> 24 == 0x50; })));
    QCOMPARE(
        QStringLiteral("//   Other interrupts: GPIO %1, CAN %2, Ethernet %3, EXTINT[3:0] %4 to %5.")
            .arg(interruptOf(QStringLiteral("GPIO")).join(u' '),
                 interruptOf(QStringLiteral("CAN")).join(u' '),
                 interruptOf(QStringLiteral("ETH")).join(u' '),
                 interruptOf(QStringLiteral("EXTINT")).last(),
                 interruptOf(QStringLiteral("EXTINT")).first()),
        matchesOf(QStringLiteral("^//   Other interrupts.*$"), defines).value(0).value(0));
}

void tst_SystemMap::theGuideNamesThePorts()
{
    const QString guide = fileOf(QStringLiteral(DOCS_DIR "/user-guide.md"));
    QMap<quint32, QString> told;
    for (const QStringList &match : matchesOf(
             QStringLiteral("^\\| 0x([0-9A-F]{8}) \\| 0x[0-9A-F]{8} \\| [^|]* \\| `(\\w+)…` \\|$"),
             guide))
        told.insert(match.at(1).toUInt(nullptr, 16), match.at(2));
    int checked = 0;
    for (const Region &region : everyRegion()) {
        if (region.ports.isEmpty())
            continue;
        QCOMPARE(told.value(region.base), region.ports);
        ++checked;
    }
    QCOMPARE(checked, 2 + 3 + Key::ahbMasterCount + Key::apbMasterCount);
    const SystemMap all = map(everything());
    QStringList expected;
    for (const InterruptLine &line : all.interrupts) {
        if (line.source != QLatin1String("EXTINT"))
            expected.append(line.number < 0
                                ? QStringLiteral("NMI %1").arg(line.source)
                                : QStringLiteral("%1 %2").arg(line.number).arg(line.source));
    }
    expected.append(expected.takeFirst());
    QStringList interrupts;
    for (const QStringList &match :
         matchesOf(QStringLiteral("^\\| (NMI|\\d+) \\| (\\w+) \\|$"), guide))
        interrupts.append(match.at(1) + u' ' + match.at(2));
    QCOMPARE(interrupts, expected);
}

QTEST_GUILESS_MAIN(tst_SystemMap)

#include "tst_systemmap.moc"
