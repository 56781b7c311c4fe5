#include "arbitrary.h"
#include "testsupport.h"

#include "checkreference.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <rules/check.h>
#include <rules/itcmcontents.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_Check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundConfigurationHasNoFindings_data();
    void aSoundConfigurationHasNoFindings();
    void finds_data();
    void finds();
    void judgesEachBoundary_data();
    void judgesEachBoundary();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void looksForTheNearestOfAHundredKeysOnly();
    void agreesWithThePlainStatement();
    void agreesAboutEveryPairOfSizes();
    void initialisationFolders();
    void findsWhatNoGeneratedLineCanHold_data();
    void findsWhatNoGeneratedLineCanHold();
    void theOutputFolderCanBeUnsafeToo();
    void aNullDeviceIsNotJudged();
    void changesNothing();
};

namespace
{

DEV::DeviceArg deviceNamed(const QString &name, const QString &package = QString())
{
    DEV::ChipFilter filter;
    filter.device = name;
    filter.package = package;
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

// What the core page stores on one of the smallest devices, whose defaults are not generation's.
OptionMap smallest(const OptionMap &more = {})
{
    OptionMap options = {{Key::numberOfInterrupts, 1},
                         {Key::osExtension, false},
                         {Key::smallMultiplier, true},
                         {Key::enableDebug, false},
                         {Key::internalInstructionMemory, false},
                         {Key::externalInstructionMemory, true}};
    for (auto it = more.cbegin(); it != more.cend(); ++it)
        options.insert(it.key(), it.value());
    return options;
}

// The files of an ITCM of 1 KB.
bool writeSmallestContents(const QString &folder)
{
    const QByteArray lane = QByteArray("00\n").repeated(256);
    for (int i = 0; i < 4; ++i) {
        if (!TestSupport::write(folder + QStringLiteral("/itcm%1").arg(i), lane))
            return false;
    }
    return true;
}

// Values on both sides of every boundary, as values or texts, beside what Arbitrary makes of them.
OptionMap doubtfulOptions(const QStringList &folders)
{
    namespace gen = rc::gen;
    OptionMap options = Arbitrary::options();
    const auto sometimes = [](int odds) { return *gen::inRange(0, odds) == 0; };
    const auto oneOf = [](const QVariantList &values) {
        return values.at(*gen::inRange(0, values.size()));
    };
    const auto put = [&](const QString &key, const QVariantList &values) {
        if (!sometimes(2))
            return;
        const QVariant value = oneOf(values);
        options.insert(key, sometimes(2) ? QVariant(value.toString()) : value);
    };
    put(Key::numberOfInterrupts, {0, 1, 8, 15, 16, 17, 31, 32, 33});
    put(Key::itcmSize, {-1, 0, 1, 3, 4, 5, 6, 7, 8, 9, 10});
    put(Key::dtcmSize, {-1, 0, 1, 3, 4, 5, 6, 7, 8, 9, 10});
    put(Key::ethernetInputDelay, {-1, 0, 127, 128, 255, 256});
    put(Key::ethernetClockDivider, {-1, 0, 255, 256});
    put(Key::lang, {-1, 0, 1, 2});
    put(Key::namePrefix,
        {QString(), QStringLiteral("a_"), QStringLiteral("Cpu0_b_"), QStringLiteral("_"),
         QStringLiteral("0_"), QStringLiteral("a__"), QStringLiteral("a"), QStringLiteral("int_"),
         QStringLiteral("Entity_"), QStringLiteral("a_\n"), QStringLiteral("é_"),
         QString(QString(31, u'x') + u'_'), QString(QString(32, u'x') + u'_'), Arbitrary::text()});
    const QVariantList mixed = {
        QStringLiteral("TRUE"), QStringLiteral("False"),
        QStringLiteral("no"),   QString(),
        QStringLiteral("2"),    QStringList{QStringLiteral("a"), QStringLiteral("b")}};
    const QVector<Option> &table = optionTable();
    for (int odd = *gen::inRange(0, 4); odd > 0; --odd)
        options.insert(table.at(*gen::inRange(0, table.size())).key, oneOf(mixed));
    // Nine letters, of which three or four differ from a key's.
    const QVariantList strange = {QStringLiteral("DTCM_SXYZ"),
                                  QStringLiteral("DTCM_WXYZ"),
                                  QStringLiteral("enable uart1"),
                                  QStringLiteral("Enabel RTC"),
                                  QString(101, u'x'),
                                  Arbitrary::text(),
                                  Key::createInPath};
    if (sometimes(2))
        options.insert(oneOf(strange).toString(), Arbitrary::text());
    if (sometimes(2)) {
        options.insert(Key::initializeItcm, true);
        const auto folder = [&] { return folders.at(*gen::inRange(0, folders.size())); };
        options.insert(Key::itcmInitializationPath, folder());
        options.insert(Key::itcmInitializationAbsolutePath, folder());
    }
    return options;
}

// "error KEY: MESSAGE" for each finding.
QStringList inFull(const QVector<Finding> &findings)
{
    QStringList result;
    for (const Finding &finding : findings)
        result.append((finding.severity == Finding::Error ? QLatin1String("error ")
                                                          : QLatin1String("warning ")) +
                      finding.key + QLatin1String(": ") + finding.message);
    return result;
}

// "error KEY" for each finding.
QStringList inShort(const QVector<Finding> &findings)
{
    QStringList result;
    for (const Finding &finding : findings)
        result.append((finding.severity == Finding::Error ? QLatin1String("error ")
                                                          : QLatin1String("warning ")) +
                      finding.key);
    return result;
}

} // namespace

void tst_Check::aSoundConfigurationHasNoFindings_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<OptionMap>("options");
    QTest::newRow("empty map") << QStringLiteral("TV2K-18") << OptionMap();
    QTest::newRow("smallest device")
        << QStringLiteral("TV1KL-5A")
        << smallest({{Key::internalInstructionMemory, true}, // both may have its largest size
                     {Key::externalInstructionMemory, false}});
    QTest::newRow("both largest where the rules allow it")
        << QStringLiteral("TV5KT-75B") << OptionMap{{Key::itcmSize, 8}, {Key::dtcmSize, 8}};
    QTest::newRow("texts of a file") << QStringLiteral("TV5K-138C")
                                     << OptionMap{{Key::enableCan, QStringLiteral("true")},
                                                  {Key::canBufferDepth, QStringLiteral("64")},
                                                  {Key::ethernetInputDelay, QStringLiteral("255")},
                                                  {Key::numberOfInterrupts, QStringLiteral("8")},
                                                  {Key::itcmSize, QStringLiteral("9")},
                                                  {Key::dtcmSize, QStringLiteral("7")},
                                                  {Key::lang, QStringLiteral("1")}};
    QTest::newRow("largest next to an external memory")
        << QStringLiteral("TV2K-18")
        << OptionMap{{Key::itcmSize, 6},
                     {Key::dtcmSize, 6},
                     {Key::internalDataMemory, false},
                     {Key::externalDataMemory, true}};
}

