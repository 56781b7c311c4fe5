#include "testsupport.h"

#include <config/blocks.h>
#include <generate/defines.h>
#include <registers/registerdocs.h>

#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

const char sound[] = R"({
  "peripheral": "LAMP", "module": "apb_lamp", "bus": "APB", "span": "0x1000", "text": "A lamp.",
  "instances": [ { "name": "LAMP", "text": "a light", "base": "0x50003000", "interrupt": "3", "option": "Enable SPI" } ],
  "registers": [
    { "name": "LEVEL", "offset": "0x04", "text": "Brightness.", "changes": ["STATE"],
      "fields": [
        { "name": "ON", "bits": "0", "access": "R/W", "reset": "1", "text": "lit" },
        { "name": "VALUE", "bits": "11:4", "access": "R/W", "reset": "0x20", "minimum": "2", "text": "brightness" }
      ] },
    { "name": "STATE", "offset": "0x08", "text": "State.",
      "words": [ { "name": "KEY", "value": "0xFFFFFFFF", "text": "opens" } ],
      "fields": [
        { "name": "SEEN", "bits": "0", "access": "R", "reset": "0", "read": "clear", "text": "has been lit" },
        { "name": "COLOUR", "bits": "3:1", "access": "R, W", "reset": "0", "read": "external", "write": "one-to-set", "text": "of the light",
          "values": [ { "name": "RED", "value": "0", "text": "warm" }, { "name": "BLUE", "value": "7", "text": "cold" } ] },
        { "name": "START", "bits": "4", "access": "W", "reset": "0", "write": "one-to-clear", "text": "starts" },
        { "name": "HOT", "bits": "31", "access": "R/W1C", "reset": null, "text": "too hot" } ] }
  ]
})";

} // namespace

class tst_RegisterMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsWhatTheFileSays();
    void namesFileAndPlaceOfAMistake_data();
    void namesFileAndPlaceOfAMistake();
    void aFolderWithoutDescriptionsIsAnError();
    void leavesOutWhatIsSwitchedOff();
    void aGroupOfSwitchesIsOnWithAnyOfThem_data();
    void aGroupOfSwitchesIsOnWithAnyOfThem();
    void interruptNumbersAreThoseOfTheRtl();
    void leavesOutMaskedInterrupts_data();
    void leavesOutMaskedInterrupts();
    void namesMistakesInTheOtherInterrupts_data();
    void namesMistakesInTheOtherInterrupts();
    void takesEveryInputOfTheProcessor_data();
    void takesEveryInputOfTheProcessor();
    void saysHowManyInputsAreEnough_data();
    void saysHowManyInputsAreEnough();
    void everyNarrowFieldNamesItsValues();
    void everyBlockSaysWhatItIs();
    void theDocumentSaysWhatIsUnusual();
    void theDocumentIsTheOneInDocs();
    void theHeaderCompiles();

private:
    // The shipped descriptions.
    QVector<Peripheral> m_all;
    QVector<InterruptSource> m_others;

    void write(const QByteArray &json)
    {
        QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("registers/lamp.json")), json));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_RegisterMap::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    const auto all = readRegisterMap(data);
    QVERIFY2(all, qPrintable(all.reason()));
    m_all = *all;
    const auto others = readOtherInterrupts(data);
    QVERIFY2(others, qPrintable(others.reason()));
    m_others = *others;
}

