#include "actions.h"

#include "catalogue/catalogueview.h"
#include "catalogue/ipcatalogue.h"
#include "catalogue/pluginlist.h"
#include "companion/companiondesk.h"
#include "editactions.h"
#include "editor/codeeditor.h"
#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "editor/findbar.h"
#include "ipactions.h"
#include "messages/messagemodel.h"
#include "messages/messagesview.h"
#include "messages/outputpane.h"
#include "project/projectmodel.h"
#include "project/projectpane.h"
#include "projectactions.h"
#include "results/lastrun.h"
#include "results/tablefiles.h"
#include "sessionkeeper.h"
#include "settings/settingstable.h"
#include "widgets/fileplace.h"
#include "widgets/shortcuts.h"
#include "widgets/symbolicon.h"

#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QToolBar>
#include <QTreeView>

#include <algorithm>

namespace Workbench
{

// Of an action: one of its own, or those of a standard action.
struct MainWindow::Actions::Keys {
    Keys() = default;
    Keys(const QKeySequence &key) // NOLINT(google-explicit-constructor)
        : sequences{key}
    {
    }
    Keys(QKeySequence::StandardKey key) // NOLINT(google-explicit-constructor)
        : sequences(keysOf(key))
    {
    }

    QList<QKeySequence> sequences;
};

MainWindow::Actions::Actions(MainWindow *window)
    : m_window(window)
{
    addFileMenu();
    addEditMenu();
    addViewMenu();
    addProjectMenu();
    QMenu *tools = window->menuBar()->addMenu(tr("&Tools"));
    add(tools, tr("&Plug-ins…"), {}, {}, [window] { window->m_plugins->show(); });
    addHelpMenu();
    fillToolBar();
}

void MainWindow::Actions::fillToolBar()
{
    QToolBar *bar = m_window->m_toolBar;
    bar->addActions({newProject, open, save});
    bar->addSeparator();
    bar->addActions({startEditing, find});
    bar->addSeparator();
    bar->addActions({createIp, software, simulate, showResults});
    for (QAction *action : {newProject, open, save, startEditing, find, createIp, showResults})
        action->setToolTip(
            tr("%1 (%2)", "an action and its key")
                .arg(action->toolTip(), action->shortcut().toString(QKeySequence::NativeText)));
}

template <typename Slot>
QAction *MainWindow::Actions::add(QMenu *menu, const QString &text, const QString &icon,
                                  const Keys &keys, Slot slot)
{
    auto *action = new QAction(text, m_window);
    if (!icon.isEmpty())
        action->setIcon(symbolIcon(icon));
    action->setShortcuts(keys.sequences);
    QObject::connect(action, &QAction::triggered, m_window, slot);
    menu->addAction(action);
    return action;
}

// A slot that does something with the page in front, if there is one.
template <typename Call>
auto MainWindow::Actions::withPage(Call call)
{
    return [window = m_window, call] {
        if (EditorPage *page = window->m_tabs->currentPage())
            call(page);
    };
}

void MainWindow::Actions::addFileMenu()
{
    MainWindow *window = m_window;
    const Keys nothing;
    QMenu *file = m_window->menuBar()->addMenu(tr("&File"));
    newProject = add(file, tr("&New Project…"), QStringLiteral("new-project"), QKeySequence::New,
                     [window] { window->newProject(); });
    open = add(file, tr("&Open…"), QStringLiteral("open"), QKeySequence::Open,
               [window] { window->open(); });
    recentMenu = file->addMenu(tr("Open &Recent"));
    closeProject =
        add(file, tr("Close &Project"), {}, nothing, [window] { window->closeProject(); });
    reopen = add(file, tr("Reopen the &Last Project at Start"), {}, nothing,
                 [this] { m_window->m_keeper->store().setWanted(reopen->isChecked()); });
    reopen->setCheckable(true);
    reopen->setStatusTip(
        tr("Comes back to the project and its tabs when the workbench is started"));
    file->addSeparator();
    save = add(file, tr("&Save"), QStringLiteral("save"), QKeySequence::Save, [window] {
        if (EditorPage *page = window->m_tabs->currentPage())
            page->startSaving();
    });
    saveAll =
        add(file, tr("Save &All"), {}, QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_S),
            [window] { window->m_tabs->saveAll(); });
    closeTab = add(file, tr("&Close Tab"), {}, QKeySequence::Close,
                   [window] { window->m_tabs->closeTab(window->m_tabs->currentIndex()); });
    file->addSeparator();
    exportMenu = file->addMenu(tr("&Export"));
    exportDiagram =
        add(exportMenu, tr("&Block Diagram…"), {}, nothing, [window] { window->exportDiagram(); });
    exportDiagram->setStatusTip(
        tr("Writes the diagram of the IP that is selected in the project as SVG, PNG or PDF"));
    for (const TableFiles::Table table : TableFiles::tables()) {
        QAction *action = add(exportMenu, TableFiles::titleOf(table), {}, nothing,
                              [window, table] { window->exportTable(int(table)); });
        action->setStatusTip(tr("Writes a table of the last run as CSV, JSON or Markdown"));
        exportTables.append(action);
    }
    file->addSeparator();
    add(file, tr("&Quit"), {}, QKeySequence::Quit, [window] { window->close(); });
}