void tst_Check::aSoundConfigurationHasNoFindings()
{
    QFETCH(QString, device);
    QFETCH(OptionMap, options);
    QCOMPARE(inShort(checkOptions(options, deviceNamed(device), QString())), QStringList());
}

void tst_Check::finds_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QString>("finding");
    QTest::addColumn<QString>("message"); // a part of it
    const auto row = [](const char *name, const char *device, const OptionMap &options,
                        const char *finding, const char *message) {
        QTest::newRow(name) << QString::fromLatin1(device) << options
                            << QString::fromLatin1(finding) << QString::fromLatin1(message);
    };
    row("a misspelled key", "TV2K-18", {{QStringLiteral("Enable GPIO IO"), true}},
        "warning Enable GPIO IO", "\"Enabel GPIO IO\"");
    row("a key like none", "TV2K-18", {{QStringLiteral("zzzz"), true}}, "warning zzzz",
        "unknown key");
    row("a folder of another time", "TV2K-18", {{Key::createInPath, QStringLiteral("/x")}},
        "warning createin_path", "ignored");
    row("no bool", "TV2K-18", {{Key::enableRtc, QStringLiteral("yes")}}, "error Enable RTC",
        "no bool");
    row("no number", "TV2K-18", {{Key::numberOfInterrupts, QStringLiteral("many")}},
        "error Number of Interrupts", "no int");
    row("a list", "TV2K-18",
        {{Key::debugPortSelect, QStringList{QStringLiteral("JTAG"), QStringLiteral("x")}}},
        "error Debug Port Select", "JTAG, x");
    row("out of the domain", "TV2K-18", {{Key::numberOfInterrupts, 4}},
        "error Number of Interrupts", "1, 8, 16, 32");
    row("a huge value", "TV2K-18", {{Key::debugPortSelect, QString(100000, u'x')}},
        "error Debug Port Select", "xxx");
    row("size index out of the domain", "TV2K-18", {{Key::itcmSize, 12}}, "error ITCM_Size",
        "0 to 9");
    row("size that the device lacks", "TV2K-18", {{Key::itcmSize, 7}}, "error ITCM_Size",
        "at most 64 KB");
    row("both at the largest size", "TV2K-18", {{Key::itcmSize, 6}, {Key::dtcmSize, 6}},
        "error DTCM_Size", "both memories");
    row("one too large beside the largest", "TV5KT-15B",
        {{Key::itcmSize, 4}, {Key::dtcmSize, 6}, {Key::enableDdr3, false}}, "error ITCM_Size",
        "8 KB at most");
    row("PSRAM", "TV2K-18", {{Key::enablePsram, true}}, "error Enable PSRAM", "cannot have PSRAM");
    row("DDR3", "TV1L-9C", {{Key::enableDdr3, true}}, "error Enable DDR3", "cannot have DDR3");
    row("Ethernet", "TV1KL-5A",
        smallest({{Key::enableEthernet, true},
                  {Key::ethernetInputDelay, 1},
                  {Key::ethernetClockDivider, 1}}),
        "error Enable Ethernet", "cannot have Ethernet");
    row("CAN", "TV1KL-5B",
        smallest({{Key::enableCan, true}, {Key::canBufferDepth, QStringLiteral("16")}}),
        "error Enable CAN", "cannot have CAN");
    row("SPI-Flash", "TV1KL-5A", smallest({{Key::enableSpiFlash, true}}), "error Enable SPI-Flash",
        "cannot have SPI-Flash");
    row("debug where there is none", "TV1LR-9", {}, "error Enable Debug", "cannot have debug");
    row("internal instructions", "TV5KT-15A", {{Key::externalInstructionMemory, false}},
        "error Internal_Instruction_Memory", "always external");
    row("no instruction memory", "TV2K-18", {{Key::internalInstructionMemory, false}},
        "warning Internal_Instruction_Memory", "neither");
    row("both data memories", "TV2K-18", {{Key::externalDataMemory, true}},
        "warning External_Data_Memory", "ignored");
    row("CAN without a depth", "TV2K-18", {{Key::enableCan, true}}, "error CAN_BUFFER_DEPTH",
        "no value");
    row("Ethernet without a divider", "TV2K-18",
        {{Key::enableEthernet, true}, {Key::ethernetInputDelay, 5}},
        "warning ETHERNET_CLOCK_DIVIDER", "0 is generated");
    row("a delay for wider devices", "TV2K-18",
        {{Key::enableEthernet, true},
         {Key::ethernetInputDelay, 200},
         {Key::ethernetClockDivider, 5}},
        "error ETHERNET_INPUT_DELAY", "127");
    row("external interrupts without enough inputs", "TV2K-18",
        {{Key::externalInterrupts, true}, {Key::numberOfInterrupts, 8}},
        "warning External Interrupts", "16 or 32");
    row("Ethernet without a delay", "TV2K-18",
        {{Key::enableEthernet, true}, {Key::ethernetClockDivider, 5}},
        "warning ETHERNET_INPUT_DELAY", "0 is generated, but its dialog shows 100");
    row("GPIO without its kind of pins", "TV2K-18", {{Key::enableGpio, true}},
        "warning Enabel GPIO IO", "false is generated, but its dialog shows true");
    row("I2C without its kind of pins", "TV2K-18", {{Key::enableI2c, QStringLiteral("true")}},
        "warning Enable I2C IO", "false is generated, but its dialog shows true");
    row(
        "the smallest device without a number of interrupts", "TV1KL-5A",
        [] {
            OptionMap options = smallest();
            options.remove(Key::numberOfInterrupts);
            return options;
        }(),
        "warning Number of Interrupts", "32 is generated, but its dialog shows 1");
    row("another stored device", "TV2K-18", {{Key::ipDevice, QStringLiteral("TV1L-9")}},
        "warning ip_device", "TV2K-18");
    row("initialisation without an ITCM", "TV2K-18",
        {{Key::initializeItcm, true},
         {Key::internalInstructionMemory, false},
         {Key::externalInstructionMemory, true}},
        "warning Initialize ITCM", "not internal");
}

