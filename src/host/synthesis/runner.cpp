#include "runner.h"

#include "flow.h"
#include "outputset.h"
#include "projectflow.h"
#include "toollog.h"
#include "toolprocess.h"
#include "yosysflow.h"

#include <utils/fileutils.h>

#include <QFileInfo>

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

    Tool tool = Tool::TarvoSynthesis;
    Job job;
    bool running = false;
    bool cancelled = false;
    QString errorMsg;
    QStringList details;

private:
    void runCommand();
    void commandEnded();
    void receive(const QString &line);
    QString failureOf(const ToolProcess &ended) const;
    void end(const QString &error);

    Runner *q;
    Job m_runningJob; // setJob() is for the next run
    std::unique_ptr<Flow> m_flow;
    std::unique_ptr<ToolProcess> m_process;
    ToolLog m_log;
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
    if (tool == Tool::SynplifyPro)
        m_flow = std::make_unique<ProjectFlow>(job);
    else
        m_flow = std::make_unique<YosysFlow>(job);

    const QString error = m_flow->prepare();
    if (error.isEmpty())
        runCommand();
    else
        QMetaObject::invokeMethod(
            q, [this, error] { end(error); }, Qt::QueuedConnection);
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

void Runner::Private::runCommand()
{
    const Command &command = m_flow->commands().at(m_command);
    m_process =
        std::make_unique<ToolProcess>(command, QFileInfo(m_runningJob.outputDir).absoluteFilePath(),
                                      ScratchFolder::relative(QStringLiteral("tmp")));
    QObject::connect(m_process.get(), &ToolProcess::lineReceived, q,
                     [this](const QString &line) { receive(line); });
    // Queued, so that the process may be deleted.
    QObject::connect(
        m_process.get(), &ToolProcess::ended, q, [this] { commandEnded(); }, Qt::QueuedConnection);
    m_process->start();
}

void Runner::Private::receive(const QString &line)
{
    if (const QString stage = m_flow->stageOf(line); !stage.isEmpty())
        Q_EMIT q->stageChanged(stage);
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
    if (++m_command < m_flow->commands().size()) {
        runCommand();
        return;
    }

    QVector<Output> outputs;
    QStringList summary;
    QString error = m_flow->collect(&outputs, &summary);
    if (error.isEmpty())
        error = placeOutputs(outputs);
    if (error.isEmpty()) {
        for (const QString &line : qAsConst(summary))
            receive(line);
    }
    end(error);
}

QString Runner::Private::failureOf(const ToolProcess &ended) const
{
    const int count = m_log.errors().size();
    if (count == 0)
        return ended.failure();
    QString explained = m_flow->explained(m_log.errors().last());
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
    if (!m_log.text().isEmpty())
        Utils::FileUtils::writeFile(m_runningJob.outputDir + u'/' + m_runningJob.targetName +
                                        QLatin1String(".log"),
                                    m_log.text(), nullptr);
    m_flow.reset();
    running = false;
    Q_EMIT q->finished(errorMsg.isEmpty() ? 0 : 1);
}

Runner::Runner(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
}

Runner::~Runner() = default;

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

} // namespace Synthesis
