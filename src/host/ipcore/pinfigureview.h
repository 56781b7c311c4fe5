#pragma once

#include "ipcore_global.h"

#include <utils/pinfigure.h>

#include <QAbstractScrollArea>
#include <QList>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace IPCore
{

// A block as a box with its label and its pins: AlignLeft ones on the left, the others on the
// right, each side in list order. Arrow heads show the direction, a thick line with a slash a bus.
// Drawn in the widget's palette and font. Scrolls; Ctrl+wheel and the zoom keys change the scale,
// Ctrl+0 goes back to 1.
class TARVO_IPCORE_EXPORT PinFigureView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    static constexpr qreal minimumZoom = 0.25;
    static constexpr qreal maximumZoom = 4.0;

    explicit PinFigureView(QWidget *parent = nullptr);

    QString label() const { return m_label; }
    void setLabel(const QString &label);
    QList<Utils::PinFigure> pins() const { return m_pins; }
    void setPins(const QList<Utils::PinFigure> &pins);

    qreal zoom() const { return m_zoom; }
    // Clamped to the limits above. Keeps the point of the figure that is at `anchor` (viewport
    // coordinates) in place as far as the scroll bars allow.
    void setZoom(qreal zoom, const QPoint &anchor);

    // The figure's size at scale 1.
    QSize figureSize() const { return m_layout.size; }
    // Where a pin's row is at scale 1; null for an index out of range.
    QRect pinRect(int index) const;
    // The same as it is shown now, in the viewport.
    QRect shownPinRect(int index) const;

    // Writes the figure as SVG in black on white; false if the device cannot be written.
    bool writeSvg(QIODevice *device) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    // All lengths at scale 1, from the font's metrics.
    struct Layout {
        QSize size;
        QRect box;
        int margin = 0;
        int stub = 0;  // from the box to a pin's outer end
        int inset = 0; // from the box's edge to a name
        int row = 0;
        int firstRow = 0; // top of the first row of pins
        QList<QRect> rows;
    };

    Layout layoutFor(const QFont &font) const;
    void relayout();
    void updateScrollBars();
    QPointF origin() const;
    void paintFigure(QPainter *painter, const Layout &layout, const QPalette &palette,
                     const QRectF &exposed) const;
    void paintPin(QPainter *painter, const Layout &layout, const QRect &row,
                  const Utils::PinFigure &pin) const;
    static QFont labelFont(const QFont &font);

    QString m_label;
    QList<Utils::PinFigure> m_pins;
    Layout m_layout;
    qreal m_zoom = 1;
};

} // namespace IPCore
