#include "testsupport.h"

#include <config/ipcfile.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <generate/defines.h>
#include <signals.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <unistd.h>
#include <vector>

using namespace TARVOORIXM1;

namespace
{

struct Run {
    int status = -1;
    QString out;
    QString err;

    QJsonObject json() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
};

QStringList words(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *word : list)
        result.append(QString::fromUtf8(word));
    return result;
}

} // namespace

// The command as people run it: as a process.
class tst_Cli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void helpAndVersion();
    void wrongUsageIsStatusTwo_data();
    void wrongUsageIsStatusTwo();

    void devicesAreRefusedWithTheChoices_data();
    void devicesAreRefusedWithTheChoices();
    void devicesAreFoundByWhatPeopleHave_data();
    void devicesAreFoundByWhatPeopleHave();
    void theSpeedGradeThatIsTakenIsTold();
    void newWritesOnlyWhatWasSet();
    void newWritesWhatTheDialogsWould();
    void newTellsWhatDoesNotFit();
    void newPrintsOneObject();
    void newReplacesNothingUnasked();
    void newKeepsTypes();
    void newSaysWhyItCannotWrite();

    void generatesWithoutSynthesis();
    void generatesTheSameBytesEverywhere();
    void generatesTheExample();
    void generatedModelCompiles();
    void takesOddPaths_data();
    void takesOddPaths();
    void refusesBrokenFiles_data();
    void refusesBrokenFiles();
    void anUnknownDeviceIsBadInput();
    void emitsWhatTheFileHolds();
    void saysWhyItCannotGenerate_data();
    void saysWhyItCannotGenerate();
    void aFullDiskLeavesNothingHalfWritten();
    void aMissingToolIsNamed();
    void anErrorInASourceNamesFileAndLine();
    void aMissingDataFolderIsNamed();
    void interruptStopsTheToolToo();

    void movesAConfigurationToAnotherDevice();
    void movesNoOtherIp();
    void aDryRunOnlyTells();
    void movesIntoAnotherFile();
    void whatChangesAFileKeepsItsComments_data();
    void whatChangesAFileKeepsItsComments();
    void curesAnUnknownDevice();
    void unwritableOutputIsAFailure_data();
    void unwritableOutputIsAFailure();
    void tellsWhoseInterruptIsLost();
    void generatesVhdl();

    void checkFindsNothingInTheExample();
    void checkListsFindings();
    void checkChangesNothing();
    void optionsListEveryKey();
    void devicesCanBeNarrowed();
    void sourcesMatchGeneration();
    void anOwnDebugEntryOfTheDescriptorCountsForNothing();
    void anOwnDeviceFolderCounts();
    void pinsAreThePortsOfTheNetlist_data();
    void pinsAreThePortsOfTheNetlist();
    void registersOfAConfiguration();
    void registersNeedADataFolderThatHasThem();

private:
    QString path(const char *name) const { return m_dir->filePath(QString::fromUtf8(name)); }
    Run run(const QStringList &arguments) const;
    // Writes a configuration for TV2KR-18C with these lines in its "Config" group.
    QString config(const QByteArray &lines = QByteArray()) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QProcessEnvironment m_environment;
};

void tst_Cli::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    // Every generation synthesises, none takes the results of another one. What the tool has mapped
    // already is remembered for it.
    m_environment.insert(QStringLiteral("XDG_CACHE_HOME"), QStringLiteral("/dev/null"));
    // No display and no platform plug-in: the command must not miss them.
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        m_environment.remove(QString::fromLatin1(name));
}

Run tst_Cli::run(const QStringList &arguments) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_dir->path());
    process.start(QStringLiteral(TARVO_COMMAND), arguments);
    if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString tst_Cli::config(const QByteArray &lines) const
{
    const QString file = path("config.ipc");
    TestSupport::write(
        file,
        "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n"
        "[Config]\n" +
            lines);
    return file;
}

void tst_Cli::helpAndVersion()
{
    const Run help = run(words({"--help"}));
    QCOMPARE(help.status, 0);
    for (const char *command :
         {"new", "generate", "check", "options", "devices", "sources", "export", "simulate"}) {
        QVERIFY2(help.out.contains(QString::fromLatin1(command)), command);
        const Run own = run(words({command, "--help"}));
        QCOMPARE(own.status, 0);
        QVERIFY(own.out.size() > 100);
    }
    const Run version = run(words({"--version"}));
    QCOMPARE(version.status, 0);
    QCOMPARE(version.out, QStringLiteral("orixm1 " TARVO_VERSION "\n"));
}

void tst_Cli::wrongUsageIsStatusTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("nothing") << QStringList() << QStringLiteral("command");
    QTest::newRow("unknown command") << words({"make"}) << QStringLiteral("make");
    QTest::newRow("unknown flag") << words({"devices", "--colour"}) << QStringLiteral("--colour");
    QTest::newRow("file missing") << words({"generate"}) << QStringLiteral("FILE");
    QTest::newRow("device missing") << words({"new", "--out", "x"}) << QStringLiteral("--device");
    QTest::newRow("unknown device")
        << words({"new", "--device", "TV9", "--out", "x"}) << QStringLiteral("TV9");
    QTest::newRow("device in no such package")
        << words({"new", "--device", "TV2KLR-18C", "--package", "QFN48", "--out", "x"})
        << QStringLiteral("TV2KLR-18C-QFN88-C8/I7");
    QTest::newRow("unknown key") << words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x",
                                           "--set", "Enable GPIO IO=1"})
                                 << QStringLiteral("\"Enabel GPIO IO\"");
    QTest::newRow("wrong type") << words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x",
                                          "--set", "Enable RTC=on"})
                                << QStringLiteral("true or false");
    QTest::newRow("out of the domain")
        << words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x", "--set", "ITCM_Size=10"})
        << QStringLiteral("0 to 9");
    QTest::newRow("no assignment")
        << words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x", "--set", "Enable RTC"})
        << QStringLiteral("KEY=VALUE");
    QTest::newRow("unknown language")
        << words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x", "--language", "ada"})
        << QStringLiteral("ada");
    QTest::newRow("unknown series")
        << words({"devices", "--series", "TV7"}) << QStringLiteral("TV2KLR");
}

void tst_Cli::wrongUsageIsStatusTwo()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Run result = run(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
    QCOMPARE(result.out, QString());
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList());
}

void tst_Cli::newWritesOnlyWhatWasSet()
{
    const Run result = run(words({"new", "--device", "TV2KR-18C", "--package", "QFN88PF", "--speed",
                                  "C7/I6", "--language", "VHDL", "--set", "Enable RTC=true",
                                  "--set", "ITCM_Size=3", "--out", "a b/c"}));
    QCOMPARE(result.status, 0);
    const QString file = path("a b/c/tarvo_orix_m1.ipc");
    QCOMPARE(result.out, file + u'\n');
    QCOMPARE(TestSupport::contentsOf(file),
             QByteArray("[General]\ntarget_device=TV2KR-18C-QFN88PF-C7/"
                        "I6\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n"
                        "[Config]\nEnable%20RTC=true\nITCM_Size=3\nLANG=1\n"));

    QCOMPARE(run(words({"new", "--device", "TV2KLR-18C-QFN88-C8/I7", "--out", "bare"})).status, 0);
    QCOMPARE(TestSupport::contentsOf(path("bare/tarvo_orix_m1.ipc")),
             QByteArray("[General]\ntarget_device=TV2KLR-18C-QFN88-C8/"
                        "I7\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n"));
}

void tst_Cli::devicesAreRefusedWithTheChoices_data()
{
    QTest::addColumn<QStringList>("device");
    QTest::addColumn<QStringList>("choices");
    QTest::newRow("none") << words({""}) << words({"TV2KR-18C", "TV1KL-5A", "orixm1 devices"});
    QTest::newRow("several packages")
        << words({"TV2KLR-18C"})
        << words({"--package", "QFN88 ", "MBGA81P", "C8/I7", "TV2KLR-LV18MG81PC7/I6"});
    QTest::newRow("several packages, in lower case")
        << words({"tv2klr-18c"}) << words({"--package", "MBGA81P"});
    QTest::newRow("several packages of one speed grade")
        << words({"TV2KLR-18C", "--speed", "C8/I7"})
        << words({"--package", "QFN88 ", "TV2KLR-LV18MG81PC8/I7"});
    QTest::newRow("a part number of two devices")
        << words({"TV2KR-LV18QN88PC8/I7"})
        << words({"TV2KR-18-QFN88P-C8/I7", "TV2KR-18C-QFN88P-C8/I7"});
    QTest::newRow("no such speed grade")
        << words({"TV2KLR-18C", "--speed", "C1/I0"}) << words({"C1/I0", "TV2KLR-18C-QFN88-C7/I6"});
}

