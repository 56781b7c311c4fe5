// Shifts units of a transfer over one, two or four lanes to and from a serial flash, in mode 0.  A unit is a number of
// clocks of sclk; without a pause between them units follow each other without a gap.  A unit waits while `valid` and is
// taken in the cycle in which `take` is 1.  Data go out at falling edges, the first of a unit when it is taken.
// What comes in is sampled `delay` cycles of clk behind the rising edge; `rx_done` is 1 for one cycle when a byte stands in rx.
module spi_flash_shifter (
    input  wire       clk,
    input  wire       rstn,
    input  wire [7:0] div,       // half a period of sclk is div + 1 cycles
    input  wire [1:0] delay,

    input  wire       valid,
    output wire       take,
    input  wire [7:0] tx,        // highest bits first; behind its end ones follow
    input  wire [1:0] lanes,     // 0: one, 1: two, 2: four
    input  wire       drives,    // the lanes are the controller's
    input  wire       samples,   // the unit is a byte that comes in
    input  wire       quiet,     // passes as long, with sclk low and the lanes as they are
    input  wire [5:0] clocks,    // clocks of the unit, less one

    input  wire       stop,      // ends the unit as soon as sclk is low; nothing more comes in
    input  wire       rest,      // lanes as between transfers
    output reg        busy,
    output wire       receiving, // samples are on their way
    output reg  [7:0] rx,
    output reg        rx_done,

    input  wire       wpn,       // levels of lanes 2 and 3 while they are no lanes
    input  wire       holdn,
    output reg        sclk,
    output wire [3:0] out,
    output wire [3:0] outen,
    input  wire [3:0] in
);
    reg [7:0] count;
    reg       phase;             // second half of a clock
    reg [5:0] left;
    reg [7:0] shift;
    reg [1:0] mode;
    reg       driving;
    reg       sampling;
    reg       silent;

    wire tick = count == 8'd0;
    wire last = left == 6'd0;
    assign take = valid & ~stop & (~busy | (tick & phase & last));

    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            busy     <= 1'b0;
            sclk     <= 1'b0;
            count    <= 8'd0;
            phase    <= 1'b0;
            left     <= 6'd0;
            shift    <= 8'd0;
            mode     <= 2'd0;
            driving  <= 1'b1;
            sampling <= 1'b0;
            silent   <= 1'b0;
        end else if (take) begin
            busy     <= 1'b1;
            sclk     <= 1'b0;
            count    <= div;
            phase    <= 1'b0;
            left     <= clocks;
            sampling <= samples;
            silent   <= quiet;
            if (!quiet) begin
                shift   <= tx;
                mode    <= lanes;
                driving <= drives;
            end
        end else begin
            if (rest) begin
                shift   <= 8'd0;
                mode    <= 2'd0;
                driving <= 1'b1;
            end
            if (busy) begin
                count <= tick ? div : count - 8'd1;
                if (stop & ~phase)
                    busy <= 1'b0;
                else if (tick) begin
                    phase <= ~phase;
                    sclk  <= ~phase & ~silent;
                    if (phase) begin
                        left <= left - 6'd1;
                        busy <= ~(last | stop);
                        if (!silent)
                            shift <= mode[1] ? {shift[3:0], 4'hF} : mode[0] ? {shift[5:0], 2'b11} : {shift[6:0], 1'b1};
                    end
                end
            end
        end

    assign out[0] = mode[1] ? shift[4] : mode[0] ? shift[6] : shift[7];
    assign out[1] = mode[1] ? shift[5] : shift[7];
    assign out[2] = mode[1] ? shift[6] : wpn;
    assign out[3] = mode[1] ? shift[7] : holdn;
    assign outen  = {{2{driving | ~mode[1]}}, driving & (mode[1] | mode[0]), driving | ~(mode[1] | mode[0])};

    // The sampling edges, each with whether a byte ends there, and the same one to three cycles later.
    wire       rises = busy & tick & ~phase & sampling & ~stop;
    reg  [2:0] late;
    reg  [2:0] late_last;
    wire [3:0] edges = {late, rises};
    wire [3:0] ends  = {late_last, last};
    wire       sample = edges[delay];
    assign receiving = (late != 3'd0) | rx_done;

    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            late      <= 3'd0;
            late_last <= 3'd0;
            rx        <= 8'd0;
            rx_done   <= 1'b0;
        end else begin
            // What has been sampled goes no further.
            late      <= {edges[2] & (delay == 2'd3), edges[1] & delay[1], edges[0] & (delay != 2'd0)} & {3{~stop}};
            late_last <= ends[2:0];
            rx_done   <= sample & ends[delay] & ~stop;
            if (sample)
                rx <= mode[1] ? {rx[3:0], in} : mode[0] ? {rx[5:0], in[1:0]} : {rx[6:0], in[1]};
        end
endmodule
