#include "sweepcommand.h"

#include "../commandline.h"
#include "../environment.h"
#include "../ipcdocument.h"
#include "../output.h"
#include "pointfolder.h"
#include "pointjob.h"
#include "sweepjobs.h"

#include <config/ipcfile.h>
#include <generate/plan.h>
#include <reading/limits.h>
#include <sweep/configure.h>
#include <sweep/plan.h>
#include <sweep/table.h>
#include <sweep/tradeoff.h>
#include <sweep/workflow.h>
#include <synthesis/resources.h>
#include <utils/boundedfile.h>
#include <utils/fileplacement.h>
#include <utils/fileutils.h>
#include <utils/folderlock.h>
#include <utils/inifile.h>
#include <utils/interrupt.h>

#include <CLI/CLI.hpp>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>
#include <QThread>

#include <memory>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct SweepArguments {
    QString plan; // not for one point or the table
    QString outDir;
    bool synthesise = true;
    bool files = false;     // without synthesis: of each point
    int jobs = 0;           // at a time; 0: as many as the machine has cores
    bool snakemake = false; // write a workflow instead of running the jobs
    QString point;          // do only this one, as a job
    bool onlyTable = false; // of what is there
    bool force = false;     // also what is done
    bool json = false;
    QString deviceFolder; // of the whole program; empty: the built-in devices
};

QString absolute(const QString &folder)
{
    return QDir(QFileInfo(folder).absoluteFilePath()).path();
}

// A sweep from its plan to its table.
class Sweep
{
public:
    Sweep(Environment &environment, const SweepArguments &arguments)
        : m_environment(environment)
        , m_arguments(arguments)
        , m_folder(absolute(arguments.outDir))
    {
        QObject::connect(&m_interrupt, &Utils::Interrupt::received, [this] {
            m_isCancelled = true;
            if (m_cancelJobs)
                m_cancelJobs();
        });
    }

    int run()
    {
        m_ipInfo = m_environment.ipInfo();
        if (m_ipInfo.isEmpty() || !m_environment.devices())
            return BadInput;
        if (const int status = m_arguments.onlyTable ? readTable() : readPlan(); status != Done)
            return status;
        QString error;
        if (!Utils::FileUtils::makePath(m_folder, &error))
            return fail(Failed, error);
        if (m_arguments.onlyTable) {
            takeResults();
            return finish();
        }
        // From the first file to the last.
        const std::shared_ptr<Utils::FolderLock> lock = Utils::FolderLock::take(m_folder, &error);
        if (!lock)
            return fail(Failed, error);
        if (m_arguments.synthesise) {
            if (const int status = synthesise(); status != Done)
                return status;
        } else {
            judgeAll();
        }
        return finish();
    }

private:
    // What a point is made of beside its row in the table.
    struct Work {
        DEV::DeviceArg device;
        OptionMap options;
        QString fingerprint; // once it is known
    };

    static int fail(int status, const QString &text, const QString &file = QString())
    {
        printProblem({text, {}, file});
        return status;
    }

    int refuse(const QVector<PlanMistake> &mistakes) const
    {
        for (const PlanMistake &mistake : mistakes) {
            const Problem problem = {mistake.text, mistake.key, m_arguments.plan, mistake.line,
                                     mistake.fix};
            printError(
                problem.file + u':' + QString::number(mistake.line) + u':' +
                QString::number(mistake.column) + QLatin1String(": ") +
                (mistake.key.isEmpty() ? QString() : QString(mistake.key + QLatin1String(": "))) +
                sentenceOf(problem));
            recordProblem(problem);
        }
        return BadInput;
    }