void MainWindow::Actions::addEditMenu()
{
    MainWindow *window = m_window;
    QMenu *edit = m_window->menuBar()->addMenu(tr("&Edit"));
    startEditing = add(edit, tr("&Edit File"), QStringLiteral("edit"),
                       QKeySequence(int(Qt::CTRL) + Qt::Key_E), [window] {
                           if (EditorPage *page = window->m_tabs->currentPage())
                               page->startEditing();
                       });
    startEditing->setStatusTip(tr("Lets the file be changed; it opens for reading"));
    edit->addSeparator();
    editActions = new EditActions(window, edit);
    edit->addSeparator();
    find = add(edit, tr("&Find…"), QStringLiteral("find"), QKeySequence::Find,
               withPage([](EditorPage *page) { page->findBar()->start(); }));
    replace = add(edit, tr("Rep&lace…"), {}, QKeySequence(int(Qt::CTRL) + Qt::Key_H),
                  withPage([](EditorPage *page) { page->findBar()->startReplacing(); }));
    findNext = add(edit, tr("Find &Next"), {}, QKeySequence(Qt::Key_F3),
                   withPage([](EditorPage *page) { page->findBar()->findNext(); }));
    findPrevious = add(edit, tr("Find Pre&vious"), {}, QKeySequence(int(Qt::SHIFT) + Qt::Key_F3),
                       withPage([](EditorPage *page) { page->findBar()->findPrevious(); }));
    goToLine = add(edit, tr("&Go to Line…"), {}, QKeySequence(int(Qt::CTRL) + Qt::Key_G),
                   [window] { window->goToLine(); });
    external = add(edit, tr("Open in E&xternal Editor"), {}, Keys(),
                   [window] { window->openExternally(); });
    external->setStatusTip(tr("Starts the program that the settings name, with the file and line"));
    edit->addSeparator();
    add(edit, tr("&Settings…"), {}, QKeySequence(int(Qt::CTRL) + Qt::Key_Comma),
        [window] { window->editSettings(); });
}