void tst_Check::finds()
{
    QFETCH(QString, device);
    QFETCH(OptionMap, options);
    QFETCH(QString, finding);
    QFETCH(QString, message);
    const QVector<Finding> findings = checkOptions(options, deviceNamed(device), QString());
    QCOMPARE(inShort(findings), QStringList{finding});
    QVERIFY2(findings.first().message.contains(message), qPrintable(findings.first().message));
    QVERIFY(findings.first().message.size() < 300);
}

void tst_Check::judgesEachBoundary_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QStringList>("findings");
    const auto row = [](const char *name, const char *device, const OptionMap &options,
                        const QStringList &findings) {
        QTest::newRow(name) << QString::fromLatin1(device) << options << findings;
    };
    const auto interrupts = [](int count) {
        return OptionMap{{Key::externalInterrupts, true}, {Key::numberOfInterrupts, count}};
    };
    row("15 interrupts are too few", "TV2K-18", interrupts(15),
        {QStringLiteral("error Number of Interrupts"),
         QStringLiteral("warning External Interrupts")});
    row("16 interrupts are enough", "TV2K-18", interrupts(16), {});
    row("32 interrupts, if nobody says how many", "TV2K-18", {{Key::externalInterrupts, true}}, {});
    const auto delay = [](int steps, bool enabled = true) {
        return OptionMap{{Key::enableEthernet, enabled},
                         {Key::ethernetInputDelay, steps},
                         {Key::ethernetClockDivider, 20}};
    };
    const QStringList tooLong = {QStringLiteral("error ETHERNET_INPUT_DELAY")};
    row("the longest delay", "TV2K-18", delay(127), {});
    row("a delay too long", "TV2K-18", delay(128), tooLong);
    row("a delay too long for nobody", "TV2K-18", delay(128, false), {});
    row("the longest delay of all but the wide devices", "TV2K-18", delay(255), tooLong);
    row("the longest delay of a wide device", "TV5K-138C", delay(255), {});
    row("and of the other family", "TV3K-20A", delay(255), {});
    row("a delay too long for every device", "TV5K-138C", delay(256), tooLong);
    row("the same, told once", "TV2K-18", delay(256), tooLong);
    row("a delay before its time", "TV2K-18", delay(-1), tooLong);
    const auto sizes = [](int itcm, int dtcm) {
        return OptionMap{{Key::itcmSize, itcm}, {Key::dtcmSize, dtcm}};
    };
    const QStringList itcm = {QStringLiteral("error ITCM_Size")};
    const QStringList dtcm = {QStringLiteral("error DTCM_Size")};
    row("the largest index", "TV5K-138C", sizes(9, 7), {});
    row("an index that is none", "TV5K-138C", sizes(10, 7), itcm);
    row("the smallest index", "TV5K-138C", sizes(0, 0), {});
    row("an index below", "TV5K-138C", sizes(0, -1), dtcm);
    row("the largest size of the device", "TV2K-18", sizes(6, 0), {});
    row("one size more", "TV2K-18", sizes(7, 0), itcm);
    row("the last size beside the largest", "TV2K-18", sizes(4, 6), {});
    row("one more beside the largest", "TV2K-18", sizes(5, 6), itcm);
    row("one more in the other memory", "TV2K-18", sizes(6, 5), dtcm);
    row("both one below the largest", "TV2K-18", sizes(5, 5), {});
}

