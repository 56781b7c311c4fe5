#include "drawnoptions.h"
#include "testsupport.h"

#include <config/ipcfile.h>
#include <config/nameprefix.h>
#include <dev/devicedb.h>
#include <export/prefixednetlist.h>
#include <generate/record.h>
#include <preview/preview.h>
#include <preview/previewforms.h>
#include <utils/fileutils.h>
#include <utils/inifile.h>

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;
using TestSupport::below;

namespace
{

using Picture = QMap<QString, QByteArray>; // by the path below the folder

Picture pictureOf(const QString &folder)
{
    Picture picture;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        picture.insert(path.mid(folder.size() + 1), TestSupport::contentsOf(path));
    }
    return picture;
}

QByteArray modelOf(const QByteArray &netlist)
{
    return "// model\n" + netlist;
}

} // namespace

// What is said of a generation before it happens. The seed is printed when a test fails;
// TARVO_TEST_SEED repeats it.
class tst_Preview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void saysWhatAGenerationThenWrites();
    void aGenerationThatIsSaidToChangeNothingChangesNothing();
    void thePatchTurnsTheFolderIntoWhatIsGenerated();
    void tellsWhatFollowsFromTheOptions();
    void comparesWithTheStoredConfigurationWhereNothingWasGenerated();
    void comparesTheEstimatesOfBothConfigurations();
    void whatNoRunIsKnownToHaveMadeIsSaidToBeLost();
    void longTextsAreToldAndNotShown();
    void sumsOfLargeFilesAreTakenOnceUntilTheyChange();

private:
    // What becomes of the tool.
    enum Tool { None, Known, Open, Failing };

    QString out() const { return m_dir->filePath(QStringLiteral("out")); }
    GenerationInput input(const OptionMap &options,
                          const QString &device = QStringLiteral("TV2KR-18C-QFN88P-C8/I7")) const;
    PreviewInput previewInput(const GenerationInput &input, Tool tool) const;
    static KnownResults resultsOf(const GenerationInput &input, const GenerationPlan &plan);
    // The steps of a generation, on the disk.
    void generate(const PreviewInput &input, Tool tool, bool isKilled = false);
    QString editSomething(TestSupport::Random &random);
    static const PreviewFile *find(const Preview &preview, const char *path);

    std::unique_ptr<QTemporaryDir> m_dir;
    SystemDescription m_description;
};

void tst_Preview::initTestCase()
{
    const Utils::Result<SystemDescription> description =
        readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
}

void tst_Preview::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("data/a.v")), "module a;\n"));
    QVERIFY(TestSupport::write(m_dir->filePath(QStringLiteral("data/define.vh")), "\n"));
}

GenerationInput tst_Preview::input(const OptionMap &options, const QString &device) const
{
    GenerationInput input;
    input.options = options;
    input.ipInfo = {{InfoKey::target, QStringLiteral("name")},
                    {InfoKey::id, QStringLiteral("vendor.name")},
                    {InfoKey::version, QStringLiteral("2.1")},
                    {InfoKey::debug, m_dir->filePath(QStringLiteral("data"))},
                    {InfoKey::noDebug, m_dir->filePath(QStringLiteral("data"))}};
    input.device = DEV::DeviceDb::bundled().findDevice(device);
    input.tool = TARVOORIXM1::Tool::TarvoSynthesis;
    input.language = effectiveLanguage(options.value(Key::lang, 0));
    input.createInPath = out();
    return input;
}

// Another netlist for other include files.
KnownResults tst_Preview::resultsOf(const GenerationInput &input, const GenerationPlan &plan)
{
    const QByteArray sum = originOf(input, plan, sha256).inputs.at(2).sha256;
    KnownResults results;
    const ResultPaths paths = resultPaths(plan.outputs);
    for (const QString &path : paths.always) {
        if (path.startsWith(plan.folder + u'/'))
            results.files.append({path.mid(plan.folder.size() + 1), sum + path.right(5).toUtf8()});
    }
    results.files.append({QStringLiteral("name.log"), "from the cache\n"});
    results.decode = [](const QByteArray &netlist) -> Utils::Result<QByteArray> {
        return modelOf(netlist);
    };
    results.tool = QStringLiteral("tool");
    results.toolVersion = QStringLiteral("1");
    results.report = {{QStringLiteral("summary"), QString(plan.folder + QLatin1String(" done"))}};
    return results;
}

