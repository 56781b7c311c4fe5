#include "estimate.h"

#include "config/latin1literal.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "system/ports.h"
#include "terms.h"

#include <algorithm>
#include <cmath>

namespace TARVOORIXM1
{

namespace
{

struct Total {
    QLatin1String resource;
    int DEV::DeviceResources::*total;
};

constexpr Total totals[] = {{"LUT4"_l1, &DEV::DeviceResources::lut4},
                            {"Flip-flops"_l1, &DEV::DeviceResources::flipFlops},
                            {"Carry"_l1, &DEV::DeviceResources::carry},
                            {"Block RAM"_l1, &DEV::DeviceResources::blockRam}};

int availableOf(const QString &resource, const DEV::DeviceResources &resources)
{
    for (const Total &row : totals) {
        if (resource == row.resource)
            return resources.*row.total;
    }
    return -1;
}

// The first option with a value that it cannot have; null if there is none.
const Option *firstMistake(const OptionMap &options)
{
    for (auto it = options.begin(); it != options.end(); ++it) {
        const Option *option = findOption(it.key());
        if (!option || !option->isOption)
            continue;
        const QVariant value = optionValueFromText(*option, it.value().toString());
        // A text may be anything: generation compares it with those that it knows.
        if (!value.isValid() || (option->type != OptionType::String && !isInDomain(*option, value)))
            return option;
    }
    return nullptr;
}

// Whole numbers that add up to the rounded sum of the parts.
void appendRounded(const QVector<double> &parts, QVector<BlockShare> *blocks)
{
    double sum = 0;
    int given = 0;
    for (int i = 0; i < parts.size(); ++i) {
        sum += parts.at(i);
        const int upTo = int(std::lround(sum));
        (*blocks)[i].values.append(upTo - given);
        given = upTo;
    }
}

QVector<EstimatedBlackBox> blackBoxes(const OptionMap &options, const QString &device,
                                      const EstimateTable &table)
{
    QVector<EstimatedBlackBox> boxes;
    const QVector<BlackBox> modules = blackBoxesOf(options, device);
    for (const BlackBox &box : modules)
        boxes.append({box.module, 1, box.text, table.blackBoxes.value(box.module)});
    return boxes;
}

} // namespace

int EstimatedResource::percent() const
{
    if (available < 0)
        return -1;
    if (available == 0)
        return value > 0 ? 100 : 0;
    return int((qint64(value) * 100 + available - 1) / available);
}

Utils::Result<Estimate> estimate(const OptionMap &options, const DEV::DeviceArg &device,
                                 const EstimateTable &table)
{
    if (device.isNull())
        return Utils::Failure{QStringLiteral("An estimate needs a device that is known.")};
    if (const Option *option = firstMistake(options))
        return Utils::Failure{"\""_l1 + option->key + "\" cannot be \""_l1 +
                              textOf(options, option->key) + "\": it is "_l1 + domainText(*option) +
                              u'.'};

    Estimate result;
    const int count = table.resources.size();
    QVector<QVector<double>> parts(count); // by resource, then by block
    const QVector<TermUse> uses = termsOf(options, device);
    for (const TermUse &use : uses) {
        const QVector<double> &costs = table.costs.at(use.term);
        if (costs.isEmpty()) {
            if (!result.unmeasured.contains(use.block))
                result.unmeasured.append(use.block);
            continue;
        }
        int block = 0;
        while (block < result.blocks.size() && result.blocks.at(block).block != use.block)
            ++block;
        if (block == result.blocks.size()) {
            result.blocks.append({use.block, {}});
            for (QVector<double> &part : parts)
                part.append(0);
        }
        for (int i = 0; i < count; ++i)
            parts[i][block] += costs.at(i) * use.count;
    }

    for (int i = 0; i < count; ++i) {
        double sum = 0;
        for (const double part : qAsConst(parts[i]))
            sum += part;
        EstimatedResource resource;
        resource.resource = table.resources.at(i);
        resource.value = std::max(0, int(std::lround(sum)));
        const double tolerance = table.tolerances.at(i).of(resource.value);
        resource.low = std::max(0, int(std::floor(resource.value - tolerance)));
        resource.high = int(std::ceil(resource.value + tolerance));
        resource.available = availableOf(resource.resource, device.resources());
        result.resources.append(resource);
        appendRounded(parts.at(i), &result.blocks);
    }
    result.blocks.erase(std::remove_if(result.blocks.begin(), result.blocks.end(),
                                       [](const BlockShare &share) {
                                           return std::all_of(share.values.begin(),
                                                              share.values.end(),
                                                              [](int value) { return value == 0; });
                                       }),
                        result.blocks.end());
    std::stable_sort(result.blocks.begin(), result.blocks.end(),
                     [](const BlockShare &a, const BlockShare &b) {
                         return a.values.value(0) > b.values.value(0);
                     });
    result.blackBoxes = blackBoxes(options, device.device(), table);
    return result;
}

ResourceFigures estimatedFigures(const Estimate &estimate)
{
    ResourceFigures figures;
    for (const EstimatedResource &resource : estimate.resources) {
        const bool isExact = resource.low == resource.high;
        figures.lines.append({isExact ? resource.resource : resource.resource + ", about"_l1,
                              resource.value, resource.available});
    }
    return figures;
}

std::optional<ResourceFigures> estimatedFigures(const OptionMap &options,
                                                const DEV::DeviceArg &device,
                                                const QString &dataPath)
{
    if (device.isNull() || !hasEstimateTable(dataPath))
        return std::nullopt;
    const auto table = readEstimateTable(dataPath);
    if (!table)
        return std::nullopt;
    const auto estimated = estimate(options, device, *table);
    if (!estimated)
        return std::nullopt;
    return estimatedFigures(*estimated);
}

int usedPins(const OptionMap &options, const DEV::DeviceArg &device)
{
    int lines = 0;
    const QVector<Port> ports = portsOf(options, device.device(), {});
    for (const Port &port : ports)
        lines += port.width();
    return lines;
}

QStringList shortages(const Estimate &estimate)
{
    QStringList sentences;
    for (int i = 0; i < estimate.resources.size(); ++i) {
        const EstimatedResource &resource = estimate.resources.at(i);
        if (!resource.isPerhapsTooMuch())
            continue;
        QVector<BlockShare> blocks = estimate.blocks;
        std::stable_sort(
            blocks.begin(), blocks.end(),
            [i](const BlockShare &a, const BlockShare &b) { return a.values[i] > b.values[i]; });
        constexpr int mostBlocks = 3;
        QStringList shares;
        for (int block = 0; block < blocks.size() && block < mostBlocks; ++block) {
            if (blocks.at(block).values.at(i) > 0)
                shares << blocks.at(block).block + u' ' +
                              QString::number(blocks.at(block).values.at(i));
        }
        const QString range =
            resource.low == resource.high
                ? QString::number(resource.value)
                : QString::number(resource.low) + " to "_l1 + QString::number(resource.high);
        sentences << resource.resource + ": the estimate, "_l1 + range +
                         (resource.isSurelyTooMuch() ? ", is more than the "_l1
                                                     : ", may be more than the "_l1) +
                         QString::number(resource.available) +
                         " that the device has; most is for "_l1 + shares.join(", "_l1);
    }
    return sentences;
}

} // namespace TARVOORIXM1
