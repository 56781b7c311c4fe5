#include "actions.h"

#include "catalogue/catalogueview.h"
#include "editactions.h"
#include "editor/codeeditor.h"
#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "editor/findbar.h"
#include "messages/messagesview.h"
#include "messages/outputpane.h"
#include "widgets/shortcuts.h"
#include "widgets/symbolicon.h"

#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QTreeView>

namespace Workbench
{

namespace
{

// Of an action: one of its own, or those of a standard action.
struct Keys {
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

} // namespace

MainWindow::Actions::Actions(MainWindow *window)
{
    const auto add = [window](QMenu *menu, const QString &text, const QString &icon,
                              const Keys &keys, auto slot) {
        auto *action = new QAction(text, window);
        if (!icon.isEmpty())
            action->setIcon(symbolIcon(icon));
        action->setShortcuts(keys.sequences);
        QObject::connect(action, &QAction::triggered, window, slot);
        menu->addAction(action);
        return action;
    };
    const Keys nothing;
    QMenuBar *bar = window->menuBar();

    QMenu *file = bar->addMenu(tr("&File"));
    add(file, tr("&New Project…"), QStringLiteral("new-project"), QKeySequence::New,
        [window] { window->newProject(); });
    add(file, tr("&Open…"), QStringLiteral("open"), QKeySequence::Open,
        [window] { window->open(); });
    recentMenu = file->addMenu(tr("Open &Recent"));
    closeProject =
        add(file, tr("Close &Project"), {}, nothing, [window] { window->closeProject(); });
    file->addSeparator();
    save = add(file, tr("&Save"), QStringLiteral("save"), QKeySequence::Save, [window] {
        if (EditorPage *page = window->m_tabs->currentPage())
            window->m_tabs->savePage(page);
    });
    saveAll =
        add(file, tr("Save &All"), {}, QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_S),
            [window] { window->m_tabs->saveAll(); });
    closeTab = add(file, tr("&Close Tab"), {}, QKeySequence::Close,
                   [window] { window->m_tabs->closeTab(window->m_tabs->currentIndex()); });
    file->addSeparator();
    add(file, tr("&Quit"), {}, QKeySequence::Quit, [window] { window->close(); });

    QMenu *edit = bar->addMenu(tr("&Edit"));
    startEditing = add(edit, tr("&Edit File"), QStringLiteral("edit"),
                       QKeySequence(int(Qt::CTRL) + Qt::Key_E), [window] {
                           if (EditorPage *page = window->m_tabs->currentPage())
                               page->startEditing();
                       });
    startEditing->setStatusTip(tr("Lets the file be changed; it opens for reading"));
    edit->addSeparator();
    editActions = new EditActions(window, edit);
    edit->addSeparator();
    const auto withPage = [window](void (*call)(EditorPage *)) {
        return [window, call] {
            if (EditorPage *page = window->m_tabs->currentPage())
                call(page);
        };
    };
    find = add(edit, tr("&Find…"), QStringLiteral("find"), QKeySequence::Find,
               withPage([](EditorPage *page) { page->findBar()->start(); }));
    findNext = add(edit, tr("Find &Next"), {}, QKeySequence(Qt::Key_F3),
                   withPage([](EditorPage *page) { page->findBar()->findNext(); }));
    findPrevious = add(edit, tr("Find Pre&vious"), {}, QKeySequence(int(Qt::SHIFT) + Qt::Key_F3),
                       withPage([](EditorPage *page) { page->findBar()->findPrevious(); }));
    goToLine = add(edit, tr("&Go to Line…"), {}, QKeySequence(int(Qt::CTRL) + Qt::Key_G),
                   [window] { window->goToLine(); });

