// Tightly coupled instruction memory of the 3-series devices, for a processor without debug.
// The block RAM of this family has byte enables up to 16 bits, so the word is two half-word banks.
//
// SIZE is the 4-bit size code: 1 is 1 KB, and every step doubles it up to 10, 512 KB; 0 (no memory) reads as zero.
//
// With INIT_EN = 1 the memory starts with the program in the folder INIT_PATH: the files itcm0, itcm1, itcm2 and itcm3
// hold the bytes of lane 0 (bits 7 to 0) to lane 3 (bits 31 to 24) of successive words, hexadecimal, in $readmemh form.
module itcm #(
    parameter [3:0] SIZE = 4'b0110,
    parameter       INIT_EN   = 0,
    parameter       INIT_PATH = "."
) (
    input  wire        HCLK,
    input  wire        en,
    input  wire [3:0]  we,
    input  wire [17:0] addr,    // word address
    input  wire [31:0] wdata,
    output wire [31:0] rdata
);
    localparam AW = (SIZE == 0) ? 8 : SIZE + 7;   // 1 KB is 256 words

    generate
        if (SIZE == 0) begin : g_none
            assign rdata = 32'd0;
        end else begin : g_ram
            wire [AW-1:0] word = addr[AW-1:0];
            wire [31:0]   ram_rdata;
            assign rdata = ram_rdata;

            if (INIT_EN != 0) begin : g_lanes   // the program files are byte lanes
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
            end else begin : g_banks
                tcm_ram #(.LANES(2), .ADDR_WIDTH(AW)) u_bank0 (
                    .clk(HCLK), .en(en), .we(we[1:0]), .addr(word), .wdata(wdata[15:0]), .rdata(ram_rdata[15:0])
                );
                tcm_ram #(.LANES(2), .ADDR_WIDTH(AW)) u_bank1 (
                    .clk(HCLK), .en(en), .we(we[3:2]), .addr(word), .wdata(wdata[31:16]), .rdata(ram_rdata[31:16])
                );
            end
        end
    endgenerate
endmodule