void tst_RegisterMap::readsWhatTheFileSays()
{
    write(sound);
    const auto read = readRegisterMap(m_dir->path());
    QVERIFY2(read, qPrintable(read.reason()));
    const QVector<Peripheral> peripherals = *read;
    QCOMPARE(peripherals.size(), 1);
    const Peripheral &lamp = peripherals.first();
    QCOMPARE(lamp.name, QStringLiteral("LAMP"));
    QCOMPARE(lamp.module, QStringLiteral("apb_lamp"));
    QCOMPARE(lamp.bus, QStringLiteral("APB"));
    QCOMPARE(lamp.span, 0x1000u);
    QCOMPARE(lamp.instances.size(), 1);
    QCOMPARE(lamp.instances.first().base, 0x50003000u);
    QCOMPARE(lamp.instances.first().interrupt, QStringLiteral("3"));
    QCOMPARE(lamp.instances.first().option, QStringLiteral("Enable SPI"));
    QCOMPARE(lamp.registers.size(), 2);
    const Register &level = lamp.registers.first();
    QCOMPARE(level.offset, 4u);
    QCOMPARE(level.changes, QStringList(QStringLiteral("STATE")));
    QCOMPARE(level.fields.at(1).mask(), 0xFF0u);
    QCOMPARE(level.fields.at(1).minimum, 2u);
    QCOMPARE(resetValue(level), 0x201u);
    QCOMPARE(lamp.instances.first().text, QStringLiteral("a light"));
    const Register &state = lamp.registers.at(1);
    QCOMPARE(state.words.size(), 1);
    QCOMPARE(state.words.first().name, QStringLiteral("KEY"));
    QCOMPARE(state.words.first().value, 0xFFFFFFFFu);
    const RegisterField &seen = state.fields.at(0);
    QCOMPARE(seen.readEffect, ReadEffect::Clear);
    QCOMPARE(seen.writeEffect, WriteEffect::Store);
    QVERIFY(seen.values.isEmpty());
    const RegisterField &colour = state.fields.at(1);
    QCOMPARE(colour.readEffect, ReadEffect::External);
    QCOMPARE(colour.writeEffect, WriteEffect::OneToSet);
    QCOMPARE(colour.values.size(), 2);
    QCOMPARE(colour.values.at(1).name, QStringLiteral("BLUE"));
    QCOMPARE(colour.values.at(1).value, 7u);
    QCOMPARE(colour.values.at(1).text, QStringLiteral("cold"));
    QCOMPARE(state.fields.at(2).writeEffect, WriteEffect::OneToClear);
    const RegisterField &hot = state.fields.at(3);
    QCOMPARE(hot.readEffect, ReadEffect::None);
    QCOMPARE(hot.writeEffect, WriteEffect::OneToClear);
    QCOMPARE(hot.mask(), 0x80000000u);
    QVERIFY(!hot.hasReset);
    QCOMPARE(accessName(hot.access), QStringLiteral("R/W1C"));
}

