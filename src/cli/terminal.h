#pragma once

#include <QByteArray>
#include <QString>

namespace Cli
{

// What a simulated program says, on standard output: the bytes of a UART as they are, and lines of
// other texts behind "semihosting: ", on lines of their own. Both are bounded; what is cut off is
// told once.
class Terminal
{
public:
    void putUart(char byte);
    // `endsLine`: a line end follows.
    void putText(const QString &text, bool endsLine);

private:
    enum Source { Nobody, Uart, Text };

    void turnTo(Source source);
    void put(const QByteArray &bytes);

    Source m_last = Nobody;
    bool m_isAtLineStart = true;
    qint64 m_uartBytes = 0;
    qint64 m_textBytes = 0;
};

} // namespace Cli
