#include "dialogdefaults.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "corepage.h"
#include "devicerules.h"

namespace TARVOORIXM1
{

namespace
{

struct Row {
    QLatin1String key;
    QLatin1String value;
};

// Where the core page of the smallest devices differs from that of all others.
constexpr Row smallDeviceRows[] = {
    {Key::numberOfInterrupts, "1"_l1},
    {Key::osExtension, "false"_l1},
    {Key::smallMultiplier, "true"_l1},
    {Key::enableDebug, "false"_l1},
    {Key::internalInstructionMemory, "false"_l1},
    {Key::externalInstructionMemory, "true"_l1},
};

} // namespace

QVariant generationDefault(const QString &key, const QString &device)
{
    if (key == Key::itcmSize || key == Key::dtcmSize)
        return defaultTcmSizeIndex(device);
    return valueOf({}, key);
}

QVariant dialogDefault(const QString &key, const QString &device)
{
    const Option *option = findOption(key);
    if (!option)
        return {};
    if (isSmallDevice(device)) {
        for (const Row &row : smallDeviceRows) {
            if (key == row.key)
                return optionValueFromText(*option, row.value);
        }
    }
    return option->dialogDefault.isValid() ? option->dialogDefault : generationDefault(key, device);
}

QVariant generatedValue(const OptionMap &options, const QString &key, const QString &device)
{
    return options.contains(key) ? valueOf(options, key) : generationDefault(key, device);
}

QVariant dialogValue(const OptionMap &options, const QString &key, const QString &device)
{
    return options.contains(key) ? valueOf(options, key) : dialogDefault(key, device);
}

QVector<UnsetKey> unsetKeys(const OptionMap &options, const QString &device)
{
    const OptionMap corePage =
        device.isEmpty() ? OptionMap() : acceptedCoreOptions(options, device);
    QVector<UnsetKey> unset;
    for (const Option &option : optionTable()) {
        if (options.contains(option.key))
            continue;
        const QVariant generated = generationDefault(option.key, device);
        QVariant dialog = generated;
        if (corePage.contains(option.key))
            dialog = corePage.value(option.key);
        else if (option.dialogDefault.isValid() && isOn(options, option.neededSwitch))
            dialog = option.dialogDefault;
        if (dialog != generated)
            unset.append({option.key, generated, dialog});
    }
    return unset;
}

} // namespace TARVOORIXM1
