// Two memories of 512 KB, one in byte lanes and one in words with byte enables.
module top (input clk, input en, input [3:0] we, input [16:0] addr, input [31:0] wdata, output [31:0] words, output [31:0] lanes);
    memory #(.LANES(4)) u_words (.clk(clk), .en(en), .we(we), .addr(addr), .wdata(wdata), .rdata(words));
    genvar n;
    generate
        for (n = 0; n < 4; n = n + 1) begin : lane
            memory #(.LANES(1)) u_lane (
                .clk(clk), .en(en), .we(we[n]), .addr(addr), .wdata(wdata[8*n +: 8]), .rdata(lanes[8*n +: 8])
            );
        end
    endgenerate
endmodule

module memory #(parameter LANES = 1) (
    input clk, input en, input [LANES-1:0] we, input [16:0] addr, input [8*LANES-1:0] wdata, output reg [8*LANES-1:0] rdata
);
    reg [8*LANES-1:0] mem [0:131071];
    genvar n;
    generate
        for (n = 0; n < LANES; n = n + 1) begin : lane
            always @(posedge clk)
                if (en & we[n]) mem[addr][8*n +: 8] <= wdata[8*n +: 8];
        end
    endgenerate
    always @(posedge clk)
        if (en & ~(|we)) rdata <= mem[addr];
endmodule