void tst_Cli::devicesAreRefusedWithTheChoices()
{
    QFETCH(QStringList, device);
    QFETCH(QStringList, choices);
    const QString file = config();
    const QByteArray before = TestSupport::contentsOf(file);
    for (const QStringList &command :
         {words({"new", "--out", "x"}), QStringList{QStringLiteral("retarget"), file}}) {
        const Run result = run(command + words({"--device"}) + device);
        QCOMPARE(result.status, 2);
        QCOMPARE(result.out, QString());
        for (const QString &choice : choices)
            QVERIFY2(result.err.contains(choice), qPrintable(result.err));
        QCOMPARE(TestSupport::contentsOf(file), before);
        QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"config.ipc"}));
    }
}

void tst_Cli::devicesAreFoundByWhatPeopleHave_data()
{
    QTest::addColumn<QStringList>("device");
    QTest::addColumn<QString>("id");
    const QString psram = QStringLiteral("TV2KR-18C-QFN88P-C8/I7");
    QTest::newRow("id") << words({"TV2KR-18C-QFN88P-C8/I7"}) << psram;
    QTest::newRow("id in lower case") << words({"tv2kr-18c-qfn88p-c8/i7"}) << psram;
    QTest::newRow("name, package and speed grade")
        << words({"TV2KR-18C", "--package", "QFN88P", "--speed", "C8/I7"}) << psram;
    QTest::newRow("all of them in lower case")
        << words({"tv2kr-18c", "--package", "qfn88p", "--speed", "c8/i7"}) << psram;
    QTest::newRow("part number") << words({"TV2KLR-LV18QN88C7/I6"})
                                 << QStringLiteral("TV2KLR-18C-QFN88-C7/I6");
    QTest::newRow("part number in lower case")
        << words({"tv2klr-lv18qn88c7/i6"}) << QStringLiteral("TV2KLR-18C-QFN88-C7/I6");
    QTest::newRow("name and package")
        << words({"TV2KLR-18C", "--package", "QFN88"}) << QStringLiteral("TV2KLR-18C-QFN88-C8/I7");
}

void tst_Cli::devicesAreFoundByWhatPeopleHave()
{
    QFETCH(QStringList, device);
    QFETCH(QString, id);
    const Run result = run(words({"new", "--out", "x", "--device"}) + device);
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QVERIFY(TestSupport::contentsOf(path("x/tarvo_orix_m1.ipc"))
                .contains("target_device=" + id.toUtf8() + '\n'));
}

void tst_Cli::theSpeedGradeThatIsTakenIsTold()
{
    const Run chosen =
        run(words({"new", "--device", "TV2KLR-18C", "--package", "QFN88", "--out", "a"}));
    QCOMPARE(chosen.status, 0);
    QVERIFY2(chosen.err.contains(QLatin1String("Speed grade C8/I7 is taken; there is also C7/I6.")),
             qPrintable(chosen.err));
    const Run given = run(words({"new", "--device", "TV2KLR-18C-QFN88-C8/I7", "--out", "b"}));
    QCOMPARE(given.err, QString());
}

void tst_Cli::newWritesWhatTheDialogsWould()
{
    const Run blocks =
        run(words({"new", "--device", "TV2KR-18C-QFN88P-C8/I7", "--out", "x", "--set",
                   "Enable GPIO=true", "--set", "Enable I2C=1", "--set", "Enable CAN=true", "--set",
                   "Enable Ethernet=true", "--set", "ETHERNET_CLOCK_DIVIDER=7"}));
    QCOMPARE(blocks.status, 0);
    QCOMPARE(blocks.err, QString());
    const QByteArray text = TestSupport::contentsOf(path("x/tarvo_orix_m1.ipc"));
    QCOMPARE(text.mid(text.indexOf("[Config]")),
             QByteArray("[Config]\nCAN_BUFFER_DEPTH=256\nETHERNET_CLOCK_DIVIDER=7\n"
                        "ETHERNET_INPUT_DELAY=100\nEnabel%20GPIO%20IO=true\nEnable%20CAN=true\n"
                        "Enable%20Ethernet=true\nEnable%20GPIO=true\nEnable%20I2C=true\n"
                        "Enable%20I2C%20IO=true\n"));
    QCOMPARE(run(words({"check", "x/tarvo_orix_m1.ipc"})).out, QString());

    // A device whose core page starts elsewhere.
    QCOMPARE(run(words({"new", "--device", "TV1KL-5A-QFN32-C6/I5", "--out", "small"})).status, 0);
    const Run check = run(words({"check", "small/tarvo_orix_m1.ipc"}));
    QCOMPARE(check.out, QString());
    QCOMPARE(check.status, 0);
    QVERIFY(TestSupport::contentsOf(path("small/tarvo_orix_m1.ipc"))
                .contains("\nNumber%20of%20Interrupts=1\n"));

    // The folder of the initialisation, as the page stores it.
    QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("fw/init")));
    QCOMPARE(run(words({"new", "--device", "TV2KR-18C-QFN88P-C8/I7", "--out", "fw", "--set",
                        "Initialize ITCM=true", "--set", "ITCM_Initialization_Path=init"}))
                 .status,
             0);
    QVERIFY(TestSupport::contentsOf(path("fw/tarvo_orix_m1.ipc"))
                .contains("ITCM_Initialization_AbsolutePath=" + path("fw/init").toUtf8() + '\n'));
}

void tst_Cli::newTellsWhatDoesNotFit()
{
    const Run result = run(words(
        {"new", "--device", "TV1KL-5A-QFN32-C6/I5", "--out", "x", "--set", "Enable CAN=true"}));
    QCOMPARE(result.status, 0);
    QVERIFY2(result.err.contains(QLatin1String("Enable CAN: error: TV1KL-5A cannot have CAN")),
             qPrintable(result.err));
    QVERIFY(TestSupport::contentsOf(path("x/tarvo_orix_m1.ipc")).contains("Enable%20CAN=true\n"));
}

void tst_Cli::newPrintsOneObject()
{
    const Run result = run(words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x", "--json",
                                  "--set", "Enable PSRAM=true"}));
    QCOMPARE(result.status, 0);
    const QJsonObject object = result.json();
    QCOMPARE(object.keys(), words({"device", "errors", "file", "findings"}));
    QCOMPARE(object.value(QLatin1String("file")).toString(), path("x/tarvo_orix_m1.ipc"));
    QCOMPARE(object.value(QLatin1String("device")).toString(),
             QStringLiteral("TV2K-18-QFN88-C8/I7"));
    QCOMPARE(object.value(QLatin1String("findings")).toArray().size(), 1);
}

void tst_Cli::newReplacesNothingUnasked()
{
    const QString file = path("x/tarvo_orix_m1.ipc");
    QVERIFY(TestSupport::write(file, "mine"));
    const Run refused = run(words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x"}));
    QCOMPARE(refused.status, 1);
    QVERIFY(refused.err.contains(file) && refused.err.contains(QLatin1String("--force")));
    QCOMPARE(TestSupport::contentsOf(file), QByteArray("mine"));
    QCOMPARE(run(words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "x", "--force"})).status,
             0);
    QVERIFY(TestSupport::contentsOf(file).contains("TV2K-18"));
}

void tst_Cli::newKeepsTypes()
{
    // Every key, then read back through generation's own reader.
    QStringList arguments = words({"new", "--device", "TV5KT-138-PBGA484-C2/I1", "--out", "all"});
    OptionMap expected;
    for (const Option &option : optionTable()) {
        QString text = QString::fromUtf8("p\xc3\xa4th/with = sign");
        if (option.type == OptionType::Bool)
            text = QStringLiteral("true");
        else if (!option.choices.isEmpty())
            text = option.choices.last();
        else if (option.type == OptionType::Int)
            text = QString::number(option.maximum);
        else if (option.key == QLatin1String("Prefix"))
            text = QStringLiteral("cpu0_");
        arguments += {QStringLiteral("--set"), QString(option.key + u'=' + text)};
        expected.insert(option.key, text);
    }
    QCOMPARE(run(arguments).status, 0);
    QSettings settings(path("all/tarvo_orix_m1.ipc"), QSettings::IniFormat);
    OptionMap read;
    IpcFile::readOptions(settings, read);
    QCOMPARE(read, expected);
}

