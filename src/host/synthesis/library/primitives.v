// The primitives that a netlist is made of, as simulation models. Each module is complete in itself: a
// simulation model takes over the text of exactly those that its netlist instantiates.
//
// Clocked primitives: NEG = 1 turns the clock's active edge into the falling one; INIT is the value at
// power-up, x where the design gives none. The tables are functions so that inputs that change at the same
// time make no glitch, and give x only where the x of an input matters.

// Look-up table: O is bit {I0} of INIT.
module TV_LUT1 #(parameter [1:0] INIT = 2'h0) (output O, input I0);
    function look(input i0);
        look = i0 ? INIT[1] : INIT[0];
    endfunction
    assign O = look(I0);
endmodule

// Look-up table: O is bit {I1, I0} of INIT.
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

// Look-up table: O is bit {I2, I1, I0} of INIT.
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

// Look-up table: O is bit {I3, I2, I1, I0} of INIT.
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

// One bit of a sum: S and CO are A + B + CI, or with SUB = 1 A + ~B + CI. Cells of a chain hand the carry on
// from CO to CI.
module TV_CARRY #(parameter [0:0] SUB = 1'b0) (output S, output CO, input A, input B, input CI);
    wire b = B ^ SUB;
    assign S = A ^ b ^ CI;
    assign CO = (A & b) | (A & CI) | (b & CI);
endmodule

// Flip-flop.
module TV_DFF #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) Q <= D;
endmodule

// Flip-flop with clock enable.
module TV_DFFE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (CE) Q <= D;
endmodule

// Flip-flop with synchronous reset.
module TV_DFFR #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input R, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (R) Q <= 1'b0; else Q <= D;
endmodule

// Flip-flop with synchronous reset, which needs no enable, and clock enable.
module TV_DFFRE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input R, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (R) Q <= 1'b0; else if (CE) Q <= D;
endmodule

// Flip-flop with synchronous set.
module TV_DFFS #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input S, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (S) Q <= 1'b1; else Q <= D;
endmodule

// Flip-flop with synchronous set, which needs no enable, and clock enable.
module TV_DFFSE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input S, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c) if (S) Q <= 1'b1; else if (CE) Q <= D;
endmodule

// Flip-flop with asynchronous clear.
module TV_DFFC #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge CLR) if (CLR) Q <= 1'b0; else Q <= D;
endmodule

// Flip-flop with asynchronous clear and clock enable.
module TV_DFFCE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge CLR) if (CLR) Q <= 1'b0; else if (CE) Q <= D;
endmodule

// Flip-flop with asynchronous preset.
module TV_DFFP #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input PRE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge PRE) if (PRE) Q <= 1'b1; else Q <= D;
endmodule

// Flip-flop with asynchronous preset and clock enable.
module TV_DFFPE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input PRE, input CE, input D);
    wire c = C ^ NEG;
    initial Q = INIT;
    always @(posedge c or posedge PRE) if (PRE) Q <= 1'b1; else if (CE) Q <= D;
endmodule

// Flip-flop with asynchronous clear and preset; clear wins.
module TV_DFFCP #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input PRE, input D);
    wire c = C ^ NEG;
    wire set = PRE & ~CLR; // rises too when a clear ends during a preset
    initial Q = INIT;
    always @(posedge c or posedge CLR or posedge set) if (CLR) Q <= 1'b0; else if (set) Q <= 1'b1; else Q <= D;
endmodule

// Flip-flop with asynchronous clear and preset, of which clear wins, and clock enable.
module TV_DFFCPE #(parameter [0:0] INIT = 1'bx, parameter [0:0] NEG = 1'b0) (output reg Q, input C, input CLR, input PRE, input CE, input D);
    wire c = C ^ NEG;
    wire set = PRE & ~CLR; // rises too when a clear ends during a preset
    initial Q = INIT;
    always @(posedge c or posedge CLR or posedge set) if (CLR) Q <= 1'b0; else if (set) Q <= 1'b1; else if (CE) Q <= D;
endmodule

// Latch, transparent while G is 1.
module TV_DL #(parameter [0:0] INIT = 1'bx) (output reg Q, input G, input D);
    initial Q = INIT;
    always @(G or D) if (G) Q = D;
endmodule

// Tri-state driver.
module TV_TBUF (output O, input I, input OE);
    assign O = OE ? I : 1'bz;
endmodule

// 16 words of 4 bits with clocked write and unclocked read.
module TV_RAMD #(parameter [63:0] INIT = {64{1'bx}}, parameter [0:0] NEG = 1'b0)
    (output [3:0] RDATA, input [3:0] RADDR, input C, input WE, input [3:0] WADDR, input [3:0] WDATA);
    wire c = C ^ NEG;
    reg [3:0] mem [0:15];
    integer i;
    initial for (i = 0; i < 16; i = i + 1) mem[i] = INIT[4 * i +: 4];
    always @(posedge c) if (WE) mem[WADDR] <= WDATA;
    assign RDATA = mem[RADDR];
endmodule

