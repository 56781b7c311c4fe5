#include "testsupport.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <sys/stat.h>

namespace
{

// Takes the place of the subsystem's sources, so that a run is short.
const QByteArray source =
    "module Tarvo_ORIX_M1_Top (input HCLK, input [3:0] a, output reg [3:0] y);\n"
    "    always @(posedge HCLK) y <= a + y;\n"
    "endmodule\n";

const QByteArray options = "Enable%20GPIO=true\nLANG=0\n";

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

struct Run {
    int status = -1;
    QString out;
    QString err;

    QJsonObject json() const { return QJsonDocument::fromJson(out.toUtf8()).object(); }
};

// Contents and times of everything below a folder but one file.
QMap<QString, QPair<QByteArray, QDateTime>> pictureOf(const QString &folder,
                                                      const QString &but = {})
{
    QMap<QString, QPair<QByteArray, QDateTime>> picture;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path != but)
            picture.insert(path, {TestSupport::contentsOf(path), files.fileInfo().lastModified()});
    }
    return picture;
}

void replace(const QString &path, const QByteArray &before, const QByteArray &after)
{
    const QByteArray bytes = TestSupport::contentsOf(path);
    QVERIFY2(bytes.contains(before), bytes.constData());
    QVERIFY(TestSupport::write(path, QByteArray(bytes).replace(before, after)));
}

} // namespace

class tst_CliFresh;
using Change = std::function<void(tst_CliFresh &)>;
Q_DECLARE_METATYPE(Change)

// What "orixm1 generate" knows of its earlier runs.
class tst_CliFresh : public QObject
{
    Q_OBJECT

public:
    QString path(const char *name) const { return m_dir->filePath(latin1(name)); }
    Run run(const QStringList &arguments, const QString &cache = QString()) const;
    QStringList generate(const QStringList &further = {}, const char *out = "out") const
    {
        return QStringList{latin1("--data"),   path("ip"),      latin1("generate"),
                           path("config.ipc"), latin1("--out"), path(out)} +
               further;
    }
    void configure(const QByteArray &entries, const QByteArray &device = "TV2KR-18C-QFN88P-C8/I7")
    {
        QVERIFY(TestSupport::write(path("config.ipc"),
                                   "[General]\ntarget_device=" + device +
                                       "\ntype=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n" +
                                       entries));
    }
    QByteArray searchPath;

private Q_SLOTS:
    void initTestCase();
    void init();

    void tellsHowTheFilesStand_data();
    void tellsHowTheFilesStand();
    void showsWhatWouldBeGenerated();
    void theManifestIsTheSameEverywhere();
    void aRunThatWouldChangeNothingDoesNothing();
    void includeFilesAloneLeaveTheResultsStale();
    void aFailedRunLeavesTheTruth();
    void keepsWhatSomebodyHasEdited();
    void whatCannotBeKeptIsNotReplaced_data();
    void whatCannotBeKeptIsNotReplaced();

    void aDryRunSaysWhatARunThenWrites_data();
    void aDryRunSaysWhatARunThenWrites();
    void aDryRunNamesWhatOnlyTheToolCanTell();
    void aDryRunOfSomethingFreshChangesNothing();

    void theCacheGivesTheSameBytes();
    void aBrokenEntryIsDropped_data();
    void aBrokenEntryIsDropped();
    void anEntryOfOtherNamesPutsNothingAnywhere();
    void twoRunsAtATimeShareTheCache();
    void whereNothingCanBeKeptNothingIs();

private:
    QStringList entries(const QString &cache) const
    {
        QStringList paths;
        QDirIterator files(cache, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            if (files.fileInfo().size() > 500) // of results, not of a version
                paths.append(files.filePath());
        }
        return paths;
    }

    QTemporaryDir m_cache; // of all tests: a run is shorter still
    std::unique_ptr<QTemporaryDir> m_dir;
};

Run tst_CliFresh::run(const QStringList &arguments, const QString &cache) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(latin1("XDG_CACHE_HOME"), cache.isEmpty() ? m_cache.path() : cache);
    if (!searchPath.isEmpty())
        environment.insert(latin1("PATH"), QString::fromLocal8Bit(searchPath));
    process.setProcessEnvironment(environment);
    process.start(latin1(TARVO_COMMAND), arguments);
    if (!process.waitForFinished(-1))
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void tst_CliFresh::initTestCase()
{
    QVERIFY(m_cache.isValid());
}

