#include "commands.h"

#include "commandline.h"
#include "digest.h"
#include "environment.h"
#include "generatecheck.h"
#include "generatepreview.h"
#include "ipcdocument.h"
#include "output.h"
#include "resultcache.h"
#include "toolofrunner.h"

#include <estimate/estimate.h>
#include <export/prefixednetlist.h>
#include <generate/record.h>
#include <generate/state.h>
#include <preview/preview.h>
#include <rules/itcmcontents.h>
#include <synthesis/reportjson.h>
#include <synthesis/resources.h>
#include <synthesis/runner.h>
#include <synthesis/simulationmodel.h>
#include <system/description.h>
#include <utils/fileplacement.h>
#include <utils/fileutils.h>
#include <utils/folderlock.h>
#include <utils/interrupt.h>

#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// What a generation has made so far.
struct Report {
    QStringList files;
    QStringList sources;
    QStringList outputs;
    QString library; // without which no tool reads the netlist; not written by the generation
    QStringList errors;
    QStringList notices; // on files that were edited
    Synthesis::RunReport run;
};

QJsonArray jsonOf(const QList<Synthesis::ResourceUse> &resources)
{
    QJsonArray array;
    for (const Synthesis::ResourceUse &use : resources) {
        QJsonObject object{{QStringLiteral("resource"), use.resource},
                           {QStringLiteral("used"), use.used}};
        if (use.available >= 0) {
            object.insert(QStringLiteral("available"), use.available);
            object.insert(QStringLiteral("percent"), use.percent());
        }
        array.append(object);
    }
    return array;
}

QJsonArray jsonOf(const QList<Synthesis::CellCount> &cells)
{
    QJsonArray array;
    for (const Synthesis::CellCount &cell : cells)
        array.append(QJsonObject{{QStringLiteral("cell"), cell.cell},
                                 {QStringLiteral("count"), cell.count},
                                 {QStringLiteral("blackBox"), cell.isBlackBox}});
    return array;
}

// What the totals leave out.
QJsonObject notCounted(const QList<Synthesis::CellCount> &cells)
{
    QJsonArray blackBoxes;
    for (const Synthesis::CellCount &cell : cells) {
        if (cell.isBlackBox)
            blackBoxes.append(QJsonObject{{QStringLiteral("cell"), cell.cell},
                                          {QStringLiteral("count"), cell.count}});
    }
    return {{QStringLiteral("blackBoxes"), blackBoxes},
            {QStringLiteral("sentence"), Synthesis::notCountedSentence(cells)}};
}

QStringList warningsOf(const Synthesis::RunReport &run)
{
    QStringList warnings;
    for (const Synthesis::Message &message : run.messages) {
        if (message.severity == Synthesis::Message::Warning)
            warnings.append(message.toString());
    }
    return warnings;
}

void printUse(const Synthesis::ResourceUse &use)
{
    QString line = QStringLiteral("%1 %2").arg(use.resource, -18).arg(use.used, 8);
    if (use.available >= 0)
        line += QStringLiteral(" of %1 (%2 %)").arg(use.available, 8).arg(use.percent(), 3);
    printError(line);
}

int finish(const Report &report, const GenerateArguments &arguments, int status)
{
    const QStringList warnings = report.notices + warningsOf(report.run);
    for (const QString &warning : warnings)
        printError(QLatin1String("warning: ") + warning);
    for (const Synthesis::ResourceUse &use : report.run.resources)
        printUse(use);
    if (const QString sentence = Synthesis::notCountedSentence(report.run.cells);
        !sentence.isEmpty())
        printError(sentence);
    for (const QString &error : report.errors)
        printProblem({error});
    if (arguments.json) {
        QJsonObject object{{QStringLiteral("files"), QJsonArray::fromStringList(report.files)},
                           {QStringLiteral("sources"), QJsonArray::fromStringList(report.sources)},
                           {QStringLiteral("outputs"), QJsonArray::fromStringList(report.outputs)},
                           {QStringLiteral("warnings"), QJsonArray::fromStringList(warnings)},
                           {QStringLiteral("cells"), jsonOf(report.run.cells)},
                           {QStringLiteral("notCounted"), notCounted(report.run.cells)},
                           {QStringLiteral("resources"), jsonOf(report.run.resources)}};
        if (!report.library.isEmpty())
            object.insert(QStringLiteral("libraries"), QJsonArray{report.library});
        printJson(object);
        return status;
    }
    const QStringList paths = report.files + report.outputs;
    for (const QString &path : paths)
        printLine(path);
    if (!report.library.isEmpty()) {
        printLine(report.library);
        printError(QLatin1String("needed to read the netlist: ") + report.library);
    }
    return status;
}

