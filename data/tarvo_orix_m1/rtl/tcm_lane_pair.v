// Two byte lanes of a tightly coupled memory, in the halves of one array (tcm_ram.v).  Each lane has
// a port of its own, and the ports never meet.
//   ADDR_WIDTH           bytes of a lane = 2 ** ADDR_WIDTH
//   INIT_EN              1: contents start from the files
//   LOW_FILE, HIGH_FILE  the bytes of the lanes, hexadecimal, in $readmemh form
module tcm_lane_pair #(
    parameter ADDR_WIDTH = 8,
    parameter INIT_EN    = 0,
    parameter LOW_FILE   = "none",
    parameter HIGH_FILE  = "none"
) (
    input  wire                  clk,
    input  wire                  en,
    input  wire                  read,    // no lane of the word is written
    input  wire [1:0]            we,
    input  wire [ADDR_WIDTH-1:0] addr,
    input  wire [15:0]           wdata,
    output reg  [15:0]           rdata
);
    localparam WORDS = 1 << ADDR_WIDTH;
    (* ram_style = "block" *)
    reg [7:0] mem [0:2*WORDS-1];
    generate
        if (INIT_EN != 0) begin : g_init
            initial begin
                $readmemh(LOW_FILE, mem, 0, WORDS - 1);
                $readmemh(HIGH_FILE, mem, WORDS, 2*WORDS - 1);
            end
        end
    endgenerate

    always @(posedge clk)
        if (en & we[0])
            mem[{1'b0, addr}] <= wdata[7:0];
    always @(posedge clk)
        if (en & read)
            rdata[7:0] <= mem[{1'b0, addr}];
    always @(posedge clk)
        if (en & we[1])
            mem[{1'b1, addr}] <= wdata[15:8];
    always @(posedge clk)
        if (en & read)
            rdata[15:8] <= mem[{1'b1, addr}];
endmodule
