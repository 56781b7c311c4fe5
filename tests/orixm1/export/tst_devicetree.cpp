// The device tree, as the compiler of device trees and its tools read it.

#include "handedon.h"

using namespace TARVOORIXM1;

class tst_DeviceTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void compilesWithoutAWord_data() { HandedOn::addConfigurations(); }
    void compilesWithoutAWord();
    void saysWhatTheMapSays_data() { HandedOn::addConfigurations(); }
    void saysWhatTheMapSays();
    void overlayChangesWhatTheBoardDecides();
    void takesAnyNameAndText();
    void interruptsFromOutsideStandTogether();
    void namesTheClocksOfTheBoard();

private:
    SystemMap map(const OptionMap &options) const
    {
        return systemMap(options, HandedOn::device(), m_description);
    }
    // Compiles the tree, the overlay, and the one onto the other; what the tools said.
    QString compile(const SystemMap &map, const QString &folder) const;
    // A line of `fdtget` for each pair of node and property; "none" for an absent property.
    QStringList read(const QString &folder, const QStringList &pairs,
                     const QString &form = QStringLiteral("s")) const
    {
        return HandedOn::said(QStringLiteral("fdtget"),
                              QStringList{QStringLiteral("-t"), form, QStringLiteral("-d"),
                                          QStringLiteral("none"), QStringLiteral("whole.dtb")} +
                                  pairs,
                              folder)
            .split(u'\n');
    }
    // The nodes of the regions, by their labels.
    QStringList nodes(const QString &folder, const QVector<Region> &regions) const
    {
        QStringList pairs;
        for (const Region &region : regions) {
            QString label = region.name.toLower();
            if (label == QLatin1String("gpio"))
                label += u'0';
            pairs << QStringLiteral("/__symbols__") << label;
        }
        return pairs.isEmpty() ? QStringList() : read(folder, pairs).mid(0, regions.size());
    }

    SystemDescription m_description;
};

QString tst_DeviceTree::compile(const SystemMap &map, const QString &folder) const
{
    if (!HandedOn::writeFiles(findFormat(QStringLiteral("devicetree"))->files(map), folder))
        return QStringLiteral("not written");
    const auto dtc = [&folder](const QStringList &options, const char *from, const char *to) {
        return HandedOn::said(QStringLiteral("dtc"),
                              options + QStringList{QStringLiteral("-I"), QStringLiteral("dts"),
                                                    QStringLiteral("-O"), QStringLiteral("dtb"),
                                                    QStringLiteral("-o"), QLatin1String(to),
                                                    QLatin1String(from)},
                              folder);
    };
    const QStringList symbols{QStringLiteral("-@")};
    QString words = dtc({}, "tarvo_orix_m1.dtsi", "plain.dtb");
    words += dtc(symbols, "tarvo_orix_m1.dtsi", "base.dtb");
    words += dtc({}, "tarvo_orix_m1-overlay.dts", "plain.dtbo");
    words += dtc(symbols, "tarvo_orix_m1-overlay.dts", "board.dtbo");
    words += HandedOn::said(QStringLiteral("fdtoverlay"),
                            {QStringLiteral("-i"), QStringLiteral("base.dtb"), QStringLiteral("-o"),
                             QStringLiteral("whole.dtb"), QStringLiteral("board.dtbo")},
                            folder);
    // What came of it is a sound tree too.
    words += HandedOn::said(QStringLiteral("dtc"),
                            {QStringLiteral("-I"), QStringLiteral("dtb"), QStringLiteral("-O"),
                             QStringLiteral("dtb"), QStringLiteral("-o"),
                             QStringLiteral("again.dtb"), QStringLiteral("whole.dtb")},
                            folder);
    return words;
}

void tst_DeviceTree::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
}

void tst_DeviceTree::compilesWithoutAWord()
{
    QFETCH(OptionMap, options);
    const QTemporaryDir folder;
    QCOMPARE(compile(map(options), folder.path()), QString());
}

