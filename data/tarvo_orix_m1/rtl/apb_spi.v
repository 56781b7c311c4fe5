// SPI master, one byte at a time, one slave select.
// Registers: registers/spi.json.
module apb_spi (
    input  wire        PCLK,
    input  wire        PRESETn,
    input  wire        PSEL,
    input  wire        PENABLE,
    input  wire        PWRITE,
    input  wire [11:0] PADDR,
    input  wire [31:0] PWDATA,
    input  wire [3:0]  PSTRB,
    output reg  [31:0] PRDATA,
    output wire        PREADY,
    output wire        PSLVERR,

    output wire        sclk,
    output wire        mosi,
    input  wire        miso,
    output wire        nss,
    output wire        irq
);
    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};

    reg [3:0]  ctrl;
    reg [15:0] div;
    reg [15:0] count;
    reg        select;
    reg        complete;
    reg        lost;
    wire       busy;
    wire       done;
    wire [7:0] rx_data;
    wire       write_data = store & (offset == 12'h000) & PSTRB[0];
    wire       start      = write_data & ~busy;
    wire       tick       = count == 16'd0;
    integer    n;

    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl     <= 4'd0;
            div      <= 16'd3;
            count    <= 16'd0;
            select   <= 1'b0;
            complete <= 1'b0;
            lost     <= 1'b0;
        end else begin
            count <= (start | tick) ? div : count - 16'd1;
            if (store)
                case (offset)
                    12'h004: if (PSTRB[0]) begin
                        complete <= complete & ~PWDATA[1];
                        lost     <= lost & ~PWDATA[2];
                    end
                    12'h008: if (PSTRB[0]) ctrl <= PWDATA[3:0];
                    12'h00C: for (n = 0; n < 2; n = n + 1) if (PSTRB[n]) div[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h010: if (PSTRB[0]) select <= PWDATA[0];
                    default: ;
                endcase
            if (write_data & busy)
                lost <= 1'b1;
            if (start)
                complete <= 1'b0;
            if (done)
                complete <= 1'b1;
        end

    spi_engine u_engine (
        .clk(PCLK), .rstn(PRESETn), .tick(tick), .start(start),
        .cpol(ctrl[0]), .cpha(ctrl[1]), .lsb_first(ctrl[2]),
        .tx_data(PWDATA[7:0]), .rx_data(rx_data), .busy(busy), .done(done),
        .sclk(sclk), .mosi(mosi), .miso(miso)
    );

    always @*
        case (offset)
            12'h000: PRDATA = {24'd0, rx_data};
            12'h004: PRDATA = {29'd0, lost, complete, busy};
            12'h008: PRDATA = {28'd0, ctrl};
            12'h00C: PRDATA = {16'd0, div};
            12'h010: PRDATA = {31'd0, select};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign nss     = ~select;
    assign irq     = complete & ctrl[3];
endmodule
