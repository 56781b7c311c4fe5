#include <simulate/simulationreport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>
#include <QtTest>

using namespace Cli;
using namespace TARVOORIXM1;

namespace
{

RunPlace placeOf(quint32 address, const char *function, const char *file, int line)
{
    RunPlace place;
    place.address = address;
    place.source = {QString::fromLatin1(function), QString::fromLatin1(file), line};
    return place;
}

// A run that failed, with one of everything.
struct Sample {
    Sample()
    {
        arguments.file = QStringLiteral("/x/node.ipc");
        arguments.sources = QStringList{QStringLiteral("main.c")};
        arguments.timeout = 9000;
        Region uart;
        uart.name = QStringLiteral("UART0");
        map.regions = {uart};
        end.result = SimulationEnd::Failed;
        end.reason = QStringLiteral("BKPT 7 at 0x00000124");
        end.cycles = 5000;
        end.uarts.insert(0, "hi\n");
        end.uartBytes.insert(0, 3);

        RunDetails told;
        told.instructions = 1000;
        told.asleep = 200;
        told.starts = 1;
        told.end = placeOf(0x124, "main", "/x/main.c", 12);
        told.blocks = {{QStringLiteral("UART0"), 3, 4, {QStringLiteral("CTRL")}, true},
                       {QString(), 1, 0, {}, true}};
        told.exceptions = {{QStringLiteral("HardFault"), 3, 1}};
        told.interruptsNeverTaken = QStringList{QStringLiteral("UART0")};
        told.errors = {
            {0x90000000, 4, false, {}, placeOf(0x130, "poke", "/x/main.c", 3)},
        };
        told.errorCount = 102;
        told.faults = {
            {QStringLiteral("an access got a bus error"), placeOf(0x130, "poke", "/x/main.c", 3)}};
        told.faultCount = 1;
        told.unknownReads = {{0x40000000, 0xFF, QStringLiteral("UART0"), placeOf(0x8, "", "", 0)}};
        told.unknownCount = 1;
        details = told;
    }

    SimulationReport report() const { return {arguments, map, end, details}; }
    QByteArray in(const char *file) const
    {
        return documentOf(report(), QString::fromLatin1(file));
    }

    SimulateArguments arguments;
    SystemMap map;
    SimulationEnd end;
    std::optional<RunDetails> details;
};

const char wholeText[] =
    R"(Failed after 5000 clock cycles: BKPT 7 at 0x00000124.
The program was at 0x00000124, main() in /x/main.c:12.
1 hard fault, at 0x00000130, poke() in /x/main.c:3 (an access got a bus error).
102 bus errors, the first one at 0x00000130, poke() in /x/main.c:3 (reading 4 bytes at 0x90000000, in no block).
UART0 has sent 3 bytes.
The model executes an instruction a clock cycle: instruction counts are no cycle counts of the processor.

Configuration: /x/node.ipc
Program: main.c

Instructions: 1000
Clock cycles asleep: 200
Starts from the vector table: 1

Accesses of blocks on the bus:
  UART0: 3 reads, 4 writes; never touched: CTRL
  no block: 1 reads, 0 writes

Exceptions taken:
  HardFault: 1
  never: UART0

Bus errors: 102
  reading 4 bytes at 0x90000000, in no block, at 0x00000130, poke() in /x/main.c:3
  and 101 more

Hard faults: 1
  an access got a bus error, at 0x00000130, poke() in /x/main.c:3

Reads with unknown bits: 1
  bits 0x000000FF of 0x40000000, in UART0, at 0x00000008
)";

} // namespace

