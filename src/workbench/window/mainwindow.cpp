#include "mainwindow.h"

#include "aboutdialog.h"
#include "actions.h"
#include "catalogue/catalogueview.h"
#include "catalogue/generationwatch.h"
#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"
#include "catalogue/mapset.h"
#include "catalogue/pluginlist.h"
#include "closingsequence.h"
#include "companion/companiondesk.h"
#include "editor/codeeditor.h"
#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "editor/unsavedcopy.h"
#include "helpdesk.h"
#include "ipactions.h"
#include "kept/keptconfigurations.h"
#include "messages/logview.h"
#include "messages/messagemodel.h"
#include "messages/messagesview.h"
#include "messages/outputpane.h"
#include "newprojectdialog.h"
#include "project/ipchead.h"
#include "project/projectmodel.h"
#include "project/projectpane.h"
#include "projectactions.h"
#include "render/diagramrenderer.h"
#include "results/lastrun.h"
#include "results/resultpage.h"
#include "results/tablefiles.h"
#include "sessionkeeper.h"
#include "settings/externaleditor.h"
#include "settings/settingsdialog.h"
#include "settings/settingstable.h"
#include "simulation/exampledialog.h"
#include "simulation/exampleproject.h"
#include "simulation/simulationpage.h"
#include "simulation/simulationpages.h"
#include "software/softwarepage.h"
#include "software/softwarepages.h"
#include "startpage.h"
#include "tabmenu.h"
#include "widgets/contextkeys.h"
#include "widgets/elidedlabel.h"
#include "widgets/enterkey.h"
#include "widgets/errorbox.h"
#include "widgets/fixedfont.h"
#include "widgets/infobar.h"
#include "widgets/symbolicon.h"

#include <core/editormanager.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <ipcore/focusring.h>
#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QFontDatabase>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

const QString locationKey = QStringLiteral("projectLocation");
const QString deviceKey = QStringLiteral("session/device"); // of the last new project
constexpr int stateVersion = 1;

bool hasSuffix(const QString &path, const char *suffix)
{
    return QFileInfo(path).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

} // namespace

MainWindow::MainWindow(IpCatalogue &catalogue, QSettings &settings, QWidget *parent)
    : QMainWindow(parent)
    , m_catalogue(catalogue)
    , m_settings(settings)
    , m_recent(settings)
    , m_toolPaths(QFileInfo(settings.fileName()).absolutePath() + QStringLiteral("/tools"))
    , m_session(new IpSession(catalogue, this))
    , m_closing(new ClosingSequence(*m_session, this))
    , m_kept(new KeptConfigurations(QFileInfo(settings.fileName()).absolutePath() +
                                        QStringLiteral("/kept-configurations"),
                                    this))
    , m_stack(new QStackedWidget)
    , m_start(new StartPage)
    , m_tabs(new EditorTabs)
    , m_infoBar(new InfoBar)
    , m_messages(new MessageModel(this))
    , m_lastRun(new LastRun(*m_messages, this))
    , m_software(new SoftwarePages(catalogue, *m_kept, *m_tabs, this))
    , m_simulations(new SimulationPages(catalogue, settings, *m_tabs, this))
    , m_projectPane(new ProjectPane)
    , m_projectActions(new ProjectActions(*m_tabs, this))
    , m_catalogueView(new CatalogueView(catalogue))
    , m_plugins(new PluginList(catalogue, settings, *m_infoBar, this))
    , m_help(new HelpDesk(settings, catalogue, this))
    , m_generation(new GenerationWatch(catalogue, this))
    , m_companions(new CompanionDesk(settings, companionPanels(settings), this))
{
    IPCore::FocusRing::install();
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    setDockNestingEnabled(true);

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_infoBar);
    layout->addWidget(m_stack, 1);
    m_stack->addWidget(m_start);
    m_stack->addWidget(m_tabs);
    setCentralWidget(central);

    buildDocks();
    buildStatusBar();
    // Screens have more room at the side.
    m_toolBar = new QToolBar(tr("Tool Bar"));
    addToolBar(Qt::LeftToolBarArea, m_toolBar);
    m_toolBar->setObjectName(QStringLiteral("mainToolBar"));
    m_toolBar->setFloatable(false);
    m_ips = std::make_unique<IpActions>(IpActions::Surroundings{m_catalogue, *m_session, *m_kept,
                                                                *m_tabs, *m_messages, *m_infoBar,
                                                                *m_closing},
                                        this);
    m_actions = std::make_unique<Actions>(this);
    const auto separator = [this] {
        auto *line = new QAction(this);
        line->setSeparator(true);
        return line;
    };
    m_projectPane->tree()->addActions(
        {m_actions->openSelected, m_actions->openAsText, m_actions->software, m_actions->simulate,
         m_actions->moveToDevice, separator(), m_actions->openFolder, m_actions->copyPath,
         separator(), m_actions->addSources, m_actions->newSource, m_actions->removeSource,
         m_actions->moveUp, m_actions->moveDown, m_actions->topModule});
    openContextMenuByKeys(m_projectPane->tree());
    m_recent.showIn(m_actions->recentMenu);

    connectParts();
    connectStartPage();
    connectHost();
    m_keeper = new SessionKeeper(
        settings,
        {*m_tabs, *m_infoBar,
         [this](const QString &ipcFile) {
             return canHandOff(ipcFile) && m_software->show(ipcFile) != nullptr;
         },
         [this](const QString &ipcFile) {
             return canSimulate(ipcFile) && m_simulations->show(ipcFile) != nullptr;
         },
         [this] {
             QString error;
             const bool isThere = m_lastRun->prepare(&error);
             if (isThere)
                 showResults();
             return isThere;
         },
         [this] { return m_lastRun->isShown() && !m_outputDock->isHidden(); },
         [this] {
             QString error;
             m_lastRun->prepare(&error);
         },
         [this] {
             // Before it is shown it has not settled.
             return isVisible() ? SessionStore::WindowState{saveGeometry(),
                                                            QMainWindow::saveState(stateVersion)}
                                : m_keeper->store().windowState();
         }},
        this);
    followDocks();
    keepFindChoices();
    restoreState();
    applySettings();
    setProject(nullptr);
    m_plugins->tellFailures(m_messages);
}

