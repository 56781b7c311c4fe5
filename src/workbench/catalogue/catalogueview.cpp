#include "catalogueview.h"

#include "cataloguemodel.h"
#include "ipcatalogue.h"
#include "widgets/assistance.h"
#include "widgets/contextkeys.h"
#include "widgets/focusforward.h"
#include "widgets/scrollingtext.h"
#include "widgets/wrappedlabel.h"

#include <QAction>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace Workbench
{

CatalogueView::CatalogueView(const IpCatalogue &catalogue, QWidget *parent)
    : QWidget(parent)
    , m_catalogue(catalogue)
    , m_model(new CatalogueModel(catalogue, this))
    , m_filter(new QSortFilterProxyModel(this))
    , m_text(new QLineEdit)
    , m_tree(new QTreeView)
    , m_details(new WrappedLabel)
    , m_create(new QPushButton(tr("&Create IP…")))
    , m_createAction(new QAction(tr("Create IP…"), this))
    , m_help(new QAction(tr("Help on This IP"), this))
{
    m_filter->setSourceModel(m_model);
    m_filter->setRecursiveFilteringEnabled(true);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter->setFilterKeyColumn(-1);

    m_text->setObjectName(QStringLiteral("catalogueFilterEdit"));
    m_text->setPlaceholderText(tr("Filter"));
    m_text->setAccessibleName(tr("Filter of the IP catalogue"));
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString &text) {
        // Loading the button's picture takes a while: not before there is something to clear.
        addClearButton(m_text);
        m_filter->setFilterFixedString(text);
        m_tree->expandAll();
    });

    m_tree->setObjectName(QStringLiteral("catalogueTree"));
    m_tree->setAccessibleName(tr("IP catalogue"));
    m_tree->setModel(m_filter);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setExpandsOnDoubleClick(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->expandAll();
    // The summary has its place below the tree.
    m_tree->hideColumn(CatalogueModel::Summary);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(CatalogueModel::Name, QHeaderView::Stretch);
    m_tree->setIndentation(qMin(m_tree->indentation(), fontMetrics().height() * 3 / 4));
    m_tree->header()->setResizeContentsPrecision(-1); // rows: all, seen or not
    m_tree->viewport()->installEventFilter(this);
    m_tree->header()->setSectionResizeMode(CatalogueModel::Version, QHeaderView::ResizeToContents);
    connect(m_tree, &QTreeView::activated, this, [this](const QModelIndex &index) {
        const int ip = index.data(CatalogueModel::IpRole).toInt();
        if (ip >= 0)
            Q_EMIT activated(ip);
    });
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CatalogueView::showDetails);

    m_details->setObjectName(QStringLiteral("catalogueDetails"));
    m_details->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    m_create->setObjectName(QStringLiteral("createIpButton"));
    m_create->setAutoDefault(false);
    connect(m_create, &QPushButton::clicked, this, [this] {
        if (currentIp() >= 0)
            Q_EMIT activated(currentIp());
    });

    connect(m_help, &QAction::triggered, this, [this] {
        if (currentIp() >= 0)
            Q_EMIT helpRequested(currentIp());
    });
    connect(m_createAction, &QAction::triggered, m_create, &QPushButton::click);
    m_tree->addActions({m_createAction, m_help});
    openContextMenuByKeys(m_tree);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_tree, 1);
    layout->addWidget(new ScrollingText(m_details, tr("About the selected IP")));
    layout->addWidget(m_create);
    forwardFocus(this, m_tree);
    reload();
}

void CatalogueView::reload()
{
    const int current = currentIp();
    m_model->reload();
    m_tree->expandAll();
    setCurrentIp(current >= 0 ? current : 0);
    fitColumns();
    showDetails();
}

void CatalogueView::setDevice(const DEV::DeviceArg &device)
{
    const int current = currentIp();
    m_model->setDevice(device);
    m_tree->expandAll();
    setCurrentIp(current);
    showDetails();
}

// The version gives way to the names.
bool CatalogueView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tree->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    return QWidget::eventFilter(watched, event);
}

void CatalogueView::fitColumns()
{
    const QAbstractItemView *view = m_tree; // whose hints are public
    const int version = m_tree->header()->sectionSizeHint(CatalogueModel::Version);
    const int name = view->sizeHintForColumn(CatalogueModel::Name);
    m_tree->setColumnHidden(CatalogueModel::Version, name + version > m_tree->viewport()->width());
}

int CatalogueView::currentIp() const
{
    const QModelIndex index = m_tree->currentIndex();
    return index.isValid() ? index.data(CatalogueModel::IpRole).toInt() : -1;
}

void CatalogueView::setCurrentIp(int index)
{
    m_tree->setCurrentIndex(m_filter->mapFromSource(m_model->indexOf(index)));
}

void CatalogueView::showDetails()
{
    const QModelIndex index = m_tree->currentIndex();
    const int ip = currentIp();
    Q_EMIT selectionChanged();
    m_help->setEnabled(ip >= 0 && !m_catalogue.entries().at(ip).help.isEmpty());
    if (ip < 0) {
        m_details->showSelectable(m_catalogue.entries().isEmpty()
                                      ? tr("No plug-in offers an IP. Tools > Plug-ins says why.")
                                      : tr("Select an IP to see what it is."));
        m_create->setEnabled(false);
        m_createAction->setEnabled(false);
        return;
    }
    const QString reason = index.data(CatalogueModel::ReasonRole).toString();
    const QString summary = m_catalogue.entries().at(ip).summary;
    m_details->showSelectable(reason.isEmpty() ? summary
                                               : QString(summary + QLatin1String("\n\n") + reason));
    m_create->setEnabled(index.data(CatalogueModel::SupportedRole).toBool());
    m_createAction->setEnabled(m_create->isEnabled());
}

} // namespace Workbench
