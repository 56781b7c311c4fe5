parameter MIIM_CLK_DIVIDER = 0;
parameter DEVICE = "3K_Series";