// Block RAM of 16384 bits with a read and a write port. Either port sees words of 1, 2, 4, 8, 16 or 32 bits.
// Addresses count bits, and bits below the word size are ignored. WEN enables the bytes of a word, or with
// bit 0 a whole word below 8 bits. Reading a word while it is written gives the old one.
module TV_RAMB_SDP #(
    parameter [16383:0] INIT = {16384{1'bx}},
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
    initial begin
        RDATA = RD_INIT;
        // In lines, since a simulator takes the whole of INIT in its hands for each part of it.
        if (INIT !== {16384{1'bx}})
            for (i = 0; i < 2048; i = i + 1) begin
                if (i % 32 == 0) line = INIT[8 * i +: 256];
                mem[i] = line[8 * (i % 32) +: 8];
            end
    end
    generate
        if (RD_WIDTH < 8) begin : g_read_bits
            wire [2:0] shift = RADDR[2:0] & (8 - RD_WIDTH);
            wire [7:0] word = mem[RADDR[13:3]] >> shift;
            always @(posedge rc) if (REN) RDATA[RD_WIDTH-1:0] <= word[RD_WIDTH-1:0];
        end else begin : g_read_bytes
            wire [10:0] first = RADDR[13:3] & ~(RD_WIDTH / 8 - 1);
            always @(posedge rc)
                if (REN) for (r = 0; r < RD_WIDTH / 8; r = r + 1) RDATA[8 * r +: 8] <= mem[first + r];
        end
        if (WR_WIDTH < 8) begin : g_write_bits
            wire [2:0] shift = WADDR[2:0] & (8 - WR_WIDTH);
            always @(posedge wc) if (WEN[0]) mem[WADDR[13:3]][shift +: WR_WIDTH] <= WDATA[WR_WIDTH-1:0];
        end else begin : g_write_bytes
            wire [10:0] first = WADDR[13:3] & ~(WR_WIDTH / 8 - 1);
            always @(posedge wc)
                for (w = 0; w < WR_WIDTH / 8; w = w + 1) if (WEN[w]) mem[first + w] <= WDATA[8 * w +: 8];
        end
    endgenerate
endmodule

// Block RAM of 16384 bits with two ports that read and write. Either port sees words of 1, 2, 4, 8 or 16 bits.
// Addresses count bits, and bits below the word size are ignored. The write enables are for the bytes of a word,
// or bit 0 for a whole word below 8 bits. A port that writes keeps its read data; reading a word while the
// other port writes it gives the old one.
module TV_RAMB_TDP #(
    parameter [16383:0] INIT = {16384{1'bx}},
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
    reg [7:0] mem [0:2047];
    reg [255:0] line;
    integer i, a, b;
    initial begin
        A_RDATA = A_INIT;
        B_RDATA = B_INIT;
        // In lines, since a simulator takes the whole of INIT in its hands for each part of it.
        if (INIT !== {16384{1'bx}})
            for (i = 0; i < 2048; i = i + 1) begin
                if (i % 32 == 0) line = INIT[8 * i +: 256];
                mem[i] = line[8 * (i % 32) +: 8];
            end
    end
    generate
        if (A_WIDTH < 8) begin : g_a_bits
            wire [2:0] shift = A_ADDR[2:0] & (8 - A_WIDTH);
            wire [7:0] word = mem[A_ADDR[13:3]] >> shift;
            always @(posedge a_c)
                if (A_EN & A_WEN[0]) mem[A_ADDR[13:3]][shift +: A_WIDTH] <= A_WDATA[A_WIDTH-1:0];
                else if (A_EN) A_RDATA[A_WIDTH-1:0] <= word[A_WIDTH-1:0];
        end else begin : g_a_bytes
            wire [10:0] first = A_ADDR[13:3] & ~(A_WIDTH / 8 - 1);
            wire [1:0] we = A_WEN & (A_WIDTH == 8 ? 2'b01 : 2'b11);
            always @(posedge a_c)
                if (A_EN) for (a = 0; a < A_WIDTH / 8; a = a + 1)
                    if (we[a]) mem[first + a] <= A_WDATA[8 * a +: 8];
                    else if (~|we) A_RDATA[8 * a +: 8] <= mem[first + a];
        end
        if (B_WIDTH < 8) begin : g_b_bits
            wire [2:0] shift = B_ADDR[2:0] & (8 - B_WIDTH);
            wire [7:0] word = mem[B_ADDR[13:3]] >> shift;
            always @(posedge b_c)
                if (B_EN & B_WEN[0]) mem[B_ADDR[13:3]][shift +: B_WIDTH] <= B_WDATA[B_WIDTH-1:0];
                else if (B_EN) B_RDATA[B_WIDTH-1:0] <= word[B_WIDTH-1:0];
        end else begin : g_b_bytes
            wire [10:0] first = B_ADDR[13:3] & ~(B_WIDTH / 8 - 1);
            wire [1:0] we = B_WEN & (B_WIDTH == 8 ? 2'b01 : 2'b11);
            always @(posedge b_c)
                if (B_EN) for (b = 0; b < B_WIDTH / 8; b = b + 1)
                    if (we[b]) mem[first + b] <= B_WDATA[8 * b +: 8];
                    else if (~|we) B_RDATA[8 * b +: 8] <= mem[first + b];
        end
    endgenerate
endmodule