void tst_Cli::newSaysWhyItCannotWrite()
{
    QVERIFY(TestSupport::write(path("file"), "x"));
    const Run result =
        run(words({"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "file/below"}));
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(path("file") + QLatin1String("\" is a file")),
             qPrintable(result.err));
    QCOMPARE(TestSupport::contentsOf(path("file")), QByteArray("x"));
}

void tst_Cli::generatesWithoutSynthesis()
{
    const QString file = config("Enable%20GPIO=true\n");
    const Run result = run(
        {QStringLiteral("generate"), file, QStringLiteral("--no-synth"), QStringLiteral("--json")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.json().keys(), words({"cells", "errors", "files", "notCounted", "outputs",
                                          "resources", "sources", "warnings"}));
    const QString temp = path("temp/tv_orix_m1");
    const QJsonArray files = result.json().value(QLatin1String("files")).toArray();
    QCOMPARE(files.size(), 7);
    QCOMPARE(files.first().toString(), QString(temp + QLatin1String("/cm1_option_defs.v")));
    QVERIFY(result.json().value(QLatin1String("sources")).toArray().size() > 20);
    QVERIFY(result.json().value(QLatin1String("outputs")).toArray().isEmpty());
    QVERIFY(result.json().value(QLatin1String("errors")).toArray().isEmpty());

    const DEV::DeviceArg device =
        DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    for (const IncludeFile &include : buildIncludeFiles({{Key::enableGpio, true}}, device))
        QCOMPARE(QString::fromUtf8(TestSupport::contentsOf(temp + u'/' + include.name)),
                 include.lines.isEmpty() ? QString() : QString(include.lines.join(u'\n') + u'\n'));
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"config.ipc", "temp"}));
    QCOMPARE(TestSupport::entriesOf(temp).size(), 8); // the manifest, too
}

void tst_Cli::generatesTheSameBytesEverywhere()
{
    const QString file =
        config("Enable%20GPIO=true\nEnable%20UART0=true\nITCM_Size=2\nDTCM_Size=2\n");
    QCOMPARE(run({QStringLiteral("generate"), file, QStringLiteral("--out"), QStringLiteral("one")})
                 .status,
             0);
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.ISO-8859-1"));
    m_environment.insert(QStringLiteral("USER"), QStringLiteral("someone"));
    m_environment.insert(QStringLiteral("HOME"), m_dir->path());
    m_environment.insert(QStringLiteral("TZ"), QStringLiteral("Asia/Tokyo"));
    QCOMPARE(
        run({QStringLiteral("generate"), file, QStringLiteral("--out"), QStringLiteral("t w/o")})
            .status,
        0);
    for (const char *name :
         {"tarvo_orix_m1.v", "tarvo_orix_m1_tmp.v", "tarvo_orix_m1.vo",
          "temp/tv_orix_m1/tarvo_orix_m1.vg", "temp/tv_orix_m1/ahb_option_defs.v"}) {
        const QByteArray first = TestSupport::contentsOf(path("one/") + QLatin1String(name));
        QVERIFY2(!first.isEmpty(), name);
        QVERIFY2(first == TestSupport::contentsOf(path("t w/o/") + QLatin1String(name)), name);
        QVERIFY2(!first.contains(m_dir->path().toUtf8()), name);
    }
}

void tst_Cli::generatesTheExample()
{
    const QString example = QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc");
    const QByteArray before = TestSupport::contentsOf(example);
    const Run result = run({QStringLiteral("generate"), example, QStringLiteral("--out"),
                            QStringLiteral("node"), QStringLiteral("--json")});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QStringList outputs;
    for (const QJsonValue &value : result.json().value(QLatin1String("outputs")).toArray())
        outputs.append(value.toString());
    QCOMPARE(outputs, (QStringList{path("node/tarvo_orix_m1.v"), path("node/tarvo_orix_m1_tmp.v"),
                                   path("node/tarvo_orix_m1.vo")}));
    for (const QString &output : outputs)
        QVERIFY2(QFileInfo(output).size() > 0, qPrintable(output));
    QCOMPARE(TestSupport::contentsOf(example), before);
    const QString library =
        QDir::cleanPath(QStringLiteral(TARVO_IP_DATA_DIR "/../primitives/primitives.v"));
    QVERIFY(QFileInfo(library).isFile());
    QCOMPARE(result.json().value(QLatin1String("libraries")).toArray(), QJsonArray{library});

    // What it takes of the device, for people and for scripts.
    QStringList resources;
    for (const QJsonValue &value : result.json().value(QLatin1String("resources")).toArray()) {
        const QJsonObject use = value.toObject();
        const QString name = use.value(QLatin1String("resource")).toString();
        resources.append(name);
        QVERIFY(use.value(QLatin1String("used")).toInt() > 0);
        if (name == QLatin1String("Tri-state drivers")) {
            QVERIFY(!use.contains(QLatin1String("available")));
            continue;
        }
        const int available = use.value(QLatin1String("available")).toInt();
        const int percent = use.value(QLatin1String("percent")).toInt();
        QVERIFY(available > 0 && percent > 0 && percent <= 100);
        QVERIFY2(
            result.err.contains(QStringLiteral(" of %1 (%2 %)").arg(available, 8).arg(percent, 3)),
            qPrintable(result.err));
    }
    QCOMPARE(resources, words({"LUT4", "Flip-flops", "Carry", "Tri-state drivers", "Block RAM"}));
    int blackBoxes = 0;
    for (const QJsonValue &value : result.json().value(QLatin1String("cells")).toArray()) {
        const QJsonObject cell = value.toObject();
        QVERIFY(cell.value(QLatin1String("count")).toInt() > 0);
        if (cell.value(QLatin1String("blackBox")).toBool()) {
            ++blackBoxes;
            QCOMPARE(cell.value(QLatin1String("cell")).toString(), QStringLiteral("CortexM1Core"));
        }
    }
    QCOMPARE(blackBoxes, 1);
    const QJsonObject notCounted = result.json().value(QLatin1String("notCounted")).toObject();
    QCOMPARE(notCounted.value(QLatin1String("blackBoxes")).toArray(),
             (QJsonArray{QJsonObject{{QStringLiteral("cell"), QStringLiteral("CortexM1Core")},
                                     {QStringLiteral("count"), 1}}}));
    const QString sentence =
        QStringLiteral("Not counted are the contents of black boxes: 1 CortexM1Core.");
    QCOMPARE(notCounted.value(QLatin1String("sentence")).toString(), sentence);
    QVERIFY2(result.err.contains(QString(QLatin1String("orixm1: ") + sentence + u'\n')),
             qPrintable(result.err));

    // The template names the ports of what was switched on.
    const QByteArray text = TestSupport::contentsOf(outputs.at(1));
    for (const char *port :
         {"HCLK", "GPIO", "UART0RXD", "UART1TXD", "SCL", "SDA", "MOSI", "TIMER0EXTIN", "RTCSRCCLK",
          "AHB1HADDR", "APB2PSEL", "EXTINT", "JTAG_7"})
        QVERIFY2(text.contains(QByteArray(".") + port), port);
    for (const char *port : {"CAN_RX", "AHB2HADDR", "APB3PSEL", "TIMER1EXTIN"})
        QVERIFY2(!text.contains(QByteArray(".") + port), port);
}

void tst_Cli::generatedModelCompiles()
{
    const QString file = config("Enable%20GPIO=true\nEnabel%20GPIO%20IO=true\nEnable%20Timer0="
                                "true\nITCM_Size=1\nDTCM_Size=0\n");
    const Run result = run({QStringLiteral("generate"), file});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    // What the netlist needs is named, and not written.
    const QString library =
        QDir::cleanPath(QStringLiteral(TARVO_IP_DATA_DIR "/../primitives/primitives.v"));
    QVERIFY(result.out.endsWith(QString(u'\n' + library + u'\n')));
    QVERIFY(result.err.contains(QLatin1String("needed to read the netlist: ") + library));
    QProcess compiler;
    compiler.setWorkingDirectory(m_dir->path());
    compiler.start(QStringLiteral("iverilog"), words({"-g2005", "-s", "Tarvo_ORIX_M1_Top", "-o",
                                                      "model.vvp", "tarvo_orix_m1.vo"}));
    QVERIFY(compiler.waitForFinished(-1));
    QVERIFY2(compiler.exitCode() == 0, compiler.readAllStandardError().constData());
}

