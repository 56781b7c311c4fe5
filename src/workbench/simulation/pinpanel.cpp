#include "pinpanel.h"

#include "pinswitch.h"

#include <QHBoxLayout>

namespace Workbench
{

PinPanel::PinPanel(QWidget *parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("pinPanel"));
    setAccessibleName(tr("Pins of the GPIO"));
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    m_row->addStretch(1);
}

void PinPanel::setCount(int count)
{
    if (count == m_pins.size())
        return;
    qDeleteAll(m_pins);
    m_pins.clear();
    // Counted in eights.
    while (m_row->count() > 1)
        delete m_row->takeAt(0);
    for (int number = 0; number < count; ++number) {
        if (number > 0 && number % 8 == 0)
            m_row->insertSpacing(m_row->count() - 1, fontMetrics().averageCharWidth());
        auto *pin = new PinSwitch(number);
        pin->setObjectName(QStringLiteral("pin%1").arg(number));
        pin->setFocusPolicy(number == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        connect(pin, &QCheckBox::stateChanged, this, &PinPanel::switched);
        connect(pin, &PinSwitch::moveRequested, this, [this, number](int steps) {
            if (PinSwitch *next = m_pins.value(number + steps))
                next->setFocus(Qt::TabFocusReason);
        });
        m_row->insertWidget(m_row->count() - 1, pin);
        m_pins.append(pin);
    }
}

void PinPanel::showPins(quint32 levels, quint32 driven)
{
    for (PinSwitch *pin : qAsConst(m_pins))
        pin->showPin((levels >> pin->number() & 1) != 0, (driven >> pin->number() & 1) != 0);
}

quint32 PinPanel::mask() const
{
    quint32 mask = 0;
    for (const PinSwitch *pin : m_pins) {
        if (pin->checkState() != Qt::PartiallyChecked)
            mask |= 1u << pin->number();
    }
    return mask;
}

quint32 PinPanel::levels() const
{
    quint32 levels = 0;
    for (const PinSwitch *pin : m_pins) {
        if (pin->checkState() == Qt::Checked)
            levels |= 1u << pin->number();
    }
    return levels;
}

} // namespace Workbench
