// Ethernet block: the MAC with the PHY interface, the receive delay and the management clock that the configuration
// chose (triple_speed_mac_define.v and triple_speed_mac_param.v).
`include "triple_speed_mac_define.v"
`include "triple_speed_mac_name.v"

module ahb_ethernet (
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
`include "triple_speed_mac_param.v"

    `ORIX_MAC_NAME #(
`ifdef RGMII_IF
        .USE_RGMII(1),
        .RGMII_INPUT_DELAY_VALUE(RGMII_INPUT_DELAY_VALUE),
`else
        .USE_RGMII(0),
`endif
`ifdef GMII_IF
        .USE_GMII(1),
`else
        .USE_GMII(0),
`endif
`ifdef MII_IF
        .USE_MII(1),
`else
        .USE_MII(0),
`endif
        .MIIM_CLK_DIVIDER(MIIM_CLK_DIVIDER),
        .DEVICE(DEVICE)
    ) u_mac (
        .HCLK(HCLK), .HRESETn(HRESETn), .HSEL(HSEL), .HADDR(HADDR), .HTRANS(HTRANS), .HSIZE(HSIZE), .HBURST(HBURST),
        .HWRITE(HWRITE), .HWDATA(HWDATA), .HREADY(HREADY), .HRDATA(HRDATA), .HREADYOUT(HREADYOUT), .HRESP(HRESP),
        .irq(irq), .mdc(mdc), .mdio_in(mdio_in), .mdio_out(mdio_out), .mdio_outen(mdio_outen), .gtx_clk(gtx_clk),
        .rgmii_txc(rgmii_txc), .rgmii_tx_ctl(rgmii_tx_ctl), .rgmii_txd(rgmii_txd),
        .rgmii_rxc(rgmii_rxc), .rgmii_rx_ctl(rgmii_rx_ctl), .rgmii_rxd(rgmii_rxd),
        .gmii_rx_clk(gmii_rx_clk), .gmii_rx_dv(gmii_rx_dv), .gmii_rxd(gmii_rxd), .gmii_rx_er(gmii_rx_er),
        .gmii_gtx_clk(gmii_gtx_clk), .gmii_txd(gmii_txd), .gmii_tx_en(gmii_tx_en), .gmii_tx_er(gmii_tx_er),
        .mii_rx_clk(mii_rx_clk), .mii_rxd(mii_rxd), .mii_rx_dv(mii_rx_dv), .mii_rx_er(mii_rx_er),
        .mii_tx_clk(mii_tx_clk), .mii_txd(mii_txd), .mii_tx_en(mii_tx_en), .mii_tx_er(mii_tx_er),
        .mii_col(mii_col), .mii_crs(mii_crs)
    );
endmodule
