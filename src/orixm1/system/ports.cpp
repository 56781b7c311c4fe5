#include "ports.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "rules/corepins.h"
#include "rules/devicerules.h"
#include "rules/pins.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

enum Trait : unsigned {
    Plain = 0,
    ActiveLow = 1,
    PullUp = 2,
    ClockSource = 4, // one of the map's clocks
    ResetSource = 8, // one of its resets
    IdleHigh = 16,
};

struct PortRow {
    QLatin1String name;
    PortRole role;
    QLatin1String text;
    QLatin1String clock = QLatin1String();
    unsigned traits = Plain;
    QLatin1String synchronizer = QLatin1String();
};

constexpr PortRole Clock = PortRole::Clock;
constexpr PortRole Debug = PortRole::Debug;
constexpr PortRole Peripheral = PortRole::Peripheral;
constexpr PortRole Status = PortRole::Status;

constexpr QLatin1String none;
constexpr QLatin1String hclk = "HCLK"_l1;

// Every port that leads out no bus. Names, ranges and directions are those of the pins.
constexpr PortRow rows[] = {
    {"HCLK"_l1, Clock, "clocks processor, buses and blocks"_l1, none, ClockSource},
    {"hwRstn"_l1, PortRole::Reset, "resets everything, debug included"_l1, none,
     ActiveLow | ResetSource},
    {"LOCKUP"_l1, Status, "the processor has stopped after a second fault"_l1, hclk},
    {"HALTED"_l1, Status, "the debugger has stopped the processor"_l1, hclk},
    {"JTAG_3"_l1, Debug, "nTRST, resets the debug port"_l1, none, ActiveLow | PullUp | ResetSource},
    {"JTAG_4"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_5"_l1, Debug, "TDI"_l1, "JTAG_9"_l1},
    {"JTAG_6"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_7"_l1, Debug, "TMS or SWDIO"_l1, "JTAG_9"_l1},
    {"JTAG_8"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_9"_l1, Debug, "TCK or SWCLK, clocks the debug port"_l1, none, ClockSource},
    {"JTAG_10"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_11"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_12"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_13"_l1, Debug, "TDO"_l1, "JTAG_9"_l1},
    {"JTAG_14"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_15"_l1, Debug,
     "nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever"_l1,
     none, ActiveLow | PullUp | ResetSource, "u_reset.u_sync_srst"_l1},
    {"JTAG_16"_l1, PortRole::Unused, "driven low"_l1},
    {"JTAG_17"_l1, PortRole::Unused, "not connected"_l1},
    {"JTAG_18"_l1, PortRole::Unused, "driven low"_l1},
    {"EXTINT"_l1, PortRole::Interrupt,
     "interrupts 12 (bit 0) to 15 (bit 3), requested while high"_l1, none, Plain,
     "u_sync_extint"_l1},

    {"GPIO"_l1, Peripheral, "pins"_l1, none, Plain, "u_gpio.u_sync_gpio_in"_l1},
    {"GPIOIN"_l1, Peripheral, "levels of the pins"_l1, none, Plain, "u_gpio.u_sync_gpio_in"_l1},
    {"GPIOOUT"_l1, Peripheral, "values for the pins"_l1, hclk},
    {"GPIOOUTEN"_l1, Peripheral, "1 drives the pin"_l1, hclk},
    {"CAN_RX"_l1, Peripheral, "from the transceiver"_l1, none, IdleHigh},
    {"CAN_TX"_l1, Peripheral, "to the transceiver"_l1, hclk},
    {"MDC"_l1, Peripheral, "management clock of the PHY"_l1, hclk},
    {"MDIO"_l1, Peripheral, "management data of the PHY"_l1, "MDC"_l1, PullUp},
    {"RGMII_TXC"_l1, Peripheral, "transmit clock"_l1},
    {"RGMII_TX_CTL"_l1, Peripheral, "transmit control"_l1, "RGMII_TXC"_l1},
    {"RGMII_TXD"_l1, Peripheral, "transmit data"_l1, "RGMII_TXC"_l1},
    {"RGMII_RXC"_l1, Clock, "receive clock of the PHY"_l1, none, ClockSource},
    {"RGMII_RX_CTL"_l1, Peripheral, "receive control"_l1, "RGMII_RXC"_l1},
    {"RGMII_RXD"_l1, Peripheral, "receive data"_l1, "RGMII_RXC"_l1},
    {"GTX_CLK"_l1, Clock, "transmit clock of the MAC, 125 MHz"_l1, none, ClockSource},
    {"GMII_RX_CLK"_l1, Clock, "receive clock of the PHY"_l1, none, ClockSource},
    {"GMII_RX_DV"_l1, Peripheral, "receive data are valid"_l1, "GMII_RX_CLK"_l1},
    {"GMII_RXD"_l1, Peripheral, "receive data"_l1, "GMII_RX_CLK"_l1},
    {"GMII_RX_ER"_l1, Peripheral, "receive error"_l1, "GMII_RX_CLK"_l1},
    {"GMII_GTX_CLK"_l1, Peripheral, "transmit clock"_l1},
    {"GMII_TXD"_l1, Peripheral, "transmit data"_l1, "GMII_GTX_CLK"_l1},
    {"GMII_TX_EN"_l1, Peripheral, "transmit data are valid"_l1, "GMII_GTX_CLK"_l1},
    {"GMII_TX_ER"_l1, Peripheral, "transmit error"_l1, "GMII_GTX_CLK"_l1},
    {"MII_RX_CLK"_l1, Clock, "receive clock of the PHY"_l1, none, ClockSource},
    {"MII_RXD"_l1, Peripheral, "receive data"_l1, "MII_RX_CLK"_l1},
    {"MII_RX_DV"_l1, Peripheral, "receive data are valid"_l1, "MII_RX_CLK"_l1},
    {"MII_RX_ER"_l1, Peripheral, "receive error"_l1, "MII_RX_CLK"_l1},
    {"MII_TX_CLK"_l1, Clock, "transmit clock of the PHY"_l1, none, ClockSource},
    {"MII_TXD"_l1, Peripheral, "transmit data"_l1, "MII_TX_CLK"_l1},
    {"MII_TX_EN"_l1, Peripheral, "transmit data are valid"_l1, "MII_TX_CLK"_l1},
    {"MII_TX_ER"_l1, Peripheral, "transmit error"_l1, "MII_TX_CLK"_l1},
    {"MII_COL"_l1, Peripheral, "collision"_l1},
    {"MII_CRS"_l1, Peripheral, "carrier"_l1},
    // Released while the subsystem is in reset.
    {"FLASH_SPI_HOLDN"_l1, Peripheral, "hold of the flash, always released"_l1, hclk, ActiveLow},
    {"FLASH_SPI_CSN"_l1, Peripheral, "chip select of the flash"_l1, hclk, ActiveLow},
    {"FLASH_SPI_MISO"_l1, Peripheral, "data from the flash"_l1, hclk},
    {"FLASH_SPI_MOSI"_l1, Peripheral, "data to the flash"_l1, hclk},
    {"FLASH_SPI_WPN"_l1, Peripheral, "write protection of the flash"_l1, hclk, ActiveLow},
    {"FLASH_SPI_CLK"_l1, Peripheral, "clock of the flash"_l1, hclk},
    {"O_psram_ck"_l1, Peripheral, "clocks of the memory"_l1},
    {"O_psram_ck_n"_l1, Peripheral, "the same, inverted"_l1},
    {"IO_psram_rwds"_l1, Peripheral, "strobes of the memory"_l1, "O_psram_ck"_l1},
    {"IO_psram_dq"_l1, Peripheral, "data of the memory"_l1, "IO_psram_rwds"_l1},
    {"O_psram_reset_n"_l1, Peripheral, "resets the memory"_l1, none, ActiveLow},
    {"O_psram_cs_n"_l1, Peripheral, "chip selects of the memory"_l1, "O_psram_ck"_l1, ActiveLow},
    {"init_calib"_l1, Status, "the PSRAM is calibrated"_l1},
    {"psram_ref_clk"_l1, Clock, "reference clock of the PSRAM interface"_l1, none, ClockSource},
    {"psram_memory_clk"_l1, Clock, "clock of the PSRAM"_l1, none, ClockSource},
    {"DDR_STOP_O"_l1, Peripheral, "asks to stop DDR_MEM_CLK_I while its phase changes"_l1},
    {"DDR_CLK_I"_l1, Clock, "reference clock of the DDR3 controller"_l1, none, ClockSource},
    {"DDR_MEM_CLK_I"_l1, Clock, "clock of the DDR3 interface"_l1, none, ClockSource},
    {"DDR_LOCK_I"_l1, Peripheral, "DDR_MEM_CLK_I is stable"_l1},
    {"DDR_RSTN_I"_l1, PortRole::Reset, "resets the DDR3 controller"_l1, none,
     ActiveLow | ResetSource},
    {"DDR_INIT_COMPLETE_O"_l1, Status, "the DDR3 memory is ready"_l1},
    {"DDR_ADDR_O"_l1, Peripheral, "address of the memory"_l1, "DDR_CLK_O"_l1},
    {"DDR_BA_O"_l1, Peripheral, "bank of the memory"_l1, "DDR_CLK_O"_l1},
    {"DDR_CS_N_O"_l1, Peripheral, "chip select of the memory"_l1, "DDR_CLK_O"_l1, ActiveLow},
    {"DDR_RAS_N_O"_l1, Peripheral, "row address strobe"_l1, "DDR_CLK_O"_l1, ActiveLow},
    {"DDR_CAS_N_O"_l1, Peripheral, "column address strobe"_l1, "DDR_CLK_O"_l1, ActiveLow},
    {"DDR_WE_N_O"_l1, Peripheral, "write enable"_l1, "DDR_CLK_O"_l1, ActiveLow},
    {"DDR_CLK_O"_l1, Peripheral, "clock of the memory"_l1},
    {"DDR_CLK_N_O"_l1, Peripheral, "the same, inverted"_l1},
    {"DDR_CKE_O"_l1, Peripheral, "clock enable"_l1, "DDR_CLK_O"_l1},
    {"DDR_ODT_O"_l1, Peripheral, "termination"_l1, "DDR_CLK_O"_l1},
    {"DDR_RESET_N_O"_l1, Peripheral, "resets the memory"_l1, none, ActiveLow},
    {"DDR_DQM_O"_l1, Peripheral, "masks of the data"_l1, "DDR_DQS_IO"_l1},
    {"DDR_DQ_IO"_l1, Peripheral, "data of the memory"_l1, "DDR_DQS_IO"_l1},
    {"DDR_DQS_IO"_l1, Peripheral, "strobes of the data"_l1},
    {"DDR_DQS_N_IO"_l1, Peripheral, "the same, inverted"_l1},

    {"UART0RXD"_l1, Peripheral, "serial data to receive"_l1, none, IdleHigh,
     "u_uart0.u_sync_rxd"_l1},
    {"UART0TXD"_l1, Peripheral, "serial data sent"_l1, hclk},
    {"UART1RXD"_l1, Peripheral, "serial data to receive"_l1, none, IdleHigh,
     "u_uart1.u_sync_rxd"_l1},
    {"UART1TXD"_l1, Peripheral, "serial data sent"_l1, hclk},
    {"TIMER0EXTIN"_l1, Peripheral, "gate or events of the timer"_l1, none, Plain,
     "u_timer0.u_sync_extin"_l1},
    {"TIMER1EXTIN"_l1, Peripheral, "gate or events of the timer"_l1, none, Plain,
     "u_timer1.u_sync_extin"_l1},
    {"RTCSRCCLK"_l1, Peripheral,
     "source clock of the seconds, sampled with HCLK and slower than HCLK / 4"_l1, none,
     ClockSource, "u_rtc.u_sync_rtc_clk"_l1},
    {"SCL"_l1, Peripheral, "clock of the bus"_l1, none, PullUp, "u_i2c.u_sync_scl"_l1},
    {"SDA"_l1, Peripheral, "data of the bus"_l1, none, PullUp, "u_i2c.u_sync_sda"_l1},
    {"SCLIN"_l1, Peripheral, "level of the clock line"_l1, none, Plain, "u_i2c.u_sync_scl"_l1},
    {"SCLOUT"_l1, Peripheral, "value for the clock line, always 0"_l1, hclk},
    {"SCLOUTEN"_l1, Peripheral, "1 drives the clock line"_l1, hclk},
    {"SDAIN"_l1, Peripheral, "level of the data line"_l1, none, Plain, "u_i2c.u_sync_sda"_l1},
    {"SDAOUT"_l1, Peripheral, "value for the data line, always 0"_l1, hclk},
    {"SDAOUTEN"_l1, Peripheral, "1 drives the data line"_l1, hclk},
    {"MOSI"_l1, Peripheral, "data to the slave"_l1, hclk},
    {"MISO"_l1, Peripheral, "data from the slave"_l1, hclk},
    {"SCLK"_l1, Peripheral, "clock of the slave"_l1, hclk},
    {"NSS"_l1, Peripheral, "slave select"_l1, hclk, ActiveLow},
    {"SD_CLK"_l1, Peripheral, "clock of the card"_l1, hclk},
    {"SD_SPICLK"_l1, Peripheral,
     "source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4"_l1, none, ClockSource,
     "u_sd.u_sync_spiclk"_l1},
    {"SD_CS"_l1, Peripheral, "chip select of the card"_l1, hclk, ActiveLow},
    {"SD_DATAIN"_l1, Peripheral, "data from the card"_l1, hclk, IdleHigh},
    {"SD_DATAOUT"_l1, Peripheral, "data to the card"_l1, hclk},
    {"SD_CARD_INIT"_l1, Status, "software has initialised the card"_l1, hclk},
    {"SD_CHECKIN"_l1, Peripheral, "switch of the card's socket, low with a card"_l1, none,
     ActiveLow, "u_sd.u_sync_checkin"_l1},
    {"SD_CHECKOUT"_l1, Status, "a card is present"_l1, hclk},
};

// A signal of a bus that is led out.
struct SignalRow {
    QLatin1String name;     // behind the region's name or what stands for it
    QLatin1String standard; // the bus's own name of it
    QLatin1String text;
    PortRole role = PortRole::BusSignal;
    unsigned traits = Plain;
};

constexpr SignalRow signalRows[] = {
    {"HRDATA"_l1, "HRDATA"_l1, "data read"_l1},
    {"HREADYOUT"_l1, "HREADYOUT"_l1, "the slave has finished"_l1},
    {"HRESP"_l1, "HRESP"_l1, "response; any value but 0 is an error"_l1},
    {"HTRANS"_l1, "HTRANS"_l1, "kind of the transfer"_l1},
    {"HBURST"_l1, "HBURST"_l1, "kind of the burst"_l1},
    {"HPROT"_l1, "HPROT"_l1, "protection of the transfer"_l1},
    {"HSIZE"_l1, "HSIZE"_l1, "size of the transfer"_l1},
    {"HWRITE"_l1, "HWRITE"_l1, "1 writes"_l1},
    {"HREADYMUX"_l1, "HREADY"_l1, "the transfer before has finished"_l1},
    {"HMASTER"_l1, "HMASTER"_l1, "number of the master"_l1},
    {"HMASTLOCK"_l1, "HMASTLOCK"_l1, "the transfer is locked"_l1},
    {"HADDR"_l1, "HADDR"_l1, "address"_l1},
    {"HWDATA"_l1, "HWDATA"_l1, "data written"_l1},
    {"HSEL"_l1, "HSEL"_l1, "the address is one of the port"_l1},
    {"HCLK"_l1, "HCLK"_l1, "clock of the port"_l1, PortRole::Clock},
    {"HRESET"_l1, "HRESETn"_l1, "reset of the port"_l1, PortRole::Reset, ActiveLow},
    {"PADDR"_l1, "PADDR"_l1, "address"_l1},
    {"PENABLE"_l1, "PENABLE"_l1, "second and further cycles of the transfer"_l1},
    {"PWRITE"_l1, "PWRITE"_l1, "1 writes"_l1},
    {"PSTRB"_l1, "PSTRB"_l1, "bytes that are written"_l1},
    {"PPROT"_l1, "PPROT"_l1, "protection of the transfer"_l1},
    {"PWDATA"_l1, "PWDATA"_l1, "data written"_l1},
    {"PSEL"_l1, "PSEL"_l1, "the address is one of the port"_l1},
    {"PRDATA"_l1, "PRDATA"_l1, "data read"_l1},
    {"PREDADY"_l1, "PREADY"_l1, "the slave has finished"_l1},
    {"PSLVERR"_l1, "PSLVERR"_l1, "the transfer has failed"_l1},
    {"PCLK"_l1, "PCLK"_l1, "clock of the port"_l1, PortRole::Clock},
    {"PRESET"_l1, "PRESETn"_l1, "reset of the port"_l1, PortRole::Reset, ActiveLow},
};

template <typename Rows>
auto rowNamed(const Rows &table, const QString &name) -> decltype(&table[0])
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [&name](const auto &row) { return row.name == name; });
    return found == std::end(table) ? nullptr : &*found;
}

bool leadsOutABus(const Region &region)
{
    return region.kind == RegionKind::ExtensionPort || region.kind == RegionKind::ExternalMemory;
}

PortDirection directionOf(const Utils::PinFigure &pin)
{
    switch (pin.direction()) {
    case Utils::PinFigure::Input:
        return PortDirection::Input;
    case Utils::PinFigure::Output:
        return PortDirection::Output;
    case Utils::PinFigure::Bidirectional:
        break;
    }
    return PortDirection::Inout;
}

// "HSIZE[2:0] ": the name of a figure may end in a blank that no port has.
void readLabel(const QString &figureName, Port *port)
{
    const QString label = figureName.trimmed();
    const int bracket = label.indexOf(u'[');
    port->name = label.left(bracket);
    if (bracket < 0)
        return;
    const QString range = label.mid(bracket + 1).chopped(1);
    port->left = range.section(u':', 0, 0).toInt();
    port->right = range.section(u':', 1, 1).toInt();
}

void describe(Port *port, const QVector<Region> &regions)
{
    if (const PortRow *row = rowNamed(rows, port->name)) {
        port->role = row->role;
        port->text = row->text;
        port->clock = row->clock;
        port->synchronizer = row->synchronizer;
        port->isActiveLow = (row->traits & ActiveLow) != 0;
        port->idlesHigh = (row->traits & IdleHigh) != 0;
        port->needsPullUp = (row->traits & PullUp) != 0;
        return;
    }
    const auto region =
        std::find_if(regions.begin(), regions.end(), [port](const Region &candidate) {
            return leadsOutABus(candidate) && port->name.startsWith(candidate.ports);
        });
    if (region == regions.end())
        return;
    const SignalRow *signal = rowNamed(signalRows, port->name.mid(region->ports.size() - 1));
    if (!signal)
        return;
    port->role = signal->role;
    port->text = signal->text;
    port->bus = region->name;
    port->signal = signal->standard;
    port->isActiveLow = (signal->traits & ActiveLow) != 0;
    if (signal->role != PortRole::Clock)
        port->clock = region->ports + "CLK"_l1;
}

QVector<ExternalSource> sourcesAmong(const QVector<Port> &ports, Trait trait)
{
    QVector<ExternalSource> sources;
    for (const Port &port : ports) {
        const PortRow *row = rowNamed(rows, port.name);
        if (row && (row->traits & trait) != 0)
            sources.append({port.name, port.isActiveLow, port.text});
    }
    return sources;
}

struct BlackBoxRow {
    QLatin1String module; // empty: named after the device
    QLatin1String option; // empty: always there
    QLatin1String region;
    QLatin1String text;
};

constexpr BlackBoxRow blackBoxRows[] = {
    {"CortexM1Core"_l1, none, none, "processor"_l1},
    {"can_core"_l1, Key::enableCan, "CAN"_l1, "CAN controller"_l1},
    {"mac"_l1, Key::enableEthernet, "ETH"_l1, "Ethernet MAC"_l1},
    {"trng_core"_l1, Key::enableTrng, "TRNG"_l1, "true random number generator"_l1},
    {"PSRAM_Memory_Interface_Top"_l1, Key::enablePsram, "PSRAM"_l1, "PSRAM interface"_l1},
    {none, Key::enableDdr3, "DDR3"_l1, "DDR3 controller"_l1},
};

struct Ddr3Row {
    QLatin1String variant;
    QLatin1String module;
};

constexpr Ddr3Row ddr3Rows[] = {
    {"VIRLA_138K"_l1, "DDR3_Controller_138K"_l1},
    {"VIRLA_25K"_l1, "DDR3_Controller_25K"_l1},
    {"VIRLA_TV2K"_l1, "DDR3_Controller_2K"_l1},
};

QLatin1String ddr3Module(const QString &device)
{
    const QLatin1String variant = ddr3Variant(device).value_or(none);
    const auto row = std::find_if(std::begin(ddr3Rows), std::end(ddr3Rows),
                                  [variant](const Ddr3Row &r) { return r.variant == variant; });
    return row == std::end(ddr3Rows) ? "DDR3_Controller"_l1 : row->module;
}

} // namespace

QString directionName(PortDirection direction)
{
    switch (direction) {
    case PortDirection::Input:
        return QStringLiteral("input");
    case PortDirection::Output:
        return QStringLiteral("output");
    case PortDirection::Inout:
        return QStringLiteral("inout");
    }
    return {};
}

QString roleName(PortRole role)
{
    switch (role) {
    case PortRole::Clock:
        return QStringLiteral("clock");
    case PortRole::Reset:
        return QStringLiteral("reset");
    case PortRole::BusSignal:
        return QStringLiteral("bus");
    case PortRole::Interrupt:
        return QStringLiteral("interrupt");
    case PortRole::Debug:
        return QStringLiteral("debug");
    case PortRole::Status:
        return QStringLiteral("status");
    case PortRole::Peripheral:
        return QStringLiteral("peripheral");
    case PortRole::Unused:
        return QStringLiteral("unused");
    }
    return {};
}

QVector<Port> portsOf(const OptionMap &options, const QString &device,
                      const QVector<Region> &regions)
{
    QVector<Port> ports;
    const auto append = [&](const QList<Utils::PinFigure> &pins, QLatin1String block) {
        for (const Utils::PinFigure &pin : pins) {
            Port port;
            readLabel(pin.name(), &port);
            port.direction = directionOf(pin);
            port.block = block;
            describe(&port, regions);
            ports.append(port);
        }
    };
    append(corePins(coreSwitches(options)), "Cortex-M1"_l1);
    for (const Block &block : generatedBlocks())
        append(blockPins(block, blockState(block, options, device)), block.title);
    return ports;
}

QVector<ExternalSource> clocksAmong(const QVector<Port> &ports)
{
    return sourcesAmong(ports, ClockSource);
}

QVector<ExternalSource> resetsAmong(const QVector<Port> &ports)
{
    return sourcesAmong(ports, ResetSource);
}

QVector<BlackBox> blackBoxesOf(const OptionMap &options, const QString &device)
{
    QVector<BlackBox> boxes;
    for (const BlackBoxRow &row : blackBoxRows) {
        if (row.option.size() > 0 && !isOn(options, row.option))
            continue;
        boxes.append(
            {row.module.size() > 0 ? row.module : ddr3Module(device), row.region, row.text});
    }
    return boxes;
}

} // namespace TARVOORIXM1
