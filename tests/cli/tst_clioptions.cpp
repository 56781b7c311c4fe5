#include <testsupport.h>

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <rules/check.h>
#include <rules/optionmeaning.h>
#include <rules/optionschema.h>
#include <rules/presets.h>
#include <rules/randomoptions.h>
#include <rules/upgrade.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <random>

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

const char *const usual = "TV2KR-18C-QFN88P-C8/I7";

QByteArray frame(const char *device = usual)
{
    return QByteArray("[General]\ntarget_device=") + device +
           "\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n";
}

} // namespace

// The commands on a configuration's options, as people run them, and what they stand on.
class tst_CliOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void getTellsWhereAValueComesFrom();
    void setWritesAndTellsWhatItMeans();
    void badSettingsChangeNothing();
    void whatChangesNothingIsNotWritten();
    void editingKeepsWhatElseTheFileHolds();
    void unsetRemovesAlsoWhatNobodyKnows();
    void minimizedItIsTheSame();
    void diffHasTheStatusOfDiff();
    void diffTellsWhatFollows();
    void gitShowsEveryVersion();
    void randomIsTheSameForASeed();
    void newBeginsWithAPreset();
    void upgradeTellsAndMends_data();
    void upgradeTellsAndMends();
    void upgradeKeepsEveryCopy();
    void theGuideIsRight();
    void theSchemaAgreesWithTheCheck();

private:
    QString path(const char *name) const { return m_dir->filePath(QString::fromUtf8(name)); }
    QByteArray contents(const char *name) const { return TestSupport::contentsOf(path(name)); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QVERIFY(TestSupport::write(path(name), bytes));
    }
    Run run(const QStringList &arguments) const { return run(TARVO_COMMAND, arguments); }
    Run run(const char *program, const QStringList &arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_dir->path());
        process.start(QString::fromUtf8(program), arguments);
        if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_CliOptions::getTellsWhereAValueComesFrom()
{
    write("a.ipc", frame() + "\n[Config]\nEnable%20UART0=TRUE\n");
    const Run told = run(words({"get", "a.ipc", "Enable UART0", "ITCM_Size", "Enabel GPIO IO"}));
    QCOMPARE(told.status, 0);
    QCOMPARE(told.out, QStringLiteral("Enable UART0=true     file\n"
                                      "ITCM_Size=5           device\n"
                                      "Enabel GPIO IO=false  default; its dialog takes true\n"));
    QCOMPARE(run(words({"get", "a.ipc", "ITCM_Size", "--value"})).out, QStringLiteral("5\n"));
    QCOMPARE(
        run(words({"get", "a.ipc", "--json"})).json()[QStringLiteral("options")].toArray().size(),
        optionTable().size());
    const Run unknown = run(words({"get", "a.ipc", "ITCM_Sise"}));
    QCOMPARE(unknown.status, 2);
    QVERIFY2(unknown.err.contains(QLatin1String("\"ITCM_Size\"")), qPrintable(unknown.err));
}

void tst_CliOptions::setWritesAndTellsWhatItMeans()
{
    write("a.ipc", frame() + "\n[Config]\nITCM_Size=4\n");
    const Run set = run(words({"set", "a.ipc", "DTCM_Size=3", "Enable GPIO=true"}));
    QCOMPARE(set.status, 0);
    QCOMPARE(set.out, QStringLiteral("DTCM_Size: 5 (default of the device) -> 3\n"
                                     "Enable GPIO: false (default) -> true\n"));
    QVERIFY2(set.err.contains(QLatin1String("Enabel GPIO IO: warning")), qPrintable(set.err));
    QCOMPARE(contents("a.ipc"),
             QByteArray(frame() + "\n[Config]\nDTCM_Size=3\nEnable%20GPIO=true\nITCM_Size=4\n"));
    run(words({"unset", "a.ipc", "DTCM_Size", "Enable GPIO"}));
    QCOMPARE(contents("a.ipc"), QByteArray(frame() + "\n[Config]\nITCM_Size=4\n"));
}

