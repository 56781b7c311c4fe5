#pragma once

#include "codeeditor.h"
#include "findbar.h"

#include <QFileSystemWatcher>
#include <QTabWidget>
#include <QTimer>

#include <functional>
#include <memory>

namespace Workbench
{

class EditorPage;

// The open files, one a tab, and other pages beside them.
class EditorTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit EditorTabs(QWidget *parent = nullptr);

    // Opens a file or brings its tab to the front, and goes to the line if that is above 0. Null
    // and a sentence in `*error` if it cannot be shown.
    EditorPage *openFile(const QString &path, int line, QString *error);
    // Adds its tab, unless there is one, and has the file read when it is seen.
    EditorPage *openLater(const QString &path, QString *error);
    EditorPage *currentPage() const;
    EditorPage *pageOf(const QString &path) const;
    QList<EditorPage *> pages() const;
    // Shows a page that is no file; `path` is that of the file that it is about, if there is one.
    void showPage(QWidget *page, const QIcon &icon, const QString &title,
                  const QString &path = QString());
    // The file of a tab, or that it is about; empty: none.
    QString pathOf(int index) const;

    // Of the pages that there are and those that come; asked for with the first of them, since
    // finding its font takes a while.
    void setLook(const std::function<EditorLook()> &look);

    // How is looked for in the pages that come, and in those whose bar is hidden.
    void setFindChoices(const FindChoices &choices);

    // Reports a failure in the page and returns false then. While a large file is being saved, a
    // dialog says so.
    bool savePage(EditorPage *page);
    // Begins to save all that is modified; failures are told.
    void saveAll();
    // Lets the saves end that are under way, in a dialog with the names of the files.
    void finishSaves();
    // Asks about unsaved changes; false if the user wants to go on with them.
    bool closeTab(int index);
    bool closeAll();
    // All but this one.
    bool closeOthers(int index);
    // Writes the unsaved changes into files of their own, whose paths are appended to `copies` (may
    // be null); returns a sentence for each.
    QStringList keepChanges(QStringList *copies = nullptr);

Q_SIGNALS:
    void currentStateChanged();
    void countChanged();
    void editingStarted(Workbench::EditorPage *page);
    // Of a page that is not in front; the page says so, too.
    void saveFailed(const QString &error);
    // By somebody's hand, in a page.
    void findChoicesChanged(const Workbench::FindChoices &choices);
    // A file was scrolled.
    void placeChanged();
    // By mouse or keys; a place on the screen.
    void tabMenuRequested(int index, const QPoint &place);

protected:
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add(EditorPage *page);
    void tellSaved(EditorPage *page, const QString &error);
    void finishSaves(const QList<EditorPage *> &pages);
    // Closes these, after a question where they have unsaved changes.
    bool closePages(const QList<QWidget *> &closing);
    void watch();
    void checkDisk();
    void showState(EditorPage *page);
    // Asks what to do with unsaved changes of these pages; true if the tabs may go.
    bool settle(const QList<EditorPage *> &changed);

    std::unique_ptr<EditorLook> m_look; // null: not asked for
    std::function<EditorLook()> m_lookSource;
    FindChoices m_findChoices;
    QFileSystemWatcher m_watcher;
    QTimer m_diskTimer;
};

} // namespace Workbench
