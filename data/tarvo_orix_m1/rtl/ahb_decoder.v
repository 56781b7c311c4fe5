// AHB address decoder: one select line per slave, chosen from address bits 31 to 24.  The map stands in define.vh.
// A slave whose ENABLE bit is 0 is never selected; hsel_default is set when no slave is.
`include "define.vh"

module ahb_decoder #(
    parameter [15:0] ENABLE = 16'hFFFF
) (
    input  wire [7:0]  region,
    output wire [15:0] hsel,
    output wire        hsel_default
);
    wire [15:0] hit;

    assign hit[`ORIX_S_GPIO]     = region == `ORIX_REGION_GPIO;
    assign hit[`ORIX_S_CAN]      = region == `ORIX_REGION_CAN;
    assign hit[`ORIX_S_ETH]      = region == `ORIX_REGION_ETH;
    assign hit[`ORIX_S_SPIFLASH] = region[7:1] == `ORIX_REGION_SPIFLASH;
    assign hit[`ORIX_S_PSRAM]    = region[7:4] == `ORIX_REGION_PSRAM;
    assign hit[`ORIX_S_DDR3]     = region[7:5] == `ORIX_REGION_DDR3;
    assign hit[`ORIX_S_APBINT]   = region == `ORIX_REGION_APBINT;
    assign hit[`ORIX_S_APBEXT]   = region == `ORIX_REGION_APBEXT;
    assign hit[`ORIX_S_AHB1]     = region == `ORIX_REGION_AHB1;
    assign hit[`ORIX_S_AHB2]     = region == `ORIX_REGION_AHB2;
    assign hit[`ORIX_S_AHB3]     = region == `ORIX_REGION_AHB3;
    assign hit[`ORIX_S_AHB4]     = region == `ORIX_REGION_AHB4;
    assign hit[`ORIX_S_AHB5]     = region == `ORIX_REGION_AHB5;
    assign hit[`ORIX_S_AHB6]     = region == `ORIX_REGION_AHB6;
    assign hit[`ORIX_S_EXTFLASH] = region[7:5] == `ORIX_REGION_EXTFLASH;
    assign hit[`ORIX_S_EXTSRAM]  = region[7:5] == `ORIX_REGION_EXTSRAM;

    assign hsel         = hit & ENABLE;
    assign hsel_default = hsel == 16'd0;
endmodule
