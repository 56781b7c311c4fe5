`ifndef MAC_DEFINE
`define MAC_DEFINE
`define MII_IF
`define module_name mac
`endif
