#include "testsupport.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <registers/interrupts.h>
#include <rules/check.h>
#include <rules/newoptions.h>
#include <rules/optionmeaning.h>
#include <rules/presets.h>
#include <rules/randomoptions.h>
#include <rules/settings.h>

#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

const char *const usual = "TV2KR-18C-QFN88P-C8/I7";

DEV::DeviceArg device(const char *id)
{
    return DEV::DeviceDb::bundled().findDevice(QString::fromLatin1(id));
}

DEV::DeviceArg anyOf(const char *name)
{
    DEV::ChipFilter filter;
    filter.device = QString::fromLatin1(name);
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

} // namespace

// What options come to, and what makes configurations of them.
class tst_OptionMeaning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhereAValueComesFrom();
    void differencesAreThoseInMeaning_data();
    void differencesAreThoseInMeaning();
    void minimizingKeepsWhatAbsenceWouldChange_data();
    void minimizingKeepsWhatAbsenceWouldChange();
    void settingsAreRefusedWithTheReason_data();
    void settingsAreRefusedWithTheReason();
    void thePathOfTheProgramTakesItsAbsolutePathAlong();
    void theCheckFindsNothingInRandomConfigurations();
    void aSeedIsOneConfigurationForEver();
    void theCheckFindsNothingInAPreset();
    void presetsThatCannotBeAreNotOffered();
    void everythingIsAllThatTheDeviceCanHave();
};

void tst_OptionMeaning::tellsWhereAValueComesFrom()
{
    const DEV::DeviceArg usualDevice = device(usual);
    QVERIFY(!usualDevice.isNull());
    const OptionMap options = {{Key::enableUart0, QStringLiteral("True")},
                               {QStringLiteral("odd"), QStringLiteral("x")},
                               {Key::lang, QStringLiteral("one")}};
    const auto meaning = [&](const QString &key) { return meaningOf(options, key, usualDevice); };
    QCOMPARE(meaning(Key::enableUart0).origin, OptionMeaning::Stored);
    QCOMPARE(meaning(Key::enableUart0).value, QVariant(true));
    QCOMPARE(meaning(Key::lang).value, QVariant(QStringLiteral("one")));
    QCOMPARE(meaning(Key::itcmSize).origin, OptionMeaning::DeviceDefault);
    QCOMPARE(meaning(Key::itcmSize).value, QVariant(5));
    QCOMPARE(meaningOf(options, Key::itcmSize, anyOf("TV2K-55")).value, QVariant(6));
    QCOMPARE(meaning(Key::enableGpioIo).origin, OptionMeaning::Default);
    QCOMPARE(meaning(Key::enableGpioIo).value, QVariant(false));
    QCOMPARE(meaning(Key::enableGpioIo).dialog, QVariant(true));
    QCOMPARE(meaningOf(options, Key::numberOfInterrupts, anyOf("TV1KL-5A")).dialog, QVariant(1));
    QCOMPARE(meaning(Key::ipDeviceId).value, QVariant(usualDevice.id()));
    QCOMPARE(meaning(QStringLiteral("odd")).value, QVariant(QStringLiteral("x")));
    QCOMPARE(meaning(QStringLiteral("none")).origin, OptionMeaning::Unknown);
    QCOMPARE(meaningsOf(options, usualDevice).size(), optionTable().size() + 1);
    QCOMPARE(meaningsOf(options, usualDevice).last().key, QStringLiteral("odd"));
}

void tst_OptionMeaning::differencesAreThoseInMeaning_data()
{
    QTest::addColumn<OptionMap>("before");
    QTest::addColumn<OptionMap>("after");
    QTest::addColumn<QStringList>("keys");
    const auto row = [](const char *name, const OptionMap &before, const OptionMap &after,
                        const QStringList &keys) {
        QTest::newRow(name) << before << after << keys;
    };
    row("nothing and nothing", {}, {}, {});
    row("a default written out", {}, {{Key::enableUart0, false}}, {});
    row("a value in other letters", {{Key::osExtension, QStringLiteral("TRUE")}},
        {{Key::osExtension, QStringLiteral("1")}}, {});
    row("the device's size written out", {}, {{Key::itcmSize, 5}}, {});
    row("another size", {}, {{Key::itcmSize, 4}}, {Key::itcmSize});
    row("what only the dialog sees", {}, {{Key::enableGpioIo, false}}, {Key::enableGpioIo});
    row("what only generation sees", {}, {{Key::enableGpioIo, true}}, {Key::enableGpioIo});
    row("an empty depth", {}, {{Key::canBufferDepth, QString()}}, {Key::canBufferDepth});
    row("a text that is no number", {{Key::ethernetInputDelay, QStringLiteral("x")}},
        {{Key::ethernetInputDelay, 0}}, {Key::ethernetInputDelay});
    row("a text that is no switch", {{Key::osExtension, QStringLiteral("yes")}}, {},
        {Key::osExtension});
    row("a key that nobody knows", {{QStringLiteral("odd"), QStringLiteral("1")}}, {},
        {QStringLiteral("odd")});
    row("the tool and the language written out", {},
        {{Key::synthesisTool, QString(Value::tarvoSynthesis)}, {Key::lang, 0}}, {});
    row("another language", {}, {{Key::lang, 1}}, {Key::lang});
    row("the own device written out", {}, {{Key::ipDevice, QStringLiteral("TV2KR-18C")}}, {});
    row("another device written out", {}, {{Key::ipDevice, QStringLiteral("TV2K-18")}},
        {Key::ipDevice});
}