void tst_Cli::takesOddPaths_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("maps"); // whether the tool itself maps the design there
    const QVector<QPair<const char *, QString>> folders = {
        {"blank", QStringLiteral("a b")},
        {"quotes", QStringLiteral("a \"b\" 'c'")},
        {"percent", QStringLiteral("%1 %2 %n")},
        {"umlaut", QString::fromUtf8("\xc3\xbc\xe6\x97\xa5")},
        {"dollar, brackets, star", QStringLiteral("$HOME [x] {y} *")},
        {"backslash", QStringLiteral("a\\b")},
        {"leading minus", QStringLiteral("-out")},
        {"hash and semicolon", QStringLiteral("a#b;c")},
    };
    QStringList all;
    for (const auto &[name, folder] : folders) {
        QTest::newRow(name) << folder << false;
        all.append(folder);
    }
    QTest::newRow("each in the one before") << all.join(u'/') << true;
}

void tst_Cli::takesOddPaths()
{
    QFETCH(QString, folder);
    QFETCH(bool, maps);
    if (maps)
        m_environment.remove(QStringLiteral("TARVO_TEST_CACHE"));
    const QString inFolder = path("") + folder;
    QVERIFY(QDir().mkpath(inFolder));
    QVERIFY(QFile::rename(config("ITCM_Size=0\nDTCM_Size=0\n"),
                          inFolder + QLatin1String("/config.ipc")));
    const Run result = run({QStringLiteral("generate"), inFolder + QLatin1String("/config.ipc")});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QCOMPARE(TestSupport::entriesOf(inFolder),
             words({"config.ipc", "tarvo_orix_m1.v", "tarvo_orix_m1.vo", "tarvo_orix_m1_tmp.v",
                    "temp"}));
    QVERIFY(result.out.contains(folder));
}

void tst_Cli::refusesBrokenFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("version is \"\"");
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\x02\x01\x00\x00",
                                          8)
                            << QStringLiteral("line 1");
    QTest::newRow("zeros") << QByteArray(4096, '\0') << QStringLiteral("line 1");
    QTest::newRow("text") << QByteArray("[General]\nversion=1.0\nhello\n")
                          << QStringLiteral("line 3");
    QTest::newRow("truncated section")
        << QByteArray("[General]\nversion=1.0\n[Conf") << QStringLiteral("line 3");
    QTest::newRow("truncated version")
        << QByteArray("[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\nversion=1")
        << QStringLiteral("version is \"1\"");
    QTest::newRow("another version")
        << QByteArray("[General]\nversion=1.00\n") << QStringLiteral("version is \"1.00\"");
    QTest::newRow("a megabyte of one line") << QByteArray(1 << 20, 'x') << QStringLiteral("line 1");
}

void tst_Cli::refusesBrokenFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    QVERIFY(TestSupport::write(path("broken.ipc"), bytes));
    for (const char *command : {"generate", "check", "sources"}) {
        const Run result = run(words({command, "broken.ipc"}));
        QCOMPARE(result.status, 3);
        QVERIFY2(result.err.contains(QLatin1String("broken.ipc")) && result.err.contains(message),
                 qPrintable(result.err));
        QVERIFY(result.err.size() < 400);
        QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"broken.ipc"}));
    }
    QCOMPARE(run(words({"generate", "missing.ipc"})).status, 3);
    QCOMPARE(run(words({"generate", "."})).status, 3);
}

void tst_Cli::anUnknownDeviceIsBadInput()
{
    QVERIFY(TestSupport::write(path("x.ipc"), "[General]\ntarget_device=TV9-1\nversion=1.0\n"));
    const Run result = run(words({"generate", "x.ipc"}));
    QCOMPARE(result.status, 3);
    QVERIFY2(result.err.contains(QLatin1String("TV9-1")), qPrintable(result.err));
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"x.ipc"}));
}

void tst_Cli::emitsWhatTheFileHolds()
{
    const QString file = config("Number%20of%20Interrupts=7\nITCM_Size=99999999999\nEnable%20CAN="
                                "true\nCAN_BUFFER_DEPTH=many\n");
    QCOMPARE(run({QStringLiteral("check"), file}).status, 1);
    QCOMPARE(run({QStringLiteral("generate"), file, QStringLiteral("--no-synth")}).status, 0);
    const QByteArray core = TestSupport::contentsOf(path("temp/tv_orix_m1/cm1_option_defs.v"));
    QVERIFY(core.startsWith("`define CM1_NUM_IRQ 7\n"));
    QVERIFY(core.contains("`define CM1_ITCMSIZE 4'b0110\n")); // no size index, so the code of 32 KB
    QCOMPARE(TestSupport::contentsOf(path("temp/tv_orix_m1/parameter.vh")),
             QByteArray("parameter CFIFO_DEPTH = many;\n"));
}

void tst_Cli::saysWhyItCannotGenerate_data()
{
    QTest::addColumn<QString>("blocked"); // a file or folder that is in the way
    QTest::addColumn<bool>("asFolder");
    QTest::newRow("output folder is a file") << QStringLiteral("out") << false;
    QTest::newRow("generation folder is a file") << QStringLiteral("out/temp") << false;
    QTest::newRow("include file is a folder")
        << QStringLiteral("out/temp/tv_orix_m1/DDR3_define.v") << true;
    QTest::newRow("netlist is a folder") << QStringLiteral("out/tarvo_orix_m1.v") << true;
    QTest::newRow("model is a folder") << QStringLiteral("out/tarvo_orix_m1.vo") << true;
}

