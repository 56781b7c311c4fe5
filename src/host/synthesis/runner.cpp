#include "runner.h"

#include "flow/flow.h"
#include "flow/tools.h"
#include "resources.h"
#include "run/outputset.h"
#include "run/toollog.h"
#include "run/toolprocess.h"

#include <utils/folderlock.h>

#include <QElapsedTimer>
#include <QFileInfo>

#include <utility>

namespace Synthesis
{

class Runner::Private
{
public:
    explicit Private(Runner *runner)
        : q(runner)
    {
    }

    void start();
    void cancel();
    RunReport currentReport() const;

    Tool tool = Tool::TarvoSynthesis;
    Job job;
    QStringList inputMistakes;
    std::shared_ptr<Utils::FolderLock> lock; // for the next run
    bool running = false;
    bool cancelled = false;
    QString errorMsg;
    QStringList details;

private:
    QString refuseInputs();
    void runCommand();
    void commandEnded();
    void receive(const QString &line);
    QString failureOf(const ToolProcess &ended) const;
    QString takeResults();
    void end(const QString &error);
    void describeEnd();

    Runner *q;
    RunReport m_report;
    Job m_runningJob; // setJob() is for the next run
    std::unique_ptr<Flow> m_flow;
    std::unique_ptr<ToolProcess> m_process;
    ToolLog m_log;
    QElapsedTimer m_clock;
    int m_command = 0;
};

void Runner::Private::start()
{
    running = true;
    cancelled = false;
    errorMsg.clear();
    details.clear();
    m_log = ToolLog();
    m_command = 0;
    m_runningJob = job;
    m_clock.start();
    m_report = RunReport();
    m_report.tool = tool;
    m_report.job = job;
    m_flow = makeFlow(tool, job);

    QString error = m_flow->prepare(std::exchange(lock, nullptr));
    if (error.isEmpty() && !inputMistakes.isEmpty())
        error = refuseInputs();
    if (error.isEmpty())
        runCommand();
    else
        QMetaObject::invokeMethod(
            q, [this, error] { end(error); }, Qt::QueuedConnection);
}

// Returns the summary of the run.
QString Runner::Private::refuseInputs()
{
    for (const QString &mistake : qAsConst(inputMistakes))
        m_log.addError(mistake);
    const int count = m_log.errors().size();
    return count == 1 ? tr("The inputs hold a mistake; the tool was not started.")
                      : tr("The inputs hold %1 mistakes; the tool was not started.").arg(count);
}

void Runner::Private::cancel()
{
    if (!running || cancelled)
        return;
    cancelled = true;
    // Without a process the end is on its way already.
    if (m_process)
        m_process->stop();
}

RunReport Runner::Private::currentReport() const
{
    RunReport result = m_report;
    if (running) {
        result.cancelled = cancelled;
        result.milliseconds = m_clock.elapsed();
        result.messages = m_log.messages() + m_report.messages;
    }
    return result;
}

void Runner::Private::runCommand()
{
    const Command &command = m_flow->commands().at(m_command);
    m_process = std::make_unique<ToolProcess>(
        command, QFileInfo(m_runningJob.outputDir).absoluteFilePath(),
        ScratchFolder::relative(QStringLiteral("tmp")), m_flow->scratch().descriptor());
    QObject::connect(m_process.get(), &ToolProcess::lineReceived, q,
                     [this](const QString &line) { receive(line); });
    // Queued, so that the process may be deleted.
    QObject::connect(
        m_process.get(), &ToolProcess::ended, q, [this] { commandEnded(); }, Qt::QueuedConnection);
    m_process->start();
}

void Runner::Private::receive(const QString &line)
{
    if (const QString stage = m_flow->stageOf(line); !stage.isEmpty()) {
        Q_EMIT q->stageChanged(stage);
        Q_EMIT q->progressed(m_flow->stagesDone(), m_flow->stageCount());
    }
    Q_EMIT q->logReceived(m_log.add(line, m_flow->sources()));
}

void Runner::Private::commandEnded()
{
    const std::unique_ptr<ToolProcess> ended = std::move(m_process);
    if (m_command == 0) {
        const QStringList further = m_flow->furtherLog();
        for (const QString &line : further)
            receive(line);
    }
    if (cancelled || !ended->failure().isEmpty()) {
        end(failureOf(*ended));
        return;
    }
    if (const QString error = m_flow->commandDone(m_command); !error.isEmpty()) {
        end(error);
        return;
    }
    if (++m_command < m_flow->commands().size()) {
        runCommand();
        return;
    }

    end(takeResults());
}

QString Runner::Private::takeResults()
{
    Results results;
    QString error = m_flow->collect(&results);
    if (error.isEmpty())
        error = placeOutputs(results.outputs, m_flow->scratch());
    if (!error.isEmpty())
        return error;

    const NetlistUse counted = netlistUse(results.instances, m_runningJob.device.resources());
    m_report.cells = counted.cells;
    m_report.resources = counted.resources;
    receive(tr("Instances in the netlist:"));
    for (const CellCount &cell : qAsConst(m_report.cells))
        receive(QStringLiteral("%1 %2").arg(cell.count, 8).arg(cell.cell));
    for (const ResourceUse &use : qAsConst(m_report.resources)) {
        if (use.exceeds())
            m_report.messages << Message{Message::Warning,
                                         {},
                                         0,
                                         tr("The netlist needs %1 %2, but %3 has %4.")
                                             .arg(QString::number(use.used), use.resource,
                                                  m_runningJob.device.device(),
                                                  QString::number(use.available)),
                                         1};
    }
    m_report.summary = usedSentence(m_report.resources);
    receive(m_report.summary);
    if (const QString rest = notCountedSentence(m_report.cells); !rest.isEmpty()) {
        m_report.summary += u' ' + rest;
        receive(rest);
    }
    for (const Port &port : qAsConst(results.ports)) {
        const int highest = port.lowest + port.width - 1;
        m_report.ports << ReportPort{QString::fromUtf8(port.name),
                                     QString::fromLatin1(port.direction),
                                     port.isRising ? port.lowest : highest,
                                     port.isRising ? highest : port.lowest, port.isVector};
    }
    for (const Output &output : qAsConst(results.outputs))
        m_report.files << output.path;
    return {};
}

QString Runner::Private::failureOf(const ToolProcess &ended) const
{
    const QStringList errors = m_log.errors();
    const int count = errors.size();
    if (count == 0)
        return ended.failure();
    QString explained = m_flow->explained(errors.last());
    if (!explained.isEmpty())
        return explained;
    const QString name = m_flow->commands().at(m_command).name;
    return count == 1 ? tr("%1 found an error.").arg(name)
                      : tr("%1 found %2 errors.").arg(name).arg(count);
}

void Runner::Private::end(const QString &error)
{
    errorMsg = cancelled ? tr("The synthesis was cancelled.") : error;
    if (!error.isEmpty() && !cancelled) {
        // A tool seldom says that the disk is full, and may even report success.
        if (const QString problem = m_flow->scratch().problem(); !problem.isEmpty())
            errorMsg = problem;
    }
    if (!errorMsg.isEmpty() && !cancelled)
        details = m_log.errors();
    // Whether the log can be kept changes nothing about the run.
    const QString logFile = QFileInfo(m_runningJob.outputDir).absoluteFilePath() + u'/' +
                            m_runningJob.targetName + QLatin1String(".log");
    if (!m_log.text().isEmpty() &&
        placeOutputs({Output{logFile, m_log.text()}}, m_flow->scratch()).isEmpty())
        m_report.logFile = logFile;
    m_flow.reset();
    running = false;
    describeEnd();
    Q_EMIT q->finished(m_report.exitCode);
}

void Runner::Private::describeEnd()
{
    m_report.exitCode = errorMsg.isEmpty() ? 0 : 1;
    m_report.cancelled = cancelled;
    m_report.milliseconds = m_clock.elapsed();
    m_report.messages = m_log.messages() + m_report.messages;
    if (errorMsg.isEmpty())
        return;
    m_report.summary = errorMsg;
    m_report.cells.clear();
    m_report.resources.clear();
    m_report.ports.clear();
    m_report.files.clear();
    // What went wrong is among the messages, also where no tool said it.
    if (!cancelled && m_report.count(Message::Error) == 0)
        m_report.messages << Message{Message::Error, {}, 0, errorMsg, 1};
}

Runner::Runner(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
}

Runner::~Runner() = default;

void Runner::setInputMistakes(const QStringList &mistakes)
{
    d->inputMistakes = mistakes;
}

void Runner::setTool(Tool tool)
{
    d->tool = tool;
}

Tool Runner::tool() const
{
    return d->tool;
}

void Runner::setJob(const Job &job)
{
    d->job = job;
}

void Runner::setFolderLock(const std::shared_ptr<Utils::FolderLock> &lock)
{
    d->lock = lock;
}

void Runner::start()
{
    if (!d->running)
        d->start();
}

void Runner::cancel()
{
    d->cancel();
}

bool Runner::isRunning() const
{
    return d->running;
}

bool Runner::wasCancelled() const
{
    return d->cancelled;
}

QString Runner::errorMsg() const
{
    return d->errorMsg;
}

QStringList Runner::detailErrorMsgs() const
{
    return d->details;
}

RunReport Runner::report() const
{
    return d->currentReport();
}

} // namespace Synthesis
