`ifndef MAC_DEFINE
`define MAC_DEFINE
`define RGMII_IF
`define module_name mac
`endif