    int readPlan()
    {
        const auto text = Utils::readBoundedFile(m_arguments.plan, Reading::Limits::sweepPlan);
        if (!text)
            return fail(BadInput, text.reason(), m_arguments.plan);
        const SweepPlanText read =
            readSweepPlan(*text, *m_environment.devices(), Synthesis::resourceNames());
        if (!read.mistakes.isEmpty())
            return refuse(read.mistakes);
        const SweepPlan &plan = read.plan;
        m_planFolder = QFileInfo(m_arguments.plan).absolutePath();
        SweepBase base;
        if (!plan.base.isEmpty()) {
            const QString path = QDir(m_planFolder).filePath(plan.base);
            const auto document = IpcDocument::read(path, *m_environment.devices());
            if (!document)
                return fail(BadInput, document.reason(), path);
            if (const QString problem = document->deviceProblem(); !problem.isEmpty())
                return fail(BadInput, u'"' + path + QLatin1String("\" ") + problem + u'.', path);
            base = {document->device, document->options, document->folder()};
            m_headers = *document;
        }

        m_table.keys = variedKeys(plan);
        m_table.pictureX = plan.pictureX;
        m_table.pictureY = plan.pictureY;
        QSet<QString> names;
        const QVector<SweepPoint> points = sweepPoints(plan, base.device);
        for (const SweepPoint &point : points) {
            const QString folder = PointFolder(m_folder, point.name, m_ipInfo).path();
            const PointConfiguration made = configure(point, base, folder, m_planFolder);
            if (isExcluded(plan, point.device, made.options))
                continue;
            if (names.contains(point.name))
                return fail(BadInput,
                            QLatin1String("Two points have the name \"") + point.name +
                                QLatin1String("\"."),
                            m_arguments.plan);
            names.insert(point.name);
            SweepResult result;
            result.name = point.name;
            result.device = point.device.id();
            result.settings = point.settings;
            if (!made.mistake.isEmpty())
                result.state = PointState::Failed;
            else if (!made.impossible.isEmpty())
                result.state = PointState::Impossible;
            result.reason = made.mistake + made.impossible;
            m_table.results.append(result);
            m_work.append({point.device, made.options, {}});
        }
        if (m_table.results.isEmpty())
            return fail(BadInput, QStringLiteral("The plan leaves out every point."),
                        m_arguments.plan);
        return Done;
    }

    // Of an earlier run.
    int readTable()
    {
        const QString path = m_folder + u'/' + SweepFile::index;
        const auto text = Utils::readBoundedFile(path, Reading::Limits::anyFile);
        if (!text)
            return fail(BadInput, text.reason(), path);
        const auto table = readIndex(*text);
        if (!table)
            return fail(BadInput,
                        u'"' + path + QLatin1String("\" cannot be used: ") + table.reason() + u'.',
                        path);
        m_table = *table;
        Fingerprints fingerprints(m_ipInfo);
        for (const SweepResult &result : qAsConst(m_table.results)) {
            Work work;
            const PointFolder folder(m_folder, result.name, m_ipInfo);
            if (result.state == PointState::Open) {
                const auto document =
                    IpcDocument::read(folder.configuration(), *m_environment.devices());
                const auto bytes = Utils::readConfigurationFile(folder.configuration());
                if (document && bytes)
                    work.fingerprint = fingerprints.of(*bytes, document->options, document->device);
            }
            m_work.append(work);
        }
        return Done;
    }

    bool isRunnable(int i) const { return m_table.results.at(i).state == PointState::Open; }

    Utils::Result<QByteArray> configurationText(const Work &work) const
    {
        const QVariantMap header = m_headers.path.isEmpty()
                                       ? IpcFile::header(work.device.id(), m_ipInfo)
                                       : m_headers.movedHeader(work.device.id());
        return Utils::iniText(header, IpcFile::configGroup, work.options);
    }

    // Signals, too.
    static void letEventsIn() { QCoreApplication::processEvents(); }

    // Without synthesis there is nothing to wait for, not even the disk: what is lost with the
    // machine's power is written again by the next run.
    void judgeAll()
    {
        Fingerprints fingerprints(m_ipInfo);
        for (int i = 0; i < m_work.size() && !m_isCancelled; ++i) {
            if (!isRunnable(i))
                continue;
            SweepResult &result = m_table.results[i];
            showProgress(i, m_work.size(), result.name);
            const QString mistake =
                m_arguments.files ? writeFiles(m_work.at(i), result.name) : QString();
            takeEarlierFigures(m_work.at(i), fingerprints, &result);
            if (!mistake.isEmpty()) {
                result.state = PointState::Failed;
                result.reason = mistake;
            } else if (result.state != PointState::Done) {
                result.state = m_arguments.files ? PointState::Generated : PointState::Possible;
                result.reason.clear();
            }
            letEventsIn();
        }
    }

    // Of a run before that still hold.
    void takeEarlierFigures(const Work &work, Fingerprints &fingerprints, SweepResult *result)
    {
        const PointFolder folder(m_folder, result->name, m_ipInfo);
        if (!QFileInfo::exists(folder.result()))
            return;
        if (const auto text = configurationText(work); text)
            folder.take(fingerprints.of(*text, work.options, work.device), m_tool, result);
    }

