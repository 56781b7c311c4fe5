// The ports of the elaborated subsystem are the pins of the figures. See CMakeLists.txt for the
// arguments.

#include "testsupport.h"

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <generate/sourcefiles.h>
#include <rules/check.h>
#include <rules/corepins.h>
#include <rules/devicerules.h>
#include <rules/itcmcontents.h>
#include <rules/pins.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <random>

using namespace TARVOORIXM1;

namespace
{

using Random = std::mt19937;

const QString top = QStringLiteral("Tarvo_ORIX_M1_Top");

int below(int limit, Random &random)
{
    return int(random() % unsigned(limit));
}

// Within the option's domain; texts without one are left out.
QVariant anyValue(const Option &option, Random &random)
{
    if (option.type == OptionType::Bool)
        return below(2, random) == 1;
    if (!option.choices.isEmpty())
        return optionValueFromText(option, option.choices.at(below(option.choices.size(), random)));
    if (option.type == OptionType::Int && option.minimum <= option.maximum)
        return option.minimum + below(option.maximum - option.minimum + 1, random);
    return {};
}

// Each key is present in three of four configurations.
OptionMap anyOptions(Random &random)
{
    OptionMap map;
    for (const Option &option : optionTable()) {
        const QVariant value = option.isOption ? anyValue(option, random) : QVariant();
        if (value.isValid() && below(4, random) != 0)
            map.insert(option.key, value);
    }
    return map;
}

OptionMap allSwitches(bool on)
{
    OptionMap map;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool)
            map.insert(option.key, on);
    }
    return map;
}

// Takes back what the device cannot have and gives what is missing, until no error is left.
OptionMap repaired(OptionMap options, const DEV::DeviceArg &device, const QString &programFolder)
{
    const auto setProgram = [&] {
        const int index =
            options.value(Key::itcmSize, defaultTcmSizeIndex(device.device())).toInt();
        const QString folder = QStringLiteral("%1/%2").arg(programFolder).arg(index);
        options.insert(Key::itcmInitializationPath, folder);
        options.insert(Key::itcmInitializationAbsolutePath, folder);
    };
    for (int round = 0; round < 10; ++round) {
        bool sound = true;
        if (options.value(Key::initializeItcm).toBool())
            setProgram();
        const QVector<Finding> findings = checkOptions(options, device, QDir::rootPath());
        for (const Finding &finding : findings) {
            if (finding.severity != Finding::Error)
                continue;
            sound = false;
            const Option *option = findOption(finding.key);
            if (option && option->type == OptionType::Bool)
                options.insert(finding.key, false);
            else if (finding.key == Key::canBufferDepth)
                options.insert(finding.key, option->choices.first());
            else if (!options.contains(finding.key))
                options.insert(finding.key, 0); // a memory that is too large by default
            else
                options.remove(finding.key);
        }
        if (sound)
            return options;
    }
    return {};
}

// "input", "output [15:0]" by port name.
using PortMap = QMap<QString, QString>;

void addPins(const QList<Utils::PinFigure> &pins, PortMap *ports, QStringList *twice)
{
    static const QString directions[] = {QStringLiteral("input"), QStringLiteral("output"),
                                         QStringLiteral("inout")};
    for (const Utils::PinFigure &pin : pins) {
        const QString label = pin.name().trimmed();
        const int bracket = label.indexOf(u'[');
        const QString name = bracket < 0 ? label : label.left(bracket);
        if (ports->contains(name))
            twice->append(name);
        const QString range = bracket < 0 ? QString() : label.mid(bracket);
        ports->insert(name, QString(directions[pin.direction()] + u' ' + range).trimmed());
    }
}

PortMap expectedPorts(const OptionMap &options, const QString &device, QStringList *twice)
{
    PortMap ports;
    addPins(corePins(coreSwitches(options)), &ports, twice);
    const QList<BlockPins> blocks = peripheralPins(options, device);
    for (const BlockPins &block : blocks)
        addPins(block.pins, &ports, twice);
    return ports;
}

