#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/optionkeys.h>
#include <rules/upgrade.h>
#include <utils/fileutils.h>

#include <QFileInfo>

#include <algorithm>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct UpgradeArguments {
    QString file;
    DeviceChoice device; // instead of one that is not known; empty: none
    bool writes = false;
    bool dryRun = false;
    bool json = false;
};

// A name beside the file that nothing has yet.
QString freeCopyName(const QString &path)
{
    const QString first = path + QLatin1String(".bak");
    const auto isTaken = [](const QString &name) {
        const QFileInfo info(name);
        return info.exists() || info.isSymLink();
    };
    QString name = first;
    for (int number = 2; isTaken(name); ++number)
        name = first + QString::number(number);
    return name;
}

QJsonArray jsonOf(const QVector<Mend> &mends, bool written)
{
    QJsonArray list;
    for (const Mend &mend : mends)
        list.append(QJsonObject{{QStringLiteral("key"), mend.key},
                                {QStringLiteral("text"), mend.problem},
                                {QStringLiteral("fix"), mend.fix},
                                {QStringLiteral("mendable"), mend.isMade},
                                {QStringLiteral("mended"), mend.isMade && written}});
    return list;
}

int runUpgrade(Environment &environment, const UpgradeArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty() || !environment.devices())
        return BadInput;
    DEV::DeviceArg chosen;
    if (!arguments.device.device.isEmpty()) {
        const auto found = environment.findDevice(arguments.device);
        if (!found) {
            printProblem(environment.problemOf(found.reason(), arguments.device));
            return WrongUsage;
        }
        chosen = *found;
    }
    IpcDocument document;
    document.path = QFileInfo(arguments.file).absoluteFilePath();
    const Utils::Result<QVariantMap> entries = readEntries(arguments.file, &document.text);
    if (!entries) {
        printProblem({entries.reason(), {}, arguments.file});
        return BadInput;
    }
    const QString id = ipInfo.value(InfoKey::id).toString();
    const auto type = entries->constFind(QStringLiteral("type"));
    if (type != entries->cend() && !type->toString().isEmpty() && type->toString() != id) {
        printProblem({QLatin1String("\"") + document.path +
                          QLatin1String("\" is a configuration of \"") + type->toString() +
                          QLatin1String("\", not of \"") + id + QLatin1String("\"."),
                      QStringLiteral("type"), arguments.file});
        return BadInput;
    }

    const Upgraded result = upgraded(*entries, id, *environment.devices(), chosen);
    const auto isMade = [](const Mend &mend) { return mend.isMade; };
    const bool anyMade = std::any_of(result.mends.begin(), result.mends.end(), isMade);
    const bool allMade = std::all_of(result.mends.begin(), result.mends.end(), isMade);
    const bool writes = arguments.writes && anyMade;
    QString copy;
    if (writes) {
        copy = freeCopyName(document.path);
        QString error;
        const bool isCopied = Utils::FileUtils::writeFile(copy, document.text, &error);
        const Utils::Result<void> written =
            isCopied ? writeEdited(document, document.path, result.frame, result.options)
                     : Utils::Result<void>(Utils::Failure{error});
        if (!written) {
            printProblem({written.reason(), {}, arguments.file});
            return Failed;
        }
    }
    const bool isWell = allMade && (writes || !anyMade);
    if (arguments.json) {
        printJson({{QStringLiteral("file"), arguments.file},
                   {QStringLiteral("findings"), jsonOf(result.mends, writes)},
                   {QStringLiteral("written"), writes},
                   {QStringLiteral("copy"), writes ? QJsonValue(copy) : QJsonValue()}});
        return isWell ? Done : Failed;
    }
    for (const Mend &mend : result.mends)
        printLine(arguments.file + u':' + mend.key + QLatin1String(": ") + mend.problem +
                  QLatin1String("; ") + mend.fix);
    if (result.mends.isEmpty())
        printLine(QStringLiteral("There is nothing to mend."));
    else if (writes)
        printLine(QLatin1String("The file as it was: ") + copy);
    else if (anyMade)
        printLine(QStringLiteral("Nothing is written without --fix."));
    return isWell ? Done : Failed;
}

} // namespace

void declareUpgrade(CommandLine &line)
{
    auto arguments = std::make_shared<UpgradeArguments>();
    CLI::App *command = line.command(
        "upgrade", "Tell what is out of date or misspelt in a configuration, and mend it",
        "orixm1 upgrade tarvo_orix_m1.ipc --fix",
        [arguments](Environment &environment) { return runUpgrade(environment, *arguments); });
    line.file(command, arguments->file);
    CLI::Option *fix = CommandLine::flag(
        command, "--fix,--write", arguments->writes,
        "Mend the file; what it was is kept beside it, under a name with .bak behind it");
    CommandLine::exclude(
        CommandLine::flag(command, "--dry-run", arguments->dryRun, "Only tell, as without --fix"),
        fix);
    CommandLine::require(
        line.device(command, arguments->device, "Device instead of one that is not known"), false);
    CommandLine::json(command, arguments->json);
    CommandLine::addHelp(command, "Exit status:\n  0  there is nothing to mend any more\n"
                                  "  1  something is left to mend, or the file cannot be written\n"
                                  "  2  wrong usage\n  3  a file that cannot be read");
}

} // namespace Cli
