#include "blocks.h"

#include "config/optionkeys.h"
#include "pintables.h"

#include <QtGlobal>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String ahb("Tarvo AHB Bus");
constexpr QLatin1String apb("Tarvo APB Bus");

// The switches of an extension bus, one per port.
template <int count>
constexpr std::array<SwitchRow, count> ports(QLatin1String prefix)
{
    std::array<SwitchRow, count> rows = {};
    for (int i = 0; i < count; ++i)
        rows[i] = {prefix, false, i + 1};
    return rows;
}

constexpr SwitchRow gpioSwitches[] = {{Key::enableGpio}, {Key::enableGpioIo, true}};
constexpr SwitchRow canSwitches[] = {{Key::enableCan}};
constexpr SwitchRow ethernetSwitches[] = {{Key::enableEthernet}};
constexpr SwitchRow ddr3Switches[] = {{Key::enableDdr3}};
constexpr SwitchRow psramSwitches[] = {{Key::enablePsram}};
constexpr SwitchRow spiFlashSwitches[] = {{Key::enableSpiFlash}};
constexpr auto ahbMasterSwitches = ports<Key::ahbMasterCount>(Key::enableAhbMaster);
constexpr SwitchRow uartSwitches[] = {{Key::enableUart0}, {Key::enableUart1}};
constexpr SwitchRow timerSwitches[] = {{Key::enableTimer0}, {Key::enableTimer1}};
constexpr SwitchRow watchDogSwitches[] = {{Key::enableWatchDog}};
constexpr SwitchRow rtcSwitches[] = {{Key::enableRtc}};
constexpr SwitchRow trngSwitches[] = {{Key::enableTrng}};
constexpr SwitchRow dualTimerSwitches[] = {{Key::enableDualTimer}};
constexpr SwitchRow i2cSwitches[] = {{Key::enableI2c}, {Key::enableI2cIo, true}};
constexpr SwitchRow spiSwitches[] = {{Key::enableSpi}};
constexpr SwitchRow sdCardSwitches[] = {{Key::enableSdCard}};
constexpr auto apbMasterSwitches = ports<Key::apbMasterCount>(Key::enableApbMaster);

