#pragma once

#include "blocks.h"
#include "latin1literal.h"
#include "optionkeys.h"

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

enum class PinDevices { All, WithDdr3Stop };

// Pins that come together.
struct PinGroup {
    Rows<PinRow> rows;
    unsigned on = 0;                      // bits of the switches that must be on
    unsigned off = 0;                     // and of those that must be off
    unsigned choices = anyChoice;         // bits of the choices that they belong to
    PinDevices devices = PinDevices::All; // those that have them
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
    {"GPIO[15:0]"_l1, Bidirectional, true},
};

inline constexpr PinRow gpioSplitRows[] = {
    {"GPIOIN[15:0]"_l1, Input, true},
    {"GPIOOUT[15:0]"_l1, Output, true},
    {"GPIOOUTEN[15:0]"_l1, Output, true},
};

inline constexpr PinRow canRows[] = {
    {"CAN_RX"_l1, Input},
    {"CAN_TX"_l1, Output},
};

// Of every interface to the PHY.
inline constexpr PinRow ethernetRows[] = {
    {"MDC"_l1, Output},
    {"MDIO"_l1, Bidirectional},
};

inline constexpr PinRow rgmiiRows[] = {
    {"RGMII_TXC"_l1, Output}, {"RGMII_TX_CTL"_l1, Output}, {"RGMII_TXD[3:0]"_l1, Output, true},
    {"RGMII_RXC"_l1, Input},  {"RGMII_RX_CTL"_l1, Input},  {"RGMII_RXD[3:0]"_l1, Input, true},
    {"GTX_CLK"_l1, Input},
};

inline constexpr PinRow gmiiRows[] = {
    {"GMII_RX_CLK"_l1, Input},
    {"GMII_RX_DV"_l1, Input},
    {"GMII_RXD[7:0]"_l1, Input, true},
    {"GMII_RX_ER"_l1, Input},
    {"GTX_CLK"_l1, Input},
    {"GMII_GTX_CLK"_l1, Output},
    {"GMII_TXD[7:0]"_l1, Output, true},
    {"GMII_TX_EN"_l1, Output},
    {"GMII_TX_ER"_l1, Output},
};

inline constexpr PinRow miiRows[] = {
    {"MII_RX_CLK"_l1, Input}, {"MII_RXD[3:0]"_l1, Input, true}, {"MII_RX_DV"_l1, Input},
    {"MII_RX_ER"_l1, Input},  {"MII_TX_CLK"_l1, Input},         {"MII_TXD[3:0]"_l1, Output, true},
    {"MII_TX_EN"_l1, Output}, {"MII_TX_ER"_l1, Output},         {"MII_COL"_l1, Input},
    {"MII_CRS"_l1, Input},
};

inline constexpr PinRow ddr3StopRows[] = {
    {"DDR_STOP_O"_l1, Output},
};

inline constexpr PinRow ddr3Rows[] = {
    {"DDR_CLK_I"_l1, Input},
    {"DDR_MEM_CLK_I"_l1, Input},
    {"DDR_LOCK_I"_l1, Input},
    {"DDR_RSTN_I"_l1, Input},
    {"DDR_INIT_COMPLETE_O"_l1, Output},
    {"DDR_ADDR_O[15:0]"_l1, Output, true},
    {"DDR_BA_O[2:0]"_l1, Output, true},
    {"DDR_CS_N_O"_l1, Output},
    {"DDR_RAS_N_O"_l1, Output},
    {"DDR_CAS_N_O"_l1, Output},
    {"DDR_WE_N_O"_l1, Output},
    {"DDR_CLK_O"_l1, Output},
    {"DDR_CLK_N_O"_l1, Output},
    {"DDR_CKE_O"_l1, Output},
    {"DDR_ODT_O"_l1, Output},
    {"DDR_RESET_N_O"_l1, Output},
    {"DDR_DQM_O[1:0]"_l1, Output, true},
    {"DDR_DQ_IO[15:0]"_l1, Bidirectional, true},
    {"DDR_DQS_IO[1:0]"_l1, Bidirectional, true},
    {"DDR_DQS_N_IO[1:0]"_l1, Bidirectional, true},
};

inline constexpr PinRow psramRows[] = {
    {"O_psram_ck[1:0]"_l1, Output, true},
    {"O_psram_ck_n[1:0]"_l1, Output, true},
    {"IO_psram_rwds[1:0]"_l1, Bidirectional, true},
    {"IO_psram_dq[15:0]"_l1, Bidirectional, true},
    {"O_psram_reset_n[1:0]"_l1, Output, true},
    {"O_psram_cs_n[1:0]"_l1, Output, true},
    {"init_calib"_l1, Output},
    {"psram_ref_clk"_l1, Input},
    {"psram_memory_clk"_l1, Input},
};

inline constexpr PinRow spiFlashRows[] = {
    {"FLASH_SPI_HOLDN"_l1, Bidirectional}, {"FLASH_SPI_CSN"_l1, Bidirectional},
    {"FLASH_SPI_MISO"_l1, Bidirectional},  {"FLASH_SPI_MOSI"_l1, Bidirectional},
    {"FLASH_SPI_WPN"_l1, Bidirectional},   {"FLASH_SPI_CLK"_l1, Bidirectional},
};

