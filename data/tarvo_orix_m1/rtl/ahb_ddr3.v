// DDR3 block: the controller of the device variant (DDR3_define.v) with the geometry of the memory (tvmc_param.v).
// EBR_BASED is also a macro of the PSRAM interface, so that only the value of DDR3_define.v must count here.
`ifdef EBR_BASED
`undef EBR_BASED
`endif
`include "DDR3_define.v"
`include "ddr3_name.v"

module ahb_ddr3 (
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
`include "tvmc_param.v"
`include "tvmc_local_param.v"

    `ORIX_DDR3_NAME #(
`ifdef DDR3_PHY_MC
        .PHY_MC(1),
`else
        .PHY_MC(0),
`endif
`ifdef EBR_BASED
        .EBR_BASED(1),
`else
        .EBR_BASED(0),
`endif
        .DQ_WIDTH(TVMC_DQ_WIDTH),
        .DQS_WIDTH(TVMC_DQS_WIDTH),
        .BURST_BITS(TVMC_BURST_BITS),
        .ADDR_WIDTH(TVMC_ADDR_WIDTH)
    ) u_ddr3 (
        .HCLK(HCLK), .HRESETn(HRESETn), .HSEL(HSEL), .HADDR(HADDR), .HTRANS(HTRANS), .HSIZE(HSIZE), .HBURST(HBURST),
        .HWRITE(HWRITE), .HWDATA(HWDATA), .HREADY(HREADY), .HRDATA(HRDATA), .HREADYOUT(HREADYOUT), .HRESP(HRESP),
        .clk(clk), .memory_clk(memory_clk), .pll_lock(pll_lock), .rst_n(rst_n), .pll_stop(pll_stop),
        .init_complete(init_complete), .ddr_addr(ddr_addr), .ddr_ba(ddr_ba), .ddr_cs_n(ddr_cs_n),
        .ddr_ras_n(ddr_ras_n), .ddr_cas_n(ddr_cas_n), .ddr_we_n(ddr_we_n), .ddr_ck(ddr_ck), .ddr_ck_n(ddr_ck_n),
        .ddr_cke(ddr_cke), .ddr_odt(ddr_odt), .ddr_reset_n(ddr_reset_n), .ddr_dqm(ddr_dqm),
        .ddr_dq(ddr_dq), .ddr_dqs(ddr_dqs), .ddr_dqs_n(ddr_dqs_n)
    );
endmodule