void tst_RegisterMap::namesFileAndPlaceOfAMistake_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const char *from, const char *to, const char *message) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << QString::fromUtf8(message);
    };
    row("no JSON", "\"bus\": \"APB\",", "\"bus\" \"APB\",", "line 2: ");
    row("unknown key", "\"span\"", "\"length\"", "unknown key \"length\"");
    row("unknown bus", "\"APB\"", "\"PCI\"", "\"bus\" is neither AHB nor APB");
    row("no name", "\"peripheral\": \"LAMP\"", "\"peripheral\": \"1 LAMP\"",
        "\"1 LAMP\" is no name");
    row("a line end in a name", "\"peripheral\": \"LAMP\"", "\"peripheral\": \"LAMP\\n\"",
        "\"peripheral\" is not one line");
    row("unknown switch", "Enable SPI", "Enable LAMP", "\"Enable LAMP\" is no switch");
    row("an option that is no switch", "Enable SPI", "ITCM_Size", "\"ITCM_Size\" is no switch");
    row("base that is no number", "0x50003000", "far", "\"base\" is no number");
    row("odd offset", "0x04", "0x05", "LEVEL: the offset is no word");
    row("offset beyond the span", "0x08", "0x1000", "STATE: the offset is no word within the span");
    row("offsets that fall", "0x08", "0x04", "STATE: the offset is not above");
    row("two of a name", "\"name\": \"STATE\"", "\"name\": \"LEVEL\"", "LEVEL: there are two");
    row("two fields of a name", "\"name\": \"VALUE\"", "\"name\": \"ON\"",
        "LEVEL: ON: there are two");
    row("bits that overlap", "11:4", "11:0", "LEVEL: VALUE: the bits are not above");
    row("a range upside down", "11:4", "4:11", "LEVEL: VALUE: \"bits\" is neither");
    row("a bit too high", "\"31\"", "\"32\"", "STATE: HOT: \"bits\" is neither");
    row("unknown access", "R/W1C", "R/W0C", "STATE: HOT: unknown access \"R/W0C\"");
    row("reset too large", "0x20", "0x120", "LEVEL: VALUE: a value does not fit");
    row("minimum too large", "\"minimum\": \"2\"", "\"minimum\": \"256\"", "does not fit");
    row("unknown change", "[\"STATE\"]", "[\"COLOUR\"]", "LEVEL: there is no register \"COLOUR\"");
    row("an instance without a purpose", "\"text\": \"a light\", ", "",
        "LAMP: \"text\" is no text");
    row("an empty purpose", "a light", " ", "LAMP: \"text\" is empty");
    row("unknown effect of reading", "\"external\"", "\"outside\"",
        "STATE: COLOUR: unknown effect of reading \"outside\"");
    row("an effect of reading that is no text", "\"read\": \"clear\"", "\"read\": true",
        "STATE: SEEN: \"read\" is no text");
    row("reading changes a field that reads as 0", "\"write\": \"one-to-clear\"",
        "\"read\": \"set\"", "STATE: START: \"read\" is \"set\" of a field that reads as 0");
    row("unknown effect of writing", "\"one-to-set\"", "\"zero-to-set\"",
        "STATE: COLOUR: unknown effect of writing \"zero-to-set\"");
    row("writing a field that cannot be written", "\"read\": \"clear\"",
        "\"write\": \"one-to-set\"",
        "STATE: SEEN: \"write\" is \"one-to-set\" of a field with the access \"R\"");
    row("ones that are stored as written", "\"reset\": \"1\"",
        "\"reset\": \"1\", \"write\": \"one-to-set\"",
        "LEVEL: ON: \"write\" is \"one-to-set\" of a field with the access \"R/W\"");
    row("ones that clear and set", "\"reset\": null", "\"reset\": null, \"write\": \"one-to-set\"",
        "STATE: HOT: \"write\" is \"one-to-set\" of a field with the access \"R/W1C\"");
    row("no values", "\"text\": \"lit\"", "\"text\": \"lit\", \"values\": []",
        "LEVEL: ON: \"values\" is no list, or empty");
    row("a value beyond the bits", "\"value\": \"7\"", "\"value\": \"8\"",
        "STATE: COLOUR: BLUE: the value does not fit");
    row("a value beyond the word", "0xFFFFFFFF", "0x100000000",
        "STATE: KEY: \"value\" is no number");
    row("values that fall", "\"value\": \"7\"", "\"value\": \"0\"",
        "STATE: COLOUR: BLUE: the value is not above the one before");
    row("a value below the minimum", "\"text\": \"brightness\"",
        "\"text\": \"brightness\", \"values\": [{ \"name\": \"A\", \"value\": \"1\", \"text\": "
        "\"a\" }]",
        "LEVEL: VALUE: A: the value is below the minimum");
    row("two values of a name", "BLUE", "RED", "STATE: COLOUR: RED: there are two values");
    row("a value without a name", "BLUE", "2", "STATE: COLOUR: \"2\" is no name");
    row("a value without a text", ", \"text\": \"cold\"", "",
        "STATE: COLOUR: BLUE: \"text\" is no text");
    row("an unknown word beside a value", "\"value\": \"7\"",
        "\"value\": \"7\", \"usage\": \"read\"", "STATE: COLOUR: BLUE: unknown key \"usage\"");
    row("words for a register that is only read",
        "\"text\": \"Brightness.\", \"changes\": [\"STATE\"],\n      \"fields\": [",
        "\"text\": \"Brightness.\", \"words\": [{ \"name\": \"A\", \"value\": \"1\", \"text\": "
        "\"a\" }],\n"
        "      \"fields\": [ { \"name\": \"B\", \"bits\": \"0\", \"access\": \"R\", \"reset\": "
        "\"0\", \"text\": \"b\" } ] },\n"
        "    { \"name\": \"OTHER\", \"offset\": \"0x06\", \"text\": \"c\", \"fields\": [",
        "LEVEL: \"words\" of a register that cannot be written");
    for (const char *interrupt : {"32", "-1", "03", "three", "nmi"}) {
        const QByteArray after = QByteArray("\"interrupt\": \"") + interrupt + '"';
        row(interrupt, "\"interrupt\": \"3\"", after.constData(),
            "LAMP: the interrupt is neither \"NMI\" nor a number from 0 to 31");
    }
    row("polled neither true nor false", "\"interrupt\": \"3\"",
        "\"interrupt\": \"3\", \"polled\": \"yes\"", "LAMP: \"polled\" is neither true nor false");
    row("polled without an interrupt", "\"interrupt\": \"3\"", "\"polled\": true",
        "LAMP: \"polled\" is neither true nor false, or of no interrupt");
    row("missing text", "\"text\": \"Brightness.\", ", "", "LEVEL: \"text\" is no text");
}

