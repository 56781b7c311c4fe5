#include "lineitem.h"

#include "hairline.h"

#include <QPainter>
#include <QPainterPathStroker>

namespace TARVOORIXM1
{

namespace
{

constexpr qreal lineWidth = 1;

// The two outer points of a chevron, relative to its tip.
struct HeadRow {
    QPoint first;
    QPoint last;
};

constexpr HeadRow heads[] = {
    {{8, -6}, {8, 6}},   // HeadLeft
    {{-8, -6}, {-8, 6}}, // HeadRight
    {{-6, 8}, {6, 8}},   // HeadUp
    {{-6, -8}, {6, -8}}, // HeadDown
};

QPainterPath headPath(int style, const QPoint &tip)
{
    QPainterPath path;
    if (style < HeadLeft || style > HeadDown)
        return path;
    path.moveTo(tip + heads[style].first);
    path.lineTo(tip);
    path.lineTo(tip + heads[style].last);
    return path;
}

} // namespace

LineItem::LineItem(const QList<QPoint> &points, bool dashed, const QColor &color, int startStyle,
                   int endStyle, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_points(points)
    , m_startStyle(startStyle)
    , m_endStyle(endStyle)
    , m_dashed(dashed)
    , m_headPen(color)
{
    if (points.isEmpty())
        return;
    m_linePath.moveTo(points.first());
    for (int i = 1; i < points.size(); ++i)
        m_linePath.lineTo(points.at(i));
    m_startHead = headPath(startStyle, points.first());
    m_endHead = headPath(endStyle, points.last());

    QPainterPath all = m_linePath;
    all.addPath(m_startHead);
    all.addPath(m_endHead);
    QPainterPathStroker stroker;
    stroker.setWidth(lineWidth);
    m_shape = stroker.createStroke(all);
    m_bounds = m_shape.boundingRect();
}

void LineItem::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/,
                     QWidget * /*widget*/)
{
    if (m_points.isEmpty())
        return;
    const QPen before = painter->pen();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(m_headPen);
    if (m_startStyle != NoHead)
        painter->drawPath(m_startHead);
    if (m_endStyle != NoHead)
        painter->drawPath(m_endHead);

    // Recoloured once: while panning and zooming, painters come with one and the same pen.
    if (!m_painterPen || before != *m_painterPen) {
        m_painterPen = before;
        m_linePen = before;
        m_linePen.setColor(m_headPen.color());
        if (m_dashed)
            m_linePen.setStyle(Qt::DashLine);
    }
    painter->setPen(m_linePen);
    const bool smooth = painter->testRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::Antialiasing, smooth && !isHairline(painter));
    painter->drawPath(m_linePath);
    painter->setRenderHint(QPainter::Antialiasing, smooth);
    painter->setPen(before);
}

} // namespace TARVOORIXM1