PortMap portsOfModule(const QByteArray &json, const QString &module)
{
    PortMap ports;
    const QJsonObject modules =
        QJsonDocument::fromJson(json).object().value(QLatin1String("modules")).toObject();
    const QJsonObject list =
        modules.value(module).toObject().value(QLatin1String("ports")).toObject();
    for (auto it = list.begin(); it != list.end(); ++it) {
        const QJsonObject port = it->toObject();
        const int width = port.value(QLatin1String("bits")).toArray().size();
        const int lowest = port.value(QLatin1String("offset")).toInt();
        QString text = port.value(QLatin1String("direction")).toString();
        if (width > 1 || lowest != 0)
            text += QStringLiteral(" [%1:%2]").arg(lowest + width - 1).arg(lowest);
        if (port.contains(QLatin1String("upto")))
            text += QLatin1String(" rising");
        ports.insert(it.key(), text);
    }
    return ports;
}

// What differs, a port a line.
QString difference(const PortMap &ports, const PortMap &pins)
{
    QString text;
    for (auto it = pins.begin(); it != pins.end(); ++it) {
        if (ports.value(it.key()) != it.value())
            text += QStringLiteral("\n  %1: pin is \"%2\", port is \"%3\"")
                        .arg(it.key(), it.value(), ports.value(it.key()));
    }
    for (auto it = ports.begin(); it != ports.end(); ++it) {
        if (!pins.contains(it.key()))
            text += QStringLiteral("\n  %1: no pin, port is \"%2\"").arg(it.key(), it.value());
    }
    return text;
}

} // namespace

class tst_Ports : public QObject
{
    Q_OBJECT

public:
    tst_Ports(bool corners, unsigned seed, int draws)
        : m_corners(corners)
        , m_seed(seed)
        , m_draws(draws)
    {
    }

private Q_SLOTS:
    void initTestCase();
    void pinsArePorts_data();
    void pinsArePorts();

private:
    bool elaborate(const OptionMap &options, const DEV::DeviceArg &device, QByteArray *json,
                   QString *message);

    const bool m_corners;
    const unsigned m_seed;
    const int m_draws;
    QTemporaryDir m_dir;
    QVariantMap m_ipInfo;
    QHash<QString, QByteArray> m_elaborated; // by what the tools read
};

void tst_Ports::initTestCase()
{
    QVERIFY(m_dir.isValid());
    addDataFolders(m_ipInfo, QStringLiteral(TARVO_IP_DATA_DIR));
    for (int size = 0; size < 10; ++size) {
        for (int i = 0; i < 4; ++i)
            QVERIFY(TestSupport::write(
                m_dir.filePath(QStringLiteral("program/%1/itcm%2").arg(size).arg(i)),
                QByteArray("00\n11\n22\n33\n").repeated(itcmLaneSize(size) / 4)));
    }
}

void tst_Ports::pinsArePorts_data()
{
    QTest::addColumn<int>("deviceIndex");
    QTest::addColumn<OptionMap>("drawn");
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    QSet<QString> seen;
    for (int i = 0; i < devices.size(); ++i) {
        const QString name = devices.at(i).device();
        if (m_corners) {
            // Whether there is PSRAM depends on the package.
            if (seen.contains(name + devices.at(i).package()))
                continue;
            seen.insert(name + devices.at(i).package());
            QTest::newRow(qPrintable(devices.at(i).id() + QLatin1String(", nothing on")))
                << i << allSwitches(false);
            QTest::newRow(qPrintable(devices.at(i).id() + QLatin1String(", everything on")))
                << i << allSwitches(true);
            QTest::newRow(qPrintable(devices.at(i).id() + QLatin1String(", no key")))
                << i << OptionMap();
            continue;
        }
        if (seen.contains(name))
            continue;
        seen.insert(name);
        QList<int> variants;
        for (int k = 0; k < devices.size(); ++k) {
            if (devices.at(k).device() == name)
                variants.append(k);
        }
        for (int draw = 0; draw < m_draws; ++draw) {
            std::seed_seq sequence{m_seed, unsigned(i), unsigned(draw)};
            Random random(sequence);
            const int device = variants.at(below(variants.size(), random));
            QTest::addRow("%s, seed %u draw %d", qPrintable(devices.at(device).id()), m_seed, draw)
                << device << anyOptions(random);
        }
    }
}

