#include "testsupport.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace
{

struct Run {
    int status = -1;
    QString out;
    QString err;
};

const QByteArray head =
    "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n"
    "[Config]\n";

} // namespace

// Files that nobody should hand to the command.
class tst_CliInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void everyCommandRefusesConfigurations_data();
    void everyCommandRefusesConfigurations();
    void refusesDataThatIsNoFile_data();
    void refusesDataThatIsNoFile();
    void aTargetNamesAFileOnly_data();
    void aTargetNamesAFileOnly();
    void tellsBytesThatAreReadAsOtherCharacters();
    void namesThatAreNotUtf8MakeNothing_data();
    void namesThatAreNotUtf8MakeNothing();
    void checkLooksAtTheContentsOfTheItcm();
    void noToolStartsOnBrokenContents();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    Run run(const QStringList &arguments) const;
    Run runProgram(const QString &program, const QStringList &arguments) const;
    // An initialised ITCM of 1 KB.
    QString configWithProgram() const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

Run tst_CliInputs::run(const QStringList &arguments) const
{
    return runProgram(QStringLiteral(TARVO_COMMAND), arguments);
}

Run tst_CliInputs::runProgram(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_dir->path());
    process.start(program, arguments);
    const bool ended = process.waitForFinished(60000);
    if (!ended)
        process.kill();
    if (!ended || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void tst_CliInputs::everyCommandRefusesConfigurations_data()
{
    QTest::addColumn<QByteArray>("text"); // null: what init() of the row made
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("message");
    const QString file = QStringLiteral("file");
    // A list that holds a list that holds a list …, as it is stored.
    QByteArray nested = "@Variant(";
    for (int depth = 0; depth < 30000; ++depth)
        nested += "\\0\\0\\0\\x9\\0\\0\\0\\0\\x1";
    nested += "\\0\\0\\0\\x2\\0\\0\\0\\0\\x1)";
    const QString isObject =
        QStringLiteral("line 7: \"Config/ITCM_Size\" is no text but an object (\"@Variant\").");
    QTest::newRow("a value nested 30,000 deep")
        << QByteArray(head + "ITCM_Size=" + nested + '\n') << file << isObject;
    QTest::newRow("the same in quotation marks in a list")
        << QByteArray(head + "ITCM_Size=1, \"" + nested + "\"\n") << file << isObject;
    QTest::newRow("the same in a line that looks like a comment")
        << QByteArray(head + "#x=" + nested + "\n") << file
        << QStringLiteral("\"Config/#x\" is no text but an object");
    QTest::newRow("the same in the first entry")
        << QByteArray("version=" + nested + "\n") << file << QStringLiteral("line 1: \"version\"");
    QTest::newRow("more than a megabyte") << QByteArray(head + QByteArray(1 << 20, '\n')) << file
                                          << QStringLiteral("it is larger than 1 MiB");
    QTest::newRow("a terabyte of nothing")
        << QByteArray() << QStringLiteral("sparse") << QStringLiteral("it is larger than 1 MiB");
    QTest::newRow("a pipe without a writer")
        << QByteArray() << QStringLiteral("pipe") << QStringLiteral("it is not a plain file");
    QTest::newRow("an endless device")
        << QByteArray() << QStringLiteral("device") << QStringLiteral("it is not a plain file");
}

void tst_CliInputs::everyCommandRefusesConfigurations()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, kind);
    QFETCH(QString, message);
    const QString ipc = path(QStringLiteral("x.ipc"));
    if (kind == QLatin1String("pipe")) {
        QCOMPARE(::mkfifo(QFile::encodeName(ipc).constData(), 0600), 0);
    } else if (kind == QLatin1String("device")) {
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), ipc));
    } else if (kind == QLatin1String("sparse")) {
        QFile file(ipc);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(1) << 40));
    } else {
        QVERIFY(TestSupport::write(ipc, text));
    }
    for (const char *command :
         {"check", "generate", "sources", "pins", "registers", "export", "simulate"}) {
        QStringList arguments = {QString::fromLatin1(command), QStringLiteral("x.ipc")};
        if (arguments.first() == QLatin1String("export"))
            arguments << QStringLiteral("--out") << QStringLiteral("out");
        if (arguments.first() == QLatin1String("simulate"))
            arguments << QStringLiteral("--c") << QStringLiteral("main.c");
        const Run result = run(arguments);
        QCOMPARE(result.status, 3);
        QVERIFY2(result.err.contains(message) && result.err.contains(QLatin1String("x.ipc")),
                 qPrintable(result.err));
        QVERIFY(result.err.size() < 500);
        QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList{QStringLiteral("x.ipc")});
    }
}

