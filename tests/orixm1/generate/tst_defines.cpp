#include "testsupport.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <rules/devicerules.h>

#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

DEV::DeviceArg deviceNamed(const char *name, const char *package = "")
{
    DEV::ChipFilter filter;
    filter.device = QString::fromLatin1(name);
    filter.package = QString::fromLatin1(package);
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

QStringList linesOf(QLatin1String file, const OptionMap &options, const DEV::DeviceArg &device)
{
    for (const IncludeFile &candidate : buildIncludeFiles(options, device)) {
        if (candidate.name == file)
            return candidate.lines;
    }
    return {QStringLiteral("no such file")};
}

QStringList texts(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *entry : list)
        result.append(QString::fromUtf8(entry));
    return result;
}

} // namespace

class tst_Defines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheFilesInTheirOrder();
    void anEmptyMapGivesTheDefaultSubsystem();
    void defaultSizeFollowsTheDevice_data();
    void defaultSizeFollowsTheDevice();
    void sizeCode_data();
    void sizeCode();
    void debugPort_data();
    void debugPort();
    void withoutDebugThereIsNoDebugLine();
    void memories_data();
    void memories();
    void initialisationPathIsCleanedAndUnescaped_data();
    void initialisationPathIsCleanedAndUnescaped();
    void interruptCountIsPrintedWhateverItIs();
    void stringsOfAnIniFileCountAsTheirValues();
    void gpioInterfaceNeedsGpio();
    void i2cInterfaceNeedsI2c();
    void canDepth_data();
    void canDepth();
    void ethernet_data();
    void ethernet();
    void familyParameter_data();
    void familyParameter();
    void extensionPorts();
    void internalApbBus_data();
    void internalApbBus();
    void ddr3Variant_data();
    void ddr3Variant();
    void ddr3OnTv2kNamesTheFamilyOnTheBus();
    void psramVariant_data();
    void psramVariant();
    void aNullDeviceIsGeneratedLikeAnUnknownOne();
};

void tst_Defines::writesTheFilesInTheirOrder()
{
    QStringList names;
    for (const IncludeFile &file : buildIncludeFiles({}, deviceNamed("TV2KR-18C")))
        names.append(file.name);
    QCOMPARE(names,
             texts({"cm1_option_defs.v", "psram_define.v", "DDR3_define.v", "ahb_option_defs.v",
                    "parameter.vh", "triple_speed_mac_define.v", "triple_speed_mac_param.v"}));
}

void tst_Defines::anEmptyMapGivesTheDefaultSubsystem()
{
    const DEV::DeviceArg device = deviceNamed("TV2KR-18C", "QFN88P");
    QCOMPARE(
        linesOf(IncludeFileName::core, {}, device),
        texts({"`define CM1_NUM_IRQ 32", "`define CM1_OS 1", "`define CM1_SMALL_MUL 0",
               "`define CM1_BE8 0", "`define CM1_JTAG 1", "`define CM1_SW 1",
               "`define CM1_SMALL_DEBUG 0", "`define CM1_ITCM_LA_EN 1", "`define CM1_ITCM_UA_EN 0",
               "`define CM1_ITCMSIZE 4'b0110", "`define CM1_DTCMSIZE 4'b0110"}));
    QCOMPARE(linesOf(IncludeFileName::bus, {}, device), texts({"`define DEBUG_PORT_JTAG"}));
    QCOMPARE(linesOf(IncludeFileName::param, {}, device), texts({"parameter CFIFO_DEPTH = 256;"}));
    QCOMPARE(linesOf(IncludeFileName::macDefine, {}, device),
             texts({"`ifndef MAC_DEFINE", "`define MAC_DEFINE", "`define RGMII_IF",
                    "`define module_name mac", "`endif"}));
    QCOMPARE(linesOf(IncludeFileName::macParam, {}, device),
             texts({"parameter RGMII_INPUT_DELAY_VALUE = 100;", "parameter MIIM_CLK_DIVIDER = 20;",
                    "parameter DEVICE = \"1L/2K_Series\";"}));
    QCOMPARE(linesOf(IncludeFileName::ddr3, {}, device),
             texts({"`define DDR3_PHY_MC", "`define EBR_BASED", "`define VIRLA_TV2K"}));
    QCOMPARE(linesOf(IncludeFileName::psram, {}, device),
             texts({"`define EBR_BASED", "`define module_name_psram PSRAM_Memory_Interface_Top",
                    "`define clock_reverse", "`define CK0_DIFF", "`define CK1_DIFF"}));
}

