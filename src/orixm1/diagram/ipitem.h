#pragma once

#include "laidouttext.h"

#include <QBrush>
#include <QColor>
#include <QGraphicsObject>
#include <QPen>

namespace TARVOORIXM1
{

// A block of the diagram. One that is clickable opens a dialog, lights up under the mouse and shows
// whether its option is on; the colours given are those of a block that is not.
class IPItem : public QGraphicsObject
{
    Q_OBJECT

public:
    IPItem(int width, int height, bool clickable, bool rounded, const QColor &outlineColor,
           const QColor &fillColor, const QString &text, QGraphicsItem *parent = nullptr);

    enum { Type = UserType + 1 };
    int type() const override { return Type; }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    bool isClickable() const { return m_clickable; }
    void setClickable(bool clickable);
    bool isActive() const { return m_active; }
    bool isRounded() const { return m_rounded; }
    QColor outlineColor() const { return m_outline.color(); }
    QColor fillColor() const { return m_fill.color(); }
    QString text() const { return m_label.text(); }
    // Where the label is written.
    QRectF textRect() const;

Q_SIGNALS:
    void doubleClicked();

public Q_SLOTS:
    // Shows that the block's option is on or off.
    void onConfigured(bool on);

protected:
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;

private:
    const int m_width;
    const int m_height;
    bool m_clickable;
    bool m_active = false;
    const bool m_rounded;
    const QPen m_outline;
    const QBrush m_fill;
    LaidOutText m_label;
};

} // namespace TARVOORIXM1
