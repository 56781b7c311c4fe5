// From the memories of memories.txt to the primitives. An INIT without any defined bit is left out.

module \$__TV_RAMD_ (PORT_R_ADDR, PORT_R_RD_DATA, PORT_W_CLK, PORT_W_ADDR, PORT_W_WR_EN, PORT_W_WR_DATA);
    parameter [63:0] INIT = 64'bx;
    parameter PORT_W_CLK_POL = 1;
    input [3:0] PORT_R_ADDR;
    output [3:0] PORT_R_RD_DATA;
    input PORT_W_CLK;
    input [3:0] PORT_W_ADDR;
    input PORT_W_WR_EN;
    input [3:0] PORT_W_WR_DATA;

`define PORTS .RDATA(PORT_R_RD_DATA), .RADDR(PORT_R_ADDR), .C(PORT_W_CLK), .WE(PORT_W_WR_EN), \
        .WADDR(PORT_W_ADDR), .WDATA(PORT_W_WR_DATA)
    generate
        if (INIT === 64'bx)
            TV_RAMD #(.NEG(!PORT_W_CLK_POL)) _TECHMAP_REPLACE_ (`PORTS);
        else
            TV_RAMD #(.INIT(INIT), .NEG(!PORT_W_CLK_POL)) _TECHMAP_REPLACE_ (`PORTS);
    endgenerate
`undef PORTS
endmodule

module \$__TV_RAMB_SDP_ (PORT_R_CLK, PORT_R_RD_EN, PORT_R_ADDR, PORT_R_RD_DATA, PORT_W_CLK, PORT_W_ADDR,
                         PORT_W_WR_EN, PORT_W_WR_DATA);
    parameter [16383:0] INIT = 16384'bx;
    parameter PORT_R_CLK_POL = 1;
    parameter PORT_R_WIDTH = 32;
    parameter [PORT_R_WIDTH-1:0] PORT_R_RD_INIT_VALUE = {PORT_R_WIDTH{1'bx}};
    parameter PORT_W_CLK_POL = 1;
    parameter PORT_W_WIDTH = 32;
    parameter PORT_W_WR_EN_WIDTH = 4;
    input PORT_R_CLK;
    input PORT_R_RD_EN;
    input [13:0] PORT_R_ADDR;
    output [PORT_R_WIDTH-1:0] PORT_R_RD_DATA;
    input PORT_W_CLK;
    input [13:0] PORT_W_ADDR;
    input [PORT_W_WR_EN_WIDTH-1:0] PORT_W_WR_EN;
    input [PORT_W_WIDTH-1:0] PORT_W_WR_DATA;

    wire [31:0] rdata;
    assign PORT_R_RD_DATA = rdata[PORT_R_WIDTH-1:0];
    wire [3:0] wen = PORT_W_WR_EN;
    wire [31:0] wdata = PORT_W_WR_DATA;
    localparam [31:0] RD_INIT = {{32{1'bx}}, PORT_R_RD_INIT_VALUE};

`define PARAMETERS .RD_INIT(RD_INIT), .RD_WIDTH(PORT_R_WIDTH), .WR_WIDTH(PORT_W_WIDTH), \
        .RD_NEG(!PORT_R_CLK_POL), .WR_NEG(!PORT_W_CLK_POL)
