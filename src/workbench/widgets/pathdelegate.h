#pragma once

#include <QStyledItemDelegate>

namespace Workbench
{

// For a column of paths: one that is too long loses its folders, not its name.
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideLeft;
    }
};

} // namespace Workbench
