#include "simulateprocess.h"

#include <QRegularExpression>
#include <signals.h>

#include <arpa/inet.h>
#include <csignal>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

const QString example = QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc");
const QString hello = QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c");

const QByteArray right = "int main(void) { return 0; }\n";

// Ends by itself, however it begins.
const QByteArray bare = "int main(void) { __asm__ volatile(\"bkpt 0\"); for (;;) { } }\n";

// Waits until what the process has written to standard error matches.
QRegularExpressionMatch awaited(QProcess &process, const char *pattern)
{
    const QRegularExpression expression(QString::fromUtf8(pattern));
    QByteArray said;
    QRegularExpressionMatch match;
    const bool isThere = QTest::qWaitFor(
        [&] {
            said += process.readAllStandardError();
            match = expression.match(QString::fromUtf8(said));
            return match.hasMatch() || process.state() == QProcess::NotRunning;
        },
        60000);
    if (!isThere || !match.hasMatch())
        qWarning("%s", said.constData());
    return match;
}

} // namespace

// The ways in which "orixm1 simulate" can run a program, beside the usual one.
class tst_CliSimulateWays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_process = std::make_unique<SimulateProcess>(); }
    void cleanup()
    {
        QTRY_COMPARE_WITH_TIMEOUT(m_process->scratch(), QStringList(), 20000);
        m_process.reset();
    }

    void helloIsSaidByTheNetlist()
    {
        const auto run =
            m_process->simulate({example, QStringLiteral("--model"), QStringLiteral("netlist"),
                                 QStringLiteral("--c"), hello});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray("hello, world\n"));
    }

    void aNetlistIsMadeWhateverTheConfigurationAsksFor()
    {
        write("x.ipc", plain + "Enable%20CAN=true\nCAN_BUFFER_DEPTH=256\nLANG=1\n");
        write("main.c", "void HardFault_Handler(void) { __asm__ volatile(\"bkpt 9\"); }\n"
                        "int main(void) { return *(volatile int *)0x41000004u & 0; }\n");
        const auto run = m_process->simulate(
            words({"x.ipc", "--model", "netlist", "--c", "main.c", "--timeout", "5000"}));
        QVERIFY2(run.status == 1, qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String("BKPT 9")), qPrintable(run.err));
        QVERIFY2(run.err.contains(QLatin1String("the program has accessed u_can")),
                 qPrintable(run.err));
    }

    void aNetlistNeedsItsTool()
    {
        write("main.c", right);
        QVERIFY(QDir().mkpath(path("bin")));
        for (const char *name : {"iverilog", "vvp", "arm-none-eabi-gcc"})
            QVERIFY(QFile::link(QStandardPaths::findExecutable(QString::fromUtf8(name)),
                                path("bin/") + QString::fromUtf8(name)));
        const auto run = m_process->simulate(
            QStringList{example} + words({"--model", "netlist", "--c", "main.c"}), path("bin"));
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains(QLatin1String("yosys"), Qt::CaseInsensitive),
                 qPrintable(run.err));
    }

    void memoriesOfTheRtlTakeAProgram()
    {
        const auto run = m_process->simulate({example, QStringLiteral("--tcm"),
                                              QStringLiteral("rtl"), QStringLiteral("--c"), hello});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray("hello, world\n"));
    }

    void memoriesOfTheRtlHaveAProgramFromTheStart_data()
    {
        QTest::addColumn<QStringList>("more");
        QTest::newRow("RTL") << QStringList();
        QTest::newRow("netlist") << words({"--model", "netlist"});
    }

    void memoriesOfTheRtlHaveAProgramFromTheStart()
    {
        QFETCH(QStringList, more);
        QVERIFY(makeInitialised());
        const auto run =
            m_process->simulate(words({"a b/x.ipc", "--tcm", "rtl", "--timeout", "5000"}) + more);
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void initialContentsAreChecked()
    {
        QVERIFY(makeInitialised());
        write("a b/itcm/itcm1", "00\nhello\n");
        auto run = m_process->simulate(words({"a b/x.ipc", "--tcm", "rtl"}));
        QCOMPARE(run.status, 3);
        QVERIFY2(run.err.contains(QLatin1String("itcm1:2: \"hello\" is no hexadecimal byte")),
                 qPrintable(run.err));
        QVERIFY(QFile::remove(path("a b/itcm/itcm1")));
        run = m_process->simulate(words({"a b/x.ipc", "--tcm", "rtl"}));
        QCOMPARE(run.status, 3);
        QVERIFY2(run.err.contains(QLatin1String("itcm1: cannot be read")), qPrintable(run.err));
        write("x.ipc", plain);
        run = m_process->simulate(words({"x.ipc", "--tcm", "rtl"}));
        QCOMPARE(run.status, 3);
        QVERIFY2(run.err.contains(QLatin1String("\"Initialize ITCM\" is off")),
                 qPrintable(run.err));
    }

    void aDebuggerIsToldWhereToGo()
    {
        write("it's main.c", right);
        auto process = m_process->start(
            words({"simulate", "--gdb", "0", "--c", "it's main.c", "--timeout", "5000"}) +
            QStringList{example});
        const QRegularExpressionMatch match =
            awaited(*process, "gdb at 127\\.0\\.0\\.1:(\\d+): gdb-multiarch '([^']+)' -ex "
                              "'target remote 127\\.0\\.0\\.1:\\1'\n");
        QVERIFY(match.hasMatch());
        QVERIFY(TestSupport::contentsOf(match.captured(2))
                    .startsWith("\x7f"
                                "ELF"));
        // "Continue", as a debugger says it.
        const int debugger = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(match.captured(1).toUShort());
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        QCOMPARE(::connect(debugger, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        QCOMPARE(::send(debugger, "$c#63", 5, 0), ssize_t(5));
        const auto run = SimulateProcess::finish(*process);
        ::close(debugger);
        QVERIFY2(run.status == 0, qPrintable(run.err));
    }

    void aDebuggerThatDoesNotComeCanBeGivenUp()
    {
        write("main.c", right);
        const auto process = m_process->start(QStringList{QStringLiteral("simulate"), example} +
                                              words({"--gdb", "0", "--c", "main.c"}));
        QVERIFY(awaited(*process, "gdb at 127\\.0\\.0\\.1:\\d+").hasMatch());
        TestSupport::sendSignal(*process, SIGINT);
        QCOMPARE(SimulateProcess::finish(*process).status, 130);
        QTRY_COMPARE_WITH_TIMEOUT(m_process->mark().processes(), QList<qint64>(), 60000);
    }

    void theBoardThatIsMadeIsAStartForAnother()
    {
        auto run = m_process->simulate(QStringList{example} + words({"--write-board", "own.v"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, path("own.v").toUtf8() + '\n');
        QByteArray text = TestSupport::contentsOf(path("own.v"));
        run = m_process->simulate(QStringList{example} + words({"--write-board", "own.v"}));
        QCOMPARE(run.status, 1);
        QVERIFY(run.err.contains(QLatin1String("exists already")));

        text.replace("$display(\"\\036%0s done\", mark);",
                     "begin $display(\"\\036%0s done\", mark); $display(`MINE); end");
        write("own.v", "`include \"mine.vh\"\n" + text);
        write("mine.vh", "`define MINE \"my own board\"\n");
        run = m_process->simulate(QStringList{example, QStringLiteral("--c"), hello} +
                                  words({"--board", "own.v"}));
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY2(run.out.contains("hello, worl") && run.out.contains("my own board"),
                 run.out.constData());
    }

    void aBoardThatCannotBeUsedIsTold_data()
    {
        QTest::addColumn<QByteArray>("board"); // empty: no file
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("no file") << QByteArray() << 3 << QStringLiteral("own.v\" cannot be read");
        QTest::newRow("a mistake") << QByteArray("module board;\n  what is this\nendmodule\n") << 3
                                   << QStringLiteral("board.v:2: syntax error");
        QTest::newRow("no board") << QByteArray("module other; endmodule\n") << 3
                                  << QStringLiteral("\"board\"");
        QTest::newRow("no end") << QByteArray("module board; initial $finish; endmodule\n") << 1
                                << QStringLiteral("without telling \"end\" and the result");
    }

    void aBoardThatCannotBeUsedIsTold()
    {
        QFETCH(QByteArray, board);
        QFETCH(int, status);
        QFETCH(QString, message);
        write("main.c", right);
        if (!board.isEmpty())
            write("own.v", board);
        const auto run = m_process->simulate(QStringList{example} +
                                             words({"--c", "main.c", "--board", "own.v"}));
        QCOMPARE(run.status, status);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
    }

    void eachUartHasAPlace()
    {
        write("main.c", "#include \"system_tarvo_orix_m1.h\"\n#include \"uart.h\"\n"
                        "static void say(UART_Type *uart, const char *text)\n{\n"
                        "    uart_init(uart, SystemCoreClock, 1000000u);\n"
                        "    uart_write(uart, text, 3, 100000u);\n"
                        "    uart_flush(uart, 100000u);\n}\n"
                        "int main(void) { say(UART0, \"abc\"); say(UART1, \"xyz\"); return 0; }\n");
        const auto run = [&](std::initializer_list<const char *> more) {
            return m_process->simulate(QStringList{example} + words({"--c", "main.c"}) +
                                       words(more));
        };
        QCOMPARE(run({}).out, QByteArray("abc"));
        QCOMPARE(run({"--uart1", "-"}).out, QByteArray("xyz"));
        QCOMPARE(run({"--uart1", "one", "--uart0", "zero"}).out, QByteArray());
        QCOMPARE(TestSupport::contentsOf(path("zero")), QByteArray("abc"));
        QCOMPARE(TestSupport::contentsOf(path("one")), QByteArray("xyz"));
    }

    void aPseudoTerminalShowsAUart()
    {
        const auto process =
            m_process->start({QStringLiteral("simulate"), example, QStringLiteral("--uart0"),
                              QStringLiteral("pty"), QStringLiteral("--c"), hello});
        const QRegularExpressionMatch match = awaited(*process, "UART0 is at (/dev/pts/\\d+)\\.\n");
        QVERIFY(match.hasMatch());
        const QByteArray name = match.captured(1).toUtf8();
        const int terminal = ::open(name.constData(), O_RDONLY | O_NOCTTY | O_NONBLOCK);
        QVERIFY(terminal >= 0);
        QByteArray got;
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                char buffer[100];
                const ssize_t size = ::read(terminal, buffer, sizeof buffer);
                if (size > 0)
                    got.append(buffer, int(size));
                return got == "hello, world\n" || process->state() == QProcess::NotRunning;
            }(),
            60000);
        QCOMPARE(got, QByteArray("hello, world\n"));
        const auto run = SimulateProcess::finish(*process);
        ::close(terminal);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QCOMPARE(run.out, QByteArray());
    }

    void whatIsTypedOnAPseudoTerminalIsReceived()
    {
        write("main.c", answering("UART1"));
        const auto process =
            m_process->start(QStringList{QStringLiteral("simulate"), example} +
                             words({"--uart1", "pty", "--c", "main.c", "--timeout", "1000000000"}));
        const QRegularExpressionMatch match = awaited(*process, "UART1 is at (/dev/pts/\\d+)\\.\n");
        QVERIFY(match.hasMatch());
        const int terminal =
            ::open(match.captured(1).toUtf8().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        QVERIFY(terminal >= 0);
        QCOMPARE(::write(terminal, "\x03\r\n", 3), ssize_t(3));
        QByteArray got;
        QTRY_COMPARE_WITH_TIMEOUT(
            [&] {
                char buffer[100];
                const ssize_t size = ::read(terminal, buffer, sizeof buffer);
                return got.append(buffer, int(qMax(size, ssize_t(0))));
            }(),
            QByteArray("\x04\x0E\x0B"), 60000);
        const auto run = SimulateProcess::finish(*process);
        ::close(terminal);
        QVERIFY2(run.status == 0, qPrintable(run.err));
        QVERIFY(!QFileInfo::exists(match.captured(1)));
    }

    void standardInputIsReceived_data()
    {
        QTest::addColumn<QByteArray>("uart");
        QTest::addColumn<QStringList>("more");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("by UART0, if it is named")
            << QByteArray("UART0") << words({"--uart0", "-"}) << QByteArray("bc\n");
        QTest::newRow("by UART1, if it is named")
            << QByteArray("UART1") << words({"--uart1", "-"}) << QByteArray("bc\n");
        QTest::newRow("by nobody, if it is nobody's terminal")
            << QByteArray("UART0") << QStringList() << QByteArray();
        QTest::newRow("by nobody else")
            << QByteArray("UART0") << words({"--uart1", "-"}) << QByteArray();
    }

    void standardInputIsReceived()
    {
        QFETCH(QByteArray, uart);
        QFETCH(QStringList, more);
        write("main.c", answering(uart));
        const auto process =
            m_process->start(QStringList{QStringLiteral("simulate"), example} +
                             words({"--c", "main.c", "--timeout", "30000"}) + more);
        process->write("ab\t and more than that");
        process->closeWriteChannel();
        const auto run = SimulateProcess::finish(*process);
        QTEST(run.out, "out");
        QCOMPARE(run.status, run.out.isEmpty() ? 124 : 0);
    }

    void refusesWrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("a debugger and memories of the RTL")
            << words({"--c", "a", "--gdb", "0", "--tcm", "rtl"})
            << QStringLiteral("--gdb needs the memories of the model");
        QTest::newRow("two UARTs on the terminal")
            << words({"--c", "a", "--uart0", "-", "--uart1", "-"})
            << QStringLiteral("only one UART");
        QTest::newRow("an unknown model")
            << words({"--c", "a", "--model", "x"}) << QStringLiteral("--model");
        QTest::newRow("unknown memories")
            << words({"--c", "a", "--tcm", "x"}) << QStringLiteral("--tcm");
        QTest::newRow("no port") << words({"--c", "a", "--gdb", "65536"})
                                 << QStringLiteral("--gdb");
        QTest::newRow("a board and a program")
            << words({"--c", "a", "--write-board", "b"}) << QStringLiteral("--write-board");
        QTest::newRow("a result over the board")
            << words({"--c", "a", "--board", "b", "--uart1", "b"}) << QStringLiteral("--uart1");
    }

    void refusesWrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const auto run = m_process->simulate(QStringList{example} + arguments);
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
    }

    // Each moment of a run, from the first file to the last.
    void aKillAtAnyMomentLeavesNothing()
    {
        constexpr int rounds = 9;
        write("main.c", right);
        const QStringList arguments = QStringList{QStringLiteral("simulate"), example} +
                                      words({"--uart1", "pty", "--live", "--c", "main.c"});
        // The second one finds what the first one has compiled, as all others do.
        qint64 length = 0;
        for (int round = 0; round < 2; ++round) {
            QElapsedTimer clock;
            clock.start();
            QCOMPARE(SimulateProcess::finish(*m_process->start(arguments)).status, 0);
            length = clock.elapsed();
        }
        int killed = 0;
        for (int round = 0; round < rounds; ++round) {
            const auto process = m_process->start(arguments);
            const qint64 moment = round * length / rounds;
            const bool hasEnded = process->waitForFinished(int(moment));
            killed += !hasEnded && TestSupport::sendSignal(*process, SIGKILL) ? 1 : 0;
            QVERIFY(process->state() == QProcess::NotRunning || process->waitForFinished(-1));
            QTRY_COMPARE_WITH_TIMEOUT(m_process->mark().processes(), QList<qint64>(), 60000);
            QCOMPARE(m_process->scratch(), QStringList());
        }
        QVERIFY2(killed > rounds / 2, qPrintable(QString::number(killed)));
    }

private:
    QString path(const char *name) const { return m_process->path(name); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QVERIFY(TestSupport::write(path(name), bytes));
    }

    // "a b/x.ipc" with a program in its instruction memory.
    bool makeInitialised() const
    {
        if (!TestSupport::write(path("a b/x.ipc"), plain) ||
            !TestSupport::write(path("main.c"), bare))
            return false;
        QProcess compiler;
        compiler.setWorkingDirectory(path("."));
        const auto isDone = [&](const QString &program, const QStringList &arguments) {
            compiler.start(program, arguments);
            return compiler.waitForFinished(-1) && compiler.exitCode() == 0;
        };
        const QString command = QStringLiteral(TARVO_COMMAND);
        return isDone(command, words({"export", "a b/x.ipc", "--out", "made"})) &&
               isDone(
                   QStringLiteral("arm-none-eabi-gcc"),
                   words({"-mcpu=cortex-m1", "-mthumb", "-Os", "-nostartfiles", "-Imade", "-Lmade",
                          "-Ttarvo_orix_m1.ld", "main.c", "made/startup_tarvo_orix_m1.c",
                          "made/system_tarvo_orix_m1.c", "-o", "main.elf"})) &&
               isDone(command, words({"firmware", "main.elf", "a b/x.ipc", "--initialize"}));
    }

    std::unique_ptr<SimulateProcess> m_process;
};

TARVO_TEST_MAIN(QCoreApplication, tst_CliSimulateWays)
#include "tst_clisimulateways.moc"
