#include "commands.h"

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

} // namespace

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
        printError(QLatin1String("\"") + document.path +
                   QLatin1String("\" is a configuration of \"") + document.type +
                   QLatin1String("\", not of \"") + id + QLatin1String("\"."));
        return BadInput;
    }
    const Utils::Result<DEV::DeviceArg> found =
        environment.findDevice(arguments.device, arguments.package, arguments.speed);
    if (!found) {
        printError(found.reason());
        return WrongUsage;
    }
    const DEV::DeviceArg device = *found;
    const QString target =
        arguments.out.isEmpty() ? document.path : QFileInfo(arguments.out).absoluteFilePath();
    const bool inPlace = target == document.path;
    if (!inPlace && !arguments.force && !arguments.dryRun && QFileInfo::exists(target)) {
        printError(QLatin1String("\"") + target +
                   QLatin1String("\" exists already; --force replaces it."));
        return Failed;
    }

    Retargeted moved = retarget(document.options, document.device, device);
    keepInitialisationFolder(moved.options, document.folder(), QFileInfo(target).absolutePath());
    const bool changed = document.deviceText != device.id() || moved.options != document.options;
    if (const QString note = environment.chosenSpeed(device, arguments.device, arguments.speed);
        !note.isEmpty())
        printError(note);
    const bool writes = !arguments.dryRun && (changed || !inPlace);
    const Utils::Result<void> written =
        writes ? writeConfiguration(target, document.movedHeader(device.id()), moved.options)
               : Utils::Result<void>();
    if (!written) {
        printError(written.reason());
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

} // namespace Cli
