#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "estimates.h"
#include "ipcdocument.h"
#include "output.h"

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

QJsonArray jsonOfBlocks(const Estimate &estimate)
{
    QJsonArray list;
    for (const BlockShare &share : estimate.blocks) {
        QJsonArray resources;
        for (int i = 0; i < estimate.resources.size(); ++i) {
            if (share.values.at(i) != 0)
                resources.append(
                    QJsonObject{{QStringLiteral("resource"), estimate.resources.at(i).resource},
                                {QStringLiteral("value"), share.values.at(i)}});
        }
        list.append(QJsonObject{{QStringLiteral("block"), share.block},
                                {QStringLiteral("resources"), resources}});
    }
    return list;
}

QJsonArray jsonOfBlackBoxes(const Estimate &estimate)
{
    QJsonArray list;
    for (const EstimatedBlackBox &box : estimate.blackBoxes) {
        QJsonObject object{{QStringLiteral("cell"), box.cell},
                           {QStringLiteral("count"), box.count},
                           {QStringLiteral("note"), box.text}};
        if (!box.supplier.source.isEmpty()) {
            QJsonArray resources;
            for (const EstimatedResource &resource : estimate.resources) {
                if (box.supplier.used.contains(resource.resource))
                    resources.append(QJsonObject{
                        {QStringLiteral("resource"), resource.resource},
                        {QStringLiteral("value"), box.supplier.used.value(resource.resource)}});
            }
            object.insert(QStringLiteral("supplier"),
                          QJsonObject{{QStringLiteral("source"), box.supplier.source},
                                      {QStringLiteral("resources"), resources}});
        }
        list.append(object);
    }
    return list;
}

// What the licensed modules take as their suppliers say, by resource; -1 where one says nothing.
int suppliersSay(const Estimate &estimate, const QString &resource)
{
    int sum = 0;
    for (const EstimatedBlackBox &box : estimate.blackBoxes) {
        if (!box.supplier.used.contains(resource))
            return -1;
        sum += box.count * box.supplier.used.value(resource);
    }
    return sum;
}

bool anySupplier(const Estimate &estimate)
{
    return std::any_of(estimate.blackBoxes.begin(), estimate.blackBoxes.end(),
                       [](const EstimatedBlackBox &box) { return !box.supplier.source.isEmpty(); });
}

void printTable(const Estimate &estimate)
{
    const bool withSuppliers = anySupplier(estimate);
    QString head = QStringLiteral("%1 %2 %3 %4 %5")
                       .arg(QStringLiteral("RESOURCE"), -18)
                       .arg(QStringLiteral("ESTIMATE"), 9)
                       .arg(QStringLiteral("RANGE"), 17)
                       .arg(QStringLiteral("DEVICE"), 9)
                       .arg(QStringLiteral("PART"), 7);
    if (withSuppliers)
        head += QStringLiteral(" %1").arg(QStringLiteral("BLACK BOXES*"), 13);
    printLine(head);
    for (const EstimatedResource &resource : estimate.resources) {
        const bool isExact = resource.low == resource.high;
        QString line =
            QStringLiteral("%1 %2 %3 %4 %5")
                .arg(resource.resource, -18)
                .arg(resource.value, 9)
                .arg(isExact ? QStringLiteral("exact")
                             : QString::number(resource.low) + QLatin1String(" to ") +
                                   QString::number(resource.high),
                     17)
                .arg(resource.available < 0 ? QString() : QString::number(resource.available), 9)
                .arg(resource.available < 0
                         ? QString()
                         : QString::number(resource.percent()) + QLatin1String(" %"),
                     7);
        if (withSuppliers) {
            const int figure = suppliersSay(estimate, resource.resource);
            line += QStringLiteral(" %1").arg(
                figure < 0 ? QStringLiteral("not known") : QString::number(figure), 13);
        }
        while (line.endsWith(u' '))
            line.chop(1);
        printLine(line);
    }
    if (withSuppliers)
        printLine(QStringLiteral("* what data sheets say; counted nowhere else"));
}

