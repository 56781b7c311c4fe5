#pragma once

#include "mainwindow.h"

#include <QList>

QT_FORWARD_DECLARE_CLASS(QAction)
QT_FORWARD_DECLARE_CLASS(QMenu)

namespace Workbench
{

class EditActions;

// The menus of the window and what in them changes with its state.
class MainWindow::Actions
{
public:
    explicit Actions(MainWindow *window);

    // Enables what can be done now.
    void refresh();

    QMenu *recentMenu;
    QMenu *viewMenu;
    QMenu *exportMenu;
    QAction *exportDiagram;
    QList<QAction *> exportTables;
    QAction *external;
    QAction *newProject;
    QAction *open;
    QAction *closeProject;
    QAction *reopen;
    QAction *save;
    QAction *saveAll;
    QAction *closeTab;
    QAction *startEditing;
    EditActions *editActions;
    QAction *find;
    QAction *replace;
    QAction *findNext;
    QAction *findPrevious;
    QAction *goToLine;
    QAction *showResults;
    QAction *nextMessage;
    QAction *previousMessage;
    QAction *nextTab;
    QAction *previousTab;
    QAction *goToEditor;
    QAction *larger;
    QAction *smaller;
    QAction *createIp;
    QAction *addSources;
    QAction *newSource;
    QAction *openSelected;
    QAction *openAsText;
    QAction *software;
    QAction *simulate;
    QAction *moveToDevice;
    QAction *openFolder;
    QAction *copyPath;
    QAction *removeSource;
    QAction *moveUp;
    QAction *moveDown;
    QAction *topModule;
    QAction *device;
    QAction *ipHelp;

private:
    struct Keys;
    template <typename Slot>
    QAction *add(QMenu *menu, const QString &text, const QString &icon, const Keys &keys,
                 Slot slot);
    template <typename Call>
    auto withPage(Call call);

    void addFileMenu();
    void addEditMenu();
    void addViewMenu();
    void addPlaces();
    void addProjectMenu();
    void addSourceActions(QMenu *menu);
    void addHelpMenu();
    void fillToolBar();
    void refreshEditor();
    void refreshProject();

    MainWindow *m_window;
};

} // namespace Workbench
