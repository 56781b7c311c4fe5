#include "editortabs.h"

#include "codeeditor.h"
#include "editorpage.h"
#include "widgets/contextkeys.h"
#include "widgets/infobar.h"
#include "widgets/symbolicon.h"

#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <memory>

namespace Workbench
{

namespace
{

constexpr const char *pathProperty = "filePath";

// The same file has the same name here, whatever links lead to it.
QString plainPath(const QString &path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

// Ends with what it tells of, not before.
class SavingDialog : public QDialog
{
public:
    SavingDialog(const QString &text, QWidget *parent)
        : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    {
        setObjectName(QStringLiteral("savingDialog"));
        auto *label = new QLabel(text);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        auto *bar = new QProgressBar;
        bar->setRange(0, 0);
        bar->setAccessibleName(text);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(label);
        layout->addWidget(bar);
    }

protected:
    void reject() override {}
};

} // namespace

EditorTabs::EditorTabs(QWidget *parent)
    : QTabWidget(parent)
{
    setMovable(true);
    setDocumentMode(true);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    tabBar()->installEventFilter(this);
    openContextMenuByKeys(tabBar());
    connect(this, &QTabWidget::currentChanged, this, &EditorTabs::currentStateChanged);
    // A file that is replaced is away for a moment, and a run changes many: look when it is quiet.
    m_diskTimer.setSingleShot(true);
    m_diskTimer.setInterval(100);
    connect(&m_diskTimer, &QTimer::timeout, this, &EditorTabs::checkDisk);
    const auto look = [this] { m_diskTimer.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, look);
}

EditorPage *EditorTabs::openFile(const QString &path, int line, QString *error)
{
    const QString plain = plainPath(path);
    EditorPage *page = pageOf(plain);
    if (!page) {
        auto opened = std::make_unique<EditorPage>(plain);
        if (!opened->load(error))
            return nullptr;
        page = opened.release();
        add(page);
    } else if (page->isUnread()) {
        if (!page->load(error))
            return nullptr;
    } else {
        page->checkDisk();
    }
    setCurrentWidget(page);
    if (line > 0)
        page->goToLine(line);
    watch();
    return page;
}

EditorPage *EditorTabs::openLater(const QString &path, QString *error)
{
    const QString plain = plainPath(path);
    if (EditorPage *page = pageOf(plain))
        return page;
    auto opened = std::make_unique<EditorPage>(plain);
    if (!opened->loadLater(error))
        return nullptr;
    EditorPage *page = opened.release();
    add(page);
    watch();
    return page;
}

void EditorTabs::add(EditorPage *page)
{
    if (!m_look && m_lookSource)
        m_look = std::make_unique<EditorLook>(m_lookSource());
    if (m_look)
        page->setLook(*m_look);
    page->findBar()->setChoices(m_findChoices);
    connect(page->findBar(), &FindBar::choicesChanged, this, [this, page] {
        setFindChoices(page->findBar()->choices());
        Q_EMIT findChoicesChanged(m_findChoices);
    });
    connect(page, &EditorPage::stateChanged, this, [this, page] { showState(page); });
    connect(page, &EditorPage::saveEnded, this,
            [this, page](const QString &error) { tellSaved(page, error); });
    connect(page, &EditorPage::editingStarted, this, [this, page] { Q_EMIT editingStarted(page); });
    connect(page, &EditorPage::openRequested, this, [this, page](const QString &file) {
        QString reason;
        if (!openFile(file, 0, &reason))
            page->infoBar()->showMessage(reason, {});
    });
    connect(page, &EditorPage::cursorMoved, this, &EditorTabs::currentStateChanged);
    connect(page, &EditorPage::scrolled, this, &EditorTabs::placeChanged);
    const int index = addTab(page, symbolIcon(QStringLiteral("file")), QString());
    setTabToolTip(index, QDir::toNativeSeparators(page->path()));
    showState(page);
}

void EditorTabs::setLook(const std::function<EditorLook()> &look)
{
    m_lookSource = look;
    m_look.reset();
    const QList<EditorPage *> all = pages();
    if (!all.isEmpty())
        m_look = std::make_unique<EditorLook>(look());
    for (EditorPage *page : all)
        page->setLook(*m_look);
}

void EditorTabs::setFindChoices(const FindChoices &choices)
{
    m_findChoices = choices;
    const QList<EditorPage *> all = pages();
    for (const EditorPage *page : all) {
        if (page->findBar()->isHidden())
            page->findBar()->setChoices(choices);
    }
}

EditorPage *EditorTabs::currentPage() const
{
    return qobject_cast<EditorPage *>(currentWidget());
}

EditorPage *EditorTabs::pageOf(const QString &path) const
{
    const QString plain = plainPath(path);
    const QList<EditorPage *> all = pages();
    for (EditorPage *page : all) {
        if (page->path() == plain)
            return page;
    }
    return nullptr;
}

QList<EditorPage *> EditorTabs::pages() const
{
    QList<EditorPage *> result;
    for (int i = 0; i < count(); ++i) {
        if (auto *page = qobject_cast<EditorPage *>(widget(i)))
            result.append(page);
    }
    return result;
}

void EditorTabs::showPage(QWidget *page, const QIcon &icon, const QString &title,
                          const QString &path)
{
    page->setProperty(pathProperty, path);
    if (indexOf(page) < 0)
        addTab(page, icon, title);
    setCurrentWidget(page);
}

QString EditorTabs::pathOf(int index) const
{
    const QWidget *page = widget(index);
    if (const auto *file = qobject_cast<const EditorPage *>(page))
        return file->path();
    return page ? page->property(pathProperty).toString() : QString();
}

bool EditorTabs::savePage(EditorPage *page)
{
    page->startSaving();
    finishSaves({page});
    return page->saveError().isEmpty();
}

void EditorTabs::tellSaved(EditorPage *page, const QString &error)
{
    if (!error.isEmpty() && page->needsUtf8()) {
        page->infoBar()->showMessage(error, {{tr("Save the Whole File as &UTF-8"), [this, page] {
                                                  page->convertToUtf8();
                                                  page->startSaving();
                                              }}});
    } else if (!error.isEmpty()) {
        page->infoBar()->showMessage(error, {{tr("Try A&gain"), [page] { page->startSaving(); }}});
    }
    if (!error.isEmpty() && page != currentPage())
        Q_EMIT saveFailed(error);
    watch();
}

void EditorTabs::saveAll()
{
    const QList<EditorPage *> all = pages();
    for (EditorPage *page : all) {
        if (page->isModified())
            page->startSaving();
    }
}

void EditorTabs::finishSaves()
{
    finishSaves(pages());
}

void EditorTabs::finishSaves(const QList<EditorPage *> &pages)
{
    QStringList names;
    for (const EditorPage *page : pages) {
        if (page->isSaving())
            names.append(QFileInfo(page->path()).fileName());
    }
    if (names.isEmpty())
        return;
    SavingDialog dialog(tr("Saving %1…").arg(names.join(QLatin1String(", "))), window());
    const auto look = [&dialog, &pages] {
        if (std::none_of(pages.begin(), pages.end(),
                         [](const EditorPage *page) { return page->isSaving(); }))
            dialog.accept();
    };
    for (const EditorPage *page : pages)
        connect(page, &EditorPage::saveEnded, &dialog, look);
    dialog.exec();
    // If the program ends, the dialog does, too.
    for (EditorPage *page : pages)
        page->finishSaving();
}

bool EditorTabs::settle(const QList<EditorPage *> &changed)
{
    if (changed.isEmpty())
        return true;
    QStringList names;
    for (const EditorPage *page : changed)
        names.append(QFileInfo(page->path()).fileName());
    QMessageBox box(
        QMessageBox::Question, tr("Unsaved changes"),
        changed.size() == 1
            ? tr("\"%1\" has changes that are not saved.").arg(names.first())
            : tr("%n files have changes that are not saved: %1.", nullptr, changed.size())
                  .arg(names.join(QLatin1String(", "))),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, window());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    if (answer == QMessageBox::Discard)
        return true;
    if (answer != QMessageBox::Save)
        return false;
    for (EditorPage *page : changed)
        page->startSaving();
    finishSaves(changed);
    bool saved = true;
    for (EditorPage *page : changed) {
        if (!page->saveError().isEmpty()) {
            setCurrentWidget(page);
            saved = false;
        }
    }
    return saved;
}

bool EditorTabs::closeTab(int index)
{
    return closePages({widget(index)});
}

bool EditorTabs::closeAll()
{
    QList<QWidget *> all;
    for (int i = 0; i < count(); ++i)
        all.append(widget(i));
    return closePages(all);
}

bool EditorTabs::closeOthers(int index)
{
    QList<QWidget *> others;
    for (int i = 0; i < count(); ++i) {
        if (i != index)
            others.append(widget(i));
    }
    return closePages(others);
}

bool EditorTabs::closePages(const QList<QWidget *> &closing)
{
    QList<EditorPage *> files;
    for (QWidget *widget : closing) {
        if (auto *page = qobject_cast<EditorPage *>(widget))
            files.append(page);
    }
    finishSaves(files);
    QList<EditorPage *> changed;
    std::copy_if(files.begin(), files.end(), std::back_inserter(changed),
                 [](const EditorPage *page) { return page->isModified(); });
    if (!settle(changed))
        return false;
    for (QWidget *widget : closing) {
        auto *page = qobject_cast<EditorPage *>(widget);
        removeTab(indexOf(widget));
        // Other pages belong to those who showed them.
        if (page)
            page->deleteLater();
    }
    return true;
}

bool EditorTabs::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == tabBar() && event->type() == QEvent::ContextMenu) {
        const auto *menu = static_cast<QContextMenuEvent *>(event);
        // Keys mean the tab in front.
        const bool isByKeys = menu->reason() == QContextMenuEvent::Keyboard;
        const int index = isByKeys ? currentIndex() : tabBar()->tabAt(menu->pos());
        if (index >= 0)
            Q_EMIT tabMenuRequested(
                index, isByKeys ? tabBar()->mapToGlobal(tabBar()->tabRect(index).center())
                                : menu->globalPos());
        return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

QStringList EditorTabs::keepChanges(QStringList *copies)
{
    QStringList told;
    const QList<EditorPage *> all = pages();
    for (EditorPage *page : all) {
        page->finishSaving();
        if (!page->isModified())
            continue;
        QString error;
        const QString kept = page->keepChanges(&error);
        if (copies && !kept.isEmpty())
            copies->append(kept);
        const QString name = QDir::toNativeSeparators(page->path());
        told.append(kept.isEmpty()
                        ? tr("The unsaved changes of \"%1\" are lost. %2").arg(name, error)
                        : tr("The unsaved changes of \"%1\" are in \"%2\".")
                              .arg(name, QDir::toNativeSeparators(kept)));
    }
    return told;
}

void EditorTabs::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    // The style's own close button has no colour for a dark palette.
    auto *close = new QToolButton;
    close->setIcon(symbolIcon(QStringLiteral("close")));
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize) * 3 / 4;
    close->setIconSize({side, side});
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setToolTip(tr("Close (Ctrl+W)"));
    close->setAccessibleName(tr("Close the tab"));
    QWidget *page = widget(index);
    connect(close, &QToolButton::clicked, this, [this, page] { closeTab(indexOf(page)); });
    tabBar()->setTabButton(index, QTabBar::RightSide, close);
    Q_EMIT countChanged();
}