void tst_Cli::saysWhyItCannotGenerate()
{
    QFETCH(QString, blocked);
    QFETCH(bool, asFolder);
    const QString file = config("ITCM_Size=0\nDTCM_Size=0\n");
    const QString place = m_dir->filePath(blocked);
    if (asFolder)
        QVERIFY(QDir().mkpath(place));
    else
        QVERIFY(TestSupport::write(place, "mine"));
    const Run result =
        run({QStringLiteral("generate"), file, QStringLiteral("--out"), QStringLiteral("out")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(place), qPrintable(result.err));
    if (!asFolder)
        QCOMPARE(TestSupport::contentsOf(place), QByteArray("mine"));

    // Out of the way, a second try works.
    if (asFolder)
        QVERIFY(QDir().rmdir(place));
    else
        QVERIFY(QFile::remove(place));
    QCOMPARE(run({QStringLiteral("generate"), file, QStringLiteral("--out"), QStringLiteral("out")})
                 .status,
             0);
}

void tst_Cli::aFullDiskLeavesNothingHalfWritten()
{
    if (::geteuid() != 0)
        QSKIP("Only root can mount a small disk.");
    const QString disk = path("disk");
    QVERIFY(QDir().mkpath(disk));
    if (QProcess::execute(QStringLiteral("mount"),
                          {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                           QStringLiteral("size=64k"), QStringLiteral("tmpfs"), disk}) != 0)
        QSKIP("This machine cannot mount a small disk.");
    struct Unmount {
        QString disk;
        ~Unmount() { QProcess::execute(QStringLiteral("umount"), {disk}); }
    } const unmount{disk};

    const QString file = config("ITCM_Size=0\nDTCM_Size=0\n");
    const QStringList arguments{QStringLiteral("generate"), file, QStringLiteral("--out"), disk};
    // The include files fit, the netlist does not.
    const Run tight = run(arguments);
    QCOMPARE(tight.status, 1);
    QVERIFY2(tight.err.contains(QLatin1String("space")) && tight.err.contains(disk),
             qPrintable(tight.err));
    for (const char *name :
         {"/tarvo_orix_m1.v", "/tarvo_orix_m1.vo", "/temp/tv_orix_m1/tarvo_orix_m1.vg"})
        QVERIFY2(!QFileInfo::exists(disk + QLatin1String(name)), name);
    // Not even the include files fit.
    QVERIFY(QFile::remove(disk + QLatin1String("/temp/tv_orix_m1/cm1_option_defs.v")));
    {
        QFile ballast(disk + QLatin1String("/ballast"));
        QVERIFY(ballast.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray chunk(512, 'x');
        while (ballast.write(chunk) == chunk.size())
            continue;
    }
    const Run full = run(arguments);
    QCOMPARE(full.status, 1);
    // What comes first is the manifest, if there is one already.
    QVERIFY2(full.err.contains(disk + QLatin1String("/temp/tv_orix_m1/")) &&
                 full.err.contains(QLatin1String("space")),
             qPrintable(full.err));
    QVERIFY(!QFileInfo::exists(disk + QLatin1String("/temp/tv_orix_m1/cm1_option_defs.v")));
    QCOMPARE(QDir(disk + QLatin1String("/temp/tv_orix_m1"))
                 .entryList({QStringLiteral("cm1*")}, QDir::Files | QDir::Hidden),
             QStringList());
    // With room again the same call works.
    QCOMPARE(QProcess::execute(QStringLiteral("mount"),
                               {QStringLiteral("-o"), QStringLiteral("remount,size=32m"), disk}),
             0);
    QCOMPARE(run(arguments).status, 0);
}

void tst_Cli::aMissingToolIsNamed()
{
    const QString file = config();
    m_environment.insert(QStringLiteral("PATH"), m_dir->path());
    const Run result = run({QStringLiteral("generate"), file, QStringLiteral("--json")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(QLatin1String("Yosys")), qPrintable(result.err));
    QVERIFY(!result.json().value(QLatin1String("errors")).toArray().isEmpty());
    QCOMPARE(result.json().value(QLatin1String("files")).toArray().size(), 7);
    QVERIFY(!QFileInfo::exists(path("tarvo_orix_m1.v")));
}

void tst_Cli::anErrorInASourceNamesFileAndLine()
{
    // CAN without a depth makes a parameter without a value, which no tool can read.
    const Run result = run({QStringLiteral("generate"), config("Enable%20CAN=true\n")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(QLatin1String("parameter.vh:1")), qPrintable(result.err));
    QVERIFY(!QFileInfo::exists(path("tarvo_orix_m1.v")));
    QCOMPARE(run({QStringLiteral("generate"), config("Enable%20CAN=true\nCAN_BUFFER_DEPTH=64\n")})
                 .status,
             0);
}

void tst_Cli::aMissingDataFolderIsNamed()
{
    const Run missing = run({QStringLiteral("--data"), QStringLiteral("nowhere"),
                             QStringLiteral("generate"), config()});
    QCOMPARE(missing.status, 3);
    QVERIFY2(missing.err.contains(path("nowhere/tarvo_orix_m1.ipspec")), qPrintable(missing.err));

    // With a descriptor but no RTL the list holds the include files only, and synthesis says what
    // is missing.
    QVERIFY(QFile::copy(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"),
                        path("tarvo_orix_m1.ipspec")));
    const QStringList data{QStringLiteral("--data"), QStringLiteral(".")};
    const Run sources = run(data + QStringList{QStringLiteral("sources"), config()});
    QCOMPARE(sources.status, 0);
    QCOMPARE(sources.out.count(u'\n'), 6);
    const Run generated = run(data + QStringList{QStringLiteral("generate"), config()});
    QCOMPARE(generated.status, 1);
    QVERIFY2(generated.err.contains(QLatin1String("Tarvo_ORIX_M1_Top")), qPrintable(generated.err));

    QVERIFY(TestSupport::write(path("tarvo_orix_m1.ipspec"), "{\n  \"ipcore\": }\n"));
    const Run malformed = run(data + QStringList{QStringLiteral("sources"), config()});
    QCOMPARE(malformed.status, 3);
    QVERIFY2(malformed.err.contains(QLatin1String("tarvo_orix_m1.ipspec:2:")),
             qPrintable(malformed.err));
}

void tst_Cli::interruptStopsTheToolToo()
{
    const QString pidFile = path("pid");
    const QString tool = path("bin/yosys");
    QVERIFY(TestSupport::write(tool, "#!/bin/bash\necho $$ > '" + pidFile.toUtf8() + ".new'\nmv '" +
                                         pidFile.toUtf8() + ".new' '" + pidFile.toUtf8() +
                                         "'\nwhile :; do read -t 1 < <(:) || :; done\n"));
    QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner));
    m_environment.insert(QStringLiteral("PATH"), path("bin") + QLatin1String(":/usr/bin:/bin"));
    for (const int signal : {SIGINT, SIGTERM}) {
        QFile::remove(pidFile);
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(TARVO_COMMAND), {QStringLiteral("generate"), config()});
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(pidFile), 240000);
        const pid_t pid = pid_t(TestSupport::contentsOf(pidFile).trimmed().toLongLong());
        QVERIFY(pid > 1 && ::kill(pid, 0) == 0);
        QVERIFY(TestSupport::sendSignal(process, signal));
        QVERIFY(process.waitForFinished(240000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 130);
        QVERIFY(::kill(pid, 0) != 0);
        QVERIFY(!QFileInfo::exists(path("tarvo_orix_m1.v")));
    }
}

void tst_Cli::movesAConfigurationToAnotherDevice()
{
    const QString file = config("Enable%20CAN=true\nCAN_BUFFER_DEPTH=64\nITCM_Size=6\n"
                                "DTCM_Size=2\nmine=1\n");
    const Run result = run({QStringLiteral("retarget"), file, QStringLiteral("--device"),
                            QStringLiteral("TV1KL-5A"), QStringLiteral("--package"),
                            QStringLiteral("QFN32"), QStringLiteral("--json")});
    QCOMPARE(result.status, 0);
    const QJsonObject object = result.json();
    QCOMPARE(object.keys(),
             words({"before", "changed", "device", "errors", "file", "losses", "written"}));
    QCOMPARE(object.value(QLatin1String("file")).toString(), file);
    QCOMPARE(object.value(QLatin1String("before")).toString(),
             QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    QCOMPARE(object.value(QLatin1String("device")).toString(),
             QStringLiteral("TV1KL-5A-QFN32-C6/I5"));
    QCOMPARE(object.value(QLatin1String("written")).toBool(), true);
    QStringList keys;
    for (const QJsonValue &loss : object.value(QLatin1String("losses")).toArray()) {
        QCOMPARE(loss.toObject().keys(), words({"after", "before", "key", "message"}));
        keys.append(loss.toObject().value(QLatin1String("key")).toString());
    }
    QCOMPARE(keys, words({"Enable Debug", "ITCM_Size", "Enable CAN"}));
    const QByteArray text = TestSupport::contentsOf(file);
    QVERIFY2(text.contains("\ntarget_device=TV1KL-5A-QFN32-C6/I5\n") &&
                 text.contains("\nITCM_Size=3\n") && text.contains("\nmine=1\n"),
             text.constData());
    const Run check = run({QStringLiteral("check"), file});
    QVERIFY2(check.status == 0, qPrintable(check.out));

    const Run again = run({QStringLiteral("retarget"), file, QStringLiteral("--device"),
                           QStringLiteral("TV1KL-5A-QFN32-C6/I5")});
    QCOMPARE(again.status, 0);
    QCOMPARE(again.out, QStringLiteral("Nothing is lost.\n"));
    QCOMPARE(TestSupport::contentsOf(file), text);
}

void tst_Cli::movesNoOtherIp()
{
    const QByteArray bytes("[General]\ntype=other.ip\nversion=1.0\n[Config]\nwidth=3\n");
    QVERIFY(TestSupport::write(path("x.ipc"), bytes));
    const Run result = run(words({"retarget", "x.ipc", "--device", "TV2K-18-QFN88-C8/I7"}));
    QCOMPARE(result.status, 3);
    QVERIFY2(result.err.contains(QLatin1String("other.ip")), qPrintable(result.err));
    QCOMPARE(TestSupport::contentsOf(path("x.ipc")), bytes);
}

void tst_Cli::aDryRunOnlyTells()
{
    const QString file = config("Enable%20DDR3=true\nITCM_Size=0\nDTCM_Size=0\n");
    const QByteArray before = TestSupport::contentsOf(file);
    const Run result = run({QStringLiteral("retarget"), file, QStringLiteral("--device"),
                            QStringLiteral("TV1L-9-QFN48-C6/I5"), QStringLiteral("--dry-run")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out, QStringLiteral("Debug is taken out: TV1L-9 cannot have it.\n"
                                        "DDR3 is taken out: TV1L-9 cannot have it.\n"));
    QCOMPARE(TestSupport::contentsOf(file), before);
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"config.ipc"}));
}

