#include "terminal.h"

#include "../output.h"

#include <cstdio>

namespace Cli
{

namespace
{

constexpr qint64 mostUartBytes = 16 << 20;
constexpr qint64 mostTextBytes = 1 << 20;

// True if `size` more bytes are within the limit; says once that they are not.
bool isWithin(qint64 limit, qint64 size, qint64 *count, const char *what)
{
    const bool wasWithin = *count <= limit;
    *count += size;
    if (wasWithin && *count > limit)
        printError(QLatin1String("The rest of what ") + QLatin1String(what) +
                   QLatin1String(" says is cut off."));
    return *count <= limit;
}

} // namespace

void Terminal::turnTo(Source source)
{
    if (m_last != source && !m_isAtLineStart)
        put("\n");
    m_last = source;
}

void Terminal::put(const QByteArray &bytes)
{
    printText(stdout, bytes.toStdString());
    m_isAtLineStart = bytes.endsWith('\n');
    // Somebody may be watching.
    std::fflush(stdout);
}

void Terminal::uartSent(int number, char byte)
{
    if (number != m_uart)
        return;
    if (!isWithin(mostUartBytes, 1, &m_uartBytes, "the UART"))
        return;
    turnTo(Uart);
    put(QByteArray(1, byte));
}

void Terminal::said(const QString &text, bool endsLine)
{
    const QByteArray bytes = text.toUtf8();
    if (bytes.isEmpty() && !endsLine)
        return;
    if (!isWithin(mostTextBytes, bytes.size() + 1, &m_textBytes, "the program"))
        return;
    turnTo(Text);
    put((m_isAtLineStart ? QByteArray("semihosting: ") : QByteArray()) + bytes +
        (endsLine ? QByteArray("\n") : QByteArray()));
}

void Terminal::compilerSaid(const QString &line)
{
    m_compilerBytes += line.size();
    if (m_compilerBytes < mostTextBytes)
        printText(stderr, line.toStdString() + '\n');
}

void Terminal::told(Severity severity, const QString &text)
{
    Q_UNUSED(severity)
    printError(text);
}

void Terminal::ended(const Outcome &outcome)
{
    for (const QString &line : outcome.lines)
        printError(line);
}

// The model limits how many there are.
void Terminal::checkFailed(const ScriptFailure &failure)
{
    printText(stderr, failureText(failure).toStdString() + '\n');
}

} // namespace Cli
