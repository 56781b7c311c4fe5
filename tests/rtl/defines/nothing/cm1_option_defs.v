`define CM1_NUM_IRQ 1
`define CM1_OS 0
`define CM1_SMALL_MUL 0
`define CM1_BE8 0
