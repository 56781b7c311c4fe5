#include "devicefilter.h"

#include <QRegularExpression>

namespace Workbench
{

DeviceFilter::DeviceFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

void DeviceFilter::setText(const QString &text)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    m_words = text.split(blanks, Qt::SkipEmptyParts);
    invalidateFilter();
}

void DeviceFilter::setValue(DeviceModel::Column column, const QString &value)
{
    m_values[column] = value;
    invalidateFilter();
}

bool DeviceFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    QString all;
    for (int column = 0; column < DeviceModel::ColumnCount; ++column) {
        const QString value = sourceModel()->index(row, column, parent).data().toString();
        if (!m_values[column].isEmpty() && m_values[column] != value)
            return false;
        all += value + u'\n';
    }
    for (const QString &word : m_words) {
        if (!all.contains(word, Qt::CaseInsensitive))
            return false;
    }
    return true;
}

} // namespace Workbench
