// The primitives that a netlist is made of, as simulation models: compile this file with a netlist. Each module is
// complete in itself: a simulation model takes over the text of exactly those that its netlist instantiates, so that
// it needs no library. What is there already is left out: HAVE_ and a module's name say so.
//
// Clocked primitives: NEG = 1 turns the clock's active edge into the falling one; INIT is the value at
// power-up, x where the design gives none. The tables are functions so that inputs that change at the same
// time make no glitch, and give x only where the x of an input matters.
//
// There are no delays. The time scale is for simulators that want one for every module or for none; files behind this
// one that have none of their own get it, unless TARVO_NO_TIMESCALE is defined.
`ifndef TARVO_NO_TIMESCALE
`timescale 1ns / 1ps
`endif
/* verilator lint_off MULTITOP */

// Look-up table: O is bit {I0} of INIT.
`ifndef HAVE_TV_LUT1
module TV_LUT1 #(parameter [1:0] INIT = 2'h0) (output O, input I0);
    function look(input i0);
        look = i0 ? INIT[1] : INIT[0];
    endfunction
    assign O = look(I0);
endmodule
`define HAVE_TV_LUT1
`endif

// Look-up table: O is bit {I1, I0} of INIT.
`ifndef HAVE_TV_LUT2
module TV_LUT2 #(parameter [3:0] INIT = 4'h0) (output O, input I0, input I1);
    function look(input i0, input i1);
        reg [1:0] s;
        begin
            s = i1 ? INIT[3:2] : INIT[1:0];
            look = i0 ? s[1] : s[0];
        end
    endfunction
    assign O = look(I0, I1);
endmodule
`define HAVE_TV_LUT2
`endif

// Look-up table: O is bit {I2, I1, I0} of INIT.
`ifndef HAVE_TV_LUT3
module TV_LUT3 #(parameter [7:0] INIT = 8'h0) (output O, input I0, input I1, input I2);
    function look(input i0, input i1, input i2);
        reg [3:0] t;
        reg [1:0] s;
        begin
            t = i2 ? INIT[7:4] : INIT[3:0];
            s = i1 ? t[3:2] : t[1:0];
            look = i0 ? s[1] : s[0];
        end
    endfunction
    assign O = look(I0, I1, I2);
endmodule
`define HAVE_TV_LUT3
`endif

// Look-up table: O is bit {I3, I2, I1, I0} of INIT.
`ifndef HAVE_TV_LUT4
module TV_LUT4 #(parameter [15:0] INIT = 16'h0) (output O, input I0, input I1, input I2, input I3);
    function look(input i0, input i1, input i2, input i3);
        reg [7:0] u;
        reg [3:0] t;
        reg [1:0] s;
        begin
            u = i3 ? INIT[15:8] : INIT[7:0];
            t = i2 ? u[7:4] : u[3:0];
            s = i1 ? t[3:2] : t[1:0];
            look = i0 ? s[1] : s[0];
        end
    endfunction
    assign O = look(I0, I1, I2, I3);
endmodule
`define HAVE_TV_LUT4
`endif

// One bit of a sum: S and CO are A + B + CI, or with SUB = 1 A + ~B + CI. Cells of a chain hand the carry on
// from CO to CI.
`ifndef HAVE_TV_CARRY
module TV_CARRY #(parameter [0:0] SUB = 1'b0) (output S, output CO, input A, input B, input CI);
    wire b = B ^ SUB;
    assign S = A ^ b ^ CI;
    assign CO = (A & b) | (A & CI) | (b & CI);
endmodule
`define HAVE_TV_CARRY
`endif

// Flip-flop.
`ifndef HAVE_TV_DFF
module TV_DFF #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) Q <= D;
endmodule
`define HAVE_TV_DFF
`endif

// Flip-flop with clock enable.
`ifndef HAVE_TV_DFFE
module TV_DFFE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (CE) Q <= D;
endmodule
`define HAVE_TV_DFFE
`endif

