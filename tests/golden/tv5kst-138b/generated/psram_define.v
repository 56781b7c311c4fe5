`define EBR_BASED
`define module_name_psram PSRAM_Memory_Interface_Top
`define clock_reverse
`define CK0_DIFF
`define CK1_DIFF
