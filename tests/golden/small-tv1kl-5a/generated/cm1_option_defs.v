`define CM1_NUM_IRQ 1
`define CM1_OS 0
`define CM1_SMALL_MUL 1
`define CM1_BE8 0
`define CM1_ITCM_LA_EN 0
`define CM1_ITCM_UA_EN 0
`define CM1_ITCMSIZE 4'b0000
`define CM1_DTCMSIZE 4'b0100
