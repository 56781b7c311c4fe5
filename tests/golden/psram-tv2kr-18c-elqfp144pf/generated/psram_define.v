`define EBR_BASED
`define module_name_psram PSRAM_Memory_Interface_Top
`define CK0_SINGLE
`define CK1_SINGLE
