// AHB-Lite slave that drives one APB bus (APB with strobes, protection and error response).
// A transfer takes two APB cycles and the wait states of the addressed peripheral; PSLVERR becomes the two-cycle AHB
// error response.  So does a peripheral that is not ready while `late` is high: the interconnect counts the wait states.
// Both buses run on HCLK.  In simulation a ready or error signal that is unknown or floats counts as 0.
`include "static_macro_define.vh"

module ahb_to_apb #(
    parameter ADDR_WIDTH = 24
) (
    input  wire                  HCLK,
    input  wire                  HRESETn,
    input  wire                  HSEL,
    input  wire [ADDR_WIDTH-1:0] HADDR,
    input  wire [1:0]            HTRANS,
    input  wire [2:0]            HSIZE,
    input  wire [3:0]            HPROT,
    input  wire                  HWRITE,
    input  wire [31:0]           HWDATA,
    input  wire                  HREADY,
    output wire [31:0]           HRDATA,
    output wire                  HREADYOUT,
    output wire                  HRESP,
    input  wire                  late,
    output reg                   expired,   // reason of the last error response

    output reg  [ADDR_WIDTH-1:0] PADDR,
    output wire                  PSEL,
    output wire                  PENABLE,
    output reg                   PWRITE,
    output reg  [3:0]            PSTRB,
    output reg  [2:0]            PPROT,
    output wire [31:0]           PWDATA,
    input  wire [31:0]           PRDATA,
    input  wire                  PREADY,
    input  wire                  PSLVERR
);
    localparam [1:0] IDLE   = 2'd0;
    localparam [1:0] SETUP  = 2'd1;
    localparam [1:0] ACCESS = 2'd2;
    localparam [1:0] FAILED = 2'd3;   // second cycle of the error response

    reg [1:0] state;

    reg ready;
    reg error;
    always @* begin
        if (PREADY)
            ready = 1'b1;
        else
            ready = 1'b0;
        if (PSLVERR)
            error = 1'b1;
        else
            error = 1'b0;
    end

    wire accept = HSEL & HREADY & HTRANS[`ORIX_HTRANS_ACTIVE];
    wire done   = (state == ACCESS) & ready;
    wire failed = (state == ACCESS) & (ready ? error : late);

    reg [3:0] lanes;
    always @*
        case (HSIZE)
            `ORIX_HSIZE_BYTE: lanes = 4'b0001 << HADDR[1:0];
            `ORIX_HSIZE_HALF: lanes = HADDR[1] ? 4'b1100 : 4'b0011;
            default:          lanes = 4'b1111;
        endcase

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            state   <= IDLE;
            PADDR   <= {ADDR_WIDTH{1'b0}};
            PWRITE  <= 1'b0;
            PSTRB   <= 4'd0;
            PPROT   <= 3'd0;
            expired <= 1'b0;
        end else begin
            if (failed)
                expired <= ~ready;
            case (state)
                SETUP:   state <= ACCESS;
                ACCESS:  if (failed) state <= FAILED;
                         else if (ready) state <= accept ? SETUP : IDLE;
                default: state <= accept ? SETUP : IDLE;
            endcase
            if (accept) begin
                PADDR  <= HADDR;
                PWRITE <= HWRITE;
                PSTRB  <= HWRITE ? lanes : 4'd0;
                PPROT  <= {~HPROT[0], 1'b0, HPROT[1]};
            end
        end

    assign PSEL      = (state == SETUP) | (state == ACCESS);
    assign PENABLE   = state == ACCESS;
    assign PWDATA    = HWDATA;   // the master holds it until HREADY
    assign HRDATA    = PRDATA;
    assign HREADYOUT = (state == IDLE) | (state == FAILED) | (done & ~error);
    assign HRESP     = (state == FAILED) | failed;
endmodule
