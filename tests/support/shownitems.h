#pragma once

#include <QAbstractItemView>
#include <QMap>
#include <QProxyStyle>
#include <QStyleOptionViewItem>

namespace TestSupport
{

// Where each column of a view shortens a text that does not fit, as the view draws its items.
inline QMap<int, Qt::TextElideMode> elideModesOf(QAbstractItemView *view)
{
    class Listener : public QProxyStyle
    {
    public:
        void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                         const QWidget *widget) const override
        {
            if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
                item && element == CE_ItemViewItem)
                modes[item->index.column()] = item->textElideMode;
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        mutable QMap<int, Qt::TextElideMode> modes;
    };
    Listener listener;
    QStyle *before = view->style();
    view->setStyle(&listener);
    view->grab();
    view->setStyle(before);
    return listener.modes;
}

} // namespace TestSupport
