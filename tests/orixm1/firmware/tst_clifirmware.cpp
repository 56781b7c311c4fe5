#include "testsupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

struct Run {
    int status = -1;
    QString out;
    QString err;
};

// Stack pointer 0x20000400, reset vector 9, two branches to themselves.
const QByteArray program("\x00\x04\x00\x20\x09\x00\x00\x00\xFE\xE7\xFE\xE7", 12);

} // namespace

class tst_CliFirmware : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void makesTheFilesThatGenerationReads();
    void leavesTheConfigurationAloneUnlessAsked();
    void goesWhereTheConfigurationLooks();
    void changesNothingTheSecondTime();
    void tellsInJsonWhatItDid();
    void refuses_data();
    void refuses();
    void leavesAllFourFilesWhenOneCannotBeWritten();
    void leavesNoFolderBehindWhenItFails();
    void needsTheElfLibraryForElfImagesAlone();

private:
    // The words of a command line.
    Run run(const QByteArray &arguments) const;
    QString path(const QString &name) const { return m_dir->filePath(name); }
    QStringList lanes(const QString &folder) const
    {
        QStringList paths;
        for (int i = 0; i < 4; ++i)
            paths.append(path(folder + QStringLiteral("/itcm") + QString::number(i)));
        return paths;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_CliFirmware::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    const QString example = QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc");
    QVERIFY(TestSupport::write(path(QStringLiteral("node.ipc")), TestSupport::contentsOf(example)));
    QVERIFY(TestSupport::write(path(QStringLiteral("app.bin")), program));
}

Run tst_CliFirmware::run(const QByteArray &arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_dir->path());
    process.start(QStringLiteral(TARVO_COMMAND), QString::fromLatin1(arguments).split(u' '));
    const bool ended = process.waitForFinished(60000);
    if (!ended)
        process.kill();
    if (!ended || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void tst_CliFirmware::makesTheFilesThatGenerationReads()
{
    const Run made = run("firmware app.bin node.ipc --initialize");
    QVERIFY2(made.status == 0, qPrintable(made.err));
    QCOMPARE(made.out.trimmed().split(u'\n'),
             lanes(QStringLiteral("itcm")) + QStringList{path(QStringLiteral("node.ipc"))});
    QVERIFY(made.err.contains(
        QStringLiteral("Instruction memory: 12 of 16384 bytes used, 16372 free.")));
    QVERIFY(TestSupport::contentsOf(path(QStringLiteral("itcm/itcm0")))
                .startsWith("00\n09\nfe\n00\n00\n"));
    // check reads the files as synthesis would.
    const Run checked = run("check node.ipc");
    QVERIFY2(checked.status == 0, qPrintable(checked.out + checked.err));
    QVERIFY2(!checked.out.contains(QStringLiteral("ITCM")), qPrintable(checked.out));
    const Run generated = run("generate node.ipc --no-synth");
    QCOMPARE(generated.status, 0);
    const QStringList files = generated.out.trimmed().split(u'\n');
    QByteArray lines;
    for (const QString &file : files)
        lines += TestSupport::contentsOf(file);
    QVERIFY(lines.contains("`define CM1_ITCM_INIT_EN\n"));
    QVERIFY(lines.contains("`define CM1_ITCM_INIT_PATH \"" + path(QStringLiteral("itcm")).toUtf8() +
                           "\"\n"));
}

void tst_CliFirmware::leavesTheConfigurationAloneUnlessAsked()
{
    const QByteArray before = TestSupport::contentsOf(path(QStringLiteral("node.ipc")));
    const Run made = run("firmware app.bin node.ipc --out fw/mem");
    QVERIFY2(made.status == 0, qPrintable(made.err));
    QCOMPARE(made.out.trimmed().split(u'\n'), lanes(QStringLiteral("fw/mem")));
    QVERIFY(made.err.contains(QStringLiteral("--initialize")));
    QCOMPARE(TestSupport::contentsOf(path(QStringLiteral("node.ipc"))), before);
}

void tst_CliFirmware::goesWhereTheConfigurationLooks()
{
    QCOMPARE(run("firmware app.bin node.ipc --out fw --initialize").status, 0);
    QVERIFY(TestSupport::write(path(QStringLiteral("app.bin")), program + "more"));
    const Run made = run("firmware app.bin node.ipc");
    QCOMPARE(made.out.trimmed().split(u'\n'), lanes(QStringLiteral("fw")));
    QVERIFY(!made.err.contains(QStringLiteral("--initialize")));
    QVERIFY(TestSupport::contentsOf(path(QStringLiteral("fw/itcm1")))
                .startsWith("04\n00\ne7\n6f\n00\n"));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("itcm"))));
}

