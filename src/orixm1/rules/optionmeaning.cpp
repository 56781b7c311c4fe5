#include "optionmeaning.h"

#include "config/choices.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "dialogdefaults.h"

namespace TARVOORIXM1
{

namespace
{

bool namesDevice(const QString &key)
{
    return key == Key::ipDeviceId || key == Key::ipDevice;
}

// What generation takes for an absent key, and what a dialog does. Book-keeping is filled in by the
// dialogs: the device is the file's, tool and language are the first of their choice.
struct Absence {
    QVariant generated;
    QVariant dialog;
};

Absence absenceOf(const Option &option, const DEV::DeviceArg &device)
{
    const auto both = [](const QVariant &value) { return Absence{value, value}; };
    if (option.key == Key::ipDeviceId)
        return both(device.id());
    if (option.key == Key::ipDevice)
        return both(device.device());
    if (option.key == Key::synthesisTool)
        return both(QString(rowOf(effectiveTool({})).name));
    if (option.key == Key::lang)
        return both(0);
    Absence absence = {generationDefault(option.key, device.device()),
                       dialogDefault(option.key, device.device())};
    // What generation never reads is an empty text to the dialogs.
    if (!absence.generated.isValid())
        absence.generated = QString();
    if (!absence.dialog.isValid())
        absence.dialog = absence.generated;
    return absence;
}

bool differsAmongDevices(const Option &option)
{
    return namesDevice(option.key) || option.key == Key::itcmSize || option.key == Key::dtcmSize;
}

// Comparing variants would make a number of a text.
bool isSame(const QVariant &a, const QVariant &b)
{
    return a.type() == b.type() && a == b;
}

} // namespace

bool OptionMeaning::isSameAs(const OptionMeaning &other) const
{
    return isSame(value, other.value) && isSame(dialog, other.dialog);
}

QVariant typedValue(const Option &option, const QVariant &stored)
{
    if (stored.type() == QVariant::StringList)
        return valueText(stored);
    const QVariant typed = optionValueFromText(option, stored.toString());
    return typed.isValid() ? typed : QVariant(stored.toString());
}

QString valueText(const QVariant &value)
{
    return value.type() == QVariant::StringList ? value.toStringList().join(", "_l1)
                                                : value.toString();
}

OptionMeaning meaningOf(const OptionMap &options, const QString &key, const DEV::DeviceArg &device)
{
    OptionMeaning meaning;
    meaning.key = key;
    const Option *option = findOption(key);
    if (options.contains(key)) {
        const QVariant stored = valueOf(options, key);
        meaning.origin = OptionMeaning::Stored;
        meaning.value = option ? typedValue(*option, stored) : QVariant(valueText(stored));
        meaning.dialog = meaning.value;
    } else if (option) {
        const Absence absence = absenceOf(*option, device);
        meaning.origin =
            differsAmongDevices(*option) ? OptionMeaning::DeviceDefault : OptionMeaning::Default;
        meaning.value = absence.generated;
        meaning.dialog = absence.dialog;
    } else {
        meaning.origin = OptionMeaning::Unknown;
    }
    return meaning;
}

QVector<OptionMeaning> meaningsOf(const OptionMap &options, const DEV::DeviceArg &device)
{
    QVector<OptionMeaning> meanings;
    for (const Option &option : optionTable())
        meanings.append(meaningOf(options, option.key, device));
    for (auto it = options.cbegin(); it != options.cend(); ++it) {
        if (!findOption(it.key()))
            meanings.append(meaningOf(options, it.key(), device));
    }
    return meanings;
}

QVector<OptionDifference> optionDifferences(const OptionMap &before,
                                            const DEV::DeviceArg &beforeDevice,
                                            const OptionMap &after,
                                            const DEV::DeviceArg &afterDevice)
{
    // With the keys of both, each only once.
    OptionMap all = before;
    for (auto it = after.cbegin(); it != after.cend(); ++it)
        all.insert(it.key(), it.value());
    QVector<OptionDifference> differences;
    const QVector<OptionMeaning> keys = meaningsOf(all, afterDevice);
    for (const OptionMeaning &entry : keys) {
        const OptionDifference difference = {meaningOf(before, entry.key, beforeDevice),
                                             meaningOf(after, entry.key, afterDevice)};
        if (difference.before.isSameAs(difference.after))
            continue;
        const bool ownDevices =
            namesDevice(entry.key) &&
            difference.before.isSameAs(meaningOf({}, entry.key, beforeDevice)) &&
            difference.after.isSameAs(meaningOf({}, entry.key, afterDevice));
        if (!ownDevices)
            differences.append(difference);
    }
    return differences;
}

OptionMap minimized(const OptionMap &options, const DEV::DeviceArg &device)
{
    OptionMap kept;
    for (auto it = options.cbegin(); it != options.cend(); ++it) {
        const OptionMeaning stored = meaningOf(options, it.key(), device);
        if (!stored.isSameAs(meaningOf({}, it.key(), device)))
            kept.insert(it.key(), it.value());
    }
    return kept;
}

} // namespace TARVOORIXM1