void tst_Check::judgesEachBoundary()
{
    QFETCH(QString, device);
    QFETCH(OptionMap, options);
    QTEST(inShort(checkOptions(options, deviceNamed(device), QString())), "findings");
}

void tst_Check::saysWhatIsWrong_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const OptionMap &options, const QString &message) {
        QTest::newRow(name) << options << message;
    };
    const auto port = [](int length) {
        return OptionMap{{Key::debugPortSelect, QString(length, u'x')}};
    };
    const QString domain =
        QStringLiteral("\" is out of its domain: one of JTAG, Serial Wire, JTAG and Serial Wire");
    row("a value of sixty characters", port(60), u'"' + QString(60, u'x') + domain);
    row("a longer one", port(61), u'"' + QString(60, u'x') + QChar(0x2026) + domain);
    const auto other = [](const char *key) { return OptionMap{{QString::fromLatin1(key), true}}; };
    row("a third of the letters are wrong", other("DTCM_SXYZ"),
        QStringLiteral("unknown key; the nearest known one is \"DTCM_Size\""));
    row("more than a third is wrong", other("DTCM_WXYZ"), QStringLiteral("unknown key"));
    row("no instruction memory", {{Key::internalInstructionMemory, false}},
        QStringLiteral("neither internal nor external instruction memory is chosen"));
    row("no data memory", {{Key::internalDataMemory, false}},
        QStringLiteral("neither internal nor external data memory is chosen"));
    row("a device without PSRAM", {{Key::enablePsram, true}},
        QStringLiteral("TV2K-18 cannot have PSRAM in package ") +
            deviceNamed(QStringLiteral("TV2K-18")).package());
}

