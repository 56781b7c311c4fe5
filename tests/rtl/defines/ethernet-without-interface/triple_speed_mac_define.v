`ifndef MAC_DEFINE
`define MAC_DEFINE
`endif