// Flip-flop with synchronous reset.
`ifndef HAVE_TV_DFFR
module TV_DFFR #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input R, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (R) Q <= 1'b0; else Q <= D;
endmodule
`define HAVE_TV_DFFR
`endif

// Flip-flop with synchronous reset, which needs no enable, and clock enable.
`ifndef HAVE_TV_DFFRE
module TV_DFFRE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input R, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (R) Q <= 1'b0; else if (CE) Q <= D;
endmodule
`define HAVE_TV_DFFRE
`endif

// Flip-flop with synchronous set.
`ifndef HAVE_TV_DFFS
module TV_DFFS #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input S, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (S) Q <= 1'b1; else Q <= D;
endmodule
`define HAVE_TV_DFFS
`endif

// Flip-flop with synchronous set, which needs no enable, and clock enable.
`ifndef HAVE_TV_DFFSE
module TV_DFFSE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input S, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (S) Q <= 1'b1; else if (CE) Q <= D;
endmodule
`define HAVE_TV_DFFSE
`endif

// Flip-flop with asynchronous clear.
`ifndef HAVE_TV_DFFC
module TV_DFFC #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge CLR) if (CLR) Q <= 1'b0; else Q <= D;
endmodule
`define HAVE_TV_DFFC
`endif

// Flip-flop with asynchronous clear and clock enable.
`ifndef HAVE_TV_DFFCE
module TV_DFFCE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge CLR) if (CLR) Q <= 1'b0; else if (CE) Q <= D;
endmodule
`define HAVE_TV_DFFCE
`endif

// Flip-flop with asynchronous preset.
`ifndef HAVE_TV_DFFP
module TV_DFFP #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input PRE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge PRE) if (PRE) Q <= 1'b1; else Q <= D;
endmodule
`define HAVE_TV_DFFP
`endif

// Flip-flop with asynchronous preset and clock enable.
`ifndef HAVE_TV_DFFPE
module TV_DFFPE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input PRE, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge PRE) if (PRE) Q <= 1'b1; else if (CE) Q <= D;
endmodule
`define HAVE_TV_DFFPE
`endif

// Flip-flop with asynchronous clear and preset; clear wins.
`ifndef HAVE_TV_DFFCP
module TV_DFFCP #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input PRE, input D);
    wire c = C ^ NEG;
    wire set = PRE & ~CLR; // rises too when a clear ends during a preset
    initial Q = INIT;
    always @(posedge c or posedge CLR or posedge set) if (CLR) Q <= 1'b0; else if (set) Q <= 1'b1; else Q <= D;
endmodule
`define HAVE_TV_DFFCP
`endif

// Flip-flop with asynchronous clear and preset, of which clear wins, and clock enable.
`ifndef HAVE_TV_DFFCPE
module TV_DFFCPE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input PRE, input CE, input D);
    wire c = C ^ NEG;
    wire set = PRE & ~CLR; // rises too when a clear ends during a preset
    initial Q = INIT;
    always @(posedge c or posedge CLR or posedge set) if (CLR) Q <= 1'b0; else if (set) Q <= 1'b1; else if (CE) Q <= D;
endmodule
`define HAVE_TV_DFFCPE
`endif

// Latch, transparent while G is 1.
`ifndef HAVE_TV_DL
module TV_DL #(parameter [0:0] INIT = 1'bx) (output reg Q, input G, input D);
    initial Q = INIT;
    /* verilator lint_save */
    /* verilator lint_off LATCH */
    always @(G or D) if (G) Q = D;
    /* verilator lint_restore */
endmodule
`define HAVE_TV_DL
`endif

// Tri-state driver.
`ifndef HAVE_TV_TBUF
module TV_TBUF (output O, input I, input OE);
    assign O = OE ? I : 1'bz;
endmodule
`define HAVE_TV_TBUF
`endif