void tst_CliFirmware::changesNothingTheSecondTime()
{
    const char command[] = "firmware app.bin node.ipc --initialize --json";
    QCOMPARE(run(command).status, 0);
    QVector<QDateTime> times;
    const QStringList files =
        lanes(QStringLiteral("itcm")) + QStringList{path(QStringLiteral("node.ipc"))};
    for (const QString &file : files) {
        QFile old(file);
        QVERIFY(old.open(QIODevice::ReadWrite));
        QVERIFY(old.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000),
                                QFileDevice::FileModificationTime));
    }
    const Run again = run(command);
    QCOMPARE(again.status, 0);
    QVERIFY(again.out.contains(QStringLiteral("\"configurationChanged\": false")));
    for (const QString &file : files)
        QCOMPARE(QFileInfo(file).lastModified(), QDateTime::fromSecsSinceEpoch(1000000000));
}

void tst_CliFirmware::tellsInJsonWhatItDid()
{
    QVERIFY(TestSupport::write(path(QStringLiteral("app.bin")), "abcd"));
    const Run made = run("firmware app.bin node.ipc --base 0x100 --json");
    QVERIFY2(made.status == 0, qPrintable(made.err));
    const QJsonObject object = QJsonDocument::fromJson(made.out.toUtf8()).object();
    QCOMPARE(object.value(QStringLiteral("form")).toString(), QStringLiteral("bin"));
    QCOMPARE(object.value(QStringLiteral("used")).toInt(), 4);
    QCOMPARE(object.value(QStringLiteral("free")).toInt(), 16380);
    QCOMPARE(object.value(QStringLiteral("size")).toInt(), 16384);
    QCOMPARE(object.value(QStringLiteral("files")).toArray().size(), 4);
    QCOMPARE(object.value(QStringLiteral("warnings")).toArray().size(), 1);
    QCOMPARE(object.value(QStringLiteral("configurationChanged")).toBool(true), false);
    QVERIFY(made.err.contains(QStringLiteral("warning: The image gives no bytes for")));
}

void tst_CliFirmware::refuses_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("message");
    QTest::newRow("no image") << QByteArray("none.elf node.ipc") << 3
                              << "none.elf\" cannot be read: No such file or directory.";
    QTest::newRow("a folder") << QByteArray(". node.ipc") << 3 << "cannot be read: ";
    QTest::newRow("a device") << QByteArray("/dev/zero node.ipc") << 3
                              << "\"/dev/zero\" cannot be read: ";
    QTest::newRow("no configuration") << QByteArray("app.bin none.ipc") << 3 << "none.ipc";
    QTest::newRow("unknown form") << QByteArray("app.bin node.ipc --format srec") << 2
                                  << "\"srec\" is no form of an image; there are elf, hex, bin.";
    QTest::newRow("another form") << QByteArray("app.bin node.ipc --format elf") << 3
                                  << "app.bin\" cannot be used: it is no ";
    QTest::newRow("outside") << QByteArray("app.bin node.ipc --base 0x20000000") << 3
                             << "app.bin\" does not fit: it gives bytes for 0x20000000 to "
                                "0x2000000B; the instruction memory has 16384 bytes, 0x00000000 "
                                "to 0x00003FFF.";
    QTest::newRow("base that is no address")
        << QByteArray("app.bin node.ipc --base here") << 2 << "--base";
}

