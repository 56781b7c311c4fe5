#include "generatecheck.h"

#include "digest.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"
#include "resultcache.h"
#include "toolofrunner.h"

#include <export/prefixednetlist.h>
#include <preview/unifieddiff.h>

#include <QDir>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// What would change in a file, for people.
QStringList differenceOf(const FileState &file)
{
    if (file.state == FileState::Fresh)
        return {};
    if (file.isInclude && file.present != "unreadable")
        return unifiedDiff(file.contents, file.expected, file.path,
                           QStringLiteral("what would be generated"));
    if (file.recorded == file.present)
        return {};
    const auto shown = [](const QByteArray &sum) {
        return sum.isEmpty() ? QStringLiteral("nothing") : QString::fromLatin1(sum);
    };
    return {QLatin1String("SHA-256 of the last run: ") + shown(file.recorded),
            QLatin1String("SHA-256 now:             ") + shown(file.present)};
}

QJsonObject objectOf(const FileState &file, const QString &folder, bool verbose)
{
    QJsonObject object{{QStringLiteral("path"), belowOutput(file.path, folder)},
                       {QStringLiteral("state"), stateName(file.state)}};
    if (verbose) {
        if (const QStringList lines = differenceOf(file); !lines.isEmpty())
            object.insert(QStringLiteral("difference"), QJsonArray::fromStringList(lines));
    }
    return object;
}

QJsonObject objectOf(const Change &change)
{
    return {{QStringLiteral("kind"), change.kind},
            {QStringLiteral("name"), change.name},
            {QStringLiteral("before"), change.before},
            {QStringLiteral("after"), change.after},
            {QStringLiteral("text"), change.text()}};
}

// How the outputs under a prefix stand to those without. Where these are missing, so are they, as
// far as anybody can tell.
QVector<FileState> prefixedStates(const GenerationInput &input, const GenerationPlan &plan,
                                  const QString &prefix, QStringList *messages)
{
    const auto set = prefixedSet(input, plan, prefix);
    if (!set)
        return {};
    const Utils::Result<Utils::BundleReport> report = Utils::checkBundle(*set);
    QVector<FileState> states;
    if (!report) {
        messages->append(report.reason());
        for (const Utils::BundleFile &file : set->files) {
            FileState state;
            state.path = set->folder + u'/' + file.path;
            state.state = FileState::Foreign;
            states.append(state);
        }
        return states;
    }
    *messages += report->messages;
    for (const Utils::BundleEntry &entry : report->entries) {
        FileState state;
        state.path = set->folder + u'/' + entry.path;
        switch (entry.state) {
        case Utils::BundleEntry::Fresh:
            break;
        case Utils::BundleEntry::Missing:
            state.state = FileState::Missing;
            break;
        case Utils::BundleEntry::Stale:
        case Utils::BundleEntry::LeftOver:
            state.state = FileState::Stale;
            break;
        case Utils::BundleEntry::Edited:
        case Utils::BundleEntry::LeftOverEdited:
            state.state = FileState::Edited;
            break;
        }
        states.append(state);
    }
    return states;
}

} // namespace

int runGenerateCheck(Environment &environment, const GenerateArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openForDevice(environment, arguments.file, &document))
        return BadInput;
    const GenerationInput input = generationInput(document, ipInfo, arguments.outDir);
    QString prefix;
    if (const Status status = arguments.prefix.choose(document, &prefix); status != Done)
        return status;
    const ResultCache cache(arguments.cache, toolOfRunner(*input.tool));
    std::function<ToolFacts()> tool;
    if (arguments.synthesise)
        tool = [&cache] { return cache.toolFacts(); };
    const GenerationPlan plan = generationPlan(input);
    GenerationState state = generationState(input, plan, tool, fastSha256, true);
    const bool isWithPrefix = arguments.synthesise && !prefix.isEmpty();
    const QVector<FileState> own =
        isWithPrefix ? prefixedStates(input, plan, prefix, &state.messages) : QVector<FileState>();
    state.files += own;

    const QString overall = stateName(state.state());
    if (arguments.json) {
        QJsonArray files;
        for (const FileState &file : state.files)
            files.append(objectOf(file, input.createInPath, arguments.verbose));
        QJsonArray changes;
        for (const Change &change : state.changes)
            changes.append(objectOf(change));
        printJson({{QStringLiteral("folder"), input.createInPath},
                   {QStringLiteral("state"), overall},
                   {QStringLiteral("files"), files},
                   {QStringLiteral("changes"), changes},
                   {QStringLiteral("warnings"), QJsonArray::fromStringList(state.messages)}});
    } else {
        printLine(input.createInPath + QLatin1String(": ") + overall);
        for (const Change &change : state.changes)
            printLine(QLatin1String("changed: ") + change.text());
        for (const FileState &file : state.files) {
            if (file.state == FileState::Fresh)
                continue;
            printLine(file.path + QLatin1String(": ") + stateName(file.state));
            if (!arguments.verbose)
                continue;
            const QStringList lines = differenceOf(file);
            for (const QString &line : lines)
                printLine(line);
        }
        for (const QString &message : state.messages)
            printError(message);
    }
    return state.isFresh() ? Done : Failed;
}

} // namespace Cli
