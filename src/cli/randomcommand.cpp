#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <config/ipcfile.h>
#include <rules/randomoptions.h>

#include <QFileInfo>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct RandomArguments {
    DeviceChoice device;
    quint64 seed = 0;
    QString out; // file
    bool force = false;
    bool json = false;
};

int runRandom(Environment &environment, const RandomArguments &arguments)
{
    const QVariantMap ipInfo = environment.ipInfo();
    if (ipInfo.isEmpty() || !environment.devices())
        return BadInput;
    const auto device = environment.findDevice(arguments.device);
    if (!device) {
        printProblem(environment.problemOf(device.reason(), arguments.device));
        return WrongUsage;
    }
    if (arguments.out.isEmpty()) {
        printProblem({QStringLiteral("--out names no file."), QStringLiteral("--out")});
        return WrongUsage;
    }
    const QString path = QFileInfo(arguments.out).absoluteFilePath();
    if (QFileInfo::exists(path) && !arguments.force) {
        printProblem(
            {QLatin1String("\"") + path + QLatin1String("\" exists already; --force replaces it."),
             {},
             path});
        return Failed;
    }
    const Utils::Result<void> written = writeConfiguration(
        path, IpcFile::header(device->id(), ipInfo), randomOptions(arguments.seed, *device));
    if (!written) {
        printProblem({written.reason(), {}, path});
        return Failed;
    }
    if (const QString note = environment.chosenSpeed(*device, arguments.device); !note.isEmpty())
        printError(note);
    if (arguments.json)
        // As a text: a number of JSON holds no more than 53 bits.
        printJson({{QStringLiteral("file"), path},
                   {QStringLiteral("device"), device->id()},
                   {QStringLiteral("seed"), QString::number(arguments.seed)}});
    else
        printLine(path);
    return Done;
}

} // namespace

void declareRandom(CommandLine &line)
{
    auto arguments = std::make_shared<RandomArguments>();
    CLI::App *command = line.command(
        "random", "Write a valid configuration by lot, the same one for the same seed",
        "orixm1 random --device TV2KR-18C --package QFN88P --seed 7 --out random.ipc",
        [arguments](Environment &environment) { return runRandom(environment, *arguments); });
    line.device(command, arguments->device);
    CommandLine::require(CommandLine::number(command, "--seed", arguments->seed,
                                             "Number that the configuration follows from", "N"));
    CommandLine::require(
        line.path(command, "--out", arguments->out, "File that is written", "FILE"));
    CommandLine::force(command, arguments->force);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
