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

} // namespace TARVOORIXM1
