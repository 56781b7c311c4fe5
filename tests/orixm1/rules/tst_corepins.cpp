#include "testsupport.h"

#include <config/optionkeys.h>
#include <rules/corepins.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;
using Utils::PinFigure;

namespace
{

QStringList namesOf(const QList<PinFigure> &pins)
{
    QStringList names;
    for (const PinFigure &pin : pins)
        names.append(pin.name());
    return names;
}

struct Result {
    int status;
    QByteArray output;
    QByteArray errors;
};

Result run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(ORIXM1_PROGRAM), arguments);
    process.waitForFinished(-1);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class tst_CorePins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAnythingThreeRemain();
    void serialWireHasSix();
    void jtagHasTwenty();
    void jtagNeedsDebug();
    void everythingHasFiftyThree();
    void directionDecidesTheSide();
    void memoryPortsAreWholeAndInOrder();
    void anEmptyMapIsTheDefaultCore();
    void internalMemoryWins_data();
    void internalMemoryWins();
    void unknownPortsHaveNoJtag();
    void textsCountAsInAFile();
    void theProgramListsThem();
};

void tst_CorePins::withoutAnythingThreeRemain()
{
    const QList<PinFigure> expected = {{QStringLiteral("HCLK"), 0, false, Qt::AlignLeft},
                                       {QStringLiteral("hwRstn"), 0, false, Qt::AlignLeft},
                                       {QStringLiteral("LOCKUP"), 1, false, Qt::AlignRight}};
    QCOMPARE(corePins({}), expected);
}

void tst_CorePins::serialWireHasSix()
{
    CoreSwitches switches;
    switches.debug = true;
    const QList<PinFigure> pins = corePins(switches);
    QCOMPARE(pins.size(), 6);
    QCOMPARE(pins.at(3), PinFigure(QStringLiteral("HALTED"), 1, false, Qt::AlignRight));
    QCOMPARE(pins.at(5), PinFigure(QStringLiteral("JTAG_9"), 2, false, Qt::AlignRight));
}

void tst_CorePins::jtagHasTwenty()
{
    CoreSwitches switches;
    switches.debug = switches.jtag = true;
    const QStringList names = namesOf(corePins(switches));
    QCOMPARE(names.size(), 20);
    QCOMPARE(names.mid(6).join(u' '),
             QStringLiteral("JTAG_3 JTAG_4 JTAG_5 JTAG_6 JTAG_8 JTAG_10 JTAG_11 JTAG_12 JTAG_13 "
                            "JTAG_14 JTAG_15 JTAG_16 JTAG_17 JTAG_18"));
}

void tst_CorePins::jtagNeedsDebug()
{
    CoreSwitches switches;
    switches.jtag = true;
    QCOMPARE(corePins(switches).size(), 3);
}

void tst_CorePins::everythingHasFiftyThree()
{
    QCOMPARE(corePins({true, true, true, true, true}).size(), 3 + 3 + 14 + 1 + 16 + 16);
}

void tst_CorePins::directionDecidesTheSide()
{
    for (const PinFigure &pin : corePins({true, true, true, true, true})) {
        QCOMPARE(pin.side(), pin.direction() == 0 ? Qt::AlignLeft : Qt::AlignRight);
        QCOMPARE(pin.isBus(), pin.name().contains(u'['));
    }
}

void tst_CorePins::memoryPortsAreWholeAndInOrder()
{
    CoreSwitches switches;
    switches.externalInstructionMemory = true;
    switches.externalDataMemory = true;
    const QList<PinFigure> pins = corePins(switches).mid(3);
    QCOMPARE(pins.size(), 32);
    QCOMPARE(pins.at(0),
             PinFigure(QStringLiteral("EXTFLASH0HRDATA[31:0]"), 0, true, Qt::AlignLeft));
    QCOMPARE(pins.at(14), PinFigure(QStringLiteral("EXTFLASH0HCLK"), 1, false, Qt::AlignRight));
    QCOMPARE(pins.at(15).name(), QStringLiteral("EXTFLASH0HRESET"));
    const QStringList names = namesOf(pins);
    QStringList data = names.mid(16);
    QCOMPARE(data.replaceInStrings(QStringLiteral("EXTSRAM0"), QStringLiteral("EXTFLASH0")),
             names.mid(0, 16));
    QCOMPARE(names.mid(0, 16).join(u' ').remove(QStringLiteral("EXTFLASH0")),
             QStringLiteral("HRDATA[31:0] HREADYOUT HRESP[1:0] HTRANS[1:0] HBURST[2:0] HPROT[3:0] "
                            "HSIZE[2:0] HWRITE HREADYMUX HMASTER[3:0] HMASTLOCK HADDR[31:0] "
                            "HWDATA[31:0] HSEL HCLK HRESET"));
}

void tst_CorePins::anEmptyMapIsTheDefaultCore()
{
    QCOMPARE(corePins(coreSwitches({})).size(), 20);
}

