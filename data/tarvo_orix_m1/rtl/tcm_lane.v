// One byte lane of a tightly coupled memory (tcm_ram.v).
//   ADDR_WIDTH  bytes = 2 ** ADDR_WIDTH
//   INIT_EN     1: contents start from FILE
//   FILE        the bytes, hexadecimal, in $readmemh form
module tcm_lane #(
    parameter ADDR_WIDTH = 11,
    parameter INIT_EN    = 0,
    parameter FILE       = "none"
) (
    input  wire                  clk,
    input  wire                  en,
    input  wire                  read,    // no lane of the word is written
    input  wire                  we,
    input  wire [ADDR_WIDTH-1:0] addr,
    input  wire [7:0]            wdata,
    output reg  [7:0]            rdata
);
    (* ram_style = "block" *)
    reg [7:0] mem [0:(1 << ADDR_WIDTH)-1];
    generate
        if (INIT_EN != 0) begin : g_init
            initial $readmemh(FILE, mem);
        end
    endgenerate

    always @(posedge clk)
        if (en & we)
            mem[addr] <= wdata;
    always @(posedge clk)
        if (en & read)
            rdata <= mem[addr];
endmodule