void tst_RegisterMap::namesFileAndPlaceOfAMistake()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, message);
    QByteArray json(sound);
    QVERIFY(json.contains(from));
    write(json.replace(from, to));
    const auto read = readRegisterMap(m_dir->path());
    QVERIFY(!read);
    const QString error = read.reason();
    QVERIFY2(error.contains(message), qPrintable(error));
    QVERIFY2(error.contains(QLatin1String("lamp.json")), qPrintable(error));
}

void tst_RegisterMap::aFolderWithoutDescriptionsIsAnError()
{
    const auto read = readRegisterMap(m_dir->path());
    QVERIFY(!read);
    const QString error = read.reason();
    QVERIFY2(error.contains(m_dir->path()), qPrintable(error));
}

void tst_RegisterMap::leavesOutWhatIsSwitchedOff()
{
    QVERIFY(enabledPeripherals(m_all, {}).isEmpty());
    const OptionMap options = {{QStringLiteral("Enable UART1"), QStringLiteral("true")},
                               {QStringLiteral("Enable GPIO"), true},
                               {QStringLiteral("Enable SPI"), false}};
    const QVector<Peripheral> some = enabledPeripherals(m_all, options);
    QCOMPARE(some.size(), 3);
    QCOMPARE(some.at(0).name, QStringLiteral("GPIO"));
    QCOMPARE(some.at(1).instances.size(), 1);
    QCOMPARE(some.at(1).instances.first().name, QStringLiteral("UART1"));
    QCOMPARE(some.at(2).name, QStringLiteral("SYS"));
}

void tst_RegisterMap::aGroupOfSwitchesIsOnWithAnyOfThem_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("on");
    for (const Block &block : blocks()) {
        for (const SwitchRow &entry : block.switches)
            QTest::newRow(qPrintable(entry.key()))
                << entry.key()
                << (block.bus == Bus::Apb && !block.hasPorts() && !entry.isInterface);
    }
}

// What hangs on the internal APB bus is there exactly when generation makes that bus.
void tst_RegisterMap::aGroupOfSwitchesIsOnWithAnyOfThem()
{
    QFETCH(QString, key);
    QFETCH(bool, on);
    const OptionMap options = {{key, true}};
    QCOMPARE(isSwitchedOn(options, anyApbPeripheral), on);
    const QVector<Peripheral> some = enabledPeripherals(m_all, options);
    QCOMPARE(std::any_of(some.begin(), some.end(),
                         [](const Peripheral &p) { return p.name == QLatin1String("SYS"); }),
             on);
    PeripheralDefines defines;
    buildPeripheralDefines(options, DEV::DeviceArg(), defines);
    QCOMPARE(defines.busLines.contains(QStringLiteral("`define TARVO_APBINT_SUPPORT")), on);
}

void tst_RegisterMap::interruptNumbersAreThoseOfTheRtl()
{
    const QString defines = QString::fromUtf8(
        TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR "/data/debug/define.vh")));
    QMap<QString, int> expected;
    const QRegularExpression line(QStringLiteral("^`define ORIX_IRQ_(\\w+) +(\\d+)$"),
                                  QRegularExpression::MultilineOption);
    for (auto it = line.globalMatch(defines); it.hasNext();) {
        const auto match = it.next();
        expected.insert(match.captured(1), match.captured(2).toInt());
    }
    QMap<QString, int> actual;
    int last = -1;
    for (const InterruptSource &source : interruptSources(m_all, m_others)) {
        QVERIFY2(source.number > last, qPrintable(source.name)); // none twice
        last = source.number + source.count - 1;
        actual.insert(source.name, source.number);
    }
    QCOMPARE(actual, expected);
    QVERIFY(actual.size() >= 14);
}

void tst_RegisterMap::leavesOutMaskedInterrupts_data()
{
    QTest::addColumn<int>("inputs");
    QTest::addColumn<QStringList>("masked");
    const auto row = [](int inputs, std::initializer_list<const char *> names) {
        QStringList list;
        for (const char *name : names)
            list.append(QString::fromLatin1(name));
        QTest::newRow(qPrintable(QStringLiteral("%1 inputs").arg(inputs))) << inputs << list;
    };
    row(1, {"UART1 8", "TIMER0 8", "TIMER1 8", "GPIO 8", "DTIMER 8", "I2C 8", "RTC 8", "SPI 16",
            "CAN 16", "ETH 16", "SD 16", "EXTINT 16", "TRNG 32"});
    row(8, {"SPI 16", "CAN 16", "ETH 16", "SD 16", "EXTINT 16", "TRNG 32"});
    row(16, {"TRNG 32"});
    row(32, {});
}

