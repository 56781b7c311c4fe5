#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "estimates.h"
#include "ipcdocument.h"
#include "output.h"

#include <preview/meanings.h>
#include <utils/boundedfile.h>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

enum DiffStatus { Same = 0, Different = 1, Trouble = BadInput };

struct DiffArguments {
    QString before;
    QString after;
    bool json = false;
};

struct ShowArguments {
    QString file;
    bool isForGit = false;
    bool json = false;
};

// An entry that is no option, in two files; empty texts where it is missing.
struct EntryDifference {
    QString key;
    QString before;
    QString after;
};

QVector<EntryDifference> entryDifferences(const QVariantMap &before, const QVariantMap &after)
{
    QStringList keys = before.keys() + after.keys();
    keys.sort();
    keys.removeDuplicates();
    QVector<EntryDifference> differences;
    for (const QString &key : qAsConst(keys)) {
        const EntryDifference entry = {key, valueText(before[key]), valueText(after[key])};
        if (entry.before != entry.after || before.contains(key) != after.contains(key))
            differences.append(entry);
    }
    return differences;
}

QString kindName(FactChange::Kind kind)
{
    switch (kind) {
    case FactChange::Added:
        return QStringLiteral("added");
    case FactChange::Removed:
        return QStringLiteral("removed");
    case FactChange::Changed:
        break;
    }
    return QStringLiteral("changed");
}

QJsonObject jsonOfChanges(const QVector<FactChanges> &changes)
{
    QJsonObject groups;
    for (const FactChanges &group : changes) {
        QJsonArray list;
        for (const FactChange &change : group.changes) {
            QJsonObject object{{QStringLiteral("name"), change.after.name},
                               {QStringLiteral("kind"), kindName(change.kind)}};
            if (change.kind != FactChange::Added)
                object.insert(QStringLiteral("before"), detailsOf(change.before));
            if (change.kind != FactChange::Removed)
                object.insert(QStringLiteral("after"), detailsOf(change.after));
            list.append(object);
        }
        groups.insert(group.id, list);
    }
    return groups;
}

// What two configurations will take of something, where that differs.
struct ResourceDifference {
    EstimatedResource before;
    EstimatedResource after;
};

QVector<ResourceDifference> resourceDifferences(const Estimate &before, const Estimate &after)
{
    QVector<ResourceDifference> differences;
    for (int i = 0; i < before.resources.size(); ++i) {
        const ResourceDifference pair = {before.resources.at(i), after.resources.at(i)};
        if (pair.before.value != pair.after.value || pair.before.available != pair.after.available)
            differences.append(pair);
    }
    return differences;
}

QString shownSide(const EstimatedResource &resource)
{
    return resource.available < 0 ? shownEstimate(resource)
                                  : shownEstimate(resource) + QLatin1String(" of ") +
                                        QString::number(resource.available);
}

int runDiff(Environment &environment, const DiffArguments &arguments)
{
    IpcDocument before;
    IpcDocument after;
    const bool readBefore = openForDevice(environment, arguments.before, &before);
    if (!openForDevice(environment, arguments.after, &after) || !readBefore)
        return Trouble;
    const Utils::Result<SystemDescription> description =
        readSystemDescription(environment.dataFolder());
    if (!description) {
        printProblem({description.reason()});
        return Trouble;
    }
    const QVector<OptionDifference> options =
        optionDifferences(before.options, before.device, after.options, after.device);
    const QVector<EntryDifference> entries = entryDifferences(before.others, after.others);
    const QVector<FactChanges> changes =
        factChanges(factsOf(systemMap(before.options, before.device, *description)),
                    factsOf(systemMap(after.options, after.device, *description)));
    const bool isSame = options.isEmpty() && entries.isEmpty() && changes.isEmpty();
    bool isTableSound = true;
    const auto estimatedBefore = estimateOf(environment, before, &isTableSound);
    if (!isTableSound)
        return Trouble;
    const auto estimatedAfter = estimateOf(environment, after, &isTableSound);
    const bool isEstimated = estimatedBefore && estimatedAfter;
    const QVector<ResourceDifference> resources =
        isEstimated ? resourceDifferences(*estimatedBefore, *estimatedAfter)
                    : QVector<ResourceDifference>();

    if (arguments.json) {
        QJsonArray optionList;
        for (const OptionDifference &difference : options)
            optionList.append(jsonOf(difference));
        QJsonArray entryList;
        for (const EntryDifference &entry : entries)
            entryList.append(QJsonObject{{QStringLiteral("key"), entry.key},
                                         {QStringLiteral("before"), entry.before},
                                         {QStringLiteral("after"), entry.after}});
        QJsonObject object{{QStringLiteral("before"), arguments.before},
                           {QStringLiteral("after"), arguments.after},
                           {QStringLiteral("equal"), isSame},
                           {QStringLiteral("options"), optionList},
                           {QStringLiteral("entries"), entryList},
                           {QStringLiteral("changes"), jsonOfChanges(changes)}};
        if (isEstimated) {
            QJsonArray list;
            for (const ResourceDifference &difference : resources)
                list.append(QJsonObject{{QStringLiteral("resource"), difference.before.resource},
                                        {QStringLiteral("before"), jsonOf(difference.before)},
                                        {QStringLiteral("after"), jsonOf(difference.after)}});
            object.insert(QStringLiteral("resources"), list);
        }
        printJson(object);
    } else if (!isSame) {
        printLine(QLatin1String("--- ") + arguments.before);
        printLine(QLatin1String("+++ ") + arguments.after);
        if (!options.isEmpty())
            printLine(QStringLiteral("Options"));
        for (const OptionDifference &difference : options)
            printLine(QLatin1String("  ~ ") + shownDifference(difference));
        if (!entries.isEmpty())
            printLine(QStringLiteral("Other entries"));
        for (const EntryDifference &entry : entries)
            printLine(QLatin1String("  ~ ") + entry.key + QLatin1String(": ") +
                      shownValue(entry.before) + QLatin1String(" -> ") + shownValue(entry.after));
        for (const FactChanges &group : changes) {
            printLine(group.title);
            for (const FactChange &change : group.changes)
                printLine(QLatin1String("  ") + shownChange(change));
        }
        if (!resources.isEmpty())
            printLine(QStringLiteral("Resources, estimated"));
        for (const ResourceDifference &difference : resources)
            printLine(QLatin1String("  ~ ") + difference.before.resource + QLatin1String(": ") +
                      shownSide(difference.before) + QLatin1String(" -> ") +
                      shownSide(difference.after));
    }
    // What could not be printed must not look like an answer.
    if (!flushOutput())
        return Trouble;
    return isSame ? Same : Different;
}

