#pragma once

#include "devicemodel.h"

#include <QSortFilterProxyModel>

namespace Workbench
{

// The devices that match what was typed and chosen: every word is part of some column, whatever its
// case, and every column with a chosen value has exactly that value.
class DeviceFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit DeviceFilter(QObject *parent = nullptr);

    void setText(const QString &text);
    // An empty value matches everything.
    void setValue(DeviceModel::Column column, const QString &value);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
    QString m_values[DeviceModel::ColumnCount];
};

} // namespace Workbench
