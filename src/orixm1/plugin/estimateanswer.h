#pragma once

#include <QString>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// What a configuration, in the form in which a dialog tells it (`header` and `options`), will take
// of its device: {"resources": list of {"resource", "value", "low", "high", "available"}; "pins":
// {"used", "available"}; "blocks": list of {"block", "resources": list of {"resource", "value"}};
// "blackBoxes": list of {"cell", "count", "note"}}. "available" is -1 where nobody knows it. What
// cannot be estimated: {"error": a sentence}. `dataPath` is the folder with the table.
QVariantMap estimateAnswer(const QVariantMap &configuration, const QString &dataPath,
                           const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
