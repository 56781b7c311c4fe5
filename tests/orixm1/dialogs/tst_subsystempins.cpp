#include "blockhands.h"
#include "peripheralmodel.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <dialogs/cortexm1.h>
#include <rules/pins.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace TARVOORIXM1;
namespace Pins = Expected::Pins;

namespace
{

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

DEV::DeviceArg deviceNamed(const QString &name)
{
    DEV::ChipFilter filter;
    filter.id = name;
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

QStringList wordsOf(const QList<BlockPins> &list)
{
    QStringList words;
    for (const BlockPins &entry : list) {
        for (const QString &pin : Expected::words(entry.pins))
            words.append(QString(entry.block->title) + u':' + pin);
    }
    return words;
}

QByteArray run(const QStringList &arguments, int *status)
{
    QProcess process;
    process.start(QStringLiteral(ORIXM1_PROGRAM), arguments);
    process.waitForFinished(-1);
    *status = process.exitCode();
    return *status == 0 ? process.readAllStandardOutput() : process.readAllStandardError();
}

// "block:name direction bus" of each.
QStringList figureOf(const QString &block, const QList<Utils::PinFigure> &pins)
{
    static const QString directions[] = {text("input"), text("output"), text("inout")};
    QStringList list;
    for (const Utils::PinFigure &pin : pins)
        list.append(QStringLiteral("%1:%2 %3 %4")
                        .arg(block, pin.name(), directions[pin.direction()])
                        .arg(pin.isBus()));
    return list;
}

// A configuration that all dialogs have accepted, as random as they take it.
OptionMap acceptedMap(QRandomGenerator &generator, const DEV::DeviceArg &device)
{
    OptionMap map = {{Key::ipDeviceId, device.id()}, {Key::ipDevice, device.device()}};
    for (const Expected::Block &expected : Expected::blocks()) {
        for (const Expected::Switch &entry : expected.switches) {
            if (generator.bounded(3) > 0)
                map.insert(text(entry.key), generator.bounded(2) == 1);
        }
    }
    const QStringList interfaces = findOption(Key::ethernetInterface)->choices;
    map.insert(Key::ethernetInterface, interfaces.at(generator.bounded(interfaces.size())));
    map.insert(Key::enableDebug, generator.bounded(2) == 1);
    map.insert(Key::externalInterrupts, generator.bounded(2) == 1);
    map.insert(Key::externalDataMemory, generator.bounded(2) == 1);
    CortexM1(&map).accept();
    for (const Expected::Block &expected : Expected::blocks())
        std::unique_ptr<Expected::Dialog>(expected.make(&map, nullptr))->accept();
    return map;
}

} // namespace

class tst_SubsystemPins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyMapHasNone();
    void takesTheDefaultsOfGeneration();
    void textsCountAsInAFile();
    void everythingAtOnce();
    void theProgramListsWhatTheFiguresShow_data();
    void theProgramListsWhatTheFiguresShow();
    void theProgramKeepsNamesToTheLetter();
};

void tst_SubsystemPins::anEmptyMapHasNone()
{
    const QList<BlockPins> list = peripheralPins({}, text("TV5KT-138B"));
    QCOMPARE(list.size(), int(Expected::blocks().size()));
    QVERIFY(wordsOf(list).isEmpty());
}

// Without its key, an interface is split although the dialogs would show it bidirectional, and
// Ethernet has RGMII; an unknown interface has no pins of its own.
void tst_SubsystemPins::takesTheDefaultsOfGeneration()
{
    const OptionMap map = {
        {Key::enableGpio, true}, {Key::enableI2c, true}, {Key::enableEthernet, true}};
    const auto pinsOf = [](const char *dialog, const OptionMap &options) {
        const Block &row = block(QLatin1String(dialog));
        return Expected::words(blockPins(row, blockState(row, options, QString())));
    };
    QCOMPARE(pinsOf("GPIODlg", map), Expected::pins(Pins::gpioSplit));
    QCOMPARE(pinsOf("I2CDlg", map), Expected::pins(Pins::i2cSplit));
    QCOMPARE(pinsOf("EthernetDlg", map),
             Expected::pins(Pins::ethernet) + Expected::pins(Pins::rgmii));
    OptionMap unknown = map;
    unknown.insert(Key::ethernetInterface, text("SGMII"));
    QCOMPARE(pinsOf("EthernetDlg", unknown), Expected::pins(Pins::ethernet));
}

void tst_SubsystemPins::textsCountAsInAFile()
{
    const OptionMap map = {{Key::enableGpio, text("true")},
                           {Key::enableGpioIo, text("true")},
                           {Key::enableSpi, text("false")},
                           {text("Enable_APB_Master11"), text("1")}};
    QStringList expected = {text("GPIO:GPIO[15:0]=")};
    for (const QString &pin : Expected::pins(Pins::apbPort, 11))
        expected.append(u"APB Master [1-16]:" + pin);
    QCOMPARE(wordsOf(peripheralPins(map, QString())), expected);
}

