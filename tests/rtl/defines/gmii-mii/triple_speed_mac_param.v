parameter MIIM_CLK_DIVIDER = 20;
parameter DEVICE = "1L/2K_Series";