MainWindow::~MainWindow()
{
    Core::EditorManager::setHandler(nullptr);
    Core::ViewManager::setDialogParent(nullptr);
    Core::ProjectManager::setCurrentProject(nullptr);
    IPCore::SynthesisMonitor::instance().disconnect(this);
    // Their signals must not reach a half-destroyed window.
    m_tabs->disconnect(this);
}

void MainWindow::keepFindChoices()
{
    struct Row {
        QString key;
        bool FindChoices::*choice;
    };
    static const Row rows[] = {{QStringLiteral("find/matchCase"), &FindChoices::matchCase},
                               {QStringLiteral("find/wholeWords"), &FindChoices::wholeWords},
                               {QStringLiteral("find/expression"), &FindChoices::isExpression}};
    FindChoices choices;
    for (const Row &row : rows)
        choices.*row.choice = m_settings.value(row.key).toString() == QLatin1String("true");
    m_tabs->setFindChoices(choices);
    connect(m_tabs, &EditorTabs::findChoicesChanged, this, [this](const FindChoices &chosen) {
        for (const Row &row : rows)
            m_settings.setValue(row.key, chosen.*row.choice);
    });
}

void MainWindow::connectParts()
{
    const auto openFile = [this](const QString &path) { openPath(path); };
    connect(&m_recent, &RecentProjects::chosen, this, &MainWindow::openProject);
    connect(m_projectPane, &ProjectPane::openRequested, this, openFile);
    connect(m_projectPane, &ProjectPane::selectionChanged, this, &MainWindow::showEditorState);
    // The project, which has changed, mostly follows.
    connect(m_projectPane, &ProjectPane::contentChanged, this, [this] {
        m_start->outdate(true);
        showEditorState();
    });
    connect(m_catalogueView, &CatalogueView::activated, this, &MainWindow::createSelectedIp);
    connect(m_catalogueView, &CatalogueView::helpRequested, this, &MainWindow::showIpHelp);
    connect(m_catalogueView, &CatalogueView::selectionChanged, this, &MainWindow::showEditorState);
    connect(m_plugins, &PluginList::changed, this, [this] {
        m_catalogueView->reload();
        showStart();
    });
    connect(m_messages, &QAbstractItemModel::modelReset, this, &MainWindow::showEditorState);
    connect(m_messages, &QAbstractItemModel::rowsInserted, this, &MainWindow::showEditorState);
    connect(m_tabs, &EditorTabs::countChanged, this, &MainWindow::showStart);
    connect(m_tabs, &EditorTabs::currentStateChanged, this, &MainWindow::showEditorState);
    connect(m_tabs, &EditorTabs::tabMenuRequested, this, [this](int index, const QPoint &place) {
        TabMenu(*m_tabs, *m_projectPane, *m_projectDock, this).exec(index, place);
    });
    connect(m_simulations, &SimulationPages::openRequested, this, &MainWindow::openPath);
    connect(m_lastRun, &LastRun::openRequested, this, openFile);
    m_lastRun->setMapSource(
        [this](const QString &ipcFile) { return MapSet::ask(m_catalogue, ipcFile); });
    connect(m_lastRun, &LastRun::doorOpened, this,
            [this](const QString &ipcFile, const MapDoor &door) {
                showSoftware(ipcFile)->showPlace(door.document, door.headings);
            });
    connect(m_generation, &GenerationWatch::changed, this, [this](const QString &ipcFile) {
        m_projectPane->model()->setState(ipcFile, m_generation->stateOf(ipcFile));
    });
    connect(m_tabs, &EditorTabs::editingStarted, this, &MainWindow::warnOfGeneration);
    connect(m_tabs, &EditorTabs::saveFailed, this,
            [this](const QString &error) { m_infoBar->showMessage(error, {}); });
    connect(m_lastRun, &LastRun::changed, this, &MainWindow::showEditorState);
    connect(m_ips.get(), &IpActions::opening, this, [this](int ip) {
        m_lastRun->expect();
        m_help->setDialogIp(ip);
    });
    connect(m_ips.get(), &IpActions::changed, this, [this] {
        m_projectPane->refresh();
        showStart();
    });
    connect(m_ips.get(), &IpActions::showRequested, this, [this](const QString &ipcFile) {
        m_projectDock->show();
        m_projectPane->select(ipcFile);
    });
    connect(m_session, &IpSession::shown, m_companions, [this](QDialog *dialog, int ip) {
        m_companions->follow(dialog, m_catalogue.rootOf(ip));
    });
    connect(m_session, &IpSession::finished, this, &MainWindow::onIpClosed);
    connect(m_closing, &ClosingSequence::finished, this, &MainWindow::close);
}