void tst_Cli::movesIntoAnotherFile()
{
    for (const char *lane : {"init/itcm0", "init/itcm1", "init/itcm2", "init/itcm3"})
        QVERIFY(TestSupport::write(path(lane), QByteArray("00\n").repeated(256)));
    const QString file =
        config("ITCM_Size=0\nDTCM_Size=0\nInitialize%20ITCM=true\nITCM_Initialization_Path=init\n"
               "ITCM_Initialization_AbsolutePath=" +
               path("init").toUtf8() + "\n");
    const QByteArray before = TestSupport::contentsOf(file);
    const QStringList arguments = {
        QStringLiteral("retarget"), file,
        QStringLiteral("--device"), QStringLiteral("TV2KR-18C-QFN88-C8/I7"),
        QStringLiteral("--out"),    QStringLiteral("other/moved.ipc")};
    const Run result = run(arguments);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out,
             QString(QLatin1String("Nothing is lost.\n") + path("other/moved.ipc") + u'\n'));
    QCOMPARE(TestSupport::contentsOf(file), before);
    const QByteArray moved = TestSupport::contentsOf(path("other/moved.ipc"));
    // The folder stays the one that it was.
    QVERIFY2(moved.contains("\nITCM_Initialization_Path=" + path("init").toUtf8() + '\n'),
             moved.constData());
    QCOMPARE(run(words({"check", "other/moved.ipc"})).out, QString());

    const Run refused = run(arguments);
    QCOMPARE(refused.status, 1);
    QVERIFY(refused.err.contains(QLatin1String("--force")));
    QCOMPARE(TestSupport::contentsOf(path("other/moved.ipc")), moved);
    QCOMPARE(run(arguments + words({"--force"})).status, 0);
}

void tst_Cli::whatChangesAFileKeepsItsComments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("written");

    const auto row = [](const char *name, std::initializer_list<const char *> arguments,
                        const char *written = "node.ipc") {
        QTest::newRow(name) << words(arguments) << QString::fromUtf8(written);
    };
    row("set", {"set", "node.ipc", "Enable UART0=true"});
    row("unset", {"unset", "node.ipc", "Enable GPIO"});
    row("minimize", {"minimize", "node.ipc"});
    row("upgrade", {"upgrade", "node.ipc", "--fix"});
    row("retarget", {"retarget", "node.ipc", "--device", "TV1KL-5A-QFN48-C5/I4"});
    row("retarget into another file",
        {"retarget", "node.ipc", "--device", "TV1KL-5A-QFN48-C5/I4", "--out", "new/other.ipc"},
        "new/other.ipc");
    row("firmware", {"firmware", "app.bin", "node.ipc", "--initialize"});
}

void tst_Cli::whatChangesAFileKeepsItsComments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, written);

    // "enable spi" is what an upgrade mends, "Enable CAN" what a minimisation drops.
    const QByteArray before("; of Ann\n[General]\n; until the board is there\n"
                            "target_device=TV2KR-18C-QFN88P-C8/I7\n"
                            "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n"
                            "Enable%20CAN=false\n; ask Ben\nEnable%20GPIO=true\n"
                            "enable%20spi=true\n; the end\n");
    QVERIFY(TestSupport::write(path("node.ipc"), before));
    QVERIFY(TestSupport::write(path("app.bin"), QByteArray(64, '\0')));
    const Run result = run(arguments);
    QVERIFY2(result.status == 0, qPrintable(result.err + result.out));
    const QByteArray after = TestSupport::contentsOf(m_dir->filePath(written));
    QVERIFY(after != before);
    for (const char *kept : {"; of Ann\n", "\n; until the board is there\ntarget_device=",
                             "\n; ask Ben\n", "\n; the end\n"})
        QVERIFY2(after.count(kept) == 1, after.constData());
}

void tst_Cli::curesAnUnknownDevice()
{
    for (const char *device : {"target_device=TV9-1\n", "", "[device]\nid=TV9-1\n[General]\n"}) {
        const QString file = path("x.ipc");
        QVERIFY(TestSupport::write(file, QByteArray("[General]\n") + device +
                                             "type=tarvo.tarvo_orix_m1\nversion=1.0\n[Config]\n"
                                             "Enable%20RTC=true\n"));
        const Run check = run(words({"check", "x.ipc"}));
        QCOMPARE(check.status, 1);
        QVERIFY2(check.out.startsWith(QLatin1String("x.ipc:target_device: error: names ")) &&
                     check.out.contains(QLatin1String("orixm1 retarget FILE --device")),
                 qPrintable(check.out));
        const Run generate = run(words({"generate", "x.ipc"}));
        QCOMPARE(generate.status, 3);
        QVERIFY(generate.err.contains(QLatin1String("orixm1 retarget")));
        QCOMPARE(run(words({"retarget", "x.ipc", "--device", "TV2K-18-QFN88-C8/I7"})).status, 0);
        const Run cured = run(words({"check", "x.ipc"}));
        QCOMPARE(cured.out, QString());
        QCOMPARE(cured.status, 0);
        QVERIFY(TestSupport::contentsOf(file).contains("Enable%20RTC=true\n"));
    }
}

void tst_Cli::unwritableOutputIsAFailure_data()
{
    QTest::addColumn<QStringList>("arguments");
    const char *const example = TARVO_EXAMPLES_DIR "/sensor-node.ipc";
    const std::vector<std::vector<const char *>> rows = {
        {"--help"},
        {"--help-all"},
        {"--version"},
        {"new", "--help"},
        {"options"},
        {"options", "--json"},
        {"devices"},
        {"check", example, "--json"},
        {"pins", example},
        {"sources", example},
        {"registers"},
        {"registers", "--c-header"},
        {"registers", "--markdown"},
        {"export", "--list"},
        {"export", example, "--out", "made"},
        {"new", "--device", "TV2K-18-QFN88-C8/I7", "--out", "made"},
        {"retarget", example, "--device", "TV1L-9-QFN48-C6/I5", "--dry-run"},
        {"generate", example, "--no-synth", "--out", "made"}};
    for (const std::vector<const char *> &row : rows) {
        QStringList arguments;
        for (const char *argument : row)
            arguments.append(QString::fromUtf8(argument));
        QTest::newRow(qPrintable(arguments.mid(0, 2).join(u' ') + u' ' + arguments.last()))
            << arguments;
    }
}

void tst_Cli::unwritableOutputIsAFailure()
{
    QFETCH(QStringList, arguments);
    if (!QFileInfo::exists(QStringLiteral("/dev/full")))
        QSKIP("There is no device that is always full.");
    QProcess process;
    process.setWorkingDirectory(m_dir->path());
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    process.start(QStringLiteral(TARVO_COMMAND), arguments);
    QVERIFY(process.waitForFinished(300000));
    const QByteArray errors = process.readAllStandardError();
    QCOMPARE(process.exitCode(), 1);
    QVERIFY2(errors.contains("The output could not be written: ") && errors.contains("space"),
             errors.constData());
}

void tst_Cli::tellsWhoseInterruptIsLost()
{
    const QString file =
        config("Number%20of%20Interrupts=8\nEnable%20SPI=true\nEnable%20TRNG=true\n"
               "Enable%20UART0=true\nExternal%20Interrupts=true\n");
    Run check = run({QStringLiteral("check"), file});
    QCOMPARE(check.status, 0);
    QCOMPARE(check.out.remove(file + u':').split(u'\n', Qt::SkipEmptyParts),
             (QStringList{
                 QStringLiteral("External Interrupts: warning: needs 16 or 32 interrupts"),
                 QStringLiteral("Enable SPI: warning: SPI never interrupts: its interrupt 8 is "
                                "masked: \"Number of Interrupts\" is 8, and 16 would be enough"),
                 QStringLiteral("Enable TRNG: warning: TRNG never interrupts: its interrupt 16 is "
                                "masked: \"Number of Interrupts\" is 8, and 32 would be enough")}));
    const Run header = run({QStringLiteral("registers"), file, QStringLiteral("--c-header")});
    QVERIFY(
        header.out.contains(QLatin1String("/* SPI_IRQ is left out: its interrupt 8 is masked")));
    QVERIFY(!header.out.contains(QLatin1String("#define SPI_IRQ")));
    QVERIFY(!header.out.contains(QLatin1String("#define TRNG_IRQ")));
    QVERIFY(header.out.contains(QLatin1String("#define UART0_IRQ")));
    const Run table = run({QStringLiteral("registers"), file});
    QVERIFY2(table.err.contains(QLatin1String("SPI never interrupts: its interrupt 8 is masked")),
             qPrintable(table.err));
    const QJsonObject json =
        run({QStringLiteral("registers"), file, QStringLiteral("--json")}).json();
    for (const QJsonValue &value : json.value(QLatin1String("peripherals")).toArray()) {
        const QJsonObject instance =
            value.toObject().value(QLatin1String("instances")).toArray().at(0).toObject();
        const QString name = instance.value(QLatin1String("name")).toString();
        const bool isMasked = name == QLatin1String("SPI") || name == QLatin1String("SYS");
        QCOMPARE(instance.contains(QLatin1String("maskedInterrupt")), isMasked);
        QCOMPARE(instance.value(QLatin1String("interrupt")).toString().isEmpty(), isMasked);
    }
    QCOMPARE(json.value(QLatin1String("otherInterrupts")).toArray().size(), 2);
}