void printShown(const IpcDocument &document, const QVector<FactGroup> &groups)
{
    QVector<OptionMeaning> meanings = meaningsOf(document.options, document.device);
    std::sort(meanings.begin(), meanings.end(),
              [](const OptionMeaning &a, const OptionMeaning &b) { return a.key < b.key; });
    if (document.device.isNull()) {
        printLine(QStringLiteral("Device"));
        printLine(QLatin1String("  id: ") + shownValue(document.deviceText) +
                  QLatin1String(", which is not known"));
    }
    const auto printGroup = [](const FactGroup &group) {
        if (!group.facts.isEmpty())
            printLine(group.title);
        for (const Fact &fact : group.facts)
            printLine(QLatin1String("  ") + shownFact(fact));
    };
    for (int i = 0; i < groups.size() && i < 1; ++i)
        printGroup(groups.at(i));
    printLine(QStringLiteral("Options"));
    for (const OptionMeaning &meaning : qAsConst(meanings))
        printLine(QLatin1String("  ") + meaning.key + QLatin1String(" = ") + shownMeaning(meaning));
    if (!document.others.isEmpty())
        printLine(QStringLiteral("Other entries"));
    for (auto it = document.others.cbegin(); it != document.others.cend(); ++it)
        printLine(QLatin1String("  ") + it.key() + QLatin1String(" = ") + shownValue(it.value()));
    for (int i = 1; i < groups.size(); ++i)
        printGroup(groups.at(i));
}

void printShownJson(const IpcDocument &document, const QVector<FactGroup> &groups)
{
    QJsonObject stored;
    QJsonArray values;
    const QVector<OptionMeaning> meanings = meaningsOf(document.options, document.device);
    for (const OptionMeaning &meaning : meanings) {
        if (meaning.isStored())
            stored.insert(meaning.key, QJsonValue::fromVariant(meaning.value));
        QJsonObject object = jsonOf(meaning);
        object.insert(QStringLiteral("key"), meaning.key);
        values.append(object);
    }
    QJsonObject system;
    for (const FactGroup &group : groups) {
        QJsonArray list;
        for (const Fact &fact : group.facts) {
            QJsonObject object = detailsOf(fact);
            object.insert(QStringLiteral("name"), fact.name);
            list.append(object);
        }
        system.insert(group.id, list);
    }
    printJson({{QStringLiteral("device"), document.deviceText},
               {QStringLiteral("options"), stored},
               {QStringLiteral("values"), values},
               {QStringLiteral("entries"), QJsonObject::fromVariantMap(document.others)},
               {QStringLiteral("system"), system}});
}

int runShow(Environment &environment, const ShowArguments &arguments)
{
    if (arguments.isForGit && environment.devices()) {
        // Every version that a repository holds is shown, also one that nobody can read.
        const auto bytes = Utils::readConfigurationFile(arguments.file);
        if (bytes && !IpcDocument::read(arguments.file, *environment.devices())) {
            printText(stdout, bytes->toStdString());
            return Done;
        }
    }
    IpcDocument document;
    if (!openDocument(environment, arguments.file, &document))
        return BadInput;
    QVector<FactGroup> groups;
    if (!document.device.isNull()) {
        const Utils::Result<SystemDescription> description =
            readSystemDescription(environment.dataFolder());
        if (!description) {
            printProblem({description.reason()});
            return BadInput;
        }
        groups = factsOf(systemMap(document.options, document.device, *description));
    }
    if (arguments.json)
        printShownJson(document, groups);
    else
        printShown(document, groups);
    return Done;
}

} // namespace

void declareDiff(CommandLine &line)
{
    auto arguments = std::make_shared<DiffArguments>();
    CLI::App *command =
        line.command("diff", "Compare two configurations, and what follows from them",
                     "orixm1 diff old.ipc new.ipc", [arguments](Environment &environment) {
                         return runDiff(environment, *arguments);
                     });
    CommandLine::require(
        line.path(command, "BEFORE", arguments->before, "Configuration file (.ipc)", ""));
    CommandLine::require(
        line.path(command, "AFTER", arguments->after, "Configuration file to compare it with", ""));
    CommandLine::json(command, arguments->json);
    CommandLine::addHelp(command,
                         "Exit status:\n  0  no difference\n  1  a difference\n  2  wrong usage\n"
                         "  3  a file that cannot be used, or output that cannot be written");
}

void declareShow(CommandLine &line)
{
    auto arguments = std::make_shared<ShowArguments>();
    CLI::App *command = line.command(
        "show", "Print everything that a configuration says and means, in a fixed order",
        "orixm1 show tarvo_orix_m1.ipc",
        [arguments](Environment &environment) { return runShow(environment, *arguments); });
    line.file(command, arguments->file);
    CommandLine::flag(command, "--textconv", arguments->isForGit,
                      "Print a file that is no configuration as it is, for git");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
