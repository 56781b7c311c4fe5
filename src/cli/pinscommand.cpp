#include "commands.h"

#include "commandline.h"
#include "environment.h"
#include "ipcdocument.h"
#include "output.h"

#include <rules/corepins.h>
#include <rules/pins.h>

namespace Cli
{

using namespace TARVOORIXM1;

namespace
{

struct BlockPin {
    QString block;
    Utils::PinFigure pin;
};

QList<BlockPin> allPins(const OptionMap &options, const QString &device)
{
    QList<BlockPin> pins;
    const QList<Utils::PinFigure> ofCore = corePins(coreSwitches(options));
    for (const Utils::PinFigure &pin : ofCore)
        pins.append({QStringLiteral("Cortex-M1"), pin});
    const QList<BlockPins> ofBlocks = peripheralPins(options, device);
    for (const BlockPins &entry : ofBlocks) {
        for (const Utils::PinFigure &pin : entry.pins)
            pins.append({entry.block->title, pin});
    }
    return pins;
}

QString directionName(const Utils::PinFigure &pin)
{
    static const QString names[] = {QStringLiteral("input"), QStringLiteral("output"),
                                    QStringLiteral("inout")};
    return names[pin.direction()];
}

int runPins(Environment &environment, const QString &file, bool json)
{
    IpcDocument document;
    if (!openDocument(environment, file, &document))
        return BadInput;
    const QList<BlockPin> pins = allPins(document.options, document.device.device());
    if (json) {
        QJsonArray list;
        for (const BlockPin &entry : pins) {
            list.append(QJsonObject{{QStringLiteral("block"), entry.block},
                                    {QStringLiteral("name"), entry.pin.name()},
                                    {QStringLiteral("direction"), directionName(entry.pin)},
                                    {QStringLiteral("bus"), entry.pin.isBus()}});
        }
        printJson({{QStringLiteral("pins"), list}});
        return Done;
    }
    int nameWidth = 3;
    for (const BlockPin &entry : pins)
        nameWidth = qMax(nameWidth, entry.pin.name().size());
    const auto print = [nameWidth](const QString &name, const QString &direction,
                                   const QString &block) {
        printLine(name.leftJustified(nameWidth) + QLatin1String("  ") + direction.leftJustified(9) +
                  QLatin1String("  ") + block);
    };
    print(QStringLiteral("PIN"), QStringLiteral("DIRECTION"), QStringLiteral("BLOCK"));
    for (const BlockPin &entry : pins)
        print(entry.pin.name(), directionName(entry.pin), entry.block);
    return Done;
}

} // namespace

void declarePins(CommandLine &line)
{
    struct Arguments {
        QString file;
        bool json = false;
    };
    auto arguments = std::make_shared<Arguments>();
    CLI::App *command =
        line.command("pins", "List the pins that the core has in a configuration",
                     "orixm1 pins tarvo_orix_m1.ipc", [arguments](Environment &environment) {
                         return runPins(environment, arguments->file, arguments->json);
                     });
    line.file(command, arguments->file);
    CommandLine::json(command, arguments->json);
}

} // namespace Cli