void tst_Cli::generatesVhdl()
{
    const QByteArray options =
        "Enable%20GPIO=true\nEnabel%20GPIO%20IO=true\nITCM_Size=1\nDTCM_Size=0\n";
    const Run result =
        run({QStringLiteral("generate"), config(options + "LANG=1\n"), QStringLiteral("--json"),
             QStringLiteral("--out"), QStringLiteral("ip")});
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QCOMPARE(
        result.json().value(QLatin1String("outputs")).toArray(),
        QJsonArray::fromStringList({path("ip/tarvo_orix_m1.vhd"), path("ip/tarvo_orix_m1_tmp.vhd"),
                                    path("ip/tarvo_orix_m1.vho"), path("ip/tarvo_orix_m1.vo")}));
    QCOMPARE(TestSupport::entriesOf(path("ip")),
             words({"tarvo_orix_m1.vhd", "tarvo_orix_m1.vho", "tarvo_orix_m1.vo",
                    "tarvo_orix_m1_tmp.vhd", "temp"}));
    QCOMPARE(result.json().value(QLatin1String("libraries")).toArray(),
             QJsonArray{QDir::cleanPath(
                 QStringLiteral(TARVO_IP_DATA_DIR "/../primitives/primitives.vhd"))});
    // The Verilog model is the one that Verilog outputs come with.
    QCOMPARE(run({QStringLiteral("generate"), config(options)}).status, 0);
    QCOMPARE(TestSupport::contentsOf(path("ip/tarvo_orix_m1.vo")),
             TestSupport::contentsOf(path("tarvo_orix_m1.vo")));

    // The VHDL model is complete.
    QDir(m_dir->path()).mkdir(QStringLiteral("work"));
    const QString work = QLatin1String("--workdir=") + path("work");
    for (const QStringList &command :
         {QStringList{QStringLiteral("-a"), work, path("ip/tarvo_orix_m1.vho")},
          QStringList{QStringLiteral("-r"), work, QStringLiteral("Tarvo_ORIX_M1_Top"),
                      QStringLiteral("--no-run")}}) {
        QProcess ghdl;
        ghdl.setProcessChannelMode(QProcess::MergedChannels);
        ghdl.start(QStringLiteral("ghdl"), command);
        QVERIFY(ghdl.waitForFinished(240000));
        const QByteArray output = ghdl.readAll();
        QVERIFY2(ghdl.exitCode() == 0 && output.isEmpty(), output.constData());
    }
}

void tst_Cli::checkFindsNothingInTheExample()
{
    const Run result = run(words({"check", TARVO_EXAMPLES_DIR "/sensor-node.ipc"}));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out, QString());
}

void tst_Cli::checkListsFindings()
{
    config("Enable%20GPIO%20IO=true\nITCM_Size=6\nDTCM_Size=6\nEnable%20RTC=maybe\n");
    const Run text = run(words({"check", "config.ipc"}));
    QCOMPARE(text.status, 1);
    QCOMPARE(text.out.split(u'\n', Qt::SkipEmptyParts),
             (QStringList{QStringLiteral("config.ipc:Enable GPIO IO: warning: unknown key; the "
                                         "nearest known one is \"Enabel GPIO IO\""),
                          QStringLiteral("config.ipc:Enable RTC: error: \"maybe\" is no bool"),
                          QStringLiteral("config.ipc:DTCM_Size: error: both memories have the "
                                         "device's largest size, 64 KB; one may "
                                         "have 16 KB at most then")}));
    const Run json = run(words({"check", "config.ipc", "--json"}));
    QCOMPARE(json.status, 1);
    QCOMPARE(json.json().value(QLatin1String("findings")).toArray().size(), 3);
    QCOMPARE(json.json().value(QLatin1String("findings")).toArray().first().toObject().keys(),
             words({"key", "message", "severity"}));

    // Doubts alone are no failure.
    config("Enable%20GPIO%20IO=true\n");
    QCOMPARE(run(words({"check", "config.ipc"})).status, 0);

    QVERIFY(TestSupport::write(
        path("frame.ipc"),
        "[General]\ntype=other\nversion=1.0\nauthor=me\n[Extra]\na=1\n[Config]\n"));
    const QString frame = run(words({"check", "frame.ipc"})).out;
    for (const char *line :
         {"target_device: error", "type: warning", "author: warning", "[Extra]: warning"})
        QVERIFY2(frame.contains(QString::fromLatin1(line)), line);
}

void tst_Cli::checkChangesNothing()
{
    const QString file = config("Enable%20GPIO%20IO=true\n");
    const QByteArray before = TestSupport::contentsOf(file);
    run({QStringLiteral("check"), file});
    QCOMPARE(TestSupport::contentsOf(file), before);
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"config.ipc"}));
}

void tst_Cli::optionsListEveryKey()
{
    const Run text = run(words({"options"}));
    const QJsonArray list =
        run(words({"options", "--json"})).json().value(QLatin1String("options")).toArray();
    QCOMPARE(text.status, 0);
    QCOMPARE(list.size(), optionTable().size());
    for (int i = 0; i < list.size(); ++i) {
        QCOMPARE(list.at(i).toObject().value(QLatin1String("key")).toString(),
                 optionTable().at(i).key);
        QVERIFY(text.out.contains(u'\n' + optionTable().at(i).key + u' '));
    }
    QVERIFY(text.out.contains(QLatin1String("its dialog starts with 256\n")));
    QStringList differing;
    for (const QJsonValue &option : list) {
        if (option.toObject().contains(QLatin1String("dialogDefault")))
            differing.append(option.toObject().value(QLatin1String("key")).toString());
    }
    QCOMPARE(differing, words({"Enabel GPIO IO", "CAN_BUFFER_DEPTH", "ETHERNET_INPUT_DELAY",
                               "ETHERNET_CLOCK_DIVIDER", "Enable I2C IO"}));
}

void tst_Cli::devicesCanBeNarrowed()
{
    const QJsonArray all =
        run(words({"devices", "--json"})).json().value(QLatin1String("devices")).toArray();
    QCOMPARE(all.size(), DEV::DeviceDb::bundled().devices().size());
    const QJsonArray some = run(words({"devices", "--json", "--series", "TV2KLR"}))
                                .json()
                                .value(QLatin1String("devices"))
                                .toArray();
    QVERIFY(!some.isEmpty() && some.size() < all.size());
    for (const QJsonValue &value : some)
        QCOMPARE(value.toObject().value(QLatin1String("device")).toString(),
                 QStringLiteral("TV2KLR-18C"));
    const Run text = run(words({"devices", "--series", "TV2KLR"}));
    QCOMPARE(text.out.count(u'\n'), some.size() + 1);
}

void tst_Cli::sourcesMatchGeneration()
{
    const QString file = config("Enable%20Debug=false\n");
    const Run listed = run({QStringLiteral("sources"), file});
    QCOMPARE(listed.status, 0);
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), words({"config.ipc"}));
    const QJsonArray generated = run({QStringLiteral("generate"), file,
                                      QStringLiteral("--no-synth"), QStringLiteral("--json")})
                                     .json()
                                     .value(QLatin1String("sources"))
                                     .toArray();
    QStringList sources;
    for (const QJsonValue &value : generated)
        sources.append(value.toString());
    QCOMPARE(listed.out.split(u'\n', Qt::SkipEmptyParts), sources);

    // In another folder the include files stand there.
    const QStringList elsewhere{QStringLiteral("--out"), QStringLiteral("else/where")};
    const Run there = run(QStringList{QStringLiteral("sources"), file} + elsewhere);
    const QJsonArray generatedThere =
        run(QStringList{QStringLiteral("generate"), file, QStringLiteral("--no-synth"),
                        QStringLiteral("--json")} +
            elsewhere)
            .json()
            .value(QLatin1String("sources"))
            .toArray();
    QCOMPARE(QJsonArray::fromStringList(there.out.split(u'\n', Qt::SkipEmptyParts)),
             generatedThere);
    QVERIFY(there.out.contains(path("else/where/temp/tv_orix_m1/cm1_option_defs.v\n")));
    for (const QString &source : sources)
        QVERIFY2(QFileInfo::exists(source), qPrintable(source));
}

