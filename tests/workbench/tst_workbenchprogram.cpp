// The program tarvo-workbench as a process.

#include <signals.h>
#include <testsupport.h>

#include <workbench/window/options.h>

#include <dev/devicedb.h>

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>

using namespace TestSupport;

namespace
{

struct Outcome {
    int status = -1;
    QString output;
    QString errors;
};

QProcessEnvironment environment(const QTemporaryDir &home)
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        result.remove(QLatin1String(name));
    result.insert(QStringLiteral("HOME"), home.path());
    result.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
    return result;
}

QStringList optionsIn(const QString &text)
{
    static const QRegularExpression option(QStringLiteral("--[a-z][a-z0-9-]*"));
    QStringList found;
    auto matches = option.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.removeDuplicates();
    found.sort();
    return found;
}

// The text of a manual page without its mark-up.
QString manualPage(const char *name)
{
    QString text = QString::fromUtf8(
        contentsOf(QStringLiteral(TARVO_SOURCE_DIR "/packaging/man/") + QLatin1String(name)));
    return text.replace(QLatin1String("\\-"), QLatin1String("-"));
}

} // namespace

class TestWorkbenchProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsItsOptionsAndVersionWithoutADisplay()
    {
        const Outcome help = run({QStringLiteral("--help")});
        QCOMPARE(help.status, 0);
        for (const char *option :
             {"--new-ip", "--device", "--dir", "--render-diagram", "--plugin-dir"})
            QVERIFY2(help.output.contains(QLatin1String(option)), option);
        const Outcome version = run({QStringLiteral("--version")});
        QCOMPARE(version.status, 0);
        QVERIFY(version.output.startsWith(QLatin1String("tarvo-workbench ")));
    }

    void manualPageAndHelpNameTheSameOptions()
    {
        const QStringList help = optionsIn(QString::fromStdString(Workbench::Options::help()));
        QVERIFY(help.size() > 5);
        QCOMPARE(optionsIn(manualPage("tarvo-workbench.1")), help);
    }

    void manualPageOfTheCommandLineNamesItsOptions()
    {
        QProcess process;
        process.start(QStringLiteral(TARVO_COMMAND), {QStringLiteral("--help-all")});
        QVERIFY(process.waitForFinished(-1));
        const QStringList help = optionsIn(QString::fromUtf8(process.readAllStandardOutput()));
        QVERIFY(help.size() > 5);
        QCOMPARE(optionsIn(manualPage("orixm1.1")), help);
    }

    void refusesWrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const auto row = [](const char *name, const QStringList &arguments) {
            QTest::newRow(name) << arguments;
        };
        row("unknown option", {QStringLiteral("--nothing")});
        row("picture without a diagram", {QStringLiteral("-o"), QStringLiteral("a.svg")});
        row("diagram without a picture",
            {QStringLiteral("--render-diagram"), QStringLiteral("a.ipc")});
        row("device without an IP", {QStringLiteral("--device"), QStringLiteral("TV2KR-18C")});
    }

    void refusesWrongUsage()
    {
        QFETCH(QStringList, arguments);
        const Outcome outcome = run(arguments);
        QCOMPARE(outcome.status, 2);
        QVERIFY(!outcome.errors.isEmpty());
    }

    void refusesWhatNoWindowNeedsToOpenFor_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const QStringList &arguments, const char *error) {
            QTest::newRow(name) << arguments << QString::fromLatin1(error);
        };
        row("unknown IP",
            {QStringLiteral("--new-ip"), QStringLiteral("nothing"), QStringLiteral("--device"),
             QStringLiteral("TV2KR-18C")},
            "Tarvo_ORIX_M1");
        row("unknown device",
            {QStringLiteral("--new-ip"), QStringLiteral("Tarvo_ORIX_M1"),
             QStringLiteral("--device"), QStringLiteral("TV99")},
            "TV99");
        row("no device", {QStringLiteral("--new-ip"), QStringLiteral("Tarvo_ORIX_M1")}, "--device");
        row("no such file", {QStringLiteral("/no/such.ipc")}, "/no/such.ipc");
    }

    void refusesWhatNoWindowNeedsToOpenFor()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        const QTemporaryDir dir;
        QProcessEnvironment env = environment(dir);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        const Outcome outcome = run(arguments, env, dir.path());
        QCOMPARE(outcome.status, 2);
        QVERIFY2(outcome.errors.contains(error), qPrintable(outcome.errors));
    }

    void saysThatItNeedsADisplay()
    {
        const Outcome outcome = run({});
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.errors.contains(QLatin1String("no display")));
        QVERIFY(outcome.errors.contains(QLatin1String("--render-diagram")));
    }

    void drawsADiagramWithoutADisplay_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("SVG") << QStringLiteral("svg") << QByteArray("<?xml");
        QTest::newRow("PNG") << QStringLiteral("png") << QByteArray("\x89PNG");
        QTest::newRow("PDF") << QStringLiteral("pdf") << QByteArray("%PDF");
    }

    void drawsADiagramWithoutADisplay()
    {
        QFETCH(QString, ending);
        QFETCH(QByteArray, start);
        const QTemporaryDir dir;
        const QString picture = dir.filePath(QStringLiteral("a b ö.") + ending);
        const Outcome outcome = render(example(), picture);
        QVERIFY2(outcome.status == 0, qPrintable(outcome.errors));
        QVERIFY(contentsOf(picture).startsWith(start));
        QVERIFY(contentsOf(picture).size() > 5000);
        QCOMPARE(entriesOf(dir.path()).size(), 1);
    }

    void saysWhyADiagramCannotBeDrawn_data()
    {
        QTest::addColumn<QByteArray>("ipc");
        QTest::addColumn<QString>("picture");
        QTest::addColumn<QString>("error");
        const QByteArray good = contentsOf(example());
        QTest::newRow("another ending")
            << good << QStringLiteral("a.gif") << QStringLiteral("a.gif");
        QTest::newRow("no such folder")
            << good << QStringLiteral("none/a.svg") << QStringLiteral("none/a.svg");
        QTest::newRow("broken file") << QByteArray("[General]\ntype\n") << QStringLiteral("a.svg")
                                     << QStringLiteral("line 2");
        QTest::newRow("unknown type") << QByteArray("[General]\ntype=a.b\n")
                                      << QStringLiteral("a.svg") << QStringLiteral("a.b");
        QTest::newRow("another device")
            << QByteArray("[General]\ntype=tarvo.tarvo_orix_m1\ntarget_device=TV9-1\n")
            << QStringLiteral("a.svg") << QStringLiteral("device information");
        QByteArray nested = "@Variant(";
        for (int depth = 0; depth < 30000; ++depth)
            nested += "\\0\\0\\0\\x9\\0\\0\\0\\0\\x1";
        QTest::newRow("a value nested 30,000 deep")
            << QByteArray("[General]\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n[Config]\na=" +
                          nested + ")\n")
            << QStringLiteral("a.svg")
            << QStringLiteral("line 5: \"Config/a\" is no text but an object (\"@Variant\")");
        QTest::newRow("more than a megabyte")
            << QByteArray((1 << 20) + 1, '\n') << QStringLiteral("a.svg")
            << QStringLiteral("it is larger than 1 MiB");
        QTest::newRow("an IP without a diagram")
            << QByteArray("[General]\ntype=fake.blinker\n") << QStringLiteral("a.svg")
            << QStringLiteral("offers no diagram");
    }

    void saysWhyADiagramCannotBeDrawn()
    {
        QFETCH(QByteArray, ipc);
        QFETCH(QString, picture);
        QFETCH(QString, error);
        const QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("x.ipc"));
        write(file, ipc);
        const Outcome outcome = render(file, dir.filePath(picture));
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(error), qPrintable(outcome.errors));
        QCOMPARE(entriesOf(dir.path()), QStringList(QStringLiteral("x.ipc")));
    }

    void drawsNothingWithAPluginThatMisbehaves_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *kind, const char *error) {
            QTest::newRow(kind) << QString::fromLatin1(kind) << QString::fromLatin1(error);
        };
        row("null", "fake.blinker");
        row("exiting-loading", "fake.blinker");
        row("crashing-starting", "fake.blinker");
        row("exiting-opening", "A plug-in has ended the program");
        row("exiting-drawing", "A plug-in has ended the program");
        row("blocking-opening", "x.ipc\" did not answer within 3 s");
        row("lying-drawing", "wrote no picture");
        row("garbling-drawing", "wrote no picture");
    }

    void drawsNothingWithAPluginThatMisbehaves()
    {
        QFETCH(QString, kind);
        QFETCH(QString, error);
        const QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("x.ipc"));
        const QString picture = dir.filePath(QStringLiteral("a.svg"));
        write(file, "[General]\ntype=fake.blinker\n");
        write(picture, "of an earlier time");
        const QTemporaryDir home;
        const Outcome outcome =
            run({QStringLiteral("--plugin-dir"), QStringLiteral(TARVO_FAKE_PLUGINS "/") + kind,
                 QStringLiteral("--render-diagram"), file, QStringLiteral("-o"), picture,
                 QStringLiteral("--time-limit"),
                 kind == QLatin1String("blocking-opening") ? QStringLiteral("3")
                                                           : QStringLiteral("60")},
                environment(home), home.path());
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(error), qPrintable(outcome.errors));
        QCOMPARE(contentsOf(picture), QByteArray("of an earlier time"));
        QCOMPARE(entriesOf(dir.path()).size(), 2);
    }

    void aPluginThatEndsTheProgramIsNoSuccess_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("by exit()") << QStringLiteral("exiting-dialog");
        QTest::newRow("by ending the event loop") << QStringLiteral("quitting-dialog");
    }

    void aPluginThatEndsTheProgramIsNoSuccess()
    {
        QFETCH(QString, kind);
        const QTemporaryDir dir;
        QProcessEnvironment env = environment(dir);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        const DEV::DeviceArg device = DEV::DeviceDb::bundled().filterDevice(tv5k()).constFirst();
        const Outcome outcome =
            run({QStringLiteral("--plugin-dir"), QStringLiteral(TARVO_FAKE_PLUGINS "/") + kind,
                 QStringLiteral("--new-ip"), QStringLiteral("blinker"), QStringLiteral("--device"),
                 device.device()},
                env, dir.path());
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(QLatin1String("A plug-in has ended the program")),
                 qPrintable(outcome.errors));
    }

    void endsThoughAPluginBlocks()
    {
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("x.ipc")), "[General]\ntype=fake.blinker\n");
        QProcessEnvironment env = environment(dir);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        QProcess process;
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(dir.path());
        process.start(QStringLiteral(TARVO_WORKBENCH),
                      {QStringLiteral("--plugin-dir"),
                       QStringLiteral(TARVO_FAKE_PLUGINS "/blocking-opening"),
                       QStringLiteral("x.ipc")});
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(catches(process.processId(), SIGTERM), 60000);
        for (int times = 0; times < 100 && process.state() != QProcess::NotRunning; ++times) {
            process.terminate();
            process.waitForFinished(100);
        }
        QCOMPARE(process.state(), QProcess::NotRunning);
    }

    void proposesAFolderForAnotherIpOfTheProject()
    {
        const QTemporaryDir dir;
        const DEV::DeviceArg device = DEV::DeviceDb::bundled().filterDevice(tv5k()).constFirst();
        write(dir.filePath(QStringLiteral("p.tvproj")),
              "{\"format\": 1, \"device\": \"" + device.id().toUtf8() + "\"}");
        for (const char *made : {"blinker/blinker.ipc", "ip2/blinker/blinker.ipc"})
            runUntil({QStringLiteral("--new-ip"), QStringLiteral("fake.blinker")},
                     dir.filePath(QLatin1String(made)), dir);
    }

    // In place of a file a pipe would keep the program waiting, with nothing to see.
    void waitsForNoPipe()
    {
        const QTemporaryDir dir;
        const QString pipe = dir.filePath(QStringLiteral("x.ipc"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        Outcome outcome = render(pipe, dir.filePath(QStringLiteral("a.svg")));
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(QLatin1String("it is not a plain file")),
                 qPrintable(outcome.errors));
        outcome = run({QStringLiteral("--settings"), pipe, QStringLiteral("--render-diagram"), pipe,
                       QStringLiteral("-o"), dir.filePath(QStringLiteral("a.svg"))});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(QLatin1String("cannot hold the settings")),
                 qPrintable(outcome.errors));
    }

    void endsWhenItIsAskedTo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("signal");
        QTest::newRow("terminated, empty") << QStringList() << SIGTERM;
        QTest::newRow("interrupted, the dialog of a new IP is open")
            << QStringList({QStringLiteral("--new-ip"), QStringLiteral("Tarvo_ORIX_M1"),
                            QStringLiteral("--device"), QStringLiteral("TV2KR-18C")})
            << SIGINT;
        QTest::newRow("terminated, an IP is open") << QStringList(example()) << SIGTERM;
        QTest::newRow("terminated, a message box is open")
            << QStringList(QStringLiteral("broken.ipc")) << SIGTERM;
    }

    void endsWhenItIsAskedTo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, signal);
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("broken.ipc")), "no configuration");
        QProcessEnvironment env = environment(dir);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        QProcess process;
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(dir.path());
        process.start(QStringLiteral(TARVO_WORKBENCH), arguments);
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(catches(process.processId(), signal), 60000);
        TestSupport::sendSignal(process, signal);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
    }

    void makesAnIpWithoutClicking()
    {
        const QTemporaryDir dir;
        const DEV::DeviceArg device = DEV::DeviceDb::bundled().filterDevice(tv5k()).constFirst();
        const QString ipc = dir.filePath(QStringLiteral("ip ö/blinker/blinker.ipc"));
        runUntil({QStringLiteral("--new-ip"), QStringLiteral("blinker"), QStringLiteral("--device"),
                  device.device(), QStringLiteral("--dir"), dir.filePath(QStringLiteral("ip ö"))},
                 ipc, dir);
        QVERIFY(contentsOf(ipc).contains(device.id().toUtf8()));
    }

    void takesTheDeviceOfTheProject()
    {
        const QTemporaryDir dir;
        const QString device = DEV::DeviceDb::bundled().filterDevice(tv5k()).constLast().id();
        write(dir.filePath(QStringLiteral("p.tvproj")),
              "{\"format\": 1, \"device\": \"" + device.toUtf8() + "\"}");
        const QString ipc = dir.filePath(QStringLiteral("blinker/blinker.ipc"));
        runUntil({QStringLiteral("--new-ip"), QStringLiteral("fake.blinker")}, ipc, dir);
        QVERIFY(contentsOf(ipc).contains(device.toUtf8()));
    }

    void opensAConfigurationInItsDialog()
    {
        const QTemporaryDir dir;
        const QString ipc = dir.filePath(QStringLiteral("x.ipc"));
        write(ipc, "[General]\ntype=fake.blinker\n");
        runUntil({QStringLiteral("x.ipc")}, ipc + QStringLiteral(".opened"), dir);
    }