void tst_CliFresh::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    searchPath.clear();
    QVERIFY(TestSupport::write(path("ip/data/debug/top.v"), source));
    QVERIFY(TestSupport::write(path("ip/data/debug/define.vh"), "// nothing\n"));
    QVERIFY(QFile::copy(latin1(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"),
                        path("ip/tarvo_orix_m1.ipspec")));
    configure(options);
}

void tst_CliFresh::tellsHowTheFilesStand_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QStringList>("lines"); // that are told
    const auto row = [](const char *name, const Change &change, const char *state,
                        const QStringList &lines) {
        QTest::newRow(name) << change << latin1(state) << lines;
    };
    const char *const include = "out/temp/tv_orix_m1/cm1_option_defs.v";
    const char *const manifest = "out/temp/tv_orix_m1/manifest.json";

    row("nothing has happened", [](tst_CliFresh &) {}, "fresh", {});
    row("an option has another value",
        [](tst_CliFresh &test) { test.configure("Enable%20GPIO=false\nLANG=0\n"); }, "stale",
        {latin1("changed: option \"Enable GPIO\": true, now false"),
         latin1("/ahb_option_defs.v: stale"), latin1("/tarvo_orix_m1.v: stale")});
    row("an option is gone and its default another value",
        [](tst_CliFresh &test) { test.configure("LANG=0\n"); }, "stale",
        {latin1("changed: option \"Enable GPIO\": true, now false")});
    row("a default is written out",
        [](tst_CliFresh &test) { test.configure(options + "OS%20Extension=1\n"); }, "fresh", {});
    row("another language",
        [](tst_CliFresh &test) { test.configure("Enable%20GPIO=true\nLANG=1\n"); }, "missing",
        {latin1("option \"LANG\": 0, now 1"), latin1("/tarvo_orix_m1.vhd: missing"),
         latin1("/tarvo_orix_m1.v: stale")});
    row("another device",
        [](tst_CliFresh &test) { test.configure(options, "TV2KR-18C-QFN88-C8/I7"); }, "stale",
        {latin1("changed: device: TV2KR-18C-QFN88P-C8/I7, now TV2KR-18C-QFN88-C8/I7")});
    row("a source has other contents",
        [](tst_CliFresh &test) { replace(test.path("ip/data/debug/top.v"), "a + y", "a - y"); },
        "stale", {latin1("changed: source \"top.v\" has other contents")});
    row("a source is new",
        [](tst_CliFresh &test) {
            QVERIFY(
                TestSupport::write(test.path("ip/data/debug/more.v"), "module more; endmodule\n"));
        },
        "stale", {latin1("changed: source \"more.v\" is new")});
    row("an included file has other contents",
        [](tst_CliFresh &test) {
            QVERIFY(TestSupport::write(test.path("ip/data/debug/define.vh"), "// something\n"));
        },
        "stale", {latin1("changed: included \"define.vh\" has other contents")});
    row("the descriptor has another version",
        [](tst_CliFresh &test) {
            replace(test.path("ip/tarvo_orix_m1.ipspec"), "\"version\": \"1.0\"",
                    "\"version\": \"1.1\"");
        },
        "stale",
        {latin1("changed: descriptor: tarvo.tarvo_orix_m1 1.0, now tarvo.tarvo_orix_m1 1.1")});
    row("another tool",
        [](tst_CliFresh &test) {
            QVERIFY(TestSupport::write(test.path("bin/yosys"), "#!/bin/sh\necho Yosys 9.9\n"));
            QFile::setPermissions(test.path("bin/yosys"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            test.searchPath = test.path("bin").toLocal8Bit() + ':' + qgetenv("PATH");
        },
        "stale", {latin1(", now Yosys 9.9"), latin1("/tarvo_orix_m1.vo: stale")});
    row("an include file was edited",
        [include](tst_CliFresh &test) {
            QVERIFY(TestSupport::write(test.path(include), "// mine\n"));
        },
        "edited", {latin1("/cm1_option_defs.v: edited")});
    row("an output was edited, which its size and time do not tell",
        [](tst_CliFresh &test) {
            const QString path = test.path("out/tarvo_orix_m1.v");
            const QDateTime time = QFileInfo(path).lastModified();
            replace(path, "module", "m0dule");
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        },
        "edited", {latin1("/tarvo_orix_m1.v: edited")});
    row("an output was edited and an option has another value",
        [](tst_CliFresh &test) {
            test.configure("LANG=0\n");
            QVERIFY(TestSupport::write(test.path("out/tarvo_orix_m1.vo"), "// mine\n"));
        },
        "edited",
        {latin1("/tarvo_orix_m1.vo: edited"), latin1("/tarvo_orix_m1.v: stale"),
         latin1("option \"Enable GPIO\"")});
    row("an include file is missing",
        [include](tst_CliFresh &test) { QVERIFY(QFile::remove(test.path(include))); }, "missing",
        {latin1("/cm1_option_defs.v: missing")});
    row("an output is missing",
        [](tst_CliFresh &test) { QVERIFY(QFile::remove(test.path("out/tarvo_orix_m1.vo"))); },
        "missing", {latin1("/tarvo_orix_m1.vo: missing")});
    row("everything is missing",
        [](tst_CliFresh &test) { QVERIFY(QDir(test.path("out")).removeRecursively()); }, "missing",
        {latin1("/cm1_option_defs.v: missing"), latin1("/tarvo_orix_m1.v: missing")});
    row("the manifest is missing",
        [manifest](tst_CliFresh &test) { QVERIFY(QFile::remove(test.path(manifest))); }, "foreign",
        {latin1("/cm1_option_defs.v: foreign"), latin1("/tarvo_orix_m1.v: foreign")});
    row("the manifest is broken",
        [manifest](tst_CliFresh &test) {
            const QByteArray text = TestSupport::contentsOf(test.path(manifest));
            QVERIFY(TestSupport::write(test.path(manifest), text.left(text.size() / 2)));
        },
        "foreign", {latin1("manifest.json:"), latin1("nothing is known of earlier runs")});
    row("the manifest is of a run that did not end",
        [manifest](tst_CliFresh &test) {
            replace(test.path(manifest), "\"finished\": true", "\"finished\": false");
        },
        "stale", {latin1("The last run did not end")});
    row("a file stands where no run has put one",
        [](tst_CliFresh &test) {
            QVERIFY(QDir(test.path("out")).removeRecursively());
            QCOMPARE(test.run(test.generate({latin1("--no-synth")})).status, 0);
            QVERIFY(TestSupport::write(test.path("out/tarvo_orix_m1.v"), "// mine\n"));
        },
        "foreign", {latin1("/tarvo_orix_m1.v: foreign"), latin1("/tarvo_orix_m1.vo: missing")});
}

void tst_CliFresh::tellsHowTheFilesStand()
{
    QFETCH(Change, change);
    QFETCH(QString, state);
    QFETCH(QStringList, lines);
    const Run made = run(generate());
    QVERIFY2(made.status == 0, qPrintable(made.err));
    change(*this);

    const auto before = pictureOf(m_dir->path());
    const Run told = run(generate({latin1("--check")}));
    QCOMPARE(told.status, state == latin1("fresh") ? 0 : 1);
    QVERIFY2(told.out.startsWith(path("out") + latin1(": ") + state + u'\n'), qPrintable(told.out));
    const QString all = told.out + told.err;
    for (const QString &line : lines)
        QVERIFY2(all.contains(line), qPrintable(all + line));
    if (lines.isEmpty())
        QCOMPARE(told.out.count(u'\n'), 1);
    const Run json = run(generate({latin1("--check"), latin1("--json")}));
    QCOMPARE(json.status, told.status);
    QCOMPARE(json.json().value(latin1("state")).toString(), state);
    QVERIFY(pictureOf(m_dir->path()) == before);

    // Whatever it was, a run mends it.
    if (!searchPath.isEmpty())
        return;
    const Run mended = run(generate());
    QVERIFY2(mended.status == 0, qPrintable(mended.err));
    const Run after = run(generate({latin1("--check")}));
    QVERIFY2(after.status == 0, qPrintable(after.out + after.err));
}

void tst_CliFresh::showsWhatWouldBeGenerated()
{
    QCOMPARE(run(generate()).status, 0);
    configure("LANG=0\n");
    QVERIFY(TestSupport::write(path("out/tarvo_orix_m1.v"), "// mine\n"));
    const Run told = run(generate({latin1("--check"), latin1("-v")}));
    QVERIFY2(told.out.contains(latin1("\n-`define TARVO_GPIO_SUPPORT\n")), qPrintable(told.out));
    QVERIFY(told.out.contains(latin1("\n--- ")) && told.out.contains(latin1("\n@@ -")));
    const QByteArray sum =
        QCryptographicHash::hash("// mine\n", QCryptographicHash::Sha256).toHex();
    QVERIFY2(told.out.contains(QString::fromLatin1(sum)), qPrintable(told.out));
}

void tst_CliFresh::theManifestIsTheSameEverywhere()
{
    QCOMPARE(run(generate()).status, 0);
    const QByteArray manifest = TestSupport::contentsOf(path("out/temp/tv_orix_m1/manifest.json"));
    QVERIFY(!manifest.isEmpty() && !manifest.contains(m_dir->path().toUtf8()));
    QCOMPARE(run(generate({latin1("--no-cache"), latin1("--force")}, "a/b/other")).status, 0);
    QCOMPARE(TestSupport::contentsOf(path("a/b/other/temp/tv_orix_m1/manifest.json")), manifest);
    // Each of its sums is that of the file.
    const QJsonObject object = QJsonDocument::fromJson(manifest).object();
    QJsonArray files = object.value(latin1("files")).toArray();
    QCOMPARE(files.size(), 7);
    const QJsonArray outputs =
        object.value(latin1("synthesis")).toObject().value(latin1("outputs")).toArray();
    QCOMPARE(outputs.size(), 5);
    for (const QJsonValue &output : outputs)
        files.append(output);
    for (const QJsonValue &value : qAsConst(files)) {
        const QJsonObject file = value.toObject();
        const QByteArray bytes =
            TestSupport::contentsOf(path("out/") + file.value(latin1("file")).toString());
        QCOMPARE(file.value(latin1("sha256")).toString().toLatin1(),
                 QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    }
}

void tst_CliFresh::aRunThatWouldChangeNothingDoesNothing()
{
    const Run first = run(generate({latin1("--json")}));
    QCOMPARE(first.status, 0);
    const auto before = pictureOf(m_dir->path());
    const Run second = run(generate({latin1("--json")}));
    QCOMPARE(second.status, 0);
    QCOMPARE(second.out, first.out);
    QVERIFY2(second.err.contains(latin1("nothing was done")), qPrintable(second.err));
    QVERIFY(pictureOf(m_dir->path()) == before);

    const Run forced = run(generate({latin1("--force"), latin1("--json")}));
    QVERIFY2(!forced.err.contains(latin1("from the cache")), qPrintable(forced.err));
    QVERIFY(!forced.err.contains(latin1("nothing was done")));
    QCOMPARE(forced.out, first.out);
}

void tst_CliFresh::includeFilesAloneLeaveTheResultsStale()
{
    QCOMPARE(run(generate()).status, 0);
    configure("LANG=0\n");
    QCOMPARE(run(generate({latin1("--no-synth")})).status, 0);
    QCOMPARE(run(generate({latin1("--check"), latin1("--no-synth")})).status, 0);
    const Run told = run(generate({latin1("--check")}));
    QCOMPARE(told.status, 1);
    for (const char *line : {"option \"Enable GPIO\": true, now false", "/tarvo_orix_m1.v: stale"})
        QVERIFY2(told.out.contains(latin1(line)), qPrintable(told.out));
    QVERIFY(!told.out.contains(latin1("ahb_option_defs.v")));
}

void tst_CliFresh::aFailedRunLeavesTheTruth()
{
    QCOMPARE(run(generate()).status, 0);
    configure("LANG=0\n");
    replace(path("ip/data/debug/top.v"), "a + y", "a + ");
    QCOMPARE(run(generate()).status, 1);
    const Run told = run(generate({latin1("--check")}));
    QCOMPARE(told.status, 1);
    QVERIFY2(told.out.contains(latin1("/tarvo_orix_m1.v: stale")) &&
                 told.out.contains(latin1("source \"top.v\"")),
             qPrintable(told.out));
}

void tst_CliFresh::keepsWhatSomebodyHasEdited()
{
    QCOMPARE(run(generate()).status, 0);
    const QString include = path("out/temp/tv_orix_m1/cm1_option_defs.v");
    const QString output = path("out/tarvo_orix_m1.vo");
    for (const char *ending : {"", "-2"}) {
        const QByteArray mine = QByteArray("// mine") + ending;
        QVERIFY(TestSupport::write(include, mine));
        QVERIFY(TestSupport::write(output, mine));
        const Run mended = run(generate({latin1("--json")}));
        QCOMPARE(mended.status, 0);
        const QString copy = latin1(".edited") + latin1(ending);
        QCOMPARE(TestSupport::contentsOf(include + copy), mine);
        QCOMPARE(TestSupport::contentsOf(output + copy), mine);
        QVERIFY2(mended.err.contains(output + copy) && mended.err.contains(include + copy),
                 qPrintable(mended.err));
        QCOMPARE(mended.json().value(latin1("warnings")).toArray().size(), 2);
        QCOMPARE(run(generate({latin1("--check")})).status, 0);
    }
}

void tst_CliFresh::whatCannotBeKeptIsNotReplaced_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<Change>("change");
    for (const char *file :
         {"out/temp/tv_orix_m1/cm1_option_defs.v", "out/temp/tv_orix_m1/tarvo_orix_m1.vg",
          "out/tarvo_orix_m1.v", "out/tarvo_orix_m1.vo"}) {
        QTest::addRow("a folder, %s", file)
            << latin1(file)
            << Change([file](tst_CliFresh &test) { QVERIFY(QDir().mkpath(test.path(file))); });
        QTest::addRow("a pipe, %s", file) << latin1(file) << Change([file](tst_CliFresh &test) {
            QCOMPARE(mkfifo(QFile::encodeName(test.path(file)).constData(), 0600), 0);
        });
    }
    QTest::newRow("a file above the limit")
        << latin1("out/tarvo_orix_m1.v") << Change([](tst_CliFresh &test) {
               QFile file(test.path("out/tarvo_orix_m1.v"));
               QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(2) << 30));
           });
}

