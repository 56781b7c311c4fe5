#pragma once

#include <dev/devicearg.h>

#include <QDialog>
#include <QStringList>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace TARVOORIXM1
{

namespace Ui
{
class MicroSysIPGenDlg;
}

// The frame of the configuration window: output folder, tool, language and device around a content
// widget. Prepared once, for a new IP or for an existing file, and then run.
class MicroSysIPGenDlg : public QDialog
{
    Q_OBJECT

public:
    explicit MicroSysIPGenDlg(QWidget *parent = nullptr);
    ~MicroSysIPGenDlg() override;

    // Makes a folder named after the IP inside `createInDir` the output folder.
    void prepareNew(const QString &createInDir, const DEV::DeviceArg &newDevice);
    // False: the file cannot be used, the user has been told, and the dialog must not be shown.
    bool prepareOpen(const QString &createInDir, const QString &ipcFile);

    // The output folder with "/" separators.
    QString createInPath() const;
    DEV::DeviceArg currentDevice() const { return device; }
    QString synthesisTool() const;
    // 0 Verilog, 1 VHDL, -1 when nothing is selected.
    int languageIndex() const;
    void setLanguageIndex(int index);
    // A text that is no item leaves the selection alone.
    void selectSynthesisTool(const QString &tool);
    // Takes ownership.
    void setContentWidget(QWidget *widget);

    // What is wrong with the output folder's text.
    QStringList createInErrors() const;
    // Asks before an existing folder is used, or makes the folder. False: the user declined, or it
    // cannot be made and the user has been told.
    bool confirmOutputFolder();
    void showErrors(const QStringList &errors);

    // Keeps the first size within the height of the screen, buttons included.
    void setVisible(bool visible) override;

protected:
    virtual void updateDeviceDependentState();
    virtual void readDeviceFromIPConfig(QSettings &settings);
    virtual bool loadIPConfig(const QString &ipcFile) = 0;

    QString createInText() const;

    QString helpFile; // local path of the help document

    std::unique_ptr<Ui::MicroSysIPGenDlg> ui;

private Q_SLOTS:
    void onBtnBrowse();
    void onBtnHelp();

private:
    void setDevice(const DEV::DeviceArg &newDevice);

    DEV::DeviceArg device;
    QString browseSuffix; // follows the folder that Browse gave; empty
    bool openMode = false;
    bool m_sized = false; // the first size has been chosen
};

} // namespace TARVOORIXM1
