#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <generate/record.h>
#include <generate/state.h>
#include <utils/fileutils.h>

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

// Generations that end after any of their steps, by turns with somebody who edits the files. The
// seed is printed when a test fails; TARVO_TEST_SEED repeats it.
class tst_Record : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheTruthWhereverRunsEnd();
    void leavesNoCopiesOfItsOwn();
    void takesBackWhatItCouldNotKeep();

private:
    // A disk on which a process ends, or nothing more fits, after some copies.
    class EndingDisk;
    GenerationInput input(bool gpio, Language language) const;
    void runUpTo(int step, int end, const GenerationInput &input, Disk *disk = nullptr);
    QStringList copies() const;
    void put(const QString &path, const QByteArray &bytes);
    bool isKeptSomewhere(const QString &path, const QByteArray &bytes) const;

    QTemporaryDir m_dir;
    QSet<QString> m_edited;              // paths; nothing has replaced them since
    QMap<QString, QByteArray> m_written; // edits that must be found again
    QStringList m_story;
    QStringList m_messages; // of all runs that ended
};

namespace
{

uint chosenSeed()
{
    bool given = false;
    const uint seed = uint(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
    return given ? seed : QRandomGenerator::global()->generate() & 0x7fffffff;
}

} // namespace

class tst_Record::EndingDisk : public Disk
{
public:
    struct End {
    };

    EndingDisk(int copies, bool isFull)
        : m_left(copies)
        , m_isFull(isFull)
    {
    }

    bool copy(const QString &from, const QString &to, QString *error) override
    {
        if (m_left-- > 0)
            return Disk::copy(from, to, error);
        if (!m_isFull)
            throw End();
        *error = QStringLiteral("full");
        return false;
    }

private:
    int m_left;
    bool m_isFull;
};

QStringList tst_Record::copies() const
{
    QStringList found;
    QDirIterator files(m_dir.filePath(QStringLiteral("out")), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.contains(QLatin1String(".edited")))
            found.append(path);
    }
    found.sort();
    return found;
}

GenerationInput tst_Record::input(bool gpio, Language language) const
{
    GenerationInput input;
    input.options = {{Key::enableGpio, gpio}};
    input.ipInfo = {{InfoKey::target, QStringLiteral("name")},
                    {InfoKey::version, QStringLiteral("2.1")},
                    {InfoKey::debug, m_dir.filePath(QStringLiteral("data"))}};
    input.device = DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    input.tool = Tool::TarvoSynthesis;
    input.language = language;
    input.createInPath = m_dir.filePath(QStringLiteral("out"));
    return input;
}

// What a run writes takes the place of what was edited.
void tst_Record::put(const QString &path, const QByteArray &bytes)
{
    QVERIFY(TestSupport::write(path, bytes));
    m_edited.remove(path);
}

bool tst_Record::isKeptSomewhere(const QString &path, const QByteArray &bytes) const
{
    const QFileInfo info(path);
    const QStringList names = TestSupport::entriesOf(info.absolutePath());
    for (const QString &name : names) {
        const bool isCopy =
            name == info.fileName() || name.startsWith(info.fileName() + QLatin1String(".edited"));
        if (isCopy && TestSupport::contentsOf(info.absolutePath() + u'/' + name) == bytes)
            return true;
    }
    return false;
}

// A run of which only the steps before `step` happen; `end`: 0 the tool succeeds, 1 it fails,
// 2 none is run.
void tst_Record::runUpTo(int step, int end, const GenerationInput &input, Disk *disk)
{
    const GenerationPlan plan = generationPlan(input);
    GenerationRecord record(input, plan, sha256, Utils::FileUtils::writeLines, disk);
    QString error;
    const auto isOver = [&step] { return step-- <= 0; };
    QVERIFY(QDir().mkpath(plan.folder));
    if (isOver())
        return;
    QVERIFY2(record.begin(&error), qPrintable(error));
    for (const IncludeFile &file : plan.includeFiles) {
        if (isOver())
            return;
        put(plan.pathOf(file), bytesOf(file));
    }
    if (isOver())
        return;
    if (end != 0) {
        QVERIFY2(record.finish(nullptr, &error), qPrintable(error));
        m_messages += record.messages();
        return;
    }
    const QByteArray result =
        input.options.value(Key::enableGpio).toBool() ? "with GPIO" : "without";
    for (const Output &output : plan.outputs.copied) {
        if (!output.isOptional)
            put(output.source, result + output.source.toUtf8());
    }
    put(plan.outputs.verilogNetlist, result + plan.outputs.verilogNetlist.toUtf8());
    if (isOver())
        return;
    QVERIFY2(record.keepEditedOutputs(&error), qPrintable(error));
    for (const Output &output : plan.outputs.copied) {
        if (isOver())
            return;
        if (!output.isOptional)
            put(output.file, TestSupport::contentsOf(output.source));
    }
    if (isOver())
        return;
    put(plan.outputs.decoded, result + "decoded");
    if (isOver())
        return;
    const GenerationRecord::Run run{QStringLiteral("tool"), QStringLiteral("1"), {}};
    QVERIFY2(record.finish(&run, &error), qPrintable(error));
    m_messages += record.messages();
}

