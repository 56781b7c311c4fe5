#include "golden.h"

#include <config/ipcfile.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <generate/sourcefiles.h>

#include <QSettings>

using namespace TARVOORIXM1;

// Each folder of tests/golden holds a configuration and, in generated/, the include files that it
// gives and the names of the sources that are compiled.
class tst_Golden : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void generatesTheSameFiles_data();
    void generatesTheSameFiles();
    void coversEverySeries();

private:
    static QDir folder() { return QDir(QStringLiteral(TARVO_GOLDEN_DIR)); }
    static QStringList cases()
    {
        return folder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }
    static DEV::DeviceArg deviceOf(const QString &name, OptionMap *options);
};

DEV::DeviceArg tst_Golden::deviceOf(const QString &name, OptionMap *options)
{
    QSettings settings(folder().filePath(name + QLatin1String("/config.ipc")),
                       QSettings::IniFormat);
    IpcFile::readOptions(settings, *options);
    return IpcFile::readDevice(settings, DEV::DeviceDb::bundled());
}

void tst_Golden::generatesTheSameFiles_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : cases())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Golden::generatesTheSameFiles()
{
    QFETCH(QString, name);
    OptionMap options;
    const DEV::DeviceArg device = deviceOf(name, &options);
    QVERIFY(!device.isNull());

    const QString generated = folder().filePath(name + QLatin1String("/generated"));
    QStringList expected{QStringLiteral("sources.txt")};
    QString differences;
    for (const IncludeFile &file : buildIncludeFiles(options, device)) {
        QByteArray text;
        for (const QString &line : file.lines)
            text += line.toUtf8() + '\n';
        differences += TestSupport::differenceFromGolden(generated + u'/' + file.name, text);
        expected.append(file.name);
    }

    const QString data = QStringLiteral(TARVO_IP_DATA_DIR "/data");
    const QVariantMap ipInfo{{InfoKey::debug, QString(data + QLatin1String("/debug"))},
                             {InfoKey::noDebug, QString(data + QLatin1String("/no_debug"))}};
    QByteArray sources;
    for (const QString &path :
         buildSourceFiles(options, ipInfo, device.device(), QStringLiteral("GENERATED")))
        sources += (path.startsWith(data) ? path.mid(data.size() + 1) : path).toUtf8() + '\n';
    differences +=
        TestSupport::differenceFromGolden(generated + QLatin1String("/sources.txt"), sources);
    QVERIFY2(differences.isEmpty(), qPrintable(u'\n' + differences));

    expected.sort();
    QCOMPARE(QDir(generated).entryList(QDir::Files, QDir::Name), QStringList(expected));
}

void tst_Golden::coversEverySeries()
{
    QStringList missing;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        if (!missing.contains(device.series()))
            missing.append(device.series());
    }
    QVERIFY(missing.size() > 10);
    for (const QString &name : cases()) {
        OptionMap options;
        missing.removeAll(deviceOf(name, &options).series());
    }
    QCOMPARE(missing, QStringList());
}

TARVO_TEST_MAIN(QCoreApplication, tst_Golden)

#include "tst_golden.moc"
