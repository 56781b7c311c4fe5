#include "resulttables.h"

#include "widgets/symbolicon.h"

#include <QLocale>

namespace Workbench
{

namespace
{

int alignment(bool number)
{
    return int(number ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace

ResourceModel::ResourceModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void ResourceModel::setResources(const QList<Synthesis::ResourceUse> &resources,
                                 const QMap<QString, int> &before)
{
    beginResetModel();
    m_before = before;
    m_resources = resources;
    endResetModel();
}

int ResourceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_resources.size();
}

int ResourceModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_before.isEmpty() ? int(Change) : int(ColumnCount);
}

// The sign is seen beside the number, not by a colour.
QVariant ResourceModel::changeData(const Synthesis::ResourceUse &use, int role) const
{
    const auto before = m_before.constFind(use.resource);
    const int change = before == m_before.constEnd() ? 0 : use.used - *before;
    const QString number = QLocale().toString(qAbs(change));
    switch (role) {
    case Qt::DisplayRole:
        if (before == m_before.constEnd())
            return tr("not known");
        if (change == 0)
            return QStringLiteral("=");
        return QString(QChar(change > 0 ? u'+' : u'\u2212') + number);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole:
        if (before == m_before.constEnd())
            return tr("The run before did not tell this.");
        return change == 0  ? tr("As many as in the run before")
               : change > 0 ? tr("%1 more than in the run before").arg(number)
                            : tr("%1 fewer than in the run before").arg(number);
    default:
        return {};
    }
}

QVariant ResourceModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Synthesis::ResourceUse &use = m_resources.at(index.row());
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column() != Resource);
    if (index.column() == Change)
        return changeData(use, role);
    if (role == Qt::DecorationRole && index.column() == Resource && use.exceeds())
        return symbolIcon(QStringLiteral("warning"));
    if (role == Qt::ToolTipRole) {
        if (use.exceeds())
            return tr("The device does not have that many.");
        if (use.available < 0)
            return tr("The device database has no total for this.");
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Resource:
        return use.resource;
    case Used:
        return QLocale().toString(use.used);
    case Available:
        return use.available < 0 ? tr("not known") : QLocale().toString(use.available);
    default:
        return use.available < 0 ? QString() : tr("%1 %").arg(use.percent());
    }
}

QVariant ResourceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section != Resource);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Resource:
        return tr("Resource");
    case Used:
        return tr("Used");
    case Available:
        return tr("In the device");
    case Percent:
        return tr("Share");
    default:
        return tr("Change");
    }
}

CellModel::CellModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void CellModel::setCells(const QList<Synthesis::CellCount> &cells)
{
    beginResetModel();
    m_cells = cells;
    endResetModel();
}

int CellModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_cells.size();
}

int CellModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CellModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Synthesis::CellCount &cell = m_cells.at(index.row());
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column() == Count);
    if (role == Qt::ToolTipRole && cell.isBlackBox)
        return tr("No primitive: its contents are licensed separately and come later.");
    if (role != Qt::DisplayRole)
        return {};
    if (index.column() == Count)
        return QLocale().toString(cell.count);
    return cell.isBlackBox ? tr("%1 (black box)").arg(cell.cell) : cell.cell;
}

QVariant CellModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section == Count);
    if (role != Qt::DisplayRole)
        return {};
    return section == Cell ? tr("Primitive") : tr("Count");
}

QList<Utils::PinFigure> pinsOf(const QList<Synthesis::ReportPort> &ports)
{
    QList<Utils::PinFigure> pins;
    for (const Synthesis::ReportPort &port : ports) {
        const bool input = port.direction == QLatin1String("input");
        const int direction = input ? Utils::PinFigure::Input
                              : port.direction == QLatin1String("output")
                                  ? Utils::PinFigure::Output
                                  : Utils::PinFigure::Bidirectional;
        const QString name = port.isVector ? QStringLiteral("%1[%2:%3]")
                                                 .arg(port.name, QString::number(port.msb),
                                                      QString::number(port.lsb))
                                           : port.name;
        pins.append(Utils::PinFigure(name, direction, port.isVector,
                                     input ? Qt::AlignLeft : Qt::AlignRight));
    }
    return pins;
}

} // namespace Workbench