void EditorTabs::tabRemoved(int index)
{
    QTabWidget::tabRemoved(index);
    watch();
    Q_EMIT countChanged();
}

// Watches the open files and, since a deleted file is forgotten, their folders.
void EditorTabs::watch()
{
    QStringList wanted;
    const QList<EditorPage *> all = pages();
    for (const EditorPage *page : all) {
        const QFileInfo info(page->path());
        if (info.exists())
            wanted.append(info.filePath());
        if (QFileInfo::exists(info.path()))
            wanted.append(info.path());
    }
    wanted.removeDuplicates();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList added;
    QStringList removed;
    for (const QString &path : qAsConst(wanted)) {
        if (!watched.contains(path))
            added.append(path);
    }
    for (const QString &path : watched) {
        if (!wanted.contains(path))
            removed.append(path);
    }
    if (!added.isEmpty())
        m_watcher.addPaths(added);
    if (!removed.isEmpty())
        m_watcher.removePaths(removed);
}

void EditorTabs::checkDisk()
{
    const QList<EditorPage *> all = pages();
    for (EditorPage *page : all)
        page->checkDisk();
    watch();
}

void EditorTabs::showState(EditorPage *page)
{
    const int index = indexOf(page);
    if (index < 0)
        return;
    QString name = QFileInfo(page->path()).fileName();
    name.replace(u'&', QLatin1String("&&"));
    setTabText(index, page->isModified() ? name + u'*' : name);
    setTabIcon(index,
               symbolIcon(page->isEditable() ? QStringLiteral("edit") : QStringLiteral("file")));
    if (index == currentIndex())
        Q_EMIT currentStateChanged();
}

} // namespace Workbench