void tst_CliFresh::whatCannotBeKeptIsNotReplaced()
{
    QFETCH(QString, file);
    QFETCH(Change, change);
    QCOMPARE(run(generate()).status, 0);
    const QString there = m_dir->filePath(file);
    QVERIFY(QFile::remove(there));
    change(*this);
    configure("Enable%20GPIO=false\nLANG=0\n");
    const auto before = pictureOf(path("out"), there);
    const Run refused = run(generate({latin1("--json")}));
    QCOMPARE(refused.status, 1);
    const QString text = refused.json()
                             .value(latin1("errors"))
                             .toArray()
                             .at(0)
                             .toObject()
                             .value(latin1("text"))
                             .toString();
    QVERIFY2(text.startsWith(u'"' + there + latin1("\" cannot be read")), qPrintable(text));
    QCOMPARE(pictureOf(path("out"), there), before);
    QVERIFY(QFileInfo::exists(there));
}

void tst_CliFresh::aDryRunSaysWhatARunThenWrites_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("further");
    const QStringList none;
    QTest::newRow("nothing is there")
        << Change([](tst_CliFresh &test) { QVERIFY(QDir(test.path("out")).removeRecursively()); })
        << none;
    QTest::newRow("another option and another language")
        << Change([](tst_CliFresh &test) { test.configure("LANG=1\n"); }) << none;
    QTest::newRow("files were edited and one is gone") << Change([](tst_CliFresh &test) {
        for (const char *name : {"out/tarvo_orix_m1.v", "out/tarvo_orix_m1.vo",
                                 "out/temp/tv_orix_m1/cm1_option_defs.v"})
            QVERIFY(TestSupport::write(test.path(name), "// mine"));
        QVERIFY(QFile::remove(test.path("out/temp/tv_orix_m1/tarvo_orix_m1.vg")));
    }) << none;
    QTest::newRow("no manifest") << Change([](tst_CliFresh &test) {
        QVERIFY(QFile::remove(test.path("out/temp/tv_orix_m1/manifest.json")));
        test.configure("LANG=0\n");
    }) << none;
    QTest::newRow("the include files alone")
        << Change([](tst_CliFresh &test) { test.configure("LANG=0\n"); })
        << QStringList{latin1("--no-synth")};
    QTest::newRow("a second set of outputs is new")
        << Change([](tst_CliFresh &test) { test.configure(options + "Prefix=left_\n"); }) << none;
    QTest::newRow("a second set in another language, edited in part")
        << Change([](tst_CliFresh &test) {
               test.configure("LANG=0\nPrefix=left_\n");
               QCOMPARE(test.run(test.generate()).status, 0);
               for (const char *name : {"out/left_tarvo_orix_m1.v", "out/left_tarvo_orix_m1.vo"})
                   QVERIFY(TestSupport::write(test.path(name), "// mine"));
               test.configure("LANG=1\nPrefix=left_\n");
           })
        << none;
    QTest::newRow("a second set of which a file is gone, beside fresh outputs")
        << Change([](tst_CliFresh &test) {
               QCOMPARE(test.run(test.generate({latin1("--prefix"), latin1("b_")})).status, 0);
               QVERIFY(QFile::remove(test.path("out/b_tarvo_orix_m1.v")));
           })
        << QStringList{latin1("--prefix"), latin1("b_")};
    QTest::newRow("the second set stays without synthesis") << Change([](tst_CliFresh &test) {
        test.configure("LANG=1\nPrefix=left_\n");
        QCOMPARE(test.run(test.generate()).status, 0);
        test.configure("LANG=0\nPrefix=left_\n");
    }) << QStringList{latin1("--no-synth")};
}

