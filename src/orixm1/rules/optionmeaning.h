#pragma once

#include "config/optionmap.h"
#include "config/optiontable.h"

#include <dev/devicearg.h>

#include <QString>
#include <QVariant>
#include <QVector>

namespace TARVOORIXM1
{

// What a key comes to in a configuration of a device.
struct OptionMeaning {
    enum Origin {
        Stored,
        DeviceDefault, // nothing is stored, and devices differ in what they take
        Default,       // nothing is stored
        Unknown,       // nothing is stored for a key that no option has
    };

    QString key;
    Origin origin = Default;
    // What generation takes, as the option's type; a stored text that is no such value stays a
    // text. Invalid if the origin is Unknown.
    QVariant value;
    // What the option's dialog takes; differs from `value` only where nothing is stored.
    QVariant dialog;

    bool isStored() const { return origin == Stored; }
    // In generation and in the dialogs, wherever it comes from.
    bool isSameAs(const OptionMeaning &other) const;
};

// Also of a key that no option has.
OptionMeaning meaningOf(const OptionMap &options, const QString &key, const DEV::DeviceArg &device);

// Of every option and of whatever else the configuration holds: first in the order of the option
// table, then by key.
QVector<OptionMeaning> meaningsOf(const OptionMap &options, const DEV::DeviceArg &device);

// A stored value as the option's type; as a text if it is no such value.
QVariant typedValue(const Option &option, const QVariant &stored);

// The text of a value for people and for settings: "true", "16", "JTAG".
QString valueText(const QVariant &value);

// A key that means different things in two configurations.
struct OptionDifference {
    OptionMeaning before;
    OptionMeaning after;
};

// In the order of meaningsOf(). The keys that only name each one's device are left out.
QVector<OptionDifference> optionDifferences(const OptionMap &before,
                                            const DEV::DeviceArg &beforeDevice,
                                            const OptionMap &after,
                                            const DEV::DeviceArg &afterDevice);

// The configuration without the entries that say what their absence says, to generation and to the
// dialogs of the device. Entries that no option has stay.
OptionMap minimized(const OptionMap &options, const DEV::DeviceArg &device);

} // namespace TARVOORIXM1