void tst_Defines::defaultSizeFollowsTheDevice_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("index");
    const auto rows = [](const char *devices, int index) {
        for (const QString &device : QString::fromLatin1(devices).split(u'/'))
            QTest::newRow(qPrintable(device)) << device << index;
    };
    rows("TV1KL-5A/TV1KL-5B", 3);
    rows("TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/TV2KL-9X/TV1KL-9A/TV2KL-18X", 4);
    rows("TV2K-18/TV2KR-18/TV2K-18C/TV2KR-18C/TV2KLR-18C", 5);
    rows("TV2K-55/TV2K-55C/TV2KL-55C/TV3K-50A", 6);
    rows("TV5K-25A/TV5KRT-15A/TV5KRT-15B/TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A/TV5KS-25A/"
         "TV5KR-25A",
         5);
    rows("TV5K-25B/TV5KS-25B/TV5KR-25B", 5);
    rows("TV5KT-60ES/TV5KT-60B/TV5K-60B", 6);
    rows("TV5KT-138/TV5KT-138B/TV5KT-75B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/TV5KT-138C/"
         "TV5KT-75C/"
         "TV5K-138B/TV5KS-138B",
         7);
    rows("TV3K-20A/TV3KR-20A/TV3K-10A", 5);
    QTest::newRow("other letter case") << QStringLiteral("tv2kr-18c") << 4;
    QTest::newRow("a whole list as a name") << QStringLiteral("TV1KL-5A/TV1KL-5B") << 4;
    QTest::newRow("no name") << QString() << 4;
}

void tst_Defines::defaultSizeFollowsTheDevice()
{
    QFETCH(QString, device);
    QFETCH(int, index);
    QCOMPARE(defaultTcmSizeIndex(device), index);
}

void tst_Defines::sizeCode_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("code");
    const QStringList codes =
        texts({"0001", "0010", "0011", "0100", "0101", "0110", "0111", "1000", "1001", "1010"});
    for (int i = 0; i < codes.size(); ++i)
        QTest::addRow("index %d", i) << i << codes.at(i);
    QTest::newRow("nothing selected") << -1 << QStringLiteral("0110");
    QTest::newRow("one too many") << 10 << QStringLiteral("0110");
    QTest::newRow("huge") << 2147483647 << QStringLiteral("0110");
}

void tst_Defines::sizeCode()
{
    QFETCH(int, index);
    QFETCH(QString, code);
    QCOMPARE(QString(tcmSizeCode(index)), code);
    const QStringList core =
        linesOf(IncludeFileName::core, {{Key::itcmSize, index}, {Key::dtcmSize, index}},
                deviceNamed("TV5KT-138"));
    QVERIFY(core.contains(QLatin1String("`define CM1_ITCMSIZE 4'b") + code));
    QVERIFY(core.contains(QLatin1String("`define CM1_DTCMSIZE 4'b") + code));
}

void tst_Defines::debugPort_data()
{
    QTest::addColumn<QVariant>("port");
    QTest::addColumn<QStringList>("core");
    QTest::addColumn<bool>("jtagOnTheBus");
    QTest::newRow("both") << QVariant(QStringLiteral("JTAG and Serial Wire"))
                          << texts({"`define CM1_JTAG 1", "`define CM1_SW 1"}) << true;
    QTest::newRow("JTAG") << QVariant(QStringLiteral("JTAG"))
                          << texts({"`define CM1_JTAG 1", "`define CM1_SW 0"}) << true;
    QTest::newRow("Serial Wire") << QVariant(QStringLiteral("Serial Wire"))
                                 << texts({"`define CM1_JTAG 0", "`define CM1_SW 1"}) << false;
    QTest::newRow("another text") << QVariant(QStringLiteral("jtag"))
                                  << texts({"`define CM1_JTAG 0", "`define CM1_SW 0"}) << false;
    QTest::newRow("present but invalid")
        << QVariant() << texts({"`define CM1_JTAG 0", "`define CM1_SW 0"}) << false;
}

