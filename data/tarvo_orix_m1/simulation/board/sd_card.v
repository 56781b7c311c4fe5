// An SD card of version 2 in SPI mode that counts addresses in blocks of 512 bytes: CMD0, 8, 9, 10, 12, 13, 16, 17, 18, 24, 25,
// 55, 58, 59, ACMD23 and ACMD41, which has to come twice and to say that the host knows such cards. Every other command is
// illegal. The CRC of commands and blocks is checked from CMD59 on; that of CMD0 and CMD8 always. A block that was written
// keeps the card busy for WRITE_CYCLES, and so does the token behind the last one of several. Behind the card's end several
// blocks get the error token, or the answer of a write error.
//
// Lines are looked at with clk, which may be as slow as twice the serial clock. Bytes are kept by what runs the simulation where
// that gives BOARD_LOAD and BOARD_STORE, and else in an array that is blank at the start.
module board_sd_card #(
    parameter STORAGE      = 2,
    parameter BYTES        = 1048576, // of the array
    parameter WRITE_CYCLES = 2000
) (
    input  wire        clk,
    input  wire [31:0] size,          // bytes, a multiple of 512
    input  wire        cs, sclk, mosi,
    output wire        miso           // counts while cs is 0
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

    localparam [1:0] NOTHING = 2'd0;
    localparam [1:0] BLOCK   = 2'd1;
    localparam [1:0] LAYOUT  = 2'd2;   // CSD
    localparam [1:0] NAME    = 2'd3;   // CID

    wire         chosen     = cs === 1'b0;
    wire         high       = sclk === 1'b1;
    reg          high_was   = 1'b0;
    reg          shown      = 1'b1;    // while the clock is high
    reg          following  = 1'b1;    // from its next fall on
    reg          idle       = 1'b1;
    reg          knows      = 1'b0;    // ACMD41 has come once
    reg          app        = 1'b0;    // the command before was CMD55
    reg          checked    = 1'b0;
    reg          writing    = 1'b0;
    reg          several    = 1'b0;    // blocks, until they are stopped
    reg [2:0]    bits       = 3'd0;
    reg [2:0]    framed     = 3'd0;    // bytes of a command
    reg [47:0]   frame      = 48'd0;
    reg [5:0]    number     = 6'd0;
    reg [31:0]   argument   = 32'd0;
    reg [39:0]   answer     = 40'd0;
    reg [2:0]    answering  = 3'd0;    // bytes of it
    reg [1:0]    sending    = NOTHING;
    reg [31:0]   place      = 32'd0;   // within what is sent or written, the token included
    reg [31:0]   base       = 32'd0;   // of the block, below the size or at the card's end
    reg [15:0]   crc        = 16'd0;
    reg [6:0]    crc7       = 7'd0;
    reg [7:0]    in         = 8'd0;
    reg [7:0]    out        = 8'hFF;
    reg [7:0]    block [0:511];
    reg [31:0]   busy       = 32'd0;
    integer i;
    initial
        for (i = 0; i < 512; i = i + 1) block[i] = 8'hFF;
    assign miso = high ? shown : following;

    wire [31:0]  units     = size >> 19;
    wire [21:0]  count     = units == 32'd0 ? 22'd0 : units[21:0] - 22'd1;   // of 512 KB, less one
    wire [119:0] layout    = {56'h400E00325B5900, 2'd0, count, 40'h7F800A4000};
    wire [119:0] name      = {24'h000000, "BOARD", 8'h10, 32'd1, 16'h0180};

    task crc16_take(input [7:0] value);
        for (i = 7; i >= 0; i = i - 1)
            crc = {crc[14:0], 1'b0} ^ ((crc[15] ^ value[i]) ? 16'h1021 : 16'h0000);
    endtask
    task crc7_take(input [7:0] value);
        for (i = 7; i >= 0; i = i - 1)
            crc7 = {crc7[5:0], 1'b0} ^ ((crc7[6] ^ value[i]) ? 7'h09 : 7'h00);
    endtask
    // Answers with R1 and `more` bytes behind it.
    task reply(input [7:0] status, input [31:0] bytes, input [2:0] more);
        begin
            answer = {status | {7'd0, idle}, bytes};
            answering = more + 3'd1;
        end
    endtask
    task execute;
        begin
            number = frame[45:40];
            argument = frame[39:8];
            crc7 = 7'd0;
            crc7_take(frame[47:40]);
            crc7_take(frame[39:32]);
            crc7_take(frame[31:24]);
            crc7_take(frame[23:16]);
            crc7_take(frame[15:8]);
            base = {argument[22:0], 9'd0};
            place = 32'd0;
            sending = NOTHING;
            writing = 1'b0;
            several = 1'b0;
            if (frame[7:0] != {crc7, 1'b1} && (checked || number == 6'd0 || number == 6'd8))
                reply(8'h08, 32'd0, 3'd0);
            else if (number == 6'd0) begin
                idle = 1'b1;
                knows = 1'b0;
                checked = 1'b0;
                reply(8'h00, 32'd0, 3'd0);
            end else if (number == 6'd8)
                reply(8'h00, {20'd0, argument[11:0]}, 3'd4);
            else if (number == 6'd13)
                reply(8'h00, 32'd0, 3'd1);
            else if (number == 6'd41 && app) begin
                if (argument[30]) begin
                    idle = !knows;
                    knows = 1'b1;
                end
                reply(8'h00, 32'd0, 3'd0);
            end else if (number == 6'd55)
                reply(8'h00, 32'd0, 3'd0);
            else if (number == 6'd58)
                reply(8'h00, idle ? 32'h00FF8000 : 32'hC0FF8000, 3'd4);
            else if (number == 6'd59) begin
                checked = argument[0];
                reply(8'h00, 32'd0, 3'd0);
            end else if (idle)
                reply(8'h04, 32'd0, 3'd0);
            else if (number == 6'd16)
                reply(argument == 32'd512 ? 8'h00 : 8'h40, 32'd0, 3'd0);
            else if (number == 6'd9 || number == 6'd10) begin
                sending = number == 6'd9 ? LAYOUT : NAME;
                reply(8'h00, 32'd0, 3'd0);
            end else if (number == 6'd12 || (number == 6'd23 && app))
                reply(8'h00, 32'd0, 3'd0);
            else if (number == 6'd17 || number == 6'd18 || number == 6'd24 || number == 6'd25) begin
                if (argument >= size >> 9)
                    reply(8'h40, 32'd0, 3'd0);
                else begin
                    several = number == 6'd18 || number == 6'd25;
                    if (number < 6'd24) sending = BLOCK;
                    else writing = 1'b1;
                    reply(8'h00, 32'd0, 3'd0);
                end
            end else
                reply(8'h04, 32'd0, 3'd0);
            app = number == 6'd55;
            out = number == 6'd12 ? 8'h7F : 8'hFF;   // behind CMD12 comes a byte that says nothing
        end
    endtask
    // The next byte of what is sent: a pause, the token, the bytes, their CRC.
    task send_next;
        begin
            if (place == 32'd0)
                out = 8'hFF;
            else if (sending == BLOCK && base >= size) begin
                out = 8'h08;
                sending = NOTHING;
            end else if (place == 32'd1) begin
                out = 8'hFE;
                crc = 16'd0;
                crc7 = 7'd0;
            end else if (place < (sending == BLOCK ? 32'd514 : 32'd18)) begin
                if (sending == BLOCK)
                    out = load(base + place - 32'd2);
                else if (place == 32'd17)
                    out = {crc7, 1'b1};
                else begin
                    out = (sending == LAYOUT ? layout : name) >> (8 * (32'd16 - place));
                    crc7_take(out);
                end
                crc16_take(out);
            end else begin
                out = crc[15:8];
                crc = {crc[7:0], 8'd0};
                if (place == (sending == BLOCK ? 32'd515 : 32'd19)) begin
                    if (!several)
                        sending = NOTHING;
                    base = base + 32'd512;
                    place = 32'hFFFFFFFF;
                end
            end
            place = place + 32'd1;
        end
    endtask
    // A byte of a block that is written, behind its token.
    task keep_next;
        begin
            if (place == 32'd0) begin
                crc = 16'd0;
                if (in == (several ? 8'hFC : 8'hFE))
                    place = 32'd1;
                else if (several && in == 8'hFD) begin
                    writing = 1'b0;
                    busy = WRITE_CYCLES;
                end
            end else begin
                if (place <= 32'd512)
                    block[place - 32'd1] = in;
                crc16_take(in);                     // over the CRC too: 0 if it is right
                place = place + 32'd1;
                if (place == 32'd515) begin
                    writing = several;
                    place = 32'd0;
                    out = (checked && crc != 16'd0) ? 8'hEB : base >= size ? 8'hED : 8'hE5;
                    if (out == 8'hE5) begin
                        for (i = 0; i < 512; i = i + 1)
                            store(base + i, block[i]);
                        base = base + 32'd512;
                        busy = WRITE_CYCLES;
                    end
                end
            end
        end
    endtask
    // A byte is complete: what is sent next, and what is kept.
    task take;
        begin
            out = 8'hFF;
            if (answering != 3'd0) begin
                out = answer[39:32];
                answer = {answer[31:0], 8'hFF};
                answering = answering - 3'd1;
            end else if (sending != NOTHING)
                send_next;
            else if (busy != 32'd0)
                out = 8'h00;
            else if (writing)
                keep_next;
            // Also while several blocks are sent, or the next one to write is waited for.
            if (busy == 32'd0 && (!writing || place == 32'd0) && (framed != 3'd0 || in[7:6] == 2'b01)) begin
                frame = {frame[39:0], in};
                framed = framed + 3'd1;
                if (framed == 3'd6) begin
                    framed = 3'd0;
                    execute;
                end
            end
        end
    endtask
    always @(posedge clk) begin
        high_was <= high;
        if (busy != 32'd0)
            busy = busy - 32'd1;
        if (!high)
            shown <= following;
        if (!chosen) begin
            bits <= 3'd0;
            framed = 3'd0;
            answering = 3'd0;
            sending = NOTHING;
            writing = 1'b0;
            several = 1'b0;
            out = busy != 32'd0 ? 8'h00 : 8'hFF;
            following <= busy == 32'd0;
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