`define PORTS .RDATA(rdata), .RC(PORT_R_CLK), .REN(PORT_R_RD_EN), .RADDR(PORT_R_ADDR), \
        .WC(PORT_W_CLK), .WEN(wen), .WADDR(PORT_W_ADDR), .WDATA(wdata)
    generate
        if (INIT === 16384'bx)
            TV_RAMB_SDP #(`PARAMETERS) _TECHMAP_REPLACE_ (`PORTS);
        else
            TV_RAMB_SDP #(.INIT(INIT), `PARAMETERS) _TECHMAP_REPLACE_ (`PORTS);
    endgenerate
`undef PARAMETERS
`undef PORTS
endmodule

module \$__TV_RAMB_TDP_ (PORT_A_CLK, PORT_A_CLK_EN, PORT_A_ADDR, PORT_A_RD_DATA, PORT_A_WR_EN, PORT_A_WR_DATA,
                         PORT_B_CLK, PORT_B_CLK_EN, PORT_B_ADDR, PORT_B_RD_DATA, PORT_B_WR_EN, PORT_B_WR_DATA);
    parameter [16383:0] INIT = 16384'bx;
    parameter PORT_A_CLK_POL = 1;
    parameter PORT_A_WIDTH = 16;
    parameter [PORT_A_WIDTH-1:0] PORT_A_RD_INIT_VALUE = {PORT_A_WIDTH{1'bx}};
    parameter PORT_A_WR_EN_WIDTH = 2;
    parameter PORT_B_CLK_POL = 1;
    parameter PORT_B_WIDTH = 16;
    parameter [PORT_B_WIDTH-1:0] PORT_B_RD_INIT_VALUE = {PORT_B_WIDTH{1'bx}};
    parameter PORT_B_WR_EN_WIDTH = 2;
    input PORT_A_CLK;
    input PORT_A_CLK_EN;
    input [13:0] PORT_A_ADDR;
    output [PORT_A_WIDTH-1:0] PORT_A_RD_DATA;
    input [PORT_A_WR_EN_WIDTH-1:0] PORT_A_WR_EN;
    input [PORT_A_WIDTH-1:0] PORT_A_WR_DATA;
    input PORT_B_CLK;
    input PORT_B_CLK_EN;
    input [13:0] PORT_B_ADDR;
    output [PORT_B_WIDTH-1:0] PORT_B_RD_DATA;
    input [PORT_B_WR_EN_WIDTH-1:0] PORT_B_WR_EN;
    input [PORT_B_WIDTH-1:0] PORT_B_WR_DATA;

    wire [15:0] a_rdata;
    assign PORT_A_RD_DATA = a_rdata[PORT_A_WIDTH-1:0];
    wire [1:0] a_wen = PORT_A_WR_EN;
    wire [15:0] a_wdata = PORT_A_WR_DATA;
    wire [15:0] b_rdata;
    assign PORT_B_RD_DATA = b_rdata[PORT_B_WIDTH-1:0];
    wire [1:0] b_wen = PORT_B_WR_EN;
    wire [15:0] b_wdata = PORT_B_WR_DATA;
    localparam [15:0] A_INIT = {{16{1'bx}}, PORT_A_RD_INIT_VALUE};
    localparam [15:0] B_INIT = {{16{1'bx}}, PORT_B_RD_INIT_VALUE};

`define PARAMETERS .A_INIT(A_INIT), .A_WIDTH(PORT_A_WIDTH), .A_NEG(!PORT_A_CLK_POL), \
        .B_INIT(B_INIT), .B_WIDTH(PORT_B_WIDTH), .B_NEG(!PORT_B_CLK_POL)
`define PORTS .A_RDATA(a_rdata), .A_C(PORT_A_CLK), .A_EN(PORT_A_CLK_EN), .A_WEN(a_wen), .A_ADDR(PORT_A_ADDR), \
        .A_WDATA(a_wdata), .B_RDATA(b_rdata), .B_C(PORT_B_CLK), .B_EN(PORT_B_CLK_EN), .B_WEN(b_wen), \
        .B_ADDR(PORT_B_ADDR), .B_WDATA(b_wdata)
    generate
        if (INIT === 16384'bx)
            TV_RAMB_TDP #(`PARAMETERS) _TECHMAP_REPLACE_ (`PORTS);
        else
            TV_RAMB_TDP #(.INIT(INIT), `PARAMETERS) _TECHMAP_REPLACE_ (`PORTS);
    endgenerate
`undef PARAMETERS
`undef PORTS
endmodule
