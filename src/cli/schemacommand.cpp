#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "output.h"

#include <rules/optionschema.h>

#include <QJsonDocument>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

int runSchema(Environment &environment, const DeviceChoice &choice)
{
    const DEV::DeviceDb *devices = environment.devices();
    if (!devices)
        return BadInput;
    QList<DEV::DeviceArg> chosen = devices->devices();
    if (!choice.device.isEmpty()) {
        const auto device = environment.findDevice(choice);
        if (!device) {
            printProblem(environment.problemOf(device.reason(), choice));
            return WrongUsage;
        }
        chosen = {*device};
    }
    printText(stdout, QJsonDocument(optionSchema(chosen)).toJson().toStdString());
    return Done;
}

} // namespace

void declareSchema(CommandLine &line)
{
    auto choice = std::make_shared<DeviceChoice>();
    CLI::App *command = line.command(
        "schema", "Print a JSON Schema of the options, with what each device allows",
        "orixm1 schema --device TV2KR-18C --package QFN88P",
        [choice](Environment &environment) { return runSchema(environment, *choice); });
    CommandLine::require(line.device(command, *choice), false);
}

} // namespace Cli