// One port of an extension bus, seen from the subsystem, which is its master. The blank after HSIZE
// belongs to the name.
inline constexpr PinRow ahbPortRows[] = {
    {"HRDATA[31:0]"_l1, Input, true},
    {"HREADYOUT"_l1, Input},
    {"HRESP[1:0]"_l1, Input, true},
    {"HTRANS[1:0]"_l1, Output, true},
    {"HBURST[2:0]"_l1, Output, true},
    {"HPROT[3:0]"_l1, Output, true},
    {"HSIZE[2:0] "_l1, Output, true},
    {"HWRITE"_l1, Output},
    {"HREADYMUX"_l1, Output},
    {"HMASTER[3:0]"_l1, Output, true},
    {"HMASTLOCK"_l1, Output},
    {"HADDR[31:0]"_l1, Output, true},
    {"HWDATA[31:0]"_l1, Output, true},
    {"HSEL"_l1, Output},
    {"HCLK"_l1, Output},
    {"HRESET"_l1, Output},
};

inline constexpr PinRow uartRows[] = {
    {"RXD"_l1, Input},
    {"TXD"_l1, Output},
};

inline constexpr PinRow timerRows[] = {
    {"EXTIN"_l1, Input},
};

inline constexpr PinRow rtcRows[] = {
    {"RTCSRCCLK"_l1, Input},
};

inline constexpr PinRow i2cInoutRows[] = {
    {"SCL"_l1, Bidirectional},
    {"SDA"_l1, Bidirectional},
};

inline constexpr PinRow i2cSplitRows[] = {
    {"SCLIN"_l1, Input}, {"SCLOUT"_l1, Output}, {"SCLOUTEN"_l1, Output},
    {"SDAIN"_l1, Input}, {"SDAOUT"_l1, Output}, {"SDAOUTEN"_l1, Output},
};

inline constexpr PinRow spiRows[] = {
    {"MOSI"_l1, Output},
    {"MISO"_l1, Input},
    {"SCLK"_l1, Output},
    {"NSS"_l1, Output},
};

inline constexpr PinRow sdCardRows[] = {
    {"SD_CLK"_l1, Output},    {"SD_SPICLK"_l1, Input},    {"SD_CS"_l1, Output},
    {"SD_DATAIN"_l1, Input},  {"SD_DATAOUT"_l1, Output},  {"SD_CARD_INIT"_l1, Output},
    {"SD_CHECKIN"_l1, Input}, {"SD_CHECKOUT"_l1, Output},
};

// The ready input is spelled as it is on purpose.
inline constexpr PinRow apbPortRows[] = {
    {"PADDR[31:0]"_l1, Output, true},
    {"PENABLE"_l1, Output},
    {"PWRITE"_l1, Output},
    {"PSTRB[3:0]"_l1, Output, true},
    {"PPROT[2:0]"_l1, Output, true},
    {"PWDATA[31:0]"_l1, Output, true},
    {"PSEL"_l1, Output},
    {"PRDATA[31:0]"_l1, Input, true},
    {"PREDADY"_l1, Input},
    {"PSLVERR"_l1, Input},
    {"PCLK"_l1, Output},
    {"PRESET"_l1, Output},
};

// One group of the same rows for each of the block's switches, which are numbered from `first`.
template <int count>
constexpr std::array<PinGroup, count> numbered(QLatin1String prefix, int first, Rows<PinRow> rows)
{
    std::array<PinGroup, count> groups = {};
    for (int i = 0; i < count; ++i) {
        groups[i].rows = rows;
        groups[i].on = switchBit(i);
        groups[i].prefix = prefix;
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
    {ddr3StopRows, enabled, 0, anyChoice, PinDevices::WithDdr3Stop},
    {ddr3Rows, enabled},
};
inline constexpr PinGroup psram[] = {{psramRows, enabled}};
inline constexpr PinGroup spiFlash[] = {{spiFlashRows, enabled}};
inline constexpr auto ahbMasters = numbered<Key::ahbMasterCount>("AHB"_l1, 1, ahbPortRows);
inline constexpr auto uart = numbered<2>("UART"_l1, 0, uartRows);
inline constexpr auto timer = numbered<2>("TIMER"_l1, 0, timerRows);
inline constexpr PinGroup rtc[] = {{rtcRows, enabled}};
inline constexpr PinGroup i2c[] = {
    {i2cInoutRows, enabled | bidirectionalPorts},
    {i2cSplitRows, enabled, bidirectionalPorts},
};
inline constexpr PinGroup spi[] = {{spiRows, enabled}};
inline constexpr PinGroup sdCard[] = {{sdCardRows, enabled}};
inline constexpr auto apbMasters = numbered<Key::apbMasterCount>("APB"_l1, 1, apbPortRows);

} // namespace PinTables

} // namespace TARVOORIXM1
