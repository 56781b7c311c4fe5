// Synchronizer of levels that come from another clock or from a pin: two flip-flops in a row for each bit.
// Each bit crosses on its own: bits that belong together may arrive in different cycles.
// The flip-flops carry the attribute that tools place them together by, and their names are meant for constraints: no timing
// from `d` to `meta`, and nothing between `meta` and `q`.
//   WIDTH  bits
//   RESET  value of both flip-flops during a reset
module cdc_synchronizer #(
    parameter             WIDTH = 1,
    parameter [WIDTH-1:0] RESET = {WIDTH{1'b0}}
) (
    input  wire             clk,
    input  wire             rstn,
    input  wire [WIDTH-1:0] d,
    output wire [WIDTH-1:0] q
);
    (* async_reg = "true" *) reg [WIDTH-1:0] meta;
    (* async_reg = "true" *) reg [WIDTH-1:0] stable;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            meta   <= RESET;
            stable <= RESET;
        end else begin
            meta   <= d;
            stable <= meta;
        end
    assign q = stable;
endmodule
