#pragma once

#include "config/optionmap.h"

#include <dev/devicearg.h>

#include <QString>
#include <QVector>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// Something in a configuration file that this program would not have written.
struct Mend {
    QString key;        // of the option, or of the entry outside of the options
    QString problem;    // a part of a sentence about the key
    QString fix;        // what puts it right, likewise
    bool isMade = true; // false: nobody but the user can decide; `fix` says how
};

struct Upgraded {
    QVariantMap frame; // the entries outside of the options, mended
    OptionMap options;
    QVector<Mend> mends;
};

// A file's entries as this program would have written them, by their full keys, and what had to be
// changed for that. The configuration is one of the IP `ipId`. `chosen` is the device that the user
// wants instead of one that is not known; it may be null. Entries that nobody knows stay.
Upgraded upgraded(const QVariantMap &entries, const QString &ipId, const DEV::DeviceDb &devices,
                  const DEV::DeviceArg &chosen);

} // namespace TARVOORIXM1
