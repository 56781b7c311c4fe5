// Shifts one byte over SPI as master.  Each pulse of tick is half a clock period of sclk.  A byte starts with start
// while busy is 0; done is 1 for one cycle when the received byte is in rx_data.
module spi_engine (
    input  wire       clk,
    input  wire       rstn,
    input  wire       tick,
    input  wire       start,
    input  wire       cpol,       // level of sclk between bytes
    input  wire       cpha,       // 0: sample at the first edge, 1: at the second
    input  wire       lsb_first,
    input  wire [7:0] tx_data,
    output wire [7:0] rx_data,
    output reg        busy,
    output reg        done,
    output reg        sclk,
    output reg        mosi,
    input  wire       miso
);
    reg [7:0] shift_out;
    reg [7:0] shift_in;
    reg [4:0] edges;      // edges of sclk made so far

    wire [7:0] ordered = lsb_first ? {tx_data[0], tx_data[1], tx_data[2], tx_data[3],
                                      tx_data[4], tx_data[5], tx_data[6], tx_data[7]} : tx_data;
    assign rx_data     = lsb_first ? {shift_in[0], shift_in[1], shift_in[2], shift_in[3],
                                      shift_in[4], shift_in[5], shift_in[6], shift_in[7]} : shift_in;

    wire trailing = edges[0];
    wire finish   = edges == 5'd16;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            busy      <= 1'b0;
            done      <= 1'b0;
            sclk      <= 1'b0;
            mosi      <= 1'b0;
            shift_out <= 8'd0;
            shift_in  <= 8'd0;
            edges     <= 5'd0;
        end else begin
            done <= 1'b0;
            if (!busy) begin
                sclk  <= cpol;
                edges <= 5'd0;
                if (start) begin
                    busy <= 1'b1;
                    // With cpha = 0 the first bit stands before the first edge.
                    mosi      <= cpha ? mosi : ordered[7];
                    shift_out <= cpha ? ordered : {ordered[6:0], 1'b0};
                end
            end else if (tick) begin
                if (finish) begin
                    busy <= 1'b0;
                    done <= 1'b1;
                end else begin
                    edges <= edges + 5'd1;
                    sclk  <= ~sclk;
                    if (trailing == cpha)
                        shift_in <= {shift_in[6:0], miso};
                    else if (cpha | (edges != 5'd15)) begin
                        mosi      <= shift_out[7];
                        shift_out <= {shift_out[6:0], 1'b0};
                    end
                end
            end
        end
endmodule
