// Tightly coupled instruction memory for a processor with debug, on the 2-series devices of version C.
//
// The debugger's port shares the one memory port with the processor, which always comes first: a debug access is taken
// in the first cycle without a processor access, and dbg_ready is 1 in that cycle; its read data follows after the
// clock edge.  The debugger holds its request until then.
//
// SIZE is the 4-bit size code: 1 is 1 KB, and every step doubles it up to 10, 512 KB; 0 (no memory) reads as zero.
//
// With INIT_EN = 1 the memory starts with the program in the folder INIT_PATH (tcm_ram.v).
module itcmdbg #(
    parameter [3:0] SIZE = 4'b0110,
    parameter       INIT_EN   = 0,
    parameter       INIT_PATH = "."
) (
    input  wire        HCLK,
    // processor
    input  wire        core_en,
    input  wire [3:0]  core_we,
    input  wire [17:0] core_addr,   // word address
    input  wire [31:0] core_wdata,
    // debugger
    input  wire        dbg_en,
    input  wire [3:0]  dbg_we,
    input  wire [17:0] dbg_addr,    // word address
    input  wire [31:0] dbg_wdata,
    output wire        dbg_ready,
    // read data of the last access, whichever port made it
    output wire [31:0] rdata
);
    localparam AW = (SIZE == 0) ? 8 : SIZE + 7;   // 1 KB is 256 words

    assign dbg_ready = dbg_en & ~core_en;

    generate
        if (SIZE == 0) begin : g_none
            assign rdata = 32'd0;
        end else begin : g_ram
            wire          en    = core_en | dbg_en;
            wire [3:0]    we    = core_en ? core_we : dbg_we;
            wire [AW-1:0] word  = core_en ? core_addr[AW-1:0] : dbg_addr[AW-1:0];
            wire [31:0]   wdata = core_en ? core_wdata : dbg_wdata;
            tcm_ram #(.ADDR_WIDTH(AW), .INIT_EN(INIT_EN), .INIT_PATH(INIT_PATH)) u_ram (
                .clk(HCLK), .en(en), .we(we), .addr(word), .wdata(wdata), .rdata(rdata)
            );
        end
    endgenerate
endmodule
