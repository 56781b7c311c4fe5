#pragma once

#include "project/project.h"
#include "results/runstore.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
QT_FORWARD_DECLARE_CLASS(QTreeView)

namespace IPCore
{
class SynthesisHelper;
}

namespace Synthesis
{
struct RunReport;
}

namespace Workbench
{

class CatalogueView;
class EditorTabs;
class HelpWindow;
class InfoBar;
class IpCatalogue;
class IpSession;
class KeptConfigurations;
class LogView;
class MessageModel;
class OutputPane;
class ProjectModel;
class ResultPage;
class StartPage;

// The window of the workbench. While it lives it is what the entry points of Core lead to: the
// parent of dialogs, the open project, the editor.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Both must outlive the window.
    MainWindow(IpCatalogue &catalogue, QSettings &settings, QWidget *parent = nullptr);
    ~MainWindow() override;

    Project *project() const { return m_project.get(); }
    EditorTabs *tabs() const { return m_tabs; }
    MessageModel *messages() const { return m_messages; }
    // Made when they are first asked for.
    LogView *log();
    ResultPage *results();
    InfoBar *infoBar() const { return m_infoBar; }

    // Report what is wrong in a message box, and return false then.
    bool openProject(const QString &file);
    bool closeProject();
    // Opens what a file is: a project, an IP in its dialog, a text in the editor.
    bool openPath(const QString &path, int line = 0);
    bool openIp(const QString &ipcFile);
    bool createIp(int ip, const QString &folder, const DEV::DeviceArg &device);
    // Moves an IP to a device after showing what it loses; false if it was not moved.
    bool moveIp(const QString &ipcFile, const DEV::DeviceArg &device);
    // Restores a kept configuration after a question, or opens what was dropped in its dialog.
    bool bringBack(const QString &keptId);
    KeptConfigurations *kept() const { return m_kept; }
    // Where the last successful run of each project is kept; the user's cache at first.
    void setRunStore(const RunStore &store);
    // The window of the guide and of IPs' documents; null while there is none.
    HelpWindow *help() const;

    // Keeps unsaved changes in files of their own and tells where, on standard error.
    void keepUnsaved();
    // Closes the window without a question: keeps unsaved changes in files of their own, ends the
    // runs, closes the dialogs, then emits closed().
    void shutDown();

public Q_SLOTS:
    void newProject();
    void open();
    void createSelectedIp(int ip);
    void showGuide();
    // The document of an IP of the catalogue.
    void showIpHelp(int ip);

Q_SIGNALS:
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    class Actions;

    void buildDocks();
    void buildStatusBar();
    void connectHost();
    void report(const QString &message);
    bool setProject(std::unique_ptr<Project> project);
    void showPlace();
    void showEditorState();
    void showStart();
    void showResults();
    void keepRun(const QStringList &delivered);
    void showDocument(const QString &path, const QString &title);
    OutputPane *output();
    void rememberRecent(const QString &file);
    QStringList recent() const;
    void fillRecent();
    void saveState();
    void restoreState();

    void activateProjectItem(const QModelIndex &index);
    QString selectedFile() const;
    void addSources();
    void newSource();
    void chooseTopModule();
    void chooseDevice();
    void showDrift();
    void chooseDeviceOf(const QString &ipcFile);
    // What to do with a configuration of an unknown device; true: open it.
    bool settleUnknownDevice(const QString &ipcFile);
    void showKept();
    void showPlugins();
    void tryPluginsAgain();
    // Runs what calls into a plug-in while unsaved changes stand in copies, which go afterwards.
    bool withCopies(const std::function<bool()> &call);
    void about();
    void goToLine();

    void onRunStarted(IPCore::SynthesisHelper *helper);
    void onRunFinished(const Synthesis::RunReport &report);
    void onIpClosed(const QStringList &files);
    void continueClosing();

    IpCatalogue &m_catalogue;
    QSettings &m_settings;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<Actions> m_actions;
    IpSession *m_session;
    KeptConfigurations *m_kept;
    QStackedWidget *m_stack;
    StartPage *m_start;
    EditorTabs *m_tabs;
    InfoBar *m_infoBar;
    ResultPage *m_results = nullptr;
    MessageModel *m_messages;
    OutputPane *m_output = nullptr;
    ProjectModel *m_projectModel;
    QStackedWidget *m_projectStack;
    QLabel *m_noProject;
    QTreeView *m_projectTree;
    CatalogueView *m_catalogueView;
    QDockWidget *m_projectDock;
    QDockWidget *m_catalogueDock;
    QDockWidget *m_outputDock;
    QPushButton *m_deviceButton;
    QLabel *m_runLabel;
    QLabel *m_cursorLabel;
    RunStore m_runs;
    std::unique_ptr<Synthesis::RunReport> m_report; // of the last success since the start
    bool m_hasKeptRun = false;                      // of the open project, from before the start
    QPointer<HelpWindow> m_help;
    int m_openedIp = -1;         // whose dialog is open
    bool m_hasNewReport = false; // since the dialog of an IP was opened
    bool m_closing = false;
    QStringList m_copiesTold; // of unsaved changes, while a plug-in runs
};

} // namespace Workbench