void tst_CorePins::internalMemoryWins_data()
{
    QTest::addColumn<OptionMap>("map");
    QTest::addColumn<bool>("flash");
    QTest::addColumn<bool>("sram");
    const QString internalCode = Key::internalInstructionMemory;
    const QString externalCode = Key::externalInstructionMemory;
    const QString internalData = Key::internalDataMemory;
    const QString externalData = Key::externalDataMemory;
    QTest::newRow("external instructions alone are not enough")
        << OptionMap{{externalCode, true}} << false << false;
    QTest::newRow("external data alone is not enough")
        << OptionMap{{externalData, true}} << false << false;
    QTest::newRow("instructions in both")
        << OptionMap{{internalCode, true}, {externalCode, true}} << false << false;
    QTest::newRow("data in both") << OptionMap{{internalData, true}, {externalData, true}} << false
                                  << false;
    QTest::newRow("instructions in neither") << OptionMap{{internalCode, false}} << false << false;
    QTest::newRow("data in neither") << OptionMap{{internalData, false}} << false << false;
    QTest::newRow("external instructions")
        << OptionMap{{internalCode, false}, {externalCode, true}} << true << false;
    QTest::newRow("external data")
        << OptionMap{{internalData, false}, {externalData, true}} << false << true;
    QTest::newRow("both external") << OptionMap{{internalCode, false},
                                                {externalCode, true},
                                                {internalData, false},
                                                {externalData, true}}
                                   << true << true;
}

void tst_CorePins::internalMemoryWins()
{
    QFETCH(OptionMap, map);
    const CoreSwitches switches = coreSwitches(map);
    QTEST(switches.externalInstructionMemory, "flash");
    QTEST(switches.externalDataMemory, "sram");
}

void tst_CorePins::unknownPortsHaveNoJtag()
{
    QCOMPARE(corePins(coreSwitches({{Key::debugPortSelect, QStringLiteral("other")}})).size(), 6);
    QCOMPARE(corePins(coreSwitches({{Key::debugPortSelect, QString(Value::serialWire)}})).size(),
             6);
    QCOMPARE(corePins(coreSwitches({{Key::debugPortSelect, QString(Value::jtag)}})).size(), 20);
}

void tst_CorePins::textsCountAsInAFile()
{
    const OptionMap map = {{Key::enableDebug, QStringLiteral("false")},
                           {Key::externalInterrupts, QStringLiteral("true")},
                           {Key::numberOfInterrupts, QStringLiteral("8")}};
    QCOMPARE(namesOf(corePins(coreSwitches(map))).join(u' '),
             QStringLiteral("HCLK hwRstn LOCKUP EXTINT[3:0]"));
}

void tst_CorePins::theProgramListsThem()
{
    const QTemporaryDir folder;
    const Result made =
        run({QStringLiteral("new"), QStringLiteral("--device"),
             QStringLiteral("TV2KR-18C-QFN88P-C8/I7"), QStringLiteral("--set"),
             QStringLiteral("Debug Port Select=Serial Wire"), QStringLiteral("--set"),
             QStringLiteral("External Interrupts=true"), QStringLiteral("--out"), folder.path()});
    QVERIFY2(made.status == 0, made.errors.constData());
    const QStringList files = QDir(folder.path()).entryList({QStringLiteral("tarvo*.ipc")});
    QCOMPARE(files.size(), 1);
    const QString path = folder.filePath(files.first());

    const Result text = run({QStringLiteral("pins"), path});
    QVERIFY2(text.status == 0, text.errors.constData());
    QCOMPARE(text.output, QByteArray("PIN          DIRECTION  BLOCK\n"
                                     "HCLK         input      Cortex-M1\n"
                                     "hwRstn       input      Cortex-M1\n"
                                     "LOCKUP       output     Cortex-M1\n"
                                     "HALTED       output     Cortex-M1\n"
                                     "JTAG_7       inout      Cortex-M1\n"
                                     "JTAG_9       inout      Cortex-M1\n"
                                     "EXTINT[3:0]  input      Cortex-M1\n"));

    const Result json = run({QStringLiteral("pins"), path, QStringLiteral("--json")});
    QCOMPARE(json.status, 0);
    const QJsonArray pins =
        QJsonDocument::fromJson(json.output).object().value(QStringLiteral("pins")).toArray();
    QCOMPARE(pins.size(), 7);
    const QJsonObject last = pins.last().toObject();
    QCOMPARE(last, QJsonObject({{QStringLiteral("block"), QStringLiteral("Cortex-M1")},
                                {QStringLiteral("name"), QStringLiteral("EXTINT[3:0]")},
                                {QStringLiteral("direction"), QStringLiteral("input")},
                                {QStringLiteral("bus"), true}}));

    const Result missing =
        run({QStringLiteral("pins"), folder.filePath(QStringLiteral("none.ipc"))});
    QCOMPARE(missing.status, 3);
    QVERIFY(missing.output.isEmpty());
    QVERIFY(missing.errors.contains("none.ipc"));
}

QTEST_GUILESS_MAIN(tst_CorePins)
#include "tst_corepins.moc"
