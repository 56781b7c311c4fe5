#include "defines.h"

#include "config/devicerules.h"
#include "config/optionkeys.h"

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
    return QLatin1String("`define ") + name;
}

QString defineFlag(QLatin1String name, bool on)
{
    return QLatin1String("`define ") + name + (on ? QLatin1String(" 1") : QLatin1String(" 0"));
}

QString defineTcmSize(QLatin1String name, QLatin1String code)
{
    return QLatin1String("`define ") + name + QLatin1String(" 4'b") + code;
}

QLatin1String tcmSizeCodeOf(const OptionMap &options, QLatin1String key, const QString &device)
{
    return tcmSizeCode(options.value(key, defaultTcmSizeIndex(device)).toInt());
}

QString parameter(QLatin1String name, const QString &value)
{
    return QLatin1String("parameter ") + name + QLatin1String(" = ") + value + u';';
}

constexpr QLatin1String sizeCodes[] = {
    QLatin1String("0001"), QLatin1String("0010"), QLatin1String("0011"), QLatin1String("0100"),
    QLatin1String("0101"), QLatin1String("0110"), QLatin1String("0111"), QLatin1String("1000"),
    QLatin1String("1001"), QLatin1String("1010"),
};
constexpr QLatin1String catchAllSizeCode("0110");
constexpr QLatin1String externalSizeCode("0000");

// One line of the bus file per switched-on block.
struct BusSwitch {
    QLatin1String key;
    QLatin1String macro;
    QLatin1String subKey = QLatin1String(); // looked at only when `key` is on
    QLatin1String subMacro = QLatin1String();
};

constexpr BusSwitch gpioSwitch = {Key::enableGpio, QLatin1String("TARVO_GPIO_SUPPORT"),
                                  Key::enableGpioIo, QLatin1String("GPIO_IOBUF_EN")};
constexpr BusSwitch spiFlashSwitch = {Key::enableSpiFlash,
                                      QLatin1String("TARVO_SPI_FLASH_SUPPORT")};
constexpr BusSwitch psramSwitch = {Key::enablePsram, QLatin1String("TARVO_PSRAM_SUPPORT")};

// In the order of their lines; any of them makes the internal APB bus exist.
constexpr BusSwitch apbSwitches[] = {
    {Key::enableUart0, QLatin1String("TARVO_UART0_SUPPORT")},
    {Key::enableUart1, QLatin1String("TARVO_UART1_SUPPORT")},
    {Key::enableTimer0, QLatin1String("TARVO_TIMER0_SUPPORT")},
    {Key::enableTimer1, QLatin1String("TARVO_TIMER1_SUPPORT")},
    {Key::enableWatchDog, QLatin1String("TARVO_WDOG_SUPPORT")},
    {Key::enableRtc, QLatin1String("TARVO_RTC_SUPPORT")},
    {Key::enableI2c, QLatin1String("TARVO_I2C_SUPPORT"), Key::enableI2cIo,
     QLatin1String("I2C_IOBUF_EN")},
    {Key::enableSpi, QLatin1String("TARVO_SPI_SUPPORT")},
    {Key::enableSdCard, QLatin1String("TARVO_SD_SUPPORT")},
    {Key::enableTrng, QLatin1String("TARVO_TRNG_SUPPORT")},
    {Key::enableDualTimer, QLatin1String("TARVO_DTIMER_SUPPORT")},
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
        if (!options.value(Key::extensionPortKey(keyPrefix, port), false).toBool())
            continue;
        any = true;
        lines.append(QLatin1String("`define TARVO_") + bus + QString::number(port) +
                     QLatin1String("_SUPPORT"));
    }
    return any;
}

struct MacInterface {
    QLatin1String name;
    QLatin1String macros[2]; // the second may be empty
};

constexpr MacInterface macInterfaces[] = {
    {Value::rgmii, {QLatin1String("RGMII_IF"), QLatin1String()}},
    {Value::gmii, {QLatin1String("GMII_IF"), QLatin1String()}},
    {Value::mii, {QLatin1String("MII_IF"), QLatin1String()}},
    {Value::gmiiMii, {QLatin1String("GMII_IF"), QLatin1String("MII_IF")}},
};
constexpr QLatin1String macModuleName("module_name mac");

struct FamilyRow {
    QLatin1String prefix;
    QLatin1String family;
};

// The first matching row wins; the last matches every device.
constexpr FamilyRow families[] = {
    {QLatin1String("TV5K"), QLatin1String("\"5K_Series\"")},
    {QLatin1String("TV3K"), QLatin1String("\"3K_Series\"")},
    {QLatin1String(), QLatin1String("\"1L/2K_Series\"")},
};

