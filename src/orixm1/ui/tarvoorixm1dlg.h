#pragma once

#include "config/optionmap.h"
#include "microsysipgendlg.h"
#include "rules/stephistory.h"

#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace IPCore
{
class SynthesisHelper;
}

namespace TARVOORIXM1
{

class GenerationRecord;
class IPView;
struct FindIndex;
struct GenerationInput;
struct SystemDescription;

// The configuration window of one IP. Owns its option map; everything else of the IP is in its .ipc
// file.
class TarvoOrixM1Dlg : public MicroSysIPGenDlg
{
    Q_OBJECT

public:
    explicit TarvoOrixM1Dlg(const OptionMap &info, QWidget *parent = nullptr);
    ~TarvoOrixM1Dlg() override;

    // Writes the .ipc file of the current state; always true. The entry of the output folder leaves
    // the map.
    bool saveIPConfig();
    bool checkItcmInitPath();
    QString targetName() const;

    const OptionMap &currentOptions() const { return options; }

    // For hosts that ask before they start a tool: what no tool could make sense of, one
    // "file:line: reason" each.
    Q_INVOKABLE QStringList inputMistakes() const;
    // For a host: what OK would store now, {"file": path, "header": map, "options": map}.
    Q_INVOKABLE QVariantMap configuration() const;

    // What was changed since the configuration was made or opened, a map {"name"} for each step,
    // and how many of them count now; the others are undone.
    Q_INVOKABLE QVariantList steps() const;
    Q_INVOKABLE int currentStep() const;
    // Lets the first `count` steps count; 0 is what the file has. The fields of the window are no
    // steps and stay as they are. False, and nothing happens, for a number that there is not, and
    // while a window of this one is open in front of it.
    Q_INVOKABLE bool goToStep(int count);

    // Frames the block of the diagram with this label; an empty or an unknown one: none.
    Q_INVOKABLE void pointAt(const QString &block);

Q_SIGNALS:
    // configuration() tells something else than before.
    void configurationChanged();
    // The block of the diagram, by its label, that is under the mouse or that the keyboard has
    // reached; empty: none.
    void pointedAt(const QString &block);

public Q_SLOTS:
    // Validates, saves and starts generation; the dialog closes when the run has succeeded.
    void accept() override;

private Q_SLOTS:
    void onGenerationFinished(int exitCode);
    void UpdateCreatinPath();
    void onOptionsChanged();
    void onFieldChanged();
    void undo();
    void redo();

private:
    void updateDeviceDependentState() override;
    bool loadIPConfig(const QString &ipcFile) override;

    void buildActions();
    // The options without what the window's fields decide.
    OptionMap steppedOptions() const;
    void updateActions();
    void tellChange();
    FindIndex findIndex();

    void generateCore();
    // From what the widgets select now.
    GenerationInput generationInput() const;
    // Ends the record of a generation after a run that ended with `exitCode` and whose results were
    // collected with `status`.
    void finishRecord(int exitCode, int status);
    // Has the host put the outputs under the configuration's prefix, if it has one, beside the
    // others. What becomes of that is told with the notices.
    void placePrefixed();
    // Tells a host that listens where the contents of edited files are.
    void tellNotices();
    void makeSynthesis();
    QString tempDir() const;

    const OptionMap ipInfo;
    IPView *view = nullptr;
    OptionMap options;
    StepHistory history;
    QVariantMap lastTold; // what configuration() was when a change was told last
    QAction *undoAction = nullptr;
    QAction *redoAction = nullptr;
    std::unique_ptr<SystemDescription> description; // for findIndex(), which reads it first
    QString descriptionError;
    IPCore::SynthesisHelper *synthesis = nullptr; // child of this dialog, made when it is needed
    std::unique_ptr<GenerationRecord> record;     // of the last generation
    QStringList prefixNotices;                    // likewise
};

} // namespace TARVOORIXM1
