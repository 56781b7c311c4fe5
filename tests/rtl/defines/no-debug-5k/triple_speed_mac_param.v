parameter MIIM_CLK_DIVIDER = 20;
parameter DEVICE = "5K_Series";
