// Values that follow from tvmc_param.v.  Included inside a module after it, never compiled on its own.
    localparam TVMC_DQS_WIDTH  = TVMC_DQ_WIDTH / 8;                    // one strobe per byte
    localparam TVMC_BURST_BITS = TVMC_DQ_WIDTH * TVMC_BURST;           // data of one burst
    localparam TVMC_ADDR_WIDTH = TVMC_ROW_WIDTH + TVMC_COL_WIDTH + TVMC_BANK_WIDTH + TVMC_DQS_WIDTH - 1;   // byte address
