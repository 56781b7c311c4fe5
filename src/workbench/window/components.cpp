#include "components.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

static void initResource()
{
    Q_INIT_RESOURCE(components);
}

namespace Workbench
{

QVector<Component> components()
{
    initResource();
    QFile file(QStringLiteral(":/workbench/components.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Component> result;
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll())
                                .object()
                                .value(QLatin1String("components"))
                                .toArray();
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const auto text = [&row](const char *key) { return row[QLatin1String(key)].toString(); };
        const QString use = text("use");
        if (use == QLatin1String("build") || use == QLatin1String("test"))
            continue;
        result.append({text("name"), text("purpose"), text("licence"), text("package"),
                       text("program"), text("versionArgument")});
    }
    return result;
}

} // namespace Workbench
