#pragma once

#include <system/systemmap.h>
#include <utils/interrupt.h>
#include <utils/result.h>

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace Cli
{

class Terminal;

// How a simulation came to its end.
struct SimulationEnd {
    enum Result { Passed, Failed, TimeLimit, Cancelled };

    Result result = Failed;
    QString reason;              // why it failed, a clause; else empty
    quint64 cycles = 0;          // of the clock, from the end of the power-on reset
    qint64 lockedUpAt = -1;      // the cycle; -1: it did not lock up
    QStringList emptyBlocks; // instances of licensed blocks that were accessed
    QMap<int, QByteArray> uarts; // by number: what each one has sent, up to a limit
    QMap<int, qint64> uartBytes; // how many these were
};

// The folder in which a simulation is made, the programs that work there, and the reading of what
// they say. The folder goes with this object, and with the process even if that is killed while a
// program runs.
class Simulation : public QObject
{
    Q_OBJECT

public:
    // What is simulated.
    struct Design {
        QStringList sources;   // without the processor
        QString includeFolder; // of the generated files, relative to folder()
        QString modelFolder;   // with the processor's model
        QByteArray board;
    };

    Simulation();

    // Empty: it could not be made; the reason is in problem().
    QString folder() const;
    QString problem() const { return m_problem; }
    bool wasCancelled() const { return m_isCancelled; }

    // The path of a program; a failure names the Debian package that has it.
    static Utils::Result<QString> findTool(const char *program, const char *package);

    using LineTaker = std::function<void(const QString &)>;
    // Runs a program in the folder. A failure is a sentence; after a cancellation it is empty.
    Utils::Result<void> runTool(const QString &name, const QString &path,
                                const QStringList &arguments, const LineTaker &takeLine);

    // Writes a file below the folder.
    Utils::Result<void> write(const QString &path, const QByteArray &bytes) const;

    // Makes "board.vvp". A failure is a text with what the compiler said.
    Utils::Result<void> compile(const QString &iverilog, const Design &design);

    // Plays "program.elf" on it; `waves` leaves "waves.fst". The terminal gets what the program
    // says, and the bytes of UART0 if `showsUart`.
    SimulationEnd play(const QString &vvp, quint64 timeout, bool waves, bool showsUart,
                       Terminal &terminal);

private:
    QTemporaryDir m_folder;
    QString m_problem;
    Utils::Interrupt m_interrupt;
    bool m_isCancelled = false;
};

} // namespace Cli
