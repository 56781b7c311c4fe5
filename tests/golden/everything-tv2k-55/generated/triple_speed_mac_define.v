`ifndef MAC_DEFINE
`define MAC_DEFINE
`define GMII_IF
`define MII_IF
`define module_name mac
`endif
