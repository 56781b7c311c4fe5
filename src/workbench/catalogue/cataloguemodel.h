#pragma once

#include <dev/devicearg.h>

#include <QAbstractItemModel>

#include <memory>

namespace Workbench
{

class IpCatalogue;

// The IPs of a catalogue as a tree of categories, with name, version and summary. Those that do not
// support the device are grey and say why in their tool tip.
class CatalogueModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Name, Version, Summary, ColumnCount };
    enum Role {
        IpRole = Qt::UserRole, // index in the catalogue; -1 for a category
        SupportedRole,
        ReasonRole, // why it is not supported
    };

    // The catalogue must outlive the model; reload() after it has changed.
    explicit CatalogueModel(const IpCatalogue &catalogue, QObject *parent = nullptr);
    ~CatalogueModel() override;

    void reload();
    // Null: nothing is greyed.
    void setDevice(const DEV::DeviceArg &device);
    QModelIndex indexOf(int ip) const;

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Node;

    const Node *nodeOf(const QModelIndex &index) const;
    QModelIndex indexOfNode(const Node *node) const;

    const IpCatalogue &m_catalogue;
    DEV::DeviceArg m_device;
    std::unique_ptr<Node> m_root;
};

} // namespace Workbench
