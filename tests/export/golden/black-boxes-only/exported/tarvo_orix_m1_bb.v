// Tarvo_ORIX_M1_Top without its contents, in Verilog: for synthesis and lint of a design that takes the netlist later.
// Compile this file or the subsystem itself, never both.
// verilator lint_off DECLFILENAME
// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
(* blackbox *)
module Tarvo_ORIX_M1_Top (
    input  wire          HCLK, // clocks processor, buses and blocks
    input  wire          hwRstn, // resets everything, debug included, active low
    output wire          LOCKUP, // the processor has stopped after a second fault
    output wire          HALTED, // the debugger has stopped the processor
    inout  wire          JTAG_7, // TMS or SWDIO
    inout  wire          JTAG_9, // TCK or SWCLK, clocks the debug port
    inout  wire          JTAG_3, // nTRST, resets the debug port, active low, to be pulled up
    inout  wire          JTAG_4, // driven low
    inout  wire          JTAG_5, // TDI
    inout  wire          JTAG_6, // driven low
    inout  wire          JTAG_8, // driven low
    inout  wire          JTAG_10, // driven low
    inout  wire          JTAG_11, // driven low
    inout  wire          JTAG_12, // driven low
    inout  wire          JTAG_13, // TDO
    inout  wire          JTAG_14, // driven low
    inout  wire          JTAG_15, // nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
    inout  wire          JTAG_16, // driven low
    inout  wire          JTAG_17, // not connected
    inout  wire          JTAG_18, // driven low
    input  wire          CAN_RX, // from the transceiver
    output wire          CAN_TX, // to the transceiver
    output wire          MDC, // management clock of the PHY
    inout  wire          MDIO, // management data of the PHY, to be pulled up
    input  wire          MII_RX_CLK, // receive clock of the PHY
    input  wire  [3:0]   MII_RXD, // receive data
    input  wire          MII_RX_DV, // receive data are valid
    input  wire          MII_RX_ER, // receive error
    input  wire          MII_TX_CLK, // transmit clock of the PHY
    output wire  [3:0]   MII_TXD, // transmit data
    output wire          MII_TX_EN, // transmit data are valid
    output wire          MII_TX_ER, // transmit error
    input  wire          MII_COL, // collision
    input  wire          MII_CRS, // carrier
    output wire          DDR_STOP_O, // asks to stop DDR_MEM_CLK_I while its phase changes
    input  wire          DDR_CLK_I, // reference clock of the DDR3 controller
    input  wire          DDR_MEM_CLK_I, // clock of the DDR3 interface
    input  wire          DDR_LOCK_I, // DDR_MEM_CLK_I is stable
    input  wire          DDR_RSTN_I, // resets the DDR3 controller, active low
    output wire          DDR_INIT_COMPLETE_O, // the DDR3 memory is ready
    output wire  [15:0]  DDR_ADDR_O, // address of the memory
    output wire  [2:0]   DDR_BA_O, // bank of the memory
    output wire          DDR_CS_N_O, // chip select of the memory, active low
    output wire          DDR_RAS_N_O, // row address strobe, active low
    output wire          DDR_CAS_N_O, // column address strobe, active low
    output wire          DDR_WE_N_O, // write enable, active low
    output wire          DDR_CLK_O, // clock of the memory
    output wire          DDR_CLK_N_O, // the same, inverted
    output wire          DDR_CKE_O, // clock enable
    output wire          DDR_ODT_O, // termination
    output wire          DDR_RESET_N_O, // resets the memory, active low
    output wire  [1:0]   DDR_DQM_O, // masks of the data
    inout  wire  [15:0]  DDR_DQ_IO, // data of the memory
    inout  wire  [1:0]   DDR_DQS_IO, // strobes of the data
    inout  wire  [1:0]   DDR_DQS_N_IO  // the same, inverted
);
endmodule
