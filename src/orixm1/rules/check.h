#pragma once

#include "config/optionmap.h"

#include <dev/devicearg.h>

#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// Something wrong (Error: the result won't work or isn't what the file says) or doubtful (Warning).
struct Finding {
    enum Severity { Warning, Error };
    Severity severity = Warning;
    QString key;
    QString message;
};

// Everything wrong or doubtful in a configuration. `device` may be null: rules about the device are
// then left out. `createInPath` is the folder that a relative initialisation path starts from.
// Reads the file system for the initialisation folder and its files only and changes nothing.
QVector<Finding> checkOptions(const OptionMap &options, const DEV::DeviceArg &device,
                              const QString &createInPath);

} // namespace TARVOORIXM1
