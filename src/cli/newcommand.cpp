#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "findings.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/choices.h>
#include <config/ipcfile.h>
#include <config/nearest.h>
#include <config/optiontable.h>
#include <rules/newoptions.h>
#include <rules/presets.h>
#include <rules/settings.h>

#include <QDir>
#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct NewArguments {
    DeviceChoice device;
    QString preset; // empty: none
    QString language;
    QStringList settings; // "KEY=VALUE"
    QString outDir;
    bool force = false;
    bool json = false;
};

Problem presetProblem(const QString &preset, const DEV::DeviceArg &device)
{
    if (!presetNames().contains(preset))
        return {QLatin1String("Unknown preset \"") + preset + QLatin1String("\"; there are ") +
                    presetNames().join(QLatin1String(", ")) + u'.',
                QStringLiteral("--preset"),
                {},
                0,
                didYouMean(nearestText(preset, presetNames()))};
    QStringList offered;
    for (const QString &name : presetNames()) {
        if (isPresetOffered(name, device))
            offered.append(name);
    }
    return {QLatin1String("The preset \"") + preset + QLatin1String("\" has what ") + device.id() +
                QLatin1String(" cannot have; there are ") + offered.join(QLatin1String(", ")) +
                u'.',
            QStringLiteral("--preset")};
}

int runNew(Environment &environment, const NewArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty() || !environment.devices())
        return BadInput;
    const Utils::Result<DEV::DeviceArg> found = environment.findDevice(arguments.device);
    if (!found) {
        printProblem(environment.problemOf(found.reason(), arguments.device));
        return WrongUsage;
    }
    const DEV::DeviceArg device = *found;
    OptionMap options;
    if (!arguments.preset.isEmpty()) {
        if (!isPresetOffered(arguments.preset, device)) {
            printProblem(presetProblem(arguments.preset, device));
            return WrongUsage;
        }
        options = presetChoices(arguments.preset, device);
    }
    if (!arguments.language.isEmpty()) {
        const QStringList names = languageNames().join(u' ').toLower().split(u' ');
        const int index = names.indexOf(arguments.language.toLower());
        if (index < 0) {
            printProblem({QLatin1String("Unknown language \"") + arguments.language +
                              QLatin1String("\"; there are ") + names.join(QLatin1String(" and ")) +
                              u'.',
                          QStringLiteral("--language")});
            return WrongUsage;
        }
        options.insert(Key::lang, index);
    }
    for (const QString &setting : arguments.settings) {
        const Utils::Result<Setting> read = settingFromText(setting);
        if (!read) {
            printProblem({read.reason(), setting.section(u'=', 0, 0)});
            return WrongUsage;
        }
        options.insert(read->key, read->value);
    }

    const QString folder = QDir(QFileInfo(arguments.outDir).absoluteFilePath()).path();
    const QString path = IpcFile::path(folder, ipInfo);
    const OptionMap whole = optionsForChoices(options, device.device(), folder);
    if (QFileInfo::exists(path) && !arguments.force) {
        printProblem(
            {QLatin1String("\"") + path + QLatin1String("\" exists already; --force replaces it."),
             {},
             path});
        return Failed;
    }
    const Utils::Result<void> written =
        writeConfiguration(path, IpcFile::header(device.id(), ipInfo), whole);
    if (!written) {
        printProblem({written.reason(), {}, path});
        return Failed;
    }
    if (const QString note = environment.chosenSpeed(device, arguments.device); !note.isEmpty())
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

} // namespace

void declareNew(CommandLine &line)
{
    auto arguments = std::make_shared<NewArguments>();
    CLI::App *command = line.command(
        "new", "Write a configuration file",
        "orixm1 new --device TV3K-50A-PBGA256-C8/I7 --set \"Enable UART0=true\" --out soc",
        [arguments](Environment &environment) { return runNew(environment, *arguments); });
    line.device(command, arguments->device);
    line.offer(CommandLine::text(command, "--preset", arguments->preset,
                                 "Begin with one of \"orixm1 presets\"", "NAME"),
               presetNames);
    line.offer(CommandLine::text(command, "--language", arguments->language,
                                 "Language of the outputs: verilog or vhdl", "LANGUAGE"),
               [] { return languageNames().join(u' ').toLower().split(u' '); });
    line.offer(CommandLine::texts(command, "--set", arguments->settings,
                                  "Set an option, as listed by \"orixm1 options\"; may be repeated",
                                  "KEY=VALUE"),
               [] {
                   QStringList settings;
                   for (const Option &option : optionTable())
                       settings.append(option.key + u'=');
                   return settings;
               });
    CommandLine::require(line.path(command, "--out", arguments->outDir,
                                   "Folder that the file is written to", "DIR"));
    CommandLine::force(command, arguments->force);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
