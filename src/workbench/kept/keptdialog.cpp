#include "keptdialog.h"

#include "keptconfigurations.h"
#include "widgets/pathdelegate.h"
#include "widgets/symbolicon.h"

#include <ipcore/screenfit.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Workbench
{

namespace
{

enum Column { File, What, Time, Device, Changes };

} // namespace

KeptDialog::KeptDialog(KeptConfigurations *kept, QWidget *parent)
    : QDialog(parent)
    , m_kept(kept)
    , m_list(new QTreeWidget)
{
    setWindowTitle(tr("Bring Back a Configuration"));
    auto *intro = new QLabel(tr("Before a configuration is replaced, a copy is kept; and so is "
                                "what was in a dialog that "
                                "was left without OK. The copies are whole files in \"%1\".")
                                 .arg(QDir::toNativeSeparators(kept->folder())));
    intro->setTextFormat(Qt::PlainText);
    intro->setWordWrap(true);
    intro->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    m_list->setObjectName(QStringLiteral("keptList"));
    m_list->setAccessibleName(tr("Kept configurations"));
    m_list->setHeaderLabels(
        {tr("Configuration"), tr("What"), tr("When"), tr("Device"), tr("Changes")});
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setUniformRowHeights(true);
    m_list->setItemDelegateForColumn(0, new PathDelegate(this));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &KeptDialog::showState);
    connect(m_list, &QTreeWidget::itemActivated, this, [this] { accept(); });

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_bringBack = buttons->addButton(tr("&Bring Back…"), QDialogButtonBox::AcceptRole);
    m_bringBack->setObjectName(QStringLiteral("bringBackButton"));
    m_delete = buttons->addButton(tr("&Delete"), QDialogButtonBox::DestructiveRole);
    m_delete->setObjectName(QStringLiteral("deleteButton"));
    m_delete->setAutoDefault(false);
    connect(m_delete, &QPushButton::clicked, this, &KeptDialog::deleteSelected);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    m_bringBack->setDefault(true);
    m_list->setFocus();
    const QFontMetrics metrics = fontMetrics();
    resize(QSize(metrics.averageCharWidth() * 120, metrics.height() * 24)
               .boundedTo(IPCore::roomOnScreen(this)));
    fill();
}

void KeptDialog::fill()
{
    m_list->clear();
    const QList<KeptConfigurations::Item> items = m_kept->items();
    for (const KeptConfigurations::Item &item : items) {
        const QString path = QDir::toNativeSeparators(item.origin);
        auto *row = new QTreeWidgetItem(
            m_list,
            {path,
             item.kind == KeptConfigurations::Dropped ? tr("left without OK") : tr("replaced"),
             QLocale().toString(item.time, QLocale::ShortFormat), item.device, item.stepWords()});
        row->setIcon(File, symbolIcon(QStringLiteral("ip-file")));
        row->setToolTip(File, path);
        row->setToolTip(Changes, item.steps.join(QLatin1String(", ")));
        row->setData(File, Qt::UserRole, item.id);
    }
    for (const int column : {What, Time, Device, Changes})
        m_list->resizeColumnToContents(column);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(File, QHeaderView::Stretch);
    if (m_list->topLevelItemCount() > 0)
        m_list->setCurrentItem(m_list->topLevelItem(0));
    showState();
}

QString KeptDialog::chosen() const
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    return selected.size() == 1 ? selected.first()->data(File, Qt::UserRole).toString() : QString();
}

void KeptDialog::deleteSelected()
{
    const QList<QTreeWidgetItem *> selected = m_list->selectedItems();
    for (const QTreeWidgetItem *item : selected)
        m_kept->forget(item->data(File, Qt::UserRole).toString());
    fill();
}

void KeptDialog::showState()
{
    m_bringBack->setEnabled(!chosen().isEmpty());
    m_delete->setEnabled(!m_list->selectedItems().isEmpty());
}

} // namespace Workbench