void tst_Defines::debugPort()
{
    QFETCH(QVariant, port);
    QFETCH(QStringList, core);
    QFETCH(bool, jtagOnTheBus);
    const OptionMap options{{Key::debugPortSelect, port}, {Key::smallDebug, true}};
    const DEV::DeviceArg device = deviceNamed("TV2K-18");
    QCOMPARE(linesOf(IncludeFileName::core, options, device).mid(4, 3),
             core + texts({"`define CM1_SMALL_DEBUG 1"}));
    QCOMPARE(linesOf(IncludeFileName::bus, options, device)
                 .contains(QStringLiteral("`define DEBUG_PORT_JTAG")),
             jtagOnTheBus);
}

void tst_Defines::withoutDebugThereIsNoDebugLine()
{
    const OptionMap options{{Key::enableDebug, false}, {Key::smallDebug, true}};
    const DEV::DeviceArg device = deviceNamed("TV2K-18");
    QCOMPARE(linesOf(IncludeFileName::bus, options, device), QStringList());
    const QStringList core = linesOf(IncludeFileName::core, options, device);
    QCOMPARE(core.filter(QRegularExpression(QStringLiteral("JTAG|SW|DEBUG"))), QStringList());
    QCOMPARE(core.size(), 8);
}

void tst_Defines::memories_data()
{
    QTest::addColumn<bool>("internalInstruction");
    QTest::addColumn<bool>("externalInstruction");
    QTest::addColumn<bool>("internalData");
    QTest::addColumn<bool>("externalData");
    QTest::addColumn<QStringList>("core");
    QTest::addColumn<QStringList>("bus");
    const QStringList itcm = texts(
        {"`define CM1_ITCM_LA_EN 1", "`define CM1_ITCM_UA_EN 0", "`define CM1_ITCMSIZE 4'b0110"});
    const QStringList flash = texts(
        {"`define CM1_ITCM_LA_EN 0", "`define CM1_ITCM_UA_EN 0", "`define CM1_ITCMSIZE 4'b0000"});
    const QStringList dtcm = texts({"`define CM1_DTCMSIZE 4'b0110"});
    const QStringList sram = texts({"`define CM1_DTCMSIZE 4'b0000"});
    const QStringList flashBus = texts({"`define CM1_EXTERNAL_FLASH_EN"});
    const QStringList sramBus = texts({"`define CM1_EXTERNAL_SRAM_EN"});
    QTest::newRow("both internal")
        << true << false << true << false << itcm + dtcm << QStringList();
    QTest::newRow("internal wins over external")
        << true << true << true << true << itcm + dtcm << QStringList();
    QTest::newRow("both external")
        << false << true << false << true << flash + sram << flashBus + sramBus;
    QTest::newRow("no instruction memory")
        << false << false << true << false << dtcm << QStringList();
    QTest::newRow("no data memory") << true << false << false << false << itcm << QStringList();
    QTest::newRow("no memory") << false << false << false << false << QStringList()
                               << QStringList();
}

void tst_Defines::memories()
{
    QFETCH(bool, internalInstruction);
    QFETCH(bool, externalInstruction);
    QFETCH(bool, internalData);
    QFETCH(bool, externalData);
    QFETCH(QStringList, core);
    QFETCH(QStringList, bus);
    // An initialisation without an internal ITCM leaves no trace.
    const OptionMap options{{Key::internalInstructionMemory, internalInstruction},
                            {Key::externalInstructionMemory, externalInstruction},
                            {Key::internalDataMemory, internalData},
                            {Key::externalDataMemory, externalData},
                            {Key::initializeItcm, !internalInstruction},
                            {Key::enableDebug, false}};
    const DEV::DeviceArg device = deviceNamed("TV2K-18");
    QCOMPARE(linesOf(IncludeFileName::core, options, device).mid(4), core);
    QCOMPARE(linesOf(IncludeFileName::bus, options, device), bus);
}

void tst_Defines::initialisationPathIsCleanedAndUnescaped_data()
{
    QTest::addColumn<QVariant>("path");
    QTest::addColumn<QString>("line");
    QTest::newRow("double separator")
        << QVariant(QStringLiteral("/home/fw//init.hex"))
        << QStringLiteral("`define CM1_ITCM_INIT_PATH \"/home/fw/init.hex\"");
    QTest::newRow("absent") << QVariant() << QStringLiteral("`define CM1_ITCM_INIT_PATH \"\"");
    QTest::newRow("blank, quote, percent, umlaut")
        << QVariant(QString::fromUtf8("/a b/\"c\"/%1/\xc3\xb6/"))
        << QString::fromUtf8("`define CM1_ITCM_INIT_PATH \"/a b/\"c\"/%1/\xc3\xb6\"");
}