void tst_OptionMeaning::differencesAreThoseInMeaning()
{
    QFETCH(OptionMap, before);
    QFETCH(OptionMap, after);
    for (const bool forth : {true, false}) {
        QStringList keys;
        const QVector<OptionDifference> differences = optionDifferences(
            forth ? before : after, device(usual), forth ? after : before, device(usual));
        for (const OptionDifference &difference : differences)
            keys.append(difference.before.key);
        QTEST(keys, "keys");
    }
}

void tst_OptionMeaning::minimizingKeepsWhatAbsenceWouldChange_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("stays");
    const auto row = [](const char *name, const DEV::DeviceArg &target, const QString &key,
                        const QVariant &value, bool stays) {
        QTest::newRow(name) << target.id() << key << value << stays;
    };
    const DEV::DeviceArg most = device(usual);
    const DEV::DeviceArg least = anyOf("TV1KL-5A");
    row("a switch that is off", most, Key::enableSpi, QStringLiteral("false"), false);
    row("a switch that is on", most, Key::enableSpi, QStringLiteral("true"), true);
    row("a switch that its dialog takes for on", most, Key::enableI2cIo, false, true);
    row("the same switched on", most, Key::enableI2cIo, true, true);
    row("generation's delay", most, Key::ethernetInputDelay, 0, true);
    row("the dialog's delay", most, Key::ethernetInputDelay, 100, true);
    row("the dialog's depth", most, Key::canBufferDepth, QStringLiteral("256"), true);
    row("all interrupts", most, Key::numberOfInterrupts, QStringLiteral("32"), false);
    row("all interrupts of the smallest device", least, Key::numberOfInterrupts, 32, true);
    row("one interrupt of the smallest device", least, Key::numberOfInterrupts, 1, true);
    row("the device's size", most, Key::dtcmSize, 5, false);
    row("the size of other devices", most, Key::dtcmSize, 4, true);
    row("the smallest device's size", least, Key::dtcmSize, 3, false);
    row("Verilog", most, Key::lang, 0, false);
    row("a tool that is not offered", most, Key::synthesisTool, QString(Value::synplifyPro), true);
    row("a key that nobody knows", most, QStringLiteral("odd"), QString(), true);
    row("no path", most, Key::itcmInitializationPath, QString(), false);
}

void tst_OptionMeaning::minimizingKeepsWhatAbsenceWouldChange()
{
    QFETCH(QString, id);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const DEV::DeviceArg target = DEV::DeviceDb::bundled().findDevice(id);
    QVERIFY(!target.isNull());
    const OptionMap options = {{key, value}, {Key::enableUart1, true}};
    OptionMap expected = {{Key::enableUart1, true}};
    QFETCH(bool, stays);
    if (stays)
        expected.insert(key, value);
    QCOMPARE(minimized(options, target), expected);
}

void tst_OptionMeaning::settingsAreRefusedWithTheReason_data()
{
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *setting, const char *reason) {
        QTest::newRow(setting) << QString::fromLatin1(reason);
    };
    row("Enable UART0", "\"Enable UART0\" is not of the form KEY=VALUE.");
    row("=1", "\"=1\" is not of the form KEY=VALUE.");
    row("Enable GPIO IO=1",
        "Unknown key \"Enable GPIO IO\"; the nearest known one is \"Enabel GPIO IO\".");
    row("quite different=1", "Unknown key \"quite different\".");
    row("Enable UART0=on", "\"on\" is no value of \"Enable UART0\": true or false.");
    row("ITCM_Size=10", "\"10\" is no value of \"ITCM_Size\": 0 to 9.");
    row("CAN_BUFFER_DEPTH=100",
        "\"100\" is no value of \"CAN_BUFFER_DEPTH\": one of 16, 32, 64, 128, 256, 512, 1024, "
        "2048, 4096, 8192, 16384, 32768, 65536.");
}

void tst_OptionMeaning::settingsAreRefusedWithTheReason()
{
    const auto setting = settingFromText(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!setting);
    QTEST(setting.reason(), "reason");
}

