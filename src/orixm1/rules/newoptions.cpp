#include "newoptions.h"

#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "dialogdefaults.h"
#include "itcmpath.h"

namespace TARVOORIXM1
{

namespace
{

struct MemoryPair {
    QLatin1String internal;
    QLatin1String external;
};

constexpr MemoryPair memoryPairs[] = {
    {Key::internalInstructionMemory, Key::externalInstructionMemory},
    {Key::internalDataMemory, Key::externalDataMemory},
};

// A memory is inside or outside: on the page, choosing one is giving up the other.
void chooseOther(OptionMap &options, QLatin1String chosen, QLatin1String other,
                 const QString &device)
{
    if (!options.contains(chosen) || options.contains(other))
        return;
    const bool value = !isOn(options, chosen);
    if (generationDefault(other, device) != value || dialogDefault(other, device) != value)
        options.insert(other, value);
}

} // namespace

OptionMap optionsForChoices(const OptionMap &choices, const QString &device,
                            const QString &createIn)
{
    OptionMap options = choices;
    for (const MemoryPair &pair : memoryPairs) {
        chooseOther(options, pair.internal, pair.external, device);
        chooseOther(options, pair.external, pair.internal, device);
    }
    const QVector<UnsetKey> unset = unsetKeys(options, device);
    for (const UnsetKey &entry : unset)
        options.insert(entry.key, entry.dialog);

    const QString path = textOf(options, Key::itcmInitializationPath);
    if (!path.isEmpty() && !options.contains(Key::itcmInitializationAbsolutePath))
        options.insert(Key::itcmInitializationAbsolutePath, absoluteItcmPath(path, createIn));
    return options;
}

OptionMap withChoices(const OptionMap &options, const OptionMap &choices)
{
    OptionMap result = options;
    for (auto it = choices.begin(); it != choices.end(); ++it)
        result.insert(it.key(), it.value());
    for (const MemoryPair &pair : memoryPairs) {
        if (choices.contains(pair.internal) && !choices.contains(pair.external))
            result.insert(pair.external, !isOn(choices, pair.internal));
        else if (choices.contains(pair.external) && !choices.contains(pair.internal))
            result.insert(pair.internal, !isOn(choices, pair.external));
    }
    return result;
}

} // namespace TARVOORIXM1
