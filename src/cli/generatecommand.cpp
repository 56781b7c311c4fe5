#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <rules/itcmcontents.h>
#include <synthesis/resources.h>
#include <synthesis/runner.h>
#include <synthesis/simulationmodel.h>
#include <utils/fileutils.h>
#include <utils/folderlock.h>
#include <utils/interrupt.h>

#include <QEventLoop>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct GenerateArguments {
    QString file;
    QString outDir; // empty: the file's folder
    bool synthesise = true;
    bool json = false;
    bool verbose = false;
};

// What a generation has made so far.
struct Report {
    QStringList files;
    QStringList sources;
    QStringList outputs;
    QString library; // without which no tool reads the netlist; not written by the generation
    QStringList errors;
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
    const QStringList warnings = warningsOf(report.run);
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

Synthesis::Tool toolOfRunner(Tool tool)
{
    switch (tool) {
    case Tool::TarvoSynthesis:
        return Synthesis::Tool::TarvoSynthesis;
    case Tool::SynplifyPro:
        break;
    }
    return Synthesis::Tool::SynplifyPro;
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

int runGenerate(Environment &environment, const GenerateArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;

    const GenerationInput input = generationInput(document, ipInfo, arguments.outDir);
    const GenerationPlan plan = generationPlan(input);
    Report report;
    const auto fail = [&](const QString &reason) {
        report.errors.append(reason);
        return finish(report, arguments, Failed);
    };
    QString error;
    if (!Utils::FileUtils::makePath(plan.folder, &error))
        return fail(error);
    // From the first file to the last.
    const std::shared_ptr<Utils::FolderLock> lock = Utils::FolderLock::take(plan.folder, &error);
    if (!lock)
        return fail(error);
    for (const IncludeFile &file : plan.includeFiles) {
        const QString path = plan.pathOf(file);
        if (!Utils::FileUtils::writeLines(path, file.lines, &error))
            return fail(error);
        report.files.append(path);
    }
    report.sources = plan.sources;
    if (!arguments.synthesise)
        return finish(report, arguments, Done);

    Synthesis::Runner runner;
    runner.setTool(toolOfRunner(*input.tool));
    runner.setJob(jobFrom(plan.request));
    QStringList inputMistakes;
    const QVector<ItcmMistake> mistakes =
        itcmMistakes(document.options, document.device.device(), plan.folder);
    for (const ItcmMistake &mistake : mistakes)
        inputMistakes.append(mistake.text());
    runner.setInputMistakes(inputMistakes);
    runner.setFolderLock(lock);
    const int exitCode = synthesise(runner, arguments.verbose);
    report.run = runner.report();

    const Collection result = collectOutputs(
        exitCode, runner.detailErrorMsgs(), plan.outputs, input.createInPath,
        [](const QString &, const QString &netlist, const QString &destination, QString &message) {
            return Synthesis::writeSimulationModel(netlist, destination, &message);
        });
    report.errors = result.errors;
    report.errors.removeAll(QString());
    if (result.status != 0) {
        if (!runner.errorMsg().isEmpty())
            report.errors.prepend(runner.errorMsg());
        return finish(report, arguments, runner.wasCancelled() ? Cancelled : Failed);
    }
    report.outputs = result.files;
    report.library = libraryFor(*input.tool, namingLanguage(input.language));
    return finish(report, arguments, Done);
}

} // namespace

void declareGenerate(CommandLine &line)
{
    auto arguments = std::make_shared<GenerateArguments>();
    CLI::App *command = line.command(
        "generate", "Write include files, synthesise and collect the outputs",
        "orixm1 generate tarvo_orix_m1.ipc --out build",
        [arguments](Environment &environment) { return runGenerate(environment, *arguments); });
    line.file(command, arguments->file);
    line.outDir(command, arguments->outDir);
    command->add_flag(
        "--no-synth", [arguments](qint64) { arguments->synthesise = false; },
        "Stop after include files and source list");
    command->add_flag("-v,--verbose", arguments->verbose, "Print the tool's log to standard error");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