    // Empty, or why it could not be written.
    QString writeFiles(const Work &work, const QString &point) const
    {
        const PointFolder folder(m_folder, point, m_ipInfo);
        const auto text = configurationText(work);
        if (!text)
            return text.reason();
        IpcDocument document;
        document.device = work.device;
        document.options = work.options;
        const GenerationPlan plan =
            generationPlan(generationInput(document, m_ipInfo, folder.path()));
        QString error;
        if (!QDir().mkpath(plan.folder) && !Utils::FileUtils::makePath(plan.folder, &error))
            return error;
        const std::shared_ptr<Utils::FolderLock> lock =
            Utils::FolderLock::take(plan.folder, &error);
        if (!lock || !Utils::FileUtils::writePassingFile(folder.configuration(), *text, &error))
            return error;
        for (const IncludeFile &file : plan.includeFiles) {
            QByteArray bytes;
            for (const QString &line : file.lines)
                bytes += line.toUtf8() + '\n';
            if (!Utils::FileUtils::writePassingFile(plan.pathOf(file), bytes, &error))
                return error;
        }
        return {};
    }

    int synthesise()
    {
        QString ninja;
        if (!m_arguments.snakemake) {
            const auto found = SweepJobs::findNinja();
            if (!found)
                return fail(Failed, found.reason());
            ninja = *found;
        }
        QStringList runnable;
        int open = 0;
        Fingerprints fingerprints(m_ipInfo);
        for (int i = 0; i < m_work.size() && !m_isCancelled; ++i) {
            if (!isRunnable(i))
                continue;
            Work &work = m_work[i];
            const QString name = m_table.results.at(i).name;
            const PointFolder folder(m_folder, name, m_ipInfo);
            const auto text = configurationText(work);
            QString error = text.reason();
            if (!text || !Utils::FileUtils::makePath(folder.path(), &error) ||
                !Utils::FileUtils::writeFile(folder.configuration(), *text, &error))
                return fail(Failed, error);
            work.fingerprint = fingerprints.of(*text, work.options, work.device);
            SweepResult now;
            folder.take(work.fingerprint, m_tool, &now);
            if (now.state != PointState::Done || m_arguments.force) {
                folder.forget();
                ++open;
            }
            runnable.append(name);
            letEventsIn();
        }
        if (m_isCancelled)
            return Done;
        const QString configuration = QFileInfo(IpcFile::path(m_folder, m_ipInfo)).fileName();
        const QString file =
            m_folder + u'/' + (m_arguments.snakemake ? SweepFile::snakemake : SweepFile::ninja);
        const QByteArray text =
            m_arguments.snakemake ? snakefile(configuration) : ninjaFile(runnable, configuration);
        QString error;
        if (!Utils::FileUtils::writeFile(m_folder + u'/' + SweepFile::index, indexText(m_table),
                                         &error) ||
            !Utils::FileUtils::writeFile(file, text, &error))
            return fail(Failed, error);
        if (!m_arguments.snakemake && open > 0) {
            const auto run = runJobs(ninja, open);
            if (!run)
                return fail(Failed, run.reason());
        }
        takeResults();
        if (!m_arguments.snakemake && !m_isCancelled)
            failOpenPoints();
        return Done;
    }

    Utils::Result<void> runJobs(const QString &ninja, int open)
    {
        const int jobs = m_arguments.jobs > 0 ? m_arguments.jobs : QThread::idealThreadCount();
        showProgress(0, open, {});
        return SweepJobs::run(
            ninja, {m_environment.dataFolder(), m_arguments.deviceFolder}, m_folder, qMax(1, jobs),
            [this, open](int done, int, const QString &point) { showProgress(done, open, point); },
            [this](const std::function<void()> &cancel) {
                m_cancelJobs = cancel;
                if (cancel && m_isCancelled)
                    cancel();
            });
    }

    // What stands in the folders of the points that could be run.
    void takeResults()
    {
        for (int i = 0; i < m_work.size(); ++i) {
            if (isRunnable(i) && !m_work.at(i).fingerprint.isEmpty())
                PointFolder(m_folder, m_table.results.at(i).name, m_ipInfo)
                    .take(m_work.at(i).fingerprint, m_tool, &m_table.results[i]);
        }
    }

    void failOpenPoints()
    {
        for (SweepResult &result : m_table.results) {
            if (result.state != PointState::Open)
                continue;
            result.state = PointState::Failed;
            result.reason = QStringLiteral(
                "its job has ended without a result, or what it is made of has changed meanwhile");
        }
    }

    // Now and then.
    void showProgress(int done, int total, const QString &point)
    {
        constexpr int pause = 500; // ms
        if (m_shown.isValid() && done < total && m_shown.elapsed() < pause)
            return;
        m_shown.start();
        m_progress.tell(QStringLiteral("%1 of %2 %3").arg(done).arg(total).arg(point));
    }