void tst_CliFresh::aDryRunSaysWhatARunThenWrites()
{
    QFETCH(Change, change);
    QFETCH(QStringList, further);
    QCOMPARE(run(generate()).status, 0);
    change(*this);
    // So that the results are known.
    QCOMPARE(run(generate({}, "elsewhere")).status, 0);
    const QString folder = path("out");
    const QString patched = path("patched");
    QVERIFY(QDir().mkpath(folder) && QDir().mkpath(patched));
    QCOMPARE(QProcess::execute(latin1("cp"), {latin1("-rT"), folder, patched}), 0);

    const auto before = pictureOf(m_dir->path());
    const Run told = run(generate(QStringList{latin1("--dry-run"), latin1("--diff")} + further));
    QVERIFY2(told.status == 1, qPrintable(told.err));
    const Run json = run(
        generate(QStringList{latin1("--dry-run"), latin1("--diff"), latin1("--json")} + further));
    QCOMPARE(json.status, 1);
    QVERIFY(pictureOf(m_dir->path()) == before);

    // The text is a patch that makes of the folder what the run makes of it.
    QProcess patch;
    patch.setWorkingDirectory(patched);
    patch.start(latin1("patch"), {latin1("-p1"), latin1("--no-backup-if-mismatch")});
    patch.write(told.out.toUtf8());
    patch.closeWriteChannel();
    QVERIFY(patch.waitForFinished(-1));
    QVERIFY2(patch.exitCode() == 0, qPrintable(told.out));
    const Run made = run(generate(further));
    QVERIFY2(made.status == 0, qPrintable(made.err));
    const auto real = pictureOf(folder);
    const auto predicted = pictureOf(patched);
    QCOMPARE(predicted.size(), real.size());
    for (auto it = real.begin(); it != real.end(); ++it) {
        const QString twin = patched + it.key().mid(folder.size());
        QVERIFY2(predicted.value(twin).first == it.value().first, qPrintable(it.key()));
    }
    // Each file is told once, with the state that it then shows.
    QStringList names;
    const QJsonArray files = json.json().value(latin1("files")).toArray();
    for (const QJsonValue &file : files) {
        const QString name = file[latin1("path")].toString();
        const QString state = file[latin1("state")].toString();
        const QString full = folder + u'/' + name;
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.append(name);
        QCOMPARE(file[latin1("madeByTool")].toBool(), false);
        QCOMPARE(!real.contains(full), state == latin1("removed"));
        QCOMPARE(state == latin1("new"), !before.contains(full));
        if (state == latin1("removed"))
            continue;
        if (state == latin1("equal") || state == latin1("stays"))
            QCOMPARE(real[full].first, before[full].first);
        else if (state != latin1("new"))
            QVERIFY2(real[full].first != before[full].first, qPrintable(name));
    }
}

