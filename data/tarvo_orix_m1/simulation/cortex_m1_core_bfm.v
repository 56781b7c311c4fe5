// Bus-functional model of the processor core for simulation: the ports and parameters of CortexM1Core, and in place of a
// program a script of transfers. The file is named with +script=FILE, or play.txt in the working folder. One command a
// line; # begins a comment; numbers are decimal or hexadecimal with 0x:
//
//   write   ADDRESS DATA            also write16, write8: the data stands in the low bits
//   read    ADDRESS EXPECTED [MASK] also read16, read8: fails unless (data & MASK) is EXPECTED; MASK is all ones if left out
//   poll    ADDRESS EXPECTED MASK LIMIT   reads words until (data & MASK) is EXPECTED, at most LIMIT times
//   error   ADDRESS                 a read that must get an error response
//   wait    CYCLES
//   irq     NUMBER LEVEL LIMIT      waits until the interrupt input has the level, at most LIMIT cycles
//   nmi     LEVEL LIMIT             the same for the non-maskable interrupt
//   reset                           requests a system reset and goes on after it
//
// Addresses in the ITCM (from 0x00000000, and from 0x10000000 if its upper alias is on) and in the DTCM (from 0x20000000) go
// over the memories' own interfaces, all others over AHB-Lite. Data is little-endian whatever BE8 says. A line has at most
// 255 characters. Each failure is printed with the line of the script, and the end is "PASS" or "FAIL: n of m checks"; done is
// 1 then, and with +finish the simulation ends.
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
    output wire [2:0]  HBURST,
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
    assign HBURST = 3'b000;      // single transfers
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
    integer line = 0;

    reg [31:0] data;             // of the last read, the addressed bytes in the low bits
    reg        failed;           // the last transfer got an error response

    // The script goes on at falling edges: there it sees settled inputs, and sets what the outputs show from the next
    // rising edge on.
    reg         next_SYSRESETREQ, next_HWRITE, next_ITCMEN, next_DTCMEN;
    reg  [31:0] next_HADDR, next_HWDATA, next_ITCMWDATA, next_DTCMWDATA;
    reg  [1:0]  next_HTRANS;
    reg  [2:0]  next_HSIZE;
    reg  [3:0]  next_ITCMWE, next_DTCMWE;
    reg  [17:0] next_ITCMADDR, next_DTCMADDR;
    always @(posedge HCLK) begin
        SYSRESETREQ <= next_SYSRESETREQ;
        {HADDR, HTRANS, HSIZE, HWRITE, HWDATA} <= {next_HADDR, next_HTRANS, next_HSIZE, next_HWRITE, next_HWDATA};
        {ITCMEN, ITCMWE, ITCMADDR, ITCMWDATA} <= {next_ITCMEN, next_ITCMWE, next_ITCMADDR, next_ITCMWDATA};
        {DTCMEN, DTCMWE, DTCMADDR, DTCMWDATA} <= {next_DTCMEN, next_DTCMWE, next_DTCMADDR, next_DTCMWDATA};
    end

    task cycle;
        @(negedge HCLK);
    endtask

    task fail(input [8*64-1:0] what);
        begin
            failures = failures + 1;
            $display("%m: line %0d: %0s", line, what);
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

    task transfer(input [31:0] address, input write, input [1:0] size, input [31:0] value);
        reg [3:0]  lanes;
        reg [31:0] word;
        reg        itcm, dtcm;
        begin
            lanes = (size == 2'd0) ? 4'b0001 << address[1:0] : (size == 2'd1) ? (address[1] ? 4'b1100 : 4'b0011) : 4'b1111;
            word = (size == 2'd0) ? {4{value[7:0]}} : (size == 2'd1) ? {2{value[15:0]}} : value;
            itcm = ((ITCM_LA_EN != 0) && (address < bytes(ITCMSIZE))) ||
                   ((ITCM_UA_EN != 0) && (address - 32'h10000000 < bytes(ITCMSIZE)));
            dtcm = address - 32'h20000000 < bytes(DTCMSIZE);
            failed = 1'b0;
            if (itcm || dtcm) begin
                next_ITCMEN = itcm; next_ITCMADDR = address[19:2]; next_ITCMWDATA = word;
                next_ITCMWE = (itcm && write) ? lanes : 4'd0;
                next_DTCMEN = dtcm; next_DTCMADDR = address[19:2]; next_DTCMWDATA = word;
                next_DTCMWE = (dtcm && write) ? lanes : 4'd0;
                cycle;
                next_ITCMEN = 1'b0; next_ITCMWE = 4'd0; next_DTCMEN = 1'b0; next_DTCMWE = 4'd0;
                cycle;
                data = itcm ? ITCMRDATA : DTCMRDATA;
            end else begin
                next_HADDR = address; next_HTRANS = 2'b10; next_HSIZE = {1'b0, size}; next_HWRITE = write;
                cycle;
                ready;
                next_HTRANS = 2'b00; next_HWRITE = 1'b0; next_HWDATA = word;
                cycle;
                ready;
                failed = failed | (HRESP !== 1'b0);
                data = HRDATA;
            end
            if (size == 2'd1)
                data = (data >> (8 * {address[1], 1'b0})) & 32'h0000FFFF;
            if (size == 2'd0)
                data = (data >> (8 * address[1:0])) & 32'h000000FF;
        end
    endtask

    // Words of the current line.
    reg [8*256-1:0] text;
    reg [8*16-1:0]  command;
    reg [8*32-1:0]  word1, word2, word3, word4;
    reg [31:0]      number1, number2, number3, number4;
    integer         words;

    // The value of a word, decimal or hexadecimal; a word that is no number is a failure.
    task number(input [8*32-1:0] word, output [31:0] value);
        integer read;
        reg [7:0] rest;
        begin
            read = $sscanf(word, "0x%h%c", value, rest);
            if (read != 1)
                read = $sscanf(word, "%d%c", value, rest);
            if (read != 1)
                fail("not a number");
        end
    endtask

    task check_read(input [31:0] expected, input [31:0] mask);
        begin
            checks = checks + 1;
            if (failed)
                fail("error response");
            else if ((data & mask) !== expected) begin
                failures = failures + 1;
                $display("%m: line %0d: read 0x%08h, expected 0x%08h in the bits 0x%08h", line, data, expected, mask);
            end
        end
    endtask

    task play_read(input [1:0] size);
        begin
            transfer(number1, 1'b0, size, 32'd0);
            check_read(number2, (words > 3) ? number3 : 32'hFFFFFFFF);
        end
    endtask

    task play_write(input [1:0] size);
        begin
            transfer(number1, 1'b1, size, number2);
            checks = checks + 1;
            if (failed)
                fail("error response");
        end
    endtask

    task need(input integer count);
        if (words < count + 1)
            fail("a number is missing");
    endtask

    task play_line;
        begin
            if (words > 1) number(word1, number1);
            if (words > 2) number(word2, number2);
            if (words > 3) number(word3, number3);
            if (words > 4) number(word4, number4);
            case (command)
                "write":   begin need(2); play_write(2'd2); end
                "write16": begin need(2); play_write(2'd1); end
                "write8":  begin need(2); play_write(2'd0); end
                "read":    begin need(2); play_read(2'd2); end
                "read16":  begin need(2); play_read(2'd1); end
                "read8":   begin need(2); play_read(2'd0); end
                "poll": begin
                    need(4);
                    transfer(number1, 1'b0, 2'd2, 32'd0);
                    while (!failed && (data & number3) !== number2 && number4 > 32'd1) begin
                        number4 = number4 - 32'd1;
                        transfer(number1, 1'b0, 2'd2, 32'd0);
                    end
                    check_read(number2, number3);
                end
                "error": begin
                    need(1);
                    transfer(number1, 1'b0, 2'd2, 32'd0);
                    checks = checks + 1;
                    if (!failed)
                        fail("no error response");
                end
                "wait": begin
                    need(1);
                    repeat (number1) cycle;
                end
                "irq": begin
                    need(3);
                    while (IRQ[number1[4:0]] !== number2[0] && number3 != 32'd0) begin
                        number3 = number3 - 32'd1;
                        cycle;
                    end
                    checks = checks + 1;
                    if (IRQ[number1[4:0]] !== number2[0])
                        fail("the interrupt input does not get the level");
                end
                "nmi": begin
                    need(2);
                    while (NMI !== number1[0] && number2 != 32'd0) begin
                        number2 = number2 - 32'd1;
                        cycle;
                    end
                    checks = checks + 1;
                    if (NMI !== number1[0])
                        fail("the non-maskable interrupt does not get the level");
                end
                "reset": begin
                    next_SYSRESETREQ = 1'b1;
                    while (SYSRESETn !== 1'b0) cycle;
                    next_SYSRESETREQ = 1'b0;
                    while (SYSRESETn !== 1'b1) cycle;
                    cycle;
                end
                default: fail("unknown command");
            endcase
        end
    endtask

    integer file, got;
    reg [8*1024-1:0] name;
    initial begin
        SYSRESETREQ = 1'b0;
        {HADDR, HTRANS, HSIZE, HWRITE, HWDATA} = 0;
        {ITCMEN, ITCMWE, ITCMADDR, ITCMWDATA} = 0;
        {DTCMEN, DTCMWE, DTCMADDR, DTCMWDATA} = 0;
        next_SYSRESETREQ = 1'b0;
        {next_HADDR, next_HTRANS, next_HSIZE, next_HWRITE, next_HWDATA} = 0;
        {next_ITCMEN, next_ITCMWE, next_ITCMADDR, next_ITCMWDATA} = 0;
        {next_DTCMEN, next_DTCMWE, next_DTCMADDR, next_DTCMWDATA} = 0;
        if (!$value$plusargs("script=%s", name))
            name = "play.txt";
        file = $fopen(name, "r");
        if (file == 0) begin
            failures = 1;
            $display("%m: the script \"%0s\" cannot be read", name);
        end else begin
            // An X is no reset yet.
            while (SYSRESETn !== 1'b0) cycle;
            while (SYSRESETn !== 1'b1) cycle;
            cycle;
            got = $fgets(text, file);
            while (got != 0) begin
                line = line + 1;
                text = without_comment(text);
                words = $sscanf(text, "%s %s %s %s %s", command, word1, word2, word3, word4);
                if (words > 0)
                    play_line;
                got = $fgets(text, file);
            end
            $fclose(file);
        end
        if (failures == 0 && checks > 0)
            $display("PASS");
        else
            $display("FAIL: %0d of %0d checks", failures, checks);
        done = 1'b1;
        if ($test$plusargs("finish"))
            $finish;
    end

    function [8*256-1:0] without_comment(input [8*256-1:0] characters);
        integer n;
        reg     found;
        begin
            without_comment = characters;
            found = 1'b0;
            for (n = 255; n >= 0; n = n - 1) begin
                found = found | (characters[8*n +: 8] == "#");
                if (found)
                    without_comment[8*n +: 8] = " ";
            end
        end
    endfunction
endmodule
`ifndef HAVE_CortexM1Core
`define HAVE_CortexM1Core // for models behind this file
`endif
