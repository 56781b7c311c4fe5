#include "messagesview.h"

#include "messagemodel.h"
#include "widgets/focusforward.h"
#include "widgets/shortcuts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeView>
#include <QVBoxLayout>

namespace Workbench
{

MessagesView::MessagesView(MessageModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_list(new QTreeView)
{
    m_list->setObjectName(QStringLiteral("messageList"));
    m_list->setAccessibleName(tr("Messages"));
    m_list->setModel(model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setMinimumHeight(fontMetrics().height() * 5 / 2); // on a small screen
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(MessageModel::Text, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(MessageModel::File, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(MessageModel::Line, QHeaderView::ResizeToContents);
    connect(m_list, &QTreeView::activated, this, &MessagesView::open);

    // Columns without a word in them would only take room.
    connect(model, &QAbstractItemModel::modelReset, this, &MessagesView::showColumns);
    connect(model, &QAbstractItemModel::rowsInserted, this, &MessagesView::showColumns);
    showColumns();

    auto *copyAction = new QAction(tr("Copy"), m_list);
    m_list->installEventFilter(this); // for its keys, before the window takes them
    connect(copyAction, &QAction::triggered, this, &MessagesView::copy);
    auto *clearAction = new QAction(tr("Clear"), m_list);
    connect(clearAction, &QAction::triggered, model, &MessageModel::clear);
    m_list->addActions({copyAction, clearAction});
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);
    forwardFocus(this, m_list);
}

void MessagesView::showColumns()
{
    m_list->setColumnHidden(MessageModel::File, !m_model->hasFiles());
    m_list->setColumnHidden(MessageModel::Line, !m_model->hasPlaces());
}

bool MessagesView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const QKeySequence pressed(int(key->modifiers()) | key->key());
    if (watched != m_list || !keysOf(QKeySequence::Copy).contains(pressed))
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        copy();
    return true;
}

void MessagesView::step(int direction)
{
    const int rows = m_model->rowCount();
    const int start = m_list->currentIndex().isValid() ? m_list->currentIndex().row()
                      : direction > 0                  ? -1
                                                       : rows;
    for (int i = 1; i <= rows; ++i) {
        const int row = ((start + direction * i) % rows + rows) % rows;
        const QModelIndex index = m_model->index(row, 0);
        if (index.data(MessageModel::LineRole).toInt() > 0) {
            m_list->setCurrentIndex(index);
            open(index);
            return;
        }
    }
}

void MessagesView::copy()
{
    const QStringList all = m_model->toText().split(u'\n', Qt::SkipEmptyParts);
    QStringList lines;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (m_list->selectionModel()->isRowSelected(row, {}))
            lines.append(all.value(row));
    }
    QGuiApplication::clipboard()->setText((lines.isEmpty() ? all : lines).join(u'\n') + u'\n');
}

void MessagesView::open(const QModelIndex &index)
{
    const QString path = index.data(MessageModel::PathRole).toString();
    if (!path.isEmpty())
        Q_EMIT openRequested(path, index.data(MessageModel::LineRole).toInt());
}

} // namespace Workbench
