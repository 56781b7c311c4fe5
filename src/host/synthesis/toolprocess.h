#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Synthesis
{

class ProcessGuard;

// What is run: `name` is for people ("Yosys"), `program` the full path.
struct Command {
    QString name;
    QString program;
    QStringList arguments;
};

// One run of a command in a session and process group of its own, without a shell and without
// standard input. Whatever the command leaves behind in its group dies with it, and all of it with
// this object or this process.
class ToolProcess : public QObject
{
    Q_OBJECT

public:
    // `scratchDir`, relative to `workingDir`, takes the command's temporary files.
    ToolProcess(const Command &command, const QString &workingDir, const QString &scratchDir,
                QObject *parent = nullptr);
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
    class Process;

    void readOutput();
    void finish(const QString &failure);
    void signalGroup(int number);

    Command m_command;
    std::unique_ptr<ProcessGuard> m_guard;
    std::unique_ptr<Process> m_process;
    QByteArray m_pending; // output after the last line end
    QString m_failure;
    qint64 m_group = 0;
    bool m_ended = false;
};

} // namespace Synthesis
