#pragma once

#include "listener.h"

#include <QByteArray>
#include <QString>

namespace Cli
{

// What a simulated program says, on standard output: the bytes of a UART as they are, and lines of
// other texts behind "semihosting: ", on lines of their own. Both are bounded; what is cut off is
// told once. Everything else goes to standard error.
class Terminal : public Listener
{
public:
    // `uart`: the number of the UART whose bytes appear; -1: none.
    explicit Terminal(int uart)
        : m_uart(uart)
    {
    }

    void uartSent(int number, char byte) override;
    void said(const QString &text, bool endsLine) override;
    void compilerSaid(const QString &line) override;
    void told(Severity severity, const QString &text) override;
    void ended(const Outcome &outcome) override;
    void checkFailed(const ScriptFailure &failure) override;

private:
    enum Source { Nobody, Uart, Text };

    void turnTo(Source source);
    void put(const QByteArray &bytes);

    const int m_uart;
    Source m_last = Nobody;
    bool m_isAtLineStart = true;
    qint64 m_uartBytes = 0;
    qint64 m_textBytes = 0;
    qint64 m_compilerBytes = 0;
};

} // namespace Cli
