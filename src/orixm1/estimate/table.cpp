#include "table.h"

#include "config/latin1literal.h"
#include "terms.h"

#include <reading/jsontext.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace TARVOORIXM1
{

namespace
{

constexpr auto tableName = "/estimate.json"_l1;
constexpr auto blackBoxName = "/black-boxes.json"_l1;

QString nameOf(const QString &path)
{
    return u'"' + QDir::toNativeSeparators(path) + u'"';
}

Utils::Failure failure(const QString &path, const QString &reason)
{
    return Utils::Failure{nameOf(path) + ": "_l1 + reason + u'.'};
}

Utils::Result<QJsonObject> readObject(const QString &path)
{
    QByteArray bytes;
    QString reason;
    if (!Reading::readPlainFile(path, Reading::Limits::registerFile, &bytes, &reason))
        return failure(path, reason);
    const Reading::JsonText text = Reading::readJson(bytes);
    if (text.mistake.offset >= 0)
        return failure(
            path, "line "_l1 + QString::number(Reading::placeIn(bytes, text.mistake.offset).line) +
                      ": "_l1 + text.mistake.reason);
    if (!text.document.isObject())
        return failure(path, "it is no object"_l1);
    return text.document.object();
}

// A failure is a clause.
Utils::Result<void> readResources(const QJsonArray &list, EstimateTable *table)
{
    for (const QJsonValue &value : list) {
        const QJsonObject entry = value.toObject();
        const QString name = entry.value("resource"_l1).toString();
        if (name.isEmpty() || table->resources.contains(name))
            return Utils::Failure{QStringLiteral("a resource has no name of its own")};
        const Tolerance tolerance = {entry.value("cells"_l1).toDouble(-1),
                                     entry.value("percent"_l1).toDouble(-1)};
        if (tolerance.cells < 0 || tolerance.percent < 0)
            return Utils::Failure{"the tolerance of \""_l1 + name + "\" is none"_l1};
        table->resources << name;
        table->tolerances << tolerance;
    }
    if (table->resources.isEmpty())
        return Utils::Failure{QStringLiteral("it has no resources")};
    return {};
}

// A failure is a clause.
Utils::Result<void> readCosts(const QJsonObject &terms, EstimateTable *table)
{
    table->costs.resize(termNames().size());
    for (auto term = terms.begin(); term != terms.end(); ++term) {
        const int index = termNames().indexOf(term.key());
        if (index < 0)
            return Utils::Failure{u'"' + term.key() + "\" is no term"_l1};
        QVector<double> &costs = table->costs[index];
        costs.fill(0, table->resources.size());
        const QJsonObject shares = term.value().toObject();
        for (auto share = shares.begin(); share != shares.end(); ++share) {
            const int resource = table->resources.indexOf(share.key());
            if (resource < 0 || !share.value().isDouble())
                return Utils::Failure{u'"' + term.key() + "\": \""_l1 + share.key() +
                                      "\" is no resource with a number"_l1};
            costs[resource] = share.value().toDouble();
        }
    }
    return {};
}

// A failure is a clause.
Utils::Result<void> readBlackBoxes(const QJsonObject &modules, EstimateTable *table)
{
    for (auto module = modules.begin(); module != modules.end(); ++module) {
        if (module.value().isNull())
            continue;
        const QJsonObject entry = module.value().toObject();
        SupplierFigures figures;
        figures.source = entry.value("source"_l1).toString();
        if (figures.source.isEmpty())
            return Utils::Failure{u'"' + module.key() + "\" names no data sheet as its source"_l1};
        const QJsonObject used = entry.value("resources"_l1).toObject();
        for (auto resource = used.begin(); resource != used.end(); ++resource) {
            const int count = resource.value().toInt(-1);
            if (count < 0 || !table->resources.contains(resource.key()))
                return Utils::Failure{u'"' + module.key() + "\": \""_l1 + resource.key() +
                                      "\" is no resource with a number"_l1};
            figures.used.insert(resource.key(), count);
        }
        table->blackBoxes.insert(module.key(), figures);
    }
    return {};
}

} // namespace

double Tolerance::of(double value) const
{
    return std::max(cells, value * percent / 100);
}

QByteArray tableText(const EstimateTable &table)
{
    QJsonArray resources;
    for (int i = 0; i < table.resources.size(); ++i)
        resources.append(QJsonObject{{QStringLiteral("resource"), table.resources.at(i)},
                                     {QStringLiteral("cells"), table.tolerances.at(i).cells},
                                     {QStringLiteral("percent"), table.tolerances.at(i).percent}});
    QJsonObject terms;
    for (int term = 0; term < table.costs.size(); ++term) {
        if (table.costs.at(term).isEmpty())
            continue;
        QJsonObject shares;
        for (int i = 0; i < table.resources.size(); ++i) {
            const double cost = std::round(table.costs.at(term).at(i) * 1000) / 1000;
            if (cost != 0)
                shares.insert(table.resources.at(i), cost);
        }
        terms.insert(termNames().at(term), shares);
    }
    const QJsonObject measured{{QStringLiteral("rtl"), table.rtl},
                               {QStringLiteral("synthesis"), table.synthesis},
                               {QStringLiteral("fitted"), table.fitted},
                               {QStringLiteral("checked"), table.checked}};
    return QJsonDocument(QJsonObject{{QStringLiteral("measured"), measured},
                                     {QStringLiteral("resources"), resources},
                                     {QStringLiteral("terms"), terms}})
        .toJson();
}

bool hasEstimateTable(const QString &dataPath)
{
    return QFileInfo::exists(dataPath + tableName);
}

Utils::Result<EstimateTable> readEstimateTable(const QString &dataPath)
{
    const QString path = dataPath + tableName;
    const Utils::Result<QJsonObject> object = readObject(path);
    if (!object)
        return Utils::Failure{object.reason()};
    EstimateTable table;
    const QJsonObject measured = object->value("measured"_l1).toObject();
    table.rtl = measured.value("rtl"_l1).toString();
    table.synthesis = measured.value("synthesis"_l1).toString();
    table.fitted = measured.value("fitted"_l1).toInt();
    table.checked = measured.value("checked"_l1).toInt();
    if (const auto read = readResources(object->value("resources"_l1).toArray(), &table); !read)
        return failure(path, read.reason());
    if (const auto read = readCosts(object->value("terms"_l1).toObject(), &table); !read)
        return failure(path, read.reason());

    const QString boxPath = dataPath + blackBoxName;
    if (!QFileInfo::exists(boxPath))
        return table;
    const Utils::Result<QJsonObject> boxes = readObject(boxPath);
    if (!boxes)
        return Utils::Failure{boxes.reason()};
    if (const auto read = readBlackBoxes(*boxes, &table); !read)
        return failure(boxPath, read.reason());
    return table;
}

Utils::Result<QString> measuredDigest(const QStringList &paths)
{
    QStringList sorted = paths;
    std::sort(sorted.begin(), sorted.end(), [](const QString &a, const QString &b) {
        return std::make_pair(QFileInfo(a).fileName(), a) <
               std::make_pair(QFileInfo(b).fileName(), b);
    });
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString &path : qAsConst(sorted)) {
        QByteArray bytes;
        QString reason;
        if (!Reading::readPlainFile(path, Reading::Limits::rtlFile, &bytes, &reason))
            return failure(path, reason);
        // The length keeps a file from passing for the end of another.
        hash.addData(QFileInfo(path).fileName().toUtf8() + ' ' + QByteArray::number(bytes.size()) +
                     '\n' + bytes);
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace TARVOORIXM1
