#include "pluginprobe.h"

#include "sayings.h"

#include <core/editormanager.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace Workbench
{

namespace
{

// What a plug-in may print meanwhile, in bytes.
constexpr int outputLimit = 1 << 20;

QString programPath()
{
    Dl_info host;
    if (::dladdr(reinterpret_cast<void *>(&Core::EditorManager::setHandler), &host) == 0)
        return {};
    const QFileInfo library(QFile::decodeName(host.dli_fname));
    const QString path =
        QFileInfo(library.canonicalFilePath()).dir().filePath(QLatin1String(PluginProbe::program));
    return QFileInfo::exists(path) ? path : QString();
}

} // namespace

class PluginProbe::Process : public QProcess
{
public:
    explicit Process(int timeLimit)
        : m_seconds(unsigned(timeLimit / 1000 + 2))
    {
    }

    void launch(const QString &path, const QStringList &arguments)
    {
        start(path, arguments, ReadOnly);
        m_group = pid_t(processId());
    }

    // With everything that the plug-in has started.
    void end()
    {
        if (m_group > 0)
            ::kill(-m_group, SIGKILL);
        m_group = 0;
        if (state() == NotRunning)
            return;
        kill();
        waitForFinished(-1);
    }

protected:
    void setupChildProcess() override
    {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::alarm(m_seconds); // should nobody be left to end it
        const rlimit none = {0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
    }

private:
    unsigned m_seconds;
    pid_t m_group = 0;
};

PluginProbe::PluginProbe(const QString &library, const QString &dataFolder, int timeLimit)
    : m_timeLimit(timeLimit)
{
    const QString path = programPath();
    if (path.isEmpty())
        return;
    m_process = std::make_unique<Process>(timeLimit);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    m_process->setProcessEnvironment(environment);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    m_process->launch(path, {library, dataFolder});
}

PluginProbe::~PluginProbe()
{
    if (m_process)
        m_process->end();
}

QString PluginProbe::stepWords(int step)
{
    switch (step) {
    case PluginLoader::Loading:
        return Sayings::told(Sayings::WhileLoaded);
    case PluginLoader::Starting:
        return Sayings::told(Sayings::WhileStarted);
    case PluginLoader::Listing:
        return Sayings::told(Sayings::WhenAskedForIps);
    case PluginLoader::Describing:
        return Sayings::told(Sayings::WhenAskedWhatTheyAre);
    case PluginLoader::Supporting:
        return Sayings::told(Sayings::WhenAskedAboutDevices);
    case PluginLoader::Releasing:
        return Sayings::told(Sayings::WhenReleased);
    default:
        return {};
    }
}

PluginProbe::Result PluginProbe::wait()
{
    // Without the program a plug-in is trusted.
    if (!m_process)
        return {};
    QByteArray output;
    QElapsedTimer waited;
    waited.start();
    bool tooMuch = false;
    while (m_process->state() != QProcess::NotRunning && waited.elapsed() < m_timeLimit &&
           !tooMuch) {
        m_process->waitForReadyRead(int(qBound<qint64>(1, m_timeLimit - waited.elapsed(), 200)));
        output += m_process->readAllStandardOutput();
        tooMuch = output.size() > outputLimit;
    }
    const bool blocked = m_process->state() != QProcess::NotRunning;
    m_process->end();
    output += m_process->readAllStandardOutput();

    int step = -1;
    QJsonObject told;
    const QList<QByteArray> lines = output.split('\n');
    for (const QByteArray &line : lines) {
        if (!line.startsWith(linePrefix))
            continue;
        const QByteArray rest = line.mid(int(std::strlen(linePrefix)));
        if (rest.startsWith('{'))
            told = QJsonDocument::fromJson(rest).object();
        else
            step = rest.toInt();
    }
    const QString when = stepWords(step);
    if (tooMuch && step >= 0)
        return {Sayings::told(Sayings::PrintedForEver, {when}), true};
    if (blocked && step >= 0)
        return {Sayings::told(Sayings::DidNotAnswer, {QString::number(m_timeLimit / 1000), when}),
                true};
    // Nothing of the plug-in has run: that is not its fault.
    if (step < 0)
        return {};
    const QString number = QString::number(m_process->exitCode());
    if (m_process->exitStatus() == QProcess::CrashExit)
        return {Sayings::told(Sayings::Crashed, {when, number}), false};
    if (told.isEmpty())
        return {Sayings::told(Sayings::Ended, {when, number}), false};
    if (!told.value(QLatin1String("ips")).toArray().isEmpty())
        return {};
    const QJsonArray mistakes = told.value(QLatin1String("mistakes")).toArray();
    QStringList sentences;
    for (const QJsonValue &mistake : mistakes)
        sentences.append(mistake.toString());
    return {sentences.join(u' '), false};
}

} // namespace Workbench
