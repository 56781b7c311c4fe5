#include "devicepicker.h"

#include "widgets/assistance.h"
#include "widgets/focusforward.h"
#include "widgets/shortcuts.h"
#include <core/idecore.h>
#include <dev/devicedb.h>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <numeric>

namespace Workbench
{

DevicePicker::DevicePicker(QWidget *parent)
    : QWidget(parent)
    , m_model(new DeviceModel(Core::IdeCore::deviceDataBase()->devices(), this))
    , m_filter(new DeviceFilter(this))
    , m_text(new QLineEdit)
    , m_table(new QTableView)
    , m_count(new QLabel)
{
    m_filter->setSourceModel(m_model);

    m_text->setObjectName(QStringLiteral("deviceFilterEdit"));
    m_text->setPlaceholderText(tr("Filter, for example: 2kr qfn88p c8"));
    addClearButton(m_text);
    m_text->setAccessibleName(tr("Filter of the devices"));
    m_text->installEventFilter(this);
    connect(m_text, &QLineEdit::textChanged, m_filter, &DeviceFilter::setText);

    auto *choices = new QHBoxLayout;
    for (const DeviceModel::Column column :
         {DeviceModel::Series, DeviceModel::Device, DeviceModel::Package, DeviceModel::Speed}) {
        const QString title = m_model->headerData(column, Qt::Horizontal).toString();
        auto *label = new QLabel(title + u':');
        auto *combo = new QComboBox;
        combo->setObjectName(QStringLiteral("column%1Combo").arg(int(column)));
        combo->setAccessibleName(title);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(3); // more where there is room
        combo->addItem(tr("all"));
        QStringList values = m_model->valuesOf(column);
        values.sort();
        combo->addItems(values);
        combo->view()->setMinimumWidth(combo->view()->sizeHintForColumn(0) +
                                       m_table->verticalScrollBar()->sizeHint().width());
        label->setBuddy(combo);
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this, combo, column](int index) {
                    m_filter->setValue(column, index > 0 ? combo->itemText(index) : QString());
                });
        choices->addWidget(label);
        choices->addWidget(combo, 1);
        m_combos.append(combo);
    }

    m_table->setObjectName(QStringLiteral("deviceTable"));
    m_table->setAccessibleName(tr("Devices"));
    m_table->setModel(m_filter);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(-1, Qt::AscendingOrder); // the database's order until a header is clicked
    m_table->resizeColumnsToContents();
    for (int column = 0; column < DeviceModel::ColumnCount; ++column)
        m_needed.append(m_table->columnWidth(column));
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->viewport()->installEventFilter(this);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DevicePicker::deviceChanged);
    connect(m_table, &QTableView::activated, this, &DevicePicker::activated);

    auto *copy = new QPushButton(tr("Copy &Part Number"));
    copy->setObjectName(QStringLiteral("copyPartNumberButton"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &DevicePicker::copyPartNumber);
    connect(this, &DevicePicker::deviceChanged, copy,
            [this, copy] { copy->setEnabled(!device().isNull()); });
    copy->setEnabled(false);
    auto *copyAction = new QAction(tr("Copy Part Number"), m_table);
    copyAction->setShortcuts(keysOf(QKeySequence::Copy));
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &DevicePicker::copyPartNumber);
    m_table->addAction(copyAction);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 0, 0, 1, 2);
    layout->addLayout(choices, 1, 0, 1, 2);
    layout->addWidget(m_table, 2, 0, 1, 2);
    layout->addWidget(m_count, 3, 0);
    layout->addWidget(copy, 3, 1, Qt::AlignRight);
    layout->setRowStretch(2, 1);
    forwardFocus(this, m_text);

    connect(m_filter, &DeviceFilter::rowsInserted, this, &DevicePicker::showCount);
    connect(m_filter, &DeviceFilter::rowsRemoved, this, &DevicePicker::showCount);
    connect(m_filter, &DeviceFilter::modelReset, this, &DevicePicker::showCount);
    showCount();
}

DEV::DeviceArg DevicePicker::device() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? DEV::DeviceArg()
                          : m_model->deviceAt(m_filter->mapToSource(rows.first()).row());
}

void DevicePicker::setDevice(const QString &id)
{
    const int row = m_model->rowOf(id);
    if (row < 0)
        return;
    QModelIndex index = m_filter->mapFromSource(m_model->index(row, 0));
    if (!index.isValid()) {
        m_text->clear();
        for (QComboBox *combo : qAsConst(m_combos))
            combo->setCurrentIndex(0);
        index = m_filter->mapFromSource(m_model->index(row, 0));
    }
    m_table->setCurrentIndex(index);
    m_table->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void DevicePicker::copyPartNumber()
{
    if (!device().isNull())
        QGuiApplication::clipboard()->setText(device().partNumber());
}

QSize DevicePicker::sizeHint() const
{
    const int columns = std::accumulate(m_needed.begin(), m_needed.end(), 0) +
                        (DeviceModel::ColumnCount - 1) * gap();
    const int table =
        columns + 2 * m_table->frameWidth() + m_table->verticalScrollBar()->sizeHint().width();
    return QWidget::sizeHint().expandedTo({table, 0});
}

int DevicePicker::gap() const
{
    return fontMetrics().averageCharWidth() * 2;
}

// The part number, which people copy, is whole. What it gives way to is in other columns too: the
// version ends the name of the device, the series begins it.
void DevicePicker::fitColumns()
{
    const int room = m_table->viewport()->width();
    int needed = std::accumulate(m_needed.begin(), m_needed.end(), 0);
    for (const DeviceModel::Column column : {DeviceModel::Version, DeviceModel::Series}) {
        m_table->setColumnHidden(column, needed > room);
        if (needed > room)
            needed -= m_needed.at(column);
    }
    const int more = qBound(0, (room - needed) / (DeviceModel::ColumnCount - 1), gap());
    for (int column = 0; column < DeviceModel::PartNumber; ++column)
        m_table->setColumnWidth(column, m_needed.at(column) + more);
}

// The arrow keys walk through the table while the filter is typed, and Enter takes the device.
bool DevicePicker::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_table->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    if (object != m_text || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(object, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        if (m_table->selectionModel()->selectedRows().isEmpty() && m_filter->rowCount() > 0) {
            m_table->selectRow(0);
            return true;
        }
        QCoreApplication::sendEvent(m_table, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (device().isNull() && m_filter->rowCount() == 1)
            m_table->selectRow(0);
        if (!device().isNull())
            Q_EMIT activated();
        return true;
    default:
        return QWidget::eventFilter(object, event);
    }
}

void DevicePicker::showCount()
{
    const int shown = m_filter->rowCount();
    const int all = m_model->rowCount();
    if (shown == 0)
        m_count->setText(tr("No device matches the filter."));
    else
        m_count->setText(tr("%1 of %2 devices").arg(shown).arg(all));
}

} // namespace Workbench
