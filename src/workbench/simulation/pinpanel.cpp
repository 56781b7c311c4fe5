#include "pinpanel.h"

#include "pinswitch.h"
#include "widgets/arrangement.h"

#include <QHBoxLayout>

namespace Workbench
{

PinPanel::PinPanel(QWidget *parent)
    : QWidget(parent)
    , m_eights(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    setObjectName(QStringLiteral("pinPanel"));
    setAccessibleName(tr("Pins of the GPIO"));
    m_eights->setContentsMargins(0, 0, 0, 0);
    m_eights->setSpacing(fontMetrics().averageCharWidth());
}

void PinPanel::setCount(int count)
{
    if (count == m_pins.size())
        return;
    qDeleteAll(m_pins);
    m_pins.clear();
    while (QLayoutItem *eight = m_eights->takeAt(0))
        delete eight;
    QHBoxLayout *row = nullptr;
    for (int number = 0; number < count; ++number) {
        if (number % 8 == 0) {
            row = new QHBoxLayout;
            row->setSpacing(0);
            const bool isLast = number + 8 >= count;
            m_eights->addLayout(row, isLast ? 1 : 0);
            m_eights->setAlignment(row, Qt::AlignLeft);
        }
        auto *pin = new PinSwitch(number);
        pin->setObjectName(QStringLiteral("pin%1").arg(number));
        pin->setFocusPolicy(number == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        connect(pin, &QCheckBox::stateChanged, this, &PinPanel::switched);
        connect(pin, &PinSwitch::moveRequested, this, [this, number](int steps) {
            if (PinSwitch *next = m_pins.value(number + steps))
                next->setFocus(Qt::TabFocusReason);
        });
        row->addWidget(pin);
        m_pins.append(pin);
    }
}

void PinPanel::arrange(int room)
{
    arrangeIn(m_eights, room);
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