// Queued: the page is built anew, and with it the button that asked.
void MainWindow::connectStartPage()
{
    m_start->setFiller([this] { fillStart(); });
    connect(m_start, &StartPage::newProjectRequested, this, &MainWindow::newProject);
    connect(m_start, &StartPage::openRequested, this, &MainWindow::open);
    connect(m_start, &StartPage::newSubsystemRequested, this, &MainWindow::newSubsystem,
            Qt::QueuedConnection);
    connect(
        m_start, &StartPage::openFileRequested, this,
        [this](const QString &path) { openPath(path); }, Qt::QueuedConnection);
    connect(m_start, &StartPage::createIpRequested, this, &MainWindow::createSelectedIp,
            Qt::QueuedConnection);
    connect(m_start, &StartPage::bringBackRequested, this, &MainWindow::bringBack,
            Qt::QueuedConnection);
    connect(m_start, &StartPage::exampleRequested, this, &MainWindow::openExample,
            Qt::QueuedConnection);
    connect(m_start, &StartPage::simulationRequested, this, &MainWindow::showSimulation,
            Qt::QueuedConnection);
    connect(m_start, &StartPage::allKeptRequested, m_ips.get(), &IpActions::showKept,
            Qt::QueuedConnection);
}

void MainWindow::connectHost()
{
    Core::ViewManager::setDialogParent(this);
    Core::EditorManager::setHandler([this](const QString &path, bool) {
        QString error;
        const bool opened = m_tabs->openFile(path, 0, &error) != nullptr;
        if (!opened)
            m_messages->append(MessageModel::Error, error, path);
        return opened;
    });
    const IPCore::SynthesisMonitor &monitor = IPCore::SynthesisMonitor::instance();
    connect(&monitor, &IPCore::SynthesisMonitor::runStarted, this, &MainWindow::onRunStarted);
    connect(&monitor, &IPCore::SynthesisMonitor::runFinished, this, &MainWindow::onRunFinished);
    connect(&monitor, &IPCore::SynthesisMonitor::noticed, this, &MainWindow::onNoticed);
}

void MainWindow::buildDocks()
{
    const auto dock = [this](const QString &title, const QString &name, QWidget *content,
                             Qt::DockWidgetArea area) {
        auto *result = new QDockWidget(title, this);
        result->setObjectName(name);
        result->setWidget(content);
        addDockWidget(area, result);
        return result;
    };
    m_projectDock =
        dock(tr("Project"), QStringLiteral("projectDock"), m_projectPane, Qt::LeftDockWidgetArea);
    m_catalogueDock = dock(tr("IP Catalogue"), QStringLiteral("catalogueDock"), m_catalogueView,
                           Qt::LeftDockWidgetArea);
    m_outputDock =
        dock(tr("Messages"), QStringLiteral("outputDock"), new QWidget, Qt::BottomDockWidgetArea);
    connect(m_outputDock, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible)
            output();
    });
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_outputDock->hide(); // until there is something in it
}

