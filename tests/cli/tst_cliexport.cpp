#include <smalldisk.h>
#include <testsupport.h>
#include <unprivileged.h>

#include <QDateTime>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Run {
    int status = -1;
    QString out;
    QString err;

    QJsonObject json() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
    QStringList lines() const { return out.split(u'\n', Qt::SkipEmptyParts); }
};

QStringList words(std::initializer_list<const char *> list)
{
    QStringList result;
    for (const char *word : list)
        result.append(QString::fromUtf8(word));
    return result;
}

QMap<QString, QByteArray> filesOf(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden | QDir::System,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        files.insert(path.mid(folder.size() + 1), TestSupport::contentsOf(path));
    }
    return files;
}

QStringList textsOf(const QJsonArray &array)
{
    QStringList texts;
    for (const QJsonValue &value : array)
        texts.append(value.toString());
    return texts;
}

const char *const example = TARVO_EXAMPLES_DIR "/sensor-node.ipc";
const QString manifest = QStringLiteral("orixm1-export.json");
const QString header = QStringLiteral("tarvo_orix_m1.h");

} // namespace

// "orixm1 export" as people run it: as a process.
class tst_CliExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_environment = QProcessEnvironment::systemEnvironment();
    }

    void wrongUsageIsStatusTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        QTest::newRow("nothing") << QStringList()
                                 << QStringLiteral(
                                        "A configuration FILE is required; \"orixm1 export "
                                        "--list\" lists the formats");
        QTest::newRow("no folder") << words({example}) << QStringLiteral("--out DIR is required");
        QTest::newRow("no folder to check")
            << words({example, "--check"}) << QStringLiteral("--out DIR is required");
        QTest::newRow("a folder without a name")
            << words({example, "--out", ""}) << QStringLiteral("--out DIR is required");
        QTest::newRow("an unknown format") << words({example, "--out", "x", "svg"})
                                           << QStringLiteral("Unknown format \"svg\"; there are: ");
        QTest::newRow("an unknown format among others")
            << words({example, "header", "Header", "--out", "x"})
            << QStringLiteral("Unknown format \"Header\"; there are: ");
        QTest::newRow("the list and a check")
            << words({"--list", "--check"}) << QStringLiteral("--list excludes --check");
    }

    void wrongUsageIsStatusTwo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const Run result = run(arguments);
        QCOMPARE(result.status, 2);
        QVERIFY2(result.err.contains(message), qPrintable(result.err));
        if (message.contains(QLatin1String("there are")))
            QVERIFY(result.err.contains(formats().join(QLatin1String(", "))));
        QVERIFY(TestSupport::entriesOf(m_dir->path()).isEmpty());
    }

    void theDatasheetTellsWhatANetlistUses()
    {
        const QByteArray netlist =
            "module Tarvo_ORIX_M1_Top(HCLK);\n  input HCLK;\n"
            "  TV_LUT4 #(.INIT(16'h1)) a(.O(x));\n  TV_LUT2 b(.O(y));\n  TV_DFFC c(.Q(z));\n"
            "  CortexM1Core u_core(.HCLK(HCLK));\nendmodule\n"
            "(* blackbox *)\nmodule CortexM1Core(HCLK);\n  input HCLK;\nendmodule\n";
        const QString file = m_dir->filePath(QStringLiteral("net.v"));
        QVERIFY(TestSupport::write(file, netlist));
        const QString datasheet = m_dir->filePath(QStringLiteral("out/datasheet/tarvo_orix_m1.md"));
        const QStringList plain = words({example, "datasheet", "--out", "out"});
        const QStringList counted = plain + words({"--netlist", "net.v"});

        QCOMPARE(run(plain).status, 0);
        QVERIFY(TestSupport::contentsOf(datasheet).contains("| LUT4 | not known |"));
        const Run made = run(counted);
        QVERIFY2(made.status == 0, qPrintable(made.err));
        const QByteArray text = TestSupport::contentsOf(datasheet);
        QVERIFY(text.contains("| LUT4 | 2 | 18000 |"));
        QVERIFY(text.contains("| Flip-flops | 1 | 18000 |"));
        QVERIFY(text.contains("Not counted are the contents of black boxes: 1 CortexM1Core."));
        QCOMPARE(run(counted + words({"--check"})).status, 0);
        QCOMPARE(run(plain + words({"--check"})).status, 1);
    }

    void refusesOtherNetlists_data()
    {
        QTest::addColumn<QByteArray>("netlist");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no file") << QByteArray() << QStringLiteral("net.v");
        QTest::newRow("no Verilog")
            << QByteArray("entity x is end;")
            << QStringLiteral("net.v\" cannot be counted: it holds no module "
                              "\"Tarvo_ORIX_M1_Top\" in Verilog.");
        QTest::newRow("cut") << QByteArray("module Tarvo_ORIX_M1_Top(HCLK);\n  TV_LUT2 b(.O(y));\n"
                                           "endmodule\nmodule x(")
                             << QStringLiteral("net.v\" cannot be counted: its end is missing.");
        QTest::newRow("other black boxes")
            << QByteArray("module Tarvo_ORIX_M1_Top(HCLK);\n  CortexM1Core u(.HCLK(HCLK));\n"
                          "  can_core v(.HCLK(HCLK));\nendmodule\n")
            << QStringLiteral("net.v\" is no netlist of this configuration: its black boxes are "
                              "CortexM1Core, can_core, and not CortexM1Core.");
        QTest::newRow("contains itself")
            << QByteArray("module Tarvo_ORIX_M1_Top(HCLK);\n  Tarvo_ORIX_M1_Top u(.HCLK(HCLK));\n"
                          "endmodule\n")
            << QStringLiteral("the module \"Tarvo_ORIX_M1_Top\" contains itself");
    }

    void refusesOtherNetlists()
    {
        QFETCH(QByteArray, netlist);
        QFETCH(QString, reason);
        if (!netlist.isNull())
            QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("net.v")), netlist));
        const Run result = run(words({example, "datasheet", "--out", "out", "--netlist", "net.v"}));
        QCOMPARE(result.status, 3);
        QVERIFY2(result.err.contains(reason), qPrintable(result.err));
        QVERIFY(!QFileInfo::exists(m_dir->filePath(QStringLiteral("out"))));
    }

    void listsTheFormats()
    {
        const Run table = run(words({"--list"}));
        QCOMPARE(table.status, 0);
        const Run object = run(words({"--list", "--json"}));
        QCOMPARE(object.status, 0);
        const QJsonArray list = object.json().value(QLatin1String("formats")).toArray();
        QVERIFY(!list.isEmpty());
        QCOMPARE(table.lines().size(), list.size() + 1);
        for (int i = 0; i < list.size(); ++i) {
            const QJsonObject format = list.at(i).toObject();
            for (const char *key : {"name", "title", "file", "standard", "checkedBy", "purpose"}) {
                QVERIFY2(format.contains(QLatin1String(key)), key);
                QVERIFY(
                    table.lines().at(i + 1).contains(format.value(QLatin1String(key)).toString()));
            }
            QVERIFY(table.lines().at(i + 1).startsWith(
                format.value(QLatin1String("name")).toString() + u' '));
        }
        // A file changes nothing of it.
        QCOMPARE(run(words({example, "--list"})).out, table.out);
    }

    void writesAllFormats()
    {
        const Run result = run(words({example, "--out", "made/deep"}));
        QVERIFY2(result.status == 0, qPrintable(result.err));
        const auto files = filesOf(path("made/deep"));
        QStringList expected = files.keys();
        QVERIFY(expected.removeOne(manifest));
        QVERIFY(expected.contains(header));
        QStringList printed;
        const QStringList lines = result.lines();
        for (const QString &line : lines)
            printed.append(line.mid(path("made/deep/").size()));
        printed.sort();
        QCOMPARE(printed, expected);
        // Nothing changes, and nothing is touched, by another one.
        const QDateTime before = QFileInfo(path("made/deep/tarvo_orix_m1.h")).lastModified();
        QCOMPARE(run(words({example, "--out", "made/deep"})).out, result.out);
        QCOMPARE(filesOf(path("made/deep")), files);
        QCOMPARE(QFileInfo(path("made/deep/tarvo_orix_m1.h")).lastModified(), before);
    }

    void writesTheSameBytesEverywhere()
    {
        QCOMPARE(run(words({example, "--out", "one"})).status, 0);
        QDir().mkpath(path("other"));
        QFile::copy(QString::fromUtf8(example), path("other/x.ipc"));
        m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("tr_TR.UTF-8"));
        m_environment.insert(QStringLiteral("TZ"), QStringLiteral("Asia/Tokyo"));
        m_environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("7"));
        QCOMPARE(run(words({"other/x.ipc", "--out", "two words/ü"})).status, 0);
        QCOMPARE(filesOf(path("two words/ü")), filesOf(path("one")));
        const auto files = filesOf(path("one"));
        for (const QByteArray &bytes : files) {
            QVERIFY(!bytes.contains(m_dir->path().toUtf8()));
            QVERIFY(!bytes.contains('\r'));
        }
    }

    void printsOneObject()
    {
        const Run result = run(words({example, "--out", "x", "--json"}));
        QCOMPARE(result.status, 0);
        const QJsonObject object = result.json();
        QCOMPARE(object.keys(),
                 words({"emptyFormats", "errors", "files", "folder", "formats", "warnings"}));
        QCOMPARE(object.value(QLatin1String("folder")).toString(), path("x"));
        QCOMPARE(textsOf(object.value(QLatin1String("formats")).toArray()), formats());
        const QJsonArray files = object.value(QLatin1String("files")).toArray();
        QCOMPARE(files.size(), filesOf(path("x")).size() - 1);
        for (const QJsonValue &value : files) {
            const QJsonObject file = value.toObject();
            QCOMPARE(file.value(QLatin1String("state")).toString(), QStringLiteral("missing"));
            QCOMPARE(file.value(QLatin1String("result")).toString(), QStringLiteral("written"));
        }
        const Run failed = run(words({example, "--out", "/dev/null", "--json"}));
        QCOMPARE(failed.status, 1);
        QCOMPARE(failed.json().value(QLatin1String("errors")).toArray().size(), 1);
        QVERIFY(failed.err.contains(QLatin1String("/dev/null")));
    }

    void onlyTheFormatsThatAreNamed()
    {
        QCOMPARE(run(words({example, "header", "header", "--out", "x"})).status, 0);
        QCOMPARE(filesOf(path("x")).keys(), (QStringList{manifest, header}));
        // What was written is looked at, and no more.
        QCOMPARE(run(words({example, "--out", "x", "--check"})).status, 0);
        const QStringList others = formats().filter(QRegularExpression(QStringLiteral("^[^h]")));
        if (others.isEmpty())
            return;
        QCOMPARE(run(words({example, "--out", "x", "--check"}) + others.mid(0, 1)).status, 1);
        // One format after the other gives what all give.
        for (const QString &format : others)
            QCOMPARE(run(words({example, "--out", "x"}) + QStringList{format}).status, 0);
        QCOMPARE(run(words({example, "--out", "y"})).status, 0);
        QCOMPARE(filesOf(path("x")), filesOf(path("y")));
    }

    void checkTellsWhatIsNotAsItShouldBe()
    {
        Run check = run(words({example, "--out", "x", "--check"}));
        QCOMPARE(check.status, 1);
        QVERIFY(check.lines().contains(path("x/tarvo_orix_m1.h: missing")));
        QVERIFY(!QFileInfo::exists(path("x")));

        QCOMPARE(run(words({example, "--out", "x"})).status, 0);
        check = run(words({example, "--out", "x", "--check"}));
        QCOMPARE(check.status, 0);
        QCOMPARE(check.out, QString());
        QCOMPARE(check.err, QString());

        // Another configuration.
        const QString other = config("Enable%20GPIO=true\n");
        check = run({other, QStringLiteral("--out"), path("x"), QStringLiteral("--check")});
        QCOMPARE(check.status, 1);
        QVERIFY(check.lines().contains(path("x/tarvo_orix_m1.h: stale")));

        TestSupport::write(path("x/tarvo_orix_m1.h"), "mine");
        const QByteArray sum(64, 'a');
        TestSupport::write(path("x/gone.h"), "");
        QByteArray names = TestSupport::contentsOf(path("x/orixm1-export.json"));
        names.replace("\"files\": [\n",
                      "\"files\": [\n    {\"group\":\"header\",\"path\":\"gone.h\",\"sha256\":\""
                      "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855\"},\n"
                      "    {\"group\":\"older\",\"path\":\"gone too.h\",\"sha256\":\"" +
                          sum + "\"},\n");
        TestSupport::write(path("x/orixm1-export.json"), names);
        TestSupport::write(path("x/gone too.h"), "mine");
        const auto before = filesOf(path("x"));
        check = run(words({example, "--out", "x", "--check"}));
        QCOMPARE(check.status, 1);
        QCOMPARE(check.lines(), (QStringList{path("x/tarvo_orix_m1.h: edited"),
                                             path("x/gone too.h: left over and edited"),
                                             path("x/gone.h: left over")}));
        const Run object = run(words({example, "--out", "x", "--check", "--json"}));
        QCOMPARE(object.status, 1);
        QStringList told;
        const QJsonArray list = object.json().value(QLatin1String("files")).toArray();
        for (const QJsonValue &value : list) {
            const QJsonObject file = value.toObject();
            if (file.value(QLatin1String("state")) != QLatin1String("fresh"))
                told.append(path("x/") + file.value(QLatin1String("path")).toString() +
                            QLatin1String(": ") + file.value(QLatin1String("state")).toString());
            QVERIFY(!file.contains(QLatin1String("result")));
        }
        QCOMPARE(told, check.lines());
        QCOMPARE(filesOf(path("x")), before);

        const Run cured = run(words({example, "--out", "x"}));
        QCOMPARE(cured.status, 0);
        QVERIFY(cured.err.contains(QLatin1String(
            "\"tarvo_orix_m1.h\" was changed since it was written; what stood there is in "
            "\"tarvo_orix_m1.h.edited\" now.")));
        QVERIFY(
            cured.err.contains(QLatin1String("\"gone too.h\" is not part of the set any more")));
        QVERIFY(cured.err.contains(QLatin1String("removed, no longer part of the export: ") +
                                   path("x/gone.h")));
        QCOMPARE(TestSupport::contentsOf(path("x/tarvo_orix_m1.h.edited")), QByteArray("mine"));
        QVERIFY(!QFileInfo::exists(path("x/gone.h")));
        QVERIFY(QFileInfo::exists(path("x/gone too.h")));
        QCOMPARE(run(words({example, "--out", "x", "--check"})).status, 0);
    }

    void updateWritesWhatWasWrittenLast()
    {
        const QString advice = QStringLiteral("--update in place of --check");
        const QStringList update = words({example, "--out", "x", "--update"});
        const Run refused = run(update);
        QCOMPARE(refused.status, 3);
        QVERIFY2(refused.err.contains(path("x")) &&
                     refused.err.contains(QLatin1String("Name the formats")),
                 qPrintable(refused.err));
        QVERIFY(!QFileInfo::exists(path("x")));
        QCOMPARE(run(update + words({"svd"})).status, 2);
        QCOMPARE(run(update + words({"--check"})).status, 2);
        QVERIFY(!run(words({example, "--out", "x", "--check"})).err.contains(advice));

        QCOMPARE(run(words({example, "svd", "header", "--out", "x"})).status, 0);
        const auto before = filesOf(path("x"));
        const Run again = run(update);
        QCOMPARE(again.status, 0);
        QVERIFY2(again.err.contains(QLatin1String("Everything is fresh, so nothing was written.")),
                 qPrintable(again.err));
        QCOMPARE(filesOf(path("x")), before);

        const QStringList others = {config("Enable%20GPIO=true\n"), QStringLiteral("--out"),
                                    path("x")};
        QVERIFY(run(others + words({"--check"})).err.contains(advice));
        QCOMPARE(run(others + words({"--update"})).status, 0);
        QCOMPARE(filesOf(path("x")).keys(), before.keys());
        QCOMPARE(run(others + words({"--check"})).status, 0);
        QVERIFY(QFile::remove(path("x/tarvo_orix_m1.h")));
        const Run mended = run(others + words({"--update"}));
        QVERIFY2(
            mended.err.contains(QLatin1String("1 of 2 files were written; the others were fresh.")),
            qPrintable(mended.err));
    }

    void aBrokenManifestIsTold()
    {
        QCOMPARE(run(words({example, "--out", "x"})).status, 0);
        TestSupport::write(path("x/orixm1-export.json"), "{\n<<<<<<< HEAD\n");
        const Run check = run(words({example, "--out", "x", "--check"}));
        QCOMPARE(check.status, 0);
        QVERIFY2(check.err.contains(path("x/orixm1-export.json:2:1: ")), qPrintable(check.err));
        QCOMPARE(run(words({example, "--out", "x"})).status, 0);
        QCOMPARE(TestSupport::contentsOf(path("x/orixm1-export.json.edited")),
                 QByteArray("{\n<<<<<<< HEAD\n"));
    }

    void inputThatCannotBeUsedIsStatusThree_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("no file") << QByteArray() << QStringLiteral("No such file or directory");
        QTest::newRow("no configuration") << QByteArray("hello") << QStringLiteral("x.ipc");
        QTest::newRow("no device") << QByteArray("[General]\nversion=1.0\n")
                                   << QStringLiteral("names no device; \"orixm1 retarget");
        QTest::newRow("an unknown device")
            << QByteArray("[General]\ntarget_device=TV9\nversion=1.0\n")
            << QStringLiteral("names the unknown device \"TV9\"; \"orixm1 retarget");
    }

    void inputThatCannotBeUsedIsStatusThree()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        if (!text.isEmpty())
            TestSupport::write(path("x.ipc"), text);
        const Run result = run(words({"x.ipc", "--out", "x"}));
        QCOMPARE(result.status, 3);
        QVERIFY2(result.err.contains(message) && result.err.contains(QLatin1String("x.ipc")),
                 qPrintable(result.err));
        QVERIFY(!QFileInfo::exists(path("x")));
    }

    void dataThatCannotBeUsedIsStatusThree()
    {
        Run result = run(words({example, "--out", "x", "--data", "nowhere"}));
        QCOMPARE(result.status, 3);
        QVERIFY(result.err.contains(path("nowhere")));
        TestSupport::write(
            path("data/tarvo_orix_m1.ipspec"),
            TestSupport::contentsOf(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec")));
        result = run(words({example, "--out", "x", "--data", "data"}));
        QCOMPARE(result.status, 3);
        QVERIFY(result.err.contains(QLatin1String("data/registers\" holds no register")));
        QVERIFY(!QFileInfo::exists(path("x")));
    }

    void registersOfAnOtherDataFolderCount()
    {
        const QString own = path("data");
        QDir().mkpath(own + QLatin1String("/registers"));
        QFile::copy(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"),
                    own + QLatin1String("/tarvo_orix_m1.ipspec"));
        const QDir registers(QStringLiteral(TARVO_IP_DATA_DIR "/registers"));
        const QStringList names = registers.entryList(QDir::Files);
        QVERIFY(names.size() > 5);
        for (const QString &name : names) {
            QByteArray bytes = TestSupport::contentsOf(registers.filePath(name));
            TestSupport::write(own + QLatin1String("/registers/") + name,
                               bytes.replace("\"BAUDDIV\"", "\"BAUDDIV2\""));
        }
        QCOMPARE(run(words({example, "header", "--out", "x", "--data", "data"})).status, 0);
        QVERIFY(TestSupport::contentsOf(path("x/tarvo_orix_m1.h")).contains("BAUDDIV2"));
    }

    void saysWhyItCannotWrite_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QString>("message");
        QTest::newRow("a file in the folder's place")
            << QStringLiteral("file") << QStringLiteral("x\" is a file");
        QTest::newRow("a folder in a file's place")
            << QStringLiteral("folder") << QStringLiteral("x/tarvo_orix_m1.h\": ");
        QTest::newRow("a link out of the folder")
            << QStringLiteral("link") << QStringLiteral("is a link that leads out of the folder");
        QTest::newRow("a folder that may not be written")
            << QStringLiteral("rights") << QStringLiteral("Permission denied");
        QTest::newRow("a full disk") << QStringLiteral("disk") << QStringLiteral("No space left");
    }

    void saysWhyItCannotWrite()
    {
        QFETCH(QString, obstacle);
        QFETCH(QString, message);
        const QString folder = path("x");
        if (obstacle == QLatin1String("file")) {
            TestSupport::write(folder, "");
        } else {
            QDir().mkpath(folder);
        }
        const auto unmount = qScopeGuard([&] { TestSupport::unmount(folder); });
        if (obstacle == QLatin1String("folder"))
            QDir().mkpath(path("x/tarvo_orix_m1.h"));
        if (obstacle == QLatin1String("link")) {
            TestSupport::write(path("outside.h"), "mine");
            QVERIFY(QFile::link(path("outside.h"), path("x/tarvo_orix_m1.h")));
        }
        if (obstacle == QLatin1String("disk")) {
            if (const QString reason = TestSupport::mountSmallDisk(folder); !reason.isEmpty())
                QSKIP(qPrintable(reason));
            QVERIFY(TestSupport::fillDisk(folder, 4096));
        }
        Run result;
        if (obstacle == QLatin1String("rights")) {
            QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7755));
            const TestSupport::Unprivileged unprivileged;
            if (!unprivileged.holds())
                QSKIP("permissions do not bind here");
            result = run(words({example, "--out", "x"}));
        } else {
            result = run(words({example, "--out", "x"}));
        }
        QCOMPARE(result.status, 1);
        QVERIFY2(result.err.contains(message) && result.err.contains(folder),
                 qPrintable(result.err));
        QCOMPARE(result.out, QString());
        QVERIFY(!QFileInfo::exists(path("x/orixm1-export.json")));
        if (obstacle == QLatin1String("link"))
            QCOMPARE(TestSupport::contentsOf(path("outside.h")), QByteArray("mine"));
    }

    void takesOddPaths_data()
    {
        QTest::addColumn<QString>("folder");
        for (const char *name : {"a b", "ümlaut", "-x", "a\"b", "a%1b", "a\\b", "..a", "deep/er/x"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }

    void takesOddPaths()
    {
        QFETCH(QString, folder);
        const Run result = run(words({example}) + QStringList{QStringLiteral("--out=") + folder});
        QVERIFY2(result.status == 0, qPrintable(result.err));
        QVERIFY(QFileInfo::exists(m_dir->filePath(folder) + u'/' + header));
    }

private:
    QString path(const char *name) const { return m_dir->filePath(QString::fromUtf8(name)); }

    Run run(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_dir->path());
        process.start(QStringLiteral(TARVO_COMMAND),
                      QStringList{QStringLiteral("export")} + arguments);
        if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QStringList formats() const
    {
        QStringList names;
        const QJsonArray list =
            run(words({"--list", "--json"})).json().value(QLatin1String("formats")).toArray();
        for (const QJsonValue &format : list)
            names.append(format.toObject().value(QLatin1String("name")).toString());
        return names;
    }

    QString config(const QByteArray &lines) const
    {
        const QString file = path("config.ipc");
        TestSupport::write(file, "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                                 "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n" +
                                     lines);
        return file;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QProcessEnvironment m_environment;
};

TARVO_TEST_MAIN(QCoreApplication, tst_CliExport)
#include "tst_cliexport.moc"