struct Ddr3Row {
    DeviceTest devices;
    QLatin1String variant; // may be empty
};

// The first matching row wins; a device that no row names gets an empty file.
constexpr Ddr3Row ddr3Rows[] = {
    {{QLatin1String(),
      QLatin1String("TV5KT-138/TV5KT-138B/TV5KT-75B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/"
                    "TV5KT-138C/TV5KT-75C/TV5K-138B/TV5KS-138B")},
     QLatin1String("VIRLA_138K")},
    {{QLatin1String(),
      QLatin1String("TV5K-25A/TV5K-25B/TV5KS-25B/TV5KR-25B/TV5KS-25A/TV5KR-25A/TV5KT-60ES/"
                    "TV5KT-60B/TV5K-60B")},
     QLatin1String("VIRLA_25K")},
    {{QLatin1String("TV2K"), QLatin1String()}, QLatin1String("VIRLA_TV2K")},
    {{QLatin1String("TV3K"),
      QLatin1String("TV1KL-5A/TV1KL-5B/TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/TV5KRT-15A/TV5KRT-15B/"
                    "TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A")},
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
    {QLatin1String("TV2KR-18C"), QLatin1String("QFN88P/eLQFP144P"), true, true, false},
    {QLatin1String("TV2KR-18C"), QLatin1String("QFN88PF/eLQFP144PF"), true, false, true},
    {QLatin1String("TV2KLR-18C"), QLatin1String("QFN88"), true, false, false},
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
    coreLines.append(defineFlag(QLatin1String("CM1_JTAG"), jtag));
    coreLines.append(defineFlag(QLatin1String("CM1_SW"), serialWire));
    if (jtag)
        busLines.append(define(QLatin1String("DEBUG_PORT_JTAG")));
    coreLines.append(defineFlag(QLatin1String("CM1_SMALL_DEBUG"), isOn(options, Key::smallDebug)));
}

void appendInstructionMemory(const OptionMap &options, const QString &device,
                             QStringList &coreLines, QStringList &busLines)
{
    constexpr QLatin1String lowerAlias("CM1_ITCM_LA_EN");
    constexpr QLatin1String upperAlias("CM1_ITCM_UA_EN");
    constexpr QLatin1String size("CM1_ITCMSIZE");
    if (isOn(options, Key::internalInstructionMemory, true)) {
        coreLines.append(defineFlag(lowerAlias, true));
        coreLines.append(defineFlag(upperAlias, false));
        coreLines.append(defineTcmSize(size, tcmSizeCodeOf(options, Key::itcmSize, device)));
        if (isOn(options, Key::initializeItcm)) {
            const QString path =
                options.value(Key::itcmInitializationAbsolutePath, QString()).toString();
            coreLines.append(define(QLatin1String("CM1_ITCM_INIT_EN")));
            coreLines.append(QLatin1String("`define CM1_ITCM_INIT_PATH \"") +
                             QDir::cleanPath(path) + u'"');
        }
    } else if (isOn(options, Key::externalInstructionMemory)) {
        coreLines.append(defineFlag(lowerAlias, false));
        coreLines.append(defineFlag(upperAlias, false));
        coreLines.append(defineTcmSize(size, externalSizeCode));
        busLines.append(define(QLatin1String("CM1_EXTERNAL_FLASH_EN")));
    }
}

void appendDataMemory(const OptionMap &options, const QString &device, QStringList &coreLines,
                      QStringList &busLines)
{
    constexpr QLatin1String size("CM1_DTCMSIZE");
    if (isOn(options, Key::internalDataMemory, true)) {
        coreLines.append(defineTcmSize(size, tcmSizeCodeOf(options, Key::dtcmSize, device)));
    } else if (isOn(options, Key::externalDataMemory)) {
        busLines.append(define(QLatin1String("CM1_EXTERNAL_SRAM_EN")));
        coreLines.append(defineTcmSize(size, externalSizeCode));
    }
}

void appendEthernet(const OptionMap &options, PeripheralDefines &defines)
{
    constexpr QLatin1String delay("RGMII_INPUT_DELAY_VALUE");
    constexpr QLatin1String divider("MIIM_CLK_DIVIDER");
    defines.macDefineLines.append(QStringLiteral("`ifndef MAC_DEFINE"));
    defines.macDefineLines.append(define(QLatin1String("MAC_DEFINE")));
    if (!isOn(options, Key::enableEthernet)) {
        defines.macDefineLines.append(define(QLatin1String("RGMII_IF")));
        defines.macDefineLines.append(define(macModuleName));
        defines.macParamLines.append(parameter(delay, QStringLiteral("100")));
        defines.macParamLines.append(parameter(divider, QStringLiteral("20")));
    } else {
        defines.busLines.append(define(QLatin1String("TARVO_INTERNET_SUPPORT")));
        const QString interface =
            options.value(Key::ethernetInterface, QString(Value::rgmii)).toString();
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
            const int value = options.value(Key::ethernetInputDelay, 0).toInt();
            defines.macParamLines.append(parameter(delay, QString::number(value)));
        }
        const int value = options.value(Key::ethernetClockDivider, 0).toInt();
        defines.macParamLines.append(parameter(divider, QString::number(value)));
    }
    defines.macDefineLines.append(QStringLiteral("`endif"));
}

