// Module name of the Ethernet MAC: the one that the configuration gives, or mac when it gives none.
// Included, never compiled on its own, after triple_speed_mac_define.v.
`ifndef ORIX_MAC_NAME
`ifdef module_name
`define ORIX_MAC_NAME `module_name
`else
`define ORIX_MAC_NAME mac
`endif
`endif
