// Module name of the DDR3 controller: each device variant has a controller of its own.
// Included, never compiled on its own, after DDR3_define.v.
`ifndef ORIX_DDR3_NAME
`ifdef VIRLA_138K
`define ORIX_DDR3_NAME DDR3_Controller_138K
`else
`ifdef VIRLA_25K
`define ORIX_DDR3_NAME DDR3_Controller_25K
`else
`ifdef VIRLA_TV2K
`define ORIX_DDR3_NAME DDR3_Controller_2K
`else
`define ORIX_DDR3_NAME DDR3_Controller
`endif
`endif
`endif
`endif
