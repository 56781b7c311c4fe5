#include "previewpanel.h"

#include "catalogue/pluginloader.h"
#include "sidebyside.h"
#include "widgets/pathdelegate.h"
#include "widgets/symbolicon.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace Workbench
{

namespace
{

// How a state, or a kind of difference, is shown; plug-ins may have others.
struct ShownRow {
    const char *name;
    const char *icon;
    const char *text;
};
constexpr ShownRow states[] = {
    {"new", "add", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "New")},
    {"changed", "edit", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Changed")},
    {"edited", "warning", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Edited by hand")},
    {"remade", "run", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Made by the tool")},
    {"equal", "equal", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Equal")},
    {"stays", "file", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Stays")},
    {"removed", "close", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Removed")},
};
constexpr ShownRow kinds[] = {
    {"option", "edit", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Options")},
    {"device", "device", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Device")},
    {"memory", "sources", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Address map")},
    {"interrupt", "info", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Interrupts")},
    {"port", "ip", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Ports")},
    {"register", "results", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Registers")},
    {"black box", "ip", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Black boxes")},
    {"resource", "results", QT_TRANSLATE_NOOP("Workbench::PreviewPanel", "Resources")},
};

template <std::size_t Size>
const ShownRow *shownRow(const ShownRow (&rows)[Size], const QString &name)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows), [&name](const ShownRow &row) {
        return name == QLatin1String(row.name);
    });
    return found == std::end(rows) ? nullptr : found;
}

QTreeWidget *newTree(const QString &name, const QStringList &header)
{
    auto *tree = new QTreeWidget;
    tree->setAccessibleName(name);
    tree->setHeaderLabels(header);
    tree->setUniformRowHeights(true);
    tree->setAllColumnsShowFocus(true);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    return tree;
}

constexpr const char *configurationMethod = "configuration()";
constexpr const char *previewMethod = "previewGeneration(QVariantMap)";

} // namespace

bool PreviewPanel::isOffered(const QDialog *dialog, const QObject *pluginRoot)
{
    return Answers::offers(dialog, configurationMethod, QMetaType::QVariantMap) &&
           Answers::offers(pluginRoot, previewMethod, QMetaType::QVariantMap);
}

PreviewPanel::PreviewPanel(QDialog *ipDialog, QObject *pluginRoot, QWidget *parent)
    : QWidget(parent)
    , m_dialog(ipDialog)
    , m_root(pluginRoot)
    , m_summary(new QLabel)
    , m_files(newTree(tr("Files"), {tr("File"), tr("State")}))
    , m_differences(newTree(tr("Differences"), {tr("What differs")}))
    , m_note(new QLabel)
    , m_texts(new SideBySide)
    , m_next(new QPushButton(symbolIcon(QStringLiteral("down")), tr("&Next Change")))
    , m_copy(new QPushButton(tr("&Copy as Text")))
{
    setWindowTitle(tr("Preview"));
    setAccessibleName(tr("Preview"));
    for (QLabel *label : {m_summary, m_note}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
    }
    m_files->setRootIsDecorated(false);
    m_files->setItemDelegateForColumn(0, new PathDelegate(this));
    m_files->header()->setStretchLastSection(false);
    m_files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_files->header()->setSectionResizeMode(1, QHeaderView::Fixed);
    m_files->viewport()->installEventFilter(this);
    m_texts->setMessage(tr("Choose a file."));

    auto *refreshButton = new QPushButton(tr("&Refresh"));
    auto *lower = new QWidget;
    auto *lowerLayout = new QVBoxLayout(lower);
    lowerLayout->setContentsMargins(0, 0, 0, 0);
    lowerLayout->addWidget(m_note);
    lowerLayout->addWidget(m_texts, 1);
    auto *lists = new QSplitter(Qt::Horizontal);
    lists->addWidget(m_files);
    lists->addWidget(m_differences);
    lists->setStretchFactor(0, 3);
    lists->setStretchFactor(1, 2);
    lists->setSizes({3000, 2000}); // shares
    auto *all = new QSplitter(Qt::Vertical);
    all->addWidget(lists);
    all->addWidget(lower);
    all->setStretchFactor(1, 1);
    for (QSplitter *splitter : {lists, all})
        splitter->setChildrenCollapsible(false);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_next);
    buttons->addStretch();
    buttons->addWidget(m_copy);
    buttons->addWidget(refreshButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(all, 1);
    layout->addLayout(buttons);

    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (isVisible())
            refresh();
    });
    connect(m_files, &QTreeWidget::currentItemChanged, this, &PreviewPanel::showFile);
    connect(refreshButton, &QPushButton::clicked, this, &PreviewPanel::refresh);
    connect(m_next, &QPushButton::clicked, m_texts, &SideBySide::showNextChange);
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QApplication::clipboard()->setText(m_preview.text); });
    if (m_dialog && m_dialog->metaObject()->indexOfSignal("configurationChanged()") >= 0)
        connect(m_dialog, SIGNAL(configurationChanged()), this, SLOT(onConfigurationChanged()));
    m_copy->setEnabled(false);
    m_next->setEnabled(false);
}

void PreviewPanel::onConfigurationChanged()
{
    m_isStale = true;
    if (isVisible())
        m_timer.start();
}

void PreviewPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStale)
        m_timer.start();
}

void PreviewPanel::refresh()
{
    // What a plug-in does while it is asked may lead here again.
    if (m_isAsking)
        return;
    m_timer.stop();
    m_isStale = false;
    if (!isOffered(m_dialog, m_root)) {
        showProblem(tr("This IP does not tell what it would generate."));
        return;
    }
    m_isAsking = true;
    QVariantMap answer;
    const QPointer<PreviewPanel> self(this);
    const QString thrown = PluginLoader::thrownBy([&] {
        QVariantMap configuration;
        QMetaObject::invokeMethod(m_dialog, "configuration", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, configuration));
        configuration.insert(QStringLiteral("keepsComments"), true); // writeIPConfig() does
        QMetaObject::invokeMethod(m_root, "previewGeneration", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, answer),
                                  Q_ARG(QVariantMap, configuration));
    });
    if (!self)
        return;
    m_isAsking = false;
    if (!thrown.isEmpty()) {
        showProblem(tr("The plug-in failed: %1").arg(thrown));
        return;
    }
    const Utils::Result<Answers::Preview> preview = Answers::previewOf(answer);
    if (!preview)
        showProblem(tr("The plug-in's preview cannot be used: %1.").arg(preview.reason()));
    else if (!preview->error.isEmpty())
        showProblem(preview->error);
    else
        showPreview(*preview);
}

bool PreviewPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == m_files->viewport())
        shareFileColumns();
    return QWidget::eventFilter(watched, event);
}

