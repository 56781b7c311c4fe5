// Synchronous RAM of 32-bit words with one port and a write enable per byte, meant for block RAM: the read data appears
// after the clock edge, and a write cycle leaves the read data alone.
//   ADDR_WIDTH  words = 2 ** ADDR_WIDTH
//   INIT_EN     1: contents start from the files itcm0, itcm1, itcm2 and itcm3 in the folder INIT_PATH: the bytes of lane 0
//               (bits 7 to 0) to lane 3 (bits 31 to 24) of successive words, hexadecimal, in $readmemh form
//
// Without initial contents the word is one array, and the block RAM's byte enables make the lanes: as many blocks of 2 KB
// as the bytes need.  The files of the initial contents are lanes, and an array can be filled from whole files only.  So
// each lane is an array of its own there, or, where that would leave the blocks half empty, two lanes share an array, each
// in its half and at its port: two blocks for up to 4 KB.
module tcm_ram #(
    parameter ADDR_WIDTH = 8,
    parameter INIT_EN    = 0,
    parameter INIT_PATH  = "."
) (
    input  wire                  clk,
    input  wire                  en,
    input  wire [3:0]            we,
    input  wire [ADDR_WIDTH-1:0] addr,
    input  wire [31:0]           wdata,
    output wire [31:0]           rdata
);
    generate
        if (INIT_EN == 0) begin : g_word
            (* ram_style = "block" *)
            reg [31:0] mem [0:(1 << ADDR_WIDTH)-1];
            reg [31:0] word;
            genvar n;
            for (n = 0; n < 4; n = n + 1) begin : g_lane
                always @(posedge clk)
                    if (en & we[n])
                        mem[addr][8*n +: 8] <= wdata[8*n +: 8];
            end
            always @(posedge clk)
                if (en & ~(|we))
                    word <= mem[addr];
            assign rdata = word;
        end else if (ADDR_WIDTH <= 10) begin : g_pairs
            wire read = ~(|we);
            tcm_lane_pair #(
                .ADDR_WIDTH(ADDR_WIDTH), .INIT_EN(INIT_EN), .LOW_FILE({INIT_PATH, "/itcm0"}), .HIGH_FILE({INIT_PATH, "/itcm1"})
            ) u_low (
                .clk(clk), .en(en), .read(read), .we(we[1:0]), .addr(addr), .wdata(wdata[15:0]), .rdata(rdata[15:0])
            );
            tcm_lane_pair #(
                .ADDR_WIDTH(ADDR_WIDTH), .INIT_EN(INIT_EN), .LOW_FILE({INIT_PATH, "/itcm2"}), .HIGH_FILE({INIT_PATH, "/itcm3"})
            ) u_high (
                .clk(clk), .en(en), .read(read), .we(we[3:2]), .addr(addr), .wdata(wdata[31:16]), .rdata(rdata[31:16])
            );
        end else begin : g_lanes
            wire read = ~(|we);
            tcm_lane #(.ADDR_WIDTH(ADDR_WIDTH), .INIT_EN(INIT_EN), .FILE({INIT_PATH, "/itcm0"})) u_lane0 (
                .clk(clk), .en(en), .read(read), .we(we[0]), .addr(addr), .wdata(wdata[7:0]), .rdata(rdata[7:0])
            );
            tcm_lane #(.ADDR_WIDTH(ADDR_WIDTH), .INIT_EN(INIT_EN), .FILE({INIT_PATH, "/itcm1"})) u_lane1 (
                .clk(clk), .en(en), .read(read), .we(we[1]), .addr(addr), .wdata(wdata[15:8]), .rdata(rdata[15:8])
            );
            tcm_lane #(.ADDR_WIDTH(ADDR_WIDTH), .INIT_EN(INIT_EN), .FILE({INIT_PATH, "/itcm2"})) u_lane2 (
                .clk(clk), .en(en), .read(read), .we(we[2]), .addr(addr), .wdata(wdata[23:16]), .rdata(rdata[23:16])
            );
            tcm_lane #(.ADDR_WIDTH(ADDR_WIDTH), .INIT_EN(INIT_EN), .FILE({INIT_PATH, "/itcm3"})) u_lane3 (
                .clk(clk), .en(en), .read(read), .we(we[3]), .addr(addr), .wdata(wdata[31:24]), .rdata(rdata[31:24])
            );
        end
    endgenerate
endmodule
