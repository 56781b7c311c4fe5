// Tightly coupled instruction memory for a processor with debug, on devices without wide byte enables.
// Each byte lane is a memory of its own there.
//
// The debugger's port shares the one memory port with the processor, which always comes first: a debug access is taken
// in the first cycle without a processor access, and dbg_ready is 1 in that cycle; its read data follows after the
// clock edge.  The debugger holds its request until then.
//
// SIZE is the 4-bit size code: 1 is 1 KB, and every step doubles it up to 10, 512 KB; 0 (no memory) reads as zero.
//
// With INIT_EN = 1 the memory starts with the program in the folder INIT_PATH: the files itcm0, itcm1, itcm2 and itcm3
// hold the bytes of lane 0 (bits 7 to 0) to lane 3 (bits 31 to 24) of successive words, hexadecimal, in $readmemh form.
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
            wire [31:0]   ram_rdata;
            assign rdata = ram_rdata;

            tcm_ram #(.LANES(1), .ADDR_WIDTH(AW), .INIT_EN(INIT_EN), .INIT_FILE({INIT_PATH, "/itcm0"})) u_lane0 (
                .clk(HCLK), .en(en), .we(we[0]), .addr(word), .wdata(wdata[7:0]), .rdata(ram_rdata[7:0])
            );
            tcm_ram #(.LANES(1), .ADDR_WIDTH(AW), .INIT_EN(INIT_EN), .INIT_FILE({INIT_PATH, "/itcm1"})) u_lane1 (
                .clk(HCLK), .en(en), .we(we[1]), .addr(word), .wdata(wdata[15:8]), .rdata(ram_rdata[15:8])
            );
            tcm_ram #(.LANES(1), .ADDR_WIDTH(AW), .INIT_EN(INIT_EN), .INIT_FILE({INIT_PATH, "/itcm2"})) u_lane2 (
                .clk(HCLK), .en(en), .we(we[2]), .addr(word), .wdata(wdata[23:16]), .rdata(ram_rdata[23:16])
            );
            tcm_ram #(.LANES(1), .ADDR_WIDTH(AW), .INIT_EN(INIT_EN), .INIT_FILE({INIT_PATH, "/itcm3"})) u_lane3 (
                .clk(HCLK), .en(en), .we(we[3]), .addr(word), .wdata(wdata[31:24]), .rdata(ram_rdata[31:24])
            );
        end
    endgenerate
endmodule
