#pragma once

#include "config/optionmap.h"

#include <dev/devicearg.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace TARVOORIXM1
{

// Something that a configuration has and that costs cells: a block, an option of one, a port of a
// bus, a size of a memory. The costs stand in the table that measurements are fitted to.
struct TermUse {
    int term = 0;  // index into termNames()
    QString block; // the label of the diagram that its cells belong to
    double count = 0;
};

// All terms, in a fixed order; each name once.
const QStringList &termNames();

// Whether a term costs table cells, or anything else. Multiplexers and constants are made of tables
// alone.
bool costsTables(int term);
bool costsOthers(int term);

// What generation makes of a configuration, in terms. Terms without a share are left out. Reads no
// file; every map of options has an answer, in which values beyond a domain count as generation
// takes them.
QVector<TermUse> termsOf(const OptionMap &options, const DEV::DeviceArg &device);

} // namespace TARVOORIXM1