void tst_CliOptions::badSettingsChangeNothing()
{
    const QByteArray before = frame() + "\n[Config]\nITCM_Size=4\n";
    write("a.ipc", before);
    const Run set = run(
        words({"set", "a.ipc", "DTCM_Size=3", "Enable UART0=maybe", "Ennable SPI=1", "--json"}));
    QCOMPARE(set.status, 2);
    QCOMPARE(set.json()[QStringLiteral("errors")].toArray().size(), 2);
    QVERIFY(set.err.contains(QLatin1String("\"maybe\" is no value of \"Enable UART0\"")));
    QVERIFY(set.err.contains(QLatin1String("\"Enable SPI\"")));
    QCOMPARE(contents("a.ipc"), before);
}

void tst_CliOptions::whatChangesNothingIsNotWritten()
{
    // Not in the form in which it would be written.
    const QByteArray before = frame() + "[Config]\n\nITCM_Size=4\nDTCM_Size=3\n";
    write("a.ipc", before);
    for (const QStringList &command :
         {words({"set", "a.ipc", "ITCM_Size=4"}), words({"unset", "a.ipc", "Enable SPI"}),
          words({"minimize", "a.ipc"}), words({"upgrade", "a.ipc", "--fix"})}) {
        const Run result = run(command);
        QVERIFY2(result.status == 0, qPrintable(result.err));
        QCOMPARE(contents("a.ipc"), before);
    }
    QCOMPARE(TestSupport::entriesOf(m_dir->path()), QStringList{QStringLiteral("a.ipc")});
}

void tst_CliOptions::editingKeepsWhatElseTheFileHolds()
{
    write("a.ipc", "; of the board\n" + frame() +
                       "owner=me\n[Config]\n; small\nITCM_Size=4\nsomebody=else\n[notes]\nx=1\n");
    QCOMPARE(run(words({"set", "a.ipc", "ITCM_Size=3"})).status, 0);
    QCOMPARE(contents("a.ipc"),
             QByteArray("; of the board\n[General]\nowner=me\ntarget_device=") + usual +
                 "\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n; small\nITCM_Size=3\n"
                 "somebody=else\n\n[notes]\nx=1\n");
}

void tst_CliOptions::unsetRemovesAlsoWhatNobodyKnows()
{
    write("a.ipc", frame() + "\n[Config]\nITCM_Size=4\nsomebody=else\n");
    QCOMPARE(run(words({"unset", "a.ipc", "nobody"})).status, 2);
    QCOMPARE(run(words({"unset", "a.ipc", "somebody"})).status, 0);
    QCOMPARE(contents("a.ipc"), QByteArray(frame() + "\n[Config]\nITCM_Size=4\n"));
}

void tst_CliOptions::minimizedItIsTheSame()
{
    const QByteArray before =
        frame() + "\n[Config]\nEnabel%20GPIO%20IO=false\nEnable%20SPI=false\nITCM_Size=5\n";
    write("a.ipc", before);
    write("b.ipc", before);
    QCOMPARE(run(words({"minimize", "a.ipc", "--dry-run"})).status, 0);
    QCOMPARE(contents("a.ipc"), before);
    QCOMPARE(run(words({"minimize", "a.ipc"})).status, 0);
    QCOMPARE(contents("a.ipc"), QByteArray(frame() + "\n[Config]\nEnabel%20GPIO%20IO=false\n"));
    const Run diff = run(words({"diff", "a.ipc", "b.ipc"}));
    QCOMPARE(diff.status, 0);
    QCOMPARE(diff.out, QString());
}

void tst_CliOptions::diffHasTheStatusOfDiff()
{
    write("a.ipc", frame());
    write("b.ipc", frame() + "\n[Config]\nEnable%20UART0=true\n");
    write("c.ipc", frame() + "note=1\n");
    write("d.ipc", frame("TV9"));
    QCOMPARE(run(words({"diff", "a.ipc", "a.ipc"})).status, 0);
    QCOMPARE(run(words({"diff", "a.ipc", "b.ipc"})).status, 1);
    QCOMPARE(run(words({"diff", "a.ipc", "c.ipc"})).status, 1);
    QCOMPARE(run(words({"diff", "a.ipc", "b.ipc", "--json"})).status, 1);
    QCOMPARE(run(words({"diff", "a.ipc"})).status, 2);
    QCOMPARE(run(words({"diff", "a.ipc", "d.ipc"})).status, 3);
    QCOMPARE(run(words({"diff", "a.ipc", "none.ipc"})).status, 3);
    const Run full = run(
        "/bin/sh",
        {QStringLiteral("-c"),
         QStringLiteral("\"%1\" diff a.ipc b.ipc >/dev/full").arg(QStringLiteral(TARVO_COMMAND))});
    QCOMPARE(full.status, 3);
    QCOMPARE(full.err.count(QLatin1String("could not be written")), 1);
}