PreviewInput tst_Preview::previewInput(const GenerationInput &input, Tool tool) const
{
    PreviewInput preview;
    preview.generation = input;
    const Utils::Result<QByteArray> text =
        Utils::iniText(IpcFile::header(input.device.id(), input.ipInfo),
                       QString(IpcFile::configGroup), input.options);
    if (text)
        preview.configuration =
            StoredConfiguration{IpcFile::path(input.createInPath, input.ipInfo), *text};
    preview.synthesise = tool != None;
    if (tool == Known)
        preview.results = [input](const Origin &) {
            return resultsOf(input, generationPlan(input));
        };
    preview.prefix = prefixOf(input.options);
    preview.planSet = Utils::planBundle;
    preview.description = &m_description;
    preview.findDevice = [](const QString &id) { return DEV::DeviceDb::bundled().findDevice(id); };
    return preview;
}

// Killed: with everything in its place and nothing recorded.
void tst_Preview::generate(const PreviewInput &input, Tool tool, bool isKilled)
{
    const GenerationInput &generation = input.generation;
    const GenerationPlan plan = generationPlan(generation);
    // Without waiting for the disk.
    const auto writeLines = [](const QString &path, const QStringList &lines, QString *) {
        QByteArray bytes;
        for (const QString &line : lines)
            bytes += line.toUtf8() + '\n';
        return TestSupport::write(path, bytes);
    };
    QString error;
    QVERIFY(QDir().mkpath(plan.folder));
    // Once in a while by its writer, which waits for the disk.
    static int count = 0;
    const StoredConfiguration &stored = *input.configuration;
    if (++count % 10 == 0)
        QVERIFY(Utils::writeIniFile(stored.path,
                                    IpcFile::header(generation.device.id(), generation.ipInfo),
                                    QString(IpcFile::configGroup), generation.options));
    else
        QVERIFY(TestSupport::write(stored.path, stored.text));
    GenerationRecord record(generation, plan, sha256, writeLines);
    QVERIFY2(record.begin(&error), qPrintable(error));
    for (const IncludeFile &file : plan.includeFiles)
        QVERIFY(writeLines(plan.pathOf(file), file.lines, &error));
    if (tool == None || tool == Failing) {
        QVERIFY2(record.finish(nullptr, &error), qPrintable(error));
        return;
    }
    const KnownResults results = resultsOf(generation, plan);
    for (const auto &file : results.files) {
        if (tool == Known || file.first != QLatin1String("name.log"))
            QVERIFY(TestSupport::write(plan.folder + u'/' + file.first, file.second));
    }
    QVERIFY2(record.keepEditedOutputs(&error), qPrintable(error));
    const Collection collected = collectOutputs(
        0, {}, plan.outputs, generation.createInPath,
        [](const QString &, const QString &netlist, const QString &destination, QString &) {
            return TestSupport::write(destination, modelOf(TestSupport::contentsOf(netlist))) ? 0
                                                                                              : 1;
        });
    QCOMPARE(collected.status, 0);
    if (isKilled)
        return;
    const GenerationRecord::Run run{results.tool, results.toolVersion, results.report};
    QVERIFY2(record.finish(&run, &error), qPrintable(error));
    if (input.prefix.isEmpty())
        return;
    const auto set = prefixedSet(generation, plan, input.prefix);
    QVERIFY2(set, qPrintable(set.reason()));
    // Once in a while by its writer, as above.
    if (count % 5 == 0) {
        const auto placed = Utils::writeBundle(*set);
        QVERIFY2(placed, qPrintable(placed.reason()));
        return;
    }
    const auto planned = Utils::planBundle(*set);
    QVERIFY2(planned, qPrintable(planned.reason()));
    for (const Utils::BundleEntry &entry : planned->report.entries) {
        if (entry.state == Utils::BundleEntry::LeftOver)
            QVERIFY(QFile::remove(out() + u'/' + entry.path));
    }
    for (const Utils::BundleFile &file : planned->written)
        QVERIFY(TestSupport::write(out() + u'/' + file.path, file.bytes));
}

