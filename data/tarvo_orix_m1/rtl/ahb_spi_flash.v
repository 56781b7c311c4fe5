// SPI-Flash: a read window of 16 MB onto a serial flash, and registers for everything else.
// A read in the window sends the read command 0x03 with the 24-bit word address and waits for four bytes; the byte at
// the lowest address arrives in bits 7 to 0.  The bus waits meanwhile.  A write in the window, and a read while
// SELECT is 1, get the error response.  The serial clock idles low (mode 0).
// Registers: registers/spi_flash.json.
// They stand at the start of the upper 16 MB and have their bits in the lowest byte; what lies behind them reads as 0.
module ahb_spi_flash (
    input  wire        HCLK,
    input  wire        HRESETn,
    input  wire        HSEL,
    input  wire [24:0] HADDR,
    input  wire [1:0]  HTRANS,
    input  wire        HWRITE,
    input  wire [31:0] HWDATA,
    input  wire        HREADY,
    output wire [31:0] HRDATA,
    output wire        HREADYOUT,
    output wire        HRESP,

    output wire        flash_clk,
    output reg         flash_csn,
    output wire        flash_mosi,
    input  wire        flash_miso,
    output wire        flash_wpn,
    output wire        flash_holdn
);
    localparam [2:0] IDLE   = 3'd0;
    localparam [2:0] REGS   = 3'd1;   // data phase of a register access
    localparam [2:0] BYTE   = 3'd2;   // a byte of DATA is on its way
    localparam [2:0] WINDOW = 3'd3;   // reading the flash
    localparam [2:0] GAP    = 3'd4;   // chip select high between two reads
    localparam [2:0] READY  = 3'd5;   // last cycle of a waited data phase
    localparam [2:0] ERROR1 = 3'd6;
    localparam [2:0] ERROR2 = 3'd7;

    reg [2:0]  state;
    reg        write;
    reg [23:2] word;
    reg        lowest;        // a write that reaches the lowest byte
    reg [2:0]  index;         // byte of the read sequence: command, 3 of address, 4 of data
    reg [31:0] data;
    reg        select;
    reg [7:0]  div;
    reg [7:0]  count;
    reg        protect;
    reg        start;
    reg [7:0]  tx_data;
    reg        from_window;   // the answer is in data
    wire [7:0] rx_data;
    wire       busy;
    wire       done;

    wire accept  = HSEL & HREADY & HTRANS[1];
    wire listed  = word[23:4] == 20'd0;
    wire store   = (state == REGS) & write & lowest & listed;
    wire held    = (store & (word[3:2] == 2'd1)) ? HWDATA[0] : select;   // a write of SELECT counts at once
    wire refused = ~HADDR[24] & (HWRITE | held);
    wire sends   = store & (word[3:2] == 2'd0);
    wire tick    = count == 8'd0;

    reg [7:0] sequence_byte;
    always @*
        case (index)
            3'd0:    sequence_byte = 8'h03;
            3'd1:    sequence_byte = word[23:16];
            3'd2:    sequence_byte = word[15:8];
            3'd3:    sequence_byte = {word[7:2], 2'b00};
            default: sequence_byte = 8'h00;
        endcase

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            state       <= IDLE;
            write       <= 1'b0;
            word        <= 22'd0;
            lowest      <= 1'b0;
            index       <= 3'd0;
            data        <= 32'd0;
            select      <= 1'b0;
            div         <= 8'd1;
            count       <= 8'd0;
            protect     <= 1'b1;
            start       <= 1'b0;
            tx_data     <= 8'd0;
            flash_csn   <= 1'b1;
            from_window <= 1'b0;
        end else begin
            start <= 1'b0;
            count <= (start | tick) ? div : count - 8'd1;
            case (state)
                BYTE:
                    if (done)
                        state <= READY;
                WINDOW: begin
                    flash_csn <= 1'b0;
                    if (!busy && !start && !done) begin
                        start   <= 1'b1;
                        tx_data <= sequence_byte;
                    end
                    if (done) begin
                        data  <= {rx_data, data[31:8]};
                        index <= index + 3'd1;
                        if (index == 3'd7) begin
                            flash_csn <= 1'b1;
                            state     <= GAP;
                        end
                    end
                end
                GAP:
                    if (tick)
                        state <= READY;
                ERROR1:
                    state <= ERROR2;
                default:   // IDLE, REGS, READY, ERROR2: the data phase may end here
                    if (sends) begin
                        state   <= BYTE;
                        start   <= 1'b1;
                        tx_data <= HWDATA[7:0];
                    end else begin
                        if (store)
                            case (word[3:2])
                                2'd1: begin
                                    select    <= HWDATA[0];
                                    flash_csn <= ~HWDATA[0];
                                end
                                2'd2: div     <= HWDATA[7:0];
                                2'd3: protect <= HWDATA[0];
                                default: ;
                            endcase
                        if (accept) begin
                            write       <= HWRITE;
                            word        <= HADDR[23:2];
                            lowest      <= HADDR[1:0] == 2'd0;
                            index       <= 3'd0;
                            from_window <= ~HADDR[24];
                            state       <= refused ? ERROR1 : HADDR[24] ? REGS : WINDOW;
                        end else
                            state <= IDLE;
                    end
            endcase
        end

    spi_engine u_engine (
        .clk(HCLK), .rstn(HRESETn), .tick(tick), .start(start),
        .cpol(1'b0), .cpha(1'b0), .lsb_first(1'b0),
        .tx_data(tx_data), .rx_data(rx_data), .busy(busy), .done(done),
        .sclk(flash_clk), .mosi(flash_mosi), .miso(flash_miso)
    );

    reg [7:0] r;
    always @*
        case (word[3:2])
            2'd0: r = rx_data;
            2'd1: r = {7'd0, select};
            2'd2: r = div;
            2'd3: r = {7'd0, protect};
        endcase

    assign HRDATA      = from_window ? data : {24'd0, r & {8{listed}}};
    assign HREADYOUT   = (state == IDLE) | ((state == REGS) & ~sends) | (state == READY) | (state == ERROR2);
    assign HRESP       = (state == ERROR1) | (state == ERROR2);
    assign flash_wpn   = ~protect;
    assign flash_holdn = 1'b1;
endmodule
