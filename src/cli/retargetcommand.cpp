#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/optionkeys.h>
#include <config/optionvalue.h>
#include <rules/itcmpath.h>
#include <rules/retarget.h>

#include <QDir>
#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct RetargetArguments {
    QString file;
    DeviceChoice device;
    QString out; // file; empty: in place
    bool force = false;
    bool dryRun = false;
    bool json = false;
};

QJsonArray jsonOf(const Retargeted &moved, const DEV::DeviceArg &device)
{
    QJsonArray losses;
    for (const Loss &loss : moved.losses)
        losses.append(QJsonObject{{QStringLiteral("key"), loss.key},
                                  {QStringLiteral("before"), QJsonValue::fromVariant(loss.before)},
                                  {QStringLiteral("after"), QJsonValue::fromVariant(loss.after)},
                                  {QStringLiteral("message"), lossSentence(loss, moved, device)}});
    return losses;
}

// A folder that is named relative to the file stays the same one when the file goes elsewhere.
void keepInitialisationFolder(OptionMap &options, const QString &from, const QString &to)
{
    const QString path = textOf(options, Key::itcmInitializationPath);
    if (!path.isEmpty() && from != to)
        options.insert(Key::itcmInitializationPath, QDir::cleanPath(absoluteItcmPath(path, from)));
}

int runRetarget(Environment &environment, const RetargetArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty())
        return BadInput;
    IpcDocument document;
    if (!openDocument(environment, arguments.file, &document))
        return BadInput;
    const QString id = ipInfo.value(InfoKey::id).toString();
    if (!document.type.isEmpty() && document.type != id) {
        printProblem({QLatin1String("\"") + document.path +
                          QLatin1String("\" is a configuration of \"") + document.type +
                          QLatin1String("\", not of \"") + id + QLatin1String("\"."),
                      QStringLiteral("type"), document.path});
        return BadInput;
    }
    const Utils::Result<DEV::DeviceArg> found = environment.findDevice(arguments.device);
    if (!found) {
        printProblem(environment.problemOf(found.reason(), arguments.device));
        return WrongUsage;
    }
    const DEV::DeviceArg device = *found;
    const QString target =
        arguments.out.isEmpty() ? document.path : QFileInfo(arguments.out).absoluteFilePath();
    const bool inPlace = target == document.path;
    if (!inPlace && !arguments.force && !arguments.dryRun && QFileInfo::exists(target)) {
        printProblem({QLatin1String("\"") + target +
                          QLatin1String("\" exists already; --force replaces it."),
                      {},
                      target});
        return Failed;
    }

    Retargeted moved = retarget(document.options, document.device, device);
    keepInitialisationFolder(moved.options, document.folder(), QFileInfo(target).absolutePath());
    const bool changed = document.deviceText != device.id() || moved.options != document.options;
    if (const QString note = environment.chosenSpeed(device, arguments.device); !note.isEmpty())
        printError(note);
    const bool writes = !arguments.dryRun && (changed || !inPlace);
    const Utils::Result<void> written =
        writes ? writeEdited(document, target, document.movedHeader(device.id()), moved.options)
               : Utils::Result<void>();
    if (!written) {
        printProblem({written.reason(), {}, target});
        return Failed;
    }
    if (arguments.json) {
        printJson({{QStringLiteral("file"), target},
                   {QStringLiteral("before"), document.deviceText},
                   {QStringLiteral("device"), device.id()},
                   {QStringLiteral("losses"), jsonOf(moved, device)},
                   {QStringLiteral("changed"), changed},
                   {QStringLiteral("written"), writes}});
        return Done;
    }
    for (const Loss &loss : moved.losses)
        printLine(lossSentence(loss, moved, device));
    if (moved.losses.isEmpty())
        printLine(QStringLiteral("Nothing is lost."));
    if (writes)
        printLine(target);
    return Done;
}

} // namespace

void declareRetarget(CommandLine &line)
{
    auto arguments = std::make_shared<RetargetArguments>();
    CLI::App *command = line.command(
        "retarget", "Move a configuration to another device and tell what it loses",
        "orixm1 retarget tarvo_orix_m1.ipc --device TV1KL-5A --package QFN32 --dry-run",
        [arguments](Environment &environment) { return runRetarget(environment, *arguments); });
    line.file(command, arguments->file);
    line.device(command, arguments->device);
    line.path(command, "--out", arguments->out,
              "Write this file (default: the configuration itself)", "FILE");
    CommandLine::force(command, arguments->force);
    CommandLine::flag(command, "--dry-run", arguments->dryRun, "Only tell; write nothing");
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
