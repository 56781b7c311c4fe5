// APB decoder and multiplexer of sixteen slots.  The slot number is the four address bits from SLOT_LSB upwards; any
// address bit above them must be 0.  A slot whose ENABLE bit is 0 is never selected; such an access completes at once
// with PSLVERR.  Slot n uses bit n of the one-bit vectors and bits 32n+31 to 32n of prdata_s.
module apb_mux #(
    parameter        ADDR_WIDTH = 24,
    parameter        SLOT_LSB   = 12,
    parameter [15:0] ENABLE     = 16'hFFFF
) (
    input  wire [ADDR_WIDTH-1:0] PADDR,
    input  wire                  PSEL,
    output wire [31:0]           PRDATA,
    output wire                  PREADY,
    output wire                  PSLVERR,
    output wire                  vacant,    // no slot that is there has this address

    output wire [15:0]           psel_s,
    input  wire [511:0]          prdata_s,
    input  wire [15:0]           pready_s,
    input  wire [15:0]           pslverr_s
);
    wire [3:0]  slot  = PADDR[SLOT_LSB +: 4];
    wire [31:0] above = {{(32-ADDR_WIDTH){1'b0}}, PADDR} >> (SLOT_LSB + 4);
    wire [15:0] hit   = (above == 32'd0) ? (16'd1 << slot) & ENABLE : 16'd0;
    wire        none  = hit == 16'd0;

    reg [31:0] rdata;
    integer n;
    always @* begin
        rdata = 32'd0;
        for (n = 0; n < 16; n = n + 1)
            rdata = rdata | (prdata_s[32*n +: 32] & {32{hit[n]}});
    end

    assign vacant  = none;
    assign psel_s  = hit & {16{PSEL}};
    assign PRDATA  = rdata;
    assign PREADY  = none | (|(pready_s & hit));
    assign PSLVERR = PSEL & (none | (|(pslverr_s & hit)));
endmodule