void tst_Defines::initialisationPathIsCleanedAndUnescaped()
{
    QFETCH(QVariant, path);
    QFETCH(QString, line);
    OptionMap options{{Key::initializeItcm, true},
                      {Key::itcmInitializationPath, QStringLiteral("unread")}};
    if (path.isValid())
        options.insert(Key::itcmInitializationAbsolutePath, path);
    const QStringList core = linesOf(IncludeFileName::core, options, deviceNamed("TV2K-18"));
    const int at = core.indexOf(QStringLiteral("`define CM1_ITCM_INIT_EN"));
    QCOMPARE(at, 10);
    QCOMPARE(core.value(at + 1), line);
}

void tst_Defines::interruptCountIsPrintedWhateverItIs()
{
    for (const int count : {1, 8, 16, 32, 0, -7, 1000})
        QCOMPARE(linesOf(IncludeFileName::core, {{Key::numberOfInterrupts, count}},
                         deviceNamed("TV2K-18"))
                     .first(),
                 QLatin1String("`define CM1_NUM_IRQ ") + QString::number(count));
}

void tst_Defines::stringsOfAnIniFileCountAsTheirValues()
{
    const OptionMap typed{{Key::numberOfInterrupts, 8}, {Key::osExtension, false},
                          {Key::enableRtc, true},       {Key::itcmSize, 2},
                          {Key::enableDebug, true},     {Key::enableGpio, false}};
    OptionMap stored;
    for (auto it = typed.cbegin(); it != typed.cend(); ++it)
        stored.insert(it.key(), it.value().toString());
    const DEV::DeviceArg device = deviceNamed("TV3K-50A");
    for (const QLatin1String file : {IncludeFileName::core, IncludeFileName::bus})
        QCOMPARE(linesOf(file, stored, device), linesOf(file, typed, device));
}

void tst_Defines::gpioInterfaceNeedsGpio()
{
    const DEV::DeviceArg device = deviceNamed("TV2K-18");
    OptionMap options{{Key::enableDebug, false}, {Key::enableGpioIo, true}};
    QCOMPARE(linesOf(IncludeFileName::bus, options, device), QStringList());
    options[Key::enableGpio] = true;
    // GPIO alone does not make the internal APB bus exist.
    QCOMPARE(linesOf(IncludeFileName::bus, options, device),
             texts({"`define TARVO_GPIO_SUPPORT", "`define GPIO_IOBUF_EN"}));
    options.remove(Key::enableGpioIo);
    QCOMPARE(linesOf(IncludeFileName::bus, options, device), texts({"`define TARVO_GPIO_SUPPORT"}));
}

void tst_Defines::i2cInterfaceNeedsI2c()
{
    const DEV::DeviceArg device = deviceNamed("TV2K-18");
    OptionMap options{{Key::enableDebug, false}, {Key::enableI2cIo, true}};
    QCOMPARE(linesOf(IncludeFileName::bus, options, device), QStringList());
    options[Key::enableI2c] = true;
    QCOMPARE(linesOf(IncludeFileName::bus, options, device),
             texts({"`define TARVO_I2C_SUPPORT", "`define I2C_IOBUF_EN",
                    "`define TARVO_APBINT_SUPPORT"}));
}

void tst_Defines::canDepth_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QString>("line");
    QTest::newRow("off") << OptionMap{{Key::canBufferDepth, QStringLiteral("64")}}
                         << QStringLiteral("parameter CFIFO_DEPTH = 256;");
    QTest::newRow("on") << OptionMap{{Key::enableCan, true},
                                     {Key::canBufferDepth, QStringLiteral("65536")}}
                        << QStringLiteral("parameter CFIFO_DEPTH = 65536;");
    QTest::newRow("on without a depth")
        << OptionMap{{Key::enableCan, true}} << QStringLiteral("parameter CFIFO_DEPTH = ;");
}

void tst_Defines::canDepth()
{
    QFETCH(OptionMap, options);
    QFETCH(QString, line);
    QCOMPARE(linesOf(IncludeFileName::param, options, deviceNamed("TV2K-18")), QStringList{line});
}

