#pragma once

#include "document.h"
#include "system/systemmap.h"

namespace TARVOORIXM1
{

// Where the processor's own registers answer, which are of no map: the interrupt controller and the
// like.
constexpr quint32 ownRegistersBase = 0xE0000000;
constexpr quint32 ownRegistersLast = 0xE00FFFFF;

// The blocks of the subsystem on their buses: those that are on and those that are not.
Document::Picture blockPicture(const SystemMap &map);

// All addresses in their order; sizes are told, not drawn.
Document::Picture memoryPicture(const SystemMap &map);

// The processor's inputs, what requests at each, and what is lost.
Document::Picture interruptPicture(const SystemMap &map);

// A region's kind in a word or two: "registers", "black box".
QString shortKindName(RegionKind kind);

// "32 KB", "1000 bytes"; 1 KB is 1024 bytes.
QString sizeText(quint64 bytes);

// "1-3, 7" of ascending numbers.
QString rangesText(const QVector<int> &numbers);

} // namespace TARVOORIXM1