void tst_OptionMeaning::thePathOfTheProgramTakesItsAbsolutePathAlong()
{
    OptionMap options;
    applySetting(*settingFromText(QStringLiteral("ITCM_Initialization_Path=fw")),
                 QStringLiteral("/out"), &options);
    QCOMPARE(options,
             OptionMap({{Key::itcmInitializationPath, QStringLiteral("fw")},
                        {Key::itcmInitializationAbsolutePath, QStringLiteral("/out/fw")}}));
    applySetting(*settingFromText(QStringLiteral("ITCM_Initialization_Path=")),
                 QStringLiteral("/out"), &options);
    QCOMPARE(options, OptionMap({{Key::itcmInitializationPath, QString()},
                                 {Key::itcmInitializationAbsolutePath, QString()}}));
}

void tst_OptionMeaning::theCheckFindsNothingInRandomConfigurations()
{
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    int blocks = 0;
    for (int i = 0; i < 12 * devices.size(); ++i) {
        const DEV::DeviceArg &target = devices.at(i % devices.size());
        const OptionMap options = randomOptions(quint64(i), target);
        const QVector<Finding> findings = checkOptions(options, target, QStringLiteral("/out"));
        QVERIFY2(findings.isEmpty(), qPrintable(QStringLiteral("seed %1 on %2: %3 %4")
                                                    .arg(i)
                                                    .arg(target.id(), findings.value(0).key,
                                                         findings.value(0).message)));
        blocks += options.contains(Key::enableUart0);
    }
    QVERIFY(blocks > devices.size());
    QVERIFY(blocks < 12 * devices.size());
}

void tst_OptionMeaning::aSeedIsOneConfigurationForEver()
{
    const auto lines = [](quint64 seed) {
        const OptionMap options = randomOptions(seed, device(usual));
        QStringList list;
        for (auto it = options.cbegin(); it != options.cend(); ++it)
            list.append(it.key() + u'=' + valueText(it.value()));
        return list;
    };
    QCOMPARE(lines(7), lines(7));
    QVERIFY(lines(7) != lines(8));
    QCOMPARE(lines(7).mid(0, 6).join(u';'),
             QStringLiteral("Big Endian=true;CAN_BUFFER_DEPTH=65536;DTCM_Size=2;"
                            "Debug Port Select=JTAG;ETHERNET_CLOCK_DIVIDER=187;"
                            "ETHERNET_INPUT_DELAY=87"));
}

void tst_OptionMeaning::theCheckFindsNothingInAPreset()
{
    const auto peripherals = readRegisterMap(QStringLiteral(TARVO_IP_DATA_DIR));
    const auto others = readOtherInterrupts(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY(peripherals && others);
    const QVector<InterruptSource> interrupts = interruptSources(*peripherals, *others);
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    int offered = 0;
    for (const QString &name : presetNames()) {
        QVERIFY(!presetText(name).isEmpty());
        for (const DEV::DeviceArg &target : devices) {
            if (!isPresetOffered(name, target))
                continue;
            ++offered;
            const OptionMap options =
                optionsForChoices(presetChoices(name, target), target.device(), {});
            const QVector<Finding> findings =
                checkOptions(options, target, {}) + interruptFindings(interrupts, options);
            QVERIFY2(findings.isEmpty(),
                     qPrintable(QStringLiteral("%1 on %2: %3 %4")
                                    .arg(name, target.id(), findings.value(0).key,
                                         findings.value(0).message)));
        }
    }
    QVERIFY(offered > 4 * devices.size());
}

void tst_OptionMeaning::presetsThatCannotBeAreNotOffered()
{
    const DEV::DeviceArg least = anyOf("TV1KL-5A");
    QStringList offered;
    for (const QString &name : presetNames()) {
        QVERIFY2(isPresetOffered(name, device(usual)), qPrintable(name));
        QVERIFY2(!isPresetOffered(name, {}), qPrintable(name));
        if (isPresetOffered(name, least))
            offered.append(name);
    }
    QCOMPARE(offered, QStringList({QStringLiteral("minimal"), QStringLiteral("console"),
                                   QStringLiteral("sensor-node"), QStringLiteral("everything")}));
    QVERIFY(!isPresetOffered(QStringLiteral("Minimal"), device(usual)));
    QVERIFY(presetChoices(QStringLiteral("none"), device(usual)).isEmpty());
}

void tst_OptionMeaning::everythingIsAllThatTheDeviceCanHave()
{
    const auto everything = [](const DEV::DeviceArg &target) {
        return presetChoices(QStringLiteral("everything"), target);
    };
    QVERIFY(everything(device(usual)).contains(Key::enablePsram));
    QVERIFY(everything(device(usual)).contains(QStringLiteral("Enable_APB_Master16")));
    const OptionMap least = everything(anyOf("TV1KL-5A"));
    for (const QLatin1String key : {Key::enablePsram, Key::enableDdr3, Key::enableEthernet,
                                    Key::enableCan, Key::enableSpiFlash})
        QVERIFY2(!least.contains(key), key.data());
    QVERIFY(least.contains(Key::enableUart0));
}

QTEST_GUILESS_MAIN(tst_OptionMeaning)

#include "tst_optionmeaning.moc"
