#include "laidouttext.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace TARVOORIXM1
{

LaidOutText::LaidOutText(const QString &text)
    : m_text(text)
{
}

LaidOutText::~LaidOutText() = default;

void LaidOutText::layOut(const QPainter *painter, const QFont &font, qreal width)
{
    const int dotsPerInch = painter->device()->logicalDpiY();
    if (m_width == width && m_dotsPerInch == dotsPerInch && m_font == font)
        return;
    m_width = width;
    m_dotsPerInch = dotsPerInch;
    m_font = font;

    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(width > 0 ? QTextOption::WordWrap : QTextOption::NoWrap);
    m_layout = std::make_unique<QTextLayout>(m_text, font, painter->device());
    m_layout->setTextOption(option);
    m_layout->setCacheEnabled(true);

    const qreal leading = QFontMetricsF(font, painter->device()).leading();
    m_height = -leading;
    m_widest = 0;
    m_layout->beginLayout();
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine()) {
        if (width > 0)
            line.setLineWidth(width);
        m_height = std::ceil(m_height + leading); // a line begins on a whole pixel
        line.setPosition({0, m_height});
        m_height += line.height();
        m_widest = std::max(m_widest, line.horizontalAdvance());
    }
    m_layout->endLayout();
}

void LaidOutText::drawCentred(QPainter *painter, const QRectF &rect)
{
    layOut(painter, painter->font(), rect.width());
    if (m_height > rect.height() || m_widest > rect.width()) { // to be cut off
        painter->drawText(rect, int(Qt::AlignCenter) | Qt::TextWordWrap, m_text);
        return;
    }
    const qreal top = rect.top() + (rect.height() - m_height) / 2;
    for (int i = 0; i < m_layout->lineCount(); ++i) {
        const QTextLine line = m_layout->lineAt(i);
        line.draw(painter, {rect.left() + (rect.width() - line.horizontalAdvance()) / 2, top});
    }
}

void LaidOutText::drawLine(QPainter *painter, const QFont &font, const QPointF &corner)
{
    layOut(painter, font, 0);
    m_layout->draw(painter, corner);
}

} // namespace TARVOORIXM1
