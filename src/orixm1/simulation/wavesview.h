#pragma once

#include "firmware/sourceplaces.h"
#include "system/systemmap.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// What the processor's model calls functions and registers in waves (simulation/core/names.h
// there). A block without described registers is one register with its name.
QByteArray wavesNames(const SystemMap &map, const QVector<FunctionSymbol> &functions);

// A file for GTKWave that shows the waves of boardOf() in groups: clock and resets, the processor
// with function and register, its interrupts, the ports of each block. `waves`, `view`: full paths
// of both files.
QByteArray wavesView(const SystemMap &map, const QString &waves, const QString &view);

// Whether a file is one that wavesView() made: what somebody has saved from GTKWave is none.
bool isWavesView(const QByteArray &bytes);

} // namespace TARVOORIXM1