void tst_RegisterMap::leavesOutMaskedInterrupts()
{
    QFETCH(int, inputs);
    QFETCH(QStringList, masked);
    OptionMap options = {{QStringLiteral("Number of Interrupts"), QString::number(inputs)}};
    const QVector<InterruptSource> sources = interruptSources(m_all, m_others);
    for (const InterruptSource &source : sources)
        options.insert(source.option, true); // or the name of a group, which does nothing
    options.insert(QStringLiteral("Enable WatchDog"), true);

    QStringList found;
    for (const Finding &finding : interruptFindings(sources, options)) {
        QCOMPARE(finding.severity, Finding::Warning);
        static const QRegularExpression form(
            QStringLiteral("^(\\w+) never interrupts: its interrupts? .* masked: \"Number of "
                           "Interrupts\" is %1, and (\\d+) would be enough$")
                .arg(QStringLiteral("\\d+")));
        const auto match = form.match(finding.message);
        QVERIFY2(match.hasMatch(), qPrintable(finding.message));
        QVERIFY(finding.message.contains(QStringLiteral("is %1,").arg(inputs)));
        found.append(match.captured(1) + u' ' + match.captured(2));
    }
    QCOMPARE(found, masked);

    // Nobody is warned of one that can be polled; all the same it is left out.
    if (inputs < 32)
        masked.append(QStringLiteral("SYS 32"));

    // A number that cannot interrupt stands in no document, and the reason does.
    const QVector<Peripheral> some = enabledPeripherals(m_all, options);
    const QVector<OtherInterrupt> others = otherInterrupts(m_others, &options);
    const QString header = registersHeader(some, others);
    const QString document = registersMarkdown(some, others);
    for (const InterruptSource &source : sources) {
        const bool isMasked = !masked.filter(source.name + u' ').isEmpty();
        const QString name = source.name + (source.count == 1 ? QString() : QStringLiteral("0")) +
                             QStringLiteral("_IRQ");
        const QRegularExpression define(QStringLiteral("^#define %1 +\\d+$").arg(name),
                                        QRegularExpression::MultilineOption);
        const QRegularExpression reason(
            QStringLiteral("^/\\* %1 is left out: .* would be enough\\. \\*/$").arg(name),
            QRegularExpression::MultilineOption);
        QCOMPARE(define.match(header).hasMatch(), !isMasked);
        QCOMPARE(reason.match(header).hasMatch(), isMasked);
        const QRegularExpression row(
            QStringLiteral("^\\| %1 \\|(.*\\|)? none: its interrupt").arg(source.name),
            QRegularExpression::MultilineOption);
        QCOMPARE(row.match(document).hasMatch(), isMasked);
    }
    QVERIFY(document.contains(QStringLiteral("| WDOG | 0x50008000 | APB | NMI | WDOG |")));
}

void tst_RegisterMap::namesMistakesInTheOtherInterrupts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("message");
    QTest::newRow("no JSON") << QByteArray("{\n{") << QStringLiteral("line 2");
    QTest::newRow("no name") << QByteArray(R"({"interrupts": [{"number": 3}]})")
                             << QStringLiteral("no name");
    QTest::newRow("no number") << QByteArray(
                                      R"({"interrupts": [{"name": "A", "option": "Enable CAN"}]})")
                               << QStringLiteral("A: the number");
    QTest::newRow("beyond the last input")
        << QByteArray(
               R"({"interrupts": [{"name": "A", "number": 30, "count": 3, "option": "Enable CAN"}]})")
        << QStringLiteral("A: the number");
    QTest::newRow("one beyond the last input")
        << QByteArray(
               R"({"interrupts": [{"name": "A", "number": 29, "count": 4, "option": "Enable CAN"}]})")
        << QStringLiteral("A: the number");
    QTest::newRow("one before the first input")
        << QByteArray(R"({"interrupts": [{"name": "A", "number": -1, "option": "Enable CAN"}]})")
        << QStringLiteral("A: the number");
    QTest::newRow("no input at all")
        << QByteArray(
               R"({"interrupts": [{"name": "A", "number": 3, "count": 0, "option": "Enable CAN"}]})")
        << QStringLiteral("A: the number is none from 0 to 31");
    QTest::newRow("no switch")
        << QByteArray(R"({"interrupts": [{"name": "A", "number": 3, "option": "ITCM_Size"}]})")
        << QStringLiteral("\"ITCM_Size\" is no switch");
    QTest::newRow("not UTF-8") << QByteArray("{\"interrupts\": [],\n\"\xff\": 1}")
                               << QStringLiteral("line 2: invalid UTF8");
    QTest::newRow("no list") << QByteArray(R"({"interupts": []})")
                             << QStringLiteral("\"interrupts\" is no list");
    QTest::newRow("unknown word")
        << QByteArray(
               R"({"interrupts": [{"name": "A", "numbre": 1, "number": 3, "option": "Enable CAN"}]})")
        << QStringLiteral("numbre");
}