void MainWindow::Actions::addViewMenu()
{
    MainWindow *window = m_window;
    QMenu *view = m_window->menuBar()->addMenu(tr("&View"));
    viewMenu = view;
    view->addAction(window->m_projectDock->toggleViewAction());
    view->addAction(window->m_catalogueDock->toggleViewAction());
    view->addAction(window->m_outputDock->toggleViewAction());
    view->addAction(window->m_companions->action());
    QAction *toolBar = window->m_toolBar->toggleViewAction();
    toolBar->setText(tr("Tool &Bar"));
    view->addAction(toolBar);
    view->addSeparator();
    showResults = add(view, tr("&Results of the Last Run"), QStringLiteral("results"),
                      QKeySequence(int(Qt::CTRL) + Qt::Key_R), [window] { window->showResults(); });
    showResults->setEnabled(false);
    nextMessage = add(view, tr("&Next Message"), {}, QKeySequence(Qt::Key_F8),
                      [window] { window->output()->messages()->step(1); });
    previousMessage =
        add(view, tr("&Previous Message"), {}, QKeySequence(int(Qt::SHIFT) + Qt::Key_F8),
            [window] { window->output()->messages()->step(-1); });
    view->addSeparator();
    nextTab =
        add(view, tr("Next &Tab"), {}, QKeySequence(int(Qt::CTRL) + Qt::Key_PageDown), [window] {
            if (const int count = window->m_tabs->count())
                window->m_tabs->setCurrentIndex((window->m_tabs->currentIndex() + 1) % count);
        });
    previousTab =
        add(view, tr("Pre&vious Tab"), {}, QKeySequence(int(Qt::CTRL) + Qt::Key_PageUp), [window] {
            if (const int count = window->m_tabs->count())
                window->m_tabs->setCurrentIndex((window->m_tabs->currentIndex() + count - 1) %
                                                count);
        });
    addPlaces();
    view->addSeparator();
    larger = add(view, tr("&Larger Text"), {}, QKeySequence::ZoomIn,
                 withPage([](EditorPage *page) { page->editor()->zoomBy(1); }));
    smaller = add(view, tr("&Smaller Text"), {}, QKeySequence::ZoomOut,
                  withPage([](EditorPage *page) { page->editor()->zoomBy(-1); }));
}

void MainWindow::Actions::addPlaces()
{
    MainWindow *window = m_window;
    const auto addPlace = [&](const QString &text, Qt::Key key, auto place) {
        return add(viewMenu, text, {}, QKeySequence(int(Qt::CTRL) + key), place);
    };
    addPlace(tr("Go to Pro&ject"), Qt::Key_1, [window] {
        window->m_projectDock->show();
        window->m_projectPane->tree()->setFocus();
    });
    addPlace(tr("Go to Catalo&gue"), Qt::Key_2, [window] {
        window->m_catalogueDock->show();
        window->m_catalogueView->setFocus();
    });
    goToEditor = addPlace(tr("Go to &Editor"), Qt::Key_3, [window] {
        if (QWidget *page = window->m_tabs->currentWidget())
            page->setFocus();
    });
    addPlace(tr("Go to &Messages"), Qt::Key_4, [window] {
        window->m_outputDock->show();
        window->output()->showMessages();
        window->output()->messages()->setFocus();
    });
}

