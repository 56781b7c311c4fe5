#include <drawnoptions.h>
#include <testsupport.h>

#include <dev/devicedb.h>
#include <simulation/board.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace TARVOORIXM1;

namespace
{

// By hand more: TARVO_TEST_DRAWS.
int draws()
{
    return qMax(40, qEnvironmentVariableIntValue("TARVO_TEST_DRAWS"));
}

// The processor's pins that a board looks at.
const char core[] = R"(
module some_core (
    input wire HCLK, SYSRESETn
);
    reg        HREADY = 1'b1, HWRITE = 1'b0, LOCKUP = 1'b0, done = 1'b0, passed = 1'b0;
    reg [1:0]  HTRANS = 2'd0;
    reg [2:0]  HSIZE = 3'd0;
    reg [31:0] HADDR = 32'd0, HWDATA = 32'd0;
    always @(posedge HCLK) HADDR <= HADDR + 32'd4;
endmodule
)";

// A top module with the ports of the map, and nothing behind them but such a core.
QByteArray topOf(const SystemMap &map)
{
    QStringList ports;
    QString ends;
    for (const Port &port : map.ports) {
        const char *direction = port.direction == PortDirection::Input    ? "input"
                                : port.direction == PortDirection::Output ? "output"
                                                                          : "inout";
        ports.append(QLatin1String(direction) + QLatin1String(" wire ") +
                     (port.isVector() ? QStringLiteral("[%1:%2] ").arg(port.left).arg(port.right)
                                      : QString()) +
                     port.name);
        if (port.direction == PortDirection::Output)
            ends += QStringLiteral("    assign %1 = 0;\n").arg(port.name);
    }
    return QByteArray(core) + "module Tarvo_ORIX_M1_Top (\n    " +
           ports.join(QLatin1String(",\n    ")).toUtf8() + "\n);\n" + ends.toUtf8() +
           "    some_core u_core (.HCLK(HCLK), .SYSRESETn(hwRstn));\nendmodule\n";
}

bool hasPort(const SystemMap &map, const char *name)
{
    return std::any_of(map.ports.begin(), map.ports.end(),
                       [name](const Port &port) { return port.name == QLatin1String(name); });
}

} // namespace

// The board in the hands of two compilers. That the subsystem has the map's ports is shown
// elsewhere.
class tst_Board : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
        QVERIFY2(description, qPrintable(description.reason()));
        m_description = *description;
        for (const char *name : {"i2c_memory.v", "spi_flash.v", "sd_card.v"}) {
            const QByteArray text = TestSupport::contentsOf(
                QStringLiteral(TARVO_IP_DATA_DIR "/simulation/board/") + QLatin1String(name));
            QVERIFY2(text.contains("module board_"), name);
            m_devices += text;
        }
    }

    void theDrawsHaveEveryDevice()
    {
        QMap<QByteArray, int> counts;
        for (int draw = 0; draw < draws(); ++draw) {
            const SystemMap map = drawnMap(draw);
            for (const char *port : {"GPIO", "GPIOIN", "SDA", "SDAIN", "FLASH_SPI_CSN", "SD_DATAIN",
                                     "UART0RXD", "UART1RXD"})
                counts[port] += hasPort(map, port) ? 1 : 0;
        }
        for (auto it = counts.begin(); it != counts.end(); ++it)
            QVERIFY2(it.value() > 0, it.key().constData());
    }

    void passesBothCompilers_data()
    {
        QTest::addColumn<int>("draw");
        for (int draw = 0; draw < draws(); ++draw)
            QTest::addRow("configuration %d", draw) << draw;
    }

    // The seed of the draws is fixed: a failure names the configuration.
    void passesBothCompilers()
    {
        QFETCH(int, draw);
        const SystemMap map = drawnMap(draw);
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("board.v"));
        TestSupport::write(file, boardOf(map) + m_devices + topOf(map));
        check(QStringLiteral("iverilog"),
              {QStringLiteral("-g2012"), QStringLiteral("-Wall"), QStringLiteral("-Wno-timescale"),
               QStringLiteral("-s"), QStringLiteral("board"), QStringLiteral("-o"),
               folder.filePath(QStringLiteral("board.vvp")), file},
              {QStringLiteral("implicit"), QStringLiteral("error")});
        if (QTest::currentTestFailed())
            return;
        check(QStringLiteral("verilator"),
              {QStringLiteral("--lint-only"), QStringLiteral("-Wno-lint"),
               QStringLiteral("-Wno-style"), QStringLiteral("-Wno-TIMESCALEMOD"),
               QStringLiteral("--top-module"), QStringLiteral("board"), file},
              {QStringLiteral("%")});
    }

