#pragma once

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// What the tightly coupled memories of a device may measure. Sizes are texts such as "16 KB"; a
// size list starts at "1 KB" and doubles, so that an index means the same size in every list:
// 2^index KB.
struct TcmSizes {
    QStringList full;    // all sizes; empty for an unknown device
    QStringList reduced; // what one memory is offered while the other has the largest size and both
                         // are internal
    QString largest;     // the last of `full`
    QString defaultSize; // selected on a fresh page
};

TcmSizes tcmSizes(const QString &device);

// "1 KB" up to the size with this index (at most 9, "512 KB"); none for a negative index.
QStringList tcmSizeList(int lastIndex);

// Whether two internal memories with these size indexes can stand side by side: one may be larger
// than the reduced list only while the other is smaller than the largest size. Both fit on an
// unknown device.
struct TcmFit {
    bool itcm = true;
    bool dtcm = true;
    bool both() const { return itcm && dtcm; }
};
TcmFit tcmFit(const TcmSizes &sizes, int itcm, int dtcm);

// What one memory's combo box offers, and the selected index; -1: nothing is selected.
struct TcmOffer {
    QStringList sizes;
    int current = -1;
};

struct TcmOffers {
    TcmOffer itcm;
    TcmOffer dtcm;
};

// What both memories are offered after a change of size, given the two selected texts: where both
// are internal, one gets the reduced list while the other has the largest size. The DTCM is settled
// first. A selection that the new list lacks becomes the last entry of a reduced list, and none in
// a full list. The tables are taken as they are: a reduced list may be as long as the full one, or
// longer.
TcmOffers balancedTcmSizes(const QString &device, const QString &itcm, const QString &dtcm,
                           bool bothInternal);

} // namespace TARVOORIXM1
