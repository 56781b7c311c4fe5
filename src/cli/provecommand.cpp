#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"
#include "provereport.h"
#include "simulate/scratchfolder.h"

#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <rules/generationfolder.h>
#include <rules/itcmcontents.h>
#include <synthesis/runner.h>
#include <utils/filebundle.h>
#include <utils/fileutils.h>
#include <utils/interrupt.h>

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonDocument>

namespace Cli
{

using namespace TARVOORIXM1;
using Utils::FileUtils;

namespace
{

const QString verilog = QStringLiteral("verilog");
const QString vhdl = QStringLiteral("vhdl");

struct ProveArguments {
    QString file;
    QString netlist;
    QString vhdlNetlist;
    QString language;
    QString outDir;
    QString report;
    int timeout = 600; // s
    bool json = false;
};

class ProveRun
{
public:
    ProveRun(Environment &environment, const ProveArguments &arguments)
        : m_environment(environment)
        , m_arguments(arguments)
        , m_scratch(QStringLiteral("orixm1-prove"))
    {
    }

    int run()
    {
        int status = prepare();
        if (status == Done)
            status = makeNetlists();
        return status == Done ? prove() : status;
    }

private:
    static int fail(int status, const QString &reason, const QString &file = {})
    {
        printProblem({reason, {}, file});
        return status;
    }

    // Each returns a status; what is wrong has been printed.

    // The sources, as they are now, in the scratch folder.
    int prepare()
    {
        const QVariantMap ipInfo = m_environment.ipInfo();
        IpcDocument document;
        if (ipInfo.isEmpty() || !openForDevice(m_environment, m_arguments.file, &document))
            return BadInput;
        if (!m_scratch.problem().isEmpty())
            return fail(Failed, m_scratch.problem());
        for (const QString &netlist : {m_arguments.netlist, m_arguments.vhdlNetlist}) {
            if (!netlist.isEmpty() && !QFileInfo(netlist).isFile())
                return fail(BadInput,
                            QLatin1String("There is no file \"") + netlist +
                                QLatin1String("\" to prove."),
                            netlist);
        }
        // What is named relative to the folder of a generation is looked for there.
        const QString contents =
            QDir::cleanPath(textOf(document.options, Key::itcmInitializationAbsolutePath));
        if (QDir::isRelativePath(contents))
            document.options.insert(
                Key::itcmInitializationAbsolutePath,
                QDir(generationFolder(document.folder())).absoluteFilePath(contents));
        GenerationInput input = generationInput(document, ipInfo, m_scratch.path());
        input.tool = Tool::TarvoSynthesis;
        input.language = wantsVhdl() ? Language::Vhdl : Language::Verilog;
        m_plan = generationPlan(input);
        QStringList mistakes;
        const QVector<ItcmMistake> found =
            itcmMistakes(document.options, document.device.device(), m_plan.folder);
        for (const ItcmMistake &mistake : found)
            mistakes.append(mistake.text());
        if (!mistakes.isEmpty())
            return fail(BadInput, mistakes.join(u'\n'), m_arguments.file);
        QString error;
        bool isWritten = FileUtils::makePath(m_plan.folder, &error);
        for (const IncludeFile &file : m_plan.includeFiles)
            isWritten = isWritten && FileUtils::writeLines(m_plan.pathOf(file), file.lines, &error);
        if (!isWritten)
            return fail(Failed, error);
        m_subject.configuration = QFileInfo(m_arguments.file).fileName();
        m_subject.device = document.device.id();
        return Done;
    }

    bool wantsVhdl() const { return m_arguments.language != verilog; }

    int makeNetlists()
    {
        m_job.outputDir = m_plan.folder;
        m_job.topModule = topModule;
        m_job.sources = m_plan.sources;
        m_job.stepSeconds = m_arguments.timeout;
        const bool makesAny = m_arguments.netlist.isEmpty();
        if (makesAny) {
            if (const int status = synthesise(); status != Done)
                return status;
        }
        const QString made = QStringLiteral("made for this proof");
        m_job.netlist = makesAny ? m_plan.outputs.verilogNetlist : fullPath(m_arguments.netlist);
        m_subject.netlist = makesAny ? made : QFileInfo(m_arguments.netlist).fileName();
        if (!wantsVhdl())
            return Done;
        if (!m_arguments.vhdlNetlist.isEmpty()) {
            m_job.vhdlNetlist = fullPath(m_arguments.vhdlNetlist);
            m_subject.vhdlNetlist = QFileInfo(m_arguments.vhdlNetlist).fileName();
            return Done;
        }
        const QFileInfo info(m_job.netlist);
        const QString beside = info.path() + u'/' + info.completeBaseName() + QLatin1String(".vhg");
        if (QFileInfo(beside).isFile()) {
            m_job.vhdlNetlist = beside;
            m_subject.vhdlNetlist = makesAny ? made : QFileInfo(beside).fileName();
        } else {
            m_job.noVhdl = QLatin1String("There is no VHDL netlist \"") +
                           QFileInfo(beside).fileName() +
                           QLatin1String("\" beside the Verilog netlist; --vhdl-netlist names it, "
                                         "and \"--language verilog\" does without.");
        }
        return Done;
    }

