#include "presets.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/rows.h"
#include "devicerules.h"
#include "dialogdefaults.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct Choice {
    QLatin1String key;
    QLatin1String value = "true"_l1;
};

constexpr Choice minimal[] = {
    {Key::numberOfInterrupts, "1"_l1},
    {Key::osExtension, "false"_l1},
    {Key::smallMultiplier},
    {Key::enableDebug, "false"_l1},
    {Key::enableUart0},
};
constexpr Choice console[] = {
    {Key::numberOfInterrupts, "32"_l1},
    {Key::enableGpio},
    {Key::enableGpioIo},
    {Key::enableTimer0},
    {Key::enableUart0},
};
constexpr Choice sensorNode[] = {
    {Key::numberOfInterrupts, "32"_l1},
    {Key::enableGpio},
    {Key::enableGpioIo},
    {Key::enableI2c},
    {Key::enableI2cIo},
    {Key::enableSpi},
    {Key::enableRtc},
    {Key::enableTimer0},
    {Key::enableUart0},
    {Key::enableUart1},
    {Key::enableWatchDog},
};
constexpr Choice storageNode[] = {
    {Key::numberOfInterrupts, "32"_l1},
    {Key::enableDualTimer},
    {Key::enableI2c},
    {Key::enableI2cIo},
    {Key::enableRtc},
    {Key::enableSdCard},
    {Key::enableSpiFlash},
    {Key::enableUart0},
};
constexpr Choice gateway[] = {
    {Key::numberOfInterrupts, "32"_l1},
    {Key::enableCan},
    {Key::enableEthernet},
    {Key::enableGpio},
    {Key::enableGpioIo},
    {Key::enableTimer0},
    {Key::enableTimer1},
    {Key::enableUart0},
    {Key::enableUart1},
    {Key::enableTrng},
    {Key::enableWatchDog},
};
constexpr Choice everyInterrupt[] = {
    {Key::numberOfInterrupts, "32"_l1},
    {Key::externalInterrupts},
};

struct Preset {
    QLatin1String name;
    QLatin1String text;
    Rows<Choice> choices;
    bool hasEverything = false; // every switch of a block that the device can have
};

constexpr Preset presets[] = {
    {"minimal"_l1, "the smallest processor with one UART: no debug, no operating system"_l1,
     minimal},
    {"console"_l1, "a program's first steps: UART, GPIO and a timer"_l1, console},
    {"sensor-node"_l1, "sensors and a host: GPIO, I2C, SPI, two UARTs, timer, RTC and watchdog"_l1,
     sensorNode},
    {"storage-node"_l1, "a data logger: SD card, serial flash, I2C, UART, RTC and dual timer"_l1,
     storageNode},
    {"gateway"_l1,
     "between buses: Ethernet, CAN, two UARTs, timers, random numbers and watchdog"_l1, gateway},
    {"everything"_l1, "every block and every extension port that fits the device"_l1,
     everyInterrupt, true},
};

const Preset *findPreset(const QString &name)
{
    const auto it = std::find_if(std::begin(presets), std::end(presets),
                                 [&name](const Preset &preset) { return name == preset.name; });
    return it == std::end(presets) ? nullptr : it;
}

} // namespace

QStringList presetNames()
{
    QStringList names;
    for (const Preset &preset : presets)
        names.append(preset.name);
    return names;
}

QString presetText(const QString &name)
{
    const Preset *preset = findPreset(name);
    return preset ? QString(preset->text) : QString();
}

bool isPresetOffered(const QString &name, const DEV::DeviceArg &device)
{
    const Preset *preset = findPreset(name);
    if (!preset || device.isNull())
        return false;
    const Rows<RestrictedBlock> restricted = restrictedBlocks();
    return std::all_of(preset->choices.begin(), preset->choices.end(), [&](const Choice &choice) {
        return std::all_of(restricted.begin(), restricted.end(), [&](const RestrictedBlock &block) {
            return choice.key != block.key || choice.value == "false"_l1 ||
                   block.isAvailable(device);
        });
    });
}

OptionMap presetChoices(const QString &name, const DEV::DeviceArg &device)
{
    const Preset *preset = findPreset(name);
    OptionMap options;
    if (!preset)
        return options;
    for (const Choice &choice : preset->choices)
        options.insert(choice.key, optionValueFromText(*findOption(choice.key), choice.value));
    if (preset->hasEverything) {
        for (const Block &block : generatedBlocks()) {
            for (const SwitchRow &row : block.switches)
                options.insert(row.key(), true);
        }
    }
    for (const RestrictedBlock &block : restrictedBlocks()) {
        if (!block.isAvailable(device) &&
            generatedValue(options, block.key, device.device()).toBool()) {
            if (options.contains(block.key) && block.key != Key::enableDebug)
                options.remove(block.key);
            else
                options.insert(block.key, false);
        }
    }
    if (isInstructionMemoryExternalOnly(device.device())) {
        options.insert(Key::internalInstructionMemory, false);
        options.insert(Key::externalInstructionMemory, true);
    }
    return options;
}

} // namespace TARVOORIXM1
