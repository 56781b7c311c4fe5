// What the system map says of configurations, as values.

#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <system/systemmap.h>

#include <QRegularExpression>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// The words between bars.
QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u'|');
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
    QTest::newRow("one instance of two")
        << words("Enable UART1|Enable Timer0") << QStringList() << words("ITCM|DTCM|TIMER0|UART1");
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
        QVERIFY(findOption(region.option));
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
    const QStringList expected =
        words("-1 WDOG|0 UART0|1 UART1|2 TIMER0|3 TIMER1|4 GPIO|5 DTIMER|6 I2C|7 RTC|"
              "8 SPI|9 CAN|10 ETH|11 SD|12 EXTINT0|13 EXTINT1|14 EXTINT2|15 EXTINT3|16 TRNG");
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

QTEST_GUILESS_MAIN(tst_SystemMap)

#include "tst_systemmap.moc"
