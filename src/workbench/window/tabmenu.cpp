#include "tabmenu.h"

#include "editor/editortabs.h"
#include "project/projectmodel.h"
#include "project/projectpane.h"
#include "widgets/fileplace.h"
#include "widgets/symbolicon.h"

#include <QDockWidget>
#include <QMenu>
#include <QPointer>

namespace Workbench
{

TabMenu::TabMenu(EditorTabs &tabs, ProjectPane &pane, QDockWidget &dock, QWidget *window)
    : m_tabs(tabs)
    , m_pane(pane)
    , m_dock(dock)
    , m_window(window)
{
}

void TabMenu::exec(int index, const QPoint &place)
{
    const QString path = m_tabs.pathOf(index);
    const QPointer<QWidget> page = m_tabs.widget(index);
    QMenu menu(m_window);
    menu.setObjectName(QStringLiteral("tabMenu"));
    QAction *close = menu.addAction(symbolIcon(QStringLiteral("close")), tr("&Close"));
    QAction *closeOthers = menu.addAction(tr("Close the &Others"));
    closeOthers->setEnabled(m_tabs.count() > 1);
    menu.addSeparator();
    QAction *reveal =
        menu.addAction(symbolIcon(QStringLiteral("project")), tr("Show in the P&roject"));
    reveal->setEnabled(m_pane.model()->indexOf(path).isValid());
    QAction *folder = menu.addAction(symbolIcon(QStringLiteral("folder")), tr("Open the &Folder"));
    QAction *copy = menu.addAction(tr("Copy the &Path"));
    for (QAction *action : {folder, copy})
        action->setEnabled(!path.isEmpty());
    const QAction *chosen = menu.exec(place);
    // It may have closed meanwhile.
    const int now = page ? m_tabs.indexOf(page) : -1;
    if (!chosen || now < 0)
        return;
    if (chosen == close) {
        m_tabs.closeTab(now);
    } else if (chosen == closeOthers) {
        m_tabs.closeOthers(now);
    } else if (chosen == reveal) {
        m_dock.show();
        m_dock.raise();
        m_pane.select(path);
    } else if (chosen == folder) {
        openFolderOf(path, m_window);
    } else if (chosen == copy) {
        copyPathOf(path);
    }
}

} // namespace Workbench
