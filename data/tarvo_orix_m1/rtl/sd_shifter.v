// Shifts bytes over SPI as master in mode 0, most significant bit first.  Each pulse of `tick` is half a clock period of
// sclk; there may be one in every cycle.  A byte begins at rest when `run` is 1, and follows the one before without a pause
// when `run` is 1 at its end (`step`).  `done` comes one or two cycles after `step`, when the received byte is in `rx`.
module sd_shifter (
    input  wire       clk,
    input  wire       rstn,
    input  wire       tick,
    input  wire       late,      // miso is sampled at the falling edge of sclk, half a period after the rising one
    input  wire       halt,      // ends at once, also within a byte
    input  wire       run,
    input  wire [7:0] tx,
    output reg        active,    // a byte is on its way
    output wire       step,
    output wire       sent,      // the bit on mosi is being sampled by the card
    output reg        received,  // `bit_in` is new
    output reg        bit_in,
    output reg  [7:0] rx,
    output reg        done,
    output reg        sclk,
    output reg        mosi,
    input  wire       miso
);
    reg [6:0] following;
    reg [2:0] bits;
    reg       step_late;

    wire rise = active & tick & ~sclk;
    wire fall = active & tick & sclk;
    wire rest = ~active & ~step_late & ~done;   // and the state behind the last byte is known
    wire load = run & (rest | step) & ~halt;
    assign step = fall & (&bits);
    assign sent = rise;

    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            active    <= 1'b0;
            sclk      <= 1'b0;
            mosi      <= 1'b1;
            following <= 7'h7F;
            bits      <= 3'd0;
            step_late <= 1'b0;
            done      <= 1'b0;
            received  <= 1'b0;
            bit_in    <= 1'b0;
            rx        <= 8'd0;
        end else begin
            if (rise)
                sclk <= 1'b1;
            if (fall) begin
                sclk <= 1'b0;
                bits <= bits + 3'd1;
            end
            if (load) begin
                active <= 1'b1;
                bits   <= 3'd0;
                {mosi, following} <= tx;
            end else begin
                if (step)
                    active <= 1'b0;
                if (fall)
                    {mosi, following} <= {following, 1'b1};
            end
            step_late <= step & late;
            done      <= late ? step_late : step;
            received  <= late ? fall : rise;
            if (late ? fall : rise)
                bit_in <= miso;
            if (received)
                rx <= {rx[6:0], bit_in};
            if (halt) begin
                active    <= 1'b0;
                sclk      <= 1'b0;
                mosi      <= 1'b1;
                bits      <= 3'd0;
                step_late <= 1'b0;
                done      <= 1'b0;
                received  <= 1'b0;
            end
        end
endmodule