// Descriptions are fixed to the letter: missing and leading blanks belong to them.
constexpr Block rows[] = {
    {BlockId::Gpio, QLatin1String("GPIO"), ahb, gpioSwitches, PinTables::gpio,
     QLatin1String(
         "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with GPIO block through AHB bus. The GPIO "
         "block interconnects With FPGA Fabric where user implements general purpose I/O "
         "functions. This AHB GPIO is a general purpose I/O interface unit and provides a 16-bit "
         "I/O interface. Users can select inout or in/out/en signals as GPIO's ports.")},
    {BlockId::Can, QLatin1String("CAN"), ahb, canSwitches, PinTables::can,
     QLatin1String("The Cortex-M1 core of Tarvo_ORIX_M1 interacts with CAN block through AHB "
                   "bus.The CAN Block is a fully verified block, which can implement CAN bus "
                   "communication.The CAN block implements CAN2.0 and CAN FD protocol.")},
    {BlockId::Ethernet, QLatin1String("Ethernet"), ahb, ethernetSwitches, PinTables::ethernet,
     QLatin1String("The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Ethernet block through AHB "
                   "bus.The Ethernet block is a fully verified block, which can implement Ethernet "
                   "MAC layer function and provide RGMII/GMII/MII interface to connect to PHY IC. "
                   "The block implements MAC layer protocol."),
     Key::ethernetInterface},
    {BlockId::Ddr3, QLatin1String("DDR3"), ahb, ddr3Switches, PinTables::ddr3,
     QLatin1String(
         " The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with DDR3 block through AHB bus. The DDR3 "
         "block provides a complete solution for customers to use DDR3 memory. This block located "
         "between the DDR3 memory and the user logic include with Tarvo Memory Controller and "
         "Physical interface, reduces the user's effort to deal with the DDR3 memory command "
         "interface by providing a simple generic system interface to the user.")},
    {BlockId::Psram, QLatin1String("PSRAM"), ahb, psramSwitches, PinTables::psram,
     QLatin1String(
         "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with PSRAM block through AHB bus.\nThe "
         "PSRAM Memory Interface block provides a complete solution for customers to use PSRAM "
         "Memory in Tarvo_ORIX_M1.This block is located between the PSRAM Memory Physical "
         "interface and MCU core with the AHB system bus, reduces the effort of user to deal with "
         "PSRAM Memory command interface by providing a simple generic system interface")},
    {BlockId::SpiFlash, QLatin1String("SPI-Flash"), ahb, spiFlashSwitches, PinTables::spiFlash,
     QLatin1String(
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI-Flash block through AHB bus.The "
         "SPI-Flash block is a fully verified block which the Cortex-M1 can use for off-chip SPI "
         "Flash downloading and start-up.The SPI-Flash block is SPI interface.")},
    {BlockId::AhbMasters, QLatin1String("AHB Master [1-6]"), ahb, ahbMasterSwitches,
     PinTables::ahbMasters,
     QLatin1String("The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with AHB Master [1-6] block "
                   "through AHB bus. There are six AHB interfaces to extend AHB peripherals for "
                   "users. The AHB Master [1-6] block is a fully verified block which can extend "
                   "AHB bus to user to design more AHB peripherals.")},
    {BlockId::Uart, QLatin1String("UART"), apb, uartSwitches, PinTables::uart,
     QLatin1String("The Cortex-M1 core of Tarvo_ORIX_M1 interacts with UART0/1 block through APB "
                   "bus.The UART0/1 block is a fully verified block which can implement UART "
                   "communication.The UART0/1 block contains two universal asynchronous "
                   "receive/transceiver, which support maximum BAUD rate at 921.6Kbit/s.")},
    {BlockId::Timer, QLatin1String("Timer"), apb, timerSwitches, PinTables::timer,
     QLatin1String(
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Timer0/1 block through APB bus. The "
         "Timer0/1 block is a fully verified block which can implement counter function.The "
         "Timer0/1 block contains two Timers, which support 24-bit counter.")},
    {BlockId::WatchDog, QLatin1String("WatchDog"), apb, watchDogSwitches, PinTables::none,
     QLatin1String("The Cortex-M1 core of Tarvo_ORIX_M1 interacts with WatchDog block through APB "
                   "bus.The WatchDog block is a fully verified block which can implement system "
                   "reset when system is running over.")},
    {BlockId::Rtc, QLatin1String("RTC"), apb, rtcSwitches, PinTables::rtc,
     QLatin1String(
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with RTC block through APB bus.The RTC "
         "block is a fully verified block which can implement real time clock.")},
    {BlockId::Trng, QLatin1String("TRNG"), apb, trngSwitches, PinTables::none,
     QLatin1String(
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with TRNG block through APB bus.The TRNG "
         "Block is a fully verified block which can implement true random number generator.")},
    {BlockId::DualTimer, QLatin1String("DualTimer"), apb, dualTimerSwitches, PinTables::none,
     QLatin1String(
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with DualTimer block through APB bus. The "
         "DualTimer Block is a fully verified block which can implement dual counter.")},
    {BlockId::I2c, QLatin1String("I2C"), apb, i2cSwitches, PinTables::i2c,
     QLatin1String(
         "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with I2C block through APB bus. The I2C "
         "block is a fully verified block which can implement I2C communication. The I2C block "
         "implements I2C protocol. Users can select inout or in/out/en signals as I2C's ports.")},
    {BlockId::Spi, QLatin1String("SPI"), apb, spiSwitches, PinTables::spi,
     QLatin1String("The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI block through APB "
                   "bus.The SPI block is a fully verified block which can implement SPI "
                   "communication.The SPI block implements SPI protocol.")},
    {BlockId::SdCard, QLatin1String("SD-Card"), apb, sdCardSwitches, PinTables::sdCard,
     QLatin1String("The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SD-Card block through APB "
                   "bus. The SD-Card block is a fully verified block which can implement SD-Card "
                   "memory to save data.")},
    {BlockId::ApbMasters, QLatin1String("APB Master [1-16]"), apb, apbMasterSwitches,
     PinTables::apbMasters,
     QLatin1String("The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with APB Master [1-16] block "
                   "through APB bus. There are sixteen APB interfaces to extend APB peripherals "
                   "for users. The APB Master [1-16] block is a fully verified block which can "
                   "extend APB bus to user to design more APB peripherals.")},
};

} // namespace

QString SwitchRow::key() const
{
    return port > 0 ? Key::extensionPortKey(name, port) : QString(name);
}

Rows<Block> blocks()
{
    return rows;
}

const Block &block(BlockId id)
{
    for (const Block &row : rows) {
        if (row.id == id)
            return row;
    }
    Q_UNREACHABLE();
}

} // namespace TARVOORIXM1