void MainWindow::buildStatusBar()
{
    m_runLabel = new ElidedLabel;
    m_runLabel->setObjectName(QStringLiteral("runLabel"));
    m_cursorLabel = new ElidedLabel;
    m_cursorLabel->setObjectName(QStringLiteral("cursorLabel"));
    m_deviceButton = new QPushButton;
    m_deviceButton->setObjectName(QStringLiteral("deviceButton"));
    m_deviceButton->setFlat(true);
    m_deviceButton->setIcon(symbolIcon(QStringLiteral("device")));
    m_deviceButton->setToolTip(tr("The device of the project; click to choose another one"));
    connect(m_deviceButton, &QPushButton::clicked, this, &MainWindow::chooseDevice);
    const int gap = fontMetrics().averageCharWidth();
    m_runLabel->setContentsMargins(gap, 0, gap, 0);
    m_cursorLabel->setContentsMargins(gap, 0, gap, 0);
    statusBar()->addPermanentWidget(m_runLabel);
    statusBar()->addPermanentWidget(m_cursorLabel);
    statusBar()->addPermanentWidget(m_deviceButton);
}

bool MainWindow::setProject(std::unique_ptr<Project> project)
{
    const StartPage::Hold hold(m_start);
    if (m_project || m_lastRun->isThere()) {
        // What a run said belongs to its project.
        m_messages->clear();
        if (m_output)
            m_output->log()->clear();
    }
    Core::ProjectManager::setCurrentProject(nullptr);
    m_lastRun->setProject(project.get());
    m_software->clear();
    m_simulations->clear();
    m_projectActions->setProject(project.get());
    m_ips->setProject(project.get());
    m_projectPane->setProject(project.get());
    m_generation->setProject(project.get());
    m_project = std::move(project);
    if (m_project) {
        Core::ProjectManager::setCurrentProject(m_project.get());
        connect(m_project.get(), &Project::changed, this, &MainWindow::showPlace);
        connect(m_project.get(), &Project::failed, this,
                [this](const QString &message) { m_infoBar->showMessage(message, {}); });
        m_recent.add(m_project->file());
    }
    m_keeper->setProject(m_project ? m_project->file() : QString());
    if (m_project) {
        m_keeper->restoreTabs();
        tellUnknownDevice();
    }
    m_runLabel->clear();
    showPlace();
    showEditorState();
    return true;
}

void MainWindow::tellUnknownDevice()
{
    if (m_project->deviceId().isEmpty() || !m_project->device().isNull())
        return;
    const QString text = tr("The device \"%1\" of this project is not in the device database.")
                             .arg(m_project->deviceId());
    m_infoBar->showMessage(
        m_infoBar->isHidden() ? text : QString(m_infoBar->text() + QLatin1String("\n") + text),
        {{tr("Choose &a Device…"), [this] { chooseDevice(); }}});
}

// Title, device and catalogue, which follow the project.
void MainWindow::showPlace()
{
    const DEV::DeviceArg device = m_project ? m_project->device() : DEV::DeviceArg();
    m_deviceButton->setVisible(m_project != nullptr);
    QString text = tr(" No device");
    if (!device.isNull())
        text = QStringLiteral(" %1  %2  %3").arg(device.device(), device.package(), device.speed());
    m_deviceButton->setText(text);
    m_deviceButton->setAccessibleName(tr("Device: %1").arg(text.trimmed()));
    m_catalogueView->setDevice(device);
    m_projectDock->setWindowTitle(m_project ? tr("Project %1").arg(m_project->name())
                                            : tr("Project"));
    showStart();
}

// The file in front, the project, the program. Qt puts its mark of unsaved changes at "[*]".
void MainWindow::showTitle()
{
    const EditorPage *page = m_tabs->currentPage();
    const auto escaped = [](QString name) {
        return name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    };
    const QString file = page ? escaped(QFileInfo(page->path()).fileName()) : QString();
    const QString project = m_project ? escaped(m_project->name()) : QString();
    const bool isModified = page && page->isModified();
    if (!isModified)
        setWindowModified(false);
    if (page)
        setWindowTitle(m_project ? tr("%1[*] - %2 - Tarvo Workbench").arg(file, project)
                                 : tr("%1[*] - Tarvo Workbench").arg(file));
    else
        setWindowTitle(m_project ? tr("%1 - Tarvo Workbench").arg(project) : tr("Tarvo Workbench"));
    if (isModified)
        setWindowModified(true);
}

void MainWindow::showStart()
{
    if (m_keeper && m_keeper->isRestoring())
        return;
    m_start->outdate();
    m_stack->setCurrentWidget(m_tabs->count() == 0 ? static_cast<QWidget *>(m_start) : m_tabs);
    m_start->fill();
    showEditorState();
}

void MainWindow::fillStart()
{
    QVector<StartPage::Example> examples;
    for (int ip = 0; !m_project && ip < m_catalogue.entries().size(); ++ip) {
        const QVector<SimulationExample> own = m_simulations->examplesOf(ip);
        for (int number = 0; number < own.size(); ++number)
            examples.append({ip, number, own.at(number).title, own.at(number).purpose});
    }
    m_start->showState(m_project.get(), m_projectPane->model()->ipFiles(), m_catalogue,
                       m_recent.files(), m_kept->items(), examples);
}