void tst_Defines::ethernet_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QStringList>("bus");
    QTest::addColumn<QStringList>("macros");
    QTest::addColumn<QStringList>("parameters");
    const QStringList support = texts({"`define TARVO_INTERNET_SUPPORT"});
    const auto with = [](const char *interface) {
        return OptionMap{{Key::enableEthernet, true},
                         {Key::ethernetInterface, QString::fromLatin1(interface)},
                         {Key::ethernetInputDelay, 42},
                         {Key::ethernetClockDivider, 7}};
    };
    const QStringList divider = texts({"parameter MIIM_CLK_DIVIDER = 7;"});
    QTest::newRow("RGMII") << with("RGMII") << support + texts({"`define RGMII_IF"})
                           << texts({"`define RGMII_IF", "`define module_name mac"})
                           << texts({"parameter RGMII_INPUT_DELAY_VALUE = 42;"}) + divider;
    QTest::newRow("GMII") << with("GMII") << support + texts({"`define GMII_IF"})
                          << texts({"`define GMII_IF", "`define module_name mac"}) << divider;
    QTest::newRow("MII") << with("MII") << support + texts({"`define MII_IF"})
                         << texts({"`define MII_IF", "`define module_name mac"}) << divider;
    QTest::newRow("GMII/MII") << with("GMII/MII")
                              << support + texts({"`define GMII_IF", "`define MII_IF"})
                              << texts({"`define GMII_IF", "`define MII_IF",
                                        "`define module_name mac"})
                              << divider;
    QTest::newRow("another interface") << with("rgmii") << support << QStringList() << divider;
    QTest::newRow("only switched on")
        << OptionMap{{Key::enableEthernet, true}} << support + texts({"`define RGMII_IF"})
        << texts({"`define RGMII_IF", "`define module_name mac"})
        << texts({"parameter RGMII_INPUT_DELAY_VALUE = 0;", "parameter MIIM_CLK_DIVIDER = 0;"});
    OptionMap off = with("MII");
    off[Key::enableEthernet] = false;
    QTest::newRow("switched off") << off << QStringList()
                                  << texts({"`define RGMII_IF", "`define module_name mac"})
                                  << texts({"parameter RGMII_INPUT_DELAY_VALUE = 100;",
                                            "parameter MIIM_CLK_DIVIDER = 20;"});
}

void tst_Defines::ethernet()
{
    QFETCH(OptionMap, options);
    QFETCH(QStringList, bus);
    QFETCH(QStringList, macros);
    QFETCH(QStringList, parameters);
    options[Key::enableDebug] = false;
    const DEV::DeviceArg device = deviceNamed("TV5KT-60B");
    QCOMPARE(linesOf(IncludeFileName::bus, options, device), bus);
    QCOMPARE(linesOf(IncludeFileName::macDefine, options, device),
             texts({"`ifndef MAC_DEFINE", "`define MAC_DEFINE"}) + macros + texts({"`endif"}));
    QCOMPARE(linesOf(IncludeFileName::macParam, options, device),
             parameters + texts({"parameter DEVICE = \"5K_Series\";"}));
}

void tst_Defines::familyParameter_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QString>("family");
    QTest::newRow("5K") << QByteArray("TV5KT-60B") << QStringLiteral("5K_Series");
    QTest::newRow("3K") << QByteArray("TV3KR-20A") << QStringLiteral("3K_Series");
    QTest::newRow("2K") << QByteArray("TV2K-18") << QStringLiteral("1L/2K_Series");
    QTest::newRow("1L") << QByteArray("TV1L-9") << QStringLiteral("1L/2K_Series");
}

void tst_Defines::familyParameter()
{
    QFETCH(QByteArray, device);
    QFETCH(QString, family);
    QCOMPARE(linesOf(IncludeFileName::macParam, {}, deviceNamed(device.constData())).last(),
             QLatin1String("parameter DEVICE = \"") + family + QLatin1String("\";"));
}