void tst_RegisterMap::namesMistakesInTheOtherInterrupts()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, message);
    QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("interrupts.json")), json));
    const auto read = readOtherInterrupts(m_dir->path());
    QVERIFY(!read);
    const QString error = read.reason();
    QVERIFY2(error.contains(message) && error.contains(QStringLiteral("interrupts.json")),
             qPrintable(error));
}

void tst_RegisterMap::takesEveryInputOfTheProcessor_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("count");
    QTest::newRow("the first") << QByteArray(R"("number": 0)") << 0 << 1;
    QTest::newRow("the last") << QByteArray(R"("number": 31)") << 31 << 1;
    QTest::newRow("the last four") << QByteArray(R"("number": 28, "count": 4)") << 28 << 4;
    QTest::newRow("all") << QByteArray(R"("number": 0, "count": 32)") << 0 << 32;
}

void tst_RegisterMap::takesEveryInputOfTheProcessor()
{
    QFETCH(QByteArray, place);
    QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("interrupts.json")),
                               R"({"interrupts": [{"name": "A", "option": "Enable CAN", )" + place +
                                   "}]}"));
    const auto sources = readOtherInterrupts(m_dir->path());
    QVERIFY2(sources, qPrintable(sources.reason()));
    QCOMPARE(sources->size(), 1);
    QTEST(sources->first().number, "number");
    QTEST(sources->first().count, "count");
}

void tst_RegisterMap::saysHowManyInputsAreEnough_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("inputs");
    QTest::addColumn<QString>("message"); // empty: none is masked
    QTest::newRow("the last input") << 7 << 1 << 8 << QString();
    QTest::newRow("one after it")
        << 8 << 1 << 8
        << QStringLiteral("its interrupt 8 is masked: \"Number of Interrupts\" is 8, and 16 would "
                          "be enough");
    QTest::newRow("up to the last input") << 12 << 4 << 16 << QString();
    QTest::newRow("one of several after it")
        << 13 << 4 << 16
        << QStringLiteral("its interrupts 13 to 16 are masked: \"Number of Interrupts\" is 16, and "
                          "32 would be enough");
    QTest::newRow("two of which the first comes")
        << 0 << 2 << 1
        << QStringLiteral("its interrupts 0 to 1 are masked: \"Number of Interrupts\" is 1, and 8 "
                          "would be enough");
    QTest::newRow("the last input of all") << 31 << 1 << 32 << QString();
}

void tst_RegisterMap::saysHowManyInputsAreEnough()
{
    QFETCH(int, number);
    QFETCH(int, count);
    QFETCH(int, inputs);
    const InterruptSource source = {QStringLiteral("A"), number, count,
                                    QStringLiteral("Enable CAN")};
    QTEST(maskedInterrupt(source, {{QStringLiteral("Number of Interrupts"), inputs}}), "message");
}

// Below six bits nothing that is shipped is a plain number.
void tst_RegisterMap::everyNarrowFieldNamesItsValues()
{
    int fields = 0;
    for (const Peripheral &peripheral : qAsConst(m_all)) {
        for (const Register &entry : peripheral.registers) {
            for (const RegisterField &field : entry.fields) {
                const QString what = peripheral.name + u'.' + entry.name + u'.' + field.name;
                if (field.width() >= 6)
                    continue;
                QVERIFY2(field.values.size() == 1 << field.width(), qPrintable(what));
                ++fields;
            }
        }
    }
    QVERIFY(fields >= 50);
}

