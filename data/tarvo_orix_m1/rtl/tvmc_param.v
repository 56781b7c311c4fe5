// Parameters of the DDR3 memory and its controller.  Included inside a module, never compiled on its own.
    parameter TVMC_DQ_WIDTH   = 16;   // data pins
    parameter TVMC_ROW_WIDTH  = 14;   // row address bits
    parameter TVMC_COL_WIDTH  = 10;   // column address bits
    parameter TVMC_BANK_WIDTH = 3;    // bank address bits
    parameter TVMC_BURST      = 8;    // transfers of one burst
