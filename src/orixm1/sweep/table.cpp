#include "table.h"

#include "config/latin1literal.h"
#include "plan.h"

#include <reading/jsontext.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct StateRow {
    PointState state;
    QLatin1String name;
};

constexpr StateRow states[] = {
    {PointState::Done, "done"_l1},         {PointState::Generated, "generated"_l1},
    {PointState::Possible, "possible"_l1}, {PointState::Impossible, "not possible"_l1},
    {PointState::Failed, "failed"_l1},     {PointState::Open, "not done"_l1},
};

// Of all points, in the order of the first that has any.
QStringList resourcesOf(const SweepTable &table)
{
    QStringList names;
    for (const SweepResult &result : table.results) {
        for (const ResourceFigure &figure : result.resources) {
            if (!names.contains(figure.resource))
                names.append(figure.resource);
        }
    }
    return names;
}

const ResourceFigure *figureOf(const SweepResult &result, const QString &resource)
{
    const auto it = std::find_if(
        result.resources.begin(), result.resources.end(),
        [&resource](const ResourceFigure &figure) { return figure.resource == resource; });
    return it == result.resources.end() ? nullptr : &*it;
}

QString number(int value)
{
    return value < 0 ? QString() : QString::number(value);
}

QString csvField(const QString &text)
{
    static const QString special = QStringLiteral(",\"\r\n");
    const bool isSpecial =
        std::any_of(text.begin(), text.end(), [](QChar c) { return special.contains(c); });
    QString quoted = text;
    return isSpecial ? QString(u'"' + quoted.replace("\""_l1, "\"\""_l1) + u'"') : text;
}

QByteArray csvLine(const QStringList &fields)
{
    QStringList texts;
    for (const QString &field : fields)
        texts.append(csvField(field));
    return texts.join(u',').toUtf8() + "\r\n";
}

QJsonObject jsonOf(const SweepResult &result)
{
    QJsonObject settings;
    for (auto it = result.settings.begin(); it != result.settings.end(); ++it)
        settings.insert(it.key(), QJsonValue::fromVariant(it.value()));
    QJsonArray resources;
    for (const ResourceFigure &figure : result.resources) {
        QJsonObject object{{QStringLiteral("resource"), figure.resource},
                           {QStringLiteral("used"), figure.used}};
        if (figure.available >= 0) {
            object.insert(QStringLiteral("available"), figure.available);
            object.insert(QStringLiteral("percent"), figure.percent);
        }
        resources.append(object);
    }
    QJsonObject object{{QStringLiteral("point"), result.name},
                       {QStringLiteral("device"), result.device},
                       {QStringLiteral("settings"), settings},
                       {QStringLiteral("state"), stateName(result.state)},
                       {QStringLiteral("resources"), resources}};
    if (!result.reason.isEmpty())
        object.insert(QStringLiteral("reason"), result.reason);
    return object;
}

} // namespace

QString stateName(PointState state)
{
    return std::find_if(std::begin(states), std::end(states),
                        [state](const StateRow &row) { return row.state == state; })
        ->name;
}

int countOf(const SweepTable &table, PointState state)
{
    return int(std::count_if(table.results.begin(), table.results.end(),
                             [state](const SweepResult &result) { return result.state == state; }));
}

QString countSentence(const SweepTable &table)
{
    QStringList parts;
    for (const StateRow &row : states) {
        if (const int count = countOf(table, row.state))
            parts.append(QString::number(count) + u' ' + row.name);
    }
    const int count = table.results.size();
    QString text = QString::number(count) + (count == 1 ? " point"_l1 : " points"_l1);
    if (!parts.isEmpty())
        text += ": "_l1 + parts.join(", "_l1);
    return text + u'.';
}

QStringList tableLines(const SweepTable &table)
{
    // What no point uses is left out.
    QStringList resources;
    const QStringList all = resourcesOf(table);
    for (const QString &resource : all) {
        const bool isUsed = std::any_of(
            table.results.begin(), table.results.end(), [&resource](const SweepResult &result) {
                const ResourceFigure *figure = figureOf(result, resource);
                return figure && figure->used > 0;
            });
        if (isUsed)
            resources.append(resource);
    }
    QVector<QStringList> rows = {{QStringLiteral("POINT"), QStringLiteral("STATE")}};
    for (const QString &resource : qAsConst(resources))
        rows[0].append(resource.toUpper());
    QStringList reasons;
    for (const SweepResult &result : table.results) {
        QStringList row = {result.name, stateName(result.state)};
        for (const QString &resource : qAsConst(resources)) {
            const ResourceFigure *figure = figureOf(result, resource);
            QString text = figure ? QString::number(figure->used) : QString();
            if (figure && figure->percent >= 0)
                text += " ("_l1 + QString::number(figure->percent) + " %)"_l1;
            row.append(text);
        }
        rows.append(row);
        if (!result.reason.isEmpty())
            reasons.append(result.name + ": "_l1 + stateName(result.state) + ": "_l1 +
                           result.reason);
    }
    QStringList lines;
    QVector<int> widths(rows.at(0).size(), 0);
    for (const QStringList &row : qAsConst(rows)) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths.at(i), row.at(i).size());
    }
    for (const QStringList &row : qAsConst(rows)) {
        QString line;
        for (int i = 0; i < row.size(); ++i)
            line += i < 2 ? QString(row.at(i).leftJustified(widths.at(i)) + "  "_l1)
                          : QString(row.at(i).rightJustified(widths.at(i)) + "  "_l1);
        while (line.endsWith(u' '))
            line.chop(1);
        lines.append(line);
    }
    return lines + reasons;
}

