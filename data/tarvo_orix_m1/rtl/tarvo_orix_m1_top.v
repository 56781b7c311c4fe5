// Top of the Tarvo_ORIX_M1 microcontroller subsystem: the processor core with its tightly coupled memories, the AHB-Lite
// interconnect, the two APB buses and the configured peripherals.
//
// The configuration comes from the generated files cm1_option_defs.v, ahb_option_defs.v and DDR3_define.v; every block
// and its pins exist exactly when its macro is defined.  Macros that other generated files may have left behind (an
// Ethernet interface, for one) count only together with the macro of their block.
//
// HCLK clocks everything; hwRstn is the asynchronous reset, active low.  The HCLK, PCLK and reset outputs of the
// extension ports are the clock and the system reset of the buses; as everywhere on these buses, the reset is active
// low.  The memory map and the interrupt numbers stand in define.vh.
//
// Debug connector, 20 pins, by pin number: 3 nTRST, 5 TDI, 7 TMS / SWDIO, 9 TCK / SWCLK, 13 TDO, 15 nSRST; 4, 6, 8, 10,
// 12, 14, 16 and 18 are ground returns, driven low, as is the unused return clock 11; 17 is not connected.
//
// The attribute "note" of a port is what its user must know beside the name; it comes out in the instantiation template.
`include "cm1_option_defs.v"
`include "ahb_option_defs.v"
`include "DDR3_define.v"
`include "define.vh"
`include "static_macro_define.vh"

(* note = "Memories of the processor: ITCM at 0x00000000 (lower alias) and 0x10000000 (upper alias), where switched on;\nDTCM at 0x20000000. An address at which nothing stands gives an error response." *)
module Tarvo_ORIX_M1_Top (
    // processor
      input  wire         HCLK
    , (* note = "asynchronous reset, active low" *)
      input  wire         hwRstn
    , output wire         LOCKUP
`ifdef CM1_JTAG
    , output wire         HALTED
    , (* note = "TMS or SWDIO" *)
      inout  wire         JTAG_7
    , (* note = "TCK or SWCLK" *)
      inout  wire         JTAG_9
`ifdef DEBUG_PORT_JTAG
    , (* note = "nTRST, active low: pull it up" *)
      inout  wire         JTAG_3
    , (* note = "driven low" *)
      inout  wire         JTAG_4
    , (* note = "TDI" *)
      inout  wire         JTAG_5
    , (* note = "driven low" *)
      inout  wire         JTAG_6
    , (* note = "driven low" *)
      inout  wire         JTAG_8
    , (* note = "driven low" *)
      inout  wire         JTAG_10
    , (* note = "driven low" *)
      inout  wire         JTAG_11
    , (* note = "driven low" *)
      inout  wire         JTAG_12
    , (* note = "TDO" *)
      inout  wire         JTAG_13
    , (* note = "driven low" *)
      inout  wire         JTAG_14
    , (* note = "nSRST, active low: pull it up; left open, it can hold the subsystem in reset for ever" *)
      inout  wire         JTAG_15
    , (* note = "driven low" *)
      inout  wire         JTAG_16
    , (* note = "not connected" *)
      inout  wire         JTAG_17
    , (* note = "driven low" *)
      inout  wire         JTAG_18
`endif
`endif
`ifdef TARVO_EXTINT_SUPPORT
    , (* note = "interrupts 12 (bit 0) to 15 (bit 3), requested while high, synchronised to HCLK" *)
      input  wire [3:0]   EXTINT
`endif
`ifdef CM1_EXTERNAL_FLASH_EN
    , (* note = "AHB-Lite port at 0x00000000 to 0x1FFFFFFF, behind the ITCM" *)
      input  wire [31:0]  EXTFLASH0HRDATA
    , input  wire         EXTFLASH0HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   EXTFLASH0HRESP
    , output wire [1:0]   EXTFLASH0HTRANS
    , output wire [2:0]   EXTFLASH0HBURST
    , output wire [3:0]   EXTFLASH0HPROT
    , output wire [2:0]   EXTFLASH0HSIZE
    , output wire         EXTFLASH0HWRITE
    , output wire         EXTFLASH0HREADYMUX
    , output wire [3:0]   EXTFLASH0HMASTER
    , output wire         EXTFLASH0HMASTLOCK
    , output wire [31:0]  EXTFLASH0HADDR
    , output wire [31:0]  EXTFLASH0HWDATA
    , output wire         EXTFLASH0HSEL
    , output wire         EXTFLASH0HCLK
    , (* note = "reset of the port, active low" *)
      output wire         EXTFLASH0HRESET
`endif
`ifdef CM1_EXTERNAL_SRAM_EN
    , (* note = "AHB-Lite port at 0x20000000 to 0x3FFFFFFF, behind the DTCM" *)
      input  wire [31:0]  EXTSRAM0HRDATA
    , input  wire         EXTSRAM0HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   EXTSRAM0HRESP
    , output wire [1:0]   EXTSRAM0HTRANS
    , output wire [2:0]   EXTSRAM0HBURST
    , output wire [3:0]   EXTSRAM0HPROT
    , output wire [2:0]   EXTSRAM0HSIZE
    , output wire         EXTSRAM0HWRITE
    , output wire         EXTSRAM0HREADYMUX
    , output wire [3:0]   EXTSRAM0HMASTER
    , output wire         EXTSRAM0HMASTLOCK
    , output wire [31:0]  EXTSRAM0HADDR
    , output wire [31:0]  EXTSRAM0HWDATA
    , output wire         EXTSRAM0HSEL
    , output wire         EXTSRAM0HCLK
    , (* note = "reset of the port, active low" *)
      output wire         EXTSRAM0HRESET
`endif
    // AHB peripherals
`ifdef TARVO_GPIO_SUPPORT
`ifdef GPIO_IOBUF_EN
    , inout  wire [15:0]  GPIO
`else
    , input  wire [15:0]  GPIOIN
    , output wire [15:0]  GPIOOUT
    , output wire [15:0]  GPIOOUTEN
`endif
`endif
`ifdef TARVO_CAN_SUPPORT
    , (* note = "controller at 0x41000000 to 0x41FFFFFF, interrupt 9" *)
      input  wire         CAN_RX
    , output wire         CAN_TX
`endif
`ifdef TARVO_INTERNET_SUPPORT
    , (* note = "MAC at 0x42000000 to 0x42FFFFFF, interrupt 10" *)
      output wire         MDC
    , (* note = "pull it up" *)
      inout  wire         MDIO
`ifdef RGMII_IF
    , output wire         RGMII_TXC
    , output wire         RGMII_TX_CTL
    , output wire [3:0]   RGMII_TXD
    , input  wire         RGMII_RXC
    , input  wire         RGMII_RX_CTL
    , input  wire [3:0]   RGMII_RXD
    , input  wire         GTX_CLK
`endif
`ifdef GMII_IF
    , input  wire         GMII_RX_CLK
    , input  wire         GMII_RX_DV
    , input  wire [7:0]   GMII_RXD
    , input  wire         GMII_RX_ER
    , input  wire         GTX_CLK
    , output wire         GMII_GTX_CLK
    , output wire [7:0]   GMII_TXD
    , output wire         GMII_TX_EN
    , output wire         GMII_TX_ER
`endif
`ifdef MII_IF
    , input  wire         MII_RX_CLK
    , input  wire [3:0]   MII_RXD
    , input  wire         MII_RX_DV
    , input  wire         MII_RX_ER
    , input  wire         MII_TX_CLK
    , output wire [3:0]   MII_TXD
    , output wire         MII_TX_EN
    , output wire         MII_TX_ER
    , input  wire         MII_COL
    , input  wire         MII_CRS
`endif
`endif
`ifdef TARVO_SPI_FLASH_SUPPORT
    , (* note = "read window at 0x68000000 to 0x68FFFFFF, registers behind it" *)
      inout  wire         FLASH_SPI_HOLDN
    , inout  wire         FLASH_SPI_CSN
    , inout  wire         FLASH_SPI_MISO
    , inout  wire         FLASH_SPI_MOSI
    , inout  wire         FLASH_SPI_WPN
    , inout  wire         FLASH_SPI_CLK
`endif
`ifdef TARVO_PSRAM_SUPPORT
    , (* note = "memory at 0x70000000 to 0x7FFFFFFF" *)
      output wire [1:0]   O_psram_ck
    , output wire [1:0]   O_psram_ck_n
    , inout  wire [1:0]   IO_psram_rwds
    , inout  wire [15:0]  IO_psram_dq
    , output wire [1:0]   O_psram_reset_n
    , output wire [1:0]   O_psram_cs_n
    , output wire         init_calib
    , input  wire         psram_ref_clk
    , input  wire         psram_memory_clk
`endif
`ifdef TARVO_DDR3_SUPPORT
`ifdef DDR3_PHY_MC
`ifndef VIRLA_TV2K
    , output wire         DDR_STOP_O
`endif
`endif
    , (* note = "memory at 0xA0000000 to 0xBFFFFFFF" *)
      input  wire         DDR_CLK_I
    , input  wire         DDR_MEM_CLK_I
    , input  wire         DDR_LOCK_I
    , input  wire         DDR_RSTN_I
    , output wire         DDR_INIT_COMPLETE_O
    , output wire [15:0]  DDR_ADDR_O
    , output wire [2:0]   DDR_BA_O
    , output wire         DDR_CS_N_O
    , output wire         DDR_RAS_N_O
    , output wire         DDR_CAS_N_O
    , output wire         DDR_WE_N_O
    , output wire         DDR_CLK_O
    , output wire         DDR_CLK_N_O
    , output wire         DDR_CKE_O
    , output wire         DDR_ODT_O
    , output wire         DDR_RESET_N_O
    , output wire [1:0]   DDR_DQM_O
    , inout  wire [15:0]  DDR_DQ_IO
    , inout  wire [1:0]   DDR_DQS_IO
    , inout  wire [1:0]   DDR_DQS_N_IO
`endif
    // AHB extension ports