Synthesis::Job jobFrom(const SynthesisRequest &request)
{
    return {request.outputDir, request.ipName, request.targetName, request.device, request.options};
}

Synthesis::Language languageOfRunner(Language language)
{
    switch (language) {
    case Language::Verilog:
        return Synthesis::Language::Verilog;
    case Language::Vhdl:
        break;
    }
    return Synthesis::Language::Vhdl;
}

// Without which no other tool reads the netlist; empty if it needs none.
QString libraryFor(Tool tool, Language language)
{
    switch (tool) {
    case Tool::TarvoSynthesis:
        return Synthesis::primitiveLibrary(languageOfRunner(language));
    case Tool::SynplifyPro:
        break;
    }
    return {};
}

// Runs the tool to its end and returns its exit code.
int synthesise(Synthesis::Runner &runner, bool verbose)
{
    int exitCode = 1;
    QEventLoop loop;
    Utils::Interrupt interrupt;
    QObject::connect(&interrupt, &Utils::Interrupt::received, &runner, &Synthesis::Runner::cancel);
    QObject::connect(&runner, &Synthesis::Runner::stageChanged,
                     [progress = Progress()](const QString &stage) { progress.tell(stage); });
    if (verbose)
        QObject::connect(&runner, &Synthesis::Runner::logReceived,
                         [](const QString &text) { printError(text); });
    QObject::connect(&runner, &Synthesis::Runner::finished, &loop, [&](int code) {
        exitCode = code;
        loop.quit();
    });
    runner.start();
    loop.exec();
    return exitCode;
}

// What a run that has nothing to do tells: what the last one has made and told.
std::optional<Report> reportOfLastRun(const GenerationInput &input, const GenerationPlan &plan,
                                      const GenerationState &state, bool synthesised)
{
    Report report;
    for (const IncludeFile &file : plan.includeFiles)
        report.files.append(plan.pathOf(file));
    report.sources = plan.sources;
    if (!synthesised)
        return report;
    const SynthesisRecord &record = *state.manifest->synthesis;
    if (!Synthesis::fromJson(withPaths(record.report, input), &report.run))
        return std::nullopt;
    for (const Output &output : plan.outputs.copied) {
        if (state.manifest->find(belowOutput(output.file, input.createInPath)))
            report.outputs.append(output.file);
    }
    report.outputs.append(plan.outputs.decoded);
    report.library = libraryFor(*input.tool, namingLanguage(input.language));
    return report;
}

// One generation, from the first file to the last.
class Generation
{
public:
    Generation(const IpcDocument &document, const GenerationInput &input,
               const GenerateArguments &arguments, const QString &prefix)
        : m_document(document)
        , m_input(input)
        , m_arguments(arguments)
        , m_prefix(prefix)
        , m_plan(generationPlan(input))
        , m_cache(arguments.cache, toolOfRunner(*input.tool))
        , m_record(input, m_plan, fastSha256, Utils::FileUtils::writeLines)
    {
    }

