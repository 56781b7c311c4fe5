#pragma once

#include "document.h"
#include "drawing.h"
#include "system/systemmap.h"

#include <QRect>

namespace TARVOORIXM1
{

// Where the processor's own registers answer, which are of no map: the interrupt controller and the
// like.
constexpr quint32 ownRegistersBase = 0xE0000000;
constexpr quint32 ownRegistersLast = 0xE00FFFFF;

// The blocks of the subsystem on their buses: those that are on and those that are not.
Document::Picture blockPicture(const SystemMap &map);

// How a picture is going to be looked at; as it comes, on a page of the datasheet.
struct PictureStyle {
    Paper paper = Paper::Light;
    bool isOneColumn = false; // where the reader scrolls, and pages do not end
};

// Where in a picture something stands.
struct Place {
    QString name; // of the region or the interrupt
    QRect box;    // pixels of the picture
};

struct PlacedPicture {
    Document::Picture picture;
    QVector<Place> places; // from top to bottom, column by column; they do not overlap
};

// All addresses in their order; sizes are told, not drawn. Each region has a place.
PlacedPicture memoryPicture(const SystemMap &map, const PictureStyle &style = {});

// The processor's inputs, what requests at each, and what is lost. Each interrupt has a place.
PlacedPicture interruptPicture(const SystemMap &map, const PictureStyle &style = {});

// A region's kind in a word or two: "registers", "black box".
QString shortKindName(RegionKind kind);

// "32 KB", "1000 bytes"; 1 KB is 1024 bytes.
QString sizeText(quint64 bytes);

// "1-3, 7" of ascending numbers.
QString rangesText(const QVector<int> &numbers);

} // namespace TARVOORIXM1
