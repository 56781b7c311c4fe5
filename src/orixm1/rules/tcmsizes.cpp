#include "tcmsizes.h"

#include "config/latin1literal.h"
#include "devicerules.h"

#include <QtGlobal>

namespace TARVOORIXM1
{

namespace
{

struct FullRow {
    QLatin1String devices;
    int lastIndex;
    int defaultIndex;
};

// The first matching row wins; a device that no row names has no sizes.
constexpr FullRow fullRows[] = {
    {"TV1KL-5A/TV1KL-5B"_l1, 3, 3},
    {"TV1L-9/TV1LR-9/TV1L-9C/TV1LR-9C/TV2KL-9X/TV1KL-9A"_l1, 5, 4},
    {"TV2K-18/TV2KR-18/TV2K-18C/TV2KR-18C/TV2KLR-18C"_l1, 6, 5},
    {"TV2KL-18X"_l1, 5, 4},
    {"TV2K-55/TV2K-55C/TV2KL-55C/TV3K-50A"_l1, 8, 6},
    {"TV5K-25A/TV5K-25B/TV5KS-25B/TV5KR-25B/TV5KRT-15A/TV5KRT-15B/TV5KT-15B/"
     "TV5KLT-15A/TV5KLRT-15A/TV5KT-15A/TV5KS-25A/TV5KR-25A"_l1,
     6, 5},
    {"TV5KT-75B/TV5KT-75C"_l1, 8, 7},
    {"TV5KT-60ES/TV5KT-60B/TV5K-60B"_l1, 7, 6},
    {"TV5KT-138/TV5KT-138B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/TV5KT-138C/"
     "TV5K-138B/TV5KS-138B"_l1,
     9, 7},
    {"TV3K-20A/TV3KR-20A/TV3K-10A"_l1, 6, 5},
};

struct ReducedRow {
    QLatin1String devices;
    int lastIndex;
};

constexpr ReducedRow reducedRows[] = {
    {"TV5KT-138/TV5KT-138B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/TV5KT-138C/"
     "TV5K-138B/TV5KS-138B"_l1,
     7},
    {"TV5K-25A/TV5K-25B/TV5KS-25B/TV5KR-25B/TV5KS-25A/TV5KR-25A"_l1, 5},
    {"TV5KRT-15A/TV5KRT-15B/TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A"_l1, 3},
    {"TV5KT-75B/TV5KT-75C"_l1, 8},
    {"TV5KT-60ES/TV5KT-60B/TV5K-60B"_l1, 6},
    {"TV3K-20A/TV3KR-20A/TV3K-10A"_l1, 5},
};
// All other devices, also those whose full list is shorter.
constexpr int catchAllReducedIndex = 4;

TcmOffer offer(const TcmSizes &sizes, bool limited, const QString &keep)
{
    TcmOffer result;
    result.sizes = limited ? sizes.reduced : sizes.full;
    result.current = result.sizes.indexOf(keep);
    if (limited && result.current < 0)
        result.current = result.sizes.size() - 1;
    return result;
}

} // namespace

QStringList tcmSizeList(int lastIndex)
{
    QStringList sizes;
    for (int i = 0; i <= qMin(lastIndex, 9); ++i)
        sizes.append(QString::number(1 << i) + " KB"_l1);
    return sizes;
}

TcmSizes tcmSizes(const QString &device)
{
    TcmSizes sizes;
    for (const FullRow &row : fullRows) {
        if (isInDeviceList(device, row.devices)) {
            sizes.full = tcmSizeList(row.lastIndex);
            sizes.largest = sizes.full.last();
            sizes.defaultSize = sizes.full.at(row.defaultIndex);
            break;
        }
    }
    int reducedIndex = catchAllReducedIndex;
    for (const ReducedRow &row : reducedRows) {
        if (isInDeviceList(device, row.devices)) {
            reducedIndex = row.lastIndex;
            break;
        }
    }
    sizes.reduced = tcmSizeList(reducedIndex);
    return sizes;
}

TcmFit tcmFit(const TcmSizes &sizes, int itcm, int dtcm)
{
    TcmFit fit;
    if (sizes.full.isEmpty())
        return fit;
    const int largest = sizes.full.size() - 1;
    fit.itcm = dtcm != largest || itcm < sizes.reduced.size();
    fit.dtcm = itcm != largest || dtcm < sizes.reduced.size();
    return fit;
}

TcmOffers balancedTcmSizes(const QString &device, const QString &itcm, const QString &dtcm,
                           bool bothInternal)
{
    const TcmSizes sizes = tcmSizes(device);
    TcmOffers offers;
    offers.dtcm = offer(sizes, bothInternal && itcm == sizes.largest, dtcm);
    const QString settled = offers.dtcm.sizes.value(offers.dtcm.current);
    offers.itcm = offer(sizes, bothInternal && settled == sizes.largest, itcm);
    return offers;
}

} // namespace TARVOORIXM1