void MainWindow::Actions::addProjectMenu()
{
    MainWindow *window = m_window;
    const Keys nothing;
    QMenu *project = m_window->menuBar()->addMenu(tr("&Project"));
    createIp = add(project, tr("Create &IP…"), QStringLiteral("ip"),
                   QKeySequence(int(Qt::CTRL) + Qt::Key_I), [window] {
                       window->m_catalogueDock->show();
                       window->m_catalogueDock->raise();
                       window->m_catalogueView->setFocus();
                   });
    createIp->setStatusTip(tr("Goes to the catalogue; Enter there creates the selected IP"));
    openSelected = add(project, tr("&Open Selected"), {}, nothing,
                       [window] { window->m_projectPane->activateSelected(); });
    openAsText = add(project, tr("Open as Te&xt"), {}, nothing, [window] {
        if (!window->m_projectPane->selectedFile().isEmpty())
            window->openPath(window->m_projectPane->selectedFile(), 1);
    });
    openAsText->setStatusTip(tr("Shows an IP's configuration in the editor, not in its dialog"));
    software = add(project, tr("&Hand-off"), QStringLiteral("hand-off"),
                   QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_E), [window] {
                       if (!window->m_projectPane->selectedFile().isEmpty())
                           window->showSoftware(window->m_projectPane->selectedFile());
                   });
    simulate = add(project, tr("Simu&late"), QStringLiteral("run"),
                   QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_R), [window] {
                       if (!window->m_projectPane->selectedFile().isEmpty())
                           window->showSimulation(window->m_projectPane->selectedFile());
                   });
    moveToDevice = add(project, tr("&Move to Device…"), {}, nothing, [window] {
        if (!window->m_projectPane->selectedFile().isEmpty())
            window->m_ips->chooseDeviceOf(window->m_projectPane->selectedFile());
    });
    add(project, tr("&Bring Back a Configuration…"), {}, nothing,
        [window] { window->m_ips->showKept(); });
    project->addSeparator();
    openFolder = add(project, tr("Open the &Folder"), QStringLiteral("folder"), nothing,
                     [window] { openFolderOf(window->m_projectPane->selectedPlace(), window); });
    openFolder->setStatusTip(tr("Shows the folder of what is selected in the file manager"));
    copyPath = add(project, tr("Copy the &Path"), {}, nothing,
                   [window] { copyPathOf(window->m_projectPane->selectedPlace()); });
    project->setToolTipsVisible(true); // why an IP cannot be moved
    project->addSeparator();
    addSourceActions(project);
    project->addSeparator();
    topModule = add(project, tr("&Top Module…"), {}, nothing,
                    [window] { window->m_projectActions->chooseTopModule(); });
    device = add(project, tr("De&vice…"), QStringLiteral("device"), nothing,
                 [window] { window->chooseDevice(); });
}

void MainWindow::Actions::addSourceActions(QMenu *project)
{
    MainWindow *window = m_window;
    const Keys nothing;
    addSources = add(project, tr("&Add Source Files…"), QStringLiteral("add"),
                     QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_A),
                     [window] { window->m_projectActions->addSources(); });
    newSource = add(project, tr("&New Source File…"), {},
                    QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_N),
                    [window] { window->m_projectActions->newSource(); });
    removeSource = add(project, tr("&Remove from Project"), {}, nothing, [window] {
        if (window->m_project)
            window->m_project->removeFile(window->m_projectPane->selectedFile());
    });
    removeSource->setStatusTip(tr("The file itself stays"));
    moveUp = add(project, tr("Move &Up"), QStringLiteral("up"),
                 QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Up), [window] {
                     if (window->m_project)
                         window->m_project->moveFile(window->m_projectPane->selectedFile(), -1);
                 });
    moveDown = add(project, tr("Move &Down"), QStringLiteral("down"),
                   QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Down), [window] {
                       if (window->m_project)
                           window->m_project->moveFile(window->m_projectPane->selectedFile(), 1);
                   });
}

void MainWindow::Actions::addHelpMenu()
{
    MainWindow *window = m_window;
    const Keys nothing;
    QMenu *help = m_window->menuBar()->addMenu(tr("&Help"));
    add(help, tr("&Contents"), {}, QKeySequence::HelpContents, [window] {
        window->showGuide();
    })->setStatusTip(tr("The user guide, at what it says of the place with the focus"));
    ipHelp = add(help, tr("Help on the Selected &IP"), {}, nothing,
                 [window] { window->showIpHelp(window->m_catalogueView->currentIp()); });
    ipHelp->setStatusTip(tr("The document of the IP that is selected in the catalogue"));
    help->addSeparator();
    add(help, tr("&About Tarvo Workbench"), {}, nothing, [window] { window->about(); });
    add(help, tr("About &Qt"), {}, nothing, [] { QApplication::aboutQt(); });
}

void MainWindow::Actions::refresh()
{
    editActions->refresh();
    reopen->setChecked(Settings::isOn(m_window->m_settings, Settings::restoreSession));
    refreshEditor();
    refreshProject();
    const bool hasPlaces = m_window->m_messages->hasPlaces();
    nextMessage->setEnabled(hasPlaces);
    previousMessage->setEnabled(hasPlaces);
    showResults->setEnabled(m_window->m_lastRun->isThere());
    for (QAction *action : qAsConst(exportTables))
        action->setEnabled(m_window->m_lastRun->isThere());
    const int ip = m_window->m_catalogueView->currentIp();
    ipHelp->setEnabled(ip >= 0 && !m_window->m_catalogue.entries().at(ip).help.isEmpty());
}