void tst_CliInputs::refusesDataThatIsNoFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("command");
    const auto words = [](std::initializer_list<const char *> list) {
        QStringList result;
        for (const char *word : list)
            result.append(QString::fromUtf8(word));
        return result;
    };
    QTest::newRow("a descriptor") << QStringLiteral("tarvo_orix_m1.ipspec")
                                  << words({"--data", ".", "new", "--device", "TV2KR-18C", "--out",
                                            "out"});
    QTest::newRow("a device file")
        << QStringLiteral("tv.json") << words({"--devices", ".", "devices"});
    QTest::newRow("the package codes")
        << QStringLiteral("packages.json") << words({"--devices", ".", "devices"});
    QTest::newRow("a register file")
        << QStringLiteral("registers/a.json") << words({"--data", ".", "registers"});
    QTest::newRow("a register file of an export")
        << QStringLiteral("registers/a.json")
        << words({"--data", ".", "export", "x.ipc", "--out", "out"});
}

void tst_CliInputs::refusesDataThatIsNoFile()
{
    QFETCH(QString, file);
    QFETCH(QStringList, command);
    QVERIFY(TestSupport::write(
        path(QStringLiteral("tarvo_orix_m1.ipspec")),
        R"({"ipcore": {"id": "i", "name": "n", "version": "1", "category": "c", "target": "t"}})"));
    QVERIFY(TestSupport::write(path(QStringLiteral("packages.json")),
                               R"({"packageCodes": {"QFN88": "QN88"}})"));
    QVERIFY(TestSupport::write(path(QStringLiteral("zz.json")), "{}"));
    const QString pipe = path(file);
    QVERIFY(QDir().mkpath(QFileInfo(pipe).path()));
    QFile::remove(pipe);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const Run result = run(command);
    QCOMPARE(result.status, 3);
    QVERIFY2(result.err.contains(file.section(u'/', -1)) &&
                 result.err.contains(QLatin1String("it is not a plain file")),
             qPrintable(result.err));
}

void tst_CliInputs::aTargetNamesAFileOnly_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("upwards") << QByteArray("../../x");
    QTest::newRow("into a folder") << QByteArray("a/b");
    QTest::newRow("from the root") << QByteArray("/tmp/x");
    QTest::newRow("the folder above") << QByteArray("..");
    QTest::newRow("with a backslash") << QByteArray("a\\\\b");
    QTest::newRow("with a line end") << QByteArray("a\\nb");
    QTest::newRow("with a zero character") << QByteArray("a\\u0000b");
    QTest::newRow("longer than a name may be") << QByteArray(201, 'x');
}

void tst_CliInputs::aTargetNamesAFileOnly()
{
    QFETCH(QByteArray, target);
    QVERIFY(TestSupport::write(path(QStringLiteral("in/data/tarvo_orix_m1.ipspec")),
                               R"({"ipcore": {"id": "i", "name": "n", "version": "1", "category": )"
                               R"("c", "target": ")" +
                                   target + "\"}}"));
    const Run result =
        run({QStringLiteral("--data"), QStringLiteral("in/data"), QStringLiteral("new"),
             QStringLiteral("--device"), QStringLiteral("TV2KR-18C"), QStringLiteral("--out"),
             QStringLiteral("in/out")});
    QCOMPARE(result.status, 3);
    QVERIFY2(result.err.contains(QLatin1String("tarvo_orix_m1.ipspec: \"ipcore.target\" is ")),
             qPrintable(result.err));
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList{QStringLiteral("in")});
    QCOMPARE(TestSupport::entriesOf(path(QStringLiteral("in"))),
             QStringList{QStringLiteral("data")});
}

void tst_CliInputs::tellsBytesThatAreReadAsOtherCharacters()
{
    const QString ipc = path(QStringLiteral("x.ipc"));
    QVERIFY(
        TestSupport::write(ipc, head + "; \xc3\xbc\nITCM_Initialization_Path=/J\xc3\xbcrgen\n"));
    const QStringList arguments{QStringLiteral("check"), ipc};
    Run result = run(arguments);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.out.contains(QString::fromUtf8(
                 ":ITCM_Initialization_Path: error: line 8 holds bytes that are not ASCII, which "
                 "are read as Latin-1: \"/J\u00c3\u00bcrgen\"")),
             qPrintable(result.out));
    QVERIFY(!result.out.contains(QLatin1String("line 7")));
    // What is no UTF-8 may be meant as it is read.
    QVERIFY(TestSupport::write(ipc, head + "ITCM_Initialization_Path=/J\xfcrgen\n"));
    result = run(arguments);
    QCOMPARE(result.status, 0);
    QVERIFY(result.out.contains(QLatin1String("ITCM_Initialization_Path: warning: line 7 ")));
    QVERIFY(TestSupport::write(ipc, head + "ITCM_Initialization_Path=/J\\xfcrgen\n"));
    QCOMPARE(run(arguments).out, QString());
}

