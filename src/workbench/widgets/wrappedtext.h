#pragma once

#include <QFont>
#include <QHash>
#include <QRect>
#include <QTextLayout>

class QPainter;

namespace Workbench
{

// A text that is broken into lines at a width, in the places in which QPainter::drawText() breaks
// it. What its characters look like is found out once, however often it is measured and drawn;
// that is most of the work.
class WrappedText
{
public:
    // Does nothing if all is as before.
    void set(const QString &text, const QFont &font, Qt::LayoutDirection direction);

    // Of the longest line if nothing is broken.
    int naturalWidth();
    // What is covered at this width, from the left and the top.
    QSize sizeFor(int width);
    // In the pen's colour; at the top of `place`, or in its middle.
    void draw(QPainter *painter, const QRect &place, Qt::Alignment vertically = Qt::AlignTop);

private:
    void breakAt(int width);

    QString m_text;
    QFont m_font;
    Qt::LayoutDirection m_direction = Qt::LeftToRight;
    QTextLayout m_layout;
    int m_width = -1; // at which the layout is broken; -1 before it is
    bool m_hasBegun = false;
    QSizeF m_size;
    // By width, since a layout of widgets asks for the same few again and again.
    QHash<int, QSize> m_sizes;
};

} // namespace Workbench