// At the same place, in the same words, each with a number of its own.
void tst_RegisterMap::everyBlockSaysWhatItIs()
{
    QSet<quint32> kinds;
    for (const Peripheral &peripheral : qAsConst(m_all)) {
        const Register &id = peripheral.registers.last();
        QCOMPARE(id.name, QStringLiteral("ID"));
        QCOMPARE(id.offset, 0xFFCu);
        QCOMPARE(id.text, QStringLiteral("What this block is."));
        for (const RegisterField &field : id.fields)
            QVERIFY(field.access == RegisterAccess::Read && field.hasReset);
        const RegisterField &kind = id.fields.at(0);
        const RegisterField &revision = id.fields.at(1);
        QCOMPARE(kind.name, QStringLiteral("BLOCK"));
        QCOMPARE(kind.mask(), 0xFFu);
        QCOMPARE(kind.text, QStringLiteral("kind of block"));
        QVERIFY2(kind.reset != 0 && !kinds.contains(kind.reset), qPrintable(peripheral.name));
        kinds.insert(kind.reset);
        QCOMPARE(revision.name, QStringLiteral("REVISION"));
        QCOMPARE(revision.mask(), 0xFF00u);
        QCOMPARE(revision.text, QStringLiteral("revision of its registers"));
    }
    QCOMPARE(kinds.size(), m_all.size());
}

void tst_RegisterMap::theDocumentSaysWhatIsUnusual()
{
    write(sound);
    const auto read = readRegisterMap(m_dir->path());
    QVERIFY2(read, qPrintable(read.reason()));
    const QString document = registersMarkdown(*read, {});
    for (const char *row : {"| LAMP | 0x50003000 | APB | 3 | LAMP | a light |\n",
                            "| State. |\n| | | | | | | 0xFFFFFFFF = KEY: opens |\n",
                            "| has been lit |\n| | | | | | | reading clears it |\n",
                            "| of the light |\n| | | | | | | reading changes something else |\n"
                            "| | | | | | | writing 0 does nothing |\n"
                            "| | | | | | | 0 = RED: warm |\n| | | | | | | 7 = BLUE: cold |\n",
                            "| starts |\n| | | | | | | writing 0 does nothing |\n",
                            "| brightness (at least 2) |\n| 0x08 ", "| too hot |\n"})
        QVERIFY2(document.contains(QLatin1String(row)), row);
    QVERIFY(document.endsWith(QLatin1String("| too hot |\n")));
}

// "orixm1 registers --markdown > docs/registers.md" makes it anew.
void tst_RegisterMap::theDocumentIsTheOneInDocs()
{
    QCOMPARE(QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(DOCS_DIR "/registers.md"))),
             registersMarkdown(m_all, otherInterrupts(m_others, nullptr)));
}

void tst_RegisterMap::theHeaderCompiles()
{
    QVERIFY(
        TestSupport::write(m_dir->filePath(QStringLiteral("registers.h")),
                           registersHeader(m_all, otherInterrupts(m_others, nullptr)).toUtf8()));
    QVERIFY(TestSupport::write(
        m_dir->filePath(QStringLiteral("use.c")),
        "#include \"registers.h\"\n"
        "_Static_assert(UART1_BASE + UART_STATUS_OFFSET == 0x50005004u, \"address\");\n"
        "_Static_assert(UART_STATUS_RXFULL_Msk == 1u << UART_STATUS_RXFULL_Pos, \"mask\");\n"
        "_Static_assert(CAN_IRQ == 9 && EXTINT3_IRQ == 15 && TRNG_IRQ == 16, \"others\");\n"
        "_Static_assert(SD_IRQ == 11 && WDOG_LOAD_CYCLES_Msk == 0xFFFFFFFFu, \"widest\");\n"));
    QProcess compiler;
    compiler.setWorkingDirectory(m_dir->path());
    compiler.start(QStringLiteral("cc"),
                   {QStringLiteral("-std=c11"), QStringLiteral("-Wall"), QStringLiteral("-Werror"),
                    QStringLiteral("-c"), QStringLiteral("use.c")});
    QVERIFY(compiler.waitForFinished(-1));
    QVERIFY2(compiler.exitCode() == 0, compiler.readAllStandardError().constData());
}

TARVO_TEST_MAIN(QCoreApplication, tst_RegisterMap)

#include "tst_registermap.moc"