void tst_CliFresh::aDryRunNamesWhatOnlyTheToolCanTell()
{
    QCOMPARE(run(generate()).status, 0);
    configure("LANG=0\n");
    QVERIFY(TestSupport::write(path("out/tarvo_orix_m1.v"), "// mine\n"));
    const Run told = run(generate({latin1("--dry-run"), latin1("--json"), latin1("--no-cache")}));
    QCOMPARE(told.status, 1);
    QMap<QString, QString> states;
    const QJsonArray files = told.json().value(latin1("files")).toArray();
    for (const QJsonValue &file : files) {
        states.insert(file[latin1("path")].toString(), file[latin1("state")].toString());
        QCOMPARE(file[latin1("madeByTool")].toBool(),
                 !file[latin1("path")].toString().contains(latin1("_def")) &&
                     !file[latin1("path")].toString().contains(latin1("param")));
    }
    QCOMPARE(states.value(latin1("tarvo_orix_m1.v")), latin1("edited"));
    QCOMPARE(states.value(latin1("tarvo_orix_m1.vo")), latin1("remade"));
    QCOMPARE(states.value(latin1("temp/tv_orix_m1/ahb_option_defs.v")), latin1("changed"));
    QStringList texts;
    const QJsonArray differences = told.json().value(latin1("differences")).toArray();
    for (const QJsonValue &difference : differences)
        texts.append(difference[latin1("kind")].toString() + u' ' +
                     difference[latin1("text")].toString());
    QVERIFY2(texts.contains(latin1("option ~ Enable GPIO: true -> false")),
             qPrintable(texts.join(u'\n')));
    // So it is with the second set.
    QCOMPARE(run(generate({latin1("--prefix"), latin1("b_")})).status, 0);
    configure(options);
    QVERIFY(TestSupport::write(path("out/b_tarvo_orix_m1.v"), "// mine\n"));
    QVERIFY(QFile::remove(path("out/b_tarvo_orix_m1.vo")));
    const Run second = run(generate({latin1("--dry-run"), latin1("--json"), latin1("--no-cache"),
                                     latin1("--prefix"), latin1("b_")}));
    const QJsonArray secondFiles = second.json().value(latin1("files")).toArray();
    for (const QJsonValue &file : secondFiles) {
        states.insert(file[latin1("path")].toString(), file[latin1("state")].toString());
        QVERIFY(file[latin1("madeByTool")].toBool() ||
                !file[latin1("path")].toString().startsWith(latin1("b_")));
    }
    QCOMPARE(states.value(latin1("b_tarvo_orix_m1.v")), latin1("edited"));
    QCOMPARE(states.value(latin1("b_tarvo_orix_m1.vo")), latin1("new"));
    QCOMPARE(states.value(latin1("b_tarvo_orix_m1_tmp.v")), latin1("remade"));
    QCOMPARE(states.value(latin1("b_orixm1-netlist.json")), latin1("remade"));
    QCOMPARE(run(generate({latin1("--diff")})).status, 2);
    QCOMPARE(run(generate({latin1("--dry-run"), latin1("--check")})).status, 2);
}