void MainWindow::Actions::refreshEditor()
{
    const EditorTabs *tabs = m_window->m_tabs;
    const EditorPage *page = tabs->currentPage();
    save->setEnabled(page && page->isModified());
    const QList<EditorPage *> pages = tabs->pages();
    saveAll->setEnabled(
        std::any_of(pages.begin(), pages.end(), [](EditorPage *any) { return any->isModified(); }));
    closeTab->setEnabled(tabs->count() > 0);
    startEditing->setEnabled(page && !page->isEditable() && !page->isLoading());
    for (QAction *action : {find, replace, findNext, findPrevious, goToLine, larger, smaller})
        action->setEnabled(page != nullptr);
    for (QAction *action : {nextTab, previousTab})
        action->setEnabled(tabs->count() > 1);
    goToEditor->setEnabled(tabs->count() > 0);
    external->setEnabled(
        page && !Settings::textOf(m_window->m_settings, Settings::editorExternal).isEmpty());
}

void MainWindow::Actions::refreshProject()
{
    for (QAction *action : {closeProject, createIp, addSources, newSource, topModule, device})
        action->setEnabled(m_window->m_project != nullptr);
    const ProjectModel *model = m_window->m_projectPane->model();
    const QModelIndex selected = m_window->m_projectPane->selected();
    openSelected->setEnabled(!m_window->m_projectPane->selectedFile().isEmpty());
    openAsText->setEnabled(model->isIp(selected));
    exportDiagram->setEnabled(model->isIp(selected));
    const IpCatalogue &catalogue = m_window->m_catalogue;
    const int ip = model->isIp(selected)
                       ? catalogue.indexOf(selected.data(ProjectModel::TypeRole).toString())
                       : -1;
    const bool canExport = ip >= 0 && catalogue.canExport(ip);
    software->setEnabled(canExport);
    const QString softwareTip =
        canExport ? tr("Shows what firmware and other tools get of the selected IP, and exports it")
        : ip >= 0
            ? tr("The plug-in of %1 hands on nothing").arg(catalogue.entries().at(ip).name)
            : tr("Select an IP in the project to see what firmware and other tools get of it");
    software->setToolTip(softwareTip);
    software->setStatusTip(softwareTip);
    const bool canSimulate = ip >= 0 && catalogue.canSimulate(ip);
    simulate->setEnabled(canSimulate);
    const QString simulateTip =
        canSimulate ? tr("Runs programs on the selected IP before there is hardware")
        : ip >= 0   ? tr("The plug-in of %1 cannot simulate").arg(catalogue.entries().at(ip).name)
                    : tr("Select an IP in the project to run programs on it");
    simulate->setToolTip(simulateTip);
    simulate->setStatusTip(simulateTip);
    const bool canMove = ip >= 0 && catalogue.canMove(ip);
    moveToDevice->setEnabled(canMove);
    const QString moveTip =
        canMove   ? tr("Changes the device of the selected IP, and shows what it loses")
        : ip >= 0 ? tr("The plug-in of %1 cannot move its IPs to other devices")
                        .arg(catalogue.entries().at(ip).name)
                  : tr("Select an IP in the project to change its device");
    moveToDevice->setToolTip(moveTip);
    moveToDevice->setStatusTip(moveTip);
    const bool isSource = model->isSource(selected);
    for (QAction *action : {openFolder, copyPath})
        action->setEnabled(!m_window->m_projectPane->selectedPlace().isEmpty());
    removeSource->setEnabled(isSource);
    moveUp->setEnabled(isSource && selected.row() > 0);
    moveDown->setEnabled(isSource && selected.row() + 1 < model->rowCount(selected.parent()));
}

} // namespace Workbench