void MainWindow::showEditorState()
{
    // While tabs come back, none of them is in front for good.
    if (!m_actions || (m_keeper && m_keeper->isRestoring()))
        return;
    m_actions->refresh();
    showTitle();
    EditorPage *page = m_tabs->currentPage();
    m_cursorLabel->setVisible(page != nullptr);
    if (page)
        m_cursorLabel->setText(tr("Line %1, column %2   %3   %4")
                                   .arg(page->editor()->currentLine())
                                   .arg(page->editor()->textCursor().positionInBlock() + 1)
                                   .arg(page->formatName(), page->isEditable()
                                                                ? tr("editing")
                                                                : tr("reading (Ctrl+E edits)")));
}

OutputPane *MainWindow::output()
{
    if (!m_output) {
        m_output = new OutputPane(m_messages);
        connect(m_output->messages(), &MessagesView::openRequested, this,
                [this](const QString &path, int line) { openPath(path, line); });
        delete m_outputDock->widget();
        m_outputDock->setWidget(m_output);
    }
    return m_output;
}

LogView *MainWindow::log()
{
    return output()->log();
}

ResultPage *MainWindow::results()
{
    return m_lastRun->page();
}

void MainWindow::setRunStore(const RunStore &store)
{
    m_lastRun->setStore(store);
}

void MainWindow::showResults()
{
    QString error;
    if (!m_lastRun->prepare(&error)) {
        showError(this, error);
        return;
    }
    m_tabs->showPage(results(), symbolIcon(QStringLiteral("results")), tr("Results"));
}

SoftwarePage *MainWindow::showSoftware(const QString &ipcFile)
{
    return m_software->show(ipcFile);
}

SimulationPage *MainWindow::showSimulation(const QString &ipcFile)
{
    return m_simulations->show(ipcFile);
}

bool MainWindow::openExample(int ip, int number)
{
    const QVector<SimulationExample> examples = m_simulations->examplesOf(ip);
    if (number >= examples.size())
        return false;
    const SimulationExample &example = examples.at(number);
    QString location = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(location).isDir())
        location = QDir::homePath();
    ExampleDialog dialog(example, m_settings.value(locationKey, location).toString(), this);
    if (dialog.exec() != QDialog::Accepted || !closeProject())
        return false;
    const auto made = ExampleProject::make(example, dialog.folder(), m_catalogue.targetOf(ip));
    if (!made) {
        showError(this, made.reason());
        return false;
    }
    m_settings.setValue(locationKey, QFileInfo(dialog.folder()).path());
    if (!openProject(made->projectFile))
        return false;
    showSimulation(made->configuration)->choose(example.input, {made->program});
    return true;
}

void MainWindow::newProject()
{
    NewProjectDialog dialog(m_settings.value(locationKey, QDir::homePath()).toString(), this);
    makeProject(&dialog);
}

bool MainWindow::makeProject(NewProjectDialog *dialog)
{
    if (dialog->exec() != QDialog::Accepted || !closeProject())
        return false;
    QString error;
    std::unique_ptr<Project> project =
        Project::create(dialog->folder(), dialog->name(), dialog->device(), &error);
    if (!project) {
        showError(this, error);
        return false;
    }
    m_settings.setValue(locationKey, QFileInfo(project->path()).path());
    m_settings.setValue(deviceKey, project->deviceId());
    return setProject(std::move(project));
}

void MainWindow::newSubsystem(int ip)
{
    NewProjectDialog dialog(m_settings.value(locationKey, QDir::homePath()).toString(), this);
    dialog.propose(m_catalogue.entries().at(ip).name, m_settings.value(deviceKey).toString(),
                   [this, ip](const DEV::DeviceArg &device) {
                       QString reason;
                       return m_catalogue.isSupported(ip, device, &reason) ? QString() : reason;
                   });
    if (makeProject(&dialog))
        createSelectedIp(ip);
}

void MainWindow::open()
{
    const QString start =
        m_project ? m_project->path() : m_settings.value(locationKey, QDir::homePath()).toString();
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Open"), start,
        tr("Projects, IPs and sources (*.tvproj *.ipc *.v *.vh *.sv *.svh *.vo *.vg *.vhd *.vhdl "
           "*.log *.json);;Projects (*.tvproj);;IP configurations (*.ipc);;All files (*)"));
    for (const QString &path : paths)
        openPath(path);
}

bool MainWindow::openPath(const QString &path, int line)
{
    if (hasSuffix(path, ProjectFile::suffix) && line == 0)
        return openProject(path);
    if (hasSuffix(path, "ipc") && line == 0)
        return openIp(path);
    QString error;
    if (m_tabs->openFile(path, line, &error))
        return true;
    showError(this, error);
    return false;
}

bool MainWindow::beginWith(const QString &projectFile)
{
    QString error;
    std::unique_ptr<Project> project = Project::open(projectFile, &error);
    return project && setProject(std::move(project));
}

