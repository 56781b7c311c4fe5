#include "simulateprocess.h"

#include <drawnoptions.h>
#include <markedprocesses.h>
#include <signals.h>

#include <config/ipcfile.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtEndian>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

// By hand more: TARVO_TEST_DRAWS.
int draws()
{
    return qMax(6, qEnvironmentVariableIntValue("TARVO_TEST_DRAWS"));
}

const QString example = QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc");

// A program's call of its reader.
const QByteArray semihosting =
    "static int call(unsigned operation, const void *argument)\n"
    "{\n    register unsigned r0 __asm__(\"r0\") = operation;\n"
    "    register const void *r1 __asm__(\"r1\") = argument;\n"
    "    __asm__ volatile(\"bkpt 0xAB\" : \"+r\"(r0) : \"r\"(r1) : \"memory\");\n"
    "    return (int)r0;\n}\n";

using Run = SimulateProcess::Run;

} // namespace

// "orixm1 simulate" as people run it: as a process.
class tst_CliSimulate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("scratch")));
    }

    void cleanup()
    {
        QCOMPARE(TestSupport::entriesOf(path("scratch")), QStringList());
        m_dir.reset();
    }

    void helloSaysItsWordsAndPasses()
    {
        const QString hello = QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c");
        const Run run = simulate({example, QStringLiteral("--c"), hello, QStringLiteral("--report"),
                                  path("run.json"), QStringLiteral("--waves"), path("run.fst")});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray("hello, world\n"));
        QVERIFY(run.err.contains(QLatin1String("orixm1: Passed after ")));
        QVERIFY(
            run.err.contains(QLatin1String("UART0 has sent 13 bytes, UART1 has sent 0 bytes.")));
        QVERIFY(run.err.contains(QLatin1String("instruction counts are no cycle counts")));
        const QJsonObject report = jsonIn("run.json");
        QCOMPARE(report.value(QLatin1String("result")).toString(), QStringLiteral("passed"));
        QCOMPARE(report.value(QLatin1String("reason")).toString(), QString());
        // Thirteen bytes of ten bits of fifty clock cycles, but for what the buffers hold at the
        // end.
        const int cycles = report.value(QLatin1String("clockCycles")).toInt();
        QVERIFY2(cycles > 11 * 10 * 50 && cycles < 14 * 10 * 50,
                 qPrintable(QString::number(cycles)));
        const QJsonArray uarts = report.value(QLatin1String("uarts")).toArray();
        QCOMPARE(uarts.size(), 2);
        QCOMPARE(uarts.at(0).toObject().value(QLatin1String("name")).toString(),
                 QStringLiteral("UART0"));
        QCOMPARE(uarts.at(0).toObject().value(QLatin1String("bytes")).toInt(), 13);
        QVERIFY(QFileInfo(path("run.fst")).size() > 1000);
    }

    void blinkMovesPinsInItsInterrupt()
    {
        const QString blink = QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/blink.c");
        const Run run = simulate({example, QStringLiteral("--c"), blink});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray());
    }

    void bothEnginesPlayTheSame_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("hello") << QStringLiteral("hello");
        QTest::newRow("blink") << QStringLiteral("blink");
    }

    void bothEnginesPlayTheSame()
    {
        QFETCH(QString, program);
        QStringList told;
        for (const char *engine : {"icarus", "verilator"}) {
            const Run run =
                simulate({example, QStringLiteral("--c"),
                          QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/%1.c").arg(program),
                          QStringLiteral("--engine"), QLatin1String(engine),
                          QStringLiteral("--report"), path("run.json")});
            QVERIFY2(run.status == 0, qPrintable(run.err));
            told.append(QString::fromUtf8(run.out) + run.err);
            QVERIFY(jsonIn("run.json").value(QLatin1String("clockCycles")).toInt() > 1000);
        }
        QCOMPARE(told.at(1), told.at(0)); // the number of clock cycles, too
    }

    void wavesOfBothEnginesBeginWithTheBoard()
    {
        const QString hello = QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c");
        QList<QByteArray> ends;
        for (const char *engine : {"icarus", "verilator"}) {
            const Run run =
                simulate({example, QStringLiteral("--c"), hello, QStringLiteral("--engine"),
                          QLatin1String(engine), QStringLiteral("--waves"), path("run.fst")});
            QVERIFY2(run.status == 0, qPrintable(run.err));
            QCOMPARE(run.out, QByteArray("hello, world\n"));
            const QByteArray waves = TestSupport::contentsOf(path("run.fst"));
            // The header of the form: a block 0, its length, the first and the last time.
            QVERIFY(waves.size() > 10000 && waves.startsWith(QByteArray(1, '\0')));
            ends.append(waves.mid(17, 8));
        }
        const auto time = [](const QByteArray &bytes) {
            return qFromBigEndian<quint64>(bytes.constData());
        };
        const quint64 cycle = 20000; // picoseconds
        QVERIFY(time(ends.at(0)) / cycle > 5000);
        QCOMPARE(time(ends.at(1)) / cycle, time(ends.at(0)) / cycle);
    }

    // Where nothing can be kept, too.
    void bothEnginesNameTheSameEmptyBlocks()
    {
        TestSupport::write(path("file"), "");
        TestSupport::write(path("x.ipc"), plain + "Enable%20TRNG=true\n");
        TestSupport::write(path("main.c"),
                           "void HardFault_Handler(void) { __asm__ volatile(\"bkpt 9\"); }\n"
                           "int main(void) { return *(volatile int *)0x5000A004u & 0; }\n");
        QStringList told;
        for (const char *engine : {"icarus", "verilator"}) {
            const Run run =
                simulate(words({"x.ipc", "--c", "main.c", "--timeout", "5000", "--engine", engine}),
                         {}, path("file"));
            QCOMPARE(run.status, 1);
            told.append(run.err);
        }
        QVERIFY2(told.at(0).contains(QLatin1String("u_trng")), qPrintable(told.at(0)));
        QCOMPARE(told.at(1), told.at(0));
        QCOMPARE(TestSupport::contentsOf(path("file")), QByteArray());
    }

    // What is built once is not built again, unless what was kept is broken.
    void buildsADesignOnce()
    {
        const QString hello = QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c");
        const QStringList arguments = {example, QStringLiteral("--c"), hello,
                                       QStringLiteral("--engine"), QStringLiteral("verilator")};
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("bin")));
        TestSupport::write(path("bin/g++"), "#!/bin/sh\necho \"no compiler today\"\nexit 1\n");
        QFile::setPermissions(path("bin/g++"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        const QString withoutCompiler = path("bin:") + qEnvironmentVariable("PATH");
        const QString own = path("own");
        QVERIFY2(simulate(arguments, {}, own).status == 0, "built");
        Run run = simulate(arguments, withoutCompiler, own);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray("hello, world\n"));

        // Another design is another program.
        run =
            simulate(arguments + words({"--waves", "run.fst"}), withoutCompiler, path("elsewhere"));
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(QLatin1String("no compiler today")), qPrintable(run.err));
        // Of that only what is exported could be compiled.
        QCOMPARE(QDir(path("elsewhere/tarvo/simulate")).entryList(QDir::Files).size(), 1);

        const QString kept = own + QLatin1String("/tarvo/simulate");
        const QString copies = path("copies/tarvo/simulate");
        QVERIFY(QDir().mkpath(copies));
        const QStringList entries = QDir(kept).entryList(QDir::Files);
        QVERIFY(!entries.isEmpty());
        for (const QString &entry : entries) {
            const QByteArray bytes = TestSupport::contentsOf(kept + u'/' + entry);
            TestSupport::write(copies + u'/' + entry, bytes.left(bytes.size() - 1000));
        }
        run = simulate(arguments, withoutCompiler, path("copies"));
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(QLatin1String("no compiler today")), qPrintable(run.err));
        run = simulate(arguments, {}, path("copies"));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        run = simulate(arguments, withoutCompiler, path("copies"));
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void tellsHowAProgramEnds_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const QByteArray &body, int status,
                            const char *told) {
            QTest::newRow(name) << QByteArray(semihosting + "int main(void)\n{\n" + body + "\n}\n")
                                << status << QString::fromUtf8(told);
        };
        row("return of another value", "(void)call; return 3;", 1, ": exit 3.");
        row("exit with an error", "call(0x18, (void *)0x20023); return 0;", 1, ": exit 0x00020023");
        row("exit", "call(0x18, (void *)0x20026); return 3;", 0, "Passed after ");
        row("breakpoint", "(void)call; __asm__ volatile(\"bkpt 0\"); return 3;", 0,
            "Passed after ");
        row("breakpoint with a number", "(void)call; __asm__ volatile(\"bkpt 7\"); return 0;", 1,
            ": BKPT 7 at 0x");
        row("no end", "(void)call; for (;;) { }", 124,
            "Time limit reached after 3000 clock cycles: the program has not ended.");
        row("a fault without a handler", "(void)call; return *(volatile int *)0x90000000u;", 124,
            "the program has not ended");
        row("a lock-up that a watchdog may end",
            "(void)call; return *(volatile int *)0x90000000u;\n}\n"
            "void HardFault_Handler(void)\n{\n    (void)*(volatile int *)0x90000000u;",
            124, "the program has not ended; the processor locked up at clock cycle ");
    }

    void tellsHowAProgramEnds()
    {
        QFETCH(QByteArray, program);
        QFETCH(int, status);
        QFETCH(QString, told);
        TestSupport::write(path("main.c"), program);
        const Run run =
            simulate(QStringList{example} + words({"--timeout", "3000", "--c", "main.c"}));
        QVERIFY2(run.status == status, qPrintable(run.err));
        QVERIFY2(run.err.contains(told), qPrintable(run.err));
    }

    void aLockUpForEverEndsTheRun()
    {
        TestSupport::write(path("x.ipc"), plain);
        TestSupport::write(path("main.c"),
                           "void HardFault_Handler(void) { (void)*(volatile int *)0x90000000u; }\n"
                           "int main(void) { return *(volatile int *)0x90000000u; }\n");
        const Run run = simulate(words({"x.ipc", "--c", "main.c", "--timeout", "1000000"}));
        QVERIFY2(run.status == 1, qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String(": the processor locked up at clock cycle ")),
                 qPrintable(run.err));
    }

    void tellsPlacesInC_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("bus error")
            << QByteArray("static int poke(volatile int *place)\n{\n    return *place;\n}\n"
                          "int main(void)\n{\n    return poke((int *)0x90000000u);\n}\n"
                          "void HardFault_Handler(void)\n{\n    __asm__ volatile(\"bkpt 9\");\n}\n")
            << words({"main.c:3 (reading 4 bytes at 0x90000000, in no block)", "1 bus error, at",
                      "HardFault_Handler() in ", "main.c:11."});
        QTest::newRow("a program that does not end")
            << QByteArray("int main(void)\n{\n    for (;;)\n        __asm__ volatile(\"nop\");"
                          "\n}\n")
            << words({"The program was at 0x", "main() in ", "main.c:4."});
        QTest::newRow("an instruction that does not exist")
            << QByteArray("int main(void)\n{\n    __asm__ volatile(\"udf 1\");\n    return 0;\n}\n"
                          "void HardFault_Handler(void)\n{\n    __asm__ volatile(\"bkpt 0\");\n}\n")
            << words({"1 hard fault, at 0x", "main.c:3 (there is no such instruction)"});
        QTest::newRow("a place in a driver")
            << QByteArray("#include \"uart.h\"\nint main(void)\n{\n"
                          "    uart_init(UART0, 50000000u, 50u);\n"
                          "    uart_put(UART0, 'a', 1u);\n"
                          "    return (int)uart_flush(UART0, 0xFFFFFFFFu);\n}\n")
            << words({"() in software/drivers/uart.c:"});
    }

    void tellsPlacesInC()
    {
        QFETCH(QByteArray, program);
        QFETCH(QStringList, told);
        TestSupport::write(path("main.c"), program);
        const Run run =
            simulate(QStringList{example} + words({"--timeout", "3000", "--c", "main.c"}));
        for (const QString &text : qAsConst(told))
            QVERIFY2(run.err.contains(text), qPrintable(run.err));
    }

    void aReturnFromMainHasNoPlace()
    {
        TestSupport::write(path("main.c"), "int main(void) { return 3; }\n");
        const Run run = simulate(QStringList{example} + words({"--c", "main.c"}));
        QCOMPARE(run.status, 1);
        QVERIFY2(!run.err.contains(QLatin1String("The program was at")), qPrintable(run.err));
    }

    void reportsInEveryForm()
    {
        const QString blink = QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/blink.c");
        const Run run =
            simulate(QStringList{example, QStringLiteral("--c"), blink} +
                     words({"--report", "run.json", "--report", "run.xml", "--report", "run.txt"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        const QJsonObject report = jsonIn("run.json");
        QVERIFY(report.value(QLatin1String("instructions")).toInt() > 100);
        QVERIFY(report.value(QLatin1String("cyclesAsleep")).toInt() > 10000);
        QVERIFY(report.value(QLatin1String("cyclesAsleep")).toInt() <
                report.value(QLatin1String("clockCycles")).toInt());
        const QJsonArray exceptions = report.value(QLatin1String("exceptions")).toArray();
        QCOMPARE(exceptions.size(), 2);
        QCOMPARE(exceptions.at(1).toObject().value(QLatin1String("name")).toString(),
                 QStringLiteral("GPIO"));
        QCOMPARE(exceptions.first().toObject().value(QLatin1String("name")).toString(),
                 QStringLiteral("TIMER0"));
        QCOMPARE(exceptions.first().toObject().value(QLatin1String("count")).toInt(), 16);
        const QJsonArray never = report.value(QLatin1String("interruptsNeverTaken")).toArray();
        QVERIFY(never.contains(QStringLiteral("UART0")) &&
                !never.contains(QStringLiteral("TIMER0")));
        QStringList accessed;
        const QJsonArray blocks = report.value(QLatin1String("blocks")).toArray();
        for (const QJsonValue &block : blocks) {
            if (block.toObject().value(QLatin1String("reads")).toInt() != 0)
                accessed.append(block.toObject().value(QLatin1String("name")).toString());
        }
        QCOMPARE(accessed.join(u' '), QStringLiteral("GPIO TIMER0"));
        QCOMPARE(report.value(QLatin1String("busErrors")).toObject().value(QLatin1String("count")),
                 QJsonValue(0));
        QXmlStreamReader xml(TestSupport::contentsOf(path("run.xml")));
        QStringList elements;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement)
                elements.append(xml.name().toString());
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QCOMPARE(elements.join(u' '), QStringLiteral("testsuites testsuite testcase system-out"));
        QVERIFY(TestSupport::contentsOf(path("run.txt")).startsWith("Passed after "));
    }

    void wavesAreOfThePartThatIsAskedFor_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<qint64>("first"); // nanoseconds
        QTest::addColumn<qint64>("last");
        // The power-on reset takes eleven clock cycles of 20 ns.
        QTest::newRow("clock cycles")
            << words({"--waves-from", "300", "--waves-to", "400"}) << qint64(6200) << qint64(8300);
        QTest::newRow("interrupt by name")
            << words({"--waves-at", "interrupt:TIMER0"}) << qint64(23000) << qint64(400000);
        QTest::newRow("interrupt by number")
            << words({"--waves-at", "interrupt:2", "--waves-to", "5000"}) << qint64(23000)
            << qint64(100300);
        QTest::newRow("from a cycle on an address, by the other engine")
            << words({"--waves-at", "address:0x40000000-0x40000FFF", "--waves-from", "2500",
                      "--waves-to", "4000", "--engine", "verilator"})
            << qint64(50000) << qint64(80300);
        QTest::newRow("from a cycle on an address")
            << words({"--waves-at", "address:0x40000000-0x40000FFF", "--waves-from", "2500",
                      "--waves-to", "4000"})
            << qint64(50000) << qint64(80300);
    }

    void wavesAreOfThePartThatIsAskedFor()
    {
        QFETCH(QStringList, options);
        QFETCH(qint64, first);
        QFETCH(qint64, last);
        const QStringList program{example, QStringLiteral("--c"),
                                  QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/blink.c"),
                                  QStringLiteral("--waves")};
        static qint64 wholeSize = 0;
        if (wholeSize == 0) {
            const Run whole = simulate(program + words({"whole.fst"}));
            QVERIFY2(whole.status == 0, qPrintable(whole.err));
            wholeSize = QFileInfo(path("whole.fst")).size();
        }
        const Run part = simulate(program + words({"part.fst"}) + options);
        QVERIFY2(part.status == 0, qPrintable(part.err));
        const qint64 size = QFileInfo(path("part.fst")).size();
        QVERIFY(size > 1000 && size < wholeSize);
        const QByteArray text = wavesOf("part.fst");
        QVERIFY(!text.isEmpty());
        QList<qint64> times;
        for (const QByteArray &line : text.split('\n')) {
            if (line.startsWith('#'))
                times.append(line.mid(1).toLongLong() / 1000);
        }
        QVERIFY2(times.first() >= first && times.last() <= last,
                 qPrintable(QStringLiteral("%1 %2").arg(times.first()).arg(times.last())));
    }

    void wavesBeginWithAMessage_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("comes");
        QTest::newRow("by semihosting") << QStringLiteral("message:one two") << true;
        QTest::newRow("on a UART") << QStringLiteral("message:lo, w") << true;
        QTest::newRow("of nobody") << QStringLiteral("message:three") << false;
    }

    void wavesBeginWithAMessage()
    {
        QFETCH(QString, text);
        QFETCH(bool, comes);
        TestSupport::write(path("main.c"),
                           "#include \"system_tarvo_orix_m1.h\"\n#include \"uart.h\"\n" +
                               semihosting +
                               "int main(void)\n{\n    call(4, \"one \");\n    call(4, \"two\");\n"
                               "    uart_init(UART0, SystemCoreClock, 1000000u);\n"
                               "    uart_write(UART0, \"hello, world\", 12, 100000u);\n"
                               "    return 0;\n}\n");
        const Run run = simulate(
            QStringList{example} + words({"--c", "main.c", "--waves", "w.fst", "--waves-at"})
            << text);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(QFileInfo::exists(path("w.fst")), comes);
        QCOMPARE(run.err.contains(QLatin1String("has not begun")), !comes);
    }

    void wavesComeWithAViewThatIsThePersonsOwnOnceSaved()
    {
        TestSupport::write(path("main.c"), "int main(void) { return 0; }\n");
        const QStringList arguments =
            QStringList{example} + words({"--c", "main.c", "--waves", "a.b.fst"});
        TestSupport::write(path("a.b.gtkw"), "[*]\nmine\n");
        Run run = simulate(arguments);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(TestSupport::contentsOf(path("a.b.gtkw")), QByteArray("[*]\nmine\n"));
        QVERIFY(QFile::remove(path("a.b.gtkw")));
        run = simulate(arguments);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        const QByteArray view = TestSupport::contentsOf(path("a.b.gtkw"));
        QVERIFY(view.contains(path("a.b.fst").toUtf8()));
        // What it shows is there.
        const QByteArray waves = wavesOf("a.b.fst");
        QVERIFY(!waves.isEmpty());
        for (QByteArray line : view.split('\n')) {
            line.remove(0, line.lastIndexOf(' ') + 1);
            line.remove(0, line.lastIndexOf(')') + 1);
            if (!line.startsWith("board."))
                continue;
            const QByteArray name =
                line.mid(line.lastIndexOf('.') + 1).replace("[", " [") + " $end";
            QVERIFY2(waves.contains(name), line.constData());
        }
    }

    void wavesNameFunctionsAndRegisters_data()
    {
        QTest::addColumn<QString>("engine");
        for (const char *engine : {"icarus", "verilator"})
            QTest::newRow(engine) << QString::fromLatin1(engine);
    }

    void wavesNameFunctionsAndRegisters()
    {
        QFETCH(QString, engine);
        const Run run = simulate(
            {example, QStringLiteral("--c"), QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c"),
             QStringLiteral("--engine"), engine, QStringLiteral("--waves"), path("w.fst")});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        const QByteArray waves = wavesOf("w.fst");
        QVERIFY(!waves.isEmpty());
        const auto inBits = [](const QByteArray &text) -> QByteArray {
            QByteArray bits;
            for (const char c : text)
                bits += QByteArray::number(c, 2).rightJustified(8, '0');
            return bits.mid(bits.indexOf('1')) + ' ';
        };
        for (const char *name : {"uart_write", "main", "UART0.DATA", "UART0.BAUDDIV"})
            QVERIFY2(waves.contains('b' + inBits(name)) || waves.contains('0' + inBits(name)),
                     name);
    }

    // Bytes of the UART are exact, and nothing that a program says is taken for its end.
    void tellsTheUartFromOtherTexts()
    {
        TestSupport::write(path("main.c"),
                           "#include \"system_tarvo_orix_m1.h\"\n#include \"uart.h\"\n" +
                               semihosting +
                               "int main(void)\n{\n"
                               "    static const char text[] = {'A', 0, (char)0xFF, 0x1E, '\\r'};\n"
                               "    call(4, \"PASS\\n\");\n    call(4, \"no end\");\n"
                               "    uart_init(UART0, SystemCoreClock, 1000000u);\n"
                               "    uart_write(UART0, text, 5, 100000u);\n"
                               "    uart_flush(UART0, 100000u);\n"
                               "    call(4, \"FAIL: no\\nlast\");\n    return 0;\n}\n");
        const QByteArray bytes("A\0\xFF\x1E\r", 5);
        Run run = simulate(QStringList{example} + words({"--c", "main.c"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray("semihosting: PASS\nsemihosting: no end\n" + bytes +
                                     "\nsemihosting: FAIL: no\nsemihosting: last\n"));
        run = simulate(QStringList{example} + words({"--c", "main.c", "--uart0", "uart"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(TestSupport::contentsOf(path("uart")), bytes);
        QVERIFY(!run.out.contains('A' + bytes.mid(1, 1)));
    }

    void theExamplesScriptsPass_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("transfers")
            << QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.play") << QByteArray(">");
        QTest::newRow("what the board hears and does")
            << QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node-board.play") << QByteArray(">Ok\n");
    }

    void theExamplesScriptsPass()
    {
        QFETCH(QString, script);
        QFETCH(QByteArray, out);
        const Run run = simulate({example, QStringLiteral("--script"), script,
                                  QStringLiteral("--report"), path("run.json")});
        QCOMPARE(run.out, out);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY(run.err.startsWith(QLatin1String("orixm1: Passed after ")));
        QVERIFY(!run.err.contains(QLatin1String("instruction counts")));
        const QJsonObject report = jsonIn("run.json");
        QCOMPARE(report.value(QLatin1String("result")).toString(), QStringLiteral("passed"));
        QCOMPARE(report.value(QLatin1String("script")).toString(), script);
        QVERIFY(report.value(QLatin1String("checks")).toInt() > 50);
        QCOMPARE(report.value(QLatin1String("failures")).toInt(-1), 0);
        QVERIFY(!report.contains(QLatin1String("firmware")));
    }

    // Failures are told with full paths, as they come and in the report.
    void aScriptIsToldWithItsLines()
    {
        const QString folder = path("of scripts %");
        QVERIFY(QDir().mkpath(folder + QLatin1String("/sub")));
        TestSupport::write(folder + QLatin1String("/main.play"),
                           "write 0x50004008 1 # CTRL of UART0\n"
                           "write 0x50004000 0x48\n"
                           "include sub/more.play\n"
                           "expect-uart 0 \"Ho\" 3000\n"
                           "expect-uart 1 \"x\" 0\n");
        TestSupport::write(folder + QLatin1String("/sub/more.play"),
                           "write 0x50004000 0x69\nread 0x50004008 2\nread 0x50004008 1\n");
        const Run run = simulate(QStringList{example} +
                                 words({"--script", "of scripts %/main.play", "--report", "r"}));
        const QStringList failures = {
            folder + QLatin1String("/sub/more.play:2: read 0x00000001, expected 0x00000002 in the "
                                   "bits 0xffffffff"),
            folder + QLatin1String("/main.play:4: UART0 has sent \"Hi\" instead of \"Ho\""),
            folder + QLatin1String("/main.play:5: UART1 has sent nothing instead of \"x\"")};
        QVERIFY2(run.status == 1, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray("Hi"));
        QVERIFY2(
            run.err.startsWith(failures.join(u'\n') + QLatin1String("\norixm1: Failed after ")),
            qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String(": 3 failures in 7 checks, the first one: ") +
                                  failures.first() + u'.'),
                 qPrintable(run.err));
        const QJsonObject report = jsonIn("r");
        QCOMPARE(report.value(QLatin1String("checks")).toInt(), 7);
        QCOMPARE(report.value(QLatin1String("failures")).toInt(), 3);
        const QJsonArray failed = report.value(QLatin1String("failed")).toArray();
        QCOMPARE(failed.size(), 3);
        for (int i = 0; i < 3; ++i) {
            const QJsonObject one = failed.at(i).toObject();
            QCOMPARE(QString(one.value(QLatin1String("file")).toString() + u':' +
                             QString::number(one.value(QLatin1String("line")).toInt()) +
                             QLatin1String(": ") + one.value(QLatin1String("text")).toString()),
                     failures.at(i));
        }
    }

    void tellsHowAScriptEnds_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("told");
        const QByteArray gpio = "Enable%20GPIO=true\n";
        QTest::newRow("no check") << QByteArray("wait 5\n") << gpio << 1
                                  << QStringLiteral(": the script checks nothing.");
        QTest::newRow("no line") << QByteArray() << gpio << 1
                                 << QStringLiteral(": the script checks nothing.");
        QTest::newRow("a mistake") << QByteArray("write 0x40000004 1\njump\n") << gpio << 1
                                   << QStringLiteral("script:2: unknown command");
        QTest::newRow("an included script that is missing")
            << QByteArray("include nowhere\n") << gpio << 1
            << QStringLiteral("/nowhere\" cannot be read");
        QTest::newRow("no end") << QByteArray("read 0x40000004 0\nwait 0xFFFFFFFF\n") << gpio << 124
                                << QStringLiteral(": the script has not ended.");
        QTest::newRow("a flood of failures")
            << QByteArray("repeat 2000\nread 0x40000004 1\nend\n") << gpio << 1
            << QStringLiteral("Of the failures the first 1000 are told.");
        QTest::newRow("memories") << QByteArray("write8 0x20000003 0xAB\nread8 0x20000003 0xAB\n"
                                                "write 0x10 7\nread16 0x10 7\n")
                                  << gpio << 0 << QStringLiteral("Passed after ");
        QTest::newRow("a burst") << QByteArray("pipeline on\nwrite 0x40000004 5\nburst-read single "
                                               "0x40000004 5 0\n")
                                 << gpio << 0 << QStringLiteral("Passed after ");
        QTest::newRow("pins that do not show it")
            << QByteArray("write 0x40000008 1\nwrite 0x40000004 1\ngpio 3 3 50\n") << gpio << 1
            << QStringLiteral("script:3: the GPIO pins show 0x0101, expected 0x0003 in the pins "
                              "0x0003");
        QTest::newRow("pins that are driven from outside")
            << QByteArray("gpio-drive 2 2\nwrite 0x40000008 1\nwrite 0x40000004 1\n"
                          "gpio 3 3 50\nread 0x40000000 3 3\n")
            << gpio << 0 << QStringLiteral("Passed after ");
        QTest::newRow("a byte that is still on its way")
            << QByteArray("uart 0 \"x\"\nwrite 0x50004008 2\npoll 0x50004004 2 2 9\n")
            << QByteArray(gpio + "Enable%20UART0=true\n") << 1
            << QStringLiteral("script:3: read 0x00000000, expected 0x00000002");
        QTest::newRow("a byte from outside")
            << QByteArray("uart 0 \"x\"\nwrite 0x50004008 2\npoll 0x50004004 2 2 999\n"
                          "read 0x50004000 0x78\n")
            << QByteArray(gpio + "Enable%20UART0=true\n") << 0 << QStringLiteral("Passed after ");
        QTest::newRow("big-endian data, which is the program's")
            << QByteArray("write 0x40000004 5\nread8 0x40000004 5\n")
            << QByteArray(gpio + "Big%20Endian=true\n") << 0 << QStringLiteral("Passed after ");
    }

    void tellsHowAScriptEnds()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, config);
        QFETCH(int, status);
        QFETCH(QString, told);
        TestSupport::write(path("x.ipc"), plain + config);
        TestSupport::write(path("script"), script);
        const Run run = simulate(words({"x.ipc", "--script", "script", "--timeout", "20000"}));
        QVERIFY2(run.status == status, qPrintable(run.err));
        QVERIFY2(run.err.contains(told), qPrintable(run.err));
        QVERIFY(run.err.count(u'\n') < 1010);
        QCOMPARE(run.out, QByteArray());
    }

    void takesAProgramThatIsCompiledAlready()
    {
        TestSupport::write(path("a b.c"), "int main(void) { __asm__ volatile(\"bkpt 0\"); for (;;) "
                                          "{ } }\n");
        QProcess process;
        process.setWorkingDirectory(m_dir->path());
        process.start(QStringLiteral(TARVO_COMMAND), words({"export", "--out", "made"}) << example);
        QVERIFY(process.waitForFinished(-1) && process.exitCode() == 0);
        process.start(
            QStringLiteral("arm-none-eabi-gcc"),
            words({"-mcpu=cortex-m1", "-mthumb", "-Os", "-nostartfiles", "-Imade", "-Lmade",
                   "-Ttarvo_orix_m1.ld", "a b.c", "made/startup_tarvo_orix_m1.c",
                   "made/system_tarvo_orix_m1.c", "-o", "a b.elf"}));
        QVERIFY(process.waitForFinished(-1) && process.exitCode() == 0);
        const Run run = simulate(QStringList{example} + words({"--firmware", "a b.elf"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void refusesWrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("no program") << words({}) << QStringLiteral("--firmware");
        QTest::newRow("two programs")
            << words({"--firmware", "a", "--c", "b"}) << QStringLiteral("--firmware");
        QTest::newRow("a program and a script")
            << words({"--firmware", "a", "--script", "b"}) << QStringLiteral("--script");
        QTest::newRow("a result over the script")
            << words({"--script", "a", "--report", "./a"}) << QStringLiteral("--report");
        QTest::newRow("no time") << words({"--c", "a", "--timeout", "0"})
                                 << QStringLiteral("--timeout");
        QTest::newRow("no name of a file")
            << words({"--c", "a", "--uart0", ""}) << QStringLiteral("--uart0");
        QTest::newRow("a result over a source")
            << words({"--c", "a", "--report", "./a"}) << QStringLiteral("--report");
        QTest::newRow("a report twice") << words({"--c", "a", "--report", "b", "--report", "./b"})
                                        << QStringLiteral("--report");
        const auto window = [](const char *name, const QStringList &options, const char *message) {
            QTest::newRow(name) << words({"--c", "a"}) + options << QString::fromUtf8(message);
        };
        window("a part of no waves", words({"--waves-from", "1"}), "need --waves");
        window("an event of no waves", words({"--waves-at", "address:1"}), "need --waves");
        const QStringList waves = words({"--waves", "w.fst"});
        window("waves that end before they begin",
               waves + words({"--waves-from", "5", "--waves-to", "4"}), "--waves-to 4");
        window("waves from no number", waves + words({"--waves-from", "x"}), "--waves-from");
        window("waves before the beginning", waves + words({"--waves-from", "-1"}), "--waves-from");
        window("no event", waves + words({"--waves-at", ""}), "--waves-at");
        window("an unknown event", waves + words({"--waves-at", "noon:12"}), "noon:12");
        window("no address", waves + words({"--waves-at", "address:x"}), "32 bits");
        window("an address that is too large", waves + words({"--waves-at", "address:0x100000000"}),
               "32 bits");
        window("a range backwards", waves + words({"--waves-at", "address:8-4"}),
               "before it begins");
        window("three addresses", waves + words({"--waves-at", "address:1-2-3"}), "32 bits");
        window("an unknown interrupt", waves + words({"--waves-at", "interrupt:UART7"}),
               "TIMER0, ");
        window("an interrupt input too many", waves + words({"--waves-at", "interrupt:32"}),
               "no such interrupt");
        window("an empty message", waves + words({"--waves-at", "message:"}), "1 to 1024 bytes");
        window("a report in the view of the waves", waves + words({"--report", "w.gtkw"}),
               "--report");
        QTest::newRow("two results in one file")
            << words({"--c", "a", "--report", "b", "--waves", "b"}) << QStringLiteral("--report");
        QTest::newRow("no such engine")
            << words({"--c", "a", "--engine", "Icarus"}) << QStringLiteral("--engine");
    }

    void refusesWrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Run run = simulate(QStringList{example} + arguments);
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
    }

    void refusesBadInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<QString>("message");
        const QByteArray uart = "Enable%20UART0=true\n";
        QTest::newRow("no such source")
            << words({"--c", "nothing.c"}) << uart << QStringLiteral("nothing.c\" cannot be read");
        QTest::newRow("a source with a mistake")
            << words({"--c", "wrong.c"}) << uart << QStringLiteral("wrong.c:1:");
        QTest::newRow("no such program")
            << words({"--firmware", "a.elf"}) << uart << QStringLiteral("a.elf\" cannot be read");
        QTest::newRow("no program") << words({"--firmware", "wrong.c"}) << uart
                                    << QStringLiteral("wrong.c\" cannot be used");
        QTest::newRow("no such script")
            << words({"--script", "a.play"}) << uart << QStringLiteral("a.play\" cannot be read");
        QTest::newRow("a folder in place of a script")
            << words({"--script", "."}) << uart << QStringLiteral("\" cannot be read");
        QTest::newRow("a program that is too large")
            << words({"--c", "large.c"}) << uart << QStringLiteral("overflow");
        QTest::newRow("big-endian data")
            << words({"--c", "right.c"}) << QByteArray("Big%20Endian=true\n")
            << QStringLiteral("no big-endian data");
        QTest::newRow("no UART0") << words({"--c", "right.c", "--uart0", "x"}) << QByteArray()
                                  << QStringLiteral("has no UART0");
    }

    void refusesBadInput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, config);
        QFETCH(QString, message);
        TestSupport::write(path("wrong.c"), "int main(void) { return x; }\n");
        TestSupport::write(path("right.c"), "int main(void) { return 0; }\n");
        TestSupport::write(path("large.c"),
                           "const int x[100000] = {1};\nint main(void) { return x[*(volatile int "
                           "*)0x20000000]; }\n");
        TestSupport::write(path("x.ipc"), plain + config);
        const Run run = simulate(QStringList{QStringLiteral("x.ipc")} + arguments);
        QVERIFY2(run.status == 3, qPrintable(run.err));
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QVERIFY(!QFileInfo::exists(path("x")));
    }

    void namesThePackageOfAMissingTool_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QString>("package");
        const auto row = [](const char *name, const char *engine,
                            std::initializer_list<const char *> present, const char *package) {
            QTest::newRow(name) << QString::fromUtf8(engine) << words(present)
                                << QString::fromUtf8(package);
        };
        row("nothing", "icarus", {}, "iverilog");
        row("half of the simulator", "icarus", {"iverilog"}, "iverilog");
        row("no compiler", "icarus", {"iverilog", "vvp"}, "gcc-arm-none-eabi");
        row("no Verilator", "verilator", {"iverilog", "vvp"}, "verilator");
        row("no make", "verilator", {"verilator", "arm-none-eabi-gcc"}, "make");
        row("no compiler for the simulation", "verilator",
            {"verilator", "arm-none-eabi-gcc", "make"}, "g++");
    }

    void namesThePackageOfAMissingTool()
    {
        QFETCH(QString, engine);
        QFETCH(QStringList, present);
        QFETCH(QString, package);
        TestSupport::write(path("main.c"), "int main(void) { return 0; }\n");
        QVERIFY(QDir(m_dir->path()).mkdir(QStringLiteral("bin")));
        for (const QString &tool : present)
            QVERIFY(QFile::link(QStandardPaths::findExecutable(tool), path("bin/") + tool));
        const Run run = simulate({example, QStringLiteral("--c"), QStringLiteral("main.c"),
                                  QStringLiteral("--engine"), engine},
                                 path("bin"), path("empty"));
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(QLatin1String("the Debian package ") + package +
                                  QLatin1String(" has it")),
                 qPrintable(run.err));
    }

    void whatCannotBeWrittenIsToldBefore()
    {
        TestSupport::write(path("main.c"), "int main(void) { return 0; }\n");
        const Run run = simulate(QStringList{example} +
                                 words({"--c", "main.c", "--report", "nowhere/run.json"}));
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(QLatin1String("nowhere")), qPrintable(run.err));
        QVERIFY(!run.err.contains(QLatin1String("Passed")));
    }

    void aFloodIsCutOff()
    {
        TestSupport::write(path("main.c"), semihosting +
                                               "static char text[1000];\nint main(void)\n{\n"
                                               "    for (int i = 0; i < 999; ++i)\n"
                                               "        text[i] = i & 31 ? 'x' : '\\n';\n"
                                               "    for (;;)\n        call(4, text);\n}\n");
        const Run run =
            simulate(QStringList{example} + words({"--c", "main.c", "--timeout", "15000"}));
        QCOMPARE(run.status, 124);
        QVERIFY2(run.out.size() > 500000 && run.out.size() < 2000000,
                 qPrintable(QString::number(run.out.size())));
    }

    void licensedBlocksAnswerWithErrors_data()
    {
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<QString>("block");
        QTest::newRow("AHB") << QByteArray("0x41000000u") << QStringLiteral("u_can");
        QTest::newRow("APB") << QByteArray("0x5000A000u") << QStringLiteral("u_trng");
    }

    void licensedBlocksAnswerWithErrors()
    {
        QFETCH(QByteArray, address);
        QFETCH(QString, block);
        TestSupport::write(path("x.ipc"),
                           plain + "Enable%20CAN=true\nCAN_BUFFER_DEPTH=256\nEnable%20TRNG=true\n");
        TestSupport::write(
            path("main.c"),
            "void HardFault_Handler(void) { __asm__ volatile(\"bkpt 9\"); }\n"
            "int main(void)\n{\n    volatile unsigned *block = (volatile unsigned *)" +
                address + ";\n    return block[0] == 0x4E4F4E45u ? (int)(block[1] & 0u) : 3;\n}\n");
        const Run run = simulate(words({"x.ipc", "--c", "main.c", "--timeout", "5000"}));
        QVERIFY2(run.status == 1, qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String("BKPT 9")), qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String("Licensed blocks are empty")) &&
                     run.err.contains(block),
                 qPrintable(run.err));
    }

    // The seed of the draws is fixed: a failure names the configuration.
    void aBoardFitsEveryConfiguration_data()
    {
        QTest::addColumn<int>("draw");
        for (int draw = 0; draw < draws(); ++draw)
            QTest::addRow("configuration %d", draw) << draw;
    }

    void aBoardFitsEveryConfiguration()
    {
        QFETCH(int, draw);
        TestSupport::Random random(unsigned(draw) + 20);
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
        const DEV::DeviceArg device = devices.at(TestSupport::below(devices.size(), random));
        OptionMap options = TestSupport::drawnOptions(device, random);
        options.insert(Key::itcmSize, 3 + TestSupport::below(3, random));
        options.insert(Key::dtcmSize, 3 + TestSupport::below(3, random));
        options.insert(Key::internalInstructionMemory, true);
        options.insert(Key::internalDataMemory, true);
        options.insert(Key::externalInstructionMemory, false);
        options.insert(Key::externalDataMemory, false);
        options.insert(Key::bigEndian, false);
        {
            QSettings file(path("x.ipc"), QSettings::IniFormat);
            file.setValue(QStringLiteral("target_device"), device.id());
            file.setValue(QStringLiteral("type"), QStringLiteral("tarvo.tarvo_orix_m1"));
            file.setValue(QStringLiteral("version"), QStringLiteral("1.0"));
            for (auto it = options.begin(); it != options.end(); ++it)
                file.setValue(QLatin1String("Config/") + it.key(), it.value());
        }
        TestSupport::write(path("main.c"), "#include \"tarvo_orix_m1.h\"\n"
                                           "int main(void) { return 0; }\n");
        const Run run = simulate(words({"x.ipc", "--c", "main.c", "--timeout", "5000"}));
        QVERIFY2(run.status == 0,
                 qPrintable(device.id() + u'\n' + run.err.left(3000) +
                            QString::fromUtf8(TestSupport::contentsOf(path("x.ipc")))));
    }

    void aKillLeavesNothing_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<int>("signal");
        for (const QString &engine : words({"icarus", "verilator"})) {
            QTest::addRow("%s, SIGINT", qPrintable(engine)) << engine << SIGINT;
            QTest::addRow("%s, SIGTERM", qPrintable(engine)) << engine << SIGTERM;
            QTest::addRow("%s, SIGKILL", qPrintable(engine)) << engine << SIGKILL;
        }
    }

    void aKillLeavesNothing()
    {
        QFETCH(QString, engine);
        QFETCH(int, signal);
        TestSupport::write(path("main.c"),
                           semihosting +
                               "int main(void) { call(4, \"begun\\n\"); for (;;) { } }\n");
        const TestSupport::Mark mark;
        QProcess process;
        QProcessEnvironment environment = environmentOf({});
        environment.insert(QString::fromLatin1(mark.name()), QString::fromLatin1(mark.value()));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_dir->path());
        process.start(
            QStringLiteral(TARVO_COMMAND),
            simulation(words({"--c", "main.c", "--timeout", "1000000000", "--waves", "run.fst"})
                       << QStringLiteral("--engine") << engine << example));
        QTRY_VERIFY_WITH_TIMEOUT(
            process.bytesAvailable() > 0 || process.state() == QProcess::NotRunning, 60000);
        QCOMPARE(process.readAllStandardOutput(), QByteArray("semihosting: begun\n"));
        QVERIFY(mark.processes().size() >= 3);
        TestSupport::sendSignal(process, signal);
        QTRY_VERIFY_WITH_TIMEOUT(process.state() == QProcess::NotRunning, 60000);
        if (signal != SIGKILL) {
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), 130);
        }
        QTRY_COMPARE_WITH_TIMEOUT(mark.processes(), QList<qint64>(), 60000);
        QCOMPARE(TestSupport::entriesOf(path("scratch")), QStringList());
        QVERIFY(!QFileInfo::exists(path("run.fst")));
    }

