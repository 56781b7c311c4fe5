// Synchronous RAM with one port and a write enable per byte, meant for block RAM: the read data appears after the clock
// edge, and a write cycle leaves the read data alone.
//   LANES       bytes per word
//   ADDR_WIDTH  words = 2 ** ADDR_WIDTH
//   INIT_EN     1: contents start from INIT_FILE (hexadecimal words in $readmemh form)
module tcm_ram #(
    parameter LANES      = 1,
    parameter ADDR_WIDTH = 8,
    parameter INIT_EN    = 0,
    parameter INIT_FILE  = "none"
) (
    input  wire                  clk,
    input  wire                  en,
    input  wire [LANES-1:0]      we,
    input  wire [ADDR_WIDTH-1:0] addr,
    input  wire [8*LANES-1:0]    wdata,
    output reg  [8*LANES-1:0]    rdata
);
    (* ram_style = "block" *)
    reg [8*LANES-1:0] mem [0:(1 << ADDR_WIDTH)-1];

    generate
        if (INIT_EN != 0) begin : g_init
            initial $readmemh(INIT_FILE, mem);
        end
    endgenerate

    genvar n;
    generate
        for (n = 0; n < LANES; n = n + 1) begin : g_lane
            always @(posedge clk)
                if (en & we[n])
                    mem[addr][8*n +: 8] <= wdata[8*n +: 8];
        end
    endgenerate

    always @(posedge clk)
        if (en & ~(|we))
            rdata <= mem[addr];
endmodule