void tst_SubsystemPins::everythingAtOnce()
{
    OptionMap map = {{Key::ethernetInterface, text("GMII/MII")}};
    for (const Expected::Block &expected : Expected::blocks()) {
        for (const Expected::Switch &entry : expected.switches)
            map.insert(text(entry.key), true);
    }
    map.insert(Key::ipDevice, text("TV3K-50A"));
    QStringList expected;
    for (const Expected::Block &block : Expected::blocks()) {
        for (const QString &pin : PeripheralModel::Dialog(block, map).pins)
            expected.append(text(block.title) + u':' + pin);
    }
    QCOMPARE(wordsOf(peripheralPins(map, text("TV3K-50A"))), expected);
    // Both interfaces to the PHY, the stop signal, all ports.
    QCOMPARE(expected.filter(text("Ethernet:")).size(), 21);
    QCOMPARE(expected.filter(text("DDR3:")).size(), 21);
    QCOMPARE(expected.filter(text("AHB Master")).size(), 6 * 16);
    QCOMPARE(expected.filter(text("APB Master")).size(), 16 * 12);
}

void tst_SubsystemPins::theProgramListsWhatTheFiguresShow_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<quint32>("seed");
    quint32 seed = 0;
    for (const char *device : {"TV2KR-18C", "TV5KT-138B", "TV3K-20A", "TV1L-9C", "TV1KL-5A"}) {
        for (int i = 0; i < 5; ++i, ++seed)
            QTest::newRow(qPrintable(text(device) + QStringLiteral(" %1").arg(seed)))
                << text(device) << seed;
    }
}

void tst_SubsystemPins::theProgramListsWhatTheFiguresShow()
{
    QFETCH(QString, device);
    QFETCH(quint32, seed);
    QRandomGenerator generator(seed);
    OptionMap map = acceptedMap(generator, deviceNamed(device));
    const OptionMap accepted = map;

    QStringList figures = figureOf(text("Cortex-M1"), CortexM1(&map).figurePins());
    for (const Expected::Block &expected : Expected::blocks()) {
        const std::unique_ptr<Expected::Dialog> dialog(expected.make(&map, nullptr));
        figures += figureOf(dialog->labelText(), dialog->figurePins());
    }
    QCOMPARE(map, accepted);
    QVERIFY(figures.size() > 20);

    const QTemporaryDir folder;
    QStringList arguments = {text("new"), text("--device"), deviceNamed(device).id(), text("--out"),
                             folder.path()};
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (findOption(it.key())->isOption && !it.value().toString().isEmpty())
            arguments << text("--set") << QString(it.key() + u'=' + it.value().toString());
    }
    int status = 0;
    const QByteArray made = run(arguments, &status);
    QVERIFY2(status == 0, made.constData());
    const QStringList files = QDir(folder.path()).entryList({text("*.ipc")});
    QCOMPARE(files.size(), 1);
    const QByteArray output =
        run({text("pins"), folder.filePath(files.first()), text("--json")}, &status);
    QVERIFY2(status == 0, output.constData());
    QStringList printed;
    const QJsonArray pins = QJsonDocument::fromJson(output).object().value(text("pins")).toArray();
    for (const QJsonValue &pin : pins) {
        printed.append(QStringLiteral("%1:%2 %3 %4")
                           .arg(pin[text("block")].toString(), pin[text("name")].toString(),
                                pin[text("direction")].toString())
                           .arg(pin[text("bus")].toBool()));
    }
    QCOMPARE(printed, figures);
}

void tst_SubsystemPins::theProgramKeepsNamesToTheLetter()
{
    const QTemporaryDir folder;
    int status = 0;
    run({text("new"), text("--device"), text("TV2KR-18C-QFN88P-C8/I7"), text("--out"),
         folder.path(), text("--set"), text("Enable_AHB_Master4=true"), text("--set"),
         text("Enable RTC=true")},
        &status);
    QCOMPARE(status, 0);
    const QString file = folder.filePath(QDir(folder.path()).entryList({text("*.ipc")}).value(0));
    const QByteArray json = run({text("pins"), file, text("--json")}, &status);
    QCOMPARE(status, 0);
    QVERIFY(json.contains("\"AHB4HSIZE[2:0] \""));
    const QByteArray lines = run({text("pins"), file}, &status);
    QCOMPARE(status, 0);
    QVERIFY2(lines.contains("\nAHB4HWDATA[31:0]  output     AHB Master [1-6]\n"),
             lines.constData());
    QVERIFY2(lines.endsWith("\nRTCSRCCLK         input      RTC\n"), lines.constData());
}

TARVO_TEST_MAIN(QApplication, tst_SubsystemPins)
#include "tst_subsystempins.moc"
