#pragma once

#include "blocks.h"
#include "config/devicerules.h"
#include "config/optionkeys.h"

#include <utils/pinfigure.h>

namespace TARVOORIXM1
{

struct PinRow {
    QLatin1String name;
    Utils::PinFigure::Direction direction;
    bool bus = false;
};

constexpr unsigned switchBit(int index)
{
    return 1u << index;
}

inline constexpr unsigned anyChoice = ~0u;

// Pins that come together.
struct PinGroup {
    Rows<PinRow> rows;
    unsigned on = 0;                            // bits of the switches that must be on
    unsigned off = 0;                           // and of those that must be off
    unsigned choices = anyChoice;               // bits of the choices that they belong to
    bool (*devices)(const QString &) = nullptr; // which devices have them; null: all
    // Before each row's name, if number is not negative: prefix and number.
    QLatin1String prefix = QLatin1String();
    int number = -1;
};

namespace PinTables
{

inline constexpr auto Input = Utils::PinFigure::Input;
inline constexpr auto Output = Utils::PinFigure::Output;
inline constexpr auto Bidirectional = Utils::PinFigure::Bidirectional;

inline constexpr PinRow gpioInoutRows[] = {
    {QLatin1String("GPIO[15:0]"), Bidirectional, true},
};

inline constexpr PinRow gpioSplitRows[] = {
    {QLatin1String("GPIOIN[15:0]"), Input, true},
    {QLatin1String("GPIOOUT[15:0]"), Output, true},
    {QLatin1String("GPIOOUTEN[15:0]"), Output, true},
};

inline constexpr PinRow canRows[] = {
    {QLatin1String("CAN_RX"), Input},
    {QLatin1String("CAN_TX"), Output},
};

// Of every interface to the PHY.
inline constexpr PinRow ethernetRows[] = {
    {QLatin1String("MDC"), Output},
    {QLatin1String("MDIO"), Bidirectional},
};

inline constexpr PinRow rgmiiRows[] = {
    {QLatin1String("RGMII_TXC"), Output},
    {QLatin1String("RGMII_TX_CTL"), Output},
    {QLatin1String("RGMII_TXD[3:0]"), Output, true},
    {QLatin1String("RGMII_RXC"), Input},
    {QLatin1String("RGMII_RX_CTL"), Input},
    {QLatin1String("RGMII_RXD[3:0]"), Input, true},
    {QLatin1String("GTX_CLK"), Input},
};

inline constexpr PinRow gmiiRows[] = {
    {QLatin1String("GMII_RX_CLK"), Input},
    {QLatin1String("GMII_RX_DV"), Input},
    {QLatin1String("GMII_RXD[7:0]"), Input, true},
    {QLatin1String("GMII_RX_ER"), Input},
    {QLatin1String("GTX_CLK"), Input},
    {QLatin1String("GMII_GTX_CLK"), Output},
    {QLatin1String("GMII_TXD[7:0]"), Output, true},
    {QLatin1String("GMII_TX_EN"), Output},
    {QLatin1String("GMII_TX_ER"), Output},
};

inline constexpr PinRow miiRows[] = {
    {QLatin1String("MII_RX_CLK"), Input}, {QLatin1String("MII_RXD[3:0]"), Input, true},
    {QLatin1String("MII_RX_DV"), Input},  {QLatin1String("MII_RX_ER"), Input},
    {QLatin1String("MII_TX_CLK"), Input}, {QLatin1String("MII_TXD[3:0]"), Output, true},
    {QLatin1String("MII_TX_EN"), Output}, {QLatin1String("MII_TX_ER"), Output},
    {QLatin1String("MII_COL"), Input},    {QLatin1String("MII_CRS"), Input},
};

inline constexpr PinRow ddr3StopRows[] = {
    {QLatin1String("DDR_STOP_O"), Output},
};

inline constexpr PinRow ddr3Rows[] = {
    {QLatin1String("DDR_CLK_I"), Input},
    {QLatin1String("DDR_MEM_CLK_I"), Input},
    {QLatin1String("DDR_LOCK_I"), Input},
    {QLatin1String("DDR_RSTN_I"), Input},
    {QLatin1String("DDR_INIT_COMPLETE_O"), Output},
    {QLatin1String("DDR_ADDR_O[15:0]"), Output, true},
    {QLatin1String("DDR_BA_O[2:0]"), Output, true},
    {QLatin1String("DDR_CS_N_O"), Output},
    {QLatin1String("DDR_RAS_N_O"), Output},
    {QLatin1String("DDR_CAS_N_O"), Output},
    {QLatin1String("DDR_WE_N_O"), Output},
    {QLatin1String("DDR_CLK_O"), Output},
    {QLatin1String("DDR_CLK_N_O"), Output},
    {QLatin1String("DDR_CKE_O"), Output},
    {QLatin1String("DDR_ODT_O"), Output},
    {QLatin1String("DDR_RESET_N_O"), Output},
    {QLatin1String("DDR_DQM_O[1:0]"), Output, true},
    {QLatin1String("DDR_DQ_IO[15:0]"), Bidirectional, true},
    {QLatin1String("DDR_DQS_IO[1:0]"), Bidirectional, true},
    {QLatin1String("DDR_DQS_N_IO[1:0]"), Bidirectional, true},
};

inline constexpr PinRow psramRows[] = {
    {QLatin1String("O_psram_ck[1:0]"), Output, true},
    {QLatin1String("O_psram_ck_n[1:0]"), Output, true},
    {QLatin1String("IO_psram_rwds[1:0]"), Bidirectional, true},
    {QLatin1String("IO_psram_dq[15:0]"), Bidirectional, true},
    {QLatin1String("O_psram_reset_n[1:0]"), Output, true},
    {QLatin1String("O_psram_cs_n[1:0]"), Output, true},
    {QLatin1String("init_calib"), Output},
    {QLatin1String("psram_ref_clk"), Input},
    {QLatin1String("psram_memory_clk"), Input},
};

inline constexpr PinRow spiFlashRows[] = {
    {QLatin1String("FLASH_SPI_HOLDN"), Bidirectional},
    {QLatin1String("FLASH_SPI_CSN"), Bidirectional},
    {QLatin1String("FLASH_SPI_MISO"), Bidirectional},
    {QLatin1String("FLASH_SPI_MOSI"), Bidirectional},
    {QLatin1String("FLASH_SPI_WPN"), Bidirectional},
    {QLatin1String("FLASH_SPI_CLK"), Bidirectional},
};

// One port of an extension bus, seen from the subsystem, which is its master. The blank after HSIZE
// belongs to the name.
inline constexpr PinRow ahbPortRows[] = {
    {QLatin1String("HRDATA[31:0]"), Input, true},
    {QLatin1String("HREADYOUT"), Input},
    {QLatin1String("HRESP[1:0]"), Input, true},
    {QLatin1String("HTRANS[1:0]"), Output, true},
    {QLatin1String("HBURST[2:0]"), Output, true},
    {QLatin1String("HPROT[3:0]"), Output, true},
    {QLatin1String("HSIZE[2:0] "), Output, true},
    {QLatin1String("HWRITE"), Output},
    {QLatin1String("HREADYMUX"), Output},
    {QLatin1String("HMASTER[3:0]"), Output, true},
    {QLatin1String("HMASTLOCK"), Output},
    {QLatin1String("HADDR[31:0]"), Output, true},
    {QLatin1String("HWDATA[31:0]"), Output, true},
    {QLatin1String("HSEL"), Output},
    {QLatin1String("HCLK"), Output},
    {QLatin1String("HRESET"), Output},
};

inline constexpr PinRow uartRows[] = {
    {QLatin1String("RXD"), Input},
    {QLatin1String("TXD"), Output},
};

inline constexpr PinRow timerRows[] = {
    {QLatin1String("EXTIN"), Input},
};

inline constexpr PinRow rtcRows[] = {
    {QLatin1String("RTCSRCCLK"), Input},
};

inline constexpr PinRow i2cInoutRows[] = {
    {QLatin1String("SCL"), Bidirectional},
    {QLatin1String("SDA"), Bidirectional},
};

inline constexpr PinRow i2cSplitRows[] = {
    {QLatin1String("SCLIN"), Input},     {QLatin1String("SCLOUT"), Output},
    {QLatin1String("SCLOUTEN"), Output}, {QLatin1String("SDAIN"), Input},
    {QLatin1String("SDAOUT"), Output},   {QLatin1String("SDAOUTEN"), Output},
};

inline constexpr PinRow spiRows[] = {
    {QLatin1String("MOSI"), Output},
    {QLatin1String("MISO"), Input},
    {QLatin1String("SCLK"), Output},
    {QLatin1String("NSS"), Output},
};

inline constexpr PinRow sdCardRows[] = {
    {QLatin1String("SD_CLK"), Output},     {QLatin1String("SD_SPICLK"), Input},
    {QLatin1String("SD_CS"), Output},      {QLatin1String("SD_DATAIN"), Input},
    {QLatin1String("SD_DATAOUT"), Output}, {QLatin1String("SD_CARD_INIT"), Output},
    {QLatin1String("SD_CHECKIN"), Input},  {QLatin1String("SD_CHECKOUT"), Output},
};

// The ready input is spelled as it is on purpose.
inline constexpr PinRow apbPortRows[] = {
    {QLatin1String("PADDR[31:0]"), Output, true},
    {QLatin1String("PENABLE"), Output},
    {QLatin1String("PWRITE"), Output},
    {QLatin1String("PSTRB[3:0]"), Output, true},
    {QLatin1String("PPROT[2:0]"), Output, true},
    {QLatin1String("PWDATA[31:0]"), Output, true},
    {QLatin1String("PSEL"), Output},
    {QLatin1String("PRDATA[31:0]"), Input, true},
    {QLatin1String("PREDADY"), Input},
    {QLatin1String("PSLVERR"), Input},
    {QLatin1String("PCLK"), Output},
    {QLatin1String("PRESET"), Output},
};

// One group of the same rows for each of the block's switches, which are numbered from `first`.
template <int count>
constexpr std::array<PinGroup, count> numbered(const char *prefix, int first, Rows<PinRow> rows)
{
    std::array<PinGroup, count> groups = {};
    for (int i = 0; i < count; ++i) {
        groups[i].rows = rows;
        groups[i].on = switchBit(i);
        groups[i].prefix = QLatin1String(prefix);
        groups[i].number = first + i;
    }
    return groups;
}

inline constexpr unsigned enabled = switchBit(0);
inline constexpr unsigned bidirectionalPorts = switchBit(1); // of GPIO and I2C

inline constexpr Rows<PinGroup> none;
inline constexpr PinGroup gpio[] = {
    {gpioInoutRows, enabled | bidirectionalPorts},
    {gpioSplitRows, enabled, bidirectionalPorts},
};
inline constexpr PinGroup can[] = {{canRows, enabled}};
// The choices are the interfaces in the order of the option table.
inline constexpr PinGroup ethernet[] = {
    {ethernetRows, enabled},
    {rgmiiRows, enabled, 0, switchBit(0)},
    {gmiiRows, enabled, 0, switchBit(1) | switchBit(3)},
    {miiRows, enabled, 0, switchBit(2) | switchBit(3)},
};
inline constexpr PinGroup ddr3[] = {
    {ddr3StopRows, enabled, 0, anyChoice, hasDdr3StopSignal},
    {ddr3Rows, enabled},
};
inline constexpr PinGroup psram[] = {{psramRows, enabled}};
inline constexpr PinGroup spiFlash[] = {{spiFlashRows, enabled}};
inline constexpr auto ahbMasters = numbered<Key::ahbMasterCount>("AHB", 1, ahbPortRows);
inline constexpr auto uart = numbered<2>("UART", 0, uartRows);
inline constexpr auto timer = numbered<2>("TIMER", 0, timerRows);
inline constexpr PinGroup rtc[] = {{rtcRows, enabled}};
inline constexpr PinGroup i2c[] = {
    {i2cInoutRows, enabled | bidirectionalPorts},
    {i2cSplitRows, enabled, bidirectionalPorts},
};
inline constexpr PinGroup spi[] = {{spiRows, enabled}};
inline constexpr PinGroup sdCard[] = {{sdCardRows, enabled}};
inline constexpr auto apbMasters = numbered<Key::apbMasterCount>("APB", 1, apbPortRows);

} // namespace PinTables

} // namespace TARVOORIXM1
