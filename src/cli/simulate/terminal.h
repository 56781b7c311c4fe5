#pragma once

#include "listener.h"

#include <QByteArray>
#include <QString>

namespace Cli
{

// What a simulated program says, on standard output: the bytes of a UART as they are, and lines of
// other texts behind "semihosting: ", on lines of their own. Both are bounded; what is cut off is
// told once. Failures of a script are on standard error.
class Terminal : public Listener
{
public:
    // `showsUart`: the bytes of UART0 appear.
    explicit Terminal(bool showsUart)
        : m_showsUart(showsUart)
    {
    }

    void uartSent(int number, char byte) override;
    void said(const QString &text, bool endsLine) override;
    void checkFailed(const ScriptFailure &failure) override;

private:
    enum Source { Nobody, Uart, Text };

    void turnTo(Source source);
    void put(const QByteArray &bytes);

    const bool m_showsUart;
    Source m_last = Nobody;
    bool m_isAtLineStart = true;
    qint64 m_uartBytes = 0;
    qint64 m_textBytes = 0;
};

} // namespace Cli
