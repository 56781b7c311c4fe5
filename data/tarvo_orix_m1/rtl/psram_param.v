// Parameters of the PSRAM and its interface.  Included inside a module, never compiled on its own.
    parameter PSRAM_DQ_WIDTH   = 16;   // data pins
    parameter PSRAM_CS_WIDTH   = 2;    // memory dies
    parameter PSRAM_ADDR_WIDTH = 21;   // address bits of a die
    parameter PSRAM_BURST      = 16;   // transfers of one burst