void tst_CliOptions::diffTellsWhatFollows()
{
    write("a.ipc", frame() + "\n[Config]\nDTCM_Size=3\n");
    write("b.ipc", frame() + "\n[Config]\nDTCM_Size=4\nEnable%20UART0=true\n");
    const Run text = run(words({"diff", "a.ipc", "b.ipc"}));
    for (const char *line : {"--- a.ipc\n+++ b.ipc\nOptions\n  ~ DTCM_Size: 3 -> 4\n",
                             "  ~ Enable UART0: false (default) -> true\n", "Address map\n",
                             "  ~ DTCM: last 0x20001FFF -> 0x20003FFF\n", "  + UART0: base 0x",
                             "  + UART0TXD: ", "  + UART0.", "Interrupts\n"})
        QVERIFY2(text.out.contains(QString::fromLatin1(line)), qPrintable(text.out));
    QVERIFY2(text.out.contains(QLatin1String("\nResources, estimated\n  ~ LUT4: ")),
             qPrintable(text.out));
    QVERIFY2(text.out.contains(QLatin1String("  ~ Block RAM: ")), qPrintable(text.out));
    const QJsonObject json = run(words({"diff", "a.ipc", "b.ipc", "--json"})).json();
    QCOMPARE(json[QStringLiteral("equal")].toBool(true), false);
    QCOMPARE(json[QStringLiteral("options")].toArray().size(), 2);
    const QJsonObject changes = json[QStringLiteral("changes")].toObject();
    QCOMPARE(changes.keys(), words({"interrupts", "ports", "regions", "registers"}));
    const QJsonArray resources = json[QStringLiteral("resources")].toArray();
    QVERIFY(!resources.isEmpty());
    for (const QJsonValue &value : resources) {
        const QJsonObject resource = value.toObject();
        QCOMPARE(resource.keys(), words({"after", "before", "resource"}));
        QVERIFY(resource[QStringLiteral("before")] != resource[QStringLiteral("after")]);
    }
}

void tst_CliOptions::gitShowsEveryVersion()
{
    write("a.ipc", frame() + "\n[Config]\nITCM_Size=4\n");
    write("old.ipc", "[General]\nversion=0.9\n");
    write("odd.ipc", frame("TV9"));
    const Run shown = run(words({"show", "a.ipc"}));
    QCOMPARE(shown.status, 0);
    QVERIFY(!shown.out.contains(m_dir->path()));
    for (const char *line : {"  ITCM_Size = 4\n", "  DTCM_Size = 5 (default of the device)\n",
                             "  ITCM: base 0x00000000, last 0x00003FFF"})
        QVERIFY2(shown.out.contains(QString::fromLatin1(line)), qPrintable(shown.out));
    QCOMPARE(run(words({"show", "old.ipc"})).status, 3);
    const Run old = run(words({"show", "--textconv", "old.ipc"}));
    QCOMPARE(old.status, 0);
    QCOMPARE(old.out, QString::fromUtf8(contents("old.ipc")));
    const Run odd = run(words({"show", "--textconv", "odd.ipc"}));
    QCOMPARE(odd.status, 0);
    QVERIFY(odd.out.contains(QLatin1String("TV9, which is not known")));
}

void tst_CliOptions::randomIsTheSameForASeed()
{
    const auto draw = [this](const char *seed, const char *name) {
        return run(words({"random", "--device", usual, "--seed", seed, "--out", name})).status;
    };
    QCOMPARE(draw("7", "a.ipc"), 0);
    QCOMPARE(draw("7", "b.ipc"), 0);
    QCOMPARE(draw("8", "c.ipc"), 0);
    QCOMPARE(draw("7", "a.ipc"), 1);
    QCOMPARE(contents("a.ipc"), contents("b.ipc"));
    QVERIFY(contents("a.ipc") != contents("c.ipc"));
    QCOMPARE(run(words({"check", "a.ipc", "--json"})).status, 0);
}

