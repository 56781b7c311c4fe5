#include "pinfigureview.h"

#include "focusring.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QSvgGenerator>
#include <QWheelEvent>

#include <cmath>

namespace IPCore
{

namespace
{

constexpr qreal zoomStep = 1.2;

bool isOnTheLeft(const Utils::PinFigure &pin)
{
    return pin.side() == Qt::AlignLeft;
}

// What a printed figure is drawn in, whatever the screen's colours are.
QPalette paperPalette()
{
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(245, 245, 245));
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

QColor blend(const QColor &a, const QColor &b, qreal shareOfB)
{
    const auto mix = [shareOfB](qreal x, qreal y) { return x + (y - x) * shareOfB; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

// A filled triangle whose tip is at `tip`; `direction` is 1 for right and -1 for left.
void drawArrowHead(QPainter *painter, const QPointF &tip, int direction, qreal length)
{
    const qreal back = tip.x() - direction * length;
    const QPointF corners[] = {
        tip, {back, tip.y() - length * 0.45}, {back, tip.y() + length * 0.45}};
    painter->drawPolygon(corners, 3);
}

// A pin of a figure. The figure's own interface makes and ends it.
class AccessiblePin : public QAccessibleInterface
{
public:
    AccessiblePin(PinFigureView *view, int index)
        : m_view(view)
        , m_index(index)
    {
    }

    bool isValid() const override { return m_view && m_index < m_view->pins().size(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    QWindow *window() const override { return isValid() ? parent()->window() : nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.readOnly = true;
        state.invisible = !m_view->isVisible();
        state.offscreen = !m_view->viewport()->rect().intersects(m_view->shownPinRect(m_index));
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        if (!isValid() || kind != QAccessible::Name)
            return {};
        const Utils::PinFigure pin = m_view->pins().at(m_index);
        switch (pin.direction()) {
        case Utils::PinFigure::Input:
            return PinFigureView::tr("%1, input").arg(pin.name());
        case Utils::PinFigure::Output:
            return PinFigureView::tr("%1, output").arg(pin.name());
        default:
            return PinFigureView::tr("%1, bidirectional").arg(pin.name());
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override {}
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect place = m_view->shownPinRect(m_index);
        return {m_view->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

private:
    QPointer<PinFigureView> m_view;
    int m_index;
};

// The figure as the list of its pins.
class AccessibleFigure : public QAccessibleWidget
{
public:
    explicit AccessibleFigure(PinFigureView *view)
        : QAccessibleWidget(view, QAccessible::List)
    {
    }
    ~AccessibleFigure() override
    {
        for (const QAccessible::Id id : qAsConst(m_ids))
            QAccessible::deleteAccessibleInterface(id);
    }
    Q_DISABLE_COPY(AccessibleFigure)

    static QAccessibleInterface *make(const QString &name, QObject *object)
    {
        auto *view = qobject_cast<PinFigureView *>(object);
        return view && name == QLatin1String(PinFigureView::staticMetaObject.className())
                   ? new AccessibleFigure(view)
                   : nullptr;
    }

    int childCount() const override { return view() ? view()->pins().size() : 0; }
    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (m_ids.size() <= index)
            m_ids.append(
                QAccessible::registerAccessibleInterface(new AccessiblePin(view(), m_ids.size())));
        return QAccessible::accessibleInterface(m_ids.at(index));
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child
                   ? m_ids.indexOf(QAccessible::uniqueId(const_cast<QAccessibleInterface *>(child)))
                   : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int i = 0; i < childCount(); ++i) {
            if (child(i)->rect().contains(x, y))
                return child(i);
        }
        return nullptr;
    }

private:
    // Null while it is being deleted.
    PinFigureView *view() const { return qobject_cast<PinFigureView *>(object()); }

    mutable QVector<QAccessible::Id> m_ids; // of the pins so far asked for
};

// Ends with the library.
class Installation
{
public:
    Installation() { QAccessible::installFactory(&AccessibleFigure::make); }
    ~Installation() { QAccessible::removeFactory(&AccessibleFigure::make); }
    Q_DISABLE_COPY(Installation)
};

} // namespace

PinFigureView::PinFigureView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    static const Installation installation;
    QAccessible::installFactory(&AccessibleFigure::make); // an application forgets it when it ends
    FocusRing::install();
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    relayout();
}

void PinFigureView::setLabel(const QString &label)
{
    m_label = label;
    relayout();
}

void PinFigureView::setPins(const QList<Utils::PinFigure> &pins)
{
    m_pins = pins;
    relayout();
}

QFont PinFigureView::labelFont(const QFont &font)
{
    QFont result = font;
    result.setBold(true);
    return result;
}

PinFigureView::Layout PinFigureView::layoutFor(const QFont &font) const
{
    const QFontMetrics metrics(font);
    const int em = metrics.height();
    Layout layout;
    layout.margin = em;
    layout.stub = em * 5 / 2;
    layout.inset = em * 2 / 3;
    layout.row = em * 3 / 2;

    int widths[2] = {0, 0};
    int counts[2] = {0, 0};
    for (const Utils::PinFigure &pin : qAsConst(m_pins)) {
        const int side = isOnTheLeft(pin) ? 0 : 1;
        widths[side] = qMax(widths[side], metrics.horizontalAdvance(pin.name()));
        ++counts[side];
    }
    const int forNames =
        widths[0] + widths[1] + 2 * layout.inset + (widths[0] > 0 && widths[1] > 0 ? 2 * em : 0);
    const int forLabel =
        QFontMetrics(labelFont(font)).horizontalAdvance(m_label) + 2 * layout.inset;
    const int boxWidth = qMax(8 * em, qMax(forNames, forLabel));
    const int header = em * 5 / 2;
    const int rows = qMax(2, qMax(counts[0], counts[1]));
    layout.box = QRect(layout.margin + layout.stub, layout.margin, boxWidth,
                       header + rows * layout.row + em / 2);
    layout.firstRow = layout.box.top() + header;
    layout.size = QSize(layout.box.width() + 2 * (layout.stub + layout.margin),
                        layout.box.height() + 2 * layout.margin);

    int next[2] = {layout.firstRow, layout.firstRow};
    for (const Utils::PinFigure &pin : m_pins) {
        int &top = next[isOnTheLeft(pin) ? 0 : 1];
        const int half = layout.size.width() / 2;
        layout.rows.append(isOnTheLeft(pin)
                               ? QRect(0, top, half, layout.row)
                               : QRect(half, top, layout.size.width() - half, layout.row));
        top += layout.row;
    }
    return layout;
}

void PinFigureView::relayout()
{
    m_layout = layoutFor(font());
    int inputs = 0;
    int outputs = 0;
    for (const Utils::PinFigure &pin : qAsConst(m_pins)) {
        inputs += pin.direction() == Utils::PinFigure::Input;
        outputs += pin.direction() == Utils::PinFigure::Output;
    }
    setAccessibleName(tr("Pins of %1").arg(m_label));
    setAccessibleDescription(tr("%1 inputs, %2 outputs, %3 bidirectional")
                                 .arg(inputs)
                                 .arg(outputs)
                                 .arg(m_pins.size() - inputs - outputs));
    updateGeometry();
    updateScrollBars();
    viewport()->update();
}

QRect PinFigureView::pinRect(int index) const
{
    return m_layout.rows.value(index);
}

QRect PinFigureView::shownPinRect(int index) const
{
    const QRect row = pinRect(index);
    return QRectF(QPointF(row.topLeft()) * m_zoom + origin(), QSizeF(row.size()) * m_zoom)
        .toAlignedRect();
}

QPointF PinFigureView::origin() const
{
    const QSizeF shown = QSizeF(m_layout.size) * m_zoom;
    // A figure smaller than the view is centred.
    const qreal x = qMax(0.0, (viewport()->width() - shown.width()) / 2);
    const qreal y = qMax(0.0, (viewport()->height() - shown.height()) / 2);
    return {std::floor(x) - horizontalScrollBar()->value(),
            std::floor(y) - verticalScrollBar()->value()};
}

void PinFigureView::updateScrollBars()
{
    const QSize shown(int(std::ceil(m_layout.size.width() * m_zoom)),
                      int(std::ceil(m_layout.size.height() * m_zoom)));
    // Bars that are there already are no reason for bars.
    const QSize most = maximumViewportSize();
    const QSize room = shown.boundedTo(most) == shown ? most : viewport()->size();
    const int line = qMax(1, qRound(m_layout.row * m_zoom));
    const auto update = [line](QScrollBar *bar, int length, int page) {
        bar->setRange(0, qMax(0, length - page));
        bar->setPageStep(page);
        bar->setSingleStep(line);
    };
    update(horizontalScrollBar(), shown.width(), room.width());
    update(verticalScrollBar(), shown.height(), room.height());
}

void PinFigureView::setZoom(qreal zoom, const QPoint &anchor)
{
    const qreal wanted = qBound(minimumZoom, zoom, maximumZoom);
    if (qFuzzyCompare(wanted, m_zoom))
        return;
    const QPointF fixed = (anchor - origin()) / m_zoom;
    m_zoom = wanted;
    updateScrollBars();
    const QPointF off = fixed * m_zoom + origin() - anchor;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(off.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(off.y()));
    viewport()->update();
}

QSize PinFigureView::sizeHint() const
{
    const int frame = 2 * frameWidth();
    const int em = fontMetrics().height();
    const QSize largest(40 * em, 32 * em);
    QSize hint = m_layout.size.boundedTo(largest);
    if (m_layout.size.height() > largest.height())
        hint.rwidth() += verticalScrollBar()->sizeHint().width();
    return hint + QSize(frame, frame);
}

QSize PinFigureView::minimumSizeHint() const
{
    const int em = fontMetrics().height();
    return {12 * em, 8 * em};
}

void PinFigureView::paintFigure(QPainter *painter, const Layout &layout, const QPalette &palette,
                                const QRectF &exposed) const
{
    const QColor &ink = palette.color(QPalette::Text);
    const QColor &paper = palette.color(QPalette::Base);
    const qreal thin = qMax(1.0, layout.row / 20.0);

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(ink, thin));
    painter->setBrush(blend(paper, ink, 0.06));
    painter->drawRect(QRectF(layout.box));

    const QFont plain = painter->font();
    painter->setFont(labelFont(plain));
    const QRectF heading(layout.box.left(), layout.box.top(), layout.box.width(),
                         layout.firstRow - layout.box.top() - layout.inset / 2.0);
    painter->drawText(heading, Qt::AlignCenter, m_label);
    painter->setFont(plain);

    if (m_pins.isEmpty()) {
        painter->setPen(blend(paper, ink, 0.65));
        painter->drawText(QRectF(layout.box).adjusted(0, heading.height(), 0, 0), Qt::AlignCenter,
                          tr("no pins"));
        return;
    }
    painter->setBrush(ink);
    for (int i = 0; i < m_pins.size(); ++i) {
        const QRect &row = layout.rows.at(i);
        if (exposed.intersects(row))
            paintPin(painter, layout, row, m_pins.at(i));
    }
}

void PinFigureView::paintPin(QPainter *painter, const Layout &layout, const QRect &row,
                             const Utils::PinFigure &pin) const
{
    const bool left = isOnTheLeft(pin);
    const qreal y = row.top() + row.height() / 2.0;
    const QRectF box(layout.box);
    const qreal outer = left ? box.left() - layout.stub : box.right() + layout.stub;
    const qreal inner = left ? box.left() : box.right();
    const qreal from = qMin(outer, inner);
    const qreal to = qMax(outer, inner);
    const qreal thin = qMax(1.0, layout.row / 20.0);
    const qreal thick = 3 * thin;
    const qreal head = layout.row * 0.45;

    const bool drives = pin.direction() != Utils::PinFigure::Input; // the block drives the pin
    const bool listens = pin.direction() != Utils::PinFigure::Output;
    const bool headAtTo = left ? listens : drives;
    const bool headAtFrom = left ? drives : listens;

    const QPen ink(painter->pen().color(), thin);
    // The line ends inside the heads, so that a thick one does not blunt their tips.
    painter->setPen(QPen(ink.color(), pin.isBus() ? thick : thin, Qt::SolidLine, Qt::FlatCap));
    painter->drawLine(QPointF(from + (headAtFrom ? head / 2 : 0), y),
                      QPointF(to - (headAtTo ? head / 2 : 0), y));
    painter->setPen(ink);
    if (pin.isBus()) {
        const QPointF middle((from + to) / 2, y);
        const QPointF slash(head * 0.4, -head * 0.8);
        painter->drawLine(middle - slash, middle + slash);
    }
    painter->setPen(Qt::NoPen);
    if (headAtTo)
        drawArrowHead(painter, {to, y}, 1, head);
    if (headAtFrom)
        drawArrowHead(painter, {from, y}, -1, head);
    painter->setPen(ink);

    const QRectF name(box.left() + layout.inset, row.top(), box.width() - 2 * layout.inset,
                      row.height());
    painter->drawText(name, int(Qt::AlignVCenter | pin.side()) | Qt::TextSingleLine, pin.name());
}

void PinFigureView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QPointF start = origin();
    painter.translate(start);
    painter.scale(m_zoom, m_zoom);
    const QRectF exposed(QPointF(event->rect().topLeft() - start) / m_zoom,
                         QSizeF(event->rect().size()) / m_zoom);
    paintFigure(&painter, m_layout, palette(), exposed);
}

bool PinFigureView::writeSvg(QIODevice *device) const
{
    QSvgGenerator generator;
    // The font is given in pixels, so that the layout does not depend on the generator's
    // resolution.
    QFont pixels = font();
    pixels.setPixelSize(QFontInfo(font()).pixelSize());
    const Layout layout = layoutFor(pixels);
    generator.setOutputDevice(device);
    generator.setSize(layout.size);
    generator.setViewBox(QRect(QPoint(0, 0), layout.size));
    generator.setTitle(m_label.toHtmlEscaped()); // written as it is
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    painter.setFont(pixels);
    const QRectF all(QPointF(0, 0), QSizeF(layout.size));
    const QPalette paper = paperPalette();
    painter.fillRect(all, paper.color(QPalette::Base));
    paintFigure(&painter, layout, paper, all);
    return painter.end();
}

void PinFigureView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void PinFigureView::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(dx, dy);
}

void PinFigureView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr qreal oneNotch = 120;
    setZoom(m_zoom * std::pow(zoomStep, event->angleDelta().y() / oneNotch),
            event->position().toPoint());
    event->accept();
}

void PinFigureView::keyPressEvent(QKeyEvent *event)
{
    const QPoint centre = viewport()->rect().center();
    const bool control = event->modifiers() & Qt::ControlModifier;
    // Also where the desktop has no keys of its own for it; "+" may need Shift.
    if (event->matches(QKeySequence::ZoomIn) ||
        (control && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)))
        setZoom(m_zoom * zoomStep, centre);
    else if (event->matches(QKeySequence::ZoomOut) || (control && event->key() == Qt::Key_Minus))
        setZoom(m_zoom / zoomStep, centre);
    else if (event->key() == Qt::Key_0 && event->modifiers() == Qt::ControlModifier)
        setZoom(1, centre);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void PinFigureView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        relayout();
}

} // namespace IPCore
