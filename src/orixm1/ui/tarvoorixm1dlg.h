#pragma once

#include "config/optionmap.h"
#include "microsysipgendlg.h"

#include <memory>

namespace IPCore
{
class SynthesisHelper;
}

namespace TARVOORIXM1
{

class GenerationRecord;
class IPView;
struct GenerationInput;

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

public Q_SLOTS:
    // Validates, saves and starts generation; the dialog closes when the run has succeeded.
    void accept() override;

private Q_SLOTS:
    void onGenerationFinished(int exitCode);
    void UpdateCreatinPath();

private:
    void updateDeviceDependentState() override;
    bool loadIPConfig(const QString &ipcFile) override;

    void generateCore();
    // From what the widgets select now.
    GenerationInput generationInput() const;
    // Ends the record of a generation after a run that ended with `exitCode` and whose results were
    // collected with `status`.
    void finishRecord(int exitCode, int status);
    // Tells a host that listens where the contents of edited files are.
    void tellNotices();
    void makeSynthesis();
    QString tempDir() const;

    const OptionMap ipInfo;
    IPView *view = nullptr;
    OptionMap options;
    IPCore::SynthesisHelper *synthesis = nullptr; // child of this dialog, made when it is needed
    std::unique_ptr<GenerationRecord> record;     // of the last generation
};

} // namespace TARVOORIXM1
