#include "fuzz.h"

#include <config/optiontable.h>
#include <sweep/plan.h>

#include <QSet>

using namespace TARVOORIXM1;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    const QStringList resources = {QStringLiteral("LUT4"), QStringLiteral("Flip-flops")};
    const SweepPlanText read = readSweepPlan(bytes, DEV::DeviceDb::bundled(), resources);
    for (const PlanMistake &mistake : read.mistakes) {
        REQUIRE(!mistake.text.isEmpty());
        REQUIRE(mistake.line >= 1 && mistake.line <= Fuzz::lineCount(bytes) && mistake.column >= 1);
    }
    if (!read.mistakes.isEmpty())
        return 0;
    const SweepPlan &plan = read.plan;
    for (const GridAxis &axis : plan.grid)
        REQUIRE(findOption(axis.key) && !axis.values.isEmpty());
    REQUIRE(plan.pictureY.isEmpty() || resources.contains(plan.pictureY));
    const int count = sweepPointCount(plan);
    REQUIRE(count >= 1 && count <= mostSweepPoints + 1);
    if (count > 500)
        return 0;
    const DEV::DeviceArg base = DEV::DeviceDb::bundled().devices().first();
    const QVector<SweepPoint> points = sweepPoints(plan, base);
    REQUIRE(points.size() == count);
    QSet<QString> names;
    const QStringList varied = variedKeys(plan);
    for (const SweepPoint &point : points) {
        names.insert(point.name);
        REQUIRE(!point.name.isEmpty() && point.name.size() < 200 && !point.name.startsWith(u'.'));
        for (const QChar c : point.name)
            REQUIRE((c.unicode() < 128 && c.isLetterOrNumber()) ||
                    QStringLiteral("-._=").contains(c));
        REQUIRE(!point.device.isNull());
        isExcluded(plan, point.device, point.settings);
        for (const QString &key : varied)
            REQUIRE(findOption(key));
    }
    // Each has a folder of its own.
    REQUIRE(names.size() == points.size());
    return 0;
}
