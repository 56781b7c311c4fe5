#include <testsupport.h>

#include <simulate/compilermessage.h>
#include <simulate/hostpipe.h>
#include <simulate/livecommand.h>
#include <simulate/pseudoterminal.h>
#include <simulate/scratchfolder.h>

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

using namespace Cli;

Q_DECLARE_METATYPE(Cli::Severity)

// What "orixm1 simulate" is made of, without a simulation.
class tst_SimulateParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatCompilersSay_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<Severity>("severity");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *line, Severity severity, const char *file,
                            int number, const char *text) {
            QTest::newRow(name) << QString::fromUtf8(line) << severity << QString::fromUtf8(file)
                                << number << QString::fromUtf8(text);
        };
        row("an error", "/a b/main.c:3:24: error: 'x' undeclared", Severity::Error, "/a b/main.c",
            3, "'x' undeclared");
        row("a fatal error", "main.c:1:10: fatal error: no.h: No such file", Severity::Error,
            "main.c", 1, "no.h: No such file");
        row("a warning", "main.c:2:1: warning: unused 'y'", Severity::Warning, "main.c", 2,
            "unused 'y'");
        row("a note", "main.c:2:1: note: declared here", Severity::Note, "main.c", 2,
            "declared here");
        row("a linker's error with a place", "/usr/bin/ld: /w/main.c:7: undefined reference to `f'",
            Severity::Error, "/w/main.c", 7, "undefined reference to `f'");
        row("a linker's error", "/usr/bin/ld: region `ITCM' overflowed by 4 bytes", Severity::Error,
            "", 0, "region `ITCM' overflowed by 4 bytes");
        row("the end of a linker", "collect2: error: ld returned 1 exit status", Severity::Error,
            "", 0, "ld returned 1 exit status");
        row("a syntax error in Verilog", "board.v:12: syntax error", Severity::Error, "board.v", 12,
            "syntax error");
        row("an error in Verilog", "board.v:12: error: no wire", Severity::Error, "board.v", 12,
            "no wire");
        row("a sentence", "The compiler failed with exit code 1.", Severity::Error, "", 0,
            "The compiler failed with exit code 1.");
    }

    void readsWhatCompilersSay()
    {
        QFETCH(QString, line);
        const auto message = compilerMessage(line);
        QVERIFY(message.has_value());
        QTEST(message->severity, "severity");
        QTEST(message->file, "file");
        QTEST(message->line, "number");
        QTEST(message->text, "text");
    }

    void passesOverLinesThatBelongToAnother()
    {
        for (const char *line : {"", "   3 | int main(void)", "main.c: In function 'main':",
                                 "In file included from main.c:1:", "                 from b.c:2,",
                                 "/usr/bin/ld: /tmp/x.o: in function `main':"})
            QVERIFY2(!compilerMessage(QString::fromUtf8(line)), line);
    }

    void readsCommands()
    {
        auto command = liveCommand("{\"uart\":1,\"text\":\"a\\u00ff\\u0000\"}");
        QVERIFY(command && command->kind == LiveCommand::Uart && command->uart == 1);
        QCOMPARE(command->bytes, QByteArray("a\xff\0", 3));
        command = liveCommand("{\"gpio\":{\"mask\":65535,\"levels\":5}}");
        QVERIFY(command && command->kind == LiveCommand::Pins);
        QCOMPARE(command->mask, 65535u);
        QCOMPARE(command->levels, 5u);
        command = liveCommand("{\"stop\":true}");
        QVERIFY(command && command->kind == LiveCommand::Stop);
    }

    void passesOverWhatIsNoCommand()
    {
        for (const char *line :
             {"", "stop", "[]", "{}", "{\"stop\":false}", "{\"uart\":2,\"text\":\"a\"}",
              "{\"uart\":0}", "{\"uart\":0.5,\"text\":\"a\"}", "{\"uart\":\"0\",\"text\":\"a\"}",
              "{\"gpio\":{\"mask\":65536,\"levels\":0}}", "{\"gpio\":{\"mask\":1}}",
              "{\"gpio\":{\"mask\":1,\"levels\":-1}}", "{\"what\":1}", "\xff\xfe"})
            QVERIFY2(!liveCommand(line), line);
    }

    void linesForTheSimulationAreWholeAndWait()
    {
        QTemporaryDir dir;
        HostPipe pipe;
        QVERIFY(pipe.open(dir.filePath(QStringLiteral("host"))));
        QSignalSpy drained(&pipe, &HostPipe::drained);
        QVERIFY(pipe.sendUart(0, "a\n"));
        pipe.sendPins(0xFF00, 0x1200);
        QByteArray all(300000, '\0');
        for (int i = 0; i < all.size(); ++i)
            all[i] = char(i * 7 % 251);
        QVERIFY(pipe.sendUart(1, all));
        QVERIFY(pipe.isFull());
        const QByteArray more(64 << 20, 'x');
        QVERIFY(!pipe.sendUart(1, more));

        const int reader =
            ::open(QFile::encodeName(dir.filePath(QStringLiteral("host"))).constData(),
                   O_RDONLY | O_NONBLOCK);
        QVERIFY(reader >= 0);
        QByteArray got;
        const int size = 2 + 2 * all.size();
        QTRY_VERIFY_WITH_TIMEOUT(
            [&] {
                char buffer[5000];
                for (ssize_t count; (count = ::read(reader, buffer, sizeof buffer)) > 0;)
                    got.append(buffer, int(count));
                return got.size() > size && !pipe.isFull() && got.endsWith('\n');
            }(),
            20000);
        ::close(reader);
        QList<QByteArray> lines = got.split('\n');
        QCOMPARE(lines.takeFirst(), QByteArray("uart 0 610a"));
        QCOMPARE(lines.takeFirst(), QByteArray("gpio ff00 1200"));
        QCOMPARE(lines.takeLast(), QByteArray());
        QByteArray seen;
        for (const QByteArray &line : qAsConst(lines)) {
            QVERIFY(line.startsWith("uart 1 ") && line.size() < 4096);
            seen += QByteArray::fromHex(line.mid(7));
        }
        QVERIFY(seen == all);
        QCOMPARE(drained.size(), 1);
    }

    void aPseudoTerminalPassesBytesAsTheyAre()
    {
        QByteArray name;
        const QByteArray bytes("\0\r\n\x03\x04\xff", 6);
        {
            PseudoTerminal terminal;
            QVERIFY(terminal.open());
            name = terminal.name().toLocal8Bit();
            for (const char byte : bytes)
                terminal.send(byte);
            const int other = ::open(name.constData(), O_RDWR | O_NOCTTY);
            QVERIFY(other >= 0);
            char buffer[100];
            QByteArray got;
            while (got.size() < bytes.size()) {
                const ssize_t count = ::read(other, buffer, sizeof buffer);
                QVERIFY(count > 0);
                got.append(buffer, int(count));
            }
            QCOMPARE(got, bytes);
            QCOMPARE(::write(other, bytes.constData(), size_t(bytes.size())), bytes.size());
            got.clear();
            QTRY_COMPARE(
                [&] {
                    const ssize_t count = ::read(terminal.file(), buffer, sizeof buffer);
                    return got.append(buffer, int(qMax(count, ssize_t(0))));
                }(),
                bytes);
            terminal.drain();
            ::close(other);
        }
        QVERIFY(!QFileInfo::exists(QString::fromLocal8Bit(name)));
    }

    void aScratchFolderGoesWithItsOwner()
    {
        QTemporaryDir dir;
        qputenv("TMPDIR", QFile::encodeName(dir.path()));
        {
            ScratchFolder folder(QStringLiteral("some"));
            QVERIFY2(folder.problem().isEmpty(), qPrintable(folder.problem()));
            QVERIFY(folder.path().startsWith(dir.path() + QLatin1String("/some-")));
            QVERIFY(TestSupport::write(folder.path() + QLatin1String("/a/b"), "text"));
        }
        QCOMPARE(TestSupport::entriesOf(dir.path()), QStringList());
        int ends[2];
        QCOMPARE(::pipe(ends), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            ScratchFolder folder(QStringLiteral("some"));
            TestSupport::write(folder.path() + QLatin1String("/a/b"), "text");
            const bool isMade = folder.problem().isEmpty();
            if (::write(ends[1], &isMade, 1) == 1)
                ::pause();
            ::_exit(1);
        }
        bool isMade = false;
        QCOMPARE(::read(ends[0], &isMade, 1), ssize_t(1));
        QVERIFY(isMade);
        QCOMPARE(TestSupport::entriesOf(dir.path()).size(), 1);
        ::kill(child, SIGKILL);
        QCOMPARE(::waitpid(child, nullptr, 0), child);
        QTRY_COMPARE_WITH_TIMEOUT(TestSupport::entriesOf(dir.path()), QStringList(), 20000);
        qputenv("TMPDIR", QFile::encodeName(dir.filePath(QStringLiteral("nothing"))));
        ScratchFolder none(QStringLiteral("some"));
        QVERIFY(none.path().isEmpty());
        QVERIFY2(none.problem().contains(QLatin1String("nothing")), qPrintable(none.problem()));
        qunsetenv("TMPDIR");
        ::close(ends[0]);
        ::close(ends[1]);
    }
};

TARVO_TEST_MAIN(QCoreApplication, tst_SimulateParts)
#include "tst_simulateparts.moc"
