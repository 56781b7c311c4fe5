#include "estimateanswer.h"

#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "estimate/estimate.h"

#include <dev/devicedb.h>

namespace TARVOORIXM1
{

namespace
{

QVariantMap refusal(const QString &reason)
{
    return {{QStringLiteral("error"), reason}};
}

QString noteOf(const EstimatedBlackBox &box, const QVector<EstimatedResource> &resources)
{
    if (box.supplier.source.isEmpty())
        return box.text;
    QStringList figures;
    for (const EstimatedResource &resource : resources) {
        if (box.supplier.used.contains(resource.resource))
            figures << QString::number(box.supplier.used.value(resource.resource)) + u' ' +
                           resource.resource;
    }
    return box.text + "; "_l1 + box.supplier.source + ": "_l1 + figures.join(", "_l1);
}

} // namespace

QVariantMap estimateAnswer(const QVariantMap &configuration, const QString &dataPath,
                           const DEV::DeviceDb &devices)
{
    const QString id = IpcFile::deviceIdOf(configuration.value(QStringLiteral("header")).toMap());
    const DEV::DeviceArg device = devices.findDevice(id);
    if (device.isNull())
        return refusal(id.isEmpty() ? QStringLiteral("The configuration names no device.")
                                    : QString("The device \""_l1 + id + "\" is not known."_l1));
    const OptionMap options = configuration.value(QStringLiteral("options")).toMap();
    const Utils::Result<EstimateTable> table = readEstimateTable(dataPath);
    if (!table)
        return refusal(table.reason());
    const Utils::Result<Estimate> result = estimate(options, device, *table);
    if (!result)
        return refusal(result.reason());

    QVariantList resources;
    for (const EstimatedResource &resource : result->resources)
        resources.append(QVariantMap{{QStringLiteral("resource"), resource.resource},
                                     {QStringLiteral("value"), resource.value},
                                     {QStringLiteral("low"), resource.low},
                                     {QStringLiteral("high"), resource.high},
                                     {QStringLiteral("available"), resource.available}});
    QVariantList blocks;
    for (const BlockShare &share : result->blocks) {
        QVariantList values;
        for (int i = 0; i < share.values.size(); ++i)
            values.append(
                QVariantMap{{QStringLiteral("resource"), result->resources.at(i).resource},
                            {QStringLiteral("value"), share.values.at(i)}});
        blocks.append(QVariantMap{{QStringLiteral("block"), share.block},
                                  {QStringLiteral("resources"), values}});
    }
    QVariantList boxes;
    for (const EstimatedBlackBox &box : result->blackBoxes)
        boxes.append(QVariantMap{{QStringLiteral("cell"), box.cell},
                                 {QStringLiteral("count"), box.count},
                                 {QStringLiteral("note"), noteOf(box, result->resources)}});
    // The device database does not know how many pins a package has.
    const QVariantMap pins{{QStringLiteral("used"), usedPins(options, device)},
                           {QStringLiteral("available"), -1}};
    return {{QStringLiteral("resources"), resources},
            {QStringLiteral("pins"), pins},
            {QStringLiteral("blocks"), blocks},
            {QStringLiteral("blackBoxes"), boxes}};
}

} // namespace TARVOORIXM1
