#include "editortabs.h"

#include "codeeditor.h"
#include "editorpage.h"
#include "widgets/infobar.h"
#include "widgets/symbolicon.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>

#include <memory>

namespace Workbench
{

namespace
{

// The same file has the same name here, whatever links lead to it.
QString plainPath(const QString &path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

} // namespace

EditorTabs::EditorTabs(QWidget *parent)
    : QTabWidget(parent)
{
    setMovable(true);
    setDocumentMode(true);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
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
        const int index = addTab(page, symbolIcon(QStringLiteral("file")), QString());
        setTabToolTip(index, QDir::toNativeSeparators(plain));
        connect(page, &EditorPage::stateChanged, this, [this, page] { showState(page); });
        connect(page, &EditorPage::openRequested, this, [this, page](const QString &file) {
            QString reason;
            if (!openFile(file, 0, &reason))
                page->infoBar()->showMessage(reason, {});
        });
        connect(page->editor(), &QPlainTextEdit::cursorPositionChanged, this,
                &EditorTabs::currentStateChanged);
        showState(page);
    } else {
        page->checkDisk();
    }
    setCurrentWidget(page);
    if (line > 0)
        page->goToLine(line);
    watch();
    return page;
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

void EditorTabs::showPage(QWidget *page, const QIcon &icon, const QString &title)
{
    if (indexOf(page) < 0)
        addTab(page, icon, title);
    setCurrentWidget(page);
}

bool EditorTabs::savePage(EditorPage *page)
{
    QString error;
    const bool saved = page->save(&error);
    if (!saved && page->needsUtf8()) {
        page->infoBar()->showMessage(error, {{tr("Save the Whole File as &UTF-8"), [this, page] {
                                                  page->convertToUtf8();
                                                  savePage(page);
                                              }}});
    } else if (!saved) {
        page->infoBar()->showMessage(error, {{tr("Try A&gain"), [this, page] { savePage(page); }}});
    }
    watch();
    return saved;
}

bool EditorTabs::saveAll()
{
    bool saved = true;
    const QList<EditorPage *> all = pages();
    for (EditorPage *page : all) {
        if (page->isModified() && !savePage(page)) {
            setCurrentWidget(page);
            saved = false;
        }
    }
    return saved;
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
    bool saved = true;
    for (EditorPage *page : changed) {
        if (!savePage(page)) {
            setCurrentWidget(page);
            saved = false;
        }
    }
    return saved;
}

bool EditorTabs::closeTab(int index)
{
    QWidget *closing = widget(index);
    auto *page = qobject_cast<EditorPage *>(closing);
    if (page && page->isModified() && !settle({page}))
        return false;
    removeTab(indexOf(closing));
    // Other pages belong to those who showed them.
    if (page)
        page->deleteLater();
    return true;
}

bool EditorTabs::closeAll()
{
    QList<EditorPage *> changed;
    const QList<EditorPage *> all = pages();
    for (EditorPage *page : all) {
        if (page->isModified())
            changed.append(page);
    }
    if (!settle(changed))
        return false;
    while (count() > 0) {
        auto *page = qobject_cast<EditorPage *>(widget(0));
        removeTab(0);
        if (page)
            page->deleteLater();
    }
    return true;
}

QStringList EditorTabs::keepChanges(QStringList *copies) const
{
    QStringList told;
    const QList<EditorPage *> all = pages();
    for (const EditorPage *page : all) {
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
