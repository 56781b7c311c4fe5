#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Cli
{

// What a script found wrong.
struct ScriptFailure {
    QString file; // a full path
    int line = 0; // from 1; 0: the file as a whole
    QString text;
};

// "FILE:LINE: TEXT"
inline QString failureText(const ScriptFailure &failure)
{
    return failure.line == 0 ? failure.text
                             : failure.file + u':' + QString::number(failure.line) +
                                   QLatin1String(": ") + failure.text;
}

// A rule of a bus that was broken.
struct BrokenRule {
    QString bus;         // "AHB" or "APB" at a slave, "processor" at its side of the AHB
    quint32 address = 0; // of the slave, or of the transfer; nothing at the processor
    QString rule;
};

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

    std::optional<BrokenRule> brokenRule; // which has ended it

    bool hasEndedByItself = false; // nobody has told the end

    bool isScript = false;  // what was played; only then what follows counts
    bool hasCounts = false; // it has come to its end
    qint64 checks = 0;
    qint64 failures = 0;           // of checks and of lines with a mistake
    QVector<ScriptFailure> failed; // these, up to a limit of the model
};

} // namespace Cli
