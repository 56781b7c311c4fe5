#include "devicemodel.h"

namespace Workbench
{

namespace
{

QString textOf(const DEV::DeviceArg &device, int column)
{
    switch (column) {
    case DeviceModel::Device:
        return device.device();
    case DeviceModel::Series:
        return device.series();
    case DeviceModel::Package:
        return device.package();
    case DeviceModel::Speed:
        return device.speed();
    case DeviceModel::Version:
        return device.deviceNVersion();
    case DeviceModel::PartNumber:
        return device.partNumber();
    default:
        return {};
    }
}

} // namespace

DeviceModel::DeviceModel(const QList<DEV::DeviceArg> &devices, QObject *parent)
    : QAbstractTableModel(parent)
    , m_devices(devices)
{
}

DEV::DeviceArg DeviceModel::deviceAt(int row) const
{
    return m_devices.value(row);
}

int DeviceModel::rowOf(const QString &id) const
{
    for (int row = 0; row < m_devices.size(); ++row) {
        if (m_devices.at(row).id() == id)
            return row;
    }
    return -1;
}

QStringList DeviceModel::valuesOf(Column column) const
{
    QStringList values;
    for (const DEV::DeviceArg &device : m_devices)
        values.append(textOf(device, column));
    values.removeDuplicates();
    return values;
}

int DeviceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_devices.size();
}

int DeviceModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DeviceModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return textOf(m_devices.at(index.row()), index.column());
}

QVariant DeviceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Device:
        return tr("Device");
    case Series:
        return tr("Series");
    case Package:
        return tr("Package");
    case Speed:
        return tr("Speed");
    case Version:
        return tr("Version");
    case PartNumber:
        return tr("Part number");
    default:
        return {};
    }
}

} // namespace Workbench
