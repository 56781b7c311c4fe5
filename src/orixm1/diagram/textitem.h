#pragma once

#include <QFont>
#include <QGraphicsItem>

namespace TARVOORIXM1
{

// A line of text with a small margin around it, in black.
class TextItem : public QGraphicsItem
{
public:
    explicit TextItem(const QString &text, QGraphicsItem *parent = nullptr);

    enum { Type = UserType + 3 };
    int type() const override { return Type; }

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    QString text() const { return m_text; }
    QFont font() const { return m_font; }
    void setFont(const QFont &font);

private:
    const QString m_text;
    QFont m_font;
    QRectF m_bounds;
    QPointF m_baseline;
};

} // namespace TARVOORIXM1