void tst_CliOptions::newBeginsWithAPreset()
{
    QCOMPARE(run(words({"new", "--device", usual, "--preset", "sensor-node", "--set",
                        "Enable SPI=false", "--out", "."}))
                 .status,
             0);
    const Run got = run(words({"get", "tarvo_orix_m1.ipc", "Enable I2C", "Enable SPI", "--value"}));
    QCOMPARE(got.out, QStringLiteral("true\nfalse\n"));
    const Run unknown =
        run(words({"new", "--device", usual, "--preset", "sensornode", "--out", "x"}));
    QCOMPARE(unknown.status, 2);
    QVERIFY2(unknown.err.contains(QLatin1String("Did you mean \"sensor-node\"?")),
             qPrintable(unknown.err));
    const Run unfit = run(words({"new", "--device", "TV1KL-5A", "--package", "QFN48", "--preset",
                                 "gateway", "--out", "x"}));
    QCOMPARE(unfit.status, 2);
    const QStringList lines = run(words({"presets"})).out.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), presetNames().size());
}

void tst_CliOptions::upgradeTellsAndMends_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QStringList>("told");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<bool>("left");
    const auto row = [](const char *name, const QByteArray &before, const QStringList &told,
                        const QByteArray &after, bool left = false) {
        QTest::newRow(name) << before << told << after << left;
    };
    const auto option = [&row](const char *name, const char *before, const char *told,
                               const char *after, bool left = false) {
        row(name, frame() + "\n[Config]\n" + before, words({told}),
            *after ? frame() + "\n[Config]\n" + after : frame(), left);
    };
    option("a misspelt key", "Enable%20GPIO%20IO=true\n",
           "Enable GPIO IO: is no option; becomes \"Enabel GPIO IO\"", "Enabel%20GPIO%20IO=true\n");
    option("another number in a key", "Enable%20UART2=true\n",
           "Enable UART2: is no option; is left; \"unset\" removes it, and the nearest option, "
           "\"Enable UART0\", is not set",
           "Enable%20UART2=true\n", true);
    option("a key beside the right one", "Enabel%20SPI=true\nEnable%20SPI=false\n",
           "Enabel SPI: is no option; is left; \"unset\" removes it, and the nearest option, "
           "\"Enable SPI\", is there already",
           "Enabel%20SPI=true\nEnable%20SPI=false\n", true);
    option("a switch in other words", "Enable%20SPI=on\n",
           "Enable SPI: is \"on\", not true or false; becomes true", "Enable%20SPI=true\n");
    option("a number above the range", "ETHERNET_CLOCK_DIVIDER=300\n",
           "ETHERNET_CLOCK_DIVIDER: is \"300\", not 0 to 255; becomes 255",
           "ETHERNET_CLOCK_DIVIDER=255\n");
    option("a size in kilobytes", "ITCM_Size=16 KB\n",
           "ITCM_Size: is \"16 KB\", not 0 to 9; becomes 4", "ITCM_Size=4\n");
    option("a number between the choices", "Number%20of%20Interrupts=24\n",
           "Number of Interrupts: is \"24\", not one of 1, 8, 16, 32; becomes 32",
           "Number%20of%20Interrupts=32\n");
    option("a choice in other letters", "Debug%20Port%20Select=jtag\n",
           "Debug Port Select: is \"jtag\", not one of JTAG, Serial Wire, JTAG and Serial Wire; "
           "becomes \"JTAG\"",
           "Debug%20Port%20Select=JTAG\n");
    option("a depth between the choices", "CAN_BUFFER_DEPTH=100\n",
           "CAN_BUFFER_DEPTH: is \"100\", not one of ", "CAN_BUFFER_DEPTH=128\n");
    option("nothing that is meant", "OS%20Extension=perhaps\n",
           "OS Extension: is \"perhaps\", not true or false; is removed, which means true", "");
    option("the folder of the author", "createin_path=/x\n",
           "createin_path: is ignored: the folder of the file counts; is removed", "");
    option("a memory that is too large", "ITCM_Size=9\n", "ITCM_Size: does not fit TV2KR-18C",
           "DTCM_Size=4\nITCM_Size=6\n");
    row("an option outside", frame() + "ITCM_Size=3\n",
        words({"ITCM_Size: is outside of the group [Config], where nothing reads it; is moved"}),
        frame() + "\n[Config]\nITCM_Size=3\n");
    row("a value without sense where a misspelt key has another",
        frame() + "\n[Config]\nEnable%20GPIO=ture\nenable%20gpio=true\n",
        words({"Enable GPIO: is \"ture\", not true or false; is removed",
               "enable gpio: is no option; becomes \"Enable GPIO\""}),
        frame() + "\n[Config]\nEnable%20GPIO=true\n");
    row("texts of which one looks like no text",
        frame() + "\n[Config]\nITCM_Initialization_Path=a, @b\n",
        words({"ITCM_Initialization_Path: is several texts with commas between them; becomes "
               "\"a, @b\""}),
        frame() + "\n[Config]\nITCM_Initialization_Path=\"a, @b\"\n");
    row("another version", frame().replace("1.0", "0.9"),
        words({"version: is \"0.9\", a format that is not known; becomes \"1.0\""}), frame());
    row("nothing but the device", QByteArray("[General]\ntarget_device=") + usual + '\n',
        words({"version: is missing; becomes \"1.0\"",
               "type: is missing; becomes \"tarvo.tarvo_orix_m1\""}),
        frame());
    row("the older form of the device",
        "[General]\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n[device]\nid=" + QByteArray(usual) +
            "\n",
        words({"target_device: is missing: the group [device] is an older form; becomes",
               "device/id: is an older form of \"target_device\"; is removed"}),
        frame());
    row("a device in small letters", frame("tv2kr-18c-qfn88p-c8/i7"),
        words({"target_device: is \"tv2kr-18c-qfn88p-c8/i7\", a device that is not known; becomes "
               "\"TV2KR-18C-QFN88P-C8/I7\""}),
        frame());
    row("a device that is gone", frame("TV2KR-18D-QFN88P-C8/I7"),
        words({"target_device: is \"TV2KR-18D-QFN88P-C8/I7\", a device that is not known; name one "
               "with --device; the nearest known one is \"TV2KR-18"}),
        frame("TV2KR-18D-QFN88P-C8/I7"), true);
}

