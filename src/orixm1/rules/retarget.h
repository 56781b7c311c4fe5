#pragma once

#include "config/optionmap.h"

#include <dev/devicearg.h>

#include <QString>
#include <QVariant>
#include <QVector>

namespace TARVOORIXM1
{

// Something that a configuration had on its old device and cannot have on the new one.
struct Loss {
    QString key;
    QVariant before; // what generation made of the key on the old device
    QVariant after;  // what it makes of it on the new one
};

struct Retargeted {
    OptionMap options;
    QVector<Loss> losses; // in the order of the option table
};

// Moves a configuration to another device. What the new device can have stays as generation read
// it on the old one; for that, keys that the old configuration left open are set where the new
// device would read them otherwise. What it cannot have is switched off or made as large as the
// dialogs of the new device allow. Values outside of their domains stay as they are. `from` may be
// null (an unknown device): sizes that were left open then stay open.
Retargeted retarget(const OptionMap &options, const DEV::DeviceArg &from, const DEV::DeviceArg &to);

// A loss in a sentence for the user, such as "CAN is taken out: TV1KL-5A cannot have it.".
QString lossSentence(const Loss &loss, const Retargeted &result, const DEV::DeviceArg &to);

} // namespace TARVOORIXM1