// 16 words of 4 bits with clocked write and unclocked read.
`ifndef HAVE_TV_RAMD
module TV_RAMD #(parameter [63:0] INIT = {64{1'bx}}, parameter [0:0] NEG = 1'b0)
    (output [3:0] RDATA, input [3:0] RADDR, input C, input WE, input [3:0] WADDR, input [3:0] WDATA);
    wire c = C ^ NEG;
    reg [3:0] mem [0:15];
    integer i;
    initial for (i = 0; i < 16; i = i + 1) mem[i] = INIT[4 * i +: 4];
    always @(posedge c) if (WE) mem[WADDR] <= WDATA;
    assign RDATA = mem[RADDR];
endmodule
`define HAVE_TV_RAMD
`endif

// Block RAM of 16384 bits with a read and a write port. Either port sees words of 1, 2, 4, 8, 16 or 32 bits.
// Addresses count bits, and bits below the word size are ignored. WEN enables the bytes of a word, or with
// bit 0 a whole word below 8 bits. Reading a word while it is written gives the old one.
`ifndef HAVE_TV_RAMB_SDP
module TV_RAMB_SDP #(
    parameter [16383:0] INIT = {64{256'bx}},
    parameter [31:0] RD_INIT = {32{1'bx}},
    parameter RD_WIDTH = 32,
    parameter WR_WIDTH = 32,
    parameter [0:0] RD_NEG = 1'b0,
    parameter [0:0] WR_NEG = 1'b0
) (
    output reg [31:0] RDATA, input RC, input REN, input [13:0] RADDR,
    input WC, input [3:0] WEN, input [13:0] WADDR, input [31:0] WDATA
);
    wire rc = RC ^ RD_NEG;
    wire wc = WC ^ WR_NEG;
    reg [7:0] mem [0:2047];
    reg [255:0] line;
    integer i, r, w;
    // Address bits below the word size.
    localparam [31:0] RD_BELOW = (RD_WIDTH < 8) ? 8 - RD_WIDTH : RD_WIDTH / 8 - 1;
    localparam [31:0] WR_BELOW = (WR_WIDTH < 8) ? 8 - WR_WIDTH : WR_WIDTH / 8 - 1;
    initial begin
        RDATA = RD_INIT;
        // In lines, since a simulator takes the whole of INIT in its hands for each part of it.
        if (INIT !== {64{256'bx}})
            for (i = 0; i < 2048; i = i + 1) begin
                if (i % 32 == 0) line = INIT[8 * i +: 256];
                mem[i] = line[8 * (i % 32) +: 8];
            end
    end
    generate
        if (RD_WIDTH < 8) begin : g_read_bits
            wire [2:0] shift = RADDR[2:0] & RD_BELOW[2:0];
            wire [7:0] word = mem[RADDR[13:3]] >> shift;
            always @(posedge rc) if (REN) RDATA[RD_WIDTH-1:0] <= word[RD_WIDTH-1:0];
        end else begin : g_read_bytes
            wire [10:0] first = RADDR[13:3] & ~RD_BELOW[10:0];
            always @(posedge rc)
                if (REN) for (r = 0; r < RD_WIDTH / 8; r = r + 1) RDATA[8 * r +: 8] <= mem[first + r[10:0]];
        end
        if (WR_WIDTH < 8) begin : g_write_bits
            wire [2:0] shift = WADDR[2:0] & WR_BELOW[2:0];
            always @(posedge wc) if (WEN[0]) mem[WADDR[13:3]][shift +: WR_WIDTH] <= WDATA[WR_WIDTH-1:0];
        end else begin : g_write_bytes
            wire [10:0] first = WADDR[13:3] & ~WR_BELOW[10:0];
            always @(posedge wc)
                for (w = 0; w < WR_WIDTH / 8; w = w + 1) if (WEN[w]) mem[first + w[10:0]] <= WDATA[8 * w +: 8];
        end
    endgenerate
endmodule
`define HAVE_TV_RAMB_SDP
`endif

// Block RAM of 16384 bits with two ports that read and write. Either port sees words of 1, 2, 4, 8 or 16 bits.
// Addresses count bits, and bits below the word size are ignored. The write enables are for the bytes of a word,
// or bit 0 for a whole word below 8 bits. A port that writes keeps its read data; reading a word while the
// other port writes it gives the old one.
`ifndef HAVE_TV_RAMB_TDP
module TV_RAMB_TDP #(
    parameter [16383:0] INIT = {64{256'bx}},
    parameter [15:0] A_INIT = {16{1'bx}},
    parameter [15:0] B_INIT = {16{1'bx}},
    parameter A_WIDTH = 16,
    parameter B_WIDTH = 16,
    parameter [0:0] A_NEG = 1'b0,
    parameter [0:0] B_NEG = 1'b0
) (
    output reg [15:0] A_RDATA, input A_C, input A_EN, input [1:0] A_WEN, input [13:0] A_ADDR, input [15:0] A_WDATA,
    output reg [15:0] B_RDATA, input B_C, input B_EN, input [1:0] B_WEN, input [13:0] B_ADDR, input [15:0] B_WDATA
);
    wire a_c = A_C ^ A_NEG;
    wire b_c = B_C ^ B_NEG;
    /* verilator lint_save */
    /* verilator lint_off MULTIDRIVEN */
    reg [7:0] mem [0:2047];
    /* verilator lint_restore */
    reg [255:0] line;
    integer i, a, b;
    // Address bits below the word size.
    localparam [31:0] A_BELOW = (A_WIDTH < 8) ? 8 - A_WIDTH : A_WIDTH / 8 - 1;
    localparam [31:0] B_BELOW = (B_WIDTH < 8) ? 8 - B_WIDTH : B_WIDTH / 8 - 1;
    initial begin
        A_RDATA = A_INIT;
        B_RDATA = B_INIT;
        // In lines, since a simulator takes the whole of INIT in its hands for each part of it.
        if (INIT !== {64{256'bx}})
            for (i = 0; i < 2048; i = i + 1) begin
                if (i % 32 == 0) line = INIT[8 * i +: 256];
                mem[i] = line[8 * (i % 32) +: 8];
            end
    end
    generate
        if (A_WIDTH < 8) begin : g_a_bits
            wire [2:0] shift = A_ADDR[2:0] & A_BELOW[2:0];
            wire [7:0] word = mem[A_ADDR[13:3]] >> shift;
            always @(posedge a_c)
                if (A_EN & A_WEN[0]) mem[A_ADDR[13:3]][shift +: A_WIDTH] <= A_WDATA[A_WIDTH-1:0];
                else if (A_EN) A_RDATA[A_WIDTH-1:0] <= word[A_WIDTH-1:0];
        end else begin : g_a_bytes
            wire [10:0] first = A_ADDR[13:3] & ~A_BELOW[10:0];
            wire [1:0] we = A_WEN & (A_WIDTH == 8 ? 2'b01 : 2'b11);
            always @(posedge a_c)
                if (A_EN) for (a = 0; a < A_WIDTH / 8; a = a + 1)
                    if (we[a]) mem[first + a[10:0]] <= A_WDATA[8 * a +: 8];
                    else if (~|we) A_RDATA[8 * a +: 8] <= mem[first + a[10:0]];
        end
        if (B_WIDTH < 8) begin : g_b_bits
            wire [2:0] shift = B_ADDR[2:0] & B_BELOW[2:0];
            wire [7:0] word = mem[B_ADDR[13:3]] >> shift;
            always @(posedge b_c)
                if (B_EN & B_WEN[0]) mem[B_ADDR[13:3]][shift +: B_WIDTH] <= B_WDATA[B_WIDTH-1:0];
                else if (B_EN) B_RDATA[B_WIDTH-1:0] <= word[B_WIDTH-1:0];
        end else begin : g_b_bytes
            wire [10:0] first = B_ADDR[13:3] & ~B_BELOW[10:0];
            wire [1:0] we = B_WEN & (B_WIDTH == 8 ? 2'b01 : 2'b11);
            always @(posedge b_c)
                if (B_EN) for (b = 0; b < B_WIDTH / 8; b = b + 1)
                    if (we[b]) mem[first + b[10:0]] <= B_WDATA[8 * b +: 8];
                    else if (~|we) B_RDATA[8 * b +: 8] <= mem[first + b[10:0]];
        end
    endgenerate
endmodule
`define HAVE_TV_RAMB_TDP
`endif