bool MainWindow::openProject(const QString &file)
{
    QString error;
    std::unique_ptr<Project> project = Project::open(file, &error);
    if (!project) {
        if (!QFileInfo::exists(file) && m_recent.remove(QFileInfo(file).absoluteFilePath()))
            showStart();
        showError(this, error);
        return false;
    }
    const StartPage::Hold hold(m_start);
    return leaveProject() && setProject(std::move(project));
}

bool MainWindow::closeProject()
{
    const QString file = m_project ? m_project->file() : QString();
    if (!leaveProject())
        return false;
    m_keeper->store().forget(file);
    return true;
}

bool MainWindow::leaveProject()
{
    const StartPage::Hold hold(m_start);
    m_keeper->hold();
    if (!m_tabs->closeAll()) {
        m_keeper->release();
        return false;
    }
    m_infoBar->hide();
    m_keeper->save();
    return setProject(nullptr);
}

bool MainWindow::canHandOff(const QString &ipcFile) const
{
    const int ip = m_catalogue.indexOf(IpcHead::read(ipcFile).type);
    return ip >= 0 && m_catalogue.canExport(ip);
}

bool MainWindow::canSimulate(const QString &ipcFile) const
{
    const int ip = m_catalogue.indexOf(IpcHead::read(ipcFile).type);
    return ip >= 0 && m_catalogue.canSimulate(ip);
}

void MainWindow::restoreSession()
{
    const SessionStore &store = m_keeper->store();
    if (!store.isWanted() || (store.last().isEmpty() && store.record({}).tabs.isEmpty()))
        return;
    if (store.attempts() < SessionStore::attemptLimit) {
        reopenLast();
        return;
    }
    m_infoBar->showMessage(tr("The last starts ended while they opened what was open before, so "
                              "nothing is opened now."),
                           {{tr("&Open It All the Same"), [this] { reopenLast(); }}});
}

// A start that does not get through this is counted.
void MainWindow::reopenLast()
{
    SessionStore &store = m_keeper->store();
    store.setAttempts(store.attempts() + 1);
    const QString file = store.last();
    QString error;
    std::unique_ptr<Project> project = file.isEmpty() ? nullptr : Project::open(file, &error);
    if (project) {
        setProject(std::move(project));
    } else if (file.isEmpty()) {
        m_keeper->restoreTabs();
    } else {
        store.forget(file);
        m_infoBar->showMessage(tr("The project of the last time is not opened. %1").arg(error), {});
    }
    QTimer::singleShot(0, this, [&store] { store.setAttempts(0); });
}

bool MainWindow::openIp(const QString &ipcFile)
{
    return m_ips->open(ipcFile);
}

bool MainWindow::createIp(int ip, const QString &folder, const DEV::DeviceArg &device)
{
    return m_ips->create(ip, folder, device);
}

bool MainWindow::moveIp(const QString &ipcFile, const DEV::DeviceArg &device)
{
    return m_ips->move(ipcFile, device);
}

bool MainWindow::bringBack(const QString &keptId)
{
    return m_ips->bringBack(keptId);
}

void MainWindow::keepUnsaved()
{
    m_ips->keepUnsaved();
}

void MainWindow::createSelectedIp(int ip)
{
    if (!m_project) {
        QMessageBox box(QMessageBox::Information, tr("No project"),
                        tr("An IP is made for a device and into a folder. Both come with a "
                           "project: make or open one first."),
                        QMessageBox::Cancel, this);
        QPushButton *make = box.addButton(tr("&New Project…"), QMessageBox::AcceptRole);
        box.setDefaultButton(make);
        box.exec();
        if (box.clickedButton() == make)
            newProject();
        if (!m_project)
            return;
    }
    createIp(ip, m_project->freeIpFolder(m_catalogue.targetOf(ip)), m_project->device());
}

void MainWindow::warnOfGeneration(EditorPage *page)
{
    const QString ipcFile = m_generation->originOf(page->path());
    if (ipcFile.isEmpty())
        return;
    page->infoBar()->showMessage(
        tr("This file is generated from \"%1\". The next generation writes it anew, and keeps what "
           "you change here in a copy beside it.")
            .arg(QDir::toNativeSeparators(ipcFile)),
        {{tr("Open the &Configuration"), [this, ipcFile] { openPath(ipcFile); }}});
}

void MainWindow::onIpClosed(const QStringList &files)
{
    m_generation->refresh();
    m_projectPane->refresh();
    QStringList delivered;
    for (const QString &file : files) {
        if (UnsavedCopy::originalOf(file).isEmpty())
            delivered.append(file);
    }
    if (m_lastRun->setDelivered(delivered))
        showResults();
    m_help->setDialogIp(-1);
    showStart();
}

