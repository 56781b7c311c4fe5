#include <core/boardhost.h>
#include <core/scriptplayer.h>
#include <core/session.h>

#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <map>

using namespace CortexM1;

Q_DECLARE_METATYPE(CortexM1::Verb)

namespace
{

using Numbers = QVector<quint32>;

QString text(const std::string &bytes)
{
    return QString::fromLatin1(bytes.data(), int(bytes.size()));
}

// A command line, and what is printed.
class Surrounding : public Simulator
{
public:
    const char *argument(const std::string &name) const override
    {
        const auto found = arguments.find(name);
        return found == arguments.end() ? nullptr : found->second.c_str();
    }
    void print(const std::string &piece) override { printed += piece; }

    std::map<std::string, std::string> arguments;
    std::string printed;
};

struct Played {
    QStringList failures; // "LINE: TEXT"
    quint64 checks = 0;
    quint64 cycles = 0; // from the end of the reset
    bool isDone = false;
    bool hasPassed = false;
};

} // namespace

class tst_Script : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_surrounding = std::make_unique<Surrounding>();
        m_host = std::make_unique<BoardHost>(*m_surrounding);
    }

    void readsALine_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<Verb>("verb");
        QTest::addColumn<int>("bytes");
        QTest::addColumn<Numbers>("numbers");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytesOfText");
        const auto row = [](const char *phrase, const QByteArray &line, Verb verb, int bytes,
                            const Numbers &numbers, const char *name = "",
                            const QByteArray &bytesOfText = {}) {
            QTest::newRow(phrase) << line << verb << bytes << numbers << QString::fromLatin1(name)
                                  << bytesOfText;
        };
        row("nothing", "", Verb::Nothing, 4, {});
        row("a comment", "  # write 1 2", Verb::Nothing, 4, {});
        row("a word", "write 0x4000_0000 12", Verb::Write, 4, {0, 0x40000000, 12});
        row("a halfword", "write16 1_000 +5", Verb::Write, 2, {0, 1000, 5});
        row("a byte", "write8 0 -1", Verb::Write, 1, {0, 0, 0xFFFFFFFF});
        row("a read", "read 0 0xFFFFFFFF", Verb::Read, 4, {0, 0, 0xFFFFFFFF});
        row("a read with a mask", "read16 0 1 0xF", Verb::Read, 2, {0, 0, 1, 0xF});
        row("words that do not matter", "read8 0 1 2 3 four five", Verb::Read, 1,
            {0, 0, 1, 2, 3, 0, 0});
        row("white space of all kinds", "\twait\v1\f\r", Verb::Wait, 0, {0, 1});
        row("a comment in a word", "wait 1#2", Verb::Wait, 0, {0, 1});
        row("poll", "poll 4 0xA 0xB 7", Verb::Poll, 4, {0, 4, 10, 11, 7});
        row("error", "error 8", Verb::Error, 4, {0, 8});
        row("irq", "irq 3 1 100", Verb::Interrupt, 0, {0, 3, 1, 100});
        row("nmi", "nmi 1 100", Verb::NonMaskable, 0, {0, 1, 100});
        row("reset", "reset", Verb::Reset, 0, {0});
        row("repeat", "repeat 3", Verb::Repeat, 0, {0, 3});
        row("end", "end # of it", Verb::End, 0, {0});
        row("include", "include a/\"b\"", Verb::Include, 0, {0, 0}, "a/\"b\"");
        row("pipeline", "pipeline off", Verb::Pipeline, 0, {0, 0}, "off");
        row("a burst", "burst-write incr 4 1 2", Verb::BurstWrite, 4, {0, 0, 4, 1, 2}, "incr");
        row("a burst that is read", "burst-read wrap4 4 1 2 3 4", Verb::BurstRead, 4,
            {0, 0, 4, 1, 2, 3, 4}, "wrap4");
        row("a UART", "expect-uart 1 \"a b\" 100", Verb::ExpectUart, 0, {0, 1, 0, 100}, "", "a b");
        row("a text with all that texts have", "uart 0 \"#\\n\\r\\t\\\\\\\"\\x00\\xfF ' \" # \"",
            Verb::SendUart, 0, {0, 0, 0}, "", QByteArray("#\n\r\t\\\"\0\xFF ' ", 11));
        row("pins", "gpio 0xF0 0x50 9", Verb::Gpio, 0, {0, 0xF0, 0x50, 9});
        row("pins that are driven", "gpio-drive 3 1", Verb::GpioDrive, 0, {0, 3, 1});
    }

    void readsALine()
    {
        QFETCH(QByteArray, line);
        QFETCH(Verb, verb);
        QFETCH(int, bytes);
        QFETCH(Numbers, numbers);
        QFETCH(QString, name);
        QFETCH(QByteArray, bytesOfText);
        const ScriptLine read = parseLine(line.toStdString());
        QCOMPARE(text(read.mistake), QString());
        QCOMPARE(text(contradictionIn(read)), QString());
        QCOMPARE(int(read.verb), int(verb));
        QCOMPARE(read.bytes, bytes);
        QCOMPARE(Numbers(read.numbers.begin(), read.numbers.end()), numbers);
        QCOMPARE(text(read.name), name);
        QCOMPARE(QByteArray::fromStdString(read.text), bytesOfText);
    }

    void refusesALine_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("mistake");
        const auto row = [](const QByteArray &line, const char *mistake) {
            QTest::newRow(line.left(60).constData()) << line << QString::fromLatin1(mistake);
        };
        row("jump", "unknown command");
        row("WAIT 1", "unknown command");
        row("write 1", "a number is missing");
        row("repeat", "a number is missing");
        row("repeat 2 3", "too many words");
        row("repeat 2 x", "not a number");
        row("end repeat", "too many words");
        row("include", "the name of a file is missing");
        row("include a b", "too many words");
        row("pipeline", "neither on nor off");
        row("pipeline of", "neither on nor off");
        row("pipeline on off", "too many words");
        row("wait -", "not a number");
        row("wait 0x", "not a number");
        row("wait 0X1", "not a number");
        row("wait 12AB", "not a number");
        row("wait _1", "not a number");
        row("wait -0x1", "not a number");
        row("wait 4294967296", "a number of more than 32 bits");
        row("wait 0x1_0000_0000", "a number of more than 32 bits");
        row("burst-read incr2 0x40000000 0 0", "no burst of this name");
        row("burst-read incr4 0x40000000 0 0 0", "not as many data as the burst has");
        row("burst-read incr4 0x40000002 0 0 0 0", "the address of a burst is not a multiple of 4");
        row("burst-read incr4 0x400003F4 0 0 0 0", "the burst crosses a boundary of 1 KB");
        row("burst-read incr4", "a number is missing");
        row("burst-write incr 0x40000000 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16",
            "too many words");
        row("expect-uart 0", "a text is missing");
        row("expect-uart 0 \"a\"", "a number is missing");
        row("expect-uart 0 a 1", "not a text in quotes");
        row("expect-uart 0 \"a 1", "the text has no quote at its end");
        row("expect-uart 0 \"a\\\"", "the text has no quote at its end");
        row("expect-uart 0 \"a\"1", "the text ends before the word does");
        row("expect-uart 0 \"\" 1", "the text is empty");
        row("expect-uart 0 \"\\q\" 1", "not an escape: \\n, \\r, \\t, \\\\, \\\" and \\xHH are");
        row("expect-uart 0 \"\\x1\" 1", "not an escape: \\n, \\r, \\t, \\\\, \\\" and \\xHH are");
        row("expect-uart 2 \"a\" 1", "no UART of this number");
        row("expect-uart 0 \"a\" 1 2", "too many words");
        row("uart 7 \"a\"", "no UART of this number");
        row("uart 0", "a text is missing");
        row("gpio 0x10000 0 1", "the GPIO has 16 pins");
        row("gpio-drive 1 2", "levels of pins outside of the mask");
        row("gpio 1 1", "a number is missing");
        row("gpio-drive 1 1 1", "too many words");
        row(QByteArray(256, ' '), "a line of more than 255 characters");
    }

    void refusesALine()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, mistake);
        const ScriptLine read = parseLine(line.toStdString());
        QCOMPARE(text(read.mistake.empty() ? contradictionIn(read) : read.mistake), mistake);
    }

    void aTextInQuotesReadsBack()
    {
        for (int byte = 0; byte < 256; ++byte) {
            const std::string bytes = {char(byte), '7'};
            const std::string line = "uart 1 " + quotedBytes(bytes);
            QCOMPARE(QByteArray::fromStdString(parseLine(line).text),
                     QByteArray::fromStdString(bytes));
            for (const char c : line)
                QVERIFY(c >= ' ' && c <= '~');
        }
    }

    void readsTheLinesOfAFile()
    {
        QCOMPARE(int(parseScript("").size()), 0);
        QCOMPARE(int(parseScript("\n").size()), 1);
        const std::vector<ScriptLine> lines =
            parseScript("wait 1\r\n\nwait 2\n" + std::string(255, '#') + '\n' +
                        std::string(256, '#') + "\nend");
        QCOMPARE(int(lines.size()), 6);
        QCOMPARE(lines[2].numbers[1], 2u);
        QCOMPARE(int(lines[3].verb), int(Verb::Nothing));
        QCOMPARE(int(lines[4].verb), int(Verb::TooLong));
        QCOMPARE(int(lines[5].verb), int(Verb::End));
    }

    void findsIncludedFiles_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("included");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *script, const char *included, const char *name) {
            QTest::newRow(name) << QString::fromLatin1(script) << QString::fromLatin1(included)
                                << QString::fromLatin1(name);
        };
        row("a", "b", "b");
        row("dir/a", "../b", "dir/../b");
        row("/full/a", "b/c", "/full/b/c");
        row("dir/a", "/b", "/b");
        row("dir\\a", "c", "dir\\c");
        row("dir/a", "C:\\b", "C:\\b");
        row("dir/a", "\\b", "\\b");
    }

    void findsIncludedFiles()
    {
        QFETCH(QString, script);
        QFETCH(QString, included);
        QFETCH(QString, name);
        QCOMPARE(text(nameBeside(script.toStdString(), included.toStdString())), name);
    }

    void expectsWhatAUartSends_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QStringList>("failures");
        // UART 0 sends "hello\n" from the tenth clock cycle on, one byte each ten; UART 1 "ab".
        const auto row = [](const char *phrase, const QByteArray &script,
                            const QStringList &failures) {
            QTest::newRow(phrase) << script << failures;
        };
        const auto told = [](const char *line) { return QStringList(QString::fromLatin1(line)); };
        row("all of it", "expect-uart 0 \"hello\\n\" 60", {});
        row("piece by piece", "expect-uart 0 \"he\" 100\nexpect-uart 0 \"llo\\n\" 100", {});
        row("what has come before", "wait 80\nexpect-uart 0 \"hello\\n\" 0", {});
        row("both UARTs", "expect-uart 1 \"ab\" 100\nexpect-uart 0 \"hello\" 100", {});
        row("something else", "wait 1\nexpect-uart 0 \"help!\" 100",
            told(R"(2: UART0 has sent "hello" instead of "help!")"));
        row("too little", "expect-uart 0 \"hello\\n\" 35",
            told(R"(1: UART0 has sent "hel" instead of "hello\n")"));
        row("nothing", "expect-uart 1 \"abc\" 3",
            told(R"(1: UART1 has sent nothing instead of "abc")"));
        row("on from what was wrong", "expect-uart 0 \"hex\" 99\nexpect-uart 0 \"lo\" 99",
            told(R"(1: UART0 has sent "hel" instead of "hex")"));
    }

    void expectsWhatAUartSends()
    {
        QFETCH(QByteArray, script);
        QFETCH(QStringList, failures);
        const QByteArray sent = "hello\n";
        const Played played = play(script, [&](int cycle) {
            if (cycle % 10 == 0 && cycle > 0 && cycle / 10 <= sent.size())
                m_host->sent(0, std::uint8_t(sent.at(cycle / 10 - 1)));
            if (cycle == 15 || cycle == 16)
                m_host->sent(1, std::uint8_t(cycle == 15 ? 'a' : 'b'));
        });
        QVERIFY(played.isDone);
        QCOMPARE(played.failures, failures);
        QCOMPARE(played.hasPassed, failures.isEmpty());
        QCOMPARE(played.checks, quint64(script.count("expect-uart")));
    }

    void waitsForPins_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QStringList>("failures");
        QTest::addColumn<int>("cycles");
        // The pins show 0 from the beginning, 0x0250 from the 20th clock cycle on.
        QTest::newRow("levels that there are")
            << QByteArray("gpio 0xFFFF 0 50") << QStringList() << 1;
        QTest::newRow("levels that come") << QByteArray("gpio 0xF0 0x50 50") << QStringList() << 21;
        QTest::newRow("levels that come too late")
            << QByteArray("gpio 0xF0 0x50 5")
            << QStringList(QStringLiteral(
                   "1: the GPIO pins show 0x0000, expected 0x0050 in the pins 0x00f0"))
            << 6;
        QTest::newRow("other levels")
            << QByteArray("gpio 0x20F 0x0201 50")
            << QStringList(QStringLiteral(
                   "1: the GPIO pins show 0x0250, expected 0x0201 in the pins 0x020f"))
            << 51;
    }

    void waitsForPins()
    {
        QFETCH(QByteArray, script);
        QFETCH(QStringList, failures);
        QFETCH(int, cycles);
        const Played played = play(script, [&](int cycle) {
            if (cycle == 20)
                m_host->pins(0x250, 0xFF);
        });
        QCOMPARE(played.failures, failures);
        QCOMPARE(int(played.cycles), cycles);
        QCOMPARE(played.checks, 1u);
    }

    void sendsAndDrivesFromOutside()
    {
        QCOMPARE(m_host->input(0), -1);
        const Played played = play("uart 0 \"a\\x80\"\nuart 1 \"b\"\nuart 0 \"c\"\n"
                                   "gpio-drive 0xF00F 0x3001\nwrite 0x20000000 1",
                                   {});
        QVERIFY(played.hasPassed);
        for (const int byte : {int('a'), 0x80, int('c'), -1})
            QCOMPARE(m_host->input(0), byte);
        for (const int byte : {int('b'), -1})
            QCOMPARE(m_host->input(1), byte);
        QCOMPARE(m_host->driveMask(), 0xF00F);
        QCOMPARE(m_host->driveLevels(), 0x3001);
        play("gpio-drive 0 0", {});
        QCOMPARE(m_host->driveMask(), 0);
    }

    void memoriesAreUnknownUntilWritten()
    {
        const Played played = play("write16 0x20000202 0xABCD\nread 0x20000200 0 0\n"
                                   "read8 0x20000203 0xAB\nread 0x20000200 0xABCD0000\n"
                                   "write 0x10000004 7\nread 0x00000004 7\nread 8 0xA5A5A5A5",
                                   {});
        QCOMPARE(played.failures,
                 QStringList({QStringLiteral("4: read 0xabcdxxxx, expected 0xabcd0000 in the bits "
                                             "0xffffffff"),
                              QStringLiteral("7: read 0xxxxxxxxx, expected 0xa5a5a5a5 in the bits "
                                             "0xffffffff")}));
        // Two clock cycles each, and the last call.
        QCOMPARE(played.cycles, 15u);
    }

    void aBusThatHangsIsToldOnce()
    {
        m_inputs.isReady = false;
        const Played played = play("write 0x40000000 1", {}, 3000000);
        QVERIFY(played.isDone);
        // Address and data phase.
        QCOMPARE(played.failures, QStringList({QStringLiteral("1: HREADY stays low"),
                                               QStringLiteral("1: HREADY stays low")}));
    }

    void canBeLeftAtAnyTime()
    {
        for (const QByteArray script :
             {"wait 1000", "poll 0x40000000 1 1 1000", "expect-uart 0 \"abc\" 1000",
              "repeat 1000\nread 0 0\nend", "reset"}) {
            for (const int cycles : {0, 1, 2, 3, 50})
                QVERIFY(!play(script, {}, cycles).isDone);
        }
        m_host->sent(0, 'x'); // nobody listens any more
    }

    void tellsWhatAReaderWants_data()
    {
        QTest::addColumn<QByteArray>("mark");
        QTest::addColumn<QString>("told");
        QTest::newRow("people") << QByteArray()
                                << QStringLiteral("%1:2: read 0xxxxxxxxx, expected 0x00000000 in "
                                                  "the bits 0xffffffff\nFAIL: 1 of 2 checks\n");
        QTest::newRow("a program")
            << QByteArray("mine")
            << QStringLiteral("\036mine failure 2 %2 read 0xxxxxxxxx, expected 0x00000000 in the "
                              "bits 0xffffffff\n\036mine checks 2 1\nFAIL: 1 of 2 checks\n");
    }

    void tellsWhatAReaderWants()
    {
        QFETCH(QByteArray, mark);
        QFETCH(QString, told);
        const QString path = m_dir->filePath(QStringLiteral("50% of\u00E4.play"));
        write(path, "read 0 0 0\nread 0 0\n");
        static Surrounding surrounding; // of the process's board
        surrounding.printed.clear();
        surrounding.arguments = {{"script", QFile::encodeName(path).toStdString()}};
        if (!mark.isEmpty())
            surrounding.arguments["mark"] = mark.toStdString();
        Parameters parameters;
        parameters.itcmSize = 3;
        Session session(surrounding, parameters, {}, "model");
        Inputs inputs;
        session.clock(inputs);
        inputs.isReset = false;
        for (int i = 0; i < 10; ++i)
            session.clock(inputs);
        QCOMPARE(QString::fromStdString(surrounding.printed),
                 told.contains(QLatin1String("%1"))
                     ? told.arg(path)
                     : told.replace(QLatin1String("%2"),
                                    m_dir->path() + QLatin1String("/50%25%20of%C3%A4.play")));
    }

    void refusesAScriptBesideOtherThings_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("firmware");
        QTest::addColumn<QString>("told");
        QTest::newRow("a program") << QString() << QStringLiteral("a.elf")
                                   << QStringLiteral("FAIL: +script=FILE and +firmware=FILE "
                                                     "exclude each other\n");
        QTest::newRow("a debugger")
            << QStringLiteral("gdb") << QString() << QStringLiteral("FAIL: +gdb needs a program\n");
    }

    void refusesAScriptBesideOtherThings()
    {
        QFETCH(QString, option);
        QFETCH(QString, firmware);
        QFETCH(QString, told);
        m_surrounding->arguments["script"] = "nowhere";
        if (!option.isEmpty())
            m_surrounding->arguments[option.toStdString()] = "0";
        Session session(*m_surrounding, {}, firmware.toStdString(), "model");
        const Outputs outputs = session.clock({});
        QVERIFY(outputs.isDone && !outputs.hasPassed);
        QCOMPARE(QString::fromStdString(m_surrounding->printed), told);
    }

