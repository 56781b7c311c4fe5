// Module name of the PSRAM interface and its clock pins.  Included, never compiled on its own, after psram_define.v.
`ifndef ORIX_PSRAM_NAME
`ifdef module_name_psram
`define ORIX_PSRAM_NAME `module_name_psram
`else
`define ORIX_PSRAM_NAME PSRAM_Memory_Interface_Top
`endif
`endif
