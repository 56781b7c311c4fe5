#include "blocks.h"

#include "latin1literal.h"
#include "optionkeys.h"
#include "pintables.h"

#include <QtGlobal>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String ahb = "Tarvo AHB Bus"_l1;
constexpr QLatin1String apb = "Tarvo APB Bus"_l1;

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
    {BlockId::Gpio, "GPIO"_l1, ahb, gpioSwitches, PinTables::gpio,
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with GPIO block through AHB bus. The GPIO "
     "block interconnects With FPGA Fabric where user implements general purpose I/O "
     "functions. This AHB GPIO is a general purpose I/O interface unit and provides a 16-bit "
     "I/O interface. Users can select inout or in/out/en signals as GPIO's ports."_l1},
    {BlockId::Can, "CAN"_l1, ahb, canSwitches, PinTables::can,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with CAN block through AHB "
     "bus.The CAN Block is a fully verified block, which can implement CAN bus "
     "communication.The CAN block implements CAN2.0 and CAN FD protocol."_l1},
    {BlockId::Ethernet, "Ethernet"_l1, ahb, ethernetSwitches, PinTables::ethernet,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Ethernet block through AHB "
     "bus.The Ethernet block is a fully verified block, which can implement Ethernet "
     "MAC layer function and provide RGMII/GMII/MII interface to connect to PHY IC. "
     "The block implements MAC layer protocol."_l1,
     Key::ethernetInterface},
    {BlockId::Ddr3, "DDR3"_l1, ahb, ddr3Switches, PinTables::ddr3,
     " The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with DDR3 block through AHB bus. The DDR3 "
     "block provides a complete solution for customers to use DDR3 memory. This block located "
     "between the DDR3 memory and the user logic include with Tarvo Memory Controller and "
     "Physical interface, reduces the user's effort to deal with the DDR3 memory command "
     "interface by providing a simple generic system interface to the user."_l1},
    {BlockId::Psram, "PSRAM"_l1, ahb, psramSwitches, PinTables::psram,
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with PSRAM block through AHB bus.\nThe "
     "PSRAM Memory Interface block provides a complete solution for customers to use PSRAM "
     "Memory in Tarvo_ORIX_M1.This block is located between the PSRAM Memory Physical "
     "interface and MCU core with the AHB system bus, reduces the effort of user to deal with "
     "PSRAM Memory command interface by providing a simple generic system interface"_l1},
    {BlockId::SpiFlash, "SPI-Flash"_l1, ahb, spiFlashSwitches, PinTables::spiFlash,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI-Flash block through AHB bus.The "
     "SPI-Flash block is a fully verified block which the Cortex-M1 can use for off-chip SPI "
     "Flash downloading and start-up.The SPI-Flash block is SPI interface."_l1},
    {BlockId::AhbMasters, "AHB Master [1-6]"_l1, ahb, ahbMasterSwitches, PinTables::ahbMasters,
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with AHB Master [1-6] block "
     "through AHB bus. There are six AHB interfaces to extend AHB peripherals for "
     "users. The AHB Master [1-6] block is a fully verified block which can extend "
     "AHB bus to user to design more AHB peripherals."_l1},
    {BlockId::Uart, "UART"_l1, apb, uartSwitches, PinTables::uart,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with UART0/1 block through APB "
     "bus.The UART0/1 block is a fully verified block which can implement UART "
     "communication.The UART0/1 block contains two universal asynchronous "
     "receive/transceiver, which support maximum BAUD rate at 921.6Kbit/s."_l1},
    {BlockId::Timer, "Timer"_l1, apb, timerSwitches, PinTables::timer,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Timer0/1 block through APB bus. The "
     "Timer0/1 block is a fully verified block which can implement counter function.The "
     "Timer0/1 block contains two Timers, which support 24-bit counter."_l1},
    {BlockId::WatchDog, "WatchDog"_l1, apb, watchDogSwitches, PinTables::none,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with WatchDog block through APB "
     "bus.The WatchDog block is a fully verified block which can implement system "
     "reset when system is running over."_l1},
    {BlockId::Rtc, "RTC"_l1, apb, rtcSwitches, PinTables::rtc,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with RTC block through APB bus.The RTC "
     "block is a fully verified block which can implement real time clock."_l1},
    {BlockId::Trng, "TRNG"_l1, apb, trngSwitches, PinTables::none,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with TRNG block through APB bus.The TRNG "
     "Block is a fully verified block which can implement true random number generator."_l1},
    {BlockId::DualTimer, "DualTimer"_l1, apb, dualTimerSwitches, PinTables::none,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with DualTimer block through APB bus. The "
     "DualTimer Block is a fully verified block which can implement dual counter."_l1},
    {BlockId::I2c, "I2C"_l1, apb, i2cSwitches, PinTables::i2c,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with I2C block through APB bus. The I2C "
     "block is a fully verified block which can implement I2C communication. The I2C block "
     "implements I2C protocol. Users can select inout or in/out/en signals as I2C's ports."_l1},
    {BlockId::Spi, "SPI"_l1, apb, spiSwitches, PinTables::spi,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI block through APB "
     "bus.The SPI block is a fully verified block which can implement SPI "
     "communication.The SPI block implements SPI protocol."_l1},
    {BlockId::SdCard, "SD-Card"_l1, apb, sdCardSwitches, PinTables::sdCard,
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SD-Card block through APB "
     "bus. The SD-Card block is a fully verified block which can implement SD-Card "
     "memory to save data."_l1},
    {BlockId::ApbMasters, "APB Master [1-16]"_l1, apb, apbMasterSwitches, PinTables::apbMasters,
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with APB Master [1-16] block "
     "through APB bus. There are sixteen APB interfaces to extend APB peripherals "
     "for users. The APB Master [1-16] block is a fully verified block which can "
     "extend APB bus to user to design more APB peripherals."_l1},
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
