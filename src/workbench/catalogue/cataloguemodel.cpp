#include "cataloguemodel.h"

#include "ipcatalogue.h"
#include "widgets/colours.h"
#include "widgets/symbolicon.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <vector>

namespace Workbench
{

struct CatalogueModel::Node {
    QString category; // of a category
    int ip = -1;      // of an IP
    Node *parent = nullptr;
    int row = 0;
    bool supported = true;
    QString reason;
    std::vector<std::unique_ptr<Node>> children;

    Node *add()
    {
        children.push_back(std::make_unique<Node>());
        Node *child = children.back().get();
        child->parent = this;
        child->row = int(children.size()) - 1;
        return child;
    }

    Node *childCategory(const QString &name)
    {
        const auto found = std::find_if(children.begin(), children.end(), [&](const auto &child) {
            return child->ip < 0 && child->category == name;
        });
        if (found != children.end())
            return found->get();
        Node *child = add();
        child->category = name;
        return child;
    }

    const Node *find(int wanted) const
    {
        if (ip == wanted)
            return this;
        for (const auto &child : children) {
            if (const Node *found = child->find(wanted))
                return found;
        }
        return nullptr;
    }
};

CatalogueModel::CatalogueModel(const IpCatalogue &catalogue, QObject *parent)
    : QAbstractItemModel(parent)
    , m_catalogue(catalogue)
    , m_root(std::make_unique<Node>())
{
    reload();
}

CatalogueModel::~CatalogueModel() = default;

void CatalogueModel::reload()
{
    beginResetModel();
    m_root = std::make_unique<Node>();
    for (int i = 0; i < m_catalogue.entries().size(); ++i) {
        Node *node = m_root.get();
        for (const QString &category : m_catalogue.entries().at(i).category)
            node = node->childCategory(category);
        Node *leaf = node->add();
        leaf->ip = i;
        leaf->supported = m_device.isNull() || m_catalogue.isSupported(i, m_device, &leaf->reason);
    }
    endResetModel();
}

void CatalogueModel::setDevice(const DEV::DeviceArg &device)
{
    if (device == m_device)
        return;
    m_device = device;
    reload();
}

QModelIndex CatalogueModel::indexOf(int ip) const
{
    const Node *node = ip < 0 ? nullptr : m_root->find(ip);
    return node ? indexOfNode(node) : QModelIndex();
}

const CatalogueModel::Node *CatalogueModel::nodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<const Node *>(index.internalPointer()) : m_root.get();
}

QModelIndex CatalogueModel::indexOfNode(const Node *node) const
{
    return node == m_root.get() ? QModelIndex()
                                : createIndex(node->row, 0, const_cast<Node *>(node));
}

QModelIndex CatalogueModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeOf(parent)->children.at(size_t(row)).get());
}

QModelIndex CatalogueModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOfNode(nodeOf(index)->parent) : QModelIndex();
}

int CatalogueModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : int(nodeOf(parent)->children.size());
}

int CatalogueModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant CatalogueModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Node *node = nodeOf(index);
    if (role == IpRole)
        return node->ip;
    if (node->ip < 0) {
        if (role == Qt::DisplayRole && index.column() == Name)
            return node->category;
        if (role == Qt::DecorationRole && index.column() == Name)
            return symbolIcon(QStringLiteral("folder"));
        return {};
    }
    const IpEntry &entry = m_catalogue.entries().at(node->ip);
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == Name      ? entry.name
               : index.column() == Version ? entry.version
                                           : entry.summary;
    case Qt::ToolTipRole:
        return node->supported ? entry.summary : QString(entry.summary + u'\n' + node->reason);
    case Qt::DecorationRole:
        return index.column() == Name
                   ? symbolIcon(node->supported ? QStringLiteral("ip") : QStringLiteral("warning"))
                   : QVariant();
    case Qt::AccessibleDescriptionRole:
        return node->reason;
    case Qt::ForegroundRole:
        if (!node->supported)
            return Colours::quietOnBase(QGuiApplication::palette());
        return {};
    case SupportedRole:
        return node->supported;
    case ReasonRole:
        return node->reason;
    default:
        return {};
    }
}

QVariant CatalogueModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Name ? tr("Name") : section == Version ? tr("Version") : tr("Summary");
}

} // namespace Workbench