    // Returns the exit status; what there is to tell has been told then.
    int run()
    {
        if (!m_arguments.force) {
            if (std::optional<Report> last = freshReport()) {
                // Its end tidies what a run that was killed has left of its own.
                Utils::FolderLock::take(m_plan.folder, nullptr);
                bool isPlaced = false;
                if (!placePrefixed(&*last, &isPlaced))
                    return finish(*last, m_arguments, Failed);
                if (isPlaced)
                    printError(QLatin1String("The results are fresh, so the tool did not run; the "
                                             "files with the prefix were written."));
                else
                    printError(QLatin1String(m_arguments.synthesise
                                                 ? "Everything is fresh"
                                                 : "The include files are fresh") +
                               QLatin1String(", so nothing was done; --force runs it again."));
                return finish(*last, m_arguments, Done);
            }
        }
        QString error;
        if (!Utils::FileUtils::makePath(m_plan.folder, &error))
            return fail(error);
        m_lock = Utils::FolderLock::take(m_plan.folder, &error);
        if (!m_lock || !m_record.begin(&error))
            return fail(error);
        for (const IncludeFile &file : m_plan.includeFiles) {
            const QString path = m_plan.pathOf(file);
            if (!Utils::FileUtils::writeLines(path, file.lines, &error))
                return fail(error);
            m_report.files.append(path);
        }
        m_report.sources = m_plan.sources;
        if (!m_arguments.synthesise)
            return end(nullptr, Done);
        return synthesiseAndCollect();
    }

    // Tells what run() would do and returns the exit status; writes nothing.
    int preview(Environment &environment)
    {
        const Utils::Result<SystemDescription> description =
            readSystemDescription(environment.dataFolder());
        PreviewInput input;
        if (description)
            input.description = &*description;
        else
            input.notes.append(description.reason());
        input.generation = m_input;
        if (m_document.path.startsWith(m_input.createInPath + u'/'))
            input.configuration = StoredConfiguration{m_document.path, m_document.text};
        input.synthesise = m_arguments.synthesise;
        input.isIdle = !m_arguments.force && freshReport();
        input.results = [this](const Origin &origin) { return knownResults(origin); };
        input.prefix = m_prefix;
        input.planSet = Utils::planBundle;
        input.digest = fastSha256;
        const DEV::DeviceDb *devices = environment.devices();
        input.estimate = [&environment](const OptionMap &options, const DEV::DeviceArg &device) {
            return estimatedFigures(options, device, environment.dataFolder());
        };
        input.findDevice = [devices](const QString &id) { return devices->findDevice(id); };
        return printPreview(previewOf(input), m_input.createInPath, m_arguments);
    }

private:
    // Whether a killed run has left what only a run of the tool tidies.
    bool isLeft() const { return QFileInfo::exists(m_plan.folder + QLatin1String("/.tarvo-run")); }

    std::optional<Report> freshReport() const
    {
        if (isLeft())
            return std::nullopt;
        std::function<ToolFacts()> tool;
        if (m_arguments.synthesise)
            tool = [this] { return m_cache.toolFacts(); };
        const GenerationState state = generationState(m_input, m_plan, tool, fastSha256, false);
        if (!state.isFresh() || (m_arguments.synthesise && !state.manifest->synthesis))
            return std::nullopt;
        return reportOfLastRun(m_input, m_plan, state, m_arguments.synthesise);
    }

    int fail(const QString &reason)
    {
        m_report.errors.append(reason);
        m_report.notices = m_record.messages();
        return finish(m_report, m_arguments, Failed);
    }

    // `record` as in GenerationRecord::finish().
    int end(const GenerationRecord::Run *record, int status)
    {
        QString error;
        if (!m_record.finish(record, &error))
            return fail(error);
        m_report.notices = m_record.messages();
        bool isPlaced = false;
        if (record && !placePrefixed(&m_report, &isPlaced))
            status = Failed;
        return finish(m_report, m_arguments, status);
    }

