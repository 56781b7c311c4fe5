`define CM1_NUM_IRQ 32
`define CM1_OS 1
`define CM1_SMALL_MUL 0
`define CM1_BE8 0
`define CM1_JTAG 1
`define CM1_SW 0
`define CM1_SMALL_DEBUG 1
