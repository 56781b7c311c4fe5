#pragma once

#include "latin1literal.h"

#include <QLatin1String>

namespace TARVOORIXM1
{

// The keys of the option map. They are stored in users' files: the spellings, odd ones included,
// are fixed.
namespace Key
{

inline constexpr QLatin1String numberOfInterrupts = "Number of Interrupts"_l1;
inline constexpr QLatin1String osExtension = "OS Extension"_l1;
inline constexpr QLatin1String smallMultiplier = "Small Multiplier"_l1;
inline constexpr QLatin1String bigEndian = "Big Endian"_l1;
inline constexpr QLatin1String externalInterrupts = "External Interrupts"_l1;
inline constexpr QLatin1String enableDebug = "Enable Debug"_l1;
inline constexpr QLatin1String debugPortSelect = "Debug Port Select"_l1;
inline constexpr QLatin1String smallDebug = "Small Debug"_l1;
inline constexpr QLatin1String internalInstructionMemory = "Internal_Instruction_Memory"_l1;
inline constexpr QLatin1String externalInstructionMemory = "External_Instruction_Memory"_l1;
inline constexpr QLatin1String initializeItcm = "Initialize ITCM"_l1;
inline constexpr QLatin1String itcmInitializationPath = "ITCM_Initialization_Path"_l1;
inline constexpr QLatin1String itcmInitializationAbsolutePath =
    "ITCM_Initialization_AbsolutePath"_l1;
inline constexpr QLatin1String itcmSize = "ITCM_Size"_l1;
inline constexpr QLatin1String dtcmSize = "DTCM_Size"_l1;
inline constexpr QLatin1String internalDataMemory = "Internal_Data_Memory"_l1;
inline constexpr QLatin1String externalDataMemory = "External_Data_Memory"_l1;
inline constexpr QLatin1String enableGpio = "Enable GPIO"_l1;
inline constexpr QLatin1String enableGpioIo = "Enabel GPIO IO"_l1;
inline constexpr QLatin1String enableCan = "Enable CAN"_l1;
inline constexpr QLatin1String canBufferDepth = "CAN_BUFFER_DEPTH"_l1;
inline constexpr QLatin1String enableEthernet = "Enable Ethernet"_l1;
inline constexpr QLatin1String ethernetInterface = "ETHERNET_INTERFACE"_l1;
inline constexpr QLatin1String ethernetInputDelay = "ETHERNET_INPUT_DELAY"_l1;
inline constexpr QLatin1String ethernetClockDivider = "ETHERNET_CLOCK_DIVIDER"_l1;
inline constexpr QLatin1String enableDdr3 = "Enable DDR3"_l1;
inline constexpr QLatin1String enableSpiFlash = "Enable SPI-Flash"_l1;
inline constexpr QLatin1String enableSdCard = "Enable SDCARD"_l1;
inline constexpr QLatin1String enableUart0 = "Enable UART0"_l1;
inline constexpr QLatin1String enableUart1 = "Enable UART1"_l1;
inline constexpr QLatin1String enableTimer0 = "Enable Timer0"_l1;
inline constexpr QLatin1String enableTimer1 = "Enable Timer1"_l1;
inline constexpr QLatin1String enableWatchDog = "Enable WatchDog"_l1;
inline constexpr QLatin1String enableRtc = "Enable RTC"_l1;
inline constexpr QLatin1String enableI2c = "Enable I2C"_l1;
inline constexpr QLatin1String enableI2cIo = "Enable I2C IO"_l1;
inline constexpr QLatin1String enableSpi = "Enable SPI"_l1;
inline constexpr QLatin1String enableTrng = "Enable TRNG"_l1;
inline constexpr QLatin1String enableDualTimer = "Enable DUALTIMER"_l1;
inline constexpr QLatin1String enablePsram = "Enable PSRAM"_l1;

// The extension ports, counted from 1: see extensionPortKey().
inline constexpr QLatin1String enableAhbMaster = "Enable_AHB_Master"_l1;
inline constexpr QLatin1String enableApbMaster = "Enable_APB_Master"_l1;
inline constexpr int ahbMasterCount = 6;
inline constexpr int apbMasterCount = 16;

// Not options, but kept in the same map.
inline constexpr QLatin1String ipDeviceId = "ip_device_id"_l1;
inline constexpr QLatin1String ipDevice = "ip_device"_l1;
inline constexpr QLatin1String synthesisTool = "Synthesis_tool"_l1;
inline constexpr QLatin1String lang = "LANG"_l1;
inline constexpr QLatin1String createInPath = "createin_path"_l1;
// What names begin with: see nameprefix.h. Of a generation it decides what stands beside the
// outputs, and no byte of these.
inline constexpr QLatin1String namePrefix = "Prefix"_l1;

// "Enable_AHB_Master3" of enableAhbMaster and 3.
inline QString extensionPortKey(QLatin1String prefix, int port)
{
    return prefix + QString::number(port);
}

} // namespace Key

// The keys of the IP descriptor.
namespace InfoKey
{

inline constexpr QLatin1String id = "ipcore.id"_l1;
inline constexpr QLatin1String name = "ipcore.name"_l1;
inline constexpr QLatin1String version = "ipcore.version"_l1;
inline constexpr QLatin1String category = "ipcore.category"_l1;
inline constexpr QLatin1String summary = "ipcore.doc.summary"_l1;
inline constexpr QLatin1String label = "ipcore.label"_l1;
inline constexpr QLatin1String help = "ipcore.doc.help"_l1;
inline constexpr QLatin1String target = "ipcore.target"_l1;
inline constexpr QLatin1String supported = "ipcore.device.supported"_l1;
inline constexpr QLatin1String unsupported = "ipcore.device.unsupported"_l1;
inline constexpr QLatin1String debug = "debug"_l1;
inline constexpr QLatin1String noDebug = "no_debug"_l1;

} // namespace InfoKey

// Texts that are values in the map and are compared with.
namespace Value
{

inline constexpr QLatin1String jtag = "JTAG"_l1;
inline constexpr QLatin1String serialWire = "Serial Wire"_l1;
inline constexpr QLatin1String jtagAndSerialWire = "JTAG and Serial Wire"_l1;
inline constexpr QLatin1String rgmii = "RGMII"_l1;
inline constexpr QLatin1String gmii = "GMII"_l1;
inline constexpr QLatin1String mii = "MII"_l1;
inline constexpr QLatin1String gmiiMii = "GMII/MII"_l1;
inline constexpr QLatin1String tarvoSynthesis = "TarvoSynthesis"_l1;
inline constexpr QLatin1String synplifyPro = "Synplify Pro"_l1;

} // namespace Value

} // namespace TARVOORIXM1