`ifdef TARVO_AHB1_SUPPORT
    , (* note = "AHB-Lite port at 0x80000000 to 0x80FFFFFF" *)
      input  wire [31:0]  AHB1HRDATA
    , input  wire         AHB1HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   AHB1HRESP
    , output wire [1:0]   AHB1HTRANS
    , output wire [2:0]   AHB1HBURST
    , output wire [3:0]   AHB1HPROT
    , output wire [2:0]   AHB1HSIZE
    , output wire         AHB1HWRITE
    , output wire         AHB1HREADYMUX
    , output wire [3:0]   AHB1HMASTER
    , output wire         AHB1HMASTLOCK
    , output wire [31:0]  AHB1HADDR
    , output wire [31:0]  AHB1HWDATA
    , output wire         AHB1HSEL
    , output wire         AHB1HCLK
    , (* note = "reset of the port, active low" *)
      output wire         AHB1HRESET
`endif
`ifdef TARVO_AHB2_SUPPORT
    , (* note = "AHB-Lite port at 0x81000000 to 0x81FFFFFF" *)
      input  wire [31:0]  AHB2HRDATA
    , input  wire         AHB2HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   AHB2HRESP
    , output wire [1:0]   AHB2HTRANS
    , output wire [2:0]   AHB2HBURST
    , output wire [3:0]   AHB2HPROT
    , output wire [2:0]   AHB2HSIZE
    , output wire         AHB2HWRITE
    , output wire         AHB2HREADYMUX
    , output wire [3:0]   AHB2HMASTER
    , output wire         AHB2HMASTLOCK
    , output wire [31:0]  AHB2HADDR
    , output wire [31:0]  AHB2HWDATA
    , output wire         AHB2HSEL
    , output wire         AHB2HCLK
    , (* note = "reset of the port, active low" *)
      output wire         AHB2HRESET
`endif
`ifdef TARVO_AHB3_SUPPORT
    , (* note = "AHB-Lite port at 0x86000000 to 0x86FFFFFF" *)
      input  wire [31:0]  AHB3HRDATA
    , input  wire         AHB3HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   AHB3HRESP
    , output wire [1:0]   AHB3HTRANS
    , output wire [2:0]   AHB3HBURST
    , output wire [3:0]   AHB3HPROT
    , output wire [2:0]   AHB3HSIZE
    , output wire         AHB3HWRITE
    , output wire         AHB3HREADYMUX
    , output wire [3:0]   AHB3HMASTER
    , output wire         AHB3HMASTLOCK
    , output wire [31:0]  AHB3HADDR
    , output wire [31:0]  AHB3HWDATA
    , output wire         AHB3HSEL
    , output wire         AHB3HCLK
    , (* note = "reset of the port, active low" *)
      output wire         AHB3HRESET
`endif
`ifdef TARVO_AHB4_SUPPORT
    , (* note = "AHB-Lite port at 0x89000000 to 0x89FFFFFF" *)
      input  wire [31:0]  AHB4HRDATA
    , input  wire         AHB4HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   AHB4HRESP
    , output wire [1:0]   AHB4HTRANS
    , output wire [2:0]   AHB4HBURST
    , output wire [3:0]   AHB4HPROT
    , output wire [2:0]   AHB4HSIZE
    , output wire         AHB4HWRITE
    , output wire         AHB4HREADYMUX
    , output wire [3:0]   AHB4HMASTER
    , output wire         AHB4HMASTLOCK
    , output wire [31:0]  AHB4HADDR
    , output wire [31:0]  AHB4HWDATA
    , output wire         AHB4HSEL
    , output wire         AHB4HCLK
    , (* note = "reset of the port, active low" *)
      output wire         AHB4HRESET
`endif
`ifdef TARVO_AHB5_SUPPORT
    , (* note = "AHB-Lite port at 0x8A000000 to 0x8AFFFFFF" *)
      input  wire [31:0]  AHB5HRDATA
    , input  wire         AHB5HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   AHB5HRESP
    , output wire [1:0]   AHB5HTRANS
    , output wire [2:0]   AHB5HBURST
    , output wire [3:0]   AHB5HPROT
    , output wire [2:0]   AHB5HSIZE
    , output wire         AHB5HWRITE
    , output wire         AHB5HREADYMUX
    , output wire [3:0]   AHB5HMASTER
    , output wire         AHB5HMASTLOCK
    , output wire [31:0]  AHB5HADDR
    , output wire [31:0]  AHB5HWDATA
    , output wire         AHB5HSEL
    , output wire         AHB5HCLK
    , (* note = "reset of the port, active low" *)
      output wire         AHB5HRESET
`endif
`ifdef TARVO_AHB6_SUPPORT
    , (* note = "AHB-Lite port at 0x8B000000 to 0x8BFFFFFF" *)
      input  wire [31:0]  AHB6HRDATA
    , input  wire         AHB6HREADYOUT
    , (* note = "any value but 0 is an error" *)
      input  wire [1:0]   AHB6HRESP
    , output wire [1:0]   AHB6HTRANS
    , output wire [2:0]   AHB6HBURST
    , output wire [3:0]   AHB6HPROT
    , output wire [2:0]   AHB6HSIZE
    , output wire         AHB6HWRITE
    , output wire         AHB6HREADYMUX
    , output wire [3:0]   AHB6HMASTER
    , output wire         AHB6HMASTLOCK
    , output wire [31:0]  AHB6HADDR
    , output wire [31:0]  AHB6HWDATA
    , output wire         AHB6HSEL
    , output wire         AHB6HCLK
    , (* note = "reset of the port, active low" *)
      output wire         AHB6HRESET
`endif
    // APB peripherals
`ifdef TARVO_UART0_SUPPORT
    , input  wire         UART0RXD
    , output wire         UART0TXD
`endif
`ifdef TARVO_UART1_SUPPORT
    , input  wire         UART1RXD
    , output wire         UART1TXD
`endif
`ifdef TARVO_TIMER0_SUPPORT
    , input  wire         TIMER0EXTIN
`endif
`ifdef TARVO_TIMER1_SUPPORT
    , input  wire         TIMER1EXTIN
`endif
`ifdef TARVO_RTC_SUPPORT
    , input  wire         RTCSRCCLK
`endif
`ifdef TARVO_I2C_SUPPORT
`ifdef I2C_IOBUF_EN
    , (* note = "open drain: pull it up" *)
      inout  wire         SCL
    , (* note = "open drain: pull it up" *)
      inout  wire         SDA
`else
    , input  wire         SCLIN
    , output wire         SCLOUT
    , output wire         SCLOUTEN
    , input  wire         SDAIN
    , output wire         SDAOUT
    , output wire         SDAOUTEN
`endif
`endif
`ifdef TARVO_SPI_SUPPORT
    , output wire         MOSI
    , input  wire         MISO
    , output wire         SCLK
    , output wire         NSS
`endif
`ifdef TARVO_SD_SUPPORT
    , output wire         SD_CLK
    , input  wire         SD_SPICLK
    , output wire         SD_CS
    , input  wire         SD_DATAIN
    , output wire         SD_DATAOUT
    , output wire         SD_CARD_INIT
    , input  wire         SD_CHECKIN
    , output wire         SD_CHECKOUT
`endif
    // APB extension ports
`ifdef TARVO_APB1_SUPPORT
    , (* note = "APB port at 0x60000000 to 0x600FFFFF" *)
      output wire [31:0]  APB1PADDR
    , output wire         APB1PENABLE
    , output wire         APB1PWRITE
    , output wire [3:0]   APB1PSTRB
    , output wire [2:0]   APB1PPROT
    , output wire [31:0]  APB1PWDATA
    , output wire         APB1PSEL
    , input  wire [31:0]  APB1PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB1PREDADY
    , input  wire         APB1PSLVERR
    , output wire         APB1PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB1PRESET
`endif
`ifdef TARVO_APB2_SUPPORT
    , (* note = "APB port at 0x60100000 to 0x601FFFFF" *)
      output wire [31:0]  APB2PADDR
    , output wire         APB2PENABLE
    , output wire         APB2PWRITE
    , output wire [3:0]   APB2PSTRB
    , output wire [2:0]   APB2PPROT
    , output wire [31:0]  APB2PWDATA
    , output wire         APB2PSEL
    , input  wire [31:0]  APB2PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB2PREDADY
    , input  wire         APB2PSLVERR
    , output wire         APB2PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB2PRESET
`endif
`ifdef TARVO_APB3_SUPPORT
    , (* note = "APB port at 0x60200000 to 0x602FFFFF" *)
      output wire [31:0]  APB3PADDR
    , output wire         APB3PENABLE
    , output wire         APB3PWRITE
    , output wire [3:0]   APB3PSTRB
    , output wire [2:0]   APB3PPROT
    , output wire [31:0]  APB3PWDATA
    , output wire         APB3PSEL
    , input  wire [31:0]  APB3PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB3PREDADY
    , input  wire         APB3PSLVERR
    , output wire         APB3PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB3PRESET
`endif
`ifdef TARVO_APB4_SUPPORT
    , (* note = "APB port at 0x60300000 to 0x603FFFFF" *)
      output wire [31:0]  APB4PADDR
    , output wire         APB4PENABLE
    , output wire         APB4PWRITE
    , output wire [3:0]   APB4PSTRB
    , output wire [2:0]   APB4PPROT
    , output wire [31:0]  APB4PWDATA
    , output wire         APB4PSEL
    , input  wire [31:0]  APB4PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB4PREDADY
    , input  wire         APB4PSLVERR
    , output wire         APB4PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB4PRESET
`endif
`ifdef TARVO_APB5_SUPPORT
    , (* note = "APB port at 0x60400000 to 0x604FFFFF" *)
      output wire [31:0]  APB5PADDR
    , output wire         APB5PENABLE
    , output wire         APB5PWRITE
    , output wire [3:0]   APB5PSTRB
    , output wire [2:0]   APB5PPROT
    , output wire [31:0]  APB5PWDATA
    , output wire         APB5PSEL
    , input  wire [31:0]  APB5PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB5PREDADY
    , input  wire         APB5PSLVERR
    , output wire         APB5PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB5PRESET
`endif
`ifdef TARVO_APB6_SUPPORT
    , (* note = "APB port at 0x60500000 to 0x605FFFFF" *)
      output wire [31:0]  APB6PADDR
    , output wire         APB6PENABLE
    , output wire         APB6PWRITE
    , output wire [3:0]   APB6PSTRB
    , output wire [2:0]   APB6PPROT
    , output wire [31:0]  APB6PWDATA
    , output wire         APB6PSEL
    , input  wire [31:0]  APB6PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB6PREDADY
    , input  wire         APB6PSLVERR
    , output wire         APB6PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB6PRESET
`endif
`ifdef TARVO_APB7_SUPPORT
    , (* note = "APB port at 0x60600000 to 0x606FFFFF" *)
      output wire [31:0]  APB7PADDR
    , output wire         APB7PENABLE
    , output wire         APB7PWRITE
    , output wire [3:0]   APB7PSTRB
    , output wire [2:0]   APB7PPROT
    , output wire [31:0]  APB7PWDATA
    , output wire         APB7PSEL
    , input  wire [31:0]  APB7PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB7PREDADY
    , input  wire         APB7PSLVERR
    , output wire         APB7PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB7PRESET
`endif
`ifdef TARVO_APB8_SUPPORT
    , (* note = "APB port at 0x60700000 to 0x607FFFFF" *)
      output wire [31:0]  APB8PADDR
    , output wire         APB8PENABLE
    , output wire         APB8PWRITE
    , output wire [3:0]   APB8PSTRB
    , output wire [2:0]   APB8PPROT
    , output wire [31:0]  APB8PWDATA
    , output wire         APB8PSEL
    , input  wire [31:0]  APB8PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB8PREDADY
    , input  wire         APB8PSLVERR
    , output wire         APB8PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB8PRESET
`endif
`ifdef TARVO_APB9_SUPPORT
    , (* note = "APB port at 0x60800000 to 0x608FFFFF" *)
      output wire [31:0]  APB9PADDR
    , output wire         APB9PENABLE
    , output wire         APB9PWRITE
    , output wire [3:0]   APB9PSTRB
    , output wire [2:0]   APB9PPROT
    , output wire [31:0]  APB9PWDATA
    , output wire         APB9PSEL
    , input  wire [31:0]  APB9PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB9PREDADY
    , input  wire         APB9PSLVERR
    , output wire         APB9PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB9PRESET
