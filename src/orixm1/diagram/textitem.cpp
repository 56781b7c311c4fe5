#include "textitem.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>

namespace TARVOORIXM1
{

namespace
{

constexpr qreal textMargin = 4;

}

TextItem::TextItem(const QString &text, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_text(text)
{
}

void TextItem::setFont(const QFont &font)
{
    prepareGeometryChange();
    m_font = font;
    const QFontMetricsF metrics(font);
    m_bounds = QRectF(0, 0, metrics.horizontalAdvance(text()), metrics.height())
                   .adjusted(0, 0, 2 * textMargin, 2 * textMargin);
}

void TextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/,
                     QWidget * /*widget*/)
{
    static const QPen ink(Qt::black);
    painter->setPen(ink);
    m_text.drawLine(painter, m_font, {textMargin, textMargin});
}

} // namespace TARVOORIXM1