void tst_Defines::extensionPorts()
{
    const DEV::DeviceArg device = deviceNamed("TV2K-18");
    QCOMPARE(linesOf(IncludeFileName::bus,
                     {{Key::enableDebug, false}, {QStringLiteral("Enable_APB_Master16"), true}},
                     device),
             texts({"`define TARVO_APB16_SUPPORT", "`define TARVO_APBEXT_SUPPORT"}));
    QCOMPARE(linesOf(IncludeFileName::bus,
                     {{Key::enableDebug, false},
                      {QStringLiteral("Enable_AHB_Master6"), true},
                      {QStringLiteral("Enable_AHB_Master2"), true},
                      {QStringLiteral("Enable_AHB_Master7"), true},
                      {QStringLiteral("Enable_APB_Master0"), true},
                      {QStringLiteral("Enable_APB_Master10"), true},
                      {QStringLiteral("Enable_APB_Master9"), true},
                      {Key::enableTrng, true}},
                     device),
             texts({"`define TARVO_AHB2_SUPPORT", "`define TARVO_AHB6_SUPPORT",
                    "`define TARVO_TRNG_SUPPORT", "`define TARVO_APB9_SUPPORT",
                    "`define TARVO_APB10_SUPPORT", "`define TARVO_APBEXT_SUPPORT",
                    "`define TARVO_APBINT_SUPPORT"}));
}

void tst_Defines::internalApbBus_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("bus");
    const auto row = [](QLatin1String key, const char *macro, bool apb) {
        QStringList bus{QLatin1String("`define ") + QLatin1String(macro)};
        if (apb)
            bus.append(QStringLiteral("`define TARVO_APBINT_SUPPORT"));
        QTest::newRow(key.data()) << QString(key) << bus;
    };
    row(Key::enableUart0, "TARVO_UART0_SUPPORT", true);
    row(Key::enableUart1, "TARVO_UART1_SUPPORT", true);
    row(Key::enableTimer0, "TARVO_TIMER0_SUPPORT", true);
    row(Key::enableTimer1, "TARVO_TIMER1_SUPPORT", true);
    row(Key::enableWatchDog, "TARVO_WDOG_SUPPORT", true);
    row(Key::enableRtc, "TARVO_RTC_SUPPORT", true);
    row(Key::enableI2c, "TARVO_I2C_SUPPORT", true);
    row(Key::enableSpi, "TARVO_SPI_SUPPORT", true);
    row(Key::enableSdCard, "TARVO_SD_SUPPORT", true);
    row(Key::enableTrng, "TARVO_TRNG_SUPPORT", true);
    row(Key::enableDualTimer, "TARVO_DTIMER_SUPPORT", true);
    row(Key::enableGpio, "TARVO_GPIO_SUPPORT", false);
    row(Key::enableCan, "TARVO_CAN_SUPPORT", false);
    row(Key::enableSpiFlash, "TARVO_SPI_FLASH_SUPPORT", false);
    row(Key::enablePsram, "TARVO_PSRAM_SUPPORT", false);
    row(Key::enableDdr3, "TARVO_DDR3_SUPPORT", false);
}

void tst_Defines::internalApbBus()
{
    QFETCH(QString, key);
    QFETCH(QStringList, bus);
    QCOMPARE(linesOf(IncludeFileName::bus, {{Key::enableDebug, false}, {key, true}},
                     deviceNamed("TV5KT-60B")),
             bus);
}

void tst_Defines::ddr3Variant_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QStringList>("lines");
    const QStringList bare = texts({"`define DDR3_PHY_MC", "`define EBR_BASED"});
    QTest::newRow("no row") << QByteArray("TV1KL-9A") << QStringList();
    QTest::newRow("3K by prefix") << QByteArray("TV3KR-20A") << bare;
    QTest::newRow("3K-50") << QByteArray("TV3K-50A") << bare;
    QTest::newRow("1KL-5") << QByteArray("TV1KL-5B") << bare;
    QTest::newRow("1LR-9") << QByteArray("TV1LR-9C") << bare;
    QTest::newRow("5K-15") << QByteArray("TV5KLRT-15A") << bare;
    QTest::newRow("5K-25") << QByteArray("TV5KR-25B") << bare + texts({"`define VIRLA_25K"});
    QTest::newRow("5K-60") << QByteArray("TV5KT-60B") << bare + texts({"`define VIRLA_25K"});
    QTest::newRow("5K-75") << QByteArray("TV5KT-75B") << bare + texts({"`define VIRLA_138K"});
    QTest::newRow("5K-138") << QByteArray("TV5KT-138") << bare + texts({"`define VIRLA_138K"});
    QTest::newRow("2K by prefix") << QByteArray("TV2KL-9X") << bare + texts({"`define VIRLA_TV2K"});
}

