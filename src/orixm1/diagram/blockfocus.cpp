#include "blockfocus.h"

#include "config/latin1literal.h"
#include "config/tr.h"
#include "ipitem.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>

#include <cmath>

namespace TARVOORIXM1
{

namespace
{

// A colour that is seen on the diagram's paper, white in every theme: a contrast of 3 at least,
// with the luminance that WCAG 2 defines.
QColor onPaper(QColor color)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    constexpr qreal brightest = 1.05 / 3 - 0.05;
    while (0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF()) >
           brightest)
        color = color.darker(110);
    return color;
}

} // namespace

BlockFocus::BlockFocus(QGraphicsView *view)
    : m_view(view)
{
}

void BlockFocus::append(IPItem *block, bool hasState)
{
    m_order.append(block);
    if (!hasState)
        m_stateless.insert(block);
}

QList<IPItem *> BlockFocus::reachable() const
{
    QList<IPItem *> blocks;
    for (IPItem *block : m_order) {
        if (block->isClickable() && block->isVisible())
            blocks.append(block);
    }
    return blocks;
}

void BlockFocus::set(IPItem *block)
{
    const bool isOther = block != m_block;
    if (isOther) {
        updateFrame();
        m_block = block;
        updateFrame();
        if (block)
            m_view->ensureVisible(block);
    }
    announce();
    if (isOther && m_listener)
        m_listener();
}

bool BlockFocus::step(bool next)
{
    const QList<IPItem *> blocks = reachable();
    const int current = m_block ? blocks.indexOf(m_block) : next ? -1 : blocks.size();
    set(blocks.value(current + (next ? 1 : -1)));
    return m_block;
}

void BlockFocus::goOn()
{
    const QList<IPItem *> blocks = reachable();
    if (IPItem *next = blocks.value(blocks.indexOf(m_block) + 1))
        set(next);
}

void BlockFocus::enter(bool atStart)
{
    const QList<IPItem *> blocks = reachable();
    set(blocks.value(atStart ? 0 : blocks.size() - 1));
}

void BlockFocus::announce()
{
    QString name = Tr::tr("Block diagram");
    if (m_block) {
        name = m_block->text();
        if (!m_stateless.contains(m_block))
            name +=
                ", "_l1 + (m_block->isActive() ? Tr::tr("switched on") : Tr::tr("switched off"));
    }
    if (name != m_view->accessibleName())
        m_view->setAccessibleName(name); // tells assistive tools
}

QRectF BlockFocus::frameOf(const IPItem *block)
{
    constexpr qreal distance = 4;
    return block->sceneBoundingRect().adjusted(-distance, -distance, distance, distance);
}

void BlockFocus::updateFrame()
{
    if (m_block)
        m_view->scene()->invalidate(frame().adjusted(-2, -2, 2, 2),
                                    QGraphicsScene::ForegroundLayer);
}

void BlockFocus::drawFrame(QPainter *painter)
{
    if (!m_block || !m_view->hasFocus())
        return;
    painter->setBrush(Qt::NoBrush);
    // Made anew with another palette only: frames come fast while panning.
    const QColor &highlight = m_view->palette().color(QPalette::Highlight);
    if (m_highlight != highlight) {
        m_highlight = highlight;
        m_pen = QPen(onPaper(highlight), 2);
    }
    painter->setPen(m_pen);
    painter->drawRoundedRect(frame(), 3, 3);
}

} // namespace TARVOORIXM1
