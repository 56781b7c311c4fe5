// Ethernet MAC for 10, 100 and 1000 Mbit/s with an AHB-Lite slave port: a stand-in, since the block is licensed
// separately.  It is a black box of the netlist; in a simulation it answers that it is not there, and its pins are quiet.
//   DEVICE                   device family of the input and output cells
//   USE_RGMII, USE_GMII, USE_MII   the PHY interfaces in use; the pins of the others are idle
//   RGMII_INPUT_DELAY_VALUE  steps of the receive input delay, with RGMII
//   MIIM_CLK_DIVIDER         HCLK cycles of one MDC period
`include "triple_speed_mac_define.v"
`include "triple_speed_mac_name.v"
`include "define.vh"

(* blackbox *)
module `ORIX_MAC_NAME #(
    parameter DEVICE                  = "5K_Series",
    parameter USE_RGMII               = 1,
    parameter USE_GMII                = 0,
    parameter USE_MII                 = 0,
    parameter RGMII_INPUT_DELAY_VALUE = 100,
    parameter MIIM_CLK_DIVIDER        = 20
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
    output wire        irq,

    output wire        mdc,
    input  wire        mdio_in,
    output wire        mdio_out,
    output wire        mdio_outen,

    input  wire        gtx_clk,        // 125 MHz, RGMII and GMII

    output wire        rgmii_txc,
    output wire        rgmii_tx_ctl,
    output wire [3:0]  rgmii_txd,
    input  wire        rgmii_rxc,
    input  wire        rgmii_rx_ctl,
    input  wire [3:0]  rgmii_rxd,

    input  wire        gmii_rx_clk,
    input  wire        gmii_rx_dv,
    input  wire [7:0]  gmii_rxd,
    input  wire        gmii_rx_er,
    output wire        gmii_gtx_clk,
    output wire [7:0]  gmii_txd,
    output wire        gmii_tx_en,
    output wire        gmii_tx_er,

    input  wire        mii_rx_clk,
    input  wire [3:0]  mii_rxd,
    input  wire        mii_rx_dv,
    input  wire        mii_rx_er,
    input  wire        mii_tx_clk,
    output wire [3:0]  mii_txd,
    output wire        mii_tx_en,
    output wire        mii_tx_er,
    input  wire        mii_col,
    input  wire        mii_crs
);
    `ORIX_AHB_ABSENT

    assign irq          = 1'b0;
    assign mdc          = 1'b0;
    assign mdio_out     = 1'b0;
    assign mdio_outen   = 1'b0;
    assign rgmii_txc    = 1'b0;
    assign rgmii_tx_ctl = 1'b0;
    assign rgmii_txd    = 4'd0;
    assign gmii_gtx_clk = 1'b0;
    assign gmii_txd     = 8'd0;
    assign gmii_tx_en   = 1'b0;
    assign gmii_tx_er   = 1'b0;
    assign mii_txd      = 4'd0;
    assign mii_tx_en    = 1'b0;
    assign mii_tx_er    = 1'b0;
endmodule
