#pragma once

#include "simulationend.h"

#include <QString>
#include <QStringList>

namespace Cli
{

class Listener;

// Reads what a board prints (boardOf()): events, and between them what the program says.
class BoardReader
{
public:
    // `listener` and `end` outlive it.
    BoardReader(const QString &mark, Listener &listener, SimulationEnd &end);

    void takeLine(const QString &line);
    // What is held back belongs to nobody else.
    void finish() { release(); }

    bool hasEnded() const { return m_hasEnded; }
    bool lacksLibrary() const { return m_lacksLibrary; }

private:
    void takeText(const QString &text, bool endsLine);
    void release();
    void takeVerdict();
    void takeEvent(const QStringList &words);
    void takeFailure(const ScriptFailure &failure);
    void takeByte(int uart, char byte);

    const QString m_begin;
    Listener &m_listener;
    SimulationEnd &m_end;
    QString m_held;
    bool m_isHeld = false;
    bool m_hasEnded = false;
    bool m_lacksLibrary = false;
};

} // namespace Cli
