#include "defines.h"

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

// One line of the bus file per switched-on block.
struct BusSwitch {
    QLatin1String key;
    QLatin1String macro;
    QLatin1String subKey = QLatin1String(); // looked at only when `key` is on
    QLatin1String subMacro = QLatin1String();
};

constexpr BusSwitch gpioSwitch = {Key::enableGpio, "TARVO_GPIO_SUPPORT"_l1, Key::enableGpioIo,
                                  "GPIO_IOBUF_EN"_l1};
constexpr BusSwitch spiFlashSwitch = {Key::enableSpiFlash, "TARVO_SPI_FLASH_SUPPORT"_l1};
constexpr BusSwitch psramSwitch = {Key::enablePsram, "TARVO_PSRAM_SUPPORT"_l1};

// In the order of their lines; any of them makes the internal APB bus exist.
constexpr BusSwitch apbSwitches[] = {
    {Key::enableUart0, "TARVO_UART0_SUPPORT"_l1},
    {Key::enableUart1, "TARVO_UART1_SUPPORT"_l1},
    {Key::enableTimer0, "TARVO_TIMER0_SUPPORT"_l1},
    {Key::enableTimer1, "TARVO_TIMER1_SUPPORT"_l1},
    {Key::enableWatchDog, "TARVO_WDOG_SUPPORT"_l1},
    {Key::enableRtc, "TARVO_RTC_SUPPORT"_l1},
    {Key::enableI2c, "TARVO_I2C_SUPPORT"_l1, Key::enableI2cIo, "I2C_IOBUF_EN"_l1},
    {Key::enableSpi, "TARVO_SPI_SUPPORT"_l1},
    {Key::enableSdCard, "TARVO_SD_SUPPORT"_l1},
    {Key::enableTrng, "TARVO_TRNG_SUPPORT"_l1},
    {Key::enableDualTimer, "TARVO_DTIMER_SUPPORT"_l1},
};

// Returns whether the block is on.
bool appendSwitch(const OptionMap &options, const BusSwitch &row, QStringList &lines)
{
    if (!isOn(options, row.key))
        return false;
    lines.append(define(row.macro));
    if (row.subKey.size() > 0 && isOn(options, row.subKey))
        lines.append(define(row.subMacro));
    return true;
}

// "`define TARVO_AHB3_SUPPORT" for each enabled port; returns whether any is enabled.
bool appendExtensionPorts(const OptionMap &options, QLatin1String keyPrefix, int count,
                          QLatin1String bus, QStringList &lines)
{
    bool any = false;
    for (int port = 1; port <= count; ++port) {
        if (!isOn(options, Key::extensionPortKey(keyPrefix, port)))
            continue;
        any = true;
        lines.append("`define TARVO_"_l1 + bus + QString::number(port) + "_SUPPORT"_l1);
    }
    return any;
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

void appendEthernet(const OptionMap &options, PeripheralDefines &defines)
{
    constexpr QLatin1String delay = "RGMII_INPUT_DELAY_VALUE"_l1;
    constexpr QLatin1String divider = "MIIM_CLK_DIVIDER"_l1;
    defines.macDefineLines.append(QStringLiteral("`ifndef MAC_DEFINE"));
    defines.macDefineLines.append(define("MAC_DEFINE"_l1));
    if (!isOn(options, Key::enableEthernet)) {
        defines.macDefineLines.append(define("RGMII_IF"_l1));
        defines.macDefineLines.append(define(macModuleName));
        defines.macParamLines.append(parameter(delay, QStringLiteral("100")));
        defines.macParamLines.append(parameter(divider, QStringLiteral("20")));
    } else {
        defines.busLines.append(define("TARVO_INTERNET_SUPPORT"_l1));
        const QString interface = textOf(options, Key::ethernetInterface);
        for (const MacInterface &row : macInterfaces) {
            if (interface != row.name)
                continue;
            for (const QLatin1String macro : row.macros) {
                if (macro.size() == 0)
                    continue;
                defines.busLines.append(define(macro));
                defines.macDefineLines.append(define(macro));
            }
            defines.macDefineLines.append(define(macModuleName));
        }
        if (interface == Value::rgmii) {
            const int value = numberOf(options, Key::ethernetInputDelay);
            defines.macParamLines.append(parameter(delay, QString::number(value)));
        }
        const int value = numberOf(options, Key::ethernetClockDivider);
        defines.macParamLines.append(parameter(divider, QString::number(value)));
    }
    defines.macDefineLines.append(QStringLiteral("`endif"));
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
    constexpr QLatin1String canDepth = "CFIFO_DEPTH"_l1;

    appendSwitch(options, gpioSwitch, defines.busLines);
    if (isOn(options, Key::enableCan)) {
        defines.busLines.append(define("TARVO_CAN_SUPPORT"_l1));
        const QString depth = textOf(options, Key::canBufferDepth);
        defines.paramLines.append(parameter(canDepth, depth));
    } else {
        defines.paramLines.append(parameter(canDepth, QStringLiteral("256")));
    }
    appendEthernet(options, defines);
    const DeviceFamily &family = deviceFamily(name);
    defines.macParamLines.append(parameter("DEVICE"_l1, family.macDevice));
    appendSwitch(options, spiFlashSwitch, defines.busLines);
    appendSwitch(options, psramSwitch, defines.busLines);
    if (isOn(options, Key::enableDdr3)) {
        defines.busLines.append(define("TARVO_DDR3_SUPPORT"_l1));
        if (family.ddr3BusMacro.size() > 0)
            defines.busLines.append(define(family.ddr3BusMacro));
    }
    appendExtensionPorts(options, Key::enableAhbMaster, Key::ahbMasterCount, "AHB"_l1,
                         defines.busLines);
    bool anyInternal = false;
    for (const BusSwitch &row : apbSwitches)
        anyInternal |= appendSwitch(options, row, defines.busLines);
    const bool anyExternal = appendExtensionPorts(options, Key::enableApbMaster,
                                                  Key::apbMasterCount, "APB"_l1, defines.busLines);
    if (anyExternal)
        defines.busLines.append(define("TARVO_APBEXT_SUPPORT"_l1));
    if (anyInternal)
        defines.busLines.append(define("TARVO_APBINT_SUPPORT"_l1));
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