void MainWindow::onRunStarted(IPCore::SynthesisHelper *helper)
{
    m_messages->clear();
    const Synthesis::RunReport begun = helper->report();
    log()->start(QStringLiteral("Synthesis of %1 for %2")
                     .arg(begun.job.targetName, begun.job.device.partNumber()));
    m_runLabel->setText(tr("Synthesis: starting"));
    m_outputDock->show();
    output()->showLog();
    connect(helper, &IPCore::SynthesisHelper::logReceived, log(), &QPlainTextEdit::appendPlainText,
            Qt::UniqueConnection);
    connect(helper, &IPCore::SynthesisHelper::stageChanged, m_runLabel,
            [this](const QString &stage) { m_runLabel->setText(tr("Synthesis: %1").arg(stage)); });
}

void MainWindow::onRunFinished(const Synthesis::RunReport &report)
{
    m_messages->setReport(report);
    output()->showMessages();
    m_runLabel->setText(report.cancelled       ? tr("Synthesis cancelled")
                        : report.exitCode == 0 ? tr("Synthesis done")
                                               : tr("Synthesis failed"));
    if (report.exitCode != 0)
        return;
    m_lastRun->setReport(report);
    if (!m_session->isActive())
        m_lastRun->keep({});
}

void MainWindow::onNoticed(const QStringList &notices)
{
    m_messages->append(MessageModel::Warning, notices);
    m_outputDock->show();
    output()->showMessages();
}

void MainWindow::chooseDevice()
{
    if (m_projectActions->chooseDevice())
        m_ips->tellOfOtherDevices(m_projectPane->ipsOfOtherDevices());
}

Companion *MainWindow::companion() const
{
    return m_companions->companion();
}

HelpWindow *MainWindow::help() const
{
    return m_help->helpWindow();
}

void MainWindow::showGuide()
{
    m_help->showGuide(HelpDesk::headingFor(QApplication::focusWidget()));
}

void MainWindow::showIpHelp(int ip)
{
    m_help->showIp(ip);
}

void MainWindow::about()
{
    QStringList plugins;
    for (const IpEntry &entry : m_catalogue.entries())
        plugins.append(tr("%1 %2").arg(entry.name, entry.version));
    AboutDialog dialog(QApplication::applicationVersion(), plugins, m_settings.fileName(), this);
    dialog.exec();
}

EditorLook MainWindow::editorLook() const
{
    EditorLook look;
    look.font = fixedFont();
    const QString family = Settings::textOf(m_settings, Settings::editorFont);
    if (!family.isEmpty() && QFontDatabase().hasFamily(family))
        look.font.setFamily(family);
    if (const int size = Settings::numberOf(m_settings, Settings::editorFontSize))
        look.font.setPointSize(qMax(6, size));
    look.tabWidth = Settings::numberOf(m_settings, Settings::editorTabWidth);
    look.hasLineNumbers = Settings::isOn(m_settings, Settings::editorLineNumbers);
    look.wraps = Settings::isOn(m_settings, Settings::editorWrap);
    return look;
}

void MainWindow::applySettings()
{
    m_tabs->setLook([this] { return editorLook(); });
    m_toolPaths.apply(m_settings);
    showEditorState();
}

void MainWindow::editSettings()
{
    SettingsDialog dialog(m_settings, this);
    connect(&dialog, &SettingsDialog::changed, this, &MainWindow::applySettings);
    connect(m_actions->reopen, &QAction::triggered, &dialog, &SettingsDialog::showSettings);
    dialog.exec();
}

void MainWindow::openExternally()
{
    EditorPage *page = m_tabs->currentPage();
    if (!page)
        return;
    QString error;
    if (!Workbench::openExternally(Settings::textOf(m_settings, Settings::editorExternal),
                                   page->path(), page->editor()->currentLine(), &error))
        page->infoBar()->showMessage(error, {});
}

bool MainWindow::exportDiagramOf(const QString &ipcFile, const QString &path, QString *error)
{
    DiagramRenderer renderer(m_catalogue);
    return renderer.render(ipcFile, path, error);
}

bool MainWindow::exportTableTo(int table, const QString &path, QString *error)
{
    return m_lastRun->complete(error) &&
           TableFiles::write(TableFiles::tableOf(results()->report(), TableFiles::Table(table)),
                             path, error);
}

void MainWindow::exportDiagram()
{
    const QString ipcFile = m_projectPane->selectedFile();
    if (ipcFile.isEmpty())
        return;
    const QString path = QFileDialog::getSaveFileName(this, tr("Export Block Diagram"),
                                                      QFileInfo(ipcFile).path() + u'/' +
                                                          QFileInfo(ipcFile).completeBaseName() +
                                                          QLatin1String(".svg"),
                                                      tr("Pictures (*.svg *.png *.pdf)"));
    QString error;
    if (!path.isEmpty() && !exportDiagramOf(ipcFile, path, &error))
        showError(this, error);
}

