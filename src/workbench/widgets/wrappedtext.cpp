#include "wrappedtext.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

namespace Workbench
{

namespace
{

constexpr int widthOfAll = 0x1000000;

} // namespace

void WrappedText::set(const QString &text, const QFont &font, Qt::LayoutDirection direction)
{
    if (m_width >= 0 && text == m_text && font == m_font && direction == m_direction)
        return;
    m_text = text;
    m_font = font;
    m_direction = direction;
    m_width = -1;
    m_hasBegun = false;
    m_sizes.clear();
    QString shown = text;
    shown.replace(u'\r', u' ').replace(u'\t', u' ').replace(u'\n', QChar(QChar::LineSeparator));
    m_layout.setText(shown);
    m_layout.setFont(font);
    QTextOption option;
    option.setTextDirection(direction);
    m_layout.setTextOption(option);
}

void WrappedText::breakAt(int width)
{
    if (width == m_width)
        return;
    m_width = width;
    const qreal leading = QFontMetricsF(m_font).leading();
    qreal height = -leading;
    qreal longest = 0;
    // A layout that begins anew, or one that has ended, would look at the characters again.
    if (m_hasBegun)
        m_layout.clearLayout();
    else
        m_layout.beginLayout();
    m_hasBegun = true;
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(width);
        height = qCeil(height + leading); // lines begin at whole pixels
        line.setPosition({0, height});
        height += line.height();
        longest = qMax(longest, line.naturalTextWidth());
    }
    m_size = {longest, height};
}

QSize WrappedText::sizeFor(int width)
{
    const auto known = m_sizes.constFind(width);
    if (known != m_sizes.constEnd())
        return *known;
    breakAt(qMax(0, width));
    if (m_sizes.size() > 16) // a window that is being resized
        m_sizes.clear();
    const QSize size = QRectF({}, m_size).toAlignedRect().size();
    m_sizes.insert(width, size);
    return size;
}

int WrappedText::naturalWidth()
{
    return sizeFor(widthOfAll).width();
}

void WrappedText::draw(QPainter *painter, const QRect &place, Qt::Alignment vertically)
{
    if (m_text.isEmpty())
        return;
    breakAt(qMax(0, place.width()));
    const bool isCut = m_size.width() > place.width() || m_size.height() > place.height();
    if (isCut) {
        painter->save();
        painter->setClipRect(place, Qt::IntersectClip);
    }
    const qreal below =
        vertically & Qt::AlignVCenter ? (place.height() - m_size.height()) / 2 : qreal(0);
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        const QTextLine line = m_layout.lineAt(i);
        const qreal indent =
            m_direction == Qt::RightToLeft ? place.width() - line.horizontalAdvance() : 0;
        line.draw(painter, {place.left() + indent, place.top() + below});
    }
    if (isCut)
        painter->restore();
}

} // namespace Workbench
