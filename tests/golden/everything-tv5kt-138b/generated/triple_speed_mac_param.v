parameter RGMII_INPUT_DELAY_VALUE = 37;
parameter MIIM_CLK_DIVIDER = 11;
parameter DEVICE = "5K_Series";
