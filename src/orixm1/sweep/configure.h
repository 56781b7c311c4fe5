#pragma once

#include "config/optionmap.h"
#include "plan.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// What the points of a sweep start from.
struct SweepBase {
    DEV::DeviceArg device; // null: there is no configuration, only defaults
    OptionMap options;
    QString folder; // that a relative initialisation path of `options` starts from, absolute
};

// The configuration of a point, and whether it can be made.
struct PointConfiguration {
    OptionMap options;
    QString impossible; // why the device cannot have it, as clauses; empty if it can
    QString mistake;    // why no device could have it, likewise
};

// Puts a point's settings onto the base, on the point's device, and checks the whole as "orixm1
// check" does. Nothing is taken out or made smaller to fit the device. `folder` is the point's
// output folder, `planFolder` where a relative path of the plan starts from; both absolute.
PointConfiguration configure(const SweepPoint &point, const SweepBase &base, const QString &folder,
                             const QString &planFolder);

} // namespace TARVOORIXM1
