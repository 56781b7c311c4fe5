#pragma once

#include <dev/devicearg.h>

#include <QAbstractTableModel>
#include <QList>

namespace Workbench
{

// Device records as a table.
class DeviceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Device, Series, Package, Speed, Version, PartNumber, ColumnCount };

    explicit DeviceModel(const QList<DEV::DeviceArg> &devices, QObject *parent = nullptr);

    // Null for an index out of range.
    DEV::DeviceArg deviceAt(int row) const;
    // -1 if there is none.
    int rowOf(const QString &id) const;
    // The different values of a column, in the table's order.
    QStringList valuesOf(Column column) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<DEV::DeviceArg> m_devices;
};

} // namespace Workbench
