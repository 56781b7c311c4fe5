`define DDR3_PHY_MC
`define EBR_BASED
`define VIRLA_TV2K
