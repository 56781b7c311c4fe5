// SD card interface in SPI mode.  The serial clock is made from the source clock SD_SPICLK, which is sampled with PCLK
// and must be slower than PCLK / 4: each of its rising edges is half a period of SD_CLK.
// Registers: registers/sdcard.json.
// A card is present when SD_CHECKIN has been low for 1024 clock cycles; SD_CHECKOUT shows it to the fabric.  INIT is
// cleared when the card leaves.
module apb_sdcard (
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

    input  wire        sd_spiclk,
    output wire        sd_clk,
    output wire        sd_cs,
    input  wire        sd_datain,
    output wire        sd_dataout,
    output wire        sd_card_init,
    input  wire        sd_checkin,
    output wire        sd_checkout,
    output wire        irq
);
    wire store = PSEL & PENABLE & PWRITE & PSTRB[0];   // every register has its bits in the lowest byte
    wire [11:0] offset = {PADDR[11:2], 2'b00};

    reg [2:0] src;
    reg [1:0] det;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            src <= 3'd0;
            det <= 2'b11;
        end else begin
            src <= {src[1:0], sd_spiclk};
            det <= {det[0], sd_checkin};
        end
    wire tick = src[1] & ~src[2];

    reg       card;
    reg [9:0] stable;
    wire      settle = (det[1] == card) & (&stable);   // det is low for a card that is not yet known, and vice versa
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            card   <= 1'b0;
            stable <= 10'd0;
        end else if (det[1] != card)
            stable <= 10'd0;
        else begin
            stable <= stable + 10'd1;
            if (settle)
                card <= ~card;
        end

    reg [3:0] ctrl;
    reg       complete;
    reg       lost;
    reg       changed;
    wire       busy;
    wire       done;
    wire [7:0] rx_data;
    wire       write_data = store & (offset == 12'h000);
    wire       start      = write_data & ~busy;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl     <= 4'd0;
            complete <= 1'b0;
            lost     <= 1'b0;
            changed  <= 1'b0;
        end else begin
            if (store & (offset == 12'h004)) begin
                complete <= complete & ~PWDATA[1];
                lost     <= lost & ~PWDATA[2];
                changed  <= changed & ~PWDATA[4];
            end
            if (store & (offset == 12'h008))
                ctrl <= PWDATA[3:0];
            if (write_data & busy)
                lost <= 1'b1;
            if (start)
                complete <= 1'b0;
            if (done)
                complete <= 1'b1;
            if (settle) begin
                changed <= 1'b1;
                if (card)
                    ctrl[1] <= 1'b0;
            end
        end

    spi_engine u_engine (
        .clk(PCLK), .rstn(PRESETn), .tick(tick), .start(start),
        .cpol(1'b0), .cpha(1'b0), .lsb_first(1'b0),
        .tx_data(PWDATA[7:0]), .rx_data(rx_data), .busy(busy), .done(done),
        .sclk(sd_clk), .mosi(sd_dataout), .miso(sd_datain)
    );

    always @*
        case (offset)
            12'h000: PRDATA = {24'd0, rx_data};
            12'h004: PRDATA = {27'd0, changed, card, lost, complete, busy};
            12'h008: PRDATA = {28'd0, ctrl};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY       = 1'b1;
    assign PSLVERR      = 1'b0;
    assign sd_cs        = ~ctrl[0];
    assign sd_card_init = ctrl[1];
    assign sd_checkout  = card;
    assign irq          = (complete & ctrl[2]) | (changed & ctrl[3]);
endmodule
