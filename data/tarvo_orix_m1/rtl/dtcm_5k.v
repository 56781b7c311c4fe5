// Tightly coupled data memory of the 5-series devices, for a processor without debug.
//
// SIZE is the 4-bit size code: 1 is 1 KB, and every step doubles it up to 10, 512 KB; 0 (no memory) reads as zero.
module dtcm #(
    parameter [3:0] SIZE = 4'b0110
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
            tcm_ram #(.ADDR_WIDTH(AW)) u_ram (
                .clk(HCLK), .en(en), .we(we), .addr(word), .wdata(wdata), .rdata(rdata)
            );
        end
    endgenerate
endmodule