`endif
`ifdef TARVO_APB10_SUPPORT
    , (* note = "APB port at 0x60900000 to 0x609FFFFF" *)
      output wire [31:0]  APB10PADDR
    , output wire         APB10PENABLE
    , output wire         APB10PWRITE
    , output wire [3:0]   APB10PSTRB
    , output wire [2:0]   APB10PPROT
    , output wire [31:0]  APB10PWDATA
    , output wire         APB10PSEL
    , input  wire [31:0]  APB10PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB10PREDADY
    , input  wire         APB10PSLVERR
    , output wire         APB10PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB10PRESET
`endif
`ifdef TARVO_APB11_SUPPORT
    , (* note = "APB port at 0x60A00000 to 0x60AFFFFF" *)
      output wire [31:0]  APB11PADDR
    , output wire         APB11PENABLE
    , output wire         APB11PWRITE
    , output wire [3:0]   APB11PSTRB
    , output wire [2:0]   APB11PPROT
    , output wire [31:0]  APB11PWDATA
    , output wire         APB11PSEL
    , input  wire [31:0]  APB11PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB11PREDADY
    , input  wire         APB11PSLVERR
    , output wire         APB11PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB11PRESET
`endif
`ifdef TARVO_APB12_SUPPORT
    , (* note = "APB port at 0x60B00000 to 0x60BFFFFF" *)
      output wire [31:0]  APB12PADDR
    , output wire         APB12PENABLE
    , output wire         APB12PWRITE
    , output wire [3:0]   APB12PSTRB
    , output wire [2:0]   APB12PPROT
    , output wire [31:0]  APB12PWDATA
    , output wire         APB12PSEL
    , input  wire [31:0]  APB12PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB12PREDADY
    , input  wire         APB12PSLVERR
    , output wire         APB12PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB12PRESET
`endif
`ifdef TARVO_APB13_SUPPORT
    , (* note = "APB port at 0x60C00000 to 0x60CFFFFF" *)
      output wire [31:0]  APB13PADDR
    , output wire         APB13PENABLE
    , output wire         APB13PWRITE
    , output wire [3:0]   APB13PSTRB
    , output wire [2:0]   APB13PPROT
    , output wire [31:0]  APB13PWDATA
    , output wire         APB13PSEL
    , input  wire [31:0]  APB13PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB13PREDADY
    , input  wire         APB13PSLVERR
    , output wire         APB13PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB13PRESET
`endif
`ifdef TARVO_APB14_SUPPORT
    , (* note = "APB port at 0x60D00000 to 0x60DFFFFF" *)
      output wire [31:0]  APB14PADDR
    , output wire         APB14PENABLE
    , output wire         APB14PWRITE
    , output wire [3:0]   APB14PSTRB
    , output wire [2:0]   APB14PPROT
    , output wire [31:0]  APB14PWDATA
    , output wire         APB14PSEL
    , input  wire [31:0]  APB14PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB14PREDADY
    , input  wire         APB14PSLVERR
    , output wire         APB14PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB14PRESET
`endif
`ifdef TARVO_APB15_SUPPORT
    , (* note = "APB port at 0x60E00000 to 0x60EFFFFF" *)
      output wire [31:0]  APB15PADDR
    , output wire         APB15PENABLE
    , output wire         APB15PWRITE
    , output wire [3:0]   APB15PSTRB
    , output wire [2:0]   APB15PPROT
    , output wire [31:0]  APB15PWDATA
    , output wire         APB15PSEL
    , input  wire [31:0]  APB15PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB15PREDADY
    , input  wire         APB15PSLVERR
    , output wire         APB15PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB15PRESET
`endif
`ifdef TARVO_APB16_SUPPORT
    , (* note = "APB port at 0x60F00000 to 0x60FFFFFF" *)
      output wire [31:0]  APB16PADDR
    , output wire         APB16PENABLE
    , output wire         APB16PWRITE
    , output wire [3:0]   APB16PSTRB
    , output wire [2:0]   APB16PPROT
    , output wire [31:0]  APB16PWDATA
    , output wire         APB16PSEL
    , input  wire [31:0]  APB16PRDATA
    , (* note = "PREADY of the port" *)
      input  wire         APB16PREDADY
    , input  wire         APB16PSLVERR
    , output wire         APB16PCLK
    , (* note = "reset of the port, active low" *)
      output wire         APB16PRESET
`endif
);

    // ----------------------------------------------------------------------------------------------- configuration

    // Without a memory macro there is neither an internal nor an external memory of that kind.
`ifdef CM1_ITCMSIZE
    localparam [3:0] ITCM_SIZE  = `CM1_ITCMSIZE;
    localparam       ITCM_LOWER = `CM1_ITCM_LA_EN;
    localparam       ITCM_UPPER = `CM1_ITCM_UA_EN;
`else
    localparam [3:0] ITCM_SIZE  = 4'b0000;
    localparam       ITCM_LOWER = 0;
    localparam       ITCM_UPPER = 0;
`endif
`ifdef CM1_DTCMSIZE
    localparam [3:0] DTCM_SIZE  = `CM1_DTCMSIZE;
`else
    localparam [3:0] DTCM_SIZE  = 4'b0000;
`endif

    // Inputs of the processor from number NUM_IRQ upwards are held at 0.
`ifdef CM1_NUM_IRQ
    localparam NUM_IRQ = `CM1_NUM_IRQ;
`else
    localparam NUM_IRQ = 32;
