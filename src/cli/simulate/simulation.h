#pragma once

#include "engine.h"
#include "simulationend.h"

#include <utils/interrupt.h>
#include <utils/result.h>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace Cli
{

class Listener;

// A design as a simulator's compiler gets it: paths relative to the folder, without characters that
// a tool may stumble over, whatever the folders are called.
struct StagedDesign {
    QStringList sources; // with the processor's model and the board
    QStringList includeFolders;
};

// The folder in which a simulation is made, the programs that work there, and the reading of what
// they say. The folder goes with this object, and with the process even if that is killed while a
// program runs.
class Simulation : public QObject
{
    Q_OBJECT

public:
    Simulation();

    // Empty: it could not be made; the reason is in problem().
    QString folder() const;
    QString problem() const { return m_problem; }
    bool wasCancelled() const { return m_isCancelled; }

    // The path of a program; a failure names the Debian package that has it.
    static Utils::Result<QString> findTool(const char *program, const char *package);

    using LineTaker = std::function<void(const QString &)>;
    // Runs a program in the folder. A failure is a sentence; after a cancellation it is empty.
    Utils::Result<void> runTool(const Tool &tool, const LineTaker &takeLine);

    // Writes a file below the folder.
    Utils::Result<void> write(const QString &path, const QByteArray &bytes) const;

    // Puts links to the design's folders, and the board, into the folder. Once.
    Utils::Result<StagedDesign> stage(const Design &design);

    // Plays what the engine has built.
    SimulationEnd play(const Engine &engine, const QStringList &plusArguments, Listener &listener);

private:
    QTemporaryDir m_folder;
    QString m_problem;
    Utils::Interrupt m_interrupt;
    bool m_isCancelled = false;
};

} // namespace Cli