void printBlocks(const Estimate &estimate)
{
    QString head = QStringLiteral("BLOCK").leftJustified(18);
    for (const EstimatedResource &resource : estimate.resources)
        head += QStringLiteral(" %1").arg(resource.resource, 17);
    printLine(head);
    for (const BlockShare &share : estimate.blocks) {
        QString line = share.block.leftJustified(18);
        for (const int value : share.values)
            line += QStringLiteral(" %1").arg(value, 17);
        printLine(line);
    }
}

int runEstimate(Environment &environment, const QString &file, bool json)
{
    IpcDocument document;
    if (!openForDevice(environment, file, &document))
        return BadInput;
    const Utils::Result<EstimateTable> table = readEstimateTable(environment.dataFolder());
    if (!table) {
        printProblem({table.reason()});
        return BadInput;
    }
    const Utils::Result<Estimate> result = estimate(document.options, document.device, *table);
    if (!result) {
        printProblem({result.reason(), {}, file});
        return BadInput;
    }
    const int pins = usedPins(document.options, document.device);
    const QStringList doubts = shortages(*result);
    for (const QString &doubt : doubts)
        printError(QLatin1String("warning: ") + doubt);
    if (!result->unmeasured.isEmpty())
        printError(QLatin1String("warning: nobody has measured what these take, so they are "
                                 "missing in the estimate: ") +
                   result->unmeasured.join(QLatin1String(", ")));
    if (json) {
        QJsonArray resources;
        for (const EstimatedResource &resource : result->resources)
            resources.append(jsonOf(resource));
        printJson({{QStringLiteral("file"), file},
                   {QStringLiteral("device"), document.device.id()},
                   {QStringLiteral("resources"), resources},
                   {QStringLiteral("blocks"), jsonOfBlocks(*result)},
                   {QStringLiteral("blackBoxes"), jsonOfBlackBoxes(*result)},
                   {QStringLiteral("pins"), QJsonObject{{QStringLiteral("used"), pins}}},
                   {QStringLiteral("unmeasured"), QJsonArray::fromStringList(result->unmeasured)},
                   {QStringLiteral("warnings"), QJsonArray::fromStringList(doubts)}});
        return Done;
    }
    printTable(*result);
    printLine(QString());
    printBlocks(*result);
    printLine(QString());
    printLine(QStringLiteral("Ports: %1 lines.").arg(pins));
    QStringList boxes;
    for (const EstimatedBlackBox &box : result->blackBoxes)
        boxes << QString::number(box.count) + u' ' + box.cell;
    printLine(QLatin1String("Not counted are the contents of black boxes: ") +
              boxes.join(QLatin1String(", ")) + u'.');
    return Done;
}

} // namespace

std::optional<Estimate> estimateOf(const Environment &environment, const IpcDocument &document,
                                   bool *isTableSound)
{
    *isTableSound = true;
    if (document.device.isNull() || !hasEstimateTable(environment.dataFolder()))
        return std::nullopt;
    const Utils::Result<EstimateTable> table = readEstimateTable(environment.dataFolder());
    if (!table) {
        printProblem({table.reason()});
        *isTableSound = false;
        return std::nullopt;
    }
    Utils::Result<Estimate> result = estimate(document.options, document.device, *table);
    if (!result)
        return std::nullopt;
    return *result;
}

QJsonObject jsonOf(const EstimatedResource &resource)
{
    QJsonObject object{{QStringLiteral("resource"), resource.resource},
                       {QStringLiteral("value"), resource.value},
                       {QStringLiteral("low"), resource.low},
                       {QStringLiteral("high"), resource.high}};
    if (resource.available >= 0) {
        object.insert(QStringLiteral("available"), resource.available);
        object.insert(QStringLiteral("percent"), resource.percent());
    }
    return object;
}

QString shownEstimate(const EstimatedResource &resource)
{
    const QString value = QString::number(resource.value);
    return resource.low == resource.high
               ? value
               : QStringLiteral("%1 (%2 to %3)").arg(value).arg(resource.low).arg(resource.high);
}

void declareEstimate(CommandLine &line)
{
    struct Arguments {
        QString file;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App *command =
        line.command("estimate", "Tell what a configuration will take of its device, at once",
                     "orixm1 estimate tarvo_orix_m1.ipc", [arguments](Environment &environment) {
                         return runEstimate(environment, arguments->file, arguments->json);
                     });
    line.file(command, arguments->file);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
