// A FIFO: any word that goes in comes out when those before it have, as the first word; level and flags count; nothing else is seen.
module proof (
    input wire       clk, rstn, clear, push, pop, watch,
    input wire [1:0] wdata
);
`include "environment.vh"
    wire [1:0] rdata;
    wire       empty, full;
    wire [2:0] level;
    sync_fifo #(.WIDTH(2), .LOG_DEPTH(2)) dut (
        .clk(clk), .rstn(rstn), .clear(clear), .push(push), .wdata(wdata), .pop(pop), .rdata(rdata), .empty(empty), .full(full),
        .level(level)
    );
    reg [2:0] count;
    wire      leaves = pop & (count != 3'd0);
    wire      enters = push & (count != 3'd4 | leaves);
    reg       inside;      // the word that is watched
    reg [2:0] ahead;       // words before it
    reg [1:0] word;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            count  <= 3'd0;
            inside <= 1'b0;
            ahead  <= 3'd0;
            word   <= 2'd0;
        end else if (clear) begin
            count  <= 3'd0;
            inside <= 1'b0;
        end else begin
            count <= count + enters - leaves;
            if (inside) begin
                inside <= !(leaves & ahead == 3'd0);
                ahead  <= ahead - leaves;
            end else if (enters & watch) begin
                inside <= 1'b1;
                ahead  <= count - leaves;
                word   <= wdata;
            end
        end
    always @*
        if (rstn) begin
            assert (level == count && empty == (count == 3'd0) && full == (count == 3'd4));
            assert (!empty || rdata == 2'd0);
            assert (!(inside && ahead == 3'd0) || rdata == word);
        end
endmodule