void tst_CliFresh::aDryRunOfSomethingFreshChangesNothing()
{
    QCOMPARE(run(generate()).status, 0);
    for (const QStringList &further : {QStringList(), QStringList{latin1("--no-synth")}}) {
        const Run told =
            run(generate(QStringList{latin1("--dry-run"), latin1("--diff")} + further));
        QVERIFY2(told.status == 0, qPrintable(told.out));
        QVERIFY2(told.out.startsWith(latin1("Nothing would change.\n")), qPrintable(told.out));
        QVERIFY(!told.out.contains(latin1("@@")));
    }
    // Run all the same, the tool alone tells whether it makes the same.
    QCOMPARE(run(generate({latin1("--dry-run"), latin1("--force")})).status, 1);
}

void tst_CliFresh::theCacheGivesTheSameBytes()
{
    const QTemporaryDir cache;
    for (const char *language : {"LANG=0\n", "LANG=1\n"}) {
        configure(language);
        const QString one = latin1("one") + latin1(language).left(6);
        const QString two = latin1("two") + latin1(language).left(6);
        const Run first = run(generate({latin1("--json")}, qPrintable(one)), cache.path());
        QVERIFY2(!first.err.contains(latin1("from the cache")), qPrintable(first.err));
        const Run second = run(generate({latin1("--json")}, qPrintable(two)), cache.path());
        QVERIFY2(second.err.contains(latin1("from the cache")), qPrintable(second.err));
        QCOMPARE(QString(second.out).replace(two, one), first.out);
        QDirIterator files(m_dir->filePath(one), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            if (!file.endsWith(latin1(".log")))
                QCOMPARE(TestSupport::contentsOf(QString(file).replace(one, two)),
                         TestSupport::contentsOf(file));
        }
        const Run without = run(generate({latin1("--no-cache")}, "three"), cache.path());
        QVERIFY2(!without.err.contains(latin1("from the cache")), qPrintable(without.err));
    }
}

