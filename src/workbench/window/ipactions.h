#pragma once

#include <dev/devicearg.h>

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

namespace Workbench
{

class ClosingSequence;
class EditorTabs;
class InfoBar;
class IpCatalogue;
class IpSession;
class KeptConfigurations;
class MessageModel;
class Project;

// What a person does with IPs: opens their dialogs, moves them to other devices, brings
// configurations back. While plug-ins run, unsaved changes stand in copies, which go afterwards.
class IpActions : public QObject
{
    Q_OBJECT

public:
    // All of it must outlive the actions.
    struct Surroundings {
        IpCatalogue &catalogue;
        IpSession &session;
        KeptConfigurations &kept;
        EditorTabs &tabs;
        MessageModel &messages;
        InfoBar &infoBar;
        const ClosingSequence &closing;
    };

    // `window`: the parent of the questions.
    IpActions(const Surroundings &with, QWidget *window);
    ~IpActions() override;

    // Not owned; null: no project is open.
    void setProject(const Project *project);

    // Report what is wrong in a message box, and return false then.
    bool open(const QString &ipcFile);
    bool create(int ip, const QString &folder, const DEV::DeviceArg &device);
    // Moves an IP to a device after showing what it loses; false if it was not moved.
    bool move(const QString &ipcFile, const DEV::DeviceArg &device);
    void chooseDeviceOf(const QString &ipcFile);
    // Restores a kept configuration after a question, or opens what was dropped in its dialog.
    bool bringBack(const QString &keptId);
    void showKept();
    // After a change of the project's device: these IPs are made for another one.
    void tellOfOtherDevices(const QStringList &files);
    // Keeps unsaved changes in files of their own and tells where, on standard error.
    void keepUnsaved();

Q_SIGNALS:
    // The dialog of an IP comes up; -1: one that was dropped.
    void opening(int ip);
    // Configurations have changed, or those that are kept.
    void changed();
    // The user wants to see where this IP is.
    void showRequested(const QString &ipcFile);

private:
    // Short in the project, so that a line has room for what is said of it.
    QString shownName(const QString &file) const;
    void tellKeepFailed(const QString &message);
    // What to do with a configuration of an unknown device; true: open it.
    bool settleUnknownDevice(const QString &ipcFile);
    // Runs what calls into a plug-in.
    bool withCopies(const std::function<bool()> &call);
    bool run(int ip, const std::function<bool(QString *)> &dialog);
    bool reopenDropped(const QString &keptId);
    bool restore(const QString &keptId);
    void offerOpening(const QString &text, const QString &ipcFile);

    Surroundings m_with;
    QWidget *m_window;
    QPointer<const Project> m_project;
    QStringList m_copiesTold; // of unsaved changes, while a plug-in runs
};

} // namespace Workbench
