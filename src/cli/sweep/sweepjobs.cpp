#include "sweepjobs.h"

#include "../simulate/scratchfolder.h"

#include <sweep/workflow.h>
#include <synthesis/toolrun.h>
#include <utils/interrupt.h>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// Set for the jobs of a run.
constexpr char runVariable[] = "ORIXM1_SWEEP";       // number of its process
constexpr char homeVariable[] = "ORIXM1_SWEEP_HOME"; // the user's, which tools do not see

void setPath(const char *variable, const QString &path)
{
    if (path.isEmpty())
        qunsetenv(variable);
    else
        qputenv(variable, QFile::encodeName(QFileInfo(path).absoluteFilePath()));
}

} // namespace

Utils::Result<QString> SweepJobs::findNinja()
{
    const QString path = QStandardPaths::findExecutable(QStringLiteral("ninja"));
    if (path.isEmpty())
        return Utils::Failure{QStringLiteral(
            "No program \"ninja\", which runs the jobs, was found on PATH; the Debian package "
            "ninja-build has it. --no-synth needs none.")};
    return QFileInfo(path).absoluteFilePath();
}

Utils::Result<void>
SweepJobs::run(const QString &ninja, const Folders &folders, const QString &folder, int jobs,
               const Progress &progress,
               const std::function<void(const std::function<void()> &)> &atCancel)
{
    const ScratchFolder scratch(QStringLiteral("orixm1-sweep"));
    if (!scratch.problem().isEmpty())
        return Utils::Failure{scratch.problem()};
    if (!QDir(scratch.path()).mkdir(QStringLiteral("tmp")))
        return Utils::Failure{QLatin1String("A folder in \"") + scratch.path() +
                              QLatin1String("\" could not be made.")};
    setPath(programVariable, QCoreApplication::applicationFilePath());
    setPath(dataVariable, folders.data);
    setPath(devicesVariable, folders.devices);
    qputenv(runVariable, QByteArray::number(QCoreApplication::applicationPid()));
    qputenv(homeVariable, qgetenv("HOME"));
    qputenv("NINJA_STATUS", "[%f/%t] ");

    Synthesis::ToolRun run({QStringLiteral("Ninja"),
                            ninja,
                            {QStringLiteral("-C"), folder, QStringLiteral("-k"),
                             QStringLiteral("0"), QStringLiteral("-j"), QString::number(jobs)},
                            scratch.path()});
    QString trouble; // of Ninja itself
    int ended = 0;
    QEventLoop loop;
    QObject::connect(&run, &Synthesis::ToolRun::lineReceived, [&](const QString &line) {
        static const QRegularExpression status(QStringLiteral("^\\[(\\d+)/(\\d+)\\] (.*)$"));
        const QRegularExpressionMatch match = status.match(line);
        if (match.hasMatch()) {
            ended = match.captured(1).toInt();
            progress(ended, match.captured(2).toInt(), match.captured(3));
        } else if (line.startsWith(QLatin1String("ninja: error: "))) {
            trouble = line;
        }
    });
    QObject::connect(&run, &Synthesis::ToolRun::ended, &loop, &QEventLoop::quit);
    bool isCancelled = false;
    atCancel([&] {
        isCancelled = true;
        run.stop();
    });
    run.start();
    loop.exec();
    atCancel({});
    if (isCancelled || run.failure().isEmpty())
        return {};
    if (!trouble.isEmpty())
        return Utils::Failure{run.failure() + u' ' + trouble};
    // Jobs have failed, and have said so in their folders.
    return ended > 0 ? Utils::Result<void>() : Utils::Failure{run.failure()};
}

bool SweepJobs::joinRun()
{
    if (!qEnvironmentVariableIsSet(runVariable))
        return true;
    if (!Utils::Interrupt::followParent(qgetenv(runVariable).toLongLong()))
        return false;
    // What tools may see of it is decided where they are run.
    if (const QByteArray home = qgetenv(homeVariable); !home.isEmpty())
        qputenv("HOME", home);
    for (const char *variable : {runVariable, homeVariable})
        qunsetenv(variable);
    return true;
}

} // namespace Cli