void tst_Record::tellsTheTruthWhereverRunsEnd()
{
    const uint seed = chosenSeed();
    QRandomGenerator random(seed);
    const auto tell = [&](const QString &more = QString()) {
        return QStringLiteral("TARVO_TEST_SEED=%1: %2")
            .arg(seed)
            .arg(m_story.join(QStringLiteral(", ")) + QStringLiteral(": ") + more)
            .toUtf8();
    };
    QVERIFY(TestSupport::write(m_dir.filePath(QStringLiteral("data/a.v")), "module a;\n"));
    QVERIFY(TestSupport::write(m_dir.filePath(QStringLiteral("data/define.vh")), "\n"));
    const int whole = 40; // more steps than there are

    int edits = 0;
    int states[FileState::Foreign + 1] = {};
    for (int sequence = 0; sequence < 60; ++sequence) {
        QDir(m_dir.filePath(QStringLiteral("out"))).removeRecursively();
        m_edited.clear();
        m_written.clear();
        m_story = QStringList{QStringLiteral("run to its end")};
        runUpTo(whole, 0, input(false, Language::Vhdl));
        for (int move = 0; move < 12; ++move) {
            const GenerationInput next =
                input(random.bounded(2) == 1,
                      random.bounded(4) == 0 ? Language::Verilog : Language::Vhdl);
            const GenerationPlan plan = generationPlan(next);
            const bool isEdit = random.bounded(4) == 0;
            if (isEdit) {
                QStringList paths = resultPaths(plan.outputs).always;
                for (const IncludeFile &file : plan.includeFiles)
                    paths.append(plan.pathOf(file));
                const QString path = paths.at(random.bounded(paths.size()));
                m_story.append(QStringLiteral("edit ") + path);
                const QByteArray bytes = "edit " + QByteArray::number(++edits);
                QVERIFY(TestSupport::write(path, bytes));
                m_edited.insert(path);
                m_written.insert(path, bytes);
            } else {
                const int step = random.bounded(2) == 0 ? whole : random.bounded(24);
                const int end = random.bounded(3);
                m_story.append(QStringLiteral("run up to %1 with end %2, GPIO %3")
                                   .arg(step)
                                   .arg(end)
                                   .arg(next.options.value(Key::enableGpio).toString()));
                runUpTo(step, end, next);
            }
            if (QTest::currentTestFailed())
                qFatal("%s", tell().constData());
            for (auto edit = m_written.constBegin(); edit != m_written.constEnd(); ++edit)
                QVERIFY2(isKeptSomewhere(edit.key(), edit.value()), tell(edit.key()));

            const auto tool = [] {
                return ToolFacts{QStringLiteral("tool"), QStringLiteral("1"), true};
            };
            const GenerationState state = generationState(next, plan, tool, sha256, false);
            QVERIFY2(state.manifest, tell(state.messages.join(u' ')));
            // All include files are those of a run that has ended.
            for (const DigestedFile &file : state.manifest->pendingFiles)
                QVERIFY2(!state.manifest->isFinished ||
                             !state.manifest->includeFiles.contains(file),
                         tell(file.name));
            for (const FileState &file : state.files) {
                ++states[file.state];
                if (file.state == FileState::Edited)
                    QVERIFY2(m_edited.contains(file.path), tell(file.path));
                if (file.state == FileState::Fresh)
                    QVERIFY2(!m_edited.contains(file.path), tell(file.path));
                if (file.state == FileState::Fresh && file.isInclude)
                    QCOMPARE(TestSupport::contentsOf(file.path), file.expected);
                // A run that did not end may leave results that nobody can tell from edits.
                if (m_edited.contains(file.path) && file.isInclude)
                    QVERIFY2(file.state == FileState::Edited, tell(file.path));
            }
        }
    }
    QVERIFY(edits > 50);
    for (const FileState::State state :
         {FileState::Fresh, FileState::Stale, FileState::Edited, FileState::Missing})
        QVERIFY2(states[state] > 0, qPrintable(stateName(state)));
}

