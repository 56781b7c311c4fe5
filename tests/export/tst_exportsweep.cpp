// Exports random configurations of every device in all formats and has the tools that read such
// files look at each of them. Register description and header of each have to say the same.

#include "../orixm1/export/agreement.h"
#include "exportedfiles.h"

#include <drawnoptions.h>

#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <dev/devicedb.h>
#include <rules/dialogdefaults.h>
#include <rules/itcmcontents.h>
#include <rules/tcmsizes.h>
#include <system/description.h>

#include <QElapsedTimer>
#include <QLocale>
#include <QtTest>

#include <clocale>
#include <cstdio>

using namespace TARVOORIXM1;

namespace
{

struct Arguments {
    unsigned seed = 0;
    int draws = 0;
    int devices = 0; // 0: all
    QString keep;    // folder for what was exported; empty: none
};

// With sizes of the memories that fit the device.
OptionMap anyOptions(const DEV::DeviceArg &device, TestSupport::Random &random)
{
    OptionMap map = TestSupport::drawnOptions(device, random);
    const TcmSizes sizes = tcmSizes(device.device());
    const int count = qMax(1, sizes.full.size());
    int itcm = TestSupport::below(count, random);
    const int dtcm = TestSupport::below(count, random);
    while (itcm > 0 && !tcmFit(sizes, itcm, dtcm).both())
        --itcm;
    if (TestSupport::below(4, random) != 0) {
        map.insert(Key::itcmSize, itcm);
        map.insert(Key::dtcmSize, dtcm);
    }
    if (TestSupport::below(3, random) == 0) {
        map.insert(Key::initializeItcm, true);
        map.insert(Key::itcmInitializationAbsolutePath, QStringLiteral("/nowhere/itcm"));
    }
    return map;
}

// With first contents for the memory that wants some.
SystemMap wholeMap(const OptionMap &options, const DEV::DeviceArg &device,
                   const SystemDescription &description)
{
    SystemMap map = systemMap(options, device, description);
    if (isOn(options, Key::internalInstructionMemory) && isOn(options, Key::initializeItcm)) {
        const int index = generatedValue(options, Key::itcmSize, device.device()).toInt();
        for (int lane = 0; lane < 4; ++lane)
            map.initialContents.append({QStringLiteral("itcm%1").arg(lane),
                                        QByteArray("5A\n").repeated(itcmLaneSize(index))});
    }
    return map;
}

QString described(const DEV::DeviceArg &device, const OptionMap &options)
{
    QString text = device.id();
    for (auto it = options.begin(); it != options.end(); ++it)
        text += QStringLiteral("\n    %1=%2").arg(it.key(), it.value().toString());
    return text;
}

} // namespace

class tst_ExportSweep : public QObject
{
    Q_OBJECT

public:
    explicit tst_ExportSweep(Arguments arguments)
        : m_arguments(std::move(arguments))
    {
    }

private Q_SLOTS:
    void initTestCase()
    {
        const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
        QVERIFY2(description, qPrintable(description.reason()));
        m_description = *description;
        // One of each name: nothing that is exported knows packages and speed grades apart, but by
        // name.
        QStringList names;
        for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
            if (!names.contains(device.device()))
                m_devices.append(device);
            names.append(device.device());
        }
    }

    void toolsTakeEachFileWithoutAWord_data()
    {
        QTest::addColumn<int>("device");
        QTest::addColumn<int>("draw");
        const int all = m_devices.size();
        const int count = m_arguments.devices > 0 ? qMin(m_arguments.devices, all) : all;
        for (int i = 0; i < count; ++i) {
            // Some devices, if not all, are taken from the whole range.
            const int device = (i * all / count + int(m_arguments.seed) - 1) % all;
            for (int draw = 0; draw < m_arguments.draws; ++draw)
                QTest::addRow("%s, seed %u, configuration %d",
                              qPrintable(m_devices.at(device).device()), m_arguments.seed, draw)
                    << device << draw;
        }
    }

    void toolsTakeEachFileWithoutAWord()
    {
        QFETCH(int, device);
        QFETCH(int, draw);
        const DEV::DeviceArg arg = m_devices.at(device);
        TestSupport::Random random(m_arguments.seed * 100003u + unsigned(device) * 1009u +
                                   unsigned(draw));
        const OptionMap options = anyOptions(arg, random);
        const SystemMap map = wholeMap(options, arg, m_description);
        QStringList complaints;
        QElapsedTimer timer;
        timer.start();
        const Exported::Files files = Exported::filesOf(map, &complaints);
        m_slowest = qMax(m_slowest, timer.nsecsElapsed());
        keep(files, QStringLiteral("%1-%2").arg(arg.device()).arg(draw));
        complaints += Exported::textComplaints(files);
        if (files != elsewhere(options, arg))
            complaints.append(QStringLiteral("another locale and folder give other bytes"));
        complaints += m_checkers.complaints(files, map.processor.isBigEndian);
        const QStringList differences =
            Agreement::disagreements(files.value(QStringLiteral("tarvo_orix_m1.svd")),
                                     files.value(QStringLiteral("tarvo_orix_m1.h")));
        if (!differences.isEmpty())
            complaints.append(QLatin1String("header and description differ: ") +
                              differences.join(QLatin1String(", ")));
        m_files += files.size();
        ++m_configurations;
        QVERIFY2(complaints.isEmpty(),
                 qPrintable(complaints.join(u'\n') + u'\n' + described(arg, options)));
    }

    void cleanupTestCase()
    {
        std::printf("%d configurations, %d files, %d runs of tools, %d not repeated; the slowest "
                    "export took %.2f ms\n",
                    m_configurations, m_files, m_checkers.runs(), m_checkers.repeats(),
                    double(m_slowest) / 1e6);
    }