    // Puts the outputs under the prefix, if there is one, beside the others. False: the report says
    // why they are not there; they are those of before then. `*isPlaced`: a file has changed.
    bool placePrefixed(Report *report, bool *isPlaced) const
    {
        if (m_prefix.isEmpty() || !m_arguments.synthesise)
            return true;
        const auto set = prefixedSet(m_input, m_plan, m_prefix);
        const auto written = set ? Utils::writeBundle(*set)
                                 : Utils::Result<Utils::BundleReport>(Utils::Failure{set.reason()});
        if (!written) {
            report->errors.append(written.reason());
            return false;
        }
        report->notices += written->messages;
        *isPlaced = !written->isFresh();
        for (const Utils::BundleFile &file : set->files)
            report->outputs.append(set->folder + u'/' + file.path);
        return true;
    }

    int synthesiseAndCollect()
    {
        QStringList mistakes;
        const QVector<ItcmMistake> found =
            itcmMistakes(m_document.options, m_document.device.device(), m_plan.folder);
        for (const ItcmMistake &mistake : found)
            mistakes.append(mistake.text());
        const Origin &origin = m_record.origin();
        QString error;
        QStringList details;
        int exitCode = 0;
        const bool isCached = mistakes.isEmpty() && takeFromCache(origin, &error);
        if (!error.isEmpty())
            return fail(error);
        if (!isCached) {
            Synthesis::Runner runner;
            runner.setTool(toolOfRunner(*m_input.tool));
            runner.setJob(jobFrom(m_plan.request));
            runner.setInputMistakes(mistakes);
            runner.setFolderLock(m_lock);
            exitCode = synthesise(runner, m_arguments.verbose);
            m_report.run = runner.report();
            details = runner.detailErrorMsgs();
            if (exitCode != 0) {
                m_report.errors = details;
                m_report.errors.removeAll(QString());
                if (!runner.errorMsg().isEmpty())
                    m_report.errors.prepend(runner.errorMsg());
                return end(nullptr, runner.wasCancelled() ? Cancelled : Failed);
            }
        }
        const QJsonObject told = Synthesis::toJson(m_report.run);
        // Only what was made from what was read before it is worth keeping.
        const bool isTrue = originOf(m_input, m_plan, fastSha256) == origin;
        if (!isCached && isTrue)
            m_cache.keep(m_input, m_plan, origin, told);
        if (!m_record.keepEditedOutputs(&error))
            return fail(error);
        const Collection result = collectOutputs(
            exitCode, details, m_plan.outputs, m_input.createInPath,
            [](const QString &, const QString &netlist, const QString &destination,
               QString &message) {
                return Synthesis::writeSimulationModel(netlist, destination, &message);
            });
        m_report.errors = result.errors;
        m_report.errors.removeAll(QString());
        if (result.status != 0) {
            m_report.notices = m_record.messages();
            return finish(m_report, m_arguments, Failed);
        }
        m_report.outputs = result.files;
        m_report.library = libraryFor(*m_input.tool, namingLanguage(m_input.language));
        const ToolFacts facts = m_cache.toolFacts();
        const GenerationRecord::Run record{facts.name, facts.version, told};
        return end(&record, Done);
    }

    // What the tool would leave, from the cache.
    struct Cached {
        QVector<Utils::PlacedFile> files; // in the folder of the generated files
        Synthesis::RunReport report;
    };
    std::optional<Cached> fromCache(const Origin &origin) const
    {
        if (m_arguments.force || isLeft())
            return std::nullopt;
        QString note;
        const auto results = m_cache.find(m_input, m_plan, origin, &note);
        if (!note.isEmpty())
            printError(note);
        Cached cached;
        if (!results || !Synthesis::fromJson(results->report, &cached.report))
            return std::nullopt;
        for (const auto &file : results->files)
            cached.files.append({file.first, file.second});
        cached.files.append({m_plan.request.targetName + QLatin1String(".log"),
                             "The results were taken from the cache; the tool did not run.\n"});
        return cached;
    }

