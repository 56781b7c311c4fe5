#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QList>
#include <QPainterPath>
#include <QPen>

#include <QPoint>
#include <optional>

namespace TARVOORIXM1
{

// Open chevrons at a line's ends, by the side that their tip points to. Any other style has none.
enum LineHead { HeadLeft = 0, HeadRight = 1, HeadUp = 2, HeadDown = 3, NoHead = 4 };

// A connection or a bus through the given points, in item coordinates.
class LineItem : public QGraphicsItem
{
public:
    LineItem(const QList<QPoint> &points, bool dashed, const QColor &color, int startStyle,
             int endStyle, QGraphicsItem *parent = nullptr);

    enum { Type = UserType + 2 };
    int type() const override { return Type; }

    QRectF boundingRect() const override { return m_bounds; }
    QPainterPath shape() const override { return m_shape; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    QList<QPoint> points() const { return m_points; }
    bool isDashed() const { return m_dashed; }
    QColor color() const { return m_headPen.color(); }
    int startStyle() const { return m_startStyle; }
    int endStyle() const { return m_endStyle; }

private:
    const QList<QPoint> m_points;
    QPainterPath m_linePath;
    QPainterPath m_startHead;
    QPainterPath m_endHead;
    const int m_startStyle;
    const int m_endStyle;
    const bool m_dashed;
    const QPen m_headPen;
    std::optional<QPen> m_painterPen; // the one that m_linePen was made from
    QPen m_linePen;
    QPainterPath m_shape; // the stroke of all paths
    QRectF m_bounds;
};

} // namespace TARVOORIXM1
