#pragma once

#include "mainwindow.h"

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

    QMenu *recentMenu;
    QMenu *viewMenu;
    QAction *closeProject;
    QAction *save;
    QAction *saveAll;
    QAction *closeTab;
    QAction *startEditing;
    EditActions *editActions;
    QAction *find;
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
    QAction *moveToDevice;
    QAction *removeSource;
    QAction *moveUp;
    QAction *moveDown;
    QAction *topModule;
    QAction *device;
    QAction *ipHelp;
};

} // namespace Workbench