void tst_CliInputs::namesThatAreNotUtf8MakeNothing_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("an argument") << QStringLiteral(
        "exec \"$0\" new --device TV2KR-18C --out \"$(printf 'a\\377b')\"");
    QTest::newRow("an existing folder") << QStringLiteral(
        "d=$(printf 'a\\377b'); mkdir \"$d\"; \"$0\" new --device TV2KR-18C --out "
        "\"$d/x\"; s=$?; rmdir \"$d\" || exit 99; exit $s");
    QTest::newRow("the current folder")
        << QStringLiteral("d=$(printf 'a\\377b'); mkdir \"$d\"; (cd \"$d\" && \"$0\" new --device "
                          "TV2KR-18C --out x); s=$?; rmdir \"$d\" || exit 99; exit $s");
}

void tst_CliInputs::namesThatAreNotUtf8MakeNothing()
{
    QFETCH(QString, script);
    const Run result = runProgram(QStringLiteral("bash"),
                                  {QStringLiteral("-c"), script, QStringLiteral(TARVO_COMMAND)});
    QVERIFY2(result.err.contains(QLatin1String("is not UTF-8")), qPrintable(result.err));
    QCOMPARE(result.status, 2);
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList());
}

QString tst_CliInputs::configWithProgram() const
{
    const QString ipc = path(QStringLiteral("x.ipc"));
    TestSupport::write(ipc, head +
                                "ITCM_Size=0\nInitialize%20ITCM=true\n"
                                "ITCM_Initialization_Path=program\n"
                                "ITCM_Initialization_AbsolutePath=" +
                                path(QStringLiteral("program")).toUtf8() + '\n');
    for (int lane = 0; lane < 4; ++lane)
        TestSupport::write(path(QStringLiteral("program/itcm%1").arg(lane)),
                           QByteArray("00\n").repeated(256));
    return ipc;
}

void tst_CliInputs::checkLooksAtTheContentsOfTheItcm()
{
    const QStringList arguments{QStringLiteral("check"), configWithProgram()};
    QCOMPARE(run(arguments).out, QString());
    const QString file = path(QStringLiteral("program/itcm1"));
    QVERIFY(TestSupport::write(file, "00\nhello\n" + QByteArray("00\n").repeated(254)));
    const Run result = run(arguments);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.out.contains(
                 QString(QLatin1String(":ITCM_Initialization_AbsolutePath: error: ") + file +
                         QLatin1String(":2: \"hello\" is no hexadecimal byte\n"))),
             qPrintable(result.out));
}

void tst_CliInputs::noToolStartsOnBrokenContents()
{
    const QString ipc = configWithProgram();
    const QString file = path(QStringLiteral("program/itcm3"));
    QVERIFY(TestSupport::write(file, QByteArray("00\n").repeated(255)));
    // A tool that would leave a trace.
    const QString tool = path(QStringLiteral("bin/yosys"));
    QVERIFY(TestSupport::write(tool, "#!/bin/sh\ntouch \"$(dirname \"$0\")/started\"\nexit 1\n"));
    QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const Run result = runProgram(QStringLiteral("env"),
                                  {QString(QLatin1String("PATH=") + path(QStringLiteral("bin")) +
                                           QLatin1String(":/usr/bin:/bin")),
                                   QStringLiteral(TARVO_COMMAND), QStringLiteral("generate"), ipc});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(
                 QLatin1String("The inputs hold a mistake; the tool was not started.")) &&
                 result.err.contains(QString(file + QLatin1String(":255: 255 of the 256 bytes"))),
             qPrintable(result.err));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("bin/started"))));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("tarvo_orix_m1.v"))));
    // Without synthesis nothing reads the files.
    QCOMPARE(run({QStringLiteral("generate"), QStringLiteral("--no-synth"), ipc}).status, 0);
}

TARVO_TEST_MAIN(QCoreApplication, tst_CliInputs)

#include "tst_cliinputs.moc"
