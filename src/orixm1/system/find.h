#pragma once

#include "description.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace TARVOORIXM1
{

// Something in the subsystem that people look for by a name, an address or a number.
struct Findable {
    enum Kind { Block, Option, Pin, Region, Interrupt };

    Kind kind = Block;
    QString name;        // "UART0", "Enable UART0", "UART0TXD", "EXTINT2"
    QStringList aliases; // further texts that stand for it
    QString detail;      // what it is and how the configuration has it, a phrase
    // Label of the diagram's box whose dialog decides over it; empty: no dialog does.
    QString box;
    quint32 base = 0; // of a region
    quint32 last = 0; // its last byte
    int number = -1;  // of an interrupt; -1: another kind, or the non-maskable one
};

// Everything that can be found, what the configuration has and what it could switch on, in the
// order of the kinds. Of `description`, peripherals and interrupts count.
QVector<Findable> findables(const OptionMap &options, const DEV::DeviceArg &device,
                            const SystemDescription &description);

// Those that a query means, the best first: what is called so, then what begins so, then what has
// it inside, each in the order of `all`. Letter case, blanks, "-" and "_" count for nothing.
// A number is that of an interrupt ("12", "IRQ 12"), a hexadecimal one ("0x40000000",
// "4000_0000") an address: what begins there comes before what it lies in. Empty for a query
// without a letter or digit.
QVector<Findable> found(const QVector<Findable> &all, const QString &query);

// The address that a query means; none if it means something else.
std::optional<quint32> queriedAddress(const QString &query);

// "block", "pin": the kind in a word.
QString kindName(Findable::Kind kind);

} // namespace TARVOORIXM1
