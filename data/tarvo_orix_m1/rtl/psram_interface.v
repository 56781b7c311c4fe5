// PSRAM interface with an AHB-Lite slave port: a stand-in, since the block is licensed
// separately.  It is a black box of the netlist; in a simulation it answers that it is not there, and its pins are quiet.
//   EBR_BASED      1: data buffers in block RAM, 0: in distributed RAM
//   CLOCK_REVERSE  1: the memory clock is inverted
//   CK0_DIFF, CK1_DIFF   1: the die has a differential clock, 0: a single-ended one
//   DQ_WIDTH, MASK_WIDTH, CS_WIDTH, ADDR_WIDTH, BURST_BITS   geometry of the memory
`include "psram_define.v"
`include "psram_local_define.v"
`include "define.vh"

(* blackbox *)
module `ORIX_PSRAM_NAME #(
    parameter EBR_BASED     = 1,
    parameter CLOCK_REVERSE = 1,
    parameter CK0_DIFF      = 1,
    parameter CK1_DIFF      = 1,
    parameter DQ_WIDTH      = 16,
    parameter MASK_WIDTH    = 2,
    parameter CS_WIDTH      = 2,
    parameter ADDR_WIDTH    = 21,
    parameter BURST_BITS    = 256
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
    input  wire        ref_clk,          // reference clock of the interface
    input  wire        memory_clk,       // clock of the memory
    output wire        init_calib,       // calibration is complete
    output wire [1:0]  psram_ck,
    output wire [1:0]  psram_ck_n,
    inout  wire [1:0]  psram_rwds,
    inout  wire [15:0] psram_dq,
    output wire [1:0]  psram_reset_n,
    output wire [1:0]  psram_cs_n
);
    `ORIX_AHB_ABSENT

    assign init_calib    = 1'b0;
    assign psram_ck      = 2'b00;
    assign psram_ck_n    = 2'b11;
    assign psram_rwds    = 2'bzz;
    assign psram_dq      = 16'hzzzz;
    assign psram_reset_n = 2'b00;
    assign psram_cs_n    = 2'b11;
endmodule