void appendDdr3Variant(const QString &device, QStringList &lines)
{
    for (const Ddr3Row &row : ddr3Rows) {
        if (!row.devices.matches(device))
            continue;
        lines.append(define(QLatin1String("DDR3_PHY_MC")));
        lines.append(define(QLatin1String("EBR_BASED")));
        if (row.variant.size() > 0)
            lines.append(define(row.variant));
        return;
    }
}

void appendPsramVariant(const PsramRow &row, QStringList &lines)
{
    if (row.ebrBased)
        lines.append(define(QLatin1String("EBR_BASED")));
    lines.append(define(QLatin1String("module_name_psram PSRAM_Memory_Interface_Top")));
    if (row.clockReverse)
        lines.append(define(QLatin1String("clock_reverse")));
    lines.append(
        define(row.singleEndedClocks ? QLatin1String("CK0_SINGLE") : QLatin1String("CK0_DIFF")));
    lines.append(
        define(row.singleEndedClocks ? QLatin1String("CK1_SINGLE") : QLatin1String("CK1_DIFF")));
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
    coreLines.append(QLatin1String("`define CM1_NUM_IRQ ") + QString::number(interrupts));
    coreLines.append(defineFlag(QLatin1String("CM1_OS"), isOn(options, Key::osExtension, true)));
    coreLines.append(
        defineFlag(QLatin1String("CM1_SMALL_MUL"), isOn(options, Key::smallMultiplier)));
    coreLines.append(defineFlag(QLatin1String("CM1_BE8"), isOn(options, Key::bigEndian)));
    if (isOn(options, Key::externalInterrupts))
        busLines.append(define(QLatin1String("TARVO_EXTINT_SUPPORT")));
    if (isOn(options, Key::enableDebug, true))
        appendDebugPort(options, coreLines, busLines);
    appendInstructionMemory(options, device, coreLines, busLines);
    appendDataMemory(options, device, coreLines, busLines);
}

void buildPeripheralDefines(const OptionMap &options, const DEV::DeviceArg &device,
                            PeripheralDefines &defines)
{
    const QString name = device.device();
    constexpr QLatin1String canDepth("CFIFO_DEPTH");

    appendSwitch(options, gpioSwitch, defines.busLines);
    if (isOn(options, Key::enableCan)) {
        defines.busLines.append(define(QLatin1String("TARVO_CAN_SUPPORT")));
        const QString depth = options.value(Key::canBufferDepth, QString()).toString();
        defines.paramLines.append(parameter(canDepth, depth));
    } else {
        defines.paramLines.append(parameter(canDepth, QStringLiteral("256")));
    }
    appendEthernet(options, defines);
    for (const FamilyRow &row : families) {
        if (row.prefix.size() == 0 || name.startsWith(row.prefix)) {
            defines.macParamLines.append(parameter(QLatin1String("DEVICE"), row.family));
            break;
        }
    }
    appendSwitch(options, spiFlashSwitch, defines.busLines);
    appendSwitch(options, psramSwitch, defines.busLines);
    if (isOn(options, Key::enableDdr3)) {
        defines.busLines.append(define(QLatin1String("TARVO_DDR3_SUPPORT")));
        if (isTv2k(name))
            defines.busLines.append(define(QLatin1String("VIRLA_TV2K")));
    }
    appendExtensionPorts(options, Key::enableAhbMaster, Key::ahbMasterCount, QLatin1String("AHB"),
                         defines.busLines);
    bool anyInternal = false;
    for (const BusSwitch &row : apbSwitches)
        anyInternal |= appendSwitch(options, row, defines.busLines);
    const bool anyExternal = appendExtensionPorts(
        options, Key::enableApbMaster, Key::apbMasterCount, QLatin1String("APB"), defines.busLines);
    if (anyExternal)
        defines.busLines.append(define(QLatin1String("TARVO_APBEXT_SUPPORT")));
    if (anyInternal)
        defines.busLines.append(define(QLatin1String("TARVO_APBINT_SUPPORT")));
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
