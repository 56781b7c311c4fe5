#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Cli
{

// How a simulation came to its end.
struct SimulationEnd {
    enum Result { Passed, Failed, TimeLimit, Cancelled };

    Result result = Failed;
    QString reason;              // why it failed, a clause; else empty
    quint64 cycles = 0;          // of the clock, from the end of the power-on reset
    qint64 lockedUpAt = -1;      // the cycle; -1: it did not lock up
    QStringList emptyBlocks;     // instances of licensed blocks that were accessed
    QMap<int, QByteArray> uarts; // by number: what each one has sent, up to a limit
    QMap<int, qint64> uartBytes; // how many these were

    bool hasEndedByItself = false; // nobody has told the end
};

} // namespace Cli
