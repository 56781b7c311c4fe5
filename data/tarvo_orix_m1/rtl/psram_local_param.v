// Values that follow from psram_param.v.  Included inside a module after it, never compiled on its own.
    localparam PSRAM_MASK_WIDTH = PSRAM_DQ_WIDTH / 8;              // one strobe per byte
    localparam PSRAM_BURST_BITS = PSRAM_DQ_WIDTH * PSRAM_BURST;    // data of one burst
