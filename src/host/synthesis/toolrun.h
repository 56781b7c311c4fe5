#pragma once

#include "synthesis_global.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Synthesis
{

// One run of a program, as the tools of a synthesis are run: in a process group of its own, without
// a shell, a terminal, standard input and, unless it is to see that, the user's home. Whatever it
// leaves behind dies with it,
// and all of it with this object or this process, however that ends. Needs a running event loop.
class TARVO_SYNTHESIS_EXPORT ToolRun : public QObject
{
    Q_OBJECT

public:
    struct Call {
        QString name;    // for people: "Icarus Verilog"
        QString program; // full path
        QStringList arguments;
        // Where it runs, by its full path; its temporary files go into "tmp" below it, which must
        // exist. The folder is removed if this object or this process goes while the program runs.
        QString folder;
        bool usersHome = false; // sees the user's home, with settings and caches
        bool isIdle = false;    // gets the processor when nothing else wants it
        bool hasErrors = true;  // standard error is read as well
    };

    explicit ToolRun(const Call &call, QObject *parent = nullptr);
    ~ToolRun() override;

    // Once.
    void start();
    // Asks the program to end and kills it after a short grace; ended() follows.
    void stop();

    // After ended(): a sentence that names the program, or empty when it exited with 0.
    QString failure() const;

Q_SIGNALS:
    // What it writes to standard output and standard error, without line end; a very long line
    // comes in pieces.
    void lineReceived(const QString &line);
    // Once, from the event loop.
    void ended();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Synthesis