// What may happen to a folder between two runs.
QString tst_Preview::editSomething(TestSupport::Random &random)
{
    const QStringList names = pictureOf(out()).keys();
    if (names.isEmpty())
        return {};
    const QString name = names.at(below(names.size(), random));
    const QString path = out() + u'/' + name;
    switch (below(5, random)) {
    case 0:
        QFile::remove(path);
        return QLatin1String("removed ") + name;
    case 1:
        TestSupport::write(path, TestSupport::contentsOf(path) + "// mine\n");
        return QLatin1String("appended to ") + name;
    case 2:
        TestSupport::write(path, "// no line end");
        return QLatin1String("replaced ") + name;
    case 3:
        // As a copy of an earlier edit may stand.
        TestSupport::write(path + QLatin1String(".edited"), TestSupport::contentsOf(path));
        return QLatin1String("copied ") + name;
    default:
        return {};
    }
}

void tst_Preview::saysWhatAGenerationThenWrites()
{
    bool given = false;
    uint seed = uint(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
    if (!given)
        seed = QRandomGenerator::global()->generate() & 0x7fffffff;
    TestSupport::Random random(seed);
    const auto devices = DEV::DeviceDb::bundled().devices();
    QStringList story;
    int seen[PreviewFile::Removed + 1] = {};
    int seenWithPrefix[PreviewFile::Removed + 1] = {};
    const QStringList prefixes = {QString(), QString(), QStringLiteral("a_"),
                                  QStringLiteral("B1_")};
    QString prefix;
    OptionMap options;
    QString device = devices.first().id();
#ifdef __SANITIZE_ADDRESS__
    constexpr int rounds = 600; // a round takes ten times as long there
#else
    constexpr int rounds = 1000;
#endif
    for (int round = 0; round < rounds; ++round) {
        if (below(12, random) == 0) {
            QDir(out()).removeRecursively();
            story.clear();
        }
        if (below(3, random) != 0) {
            const DEV::DeviceArg next = devices.at(below(devices.size(), random));
            device = next.id();
            options = TestSupport::drawnOptions(next, random);
            options.insert(Key::lang, below(3, random) == 0 ? 1 : 0);
            if (below(3, random) == 0)
                prefix = prefixes.at(below(prefixes.size(), random));
            if (!prefix.isEmpty())
                options.insert(Key::namePrefix, prefix);
            story.append(QStringLiteral("other options"));
        }
        for (int edits = below(3, random); edits > 0; --edits)
            story.append(editSomething(random));
        const Tool tool = Tool(below(4, random));
        story.append(QString::number(tool));
        const auto tell = [&](const QString &what) {
            return QStringLiteral("TARVO_TEST_SEED=%1, round %2 (%3): %4")
                .arg(seed)
                .arg(round)
                .arg(story.join(QStringLiteral(", ")), what)
                .toUtf8();
        };

        const PreviewInput said = previewInput(input(options, device), tool);
        const Picture before = pictureOf(out());
        const Preview preview = previewOf(said);
        QVERIFY2(preview.error.isEmpty(), tell(preview.error).constData());
        QVERIFY2(pictureOf(out()) == before, tell(QStringLiteral("written")).constData());
        const bool isKilled = tool == Known && below(4, random) == 0;
        generate(said, tool, isKilled);
        if (QTest::currentTestFailed())
            QFAIL(tell(QStringLiteral("generation")).constData());
        if (isKilled) {
            story.append(QStringLiteral("killed"));
            continue;
        }
        const Picture after = pictureOf(out());

        QSet<QString> listed;
        for (const PreviewFile &file : preview.files) {
            const auto fail = [&](const char *what) {
                return tell(file.path + u' ' + stateName(file.state) + QLatin1String(what));
            };
            ++seen[file.state];
            if (!prefix.isEmpty() && file.path.startsWith(prefix))
                ++seenWithPrefix[file.state];
            QVERIFY2(!listed.contains(file.path), fail(" twice").constData());
            listed.insert(file.path);
            QVERIFY2((file.sizeBefore >= 0) == before.contains(file.path),
                     fail(" before").constData());
            if (file.before)
                QVERIFY2(*file.before == before[file.path], fail(" other before").constData());
            const bool isSame = before.contains(file.path) == after.contains(file.path) &&
                                before.value(file.path) == after.value(file.path);
            if (file.state == PreviewFile::Removed) {
                QVERIFY2(!file.after && before.contains(file.path), fail("").constData());
                QVERIFY2(tool == Failing || !after.contains(file.path), fail("").constData());
                continue;
            }
            if (file.isTools) {
                QVERIFY2(tool == Open || tool == Failing, fail(" is known").constData());
                QVERIFY2(!file.after, fail(" has contents").constData());
                if (tool == Failing)
                    continue;
                // A copy that may turn out needless.
                if (file.state == PreviewFile::Stays && !after.contains(file.path)) {
                    QVERIFY2(file.notes.size() == 1 && file.path.contains(QLatin1String(".edited")),
                             fail(" is gone").constData());
                    continue;
                }
                QVERIFY2(after.contains(file.path), fail(" was not made").constData());
            } else {
                QVERIFY2(file.after && after.contains(file.path),
                         fail(" is not there").constData());
                QVERIFY2(after.value(file.path) == *file.after, fail(" differs").constData());
            }
            switch (file.state) {
            case PreviewFile::New:
                QVERIFY2(!before.contains(file.path), fail("").constData());
                break;
            case PreviewFile::Changed:
                QVERIFY2(!isSame, fail("").constData());
                break;
            case PreviewFile::Equal:
            case PreviewFile::Stays:
                QVERIFY2(isSame, fail("").constData());
                break;
            case PreviewFile::Edited: {
                bool isKept = isSame;
                for (auto it = after.begin(); it != after.end(); ++it)
                    isKept = isKept || (it.key().startsWith(file.path + QLatin1String(".edited")) &&
                                        it.value() == before[file.path]);
                QVERIFY2(isKept, fail(" is lost").constData());
                break;
            }
            case PreviewFile::Remade:
                QVERIFY2(file.isTools, fail("").constData());
                break;
            case PreviewFile::Removed:
                break;
            }
        }
        // Nothing else has changed, but for what the tool's results displace.
        for (auto it = after.begin(); it != after.end(); ++it) {
            const bool isDisplaced =
                (tool == Open || tool == Failing) && it.key().contains(QLatin1String(".edited"));
            const bool isUntold = !listed.contains(it.key()) && !isDisplaced;
            QVERIFY2(!isUntold || (before.contains(it.key()) && before[it.key()] == it.value()),
                     tell(it.key() + QLatin1String(" was not told")).constData());
        }
        for (auto it = before.begin(); it != before.end(); ++it) {
            const PreviewFile *file = find(preview, it.key().toUtf8().constData());
            QVERIFY2(after.contains(it.key()) ||
                         (file && (file->state == PreviewFile::Removed || file->isTools)),
                     tell(it.key() + QLatin1String(" is gone")));
        }
        // Once everything is recorded, the same run again would change nothing.
        if (tool != Known)
            continue;
        const Preview again = previewOf(said);
        QVERIFY2(again.changesNothing(), tell(previewLines(again, true).join(u'\n')).constData());
    }
    for (const int count : seen)
        QVERIFY(count > 20);
    for (const int count : seenWithPrefix)
        QVERIFY(count > 10);
}

const PreviewFile *tst_Preview::find(const Preview &preview, const char *path)
{
    for (const PreviewFile &file : preview.files) {
        if (file.path == QLatin1String(path))
            return &file;
    }
    return nullptr;
}

void tst_Preview::aGenerationThatIsSaidToChangeNothingChangesNothing()
{
    const PreviewInput said = previewInput(input({{Key::enableGpio, true}}), Known);
    QVERIFY(!previewOf(said).changesNothing());
    generate(said, Known);
    const Preview preview = previewOf(said);
    QVERIFY2(preview.changesNothing(), qPrintable(previewLines(preview, true).join(u'\n')));
    QCOMPARE(previewLines(preview, true).constFirst(), QStringLiteral("Nothing would change."));
    QVERIFY(preview.differences.isEmpty());
    for (const PreviewFile &file : preview.files)
        QCOMPARE(stateName(file.state), QStringLiteral("equal"));
}

void tst_Preview::thePatchTurnsTheFolderIntoWhatIsGenerated()
{
    generate(previewInput(input({{Key::enableGpio, true}}), Known), Known);
    const QString edited = out() + QStringLiteral("/temp/tv_orix_m1/ahb_option_defs.v");
    QVERIFY(TestSupport::write(edited, TestSupport::contentsOf(edited) + "no line end"));
    QVERIFY(QFile::remove(out() + QStringLiteral("/temp/tv_orix_m1/parameter.vh")));
    const PreviewInput said = previewInput(input({{Key::enableGpio, false}}), Known);
    const QByteArray patch =
        previewAnswer(previewOf(said)).value(QStringLiteral("text")).toString().toUtf8();
    const QString program = QStandardPaths::findExecutable(QStringLiteral("patch"));
    QVERIFY(!program.isEmpty());
    const Picture before = pictureOf(out());
    QProcess process;
    process.setWorkingDirectory(out());
    process.start(program, {QStringLiteral("-p1"), QStringLiteral("--no-backup-if-mismatch")});
    process.write(patch);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(-1));
    const QByteArray told = process.readAll() + process.readAllStandardError();
    QVERIFY2(process.exitCode() == 0, QByteArray(told + patch).constData());
    const Picture patched = pictureOf(out());
    QVERIFY(patched != before);
    for (auto it = before.begin(); it != before.end(); ++it)
        QVERIFY(TestSupport::write(out() + u'/' + it.key(), it.value()));
    for (const QString &name : patched.keys()) {
        if (!before.contains(name))
            QVERIFY(QFile::remove(out() + u'/' + name));
    }
    generate(said, Known);
    const Picture generated = pictureOf(out());
    QCOMPARE(patched.keys(), generated.keys());
    for (auto it = generated.begin(); it != generated.end(); ++it)
        QVERIFY2(patched[it.key()] == it.value(), qPrintable(it.key()));
}