void tst_CliFirmware::refuses()
{
    QFETCH(QByteArray, arguments);
    QFETCH(int, status);
    QFETCH(QString, message);
    const Run made = run("firmware " + arguments);
    QCOMPARE(made.status, status);
    QVERIFY2(made.err.contains(message), qPrintable(made.err));
    QVERIFY(made.out.isEmpty());
    QCOMPARE(TestSupport::entriesOf(m_dir->path()),
             (QStringList{QStringLiteral("app.bin"), QStringLiteral("node.ipc")}));
}

void tst_CliFirmware::leavesAllFourFilesWhenOneCannotBeWritten()
{
    QCOMPARE(run("firmware app.bin node.ipc --out fw").status, 0);
    const QByteArray before = TestSupport::contentsOf(path(QStringLiteral("fw/itcm0")));
    QVERIFY(QFile::remove(path(QStringLiteral("fw/itcm3"))));
    QVERIFY(QDir().mkpath(path(QStringLiteral("fw/itcm3/in-the-way"))));
    QVERIFY(TestSupport::write(path(QStringLiteral("app.bin")), "other" + program));
    const QByteArray configuration = TestSupport::contentsOf(path(QStringLiteral("node.ipc")));
    const Run made = run("firmware app.bin node.ipc --out fw --initialize");
    QCOMPARE(made.status, 1);
    QVERIFY2(made.err.contains(QStringLiteral("fw/itcm3")), qPrintable(made.err));
    QCOMPARE(TestSupport::contentsOf(path(QStringLiteral("fw/itcm0"))), before);
    QCOMPARE(TestSupport::contentsOf(path(QStringLiteral("node.ipc"))), configuration);
    QCOMPARE(TestSupport::entriesOf(path(QStringLiteral("fw"))).size(), 4);
}

void tst_CliFirmware::leavesNoFolderBehindWhenItFails()
{
    QVERIFY(TestSupport::write(path(QStringLiteral("fw")), "x"));
    QVERIFY(run("firmware app.bin node.ipc --out fw/deep/er").status != 0);
    QVERIFY(QFile::remove(path(QStringLiteral("fw"))));
    QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("closed")));
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), path(QStringLiteral("closed/itcm2"))));
    QVERIFY(run("firmware app.bin node.ipc --out closed").status != 0);
    QCOMPARE(QDir(path(QStringLiteral("closed")))
                 .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("itcm2")));
}

// As on a machine without it.
void tst_CliFirmware::needsTheElfLibraryForElfImagesAlone()
{
    QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("lib")));
    QVERIFY(TestSupport::write(path(QStringLiteral("lib/libelf.so.1")), {}));
    QVERIFY(TestSupport::write(path(QStringLiteral("app.elf")), QByteArray("\x7F"
                                                                           "ELF") +
                                                                    QByteArray(60, '\0')));
    const QByteArray before = qgetenv("LD_LIBRARY_PATH");
    qputenv("LD_LIBRARY_PATH", path(QStringLiteral("lib")).toLocal8Bit());
    const Run elf = run("firmware app.elf node.ipc");
    const Run binary = run("firmware app.bin node.ipc");
    before.isNull() ? qunsetenv("LD_LIBRARY_PATH") : qputenv("LD_LIBRARY_PATH", before);
    QVERIFY2(
        elf.err.contains(QStringLiteral("ELF images need libelf.so.1, which is not installed.")),
        qPrintable(elf.err));
    QVERIFY(elf.status > 0);
    QCOMPARE(binary.status, 0);
    QVERIFY2(!run("firmware app.elf node.ipc").err.contains(QStringLiteral("libelf")), "");
}

QTEST_GUILESS_MAIN(tst_CliFirmware)
#include "tst_clifirmware.moc"
