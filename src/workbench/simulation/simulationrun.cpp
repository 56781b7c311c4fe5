#include "simulationrun.h"

#include "tr.h"

#include <QDir>
#include <QProcess>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace Workbench
{

namespace
{

constexpr int errorLimit = 4096;         // bytes of standard error that are kept
constexpr qint64 waitingLimit = 1 << 16; // bytes that a program may leave unread

} // namespace

class SimulationRun::Process : public QProcess
{
protected:
    void setupChildProcess() override
    {
        ::setpgid(0, 0); // Ctrl+C in the workbench's terminal is the workbench's
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != m_parent)
            ::_exit(1);
        sigset_t none;
        sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
    }

private:
    const pid_t m_parent = ::getpid();
};

SimulationRun::SimulationRun(const QString &program, const QStringList &arguments,
                             const QString &folder)
    : m_program(program)
    , m_arguments(arguments)
    , m_process(std::make_unique<Process>())
{
    m_process->setWorkingDirectory(folder);
    m_patience.setSingleShot(true);
    m_patience.setInterval(2000);
    connect(&m_patience, &QTimer::timeout, this, &SimulationRun::pressOn);
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &SimulationRun::read);
    connect(m_process.get(), &QProcess::readyReadStandardError, this, &SimulationRun::read);
    connect(m_process.get(), qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &SimulationRun::onFinished);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(Tr::tr("\"%1\" cannot be started: %2.")
                       .arg(QDir::toNativeSeparators(m_program), m_process->errorString()));
    });
}

SimulationRun::~SimulationRun()
{
    m_process->disconnect(this);
    if (m_process->state() == QProcess::NotRunning)
        return;
    m_process->kill();
    m_process->waitForFinished(-1);
}

void SimulationRun::start()
{
    m_process->start(m_program, m_arguments);
}

qint64 SimulationRun::processId() const
{
    return m_process->processId();
}

void SimulationRun::setPatience(int toStop, int toTerminate)
{
    m_patience.setInterval(toStop);
    m_toTerminate = toTerminate;
}

bool SimulationRun::send(const QByteArray &line)
{
    return m_process->state() != QProcess::NotRunning &&
           m_process->bytesToWrite() + line.size() <= waitingLimit &&
           m_process->write(line) == line.size();
}

void SimulationRun::stop()
{
    if (m_isStopped || m_isOver)
        return;
    m_isStopped = true;
    send(LiveReader::stop());
    m_patience.start();
}

void SimulationRun::pressOn()
{
    if (m_isTerminated) {
        m_process->kill();
        return;
    }
    m_isTerminated = true;
    m_process->terminate();
    m_patience.start(m_toTerminate);
}

void SimulationRun::read()
{
    m_errors += m_process->readAllStandardError();
    m_errors = m_errors.right(errorLimit);
    forward(m_reader.take(m_process->readAllStandardOutput()));
}

// The end is told when the process is gone.
void SimulationRun::forward(QVector<LiveEvent> events)
{
    QVector<LiveEvent> shown;
    for (LiveEvent &event : events) {
        if (event.kind != LiveEvent::End) {
            shown.append(std::move(event));
        } else if (!m_hasEnd) {
            m_end = event;
            m_hasEnd = true;
        }
    }
    if (!shown.isEmpty())
        Q_EMIT received(shown);
}

QString SimulationRun::lastWords() const
{
    const QStringList lines = QString::fromUtf8(m_errors).split(u'\n', Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last().simplified();
}

void SimulationRun::onFinished()
{
    read();
    forward(m_reader.finish());
    const QString words = lastWords();
    if (m_process->exitStatus() == QProcess::CrashExit)
        finish(Tr::tr("the program that simulates was ended by a signal"));
    else if (!words.isEmpty())
        finish(words);
    else
        finish(Tr::tr("the program that simulates ended with status %1 and told nothing")
                   .arg(m_process->exitCode()));
}

// `reason`: if the program has told none itself.
void SimulationRun::finish(const QString &reason)
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_patience.stop();
    if (!m_hasEnd) {
        m_end = LiveEvent();
        m_end.kind = LiveEvent::End;
        m_end.result = m_isStopped ? LiveEvent::Cancelled : LiveEvent::Failed;
        m_end.status = 1;
        m_end.text = m_isStopped ? QString() : reason;
    }
    Q_EMIT received({m_end});
}

} // namespace Workbench