void tst_CliFresh::aBrokenEntryIsDropped_data()
{
    QTest::addColumn<Change>("change"); // of the file "entry"
    const auto change = [](const char *name, const std::function<void(const QString &)> &spoil) {
        QTest::newRow(name) << Change([spoil](tst_CliFresh &test) { spoil(test.path("entry")); });
    };
    change("a byte differs", [](const QString &path) {
        QByteArray bytes = TestSupport::contentsOf(path);
        bytes[bytes.size() - 20] = char(bytes.at(bytes.size() - 20) ^ 1);
        TestSupport::write(path, bytes);
    });
    change("half of it", [](const QString &path) {
        const QByteArray bytes = TestSupport::contentsOf(path);
        TestSupport::write(path, bytes.left(bytes.size() / 2));
    });
    change("nothing", [](const QString &path) { TestSupport::write(path, {}); });
    change("a pipe", [](const QString &path) {
        QFile::remove(path);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    });
    change("a link that leads nowhere", [](const QString &path) {
        QFile::remove(path);
        QVERIFY(QFile::link(path + latin1("-nowhere"), path));
    });
}

void tst_CliFresh::aBrokenEntryIsDropped()
{
    QFETCH(Change, change);
    const QTemporaryDir cache;
    QCOMPARE(run(generate(), cache.path()).status, 0);
    QCOMPARE(entries(cache.path()).size(), 1);
    const QString entry = entries(cache.path()).constFirst();
    QVERIFY(QFile::rename(entry, path("entry")));
    change(*this);
    QCOMPARE(::rename(QFile::encodeName(path("entry")).constData(),
                      QFile::encodeName(entry).constData()),
             0);
    const Run again = run(generate({}, "again"), cache.path());
    QVERIFY2(again.status == 0, qPrintable(again.err));
    QVERIFY2(again.err.contains(entry) && !again.err.contains(latin1("from the cache")),
             qPrintable(again.err));
    QCOMPARE(TestSupport::contentsOf(path("again/tarvo_orix_m1.vo")),
             TestSupport::contentsOf(path("out/tarvo_orix_m1.vo")));
    const Run third = run(generate({}, "third"), cache.path());
    QVERIFY2(third.err.contains(latin1("from the cache")), qPrintable(third.err));
}

