#include "optiontable.h"

#include "blocks.h"
#include "choices.h"
#include "latin1literal.h"
#include "nameprefix.h"
#include "nearest.h"

#include <QHash>

namespace TARVOORIXM1
{

namespace
{

struct BoolRow {
    QLatin1String key;
    bool byDefault;
    const char *description;
};

// Where a dialog takes something else for an absent key than generation; those of its check boxes
// stand with the block.
struct DialogRow {
    QLatin1String key;
    QLatin1String value;
    QLatin1String neededSwitch;
};

constexpr DialogRow dialogRows[] = {
    {Key::canBufferDepth, "256"_l1, Key::enableCan},
    {Key::ethernetInputDelay, "100"_l1, Key::enableEthernet},
    {Key::ethernetClockDivider, "20"_l1, Key::enableEthernet},
};

constexpr BoolRow coreSwitches[] = {
    {Key::osExtension, true, "Operating system extension: SysTick and PendSV"},
    {Key::smallMultiplier, false, "Small multiplier instead of the fast one"},
    {Key::bigEndian, false, "Big-endian data (BE8)"},
    {Key::externalInterrupts, false,
     "External interrupt inputs EXTINT[3:0]; needs 16 or 32 interrupts"},
    {Key::enableDebug, true, "Debug unit"},
};

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

Option boolOption(const QString &key, bool byDefault, const QString &description)
{
    Option option;
    option.key = key;
    option.type = OptionType::Bool;
    option.defaultValue = byDefault;
    option.description = description;
    return option;
}

Option choiceOption(const QString &key, OptionType type, const QVariant &byDefault,
                    const QStringList &choices, const char *description)
{
    Option option;
    option.key = key;
    option.type = type;
    option.defaultValue = byDefault;
    option.choices = choices;
    option.description = text(description);
    return option;
}

Option rangeOption(const QString &key, const QVariant &byDefault, int minimum, int maximum,
                   const char *description)
{
    Option option;
    option.key = key;
    option.type = OptionType::Int;
    option.defaultValue = byDefault;
    option.minimum = minimum;
    option.maximum = maximum;
    option.description = text(description);
    return option;
}

Option openOption(const QString &key, const QVariant &byDefault, const char *description)
{
    Option option;
    option.key = key;
    option.type = OptionType::String;
    option.defaultValue = byDefault;
    option.description = text(description);
    return option;
}

Option bookKeeping(Option option)
{
    option.isOption = false;
    return option;
}

template <size_t N>
void append(QVector<Option> &table, const BoolRow (&rows)[N])
{
    for (const BoolRow &row : rows)
        table.append(boolOption(row.key, row.byDefault, text(row.description)));
}

// What a block offers besides switches, by the switch that it follows.
QVector<Option> furtherOptions(QLatin1String key)
{
    if (key == Key::enableCan) {
        QStringList depths;
        for (int depth = 16; depth <= 65536; depth *= 2)
            depths.append(QString::number(depth));
        return {choiceOption(Key::canBufferDepth, OptionType::String, QString(), depths,
                             "CAN message buffer depth; must be set when CAN is on")};
    }
    if (key == Key::enableEthernet) {
        return {choiceOption(Key::ethernetInterface, OptionType::String, QString(Value::rgmii),
                             {Value::rgmii, Value::gmii, Value::mii, Value::gmiiMii},
                             "Interface to the Ethernet PHY"),
                rangeOption(
                    Key::ethernetInputDelay, 0, 0, 255,
                    "RGMII input delay in delay steps; up to 127 except on TV5K and TV3K devices"),
                rangeOption(Key::ethernetClockDivider, 0, 0, 255, "Divider of the MIIM clock")};
    }
    return {};
}

QVector<Option> buildTable()
{
    const auto string = [](QLatin1String value) { return QString(value); };
    QVector<Option> table;
    table.append(choiceOption(Key::numberOfInterrupts, OptionType::Int, 32,
                              {text("1"), text("8"), text("16"), text("32")},
                              "Interrupt inputs of the core"));
    append(table, coreSwitches);
    table.append(
        choiceOption(Key::debugPortSelect, OptionType::String, string(Value::jtagAndSerialWire),
                     {Value::jtag, Value::serialWire, Value::jtagAndSerialWire}, "Debug port"));
    table.append(boolOption(Key::smallDebug, false,
                            text("Small debug unit with fewer break- and watchpoints")));
    table.append(
        boolOption(Key::internalInstructionMemory, true, text("Instruction memory inside: ITCM")));
    table.append(boolOption(Key::externalInstructionMemory, false,
                            text("Instruction memory outside, on the EXTFLASH0 port")));
    table.append(rangeOption(Key::itcmSize, QVariant(), 0, 9,
                             "ITCM size index: 2^index KB; the device's list may end earlier"));
    table.append(boolOption(Key::initializeItcm, false, text("Initialise the ITCM from files")));
    table.append(openOption(
        Key::itcmInitializationPath, QVariant(),
        "Folder of the ITCM initialisation files, relative to the output folder or absolute"));
    table.append(openOption(Key::itcmInitializationAbsolutePath, QString(),
                            "The same folder as an absolute path, which generation uses"));
    table.append(boolOption(Key::internalDataMemory, true, text("Data memory inside: DTCM")));
    table.append(boolOption(Key::externalDataMemory, false,
                            text("Data memory outside, on the EXTSRAM0 port")));
    table.append(rangeOption(Key::dtcmSize, QVariant(), 0, 9,
                             "DTCM size index: 2^index KB; the device's list may end earlier"));

    for (const Block &block : generatedBlocks()) {
        for (const SwitchRow &row : block.switches) {
            Option option = boolOption(row.key(), false, row.description());
            if (row.byDefault) {
                option.dialogDefault = row.byDefault;
                option.neededSwitch = block.switches[0].key();
            }
            table.append(option);
            table += furtherOptions(row.name);
        }
    }

    table.append(bookKeeping(choiceOption(Key::synthesisTool, OptionType::String, QVariant(),
                                          toolNames(), "Synthesis tool")));
    table.append(
        bookKeeping(choiceOption(Key::lang, OptionType::Int, QVariant(), {text("0"), text("1")},
                                 "Language of the outputs: 0 Verilog, 1 VHDL")));
    table.append(bookKeeping(openOption(Key::ipDeviceId, QVariant(), "Id of the target device")));
    table.append(bookKeeping(openOption(Key::ipDevice, QVariant(), "Name of the target device")));
    table.append(bookKeeping(
        openOption(Key::namePrefix, QString(),
                   "What names begin with where several subsystems stand in one design")));

    for (const DialogRow &row : dialogRows) {
        for (Option &option : table) {
            if (option.key != row.key)
                continue;
            option.dialogDefault = optionValueFromText(option, row.value);
            option.neededSwitch = row.neededSwitch;
        }
    }
    return table;
}

} // namespace

const QVector<Option> &optionTable()
{
    static const QVector<Option> table = buildTable();
    return table;
}

const Option *findOption(const QString &key)
{
    static const QHash<QString, const Option *> rows = [] {
        QHash<QString, const Option *> result;
        for (const Option &row : optionTable())
            result.insert(row.key, &row);
        return result;
    }();
    return rows[key];
}

QString nearestOptionKey(const QString &key)
{
    QStringList keys;
    for (const Option &row : optionTable())
        keys.append(row.key);
    return nearestText(key, keys);
}

QVariant optionValueFromText(const Option &option, const QString &value)
{
    switch (option.type) {
    case OptionType::Bool:
        if (value == "1"_l1 || value.compare("true"_l1, Qt::CaseInsensitive) == 0)
            return true;
        if (value == "0"_l1 || value.compare("false"_l1, Qt::CaseInsensitive) == 0)
            return false;
        return {};
    case OptionType::Int: {
        bool ok = false;
        const int number = value.toInt(&ok);
        return ok ? QVariant(number) : QVariant();
    }
    case OptionType::String:
        return value;
    }
    return {};
}

bool isInDomain(const Option &option, const QVariant &value)
{
    if (option.key == Key::namePrefix)
        return prefixMistake(value.toString()).text.isEmpty();
    if (!option.choices.isEmpty())
        return option.choices.contains(value.toString());
    if (option.type == OptionType::Int && option.minimum <= option.maximum)
        return value.toInt() >= option.minimum && value.toInt() <= option.maximum;
    return true;
}

QString domainText(const Option &option)
{
    if (option.key == Key::namePrefix)
        return prefixDomain();
    if (!option.choices.isEmpty())
        return "one of "_l1 + option.choices.join(", "_l1);
    if (option.type == OptionType::Bool)
        return QStringLiteral("true or false");
    if (option.minimum <= option.maximum)
        return QString::number(option.minimum) + " to "_l1 + QString::number(option.maximum);
    return {};
}

QString typeName(OptionType type)
{
    switch (type) {
    case OptionType::Bool:
        return QStringLiteral("bool");
    case OptionType::Int:
        return QStringLiteral("int");
    case OptionType::String:
        break;
    }
    return QStringLiteral("string");
}

} // namespace TARVOORIXM1