private:
    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    // `board` is called before each clock cycle after the reset. Ends with the script, or with
    // the last clock cycle.
    Played play(const QByteArray &script, const std::function<void(int)> &board, int cycles = 10000)
    {
        Played played;
        const QString path = m_dir->filePath(QStringLiteral("script"));
        write(path, script);
        Configuration configuration;
        configuration.itcmBytes = 4096;
        configuration.dtcmBytes = 1024;
        configuration.hasUpperAlias = true;
        ScriptPlayer player(configuration, *m_host, path.toStdString(),
                            [&played](const ScriptFailure &failure) {
                                played.failures.append(QString::number(failure.line) +
                                                       QLatin1String(": ") + text(failure.text));
                            });
        m_inputs.isReset = true;
        player.clock(m_inputs);
        m_inputs.isReset = false;
        player.clock(m_inputs);
        for (int i = 0; i < cycles && !played.isDone; ++i) {
            if (board)
                board(i);
            const Outputs &outputs = player.clock(m_inputs);
            played.isDone = outputs.isDone;
            played.hasPassed = outputs.hasPassed;
            ++played.cycles;
        }
        played.checks = player.checks();
        return played;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Surrounding> m_surrounding;
    std::unique_ptr<BoardHost> m_host;
    Inputs m_inputs;
};

QTEST_APPLESS_MAIN(tst_Script)
#include "tst_script.moc"
