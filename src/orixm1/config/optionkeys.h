#pragma once

#include <QLatin1String>

namespace TARVOORIXM1
{

// The keys of the option map. They are stored in users' files: the spellings, odd ones included,
// are fixed.
namespace Key
{

inline constexpr QLatin1String numberOfInterrupts("Number of Interrupts");
inline constexpr QLatin1String osExtension("OS Extension");
inline constexpr QLatin1String smallMultiplier("Small Multiplier");
inline constexpr QLatin1String bigEndian("Big Endian");
inline constexpr QLatin1String externalInterrupts("External Interrupts");
inline constexpr QLatin1String enableDebug("Enable Debug");
inline constexpr QLatin1String debugPortSelect("Debug Port Select");
inline constexpr QLatin1String smallDebug("Small Debug");
inline constexpr QLatin1String internalInstructionMemory("Internal_Instruction_Memory");
inline constexpr QLatin1String externalInstructionMemory("External_Instruction_Memory");
inline constexpr QLatin1String initializeItcm("Initialize ITCM");
inline constexpr QLatin1String itcmInitializationPath("ITCM_Initialization_Path");
inline constexpr QLatin1String itcmInitializationAbsolutePath("ITCM_Initialization_AbsolutePath");
inline constexpr QLatin1String itcmSize("ITCM_Size");
inline constexpr QLatin1String dtcmSize("DTCM_Size");
inline constexpr QLatin1String internalDataMemory("Internal_Data_Memory");
inline constexpr QLatin1String externalDataMemory("External_Data_Memory");
inline constexpr QLatin1String enableGpio("Enable GPIO");
inline constexpr QLatin1String enableGpioIo("Enabel GPIO IO");
inline constexpr QLatin1String enableCan("Enable CAN");
inline constexpr QLatin1String canBufferDepth("CAN_BUFFER_DEPTH");
inline constexpr QLatin1String enableEthernet("Enable Ethernet");
inline constexpr QLatin1String ethernetInterface("ETHERNET_INTERFACE");
inline constexpr QLatin1String ethernetInputDelay("ETHERNET_INPUT_DELAY");
inline constexpr QLatin1String ethernetClockDivider("ETHERNET_CLOCK_DIVIDER");
inline constexpr QLatin1String enableDdr3("Enable DDR3");
inline constexpr QLatin1String enableSpiFlash("Enable SPI-Flash");
inline constexpr QLatin1String enableSdCard("Enable SDCARD");
inline constexpr QLatin1String enableUart0("Enable UART0");
inline constexpr QLatin1String enableUart1("Enable UART1");
inline constexpr QLatin1String enableTimer0("Enable Timer0");
inline constexpr QLatin1String enableTimer1("Enable Timer1");
inline constexpr QLatin1String enableWatchDog("Enable WatchDog");
inline constexpr QLatin1String enableRtc("Enable RTC");
inline constexpr QLatin1String enableI2c("Enable I2C");
inline constexpr QLatin1String enableI2cIo("Enable I2C IO");
inline constexpr QLatin1String enableSpi("Enable SPI");
inline constexpr QLatin1String enableTrng("Enable TRNG");
inline constexpr QLatin1String enableDualTimer("Enable DUALTIMER");
inline constexpr QLatin1String enablePsram("Enable PSRAM");

// The extension ports, counted from 1: see extensionPortKey().
inline constexpr QLatin1String enableAhbMaster("Enable_AHB_Master");
inline constexpr QLatin1String enableApbMaster("Enable_APB_Master");
inline constexpr int ahbMasterCount = 6;
inline constexpr int apbMasterCount = 16;

// Not options, but kept in the same map.
inline constexpr QLatin1String ipDeviceId("ip_device_id");
inline constexpr QLatin1String ipDevice("ip_device");
inline constexpr QLatin1String synthesisTool("Synthesis_tool");
inline constexpr QLatin1String lang("LANG");
inline constexpr QLatin1String createInPath("createin_path");

// "Enable_AHB_Master3" of enableAhbMaster and 3.
inline QString extensionPortKey(QLatin1String prefix, int port)
{
    return prefix + QString::number(port);
}

} // namespace Key

// The keys of the IP descriptor.
namespace InfoKey
{

inline constexpr QLatin1String id("ipcore.id");
inline constexpr QLatin1String name("ipcore.name");
inline constexpr QLatin1String version("ipcore.version");
inline constexpr QLatin1String category("ipcore.category");
inline constexpr QLatin1String summary("ipcore.doc.summary");
inline constexpr QLatin1String label("ipcore.label");
inline constexpr QLatin1String help("ipcore.doc.help");
inline constexpr QLatin1String target("ipcore.target");
inline constexpr QLatin1String supported("ipcore.device.supported");
inline constexpr QLatin1String unsupported("ipcore.device.unsupported");
inline constexpr QLatin1String debug("debug");
inline constexpr QLatin1String noDebug("no_debug");

} // namespace InfoKey

// Texts that are values in the map and are compared with.
namespace Value
{

inline constexpr QLatin1String jtag("JTAG");
inline constexpr QLatin1String serialWire("Serial Wire");
inline constexpr QLatin1String jtagAndSerialWire("JTAG and Serial Wire");
inline constexpr QLatin1String rgmii("RGMII");
inline constexpr QLatin1String gmii("GMII");
inline constexpr QLatin1String mii("MII");
inline constexpr QLatin1String gmiiMii("GMII/MII");
inline constexpr QLatin1String tarvoSynthesis("TarvoSynthesis");
inline constexpr QLatin1String synplifyPro("Synplify Pro");

} // namespace Value

} // namespace TARVOORIXM1