    std::optional<KnownResults> knownResults(const Origin &origin) const
    {
        const std::optional<Cached> cached = fromCache(origin);
        if (!cached)
            return std::nullopt;
        KnownResults known;
        for (const Utils::PlacedFile &file : cached->files)
            known.files.append({file.name, file.bytes});
        known.decode = [](const QByteArray &netlist) -> Utils::Result<QByteArray> {
            const QTemporaryDir scratch;
            const QString path = scratch.filePath(QStringLiteral("netlist.v"));
            const QString model = scratch.filePath(QStringLiteral("model.vo"));
            QString error = scratch.errorString();
            QByteArray bytes;
            if (!scratch.isValid() || !Utils::FileUtils::writeFile(path, netlist, &error) ||
                Synthesis::writeSimulationModel(path, model, &error) != 0 ||
                !Utils::FileUtils::readFile(model, &bytes, &error))
                return Utils::Failure{error};
            return bytes;
        };
        const ToolFacts facts = m_cache.toolFacts();
        known.tool = facts.name;
        known.toolVersion = facts.version;
        known.report = Synthesis::toJson(cached->report);
        return known;
    }

    // Puts results of an earlier run where the tool would leave them. False with a sentence if they
    // cannot be put there, without if there are none.
    bool takeFromCache(const Origin &origin, QString *error)
    {
        const std::optional<Cached> cached = fromCache(origin);
        if (!cached)
            return false;
        Utils::FilePlacement placement;
        if (const Utils::Result<void> placed = placement.place(m_plan.folder, cached->files);
            !placed) {
            *error = placed.reason();
            return false;
        }
        m_report.run = cached->report;
        printError(QStringLiteral("The results are those of an earlier run with the same inputs, "
                                  "from the cache; --force runs the tool."));
        return true;
    }

    const IpcDocument &m_document;
    const GenerationInput m_input;
    const GenerateArguments &m_arguments;
    const QString m_prefix;
    const GenerationPlan m_plan;
    const ResultCache m_cache;
    GenerationRecord m_record;
    std::shared_ptr<Utils::FolderLock> m_lock;
    Report m_report;
};

int runGenerate(Environment &environment, const GenerateArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;
    QString prefix;
    if (const Status status = arguments.prefix.choose(document, &prefix); status != Done)
        return status;
    Generation generation(document, generationInput(document, ipInfo, arguments.outDir), arguments,
                          prefix);
    return arguments.dryRun ? generation.preview(environment) : generation.run();
}

} // namespace

void declareGenerate(CommandLine &line)
{
    auto arguments = std::make_shared<GenerateArguments>();
    CLI::App *command = line.command(
        "generate", "Write include files, synthesise and collect the outputs",
        "orixm1 generate tarvo_orix_m1.ipc --out build", [arguments](Environment &environment) {
            return arguments->check ? runGenerateCheck(environment, *arguments)
                                    : runGenerate(environment, *arguments);
        });
    line.file(command, arguments->file);
    line.outDir(command, arguments->outDir);
    arguments->prefix.declare(command);
    CommandLine::noFlag(command, "--no-synth", arguments->synthesise,
                        "Stop after include files and source list");
    CommandLine::flag(command, "-v,--verbose", arguments->verbose,
                      "Print the tool's log to standard error; with --check, the differences");
    CLI::Option *check =
        CommandLine::flag(command, "--check", arguments->check,
                          "Only tell whether the files are fresh, stale, edited, missing or "
                          "foreign, with exit status 1 unless all are fresh; writes nothing");
    CommandLine::exclude(
        CommandLine::flag(command, "--force", arguments->force,
                          "Run the tool even if everything is fresh, or in the cache"),
        check);
    CLI::Option *dryRun = CommandLine::flag(
        command, "--dry-run", arguments->dryRun,
        "Only tell which files a run would make, change or leave, and what differs from the last "
        "one, with exit status 1 if any would change; writes nothing");
    CommandLine::exclude(dryRun, check);
    CommandLine::need(
        CommandLine::flag(command, "--diff", arguments->diff,
                          "With --dry-run, print what would change in the files, as a patch"),
        dryRun);
    CommandLine::noFlag(command, "--no-cache", arguments->cache,
                        "Neither take results from the user's cache nor put them there");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