void tst_Check::saysWhatIsWrong()
{
    QFETCH(OptionMap, options);
    QFETCH(QString, message);
    const QVector<Finding> findings =
        checkOptions(options, deviceNamed(QStringLiteral("TV2K-18")), QString());
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().message, message);
}

void tst_Check::looksForTheNearestOfAHundredKeysOnly()
{
    OptionMap options;
    for (int i = 0; i <= 100; ++i)
        options.insert(QStringLiteral("Enable UART0 %1").arg(i, 3, 10, QChar(u'0')), true);
    const QVector<Finding> findings =
        checkOptions(options, deviceNamed(QStringLiteral("TV2K-18")), QString());
    QCOMPARE(findings.size(), 101);
    for (int i = 0; i <= 100; ++i)
        QCOMPARE(findings.at(i).message,
                 i < 100 ? QStringLiteral("unknown key; the nearest known one is \"Enable UART0\"")
                         : QStringLiteral("unknown key"));
}

void tst_Check::agreesWithThePlainStatement()
{
    QTemporaryDir dir;
    const auto write = [&dir](const QString &name, int bytes) {
        for (int lane = 0; lane < 4; ++lane) {
            if (!TestSupport::write(dir.filePath(QStringLiteral("%1/itcm%2").arg(name).arg(lane)),
                                    QByteArray("5a\n").repeated(bytes)))
                return false;
        }
        return true;
    };
    const QString odd = QStringLiteral("o`d");
    QVERIFY(write(QStringLiteral("one"), 256) && write(QStringLiteral("two"), 512) &&
            write(odd, 256));
    QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("file")), "00\n"));
    const CheckReference::Contents contents = {{dir.filePath(QStringLiteral("one")), 256},
                                               {dir.filePath(QStringLiteral("two")), 512},
                                               {dir.filePath(odd), 256}};
    const QStringList folders = contents.keys() + QStringList{QString(),
                                                              QStringLiteral("one"),
                                                              odd,
                                                              QStringLiteral("gone"),
                                                              QStringLiteral("."),
                                                              dir.filePath(QStringLiteral("gone")),
                                                              dir.filePath(QStringLiteral("file"))};
    QVERIFY(rc::check([&] {
        DEV::DeviceArg device;
        if (*rc::gen::inRange(0, 10) > 0)
            device = *Arbitrary::device();
        OptionMap options = doubtfulOptions(folders);
        const auto name = [](const QString &key, const QString &own, OptionMap &map) {
            const int which = *rc::gen::inRange(0, 4);
            if (which < 3)
                map.insert(key, which == 0 ? own : which == 1 ? QString() : own + u'x');
        };
        name(Key::ipDevice, device.device(), options);
        name(Key::ipDeviceId, device.id(), options);
        const QStringList found = inFull(checkOptions(options, device, dir.path()));
        const QStringList expected =
            CheckReference::findings(options, device, dir.path(), contents);
        if (found != expected)
            RC_FAIL(QString(device.id() + u'\n' + found.join(u'\n') + QStringLiteral("\n---\n") +
                            expected.join(u'\n'))
                        .toStdString());
    }));
}

