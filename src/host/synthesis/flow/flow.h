#pragma once

#include "netlist/designports.h"
#include "run/outputset.h"
#include "run/scratchfolder.h"
#include "run/sourcestage.h"
#include "run/toolprocess.h"
#include "tools.h"
#include <synthesis/job.h>

#include <QMap>
#include <QStringList>
#include <QVector>

namespace Synthesis
{

// What a run has made.
struct Results {
    QVector<Output> outputs;         // the most important one last
    QMap<QByteArray, int> instances; // of primitives and black boxes, by name
    QVector<Port> ports;             // of the top module
};

// How a job becomes commands, and what they left becomes outputs. The commands are run one after
// the other with the output folder as the working folder; each must exit with 0.
//
// Functions that return a string return one sentence on failure and nothing on success.
class Flow
{
public:
    // `tool` is the row of the flow, which lives on.
    Flow(const ToolRow &tool, const Job &job);
    virtual ~Flow() = default;
    Q_DISABLE_COPY(Flow)

    // Checks the job, stages the sources and writes what the commands read. For `lock` see
    // ScratchFolder::create().
    QString prepare(const std::shared_ptr<Utils::FolderLock> &lock);
    const QVector<Command> &commands() const { return m_commands; }
    const SourceStage &sources() const { return m_sources; }
    const ScratchFolder &scratch() const { return m_scratch; }

    // The phrase for what a line of output begins, or empty.
    virtual QString stageOf(const QString &line) = 0;
    // Stages that are behind, and all stages.
    virtual int stagesDone() const = 0;
    virtual int stageCount() const = 0;
    // What is worth reading of a log file that a command left.
    virtual QStringList furtherLog() const { return {}; }
    // After each command that exited with 0, by its number.
    virtual QString commandDone(int command);
    // A better sentence for a command's error message, or empty.
    virtual QString explained(const QString &error) const;
    // After the last command.
    virtual QString collect(Results *results) = 0;

protected:
    virtual QString prepareTool() = 0;

    QString option(const char *key) const;
    QString topModule() const { return option("top_module"); }
    Language language() const { return m_job.language(); }
    QString templatePath() const;
    // Of the top module, in the language of the job.
    QByteArray instantiationTemplate(const DesignPorts &design) const;
    // "<output folder>/<target><suffix>"
    QString outputPath(const QString &suffix) const;
    QString outputPath(const char *suffix) const { return outputPath(QLatin1String(suffix)); }
    // Adds a command of a tool, which must be on PATH.
    QString addCommand(const ToolRow &tool, const QStringList &arguments);
    QString writeScratch(const QString &file, const QByteArray &bytes) const;
    // Reads a file that a command should have left; `shown` is the name that the result would get.
    QString readResult(const QString &file, const QString &shown, QByteArray *bytes) const;
    // What a command wrote for the result `path` makes no sense: a sentence of the clause `reason`.
    QString unusable(const QString &path, const QString &reason) const;
    // Sentences on a command that exited with 0, `tool`: the result `path` is missing, or a part of
    // it is.
    static QString notWritten(const QString &tool, const QString &path);
    static QString notComplete(const QString &tool, const QString &path);
    // The comment on top of an output.
    QByteArray title(const char *what) const;

    const ToolRow &m_tool;
    Job m_job;
    ScratchFolder m_scratch;
    SourceStage m_sources;

private:
    QVector<Command> m_commands;
};

} // namespace Synthesis
