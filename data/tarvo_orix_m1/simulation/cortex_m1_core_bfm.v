// Bus-functional model of the processor core for simulation: the ports and parameters of CortexM1Core, and in place of a
// program a script of transfers, as the user guide describes them under "Simulate". The file is named with +script=FILE, or
// play.txt in the working folder. Addresses in the ITCM and in the DTCM go over the memories' own interfaces, all others over
// AHB-Lite. Each failure is printed with its line, and at the end "PASS" or "FAIL: n of m checks"; done is 1 then, and with
// +finish the simulation ends. cortex_m1_core_bfm.vhd is the same model in VHDL.
//
// The time scale is for simulators that want one for every module or for none: nothing here is a delay, and any clock will
// do. Files behind this one without a time scale of their own get this one, unless TARVO_NO_TIMESCALE is defined.
`ifndef TARVO_NO_TIMESCALE
`timescale 1ns / 1ps
`endif

module CortexM1Core #(
    parameter       NUM_IRQ     = 32,
    parameter       OS          = 1,
    parameter       SMALL_MUL   = 0,
    parameter       BE8         = 0,
    parameter       DEBUG       = 0,
    parameter       JTAG        = 0,
    parameter       SW          = 0,
    parameter       SMALL_DEBUG = 0,
    parameter       ITCM_LA_EN  = 1,
    parameter       ITCM_UA_EN  = 0,
    parameter [3:0] ITCMSIZE    = 4'b0110,
    parameter [3:0] DTCMSIZE    = 4'b0110
) (
    input  wire        HCLK,
    input  wire        PORRESETn,
    input  wire        SYSRESETn,
    output reg         SYSRESETREQ,
    output wire        LOCKUP,
    output wire        HALTED,
    input  wire        NMI,
    input  wire [31:0] IRQ,

    output reg  [31:0] HADDR,
    output reg  [1:0]  HTRANS,
    output reg  [2:0]  HBURST,
    output wire [3:0]  HPROT,
    output reg  [2:0]  HSIZE,
    output reg         HWRITE,
    output wire        HMASTLOCK,
    output reg  [31:0] HWDATA,
    input  wire [31:0] HRDATA,
    input  wire        HREADY,
    input  wire        HRESP,

    output reg         ITCMEN,
    output reg  [3:0]  ITCMWE,
    output reg  [17:0] ITCMADDR,
    output reg  [31:0] ITCMWDATA,
    input  wire [31:0] ITCMRDATA,
    output reg         DTCMEN,
    output reg  [3:0]  DTCMWE,
    output reg  [17:0] DTCMADDR,
    output reg  [31:0] DTCMWDATA,
    input  wire [31:0] DTCMRDATA,

    output wire        DBGITCMEN,
    output wire [3:0]  DBGITCMWE,
    output wire [17:0] DBGITCMADDR,
    output wire [31:0] DBGITCMWDATA,
    input  wire        DBGITCMREADY,
    output wire        DBGDTCMEN,
    output wire [3:0]  DBGDTCMWE,
    output wire [17:0] DBGDTCMADDR,
    output wire [31:0] DBGDTCMWDATA,
    input  wire        DBGDTCMREADY,

    input  wire        nTRST,
    input  wire        SWCLKTCK,
    input  wire        SWDITMS,
    output wire        SWDO,
    output wire        SWDOEN,
    input  wire        TDI,
    output wire        TDO,
    output wire        TDOEN
);
    assign LOCKUP = 1'b0;
    assign HALTED = 1'b0;
    assign HPROT = 4'b0011;      // data, privileged
    assign HMASTLOCK = 1'b0;
    assign {DBGITCMEN, DBGITCMWE, DBGITCMADDR, DBGITCMWDATA} = 55'd0;
    assign {DBGDTCMEN, DBGDTCMWE, DBGDTCMADDR, DBGDTCMWDATA} = 55'd0;
    assign {SWDO, SWDOEN, TDO, TDOEN} = 4'd0;

    // Bytes of a memory by its size code.
    function [31:0] bytes(input [3:0] code);
        bytes = (code == 4'd0) ? 32'd0 : 32'd512 << code;
    endfunction

    reg done = 1'b0;
    integer checks = 0;
    integer failures = 0;

    reg [31:0] data;             // of the last read
    reg        failed;           // the last transfer got an error response

    // The script goes on at falling edges: there it sees settled inputs, and sets what the outputs show from the next
    // rising edge on.
    reg         next_SYSRESETREQ, next_HWRITE, next_ITCMEN, next_DTCMEN;
    reg  [31:0] next_HADDR, next_HWDATA, next_ITCMWDATA, next_DTCMWDATA;
    reg  [1:0]  next_HTRANS;
    reg  [2:0]  next_HSIZE, next_HBURST;
    reg  [3:0]  next_ITCMWE, next_DTCMWE;
    reg  [17:0] next_ITCMADDR, next_DTCMADDR;
    always @(posedge HCLK) begin
        SYSRESETREQ <= next_SYSRESETREQ;
        {HADDR, HTRANS, HSIZE, HWRITE, HWDATA} <= {next_HADDR, next_HTRANS, next_HSIZE, next_HWRITE, next_HWDATA};
        HBURST <= next_HBURST;
        {ITCMEN, ITCMWE, ITCMADDR, ITCMWDATA} <= {next_ITCMEN, next_ITCMWE, next_ITCMADDR, next_ITCMWDATA};
        {DTCMEN, DTCMWE, DTCMADDR, DTCMWDATA} <= {next_DTCMEN, next_DTCMWE, next_DTCMADDR, next_DTCMWDATA};
    end

    task cycle;
        @(negedge HCLK);
    endtask

    // The script and those that include each other from there on.
    localparam MOST_FILES = 9, MOST_LOOPS = 8;
    integer          depth = 0;
    integer          files[0:MOST_FILES-1];
    integer          current;    // file, out of the table: Verilator 5 takes no handle from an array
    integer          lines[0:MOST_FILES-1];
    reg [8*1024-1:0] names[0:MOST_FILES-1];
    integer          line = 0;   // that failures are told with

    // The repeats around the current line.
    integer    loops = 0;
    integer    loop_file[1:MOST_LOOPS];      // depth of its file
    integer    loop_line[1:MOST_LOOPS];
    integer    loop_position[1:MOST_LOOPS];  // in the file, behind the line
    reg [31:0] loop_left[1:MOST_LOOPS];
    integer    skipping = 0;     // repeats around the current line that are not played
    integer    skip_line;        // of the outermost one
    reg        stopped = 1'b0;   // by a mistake behind which nothing makes sense

    task fail(input [8*64-1:0] what);
        begin
            failures = failures + 1;
            if (depth == 0)
                $display("%m: line %0d: %0s", line, what);
            else
                $display("%m: %0s: line %0d: %0s", names[depth], line, what);
        end
    endtask

    // Waits for HREADY, but not for ever.
    task ready;
        integer left;
        begin
            left = 1000000;
            while (HREADY !== 1'b1 && left != 0) begin
                left = left - 1;
                cycle;
            end
            if (left == 0)
                fail("HREADY stays low");
        end
    endtask

    localparam [1:0] IDLE = 2'b00, NONSEQ = 2'b10, SEQ = 2'b11;
    localparam [1:0] WRITE = 2'd0, READ = 2'd1, ERROR = 2'd2;

    function [31:0] replicated(input [31:0] value, input [1:0] size);
        replicated = (size == 2'd0) ? {4{value[7:0]}} : (size == 2'd1) ? {2{value[15:0]}} : value;
    endfunction

    // The addressed bytes of a word in the low bits.
    function [31:0] addressed(input [31:0] word, input [1:0] address, input [1:0] size);
        addressed = (size == 2'd0) ? (word >> (8 * address)) & 32'h000000FF :
                    (size == 2'd1) ? (word >> (8 * {address[1], 1'b0})) & 32'h0000FFFF : word;
    endfunction

    function in_itcm(input [31:0] address);
        in_itcm = ((ITCM_LA_EN != 0) && (address < bytes(ITCMSIZE))) ||
                  ((ITCM_UA_EN != 0) && (address - 32'h10000000 < bytes(ITCMSIZE)));
    endfunction

    function in_dtcm(input [31:0] address);
        in_dtcm = address - 32'h20000000 < bytes(DTCMSIZE);
    endfunction

    task tcm_access(input [31:0] address, input write, input [1:0] size, input [31:0] value);
        reg [3:0] lanes;
        reg       itcm, dtcm;
        begin
            lanes = (size == 2'd0) ? 4'b0001 << address[1:0] : (size == 2'd1) ? (address[1] ? 4'b1100 : 4'b0011) : 4'b1111;
            itcm = in_itcm(address);
            dtcm = in_dtcm(address);
            next_ITCMEN = itcm; next_ITCMADDR = address[19:2]; next_ITCMWDATA = replicated(value, size);
            next_ITCMWE = (itcm && write) ? lanes : 4'd0;
            next_DTCMEN = dtcm; next_DTCMADDR = address[19:2]; next_DTCMWDATA = replicated(value, size);
            next_DTCMWE = (dtcm && write) ? lanes : 4'd0;
            cycle;
            next_ITCMEN = 1'b0; next_ITCMWE = 4'd0; next_DTCMEN = 1'b0; next_DTCMWE = 4'd0;
            cycle;
            data = itcm ? ITCMRDATA : DTCMRDATA;
            failed = 1'b0;
        end
    endtask

    // The end of a data phase.
    task data_phase;
        begin
            cycle;
            ready;
            failed = HRESP !== 1'b0;
            data = HRDATA;
        end
    endtask

    // An address phase, and the data phase of the transfer before it, if one is open.
    task address_phase(input [1:0] trans, input [2:0] burst, input [31:0] address, input write, input [1:0] size,
                       input [31:0] value);
        begin
            next_HADDR = address; next_HTRANS = trans; next_HBURST = burst; next_HSIZE = {1'b0, size}; next_HWRITE = write;
            data_phase;
            next_HTRANS = IDLE; next_HBURST = 3'b000; next_HWRITE = 1'b0; next_HWDATA = replicated(value, size);
        end
    endtask

    task check_read(input [31:0] expected, input [31:0] mask);
        begin
            checks = checks + 1;
            if (failed)
                fail("error response");
            else if ((data & mask) !== expected) begin
                failures = failures + 1;
                if (depth == 0)
                    $display("%m: line %0d: read 0x%08h, expected 0x%08h in the bits 0x%08h", line, data, expected, mask);
                else
                    $display("%m: %0s: line %0d: read 0x%08h, expected 0x%08h in the bits 0x%08h", names[depth], line, data,
                             expected, mask);
            end
        end
    endtask

    // What the last transfer was to do.
    task check(input [1:0] kind, input [31:0] expected, input [31:0] mask);
        if (kind == READ)
            check_read(expected, mask);
        else begin
            checks = checks + 1;
            if (kind == WRITE && failed)
                fail("error response");
            if (kind == ERROR && !failed)
                fail("no error response");
        end
    endtask

    reg        pipelined = 1'b0;
    // The transfer whose data phase is open.
    reg        open = 1'b0;
    reg [1:0]  open_kind, open_address, open_size;
    reg [31:0] open_expected, open_mask;
    integer    open_line;

    task check_open;
        begin
            open = 1'b0;
            line = open_line;
            data = addressed(data, open_address, open_size);
            check(open_kind, open_expected, open_mask);
            line = lines[depth];
        end
    endtask

    task close;
        if (open) begin
            data_phase;
            check_open;
        end
    endtask

    // A transfer that is checked: the value is what is written or expected.
    task transfer(input [1:0] kind, input [31:0] address, input [1:0] size, input [31:0] value, input [31:0] mask);
        if (in_itcm(address) || in_dtcm(address)) begin
            close;
            tcm_access(address, kind == WRITE, size, (kind == WRITE) ? value : 32'd0);
            data = addressed(data, address[1:0], size);
            check(kind, value, mask);
        end else begin
            address_phase(NONSEQ, 3'b000, address, kind == WRITE, size, (kind == WRITE) ? value : 32'd0);
            if (open)
                check_open;
            open = 1'b1;
            open_kind = kind; open_address = address[1:0]; open_size = size;
            open_expected = value; open_mask = mask; open_line = line;
            if (!pipelined)
                close;
        end
    endtask

    // A word is read and not checked.
    task look(input [31:0] address);
        if (in_itcm(address) || in_dtcm(address))
            tcm_access(address, 1'b0, 2'd2, 32'd0);
        else begin
            address_phase(NONSEQ, 3'b000, address, 1'b0, 2'd2, 32'd0);
            data_phase;
        end
    endtask

    // Words of the current line, one more than any command has at most.
    localparam MOST_WORDS = 20;
    reg [8*256-1:0] text;
    reg [8*256-1:0] word[0:MOST_WORDS-1];
    integer         length[0:MOST_WORDS-1];
    reg [31:0]      number[0:MOST_WORDS-1];
    integer         words;
    reg             wrong;       // the line has a mistake

    task mistake(input [8*64-1:0] what);
        begin
            wrong = 1'b1;
            fail(what);
        end
    endtask

    // Splits the first characters of the text that are no comment.
    task split(input integer characters);
        integer   n;
        reg       in_word;
        reg [7:0] c;
        begin
            words = 0;
            in_word = 1'b0;
            n = characters - 1;
            while (n >= 0) begin
                c = text[8*n +: 8];
                if (c == "#")
                    n = 0;
                else if (c == " " || c == 8'd0 || (c >= 8'd9 && c <= 8'd13))
                    in_word = 1'b0;
                else if (in_word) begin
                    word[words-1] = {word[words-1][8*255-1:0], c};
                    length[words-1] = length[words-1] + 1;
                end else if (words == MOST_WORDS)
                    n = 0;
                else begin
                    in_word = 1'b1;
                    word[words] = c;
                    length[words] = 1;
                    words = words + 1;
                end
                n = n - 1;
            end
        end
    endtask

    // The value of a word: decimal with or without a sign, or hexadecimal; underscores may stand between digits.
    task read_number(input integer which);
        integer    n, digits;
        reg [7:0]  c;
        reg [35:0] sum;
        reg        hexadecimal, negative;
        reg [4:0]  digit;
        begin
            n = length[which] - 1;
            digits = 0;
            sum = 36'd0;
            hexadecimal = n > 1 && word[which][8*(n-1) +: 16] == "0x";
            negative = word[which][8*n +: 8] == "-";
            if (hexadecimal)
                n = n - 2;
            else if (negative || word[which][8*n +: 8] == "+")
                n = n - 1;
            while (n >= 0 && !wrong) begin
                c = word[which][8*n +: 8];
                digit = (c >= "0" && c <= "9") ? c - "0" : (c >= "a" && c <= "f") ? c - "a" + 8'd10 :
                        (c >= "A" && c <= "F") ? c - "A" + 8'd10 : 5'd16;
                if (digit < (hexadecimal ? 5'd16 : 5'd10)) begin
                    sum = sum * (hexadecimal ? 36'd16 : 36'd10) + digit;
                    digits = digits + 1;
                end else if (c != "_" || digits == 0)
                    mistake("not a number");
                if (!wrong && sum[35:32] != 4'd0)
                    mistake("a number of more than 32 bits");
                n = n - 1;
            end
            if (!wrong && digits == 0)
                mistake("not a number");
            number[which] = negative ? -sum[31:0] : sum[31:0];
        end
    endtask

    // Words that a command needs, itself among them; 0 for a word that is no command.
    function integer needed(input [8*16-1:0] command);
        case (command)
            "end", "reset": needed = 1;
            "error", "wait", "repeat", "include", "pipeline": needed = 2;
            "write", "write16", "write8", "read", "read16", "read8", "nmi": needed = 3;
            "irq", "burst-write", "burst-read": needed = 4;
            "poll": needed = 5;
            default: needed = 0;
        endcase
    endfunction

    // Commands that need the board of "orixm1 simulate".
    function needs_board(input [8*16-1:0] command);
        needs_board = command == "expect-uart" || command == "uart" || command == "gpio" || command == "gpio-drive";
    endfunction

    // Words that a command has at most; for the first ones more do not matter.
    function integer most(input [8*16-1:0] command);
        case (command)
            "end": most = 1;
            "repeat", "include", "pipeline": most = 2;
            "burst-write", "burst-read": most = 19;
            default: most = MOST_WORDS;
        endcase
    endfunction

    // The first word that is a number, and the last that is looked at.
    function integer first_number(input [8*16-1:0] command);
        first_number = (command == "end" || command == "include" || command == "pipeline") ? MOST_WORDS :
                       (command == "burst-write" || command == "burst-read") ? 2 : 1;
    endfunction
    function integer last_number(input [8*16-1:0] command);
        last_number = (command == "burst-write" || command == "burst-read") ? 18 : 4;
    endfunction

    task play_burst(input write);
        reg [2:0]  burst;
        integer    beats, n;         // beats: that the burst has; 0: any number
        reg [31:0] address, span;
        begin
            beats = 0;
            span = 32'd0;
            case (word[1])
                "single": burst = 3'b000;
                "incr":   burst = 3'b001;
                "wrap4":  begin burst = 3'b010; beats = 4; span = 32'd16; end
                "incr4":  begin burst = 3'b011; beats = 4; end
                "wrap8":  begin burst = 3'b100; beats = 8; span = 32'd32; end
                "incr8":  begin burst = 3'b101; beats = 8; end
                "wrap16": begin burst = 3'b110; beats = 16; span = 32'd64; end
                "incr16": begin burst = 3'b111; beats = 16; end
                default:  mistake("no burst of this name");
            endcase
            address = number[2];
            if (!wrong && beats != 0 && words - 3 != beats)
                mistake("not as many data as the burst has");
            beats = words - 3;
            if (!wrong && address[1:0] != 2'd0)
                mistake("the address of a burst is not a multiple of 4");
            if (!wrong && burst != 3'b000 && span == 32'd0 && address[9:0] + 4 * beats > 1024)
                mistake("the burst crosses a boundary of 1 KB");
            if (!wrong && (in_itcm(address) || in_dtcm(address) || in_itcm(address + 4 * (beats - 1)) ||
                           in_dtcm(address + 4 * (beats - 1))))
                mistake("no bursts in the ITCM and the DTCM");
            if (!wrong) begin
                for (n = 0; n < beats; n = n + 1) begin
                    address_phase((n == 0 || burst == 3'b000) ? NONSEQ : SEQ, burst, address, write, 2'd2,
                                  write ? number[3+n] : 32'd0);
                    if (n != 0)
                        check(write ? WRITE : READ, number[2+n], 32'hFFFFFFFF);
                    address = (span == 32'd0) ? address + 32'd4 :
                              (address & ~(span - 32'd1)) | ((address + 32'd4) & (span - 32'd1));
                end
                data_phase;
                check(write ? WRITE : READ, number[2+beats], 32'hFFFFFFFF);
            end
        end
    endtask

    task play_repeat;
        begin
            if (!wrong && loops == MOST_LOOPS)
                mistake("the repeats nest more than 8 deep");
            if (wrong || number[1] == 32'd0) begin
                skipping = 1;
                skip_line = line;
            end else begin
                loops = loops + 1;
                loop_file[loops] = depth;
                loop_line[loops] = line;
                loop_position[loops] = $ftell(current);
                loop_left[loops] = number[1];
            end
        end
    endtask

    task play_end;
        integer unused;
        if (loops == 0 || loop_file[loops] != depth)
            mistake("end without repeat");
        else if (loop_left[loops] > 32'd1) begin
            loop_left[loops] = loop_left[loops] - 32'd1;
            lines[depth] = loop_line[loops];
            unused = $fseek(current, loop_position[loops], 0);
        end else
            loops = loops - 1;
    endtask

    // A name seen from the folder of the current file.
    function [8*1024-1:0] beside(input [8*256-1:0] other, input integer characters);
        integer n;
        begin
            beside = other;
            if (other[8*(characters-1) +: 8] != "/" && other[8*(characters-1) +: 8] != "\\" &&
                (characters < 2 || other[8*(characters-2) +: 8] != ":")) begin
                n = 0;
                while (n < 1024 && names[depth][8*n +: 8] != "/" && names[depth][8*n +: 8] != "\\")
                    n = n + 1;
                if (n < 1024)
                    beside = ((names[depth] >> (8 * n)) << (8 * characters)) | other;
            end
        end
    endfunction

    task play_include;
        reg [8*1024-1:0] name;
        integer          file;
        if (depth == MOST_FILES - 1) begin
            mistake("the includes nest more than 8 deep");
            stopped = 1'b1;
        end else begin
            name = beside(word[1], length[1]);
            file = $fopen(name, "r");
            if (file == 0) begin
                failures = failures + 1;
                if (depth == 0)
                    $display("%m: line %0d: the script \"%0s\" cannot be read", line, name);
                else
                    $display("%m: %0s: line %0d: the script \"%0s\" cannot be read", names[depth], line, name);
            end else begin
                depth = depth + 1;
                files[depth] = file;
                names[depth] = name;
                lines[depth] = 0;
            end
        end
    endtask

    task play_line;
        reg [8*16-1:0] command;
        integer        n;
        begin
            command = (length[0] > 16) ? "" : word[0];
            wrong = 1'b0;
            if (needed(command) == 0)
                mistake(needs_board(command) ? "only in orixm1 simulate" : "unknown command");
            for (n = first_number(command); n < words && n <= last_number(command); n = n + 1)
                if (!wrong)
                    read_number(n);
            if (!wrong && words < needed(command))
                mistake(command == "include" ? "the name of a file is missing" :
                        command == "pipeline" ? "neither on nor off" : "a number is missing");
            if (!wrong && words > most(command))
                mistake("too many words");
            if (open && (needed(command) != 3 || command == "nmi") && command != "error" && command != "repeat" &&
                command != "end")
                close;
            if (command == "repeat")
                play_repeat;
            else if (!wrong)
                case (command)
                    "write":   transfer(WRITE, number[1], 2'd2, number[2], 32'd0);
                    "write16": transfer(WRITE, number[1], 2'd1, number[2], 32'd0);
                    "write8":  transfer(WRITE, number[1], 2'd0, number[2], 32'd0);
                    "read":    transfer(READ, number[1], 2'd2, number[2], (words > 3) ? number[3] : 32'hFFFFFFFF);
                    "read16":  transfer(READ, number[1], 2'd1, number[2], (words > 3) ? number[3] : 32'hFFFFFFFF);
                    "read8":   transfer(READ, number[1], 2'd0, number[2], (words > 3) ? number[3] : 32'hFFFFFFFF);
                    "error":   transfer(ERROR, number[1], 2'd2, 32'd0, 32'd0);
                    "burst-write": play_burst(1'b1);
                    "burst-read":  play_burst(1'b0);
                    "poll": begin
                        look(number[1]);
                        while (!failed && (data & number[3]) !== number[2] && number[4] > 32'd1) begin
                            number[4] = number[4] - 32'd1;
                            look(number[1]);
                        end
                        check_read(number[2], number[3]);
                    end
                    "wait": repeat (number[1]) cycle;
                    "irq": begin
                        while (IRQ[number[1][4:0]] !== number[2][0] && number[3] != 32'd0) begin
                            number[3] = number[3] - 32'd1;
                            cycle;
                        end
                        checks = checks + 1;
                        if (IRQ[number[1][4:0]] !== number[2][0])
                            fail("the interrupt input does not get the level");
                    end
                    "nmi": begin
                        while (NMI !== number[1][0] && number[2] != 32'd0) begin
                            number[2] = number[2] - 32'd1;
                            cycle;
                        end
                        checks = checks + 1;
                        if (NMI !== number[1][0])
                            fail("the non-maskable interrupt does not get the level");
                    end
                    "reset": begin
                        next_SYSRESETREQ = 1'b1;
                        while (SYSRESETn !== 1'b0) cycle;
                        next_SYSRESETREQ = 1'b0;
                        while (SYSRESETn !== 1'b1) cycle;
                        cycle;
                    end
                    "end": play_end;
                    "include": play_include;
                    "pipeline":
                        if (word[1] != "on" && word[1] != "off")
                            mistake("neither on nor off");
                        else
                            pipelined = word[1] == "on";
                    default: ;
                endcase
        end
    endtask

    // The end of a file.
    task leave;
        begin
            close;
            if (skipping != 0) begin
                line = skip_line;
                fail("repeat without end");
                skipping = 0;
            end
            while (loops != 0 && loop_file[loops] == depth) begin
                line = loop_line[loops];
                fail("repeat without end");
                loops = loops - 1;
            end
            $fclose(current);
            depth = depth - 1;
            if (depth >= 0 && lines[depth+1] == 0) begin
                line = lines[depth];
                fail("the included script is empty"); // or a folder
            end
        end
    endtask

    // Plays the next line, or leaves the file.
    task play_next;
        integer         got, more;
        reg [8*256-1:0] rest;
        begin
            current = files[depth];
            got = $fgets(text, current);
            if (got == 0)
                leave;
            else begin
                lines[depth] = lines[depth] + 1;
                line = lines[depth];
                split(got);
                if (got == 256 && text[7:0] != "\n") begin
                    more = 256;
                    rest = text;
                    while (more != 0 && rest[7:0] != "\n")
                        more = $fgets(rest, current);
                    fail("a line of more than 255 characters");
                end else if (words > 0) begin
                    if (skipping == 0)
                        play_line;
                    else if (word[0] == "repeat")
                        skipping = skipping + 1;
                    else if (word[0] == "end")
                        skipping = skipping - 1;
                end
            end
        end
    endtask

    reg [8*1024-1:0] script;
    initial begin
        SYSRESETREQ = 1'b0;
        {HADDR, HTRANS, HBURST, HSIZE, HWRITE, HWDATA} = 0;
        {ITCMEN, ITCMWE, ITCMADDR, ITCMWDATA} = 0;
        {DTCMEN, DTCMWE, DTCMADDR, DTCMWDATA} = 0;
        next_SYSRESETREQ = 1'b0;
        {next_HADDR, next_HTRANS, next_HBURST, next_HSIZE, next_HWRITE, next_HWDATA} = 0;
        {next_ITCMEN, next_ITCMWE, next_ITCMADDR, next_ITCMWDATA} = 0;
        {next_DTCMEN, next_DTCMWE, next_DTCMADDR, next_DTCMWDATA} = 0;
        if (!$value$plusargs("script=%s", script))
            script = "play.txt";
        names[0] = script;
        files[0] = $fopen(names[0], "r");
        lines[0] = 0;
        if (files[0] == 0) begin
            failures = 1;
            $display("%m: the script \"%0s\" cannot be read", names[0]);
        end else begin
            // An X is no reset yet.
            while (SYSRESETn !== 1'b0) cycle;
            while (SYSRESETn !== 1'b1) cycle;
            cycle;
            while (depth >= 0 && !stopped)
                play_next;
        end
        if (failures == 0 && checks > 0)
            $display("PASS");
        else
            $display("FAIL: %0d of %0d checks", failures, checks);
        done = 1'b1;
        if ($test$plusargs("finish"))
            $finish;
    end
endmodule
`ifndef HAVE_CortexM1Core
`define HAVE_CortexM1Core // for models behind this file
`endif
