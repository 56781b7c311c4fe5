#include "blocks.h"

#include "latin1literal.h"
#include "optionkeys.h"
#include "optiontable.h"
#include "optionvalue.h"
#include "pintables.h"

#include <algorithm>
#include <iterator>

namespace TARVOORIXM1
{

namespace
{

constexpr SwitchRow interfaceSwitch(QLatin1String key, QLatin1String macro, QLatin1String meaning)
{
    return {key, macro, meaning, true, true};
}

// The switches of an extension bus, one per port.
template <int count>
constexpr std::array<SwitchRow, count> ports(QLatin1String prefix, QLatin1String macro,
                                             QLatin1String meaning)
{
    std::array<SwitchRow, count> rows = {};
    for (int i = 0; i < count; ++i)
        rows[i] = {prefix, macro, meaning, false, false, i + 1};
    return rows;
}

constexpr SwitchRow gpioSwitches[] = {
    {Key::enableGpio, "TARVO_GPIO_SUPPORT"_l1, "GPIO block on the AHB bus"_l1},
    interfaceSwitch(Key::enableGpioIo, "GPIO_IOBUF_EN"_l1,
                    "GPIO with bidirectional pins instead of in/out/enable signals"_l1)};
constexpr SwitchRow canSwitches[] = {
    {Key::enableCan, "TARVO_CAN_SUPPORT"_l1, "CAN block on the AHB bus"_l1}};
constexpr SwitchRow ethernetSwitches[] = {
    {Key::enableEthernet, "TARVO_INTERNET_SUPPORT"_l1, "Ethernet MAC on the AHB bus"_l1}};
constexpr SwitchRow spiFlashSwitches[] = {
    {Key::enableSpiFlash, "TARVO_SPI_FLASH_SUPPORT"_l1, "SPI-Flash block on the AHB bus"_l1}};
constexpr SwitchRow psramSwitches[] = {
    {Key::enablePsram, "TARVO_PSRAM_SUPPORT"_l1, "PSRAM block on the AHB bus"_l1}};
constexpr SwitchRow ddr3Switches[] = {
    {Key::enableDdr3, "TARVO_DDR3_SUPPORT"_l1, "DDR3 block on the AHB bus"_l1}};
constexpr auto ahbMasterSwitches = ports<Key::ahbMasterCount>(
    Key::enableAhbMaster, "TARVO_AHB%1_SUPPORT"_l1, "AHB extension port %1"_l1);
constexpr SwitchRow uartSwitches[] = {{Key::enableUart0, "TARVO_UART0_SUPPORT"_l1, "UART 0"_l1},
                                      {Key::enableUart1, "TARVO_UART1_SUPPORT"_l1, "UART 1"_l1}};
constexpr SwitchRow timerSwitches[] = {
    {Key::enableTimer0, "TARVO_TIMER0_SUPPORT"_l1, "Timer 0"_l1},
    {Key::enableTimer1, "TARVO_TIMER1_SUPPORT"_l1, "Timer 1"_l1}};
constexpr SwitchRow watchDogSwitches[] = {
    {Key::enableWatchDog, "TARVO_WDOG_SUPPORT"_l1, "Watchdog"_l1}};
constexpr SwitchRow rtcSwitches[] = {
    {Key::enableRtc, "TARVO_RTC_SUPPORT"_l1, "Real-time clock"_l1}};
constexpr SwitchRow i2cSwitches[] = {
    {Key::enableI2c, "TARVO_I2C_SUPPORT"_l1, "I2C master"_l1},
    interfaceSwitch(Key::enableI2cIo, "I2C_IOBUF_EN"_l1,
                    "I2C with bidirectional SCL and SDA instead of in/out/enable signals"_l1)};
constexpr SwitchRow spiSwitches[] = {{Key::enableSpi, "TARVO_SPI_SUPPORT"_l1, "SPI master"_l1}};
constexpr SwitchRow sdCardSwitches[] = {
    {Key::enableSdCard, "TARVO_SD_SUPPORT"_l1, "SD-Card block"_l1}};
constexpr SwitchRow trngSwitches[] = {
    {Key::enableTrng, "TARVO_TRNG_SUPPORT"_l1, "True random number generator"_l1}};
constexpr SwitchRow dualTimerSwitches[] = {
    {Key::enableDualTimer, "TARVO_DTIMER_SUPPORT"_l1, "Dual timer"_l1}};
constexpr auto apbMasterSwitches = ports<Key::apbMasterCount>(
    Key::enableApbMaster, "TARVO_APB%1_SUPPORT"_l1, "APB extension port %1"_l1);

constexpr QLatin1String psramNote = "Note: Support Part Number:\n"
                                    "    TV2KR-LV18QN88PES\n"
                                    "    TV2KR-LV18QN88PC8/I7\n"
                                    "    TV2KR-LV18QN88PC7/I6\n"
                                    "    TV2KR-LV18EQ144PES\n"
                                    "    TV2KR-LV18EQ144PC9/I8\n"
                                    "    TV2KR-LV18EQ144PC8/I7\n"
                                    "    TV2KR-LV18EQ144PC7/I6"_l1;

// In the order of the generated lines. Descriptions are fixed to the letter: missing and leading
// blanks belong to them.
constexpr Block rows[] = {
    {"GPIODlg"_l1,
     "GPIO"_l1,
     Bus::Ahb,
     gpioSwitches,
     PinTables::gpio,
     {{"GPIO"_l1, 170}},
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with GPIO block through AHB bus. The GPIO "
     "block interconnects With FPGA Fabric where user implements general purpose I/O "
     "functions. This AHB GPIO is a general purpose I/O interface unit and provides a 16-bit "
     "I/O interface. Users can select inout or in/out/en signals as GPIO's ports."_l1,
     "onGpio()"},
    {"CANDlg"_l1,
     "CAN"_l1,
     Bus::Ahb,
     canSwitches,
     PinTables::can,
     {{"CAN"_l1, 250}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with CAN block through AHB "
     "bus.The CAN Block is a fully verified block, which can implement CAN bus "
     "communication.The CAN block implements CAN2.0 and CAN FD protocol."_l1,
     "onCan()",
     Redraw::OnClick},
    {"EthernetDlg"_l1,
     "Ethernet"_l1,
     Bus::Ahb,
     ethernetSwitches,
     PinTables::ethernet,
     {{"Ethernet"_l1, 340}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Ethernet block through AHB "
     "bus.The Ethernet block is a fully verified block, which can implement Ethernet "
     "MAC layer function and provide RGMII/GMII/MII interface to connect to PHY IC. "
     "The block implements MAC layer protocol."_l1,
     "onEhternet()",
     Redraw::OnToggle,
     Key::ethernetInterface},
    {"SPIFlashDlg"_l1,
     "SPI-Flash"_l1,
     Bus::Ahb,
     spiFlashSwitches,
     PinTables::spiFlash,
     {{"SPI-Flash"_l1, 610, 80}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI-Flash block through AHB bus.The "
     "SPI-Flash block is a fully verified block which the Cortex-M1 can use for off-chip SPI "
     "Flash downloading and start-up.The SPI-Flash block is SPI interface."_l1,
     "onSpiFlash()"},
    {"PSRAMDlg"_l1,
     "PSRAM"_l1,
     Bus::Ahb,
     psramSwitches,
     PinTables::psram,
     {{"PSRAM"_l1, 530, 60, false, psramNote}},
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with PSRAM block through AHB bus.\nThe "
     "PSRAM Memory Interface block provides a complete solution for customers to use PSRAM "
     "Memory in Tarvo_ORIX_M1.This block is located between the PSRAM Memory Physical "
     "interface and MCU core with the AHB system bus, reduces the effort of user to deal with "
     "PSRAM Memory command interface by providing a simple generic system interface"_l1,
     "onPsram()"},
    {"DDR3Dlg"_l1,
     "DDR3"_l1,
     Bus::Ahb,
     ddr3Switches,
     PinTables::ddr3,
     {{"DDR3"_l1, 420}},
     " The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with DDR3 block through AHB bus. The DDR3 "
     "block provides a complete solution for customers to use DDR3 memory. This block located "
     "between the DDR3 memory and the user logic include with Tarvo Memory Controller and "
     "Physical interface, reduces the user's effort to deal with the DDR3 memory command "
     "interface by providing a simple generic system interface to the user."_l1,
     "onDDR3()",
     Redraw::OnClick},
    {"AHB2ExtensionDlg"_l1,
     "AHB Master [1-6]"_l1,
     Bus::Ahb,
     ahbMasterSwitches,
     PinTables::ahbMasters,
     {{"AHB Master [1-6]"_l1, 700, 80}},
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with AHB Master [1-6] block "
     "through AHB bus. There are six AHB interfaces to extend AHB peripherals for "
     "users. The AHB Master [1-6] block is a fully verified block which can extend "
     "AHB bus to user to design more AHB peripherals."_l1,
     "onAHB2Extension()",
     Redraw::OnClick},
    {"UartDlg"_l1,
     "UART"_l1,
     Bus::Apb,
     uartSwitches,
     PinTables::uart,
     {{"UART0"_l1, 30}, {"UART1"_l1, 110}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with UART0/1 block through APB "
     "bus.The UART0/1 block is a fully verified block which can implement UART "
     "communication.The UART0/1 block contains two universal asynchronous "
     "receive/transceiver, which support maximum BAUD rate at 921.6Kbit/s."_l1,
     "onUart()"},
    {"TimerDlg"_l1,
     "Timer"_l1,
     Bus::Apb,
     timerSwitches,
     PinTables::timer,
     {{"Timer0"_l1, 190}, {"Timer1"_l1, 270}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with Timer0/1 block through APB bus. The "
     "Timer0/1 block is a fully verified block which can implement counter function.The "
     "Timer0/1 block contains two Timers, which support 24-bit counter."_l1,
     "onTimer()"},
    {"WatchDogDlg"_l1,
     "WatchDog"_l1,
     Bus::Apb,
     watchDogSwitches,
     PinTables::none,
     {{"Watch Dog"_l1, 350}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with WatchDog block through APB "
     "bus.The WatchDog block is a fully verified block which can implement system "
     "reset when system is running over."_l1,
     "onWatchDog()"},
    {"RTCDlg"_l1,
     "RTC"_l1,
     Bus::Apb,
     rtcSwitches,
     PinTables::rtc,
     {{"RTC"_l1, 430}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with RTC block through APB bus.The RTC "
     "block is a fully verified block which can implement real time clock."_l1,
     "onRtc()"},
    {"I2CDlg"_l1,
     "I2C"_l1,
     Bus::Apb,
     i2cSwitches,
     PinTables::i2c,
     {{"I2C"_l1, 670}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with I2C block through APB bus. The I2C "
     "block is a fully verified block which can implement I2C communication. The I2C block "
     "implements I2C protocol. Users can select inout or in/out/en signals as I2C's ports."_l1,
     "onI2C()"},
    {"SPIDlg"_l1,
     "SPI"_l1,
     Bus::Apb,
     spiSwitches,
     PinTables::spi,
     {{"SPI"_l1, 750}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SPI block through APB "
     "bus.The SPI block is a fully verified block which can implement SPI "
     "communication.The SPI block implements SPI protocol."_l1,
     "onSPI()"},
    {"SDCardDlg"_l1,
     "SD-Card"_l1,
     Bus::Apb,
     sdCardSwitches,
     PinTables::sdCard,
     {{"SD-Card"_l1, 830}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with SD-Card block through APB "
     "bus. The SD-Card block is a fully verified block which can implement SD-Card "
     "memory to save data."_l1,
     "onSDCard()"},
    {"TrngDlg"_l1,
     "TRNG"_l1,
     Bus::Apb,
     trngSwitches,
     PinTables::none,
     {{"TRNG"_l1, 510}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with TRNG block through APB bus.The TRNG "
     "Block is a fully verified block which can implement true random number generator."_l1,
     "onTRNG()",
     Redraw::Never},
    {"DualTimerDlg"_l1,
     "DualTimer"_l1,
     Bus::Apb,
     dualTimerSwitches,
     PinTables::none,
     {{"Dual Timer"_l1, 590}},
     "The Cortex-M1 core of Tarvo_ORIX_M1 interacts with DualTimer block through APB bus. The "
     "DualTimer Block is a fully verified block which can implement dual counter."_l1,
     "onDualTimer()",
     Redraw::Never},
    {"APB2ExtensionDlg"_l1,
     "APB Master [1-16]"_l1,
     Bus::Apb,
     apbMasterSwitches,
     PinTables::apbMasters,
     {{"APB Master [1-16]"_l1, 905, 70}},
     "The Cortex-M1 Core of Tarvo_ORIX_M1 interacts with APB Master [1-16] block "
     "through APB bus. There are sixteen APB interfaces to extend APB peripherals "
     "for users. The APB Master [1-16] block is a fully verified block which can "
     "extend APB bus to user to design more APB peripherals."_l1,
     "onAPB2Extension()"},
};

} // namespace

QString SwitchRow::key() const
{
    return port > 0 ? Key::extensionPortKey(name, port) : QString(name);
}

QString SwitchRow::macro() const
{
    return port > 0 ? QString(macroText).arg(port) : QString(macroText);
}

QString SwitchRow::description() const
{
    return port > 0 ? QString(meaning).arg(port) : QString(meaning);
}

QLatin1String Block::module() const
{
    return bus == Bus::Ahb ? "Tarvo AHB Bus"_l1 : "Tarvo APB Bus"_l1;
}

Rows<Block> blocks()
{
    static const auto shown = [] {
        std::array<Block, std::size(rows)> sorted = {};
        std::copy(std::begin(rows), std::end(rows), sorted.begin());
        std::sort(sorted.begin(), sorted.end(), [](const Block &a, const Block &b) {
            return a.bus != b.bus ? a.bus < b.bus : a.boxes[0].x < b.boxes[0].x;
        });
        return sorted;
    }();
    return shown;
}

Rows<Block> generatedBlocks()
{
    return rows;
}

const Block &block(QLatin1String dialog)
{
    for (const Block &row : blocks()) {
        if (row.dialog == dialog)
            return row;
    }
    qFatal("There is no block with the dialog %s.", dialog.data());
}

const Block *blockOfBox(const QString &label)
{
    for (const Block &row : blocks()) {
        for (const DiagramBox &box : row.boxes) {
            if (box.label.size() > 0 && label == box.label)
                return &row;
        }
    }
    return nullptr;
}

bool isSwitch(const QString &name)
{
    const Option *option = findOption(name);
    return name == anyApbPeripheral || (option && option->type == OptionType::Bool);
}

bool isSwitchedOn(const OptionMap &options, const QString &name)
{
    if (name != anyApbPeripheral)
        return isSwitch(name) && isOn(options, name);
    return std::any_of(std::begin(rows), std::end(rows), [&options](const Block &block) {
        return block.isApbPeripheral() && std::any_of(block.switches.begin(), block.switches.end(),
                                                      [&options](const SwitchRow &entry) {
                                                          return !entry.isInterface &&
                                                                 isOn(options, entry.key());
                                                      });
    });
}

} // namespace TARVOORIXM1
