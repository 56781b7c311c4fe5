// A serial flash in mode 0, up to four lanes:
//   03h, 0Bh, 3Bh, BBh, 6Bh, EBh   read: 1-1-1, with 8 dummy clocks, 1-1-2, 1-2-2, 1-1-4, 1-4-4; behind the address of the
//                                  fourth and the sixth is a mode byte, and A0h to AFh there leaves out the next opcode
//   02h, 32h                       program within a page of 256 bytes, 32h over four lanes
//   20h, D8h, C7h, 60h             erase 4 KB, 64 KB, all
//   06h, 04h                       enable and disable both
//   05h, 01h                       status: bit 0 busy, 1 enabled, 2 protects all bytes, 7 has WPN protect the status; written, with
//                                  a second byte both
//   35h, 31h                       second status: bit 1 makes WPN and HOLDN lanes, and lets commands have four
//   B7h, E9h                       addresses of four bytes, of three
//   66h 99h                        reset
//   5Ah                            parameters
//   9Fh                            the identification A0h 01h N of a flash of 2^N bytes
// While it works only its status can be read.  It does not mind being held.
//
// Lines are looked at with clk, which may be as slow as twice the serial clock. Bytes are kept by what runs the simulation where
// that gives BOARD_LOAD and BOARD_STORE, and else in an array that is blank at the start.
module board_spi_flash #(
    parameter STORAGE        = 1,
    parameter BYTES          = 1048576, // of the array
    parameter PROGRAM_CYCLES = 500,
    parameter ERASE_CYCLES   = 2000,
    parameter STATUS_CYCLES  = 500
) (
    input  wire        clk,
    input  wire [31:0] size,            // bytes, a power of two up to 16 MB
    input  wire        csn, sclk,
    input  wire [3:0]  lanes,           // MOSI, MISO, WPN, HOLDN from bit 0 on
    output wire [3:0]  out,
    output wire [3:0]  outen            // the lanes that it drives
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

    localparam [2:0] COMMAND = 3'd0, ADDRESS = 3'd1, MODE = 3'd2, DUMMY = 3'd3, OUT = 3'd4, IN = 3'd5, NOTHING = 3'd6;
    wire        chosen     = csn === 1'b0;
    wire        high       = sclk === 1'b1;
    reg         chosen_was = 1'b0;
    reg         high_was   = 1'b0;
    reg [3:0]   shown      = 4'd0, shown_on = 4'd0;          // while the clock is high
    reg [3:0]   following  = 4'd0, following_on = 4'd0;      // from its next fall on
    reg [2:0]   phase      = COMMAND;
    reg [7:0]   command    = 8'd0;
    reg [7:0]   in         = 8'd0;
    reg [7:0]   out_byte   = 8'd0;
    reg [7:0]   status     = 8'd0;
    reg [7:0]   status_2   = 8'd0;
    reg         enabled    = 1'b0;
    reg         long       = 1'b0;   // addresses of four bytes
    reg         going      = 1'b0;   // continuous reads
    reg         resetting  = 1'b0;
    reg [31:0]  at         = 32'd0;
    integer     busy       = 0;
    integer     width      = 1;      // lanes
    integer     bits       = 0;      // that came in
    integer     left       = 0;      // of out_byte
    integer     bytes      = 0;
    integer     dummies    = 0;
    reg [7:0]   page [0:255];
    reg [255:0] filled     = 256'd0;
    integer i;
    initial
        for (i = 0; i < 256; i = i + 1) page[i] = 8'hFF;
    assign out   = high ? shown : following;
    assign outen = !chosen ? 4'd0 : high ? shown_on : following_on;

    function [7:0] capacity(input [31:0] of);
        integer n;
        begin
            capacity = 8'd0;
            for (n = 0; n < 25; n = n + 1)
                if (of[n]) capacity = n[7:0];
        end
    endfunction
    // Its parameters, byte by byte.
    function [7:0] parameter_at(input [31:0] place, input [31:0] of);
        reg [31:0] word;
        begin
            case (place >> 2)
                32'd0:  word = 32'h50444653;
                32'd1:  word = 32'hFF000106;
                32'd2:  word = 32'h10010600;
                32'd3:  word = 32'hFF000010;
                32'd4:  word = 32'hFFF320E5;
                32'd5:  word = of * 32'd8 - 32'd1;
                32'd6:  word = 32'h6B08EB44;
                32'd7:  word = 32'hBB803B08;
                32'd8:  word = 32'hFFFFFFEE;
                32'd11: word = 32'hD810200C;
                32'd12: word = 32'h00000000;
                32'd18: word = 32'h00600000;
                default: word = 32'hFFFFFFFF;
            endcase
            parameter_at = word[8 * place[1:0] +: 8];
        end
    endfunction

    task read_next;
        begin
            case (command)
                8'h05: out_byte = {status[7:2], enabled, busy != 0};
                8'h35: out_byte = status_2;
                8'h9F: out_byte = bytes == 0 ? 8'hA0 : bytes == 1 ? 8'h01 : bytes == 2 ? capacity(size) : 8'hFF;
                8'h5A: out_byte = parameter_at(at, size);
                default: out_byte = load(at & (size - 32'd1));
            endcase
            at = at + 32'd1;
            bytes = bytes + 1;
            left = 8;
        end
    endtask
    // The opcode is there.
    task begin_command;
        begin
            command = in;
            if (busy != 0 && command != 8'h05 && command != 8'h66 && command != 8'h99) command = 8'd0;
            if (!status_2[1] && (command == 8'h6B || command == 8'hEB || command == 8'h32)) command = 8'd0;
            filled = 256'd0;
            dummies = 0;
            case (command)
                8'h03, 8'h02, 8'h32, 8'h20, 8'hD8, 8'hBB: phase = ADDRESS;
                8'h0B, 8'h3B, 8'h6B, 8'h5A: begin phase = ADDRESS; dummies = 8; end
                8'hEB: begin phase = ADDRESS; dummies = 4; end
                8'h05, 8'h35, 8'h9F: phase = OUT;
                8'h01, 8'h31: phase = IN;
                default: phase = NOTHING;
            endcase
            width = command == 8'hEB ? 4 : command == 8'hBB ? 2 : 1;
        end
    endtask
    task begin_data;
        begin
            width = (command == 8'h6B || command == 8'hEB || command == 8'h32) ? 4 : (command == 8'h3B || command == 8'hBB) ? 2 : 1;
            phase = (command == 8'h02 || command == 8'h32) ? IN : (command == 8'h20 || command == 8'hD8) ? NOTHING : OUT;
        end
    endtask
    // A rising edge.
    task take;
        begin
            in = width == 4 ? {in[3:0], lanes} : width == 2 ? {in[5:0], lanes[1:0]} : {in[6:0], lanes[0] === 1'b1};
            if (phase != OUT && phase != NOTHING) bits = bits + width;
            case (phase)
                COMMAND:
                    if (bits == 8) begin bits = 0; begin_command; end
                ADDRESS: begin
                    if (bits % 8 == 0) at = {at[23:0], in};
                    if (bits == (long && command != 8'h5A ? 32 : 24)) begin
                        bits = 0;
                        if (command == 8'hBB || command == 8'hEB) phase = MODE;
                        else if (dummies != 0) phase = DUMMY;
                        else begin_data;
                    end
                end
                MODE:
                    if (bits == 8) begin
                        bits = 0;
                        going = in[7:4] == 4'hA;
                        if (dummies != 0) phase = DUMMY; else begin_data;
                    end
                DUMMY:
                    if (bits == dummies * width) begin bits = 0; begin_data; end
                IN:
                    if (bits == 8) begin
                        bits = 0;
                        if (command == 8'h01 || command == 8'h31) begin
                            if (bytes < 2) page[bytes] = in;
                        end else begin
                            page[at[7:0]] = in;
                            filled[at[7:0]] = 1'b1;
                            at[7:0] = at[7:0] + 8'd1;
                        end
                        bytes = bytes + 1;
                    end
                default: ;
            endcase
            following_on <= 4'd0;
            if (phase == OUT) begin
                if (left == 0) read_next;
                following <= width == 4 ? out_byte[7:4] : width == 2 ? {2'd0, out_byte[7:6]} : {2'd0, out_byte[7], 1'b0};
                following_on <= width == 4 ? 4'hF : width == 2 ? 4'h3 : 4'h2;
                out_byte = out_byte << width;
                left = left - width;
            end
        end
    endtask
    task erase(input [31:0] from, input [31:0] count);
        begin
            if (!status[2]) begin
                for (i = 0; i < count; i = i + 1)
                    store(from + i, 8'hFF);
                busy = ERASE_CYCLES;
            end
            enabled = 1'b0;
        end
    endtask
    // The chip is no longer selected.
    task finish;
        begin
            if (phase == NOTHING && bits == 0) begin
                resetting <= command == 8'h66;
                case (command)
                    8'h06: enabled = 1'b1;
                    8'h04: enabled = 1'b0;
                    8'hB7: long = 1'b1;
                    8'hE9: long = 1'b0;
                    8'h99:
                        if (resetting) begin
                            enabled = 1'b0;
                            long = 1'b0;
                            busy = 0;
                        end
                    8'h20: if (enabled) erase(at & (size - 32'd1) & ~32'h00000FFF, 32'd4096);
                    8'hD8: if (enabled) erase(at & (size - 32'd1) & ~32'h0000FFFF, 32'd65536);
                    8'hC7, 8'h60: if (enabled) erase(32'd0, size);
                    default: ;
                endcase
            end
            if (phase == IN && bytes != 0 && enabled) begin
                enabled = 1'b0;
                if (command == 8'h01) begin
                    if (!(status[7] && !status_2[1] && lanes[2] === 1'b0)) begin
                        status = page[0] & 8'h84;
                        if (bytes == 2) status_2 = page[1] & 8'h02;
                        busy = STATUS_CYCLES;
                    end
                end else if (command == 8'h31) begin
                    status_2 = page[0] & 8'h02;
                    busy = STATUS_CYCLES;
                end else if (!status[2]) begin
                    at = at & (size - 32'd1) & ~32'h000000FF;
                    for (i = 0; i < 256; i = i + 1)
                        if (filled[i])
                            store(at + i, load(at + i) & page[i]);
                    busy = PROGRAM_CYCLES;
                end
            end
        end
    endtask
    always @(posedge clk) begin
        chosen_was <= chosen;
        high_was <= high;
        if (busy != 0)
            busy = busy - 1;
        if (!high) begin
            shown <= following;
            shown_on <= following_on;
        end
        if (!chosen) begin
            if (chosen_was)
                finish;
            phase = going ? ADDRESS : COMMAND;
            width = !going ? 1 : command == 8'hBB ? 2 : 4;
            bits = 0;
            left = 0;
            bytes = 0;
            at = 32'd0;
            following_on <= 4'd0;
            shown_on <= 4'd0;
        end else if (high && !high_was)
            take;
    end
endmodule