void tst_Cli::anOwnDebugEntryOfTheDescriptorCountsForNothing()
{
    QJsonObject descriptor =
        QJsonDocument::fromJson(
            TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec")))
            .object();
    descriptor.insert(QStringLiteral("debug"), path("elsewhere"));
    descriptor.insert(QStringLiteral("no_debug"), path("elsewhere"));
    QVERIFY(
        TestSupport::write(path("own/tarvo_orix_m1.ipspec"), QJsonDocument(descriptor).toJson()));
    for (const char *file : {"own/data/debug/a.v", "own/data/no_debug/b.v", "elsewhere/c.v"})
        QVERIFY(TestSupport::write(path(file), "\n"));
    for (const bool debug : {true, false}) {
        const Run result =
            run({QStringLiteral("--data"), QStringLiteral("own"), QStringLiteral("sources"),
                 config(debug ? "" : "Enable%20Debug=false\n")});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out.section(u'\n', 0, 0),
                 path(debug ? "own/data/debug/a.v" : "own/data/no_debug/b.v"));
        QVERIFY(!result.out.contains(QLatin1String("elsewhere")));
    }
}

void tst_Cli::anOwnDeviceFolderCounts()
{
    QVERIFY(TestSupport::write(path("dev/packages.json"), R"({"packageCodes": {"BGA1": "B1"}})"));
    QVERIFY(TestSupport::write(
        path("dev/own.json"),
        R"({"devices": [{"device": "TV8-1A", "version": "A", "packages": ["BGA1"], "speeds": ["C1"]}]})"));
    const Run own = run(words({"--devices", "dev", "devices"}));
    QCOMPARE(own.status, 0);
    QVERIFY(own.out.contains(QLatin1String("TV8-1A-BGA1-C1")) &&
            own.out.contains(QLatin1String("TV8-LV1B1C1")));
    QVERIFY(!own.out.contains(QLatin1String("TV2K")));
    QVERIFY(TestSupport::write(path("dev/own.json"), "{"));
    const Run broken = run(words({"--devices", "dev", "devices"}));
    QCOMPARE(broken.status, 3);
    QVERIFY2(broken.err.contains(QLatin1String("own.json")), qPrintable(broken.err));
}

void tst_Cli::pinsAreThePortsOfTheNetlist_data()
{
    QTest::addColumn<QString>("configuration");
    for (const char *name : {"small-tv1kl-5a", "external-memories-tv5klrt-15a", "mii-tv3kr-20a",
                             "ddr3-tv5k-60b", "psram-tv2klr-18c", "tv5krt-15a", "tv5klt-15a"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Cli::pinsAreThePortsOfTheNetlist()
{
    QFETCH(QString, configuration);
    const QString file =
        QStringLiteral(TARVO_GOLDEN_DIR "/") + configuration + QLatin1String("/config.ipc");
    const Run listed = run({QStringLiteral("pins"), file, QStringLiteral("--json")});
    QCOMPARE(listed.status, 0);
    QMap<QString, QString> pins; // name to direction and range
    const QJsonArray list = listed.json().value(QLatin1String("pins")).toArray();
    for (const QJsonValue &value : list) {
        const QString label = value.toObject().value(QLatin1String("name")).toString().trimmed();
        const QString range =
            label.mid(label.indexOf(u'[') < 0 ? label.size() : label.indexOf(u'['));
        pins.insert(
            label.chopped(range.size()),
            QString(value.toObject().value(QLatin1String("direction")).toString() + u' ' + range)
                .trimmed());
    }
    QCOMPARE(pins.size(), list.size());

    const Run generated =
        run({QStringLiteral("generate"), file, QStringLiteral("--out"), QStringLiteral("out")});
    QVERIFY2(generated.status == 0, qPrintable(generated.err));
    QMap<QString, QString> ports;
    const QRegularExpression port(QStringLiteral("^ +\\.(\\w+)\\(.*// ((input|output|inout).*)$"));
    for (const QByteArray &line :
         TestSupport::contentsOf(path("out/tarvo_orix_m1_tmp.v")).split('\n')) {
        const auto match = port.match(QString::fromUtf8(line));
        if (match.hasMatch())
            ports.insert(match.captured(1), match.captured(2));
    }
    QCOMPARE(ports, pins);
}

void tst_Cli::registersOfAConfiguration()
{
    const QString file = config("Enable%20UART1=true\nEnable%20GPIO=true\n");
    const Run table = run({QStringLiteral("registers"), file});
    QCOMPARE(table.status, 0);
    QVERIFY(
        table.out.contains(QLatin1String("0x5000500C  UART1.BAUDDIV    0x00000010  Bit time.")));
    QVERIFY(!table.out.contains(QLatin1String("UART0")));
    QVERIFY(!table.out.contains(QLatin1String("WDOG")));

    const Run object = run({QStringLiteral("registers"), file, QStringLiteral("--json")});
    QCOMPARE(object.status, 0);
    const QJsonArray peripherals = object.json().value(QLatin1String("peripherals")).toArray();
    QCOMPARE(peripherals.size(), 3); // with SYS, which any APB peripheral brings along
    const QJsonObject uart = peripherals.at(1).toObject();
    QCOMPARE(uart.value(QLatin1String("instances"))
                 .toArray()
                 .at(0)
                 .toObject()
                 .value(QLatin1String("base"))
                 .toDouble(),
             double(0x50005000));
    QCOMPARE(uart.value(QLatin1String("span")).toInt(), 0x1000);
    QCOMPARE(uart.value(QLatin1String("instances"))
                 .toArray()
                 .at(0)
                 .toObject()
                 .value(QLatin1String("description"))
                 .toString(),
             QStringLiteral("second serial line"));
    const auto fieldOf = [&uart](int entry, int field) {
        return uart.value(QLatin1String("registers"))
            .toArray()
            .at(entry)
            .toObject()
            .value(QLatin1String("fields"))
            .toArray()
            .at(field)
            .toObject();
    };
    QCOMPARE(fieldOf(0, 0).value(QLatin1String("readEffect")).toString(),
             QStringLiteral("external"));
    const QJsonObject over = fieldOf(1, 3);
    QVERIFY(!over.contains(QLatin1String("readEffect")));
    QCOMPARE(over.value(QLatin1String("writeEffect")).toString(), QStringLiteral("one-to-clear"));
    const QJsonObject lost = over.value(QLatin1String("values")).toArray().at(1).toObject();
    QCOMPARE(lost.value(QLatin1String("name")).toString(), QStringLiteral("YES"));
    QCOMPARE(lost.value(QLatin1String("value")).toInt(), 1);
    QCOMPARE(fieldOf(3, 0).value(QLatin1String("minimum")).toInt(), 16);

    const Run header = run({QStringLiteral("registers"), file, QStringLiteral("--c-header")});
    QCOMPARE(header.status, 0);
    QVERIFY(header.out.contains(QLatin1String("UART1_BASE")));
    QVERIFY(!header.out.contains(QLatin1String("UART0_BASE")));
    const Run document = run({QStringLiteral("registers"), QStringLiteral("--markdown")});
    QCOMPARE(document.status, 0);
    QVERIFY(document.out.contains(QLatin1String("## WDOG")));
    QCOMPARE(
        run({QStringLiteral("registers"), QStringLiteral("--markdown"), QStringLiteral("--json")})
            .status,
        2);
}

void tst_Cli::registersNeedADataFolderThatHasThem()
{
    QVERIFY(TestSupport::write(
        path("data/tarvo_orix_m1.ipspec"),
        TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"))));
    const Run run =
        this->run({QStringLiteral("registers"), QStringLiteral("--data"), path("data")});
    QCOMPARE(run.status, 3);
    QVERIFY2(run.err.contains(QLatin1String("data/registers\" holds no register descriptions")),
             qPrintable(run.err));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Cli)

#include "tst_cli.moc"
