#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "output.h"

#include <rules/optionmeaning.h>
#include <rules/presets.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct PresetsArguments {
    DeviceChoice device; // empty: none
    bool json = false;
};

int runPresets(Environment &environment, const PresetsArguments &arguments)
{
    if (!environment.devices())
        return BadInput;
    DEV::DeviceArg device;
    if (!arguments.device.device.isEmpty()) {
        const auto found = environment.findDevice(arguments.device);
        if (!found) {
            printProblem(environment.problemOf(found.reason(), arguments.device));
            return WrongUsage;
        }
        device = *found;
    }
    QStringList names;
    int width = 0;
    for (const QString &name : presetNames()) {
        if (device.isNull() || isPresetOffered(name, device))
            names.append(name);
        width = qMax(width, name.size());
    }
    QJsonArray list;
    for (const QString &name : qAsConst(names)) {
        if (!arguments.json) {
            printLine(name.leftJustified(width) + QLatin1String("  ") + presetText(name));
            continue;
        }
        QJsonObject object{{QStringLiteral("name"), name},
                           {QStringLiteral("text"), presetText(name)}};
        if (!device.isNull())
            object.insert(QStringLiteral("options"),
                          QJsonObject::fromVariantMap(presetChoices(name, device)));
        list.append(object);
    }
    if (arguments.json)
        printJson({{QStringLiteral("presets"), list}});
    return Done;
}

} // namespace

void declarePresets(CommandLine &line)
{
    auto arguments = std::make_shared<PresetsArguments>();
    CLI::App *command = line.command(
        "presets", "List the configurations to begin with, for \"orixm1 new --preset\"",
        "orixm1 presets --device TV1KL-5A --package QFN48",
        [arguments](Environment &environment) { return runPresets(environment, *arguments); });
    CommandLine::require(line.device(command, arguments->device), false);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
