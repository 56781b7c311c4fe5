#include "pinfigure.h"

#include <QDebug>

namespace Utils
{

PinFigure::PinFigure(const QString &name, int direction, bool bus, Qt::AlignmentFlag side)
    : m_name(name)
    , m_direction(direction)
    , m_bus(bus)
    , m_side(side)
{
}

bool PinFigure::operator==(const PinFigure &other) const
{
    return m_name == other.m_name && m_direction == other.m_direction && m_bus == other.m_bus &&
           m_side == other.m_side;
}

QDebug operator<<(QDebug debug, const PinFigure &pin)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "PinFigure(" << pin.name() << ", " << pin.direction() << ", " << pin.isBus()
                    << ", " << pin.side() << ')';
    return debug;
}

} // namespace Utils
