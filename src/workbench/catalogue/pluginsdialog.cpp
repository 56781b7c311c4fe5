#include "pluginsdialog.h"

#include "ipcatalogue.h"
#include "widgets/symbolicon.h"

#include <ipcore/screenfit.h>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

namespace Workbench
{

PluginsDialog::PluginsDialog(const IpCatalogue &catalogue, const QStringList &folders,
                             QWidget *parent)
    : QDialog(parent)
    , m_folders(new QListWidget)
{
    setWindowTitle(tr("Plug-ins"));

    auto *list = new QTreeWidget;
    list->setObjectName(QStringLiteral("pluginList"));
    list->setAccessibleName(tr("Plug-ins"));
    list->setHeaderLabels({tr("Plug-in"), tr("State")});
    list->setRootIsDecorated(false);
    list->setAlternatingRowColors(true);
    list->setWordWrap(true);
    const auto add = [list](const QString &library, const QString &state, const QString &icon) {
        auto *item = new QTreeWidgetItem(
            list, {library.isEmpty() ? tr("(no name)") : QFileInfo(library).fileName(), state});
        item->setIcon(0, symbolIcon(icon));
        item->setToolTip(0, QDir::toNativeSeparators(library));
        item->setToolTip(1, state);
    };
    for (const IpEntry &entry : catalogue.entries())
        add(entry.library, tr("Offers %1 %2").arg(entry.name, entry.version), QStringLiteral("ip"));
    for (const IpCatalogue::Failure &failure : catalogue.failures())
        add(failure.library, failure.reason, QStringLiteral("error"));
    list->resizeColumnToContents(0);
    auto *details = new QLabel(tr("Select a plug-in to read all about it."));
    details->setObjectName(QStringLiteral("pluginDetails"));
    details->setTextFormat(Qt::PlainText);
    details->setWordWrap(true);
    details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(list, &QTreeWidget::currentItemChanged, details,
            [details](const QTreeWidgetItem *item) {
                if (item)
                    details->setText(item->toolTip(0) + u'\n' + item->toolTip(1));
            });
    // What is wrong is said first.
    if (!catalogue.failures().isEmpty())
        list->setCurrentItem(list->topLevelItem(catalogue.entries().size()));

    auto *label = new QLabel(tr("&Folders that are searched for plug-ins too (one that is removed "
                                "counts until the next start):"));
    label->setWordWrap(true);
    label->setBuddy(m_folders);
    m_folders->setObjectName(QStringLiteral("folderList"));
    m_folders->setAccessibleName(tr("Plug-in folders"));
    m_folders->addItems(folders);
    auto *addButton = new QPushButton(tr("&Add…"));
    auto *removeButton = new QPushButton(tr("&Remove"));
    removeButton->setEnabled(false);
    connect(addButton, &QPushButton::clicked, this, [this] {
        const QString folder = QFileDialog::getExistingDirectory(this, tr("Plug-in Folder"));
        if (!folder.isEmpty() && !this->folders().contains(folder))
            m_folders->addItem(folder);
    });
    connect(removeButton, &QPushButton::clicked, this,
            [this] { delete m_folders->takeItem(m_folders->currentRow()); });
    connect(m_folders, &QListWidget::currentRowChanged, removeButton,
            [removeButton](int row) { removeButton->setEnabled(row >= 0); });

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    if (!catalogue.failures().isEmpty()) {
        auto *again = buttons->addButton(tr("&Try Again"), QDialogButtonBox::ActionRole);
        again->setObjectName(QStringLiteral("tryAgainButton"));
        again->setToolTip(tr("Loads the plug-ins that cannot be used once more"));
        connect(again, &QPushButton::clicked, this, [this] {
            accept();
            Q_EMIT tryAgainRequested();
        });
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QGridLayout(this);
    layout->addWidget(list, 0, 0, 1, 2);
    layout->addWidget(details, 1, 0, 1, 2);
    layout->addWidget(label, 2, 0, 1, 2);
    layout->addWidget(m_folders, 3, 0, 3, 1);
    layout->addWidget(addButton, 3, 1);
    layout->addWidget(removeButton, 4, 1);
    layout->addWidget(buttons, 6, 0, 1, 2);
    layout->setRowStretch(0, 3);
    layout->setRowStretch(5, 1);
    const QFontMetrics metrics = fontMetrics();
    resize(QSize(metrics.averageCharWidth() * 90, metrics.height() * 30)
               .boundedTo(IPCore::roomOnScreen(this)));
}

QStringList PluginsDialog::folders() const
{
    QStringList result;
    for (int i = 0; i < m_folders->count(); ++i)
        result.append(m_folders->item(i)->text());
    return result;
}

} // namespace Workbench
