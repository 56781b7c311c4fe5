// A serial flash in mode 0 with addresses of 24 bits: 03h and 0Bh read, 02h programs within a page of 256 bytes, 20h erases
// 4 KB, D8h 64 KB, 06h and 04h enable and disable both, 05h is the status (bit 0: busy, bit 1: enabled), 9Fh the identification
// A0h 01h N of a flash of 2^N bytes. While it works only its status can be read.
//
// Lines are looked at with clk, which may be as slow as twice the serial clock. Bytes are kept by what runs the simulation where
// that gives BOARD_LOAD and BOARD_STORE, and else in an array that is blank at the start.
module board_spi_flash #(
    parameter STORAGE        = 1,
    parameter BYTES          = 1048576, // of the array
    parameter PROGRAM_CYCLES = 500,
    parameter ERASE_CYCLES   = 2000
) (
    input  wire        clk,
    input  wire [31:0] size,            // bytes, a power of two up to 16 MB
    input  wire        csn, sclk, mosi,
    output wire        miso             // counts while csn is 0
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

    wire        chosen     = csn === 1'b0;
    wire        high       = sclk === 1'b1;
    reg         chosen_was = 1'b0;
    reg         high_was   = 1'b0;
    reg         shown      = 1'b1;   // while the clock is high
    reg         following  = 1'b1;   // from its next fall on
    reg         enabled    = 1'b0;
    reg         dirty      = 1'b0;   // there is something to be programmed
    reg [2:0]   bits       = 3'd0;
    reg [2:0]   count      = 3'd0;   // bytes of the command; 7 and more are 7
    reg [7:0]   command    = 8'd0;
    reg [7:0]   in         = 8'd0;
    reg [7:0]   out        = 8'hFF;
    reg [7:0]   capacity   = 8'd0;
    reg [31:0]  at         = 32'd0;
    reg [31:0]  busy       = 32'd0;
    reg [7:0]   page [0:255];
    reg [255:0] filled     = 256'd0;
    integer i;
    initial
        for (i = 0; i < 256; i = i + 1) page[i] = 8'hFF;
    assign miso = high ? shown : following;

    task read_next;
        begin
            out = load(at & (size - 32'd1));
            at = at + 32'd1;
        end
    endtask
    // A byte is complete: what is sent next, and what is kept.
    task take;
        begin
            out = 8'hFF;
            if (count == 3'd0) begin
                command = (busy != 32'd0 && in != 8'h05) ? 8'd0 : in;
                at = 32'd0;
                dirty = 1'b0;
                filled = 256'd0;
            end else if (count <= 3'd3)
                at = {8'd0, at[15:0], in};
            else if (command == 8'h02) begin
                page[at[7:0]] = in;
                filled[at[7:0]] = 1'b1;
                at[7:0] = at[7:0] + 8'd1;
                dirty = 1'b1;
            end
            case (command)
                8'h05: out = {6'd0, enabled, busy != 32'd0};
                8'h9F:
                    if (count == 3'd0) out = 8'hA0;
                    else if (count == 3'd1) out = 8'h01;
                    else if (count == 3'd2) begin
                        for (i = 0; i < 25; i = i + 1)
                            if (size[i]) capacity = i;
                        out = capacity;
                    end
                8'h03: if (count >= 3'd3) read_next;
                8'h0B: if (count >= 3'd4) read_next;
                default: ;
            endcase
            if (count != 3'd7)
                count = count + 3'd1;
        end
    endtask
    // The chip is no longer selected.
    task finish;
        case (command)
            8'h06: if (count == 3'd1) enabled = 1'b1;
            8'h04: if (count == 3'd1) enabled = 1'b0;
            8'h20, 8'hD8:
                if (count == 3'd4 && enabled) begin
                    at = at & (size - 32'd1) & (command == 8'h20 ? ~32'h00000FFF : ~32'h0000FFFF);
                    for (i = 0; i < (command == 8'h20 ? 4096 : 65536); i = i + 1)
                        store(at + i, 8'hFF);
                    enabled = 1'b0;
                    busy = ERASE_CYCLES;
                end
            8'h02:
                if (dirty && enabled) begin
                    at = at & (size - 32'd1) & ~32'h000000FF;
                    for (i = 0; i < 256; i = i + 1)
                        if (filled[i])
                            store(at + i, load(at + i) & page[i]);
                    enabled = 1'b0;
                    busy = PROGRAM_CYCLES;
                end
            default: ;
        endcase
    endtask
    always @(posedge clk) begin
        chosen_was <= chosen;
        high_was <= high;
        if (busy != 32'd0)
            busy = busy - 32'd1;
        if (!high)
            shown <= following;
        if (!chosen) begin
            if (chosen_was)
                finish;
            command = 8'd0;
            bits <= 3'd0;
            count = 3'd0;
            out = 8'hFF;
            following <= 1'b1;
        end else if (high && !high_was) begin
            in = {in[6:0], mosi === 1'b1};
            bits <= bits + 3'd1;
            if (bits == 3'd7) begin
                take;
                following <= out[7];
            end else
                following <= out[3'd6 - bits];
        end
    end
endmodule
