// A first test bench of Tarvo_ORIX_M1_Top: clock, reset, pull-ups, every input at rest. The model of the processor plays the script of
// transfers +script=sim/tarvo_orix_m1_tb.play and prints what fails; without an end after 100000 cycles the bench stops.
// With COCOTB_SIM defined, clock and reset are left to Python (sim/test_tarvo_orix_m1.py).
`timescale 1ns / 1ps

// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
module tarvo_orix_m1_tb;
    // Connect what your design has; these are the levels at rest.
    reg         HCLK; // clocks processor, buses and blocks
    reg         hwRstn; // resets everything, debug included, active low
    wire        LOCKUP; // the processor has stopped after a second fault
    wire        HALTED; // the debugger has stopped the processor
    tri0        JTAG_7; // TMS or SWDIO
    tri0        JTAG_9; // TCK or SWCLK, clocks the debug port
    tri1        JTAG_3; // nTRST, resets the debug port, active low, to be pulled up
    tri0        JTAG_4; // driven low
    tri0        JTAG_5; // TDI
    tri0        JTAG_6; // driven low
    tri0        JTAG_8; // driven low
    tri0        JTAG_10; // driven low
    tri0        JTAG_11; // driven low
    tri0        JTAG_12; // driven low
    tri0        JTAG_13; // TDO
    tri0        JTAG_14; // driven low
    tri1        JTAG_15; // nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
    tri0        JTAG_16; // driven low
    tri0        JTAG_17; // not connected
    tri0        JTAG_18; // driven low
    wire        CAN_RX = 1'b1; // from the transceiver
    wire        CAN_TX; // to the transceiver
    wire        MDC; // management clock of the PHY
    tri1        MDIO; // management data of the PHY, to be pulled up
    wire        MII_RX_CLK = 1'b0; // receive clock of the PHY
    wire [3:0]  MII_RXD = {4{1'b0}}; // receive data
    wire        MII_RX_DV = 1'b0; // receive data are valid
    wire        MII_RX_ER = 1'b0; // receive error
    wire        MII_TX_CLK = 1'b0; // transmit clock of the PHY
    wire [3:0]  MII_TXD; // transmit data
    wire        MII_TX_EN; // transmit data are valid
    wire        MII_TX_ER; // transmit error
    wire        MII_COL = 1'b0; // collision
    wire        MII_CRS = 1'b0; // carrier
    wire        DDR_STOP_O; // asks to stop DDR_MEM_CLK_I while its phase changes
    wire        DDR_CLK_I = 1'b0; // reference clock of the DDR3 controller
    wire        DDR_MEM_CLK_I = 1'b0; // clock of the DDR3 interface
    wire        DDR_LOCK_I = 1'b0; // DDR_MEM_CLK_I is stable
    wire        DDR_RSTN_I = hwRstn; // resets the DDR3 controller, active low
    wire        DDR_INIT_COMPLETE_O; // the DDR3 memory is ready
    wire [15:0] DDR_ADDR_O; // address of the memory
    wire [2:0]  DDR_BA_O; // bank of the memory
    wire        DDR_CS_N_O; // chip select of the memory, active low
    wire        DDR_RAS_N_O; // row address strobe, active low
    wire        DDR_CAS_N_O; // column address strobe, active low
    wire        DDR_WE_N_O; // write enable, active low
    wire        DDR_CLK_O; // clock of the memory
    wire        DDR_CLK_N_O; // the same, inverted
    wire        DDR_CKE_O; // clock enable
    wire        DDR_ODT_O; // termination
    wire        DDR_RESET_N_O; // resets the memory, active low
    wire [1:0]  DDR_DQM_O; // masks of the data
    tri0 [15:0] DDR_DQ_IO; // data of the memory
    tri0 [1:0]  DDR_DQS_IO; // strobes of the data
    tri0 [1:0]  DDR_DQS_N_IO; // the same, inverted

    Tarvo_ORIX_M1_Top u_dut (
        .HCLK(HCLK),
        .hwRstn(hwRstn),
        .LOCKUP(LOCKUP),
        .HALTED(HALTED),
        .JTAG_7(JTAG_7),
        .JTAG_9(JTAG_9),
        .JTAG_3(JTAG_3),
        .JTAG_4(JTAG_4),
        .JTAG_5(JTAG_5),
        .JTAG_6(JTAG_6),
        .JTAG_8(JTAG_8),
        .JTAG_10(JTAG_10),
        .JTAG_11(JTAG_11),
        .JTAG_12(JTAG_12),
        .JTAG_13(JTAG_13),
        .JTAG_14(JTAG_14),
        .JTAG_15(JTAG_15),
        .JTAG_16(JTAG_16),
        .JTAG_17(JTAG_17),
        .JTAG_18(JTAG_18),
        .CAN_RX(CAN_RX),
        .CAN_TX(CAN_TX),
        .MDC(MDC),
        .MDIO(MDIO),
        .MII_RX_CLK(MII_RX_CLK),
        .MII_RXD(MII_RXD),
        .MII_RX_DV(MII_RX_DV),
        .MII_RX_ER(MII_RX_ER),
        .MII_TX_CLK(MII_TX_CLK),
        .MII_TXD(MII_TXD),
        .MII_TX_EN(MII_TX_EN),
        .MII_TX_ER(MII_TX_ER),
        .MII_COL(MII_COL),
        .MII_CRS(MII_CRS),
        .DDR_STOP_O(DDR_STOP_O),
        .DDR_CLK_I(DDR_CLK_I),
        .DDR_MEM_CLK_I(DDR_MEM_CLK_I),
        .DDR_LOCK_I(DDR_LOCK_I),
        .DDR_RSTN_I(DDR_RSTN_I),
        .DDR_INIT_COMPLETE_O(DDR_INIT_COMPLETE_O),
        .DDR_ADDR_O(DDR_ADDR_O),
        .DDR_BA_O(DDR_BA_O),
        .DDR_CS_N_O(DDR_CS_N_O),
        .DDR_RAS_N_O(DDR_RAS_N_O),
        .DDR_CAS_N_O(DDR_CAS_N_O),
        .DDR_WE_N_O(DDR_WE_N_O),
        .DDR_CLK_O(DDR_CLK_O),
        .DDR_CLK_N_O(DDR_CLK_N_O),
        .DDR_CKE_O(DDR_CKE_O),
        .DDR_ODT_O(DDR_ODT_O),
        .DDR_RESET_N_O(DDR_RESET_N_O),
        .DDR_DQM_O(DDR_DQM_O),
        .DDR_DQ_IO(DDR_DQ_IO),
        .DDR_DQS_IO(DDR_DQS_IO),
        .DDR_DQS_N_IO(DDR_DQS_N_IO)
    );
    wire done = u_dut.u_core.done;

`ifndef COCOTB_SIM
    initial HCLK = 1'b0;
    always #10 HCLK = ~HCLK;

    initial begin
        hwRstn = 1'b0;
        repeat (10) @(negedge HCLK);
        hwRstn = 1'b1;
    end

    integer cycle = 0;
    always @(negedge HCLK) begin
        cycle = cycle + 1;
        if (done === 1'b1) begin
            if (u_dut.u_core.checks == 0 || u_dut.u_core.failures != 0 || LOCKUP !== 1'b0)
                $fatal(1, "%m: the first accesses failed");
            $finish;
        end else if (cycle == 100000)
            $fatal(1, "%m: no end of the script after %0d cycles", cycle);
    end
`endif
endmodule
