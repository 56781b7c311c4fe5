#pragma once

#include "project/project.h"
#include "recentprojects.h"
#include "results/runstore.h"
#include "settings/toolpaths.h"

#include <QMainWindow>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QPushButton)
QT_FORWARD_DECLARE_CLASS(QSettings)
QT_FORWARD_DECLARE_CLASS(QStackedWidget)
QT_FORWARD_DECLARE_CLASS(QToolBar)

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
class ClosingSequence;
class Companion;
class CompanionDesk;
struct EditorLook;
class EditorPage;
class EditorTabs;
class GenerationWatch;
class HelpDesk;
class HelpWindow;
class InfoBar;
class IpActions;
class IpCatalogue;
class IpSession;
class KeptConfigurations;
class LastRun;
class LogView;
class MessageModel;
class NewProjectDialog;
class OutputPane;
class PluginList;
class ProjectActions;
class ProjectPane;
class ResultPage;
class SessionKeeper;
class SimulationPage;
class SimulationPages;
class SoftwarePage;
class SoftwarePages;
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

    // Before the window is shown, which then begins with the project: false, without a word, if the
    // project cannot be opened.
    bool beginWith(const QString &projectFile);
    // Report what is wrong in a message box, and return false then.
    bool openProject(const QString &file);
    bool closeProject();
    // Opens what a file is: a project, an IP in its dialog, a text in the editor.
    bool openPath(const QString &path, int line = 0);
    bool openIp(const QString &ipcFile);
    bool createIp(int ip, const QString &folder, const DEV::DeviceArg &device);
    // Moves an IP to a device after showing what it loses; false if it was not moved.
    bool moveIp(const QString &ipcFile, const DEV::DeviceArg &device);
    // The page on what software gets of an IP.
    SoftwarePage *showSoftware(const QString &ipcFile);
    // The page on which programs run on an IP.
    SimulationPage *showSimulation(const QString &ipcFile);
    // Makes a project of an example of an IP's plug-in, in a folder that the user names, and opens
    // it with its page for simulations; false if there is none.
    bool openExample(int ip, int number);
    // Restores a kept configuration after a question, or opens what was dropped in its dialog.
    bool bringBack(const QString &keptId);
    KeptConfigurations *kept() const { return m_kept; }
    // Where the last successful run of each project is kept; the user's cache at first.
    void setRunStore(const RunStore &store);
    // Write what the ending of the path says; false, and a sentence in `*error`, if nothing was
    // written. The table is of the last run, a TableFiles::Table.
    bool exportDiagramOf(const QString &ipcFile, const QString &path, QString *error);
    bool exportTableTo(int table, const QString &path, QString *error);
    // Opens what was open last, with its tabs, unless the user does not want that. What cannot be
    // opened is told once, without a question.
    void restoreSession();
    SessionKeeper *session() const { return m_keeper; }
    // The window of the guide and of IPs' documents; null while there is none.
    HelpWindow *help() const;
    // The window beside the dialog of an IP; null while there is none.
    Companion *companion() const;

    // Keeps unsaved changes in files of their own and tells where, on standard error.
    void keepUnsaved();
    // Closes the window without a question: keeps unsaved changes in files of their own, ends the
    // runs, closes the dialogs, then emits closed().
    void shutDown();

public Q_SLOTS:
    void newProject();
    void open();
    void createSelectedIp(int ip);
    // From nothing to the dialog of an IP of the catalogue: asks for folder and device only.
    void newSubsystem(int ip);
    void showGuide();
    // The document of an IP of the catalogue.
    void showIpHelp(int ip);

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    class Actions;

    void buildDocks();
    void buildStatusBar();
    void connectParts();
    void connectStartPage();
    void connectHost();
    void followDocks();
    bool setProject(std::unique_ptr<Project> project);
    // Closes its tabs; false if the user wants to go on with them.
    bool leaveProject();
    void reopenLast();
    bool canHandOff(const QString &ipcFile) const;
    bool canSimulate(const QString &ipcFile) const;
    void tellUnknownDevice();
    void showPlace();
    void showTitle();
    void showEditorState();
    void showStart();
    void fillStart();
    void showResults();
    OutputPane *output();
    void restoreState();
    void keepFindChoices();
    void chooseDevice();
    void about();
    EditorLook editorLook() const;
    void applySettings();
    void editSettings();
    void openExternally();
    void exportDiagram();
    void exportTable(int table);
    void goToLine();
    bool mayEndRuns();
    bool makeProject(NewProjectDialog *dialog);

    void onRunStarted(IPCore::SynthesisHelper *helper);
    void onRunFinished(const Synthesis::RunReport &report);
    void onNoticed(const QStringList &notices);
    void warnOfGeneration(EditorPage *page);
    void onIpClosed(const QStringList &files);

    IpCatalogue &m_catalogue;
    QSettings &m_settings;
    RecentProjects m_recent;
    ToolPaths m_toolPaths;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<IpActions> m_ips;
    std::unique_ptr<Actions> m_actions;
    IpSession *m_session;
    ClosingSequence *m_closing;
    KeptConfigurations *m_kept;
    QStackedWidget *m_stack;
    StartPage *m_start;
    EditorTabs *m_tabs;
    InfoBar *m_infoBar;
    MessageModel *m_messages;
    LastRun *m_lastRun;
    SoftwarePages *m_software;
    SimulationPages *m_simulations;
    OutputPane *m_output = nullptr;
    ProjectPane *m_projectPane;
    ProjectActions *m_projectActions;
    CatalogueView *m_catalogueView;
    PluginList *m_plugins;
    HelpDesk *m_help;
    SessionKeeper *m_keeper = nullptr;
    GenerationWatch *m_generation;
    CompanionDesk *m_companions;
    QToolBar *m_toolBar;
    QDockWidget *m_projectDock;
    QDockWidget *m_catalogueDock;
    QDockWidget *m_outputDock;
    QPushButton *m_deviceButton;
    QLabel *m_runLabel;
    QLabel *m_cursorLabel;
};

} // namespace Workbench
