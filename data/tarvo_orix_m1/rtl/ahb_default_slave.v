// AHB default slave: answers every data transfer with the two-cycle error response, and idle cycles with OKAY.
`include "static_macro_define.vh"

module ahb_default_slave (
    input  wire       HCLK,
    input  wire       HRESETn,
    input  wire       HSEL,
    input  wire [1:0] HTRANS,
    input  wire       HREADY,
    output wire       HREADYOUT,
    output wire       HRESP
);
    reg first;   // first cycle of the error response: not ready
    reg second;  // second cycle: ready

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            first  <= 1'b0;
            second <= 1'b0;
        end else begin
            first  <= HREADY & HSEL & HTRANS[`ORIX_HTRANS_ACTIVE];
            second <= first;
        end

    assign HREADYOUT = ~first;
    assign HRESP     = first | second;
endmodule
