#include "pinswitch.h"

#include "widgets/colours.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace Workbench
{

namespace
{

// Qt's own for a check box switches between two of the three states.
class AccessibleSwitch : public QAccessibleWidget
{
public:
    explicit AccessibleSwitch(PinSwitch *pin)
        : QAccessibleWidget(pin, QAccessible::CheckBox)
    {
    }

    static QAccessibleInterface *make(const QString &name, QObject *object)
    {
        auto *pin = qobject_cast<PinSwitch *>(object);
        return pin && name == QLatin1String(PinSwitch::staticMetaObject.className())
                   ? new AccessibleSwitch(pin)
                   : nullptr;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = box()->checkState() == Qt::Checked;
        state.checkStateMixed = box()->checkState() == Qt::PartiallyChecked;
        return state;
    }
    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (box()->isEnabled())
            names.prepend(toggleAction());
        return names;
    }
    void doAction(const QString &action) override
    {
        if (action == toggleAction())
            box()->click();
        else
            QAccessibleWidget::doAction(action);
    }
    QStringList keyBindingsForAction(const QString &action) const override
    {
        return action == toggleAction() ? QStringList(QStringLiteral("Space")) : QStringList();
    }

private:
    PinSwitch *box() const { return static_cast<PinSwitch *>(object()); }
};

} // namespace

PinSwitch::PinSwitch(int number, QWidget *parent)
    : QCheckBox(parent)
    , m_number(number)
{
    QAccessible::installFactory(&AccessibleSwitch::make);
    setTristate(true);
    setProperty("walkedByArrows", true); // Tab may stop at one of them
    setCheckState(Qt::PartiallyChecked);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QCheckBox::stateChanged, this, &PinSwitch::describe);
    describe();
}

void PinSwitch::showPin(bool isHigh, bool isDriven)
{
    if (isHigh == m_isHigh && isDriven == m_isDriven)
        return;
    m_isHigh = isHigh;
    m_isDriven = isDriven;
    describe();
    update();
}

void PinSwitch::describe()
{
    const QString level = m_isHigh ? tr("high") : tr("low");
    const QString inside =
        m_isDriven ? tr("driven by the subsystem") : tr("not driven by the subsystem");
    const QString outside = checkState() == Qt::Checked     ? tr("the switch drives it high")
                            : checkState() == Qt::Unchecked ? tr("the switch drives it low")
                                                            : tr("the switch leaves it alone");
    setAccessibleName(tr("Pin %1: %2").arg(QString::number(m_number), level));
    setAccessibleDescription(tr("%1, %2").arg(inside, outside));
    setToolTip(tr("Pin %1: %2\n%3, %4\nClick or press Space to drive it high, low, or not at all")
                   .arg(QString::number(m_number), level, inside, outside));
}

QSize PinSwitch::sizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 7 / 4, line * 3};
}

// Away, high, low.
void PinSwitch::nextCheckState()
{
    setCheckState(checkState() == Qt::PartiallyChecked ? Qt::Checked
                  : checkState() == Qt::Checked        ? Qt::Unchecked
                                                       : Qt::PartiallyChecked);
}

bool PinSwitch::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void PinSwitch::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        Q_EMIT moveRequested(-1);
        break;
    case Qt::Key_Right:
        Q_EMIT moveRequested(1);
        break;
    default:
        QCheckBox::keyPressEvent(event);
    }
}

void PinSwitch::changeEvent(QEvent *event)
{
    QCheckBox::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

void PinSwitch::paintLamp(QPainter *painter, const QRectF &place) const
{
    const QColor text = palette().color(QPalette::WindowText);
    QPen ring(text, m_isDriven ? place.width() / 12 : place.width() / 24);
    if (!m_isDriven)
        ring.setStyle(Qt::DotLine);
    painter->setPen(ring);
    painter->setBrush(m_isHigh ? QColor(Colours::lamp) : palette().color(QPalette::Base));
    const qreal edge = place.width() / 16;
    painter->drawEllipse(place.adjusted(edge, edge, -edge, -edge));
    painter->setPen(m_isHigh ? QColor(Colours::onLamp) : palette().color(QPalette::Text));
    painter->drawText(place, Qt::AlignCenter, QString::number(m_number));
}

// A knob in a slot: above drives high, below low, between them not at all.
void PinSwitch::paintSwitch(QPainter *painter, const QRectF &place) const
{
    const QColor text = palette().color(QPalette::WindowText);
    const bool isOn = checkState() != Qt::PartiallyChecked;
    const qreal side = place.width();
    painter->setPen(QPen(text, qMax(1.0, side / 14)));
    painter->setBrush(isOn ? palette().color(QPalette::Highlight)
                           : palette().color(QPalette::Base));
    painter->drawRoundedRect(place, side / 2, side / 2);
    const qreal travel = place.height() - side;
    const qreal top = checkState() == Qt::Checked     ? 0
                      : checkState() == Qt::Unchecked ? travel
                                                      : travel / 2;
    const qreal gap = side / 6;
    QRectF knob(place.left(), place.top() + top, side, side);
    knob.adjust(gap, gap, -gap, -gap);
    painter->setBrush(isOn ? palette().color(QPalette::HighlightedText)
                           : palette().color(QPalette::Window));
    painter->drawEllipse(knob);
}

void PinSwitch::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal line = fontMetrics().height();
    const qreal gap = line / 8;
    const QRectF lamp((width() - line * 1.5) / 2, gap, line * 1.5, line * 1.5);
    const qreal slot = line * 0.7;
    const QRectF lever((width() - slot) / 2, lamp.bottom() + gap, slot,
                       height() - lamp.bottom() - 2.5 * gap);
    paintLamp(&painter, lamp);
    paintSwitch(&painter, lever);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

} // namespace Workbench