    // Writes and prints the table.
    int finish()
    {
        Utils::FilePlacement files;
        const QJsonObject object = tableJson(m_table);
        const auto placed =
            files.place(m_folder, {{SweepFile::csv, tableCsv(m_table)},
                                   {SweepFile::json, QJsonDocument(object).toJson()},
                                   {SweepFile::picture, tradeOffPicture(m_table)}});
        if (!placed)
            return fail(Failed, placed.reason());
        for (const SweepResult &result : qAsConst(m_table.results)) {
            if (result.state == PointState::Failed)
                recordProblem({result.reason, result.name,
                               PointFolder(m_folder, result.name, m_ipInfo).configuration()});
        }
        if (m_arguments.json) {
            QJsonObject told = object;
            told.insert(QStringLiteral("files"), QJsonArray::fromStringList(files.paths()));
            printJson(told);
        } else {
            const QStringList lines = tableLines(m_table);
            for (const QString &line : lines)
                printLine(line);
            printLine(countSentence(m_table));
        }
        if (m_isCancelled)
            return Cancelled;
        return countOf(m_table, PointState::Failed) > 0 ? Failed : Done;
    }

    Environment &m_environment;
    const SweepArguments &m_arguments;
    const QString m_folder;
    QString m_planFolder;
    QVariantMap m_ipInfo;
    IpcDocument m_headers; // the base; no path: there is none
    SweepTable m_table;
    QVector<Work> m_work; // of the table's rows
    Utils::Interrupt m_interrupt;
    PointTool m_tool;
    bool m_isCancelled = false;
    std::function<void()> m_cancelJobs;
    const Progress m_progress;
    QElapsedTimer m_shown;
};

QString usageMistake(const SweepArguments &arguments)
{
    const bool isPart = !arguments.point.isEmpty() || arguments.onlyTable;
    if (arguments.outDir.isEmpty())
        return QStringLiteral("--out DIR is required.");
    if (arguments.plan.isEmpty() && !isPart)
        return QStringLiteral("A PLAN is required.");
    if (!arguments.plan.isEmpty() && isPart)
        return QStringLiteral("--point and --table take what the folder has; they need no PLAN.");
    if (arguments.point.contains(u'/') || arguments.point.startsWith(u'.'))
        return QLatin1Char('"') + arguments.point + QLatin1String("\" is no name of a point.");
    return {};
}

int runSweep(Environment &environment, const SweepArguments &arguments)
{
    if (const QString mistake = usageMistake(arguments); !mistake.isEmpty()) {
        printProblem({mistake});
        return WrongUsage;
    }
    if (!arguments.point.isEmpty())
        return runPointJob(environment, absolute(arguments.outDir), arguments.point);
    return Sweep(environment, arguments).run();
}

} // namespace

void declareSweep(CommandLine &line)
{
    auto arguments = std::make_shared<SweepArguments>();
    CLI::App *command = line.command(
        "sweep", "Check and generate many configurations, and compare what they take",
        "orixm1 sweep plan.json --out sweep -j 4", [arguments, &line](Environment &environment) {
            if (const CLI::Option *devices = line.app().get_option("--devices");
                devices->count() > 0)
                arguments->deviceFolder = QString::fromStdString(devices->as<std::string>());
            return runSweep(environment, *arguments);
        });
    line.path(command, "PLAN", arguments->plan, "Plan (.json): a base, devices, options", "");
    line.path(command, "--out", arguments->outDir,
              "Folder of the points and the table; a later run goes on there", "DIR");
    const auto addFlag = [command](const char *name, bool &value, const char *help) {
        return command->add_flag(name, value, help);
    };
    CLI::Option *noSynth = command->add_flag_callback(
        "--no-synth", [arguments] { arguments->synthesise = false; },
        "Only check the points: which are possible, and why not");
    addFlag("--files", arguments->files,
            "With --no-synth: write configuration and include files of each point, too")
        ->needs(noSynth);
    command
        ->add_option("-j,--jobs", arguments->jobs,
                     "Points at a time (default: the number of cores)")
        ->check(CLI::Range(1, 1024))
        ->type_name("N");
    addFlag("--force", arguments->force, "Do again what is done, too");
    CLI::Option *snakemake =
        addFlag("--snakemake", arguments->snakemake,
                "Write a Snakemake workflow into DIR instead of running the jobs");
    snakemake->excludes(noSynth);
    CLI::Option *table =
        addFlag("--table", arguments->onlyTable, "Only collect what is done in DIR; needs no PLAN");
    table->excludes(snakemake);
    CommandLine::text(command, "--point", arguments->point,
                      "Only do this point of DIR, as a workflow's job; needs no PLAN", "NAME")
        ->excludes(snakemake)
        ->excludes(table);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
