#pragma once

#include "listener.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QTimer>

namespace Cli
{

// What happens in a simulation, for programs: JSON objects, a line each, on standard output
// (docs/user-guide.md describes them). While it lives nothing else goes there, and what the command
// tells on standard error is a message here instead.
//
// What comes often is gathered for a twentieth of a second of real time, and bounded in all: bytes
// of UARTs, other texts and messages, each by a limit of its own. What is cut off is told once.
class LiveListener : public QObject, public Listener
{
    Q_OBJECT

public:
    LiveListener();
    ~LiveListener() override;

    // Places in files below `folder` are left out, since it goes with the simulation. `names`: what
    // the user calls files that stand there.
    void setFolder(const QString &folder, const QMap<QString, QString> &names);

    void uartSent(int number, char byte) override;
    void said(const QString &text, bool endsLine) override;
    void pinsChanged(quint32 levels, quint32 driven) override;
    void timePassed(quint64 cycles) override;
    void stageBegun(Stage stage) override;
    void compilerSaid(const QString &line) override;
    void told(Severity severity, const QString &text) override;
    void toldAt(Severity severity, const QString &text, const QString &file, int line) override;
    void checkFailed(const ScriptFailure &failure) override;
    void ended(const Outcome &outcome) override;

private:
    enum Kind { Uarts, Texts, Messages, Kinds };

    void flush();
    void tellMessage(Severity severity, const QString &text, const QString &file, int line);
    bool isWithin(Kind kind, qint64 size);
    QString placeOf(const QString &file) const;

    QTimer m_timer;
    QString m_folder;
    QMap<QString, QString> m_names;
    QMap<int, QByteArray> m_uarts; // not told yet
    QString m_text;                // of a line that has not ended
    QJsonObject m_pins;            // not told yet
    QJsonObject m_time;
    qint64 m_counts[Kinds] = {};
    QString m_lastError;
    bool m_hasEnded = false;
};

// The same for a command line that nothing can be done with: the message and the end.
void tellLiveMistake(int status, const QString &text);

} // namespace Cli