#ifdef MODEL_FOLDER
    void theOutsideDrivesPins_data()
    {
        QTest::addColumn<bool>("isInout");
        QTest::newRow("with pins") << true;
        QTest::newRow("with split lines") << false;
    }

    // Pins that follow others follow those that the outside drives, too.
    void theOutsideDrivesPins()
    {
        QFETCH(bool, isInout);
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("board.v"));
        OptionMap options;
        options.insert(Key::enableGpio, true);
        options.insert(Key::enableGpioIo, isInout);
        const SystemMap map =
            systemMap(options, DEV::DeviceDb::bundled().devices().first(), m_description);
        QCOMPARE(hasPort(map, "GPIO"), isInout);
        TestSupport::write(file, boardOf(map) + m_devices + topOf(map));
        const QString program = folder.filePath(QStringLiteral("board.vvp"));
        check(QStringLiteral("iverilog"),
              {QStringLiteral("-g2012"), QStringLiteral("-s"), QStringLiteral("board"),
               QStringLiteral("-o"), program, file},
              {});
        const QString pipe = folder.filePath(QStringLiteral("pipe"));
        QCOMPARE(::mkfifo(pipe.toUtf8().constData(), 0600), 0);
        QFile host(pipe);
        QVERIFY(host.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
        QProcess process;
        process.start(QStringLiteral("vvp"),
                      {QStringLiteral("-n"), QStringLiteral("-M"), QStringLiteral(MODEL_FOLDER),
                       QStringLiteral("-m"), QStringLiteral("cortexm1core"), program,
                       QStringLiteral("+timeout=1000000000"),
                       QString(QLatin1String("+host=") + pipe)});
        QByteArray said;
        const auto waitFor = [&](const QByteArray &line) {
            while (!said.contains(line) && process.waitForReadyRead(60000))
                said += process.readAll();
            return said.contains(line);
        };
        host.write("gpio 0003 0001\n");
        QVERIFY2(waitFor("\036board gpio 0101 0000\n"), said.constData());
        host.write("gpio 8080 0080\n");
        QVERIFY2(waitFor("\036board gpio 0080 0000\n"), said.constData());
        host.write("gpio 0000 0000\n");
        QVERIFY2(waitFor("\036board gpio 0000 0000\n"), said.constData());
        host.write("stop\n");
        QVERIFY2(
            waitFor("FAIL: it was stopped from outside\n\036board done\n\036board end failed "),
            said.constData());
        QVERIFY(process.waitForFinished(-1));
    }
#endif

    // The devices by themselves, for a bench of the user's.
    void devicesNeedNoBoard()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("devices.v"));
        TestSupport::write(file, m_devices);
        check(QStringLiteral("iverilog"),
              {QStringLiteral("-g2012"), QStringLiteral("-o"),
               folder.filePath(QStringLiteral("devices.vvp")), file},
              {QStringLiteral("error")});
    }

private:
    SystemMap drawnMap(int draw) const
    {
        TestSupport::Random random(unsigned(draw) + 400);
        const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
        const DEV::DeviceArg device = devices.at(TestSupport::below(devices.size(), random));
        return systemMap(TestSupport::drawnOptions(device, random), device, m_description);
    }

    static void check(const QString &program, const QStringList &arguments,
                      const QStringList &unwanted)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        QVERIFY2(process.waitForFinished(-1), qPrintable(program));
        const QString said = QString::fromUtf8(process.readAll());
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 qPrintable(said.left(3000)));
        for (const QString &word : unwanted)
            QVERIFY2(!said.contains(word), qPrintable(said.left(3000)));
    }

    SystemDescription m_description;
    QByteArray m_devices;
};

TARVO_TEST_MAIN(QCoreApplication, tst_Board)
#include "tst_board.moc"
