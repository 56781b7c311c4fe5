#pragma once

#include "processguard.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QSocketNotifier)

namespace Synthesis
{

// What is run: `name` is for people ("Yosys"), `program` the full path.
struct Command {
    QString name;
    QString program;
    QStringList arguments;
    bool usersHome = false; // else it has a home folder of its own
    QString doomedFolder{}; // goes when this process dies while the command runs; empty: none
    bool isIdle = false;    // gets the processor when nothing else wants it
    bool hasErrors = true;  // standard error is read as well
};

// One run of a command in a process group of its own, without a shell, a terminal and standard
// input. Whatever the command leaves behind in its group dies with it, and all of it with this
// object or this process.
class ToolProcess : public QObject
{
    Q_OBJECT

public:
    // `scratchDir`, relative to `workingDir`, takes the command's temporary files. `kept`, a file
    // descriptor or -1, stays open until nothing of the group is left, also when this process is
    // gone before.
    ToolProcess(const Command &command, const QString &workingDir, const QString &scratchDir,
                int kept, QObject *parent = nullptr);
    ~ToolProcess() override;

    void start();
    // Asks the group to end and kills it after a short grace.
    void stop();

    // After ended(): a sentence that names the command, or empty when it exited with 0.
    QString failure() const { return m_failure; }

Q_SIGNALS:
    // Without line end; a very long line comes in pieces.
    void lineReceived(const QString &line);
    // Once, from the event loop.
    void ended();

private:
    // Whether there was some.
    bool readOutput();
    void takeEvent();
    void finish(const QString &failure);
    QString notStarted(int errorNumber) const;

    Command m_command;
    Program m_program;
    int m_kept;
    std::unique_ptr<ProcessGuard> m_guard;
    std::unique_ptr<QSocketNotifier> m_events;
    std::unique_ptr<QSocketNotifier> m_output;
    int m_pipe = -1;      // what the command prints
    QByteArray m_pending; // output after the last line end
    QString m_failure;
    bool m_ended = false;
};

} // namespace Synthesis