QByteArray tableCsv(const SweepTable &table)
{
    const QStringList resources = resourcesOf(table);
    QStringList head = {QStringLiteral("point"), QStringLiteral("device"), QStringLiteral("state"),
                        QStringLiteral("reason")};
    head += table.keys;
    for (const QString &resource : resources)
        head += {resource, resource + " available"_l1, resource + " %"_l1};
    QByteArray bytes = csvLine(head);
    for (const SweepResult &result : table.results) {
        QStringList line = {result.name, result.device, stateName(result.state), result.reason};
        for (const QString &key : table.keys)
            line.append(result.settings.value(key).toString());
        for (const QString &resource : resources) {
            const ResourceFigure *figure = figureOf(result, resource);
            line += {figure ? number(figure->used) : QString(),
                     figure ? number(figure->available) : QString(),
                     figure ? number(figure->percent) : QString()};
        }
        bytes += csvLine(line);
    }
    return bytes;
}

QJsonObject tableJson(const SweepTable &table)
{
    QJsonArray points;
    for (const SweepResult &result : table.results)
        points.append(jsonOf(result));
    QJsonObject counts;
    for (const StateRow &row : states)
        counts.insert(row.name, countOf(table, row.state));
    return {{QStringLiteral("points"), points},
            {QStringLiteral("counts"), counts},
            {QStringLiteral("keys"), QJsonArray::fromStringList(table.keys)}};
}

QByteArray indexText(const SweepTable &table)
{
    QJsonArray points;
    for (const SweepResult &result : table.results) {
        QJsonObject object = jsonOf(result);
        object.remove("resources"_l1);
        points.append(object);
    }
    return QJsonDocument(
               QJsonObject{{QStringLiteral("keys"), QJsonArray::fromStringList(table.keys)},
                           {QStringLiteral("picture"),
                            QJsonObject{{"x"_l1, table.pictureX}, {"y"_l1, table.pictureY}}},
                           {QStringLiteral("points"), points}})
        .toJson();
}

Utils::Result<SweepTable> readIndex(const QByteArray &text)
{
    const Reading::JsonText json = Reading::readJson(text);
    if (json.mistake.offset >= 0)
        return Utils::Failure{"line "_l1 +
                              QString::number(Reading::placeIn(text, json.mistake.offset).line) +
                              ": "_l1 + json.mistake.reason};
    const QJsonObject root = json.document.object();
    SweepTable table;
    const QJsonArray keys = root.value("keys"_l1).toArray();
    for (const QJsonValue &key : keys)
        table.keys.append(key.toString());
    const QJsonObject picture = root.value("picture"_l1).toObject();
    table.pictureX = picture.value("x"_l1).toString();
    table.pictureY = picture.value("y"_l1).toString();
    const QJsonArray points = root.value("points"_l1).toArray();
    if (points.isEmpty() || points.size() > mostSweepPoints)
        return Utils::Failure{QStringLiteral("it has no points, or too many")};
    static const QRegularExpression name(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9_][A-Za-z0-9._=-]{0,199}")));
    for (const QJsonValue &value : points) {
        const QJsonObject object = value.toObject();
        SweepResult result;
        result.name = object.value("point"_l1).toString();
        if (!name.match(result.name).hasMatch())
            return Utils::Failure{u'"' + result.name + "\" is no name of a point"_l1};
        result.device = object.value("device"_l1).toString();
        result.settings = object.value("settings"_l1).toObject().toVariantMap();
        result.reason = object.value("reason"_l1).toString();
        const QString state = object.value("state"_l1).toString();
        for (const StateRow &row : states) {
            if (row.name == state)
                result.state = row.state;
        }
        table.results.append(result);
    }
    return table;
}

} // namespace TARVOORIXM1
