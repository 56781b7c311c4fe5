#pragma once

#include "config/latin1literal.h"
#include "names.h"

#include <QString>

namespace TARVOORIXM1
{

// A name among the components of everybody: vendor, library, name and version.
struct Vlnv {
    QString library;
    QString name;
    QLatin1String vendor = "tarvo"_l1;
    QLatin1String version = "1.0"_l1;
};

// "tarvo:orixm1:tarvo_orix_m1:1.0" of the subsystem.
inline Vlnv subsystemVlnv(const SystemMap &map)
{
    return {QStringLiteral("orixm1"), fileName(map, QLatin1String())};
}

} // namespace TARVOORIXM1
