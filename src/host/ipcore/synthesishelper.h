#pragma once

#include "ipcore_global.h"

#include <dev/devicearg.h>

#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <memory>

namespace Synthesis
{
struct RunReport;
}

namespace IPCore
{

// What a run works on. A plain value; the keys of `options` are those of a Synthesis::Job.
struct SynthesizeArgs {
    QString outputDir; // must exist
    QString ipName;
    QString targetName; // base name of the outputs
    DEV::DeviceArg device;
    QVariantMap options;
};

// Runs a synthesis tool with a progress window: stage, elapsed time, the tool's log as it comes,
// and Cancel. Every run is reported to the SynthesisMonitor too.
class TARVO_IPCORE_EXPORT SynthesisHelper : public QObject
{
    Q_OBJECT

public:
    enum SynthesizeTool { SynplifyPro = 0, TarvoSynthesis = 1 };
    Q_ENUM(SynthesizeTool)

    // If `parent` is a widget the progress window belongs to it. Destroying a helper ends its run.
    explicit SynthesisHelper(QObject *parent = nullptr);
    ~SynthesisHelper() override;

    // TarvoSynthesis until something else is set. Takes effect at the next start().
    void setSynthesizeTool(SynthesizeTool tool);
    SynthesizeTool synthesizeTool() const;
    void setArgs(const SynthesizeArgs &args);

    void setProgressDlgWindowTitle(const QString &title);
    // The window blocks its parent window while it is shown. Closing it asks for cancellation, as
    // its Cancel button does.
    void showProgressDlg();
    void hideProgressDlg();

    // Starts a run and returns; finished() follows exactly once. Ignored while a run is active. The
    // output folder is kept from other runs until finished() has been heard, or hideProgressDlg()
    // is called then.
    void start();
    void cancel();
    bool isRunning() const;

    // Of the last run: the summary error, empty after a success, and the detailed messages.
    QString errorMsg() const;
    QStringList detailErrorMsgs() const;
    // For an application, not for plug-ins. All of the last run; while one is active, what is known
    // of it so far. Messages about the user's files come first.
    Synthesis::RunReport report() const;
    // What a plug-in may keep of the last run, found by its name, since not every host has it:
    // "tool" and "version" as people call them, and "report", the report as JSON has it. Asks the
    // tool for its version.
    Q_INVOKABLE QVariantMap runRecord() const;
    // For a plug-in, found by its name as well: sentences on what it has done around the run, which
    // are no errors. The application shows them with the run's messages.
    Q_INVOKABLE void tellNotices(const QStringList &notices);
    // For a plug-in, found by its name as well: writes a set of files as Utils::writeBundle() does,
    // nothing of an earlier set left over. A file is a map: "path" below the folder, "group", and
    // "bytes". Returns "error", a sentence, with which nothing was written, or empty, and
    // "notices", sentences on files that somebody has edited.
    Q_INVOKABLE QVariantMap placeFiles(const QString &folder, const QString &manifest,
                                       const QVariantList &files);

Q_SIGNALS:
    // A short phrase for people ("Reading sources").
    void stageChanged(const QString &stage);
    // `done` of `total` stages are behind.
    void progressed(int done, int total);
    // Output of the tool as it comes, whole lines without their line ends.
    void logReceived(const QString &text);
    // 0 means success.
    void finished(int exitCode);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace IPCore
