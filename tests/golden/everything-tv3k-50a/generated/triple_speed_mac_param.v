parameter MIIM_CLK_DIVIDER = 11;
parameter DEVICE = "3K_Series";
