#include "commands.h"

#include "environment.h"
#include "findings.h"
#include "output.h"

#include <config/choices.h>
#include <config/ipcfile.h>
#include <config/optiontable.h>
#include <rules/newoptions.h>
#include <utils/fileutils.h>
#include <utils/inifile.h>

#include <QDir>
#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

// Puts "KEY=VALUE" into the map as the key's type.
bool applySetting(const QString &setting, OptionMap *options, QString *error)
{
    const int equals = setting.indexOf(u'=');
    if (equals < 1) {
        *error = QLatin1String("\"") + setting + QLatin1String("\" is not of the form KEY=VALUE.");
        return false;
    }
    const QString key = setting.left(equals);
    const QString text = setting.mid(equals + 1);
    const Option *option = findOption(key);
    if (!option) {
        const QString nearest = nearestOptionKey(key);
        *error = QLatin1String("Unknown key \"") + key + u'"' +
                 (nearest.isEmpty()
                      ? QString()
                      : QString(QLatin1String("; the nearest known one is \"") + nearest + u'"')) +
                 u'.';
        return false;
    }
    const QVariant value = optionValueFromText(*option, text);
    if (!value.isValid() || !isInDomain(*option, value)) {
        *error = QLatin1String("\"") + text + QLatin1String("\" is no value of \"") + key +
                 QLatin1String("\": ") + domainText(*option) + u'.';
        return false;
    }
    options->insert(key, value);
    return true;
}

} // namespace

int runNew(Environment &environment, const NewArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty() || !environment.devices())
        return BadInput;
    QString error;
    const DEV::DeviceArg device =
        environment.findDevice(arguments.device, arguments.package, arguments.speed, &error);
    if (device.isNull()) {
        printError(error);
        return WrongUsage;
    }
    OptionMap options;
    if (!arguments.language.isEmpty()) {
        const QStringList names = languageNames().join(u' ').toLower().split(u' ');
        const int index = names.indexOf(arguments.language.toLower());
        if (index < 0) {
            printError(QLatin1String("Unknown language \"") + arguments.language +
                       QLatin1String("\"; there are ") + names.join(QLatin1String(" and ")) + u'.');
            return WrongUsage;
        }
        options.insert(Key::lang, index);
    }
    for (const QString &setting : arguments.settings) {
        if (!applySetting(setting, &options, &error)) {
            printError(error);
            return WrongUsage;
        }
    }

    const QString folder = QDir(QFileInfo(arguments.outDir).absoluteFilePath()).path();
    const QString path = IpcFile::path(folder, ipInfo);
    const OptionMap whole = optionsForChoices(options, device.device(), folder);
    if (QFileInfo::exists(path) && !arguments.force) {
        printError(QLatin1String("\"") + path +
                   QLatin1String("\" exists already; --force replaces it."));
        return Failed;
    }
    if (!Utils::FileUtils::makePath(folder, &error) ||
        !Utils::writeIniFile(path, IpcFile::header(device.id(), ipInfo), IpcFile::configGroup,
                             whole, &error)) {
        printError(error);
        return Failed;
    }
    if (const QString note = environment.chosenSpeed(device, arguments.device, arguments.speed);
        !note.isEmpty())
        printError(note);
    // Choices are written as they were given; what does not fit is told at once.
    QJsonArray findings;
    for (const Finding &finding : checkOptions(whole, device, folder)) {
        findings.append(jsonOf(finding));
        printError(finding.key + QLatin1String(": ") + severityName(finding) + QLatin1String(": ") +
                   finding.message);
    }
    if (arguments.json) {
        printJson({{QStringLiteral("file"), path},
                   {QStringLiteral("device"), device.id()},
                   {QStringLiteral("findings"), findings}});
        return Done;
    }
    printLine(path);
    return Done;
}

} // namespace Cli
