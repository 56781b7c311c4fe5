// Constants of the bus protocols, shared by every bus module.  Included, never compiled on its own.
`ifndef ORIX_STATIC_MACRO_DEFINE
`define ORIX_STATIC_MACRO_DEFINE

// Byte lanes of a transfer: HSIZE and the two lowest address bits give PSTRB.
`define ORIX_HSIZE_BYTE 3'b000
`define ORIX_HSIZE_HALF 3'b001
`define ORIX_HSIZE_WORD 3'b010

// HTRANS[1] is set exactly for the transfers that move data (NONSEQ and SEQ).
`define ORIX_HTRANS_ACTIVE 1

// Master number of the only bus master, shown on every extension port.
`define ORIX_HMASTER_CORE 4'd0

`endif