private:
    // The same in other circumstances.
    Exported::Files elsewhere(const OptionMap &options, const DEV::DeviceArg &device) const
    {
        const QTemporaryDir dir;
        const QString current = QDir::currentPath();
        const QLocale locale;
        QDir::setCurrent(dir.path());
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
        std::setlocale(LC_ALL, "tr_TR.UTF-8");
        const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
        QStringList complaints;
        const Exported::Files files =
            description ? Exported::filesOf(wholeMap(options, device, *description), &complaints)
                        : Exported::Files();
        std::setlocale(LC_ALL, "C");
        QLocale::setDefault(locale);
        QDir::setCurrent(current);
        return files;
    }

    void keep(const Exported::Files &files, const QString &name) const
    {
        if (m_arguments.keep.isEmpty())
            return;
        for (auto it = files.begin(); it != files.end(); ++it)
            QVERIFY(
                TestSupport::write(m_arguments.keep + u'/' + name + u'/' + it.key(), it.value()));
    }

    const Arguments m_arguments;
    SystemDescription m_description;
    QList<DEV::DeviceArg> m_devices;
    Exported::Checkers m_checkers;
    int m_configurations = 0;
    int m_files = 0;
    qint64 m_slowest = 0;
};

int main(int argc, char *argv[])
{
    TestSupport::useUtf8();
    const QCoreApplication application(argc, argv);
    QStringList given = QCoreApplication::arguments();
    Arguments arguments;
    arguments.seed = given.value(1).toUInt();
    arguments.draws = given.value(2).toInt();
    if (arguments.seed == 0 || arguments.draws <= 0) {
        std::fprintf(stderr, "tst_exportsweep SEED DRAWS [--devices COUNT] [--keep DIR] [option of "
                             "QtTest ...]\n"
                             "Exports DRAWS random configurations of each device, or of COUNT "
                             "devices, in all formats;\nDIR gets a folder for each.\n");
        return 2;
    }
    given.erase(given.begin() + 1, given.begin() + 3);
    for (const auto &[option, value] : {std::make_pair(QStringLiteral("--devices"), 0),
                                        std::make_pair(QStringLiteral("--keep"), 1)}) {
        const int at = given.indexOf(option);
        if (at < 0)
            continue;
        if (value == 0)
            arguments.devices = given.value(at + 1).toInt();
        else
            arguments.keep = QFileInfo(given.value(at + 1)).absoluteFilePath();
        given.removeAt(at);
        if (at < given.size())
            given.removeAt(at);
    }
    // With as many rows as there may be, what passes is not of interest.
    tst_ExportSweep test(arguments);
    return QTest::qExec(&test, given);
}

#include "tst_exportsweep.moc"