`endif
    localparam [32:0] IRQ_ONE  = 33'd1;
    localparam [32:0] IRQ_MASK = (IRQ_ONE << NUM_IRQ) - IRQ_ONE;

    // Blocks that answer on the AHB and on the two APB buses.
    localparam [15:0] AHB_ENABLE = 16'd0
`ifdef TARVO_GPIO_SUPPORT
        | (16'd1 << `ORIX_S_GPIO)
`endif
`ifdef TARVO_CAN_SUPPORT
        | (16'd1 << `ORIX_S_CAN)
`endif
`ifdef TARVO_INTERNET_SUPPORT
        | (16'd1 << `ORIX_S_ETH)
`endif
`ifdef TARVO_SPI_FLASH_SUPPORT
        | (16'd1 << `ORIX_S_SPIFLASH)
`endif
`ifdef TARVO_PSRAM_SUPPORT
        | (16'd1 << `ORIX_S_PSRAM)
`endif
`ifdef TARVO_DDR3_SUPPORT
        | (16'd1 << `ORIX_S_DDR3)
`endif
`ifdef TARVO_APBINT_SUPPORT
        | (16'd1 << `ORIX_S_APBINT)
`endif
`ifdef TARVO_APBEXT_SUPPORT
        | (16'd1 << `ORIX_S_APBEXT)
`endif
`ifdef TARVO_AHB1_SUPPORT
        | (16'd1 << `ORIX_S_AHB1)
`endif
`ifdef TARVO_AHB2_SUPPORT
        | (16'd1 << `ORIX_S_AHB2)
`endif
`ifdef TARVO_AHB3_SUPPORT
        | (16'd1 << `ORIX_S_AHB3)
`endif
`ifdef TARVO_AHB4_SUPPORT
        | (16'd1 << `ORIX_S_AHB4)
`endif
`ifdef TARVO_AHB5_SUPPORT
        | (16'd1 << `ORIX_S_AHB5)
`endif
`ifdef TARVO_AHB6_SUPPORT
        | (16'd1 << `ORIX_S_AHB6)
`endif
`ifdef CM1_EXTERNAL_FLASH_EN
        | (16'd1 << `ORIX_S_EXTFLASH)
`endif
`ifdef CM1_EXTERNAL_SRAM_EN
        | (16'd1 << `ORIX_S_EXTSRAM)
`endif
        ;
`ifdef TARVO_APBINT_SUPPORT
    localparam [15:0] APBINT_ENABLE = 16'd0
`ifdef TARVO_TIMER0_SUPPORT
        | (16'd1 << `ORIX_P_TIMER0)
`endif
`ifdef TARVO_TIMER1_SUPPORT
        | (16'd1 << `ORIX_P_TIMER1)
`endif
`ifdef TARVO_DTIMER_SUPPORT
        | (16'd1 << `ORIX_P_DTIMER)
`endif
`ifdef TARVO_UART0_SUPPORT
        | (16'd1 << `ORIX_P_UART0)
`endif
`ifdef TARVO_UART1_SUPPORT
        | (16'd1 << `ORIX_P_UART1)
`endif
`ifdef TARVO_RTC_SUPPORT
        | (16'd1 << `ORIX_P_RTC)
`endif
`ifdef TARVO_WDOG_SUPPORT
        | (16'd1 << `ORIX_P_WDOG)
`endif
`ifdef TARVO_TRNG_SUPPORT
        | (16'd1 << `ORIX_P_TRNG)
`endif
`ifdef TARVO_I2C_SUPPORT
        | (16'd1 << `ORIX_P_I2C)
`endif
`ifdef TARVO_SPI_SUPPORT
        | (16'd1 << `ORIX_P_SPI)
`endif
`ifdef TARVO_SD_SUPPORT
        | (16'd1 << `ORIX_P_SD)
`endif
        ;
`endif
`ifdef TARVO_APBEXT_SUPPORT
    localparam [15:0] APBEXT_ENABLE = 16'd0
`ifdef TARVO_APB1_SUPPORT
        | (16'd1 << 0)
`endif
`ifdef TARVO_APB2_SUPPORT
        | (16'd1 << 1)
`endif
`ifdef TARVO_APB3_SUPPORT
        | (16'd1 << 2)
`endif
`ifdef TARVO_APB4_SUPPORT
        | (16'd1 << 3)
`endif
`ifdef TARVO_APB5_SUPPORT
        | (16'd1 << 4)
`endif
`ifdef TARVO_APB6_SUPPORT
        | (16'd1 << 5)
`endif
`ifdef TARVO_APB7_SUPPORT
        | (16'd1 << 6)
`endif
`ifdef TARVO_APB8_SUPPORT
        | (16'd1 << 7)
`endif
`ifdef TARVO_APB9_SUPPORT
        | (16'd1 << 8)
`endif
`ifdef TARVO_APB10_SUPPORT
        | (16'd1 << 9)
`endif
`ifdef TARVO_APB11_SUPPORT
        | (16'd1 << 10)
`endif
`ifdef TARVO_APB12_SUPPORT
        | (16'd1 << 11)
`endif
`ifdef TARVO_APB13_SUPPORT
        | (16'd1 << 12)
`endif
`ifdef TARVO_APB14_SUPPORT
        | (16'd1 << 13)
`endif
`ifdef TARVO_APB15_SUPPORT
        | (16'd1 << 14)
`endif
`ifdef TARVO_APB16_SUPPORT
        | (16'd1 << 15)
`endif
        ;
`endif

    // ------------------------------------------------------------------------------------------------------- resets

    wire por_n;
    wire sys_n;
    wire srst_n;
    wire sysreset_req;
    wire wdog_reset_req;
    wire wdog_nmi;

    reset_controller u_reset (
        .HCLK(HCLK),
        .hwRstn(hwRstn),
        .srst_n(srst_n),
        .sysreset_req(sysreset_req),
        .wdog_req(wdog_reset_req),
        .por_n(por_n),
        .sys_n(sys_n)
    );

    // ---------------------------------------------------------------------------------------------------- processor

    wire [31:0] haddr;
    wire [1:0]  htrans;
    wire [2:0]  hburst;
    wire [3:0]  hprot;
    wire [2:0]  hsize;
    wire        hwrite;
    wire        hmastlock;
    wire [31:0] hwdata;
    wire [31:0] hrdata;
    wire        hready;
    wire        hresp;

    wire        itcm_en;
    wire [3:0]  itcm_we;
    wire [17:0] itcm_addr;
    wire [31:0] itcm_wdata;
    wire [31:0] itcm_rdata;
    wire        dtcm_en;
    wire [3:0]  dtcm_we;
    wire [17:0] dtcm_addr;
    wire [31:0] dtcm_wdata;
    wire [31:0] dtcm_rdata;

    wire [31:0] irq;

`ifdef CM1_JTAG
    wire        dbg_itcm_en;
    wire [3:0]  dbg_itcm_we;
    wire [17:0] dbg_itcm_addr;
    wire [31:0] dbg_itcm_wdata;
    wire        dbg_itcm_ready;
    wire        dbg_dtcm_en;
    wire [3:0]  dbg_dtcm_we;
    wire [17:0] dbg_dtcm_addr;
    wire [31:0] dbg_dtcm_wdata;
    wire        dbg_dtcm_ready;
    wire        ntrst;
    wire        tdi;
    wire        tdo;
    wire        tdo_en;
    wire        swdo;
    wire        swdo_en;
`endif

    CortexM1Core #(
`ifdef CM1_OS
        .OS(`CM1_OS),
`endif
`ifdef CM1_SMALL_MUL
        .SMALL_MUL(`CM1_SMALL_MUL),
`endif
`ifdef CM1_BE8
        .BE8(`CM1_BE8),
`endif
`ifdef CM1_JTAG
        .DEBUG(1),
        .JTAG(`CM1_JTAG),
        .SW(`CM1_SW),
        .SMALL_DEBUG(`CM1_SMALL_DEBUG),
`else
        .DEBUG(0),
        .JTAG(0),
        .SW(0),
        .SMALL_DEBUG(0),
`endif
        .NUM_IRQ(NUM_IRQ),
        .ITCM_LA_EN(ITCM_LOWER),
        .ITCM_UA_EN(ITCM_UPPER),
        .ITCMSIZE(ITCM_SIZE),
        .DTCMSIZE(DTCM_SIZE)
    ) u_core (
        .HCLK(HCLK),
        .PORRESETn(por_n),
        .SYSRESETn(sys_n),
        .SYSRESETREQ(sysreset_req),
        .LOCKUP(LOCKUP),
        .NMI(wdog_nmi),
        .IRQ(irq),
        .HADDR(haddr),
        .HTRANS(htrans),
        .HBURST(hburst),
        .HPROT(hprot),
        .HSIZE(hsize),
        .HWRITE(hwrite),
        .HMASTLOCK(hmastlock),
        .HWDATA(hwdata),
        .HRDATA(hrdata),
        .HREADY(hready),
        .HRESP(hresp),
        .ITCMEN(itcm_en),
        .ITCMWE(itcm_we),
        .ITCMADDR(itcm_addr),
        .ITCMWDATA(itcm_wdata),
        .ITCMRDATA(itcm_rdata),
        .DTCMEN(dtcm_en),
        .DTCMWE(dtcm_we),
        .DTCMADDR(dtcm_addr),
        .DTCMWDATA(dtcm_wdata),
        .DTCMRDATA(dtcm_rdata),
`ifdef CM1_JTAG
        .HALTED(HALTED),
        .DBGITCMEN(dbg_itcm_en),
        .DBGITCMWE(dbg_itcm_we),
        .DBGITCMADDR(dbg_itcm_addr),
        .DBGITCMWDATA(dbg_itcm_wdata),
        .DBGITCMREADY(dbg_itcm_ready),
        .DBGDTCMEN(dbg_dtcm_en),
        .DBGDTCMWE(dbg_dtcm_we),
        .DBGDTCMADDR(dbg_dtcm_addr),
        .DBGDTCMWDATA(dbg_dtcm_wdata),
        .DBGDTCMREADY(dbg_dtcm_ready),
        .nTRST(ntrst),
        .SWCLKTCK(JTAG_9),
        .SWDITMS(JTAG_7),
        .SWDO(swdo),
        .SWDOEN(swdo_en),
        .TDI(tdi),
        .TDO(tdo),
        .TDOEN(tdo_en)
`else
        .HALTED(),
        .DBGITCMEN(),
        .DBGITCMWE(),
        .DBGITCMADDR(),
        .DBGITCMWDATA(),
        .DBGITCMREADY(1'b0),
        .DBGDTCMEN(),
        .DBGDTCMWE(),
        .DBGDTCMADDR(),
        .DBGDTCMWDATA(),
        .DBGDTCMREADY(1'b0),
        .nTRST(1'b0),
        .SWCLKTCK(1'b0),
        .SWDITMS(1'b0),
        .SWDO(),
        .SWDOEN(),
        .TDI(1'b0),
        .TDO(),
        .TDOEN()
`endif
    );

    // -------------------------------------------------------------------------------------- tightly coupled memories

`ifdef CM1_JTAG
    itcmdbg #(
        .SIZE(ITCM_SIZE)
`ifdef CM1_ITCM_INIT_EN
        , .INIT_EN(1), .INIT_PATH(`CM1_ITCM_INIT_PATH)
`endif
    ) u_itcm (
        .HCLK(HCLK),
        .core_en(itcm_en),
        .core_we(itcm_we),
        .core_addr(itcm_addr),
        .core_wdata(itcm_wdata),
        .dbg_en(dbg_itcm_en),
        .dbg_we(dbg_itcm_we),
        .dbg_addr(dbg_itcm_addr),
        .dbg_wdata(dbg_itcm_wdata),
        .dbg_ready(dbg_itcm_ready),
        .rdata(itcm_rdata)
    );

    dtcmdbg #(
        .SIZE(DTCM_SIZE)
    ) u_dtcm (
        .HCLK(HCLK),
        .core_en(dtcm_en),
        .core_we(dtcm_we),
        .core_addr(dtcm_addr),
        .core_wdata(dtcm_wdata),
        .dbg_en(dbg_dtcm_en),
        .dbg_we(dbg_dtcm_we),
        .dbg_addr(dbg_dtcm_addr),
        .dbg_wdata(dbg_dtcm_wdata),
        .dbg_ready(dbg_dtcm_ready),
        .rdata(dtcm_rdata)
    );
`else
    itcm #(
        .SIZE(ITCM_SIZE)
`ifdef CM1_ITCM_INIT_EN
        , .INIT_EN(1), .INIT_PATH(`CM1_ITCM_INIT_PATH)
`endif
    ) u_itcm (
        .HCLK(HCLK),
        .en(itcm_en),
        .we(itcm_we),
        .addr(itcm_addr),
        .wdata(itcm_wdata),
        .rdata(itcm_rdata)
    );

    dtcm #(
        .SIZE(DTCM_SIZE)
    ) u_dtcm (
        .HCLK(HCLK),
        .en(dtcm_en),
        .we(dtcm_we),
        .addr(dtcm_addr),
        .wdata(dtcm_wdata),
        .rdata(dtcm_rdata)
    );
`endif

    // ---------------------------------------------------------------------------------------------- debug connector

`ifdef CM1_JTAG
    assign JTAG_7 = swdo_en ? swdo : 1'bz;
`ifdef DEBUG_PORT_JTAG
    assign ntrst   = JTAG_3;
    assign tdi     = JTAG_5;
    assign srst_n  = JTAG_15;
    assign JTAG_13 = tdo_en ? tdo : 1'bz;
    assign JTAG_4  = 1'b0;
    assign JTAG_6  = 1'b0;
    assign JTAG_8  = 1'b0;
    assign JTAG_10 = 1'b0;
    assign JTAG_11 = 1'b0;
    assign JTAG_12 = 1'b0;
    assign JTAG_14 = 1'b0;
    assign JTAG_16 = 1'b0;
    assign JTAG_18 = 1'b0;
    assign JTAG_17 = 1'bz;
`else
    assign ntrst   = 1'b1;
    assign tdi     = 1'b0;
    assign srst_n  = 1'b1;
`endif
`else
    assign srst_n  = 1'b1;
`endif

    // --------------------------------------------------------------------------------------------------- interrupts

    wire [31:0] irq_all;
    assign irq = irq_all & IRQ_MASK[31:0];

`ifdef TARVO_EXTINT_SUPPORT
    reg [3:0] extint_meta;
    reg [3:0] extint;
    always @(posedge HCLK or negedge sys_n)
        if (!sys_n) begin
            extint_meta <= 4'd0;
            extint      <= 4'd0;
        end else begin
            extint_meta <= EXTINT;
            extint      <= extint_meta;
        end
`else
    wire [3:0] extint = 4'd0;
`endif
    assign irq_all[`ORIX_IRQ_EXTINT +: 4] = extint;
    assign irq_all[31:17] = 15'd0;

    // -------------------------------------------------------------------------------------------------- AHB and APB

    wire [15:0]  hsel_s;
    wire [511:0] hrdata_s;
    wire [15:0]  hreadyout_s;
    wire [15:0]  hresp_s;

    ahb_interconnect #(
        .ENABLE(AHB_ENABLE)
    ) u_interconnect (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HADDR_REGION(haddr[31:24]),
        .HTRANS(htrans),
        .HRDATA(hrdata),
        .HREADY(hready),
        .HRESP(hresp),
        .hsel_s(hsel_s),
        .hrdata_s(hrdata_s),
        .hreadyout_s(hreadyout_s),
        .hresp_s(hresp_s)
    );

    // GPIO
`ifdef TARVO_GPIO_SUPPORT
    wire [15:0] gpio_in;
    wire [15:0] gpio_out;
    wire [15:0] gpio_outen;
    ahb_gpio u_gpio (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_GPIO]),
        .HADDR(haddr[23:0]),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_GPIO +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_GPIO]),
        .HRESP(hresp_s[`ORIX_S_GPIO]),
        .gpio_in(gpio_in),
        .gpio_out(gpio_out),
        .gpio_outen(gpio_outen),
        .irq(irq_all[`ORIX_IRQ_GPIO])
    );
`ifdef GPIO_IOBUF_EN
    genvar pin;
    generate
        for (pin = 0; pin < 16; pin = pin + 1) begin : g_gpio
            assign GPIO[pin] = gpio_outen[pin] ? gpio_out[pin] : 1'bz;
        end
    endgenerate
    assign gpio_in = GPIO;
`else
    assign gpio_in   = GPIOIN;
    assign GPIOOUT   = gpio_out;
    assign GPIOOUTEN = gpio_outen;
`endif
`else
    assign hrdata_s[32*`ORIX_S_GPIO +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_GPIO] = 1'b1;
    assign hresp_s[`ORIX_S_GPIO] = 1'b0;
    assign irq_all[`ORIX_IRQ_GPIO] = 1'b0;
`endif

    // CAN
`ifdef TARVO_CAN_SUPPORT
    ahb_can u_can (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_CAN]),
        .HADDR(haddr),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HBURST(hburst),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_CAN +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_CAN]),
        .HRESP(hresp_s[`ORIX_S_CAN]),
        .irq(irq_all[`ORIX_IRQ_CAN]),
        .can_rx(CAN_RX),
        .can_tx(CAN_TX)
    );
`else
    assign hrdata_s[32*`ORIX_S_CAN +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_CAN] = 1'b1;
    assign hresp_s[`ORIX_S_CAN] = 1'b0;
    assign irq_all[`ORIX_IRQ_CAN] = 1'b0;
`endif

    // Ethernet
`ifdef TARVO_INTERNET_SUPPORT
    wire mdio_out;
    wire mdio_outen;
    assign MDIO = mdio_outen ? mdio_out : 1'bz;
`ifdef RGMII_IF
    wire gtx_clk = GTX_CLK;
`else
`ifdef GMII_IF
    wire gtx_clk = GTX_CLK;
`else
    wire gtx_clk = 1'b0;
`endif
`endif
    ahb_ethernet u_ethernet (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_ETH]),
        .HADDR(haddr),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HBURST(hburst),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_ETH +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_ETH]),
        .HRESP(hresp_s[`ORIX_S_ETH]),
`ifdef RGMII_IF
        .rgmii_rxc(RGMII_RXC),
        .rgmii_rx_ctl(RGMII_RX_CTL),
        .rgmii_rxd(RGMII_RXD),
        .rgmii_txc(RGMII_TXC),
        .rgmii_tx_ctl(RGMII_TX_CTL),
        .rgmii_txd(RGMII_TXD),
`else
        .rgmii_rxc(1'd0),
        .rgmii_rx_ctl(1'd0),
        .rgmii_rxd(4'd0),
        .rgmii_txc(),
        .rgmii_tx_ctl(),
        .rgmii_txd(),
`endif
`ifdef GMII_IF
        .gmii_rx_clk(GMII_RX_CLK),
        .gmii_rx_dv(GMII_RX_DV),
        .gmii_rxd(GMII_RXD),
        .gmii_rx_er(GMII_RX_ER),
        .gmii_gtx_clk(GMII_GTX_CLK),
        .gmii_txd(GMII_TXD),
        .gmii_tx_en(GMII_TX_EN),
        .gmii_tx_er(GMII_TX_ER),
`else
        .gmii_rx_clk(1'd0),
        .gmii_rx_dv(1'd0),
        .gmii_rxd(8'd0),
        .gmii_rx_er(1'd0),
        .gmii_gtx_clk(),
        .gmii_txd(),
        .gmii_tx_en(),
        .gmii_tx_er(),
`endif
`ifdef MII_IF
        .mii_rx_clk(MII_RX_CLK),
        .mii_rxd(MII_RXD),
        .mii_rx_dv(MII_RX_DV),
        .mii_rx_er(MII_RX_ER),
        .mii_tx_clk(MII_TX_CLK),
        .mii_col(MII_COL),
        .mii_crs(MII_CRS),
        .mii_txd(MII_TXD),
        .mii_tx_en(MII_TX_EN),
        .mii_tx_er(MII_TX_ER),
`else
        .mii_rx_clk(1'd0),
        .mii_rxd(4'd0),
        .mii_rx_dv(1'd0),
        .mii_rx_er(1'd0),
        .mii_tx_clk(1'd0),
        .mii_col(1'd0),
        .mii_crs(1'd0),
        .mii_txd(),
        .mii_tx_en(),
        .mii_tx_er(),
`endif
        .irq(irq_all[`ORIX_IRQ_ETH]),
        .mdc(MDC),
        .mdio_in(MDIO),
        .mdio_out(mdio_out),
        .mdio_outen(mdio_outen),
        .gtx_clk(gtx_clk)
    );
`else
    assign hrdata_s[32*`ORIX_S_ETH +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_ETH] = 1'b1;
    assign hresp_s[`ORIX_S_ETH] = 1'b0;
    assign irq_all[`ORIX_IRQ_ETH] = 1'b0;
`endif

    // SPI-Flash.  The pins are released during a reset, so that the flash can be programmed in place.
`ifdef TARVO_SPI_FLASH_SUPPORT
    wire flash_clk;
    wire flash_csn;
    wire flash_mosi;
    wire flash_wpn;
    wire flash_holdn;
    assign FLASH_SPI_CLK   = sys_n ? flash_clk : 1'bz;
    assign FLASH_SPI_CSN   = sys_n ? flash_csn : 1'bz;
    assign FLASH_SPI_MOSI  = sys_n ? flash_mosi : 1'bz;
    assign FLASH_SPI_WPN   = sys_n ? flash_wpn : 1'bz;
    assign FLASH_SPI_HOLDN = sys_n ? flash_holdn : 1'bz;
    ahb_spi_flash u_spi_flash (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_SPIFLASH]),
        .HADDR(haddr[24:0]),
        .HTRANS(htrans),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_SPIFLASH +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_SPIFLASH]),
        .HRESP(hresp_s[`ORIX_S_SPIFLASH]),
        .flash_clk(flash_clk),
        .flash_csn(flash_csn),
        .flash_mosi(flash_mosi),
        .flash_miso(FLASH_SPI_MISO),
        .flash_wpn(flash_wpn),
        .flash_holdn(flash_holdn)
    );
`else
    assign hrdata_s[32*`ORIX_S_SPIFLASH +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_SPIFLASH] = 1'b1;
    assign hresp_s[`ORIX_S_SPIFLASH] = 1'b0;
`endif

    // PSRAM
`ifdef TARVO_PSRAM_SUPPORT
    ahb_psram u_psram (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_PSRAM]),
        .HADDR(haddr),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HBURST(hburst),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_PSRAM +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_PSRAM]),
        .HRESP(hresp_s[`ORIX_S_PSRAM]),
        .ref_clk(psram_ref_clk),
        .memory_clk(psram_memory_clk),
        .init_calib(init_calib),
        .psram_ck(O_psram_ck),
        .psram_ck_n(O_psram_ck_n),
        .psram_rwds(IO_psram_rwds),
        .psram_dq(IO_psram_dq),
        .psram_reset_n(O_psram_reset_n),
        .psram_cs_n(O_psram_cs_n)
    );
`else
    assign hrdata_s[32*`ORIX_S_PSRAM +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_PSRAM] = 1'b1;
    assign hresp_s[`ORIX_S_PSRAM] = 1'b0;
`endif

    // DDR3
`ifdef TARVO_DDR3_SUPPORT
    ahb_ddr3 u_ddr3 (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_DDR3]),
        .HADDR(haddr),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HBURST(hburst),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_DDR3 +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_DDR3]),
        .HRESP(hresp_s[`ORIX_S_DDR3]),
        .clk(DDR_CLK_I),
        .memory_clk(DDR_MEM_CLK_I),
        .pll_lock(DDR_LOCK_I),
        .rst_n(DDR_RSTN_I),
`ifdef DDR3_PHY_MC
`ifndef VIRLA_TV2K
        .pll_stop(DDR_STOP_O),
`else
        .pll_stop(),
`endif
`else
        .pll_stop(),
`endif
        .init_complete(DDR_INIT_COMPLETE_O),
        .ddr_addr(DDR_ADDR_O),
        .ddr_ba(DDR_BA_O),
        .ddr_cs_n(DDR_CS_N_O),
        .ddr_ras_n(DDR_RAS_N_O),
        .ddr_cas_n(DDR_CAS_N_O),
        .ddr_we_n(DDR_WE_N_O),
        .ddr_ck(DDR_CLK_O),
        .ddr_ck_n(DDR_CLK_N_O),
        .ddr_cke(DDR_CKE_O),
        .ddr_odt(DDR_ODT_O),
        .ddr_reset_n(DDR_RESET_N_O),
        .ddr_dqm(DDR_DQM_O),
        .ddr_dq(DDR_DQ_IO),
        .ddr_dqs(DDR_DQS_IO),
        .ddr_dqs_n(DDR_DQS_N_IO)
    );
`else
    assign hrdata_s[32*`ORIX_S_DDR3 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_DDR3] = 1'b1;
    assign hresp_s[`ORIX_S_DDR3] = 1'b0;
`endif

    // AHB extension ports and external memories.  Any response other than OKAY is an error for the processor.
`ifdef TARVO_AHB1_SUPPORT
    assign AHB1HTRANS = htrans;
    assign AHB1HBURST = hburst;
    assign AHB1HPROT = hprot;
    assign AHB1HSIZE = hsize;
    assign AHB1HWRITE = hwrite;
    assign AHB1HREADYMUX = hready;
    assign AHB1HMASTER = `ORIX_HMASTER_CORE;
    assign AHB1HMASTLOCK = hmastlock;
    assign AHB1HADDR = haddr;
    assign AHB1HWDATA = hwdata;
    assign AHB1HSEL = hsel_s[`ORIX_S_AHB1];
    assign AHB1HCLK = HCLK;
    assign AHB1HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_AHB1 +: 32] = AHB1HRDATA;
    assign hreadyout_s[`ORIX_S_AHB1] = AHB1HREADYOUT;
    assign hresp_s[`ORIX_S_AHB1] = |AHB1HRESP;
`else
    assign hrdata_s[32*`ORIX_S_AHB1 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_AHB1] = 1'b1;
    assign hresp_s[`ORIX_S_AHB1] = 1'b0;
`endif

`ifdef TARVO_AHB2_SUPPORT
    assign AHB2HTRANS = htrans;
    assign AHB2HBURST = hburst;
    assign AHB2HPROT = hprot;
    assign AHB2HSIZE = hsize;
    assign AHB2HWRITE = hwrite;
    assign AHB2HREADYMUX = hready;
    assign AHB2HMASTER = `ORIX_HMASTER_CORE;
    assign AHB2HMASTLOCK = hmastlock;
    assign AHB2HADDR = haddr;
    assign AHB2HWDATA = hwdata;
    assign AHB2HSEL = hsel_s[`ORIX_S_AHB2];
    assign AHB2HCLK = HCLK;
    assign AHB2HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_AHB2 +: 32] = AHB2HRDATA;
    assign hreadyout_s[`ORIX_S_AHB2] = AHB2HREADYOUT;
    assign hresp_s[`ORIX_S_AHB2] = |AHB2HRESP;
`else
    assign hrdata_s[32*`ORIX_S_AHB2 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_AHB2] = 1'b1;
    assign hresp_s[`ORIX_S_AHB2] = 1'b0;
`endif

`ifdef TARVO_AHB3_SUPPORT
    assign AHB3HTRANS = htrans;
    assign AHB3HBURST = hburst;
    assign AHB3HPROT = hprot;
    assign AHB3HSIZE = hsize;
    assign AHB3HWRITE = hwrite;
    assign AHB3HREADYMUX = hready;
    assign AHB3HMASTER = `ORIX_HMASTER_CORE;
    assign AHB3HMASTLOCK = hmastlock;
    assign AHB3HADDR = haddr;
    assign AHB3HWDATA = hwdata;
    assign AHB3HSEL = hsel_s[`ORIX_S_AHB3];
    assign AHB3HCLK = HCLK;
    assign AHB3HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_AHB3 +: 32] = AHB3HRDATA;
    assign hreadyout_s[`ORIX_S_AHB3] = AHB3HREADYOUT;
    assign hresp_s[`ORIX_S_AHB3] = |AHB3HRESP;
`else
    assign hrdata_s[32*`ORIX_S_AHB3 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_AHB3] = 1'b1;
    assign hresp_s[`ORIX_S_AHB3] = 1'b0;
`endif

`ifdef TARVO_AHB4_SUPPORT
    assign AHB4HTRANS = htrans;
    assign AHB4HBURST = hburst;
    assign AHB4HPROT = hprot;
    assign AHB4HSIZE = hsize;
    assign AHB4HWRITE = hwrite;
    assign AHB4HREADYMUX = hready;
    assign AHB4HMASTER = `ORIX_HMASTER_CORE;
    assign AHB4HMASTLOCK = hmastlock;
    assign AHB4HADDR = haddr;
    assign AHB4HWDATA = hwdata;
    assign AHB4HSEL = hsel_s[`ORIX_S_AHB4];
    assign AHB4HCLK = HCLK;
    assign AHB4HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_AHB4 +: 32] = AHB4HRDATA;
    assign hreadyout_s[`ORIX_S_AHB4] = AHB4HREADYOUT;
    assign hresp_s[`ORIX_S_AHB4] = |AHB4HRESP;
`else
    assign hrdata_s[32*`ORIX_S_AHB4 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_AHB4] = 1'b1;
    assign hresp_s[`ORIX_S_AHB4] = 1'b0;
`endif

`ifdef TARVO_AHB5_SUPPORT
    assign AHB5HTRANS = htrans;
    assign AHB5HBURST = hburst;
    assign AHB5HPROT = hprot;
    assign AHB5HSIZE = hsize;
    assign AHB5HWRITE = hwrite;
    assign AHB5HREADYMUX = hready;
    assign AHB5HMASTER = `ORIX_HMASTER_CORE;
    assign AHB5HMASTLOCK = hmastlock;
    assign AHB5HADDR = haddr;
    assign AHB5HWDATA = hwdata;
    assign AHB5HSEL = hsel_s[`ORIX_S_AHB5];
    assign AHB5HCLK = HCLK;
    assign AHB5HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_AHB5 +: 32] = AHB5HRDATA;
    assign hreadyout_s[`ORIX_S_AHB5] = AHB5HREADYOUT;
    assign hresp_s[`ORIX_S_AHB5] = |AHB5HRESP;
`else
    assign hrdata_s[32*`ORIX_S_AHB5 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_AHB5] = 1'b1;
    assign hresp_s[`ORIX_S_AHB5] = 1'b0;
`endif

`ifdef TARVO_AHB6_SUPPORT
    assign AHB6HTRANS = htrans;
    assign AHB6HBURST = hburst;
    assign AHB6HPROT = hprot;
    assign AHB6HSIZE = hsize;
    assign AHB6HWRITE = hwrite;
    assign AHB6HREADYMUX = hready;
    assign AHB6HMASTER = `ORIX_HMASTER_CORE;
    assign AHB6HMASTLOCK = hmastlock;
    assign AHB6HADDR = haddr;
    assign AHB6HWDATA = hwdata;
    assign AHB6HSEL = hsel_s[`ORIX_S_AHB6];
    assign AHB6HCLK = HCLK;
    assign AHB6HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_AHB6 +: 32] = AHB6HRDATA;
    assign hreadyout_s[`ORIX_S_AHB6] = AHB6HREADYOUT;
    assign hresp_s[`ORIX_S_AHB6] = |AHB6HRESP;
`else
    assign hrdata_s[32*`ORIX_S_AHB6 +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_AHB6] = 1'b1;
    assign hresp_s[`ORIX_S_AHB6] = 1'b0;
`endif

`ifdef CM1_EXTERNAL_FLASH_EN
    assign EXTFLASH0HTRANS = htrans;
    assign EXTFLASH0HBURST = hburst;
    assign EXTFLASH0HPROT = hprot;
    assign EXTFLASH0HSIZE = hsize;
    assign EXTFLASH0HWRITE = hwrite;
    assign EXTFLASH0HREADYMUX = hready;
    assign EXTFLASH0HMASTER = `ORIX_HMASTER_CORE;
    assign EXTFLASH0HMASTLOCK = hmastlock;
    assign EXTFLASH0HADDR = haddr;
    assign EXTFLASH0HWDATA = hwdata;
    assign EXTFLASH0HSEL = hsel_s[`ORIX_S_EXTFLASH];
    assign EXTFLASH0HCLK = HCLK;
    assign EXTFLASH0HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_EXTFLASH +: 32] = EXTFLASH0HRDATA;
    assign hreadyout_s[`ORIX_S_EXTFLASH] = EXTFLASH0HREADYOUT;
    assign hresp_s[`ORIX_S_EXTFLASH] = |EXTFLASH0HRESP;
`else
    assign hrdata_s[32*`ORIX_S_EXTFLASH +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_EXTFLASH] = 1'b1;
    assign hresp_s[`ORIX_S_EXTFLASH] = 1'b0;
`endif

`ifdef CM1_EXTERNAL_SRAM_EN
    assign EXTSRAM0HTRANS = htrans;
    assign EXTSRAM0HBURST = hburst;
    assign EXTSRAM0HPROT = hprot;
    assign EXTSRAM0HSIZE = hsize;
    assign EXTSRAM0HWRITE = hwrite;
    assign EXTSRAM0HREADYMUX = hready;
    assign EXTSRAM0HMASTER = `ORIX_HMASTER_CORE;
    assign EXTSRAM0HMASTLOCK = hmastlock;
    assign EXTSRAM0HADDR = haddr;
    assign EXTSRAM0HWDATA = hwdata;
    assign EXTSRAM0HSEL = hsel_s[`ORIX_S_EXTSRAM];
    assign EXTSRAM0HCLK = HCLK;
    assign EXTSRAM0HRESET = sys_n;
    assign hrdata_s[32*`ORIX_S_EXTSRAM +: 32] = EXTSRAM0HRDATA;
    assign hreadyout_s[`ORIX_S_EXTSRAM] = EXTSRAM0HREADYOUT;
    assign hresp_s[`ORIX_S_EXTSRAM] = |EXTSRAM0HRESP;
`else
    assign hrdata_s[32*`ORIX_S_EXTSRAM +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_EXTSRAM] = 1'b1;
    assign hresp_s[`ORIX_S_EXTSRAM] = 1'b0;
`endif

    // APB peripherals
`ifdef TARVO_APBINT_SUPPORT
    wire [23:0]  apbint_paddr;
    wire         apbint_psel;
    wire         apbint_penable;
    wire         apbint_pwrite;
    wire [3:0]   apbint_pstrb;
    wire [2:0]   apbint_pprot;
    wire [31:0]  apbint_pwdata;
    wire [31:0]  apbint_prdata;
    wire         apbint_pready;
    wire         apbint_pslverr;
    wire [15:0]  apbint_psel_s;
    wire [511:0] apbint_prdata_s;
    wire [15:0]  apbint_pready_s;
    wire [15:0]  apbint_pslverr_s;

    ahb_to_apb #(
        .ADDR_WIDTH(24)
    ) u_apbint_bridge (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_APBINT]),
        .HADDR(haddr[23:0]),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HPROT(hprot),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_APBINT +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_APBINT]),
        .HRESP(hresp_s[`ORIX_S_APBINT]),
        .PADDR(apbint_paddr),
        .PSEL(apbint_psel),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PSTRB(apbint_pstrb),
        .PPROT(apbint_pprot),
        .PWDATA(apbint_pwdata),
        .PRDATA(apbint_prdata),
        .PREADY(apbint_pready),
        .PSLVERR(apbint_pslverr)
    );

    apb_mux #(
        .ADDR_WIDTH(24),
        .SLOT_LSB(12),
        .ENABLE(APBINT_ENABLE)
    ) u_apbint_mux (
        .PADDR(apbint_paddr),
        .PSEL(apbint_psel),
        .PRDATA(apbint_prdata),
        .PREADY(apbint_pready),
        .PSLVERR(apbint_pslverr),
        .psel_s(apbint_psel_s),
        .prdata_s(apbint_prdata_s),
        .pready_s(apbint_pready_s),
        .pslverr_s(apbint_pslverr_s)
    );

`ifdef TARVO_TIMER0_SUPPORT
    apb_timer u_timer0 (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_TIMER0]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_TIMER0 +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_TIMER0]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_TIMER0]),
        .extin(TIMER0EXTIN),
        .irq(irq_all[`ORIX_IRQ_TIMER0])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_TIMER0 +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_TIMER0] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_TIMER0] = 1'b0;
    assign irq_all[`ORIX_IRQ_TIMER0] = 1'b0;
`endif

`ifdef TARVO_TIMER1_SUPPORT
    apb_timer u_timer1 (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_TIMER1]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_TIMER1 +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_TIMER1]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_TIMER1]),
        .extin(TIMER1EXTIN),
        .irq(irq_all[`ORIX_IRQ_TIMER1])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_TIMER1 +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_TIMER1] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_TIMER1] = 1'b0;
    assign irq_all[`ORIX_IRQ_TIMER1] = 1'b0;
`endif

`ifdef TARVO_DTIMER_SUPPORT
    apb_dual_timer u_dtimer (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_DTIMER]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_DTIMER +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_DTIMER]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_DTIMER]),
        .irq(irq_all[`ORIX_IRQ_DTIMER])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_DTIMER +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_DTIMER] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_DTIMER] = 1'b0;
    assign irq_all[`ORIX_IRQ_DTIMER] = 1'b0;
`endif

`ifdef TARVO_UART0_SUPPORT
    apb_uart u_uart0 (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_UART0]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_UART0 +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_UART0]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_UART0]),
        .rxd(UART0RXD),
        .txd(UART0TXD),
        .irq(irq_all[`ORIX_IRQ_UART0])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_UART0 +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_UART0] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_UART0] = 1'b0;
    assign irq_all[`ORIX_IRQ_UART0] = 1'b0;
`endif

`ifdef TARVO_UART1_SUPPORT
    apb_uart u_uart1 (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_UART1]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_UART1 +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_UART1]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_UART1]),
        .rxd(UART1RXD),
        .txd(UART1TXD),
        .irq(irq_all[`ORIX_IRQ_UART1])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_UART1 +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_UART1] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_UART1] = 1'b0;
    assign irq_all[`ORIX_IRQ_UART1] = 1'b0;
`endif

`ifdef TARVO_RTC_SUPPORT
    apb_rtc u_rtc (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_RTC]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_RTC +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_RTC]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_RTC]),
        .rtc_clk(RTCSRCCLK),
        .irq(irq_all[`ORIX_IRQ_RTC])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_RTC +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_RTC] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_RTC] = 1'b0;
    assign irq_all[`ORIX_IRQ_RTC] = 1'b0;
`endif

`ifdef TARVO_WDOG_SUPPORT
    apb_watchdog u_wdog (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_WDOG]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_WDOG +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_WDOG]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_WDOG]),
        .nmi(wdog_nmi),
        .reset_req(wdog_reset_req)
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_WDOG +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_WDOG] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_WDOG] = 1'b0;
    assign wdog_nmi = 1'b0;
    assign wdog_reset_req = 1'b0;
`endif

`ifdef TARVO_TRNG_SUPPORT
    trng_core u_trng (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_TRNG]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_TRNG +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_TRNG]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_TRNG]),
        .irq(irq_all[`ORIX_IRQ_TRNG])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_TRNG +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_TRNG] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_TRNG] = 1'b0;
    assign irq_all[`ORIX_IRQ_TRNG] = 1'b0;
`endif

`ifdef TARVO_I2C_SUPPORT
    wire scl_in;
    wire scl_out;
    wire scl_outen;
    wire sda_in;
    wire sda_out;
    wire sda_outen;
    apb_i2c u_i2c (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_I2C]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_I2C +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_I2C]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_I2C]),
        .scl_in(scl_in),
        .scl_out(scl_out),
        .scl_outen(scl_outen),
        .sda_in(sda_in),
        .sda_out(sda_out),
        .sda_outen(sda_outen),
        .irq(irq_all[`ORIX_IRQ_I2C])
    );
`ifdef I2C_IOBUF_EN
    assign SCL      = scl_outen ? scl_out : 1'bz;
    assign SDA      = sda_outen ? sda_out : 1'bz;
    assign scl_in   = SCL;
    assign sda_in   = SDA;
`else
    assign scl_in   = SCLIN;
    assign SCLOUT   = scl_out;
    assign SCLOUTEN = scl_outen;
    assign sda_in   = SDAIN;
    assign SDAOUT   = sda_out;
    assign SDAOUTEN = sda_outen;
`endif
`else
    assign apbint_prdata_s[32*`ORIX_P_I2C +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_I2C] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_I2C] = 1'b0;
    assign irq_all[`ORIX_IRQ_I2C] = 1'b0;
`endif

`ifdef TARVO_SPI_SUPPORT
    apb_spi u_spi (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_SPI]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_SPI +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_SPI]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_SPI]),
        .sclk(SCLK),
        .mosi(MOSI),
        .miso(MISO),
        .nss(NSS),
        .irq(irq_all[`ORIX_IRQ_SPI])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_SPI +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_SPI] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_SPI] = 1'b0;
    assign irq_all[`ORIX_IRQ_SPI] = 1'b0;
`endif

`ifdef TARVO_SD_SUPPORT
    apb_sdcard u_sd (
        .PCLK(HCLK),
        .PRESETn(sys_n),
        .PSEL(apbint_psel_s[`ORIX_P_SD]),
        .PENABLE(apbint_penable),
        .PWRITE(apbint_pwrite),
        .PADDR(apbint_paddr[11:0]),
        .PWDATA(apbint_pwdata),
        .PSTRB(apbint_pstrb),
        .PRDATA(apbint_prdata_s[32*`ORIX_P_SD +: 32]),
        .PREADY(apbint_pready_s[`ORIX_P_SD]),
        .PSLVERR(apbint_pslverr_s[`ORIX_P_SD]),
        .sd_spiclk(SD_SPICLK),
        .sd_clk(SD_CLK),
        .sd_cs(SD_CS),
        .sd_datain(SD_DATAIN),
        .sd_dataout(SD_DATAOUT),
        .sd_card_init(SD_CARD_INIT),
        .sd_checkin(SD_CHECKIN),
        .sd_checkout(SD_CHECKOUT),
        .irq(irq_all[`ORIX_IRQ_SD])
    );
`else
    assign apbint_prdata_s[32*`ORIX_P_SD +: 32] = 32'd0;
    assign apbint_pready_s[`ORIX_P_SD] = 1'b1;
    assign apbint_pslverr_s[`ORIX_P_SD] = 1'b0;
    assign irq_all[`ORIX_IRQ_SD] = 1'b0;
`endif

    // Free slots.
    assign apbint_prdata_s[32*3 +: 32] = 32'd0;
    assign apbint_pready_s[3] = 1'b1;
    assign apbint_pslverr_s[3] = 1'b0;
    assign apbint_prdata_s[32*7 +: 32] = 32'd0;
    assign apbint_pready_s[7] = 1'b1;
    assign apbint_pslverr_s[7] = 1'b0;
    assign apbint_prdata_s[32*9 +: 32] = 32'd0;
    assign apbint_pready_s[9] = 1'b1;
    assign apbint_pslverr_s[9] = 1'b0;
    assign apbint_prdata_s[32*11 +: 32] = 32'd0;
    assign apbint_pready_s[11] = 1'b1;
    assign apbint_pslverr_s[11] = 1'b0;
    assign apbint_prdata_s[32*15 +: 32] = 32'd0;
    assign apbint_pready_s[15] = 1'b1;
    assign apbint_pslverr_s[15] = 1'b0;
`else
    assign hrdata_s[32*`ORIX_S_APBINT +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_APBINT] = 1'b1;
    assign hresp_s[`ORIX_S_APBINT] = 1'b0;
    assign irq_all[`ORIX_IRQ_TIMER0] = 1'b0;
    assign irq_all[`ORIX_IRQ_TIMER1] = 1'b0;
    assign irq_all[`ORIX_IRQ_DTIMER] = 1'b0;
    assign irq_all[`ORIX_IRQ_UART0] = 1'b0;
    assign irq_all[`ORIX_IRQ_UART1] = 1'b0;
    assign irq_all[`ORIX_IRQ_RTC] = 1'b0;
    assign irq_all[`ORIX_IRQ_TRNG] = 1'b0;
    assign irq_all[`ORIX_IRQ_I2C] = 1'b0;
    assign irq_all[`ORIX_IRQ_SPI] = 1'b0;
    assign irq_all[`ORIX_IRQ_SD] = 1'b0;
    assign wdog_nmi = 1'b0;
    assign wdog_reset_req = 1'b0;
`endif

    // APB extension ports
`ifdef TARVO_APBEXT_SUPPORT
    wire [23:0]  apbext_paddr;
    wire         apbext_psel;
    wire         apbext_penable;
    wire         apbext_pwrite;
    wire [3:0]   apbext_pstrb;
    wire [2:0]   apbext_pprot;
    wire [31:0]  apbext_pwdata;
    wire [31:0]  apbext_prdata;
    wire         apbext_pready;
    wire         apbext_pslverr;
    wire [15:0]  apbext_psel_s;
    wire [511:0] apbext_prdata_s;
    wire [15:0]  apbext_pready_s;
    wire [15:0]  apbext_pslverr_s;

    ahb_to_apb #(
        .ADDR_WIDTH(24)
    ) u_apbext_bridge (
        .HCLK(HCLK),
        .HRESETn(sys_n),
        .HSEL(hsel_s[`ORIX_S_APBEXT]),
        .HADDR(haddr[23:0]),
        .HTRANS(htrans),
        .HSIZE(hsize),
        .HPROT(hprot),
        .HWRITE(hwrite),
        .HWDATA(hwdata),
        .HREADY(hready),
        .HRDATA(hrdata_s[32*`ORIX_S_APBEXT +: 32]),
        .HREADYOUT(hreadyout_s[`ORIX_S_APBEXT]),
        .HRESP(hresp_s[`ORIX_S_APBEXT]),
        .PADDR(apbext_paddr),
        .PSEL(apbext_psel),
        .PENABLE(apbext_penable),
        .PWRITE(apbext_pwrite),
        .PSTRB(apbext_pstrb),
        .PPROT(apbext_pprot),
        .PWDATA(apbext_pwdata),
        .PRDATA(apbext_prdata),
        .PREADY(apbext_pready),
        .PSLVERR(apbext_pslverr)
    );

    apb_mux #(
        .ADDR_WIDTH(24),
        .SLOT_LSB(20),
        .ENABLE(APBEXT_ENABLE)
    ) u_apbext_mux (
        .PADDR(apbext_paddr),
        .PSEL(apbext_psel),
        .PRDATA(apbext_prdata),
        .PREADY(apbext_pready),
        .PSLVERR(apbext_pslverr),
        .psel_s(apbext_psel_s),
        .prdata_s(apbext_prdata_s),
        .pready_s(apbext_pready_s),
        .pslverr_s(apbext_pslverr_s)
    );

`ifdef TARVO_APB1_SUPPORT
    assign APB1PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB1PENABLE = apbext_penable;
    assign APB1PWRITE = apbext_pwrite;
    assign APB1PSTRB = apbext_pstrb;
    assign APB1PPROT = apbext_pprot;
    assign APB1PWDATA = apbext_pwdata;
    assign APB1PSEL = apbext_psel_s[0];
    assign APB1PCLK = HCLK;
    assign APB1PRESET = sys_n;
    assign apbext_prdata_s[32*0 +: 32] = APB1PRDATA;
    assign apbext_pready_s[0] = APB1PREDADY;
    assign apbext_pslverr_s[0] = APB1PSLVERR;
`else
    assign apbext_prdata_s[32*0 +: 32] = 32'd0;
    assign apbext_pready_s[0] = 1'b1;
    assign apbext_pslverr_s[0] = 1'b0;
`endif

`ifdef TARVO_APB2_SUPPORT
    assign APB2PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB2PENABLE = apbext_penable;
    assign APB2PWRITE = apbext_pwrite;
    assign APB2PSTRB = apbext_pstrb;
    assign APB2PPROT = apbext_pprot;
    assign APB2PWDATA = apbext_pwdata;
    assign APB2PSEL = apbext_psel_s[1];
    assign APB2PCLK = HCLK;
    assign APB2PRESET = sys_n;
    assign apbext_prdata_s[32*1 +: 32] = APB2PRDATA;
    assign apbext_pready_s[1] = APB2PREDADY;
    assign apbext_pslverr_s[1] = APB2PSLVERR;
`else
    assign apbext_prdata_s[32*1 +: 32] = 32'd0;
    assign apbext_pready_s[1] = 1'b1;
    assign apbext_pslverr_s[1] = 1'b0;
`endif

`ifdef TARVO_APB3_SUPPORT
    assign APB3PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB3PENABLE = apbext_penable;
    assign APB3PWRITE = apbext_pwrite;
    assign APB3PSTRB = apbext_pstrb;
    assign APB3PPROT = apbext_pprot;
    assign APB3PWDATA = apbext_pwdata;
    assign APB3PSEL = apbext_psel_s[2];
    assign APB3PCLK = HCLK;
    assign APB3PRESET = sys_n;
    assign apbext_prdata_s[32*2 +: 32] = APB3PRDATA;
    assign apbext_pready_s[2] = APB3PREDADY;
    assign apbext_pslverr_s[2] = APB3PSLVERR;
`else
    assign apbext_prdata_s[32*2 +: 32] = 32'd0;
    assign apbext_pready_s[2] = 1'b1;
    assign apbext_pslverr_s[2] = 1'b0;
`endif

`ifdef TARVO_APB4_SUPPORT
    assign APB4PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB4PENABLE = apbext_penable;
    assign APB4PWRITE = apbext_pwrite;
    assign APB4PSTRB = apbext_pstrb;
    assign APB4PPROT = apbext_pprot;
    assign APB4PWDATA = apbext_pwdata;
    assign APB4PSEL = apbext_psel_s[3];
    assign APB4PCLK = HCLK;
    assign APB4PRESET = sys_n;
    assign apbext_prdata_s[32*3 +: 32] = APB4PRDATA;
    assign apbext_pready_s[3] = APB4PREDADY;
    assign apbext_pslverr_s[3] = APB4PSLVERR;
`else
    assign apbext_prdata_s[32*3 +: 32] = 32'd0;
    assign apbext_pready_s[3] = 1'b1;
    assign apbext_pslverr_s[3] = 1'b0;
`endif

`ifdef TARVO_APB5_SUPPORT
    assign APB5PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB5PENABLE = apbext_penable;
    assign APB5PWRITE = apbext_pwrite;
    assign APB5PSTRB = apbext_pstrb;
    assign APB5PPROT = apbext_pprot;
    assign APB5PWDATA = apbext_pwdata;
    assign APB5PSEL = apbext_psel_s[4];
    assign APB5PCLK = HCLK;
    assign APB5PRESET = sys_n;
    assign apbext_prdata_s[32*4 +: 32] = APB5PRDATA;
    assign apbext_pready_s[4] = APB5PREDADY;
    assign apbext_pslverr_s[4] = APB5PSLVERR;
`else
    assign apbext_prdata_s[32*4 +: 32] = 32'd0;
    assign apbext_pready_s[4] = 1'b1;
    assign apbext_pslverr_s[4] = 1'b0;
`endif

`ifdef TARVO_APB6_SUPPORT
    assign APB6PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB6PENABLE = apbext_penable;
    assign APB6PWRITE = apbext_pwrite;
    assign APB6PSTRB = apbext_pstrb;
    assign APB6PPROT = apbext_pprot;
    assign APB6PWDATA = apbext_pwdata;
    assign APB6PSEL = apbext_psel_s[5];
    assign APB6PCLK = HCLK;
    assign APB6PRESET = sys_n;
    assign apbext_prdata_s[32*5 +: 32] = APB6PRDATA;
    assign apbext_pready_s[5] = APB6PREDADY;
    assign apbext_pslverr_s[5] = APB6PSLVERR;
`else
    assign apbext_prdata_s[32*5 +: 32] = 32'd0;
    assign apbext_pready_s[5] = 1'b1;
    assign apbext_pslverr_s[5] = 1'b0;
`endif

`ifdef TARVO_APB7_SUPPORT
    assign APB7PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB7PENABLE = apbext_penable;
    assign APB7PWRITE = apbext_pwrite;
    assign APB7PSTRB = apbext_pstrb;
    assign APB7PPROT = apbext_pprot;
    assign APB7PWDATA = apbext_pwdata;
    assign APB7PSEL = apbext_psel_s[6];
    assign APB7PCLK = HCLK;
    assign APB7PRESET = sys_n;
    assign apbext_prdata_s[32*6 +: 32] = APB7PRDATA;
    assign apbext_pready_s[6] = APB7PREDADY;
    assign apbext_pslverr_s[6] = APB7PSLVERR;
`else
    assign apbext_prdata_s[32*6 +: 32] = 32'd0;
    assign apbext_pready_s[6] = 1'b1;
    assign apbext_pslverr_s[6] = 1'b0;
`endif

`ifdef TARVO_APB8_SUPPORT
    assign APB8PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB8PENABLE = apbext_penable;
    assign APB8PWRITE = apbext_pwrite;
    assign APB8PSTRB = apbext_pstrb;
    assign APB8PPROT = apbext_pprot;
    assign APB8PWDATA = apbext_pwdata;
    assign APB8PSEL = apbext_psel_s[7];
    assign APB8PCLK = HCLK;
    assign APB8PRESET = sys_n;
    assign apbext_prdata_s[32*7 +: 32] = APB8PRDATA;
    assign apbext_pready_s[7] = APB8PREDADY;
    assign apbext_pslverr_s[7] = APB8PSLVERR;
`else
    assign apbext_prdata_s[32*7 +: 32] = 32'd0;
    assign apbext_pready_s[7] = 1'b1;
    assign apbext_pslverr_s[7] = 1'b0;
`endif

`ifdef TARVO_APB9_SUPPORT
    assign APB9PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB9PENABLE = apbext_penable;
    assign APB9PWRITE = apbext_pwrite;
    assign APB9PSTRB = apbext_pstrb;
    assign APB9PPROT = apbext_pprot;
    assign APB9PWDATA = apbext_pwdata;
    assign APB9PSEL = apbext_psel_s[8];
    assign APB9PCLK = HCLK;
    assign APB9PRESET = sys_n;
    assign apbext_prdata_s[32*8 +: 32] = APB9PRDATA;
    assign apbext_pready_s[8] = APB9PREDADY;
    assign apbext_pslverr_s[8] = APB9PSLVERR;
`else
    assign apbext_prdata_s[32*8 +: 32] = 32'd0;
    assign apbext_pready_s[8] = 1'b1;
    assign apbext_pslverr_s[8] = 1'b0;
`endif

`ifdef TARVO_APB10_SUPPORT
    assign APB10PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB10PENABLE = apbext_penable;
    assign APB10PWRITE = apbext_pwrite;
    assign APB10PSTRB = apbext_pstrb;
    assign APB10PPROT = apbext_pprot;
    assign APB10PWDATA = apbext_pwdata;
    assign APB10PSEL = apbext_psel_s[9];
    assign APB10PCLK = HCLK;
    assign APB10PRESET = sys_n;
    assign apbext_prdata_s[32*9 +: 32] = APB10PRDATA;
    assign apbext_pready_s[9] = APB10PREDADY;
    assign apbext_pslverr_s[9] = APB10PSLVERR;
`else
    assign apbext_prdata_s[32*9 +: 32] = 32'd0;
    assign apbext_pready_s[9] = 1'b1;
    assign apbext_pslverr_s[9] = 1'b0;
`endif

`ifdef TARVO_APB11_SUPPORT
    assign APB11PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB11PENABLE = apbext_penable;
    assign APB11PWRITE = apbext_pwrite;
    assign APB11PSTRB = apbext_pstrb;
    assign APB11PPROT = apbext_pprot;
    assign APB11PWDATA = apbext_pwdata;
    assign APB11PSEL = apbext_psel_s[10];
    assign APB11PCLK = HCLK;
    assign APB11PRESET = sys_n;
    assign apbext_prdata_s[32*10 +: 32] = APB11PRDATA;
    assign apbext_pready_s[10] = APB11PREDADY;
    assign apbext_pslverr_s[10] = APB11PSLVERR;
`else
    assign apbext_prdata_s[32*10 +: 32] = 32'd0;
    assign apbext_pready_s[10] = 1'b1;
    assign apbext_pslverr_s[10] = 1'b0;
`endif

`ifdef TARVO_APB12_SUPPORT
    assign APB12PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB12PENABLE = apbext_penable;
    assign APB12PWRITE = apbext_pwrite;
    assign APB12PSTRB = apbext_pstrb;
    assign APB12PPROT = apbext_pprot;
    assign APB12PWDATA = apbext_pwdata;
    assign APB12PSEL = apbext_psel_s[11];
    assign APB12PCLK = HCLK;
    assign APB12PRESET = sys_n;
    assign apbext_prdata_s[32*11 +: 32] = APB12PRDATA;
    assign apbext_pready_s[11] = APB12PREDADY;
    assign apbext_pslverr_s[11] = APB12PSLVERR;
`else
    assign apbext_prdata_s[32*11 +: 32] = 32'd0;
    assign apbext_pready_s[11] = 1'b1;
    assign apbext_pslverr_s[11] = 1'b0;
`endif

`ifdef TARVO_APB13_SUPPORT
    assign APB13PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB13PENABLE = apbext_penable;
    assign APB13PWRITE = apbext_pwrite;
    assign APB13PSTRB = apbext_pstrb;
    assign APB13PPROT = apbext_pprot;
    assign APB13PWDATA = apbext_pwdata;
    assign APB13PSEL = apbext_psel_s[12];
    assign APB13PCLK = HCLK;
    assign APB13PRESET = sys_n;
    assign apbext_prdata_s[32*12 +: 32] = APB13PRDATA;
    assign apbext_pready_s[12] = APB13PREDADY;
    assign apbext_pslverr_s[12] = APB13PSLVERR;
`else
    assign apbext_prdata_s[32*12 +: 32] = 32'd0;
    assign apbext_pready_s[12] = 1'b1;
    assign apbext_pslverr_s[12] = 1'b0;
`endif

`ifdef TARVO_APB14_SUPPORT
    assign APB14PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB14PENABLE = apbext_penable;
    assign APB14PWRITE = apbext_pwrite;
    assign APB14PSTRB = apbext_pstrb;
    assign APB14PPROT = apbext_pprot;
    assign APB14PWDATA = apbext_pwdata;
    assign APB14PSEL = apbext_psel_s[13];
    assign APB14PCLK = HCLK;
    assign APB14PRESET = sys_n;
    assign apbext_prdata_s[32*13 +: 32] = APB14PRDATA;
    assign apbext_pready_s[13] = APB14PREDADY;
    assign apbext_pslverr_s[13] = APB14PSLVERR;
`else
    assign apbext_prdata_s[32*13 +: 32] = 32'd0;
    assign apbext_pready_s[13] = 1'b1;
    assign apbext_pslverr_s[13] = 1'b0;
`endif

`ifdef TARVO_APB15_SUPPORT
    assign APB15PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB15PENABLE = apbext_penable;
    assign APB15PWRITE = apbext_pwrite;
    assign APB15PSTRB = apbext_pstrb;
    assign APB15PPROT = apbext_pprot;
    assign APB15PWDATA = apbext_pwdata;
    assign APB15PSEL = apbext_psel_s[14];
    assign APB15PCLK = HCLK;
    assign APB15PRESET = sys_n;
    assign apbext_prdata_s[32*14 +: 32] = APB15PRDATA;
    assign apbext_pready_s[14] = APB15PREDADY;
    assign apbext_pslverr_s[14] = APB15PSLVERR;
`else
    assign apbext_prdata_s[32*14 +: 32] = 32'd0;
    assign apbext_pready_s[14] = 1'b1;
    assign apbext_pslverr_s[14] = 1'b0;
`endif

`ifdef TARVO_APB16_SUPPORT
    assign APB16PADDR = {`ORIX_REGION_APBEXT, apbext_paddr};
    assign APB16PENABLE = apbext_penable;
    assign APB16PWRITE = apbext_pwrite;
    assign APB16PSTRB = apbext_pstrb;
    assign APB16PPROT = apbext_pprot;
    assign APB16PWDATA = apbext_pwdata;
    assign APB16PSEL = apbext_psel_s[15];
    assign APB16PCLK = HCLK;
    assign APB16PRESET = sys_n;
    assign apbext_prdata_s[32*15 +: 32] = APB16PRDATA;
    assign apbext_pready_s[15] = APB16PREDADY;
    assign apbext_pslverr_s[15] = APB16PSLVERR;
`else
    assign apbext_prdata_s[32*15 +: 32] = 32'd0;
    assign apbext_pready_s[15] = 1'b1;
    assign apbext_pslverr_s[15] = 1'b0;
`endif

`else
    assign hrdata_s[32*`ORIX_S_APBEXT +: 32] = 32'd0;
    assign hreadyout_s[`ORIX_S_APBEXT] = 1'b1;
    assign hresp_s[`ORIX_S_APBEXT] = 1'b0;
`endif
endmodule