void tst_Check::agreesAboutEveryPairOfSizes()
{
    QStringList seen;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        if (seen.contains(device.device()))
            continue;
        seen.append(device.device());
        for (int itcm = -1; itcm <= 10; ++itcm) {
            for (int dtcm = -1; dtcm <= 10; ++dtcm) {
                // -1: left open.
                OptionMap options;
                if (itcm >= 0)
                    options.insert(Key::itcmSize, itcm);
                if (dtcm >= 0)
                    options.insert(Key::dtcmSize, dtcm);
                QCOMPARE(inFull(checkOptions(options, device, QString())),
                         CheckReference::findings(options, device, QString(), {}));
            }
        }
    }
}

void tst_Check::initialisationFolders()
{
    QTemporaryDir dir;
    for (int lane = 0; lane < 4; ++lane)
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("init/itcm%1").arg(lane)),
                                   QByteArray("00\n").repeated(itcmLaneSize(5))));
    QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("file")), "x"));
    const DEV::DeviceArg device = deviceNamed(QStringLiteral("TV2K-18"));
    const auto check = [&](const QString &path, const QString &absolute) {
        return inShort(checkOptions({{Key::initializeItcm, true},
                                     {Key::itcmInitializationPath, path},
                                     {Key::itcmInitializationAbsolutePath, absolute}},
                                    device, dir.path()));
    };
    const QString both = QStringLiteral("error ITCM_Initialization_Path");
    const QString absoluteError = QStringLiteral("error ITCM_Initialization_AbsolutePath");
    QCOMPARE(check(QStringLiteral("init"), dir.filePath(QStringLiteral("init"))), QStringList());
    QCOMPARE(check(dir.filePath(QStringLiteral("init")), dir.filePath(QStringLiteral("init"))),
             QStringList());
    QCOMPARE(check(QString(), QString()), (QStringList{both, absoluteError}));
    QCOMPARE(check(QStringLiteral("gone"), dir.filePath(QStringLiteral("gone"))),
             (QStringList{both, absoluteError}));
    QVERIFY(QFile::remove(dir.filePath(QStringLiteral("init/itcm3"))));
    QCOMPARE(check(QStringLiteral("init"), dir.filePath(QStringLiteral("init"))),
             QStringList{absoluteError});
    // Both must be folders.
    QCOMPARE(check(QStringLiteral("file"), dir.filePath(QStringLiteral("file"))),
             (QStringList{both, absoluteError}));
}