    static QString fullPath(const QString &path) { return QFileInfo(path).absoluteFilePath(); }

    int synthesise()
    {
        const SynthesisRequest &request = m_plan.request;
        Synthesis::Runner runner;
        runner.setTool(Synthesis::Tool::TarvoSynthesis);
        runner.setJob({request.outputDir, request.ipName, request.targetName, request.device,
                       request.options});
        Utils::Interrupt interrupt;
        QEventLoop loop;
        int exitCode = 1;
        QObject::connect(&interrupt, &Utils::Interrupt::received, &runner,
                         &Synthesis::Runner::cancel);
        QObject::connect(&runner, &Synthesis::Runner::stageChanged,
                         [this](const QString &stage) { m_progress.tell(stage); });
        QObject::connect(&runner, &Synthesis::Runner::finished, &loop, [&](int code) {
            exitCode = code;
            loop.quit();
        });
        runner.start();
        loop.exec();
        if (exitCode == 0)
            return Done;
        QStringList lines = runner.detailErrorMsgs();
        if (!runner.errorMsg().isEmpty())
            lines.prepend(runner.errorMsg());
        return fail(runner.wasCancelled() ? Cancelled : Failed, lines.join(u'\n'));
    }

    int prove()
    {
        Synthesis::Prover prover(m_job);
        Utils::Interrupt interrupt;
        QObject::connect(&interrupt, &Utils::Interrupt::received, &prover,
                         &Synthesis::Prover::cancel);
        QObject::connect(&prover, &Synthesis::Prover::stageChanged,
                         [this](const QString &stage) { m_progress.tell(stage); });
        if (!prover.run())
            return fail(Cancelled, QStringLiteral("The proof was cancelled."));
        const Synthesis::ProofReport report = prover.report();
        int status = report.isProven() ? Done : Failed;
        for (const Synthesis::ProofPart &part : report.parts) {
            if (part.isOpen())
                recordProblem({part.name + QLatin1String(": ") + proofResultName(part.result) +
                                   QLatin1String(". ") + part.reason,
                               part.id, m_arguments.file});
        }
        if (!writeFiles(report))
            status = Failed;
        if (m_arguments.json) {
            printJson(jsonOf(m_subject, report));
        } else {
            for (const QString &line : linesOf(m_subject, report))
                printLine(line);
        }
        return status;
    }

    bool writeFiles(const Synthesis::ProofReport &report) const
    {
        const QByteArray markdown = markdownOf(m_subject, report).toUtf8();
        QString error;
        if (!m_arguments.report.isEmpty() &&
            !FileUtils::writeFile(fullPath(m_arguments.report), markdown, &error)) {
            printProblem({error, {}, m_arguments.report});
            return false;
        }
        if (m_arguments.outDir.isEmpty())
            return true;
        const QString group = QStringLiteral("proof");
        Utils::Bundle bundle;
        bundle.folder = fullPath(m_arguments.outDir);
        bundle.manifest = QStringLiteral("proof.manifest");
        bundle.groups = QStringList{group};
        bundle.files = {{QStringLiteral("proof.md"), markdown, group},
                        {QStringLiteral("proof.json"),
                         QJsonDocument(jsonOf(m_subject, report)).toJson(), group}};
        for (const Synthesis::ProofReport::File &file : report.files)
            bundle.files.append({QLatin1String("steps/") + file.name, file.bytes, group});
        const auto written = Utils::writeBundle(bundle);
        if (!written) {
            printProblem({written.reason(), {}, m_arguments.outDir});
            return false;
        }
        for (const QString &message : written->messages)
            printError(message);
        return true;
    }

    Environment &m_environment;
    const ProveArguments &m_arguments;
    ScratchFolder m_scratch;
    GenerationPlan m_plan;
    Synthesis::ProofJob m_job;
    ProofSubject m_subject;
    Progress m_progress;
};

} // namespace

void declareProve(CommandLine &line)
{
    auto arguments = std::make_shared<ProveArguments>();
    CLI::App *command = line.command(
        "prove", "Prove a netlist equal to its sources, and the VHDL netlist to the Verilog one",
        "orixm1 prove tarvo_orix_m1.ipc --report proof.md",
        [arguments](Environment &environment) { return ProveRun(environment, *arguments).run(); });
    line.file(command, arguments->file);
    line.path(command, "--netlist", arguments->netlist,
              "Verilog netlist (.vg) to prove, instead of one made for it", "FILE");
    line.path(command, "--vhdl-netlist", arguments->vhdlNetlist,
              "VHDL netlist (default: the .vhg file beside the Verilog netlist)", "FILE");
    line.choice(command, "--language", arguments->language, {verilog, vhdl},
                "verilog: without the VHDL netlist (default: vhdl, with it)", "LANGUAGE");
    line.path(command, "--out", arguments->outDir,
              "Folder for the report with scripts and logs of each step", "DIR");
    line.path(command, "--report", arguments->report, "Markdown file for the report", "FILE");
    CommandLine::number(command, "--timeout", arguments->timeout, 1, 1000000,
                        "Longest time of each step of a proof (default: 600)", "SECONDS");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