void tst_Preview::tellsWhatFollowsFromTheOptions()
{
    generate(previewInput(input({{Key::enableGpio, true}}), None), None);
    const Preview preview =
        previewOf(previewInput(input({{Key::enableGpio, false}, {Key::enableUart0, true}}), None));
    QMap<QString, QStringList> texts;
    for (const PreviewDifference &difference : preview.differences)
        texts[difference.kind].append(difference.text);
    const auto has = [&texts](const char *kind, const char *start) {
        const QStringList all = texts.value(QLatin1String(kind));
        return std::any_of(all.begin(), all.end(), [start](const QString &text) {
            return text.startsWith(QLatin1String(start));
        });
    };
    const QByteArray all = previewLines(preview, false).join(u'\n').toUtf8();
    QVERIFY2(has("option", "~ Enable GPIO: true -> false"), all.constData());
    QVERIFY2(has("option", "~ Enable UART0: false -> true"), all.constData());
    QVERIFY2(has("port", "- GPIO"), all.constData());
    QVERIFY2(has("port", "+ UART0"), all.constData());
    QVERIFY2(has("register", "+ UART0.") && has("register", "- GPIO."), all.constData());
    QVERIFY2(has("interrupt", "+ UART0"), all.constData());
    QVERIFY2(has("memory", "+ UART0"), all.constData());
    QVERIFY2(!has("resource", ""), all.constData());
    for (const char *title : {"\nOptions\n", "\nPorts\n", "\nAddress map\n", "\nRegisters\n"})
        QVERIFY2(all.contains(title), all.constData());
}

