#include "defines.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "rules/devicerules.h"

#include <QDir>

#include <iterator>

namespace TARVOORIXM1
{

namespace
{

bool isOn(const OptionMap &options, QLatin1String key, bool byDefault = false)
{
    return options.value(key, byDefault).toBool();
}

QString define(QLatin1String name)
{
    return "`define "_l1 + name;
}

QString defineFlag(QLatin1String name, bool on)
{
    return "`define "_l1 + name + (on ? " 1"_l1 : " 0"_l1);
}

QString defineTcmSize(QLatin1String name, QLatin1String code)
{
    return "`define "_l1 + name + " 4'b"_l1 + code;
}

QLatin1String tcmSizeCodeOf(const OptionMap &options, QLatin1String key, const QString &device)
{
    return tcmSizeCode(options.value(key, defaultTcmSizeIndex(device)).toInt());
}

QString parameter(QLatin1String name, const QString &value)
{
    return "parameter "_l1 + name + " = "_l1 + value + u';';
}

constexpr QLatin1String sizeCodes[] = {
    "0001"_l1, "0010"_l1, "0011"_l1, "0100"_l1, "0101"_l1,
    "0110"_l1, "0111"_l1, "1000"_l1, "1001"_l1, "1010"_l1,
};
constexpr QLatin1String catchAllSizeCode = "0110"_l1;
constexpr QLatin1String externalSizeCode = "0000"_l1;

// The lines of the block's switches that are on; returns whether there are any.
bool appendSwitches(const OptionMap &options, const Block &block, QStringList &lines)
{
    const int before = lines.size();
    const bool isFirstOn = options.value(block.switches[0].key()).toBool();
    for (const SwitchRow &row : block.switches) {
        if (options.value(row.key()).toBool() && (isFirstOn || !row.isInterface))
            lines.append("`define "_l1 + row.macro());
    }
    return lines.size() > before;
}

struct MacInterface {
    QLatin1String name;
    QLatin1String macros[2]; // the second may be empty
};

constexpr MacInterface macInterfaces[] = {
    {Value::rgmii, {"RGMII_IF"_l1, QLatin1String()}},
    {Value::gmii, {"GMII_IF"_l1, QLatin1String()}},
    {Value::mii, {"MII_IF"_l1, QLatin1String()}},
    {Value::gmiiMii, {"GMII_IF"_l1, "MII_IF"_l1}},
};
constexpr QLatin1String macModuleName = "module_name mac"_l1;

struct FamilyRow {
    QLatin1String prefix;
    QLatin1String family;
};

// The first matching row wins; the last matches every device.
constexpr FamilyRow families[] = {
    {"TV5K"_l1, "\"5K_Series\""_l1},
    {"TV3K"_l1, "\"3K_Series\""_l1},
    {QLatin1String(), "\"1L/2K_Series\""_l1},
};

struct Ddr3Row {
    DeviceTest devices;
    QLatin1String variant; // may be empty
};

// The first matching row wins; a device that no row names gets an empty file.
constexpr Ddr3Row ddr3Rows[] = {
    {{QLatin1String(),
      "TV5KT-138/TV5KT-138B/TV5KT-75B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/"
      "TV5KT-138C/TV5KT-75C/TV5K-138B/TV5KS-138B"_l1},
     "VIRLA_138K"_l1},
    {{QLatin1String(), "TV5K-25A/TV5K-25B/TV5KS-25B/TV5KR-25B/TV5KS-25A/TV5KR-25A/TV5KT-60ES/"
                       "TV5KT-60B/TV5K-60B"_l1},
     "VIRLA_25K"_l1},
    {{"TV2K"_l1, QLatin1String()}, "VIRLA_TV2K"_l1},
    {{"TV3K"_l1, "TV1KL-5A/TV1KL-5B/TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/TV5KRT-15A/TV5KRT-15B/"
                 "TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A"_l1},
     QLatin1String()},
};

struct PsramRow {
    QLatin1String device;
    QLatin1String packages;
    bool ebrBased;
    bool clockReverse;
    bool singleEndedClocks;
};

// The first matching row wins. That single-ended clocks come without clock_reverse, and the
// catch-all row without EBR_BASED, is intended.
constexpr PsramRow psramRows[] = {
    {"TV2KR-18C"_l1, "QFN88P/eLQFP144P"_l1, true, true, false},
    {"TV2KR-18C"_l1, "QFN88PF/eLQFP144PF"_l1, true, false, true},
    {"TV2KLR-18C"_l1, "QFN88"_l1, true, false, false},
};
constexpr PsramRow psramDisabled = {QLatin1String(), QLatin1String(), true, true, false};
constexpr PsramRow psramOtherwise = {QLatin1String(), QLatin1String(), false, true, false};

const PsramRow &psramRow(const OptionMap &options, const DEV::DeviceArg &device)
{
    if (!isOn(options, Key::enablePsram))
        return psramDisabled;
    for (const PsramRow &row : psramRows) {
        if (device.device() == row.device && isInDeviceList(device.package(), row.packages))
            return row;
    }
    return psramOtherwise;
}

void appendDebugPort(const OptionMap &options, QStringList &coreLines, QStringList &busLines)
{
    // Compared as variants, so that the conversion rules of QVariant hold for a value of another
    // type.
    const QVariant port = options.value(Key::debugPortSelect, QString(Value::jtagAndSerialWire));
    const bool both = port == QVariant(QString(Value::jtagAndSerialWire));
    const bool jtag = both || port == QVariant(QString(Value::jtag));
    const bool serialWire = both || port == QVariant(QString(Value::serialWire));
    coreLines.append(defineFlag("CM1_JTAG"_l1, jtag));
    coreLines.append(defineFlag("CM1_SW"_l1, serialWire));
    if (jtag)
        busLines.append(define("DEBUG_PORT_JTAG"_l1));
    coreLines.append(defineFlag("CM1_SMALL_DEBUG"_l1, isOn(options, Key::smallDebug)));
}

void appendInstructionMemory(const OptionMap &options, const QString &device,
                             QStringList &coreLines, QStringList &busLines)
{
    constexpr QLatin1String lowerAlias = "CM1_ITCM_LA_EN"_l1;
    constexpr QLatin1String upperAlias = "CM1_ITCM_UA_EN"_l1;
    constexpr QLatin1String size = "CM1_ITCMSIZE"_l1;
    if (isOn(options, Key::internalInstructionMemory, true)) {
        coreLines.append(defineFlag(lowerAlias, true));
        coreLines.append(defineFlag(upperAlias, false));
        coreLines.append(defineTcmSize(size, tcmSizeCodeOf(options, Key::itcmSize, device)));
        if (isOn(options, Key::initializeItcm)) {
            const QString path =
                options.value(Key::itcmInitializationAbsolutePath, QString()).toString();
            coreLines.append(define("CM1_ITCM_INIT_EN"_l1));
            coreLines.append("`define CM1_ITCM_INIT_PATH \""_l1 + QDir::cleanPath(path) + u'"');
        }
    } else if (isOn(options, Key::externalInstructionMemory)) {
        coreLines.append(defineFlag(lowerAlias, false));
        coreLines.append(defineFlag(upperAlias, false));
        coreLines.append(defineTcmSize(size, externalSizeCode));
        busLines.append(define("CM1_EXTERNAL_FLASH_EN"_l1));
    }
}

void appendDataMemory(const OptionMap &options, const QString &device, QStringList &coreLines,
                      QStringList &busLines)
{
    constexpr QLatin1String size = "CM1_DTCMSIZE"_l1;
    if (isOn(options, Key::internalDataMemory, true)) {
        coreLines.append(defineTcmSize(size, tcmSizeCodeOf(options, Key::dtcmSize, device)));
    } else if (isOn(options, Key::externalDataMemory)) {
        busLines.append(define("CM1_EXTERNAL_SRAM_EN"_l1));
        coreLines.append(defineTcmSize(size, externalSizeCode));
    }
}

// The macros of the interface to the PHY, if it is a known one.
QStringList macMacros(const OptionMap &options)
{
    const QString interface =
        options.value(Key::ethernetInterface, QString(Value::rgmii)).toString();
    QStringList macros;
    for (const MacInterface &row : macInterfaces) {
        for (const QLatin1String macro : row.macros) {
            if (interface == row.name && macro.size() > 0)
                macros.append(macro);
        }
    }
    return macros;
}

void appendMac(const OptionMap &options, QStringList &defineLines, QStringList &paramLines)
{
    constexpr QLatin1String delay = "RGMII_INPUT_DELAY_VALUE"_l1;
    constexpr QLatin1String divider = "MIIM_CLK_DIVIDER"_l1;
    const bool on = isOn(options, Key::enableEthernet);
    const QStringList macros = on ? macMacros(options) : QStringList("RGMII_IF"_l1);
    defineLines.append(QStringLiteral("`ifndef MAC_DEFINE"));
    defineLines.append(define("MAC_DEFINE"_l1));
    for (const QString &macro : macros)
        defineLines.append("`define "_l1 + macro);
    if (!macros.isEmpty())
        defineLines.append(define(macModuleName));
    defineLines.append(QStringLiteral("`endif"));

    if (!on) {
        paramLines.append(parameter(delay, QStringLiteral("100")));
        paramLines.append(parameter(divider, QStringLiteral("20")));
        return;
    }
    if (options.value(Key::ethernetInterface, QString(Value::rgmii)).toString() == Value::rgmii) {
        const int value = options.value(Key::ethernetInputDelay, 0).toInt();
        paramLines.append(parameter(delay, QString::number(value)));
    }
    const int value = options.value(Key::ethernetClockDivider, 0).toInt();
    paramLines.append(parameter(divider, QString::number(value)));
}

// What stands in the bus file behind a block's own lines.
void appendFurther(const OptionMap &options, const Block &block, const QString &device,
                   QStringList &lines)
{
    const QLatin1String key = block.switches[0].name;
    if (key == Key::enableEthernet) {
        const QStringList macros = macMacros(options);
        for (const QString &macro : macros)
            lines.append("`define "_l1 + macro);
    } else if (key == Key::enableDdr3 && isTv2k(device)) {
        lines.append(define("VIRLA_TV2K"_l1));
    }
}

void appendDdr3Variant(const QString &device, QStringList &lines)
{
    for (const Ddr3Row &row : ddr3Rows) {
        if (!row.devices.matches(device))
            continue;
        lines.append(define("DDR3_PHY_MC"_l1));
        lines.append(define("EBR_BASED"_l1));
        if (row.variant.size() > 0)
            lines.append(define(row.variant));
        return;
    }
}

void appendPsramVariant(const PsramRow &row, QStringList &lines)
{
    if (row.ebrBased)
        lines.append(define("EBR_BASED"_l1));
    lines.append(define("module_name_psram PSRAM_Memory_Interface_Top"_l1));
    if (row.clockReverse)
        lines.append(define("clock_reverse"_l1));
    lines.append(define(row.singleEndedClocks ? "CK0_SINGLE"_l1 : "CK0_DIFF"_l1));
    lines.append(define(row.singleEndedClocks ? "CK1_SINGLE"_l1 : "CK1_DIFF"_l1));
}

} // namespace

QLatin1String tcmSizeCode(int index)
{
    return index >= 0 && index < int(std::size(sizeCodes)) ? sizeCodes[index] : catchAllSizeCode;
}

void buildCoreDefines(const OptionMap &options, const QString &device, QStringList &coreLines,
                      QStringList &busLines)
{
    const int interrupts = options.value(Key::numberOfInterrupts, 32).toInt();
    coreLines.append("`define CM1_NUM_IRQ "_l1 + QString::number(interrupts));
    coreLines.append(defineFlag("CM1_OS"_l1, isOn(options, Key::osExtension, true)));
    coreLines.append(defineFlag("CM1_SMALL_MUL"_l1, isOn(options, Key::smallMultiplier)));
    coreLines.append(defineFlag("CM1_BE8"_l1, isOn(options, Key::bigEndian)));
    if (isOn(options, Key::externalInterrupts))
        busLines.append(define("TARVO_EXTINT_SUPPORT"_l1));
    if (isOn(options, Key::enableDebug, true))
        appendDebugPort(options, coreLines, busLines);
    appendInstructionMemory(options, device, coreLines, busLines);
    appendDataMemory(options, device, coreLines, busLines);
}

void buildPeripheralDefines(const OptionMap &options, const DEV::DeviceArg &device,
                            PeripheralDefines &defines)
{
    const QString name = device.device();
    bool anyInternal = false;
    bool anyExternal = false;
    for (const Block &block : generatedBlocks()) {
        if (!appendSwitches(options, block, defines.busLines))
            continue;
        appendFurther(options, block, name, defines.busLines);
        if (block.bus == Bus::Apb)
            (block.hasPorts() ? anyExternal : anyInternal) = true;
    }
    if (anyExternal)
        defines.busLines.append(define("TARVO_APBEXT_SUPPORT"_l1));
    if (anyInternal)
        defines.busLines.append(define("TARVO_APBINT_SUPPORT"_l1));

    const QString canDepth = isOn(options, Key::enableCan)
                                 ? options.value(Key::canBufferDepth, QString()).toString()
                                 : QStringLiteral("256");
    defines.paramLines.append(parameter("CFIFO_DEPTH"_l1, canDepth));
    appendMac(options, defines.macDefineLines, defines.macParamLines);
    for (const FamilyRow &row : families) {
        if (row.prefix.size() == 0 || name.startsWith(row.prefix)) {
            defines.macParamLines.append(parameter("DEVICE"_l1, row.family));
            break;
        }
    }
    appendDdr3Variant(name, defines.ddr3Lines);
    appendPsramVariant(psramRow(options, device), defines.psramLines);
}

QVector<IncludeFile> buildIncludeFiles(const OptionMap &options, const DEV::DeviceArg &device)
{
    QStringList coreLines;
    PeripheralDefines defines;
    buildCoreDefines(options, device.device(), coreLines, defines.busLines);
    buildPeripheralDefines(options, device, defines);
    return {
        {IncludeFileName::core, coreLines},
        {IncludeFileName::psram, defines.psramLines},
        {IncludeFileName::ddr3, defines.ddr3Lines},
        {IncludeFileName::bus, defines.busLines},
        {IncludeFileName::param, defines.paramLines},
        {IncludeFileName::macDefine, defines.macDefineLines},
        {IncludeFileName::macParam, defines.macParamLines},
    };
}

} // namespace TARVOORIXM1
