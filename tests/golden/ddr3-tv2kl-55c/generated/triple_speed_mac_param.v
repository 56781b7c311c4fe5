parameter RGMII_INPUT_DELAY_VALUE = 100;
parameter MIIM_CLK_DIVIDER = 20;
parameter DEVICE = "1L/2K_Series";
