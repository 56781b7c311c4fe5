#include "testsupport.h"

#include <config/choices.h>
#include <config/ipcfile.h>
#include <config/optionkeys.h>
#include <dev/devicedb.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_IpcFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsOneVersionOnly_data();
    void acceptsOneVersionOnly();
    void readsTheDevice_data();
    void readsTheDevice();
    void readsTheOptionsButNotTheFolder();
    void keepsWhatTheFileLacks();
    void namesTheFileAfterTheDescriptor();
    void headerHoldsTheIdentity();
    void refusesWhatMustNotBeOpened();
    void tellsWhatElseTheFileHolds();
    void namesTheDeviceAsTheFileDoes_data();
    void namesTheDeviceAsTheFileDoes();
    void aMovedFileKeepsWhatIsNotItsIdentity();
    void choicesOfStoredValues();
};

namespace
{

QString fileWith(const QTemporaryDir &dir, const QByteArray &text)
{
    static int serial = 0;
    const QString path = dir.filePath(QString::number(++serial) + QLatin1String(".ipc"));
    return TestSupport::write(path, text) ? path : QString();
}

} // namespace

void tst_IpcFile::acceptsOneVersionOnly_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("1.0") << QByteArray("version=1.0\n") << true;
    QTest::newRow("1.0 in quotes") << QByteArray("version=\"1.0\"\n") << true;
    // Unquoted blanks at the end belong to the file format, not to the value.
    QTest::newRow("1.0 and a trimmed blank") << QByteArray("version=1.0 \n") << true;
    QTest::newRow("1.00") << QByteArray("version=1.00\n") << false;
    QTest::newRow("1.0 and a blank") << QByteArray("version=\"1.0 \"\n") << false;
    QTest::newRow("1") << QByteArray("version=1\n") << false;
    QTest::newRow("empty") << QByteArray("version=\n") << false;
    QTest::newRow("other letter case") << QByteArray("Version=1.0\n") << false;
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("in the wrong group") << QByteArray("[Config]\nversion=1.0\n") << false;
}

void tst_IpcFile::acceptsOneVersionOnly()
{
    QFETCH(QByteArray, entry);
    QTemporaryDir dir;
    QSettings settings(fileWith(dir, "[General]\n" + entry), QSettings::IniFormat);
    QTEST(IpcFile::isVersionAccepted(settings), "accepted");
}

void tst_IpcFile::readsTheDevice_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("id");
    QTest::newRow("by id") << QByteArray("[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n")
                           << QStringLiteral("TV2KR-18C-QFN88P-C8/I7");
    QTest::newRow("unknown id") << QByteArray("[General]\ntarget_device=TV2KR-18C\n") << QString();
    QTest::newRow("group with a name")
        << QByteArray("[device]\nid=TV2KR-18C\npackage=QFN88P\nspeed=C7/I6\n")
        << QStringLiteral("TV2KR-18C-QFN88P-C7/I6");
    QTest::newRow("group with an id") << QByteArray("[device]\nid=TV2KR-18C-QFN88P-C8/I7\n")
                                      << QStringLiteral("TV2KR-18C-QFN88P-C8/I7");
    QTest::newRow("group that fits several")
        << QByteArray("[device]\nid=TV2KR-18C\npackage=QFN88PF\n")
        << QStringLiteral("TV2KR-18C-QFN88PF-C9/I8");
    QTest::newRow("group that fits none")
        << QByteArray("[device]\nid=TV2KR-18C\npackage=PBGA676\n") << QString();
    QTest::newRow("group in other letter case")
        << QByteArray("[Device]\nid=TV2KR-18C\n") << QString();
    QTest::newRow("both: the id counts")
        << QByteArray("[General]\ntarget_device=TV1L-9-QFN48-C6/I5\n[device]\nid=TV2KR-18C\n")
        << QStringLiteral("TV1L-9-QFN48-C6/I5");
    QTest::newRow("both: an unknown id is not made up for")
        << QByteArray("[General]\ntarget_device=nonsense\n[device]\nid=TV2KR-18C\n") << QString();
    QTest::newRow("nothing") << QByteArray("[General]\nversion=1.0\n") << QString();
}

void tst_IpcFile::readsTheDevice()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, id);
    QTemporaryDir dir;
    QSettings settings(fileWith(dir, text), QSettings::IniFormat);
    QCOMPARE(IpcFile::readDevice(settings, DEV::DeviceDb::bundled()).id(), id);
    QCOMPARE(settings.group(), QString());
}

void tst_IpcFile::readsTheOptionsButNotTheFolder()
{
    QTemporaryDir dir;
    QSettings settings(
        fileWith(dir,
                 "[General]\nversion=1.0\n[Config]\nEnable%20RTC=true\ncreatein_path=/else/where\n"
                 "Own%20Key=kept\nITCM_Size=3\n"),
        QSettings::IniFormat);
    OptionMap options;
    IpcFile::readOptions(settings, options);
    QCOMPARE(options, (OptionMap{{Key::enableRtc, QStringLiteral("true")},
                                 {QStringLiteral("Own Key"), QStringLiteral("kept")},
                                 {Key::itcmSize, QStringLiteral("3")}}));
}

void tst_IpcFile::keepsWhatTheFileLacks()
{
    QTemporaryDir dir;
    QSettings settings(fileWith(dir, "[Config]\nEnable%20RTC=false\n"), QSettings::IniFormat);
    OptionMap options{{Key::enableRtc, true},
                      {Key::enableSpi, true},
                      {Key::createInPath, QStringLiteral("/here")}};
    IpcFile::readOptions(settings, options);
    QCOMPARE(options.value(Key::enableRtc).toBool(), false);
    QCOMPARE(options.value(Key::enableSpi).toBool(), true);
    QCOMPARE(options.value(Key::createInPath).toString(), QStringLiteral("/here"));
}