    QMenu *view = bar->addMenu(tr("&View"));
    viewMenu = view;
    view->addAction(window->m_projectDock->toggleViewAction());
    view->addAction(window->m_catalogueDock->toggleViewAction());
    view->addAction(window->m_outputDock->toggleViewAction());
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
    const auto addPlace = [&](const QString &text, Qt::Key key, auto place) {
        return add(view, text, {}, QKeySequence(int(Qt::CTRL) + key), place);
    };
    addPlace(tr("Go to Pro&ject"), Qt::Key_1, [window] {
        window->m_projectDock->show();
        window->m_projectTree->setFocus();
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
    view->addSeparator();
    larger = add(view, tr("&Larger Text"), {}, QKeySequence::ZoomIn,
                 withPage([](EditorPage *page) { page->editor()->zoomBy(1); }));
    smaller = add(view, tr("&Smaller Text"), {}, QKeySequence::ZoomOut,
                  withPage([](EditorPage *page) { page->editor()->zoomBy(-1); }));

    QMenu *project = bar->addMenu(tr("&Project"));
    createIp = add(project, tr("Create &IP…"), QStringLiteral("ip"),
                   QKeySequence(int(Qt::CTRL) + Qt::Key_I), [window] {
                       window->m_catalogueDock->show();
                       window->m_catalogueDock->raise();
                       window->m_catalogueView->setFocus();
                   });
    createIp->setStatusTip(tr("Goes to the catalogue; Enter there creates the selected IP"));
    openSelected = add(project, tr("&Open Selected"), {}, nothing, [window] {
        window->activateProjectItem(window->m_projectTree->currentIndex());
    });
    openAsText = add(project, tr("Open as Te&xt"), {}, nothing, [window] {
        if (!window->selectedFile().isEmpty())
            window->openPath(window->selectedFile(), 1);
    });
    openAsText->setStatusTip(tr("Shows an IP's configuration in the editor, not in its dialog"));
    moveToDevice = add(project, tr("&Move to Device…"), {}, nothing, [window] {
        if (!window->selectedFile().isEmpty())
            window->chooseDeviceOf(window->selectedFile());
    });
    add(project, tr("&Bring Back a Configuration…"), {}, nothing, [window] { window->showKept(); });
    project->setToolTipsVisible(true); // why an IP cannot be moved
    project->addSeparator();
    addSources = add(project, tr("&Add Source Files…"), QStringLiteral("add"),
                     QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_A),
                     [window] { window->addSources(); });
    newSource = add(project, tr("&New Source File…"), {},
                    QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_N),
                    [window] { window->newSource(); });
    removeSource = add(project, tr("&Remove from Project"), {}, nothing, [window] {
        if (window->m_project)
            window->m_project->removeFile(window->selectedFile());
    });
    removeSource->setStatusTip(tr("The file itself stays"));
    moveUp = add(project, tr("Move &Up"), QStringLiteral("up"),
                 QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Up), [window] {
                     if (window->m_project)
                         window->m_project->moveFile(window->selectedFile(), -1);
                 });
    moveDown = add(project, tr("Move &Down"), QStringLiteral("down"),
                   QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + Qt::Key_Down), [window] {
                       if (window->m_project)
                           window->m_project->moveFile(window->selectedFile(), 1);
                   });
    project->addSeparator();
    topModule =
        add(project, tr("&Top Module…"), {}, nothing, [window] { window->chooseTopModule(); });
    device = add(project, tr("De&vice…"), QStringLiteral("device"), nothing,
                 [window] { window->chooseDevice(); });

    QMenu *tools = bar->addMenu(tr("&Tools"));
    add(tools, tr("&Plug-ins…"), {}, nothing, [window] { window->showPlugins(); });

    QMenu *help = bar->addMenu(tr("&Help"));
    add(help, tr("&User Guide"), {}, QKeySequence::HelpContents, [window] { window->showGuide(); });
    ipHelp = add(help, tr("Help on the Selected &IP"), {}, nothing,
                 [window] { window->showIpHelp(window->m_catalogueView->currentIp()); });
    ipHelp->setStatusTip(tr("The document of the IP that is selected in the catalogue"));
    help->addSeparator();
    add(help, tr("&About Tarvo Workbench"), {}, nothing, [window] { window->about(); });
    add(help, tr("About &Qt"), {}, nothing, [] { QApplication::aboutQt(); });
}

} // namespace Workbench