// Somebody who knows the form of an entry gives it a name of his own.
void tst_CliFresh::anEntryOfOtherNamesPutsNothingAnywhere()
{
    const QTemporaryDir cache;
    QCOMPARE(run(generate(), cache.path()).status, 0);
    const QString entry = entries(cache.path()).value(0);
    const QByteArray bytes = TestSupport::contentsOf(entry);
    QByteArray contents = bytes.mid(bytes.indexOf('\n') + 1);
    contents.replace("tarvo_orix_m1.vg", "../../../evil.vg");
    const auto sum = [](const QByteArray &text) {
        return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
    };
    const QByteArray key = QFileInfo(entry).fileName().toLatin1();
    QVERIFY(TestSupport::write(entry, sum(key + sum(contents)) + '\n' + contents));
    const Run again = run(generate({}, "deep/again"), cache.path());
    QVERIFY2(again.status == 0, qPrintable(again.err));
    QVERIFY2(again.err.contains(entry), qPrintable(again.err));
    QVERIFY(!QFileInfo::exists(path("evil.vg")) && !QFileInfo::exists(path("deep/evil.vg")));
    QCOMPARE(TestSupport::contentsOf(path("deep/again/tarvo_orix_m1.v")),
             TestSupport::contentsOf(path("out/tarvo_orix_m1.v")));
}

void tst_CliFresh::twoRunsAtATimeShareTheCache()
{
    const QTemporaryDir cache;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(latin1("XDG_CACHE_HOME"), cache.path());
    QProcess processes[3];
    const char *const folders[] = {"a", "b", "c"};
    for (int i = 0; i < 3; ++i) {
        processes[i].setProcessEnvironment(environment);
        processes[i].start(latin1(TARVO_COMMAND), generate({}, folders[i]));
    }
    for (QProcess &process : processes) {
        QVERIFY(process.waitForFinished(-1));
        QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
    }
    for (const char *folder : {"b", "c"})
        QCOMPARE(TestSupport::contentsOf(path(folder) + latin1("/tarvo_orix_m1.vo")),
                 TestSupport::contentsOf(path("a/tarvo_orix_m1.vo")));
    QCOMPARE(entries(cache.path()).size(), 1);
    const Run again = run(generate({}, "again"), cache.path());
    QVERIFY2(again.err.contains(latin1("from the cache")), qPrintable(again.err));
}

void tst_CliFresh::whereNothingCanBeKeptNothingIs()
{
    QVERIFY(TestSupport::write(path("file"), "a file\n"));
    for (const char *out : {"one", "two"}) {
        const Run made = run(generate({}, out), path("file"));
        QVERIFY2(made.status == 0, qPrintable(made.err));
        QVERIFY2(!made.err.contains(latin1("from the cache")), qPrintable(made.err));
        QVERIFY(!made.err.contains(path("file")));
    }
    QCOMPARE(run(generate({latin1("--check")}, "two"), path("file")).status, 0);
}

TARVO_TEST_MAIN(QCoreApplication, tst_CliFresh)
#include "tst_clifresh.moc"