// Runs of one configuration that end after any of their steps, or between two copies. What they had
// to keep, not knowing whose it was, goes with the first that ends; what somebody has written
// stays.
void tst_Record::leavesNoCopiesOfItsOwn()
{
    const uint seed = chosenSeed();
    QRandomGenerator random(seed);
    const GenerationInput input = this->input(true, Language::Vhdl);
    const int whole = 40;
    int kept = 0;
    int ended = 0;
    for (int sequence = 0; sequence < 50; ++sequence) {
        QDir(m_dir.filePath(QStringLiteral("out"))).removeRecursively();
        m_edited.clear();
        m_story.clear();
        m_messages.clear();
        const auto tell = [&] {
            return QStringLiteral("TARVO_TEST_SEED=%1, sequence %2: %3; %4")
                .arg(seed)
                .arg(sequence)
                .arg(m_story.join(QStringLiteral(", ")), copies().join(u' '))
                .toUtf8();
        };
        // Nothing is known before a first manifest, here of a run without results.
        runUpTo(whole, 1, input);
        const QString edited = generationPlan(input).outputs.verilogNetlist;
        const bool isEdited = sequence % 4 == 0;
        if (isEdited) {
            runUpTo(whole, 0, input);
            QVERIFY(TestSupport::write(edited, "mine"));
        }
        for (int run = 0; run < 5; ++run) {
            const int step = random.bounded(24);
            const int end = random.bounded(3);
            const int copies = random.bounded(6);
            EndingDisk disk(copies, false);
            m_story.append(QStringLiteral("run up to %1 with end %2 or %3 copies")
                               .arg(step)
                               .arg(end)
                               .arg(copies));
            try {
                runUpTo(step, end, input, &disk);
            } catch (const EndingDisk::End &) {
                ++ended;
            }
            if (QTest::currentTestFailed())
                qFatal("%s", tell().constData());
        }
        kept += copies().size();
        runUpTo(whole, 0, input);
        QCOMPARE(TestSupport::contentsOf(edited), QByteArray("with GPIO") + edited.toUtf8());
        const QStringList left = copies();
        if (!isEdited)
            QVERIFY2(left.isEmpty(), tell().constData());
        if (isEdited)
            QVERIFY2(left.size() == 1 && TestSupport::contentsOf(left.first()) == "mine" &&
                         !m_messages.filter(left.first()).isEmpty(),
                     tell().constData());
    }
    // A tenth of what is usual.
    QVERIFY2(kept > 3, qPrintable(QString::number(kept)));
    QVERIFY2(ended > 0, qPrintable(QString::number(seed)));
}

// The disk is full after some copies.
void tst_Record::takesBackWhatItCouldNotKeep()
{
    QDir(m_dir.filePath(QStringLiteral("out"))).removeRecursively();
    const GenerationInput input = this->input(true, Language::Vhdl);
    const GenerationPlan plan = generationPlan(input);
    runUpTo(40, 0, input);
    const QStringList edited = {plan.pathOf(plan.includeFiles.first()),
                                plan.outputs.verilogNetlist};
    for (const QString &path : edited)
        QVERIFY(TestSupport::write(path, "mine"));
    const QString manifest = plan.folder + QLatin1String("/manifest.json");
    const QByteArray before = TestSupport::contentsOf(manifest);
    for (int fitting = 0; fitting < edited.size(); ++fitting) {
        EndingDisk disk(fitting, true);
        GenerationRecord record(input, plan, sha256, Utils::FileUtils::writeLines, &disk);
        QString error;
        QVERIFY(!record.begin(&error));
        QCOMPARE(error, QStringLiteral("full"));
        QCOMPARE(copies(), QStringList());
        QCOMPARE(record.messages(), QStringList());
        QCOMPARE(TestSupport::contentsOf(manifest), before);
        for (const QString &path : edited)
            QCOMPARE(TestSupport::contentsOf(path), QByteArray("mine"));
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_Record)
#include "tst_record.moc"
