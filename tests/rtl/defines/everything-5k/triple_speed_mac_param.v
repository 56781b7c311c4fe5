parameter RGMII_INPUT_DELAY_VALUE = 127;
parameter MIIM_CLK_DIVIDER = 30;
parameter DEVICE = "5K_Series";