private:
    QString path(const char *name) const { return m_dir->filePath(QString::fromUtf8(name)); }

    // As text (VCD); empty if it cannot be read.
    QByteArray wavesOf(const char *name) const
    {
        QProcess process;
        process.start(QStringLiteral("fst2vcd"), {QStringLiteral("-f"), path(name)});
        return process.waitForFinished(-1) ? process.readAllStandardOutput() : QByteArray();
    }

    QJsonObject jsonIn(const char *name) const
    {
        return QJsonDocument::fromJson(TestSupport::contentsOf(path(name))).object();
    }

    // `tools`: PATH; `cache`: folder of what is kept. Empty: as it is.
    QProcessEnvironment environmentOf(const QString &tools, const QString &cache = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), path("scratch"));
        if (!cache.isEmpty())
            environment.insert(QStringLiteral("XDG_CACHE_HOME"), cache);
        if (!tools.isEmpty())
            environment.insert(QStringLiteral("PATH"), tools);
        return environment;
    }

    Run simulate(const QStringList &arguments, const QString &tools = {},
                 const QString &cache = {}) const
    {
        QProcess process;
        process.setProcessEnvironment(environmentOf(tools, cache));
        process.setWorkingDirectory(m_dir->path());
        process.start(QStringLiteral(TARVO_COMMAND), simulation(arguments));
        return SimulateProcess::finish(process);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

TARVO_TEST_MAIN(QCoreApplication, tst_CliSimulate)
#include "tst_clisimulate.moc"
