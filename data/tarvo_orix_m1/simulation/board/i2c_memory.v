// A memory on an I2C bus. Up to 2 KB it takes one address byte and has the addresses 0x50 to 0x57 of the bus, 256 bytes each;
// larger ones take two, high byte first, at 0x50. Writing stays within a page: 16 bytes up to 2 KB, 32 up to 8 KB, 64 up to
// 32 KB, 128 above. A page is kept with the stop condition; the memory answers nobody for WRITE_CYCLES after it. Reading goes on
// from the last address, and from the end to the beginning.
//
// Lines are looked at with clk, which is at least four times as fast as SCL. Bytes are kept by what runs the simulation where
// that gives BOARD_LOAD and BOARD_STORE, and else in an array that is blank at the start.
module board_i2c_memory #(
    parameter STORAGE      = 0,
    parameter BYTES        = 65536,   // of the array
    parameter WRITE_CYCLES = 1000
) (
    input  wire        clk,
    input  wire [31:0] size,          // bytes, a power of two from 256 to 65536
    input  wire        scl, sda,      // levels of the lines
    output reg         sda_low        // 1 pulls the line
);
`ifndef BOARD_LOAD
    reg [7:0] memory [0:BYTES-1];
    integer n;
    initial
        for (n = 0; n < BYTES; n = n + 1) memory[n] = 8'hFF;
`endif
    function [7:0] load(input [31:0] address);
`ifdef BOARD_LOAD
        integer value;
        begin
            value = `BOARD_LOAD(STORAGE, address);
            load = value[7:0];
        end
`else
        load = memory[address];
`endif
    endfunction
    task store(input [31:0] address, input [7:0] value);
`ifdef BOARD_STORE
        `BOARD_STORE(STORAGE, address, value);
`else
        memory[address] = value;
`endif
    endtask

    wire         is_wide   = size > 32'd2048;
    wire [31:0]  page_mask = size <= 32'd2048 ? 32'd15 : size <= 32'd8192 ? 32'd31 : size <= 32'd32768 ? 32'd63 : 32'd127;
    wire         scl_high  = scl !== 1'b0;
    wire         sda_high  = sda !== 1'b0;
    reg          scl_was   = 1'b1;
    reg          sda_was   = 1'b1;
    reg          running   = 1'b0;   // between start and stop
    reg          first     = 1'b0;   // the byte is the one behind a start
    reg          mine      = 1'b0;
    reg          reading   = 1'b0;
    reg          acked     = 1'b0;   // by the master
    reg [1:0]    header    = 2'd0;   // address bytes that are still to come
    reg [3:0]    bits      = 4'd0;
    reg [7:0]    shift     = 8'd0;
    reg [7:0]    answer    = 8'd0;
    reg [31:0]   place     = 32'd0;
    reg [7:0]    page [0:127];
    reg [127:0]  filled    = 128'd0;
    reg [31:0]   busy      = 32'd0;
    integer i;
    initial begin
        sda_low = 1'b0;
        for (i = 0; i < 128; i = i + 1) page[i] = 8'hFF;
    end
    always @(posedge clk) begin
        scl_was <= scl_high;
        sda_was <= sda_high;
        if (busy != 32'd0)
            busy <= busy - 32'd1;
        if (scl_high && scl_was && sda_was && !sda_high) begin            // start
            running <= 1'b1;
            first <= 1'b1;
            mine <= 1'b0;
            bits <= 4'd0;
            sda_low <= 1'b0;
        end else if (scl_high && scl_was && !sda_was && sda_high) begin   // stop
            running <= 1'b0;
            mine <= 1'b0;
            sda_low <= 1'b0;
            if (running && mine && !reading && filled != 128'd0) begin
                for (i = 0; i < 128; i = i + 1)
                    if (filled[i])
                        store((place & ~page_mask) | i, page[i]);
                filled <= 128'd0;
                busy <= WRITE_CYCLES;
            end
        end else if (running && scl_high && !scl_was) begin
            if (bits < 4'd8) shift <= {shift[6:0], sda_high};
            else acked <= !sda_high;
            bits <= bits + 4'd1;
        end else if (running && !scl_high && scl_was) begin
            if (bits == 4'd8) begin
                sda_low <= 1'b0;
                if (first) begin
                    reading <= shift[0];
                    header <= is_wide ? 2'd2 : 2'd1;
                    if (!shift[0])
                        filled <= 128'd0;
                    if (shift[7:4] == 4'b1010 && busy == 32'd0
                            && (is_wide ? shift[3:1] == 3'd0 : {21'd0, shift[3:1], 8'd0} < size)) begin
                        mine <= 1'b1;
                        sda_low <= 1'b1;
                        if (!is_wide)
                            place[10:8] <= shift[3:1];
                    end
                end else if (mine && !reading) begin
                    sda_low <= 1'b1;
                    if (header != 2'd0) begin
                        header <= header - 2'd1;
                        if (header == 2'd2) place <= {16'd0, shift, 8'd0} & (size - 32'd1);
                        else place[7:0] <= shift;
                    end else begin
                        page[place[6:0] & page_mask[6:0]] <= shift;
                        filled[place[6:0] & page_mask[6:0]] <= 1'b1;
                        place <= (place & ~page_mask) | ((place + 32'd1) & page_mask);
                    end
                end
            end else if (bits == 4'd9) begin
                bits <= 4'd0;
                first <= 1'b0;
                sda_low <= 1'b0;
                if (mine && reading) begin
                    if (first || acked) begin
                        answer = load(place);
                        place <= (place + 32'd1) & (size - 32'd1);
                        sda_low <= ~answer[7];
                    end else
                        mine <= 1'b0;
                end
            end else if (mine && reading && !first)
                sda_low <= ~answer[3'd7 - bits[2:0]];
        end
    end
endmodule