void tst_IpcFile::namesTheFileAfterTheDescriptor()
{
    QCOMPARE(IpcFile::path(QStringLiteral("/a b"), {{InfoKey::target, QStringLiteral("name")}}),
             QStringLiteral("/a b/name.ipc"));
    QCOMPARE(IpcFile::path(QStringLiteral("/a"), {}), QStringLiteral("/a/.ipc"));
}

void tst_IpcFile::headerHoldsTheIdentity()
{
    QCOMPARE(IpcFile::header(QStringLiteral("dev"), {{InfoKey::id, QStringLiteral("an.ip")}}),
             (QVariantMap{{QStringLiteral("target_device"), QStringLiteral("dev")},
                          {QStringLiteral("type"), QStringLiteral("an.ip")},
                          {QStringLiteral("version"), QStringLiteral("1.0")}}));
}

void tst_IpcFile::refusesWhatMustNotBeOpened()
{
    QTemporaryDir dir;
    QCOMPARE(IpcFile::danger(dir.filePath(QStringLiteral("gone.ipc"))), QString());
    QCOMPARE(IpcFile::danger(dir.path()), QString());
    QCOMPARE(IpcFile::danger(fileWith(dir, "[General]\nversion=1.0\n")), QString());
    const QString large = fileWith(dir, QByteArray(1024 * 1024, '\n'));
    QCOMPARE(IpcFile::danger(large), QString());
    const QString larger = fileWith(dir, QByteArray(1024 * 1024 + 1, '\n'));
    QCOMPARE(IpcFile::danger(larger),
             u'"' + larger +
                 QLatin1String("\" cannot be used: it is larger than 1 MiB, the most "
                               "that is read."));
    const QString foreign = fileWith(dir, "[Config]\nEnable%20RTC=@Rect(1 2 3 4)\n");
    const QString reason = IpcFile::danger(foreign);
    QVERIFY2(reason.startsWith(u'"' + foreign + QLatin1String("\" cannot be used: ")) &&
                 reason.contains(QLatin1String("line 2")) && reason.endsWith(u'.'),
             qPrintable(reason));
}

void tst_IpcFile::tellsWhatElseTheFileHolds()
{
    QTemporaryDir dir;
    QSettings settings(fileWith(dir, "[General]\nversion=1.0\ntarget_device=x\ntype=a.b\n"
                                     "mine=1\n[Config]\nEnable%20RTC=false\nsub\\inner=2\n"
                                     "[device]\nid=x\n[Tool]\nversion=3\n"),
                       QSettings::IniFormat);
    QCOMPARE(IpcFile::otherEntries(settings),
             (QVariantMap{{QStringLiteral("mine"), QStringLiteral("1")},
                          {QStringLiteral("Config/sub/inner"), QStringLiteral("2")},
                          {QStringLiteral("Tool/version"), QStringLiteral("3")}}));
    QCOMPARE(IpcFile::type(settings), QStringLiteral("a.b"));
}

void tst_IpcFile::namesTheDeviceAsTheFileDoes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("device");
    QTest::newRow("an id") << QByteArray("[General]\ntarget_device=one\n[device]\nid=two\n")
                           << QStringLiteral("one");
    QTest::newRow("a group") << QByteArray("[device]\nid=two\n") << QStringLiteral("two");
    QTest::newRow("nothing") << QByteArray("[General]\nversion=1.0\n") << QString();
}

void tst_IpcFile::namesTheDeviceAsTheFileDoes()
{
    QFETCH(QByteArray, text);
    QTemporaryDir dir;
    const QSettings settings(fileWith(dir, text), QSettings::IniFormat);
    QTEST(IpcFile::deviceText(settings), "device");
}

void tst_IpcFile::aMovedFileKeepsWhatIsNotItsIdentity()
{
    QCOMPARE(IpcFile::movedHeader(
                 {{QStringLiteral("mine"), 1}, {QStringLiteral("version"), QStringLiteral("0.9")}},
                 QStringLiteral("a.b"), QStringLiteral("new")),
             (QVariantMap{{QStringLiteral("mine"), 1},
                          {QStringLiteral("target_device"), QStringLiteral("new")},
                          {QStringLiteral("type"), QStringLiteral("a.b")},
                          {QStringLiteral("version"), QStringLiteral("1.0")}}));
}

void tst_IpcFile::choicesOfStoredValues()
{
    const auto toolOf = [](const QVariant &stored) {
        return QString(rowOf(effectiveTool(stored)).name);
    };
    QCOMPARE(toolOf(QStringLiteral("TarvoSynthesis")), QStringLiteral("TarvoSynthesis"));
    QCOMPARE(toolOf(QStringLiteral("Synplify Pro")), QStringLiteral("TarvoSynthesis"));
    QCOMPARE(toolOf({}), QStringLiteral("TarvoSynthesis"));
    QVERIFY(effectiveLanguage({}) == Language::Verilog);
    QVERIFY(effectiveLanguage(QStringLiteral("1")) == Language::Vhdl);
    QVERIFY(!effectiveLanguage(2));
    QVERIFY(!effectiveLanguage(-3));
}

TARVO_TEST_MAIN(QCoreApplication, tst_IpcFile)

#include "tst_ipcfile.moc"
