#include "exportedfiles.h"

#include <golden.h>

#include <config/ipcfile.h>
#include <dev/devicedb.h>
#include <system/description.h>

#include <QDirIterator>
#include <QSettings>

#include <algorithm>
#include <functional>

using namespace TARVOORIXM1;

namespace
{

// Copies are held against a generation. Of IP-XACT, which is by far the largest, the files of one
// configuration show what a change does; tst_ipxact holds those of all against their maps.
bool isKept(const QString &name, const QString &path)
{
    return !Exported::isCopy(path) &&
           (!path.startsWith(QLatin1String("ipxact")) || name == QLatin1String("sensor-node"));
}

} // namespace

// Each folder of golden holds a configuration and, in exported/, all that is handed on of it. One
// with a folder "registers" has register files of its own.
class tst_ExportGolden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportsTheSameFiles_data() { addCases(); }
    void exportsTheSameFiles();
    void toolsTakeEachFileWithoutAWord_data() { addCases(); }
    void toolsTakeEachFileWithoutAWord();
    void theCasesThatBreakOthersAreThere();
    void everyFormatIsARowOfItsOwn();

private:
    static QDir folder() { return QDir(QStringLiteral(TARVO_EXPORT_GOLDEN_DIR)); }
    static QStringList cases()
    {
        return folder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }
    static void addCases()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : cases())
            QTest::newRow(qPrintable(name)) << name;
    }
    static Utils::Result<SystemMap> mapOf(const QString &name);
    static Exported::Files goldenOf(const QString &name);
    static QString exportedFolder(const QString &name)
    {
        return folder().filePath(name + QLatin1String("/exported"));
    }

    Exported::Checkers m_checkers;
};

Utils::Result<SystemMap> tst_ExportGolden::mapOf(const QString &name)
{
    const QDir own(folder().filePath(name));
    const bool hasData = own.exists(QStringLiteral("registers"));
    const auto description =
        readSystemDescription(hasData ? own.path() : QStringLiteral(TARVO_IP_DATA_DIR));
    if (!description)
        return Utils::Failure{description.reason()};
    QSettings settings(own.filePath(QStringLiteral("config.ipc")), QSettings::IniFormat);
    OptionMap options;
    IpcFile::readOptions(settings, options);
    const DEV::DeviceArg device = IpcFile::readDevice(settings, DEV::DeviceDb::bundled());
    if (device.isNull())
        return Utils::Failure{QStringLiteral("no device")};
    return systemMap(options, device, *description);
}

Exported::Files tst_ExportGolden::goldenOf(const QString &name)
{
    Exported::Files files;
    const QString exported = exportedFolder(name);
    QDirIterator iterator(exported, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        files.insert(path.mid(exported.size() + 1), TestSupport::contentsOf(path));
    }
    return files;
}

void tst_ExportGolden::exportsTheSameFiles()
{
    QFETCH(QString, name);
    const auto map = mapOf(name);
    QVERIFY2(map, qPrintable(map.reason()));
    QStringList complaints;
    const Exported::Files files = Exported::filesOf(*map, &complaints);
    complaints += Exported::textComplaints(files);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(u'\n')));
    QStringList own = files.keys();
    own.erase(std::remove_if(own.begin(), own.end(),
                             [&name](const QString &path) { return !isKept(name, path); }),
              own.end());
    if (TestSupport::acceptsGoldens())
        QVERIFY(QDir(exportedFolder(name)).removeRecursively());
    QString differences;
    for (const QString &path : qAsConst(own))
        differences += TestSupport::differenceFromGolden(exportedFolder(name) + u'/' + path,
                                                         files.value(path));
    QVERIFY2(differences.isEmpty(), qPrintable(u'\n' + differences));
    QCOMPARE(goldenOf(name).keys(), own);
}

void tst_ExportGolden::toolsTakeEachFileWithoutAWord()
{
    QFETCH(QString, name);
    const auto map = mapOf(name);
    QVERIFY2(map, qPrintable(map.reason()));
    QStringList complaints;
    Exported::Files files = goldenOf(name);
    const Exported::Files all = Exported::filesOf(*map, &complaints);
    for (auto it = all.begin(); it != all.end(); ++it) {
        if (!isKept(name, it.key()))
            files.insert(it.key(), it.value());
    }
    complaints += m_checkers.complaints(files, map->processor.isBigEndian);
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(u'\n')));
}

void tst_ExportGolden::theCasesThatBreakOthersAreThere()
{
    const auto black = [](const SystemMap &map) {
        return map.peripherals.isEmpty() &&
               std::any_of(map.regions.begin(), map.regions.end(), [](const Region &region) {
                   return region.kind == RegionKind::BlackBox;
               });
    };
    const QMap<QString, std::function<bool(const SystemMap &)>> wanted = {
        {QStringLiteral("big-endian"), [](const SystemMap &m) { return m.processor.isBigEndian; }},
        {QStringLiteral("1 interrupt"),
         [](const SystemMap &m) { return m.processor.interruptInputs == 1; }},
        {QStringLiteral("8 interrupts"),
         [](const SystemMap &m) { return m.processor.interruptInputs == 8; }},
        {QStringLiteral("16 interrupts"),
         [](const SystemMap &m) { return m.processor.interruptInputs == 16; }},
        {QStringLiteral("external memories"),
         [](const SystemMap &m) {
             return std::any_of(m.regions.begin(), m.regions.end(),
                                [](const Region &region) {
                                    return region.kind == RegionKind::ExternalMemory;
                                }) &&
                    !findRegion(m, QStringLiteral("DTCM"));
         }},
        {QStringLiteral("no memory"),
         [](const SystemMap &m) {
             return std::none_of(m.regions.begin(), m.regions.end(),
                                 [](const Region &region) { return isMemory(region.kind); });
         }},
        {QStringLiteral("no peripheral"),
         [](const SystemMap &m) { return m.peripherals.isEmpty() && m.interrupts.isEmpty(); }},
        {QStringLiteral("no OS extension"),
         [](const SystemMap &m) { return !m.processor.hasOsExtension; }},
        {QStringLiteral("no debug"), [](const SystemMap &m) { return !m.processor.hasDebug; }},
        {QStringLiteral("black boxes only"), black},
        {QStringLiteral("a word of C for a name"),
         [](const SystemMap &m) { return findRegion(m, QStringLiteral("class")) != nullptr; }},
        {QStringLiteral("everything"), [](const SystemMap &m) { return m.regions.size() > 35; }}};
    QStringList missing = wanted.keys();
    for (const QString &name : cases()) {
        const auto map = mapOf(name);
        QVERIFY2(map, qPrintable(map.reason()));
        for (auto it = wanted.begin(); it != wanted.end(); ++it) {
            if (it.value()(*map))
                missing.removeAll(it.key());
        }
    }
    QCOMPARE(missing, QStringList());
}

void tst_ExportGolden::everyFormatIsARowOfItsOwn()
{
    QStringList names;
    for (const Format &format : formats()) {
        QVERIFY2(!names.contains(format.name), format.name.data());
        QCOMPARE(findFormat(format.name), &format);
        for (const QLatin1String text :
             {format.name, format.file, format.title, format.purpose, format.checkedBy})
            QVERIFY2(!text.isEmpty(), format.name.data());
        QVERIFY2(format.purpose.endsWith(QLatin1Char('.')), format.name.data());
        names.append(format.name);
    }
    QVERIFY(!findFormat(QString()));
}

TARVO_TEST_MAIN(QCoreApplication, tst_ExportGolden)
#include "tst_exportgolden.moc"