void tst_Preview::comparesWithTheStoredConfigurationWhereNothingWasGenerated()
{
    PreviewInput said = previewInput(input({{Key::enableGpio, false}}), None);
    QVERIFY(previewOf(said).differences.isEmpty());
    said.standing = input({{Key::enableGpio, true}});
    const Preview preview = previewOf(said);
    QVERIFY(!preview.differences.isEmpty());
    QCOMPARE(preview.differences.constFirst().text, QStringLiteral("~ Enable GPIO: true -> false"));
    // A manifest says what the files were made from, whatever is stored meanwhile.
    generate(said, None);
    QVERIFY(previewOf(said).differences.isEmpty());
}

void tst_Preview::comparesTheEstimatesOfBothConfigurations()
{
    generate(previewInput(input({{Key::enableGpio, true}}), None), None);
    PreviewInput said = previewInput(input({{Key::enableGpio, false}}), None);
    said.estimate = [](const OptionMap &options, const DEV::DeviceArg &) {
        return ResourceFigures{
            {{QStringLiteral("LUT4"), options.value(Key::enableGpio).toBool() ? 20 : 10, 100}}, {}};
    };
    const Preview preview = previewOf(said);
    const PreviewDifference last = preview.differences.constLast();
    QCOMPARE(QString(last.kind), QStringLiteral("resource"));
    QCOMPARE(last.text, QStringLiteral("~ LUT4: used 20 -> 10"));
}

