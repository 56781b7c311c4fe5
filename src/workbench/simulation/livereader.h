#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Workbench
{

// Something that a simulation has told.
struct LiveEvent {
    enum Kind {
        Stage,      // text: "program", "simulator" or "run"
        Uart,       // number, bytes
        Text,       // text: a line
        Pins,       // levels, driven
        Time,       // clockCycles
        Message,    // severity, text, file and line where they are known
        End,        // result, status, text: the reason, clockCycles, lines
        Unreadable, // text: what was no event, cut
    };
    enum Severity { Error, Warning, Note };
    enum Result { Passed, Failed, TimeLimit, Cancelled };

    Kind kind = Unreadable;
    int number = 0;
    QByteArray bytes;
    QString text;
    quint32 levels = 0; // a bit each
    quint32 driven = 0;
    quint64 clockCycles = 0;
    Severity severity = Error;
    QString file; // full path
    int line = 0;
    Result result = Failed;
    int status = 0;
    QStringList lines;
};

// Reads what a simulation prints, JSON objects of a line each, and writes what it is told. Lines of
// any length and contents are borne; objects of unknown kinds are left out.
class LiveReader
{
public:
    static constexpr int lineLimit = 1 << 20; // bytes
    static constexpr int textLimit = 10000;   // characters of a text for a list
    static constexpr int linesLimit = 100;    // of an end

    // The events of all lines that are complete with these bytes.
    QVector<LiveEvent> take(const QByteArray &bytes);
    // Those of what stands behind the last line end.
    QVector<LiveEvent> finish();

    // Lines for the simulation.
    static QByteArray input(int uart, const QByteArray &bytes);
    static QByteArray pins(quint32 mask, quint32 levels);
    static QByteArray stop();

private:
    void takeLine(const QByteArray &line, QVector<LiveEvent> *events);

    QByteArray m_line; // as far as it is there
    bool m_isTooLong = false;
};

} // namespace Workbench