void tst_CliOptions::upgradeTellsAndMends()
{
    QFETCH(QByteArray, before);
    QFETCH(QStringList, told);
    QFETCH(QByteArray, after);
    QFETCH(bool, left);
    write("a.ipc", before);
    const Run dry = run(words({"upgrade", "a.ipc", "--dry-run"}));
    QCOMPARE(dry.status, 1);
    QCOMPARE(contents("a.ipc"), before);
    for (const QString &line : told)
        QVERIFY2(dry.out.contains(QStringLiteral("a.ipc:") + line), qPrintable(dry.out));
    const Run mended = run(words({"upgrade", "a.ipc", "--fix"}));
    QCOMPARE(contents("a.ipc"), after);
    QCOMPARE(mended.status, left ? 1 : 0);
    QCOMPARE(contents("a.ipc.bak"), before == after ? QByteArray() : before);
    const Run again = run(words({"upgrade", "a.ipc"}));
    QCOMPARE(again.status, left ? 1 : 0);
}

void tst_CliOptions::upgradeKeepsEveryCopy()
{
    for (const char *size : {"10", "11", "12"}) {
        write("a.ipc", frame() + "\n[Config]\nETHERNET_CLOCK_DIVIDER=3" + size + '\n');
        QCOMPARE(run(words({"upgrade", "a.ipc", "--write"})).status, 0);
    }
    QVERIFY(contents("a.ipc.bak").contains("=310\n"));
    QVERIFY(contents("a.ipc.bak2").contains("=311\n"));
    QVERIFY(contents("a.ipc.bak3").contains("=312\n"));
    write("b.ipc", frame("TV2KR-18D-QFN88P-C8/I7"));
    QCOMPARE(run(words({"upgrade", "b.ipc", "--fix", "--device", usual})).status, 0);
    QCOMPARE(contents("b.ipc"), frame());
    write("c.ipc", frame().replace("tarvo_orix_m1", "lamp"));
    QCOMPARE(run(words({"upgrade", "c.ipc", "--fix"})).status, 3);
}

