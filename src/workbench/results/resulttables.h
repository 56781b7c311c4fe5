#pragma once

#include <synthesis/runreport.h>
#include <utils/pinfigure.h>

#include <QAbstractTableModel>
#include <QMap>

namespace Workbench
{

// What the netlist takes of the device's resources.
class ResourceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Resource, Used, Available, Percent, Change, ColumnCount };

    explicit ResourceModel(QObject *parent = nullptr);
    // `before`: what each was used in the run before; without one there is no column for changes.
    void setResources(const QList<Synthesis::ResourceUse> &resources,
                      const QMap<QString, int> &before = {});

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVariant changeData(const Synthesis::ResourceUse &use, int role) const;

    QList<Synthesis::ResourceUse> m_resources;
    QMap<QString, int> m_before;
};

// The cells of the netlist with their counts; black boxes say that they are.
class CellModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Cell, Count, ColumnCount };

    explicit CellModel(QObject *parent = nullptr);
    void setCells(const QList<Synthesis::CellCount> &cells);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<Synthesis::CellCount> m_cells;
};

// The ports as a pin figure shows them: inputs on the left, all others on the right.
QList<Utils::PinFigure> pinsOf(const QList<Synthesis::ReportPort> &ports);

} // namespace Workbench
