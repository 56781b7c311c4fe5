#pragma once

#include "measurement.h"

#include <estimate/table.h>

#include <dev/devicedb.h>

// What an estimate of these resources may be off by at most in 98 of 100 configurations. Of the
// others it must be exact.
TARVOORIXM1::Tolerance promisedTolerance(const QString &resource);

// How far an estimate is off, in tolerances that are promised: 1 is the most that is allowed.
double missOf(const QString &resource, int estimated, int used);

// The costs that follow from the measurements that are not held out, by least squares; each error
// counts in proportion to what is promised. The tolerances hold for everything in the list, the
// held out ones and the random ones as the others foretell them, and half of that is added. Terms
// that no measurement has have no costs.
TARVOORIXM1::EstimateTable fittedTable(const Measurements &measurements,
                                       const DEV::DeviceDb &devices);
