#include <testsupport.h>

#include <core/boardhost.h>
#include <core/session.h>
#include <core/storagekinds.h>

#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

using namespace CortexM1;

namespace
{

using Arguments = std::map<std::string, std::string>;

// A simulator with this command line, which keeps what is printed.
class Spoken : public Simulator
{
public:
    explicit Spoken(Arguments arguments)
        : m_arguments(std::move(arguments))
    {
    }

    const char *argument(const std::string &name) const override
    {
        const auto found = m_arguments.find(name);
        return found == m_arguments.end() ? nullptr : found->second.c_str();
    }
    void print(const std::string &text) override { said += QByteArray::fromStdString(text); }

    QByteArray said;

private:
    const Arguments m_arguments;
};

QByteArray everything(BoardHost &host, int uart)
{
    QByteArray bytes;
    for (int byte = host.input(uart); byte >= 0; byte = host.input(uart))
        bytes.append(char(byte));
    return bytes;
}

} // namespace

class TestBoardHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void tellsBytesAndPinsBehindTheMark()
    {
        Spoken simulator(Arguments{{"mark", "m"}});
        BoardHost host(simulator);
        host.sent(1, 0xA5);
        host.pins(0xFFFF1234, 0xF0F);
        host.time(256);
        QCOMPARE(simulator.said, QByteArray("\036m uart 1 a5\n\036m gpio 1234 0f0f\n"));
    }

    void tellsTheTimeWhenAskedButNotEachTime()
    {
        Spoken simulator(Arguments{{"progress", ""}});
        BoardHost host(simulator);
        host.time((std::uint64_t(1) << 32) + 5);
        QCOMPARE(simulator.said, QByteArray("\036board time 4294967301\n"));
        for (int i = 0; i < 1000; ++i)
            host.time(std::uint64_t(i));
        QVERIFY2(simulator.said.count('\n') < 500, simulator.said.constData());
    }

    // A flood of changes is thinned out, but what the pins show at the end is told.
    void tellsTheLastPinsOfAFlood()
    {
        Spoken simulator(Arguments{});
        BoardHost host(simulator);
        for (std::uint32_t i = 0; i < 50000; ++i)
            host.pins(i & 1, 0xFFFF);
        QCOMPARE(simulator.said.count('\n'), 1000);
        host.pins(0x42, 0xFFFF);
        host.time(256);
        QVERIFY(simulator.said.endsWith("gpio 0042 ffff\n"));
        host.pins(0x43, 0xFFFF);
        host.finish();
        QVERIFY(simulator.said.endsWith("gpio 0043 ffff\n"));
    }

    void givesTheBytesOfAFileBeforeThoseOfThePipe()
    {
        QByteArray bytes;
        for (int i = 0; i < 10000; ++i)
            bytes.append(char(i * 7));
        TestSupport::write(path("in"), bytes);
        makePipe();
        Spoken simulator(Arguments{{"uart1-input", name("in")}, {"host", name("pipe")}});
        BoardHost host(simulator);
        QCOMPARE(host.input(0), -1);
        QCOMPARE(host.input(1), 0);
        send("uart 1 616200\nuart 0 ff\n");
        host.time(0);
        QCOMPARE(everything(host, 1), bytes.mid(1) + QByteArray("ab\0", 3));
        QCOMPARE(everything(host, 0), QByteArray("\xFF"));
        QCOMPARE(host.input(2), -1);
        QCOMPARE(host.input(-1), -1);
        send("uart 1 63\n");
        host.time(256);
        QCOMPARE(everything(host, 1), QByteArray("c"));
    }

    void takesLinesInPieces()
    {
        makePipe();
        Spoken simulator(Arguments{{"host", name("pipe")}});
        BoardHost host(simulator);
        send("gpio f0");
        host.time(0);
        QCOMPARE(host.driveMask(), 0);
        send("0f ffff\nuart 0 4");
        host.time(0);
        QCOMPARE(host.driveMask(), 0xF00F);
        QCOMPARE(host.driveLevels(), 0xF00F);
        send("1\n");
        host.time(0);
        QCOMPARE(everything(host, 0), QByteArray("A"));
    }

    void whatIsNoLineOfThePipeCountsForNothing_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("unknown") << QByteArray("stopp");
        QTest::newRow("more than a word") << QByteArray("stop now");
        QTest::newRow("half a byte") << QByteArray("uart 0 414");
        QTest::newRow("no digits") << QByteArray("uart 0 4g");
        QTest::newRow("no bytes") << QByteArray("uart 0");
        QTest::newRow("no such UART") << QByteArray("uart 2 41");
        QTest::newRow("a number with a sign") << QByteArray("gpio -1 1");
        QTest::newRow("more than the pins") << QByteArray("gpio 10000 0");
        QTest::newRow("a number of many digits")
            << QByteArray("gpio " + QByteArray(200, '1') + " 0");
        QTest::newRow("bytes that are no text") << QByteArray("\xFF\0\x01 \r", 5);
        QTest::newRow("too long") << QByteArray("uart 0 " + QByteArray(40000, '4'));
    }

    void whatIsNoLineOfThePipeCountsForNothing()
    {
        QFETCH(QByteArray, line);
        makePipe();
        Spoken simulator(Arguments{{"host", name("pipe")}});
        BoardHost host(simulator);
        send(line + "\nuart 1 42\n");
        host.time(0);
        QCOMPARE(everything(host, 1), QByteArray("B"));
        QCOMPARE(host.input(0), -1);
        QCOMPARE(host.driveMask(), 0);
        QVERIFY(host.size(0) > 0);
        QCOMPARE(simulator.said, QByteArray());
    }

    void dropsInputThatNobodyReadsAndSaysSoOnce()
    {
        makePipe();
        Spoken simulator(Arguments{{"host", name("pipe")}});
        BoardHost host(simulator);
        const QByteArray line = "uart 0 " + QByteArray(8000, '5') + '\n';
        for (std::size_t sent = 0; sent < BoardHost::mostInput + 100000; sent += 4000) {
            send(line);
            host.time(0);
        }
        QCOMPARE(simulator.said.count("UART0"), 1);
        QCOMPARE(std::size_t(everything(host, 0).size()), BoardHost::mostInput);
        send("stop\n");
        host.time(0);
        QVERIFY(host.size(0) < 0);
    }

    void endsTheRunWhenItIsStopped()
    {
        makePipe();
        Spoken simulator(Arguments{{"host", name("pipe")}});
        BoardHost host(simulator);
        QVERIFY(host.size(0) > 0);
        send("stop\n");
        host.time(0);
        QVERIFY(host.size(0) < 0);
        QVERIFY(host.size(2) < 0);
        QCOMPARE(simulator.said, QByteArray("FAIL: it was stopped from outside\n"));
    }

    void endsTheRunForAFileThatItCannotUse_data()
    {
        QTest::addColumn<QByteArray>("option");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isThere");
        for (const char *option : {"uart0-input", "uart1-input", "eeprom", "flash", "sd", "host"})
            QTest::addRow("%s: no such file", option)
                << QByteArray(option) << QByteArray() << false;
        for (const char *option : {"eeprom", "flash", "sd", "host"})
            QTest::addRow("%s: nothing in it", option)
                << QByteArray(option) << QByteArray() << true;
        QTest::newRow("eeprom: too much") << QByteArray("eeprom") << QByteArray(65537, 'x') << true;
        QTest::newRow("flash: too much")
            << QByteArray("flash") << QByteArray((1 << 24) + 1, 'x') << true;
        QTest::newRow("sd: no whole blocks") << QByteArray("sd") << QByteArray(513, 'x') << true;
    }

    void endsTheRunForAFileThatItCannotUse()
    {
        QFETCH(QByteArray, option);
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isThere);
        if (isThere)
            TestSupport::write(path("x"), bytes);
        Spoken simulator(Arguments{{option.toStdString(), name("x")}});
        BoardHost host(simulator);
        QVERIFY(host.size(0) < 0);
        QVERIFY(host.size(1) < 0);
        QVERIFY2(simulator.said.startsWith("FAIL: \"") && simulator.said.count('\n') == 1 &&
                     simulator.said.contains(name("x").c_str()),
                 simulator.said.constData());
        QCOMPARE(host.input(0), -1);
        QCOMPARE(host.load(0, 0), 0xFF);
    }

    void waitsForNoWriterOfAPipeThatIsGivenAsAFile()
    {
        makePipe();
        Spoken simulator(Arguments{{"uart0-input", name("pipe")}});
        BoardHost host(simulator);
        QVERIFY(host.size(0) < 0);
        QVERIFY2(simulator.said.contains("no plain file"), simulator.said.constData());
    }

    void hasBlankMemoriesAndNoCardWithoutFiles()
    {
        Spoken simulator(Arguments{});
        BoardHost host(simulator);
        QCOMPARE(host.size(0), 32768);
        QCOMPARE(host.size(1), 1 << 20);
        QCOMPARE(host.size(2), 0);
        QCOMPARE(host.size(3), 0);
        QCOMPARE(host.load(0, 0), 0xFF);
        QCOMPARE(host.load(1, 0xFFFFF), 0xFF);
        host.store(2, 0, 1);
        QCOMPARE(host.load(2, 0), 0xFF);
    }

    void sizesOfDevicesFollowTheirFiles_data()
    {
        QTest::addColumn<int>("storage");
        QTest::addColumn<qulonglong>("bytes");
        QTest::addColumn<uint>("size");
        const auto row = [](const char *name, int storage, qulonglong bytes, uint size) {
            QTest::newRow(name) << storage << bytes << size;
        };
        row("smallest I2C memory", 0, 1, 256);
        row("I2C memory of a power of two", 0, 2048, 2048);
        row("I2C memory above it", 0, 2049, 4096);
        row("largest I2C memory", 0, 65536, 65536);
        row("no I2C memory", 0, 65537, 0);
        row("smallest flash", 1, 1, 1 << 20);
        row("largest flash", 1, 1 << 24, 1 << 24);
        row("no flash", 1, (1 << 24) + 1, 0);
        row("smallest card", 2, 512, 512);
        row("card of any number of blocks", 2, 1536, 1536);
        row("largest card", 2, 0x7FFFFE00, 0x7FFFFE00);
        row("no card", 2, 0x80000000, 0);
        row("no card of half a block", 2, 256, 0);
    }

    void sizesOfDevicesFollowTheirFiles()
    {
        QFETCH(int, storage);
        QFETCH(qulonglong, bytes);
        QFETCH(uint, size);
        QCOMPARE(storageSize(storageKinds[storage], bytes), size);
        QCOMPARE(storageMistake(storageKinds[storage], bytes).empty(), size != 0);
    }

    void keepsChangesFromTheUsersFile()
    {
        const QByteArray bytes = QByteArray(5000, 'a') + QByteArray(120, 'b');
        TestSupport::write(path("sd"), bytes);
        TestSupport::write(path("eeprom"), "short");
        Spoken simulator(Arguments{{"sd", name("sd")},
                                   {"eeprom", name("eeprom")},
                                   {"sd-result", name("sd2")},
                                   {"eeprom-result", name("eeprom2")},
                                   {"flash-result", name("flash2")}});
        BoardHost host(simulator);
        QCOMPARE(host.size(2), 5120);
        QCOMPARE(host.load(2, 4999), int('a'));
        host.store(2, 4999, 'c');
        host.store(2, 5119, 'd');
        host.store(2, 5120, 'e');
        QCOMPARE(host.load(2, 4999), int('c'));
        QCOMPARE(host.load(2, 5120), 0xFF);
        host.store(0, 255, 0);
        host.finish();
        QCOMPARE(TestSupport::contentsOf(path("sd")), bytes);
        QCOMPARE(TestSupport::contentsOf(path("eeprom")), QByteArray("short"));
        QByteArray card = bytes;
        card[4999] = 'c';
        card[5119] = 'd';
        QCOMPARE(TestSupport::contentsOf(path("sd2")), card);
        QCOMPARE(TestSupport::contentsOf(path("eeprom2")),
                 QByteArray("short" + QByteArray(250, '\xFF') + '\0'));
        QCOMPARE(TestSupport::contentsOf(path("flash2")), QByteArray(1 << 20, '\xFF'));
        QCOMPARE(
            TestSupport::entriesOf(m_dir->path()),
            QStringList({QStringLiteral("eeprom"), QStringLiteral("eeprom2"),
                         QStringLiteral("flash2"), QStringLiteral("sd"), QStringLiteral("sd2")}));
        QCOMPARE(simulator.said, QByteArray());
    }

    void saysWhichResultCannotBeWritten()
    {
        Spoken simulator(
            Arguments{{"eeprom-result", name("nowhere/a")}, {"flash-result", name("b")}});
        BoardHost host(simulator);
        host.finish();
        host.finish();
        QVERIFY2(simulator.said.contains("nowhere/a\" cannot be written: ") &&
                     simulator.said.count('\n') == 1,
                 simulator.said.constData());
        QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList(QStringLiteral("b")));
    }

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    std::string name(const char *name) const { return path(name).toStdString(); }

    void makePipe() const { QCOMPARE(::mkfifo(name("pipe").c_str(), 0600), 0); }

    // Into the pipe, which has a reader.
    void send(const QByteArray &text) const
    {
        const int file = ::open(name("pipe").c_str(), O_WRONLY | O_NONBLOCK);
        QVERIFY(file >= 0);
        QCOMPARE(::write(file, text.constData(), std::size_t(text.size())), ssize_t(text.size()));
        ::close(file);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_APPLESS_MAIN(TestBoardHost)
#include "tst_boardhost.moc"
