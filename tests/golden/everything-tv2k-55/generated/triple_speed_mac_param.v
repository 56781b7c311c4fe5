parameter MIIM_CLK_DIVIDER = 11;
parameter DEVICE = "1L/2K_Series";
