#include "toolprocess.h"

#include "processguard.h"

#include <QProcess>
#include <QTimer>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

constexpr int stopGraceMs = 2000;
constexpr int longestLine = 1 << 16;

} // namespace

class ToolProcess::Process : public QProcess
{
public:
    Process()
        : m_parent(::getpid())
    {
    }

protected:
    void setupChildProcess() override
    {
        ::setsid();
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        // The parent may have died before the request above.
        if (::getppid() != m_parent)
            ::_exit(127);
    }

private:
    const pid_t m_parent;
};

ToolProcess::ToolProcess(const Command &command, const QString &workingDir,
                         const QString &scratchDir, QObject *parent)
    : QObject(parent)
    , m_command(command)
    , m_process(std::make_unique<Process>())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("TMPDIR"), scratchDir);
    environment.remove(QStringLiteral("LANGUAGE"));
    m_process->setProcessEnvironment(environment);
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setWorkingDirectory(workingDir);
    m_process->setProgram(command.program);
    m_process->setArguments(command.arguments);

    connect(m_process.get(), &QProcess::readyRead, this, &ToolProcess::readOutput);
    connect(m_process.get(), &QProcess::started, this,
            [this] { m_group = m_process->processId(); });
    connect(
        m_process.get(), &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                finish(tr("%1 could not be started: %2.")
                           .arg(m_command.name, m_process->errorString()));
        },
        Qt::QueuedConnection);
    connect(
        m_process.get(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
        [this](int code, QProcess::ExitStatus status) {
            if (status == QProcess::CrashExit)
                finish(tr("%1 crashed (signal %2).").arg(m_command.name).arg(code));
            else if (code != 0)
                finish(tr("%1 failed with exit code %2.").arg(m_command.name).arg(code));
            else
                finish(QString());
        },
        Qt::QueuedConnection);
}

ToolProcess::~ToolProcess()
{
    m_process->disconnect(this);
    signalGroup(SIGKILL);
    if (m_process->state() != QProcess::NotRunning)
        m_process->waitForFinished(-1);
}

void ToolProcess::start()
{
    m_guard = std::make_unique<ProcessGuard>();
    m_process->start(QIODevice::ReadOnly);
    m_group = m_process->processId();
    if (m_group > 0)
        m_guard->watch(static_cast<pid_t>(m_group));
}

void ToolProcess::stop()
{
    signalGroup(SIGTERM);
    QTimer::singleShot(stopGraceMs, this, [this] { signalGroup(SIGKILL); });
}

void ToolProcess::readOutput()
{
    m_pending += m_process->readAll();
    int from = 0;
    for (int end;
         (end = m_pending.indexOf('\n', from)) >= 0 || m_pending.size() - from > longestLine;
         from = end + 1) {
        if (end < 0 || end - from > longestLine)
            end = from + longestLine - 1; // no line end there: the piece keeps its last byte
        QByteArray line = m_pending.mid(from, end - from + 1);
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        Q_EMIT lineReceived(QString::fromUtf8(line));
    }
    m_pending.remove(0, from);
}

void ToolProcess::finish(const QString &failure)
{
    if (m_ended)
        return;
    m_ended = true;
    signalGroup(SIGKILL);
    readOutput();
    if (!m_pending.isEmpty())
        Q_EMIT lineReceived(QString::fromUtf8(m_pending));
    m_pending.clear();
    m_group = 0;
    m_guard.reset();
    m_failure = failure;
    Q_EMIT ended();
}

void ToolProcess::signalGroup(int number)
{
    if (m_group <= 0)
        return;
    // Just after the fork the child may not have made its group yet.
    if (::kill(-static_cast<pid_t>(m_group), number) != 0 &&
        m_process->state() != QProcess::NotRunning)
        ::kill(static_cast<pid_t>(m_group), number);
}

} // namespace Synthesis
