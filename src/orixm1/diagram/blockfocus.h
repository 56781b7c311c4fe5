#pragma once

#include <QList>
#include <QPen>
#include <QRectF>
#include <QSet>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QGraphicsView)
QT_FORWARD_DECLARE_CLASS(QPainter)

namespace TARVOORIXM1
{

class IPItem;

// The block that the keyboard has reached in a view: walks from block to block, has a frame, and
// is told to assistive tools in the view's accessible name.
class BlockFocus
{
public:
    // The view must outlive this, and its blocks are those of its scene.
    explicit BlockFocus(QGraphicsView *view);

    // Is called when block() has become another.
    void setListener(const std::function<void()> &listener) { m_listener = listener; }

    // The next block on the way. `hasState`: whether it shows that it is on.
    void append(IPItem *block, bool hasState);

    // Null if none.
    IPItem *block() const { return m_block; }
    void set(IPItem *block);
    // From block to block among those that can be clicked; false, and none, at the end.
    bool step(bool next);
    // The next one, or that which it is at the end.
    void goOn();
    // To the first of them, or the last.
    void enter(bool atStart);

    // Whether the block shows that it is on.
    bool hasState(IPItem *block) const { return !m_stateless.contains(block); }
    // Where a frame about the block is, in the scene.
    static QRectF frameOf(const IPItem *block);

    // The block may be switched on or off now.
    void announce();
    // The frame has to be drawn anew.
    void updateFrame();
    void drawFrame(QPainter *painter);

    // Those that step() reaches, in its order.
    QList<IPItem *> reachable() const;

private:
    QRectF frame() const { return m_block ? frameOf(m_block) : QRectF(); }

    QGraphicsView *m_view;
    QList<IPItem *> m_order;
    QSet<IPItem *> m_stateless;
    IPItem *m_block = nullptr;
    std::function<void()> m_listener;
    QColor m_highlight; // that the pen is made of
    QPen m_pen{Qt::black, 2};
};

} // namespace TARVOORIXM1
