#include "commands.h"

#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/choices.h>
#include <config/optionkeys.h>
#include <generate/defines.h>
#include <generate/outputs.h>
#include <generate/sourcefiles.h>
#include <generate/synthesisrequest.h>
#include <rules/generationfolder.h>
#include <rules/itcmcontents.h>
#include <synthesis/resources.h>
#include <synthesis/runner.h>
#include <synthesis/simulationmodel.h>
#include <utils/fileutils.h>
#include <utils/folderlock.h>
#include <utils/interrupt.h>

#include <QEventLoop>
#include <QFileInfo>

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
        printError(error);
    if (arguments.json) {
        QJsonObject object{{QStringLiteral("files"), QJsonArray::fromStringList(report.files)},
                           {QStringLiteral("sources"), QJsonArray::fromStringList(report.sources)},
                           {QStringLiteral("outputs"), QJsonArray::fromStringList(report.outputs)},
                           {QStringLiteral("errors"), QJsonArray::fromStringList(report.errors)},
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

Synthesis::Job jobFrom(const SynthesisRequest &request, const DEV::DeviceArg &device)
{
    Synthesis::Job job;
    job.outputDir = request.outputDir;
    job.ipName = request.ipName;
    job.targetName = request.targetName;
    job.device = device;
    job.options = request.options;
    return job;
}

// Runs the tool to its end and returns its exit code.
int synthesise(Synthesis::Runner &runner, bool verbose)
{
    int exitCode = 1;
    QEventLoop loop;
    Utils::Interrupt interrupt;
    QObject::connect(&interrupt, &Utils::Interrupt::received, &runner, &Synthesis::Runner::cancel);
    QObject::connect(&runner, &Synthesis::Runner::stageChanged,
                     [](const QString &stage) { printError(stage); });
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

} // namespace

int runGenerate(Environment &environment, const GenerateArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openDocument(environment, arguments.file, &document))
        return BadInput;
    if (const QString problem = document.deviceProblem(); !problem.isEmpty()) {
        printError(QLatin1String("\"") + document.path + QLatin1String("\" ") + problem + u'.');
        return BadInput;
    }

    const QString outDir = outputFolder(document, arguments.outDir);
    const QString tempDir = generationFolder(outDir);
    Report report;
    const auto fail = [&](const QString &reason) {
        report.errors.append(reason);
        return finish(report, arguments, Failed);
    };
    QString error;
    if (!Utils::FileUtils::makePath(tempDir, &error))
        return fail(error);
    // From the first file to the last.
    const std::shared_ptr<Utils::FolderLock> lock = Utils::FolderLock::take(tempDir, &error);
    if (!lock)
        return fail(error);
    const QVector<IncludeFile> files = buildIncludeFiles(document.options, document.device);
    for (const IncludeFile &file : files) {
        const QString path = tempDir + u'/' + file.name;
        if (!Utils::FileUtils::writeLines(path, file.lines, &error))
            return fail(error);
        report.files.append(path);
    }
    report.sources = buildSourceFiles(document.options, ipInfo, document.device.device(), tempDir);
    if (!arguments.synthesise)
        return finish(report, arguments, Done);

    const QString tool = effectiveSynthesisTool(document.options.value(Key::synthesisTool));
    const int language = effectiveLanguageIndex(document.options.value(Key::lang));
    const SynthesisRequest request =
        buildSynthesisRequest(ipInfo, tempDir, language, report.sources);
    Synthesis::Runner runner;
    runner.setTool(tool == Value::synplifyPro ? Synthesis::Tool::SynplifyPro
                                              : Synthesis::Tool::TarvoSynthesis);
    runner.setJob(jobFrom(request, document.device));
    QStringList inputMistakes;
    const QVector<ItcmMistake> mistakes =
        itcmMistakes(document.options, document.device.device(), tempDir);
    for (const ItcmMistake &mistake : mistakes)
        inputMistakes.append(mistake.text());
    runner.setInputMistakes(inputMistakes);
    runner.setFolderLock(lock);
    const int exitCode = synthesise(runner, arguments.verbose);
    report.run = runner.report();

    const OutputPaths paths = outputPaths(tool, language, tempDir, outDir, request.targetName);
    const Collection result = collectOutputs(
        exitCode, runner.detailErrorMsgs(), paths, outDir,
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
    report.outputs = QStringList{paths.netlist, paths.instantiationTemplate};
    if (!paths.model.isEmpty() && QFileInfo::exists(paths.model))
        report.outputs.append(paths.model);
    report.outputs.append(paths.decoded);
    if (tool == Value::tarvoSynthesis)
        report.library = Synthesis::primitiveLibrary(runner.report().job.language());
    return finish(report, arguments, Done);
}

} // namespace Cli
