#include "mainwindow.h"

#include "actions.h"
#include "catalogue/catalogueview.h"
#include "catalogue/ipcatalogue.h"
#include "catalogue/ipsession.h"
#include "catalogue/movedialog.h"
#include "catalogue/pluginsdialog.h"
#include "devices/devicedialog.h"
#include "editactions.h"
#include "editor/codeeditor.h"
#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "editor/unsavedcopy.h"
#include "helpwindow.h"
#include "kept/keptconfigurations.h"
#include "kept/keptdialog.h"
#include "messages/logview.h"
#include "messages/messagemodel.h"
#include "messages/messagesview.h"
#include "messages/outputpane.h"
#include "newprojectdialog.h"
#include "project/ipchead.h"
#include "project/projectmodel.h"
#include "results/resultpage.h"
#include "startpage.h"
#include "widgets/infobar.h"
#include "widgets/symbolicon.h"

#include <core/editormanager.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <ipcore/focusring.h>
#include <ipcore/ipcore.h>
#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>
#include <utils/fileutils.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace Workbench
{

namespace
{

const QString recentKey = QStringLiteral("recentProjects");
const QString locationKey = QStringLiteral("projectLocation");
const QString foldersKey = QStringLiteral("pluginFolders");
const QString geometryKey = QStringLiteral("window/geometry");
const QString stateKey = QStringLiteral("window/state");
constexpr int stateVersion = 1;
constexpr int recentCount = 8;

bool hasSuffix(const QString &path, const char *suffix)
{
    return QFileInfo(path).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

} // namespace

MainWindow::MainWindow(IpCatalogue &catalogue, QSettings &settings, QWidget *parent)
    : QMainWindow(parent)
    , m_catalogue(catalogue)
    , m_settings(settings)
    , m_session(new IpSession(catalogue, this))
    , m_kept(new KeptConfigurations(QFileInfo(settings.fileName()).absolutePath() +
                                        QStringLiteral("/kept-configurations"),
                                    this))
    , m_stack(new QStackedWidget)
    , m_start(new StartPage)
    , m_tabs(new EditorTabs)
    , m_infoBar(new InfoBar)
    , m_messages(new MessageModel(this))
    , m_projectModel(new ProjectModel(this))
    , m_projectStack(new QStackedWidget)
    , m_projectTree(new QTreeView)
    , m_catalogueView(new CatalogueView(catalogue))
    , m_runs(RunStore::defaultFolder())
{
    IPCore::FocusRing::install();
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    setDockNestingEnabled(true);

    m_noProject = new QLabel(tr("No project is open."));
    m_noProject->setAlignment(Qt::AlignCenter);
    m_noProject->setEnabled(false);

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
    m_actions = std::make_unique<Actions>(this);
    m_projectTree->addActions({m_actions->openSelected, m_actions->openAsText,
                               m_actions->moveToDevice, m_actions->addSources, m_actions->newSource,
                               m_actions->removeSource, m_actions->moveUp, m_actions->moveDown,
                               m_actions->topModule});

    connect(m_start, &StartPage::newProjectRequested, this, &MainWindow::newProject);
    connect(m_start, &StartPage::openRequested, this, &MainWindow::open);
    // Queued: the page is built anew, and with it the button that asked.
    connect(
        m_start, &StartPage::openFileRequested, this,
        [this](const QString &path) { openPath(path); }, Qt::QueuedConnection);
    connect(m_start, &StartPage::createIpRequested, this, &MainWindow::createSelectedIp,
            Qt::QueuedConnection);
    connect(m_start, &StartPage::bringBackRequested, this, &MainWindow::bringBack,
            Qt::QueuedConnection);
    connect(m_start, &StartPage::allKeptRequested, this, &MainWindow::showKept,
            Qt::QueuedConnection);
    m_session->setKept(m_kept);
    m_session->setKnownFiles([this] { return m_project ? m_project->ipFiles() : QStringList(); });
    const auto keepFailed = [this](const QString &message) {
        m_messages->append(MessageModel::Warning,
                           tr("No copy of a configuration was kept. %1").arg(message), {});
        m_infoBar->showMessage(tr("No copy of a configuration was kept. %1").arg(message), {});
    };
    connect(m_session, &IpSession::keepFailed, this, keepFailed);
    IPCore::setConfigKeeper([this, keepFailed](const QString &path) {
        QString error;
        if (!m_kept->keepFile(path, &error))
            keepFailed(error);
    });
    connect(m_session, &IpSession::dropped, this, [this](const QString &id, const QString &file) {
        m_infoBar->showMessage(
            tr("The dialog of \"%1\" was closed without OK. Its changes are kept.")
                .arg(QDir::toNativeSeparators(file)),
            {{tr("&Bring Back…"), [this, id] { bringBack(id); }}});
    });
    connect(m_catalogueView, &CatalogueView::activated, this, &MainWindow::createSelectedIp);
    connect(m_catalogueView, &CatalogueView::helpRequested, this, &MainWindow::showIpHelp);
    connect(m_catalogueView, &CatalogueView::selectionChanged, this, &MainWindow::showEditorState);
    connect(m_messages, &QAbstractItemModel::modelReset, this, &MainWindow::showEditorState);
    connect(m_messages, &QAbstractItemModel::rowsInserted, this, &MainWindow::showEditorState);
    connect(m_tabs, &EditorTabs::countChanged, this, &MainWindow::showStart);
    connect(m_tabs, &EditorTabs::currentStateChanged, this, &MainWindow::showEditorState);
    connect(m_session, &IpSession::finished, this, &MainWindow::onIpClosed);
    connect(m_actions->recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecent);

    qApp->installEventFilter(this);
    connectHost();
    restoreState();
    setProject(nullptr);

    if (!m_catalogue.failures().isEmpty()) {
        for (const IpCatalogue::Failure &failure : m_catalogue.failures())
            m_messages->append(MessageModel::Warning,
                               tr("Plug-in not used: %1").arg(failure.reason), failure.library);
        const QString name = QFileInfo(m_catalogue.failures().first().library).fileName();
        m_infoBar->showMessage(
            m_catalogue.failures().size() == 1
                ? tr("The plug-in \"%1\" cannot be used.").arg(name)
                : tr("%1 plug-ins cannot be used.").arg(m_catalogue.failures().size()),
            {{tr("Detai&ls"), [this] { showPlugins(); }}});
    }
}

MainWindow::~MainWindow()
{
    Core::EditorManager::setHandler(nullptr);
    Core::ViewManager::setDialogParent(nullptr);
    Core::ProjectManager::setCurrentProject(nullptr);
    IPCore::setConfigKeeper(nullptr);
    IPCore::SynthesisMonitor::instance().disconnect(this);
    // Their signals must not reach a half-destroyed window.
    m_tabs->disconnect(this);
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
}

void MainWindow::buildDocks()
{
    m_projectTree->setObjectName(QStringLiteral("projectTree"));
    m_projectTree->setAccessibleName(tr("Project"));
    m_projectTree->setModel(m_projectModel);
    m_projectTree->setHeaderHidden(true);
    // Scrolls to what is wider, such as an IP's device and the project's.
    m_projectTree->header()->setStretchLastSection(false);
    m_projectTree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_projectTree->setUniformRowHeights(true);
    m_projectTree->setFrameShape(QFrame::NoFrame);
    m_projectTree->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_projectTree, &QTreeView::activated, this, &MainWindow::activateProjectItem);
    connect(m_projectTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &MainWindow::showEditorState);
    connect(m_projectModel, &QAbstractItemModel::rowsInserted, this, [this] {
        m_projectTree->expandAll();
        showStart();
    });
    connect(m_projectModel, &QAbstractItemModel::rowsRemoved, this, &MainWindow::showStart);

    const auto dock = [this](const QString &title, const QString &name, QWidget *content,
                             Qt::DockWidgetArea area) {
        auto *result = new QDockWidget(title, this);
        result->setObjectName(name);
        result->setWidget(content);
        addDockWidget(area, result);
        return result;
    };
    m_projectStack->addWidget(m_noProject);
    m_projectStack->addWidget(m_projectTree);
    m_projectDock =
        dock(tr("Project"), QStringLiteral("projectDock"), m_projectStack, Qt::LeftDockWidgetArea);
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
    m_runLabel = new QLabel;
    m_runLabel->setObjectName(QStringLiteral("runLabel"));
    m_cursorLabel = new QLabel;
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

void MainWindow::report(const QString &message)
{
    QMessageBox box(QMessageBox::Critical, tr("Error"), message, QMessageBox::Ok, this);
    // Messages hold paths of the user, which must never be taken for mark-up.
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool MainWindow::setProject(std::unique_ptr<Project> project)
{
    if (m_project || m_report) {
        // What a run said belongs to its project.
        m_messages->clear();
        if (m_output)
            m_output->log()->clear();
        if (m_results)
            m_results->deleteLater(); // its button may be what closes the project
        m_results = nullptr;
        m_report.reset();
    }
    Core::ProjectManager::setCurrentProject(nullptr);
    m_projectModel->setProject(project.get());
    m_project = std::move(project);
    m_hasKeptRun = m_project && m_runs.has(m_project->file());
    if (m_project) {
        Core::ProjectManager::setCurrentProject(m_project.get());
        m_projectTree->expandAll();
        connect(m_project.get(), &Project::changed, this, &MainWindow::showPlace);
        connect(m_project.get(), &Project::failed, this,
                [this](const QString &message) { m_infoBar->showMessage(message, {}); });
        rememberRecent(m_project->file());
        if (!m_project->deviceId().isEmpty() && m_project->device().isNull())
            m_infoBar->showMessage(
                tr("The device \"%1\" of this project is not in the device database.")
                    .arg(m_project->deviceId()),
                {{tr("Choose &a Device…"), [this] { chooseDevice(); }}});
    }
    m_projectStack->setCurrentWidget(m_project ? static_cast<QWidget *>(m_projectTree)
                                               : m_noProject);
    m_runLabel->clear();
    showPlace();
    showEditorState();
    return true;
}

// Title, device and catalogue, which follow the project.
void MainWindow::showPlace()
{
    const DEV::DeviceArg device = m_project ? m_project->device() : DEV::DeviceArg();
    setWindowTitle(m_project ? tr("%1 - Tarvo Workbench").arg(m_project->name())
                             : tr("Tarvo Workbench"));
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

void MainWindow::showStart()
{
    const bool empty = m_tabs->count() == 0;
    if (empty)
        m_start->showState(m_project.get(), m_catalogue, recent(), m_kept->items());
    m_stack->setCurrentWidget(empty ? static_cast<QWidget *>(m_start) : m_tabs);
    showEditorState();
}

void MainWindow::showEditorState()
{
    if (!m_actions)
        return;
    m_actions->editActions->refresh();
    const EditorPage *page = m_tabs->currentPage();
    m_actions->save->setEnabled(page && page->isModified());
    const QList<EditorPage *> pages = m_tabs->pages();
    m_actions->saveAll->setEnabled(
        std::any_of(pages.begin(), pages.end(), [](EditorPage *any) { return any->isModified(); }));
    m_actions->closeTab->setEnabled(m_tabs->count() > 0);
    m_actions->startEditing->setEnabled(page && !page->isEditable() && !page->isLoading());
    for (QAction *action :
         {m_actions->find, m_actions->findNext, m_actions->findPrevious, m_actions->goToLine})
        action->setEnabled(page != nullptr);
    for (QAction *action : {m_actions->larger, m_actions->smaller})
        action->setEnabled(page != nullptr);
    for (QAction *action : {m_actions->nextTab, m_actions->previousTab})
        action->setEnabled(m_tabs->count() > 1);
    m_actions->goToEditor->setEnabled(m_tabs->count() > 0);
    const bool hasPlaces = m_messages->hasPlaces();
    m_actions->nextMessage->setEnabled(hasPlaces);
    m_actions->previousMessage->setEnabled(hasPlaces);
    m_actions->showResults->setEnabled(m_report || m_hasKeptRun);
    const int ip = m_catalogueView->currentIp();
    m_actions->ipHelp->setEnabled(ip >= 0 && !m_catalogue.entries().at(ip).help.isEmpty());
    for (QAction *action : {m_actions->closeProject, m_actions->createIp, m_actions->addSources,
                            m_actions->newSource, m_actions->topModule, m_actions->device})
        action->setEnabled(m_project != nullptr);
    const QModelIndex selected = m_projectTree->currentIndex();
    m_actions->openSelected->setEnabled(!selectedFile().isEmpty());
    m_actions->openAsText->setEnabled(m_projectModel->isIp(selected));
    const int selectedIp =
        m_projectModel->isIp(selected)
            ? m_catalogue.indexOf(selected.data(ProjectModel::TypeRole).toString())
            : -1;
    const bool canMove = selectedIp >= 0 && m_catalogue.canMove(selectedIp);
    m_actions->moveToDevice->setEnabled(canMove);
    const QString moveTip =
        canMove           ? tr("Changes the device of the selected IP, and shows what it loses")
        : selectedIp >= 0 ? tr("The plug-in of %1 cannot move its IPs to other devices")
                                .arg(m_catalogue.entries().at(selectedIp).name)
                          : tr("Select an IP in the project to change its device");
    m_actions->moveToDevice->setToolTip(moveTip);
    m_actions->moveToDevice->setStatusTip(moveTip);
    const bool isSource = m_projectModel->isSource(selected);
    m_actions->removeSource->setEnabled(isSource);
    m_actions->moveUp->setEnabled(isSource && selected.row() > 0);
    m_actions->moveDown->setEnabled(isSource && selected.row() + 1 <
                                                    m_projectModel->rowCount(selected.parent()));
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
    if (!m_results) {
        m_results = new ResultPage(this);
        m_results->hide();
        connect(m_results, &ResultPage::openRequested, this,
                [this](const QString &path) { openPath(path); });
        connect(m_results, &ResultPage::removalRequested, this, [this](const QStringList &files) {
            if (m_project)
                m_project->removeFiles(files);
        });
    }
    return m_results;
}

void MainWindow::setRunStore(const RunStore &store)
{
    m_runs = store;
    m_hasKeptRun = m_project && m_runs.has(m_project->file());
    showEditorState();
}

void MainWindow::keepRun(const QStringList &delivered)
{
    if (!m_report || !m_project)
        return;
    QString error;
    if (!m_runs.keep(m_project->file(), KeptRun::of(*m_report, delivered), &error))
        m_messages->append(MessageModel::Warning,
                           tr("The results cannot be shown after a restart. %1").arg(error));
}

void MainWindow::showResults()
{
    if (!m_report) { // from before the start
        KeptRun run;
        QString error;
        if (!m_runs.load(m_project ? m_project->file() : QString(), &run, &error)) {
            report(error);
            return;
        }
        m_messages->setReport(run.report);
        results()->setReport(run.report);
        results()->setDelivered(run.delivered, m_project ? m_project->files() : QStringList());
        results()->showAge(run.when, run.changedFiles());
    }
    m_tabs->showPage(results(), symbolIcon(QStringLiteral("results")), tr("Results"));
}

void MainWindow::newProject()
{
    const QString location = m_settings.value(locationKey, QDir::homePath()).toString();
    NewProjectDialog dialog(location, this);
    if (dialog.exec() != QDialog::Accepted || !closeProject())
        return;
    QString error;
    std::unique_ptr<Project> project =
        Project::create(dialog.folder(), dialog.name(), dialog.device(), &error);
    if (!project) {
        report(error);
        return;
    }
    m_settings.setValue(locationKey, QFileInfo(project->path()).path());
    setProject(std::move(project));
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
    report(error);
    return false;
}

bool MainWindow::openProject(const QString &file)
{
    QString error;
    std::unique_ptr<Project> project = Project::open(file, &error);
    if (!project) {
        QStringList files = recent();
        if (!QFileInfo::exists(file) && files.removeAll(QFileInfo(file).absoluteFilePath()) > 0) {
            m_settings.setValue(recentKey, files);
            showStart();
        }
        report(error);
        return false;
    }
    return closeProject() && setProject(std::move(project));
}

bool MainWindow::closeProject()
{
    if (!m_tabs->closeAll())
        return false;
    m_infoBar->hide();
    return setProject(nullptr);
}

bool MainWindow::openIp(const QString &ipcFile)
{
    if (!settleUnknownDevice(ipcFile))
        return false;
    m_hasNewReport = false;
    QString error;
    m_openedIp = m_catalogue.indexOf(IpSession::typeOf(ipcFile, &error));
    const bool opened = withCopies([&] { return m_session->open(ipcFile, &error); });
    if (!opened && !m_closing)
        report(error);
    return opened;
}

bool MainWindow::settleUnknownDevice(const QString &ipcFile)
{
    const IpcHead head = IpcHead::read(ipcFile);
    const int ip = m_catalogue.indexOf(head.type);
    if (!head.hasUnknownDevice() || ip < 0)
        return true;
    QMessageBox box(QMessageBox::Warning, tr("Unknown device"),
                    tr("\"%1\" is made for the device \"%2\", which the device database does not "
                       "know.")
                        .arg(QDir::toNativeSeparators(ipcFile), head.deviceName),
                    QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        m_catalogue.canMove(ip)
            ? tr("Move it to a device that is known, or open it all the same: its dialog has no "
                 "device then, and OK there stores it without one.")
            : tr("Its plug-in cannot move it to another device. Opened all the same, its dialog "
                 "has "
                 "no device, and OK there stores it without one."));
    QPushButton *move = nullptr;
    if (m_catalogue.canMove(ip)) {
        move = box.addButton(tr("&Move to Device…"), QMessageBox::AcceptRole);
        box.setDefaultButton(move);
    } else {
        box.setDefaultButton(QMessageBox::Cancel);
    }
    QPushButton *open = box.addButton(tr("&Open All the Same"), QMessageBox::DestructiveRole);
    box.exec();
    if (move && box.clickedButton() == move) {
        chooseDeviceOf(ipcFile);
        return !IpcHead::read(ipcFile).hasUnknownDevice();
    }
    return box.clickedButton() == open;
}

bool MainWindow::withCopies(const std::function<bool()> &call)
{
    QStringList copies;
    m_copiesTold = m_tabs->keepChanges(&copies);
    const bool result = call();
    m_copiesTold.clear();
    for (const QString &copy : qAsConst(copies))
        QFile::remove(copy);
    return result;
}

void MainWindow::keepUnsaved()
{
    const QStringList told = m_copiesTold.isEmpty() ? m_tabs->keepChanges() : m_copiesTold;
    for (const QString &line : told)
        qWarning("%s", qUtf8Printable(line));
}

bool MainWindow::createIp(int ip, const QString &folder, const DEV::DeviceArg &device)
{
    m_hasNewReport = false;
    m_openedIp = ip;
    QString error;
    const bool created = withCopies([&] { return m_session->create(ip, folder, device, &error); });
    if (!created && !m_closing)
        report(error);
    return created;
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

bool MainWindow::moveIp(const QString &ipcFile, const DEV::DeviceArg &device)
{
    const IpcHead head = IpcHead::read(ipcFile);
    const int ip = m_catalogue.indexOf(head.type);
    const QString name = QFileInfo(ipcFile).fileName();
    QString error;
    IpCatalogue::Move move;
    if (ip < 0) {
        report(tr("No plug-in offers the IP of \"%1\".").arg(QDir::toNativeSeparators(ipcFile)));
        return false;
    }
    if (!m_catalogue.isSupported(ip, device, &error) || !withCopies([&] {
            return m_catalogue.moveToDevice(ip, ipcFile, device.id(), false, &move, &error);
        })) {
        report(error);
        return false;
    }
    MoveDialog dialog(name, head.deviceWords(), IpcHead::words(device), move.losses, this);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (!m_kept->keepFile(ipcFile, &error)) {
        report(tr("\"%1\" is not moved, because no copy of it can be kept. %2").arg(name, error));
        return false;
    }
    if (!withCopies([&] {
            return m_catalogue.moveToDevice(ip, ipcFile, device.id(), true, &move, &error);
        })) {
        report(error);
        return false;
    }
    m_projectModel->refresh();
    showStart();
    if (IpcHead::read(ipcFile).device.id() != device.id()) {
        report(tr("The plug-in has not moved \"%1\" to the device %2.")
                   .arg(QDir::toNativeSeparators(ipcFile), IpcHead::words(device)));
        return false;
    }
    m_infoBar->showMessage(
        tr("\"%1\" is for the device %2 now. What was generated is still for the "
           "one before.")
            .arg(name, IpcHead::words(device)),
        {{tr("Open It to Generate It Ane&w…"), [this, ipcFile] { openIp(ipcFile); }}});
    return true;
}

void MainWindow::chooseDeviceOf(const QString &ipcFile)
{
    const IpcHead head = IpcHead::read(ipcFile);
    const QString current =
        m_project && !m_project->device().isNull() ? m_project->deviceId() : head.device.id();
    DeviceDialog dialog(tr("Move \"%1\" to Device").arg(QFileInfo(ipcFile).fileName()), current,
                        this);
    if (dialog.exec() == QDialog::Accepted && !dialog.device().isNull())
        moveIp(ipcFile, dialog.device());
}

bool MainWindow::bringBack(const QString &keptId)
{
    const KeptConfigurations::Item item = m_kept->item(keptId);
    QString error;
    if (item.id.isEmpty()) {
        report(tr("This copy is gone."));
        showStart();
        return false;
    }
    const QString shown = QDir::toNativeSeparators(item.origin);
    if (item.kind == KeptConfigurations::Dropped) {
        QString folder = QFileInfo(item.origin).absolutePath();
        // Another IP was made there meanwhile.
        if (item.isNew && QFileInfo::exists(item.origin)) {
            const QString taken = folder;
            for (int n = 2; QFileInfo::exists(folder); ++n)
                folder = taken + u'-' + QString::number(n);
        }
        m_hasNewReport = false;
        const bool opened =
            withCopies([&] { return m_session->openAs(item.copy, folder, &error); });
        if (m_session->wasAccepted())
            m_kept->forget(keptId);
        if (!opened && !m_closing)
            report(error);
        return opened;
    }
    QMessageBox box(QMessageBox::Question, tr("Bring back"),
                    QFileInfo::exists(item.origin)
                        ? tr("Replace \"%1\" by what it was before?").arg(shown)
                        : tr("Write \"%1\" again as it was?").arg(shown),
                    QMessageBox::Yes | QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(QFileInfo::exists(item.origin)
                               ? tr("%1.\nA copy of the present configuration is kept as well.")
                                     .arg(item.description())
                               : tr("%1.").arg(item.description()));
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes)
        return false;
    if (!m_kept->restore(keptId, &error)) {
        report(error);
        return false;
    }
    m_projectModel->refresh();
    showStart();
    m_infoBar->showMessage(
        tr("\"%1\" is as it was. What was generated is not.").arg(shown),
        {{tr("Open It to Generate It Ane&w…"), [this, path = item.origin] { openIp(path); }}});
    return true;
}

void MainWindow::showKept()
{
    KeptDialog dialog(m_kept, this);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    showStart();
    if (chosen && !dialog.chosen().isEmpty())
        bringBack(dialog.chosen());
}

void MainWindow::onIpClosed(const QStringList &files)
{
    m_projectModel->refresh();
    if (m_hasNewReport) {
        QStringList delivered;
        for (const QString &file : files) {
            if (UnsavedCopy::originalOf(file).isEmpty())
                delivered.append(file);
        }
        results()->setDelivered(delivered, m_project ? m_project->files() : QStringList());
        keepRun(delivered);
        showResults();
    }
    m_hasNewReport = false;
    m_openedIp = -1;
    showStart();
}

void MainWindow::onRunStarted(IPCore::SynthesisHelper *helper)
{
    m_messages->clear();
    const Synthesis::RunReport begun = helper->report();
    log()->start(
        tr("Synthesis of %1 for %2").arg(begun.job.targetName, begun.job.device.partNumber()));
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
    results()->setReport(report);
    m_report = std::make_unique<Synthesis::RunReport>(report);
    m_hasNewReport = true;
    if (!m_session->isActive())
        keepRun({});
    showEditorState();
}

QStringList MainWindow::recent() const
{
    return m_settings.value(recentKey).toStringList();
}

void MainWindow::rememberRecent(const QString &file)
{
    QStringList files = recent();
    files.removeAll(file);
    files.prepend(file);
    m_settings.setValue(recentKey, QStringList(files.mid(0, recentCount)));
}

void MainWindow::fillRecent()
{
    QMenu *menu = m_actions->recentMenu;
    menu->clear();
    const QStringList files = recent();
    int number = 1;
    for (const QString &path : files) {
        QString text = QDir::toNativeSeparators(path);
        text.replace(u'&', QLatin1String("&&"));
        QAction *action = menu->addAction(QStringLiteral("&%1  %2").arg(number++).arg(text));
        action->setEnabled(QFileInfo::exists(path));
        connect(action, &QAction::triggered, this, [this, path] { openProject(path); });
    }
    if (files.isEmpty())
        menu->addAction(tr("No project yet"))->setEnabled(false);
}

void MainWindow::activateProjectItem(const QModelIndex &index)
{
    const QString path = index.data(ProjectModel::PathRole).toString();
    if (path.isEmpty())
        return;
    if (!QFileInfo::exists(path)) {
        m_projectModel->refresh();
        report(tr("\"%1\" does not exist.").arg(QDir::toNativeSeparators(path)));
        return;
    }
    openPath(path);
}

QString MainWindow::selectedFile() const
{
    return m_projectTree->currentIndex().data(ProjectModel::PathRole).toString();
}

void MainWindow::addSources()
{
    if (m_project)
        m_project->addFiles(QFileDialog::getOpenFileNames(
            this, tr("Add Source Files"), m_project->path(),
            tr("HDL sources (*.v *.vh *.sv *.svh *.vhd *.vhdl);;All files (*)")));
}

void MainWindow::newSource()
{
    if (!m_project)
        return;
    const QString path = QFileDialog::getSaveFileName(
        this, tr("New Source File"), QDir(m_project->path()).filePath(QStringLiteral("top.v")),
        tr("HDL sources (*.v *.vh *.sv *.svh *.vhd *.vhdl);;All files (*)"));
    if (path.isEmpty())
        return;
    QString error;
    if (!Utils::FileUtils::writeFile(path, {}, &error)) {
        report(error);
        return;
    }
    m_project->addFiles({path});
    if (EditorPage *page = m_tabs->openFile(path, 0, &error))
        page->startEditing();
}

void MainWindow::chooseTopModule()
{
    if (!m_project)
        return;
    bool chosen = false;
    const QString name =
        QInputDialog::getText(this, tr("Top Module"), tr("Name of the design's top module:"),
                              QLineEdit::Normal, m_project->topModule(), &chosen);
    if (!chosen)
        return;
    m_project->setTopModule(name.trimmed());
    m_projectModel->refresh();
}

void MainWindow::chooseDevice()
{
    if (!m_project)
        return;
    DeviceDialog dialog(tr("Device of the Project"), m_project->deviceId(), this);
    if (dialog.exec() != QDialog::Accepted || dialog.device().isNull())
        return;
    m_project->setDevice(dialog.device());
    showDrift();
}

// After a change of the project's device: the IPs that are made for another one.
void MainWindow::showDrift()
{
    QStringList others;
    const QModelIndex ips = m_projectModel->groupIndex(ProjectModel::Ips);
    for (int row = 0; row < m_projectModel->rowCount(ips); ++row) {
        const QModelIndex index = m_projectModel->index(row, 0, ips);
        if (index.data(ProjectModel::OtherDeviceRole).toBool())
            others.append(index.data(ProjectModel::PathRole).toString());
    }
    if (others.isEmpty())
        return;
    const QString first = others.first();
    const auto select = [this, first] {
        m_projectDock->show();
        m_projectTree->setFocus();
        m_projectTree->setCurrentIndex(m_projectModel->indexOf(first));
    };
    if (others.size() > 1) {
        m_infoBar->showMessage(
            tr("%1 IPs of this project are made for other devices.").arg(others.size()),
            {{tr("&Show"), select}});
        return;
    }
    const IpcHead head = IpcHead::read(first);
    const int ip = m_catalogue.indexOf(head.type);
    QList<InfoBar::Action> actions{{tr("&Show"), select}};
    if (ip >= 0 && m_catalogue.canMove(ip))
        actions = {{tr("&Move It to the Project's Device…"),
                    [this, first] { moveIp(first, m_project->device()); }}};
    m_infoBar->showMessage(tr("\"%1\" is still made for the device %2.")
                               .arg(QFileInfo(first).fileName(), head.deviceWords()),
                           actions);
}

void MainWindow::showPlugins()
{
    const QStringList before = m_settings.value(foldersKey).toStringList();
    PluginsDialog dialog(m_catalogue, before, this);
    bool again = false;
    connect(&dialog, &PluginsDialog::tryAgainRequested, this, [&again] { again = true; });
    if (dialog.exec() != QDialog::Accepted)
        return;
    // When everything else here is done.
    if (again)
        QTimer::singleShot(0, this, &MainWindow::tryPluginsAgain);
    const QStringList folders = dialog.folders();
    m_settings.setValue(foldersKey, folders);
    const int failures = m_catalogue.failures().size();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    for (const QString &folder : folders) {
        if (!before.contains(folder))
            m_catalogue.loadFolder(folder, true);
    }
    QApplication::restoreOverrideCursor();
    m_catalogueView->reload();
    showStart();
    if (m_catalogue.failures().size() > failures)
        m_infoBar->showMessage(tr("Not every plug-in of the new folders can be used."),
                               {{tr("Detai&ls"), [this] { showPlugins(); }}});
}

// In a window of its own, which can be used while a dialog waits.
void MainWindow::showDocument(const QString &path, const QString &title)
{
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *parent = modal ? modal : this;
    if (m_help && m_help->parentWidget() != parent)
        delete m_help;
    if (!m_help)
        m_help = new HelpWindow(parent);
    if (!m_help->showDocument(path, title))
        report(tr("\"%1\" cannot be read.").arg(QDir::toNativeSeparators(path)));
}

HelpWindow *MainWindow::help() const
{
    return m_help;
}

void MainWindow::showGuide()
{
    for (const QString &folder : m_catalogue.dataFolders()) {
        const QString path = folder + QLatin1String("/guide/user-guide.md");
        if (QFileInfo(path).isFile()) {
            showDocument(path, tr("User Guide"));
            return;
        }
    }
    report(tr("The user guide is not installed. It belongs into the folder \"guide\" of %1.")
               .arg(QDir::toNativeSeparators(m_catalogue.dataFolders().value(0))));
}

void MainWindow::showIpHelp(int ip)
{
    if (ip < 0 || m_catalogue.entries().at(ip).help.isEmpty())
        return;
    const IpEntry &entry = m_catalogue.entries().at(ip);
    showDocument(entry.help, tr("%1 %2").arg(entry.name, entry.version));
}

// The window's own F1 does not reach the dialogs in front of it.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        !QApplication::activeModalWidget())
        return QMainWindow::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return QMainWindow::eventFilter(watched, event);
    const bool hasDocument =
        m_openedIp >= 0 && !m_catalogue.entries().at(m_openedIp).help.isEmpty();
    if (hasDocument)
        showIpHelp(m_openedIp);
    else
        showGuide();
    return true;
}

void MainWindow::tryPluginsAgain()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_catalogue.tryAgain();
    QApplication::restoreOverrideCursor();
    m_catalogueView->reload();
    m_infoBar->hide();
    showStart();
    showPlugins();
}

void MainWindow::about()
{
    QStringList plugins;
    for (const IpEntry &entry : m_catalogue.entries())
        plugins.append(tr("%1 %2").arg(entry.name, entry.version));
    QMessageBox box(QMessageBox::NoIcon, tr("About Tarvo Workbench"),
                    tr("Tarvo Workbench %1").arg(QApplication::applicationVersion()),
                    QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        tr("Configures and generates IPs for FPGA designs.\n\nIPs: %1\nQt %2 (built with %3)\n"
           "Settings: %4")
            .arg(plugins.isEmpty() ? tr("none") : plugins.join(QLatin1String(", ")),
                 QLatin1String(qVersion()), QStringLiteral(QT_VERSION_STR), m_settings.fileName()));
    box.setIconPixmap(applicationIcon().pixmap(64));
    box.exec();
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

void MainWindow::saveState()
{
    m_settings.setValue(geometryKey, saveGeometry());
    m_settings.setValue(stateKey, QMainWindow::saveState(stateVersion));
    m_settings.sync();
}

void MainWindow::restoreState()
{
    const QByteArray geometry = m_settings.value(geometryKey).toByteArray();
    if (geometry.isEmpty() || !restoreGeometry(geometry)) {
        // The frame around the window needs room as well; how much is not known before it is shown.
        const QSize room = (screen() ? screen()->availableSize() : QSize(1280, 800)) * 0.95;
        resize(room.boundedTo(
            QSize(fontMetrics().averageCharWidth() * 190, fontMetrics().height() * 50)));
    }
    if (!QMainWindow::restoreState(m_settings.value(stateKey).toByteArray(), stateVersion)) {
        const int width = fontMetrics().averageCharWidth() * 46;
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

void MainWindow::closeEvent(QCloseEvent *event)
{
    IPCore::SynthesisMonitor &monitor = IPCore::SynthesisMonitor::instance();
    if (!m_closing && !monitor.activeRuns().isEmpty()) {
        QMessageBox box(QMessageBox::Question, tr("A run is active"),
                        tr("Synthesis is running. Closing the window ends the run; its results "
                           "are not made."),
                        QMessageBox::NoButton, this);
        QPushButton *end = box.addButton(tr("&End Run and Close"), QMessageBox::AcceptRole);
        QPushButton *stay = box.addButton(tr("&Keep Running"), QMessageBox::RejectRole);
        box.setDefaultButton(stay);
        box.setEscapeButton(stay);
        box.exec();
        if (box.clickedButton() != end) {
            event->ignore();
            return;
        }
    }
    if (!m_closing && !m_tabs->closeAll()) {
        event->ignore();
        return;
    }
    if (m_session->isActive() || !monitor.activeRuns().isEmpty()) {
        event->ignore();
        shutDown();
        return;
    }
    m_closing = true;
    saveState();
    QMainWindow::closeEvent(event);
    Q_EMIT closed();
}

void MainWindow::shutDown()
{
    if (m_closing)
        return;
    m_closing = true;
    // Not those that stand while a plug-in runs: they go when it returns.
    const QStringList told = m_tabs->keepChanges();
    for (const QString &line : told)
        qWarning("%s", qUtf8Printable(line));
    IPCore::SynthesisMonitor::instance().cancelAll();
    continueClosing();
}

// Closes the dialogs from the innermost outwards, as their calls return, and then the window.
void MainWindow::continueClosing()
{
    if (IPCore::SynthesisMonitor::instance().activeRuns().isEmpty()) {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            dialog->reject();
        } else if (!m_session->isActive()) {
            close();
            return;
        }
    }
    QTimer::singleShot(10, this, &MainWindow::continueClosing);
}

} // namespace Workbench
