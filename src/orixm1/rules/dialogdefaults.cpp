#include "dialogdefaults.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "corepage.h"
#include "devicerules.h"

namespace TARVOORIXM1
{

namespace
{

struct Row {
    QLatin1String key;
    QLatin1String value;
    QLatin1String needs; // the switch without which the value counts for nothing
};

// Where a block's dialog differs from generation; those of its check boxes stand with the block.
constexpr Row blockRows[] = {
    {Key::canBufferDepth, "256"_l1, Key::enableCan},
    {Key::ethernetInputDelay, "100"_l1, Key::enableEthernet},
    {Key::ethernetClockDivider, "20"_l1, Key::enableEthernet},
};

// Where the core page of the smallest devices differs from that of all others.
constexpr Row smallDeviceRows[] = {
    {Key::numberOfInterrupts, "1"_l1, QLatin1String()},
    {Key::osExtension, "false"_l1, QLatin1String()},
    {Key::smallMultiplier, "true"_l1, QLatin1String()},
    {Key::enableDebug, "false"_l1, QLatin1String()},
    {Key::internalInstructionMemory, "false"_l1, QLatin1String()},
    {Key::externalInstructionMemory, "true"_l1, QLatin1String()},
};

template <size_t N>
const Row *find(const Row (&rows)[N], const QString &key)
{
    for (const Row &row : rows) {
        if (key == row.key)
            return &row;
    }
    return nullptr;
}

// A check box of a block that is no switch of its own.
struct SubSwitch {
    bool byDefault = false;
    QString needs; // empty: the key is no such check box
};

SubSwitch subSwitch(const QString &key)
{
    for (const Block &block : blocks()) {
        for (const SwitchRow &row : block.switches) {
            if (row.byDefault && row.key() == key)
                return {row.byDefault, block.switches[0].key()};
        }
    }
    return {};
}

// The switch that decides whether a block's option counts; empty for options of the core and for
// switches.
QString neededSwitch(const QString &key)
{
    const Row *row = find(blockRows, key);
    return row ? QString(row->needs) : subSwitch(key).needs;
}

} // namespace

QVariant generationDefault(const QString &key, const QString &device)
{
    if (key == Key::itcmSize || key == Key::dtcmSize)
        return defaultTcmSizeIndex(device);
    const Option *option = findOption(key);
    return option ? option->defaultValue : QVariant();
}

QVariant dialogDefault(const QString &key, const QString &device)
{
    const Option *option = findOption(key);
    if (!option)
        return {};
    const Row *row = isSmallDevice(device) ? find(smallDeviceRows, key) : nullptr;
    if (!row)
        row = find(blockRows, key);
    if (row)
        return optionValueFromText(*option, row->value);
    const SubSwitch box = subSwitch(key);
    return box.needs.isEmpty() ? generationDefault(key, device) : QVariant(box.byDefault);
}

QVariant generatedValue(const OptionMap &options, const QString &key, const QString &device)
{
    return options.value(key, generationDefault(key, device));
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
        const QString needed = neededSwitch(option.key);
        if (corePage.contains(option.key))
            dialog = corePage.value(option.key);
        else if (!needed.isEmpty() && generatedValue(options, needed, device).toBool())
            dialog = dialogDefault(option.key, device);
        if (dialog != generated)
            unset.append({option.key, generated, dialog});
    }
    return unset;
}

} // namespace TARVOORIXM1
