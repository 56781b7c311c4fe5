#include "optionschema.h"

#include "config/latin1literal.h"
#include "config/nameprefix.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "devicerules.h"
#include "dialogdefaults.h"
#include "tcmsizes.h"

#include <QJsonArray>
#include <QVector>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

QString word(const char *text)
{
    return QString::fromLatin1(text);
}

// {key: value}
QJsonObject pair(const QString &key, const QJsonValue &value)
{
    return {{key, value}};
}

QJsonObject property(const QString &key, const QJsonObject &schema)
{
    return pair(word("properties"), pair(key, schema));
}

QJsonObject requiring(QJsonObject schema, const QStringList &keys)
{
    schema.insert(word("required"), QJsonArray::fromStringList(keys));
    return schema;
}

// What an absent switch is to generation is the same on every device.
bool isOnByDefault(const QString &key)
{
    return generationDefault(key, QString()).toBool();
}

// Holds where the switch is `on`, also because it is absent.
QJsonObject whereSwitch(const QString &key, bool on)
{
    const QJsonObject schema = property(key, pair(word("const"), on));
    return isOnByDefault(key) == on ? schema : requiring(schema, {key});
}

// Holds where an index is at most, or exactly, `index`, also because it is absent and the device's
// own is.
QJsonObject whereIndex(const QString &key, const char *bound, int index, bool alsoAbsent)
{
    const QJsonObject schema = property(key, pair(word(bound), index));
    return alsoAbsent ? schema : requiring(schema, {key});
}

QJsonObject all(const QVector<QJsonObject> &schemas)
{
    QJsonArray list;
    for (const QJsonObject &schema : schemas)
        list.append(schema);
    return pair(word("allOf"), list);
}

QJsonObject rule(const QJsonObject &condition, const QJsonObject &consequence)
{
    return {{word("if"), condition}, {word("then"), consequence}};
}

QJsonObject schemaOf(const Option &option)
{
    QJsonObject schema{{word("description"), option.description}};
    QString type = typeName(option.type);
    if (option.type == OptionType::Bool)
        type = word("boolean");
    else if (option.type == OptionType::Int)
        type = word("integer");
    schema.insert(word("type"), type);
    if (!option.choices.isEmpty()) {
        QJsonArray choices;
        for (const QString &choice : option.choices)
            choices.append(QJsonValue::fromVariant(optionValueFromText(option, choice)));
        schema.insert(word("enum"), choices);
    } else if (option.type == OptionType::Int) {
        schema.insert(word("minimum"), option.minimum);
        schema.insert(word("maximum"), option.maximum);
    }
    if (option.key == Key::namePrefix) {
        schema.insert(word("pattern"), prefixPattern());
        schema.insert(word("maxLength"), longestPrefix);
    }
    if (option.defaultValue.isValid() && isInDomain(option, option.defaultValue))
        schema.insert(word("default"), QJsonValue::fromVariant(option.defaultValue));
    return schema;
}

// What holds on every device.
QVector<QJsonObject> commonRules()
{
    // A generated line could not hold it: as unsafeCharacter() has it.
    const QJsonObject path{
        {word("minLength"), 1},
        {word("not"), pair(word("pattern"),
                           word("[\"\\\\`\\u0000-\\u0008\\u000a-\\u001f\\u0085\\u2028\\u2029]"))}};
    QJsonObject paths =
        pair(word("properties"), QJsonObject{{Key::itcmInitializationPath, path},
                                             {Key::itcmInitializationAbsolutePath, path}});
    paths = requiring(paths, {Key::itcmInitializationPath, Key::itcmInitializationAbsolutePath});
    return {rule(whereSwitch(Key::enableCan, true), requiring({}, {Key::canBufferDepth})),
            rule(all({whereSwitch(Key::initializeItcm, true),
                      whereSwitch(Key::internalInstructionMemory, true)}),
                 paths)};
}

void addSizes(const QString &device, QVector<QJsonObject> *rules)
{
    const int largest = tcmSizes(device).full.size() - 1;
    const int reduced = tcmSizes(device).reduced.size() - 1;
    if (largest < 0)
        return;
    const int preset = defaultTcmSizeIndex(device);
    struct Memory {
        QLatin1String internal;
        QLatin1String size;
        QLatin1String otherSize;
    };
    constexpr Memory memories[] = {
        {Key::internalInstructionMemory, Key::itcmSize, Key::dtcmSize},
        {Key::internalDataMemory, Key::dtcmSize, Key::itcmSize},
    };
    const QJsonObject bothInside = all({whereSwitch(Key::internalInstructionMemory, true),
                                        whereSwitch(Key::internalDataMemory, true)});
    for (const Memory &memory : memories) {
        rules->append(rule(whereSwitch(memory.internal, true),
                           whereIndex(memory.size, "maximum", largest, true)));
        if (reduced < largest)
            rules->append(rule(
                all({bothInside, whereIndex(memory.size, "const", largest, preset == largest)}),
                whereIndex(memory.otherSize, "maximum", reduced, preset <= reduced)));
    }
}

// What a device allows.
QJsonObject limitsOf(const DEV::DeviceArg &device)
{
    const QString name = device.device();
    QVector<QJsonObject> rules;
    for (const RestrictedBlock &block : restrictedBlocks()) {
        if (!block.isAvailable(device))
            rules.append(whereSwitch(block.key, false));
    }
    if (isInstructionMemoryExternalOnly(name))
        rules.append(whereSwitch(Key::internalInstructionMemory, false));
    addSizes(name, &rules);
    rules.append(rule(
        whereSwitch(Key::enableEthernet, true),
        property(Key::ethernetInputDelay, pair(word("maximum"), largestRgmiiInputDelay(name)))));
    return all(rules);
}

struct Limits {
    QJsonObject schema;
    QJsonArray devices; // ids
};

} // namespace

QJsonObject optionSchema(const QList<DEV::DeviceArg> &devices)
{
    const QString device = word("device");
    const QString options = word("options");
    QJsonArray ids;
    QVector<Limits> limits;
    for (const DEV::DeviceArg &entry : devices) {
        ids.append(entry.id());
        const QJsonObject schema = limitsOf(entry);
        const auto same = std::find_if(limits.begin(), limits.end(), [&schema](const Limits &row) {
            return row.schema == schema;
        });
        if (same != limits.end())
            same->devices.append(entry.id());
        else
            limits.append({schema, {entry.id()}});
    }
    QJsonArray byDevice;
    for (const Limits &row : qAsConst(limits)) {
        const QJsonObject limited = property(options, row.schema);
        byDevice.append(
            devices.size() == 1
                ? limited
                : rule(requiring(property(device, pair(word("enum"), row.devices)), {device}),
                       limited));
    }

    QJsonObject keys;
    for (const Option &option : optionTable())
        keys.insert(option.key, schemaOf(option));
    QJsonObject allOptions = all(commonRules());
    allOptions.insert(word("type"), word("object"));
    allOptions.insert(word("properties"), keys);
    allOptions.insert(word("additionalProperties"), false);
    QJsonObject schema{
        {word("$schema"), word("https://json-schema.org/draft/2020-12/schema")},
        {word("title"), word("Configuration of Tarvo_ORIX_M1")},
        {word("type"), word("object")},
        {word("properties"),
         QJsonObject{{device, QJsonObject{{word("description"), word("Id of the target device")},
                                          {word("enum"), ids}}},
                     {options, allOptions}}},
        {word("allOf"), byDevice}};
    return requiring(schema,
                     devices.size() == 1 ? QStringList{options} : QStringList{device, options});
}

} // namespace TARVOORIXM1