void tst_Defines::ddr3Variant()
{
    QFETCH(QByteArray, device);
    QFETCH(QStringList, lines);
    // The switch plays no part.
    for (const bool on : {false, true})
        QCOMPARE(linesOf(IncludeFileName::ddr3, {{Key::enableDdr3, on}},
                         deviceNamed(device.constData())),
                 lines);
}

void tst_Defines::ddr3OnTv2kNamesTheFamilyOnTheBus()
{
    const OptionMap options{{Key::enableDebug, false}, {Key::enableDdr3, true}};
    QCOMPARE(linesOf(IncludeFileName::bus, options, deviceNamed("TV2KL-55C")),
             texts({"`define TARVO_DDR3_SUPPORT", "`define VIRLA_TV2K"}));
    QCOMPARE(linesOf(IncludeFileName::bus, options, deviceNamed("TV3K-50A")),
             texts({"`define TARVO_DDR3_SUPPORT"}));
}

void tst_Defines::psramVariant_data()
{
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QByteArray>("package");
    QTest::addColumn<QStringList>("lines");
    const QString name = QStringLiteral("`define module_name_psram PSRAM_Memory_Interface_Top");
    const QString ebr = QStringLiteral("`define EBR_BASED");
    const QStringList differential = texts({"`define CK0_DIFF", "`define CK1_DIFF"});
    const QStringList reversed = texts({"`define clock_reverse"}) + differential;
    const QStringList single = texts({"`define CK0_SINGLE", "`define CK1_SINGLE"});
    QTest::newRow("18C in QFN88P")
        << QByteArray("TV2KR-18C") << QByteArray("QFN88P") << QStringList{ebr, name} + reversed;
    QTest::newRow("18C in eLQFP144P")
        << QByteArray("TV2KR-18C") << QByteArray("eLQFP144P") << QStringList{ebr, name} + reversed;
    QTest::newRow("18C in QFN88PF")
        << QByteArray("TV2KR-18C") << QByteArray("QFN88PF") << QStringList{ebr, name} + single;
    QTest::newRow("18C in eLQFP144PF")
        << QByteArray("TV2KR-18C") << QByteArray("eLQFP144PF") << QStringList{ebr, name} + single;
    QTest::newRow("LR-18C in QFN88")
        << QByteArray("TV2KLR-18C") << QByteArray("QFN88") << QStringList{ebr, name} + differential;
    QTest::newRow("18C in QFN88") << QByteArray("TV2KR-18C") << QByteArray("QFN88")
                                  << QStringList{name} + reversed;
    QTest::newRow("LR-18C in another package")
        << QByteArray("TV2KLR-18C") << QByteArray("MBGA81P") << QStringList{name} + reversed;
    QTest::newRow("18 without C") << QByteArray("TV2KR-18") << QByteArray("QFN88P")
                                  << QStringList{name} + reversed;
    QTest::newRow("another device")
        << QByteArray("TV5KT-60B") << QByteArray() << QStringList{name} + reversed;
}

void tst_Defines::psramVariant()
{
    QFETCH(QByteArray, device);
    QFETCH(QByteArray, package);
    QFETCH(QStringList, lines);
    const DEV::DeviceArg record = deviceNamed(device.constData(), package.constData());
    QVERIFY(!record.isNull());
    QCOMPARE(linesOf(IncludeFileName::psram, {{Key::enablePsram, true}}, record), lines);
    QCOMPARE(linesOf(IncludeFileName::psram, {}, record),
             texts({"`define EBR_BASED", "`define module_name_psram PSRAM_Memory_Interface_Top",
                    "`define clock_reverse", "`define CK0_DIFF", "`define CK1_DIFF"}));
}

void tst_Defines::aNullDeviceIsGeneratedLikeAnUnknownOne()
{
    QVERIFY(linesOf(IncludeFileName::core, {}, {})
                .contains(QStringLiteral("`define CM1_ITCMSIZE 4'b0101")));
    QCOMPARE(linesOf(IncludeFileName::ddr3, {}, {}), QStringList());
    QCOMPARE(linesOf(IncludeFileName::macParam, {}, {}).last(),
             QStringLiteral("parameter DEVICE = \"1L/2K_Series\";"));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Defines)

#include "tst_defines.moc"
