// DDR3 controller and physical interface with an AHB-Lite slave port: a stand-in, since the block is licensed
// separately.  It is a black box of the netlist; in a simulation it answers that it is not there, and its pins are quiet.
//   PHY_MC       1: the physical interface has a memory clock control of its own
//   EBR_BASED    1: data buffers in block RAM, 0: in distributed RAM
//   DQ_WIDTH, DQS_WIDTH, BURST_BITS, ADDR_WIDTH   geometry of the memory
`include "DDR3_define.v"
`include "ddr3_name.v"
`include "define.vh"

(* blackbox *)
module `ORIX_DDR3_NAME #(
    parameter PHY_MC     = 1,
    parameter EBR_BASED  = 1,
    parameter DQ_WIDTH   = 16,
    parameter DQS_WIDTH  = 2,
    parameter BURST_BITS = 128,
    parameter ADDR_WIDTH = 28
) (
    input  wire        HCLK,
    input  wire        HRESETn,
    input  wire        HSEL,
    input  wire [31:0] HADDR,
    input  wire [1:0]  HTRANS,
    input  wire [2:0]  HSIZE,
    input  wire [2:0]  HBURST,
    input  wire        HWRITE,
    input  wire [31:0] HWDATA,
    input  wire        HREADY,
    output wire [31:0] HRDATA,
    output wire        HREADYOUT,
    output wire        HRESP,
    input  wire        clk,              // reference clock of the controller
    input  wire        memory_clk,       // clock of the memory interface
    input  wire        pll_lock,         // memory_clk is stable
    input  wire        rst_n,
    output wire        pll_stop,         // asks to stop memory_clk while its phase changes
    output wire        init_complete,
    output wire [15:0] ddr_addr,
    output wire [2:0]  ddr_ba,
    output wire        ddr_cs_n,
    output wire        ddr_ras_n,
    output wire        ddr_cas_n,
    output wire        ddr_we_n,
    output wire        ddr_ck,
    output wire        ddr_ck_n,
    output wire        ddr_cke,
    output wire        ddr_odt,
    output wire        ddr_reset_n,
    output wire [1:0]  ddr_dqm,
    inout  wire [15:0] ddr_dq,
    inout  wire [1:0]  ddr_dqs,
    inout  wire [1:0]  ddr_dqs_n
);
    `ORIX_AHB_ABSENT

    assign pll_stop      = 1'b0;
    assign init_complete = 1'b0;
    assign ddr_addr      = 16'd0;
    assign ddr_ba        = 3'd0;
    assign ddr_cs_n      = 1'b1;
    assign ddr_ras_n     = 1'b1;
    assign ddr_cas_n     = 1'b1;
    assign ddr_we_n      = 1'b1;
    assign ddr_ck        = 1'b0;
    assign ddr_ck_n      = 1'b1;
    assign ddr_cke       = 1'b0;
    assign ddr_odt       = 1'b0;
    assign ddr_reset_n   = 1'b0;
    assign ddr_dqm       = 2'd0;
    assign ddr_dq        = 16'hzzzz;
    assign ddr_dqs       = 2'bzz;
    assign ddr_dqs_n     = 2'bzz;
endmodule
