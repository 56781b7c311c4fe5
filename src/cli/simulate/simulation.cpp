#include "simulation.h"

#include "boardreader.h"

#include <synthesis/toolrun.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

namespace Cli
{

Simulation::Simulation()
    : m_folder(QStringLiteral("orixm1-simulate"))
    , m_problem(m_folder.problem())
{
    connect(&m_interrupt, &Utils::Interrupt::received, this, &Simulation::cancel);
    if (m_problem.isEmpty() && !QDir(m_folder.path()).mkdir(QStringLiteral("tmp")))
        m_problem = QLatin1String("A folder in \"") + m_folder.path() +
                    QLatin1String("\" could not be made.");
}

void Simulation::cancel()
{
    m_isCancelled = true;
    Q_EMIT cancelled();
}

QString Simulation::folder() const
{
    return m_problem.isEmpty() ? m_folder.path() : QString();
}

Utils::Result<QString> Simulation::findTool(const char *program, const char *package)
{
    const QString name = QLatin1String(program);
    const QString path = QStandardPaths::findExecutable(name);
    if (path.isEmpty())
        return Utils::Failure{QLatin1String("No program \"") + name +
                              QLatin1String("\" was found on PATH; the Debian package ") +
                              QLatin1String(package) + QLatin1String(" has it.")};
    return QFileInfo(path).absoluteFilePath();
}

Utils::Result<void> Simulation::runTool(const Tool &tool, const LineTaker &takeLine)
{
    if (m_isCancelled)
        return Utils::Failure{QString()};
    Synthesis::ToolRun run({tool.name, tool.path, tool.arguments, folder()});
    QEventLoop loop;
    connect(&run, &Synthesis::ToolRun::lineReceived, &loop, takeLine);
    connect(&run, &Synthesis::ToolRun::ended, &loop, &QEventLoop::quit);
    connect(this, &Simulation::cancelled, &run, &Synthesis::ToolRun::stop);
    run.start();
    loop.exec();
    if (m_isCancelled)
        return Utils::Failure{QString()};
    if (!run.failure().isEmpty())
        return Utils::Failure{run.failure()};
    return {};
}

Utils::Result<void> Simulation::write(const QString &path, const QByteArray &bytes) const
{
    const QString full = folder() + u'/' + path;
    const QString parent = QFileInfo(full).absolutePath();
    QString error;
    if ((!QDir().mkpath(parent) && !Utils::FileUtils::makePath(parent, &error)) ||
        !Utils::FileUtils::writePassingFile(full, bytes, &error))
        return Utils::Failure{error};
    return {};
}

Utils::Result<StagedDesign> Simulation::stage(const Design &design)
{
    StagedDesign staged;
    QStringList folders;
    bool isLinked = true;
    const auto linked = [&](const QString &folder) {
        int index = folders.indexOf(folder);
        if (index < 0) {
            index = folders.size();
            folders.append(folder);
        }
        const QString link = QStringLiteral("sources%1").arg(index);
        if (index == staged.includeFolders.size()) {
            isLinked = isLinked && QFile::link(folder, this->folder() + u'/' + link);
            staged.includeFolders.append(link);
        }
        return link;
    };
    for (const QString &folder : design.includeFolders)
        linked(folder);
    for (const QString &source : design.sources) {
        const QFileInfo info(source);
        staged.sources.append(linked(info.absolutePath()) + u'/' + info.fileName());
    }
    isLinked = isLinked && QFile::link(design.modelFolder, folder() + QLatin1String("/model"));
    if (!isLinked)
        return Utils::Failure{QLatin1String("A link in \"") + folder() +
                              QLatin1String("\" could not be made.")};
    if (const auto written = write(QStringLiteral("board.v"), design.board); !written)
        return Utils::Failure{written.reason()};
    staged.sources += {QStringLiteral("model/cortex_m1_core_isa.v"), QStringLiteral("board.v")};
    return staged;
}

SimulationEnd Simulation::play(const Engine &engine, const QStringList &plusArguments,
                               Listener &listener)
{
    SimulationEnd end;
    const QString mark = QUuid::createUuid().toString(QUuid::Id128).left(16);
    BoardReader reader(mark, listener, end);
    reader.setUartTaker(m_takeByte);
    reader.expectDebugger(m_debugged);
    const auto result =
        runTool(engine.run(QStringList(QLatin1String("mark=") + mark) + plusArguments),
                [&reader](const QString &line) { reader.takeLine(line); });
    reader.finish();
    if (wasCancelled()) {
        end.result = SimulationEnd::Cancelled;
    } else if (!result || !reader.hasEnded()) {
        end.result = SimulationEnd::Failed;
        end.hasEndedByItself = bool(result);
        end.reason = result ? QStringLiteral("the simulation has ended by itself")
                            : result.reason().chopped(1);
        if (reader.lacksLibrary())
            end.reason += QLatin1String("; the Debian package libunicorn2 has the library");
    }
    return end;
}

} // namespace Cli
