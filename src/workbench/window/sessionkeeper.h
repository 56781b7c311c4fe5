#pragma once

#include "session/sessionstore.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace Workbench
{

class EditorTabs;
class InfoBar;

// Keeps what a window shows, shortly after each change, and brings it back.
class SessionKeeper : public QObject
{
    Q_OBJECT

public:
    // All of it must outlive the keeper. The functions open pages; they return false if that cannot
    // be, and are not called for files that there are not.
    struct Surroundings {
        EditorTabs &tabs;
        InfoBar &infoBar;
        std::function<bool(const QString &ipcFile)> showHandOff;
        std::function<bool(const QString &ipcFile)> showSimulation;
        std::function<bool()> showResults;
        std::function<bool()> hasRun;
        std::function<void()> prepareRun;
        std::function<SessionStore::WindowState()> windowState;
    };

    SessionKeeper(QSettings &settings, const Surroundings &with, QObject *parent = nullptr);

    SessionStore &store() { return m_store; }
    bool isRestoring() const { return m_isRestoring; }

    // What is shown belongs to this project file from now on, empty: to none. Nothing is kept
    // between hold() and this.
    void setProject(const QString &projectFile);
    // Opens the tabs that the project had, behind those that are there. Files that are gone are
    // told once.
    void restoreTabs();
    // What is open now is what comes back, whatever closes from now on; until setProject() or
    // release().
    void hold();
    void release();
    // Writes what is held, or else shown.
    void save();

public Q_SLOTS:
    // Something has changed.
    void note();

private:
    SessionRecord capture() const;
    // Null: the page cannot be.
    QWidget *restoreTab(const SessionTab &tab, bool isInFront);
    void followSplitters();
    void tellGone(const QStringList &gone);

    SessionStore m_store;
    Surroundings m_with;
    QTimer m_timer;
    QString m_project;
    bool m_isHeld = false;
    bool m_isRestoring = false;
    SessionRecord m_held;
    SessionRecord m_written; // of m_project
    SessionStore::WindowState m_writtenWindow;
    QHash<QString, QList<int>> m_splitters;
    bool m_areSplittersNew = false;
};

} // namespace Workbench