void tst_Ports::pinsArePorts()
{
    QFETCH(int, deviceIndex);
    QFETCH(OptionMap, drawn);
    const DEV::DeviceArg device = DEV::DeviceDb::bundled().devices().at(deviceIndex);
    const OptionMap options =
        repaired(drawn, device, m_dir.filePath(QStringLiteral("program")) + u'/');
    QVERIFY2(!options.isEmpty() || drawn.isEmpty(), "the configuration cannot be repaired");

    QStringList twice;
    const PortMap pins = expectedPorts(options, device.device(), &twice);
    QVERIFY2(twice.isEmpty(), qPrintable(twice.join(QLatin1String(", "))));
    QByteArray json;
    QString message;
    const bool elaborated = elaborate(options, device, &json, &message);
    const QString differing = elaborated ? difference(portsOfModule(json, top), pins) : message;
    if (!differing.isEmpty()) {
        QString text;
        for (auto it = options.begin(); it != options.end(); ++it)
            text += QStringLiteral("\n    %1=%2").arg(it.key(), it.value().toString());
        QFAIL(qPrintable(differing + text));
    }
}

bool tst_Ports::elaborate(const OptionMap &options, const DEV::DeviceArg &device, QByteArray *json,
                          QString *message)
{
    const QTemporaryDir dir;
    const QVector<IncludeFile> files = buildIncludeFiles(options, device);
    QString design;
    for (const IncludeFile &file : files) {
        const QString text = file.lines.join(u'\n') + u'\n';
        TestSupport::write(dir.filePath(file.name), text.toUtf8());
        design += file.name + u'\n' + text;
    }
    const QStringList sources = buildSourceFiles(options, m_ipInfo, device.device(), dir.path());
    // Many devices make the same of a configuration.
    design += sources.join(u'\n').remove(dir.path());
    if (m_elaborated.contains(design)) {
        *json = m_elaborated.value(design);
        return true;
    }
    const auto run = [&](const QString &program, const QStringList &arguments) {
        QProcess process;
        process.setWorkingDirectory(dir.path());
        process.start(program, arguments);
        if (process.waitForFinished(120000) && process.exitCode() == 0)
            return true;
        *message =
            process.errorString() + u'\n' + QString::fromUtf8(process.readAllStandardError());
        return false;
    };

    // The whole design, down to the last module.
    QStringList folders = {QStringLiteral(".")};
    for (const QString &source : sources)
        folders.append(QFileInfo(source).path());
    folders.removeDuplicates();
    QStringList arguments = {QStringLiteral("-g2012"), QStringLiteral("-tnull"),
                             QStringLiteral("-s"), top};
    for (const QString &folder : qAsConst(folders))
        arguments.append(QLatin1String("-I") + folder);
    if (!run(QStringLiteral("iverilog"), arguments + sources))
        return false;

    // Its ports; of what stands below the top the ports are enough.
    QByteArray script;
    for (const QString &source : sources) {
        const bool isTop = source.endsWith(QLatin1String("/tarvo_orix_m1_top.v"));
        script += QByteArray("read_verilog ") + (isTop ? "" : "-lib ") + "-I. -I" +
                  QFileInfo(source).path().toUtf8() + ' ' + source.toUtf8() + '\n';
    }
    script += "hierarchy -check -top " + top.toUtf8() + "\nhierarchy -top " + top.toUtf8() +
              " -purge_lib\nblackbox *\nwrite_json ports.json\n";
    TestSupport::write(dir.filePath(QStringLiteral("ports.ys")), script);
    if (!run(QStringLiteral("yosys"),
             {QStringLiteral("-q"), QStringLiteral("-s"), QStringLiteral("ports.ys")}))
        return false;
    *json = TestSupport::contentsOf(dir.filePath(QStringLiteral("ports.json")));
    m_elaborated.insert(design, *json);
    return true;
}

int main(int argc, char *argv[])
{
    TestSupport::useUtf8();
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    const bool corners = arguments.value(1) == QLatin1String("corners");
    const unsigned seed = arguments.value(1).toUInt();
    const int draws = arguments.value(2).toInt();
    if (!corners && (seed == 0 || draws <= 0)) {
        std::fprintf(stderr, "usage: tst_ports corners | SEED DRAWS\n");
        return 2;
    }
    tst_Ports test(corners, seed, draws);
    arguments.erase(arguments.begin() + 1, arguments.begin() + (corners ? 2 : 3));
    return QTest::qExec(&test, arguments);
}

#include "tst_ports.moc"