// Where it is narrow, a state is known by its symbol as well, a file by nothing but its name.
void PreviewPanel::shareFileColumns()
{
    m_files->resizeColumnToContents(1);
    QHeaderView *header = m_files->header();
    const int left = m_files->viewport()->width() - m_nameWidth;
    const int least = 2 * style()->pixelMetric(QStyle::PM_SmallIconSize);
    header->resizeSection(1, std::max(std::min(left, header->sectionSize(1)), least));
}

void PreviewPanel::showProblem(const QString &problem)
{
    m_preview = {};
    m_files->clear();
    m_differences->clear();
    m_copy->setEnabled(false);
    m_summary->setText(problem);
    m_texts->setMessage(QString());
    m_note->clear();
    m_next->setEnabled(false);
    Q_EMIT refreshed();
}

void PreviewPanel::showPreview(const Answers::Preview &preview)
{
    const QTreeWidgetItem *current = m_files->currentItem();
    const QString chosen = current ? current->text(0) : QString();
    m_preview = preview;

    int changes = 0;
    QTreeWidgetItem *next = nullptr;
    {
        const QSignalBlocker blocker(m_files);
        m_files->clear();
        m_nameWidth = 0;
        QTreeWidgetItem *firstChange = nullptr;
        for (const Answers::PreviewedFile &file : preview.files) {
            const ShownRow *row = shownRow(states, file.state);
            auto *item =
                new QTreeWidgetItem(m_files, {file.path, row ? tr(row->text) : file.state});
            item->setIcon(1, symbolIcon(QLatin1String(row ? row->icon : "file")));
            for (int column : {0, 1})
                item->setToolTip(column, item->text(column));
            const QString name = QStringLiteral("…/") + QFileInfo(file.path).fileName();
            m_nameWidth = std::max(m_nameWidth, m_files->fontMetrics().horizontalAdvance(name));
            const bool isChange =
                file.state != QLatin1String("equal") && file.state != QLatin1String("stays");
            changes += isChange && file.state != QLatin1String("removed");
            if (isChange && !firstChange && file.after)
                firstChange = item;
            if (file.path == chosen)
                next = item;
        }
        if (!next)
            next = firstChange ? firstChange : m_files->topLevelItem(0);
        m_files->setCurrentItem(next);
    }
    m_nameWidth += 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_files) + 1);
    shareFileColumns();
    QStringList summary{
        changes == 0
            ? tr("OK would change no file.")
            : tr("OK would write %1 of %n files.", nullptr, preview.files.size()).arg(changes)};
    m_summary->setText((summary + preview.notes).join(u'\n'));

    m_differences->clear();
    QTreeWidgetItem *group = nullptr;
    QString kind;
    for (const Answers::PreviewedDifference &difference : preview.differences) {
        if (!group || difference.kind != kind) {
            kind = difference.kind;
            const ShownRow *row = shownRow(kinds, kind);
            group = new QTreeWidgetItem(m_differences, {row ? tr(row->text) : kind});
            group->setIcon(0, symbolIcon(QLatin1String(row ? row->icon : "info")));
        }
        auto *item = new QTreeWidgetItem(group, {difference.text});
        item->setToolTip(0, difference.text);
    }
    if (preview.differences.isEmpty())
        new QTreeWidgetItem(m_differences, {tr("Nothing")});
    for (int i = 0; i < m_differences->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = m_differences->topLevelItem(i);
        if (item->childCount() > 0)
            item->setText(0, tr("%1 (%2)").arg(item->text(0)).arg(item->childCount()));
        item->setExpanded(item->childCount() <= 20);
    }
    m_copy->setEnabled(true);
    showFile();
    Q_EMIT refreshed();
}

void PreviewPanel::showFile()
{
    const QTreeWidgetItem *item = m_files->currentItem();
    const int index = item ? m_files->indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(item)) : -1;
    m_next->setEnabled(false);
    if (index < 0 || index >= m_preview.files.size()) {
        m_note->clear();
        m_texts->setMessage(tr("Choose a file."));
        return;
    }
    const Answers::PreviewedFile &file = m_preview.files.at(index);
    const QString state = item->text(1) + u'.';
    QStringList notes = file.notes;
    notes.removeAll(state);
    m_note->setText((QStringList{file.path + QLatin1String(": ") + state} + notes).join(u' '));
    const bool isTold = file.before || file.after;
    const bool isKnown = file.after || file.state == QLatin1String("stays") ||
                         file.state == QLatin1String("removed");
    if (!isTold || !isKnown) {
        m_texts->setMessage(file.notes.isEmpty() ? tr("What it will hold is not known.")
                                                 : file.notes.join(u'\n'));
        return;
    }
    m_texts->setTexts(file.before, file.after);
    m_next->setEnabled(file.before != file.after);
}

} // namespace Workbench