private:
    static DEV::ChipFilter tv5k()
    {
        DEV::ChipFilter filter;
        filter.series = QStringLiteral("TV5K");
        return filter;
    }

    // Starts the program with a plug-in that accepts its dialogs by itself, and ends it when the
    // file has been made.
    static void runUntil(const QStringList &arguments, const QString &file,
                         const QTemporaryDir &dir)
    {
        QProcessEnvironment env = environment(dir);
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("FAKE_ACCEPT"), QStringLiteral("1"));
        QProcess process;
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(dir.path());
        process.start(QStringLiteral(TARVO_WORKBENCH),
                      QStringList({QStringLiteral("--plugin-dir"),
                                   QStringLiteral(TARVO_FAKE_PLUGINS "/blinker")}) +
                          arguments);
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(!contentsOf(file).isEmpty() || process.waitForFinished(0), 60000);
        QVERIFY2(!contentsOf(file).isEmpty(), process.readAllStandardError().constData());
        process.terminate();
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 0);
    }

    static QString example() { return QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc"); }

    static Outcome run(const QStringList &arguments, const QProcessEnvironment &env,
                       const QString &folder)
    {
        QProcess process;
        process.setProcessEnvironment(env);
        process.setWorkingDirectory(folder);
        process.start(QStringLiteral(TARVO_WORKBENCH), arguments);
        Outcome outcome;
        if (!process.waitForFinished(100000) || process.exitStatus() != QProcess::NormalExit)
            return outcome;
        outcome.status = process.exitCode();
        outcome.output = QString::fromUtf8(process.readAllStandardOutput());
        outcome.errors = QString::fromUtf8(process.readAllStandardError());
        return outcome;
    }
    static Outcome run(const QStringList &arguments)
    {
        const QTemporaryDir home;
        return run(arguments, environment(home), home.path());
    }
    static Outcome render(const QString &ipc, const QString &picture)
    {
        return run({QStringLiteral("--plugin-dir"), QStringLiteral(TARVO_FAKE_PLUGINS "/blinker"),
                    QStringLiteral("--render-diagram"), ipc, QStringLiteral("-o"), picture});
    }

    // Whether the process handles the signal by now.
    static bool catches(qint64 pid, int signal)
    {
        const QByteArray status = contentsOf(QStringLiteral("/proc/%1/status").arg(pid));
        const int at = status.indexOf("SigCgt:");
        const qulonglong mask =
            status.mid(at + 7, 20).trimmed().split('\n').first().toULongLong(nullptr, 16);
        return at >= 0 && (mask >> (signal - 1)) & 1;
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestWorkbenchProgram)
#include "tst_workbenchprogram.moc"