void tst_DeviceTree::saysWhatTheMapSays()
{
    QFETCH(OptionMap, options);
    const SystemMap made = map(options);
    const QTemporaryDir folder;
    QCOMPARE(compile(made, folder.path()), QString());

    const QStringList paths = nodes(folder.path(), made.regions);
    QCOMPARE(paths.size(), made.regions.size());
    QStringList cells;    // asked for
    QStringList expected; // answers
    QStringList statuses;
    int inSystem = 0;
    for (int i = 0; i < paths.size(); ++i) {
        const Region &region = made.regions.at(i);
        const QString &path = paths.at(i);
        QVERIFY2(path.endsWith(u'@' + QString::number(region.base, 16)), qPrintable(path));
        QCOMPARE(path.startsWith(QLatin1String("/memory@")), isMemory(region.kind));
        inSystem += !isMemory(region.kind);
        QString interrupts;
        for (const InterruptLine &line : made.interrupts) {
            if (line.source == region.name && line.number >= 0 && line.lost.isEmpty())
                interrupts += QStringLiteral("%1 0 ").arg(line.number, 0, 16);
        }
        cells << path << QStringLiteral("reg") << path << QStringLiteral("interrupts");
        expected << QStringLiteral("%1 %2").arg(region.base, 0, 16).arg(region.size(), 0, 16)
                 << (interrupts.isEmpty() ? QStringLiteral("none") : interrupts.trimmed());
        statuses << path << QStringLiteral("status");
    }
    if (!paths.isEmpty()) {
        QCOMPARE(read(folder.path(), cells, QStringLiteral("x")),
                 expected + QStringList{QString()});
        const QStringList found = read(folder.path(), statuses);
        for (int i = 0; i < paths.size(); ++i) {
            const RegionKind kind = made.regions.at(i).kind;
            const bool isUsable = kind == RegionKind::Registers || kind == RegionKind::ReadWindow ||
                                  kind == RegionKind::TightlyCoupledMemory;
            QCOMPARE(found.at(i) == QLatin1String("disabled"), !isUsable);
        }
    }

    const QString nvic = QStringLiteral("/soc/interrupt-controller@e000e100");
    QCOMPARE(read(folder.path(),
                  {nvic, QStringLiteral("reg"), nvic, QStringLiteral("#interrupt-cells"), nvic,
                   QStringLiteral("arm,num-irq-priority-bits"), nvic,
                   QStringLiteral("tarvo,interrupt-inputs")},
                  QStringLiteral("x")),
             QStringList({QStringLiteral("e000e100 c00"), QStringLiteral("2"), QStringLiteral("2"),
                          QString::number(made.processor.interruptInputs, 16), QString()}));
    // Nothing else stands in the system but the processor's own.
    const QString children = HandedOn::said(
        QStringLiteral("fdtget"),
        {QStringLiteral("-l"), QStringLiteral("whole.dtb"), QStringLiteral("/soc")}, folder.path());
    QCOMPARE(children.count(u'\n'), inSystem + 1 + int(made.processor.hasOsExtension));
    QCOMPARE(children.contains(QLatin1String("timer@e000e010")), made.processor.hasOsExtension);
    // fdtget tells of a property without a value with an empty line.
    const QString cpu = QStringLiteral("/cpus/cpu@0");
    QCOMPARE(read(folder.path(), {cpu, QStringLiteral("tarvo,big-endian-data")}).value(0).isEmpty(),
             made.processor.isBigEndian);
    for (const InterruptLine &line : made.interrupts) {
        if (line.number != InterruptLine::nonMaskable)
            continue;
        const QString node = nodes(folder.path(), {*findRegion(made, line.source)}).value(0);
        QCOMPARE(
            read(folder.path(), {node, QStringLiteral("tarvo,non-maskable-interrupt")}).value(0),
            QString());
    }
}

void tst_DeviceTree::overlayChangesWhatTheBoardDecides()
{
    const SystemMap made = map({{Key::enableUart0, true}, {Key::enableDdr3, true}});
    const QTemporaryDir folder;
    QCOMPARE(compile(made, folder.path()), QString());
    const QString uart = QStringLiteral("/soc/serial@50004000");
    const QString ddr3 = QStringLiteral("/memory@a0000000");
    const QStringList asked{QStringLiteral("/chosen"),
                            QStringLiteral("stdout-path"),
                            QStringLiteral("/aliases"),
                            QStringLiteral("serial0"),
                            uart,
                            QStringLiteral("status"),
                            ddr3,
                            QStringLiteral("status")};
    QCOMPARE(read(folder.path(), asked),
             QStringList({QStringLiteral("serial0"), uart, QStringLiteral("okay"),
                          QStringLiteral("disabled"), QString()}));

    // The board fills in its skeleton.
    const QString overlay = folder.filePath(QStringLiteral("tarvo_orix_m1-overlay.dts"));
    QByteArray text = TestSupport::contentsOf(overlay);
    text.replace("clock-frequency = <0>", "clock-frequency = <50000000>");
    text.replace("reg = <0xa0000000 0x20000000>;\n\t\tstatus = \"disabled\"",
                 "reg = <0xa0000000 0x8000000>;\n\t\tstatus = \"okay\"");
    text.replace("&uart0 {\n\tstatus = \"okay\"", "&uart0 {\n\tstatus = \"disabled\"");
    QVERIFY(TestSupport::write(overlay, text));
    QCOMPARE(HandedOn::said(QStringLiteral("dtc"),
                            {QStringLiteral("-@"), QStringLiteral("-o"),
                             QStringLiteral("board.dtbo"), overlay},
                            folder.path()),
             QString());
    QCOMPARE(HandedOn::said(QStringLiteral("fdtoverlay"),
                            {QStringLiteral("-i"), QStringLiteral("base.dtb"), QStringLiteral("-o"),
                             QStringLiteral("whole.dtb"), QStringLiteral("board.dtbo")},
                            folder.path()),
             QString());
    QCOMPARE(read(folder.path(), asked).mid(2, 2),
             QStringList({QStringLiteral("disabled"), QStringLiteral("okay")}));
    QCOMPARE(
        read(folder.path(),
             {QStringLiteral("/clock-hclk"), QStringLiteral("clock-frequency"), ddr3,
              QStringLiteral("reg")},
             QStringLiteral("x")),
        QStringList({QStringLiteral("2faf080"), QStringLiteral("a0000000 8000000"), QString()}));
}

