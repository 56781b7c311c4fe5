#pragma once

#include <QObject>

QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QPoint)

namespace Workbench
{

class EditorTabs;
class ProjectPane;

// The context menu of a tab.
class TabMenu : public QObject
{
    Q_OBJECT

public:
    // All of it must outlive the menu. `dock` is that of the pane.
    TabMenu(EditorTabs &tabs, ProjectPane &pane, QDockWidget &dock, QWidget *window);

    // Shows it at a place of the screen and does what is chosen.
    void exec(int index, const QPoint &place);

private:
    EditorTabs &m_tabs;
    ProjectPane &m_pane;
    QDockWidget &m_dock;
    QWidget *m_window;
};

} // namespace Workbench