// The commands of the section are run one after the other, in a folder with what they name.
void tst_CliOptions::theGuideIsRight()
{
    const QString guide = QString::fromUtf8(TestSupport::contentsOf(
        QStringLiteral(TARVO_SOURCE_DIR) + QStringLiteral("/docs/user-guide.md")));
    const QString section = guide.section(QStringLiteral("\n## Work with options\n"), 1)
                                .section(QStringLiteral("\n## "), 0, 0);
    QCOMPARE(run(words({"new", "--device", usual, "--set", "Enable UART0=true", "--out", "my-ip"}))
                 .status,
             0);
    int commands = 0;
    const QStringList lines = section.split(u'\n');
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1String("orixm1 ")))
            continue;
        const Run result =
            run("/bin/sh",
                {QStringLiteral("-c"),
                 QStringLiteral("\"%1\" %2").arg(QStringLiteral(TARVO_COMMAND), line.mid(7))});
        QVERIFY2(result.status == 0 || (result.status == 1 && line.contains(QLatin1String("diff"))),
                 qPrintable(line + u'\n' + result.err));
        ++commands;
    }
    QVERIFY2(commands > 12, qPrintable(section));
}

void tst_CliOptions::theSchemaAgreesWithTheCheck()
{
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    std::mt19937 random(5);
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    QByteArray instances;
    int bad = 0;
    const auto add = [&](const DEV::DeviceArg &device, const OptionMap &options, bool isGood) {
        const QJsonObject instance{
            {QStringLiteral("device"), device.id()},
            {QStringLiteral("options"), QJsonObject::fromVariantMap(options)}};
        bad += !isGood;
        instances += (isGood ? "good " : "bad ") +
                     QJsonDocument(instance).toJson(QJsonDocument::Compact) + '\n';
    };
    for (int i = 0; i < 300; ++i) {
        const DEV::DeviceArg &device = devices.at((i * 7) % devices.size());
        OptionMap options = randomOptions(quint64(i), device);
        add(device, options, true);
        // Then something else in one of them, within its domain or not.
        const Option &option = optionTable().at(below(optionTable().size()));
        if (option.key == Key::initializeItcm || !option.isOption)
            continue;
        if (option.type == OptionType::Bool)
            options.insert(option.key, below(2) == 0);
        else if (option.type == OptionType::Int)
            options.insert(option.key,
                           option.choices.isEmpty() ? below(option.maximum + 20) - 5 : below(40));
        else if (!option.choices.isEmpty() && below(2) == 0)
            options.insert(option.key, QStringLiteral("odd"));
        const QVector<Finding> findings = checkOptions(options, device, QStringLiteral("/"));
        add(device, options,
            std::none_of(findings.begin(), findings.end(), [](const Finding &finding) {
                return finding.severity == Finding::Error;
            }));
    }
    // Each option just outside of its domain, and of another type.
    for (const Option &option : optionTable()) {
        if (option.choices.isEmpty() && option.type == OptionType::String)
            continue;
        const DEV::DeviceArg &device = devices.first();
        add(device, {{option.key, QStringLiteral("odd")}}, false);
        if (option.type == OptionType::Bool)
            add(device, {{option.key, 1}}, false);
        if (option.type == OptionType::Int && option.choices.isEmpty()) {
            add(device, {{option.key, option.minimum - 1}}, false);
            add(device, {{option.key, option.maximum + 1}}, false);
        }
    }
    add(devices.first(), {{QStringLiteral("nobody"), 1}}, false);
    QVERIFY(bad > 60);
    write("instances", instances);
    const Run schema = run(words({"schema"}));
    QCOMPARE(schema.status, 0);
    write("schema.json", schema.out.toUtf8());
    const Run judged = run(TARVO_PYTHON, {QStringLiteral(TARVO_SOURCE_DIR) +
                                              QStringLiteral("/tests/cli/checkschema.py"),
                                          path("schema.json"), path("instances")});
    QVERIFY2(judged.status == 0, qPrintable(judged.out.left(2000) + judged.err));

    // With one device the id may be left out.
    const Run one = run(words({"schema", "--device", usual}));
    QCOMPARE(one.status, 0);
    write("one.json", one.out.toUtf8());
    write("few", "good {\"options\":{}}\nbad {\"options\":{\"ITCM_Size\":7}}\n"
                 "bad {\"device\":\"TV9\",\"options\":{}}\nbad {}\n");
    QCOMPARE(run(TARVO_PYTHON,
                 {QStringLiteral(TARVO_SOURCE_DIR) + QStringLiteral("/tests/cli/checkschema.py"),
                  path("one.json"), path("few")})
                 .out,
             QString());
}

TARVO_TEST_MAIN(QCoreApplication, tst_CliOptions)

#include "tst_clioptions.moc"