void tst_DeviceTree::takesAnyNameAndText()
{
    SystemMap made = map({});
    made.device =
        DEV::DeviceArg(QStringLiteral("TV\"2\\\\K\nX"), QStringLiteral("TV"), {}, {}, {}, {});
    quint32 base = 0x90000000;
    const char *const names[] = {"UART",
                                 "Uart",
                                 "uart",
                                 "uart0",
                                 "cpu0",
                                 "nvic",
                                 "soc",
                                 "reg",
                                 "GPIO",
                                 "gpios",
                                 "systick",
                                 "hclk",
                                 "A_NAME_THAT_IS_LONGER_THAN_A_NODE_MAY_BE",
                                 "status",
                                 "memory"};
    int kind = 0;
    for (const char *name : names) {
        Region region;
        region.name = QLatin1String(name);
        region.base = base;
        region.last = base + 0xFFF;
        region.kind = RegionKind(kind++ % (int(RegionKind::ExtensionPort) + 1));
        region.bus = QStringLiteral("AHB");
        region.text = QStringLiteral("*/ & { \" \\ // µ\n/dts-v1/;");
        made.regions.append(region);
        made.interrupts.append({region.name, 0, region.name, QString()});
        made.interrupts.append({region.name, 1, region.name, QStringLiteral("*/ why")});
        base += 0x1000;
    }
    const QTemporaryDir folder;
    QCOMPARE(compile(made, folder.path()), QString());
}

void tst_DeviceTree::interruptsFromOutsideStandTogether()
{
    const QString node = QStringLiteral("/external-interrupts");
    for (const auto &[inputs, numbers, names] :
         {std::make_tuple(32, "c 0 d 0 e 0 f 0", "EXTINT0 EXTINT1 EXTINT2 EXTINT3"),
          std::make_tuple(8, "none", "none")}) {
        const QTemporaryDir folder;
        const SystemMap made =
            map({{Key::externalInterrupts, true}, {Key::numberOfInterrupts, inputs}});
        QCOMPARE(compile(made, folder.path()), QString());
        QCOMPARE(
            read(folder.path(), {node, QStringLiteral("interrupts")}, QStringLiteral("x")).value(0),
            QLatin1String(numbers));
        QCOMPARE(read(folder.path(), {node, QStringLiteral("interrupt-names")}).value(0),
                 QLatin1String(names));
    }
}

// All but the debugger's; a block has those that its ports bring beside the main one.
void tst_DeviceTree::namesTheClocksOfTheBoard()
{
    const SystemMap made = map({{Key::enableRtc, true}, {Key::enableSpi, true}});
    QVERIFY(made.processor.hasDebug);
    const QTemporaryDir folder;
    QCOMPARE(compile(made, folder.path()), QString());
    QStringList clocks;
    const QStringList nodes =
        HandedOn::said(QStringLiteral("fdtget"),
                       {QStringLiteral("-l"), QStringLiteral("whole.dtb"), QStringLiteral("/")},
                       folder.path())
            .split(u'\n');
    for (const QString &node : nodes) {
        if (node.startsWith(QLatin1String("clock-")))
            clocks.append(
                read(folder.path(), {u'/' + node, QStringLiteral("clock-output-names")}).value(0));
    }
    QCOMPARE(clocks, QStringList({QStringLiteral("HCLK"), QStringLiteral("RTCSRCCLK")}));
    QCOMPARE(
        read(folder.path(), {QStringLiteral("/soc/rtc@50006000"), QStringLiteral("clock-names"),
                             QStringLiteral("/soc/spi@5000d000"), QStringLiteral("clock-names")}),
        QStringList({QStringLiteral("hclk rtcsrcclk"), QStringLiteral("none"), QString()}));
}

TARVO_TEST_MAIN(QCoreApplication, tst_DeviceTree)
#include "tst_devicetree.moc"
