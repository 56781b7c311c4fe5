#pragma once

#include <config/optionmap.h>
#include <dev/devicearg.h>

#include <QDir>
#include <QMap>
#include <QStringList>

// A second, deliberately plain statement of what generation writes, to compare the tables of the
// program with.
namespace Reference
{

using TARVOORIXM1::OptionMap;

inline QString key(const char *text)
{
    return QString::fromLatin1(text);
}

inline bool on(const OptionMap &options, const char *name, bool byDefault)
{
    return options.contains(key(name)) ? options.value(key(name)).toBool() : byDefault;
}

inline bool in(const QString &device, const char *list)
{
    return QString::fromLatin1(list).split(QLatin1Char('/')).contains(device);
}

inline int defaultSize(const QString &d)
{
    if (in(d, "TV1KL-5A/TV1KL-5B"))
        return 3;
    if (in(d, "TV2K-18/TV2KR-18/TV2K-18C/TV2KR-18C/TV2KLR-18C"))
        return 5;
    if (in(d, "TV2K-55/TV2K-55C/TV2KL-55C/TV3K-50A"))
        return 6;
    if (d.startsWith(key("TV5K"))) {
        if (d.contains(key("-15")) || d.contains(key("-25")))
            return 5;
        if (d.contains(key("-60")))
            return 6;
        return 7; // the 75s and 138s
    }
    if (in(d, "TV3K-20A/TV3KR-20A/TV3K-10A"))
        return 5;
    return 4;
}

// "nothing", "plain" or the macro of the variant.
inline QString ddr3Variant(const QString &d)
{
    if (in(d, "TV5KT-138/TV5KT-138B/TV5KT-75B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/"
              "TV5KT-138C/TV5KT-75C/TV5K-138B/TV5KS-138B"))
        return key("VIRLA_138K");
    if (in(d, "TV5K-25A/TV5K-25B/TV5KS-25B/TV5KR-25B/TV5KS-25A/TV5KR-25A/TV5KT-60ES/TV5KT-60B/"
              "TV5K-60B"))
        return key("VIRLA_25K");
    if (d.startsWith(key("TV2K")))
        return key("VIRLA_TV2K");
    if (d.startsWith(key("TV3K")) ||
        in(d, "TV1KL-5A/TV1KL-5B/TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/TV5KRT-15A/TV5KRT-15B/TV5KT-15B/"
              "TV5KLT-15A/TV5KLRT-15A/TV5KT-15A"))
        return key("plain");
    return key("nothing");
}

inline QString sizeBits(int index)
{
    if (index < 0 || index > 9)
        return key("0110");
    return QString::number(index + 1, 2).rightJustified(4, QLatin1Char('0'));
}

inline QMap<QString, QStringList> includeFiles(const OptionMap &o, const DEV::DeviceArg &device)
{
    const QString d = device.device();
    const QString p = device.package();
    QStringList core;
    QStringList bus;
    QStringList param;
    QStringList macDefine;
    QStringList macParam;
    QStringList ddr3;
    QStringList psram;
    const auto def = [](const char *text) {
        return QString(QLatin1String("`define ") + QLatin1String(text));
    };

    const int irq =
        o.contains(key("Number of Interrupts")) ? o.value(key("Number of Interrupts")).toInt() : 32;
    core << key("`define CM1_NUM_IRQ ") + QString::number(irq);
    core << def(on(o, "OS Extension", true) ? "CM1_OS 1" : "CM1_OS 0");
    core << def(on(o, "Small Multiplier", false) ? "CM1_SMALL_MUL 1" : "CM1_SMALL_MUL 0");
    core << def(on(o, "Big Endian", false) ? "CM1_BE8 1" : "CM1_BE8 0");
    if (on(o, "External Interrupts", false))
        bus << def("TARVO_EXTINT_SUPPORT");
    if (on(o, "Enable Debug", true)) {
        const QString port = o.contains(key("Debug Port Select"))
                                 ? o.value(key("Debug Port Select")).toString()
                                 : key("JTAG and Serial Wire");
        if (port == key("JTAG and Serial Wire")) {
            core << def("CM1_JTAG 1") << def("CM1_SW 1");
            bus << def("DEBUG_PORT_JTAG");
        } else if (port == key("JTAG")) {
            core << def("CM1_JTAG 1") << def("CM1_SW 0");
            bus << def("DEBUG_PORT_JTAG");
        } else if (port == key("Serial Wire")) {
            core << def("CM1_JTAG 0") << def("CM1_SW 1");
        } else {
            core << def("CM1_JTAG 0") << def("CM1_SW 0");
        }
        core << def(on(o, "Small Debug", false) ? "CM1_SMALL_DEBUG 1" : "CM1_SMALL_DEBUG 0");
    }
    const auto size = [&](const char *name) {
        return sizeBits(o.contains(key(name)) ? o.value(key(name)).toInt() : defaultSize(d));
    };
    if (on(o, "Internal_Instruction_Memory", true)) {
        core << def("CM1_ITCM_LA_EN 1") << def("CM1_ITCM_UA_EN 0");
        core << key("`define CM1_ITCMSIZE 4'b") + size("ITCM_Size");
        if (on(o, "Initialize ITCM", false)) {
            core << def("CM1_ITCM_INIT_EN");
            core << key("`define CM1_ITCM_INIT_PATH \"") +
                        QDir::cleanPath(
                            o.value(key("ITCM_Initialization_AbsolutePath")).toString()) +
                        key("\"");
        }
    } else if (on(o, "External_Instruction_Memory", false)) {
        core << def("CM1_ITCM_LA_EN 0") << def("CM1_ITCM_UA_EN 0") << def("CM1_ITCMSIZE 4'b0000");
        bus << def("CM1_EXTERNAL_FLASH_EN");
    }
    if (on(o, "Internal_Data_Memory", true)) {
        core << key("`define CM1_DTCMSIZE 4'b") + size("DTCM_Size");
    } else if (on(o, "External_Data_Memory", false)) {
        bus << def("CM1_EXTERNAL_SRAM_EN");
        core << def("CM1_DTCMSIZE 4'b0000");
    }

    if (on(o, "Enable GPIO", false)) {
        bus << def("TARVO_GPIO_SUPPORT");
        if (on(o, "Enabel GPIO IO", false))
            bus << def("GPIO_IOBUF_EN");
    }
    if (on(o, "Enable CAN", false)) {
        bus << def("TARVO_CAN_SUPPORT");
        param << key("parameter CFIFO_DEPTH = ") + o.value(key("CAN_BUFFER_DEPTH")).toString() +
                     key(";");
    } else {
        param << key("parameter CFIFO_DEPTH = 256;");
    }
    macDefine << key("`ifndef MAC_DEFINE") << def("MAC_DEFINE");
    if (!on(o, "Enable Ethernet", false)) {
        macDefine << def("RGMII_IF") << def("module_name mac");
        macParam << key("parameter RGMII_INPUT_DELAY_VALUE = 100;")
                 << key("parameter MIIM_CLK_DIVIDER = 20;");
    } else {
        bus << def("TARVO_INTERNET_SUPPORT");
        const QString i = o.contains(key("ETHERNET_INTERFACE"))
                              ? o.value(key("ETHERNET_INTERFACE")).toString()
                              : key("RGMII");
        if (i == key("RGMII")) {
            bus << def("RGMII_IF");
            macDefine << def("RGMII_IF") << def("module_name mac");
        } else if (i == key("GMII")) {
            bus << def("GMII_IF");
            macDefine << def("GMII_IF") << def("module_name mac");
        } else if (i == key("MII")) {
            bus << def("MII_IF");
            macDefine << def("MII_IF") << def("module_name mac");
        } else if (i == key("GMII/MII")) {
            bus << def("GMII_IF") << def("MII_IF");
            macDefine << def("GMII_IF") << def("MII_IF") << def("module_name mac");
        }
        if (i == key("RGMII"))
            macParam << key("parameter RGMII_INPUT_DELAY_VALUE = %1;")
                            .arg(o.value(key("ETHERNET_INPUT_DELAY")).toInt());
        macParam << key("parameter MIIM_CLK_DIVIDER = %1;")
                        .arg(o.value(key("ETHERNET_CLOCK_DIVIDER")).toInt());
    }
    macDefine << key("`endif");
    if (d.startsWith(key("TV5K")))
        macParam << key("parameter DEVICE = \"5K_Series\";");
    else if (d.startsWith(key("TV3K")))
        macParam << key("parameter DEVICE = \"3K_Series\";");
    else
        macParam << key("parameter DEVICE = \"1L/2K_Series\";");
    if (on(o, "Enable SPI-Flash", false))
        bus << def("TARVO_SPI_FLASH_SUPPORT");
    if (on(o, "Enable PSRAM", false))
        bus << def("TARVO_PSRAM_SUPPORT");
    if (on(o, "Enable DDR3", false)) {
        bus << def("TARVO_DDR3_SUPPORT");
        if (d.startsWith(key("TV2K")))
            bus << def("VIRLA_TV2K");
    }
    for (int n = 1; n <= 6; ++n) {
        if (o.value(key("Enable_AHB_Master%1").arg(n)).toBool())
            bus << key("`define TARVO_AHB%1_SUPPORT").arg(n);
    }
    bool internal = false;
    const auto apb = [&](const char *name, const char *macro) {
        if (!on(o, name, false))
            return false;
        bus << def(macro);
        internal = true;
        return true;
    };
    apb("Enable UART0", "TARVO_UART0_SUPPORT");
    apb("Enable UART1", "TARVO_UART1_SUPPORT");
    apb("Enable Timer0", "TARVO_TIMER0_SUPPORT");
    apb("Enable Timer1", "TARVO_TIMER1_SUPPORT");
    apb("Enable WatchDog", "TARVO_WDOG_SUPPORT");
    apb("Enable RTC", "TARVO_RTC_SUPPORT");
    if (apb("Enable I2C", "TARVO_I2C_SUPPORT") && on(o, "Enable I2C IO", false))
        bus << def("I2C_IOBUF_EN");
    apb("Enable SPI", "TARVO_SPI_SUPPORT");
    apb("Enable SDCARD", "TARVO_SD_SUPPORT");
    apb("Enable TRNG", "TARVO_TRNG_SUPPORT");
    apb("Enable DUALTIMER", "TARVO_DTIMER_SUPPORT");
    bool external = false;
    for (int n = 1; n <= 16; ++n) {
        if (o.value(key("Enable_APB_Master%1").arg(n)).toBool()) {
            bus << key("`define TARVO_APB%1_SUPPORT").arg(n);
            external = true;
        }
    }
    if (external)
        bus << def("TARVO_APBEXT_SUPPORT");
    if (internal)
        bus << def("TARVO_APBINT_SUPPORT");

    const QString variant = ddr3Variant(d);
    if (variant != key("nothing"))
        ddr3 << def("DDR3_PHY_MC") << def("EBR_BASED");
    if (variant.startsWith(key("VIRLA")))
        ddr3 << key("`define ") + variant;

    const QString name = def("module_name_psram PSRAM_Memory_Interface_Top");
    if (!on(o, "Enable PSRAM", false) || (d == key("TV2KR-18C") && in(p, "QFN88P/eLQFP144P")))
        psram << def("EBR_BASED") << name << def("clock_reverse") << def("CK0_DIFF")
              << def("CK1_DIFF");
    else if (d == key("TV2KR-18C") && in(p, "QFN88PF/eLQFP144PF"))
        psram << def("EBR_BASED") << name << def("CK0_SINGLE") << def("CK1_SINGLE");
    else if (d == key("TV2KLR-18C") && p == key("QFN88"))
        psram << def("EBR_BASED") << name << def("CK0_DIFF") << def("CK1_DIFF");
    else
        psram << name << def("clock_reverse") << def("CK0_DIFF") << def("CK1_DIFF");

    return {{key("cm1_option_defs.v"), core},
            {key("ahb_option_defs.v"), bus},
            {key("parameter.vh"), param},
            {key("triple_speed_mac_define.v"), macDefine},
            {key("triple_speed_mac_param.v"), macParam},
            {key("DDR3_define.v"), ddr3},
            {key("psram_define.v"), psram}};
}

} // namespace Reference
