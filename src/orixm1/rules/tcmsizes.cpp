#include "tcmsizes.h"

#include "config/latin1literal.h"
#include "devicetable.h"

#include <QtGlobal>

namespace TARVOORIXM1
{

namespace
{

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
    const TcmFacts &facts = deviceClass(device).tcm;
    TcmSizes sizes;
    sizes.full = tcmSizeList(facts.largest);
    sizes.largest = sizes.full.value(facts.largest);
    sizes.defaultSize = sizes.full.value(facts.preset);
    sizes.reduced = tcmSizeList(facts.reduced);
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
