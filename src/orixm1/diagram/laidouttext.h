#pragma once

#include <QFont>
#include <QString>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QPainter)
QT_FORWARD_DECLARE_CLASS(QPointF)
QT_FORWARD_DECLARE_CLASS(QRectF)
QT_FORWARD_DECLARE_CLASS(QTextLayout)

namespace TARVOORIXM1
{

// A text that looks as QPainter::drawText() draws it, but is broken into lines and shaped only when
// the font, the width or the device's resolution changes. Drawing it again allocates nothing,
// unless it does not fit and so has to be cut off.
class LaidOutText
{
public:
    explicit LaidOutText(const QString &text);
    ~LaidOutText();
    Q_DISABLE_COPY(LaidOutText)

    QString text() const { return m_text; }
    // As with Qt::AlignCenter and Qt::TextWordWrap, in the painter's font.
    void drawCentred(QPainter *painter, const QRectF &rect);
    // On one line whose upper left corner is given.
    void drawLine(QPainter *painter, const QFont &font, const QPointF &corner);

private:
    // In the width given, or on one line if it is 0.
    void layOut(const QPainter *painter, const QFont &font, qreal width);

    const QString m_text;
    std::unique_ptr<QTextLayout> m_layout;
    QFont m_font;
    qreal m_width = -1;
    int m_dotsPerInch = 0;
    qreal m_height = 0;
    qreal m_widest = 0; // line
};

} // namespace TARVOORIXM1
