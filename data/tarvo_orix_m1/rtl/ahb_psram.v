// PSRAM block: the interface of the device and package (psram_define.v) with the geometry of the memory (psram_param.v).
// EBR_BASED is also a macro of the DDR3 controller, so that only the value of psram_define.v must count here.
`ifdef EBR_BASED
`undef EBR_BASED
`endif
`include "psram_define.v"
`include "psram_local_define.v"

module ahb_psram (
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
`include "psram_param.v"
`include "psram_local_param.v"

    `ORIX_PSRAM_NAME #(
`ifdef EBR_BASED
        .EBR_BASED(1),
`else
        .EBR_BASED(0),
`endif
`ifdef clock_reverse
        .CLOCK_REVERSE(1),
`else
        .CLOCK_REVERSE(0),
`endif
`ifdef CK0_DIFF
        .CK0_DIFF(1),
`else
        .CK0_DIFF(0),
`endif
`ifdef CK1_DIFF
        .CK1_DIFF(1),
`else
        .CK1_DIFF(0),
`endif
        .DQ_WIDTH(PSRAM_DQ_WIDTH),
        .MASK_WIDTH(PSRAM_MASK_WIDTH),
        .CS_WIDTH(PSRAM_CS_WIDTH),
        .ADDR_WIDTH(PSRAM_ADDR_WIDTH),
        .BURST_BITS(PSRAM_BURST_BITS)
    ) u_psram (
        .HCLK(HCLK), .HRESETn(HRESETn), .HSEL(HSEL), .HADDR(HADDR), .HTRANS(HTRANS), .HSIZE(HSIZE), .HBURST(HBURST),
        .HWRITE(HWRITE), .HWDATA(HWDATA), .HREADY(HREADY), .HRDATA(HRDATA), .HREADYOUT(HREADYOUT), .HRESP(HRESP),
        .ref_clk(ref_clk), .memory_clk(memory_clk), .init_calib(init_calib), .psram_ck(psram_ck),
        .psram_ck_n(psram_ck_n), .psram_rwds(psram_rwds), .psram_dq(psram_dq), .psram_reset_n(psram_reset_n),
        .psram_cs_n(psram_cs_n)
    );
endmodule
