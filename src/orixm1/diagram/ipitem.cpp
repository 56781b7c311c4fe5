#include "ipitem.h"

#include "hairline.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace TARVOORIXM1
{

IPItem::IPItem(int width, int height, bool clickable, bool rounded, const QColor &outlineColor,
               const QColor &fillColor, const QString &text, QGraphicsItem *parent)
    : QGraphicsObject(parent)
    , m_width(width)
    , m_height(height)
    , m_clickable(clickable)
    , m_rounded(rounded)
    , m_outline(outlineColor)
    , m_fill(fillColor)
    , m_label(text)
{
    setFlag(ItemIsSelectable);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

QRectF IPItem::boundingRect() const
{
    return {0, 0, qreal(m_width), qreal(m_height)};
}

QRectF IPItem::textRect() const
{
    return boundingRect().adjusted(1, 1, -1, -1);
}

void IPItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget * /*widget*/)
{
    // Pens and brushes outlive the call: painting while panning and zooming makes none.
    static const QPen blackPen(Qt::black);
    static const QBrush offBrush(Qt::white);
    static const QBrush hoverBrush(Qt::cyan);
    static const QBrush onBrush(Qt::darkGreen);
    const QPen *outline = &m_outline;
    const QBrush *fill = &m_fill;
    if (m_clickable) {
        outline = &blackPen;
        if (m_active)
            fill = &onBrush;
        else
            fill = option->state & QStyle::State_MouseOver ? &hoverBrush : &offBrush;
    }

    constexpr qreal radius = 10.0;
    const QPen penBefore = painter->pen();
    const QBrush brushBefore = painter->brush();
    painter->setPen(*outline);
    painter->setBrush(*fill);
    if (m_rounded) {
        painter->drawRoundedRect(boundingRect(), radius, radius);
    } else {
        const bool smooth = painter->testRenderHint(QPainter::Antialiasing);
        painter->setRenderHint(QPainter::Antialiasing, smooth && !isHairline(painter));
        painter->drawRect(boundingRect());
        painter->setRenderHint(QPainter::Antialiasing, smooth);
    }
    if (!m_label.text().isEmpty()) {
        painter->setPen(blackPen);
        m_label.drawCentred(painter, textRect());
    }
    // Not save() and restore(), which allocate.
    painter->setPen(penBefore);
    painter->setBrush(brushBefore);
}

void IPItem::setClickable(bool clickable)
{
    if (clickable == m_clickable)
        return;
    m_clickable = clickable;
    update();
}

void IPItem::onConfigured(bool on)
{
    if (on == m_active)
        return;
    m_active = on;
    update();
}

void IPItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    Q_EMIT doubleClicked();
    QGraphicsObject::mouseDoubleClickEvent(event);
}

} // namespace TARVOORIXM1
