#pragma once

#include "engine.h"
#include "scratchfolder.h"
#include "simulationend.h"

#include <utils/interrupt.h>
#include <utils/result.h>

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

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
// they say. The folder goes with this object, and with the process even if that is killed.
class Simulation : public QObject
{
    Q_OBJECT

public:
    Simulation();

    // Empty: it could not be made; the reason is in problem().
    QString folder() const;
    QString problem() const { return m_problem; }
    bool wasCancelled() const { return m_isCancelled; }
    // As Ctrl+C does it: what runs is stopped, and nothing is run any more.
    void cancel();

    // The path of a program; a failure names the Debian package that has it.
    static Utils::Result<QString> findTool(const char *program, const char *package);

    using UartTaker = std::function<void(int number, char byte)>;
    using LineTaker = std::function<void(const QString &)>;
    // Runs a program in the folder. A failure is a sentence; after a cancellation it is empty.
    Utils::Result<void> runTool(const Tool &tool, const LineTaker &takeLine);

    // Writes a file below the folder.
    Utils::Result<void> write(const QString &path, const QByteArray &bytes) const;

    // Puts links to the design's folders, and the board, into the folder. Once.
    Utils::Result<StagedDesign> stage(const Design &design);

    // For the next play(): a debugger of the program in this file is awaited.
    void expectDebugger(const QString &program) { m_debugged = program; }
    // For the next play(): takes the bytes that UARTs send, beside the listener.
    void setUartTaker(const UartTaker &taker) { m_takeByte = taker; }

    // Plays what the engine has built.
    SimulationEnd play(const Engine &engine, const QStringList &plusArguments, Listener &listener);

Q_SIGNALS:
    void cancelled();

private:
    ScratchFolder m_folder;
    QString m_problem;
    QString m_debugged;
    UartTaker m_takeByte;
    Utils::Interrupt m_interrupt;
    bool m_isCancelled = false;
};

} // namespace Cli