void tst_Check::findsWhatNoGeneratedLineCanHold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("named");
    QTest::newRow("quotation mark") << QStringLiteral("e\"x") << QStringLiteral("quotation mark");
    QTest::newRow("backslash") << QStringLiteral("e\\x") << QStringLiteral("backslash");
    QTest::newRow("backtick") << QStringLiteral("e`x") << QStringLiteral("backtick");
    QTest::newRow("line feed") << QStringLiteral("e\nx") << QStringLiteral("line end");
    QTest::newRow("carriage return") << QStringLiteral("e\rx") << QStringLiteral("line end");
    QTest::newRow("a macro of its own") << QStringLiteral("x\"\n`define MINE 1\n`define REST \"")
                                        << QStringLiteral("quotation mark");
    QTest::newRow("an escape") << QStringLiteral("e\x1bx") << QStringLiteral("control character");
    QTest::newRow("odd, but harmless")
        << QString::fromUtf8("e 'x' $y %n {z} \xc3\xbc") << QString();
}

void tst_Check::findsWhatNoGeneratedLineCanHold()
{
    QFETCH(QString, name);
    QFETCH(QString, named);
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(name));
    const DEV::DeviceArg device = deviceNamed(QStringLiteral("TV2K-18"));
    QVERIFY(writeSmallestContents(dir.filePath(name)));
    OptionMap options = {{Key::itcmSize, 0},
                         {Key::initializeItcm, true},
                         {Key::itcmInitializationPath, name},
                         {Key::itcmInitializationAbsolutePath, dir.filePath(name)}};
    const QVector<Finding> findings = checkOptions(options, device, dir.path());
    if (named.isEmpty()) {
        QCOMPARE(inShort(findings), QStringList());
        return;
    }
    QCOMPARE(inShort(findings),
             (QStringList{QStringLiteral("error ITCM_Initialization_AbsolutePath"),
                          QStringLiteral("error ITCM_Initialization_Path")}));
    for (const Finding &finding : findings)
        QVERIFY2(finding.message.contains(named) && !finding.message.contains(u'\n'),
                 qPrintable(finding.message));
    // It has to reach a line.
    options[Key::initializeItcm] = false;
    QCOMPARE(inShort(checkOptions(options, device, dir.path())), QStringList());

    const QVector<Finding> depth =
        checkOptions({{Key::enableCan, true}, {Key::canBufferDepth, name}}, device, dir.path());
    QVERIFY(!depth.isEmpty());
    QVERIFY(std::any_of(depth.begin(), depth.end(), [&named](const Finding &finding) {
        return finding.severity == Finding::Error && finding.message.contains(named);
    }));
}

void tst_Check::theOutputFolderCanBeUnsafeToo()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("e\"x"));
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/init")));
    const DEV::DeviceArg device = deviceNamed(QStringLiteral("TV2K-18"));
    QVERIFY(writeSmallestContents(dir.path()));
    QVERIFY(writeSmallestContents(folder + QStringLiteral("/init")));
    const auto check = [&](const QString &path) {
        return inShort(checkOptions({{Key::itcmSize, 0},
                                     {Key::initializeItcm, true},
                                     {Key::itcmInitializationPath, path},
                                     {Key::itcmInitializationAbsolutePath, dir.path()}},
                                    device, folder));
    };
    QCOMPARE(check(QStringLiteral("init")),
             QStringList{QStringLiteral("error ITCM_Initialization_Path")});
    QCOMPARE(check(dir.path()), QStringList());
}

void tst_Check::aNullDeviceIsNotJudged()
{
    QCOMPARE(
        inShort(checkOptions({{Key::enablePsram, true}, {Key::itcmSize, 9}, {Key::dtcmSize, 9}}, {},
                             QString())),
        QStringList());
}

void tst_Check::changesNothing()
{
    OptionMap options{{Key::enableCan, true}, {QStringLiteral("x"), 1}};
    const OptionMap before = options;
    QVERIFY(!checkOptions(options, deviceNamed(QStringLiteral("TV1KL-5A")), QString()).isEmpty());
    QCOMPARE(options, before);
}

TARVO_TEST_MAIN(QCoreApplication, tst_Check)

#include "tst_check.moc"
