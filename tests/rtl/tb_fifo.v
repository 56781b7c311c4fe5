// FIFO: random pushes, pops and clears against a queue of its own, in depths of 2 and 16.
module fifo_checker #(
    parameter WIDTH     = 9,
    parameter LOG_DEPTH = 4
) (
    input wire        clk,
    input wire        rstn,
    input wire [31:0] random   // new in every cycle
);
    localparam DEPTH = 1 << LOG_DEPTH;
    // Long spells of more pushes than pops and the other way round, so that both ends are reached.
    wire filling = random[31];
    wire clear   = random[15:8] == 8'd0;
    wire push    = filling ? random[0] | random[1] : random[0] & random[1];
    wire pop     = filling ? random[2] & random[3] : random[2] | random[3];
    wire [WIDTH-1:0] wdata = random[16 +: WIDTH];
    wire [WIDTH-1:0] rdata;
    wire             empty, full;
    wire [LOG_DEPTH:0] level;
    sync_fifo #(.WIDTH(WIDTH), .LOG_DEPTH(LOG_DEPTH)) dut (.clk(clk), .rstn(rstn), .clear(clear), .push(push),
        .wdata(wdata), .pop(pop), .rdata(rdata), .empty(empty), .full(full), .level(level));

    reg [WIDTH-1:0] queue [0:DEPTH-1];   // oldest first
    integer count = 0, n, fulls = 0, errors = 0, both = 0;
    always @(posedge clk)
        if (!rstn)
            count = 0;
        else begin
            if (empty !== (count == 0) || full !== (count == DEPTH) || level !== count[LOG_DEPTH:0]
                    || rdata !== (count == 0 ? {WIDTH{1'b0}} : queue[0])) begin
                errors = errors + 1;
                $display("%0t: failed: depth %0d, %0d words: empty %b full %b level %0d data %h", $time, DEPTH, count,
                         empty, full, level, rdata);
            end
            if (clear)
                count = 0;
            else begin
                if (count == DEPTH) begin
                    fulls = fulls + 1;
                    if (push && pop)
                        both = both + 1;
                end
                if (pop && count > 0) begin
                    for (n = 1; n < count; n = n + 1)
                        queue[n-1] = queue[n];
                    count = count - 1;
                end else if (push && count == DEPTH)
                    count = DEPTH + 1;   // refused below
                if (count > DEPTH)
                    count = DEPTH;
                else if (push && count < DEPTH) begin
                    queue[count] = wdata;
                    count = count + 1;
                end
            end
        end
endmodule

module tb;
`include "bench.vh"
    reg [31:0] random = 32'd0;
    integer    n;
    fifo_checker #(.WIDTH(9), .LOG_DEPTH(4)) deep (.clk(clk), .rstn(rstn), .random(random));
    fifo_checker #(.WIDTH(5), .LOG_DEPTH(1)) shallow (.clk(clk), .rstn(rstn), .random(random));
    initial begin
        reset;
        for (n = 0; n < 20000; n = n + 1) begin
            random[30:0] = $random;
            if (n % 64 == 0)
                random[31] = ~random[31];
            cycles(1);
        end
        check(deep.errors == 0 && shallow.errors == 0, "as the queue");
        check(deep.fulls > 100 && shallow.fulls > 100, "full often enough");
        check(deep.both > 10 && shallow.both > 10, "pushed and popped while full");
        finish;
    end
endmodule
