#include "designcheck.h"

#include "tr.h"

#include <reading/limits.h>

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Synthesis
{

namespace
{

bool isDirection(const QJsonValue &value)
{
    const QString text = value.toString();
    return text == QLatin1String("input") || text == QLatin1String("output") ||
           text == QLatin1String("inout");
}

bool isWhole(double number, double least, double most)
{
    return number >= least && number <= most && number == std::floor(number);
}

bool isBit(const QJsonValue &value)
{
    if (value.isString()) {
        const QString text = value.toString();
        return text.size() == 1 && QLatin1String("01xz").contains(text.at(0));
    }
    return value.isDouble() && isWhole(value.toDouble(), 0, std::numeric_limits<int>::max());
}

bool areBits(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    return value.isArray() && array.size() <= Reading::Limits::portWidth &&
           std::all_of(array.begin(), array.end(), isBit);
}

bool isOffset(const QJsonValue &value)
{
    using Reading::Limits::bitOffset;
    return value.isUndefined() ||
           (value.isDouble() && isWhole(value.toDouble(), -bitOffset, bitOffset));
}

QString portMistake(const QJsonObject &port)
{
    if (!isDirection(port.value(QLatin1String("direction"))))
        return Tr::tr("has no direction");
    if (port.value(QLatin1String("bits")).toArray().isEmpty())
        return Tr::tr("has no bits");
    if (!areBits(port.value(QLatin1String("bits"))) ||
        !isOffset(port.value(QLatin1String("offset"))))
        return Tr::tr("has bits that are none");
    return {};
}

// Of a cell.
QString connectionMistake(const QJsonObject &cell)
{
    const QJsonObject directions = cell.value(QLatin1String("port_directions")).toObject();
    for (auto it = directions.begin(); it != directions.end(); ++it) {
        if (!isDirection(it.value()))
            return Tr::tr("has the port \"%1\" without a direction").arg(it.key());
    }
    const QJsonObject connections = cell.value(QLatin1String("connections")).toObject();
    for (auto it = connections.begin(); it != connections.end(); ++it) {
        if (!areBits(it.value()))
            return Tr::tr("has something at \"%1\" that are no bits").arg(it.key());
    }
    return {};
}

QString netMistake(const QJsonObject &net)
{
    const bool good =
        areBits(net.value(QLatin1String("bits"))) && isOffset(net.value(QLatin1String("offset")));
    return good ? QString() : Tr::tr("has bits that are none");
}

struct Row {
    const char *key;
    const char *text; // of the thing, with its name and its module's
    QString (*mistakeOf)(const QJsonObject &);
};

constexpr Row rows[] = {
    {"ports", QT_TRANSLATE_NOOP("Synthesis", "the port \"%1\" of \"%2\" "), portMistake},
    {"cells", QT_TRANSLATE_NOOP("Synthesis", "the cell \"%1\" in \"%2\" "), connectionMistake},
    {"netnames", QT_TRANSLATE_NOOP("Synthesis", "the net \"%1\" in \"%2\" "), netMistake},
};

} // namespace

QString designMistake(const QJsonObject &modules)
{
    for (auto module = modules.begin(); module != modules.end(); ++module) {
        const QJsonObject contents = module.value().toObject();
        for (const Row &row : rows) {
            const QJsonObject things = contents.value(QLatin1String(row.key)).toObject();
            for (auto it = things.begin(); it != things.end(); ++it) {
                const QString mistake = row.mistakeOf(it.value().toObject());
                if (!mistake.isEmpty())
                    return Tr::tr(row.text).arg(it.key(), module.key()) + mistake;
            }
        }
    }
    return {};
}

} // namespace Synthesis