class tst_SimulationReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSuffixChoosesTheForm_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("text") << QStringLiteral("a.txt") << QByteArray("Failed after ");
        QTest::newRow("JUnit") << QStringLiteral("/b.c/a.XML") << QByteArray("<?xml ");
        QTest::newRow("JSON") << QStringLiteral("a.json") << QByteArray("{\n");
        QTest::newRow("another suffix") << QStringLiteral("a.xml.log") << QByteArray("{\n");
        QTest::newRow("none") << QStringLiteral("a") << QByteArray("{\n");
    }

    void theSuffixChoosesTheForm()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, begin);
        const QByteArray bytes = documentOf(Sample().report(), file);
        QVERIFY2(bytes.startsWith(begin), bytes.left(50).constData());
    }

    void theTextTellsEverything()
    {
        const QByteArray text = Sample().in("a.txt");
        QVERIFY2(text == wholeText, text.constData());
    }

    void theDocumentHasEverything()
    {
        const QJsonObject object = QJsonDocument::fromJson(Sample().in("a.json")).object();
        const QJsonObject place{{QStringLiteral("address"), QStringLiteral("0x00000130")},
                                {QStringLiteral("function"), QStringLiteral("poke")},
                                {QStringLiteral("file"), QStringLiteral("/x/main.c")},
                                {QStringLiteral("line"), 3}};
        const QJsonObject errors = object.value(QLatin1String("busErrors")).toObject();
        QCOMPARE(errors.value(QLatin1String("count")).toInt(), 102);
        QCOMPARE(errors.value(QLatin1String("first")).toArray().first().toObject(),
                 (QJsonObject{{QStringLiteral("address"), QStringLiteral("0x90000000")},
                              {QStringLiteral("access"), QStringLiteral("read")},
                              {QStringLiteral("bytes"), 4},
                              {QStringLiteral("block"), QString()},
                              {QStringLiteral("place"), place}}));
        QCOMPARE(object.value(QLatin1String("place")).toObject().value(QLatin1String("line")),
                 QJsonValue(12));
        QCOMPARE(object.value(QLatin1String("blocks")).toArray().first().toObject(),
                 (QJsonObject{
                     {QStringLiteral("name"), QStringLiteral("UART0")},
                     {QStringLiteral("reads"), 3},
                     {QStringLiteral("writes"), 4},
                     {QStringLiteral("complete"), true},
                     {QStringLiteral("untouchedRegisters"), QJsonArray{QStringLiteral("CTRL")}}}));
        for (const char *key :
             {"result", "reason", "configuration", "clockCycles", "timeout", "uarts", "emptyBlocks",
              "note", "sources", "instructions", "cyclesAsleep", "starts", "exceptions",
              "interruptsNeverTaken", "hardFaults", "unknownReads", "lockUps"})
            QVERIFY2(object.contains(QLatin1String(key)), key);
    }

    void withoutStatisticsTheDocumentHasTheRest()
    {
        Sample sample;
        sample.details.reset();
        const QJsonObject object = QJsonDocument::fromJson(sample.in("a.json")).object();
        QCOMPARE(object.value(QLatin1String("result")).toString(), QStringLiteral("failed"));
        QVERIFY(!object.contains(QLatin1String("instructions")));
        QVERIFY(!object.contains(QLatin1String("place")));
        QVERIFY(sample.in("a.txt").contains("Program: main.c"));
    }

    void aBuildServerReadsOneTestCase_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("failure"); // the type; empty: none
        QTest::newRow("passed") << int(SimulationEnd::Passed) << QString();
        QTest::newRow("failed") << int(SimulationEnd::Failed) << QStringLiteral("failed");
        QTest::newRow("no end") << int(SimulationEnd::TimeLimit) << QStringLiteral("time limit");
        QTest::newRow("cancelled") << int(SimulationEnd::Cancelled) << QStringLiteral("cancelled");
    }

    void aBuildServerReadsOneTestCase()
    {
        QFETCH(int, result);
        QFETCH(QString, failure);
        Sample sample;
        sample.end.result = SimulationEnd::Result(result);
        QStringList elements;
        QString type;
        QXmlStreamReader xml(sample.in("a.xml"));
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            elements.append(xml.name().toString());
            if (xml.name() == QLatin1String("testsuite")) {
                QCOMPARE(xml.attributes().value(QLatin1String("tests")), QLatin1String("1"));
                QCOMPARE(xml.attributes().value(QLatin1String("failures")),
                         failure.isEmpty() ? QLatin1String("0") : QLatin1String("1"));
            } else if (xml.name() == QLatin1String("testcase")) {
                QCOMPARE(xml.attributes().value(QLatin1String("time")),
                         QLatin1String("0.000100000"));
                QCOMPARE(xml.attributes().value(QLatin1String("line")),
                         failure.isEmpty() ? QLatin1String() : QLatin1String("12"));
            } else if (xml.name() == QLatin1String("failure")) {
                type = xml.attributes().value(QLatin1String("type")).toString();
                QVERIFY(!xml.attributes().value(QLatin1String("message")).isEmpty());
            }
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QStringList expected{QStringLiteral("testsuites"), QStringLiteral("testsuite"),
                             QStringLiteral("testcase"), QStringLiteral("system-out")};
        if (!failure.isEmpty())
            expected.insert(3, QStringLiteral("failure"));
        QCOMPARE(elements, expected);
        QCOMPARE(type, failure);
    }

    void whateverIsSentTheXmlIsWellFormed()
    {
        Sample sample;
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all.append(char(byte));
        sample.end.uarts[0] = all + "]]>&amp;<x>\xEF\xBF\xBE\xED\xA0\x80\xF0\x9F\x98\x80";
        sample.end.reason = QString::fromLatin1(all);
        sample.arguments.file = QStringLiteral("a<\"&\x01.ipc");
        sample.arguments.sources = QStringList{QString(QChar(0xD800)) + QStringLiteral("b.c")};
        QXmlStreamReader xml(sample.in("a.xml"));
        QString output;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement &&
                xml.name() == QLatin1String("system-out"))
                output = xml.readElementText();
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(output.contains(QLatin1String("\\x00\\x01\\x02")));
        QVERIFY(output.contains(QLatin1String("\\x1B")));
        QVERIFY(output.contains(QLatin1String("]]>&amp;<x>\\xFFFE")));
        QVERIFY(output.contains(QString::fromUtf8("\xF0\x9F\x98\x80")));
    }

    void aFloodOfBytesIsCutInTheXml()
    {
        Sample sample;
        sample.end.uarts[0] = QByteArray(5000000, 'x') + "last\n";
        const QByteArray xml = sample.in("a.xml");
        QVERIFY(xml.size() < 100000);
        QVERIFY(xml.contains("xlast\n"));
    }

    void aFaultThatIsABusErrorIsToldOnce()
    {
        Sample sample;
        sample.details->errorCount = 1;
        const QString text = summaryOf(sample.report()).join(u'\n');
        QVERIFY2(!text.contains(QLatin1String("hard fault")), qPrintable(text));
        QVERIFY2(text.contains(QLatin1String("1 bus error, at 0x00000130")), qPrintable(text));
    }

    void aLockUpHasItsPlace()
    {
        Sample sample;
        sample.end.lockedUpAt = 77;
        sample.details->lockUps = {placeOf(0x200, "stuck", "/x/main.c", 30)};
        sample.details->lockUpCount = 1;
        const QString text = summaryOf(sample.report()).join(u'\n');
        QVERIFY2(text.contains(QLatin1String("The program was at 0x00000200, stuck() in "
                                             "/x/main.c:30.")),
                 qPrintable(text));
        QVERIFY(sample.in("a.txt").contains("Lock-ups: 1\n  at 0x00000200"));
    }

    void withoutLinesItSaysWhy()
    {
        Sample sample;
        sample.details->problem = QStringLiteral("Because.");
        QVERIFY(!summaryOf(sample.report()).contains(sample.details->problem));
        sample.details->end.source = {};
        QVERIFY(summaryOf(sample.report()).contains(sample.details->problem));
    }

    void aProgramThatPassedHasNoPlace()
    {
        Sample sample;
        sample.end.result = SimulationEnd::Passed;
        QVERIFY(!failurePlaceOf(sample.report()));
    }
};

QTEST_APPLESS_MAIN(tst_SimulationReport)
#include "tst_simulationreport.moc"
