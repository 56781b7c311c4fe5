#include "boardreader.h"

#include "listener.h"
#include "shellword.h"

#include <QRegularExpression>

namespace Cli
{

namespace
{

constexpr int mostUartBytes = 16 << 20; // kept of each UART
constexpr QChar eventMark(0x1E);

} // namespace

BoardReader::BoardReader(const QString &mark, Listener &listener, SimulationEnd &end)
    : m_begin(QString(eventMark) + mark + u' ')
    , m_listener(listener)
    , m_end(end)
{
}

void BoardReader::takeLine(const QString &line)
{
    const int place = line.indexOf(m_begin);
    if (line.startsWith(QLatin1String("FST info: dumpfile ")))
        return;
    if (line.contains(QLatin1String("libunicorn.so")))
        m_lacksLibrary = true;
    static const QLatin1String port("The program waits for gdb at 127.0.0.1:");
    if (!m_debugged.isEmpty() && line.startsWith(port)) {
        m_listener.told(Severity::Note, line + QLatin1String(": gdb-multiarch ") +
                                            shellWord(m_debugged) +
                                            QLatin1String(" -ex 'target remote ") +
                                            line.mid(line.lastIndexOf(u' ') + 1) + u'\'');
        m_debugged.clear();
        return;
    }
    if (place < 0) {
        takeText(line, true);
        return;
    }
    if (place > 0)
        takeText(line.left(place), false);
    takeEvent(line.mid(place + m_begin.size()).split(u' '));
}

// The model's verdict is a line like others, or the end of one: it is known as such only when the
// board's event follows.
void BoardReader::takeText(const QString &text, bool endsLine)
{
    release();
    static const QRegularExpression verdict(QStringLiteral("(PASS|FAIL: .*)$"));
    if (endsLine && verdict.match(text).hasMatch()) {
        m_held = text;
        m_isHeld = true;
    } else {
        m_listener.said(text, endsLine);
    }
}

void BoardReader::release()
{
    if (m_isHeld)
        m_listener.said(m_held, true);
    m_isHeld = false;
}

void BoardReader::takeVerdict()
{
    if (!m_isHeld)
        return;
    const int failed = m_held.lastIndexOf(QLatin1String("FAIL: "));
    const int from = failed >= 0 ? failed : m_held.size() - 4;
    if (from > 0)
        m_listener.said(m_held.left(from), true);
    if (failed >= 0)
        m_end.reason = m_held.mid(failed + 6);
    m_isHeld = false;
}

void BoardReader::takeEvent(const QStringList &words)
{
    const QString kind = words.first();
    const auto word = [&words](int i) { return i < words.size() ? words.at(i) : QString(); };
    if (kind == QLatin1String("done"))
        takeVerdict();
    release();
    if (kind == QLatin1String("uart")) {
        takeByte(word(1).toInt(), char(word(2).toUInt(nullptr, 16)));
    } else if (kind == QLatin1String("gpio")) {
        m_listener.pinsChanged(word(1).toUInt(nullptr, 16), word(2).toUInt(nullptr, 16));
    } else if (kind == QLatin1String("time")) {
        m_listener.timePassed(word(1).toULongLong());
    } else if (kind == QLatin1String("lockup")) {
        if (m_end.lockedUpAt < 0)
            m_end.lockedUpAt = word(1).toLongLong();
    } else if (kind == QLatin1String("failure")) {
        // Of the model, when it plays a script.
        const QString file = QString::fromUtf8(QByteArray::fromPercentEncoding(word(2).toLatin1()));
        takeFailure({file, word(1).toInt(), words.mid(3).join(u' ')});
    } else if (kind == QLatin1String("checks")) {
        m_end.hasCounts = true;
        m_end.checks = word(1).toLongLong();
        m_end.failures = word(2).toLongLong();
    } else if (kind == QLatin1String("empty")) {
        m_end.emptyBlocks.append(word(1).mid(int(sizeof "board.dut")));
    } else if (kind == QLatin1String("rule")) {
        // Others are broken with it, and an end may come as well. The processor only sees what a
        // slave does.
        if (!m_end.brokenRule || m_end.brokenRule->bus == QLatin1String("processor")) {
            m_end.brokenRule =
                BrokenRule{word(2), word(3).toUInt(nullptr, 16), words.mid(4).join(u' ')};
            m_end.result = SimulationEnd::Failed;
            m_end.cycles = word(1).toULongLong();
            m_hasEnded = true;
        }
    } else if (kind == QLatin1String("end") && !m_end.brokenRule) {
        m_hasEnded = true;
        m_end.result = word(1) == QLatin1String("passed")    ? SimulationEnd::Passed
                       : word(1) == QLatin1String("timeout") ? SimulationEnd::TimeLimit
                                                             : SimulationEnd::Failed;
        m_end.cycles = word(2).toULongLong();
    }
}

void BoardReader::takeFailure(const ScriptFailure &failure)
{
    ++m_end.failures;
    m_end.failed.append(failure);
    m_listener.checkFailed(failure);
}

void BoardReader::takeByte(int uart, char byte)
{
    ++m_end.uartBytes[uart];
    QByteArray &sent = m_end.uarts[uart];
    if (sent.size() < mostUartBytes)
        sent.append(byte);
    m_listener.uartSent(uart, byte);
    if (m_takeUart)
        m_takeUart(uart, byte);
}

} // namespace Cli