void MainWindow::exportTable(int table)
{
    const QString folder = m_project ? m_project->path() : QDir::homePath();
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export Table"),
        folder + u'/' + TableFiles::fileNameOf(TableFiles::Table(table)) + QLatin1String(".csv"),
        tr("Tables (*.csv *.json *.md)"));
    QString error;
    if (!path.isEmpty() && !exportTableTo(table, path, &error))
        showError(this, error);
}

void MainWindow::goToLine()
{
    EditorPage *page = m_tabs->currentPage();
    if (!page)
        return;
    bool chosen = false;
    const int line = QInputDialog::getInt(
        this, tr("Go to Line"), tr("Line (1 to %1):").arg(page->editor()->lineCount()),
        page->editor()->currentLine(), 1, page->editor()->lineCount(), 1, &chosen);
    if (chosen)
        page->goToLine(line);
    page->editor()->setFocus();
}

void MainWindow::followDocks()
{
    for (QDockWidget *dock : {m_projectDock, m_catalogueDock, m_outputDock}) {
        connect(dock, &QDockWidget::visibilityChanged, m_keeper, &SessionKeeper::note);
        connect(dock, &QDockWidget::topLevelChanged, m_keeper, &SessionKeeper::note);
        connect(dock, &QDockWidget::dockLocationChanged, m_keeper, &SessionKeeper::note);
        dock->installEventFilter(this); // its size
    }
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (m_keeper && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        m_keeper->note();
    // What nothing in a dock has taken; one that floats is a window.
    if (event->type() == QEvent::KeyPress && pressFocusedButton(static_cast<QKeyEvent *>(event)))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    if (!pressFocusedButton(event))
        QMainWindow::keyPressEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (m_keeper)
        m_keeper->note();
}

void MainWindow::moveEvent(QMoveEvent *event)
{
    QMainWindow::moveEvent(event);
    if (m_keeper)
        m_keeper->note();
}

void MainWindow::restoreState()
{
    const SessionStore::WindowState state = m_keeper->store().windowState();
    // Brings a window onto a screen that there is.
    if (state.geometry.isEmpty() || !restoreGeometry(state.geometry)) {
        // The frame around the window needs room as well; how much is not known before it is shown.
        const QSize room = (screen() ? screen()->availableSize() : QSize(1280, 800)) * 0.95;
        resize(room.boundedTo(
            QSize(fontMetrics().averageCharWidth() * 190, fontMetrics().height() * 50)));
    }
    if (!QMainWindow::restoreState(state.panes, stateVersion)) {
        // The page has the larger part of a small window.
        const int width = qMin(fontMetrics().averageCharWidth() * 46, this->width() * 3 / 8);
        resizeDocks({m_projectDock, m_catalogueDock}, {width, width}, Qt::Horizontal);
        resizeDocks({m_outputDock}, {fontMetrics().height() * 8}, Qt::Vertical);
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    QStringList paths;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    event->acceptProposedAction();
    // Not in the event: a dialog in it would keep the program that drops waiting.
    QMetaObject::invokeMethod(
        this,
        [this, paths] {
            for (const QString &path : paths)
                openPath(path);
        },
        Qt::QueuedConnection);
}

// Asks whether active runs may end.
bool MainWindow::mayEndRuns()
{
    if (IPCore::SynthesisMonitor::instance().activeRuns().isEmpty())
        return true;
    QMessageBox box(QMessageBox::Question, tr("A run is active"),
                    tr("Synthesis is running. Closing the window ends the run; its results "
                       "are not made."),
                    QMessageBox::NoButton, this);
    QPushButton *end = box.addButton(tr("&End Run and Close"), QMessageBox::AcceptRole);
    QPushButton *stay = box.addButton(tr("&Keep Running"), QMessageBox::RejectRole);
    box.setDefaultButton(stay);
    box.setEscapeButton(stay);
    box.exec();
    return box.clickedButton() == end;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_closing->hasBegun()) {
        m_keeper->hold();
        if (!mayEndRuns() || !m_tabs->closeAll()) {
            m_keeper->release();
            event->ignore();
            return;
        }
    }
    if (m_closing->isHeldUp()) {
        event->ignore();
        shutDown();
        return;
    }
    m_closing->begin();
    m_keeper->save();
    QMainWindow::closeEvent(event);
    Q_EMIT closed();
}

void MainWindow::shutDown()
{
    if (!m_closing->begin())
        return;
    // Not those that stand while a plug-in runs: they go when it returns.
    m_keeper->hold();
    const QStringList told = m_tabs->keepChanges();
    for (const QString &line : told)
        qWarning("%s", qUtf8Printable(line));
    m_closing->run();
}

} // namespace Workbench
