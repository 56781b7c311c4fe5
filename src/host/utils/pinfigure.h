#pragma once

#include "utils_global.h"

#include <QMetaType>
#include <QString>
#include <Qt>

class QDebug;

namespace Utils
{

// One pin of a block figure: what is printed at the pin and how it is drawn. A plain value.
class TARVO_UTILS_EXPORT PinFigure
{
public:
    enum Direction { Input = 0, Output = 1, Bidirectional = 2 };

    PinFigure() = default;

    // `direction` is one of Direction; `bus` draws the pin as a bus; `side` is Qt::AlignLeft or
    // Qt::AlignRight.
    PinFigure(const QString &name, int direction, bool bus, Qt::AlignmentFlag side);

    QString name() const { return m_name; }
    int direction() const { return m_direction; }
    bool isBus() const { return m_bus; }
    Qt::AlignmentFlag side() const { return m_side; }

    bool operator==(const PinFigure &other) const;
    bool operator!=(const PinFigure &other) const { return !(*this == other); }

private:
    QString m_name;
    int m_direction = Input;
    bool m_bus = false;
    Qt::AlignmentFlag m_side = Qt::AlignLeft;
};

TARVO_UTILS_EXPORT QDebug operator<<(QDebug debug, const PinFigure &pin);

} // namespace Utils

Q_DECLARE_METATYPE(Utils::PinFigure)
Q_DECLARE_TYPEINFO(Utils::PinFigure, Q_MOVABLE_TYPE);
