#include "sessionkeeper.h"

#include "editor/editorpage.h"
#include "editor/editortabs.h"
#include "results/resultpage.h"
#include "simulation/simulationpage.h"
#include "software/softwarepage.h"
#include "widgets/infobar.h"

#include <QDir>
#include <QFileInfo>
#include <QSplitter>
#include <QTabBar>

#include <algorithm>

namespace Workbench
{

namespace
{

constexpr int delay = 500;   // of keeping a change, in milliseconds
constexpr int goneShown = 5; // names in a message

SessionTab tabOf(const QWidget *page)
{
    SessionTab tab;
    if (const auto *file = qobject_cast<const EditorPage *>(page)) {
        const EditorPage::Place place = file->place();
        tab.path = file->path();
        tab.line = place.line;
        tab.column = place.column;
        tab.top = place.top;
        tab.left = place.left;
    } else if (const auto *handOff = qobject_cast<const SoftwarePage *>(page)) {
        tab.kind = SessionTab::HandOff;
        tab.path = handOff->ipcFile();
    } else if (const auto *simulation = qobject_cast<const SimulationPage *>(page)) {
        tab.kind = SessionTab::Simulation;
        tab.path = simulation->ipcFile();
    } else {
        tab.kind = SessionTab::Results;
    }
    return tab;
}

} // namespace

SessionKeeper::SessionKeeper(QSettings &settings, const Surroundings &with, QObject *parent)
    : QObject(parent)
    , m_store(settings)
    , m_with(with)
    , m_writtenWindow(m_store.windowState())
    , m_splitters(m_store.splitters())
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &SessionKeeper::save);
    connect(&m_with.tabs, &EditorTabs::countChanged, this, &SessionKeeper::note);
    connect(&m_with.tabs, &EditorTabs::currentStateChanged, this, &SessionKeeper::note);
    connect(&m_with.tabs, &EditorTabs::placeChanged, this, &SessionKeeper::note);
    connect(m_with.tabs.tabBar(), &QTabBar::tabMoved, this, &SessionKeeper::note);
    connect(&m_with.tabs, &QTabWidget::currentChanged, this, &SessionKeeper::followSplitters);
}

void SessionKeeper::note()
{
    // Not again: who never rests is kept as well.
    if (!m_isHeld && !m_isRestoring && !m_timer.isActive())
        m_timer.start();
}

SessionRecord SessionKeeper::capture() const
{
    SessionRecord record;
    for (int i = 0; i < m_with.tabs.count(); ++i)
        record.tabs.append(tabOf(m_with.tabs.widget(i)));
    record.current = m_with.tabs.currentIndex();
    record.hasRun = m_with.hasRun();
    return record;
}

void SessionKeeper::hold()
{
    if (m_isHeld)
        return;
    m_held = capture();
    m_isHeld = true;
    m_timer.stop();
}

void SessionKeeper::release()
{
    m_isHeld = false;
    note();
}

void SessionKeeper::save()
{
    if (m_isRestoring)
        return;
    const SessionRecord record = m_isHeld ? m_held : capture();
    if (!(record == m_written))
        m_store.keep(m_project, record);
    m_written = record;
    if (m_areSplittersNew)
        m_store.setSplitters(m_splitters);
    m_areSplittersNew = false;
    const SessionStore::WindowState window = m_with.windowState();
    if (!(window == m_writtenWindow))
        m_store.setWindowState(window);
    m_writtenWindow = window;
}

void SessionKeeper::setProject(const QString &projectFile)
{
    m_isHeld = false;
    m_project = projectFile;
    m_written = m_store.record(projectFile);
    if (!projectFile.isEmpty())
        m_store.setLast(projectFile);
    note();
}

QWidget *SessionKeeper::restoreTab(const SessionTab &tab, bool isInFront)
{
    bool isShown = false;
    switch (tab.kind) {
    case SessionTab::File: {
        QString error;
        EditorPage *page = isInFront ? m_with.tabs.openFile(tab.path, 0, &error)
                                     : m_with.tabs.openLater(tab.path, &error);
        if (page)
            page->setPlace({tab.line, tab.column, tab.top, tab.left});
        return page;
    }
    case SessionTab::HandOff:
        isShown = m_with.showHandOff(tab.path);
        break;
    case SessionTab::Simulation:
        isShown = m_with.showSimulation(tab.path);
        break;
    case SessionTab::Results:
        isShown = m_with.showResults();
        break;
    }
    return isShown ? m_with.tabs.currentWidget() : nullptr;
}

void SessionKeeper::restoreTabs()
{
    const SessionRecord record = m_store.record(m_project);
    m_isRestoring = true;
    const bool isInTab =
        std::any_of(record.tabs.begin(), record.tabs.end(),
                    [](const SessionTab &tab) { return tab.kind == SessionTab::Results; });
    if (record.hasRun && !isInTab)
        m_with.prepareRun();
    QStringList gone;
    QWidget *current = nullptr;
    QWidget *last = nullptr;
    for (int i = 0; i < record.tabs.size(); ++i) {
        const SessionTab &tab = record.tabs.at(i);
        const bool isThere = tab.path.isEmpty() || QFileInfo::exists(tab.path);
        QWidget *page = isThere ? restoreTab(tab, i == record.current) : nullptr;
        if (page)
            last = page;
        else if (!tab.path.isEmpty() && !gone.contains(tab.path))
            gone.append(tab.path);
        if (i == record.current)
            current = page;
    }
    if (current || last)
        m_with.tabs.setCurrentWidget(current ? current : last);
    m_isRestoring = false;
    Q_EMIT m_with.tabs.countChanged();
    tellGone(gone);
    // What is gone is told once.
    save();
}

void SessionKeeper::tellGone(const QStringList &gone)
{
    if (gone.isEmpty())
        return;
    QStringList names;
    for (const QString &path : gone.mid(0, goneShown))
        names.append(QDir::toNativeSeparators(path));
    const QString list = names.join(QLatin1String(", "));
    m_with.infoBar.showMessage(
        gone.size() > goneShown
            ? tr("%n tab(s) of the last time cannot be shown again: %1, …", nullptr, gone.size())
                  .arg(list)
            : tr("%n tab(s) of the last time cannot be shown again: %1.", nullptr, gone.size())
                  .arg(list),
        {});
}

// A splitter of a page gets the sizes that the last one of its name had.
void SessionKeeper::followSplitters()
{
    QWidget *page = m_with.tabs.currentWidget();
    if (!page)
        return;
    const auto splitters = page->findChildren<QSplitter *>();
    for (QSplitter *splitter : splitters) {
        const QString name = splitter->objectName();
        if (name.isEmpty() || splitter->property("isFollowed").toBool())
            continue;
        splitter->setProperty("isFollowed", true);
        const QList<int> sizes = m_splitters.value(name);
        if (sizes.size() == splitter->count())
            splitter->setSizes(sizes);
        connect(splitter, &QSplitter::splitterMoved, this, [this, splitter, name] {
            m_splitters.insert(name, splitter->sizes());
            m_areSplittersNew = true;
            note();
        });
    }
}

} // namespace Workbench
