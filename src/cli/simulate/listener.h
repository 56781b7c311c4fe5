#pragma once

#include "simulationend.h"

#include <QString>
#include <QStringList>

namespace Cli
{

enum class Stage { Program, Simulator, Run };

enum class Severity { Error, Warning, Note };

// What is told at the end of all.
struct Outcome {
    SimulationEnd::Result result = SimulationEnd::Failed;
    int status = 0; // of the process
    QString reason; // a clause; may be empty
    quint64 cycles = 0;
    QStringList lines; // a sentence each
};

// Hears what happens while a program is simulated. Each call does nothing unless it is overridden.
class Listener
{
public:
    virtual ~Listener() = default;

    // The subsystem has sent a byte.
    virtual void uartSent(int number, char byte)
    {
        Q_UNUSED(number)
        Q_UNUSED(byte)
    }
    // What the program or the simulator says; `endsLine`: a line end follows.
    virtual void said(const QString &text, bool endsLine)
    {
        Q_UNUSED(text)
        Q_UNUSED(endsLine)
    }
    // The pins of the GPIO have changed: what they show, and which ones the subsystem drives.
    virtual void pinsChanged(quint32 levels, quint32 driven)
    {
        Q_UNUSED(levels)
        Q_UNUSED(driven)
    }
    // A check of a script has failed, or a line of it is none.
    virtual void checkFailed(const ScriptFailure &failure) { Q_UNUSED(failure) }
    // Now and then: clock cycles from the end of the power-on reset.
    virtual void timePassed(quint64 cycles) { Q_UNUSED(cycles) }

    // What is being done now.
    virtual void stageBegun(Stage stage) { Q_UNUSED(stage) }
    // A compiler's line, as it comes.
    virtual void compilerSaid(const QString &line) { Q_UNUSED(line) }
    // Something for the user, one line or several.
    virtual void told(Severity severity, const QString &text)
    {
        Q_UNUSED(severity)
        Q_UNUSED(text)
    }
    // Something that the program did, with its place in C: a full path and a line.
    virtual void toldAt(Severity severity, const QString &text, const QString &file, int line)
    {
        Q_UNUSED(severity)
        Q_UNUSED(text)
        Q_UNUSED(file)
        Q_UNUSED(line)
    }
    // Last of all, once.
    virtual void ended(const Outcome &outcome) { Q_UNUSED(outcome) }
};

} // namespace Cli
