#include "defines.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "rules/devicerules.h"
#include "rules/dialogdefaults.h"

#include <QDir>

#include <iterator>

namespace TARVOORIXM1
{

namespace
{

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
    return tcmSizeCode(generatedValue(options, key, device).toInt());
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
    const bool isFirstOn = isOn(options, block.switches[0].key());
    for (const SwitchRow &row : block.switches) {
        if (isOn(options, row.key()) && (isFirstOn || !row.isInterface))
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

void appendDebugPort(const OptionMap &options, QStringList &coreLines, QStringList &busLines)
{
    // Compared as variants, so that the conversion rules of QVariant hold for a value of another
    // type.
    const QVariant port = valueOf(options, Key::debugPortSelect);
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
    if (isOn(options, Key::internalInstructionMemory)) {
        coreLines.append(defineFlag(lowerAlias, true));
        coreLines.append(defineFlag(upperAlias, false));
        coreLines.append(defineTcmSize(size, tcmSizeCodeOf(options, Key::itcmSize, device)));
        if (isOn(options, Key::initializeItcm)) {
            const QString path = textOf(options, Key::itcmInitializationAbsolutePath);
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
    if (isOn(options, Key::internalDataMemory)) {
        coreLines.append(defineTcmSize(size, tcmSizeCodeOf(options, Key::dtcmSize, device)));
    } else if (isOn(options, Key::externalDataMemory)) {
        busLines.append(define("CM1_EXTERNAL_SRAM_EN"_l1));
        coreLines.append(defineTcmSize(size, externalSizeCode));
    }
}

// The macros of the interface to the PHY, if it is a known one.
QStringList macMacros(const OptionMap &options)
{
    const QString interface = textOf(options, Key::ethernetInterface);
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
    if (textOf(options, Key::ethernetInterface) == Value::rgmii) {
        const int value = numberOf(options, Key::ethernetInputDelay);
        paramLines.append(parameter(delay, QString::number(value)));
    }
    const int value = numberOf(options, Key::ethernetClockDivider);
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
    } else if (key == Key::enableDdr3) {
        const QLatin1String macro = deviceFamily(device).ddr3BusMacro;
        if (macro.size() > 0)
            lines.append(define(macro));
    }
}

void appendDdr3Variant(const QString &device, QStringList &lines)
{
    const std::optional<QLatin1String> variant = ddr3Variant(device);
    if (!variant)
        return;
    lines.append(define("DDR3_PHY_MC"_l1));
    lines.append(define("EBR_BASED"_l1));
    if (variant->size() > 0)
        lines.append(define(*variant));
}

void appendPsramVariant(const OptionMap &options, const DEV::DeviceArg &device, QStringList &lines)
{
    constexpr PsramVariant usual = {QLatin1String(), true, false};
    const bool on = isOn(options, Key::enablePsram);
    const PsramVariant *own = on ? psramVariant(device) : nullptr;
    const PsramVariant &variant = own ? *own : usual;
    // That a device without a variant has none is intended.
    if (own || !on)
        lines.append(define("EBR_BASED"_l1));
    lines.append(define("module_name_psram PSRAM_Memory_Interface_Top"_l1));
    if (variant.clockReverse)
        lines.append(define("clock_reverse"_l1));
    lines.append(define(variant.singleEndedClocks ? "CK0_SINGLE"_l1 : "CK0_DIFF"_l1));
    lines.append(define(variant.singleEndedClocks ? "CK1_SINGLE"_l1 : "CK1_DIFF"_l1));
}

} // namespace

QLatin1String tcmSizeCode(int index)
{
    return index >= 0 && index < int(std::size(sizeCodes)) ? sizeCodes[index] : catchAllSizeCode;
}

void buildCoreDefines(const OptionMap &options, const QString &device, QStringList &coreLines,
                      QStringList &busLines)
{
    const int interrupts = numberOf(options, Key::numberOfInterrupts);
    coreLines.append("`define CM1_NUM_IRQ "_l1 + QString::number(interrupts));
    coreLines.append(defineFlag("CM1_OS"_l1, isOn(options, Key::osExtension)));
    coreLines.append(defineFlag("CM1_SMALL_MUL"_l1, isOn(options, Key::smallMultiplier)));
    coreLines.append(defineFlag("CM1_BE8"_l1, isOn(options, Key::bigEndian)));
    if (isOn(options, Key::externalInterrupts))
        busLines.append(define("TARVO_EXTINT_SUPPORT"_l1));
    if (isOn(options, Key::enableDebug))
        appendDebugPort(options, coreLines, busLines);
    appendInstructionMemory(options, device, coreLines, busLines);
    appendDataMemory(options, device, coreLines, busLines);
}

void buildPeripheralDefines(const OptionMap &options, const DEV::DeviceArg &device,
                            PeripheralDefines &defines)
{
    const QString name = device.device();
    bool anyExternal = false;
    for (const Block &block : generatedBlocks()) {
        if (!appendSwitches(options, block, defines.busLines))
            continue;
        appendFurther(options, block, name, defines.busLines);
        anyExternal |= block.bus == Bus::Apb && block.hasPorts();
    }
    if (anyExternal)
        defines.busLines.append(define("TARVO_APBEXT_SUPPORT"_l1));
    if (isSwitchedOn(options, anyApbPeripheral))
        defines.busLines.append(define("TARVO_APBINT_SUPPORT"_l1));

    const QString canDepth = isOn(options, Key::enableCan) ? textOf(options, Key::canBufferDepth)
                                                           : QStringLiteral("256");
    defines.paramLines.append(parameter("CFIFO_DEPTH"_l1, canDepth));
    appendMac(options, defines.macDefineLines, defines.macParamLines);
    defines.macParamLines.append(parameter("DEVICE"_l1, deviceFamily(name).macDevice));
    appendDdr3Variant(name, defines.ddr3Lines);
    appendPsramVariant(options, device, defines.psramLines);
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
