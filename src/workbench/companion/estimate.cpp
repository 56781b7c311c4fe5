#include "estimate.h"

#include "catalogue/answers.h"
#include "tr.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace Workbench
{

using Answers::takeNumber;
using Answers::takeText;

namespace
{

const QString resourceKey = QStringLiteral("resource");

bool takeName(const QVariantMap &map, const QString &key, QString *name)
{
    return takeText(map, key, name) && !name->isEmpty();
}

// -1 for an absent number too.
bool takeAvailable(const QVariantMap &map, int *available)
{
    const QString key = QStringLiteral("available");
    *available = -1;
    return !map.contains(key) ||
           takeNumber(map, key, -1, EstimateAnswer::mostOfAResource, available);
}

bool takeReading(const QVariantMap &map, ResourceReading *reading)
{
    constexpr int most = EstimateAnswer::mostOfAResource;
    return takeName(map, resourceKey, &reading->resource) &&
           takeNumber(map, QStringLiteral("low"), 0, most, &reading->low) &&
           takeNumber(map, QStringLiteral("high"), reading->low, most, &reading->high) &&
           takeNumber(map, QStringLiteral("value"), reading->low, reading->high, &reading->value) &&
           takeAvailable(map, &reading->available);
}

// Maps, each of which `take` takes; an absent list is empty.
template <typename Entry, typename Take>
bool takeList(const QVariantMap &map, const char *key, int limit, Take take,
              QVector<Entry> *entries)
{
    const QVariant value = map.value(QLatin1String(key));
    if (!value.isValid())
        return true;
    const QVariantList list = value.toList();
    if (value.userType() != QMetaType::QVariantList || list.size() > limit)
        return false;
    for (const QVariant &item : list) {
        Entry entry;
        if (item.userType() != QMetaType::QVariantMap || !take(item.toMap(), &entry))
            return false;
        entries->append(entry);
    }
    return true;
}

template <typename Entry, typename Name>
bool areNamesUnique(const QVector<Entry> &entries, Name name)
{
    QSet<QString> names;
    for (const Entry &entry : entries)
        names.insert(name(entry));
    return names.size() == entries.size();
}

bool takeShare(const QVariantMap &map, Estimate::Share *share)
{
    return takeName(map, resourceKey, &share->resource) &&
           takeNumber(map, QStringLiteral("value"), 0, EstimateAnswer::mostOfAResource,
                      &share->value);
}

bool takeBlock(const QVariantMap &map, Estimate::Block *block)
{
    return takeName(map, QStringLiteral("block"), &block->name) &&
           takeList(map, "resources", EstimateAnswer::resourceLimit, takeShare, &block->shares);
}

bool takeBlackBox(const QVariantMap &map, Estimate::BlackBox *box)
{
    return takeName(map, QStringLiteral("cell"), &box->cell) &&
           takeNumber(map, QStringLiteral("count"), 0, EstimateAnswer::mostOfAResource,
                      &box->count) &&
           takeText(map, QStringLiteral("note"), &box->note);
}

// A file name, and nothing that stands for a folder or is hidden.
bool isFileName(const QString &name)
{
    return !name.isEmpty() && name.size() <= 100 && !name.startsWith(u'.') && !name.contains(u'/');
}

} // namespace

int Estimate::shareOf(const QString &block, const QString &resource) const
{
    for (const Block &candidate : blocks) {
        if (candidate.name != block)
            continue;
        for (const Share &share : candidate.shares) {
            if (share.resource == resource)
                return share.value;
        }
    }
    return 0;
}

namespace EstimateAnswer
{

Utils::Result<Estimate> estimateOf(const QVariantMap &answer)
{
    Estimate estimate;
    if (!takeText(answer, QStringLiteral("error"), &estimate.error))
        return Utils::Failure{Tr::tr("its \"error\" is no text of a line")};
    if (!estimate.error.isEmpty())
        return estimate;
    if (!takeList(answer, "resources", resourceLimit, takeReading, &estimate.resources) ||
        estimate.resources.isEmpty() ||
        !areNamesUnique(estimate.resources,
                        [](const ResourceReading &reading) { return reading.resource; }))
        return Utils::Failure{
            Tr::tr("its \"resources\" are no list of resources with numbers in their range")};
    const QVariant pins = answer.value(QStringLiteral("pins"));
    if (pins.isValid()) {
        const QVariantMap map = pins.toMap();
        estimate.hasPins = true;
        if (!takeNumber(map, QStringLiteral("used"), 0, mostOfAResource, &estimate.pins.value) ||
            !takeAvailable(map, &estimate.pins.available))
            return Utils::Failure{Tr::tr("its \"pins\" are no numbers")};
        estimate.pins.low = estimate.pins.high = estimate.pins.value;
    }
    if (!takeList(answer, "blocks", blockLimit, takeBlock, &estimate.blocks) ||
        !areNamesUnique(estimate.blocks, [](const Estimate::Block &block) { return block.name; }))
        return Utils::Failure{Tr::tr("its \"blocks\" are no list of blocks with their shares")};
    if (!takeList(answer, "blackBoxes", blockLimit, takeBlackBox, &estimate.blackBoxes))
        return Utils::Failure{Tr::tr("its \"blackBoxes\" are no list of cells with their number")};
    return estimate;
}

Utils::Result<MeasureCommand> measureCommandOf(const QVariantMap &answer)
{
    MeasureCommand command;
    if (!takeText(answer, QStringLiteral("error"), &command.error))
        return Utils::Failure{Tr::tr("its \"error\" is no text of a line")};
    if (!command.error.isEmpty())
        return command;
    if (!takeText(answer, QStringLiteral("program"), &command.program) ||
        !QDir::isAbsolutePath(command.program) || !QFileInfo(command.program).isFile() ||
        !QFileInfo(command.program).isExecutable())
        return Utils::Failure{Tr::tr("its \"program\" is no program with a full path")};
    if (!Answers::takeTexts(answer, QStringLiteral("arguments"), argumentLimit, &command.arguments))
        return Utils::Failure{Tr::tr("its \"arguments\" are no list of texts")};
    if (!takeText(answer, QStringLiteral("file"), &command.file) || !isFileName(command.file))
        return Utils::Failure{Tr::tr("its \"file\" is no name of a file")};
    const QVariant configuration = answer.value(QStringLiteral("configuration"));
    command.configuration = configuration.toByteArray();
    if (configuration.userType() != QMetaType::QByteArray ||
        command.configuration.size() > configurationLimit)
        return Utils::Failure{Tr::tr("its \"configuration\" is no text of a file")};
    return command;
}

Utils::Result<QVector<MeasuredUse>> measuredUseOf(const QByteArray &json)
{
    const QJsonValue list =
        QJsonDocument::fromJson(json).object().value(QLatin1String("resources"));
    const QJsonArray resources = list.toArray();
    if (resources.isEmpty() || resources.size() > resourceLimit)
        return Utils::Failure{Tr::tr("what it prints has no \"resources\"")};
    QVector<MeasuredUse> uses;
    for (const QJsonValue &item : resources) {
        // As texts and numbers of any other answer.
        const QJsonObject object = item.toObject();
        const int used = object.value(QLatin1String("used")).toInt(-1);
        MeasuredUse use;
        if (!takeName({{resourceKey, object.value(resourceKey).toVariant()}}, resourceKey,
                      &use.resource) ||
            used < 0 || used > mostOfAResource)
            return Utils::Failure{
                Tr::tr("its \"resources\" are no list of resources with numbers")};
        use.used = used;
        uses.append(use);
    }
    if (!areNamesUnique(uses, [](const MeasuredUse &use) { return use.resource; }))
        return Utils::Failure{Tr::tr("its \"resources\" have one twice")};
    return uses;
}

QString firstErrorOf(const QByteArray &json)
{
    const QJsonArray errors =
        QJsonDocument::fromJson(json).object().value(QLatin1String("errors")).toArray();
    for (const QJsonValue &item : errors) {
        const QString key = QStringLiteral("text");
        QString text;
        if (takeName({{key, item.toObject().value(key).toVariant()}}, key, &text))
            return text;
    }
    return {};
}

} // namespace EstimateAnswer

} // namespace Workbench
