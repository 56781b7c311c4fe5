#include "testsupport.h"

#include <registers/registerdocs.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

const char sound[] = R"({
  "peripheral": "LAMP", "module": "apb_lamp", "bus": "APB", "span": "0x1000", "text": "A lamp.",
  "instances": [ { "name": "LAMP", "base": "0x50003000", "interrupt": "3", "option": "Enable SPI" } ],
  "registers": [
    { "name": "LEVEL", "offset": "0x04", "text": "Brightness.", "changes": ["STATE"],
      "fields": [
        { "name": "ON", "bits": "0", "access": "R/W", "reset": "1", "text": "lit" },
        { "name": "VALUE", "bits": "11:4", "access": "R/W", "reset": "0x20", "minimum": "2", "text": "brightness" }
      ] },
    { "name": "STATE", "offset": "0x08", "text": "State.",
      "fields": [ { "name": "HOT", "bits": "31", "access": "R/W1C", "reset": null, "text": "too hot" } ] }
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
    void theDocumentIsTheOneInDocs();
    void theHeaderCompiles();

private:
    void write(const QByteArray &json)
    {
        QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("registers/lamp.json")), json));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_RegisterMap::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void tst_RegisterMap::readsWhatTheFileSays()
{
    write(sound);
    QVector<Peripheral> peripherals;
    QString error;
    QVERIFY2(readRegisterMap(m_dir->path(), &peripherals, &error), qPrintable(error));
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
    const RegisterField &hot = lamp.registers.at(1).fields.first();
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
    QVector<Peripheral> peripherals;
    QString error;
    QVERIFY(!readRegisterMap(m_dir->path(), &peripherals, &error));
    QVERIFY2(error.contains(message), qPrintable(error));
    QVERIFY2(error.contains(QLatin1String("lamp.json")), qPrintable(error));
}

void tst_RegisterMap::aFolderWithoutDescriptionsIsAnError()
{
    QVector<Peripheral> peripherals;
    QString error;
    QVERIFY(!readRegisterMap(m_dir->path(), &peripherals, &error));
    QVERIFY2(error.contains(m_dir->path()), qPrintable(error));
}

void tst_RegisterMap::leavesOutWhatIsSwitchedOff()
{
    QVector<Peripheral> all;
    QString error;
    QVERIFY2(readRegisterMap(QStringLiteral(TARVO_IP_DATA_DIR), &all, &error), qPrintable(error));
    QVERIFY(enabledPeripherals(all, {}).isEmpty());
    const OptionMap options = {{QStringLiteral("Enable UART1"), QStringLiteral("true")},
                               {QStringLiteral("Enable GPIO"), true},
                               {QStringLiteral("Enable SPI"), false}};
    const QVector<Peripheral> some = enabledPeripherals(all, options);
    QCOMPARE(some.size(), 2);
    QCOMPARE(some.at(0).name, QStringLiteral("GPIO"));
    QCOMPARE(some.at(1).instances.size(), 1);
    QCOMPARE(some.at(1).instances.first().name, QStringLiteral("UART1"));
}

// "orixm1 registers --markdown > docs/registers.md" makes it anew.
void tst_RegisterMap::theDocumentIsTheOneInDocs()
{
    QVector<Peripheral> all;
    QString error;
    QVERIFY2(readRegisterMap(QStringLiteral(TARVO_IP_DATA_DIR), &all, &error), qPrintable(error));
    QCOMPARE(QString::fromUtf8(TestSupport::contentsOf(QStringLiteral(DOCS_DIR "/registers.md"))),
             registersMarkdown(all));
}

void tst_RegisterMap::theHeaderCompiles()
{
    QVector<Peripheral> all;
    QString error;
    QVERIFY2(readRegisterMap(QStringLiteral(TARVO_IP_DATA_DIR), &all, &error), qPrintable(error));
    QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("registers.h")),
                               registersHeader(all).toUtf8()));
    QVERIFY(TestSupport::write(
        m_dir->filePath(QStringLiteral("use.c")),
        "#include \"registers.h\"\n"
        "_Static_assert(UART1_BASE + UART_STATUS_OFFSET == 0x50005004u, \"address\");\n"
        "_Static_assert(UART_STATUS_RXFULL_Msk == 1u << UART_STATUS_RXFULL_Pos, \"mask\");\n"
        "_Static_assert(SD_IRQ == 11 && WDOG_LOAD_CYCLES_Msk == 0xFFFFFFFFu, \"widest\");\n"));
    QProcess compiler;
    compiler.setWorkingDirectory(m_dir->path());
    compiler.start(QStringLiteral("cc"),
                   {QStringLiteral("-std=c11"), QStringLiteral("-Wall"), QStringLiteral("-Werror"),
                    QStringLiteral("-c"), QStringLiteral("use.c")});
    QVERIFY(compiler.waitForFinished());
    QVERIFY2(compiler.exitCode() == 0, compiler.readAllStandardError().constData());
}

TARVO_TEST_MAIN(QCoreApplication, tst_RegisterMap)

#include "tst_registermap.moc"