void tst_Preview::whatNoRunIsKnownToHaveMadeIsSaidToBeLost()
{
    const char *const path = "temp/tv_orix_m1/ahb_option_defs.v";
    QVERIFY(TestSupport::write(out() + u'/' + QLatin1String(path), "// mine\n"));
    QVERIFY(TestSupport::write(out() + QStringLiteral("/name.v"), "// mine\n"));
    const Preview preview = previewOf(previewInput(input({{Key::enableGpio, true}}), Open));
    for (const char *name : {path, "name.v"}) {
        const PreviewFile *file = find(preview, name);
        QVERIFY(file);
        QVERIFY2(file->notes.join(u' ').contains(QLatin1String("will be lost")), name);
    }
    QCOMPARE(stateName(find(preview, path)->state), QStringLiteral("changed"));
    QCOMPARE(stateName(find(preview, "name.v")->state), QStringLiteral("remade"));
    QVERIFY(find(preview, "temp/tv_orix_m1/manifest.json")->isTools);
}

void tst_Preview::longTextsAreToldAndNotShown()
{
    generate(previewInput(input({{Key::enableGpio, true}}), Known), Known);
    const QByteArray netlist = QByteArray(60 << 20, 'x');
    QVERIFY(TestSupport::write(out() + QStringLiteral("/name.v"), netlist));
    const PreviewInput said = previewInput(input({{Key::enableGpio, false}}), Known);
    const Preview preview = previewOf(said);
    const PreviewFile *file = find(preview, "name.v");
    QVERIFY(file && file->isLong() && !file->before && file->after);
    QCOMPARE(stateName(file->state), QStringLiteral("edited"));
    const QVariantMap answer = previewAnswer(preview);
    QVERIFY(answer.value(QStringLiteral("text")).toString().size() < 1 << 20);
    QVERIFY(answer.value(QStringLiteral("text"))
                .toString()
                .contains(QStringLiteral("Too long to be shown (62914560 bytes).")));
    const QVariantList files = answer.value(QStringLiteral("files")).toList();
    int shown = 0;
    for (const QVariant &entry : files) {
        const QVariantMap map = entry.toMap();
        shown += map.contains(QStringLiteral("after"));
        if (map.value(QStringLiteral("path")).toString().startsWith(QLatin1String("name.v"))) {
            const bool isModel = map.value(QStringLiteral("path")) == QLatin1String("name.vo");
            QCOMPARE(map.contains(QStringLiteral("before")), isModel);
        }
    }
    QVERIFY(shown > 7);
    // Its contents are kept as they were.
    generate(said, Known);
    QVERIFY(TestSupport::contentsOf(out() + QStringLiteral("/name.v.edited")) == netlist);
}

void tst_Preview::sumsOfLargeFilesAreTakenOnceUntilTheyChange()
{
    static int taken;
    taken = 0;
    const Digest digest = [](const QByteArray &bytes) {
        ++taken;
        return sha256(bytes.left(10) + bytes.right(10));
    };
    const QString path = m_dir->filePath(QStringLiteral("large"));
    const auto writeAt = [&path](const QByteArray &bytes, const QDateTime &time) {
        QVERIFY(TestSupport::write(path, bytes));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    };
    const QDateTime old = QDateTime::currentDateTime().addDays(-1);
    DigestMemory memory;
    writeAt(QByteArray(3 << 20, 'a'), old);
    // So recent a change is looked at each time.
    const QByteArray first = memory.digestOf(path, digest);
    QCOMPARE(memory.digestOf(path, digest), first);
    QCOMPARE(taken, 2);
    const QFileInfo info(path);
    QTRY_VERIFY_WITH_TIMEOUT(info.metadataChangeTime().msecsTo(QDateTime::currentDateTime()) > 2100,
                             5000);
    QCOMPARE(memory.digestOf(path, digest), first);
    QCOMPARE(memory.digestOf(path, digest), first);
    QCOMPARE(taken, 3);
    writeAt(QByteArray(3 << 20, 'b'), old); // of the same size and time
    QVERIFY(memory.digestOf(path, digest) != first);
    QVERIFY(QFile::remove(path));
    QCOMPARE(memory.digestOf(path, digest), QByteArray());
}

TARVO_TEST_MAIN(QCoreApplication, tst_Preview)

#include "tst_preview.moc"
