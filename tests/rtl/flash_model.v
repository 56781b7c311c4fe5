// A serial flash on its pins alone, with events instead of a clock: the other end of the testbenches of the SPI-Flash.
// The byte at address a is memory[a[15:0]] ^ a[23:16] ^ a[31:24].
// 03h, 0Bh, 3Bh, BBh, 6Bh, EBh read, 02h and 32h program, 20h erases 4 KB, D8h and C7h erase everything; 5Ah, 9Fh, 05h, 35h,
// 01h, 31h, 06h, 04h, B7h, E9h, 66h and 99h are as usual.  Modes A0h to AFh keep a continuous read.
// `wrong` counts what a flash must not see: a held or undriven lane, two drivers, a clock that is high when the chip select
// changes, too short a time between two selections.
module flash_model(input csn, input sclk, inout [3:0] io);
    localparam [2:0] COMMAND = 0, ADDRESS = 1, MODE = 2, DUMMY = 3, OUT = 4, IN = 5, NOTHING = 6;
    reg [7:0]  memory [0:65535];
    reg [7:0]  page [0:255];
    reg [2:0]  phase = COMMAND;
    reg [7:0]  command = 0, in = 0, out = 0, mode = 0;
    reg [7:0]  low = 8'h00, high = 8'h00;     // status registers: 7 locks by WPN, 2 protects all; 1 of the second: four lanes
    reg [31:0] address = 0, where = 0;        // `where`: of the last change
    reg [3:0]  driven = 0, value = 0;
    reg [2:0]  quad_enable = 6;               // of the parameters
    reg        with_parameters = 1, refuse = 0;
    reg        long = 0, going = 0, ready_to_reset = 0, writable = 0;
    integer    lanes = 1, address_lanes = 1, dummies = 0, bits = 0, bytes = 0, n;
    integer    opcodes = 0, reads = 0, clocks = 0, resets = 0, work = 0, busy = 0, programs = 0, erases = 0, wrong = 0;
    time       rise = 0, raised = 0, shortest = 1000000, high_time = 1000000;
    assign io = {driven[3] ? value[3] : 1'bz, driven[2] ? value[2] : 1'bz, driven[1] ? value[1] : 1'bz, driven[0] ? value[0] : 1'bz};
    wire four = quad_enable == 2 ? low[6] : high[1];
    initial for (n = 0; n < 65536; n = n + 1) memory[n] = n[7:0] ^ n[15:8] ^ 8'h5C;

    function [7:0] content(input [31:0] a);
        content = memory[a[15:0]] ^ a[23:16] ^ a[31:24];
    endfunction

    always @(negedge csn) begin
        if (sclk !== 1'b0 || $time - raised < 40) wrong = wrong + 1;
        if ($time - raised < high_time) high_time = $time - raised;
        bits = 0; bytes = 0; lanes = 1; address = 0;
        if (going) begin phase = ADDRESS; lanes = address_lanes; reads = reads + 1; end
        else begin phase = COMMAND; command = 0; end
    end
    task decode;
        begin
            opcodes = opcodes + 1;
            phase = NOTHING;
            if (busy != 0 && command != 8'h05 && command != 8'h66 && command != 8'h99) command = 0;
            if (command == 8'h99 && ready_to_reset) begin
                resets = resets + 1; long = 0; writable = 0; busy = 0;
            end
            ready_to_reset = command == 8'h66;
            address_lanes = 1; dummies = 0; mode = 0;
            case (command)
                8'h03, 8'h0B, 8'h3B, 8'h6B, 8'hBB, 8'hEB: begin
                    reads = reads + 1;
                    phase = ADDRESS;
                    if (command == 8'hBB) address_lanes = 2;
                    if (command == 8'hEB) address_lanes = 4;
                    dummies = command == 8'h03 || command == 8'hBB ? 0 : command == 8'hEB ? 4 : 8;
                    if (command[7:4] == 4'h6 || command[7:4] == 4'hE) if (!four) phase = NOTHING;
                    lanes = address_lanes;
                end
                8'h20, 8'hD8, 8'h02, 8'h32: phase = ADDRESS;
                8'h5A: begin phase = ADDRESS; dummies = 8; end
                8'h05, 8'h35, 8'h9F: phase = OUT;
                8'h01, 8'h31: phase = IN;
                8'hB7: long = 1;
                8'hE9: long = 0;
            endcase
            if (command == 8'h02 || command == 8'h32) for (n = 0; n < 256; n = n + 1) page[n] = 8'hFF;
        end
    endtask
    // 512 MB; modes as above.
    function [7:0] parameter_at(input [31:0] at);
        reg [31:0] whole;
        begin
            case (at >> 2)
                0: whole = 32'h50444653;
                1: whole = 32'hFF000106;
                2: whole = 32'h10010600;
                3: whole = 32'hFF000080;
                32: whole = 32'hFFF320E5;
                33: whole = 32'h80000020;
                34: whole = 32'h6B08EB44;
                35: whole = 32'hBB803B08;
                46: whole = {9'd0, quad_enable, 20'd0};
                default: whole = 32'hFFFFFFFF;
            endcase
            parameter_at = whole >> (8 * at[1:0]);
        end
    endfunction
    task next;
        case (command)
            8'h05: out = {low[7:2], writable, busy != 0};
            8'h35: out = high;
            8'h9F: out = 8'hD1 + bytes;
            8'h5A: out = with_parameters ? parameter_at(address + bytes) : 8'hFF;
            default: out = content(address + bytes);
        endcase
    endtask
    task begin_data;
        begin
            bits = 0; bytes = 0;
            lanes = command == 8'h6B || command == 8'hEB || command == 8'h32 ? 4 : command == 8'h3B || command == 8'hBB ? 2 : 1;
            phase = command == 8'h02 || command == 8'h32 ? IN : command == 8'h20 || command == 8'hD8 ? NOTHING : OUT;
            if (command == 8'h32 && !four) phase = NOTHING;
        end
    endtask
    always @(posedge sclk) if (csn === 1'b0) begin
        clocks = clocks + 1;
        if ($time - rise < shortest) shortest = $time - rise;
        rise = $time;
        if (!four && io[3] !== 1'b1) wrong = wrong + 1;      // held
        if ((phase == COMMAND || phase == ADDRESS || phase == MODE || phase == IN) &&
            (^io[0] === 1'bx || (lanes > 1 && ^io[1] === 1'bx) || (lanes > 2 && ^io === 1'bx))) wrong = wrong + 1;
        bits = bits + lanes;
        case (phase)
            COMMAND: begin
                command = {command[6:0], io[0]};
                if (bits == 8) begin bits = 0; decode; end
            end
            ADDRESS: begin
                address = lanes == 4 ? {address[27:0], io} : lanes == 2 ? {address[29:0], io[1:0]} : {address[30:0], io[0]};
                if (bits == (long && command != 8'h5A ? 32 : 24)) begin
                    if (!long || command == 8'h5A) address[31:24] = 0;
                    bits = 0;
                    if (command == 8'hBB || command == 8'hEB) phase = MODE;
                    else if (dummies != 0) phase = DUMMY;
                    else begin_data;
                end
            end
            MODE: begin
                mode = lanes == 4 ? {mode[3:0], io} : {mode[5:0], io[1:0]};
                if (bits == 8) begin
                    going = mode[7:4] == 4'hA;
                    bits = 0;
                    if (dummies != 0) phase = DUMMY; else begin_data;
                end
            end
            DUMMY:
                if (bits == dummies * lanes) begin_data;
            OUT:
                if (command == 8'h05 && bits % 8 == 0 && busy > 0) busy = busy - 1;
            IN: begin
                in = lanes == 4 ? {in[3:0], io} : {in[6:0], io[0]};
                if (bits == 8) begin page[(address[7:0] + bytes) & 255] = in; bits = 0; bytes = bytes + 1; end
            end
        endcase
    end
    always @(negedge sclk) if (csn === 1'b0 && phase == OUT) begin
        if (bits % 8 == 0) begin next; bytes = bytes + 1; end
        #2;
        driven = lanes == 4 ? 4'hF : lanes == 2 ? 4'h3 : 4'h2;
        value = lanes == 4 ? out[7:4] : lanes == 2 ? {2'd0, out[7:6]} : {2'd0, out[7], 1'b0};
        out = lanes == 4 ? {out[3:0], 4'd0} : lanes == 2 ? {out[5:0], 2'd0} : {out[6:0], 1'b0};
        if (csn !== 1'b0) driven = 0;
    end
    // Lanes that both ends drive.
    always @(driven, io) #1 if ((driven[0] && io[0] === 1'bx) || (driven[1] && io[1] === 1'bx) || (driven[2] && io[2] === 1'bx) ||
                                (driven[3] && io[3] === 1'bx)) wrong = wrong + 1;
    always @(posedge csn) begin
        driven = 0;
        raised = $time;
        if (sclk !== 1'b0) wrong = wrong + 1;
        case (command)
            8'h06: if (phase == NOTHING) writable = ~refuse;
            8'h04: writable = 0;
            8'h01: if (bytes > 0 && writable && !(low[7] && !four && io[2] !== 1'b1)) begin
                low = page[0]; writable = 0; busy = work;
                if (bytes > 1) high = page[1];
            end
            8'h31: if (bytes > 0 && writable) begin high = page[0]; writable = 0; busy = work; end
            8'h20, 8'hD8, 8'hC7: if (phase == NOTHING && writable && bits == 0) begin
                writable = 0;
                if (!low[2]) begin
                    where = address;
                    if (command == 8'h20)
                        for (n = 0; n < 4096; n = n + 1) memory[{address[15:12], 12'd0} + n] = 8'hFF;
                    else
                        for (n = 0; n < 65536; n = n + 1) memory[n] = 8'hFF;
                    erases = erases + 1; busy = work;
                end
            end
            8'h02, 8'h32: if (bytes > 0 && phase == IN && writable) begin
                writable = 0;
                if (!low[2]) begin
                    where = address;
                    for (n = 0; n < 256; n = n + 1)
                        memory[{address[15:8], n[7:0]}] = memory[{address[15:8], n[7:0]}] & page[n];
                    programs = programs + 1; busy = work;
                end
            end
        endcase
        if (phase != MODE && phase != ADDRESS && !going) command = 0;
    end
endmodule
