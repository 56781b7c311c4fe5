#include "toolprocess.h"

#include <utils/systemerror.h>

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QSocketNotifier>
#include <QTimer>

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

constexpr int stopGraceMs = 2000;
constexpr int longestLine = 1 << 16;

QByteArrayList encoded(const QStringList &texts)
{
    QByteArrayList result;
    for (const QString &text : texts)
        result << QFile::encodeName(text);
    return result;
}

} // namespace

ToolProcess::ToolProcess(const Command &command, const QString &workingDir,
                         const QString &scratchDir, int kept, QObject *parent)
    : QObject(parent)
    , m_command(command)
    , m_kept(kept)
    , m_guard(std::make_unique<ProcessGuard>())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("TMPDIR"), scratchDir);
    if (!command.usersHome)
        environment.insert(QStringLiteral("HOME"), scratchDir);
    environment.remove(QStringLiteral("LANGUAGE"));
    m_program.path = QFile::encodeName(command.program);
    m_program.arguments = encoded(command.arguments);
    m_program.environment = encoded(environment.toStringList());
    m_program.folder = QFile::encodeName(workingDir);
    m_program.doomedFolder = QFile::encodeName(command.doomedFolder);
    m_program.isIdle = command.isIdle;
    m_program.hasErrors = command.hasErrors;
}

ToolProcess::~ToolProcess()
{
    m_events.reset();
    m_output.reset();
    m_guard.reset();
    if (m_pipe >= 0)
        ::close(m_pipe);
}

QString ToolProcess::notStarted(int errorNumber) const
{
    return tr("%1 could not be started: \"%2\": %3.")
        .arg(m_command.name, QDir::toNativeSeparators(m_command.program),
             Utils::systemError(errorNumber));
}

void ToolProcess::start()
{
    int ends[2];
    int number = ::pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno;
    if (number == 0) {
        number = m_guard->start(m_program, ends[1], m_kept);
        ::close(ends[1]);
        m_pipe = ends[0];
        ::fcntl(m_pipe, F_SETFL, O_NONBLOCK);
    }
    if (number != 0) {
        QMetaObject::invokeMethod(
            this, [this, number] { finish(notStarted(number)); }, Qt::QueuedConnection);
        return;
    }
    m_output = std::make_unique<QSocketNotifier>(m_pipe, QSocketNotifier::Read);
    connect(m_output.get(), &QSocketNotifier::activated, this, &ToolProcess::readOutput);
    m_events = std::make_unique<QSocketNotifier>(m_guard->channel(), QSocketNotifier::Read);
    connect(m_events.get(), &QSocketNotifier::activated, this, &ToolProcess::takeEvent);
}

void ToolProcess::stop()
{
    if (!m_events || m_ended)
        return;
    m_guard->order(SIGTERM);
    QTimer::singleShot(stopGraceMs, this, [this] {
        if (!m_ended)
            m_guard->order(SIGKILL);
    });
}

bool ToolProcess::readOutput()
{
    char buffer[1 << 16];
    const ssize_t size =
        Utils::uninterrupted([&] { return ::read(m_pipe, buffer, sizeof buffer); });
    if (size <= 0) {
        if (size == 0 || errno != EAGAIN)
            m_output->setEnabled(false);
        return false;
    }
    m_pending.append(buffer, int(size));
    int from = 0;
    QStringList lines;
    for (int end;
         (end = m_pending.indexOf('\n', from)) >= 0 || m_pending.size() - from > longestLine;
         from = end + 1) {
        if (end < 0 || end - from > longestLine)
            end = from + longestLine - 1; // no line end there: the piece keeps its last byte
        QByteArray line = m_pending.mid(from, end - from + 1);
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        lines << QString::fromUtf8(line);
    }
    m_pending.remove(0, from);
    for (const QString &line : qAsConst(lines))
        Q_EMIT lineReceived(line);
    return true;
}

void ToolProcess::takeEvent()
{
    int value = 0;
    switch (m_guard->next(&value)) {
    case ProcessGuard::Event::Nothing:
    case ProcessGuard::Event::Started:
        return;
    case ProcessGuard::Event::NotStarted:
        finish(notStarted(value));
        return;
    case ProcessGuard::Event::Lost:
        finish(tr("%1 was killed from outside.").arg(m_command.name));
        return;
    case ProcessGuard::Event::Ended:
        if (WIFSIGNALED(value))
            finish(tr("%1 crashed (signal %2).").arg(m_command.name).arg(WTERMSIG(value)));
        else if (WEXITSTATUS(value) != 0)
            finish(tr("%1 failed with exit code %2.").arg(m_command.name).arg(WEXITSTATUS(value)));
        else
            finish(QString());
        return;
    }
}

void ToolProcess::finish(const QString &failure)
{
    if (m_ended)
        return;
    m_ended = true;
    if (m_events)
        m_events->setEnabled(false);
    // Nothing of the group is left, so all that it printed is in the pipe.
    while (m_output && readOutput())
        continue;
    if (m_output)
        m_output->setEnabled(false);
    if (!m_pending.isEmpty())
        Q_EMIT lineReceived(QString::fromUtf8(m_pending));
    m_pending.clear();
    m_guard.reset();
    m_failure = failure;
    Q_EMIT ended();
}

} // namespace Synthesis
