#pragma once

#include "job.h"
#include "runreport.h"
#include "synthesis_global.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace Utils
{
class FolderLock;
}

namespace Synthesis
{

// Runs a synthesis tool on a Job as a process of its own and reports the end. Has no widget and
// needs a running event loop. A run has no time limit; cancel() ends it. cancel() and the
// destructor kill the tool's whole process group.
//
// The own tool leaves "<target>.vg" (netlist) and "<target>_tmp.v" (instantiation template) in the
// output folder, the project tool "<impl_name>/<target>.vm", "<target>_tmp.v" and "<target>.prj".
// Netlist and template appear only after a success. After a failed or cancelled run those of an
// earlier run are still there, so only exit code 0 says that they belong to this job. A file is not
// touched when its bytes would not change. "<target>.log" holds what the tool printed. Until the
// end everything else lives in the hidden folder ".tarvo-run".
class TARVO_SYNTHESIS_EXPORT Runner : public QObject
{
    Q_OBJECT

public:
    explicit Runner(QObject *parent = nullptr);
    ~Runner() override;

    void setTool(Tool tool);
    Tool tool() const;
    void setJob(const Job &job);
    // Mistakes of the job's inputs that were found before, one "file:line: reason" or
    // "file: reason" each. With any, start() ends with them as errors and starts no tool.
    void setInputMistakes(const QStringList &mistakes);
    // For the next run: the right to write into its output folder, where the caller writes there
    // too. Without it the run takes the right itself, and ends at once if another has it.
    void setFolderLock(const std::shared_ptr<Utils::FolderLock> &lock);

    // Starts a run and returns at once; finished() follows exactly once, never from within start().
    // Does nothing while a run is active.
    void start();
    // Ends the active run: finished() follows with a non-zero code and wasCancelled() is true.
    void cancel();
    bool isRunning() const;
    bool wasCancelled() const;

    // Of the last run: one summary sentence, empty after a success, and the tool's errors, one a
    // line ("file:line: text" where the tool names a place).
    QString errorMsg() const;
    QStringList detailErrorMsgs() const;
    // All of the last run; while one is active, what is known of it so far.
    RunReport report() const;

Q_SIGNALS:
    // A short phrase for people ("Reading sources").
    void stageChanged(const QString &stage);
    // `done` of `total` stages are behind; `total` stays the same in one run.
    void progressed(int done, int total);
    // Output of the tool as it comes, whole lines without their line ends.
    void logReceived(const QString &text);
    // The end of a run; 0 is success.
    void finished(int exitCode);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Synthesis
