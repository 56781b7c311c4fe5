#include <drawnoptions.h>

#include <dev/devicedb.h>
#include <simulation/board.h>
#include <simulation/wavesview.h>
#include <system/description.h>

#include <QRegularExpression>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

SystemMap drawnMap(unsigned draw)
{
    static const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    if (!description)
        qFatal("%s", qPrintable(description.reason()));
    TestSupport::Random random(draw);
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    const DEV::DeviceArg device = devices.at(TestSupport::below(devices.size(), random));
    return systemMap(TestSupport::drawnOptions(device, random), device, *description);
}

QStringList linesOf(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).split(u'\n');
}

} // namespace

class tst_WavesView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsEveryPortAsTheBoardHasIt()
    {
        int shown = 0;
        for (unsigned draw = 0; draw < 20; ++draw) {
            const SystemMap map = drawnMap(draw);
            const QString board = QString::fromUtf8(boardOf(map));
            const QStringList lines = linesOf(wavesView(map, QStringLiteral("/a.fst"), {}));
            static const QRegularExpression port(
                QStringLiteral("^board\\.(p_\\w+)(\\[[0-9]+:[0-9]+\\])?$"));
            for (const QString &line : lines) {
                const QRegularExpressionMatch match = port.match(line);
                if (!match.hasMatch())
                    continue;
                ++shown;
                const QString range =
                    match.captured(2).isEmpty() ? QString() : u' ' + match.captured(2);
                const QString declared = range + u' ' + match.captured(1) + QLatin1String(";\n");
                QVERIFY2(board.contains(QLatin1String("    wire") + declared) ||
                             board.contains(QLatin1String("    tri0") + declared) ||
                             board.contains(QLatin1String("    tri1") + declared),
                         qPrintable(line));
            }
            for (const Port &entry : map.ports)
                QCOMPARE(lines
                             .filter(QRegularExpression(QLatin1String("^board\\.p_") + entry.name +
                                                        QLatin1String("(\\[.*)?$")))
                             .size(),
                         entry.role == PortRole::Unused ? 0 : 1);
        }
        QVERIFY(shown > 100);
    }

    void groupsAreClosedWhereTheyWereOpened()
    {
        const QStringList lines =
            linesOf(wavesView(drawnMap(3), QStringLiteral("/a.fst"), QStringLiteral("/a.gtkw")));
        QString group;
        int groups = 0;
        for (int i = 0; i + 1 < lines.size(); ++i) {
            if (lines.at(i) == QLatin1String("@800200") ||
                lines.at(i) == QLatin1String("@c00200")) {
                QCOMPARE(group, QString());
                group = lines.at(i + 1);
                ++groups;
            } else if (lines.at(i) == QLatin1String("@1000200") ||
                       lines.at(i) == QLatin1String("@1401200")) {
                QCOMPARE(lines.at(i + 1), group);
                group.clear();
            }
        }
        QCOMPARE(group, QString());
        QVERIFY(groups >= 4);
        QVERIFY(lines.contains(QLatin1String("[dumpfile] \"/a.fst\"")));
    }

    void namesInterruptsByTheirPlaceFromTheLeft()
    {
        SystemMap map;
        map.interrupts = {{QStringLiteral("WDOG"), InterruptLine::nonMaskable, {}, {}},
                          {QStringLiteral("A"), 0, {}, {}},
                          {QStringLiteral("B"), 31, {}, {}},
                          {QStringLiteral("LOST"), 9, {}, QStringLiteral("why")}};
        const QStringList lines = linesOf(wavesView(map, {}, {}));
        QVERIFY(lines.contains(QLatin1String("+{WDOG} board.dut.u_core.NMI")));
        QVERIFY(lines.contains(QLatin1String("+{A} (31)board.dut.u_core.IRQ[31:0]")));
        QVERIFY(lines.contains(QLatin1String("+{B} (0)board.dut.u_core.IRQ[31:0]")));
        QVERIFY(lines.filter(QStringLiteral("LOST")).isEmpty());
    }

    void knowsItsOwnFiles()
    {
        QVERIFY(isWavesView(wavesView({}, {}, {})));
        QVERIFY(!isWavesView("[*]\n[*] GTKWave Analyzer v3.3.118\n"));
        QVERIFY(!isWavesView({}));
    }

    void namesFunctionsAndRegisters()
    {
        SystemMap map;
        Region uart;
        uart.name = QStringLiteral("UART0");
        uart.base = 0x50000000;
        uart.last = 0x50000FFF;
        Region memory;
        memory.name = QStringLiteral("ITCM");
        memory.last = 0xFFF;
        memory.kind = RegionKind::TightlyCoupledMemory;
        Region port;
        port.name = QStringLiteral("AHB1");
        port.base = 0x60000000;
        port.last = 0xFFFFFFFF;
        port.kind = RegionKind::ExtensionPort;
        map.regions = {memory, uart, port};
        Register data;
        data.name = QStringLiteral("DATA");
        data.offset = 4;
        PeripheralInstance instance;
        instance.name = uart.name;
        instance.base = uart.base;
        Peripheral peripheral;
        peripheral.registers = {data};
        peripheral.instances = {instance};
        map.peripherals = {peripheral};
        QCOMPARE(wavesNames(map, {{0x40, 8, QStringLiteral("a")},
                                  {0x50, 0, QStringLiteral("in\nassembly")},
                                  {0x60, 100, QStringLiteral("b")},
                                  {0x70, 4, QStringLiteral("inner")}}),
                 QByteArray("function 0x00000040 8 a\n"
                            "function 0x00000050 16 in?assembly\n"
                            "function 0x00000060 16 b\n"
                            "function 0x00000070 4 inner\n"
                            "register 0x50000004 4 UART0.DATA\n"
                            "register 0x60000000 2684354560 AHB1\n"));
    }
};

QTEST_APPLESS_MAIN(tst_WavesView)
#include "tst_wavesview.moc"
