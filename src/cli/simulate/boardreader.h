#pragma once

#include "simulationend.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace Cli
{

class Listener;

// Reads what a board prints (boardOf()): events, and between them what the program says.
class BoardReader
{
public:
    // `listener` and `end` outlive it.
    BoardReader(const QString &mark, Listener &listener, SimulationEnd &end);

    // Takes the bytes that UARTs send, beside the listener.
    void setUartTaker(const std::function<void(int, char)> &taker) { m_takeUart = taker; }
    // The simulation tells the port at which it waits for a debugger, before all else; the listener
    // hears how the program in this file is debugged there.
    void expectDebugger(const QString &program) { m_debugged = program; }

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
    std::function<void(int, char)> m_takeUart;
    QString m_debugged; // empty: no debugger is expected
    bool m_hasEnded = false;
    bool m_lacksLibrary = false;
};

} // namespace Cli
