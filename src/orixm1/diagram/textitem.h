#pragma once

#include "laidouttext.h"

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

    QString text() const { return m_text.text(); }
    QFont font() const { return m_font; }
    void setFont(const QFont &font);

private:
    LaidOutText m_text;
    QFont m_font;
    QRectF m_bounds;
};

} // namespace TARVOORIXM1
