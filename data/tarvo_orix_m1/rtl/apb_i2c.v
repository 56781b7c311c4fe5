// I2C master, one byte per command, with clock stretching and loss of arbitration.
// Registers: registers/i2c.json.
// A line is pulled low with its enable output at 1 and its value output at 0; it is released with the enable at 0.
module apb_i2c (
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

    input  wire        scl_in,
    output wire        scl_out,
    output wire        scl_outen,
    input  wire        sda_in,
    output wire        sda_out,
    output wire        sda_outen,
    output wire        irq
);
    localparam [2:0] IDLE  = 3'd0;
    localparam [2:0] START = 3'd1;
    localparam [2:0] BITS  = 3'd2;   // eight data bits and the acknowledge bit
    localparam [2:0] STOP  = 3'd3;

    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};

    reg [1:0] scl_sync, sda_sync;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            scl_sync <= 2'b11;
            sda_sync <= 2'b11;
        end else begin
            scl_sync <= {scl_sync[0], scl_in};
            sda_sync <= {sda_sync[0], sda_in};
        end
    wire scl = scl_sync[1];
    wire sda = sda_sync[1];

    reg [15:0] prescale;
    reg [1:0]  ctrl;
    reg [7:0]  txdata;
    reg [7:0]  rxdata;
    reg        nacked, open, complete, arblost;

    reg [2:0]  state;
    reg [1:0]  quarter;
    reg [15:0] count;
    reg [3:0]  bits;
    reg [8:0]  shift_out;    // bits to send, the acknowledge bit last; 1 releases the line
    reg [7:0]  shift_in;
    reg        reading;
    reg        has_byte;
    reg        has_stop;
    reg        scl_low;      // 1 pulls the line
    reg        sda_low;

    // A released clock line that is still low is being stretched: the quarter does not run.
    wire stretched = ~scl_low & ~scl;
    wire tick      = (state != IDLE) & (count == 16'd0) & ~stretched;
    wire command   = store & (offset == 12'h010) & PSTRB[0] & (state == IDLE) & ctrl[0];

    integer n;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            prescale  <= 16'd99;
            ctrl      <= 2'd0;
            txdata    <= 8'd0;
            rxdata    <= 8'd0;
            nacked    <= 1'b0;
            open      <= 1'b0;
            complete  <= 1'b0;
            arblost   <= 1'b0;
            state     <= IDLE;
            quarter   <= 2'd0;
            count     <= 16'd0;
            bits      <= 4'd0;
            shift_out <= 9'd0;
            shift_in  <= 8'd0;
            reading   <= 1'b0;
            has_byte  <= 1'b0;
            has_stop  <= 1'b0;
            scl_low   <= 1'b0;
            sda_low   <= 1'b0;
        end else begin
            if (store)
                case (offset)
                    12'h000: for (n = 0; n < 2; n = n + 1) if (PSTRB[n]) prescale[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h004: if (PSTRB[0]) ctrl <= PWDATA[1:0];
                    12'h008: if (PSTRB[0]) txdata <= PWDATA[7:0];
                    12'h014: if (PSTRB[0]) begin
                        complete <= complete & ~PWDATA[3];
                        arblost  <= arblost & ~PWDATA[4];
                    end
                    default: ;
                endcase

            if (command & (|PWDATA[3:0])) begin
                complete  <= 1'b0;
                quarter   <= 2'd0;
                count     <= prescale;
                bits      <= 4'd8;
                reading   <= PWDATA[2];
                has_byte  <= PWDATA[1] | PWDATA[2];
                has_stop  <= PWDATA[3];
                shift_out <= PWDATA[2] ? {8'hFF, PWDATA[4]} : {txdata, 1'b1};
                state     <= PWDATA[0] ? START : (PWDATA[1] | PWDATA[2]) ? BITS : STOP;
            end else if (state != IDLE && !tick && !stretched)
                count <= count - 16'd1;
            else if (tick) begin
                count   <= prescale;
                quarter <= quarter + 2'd1;
                case (state)
                    START: case (quarter)
                        2'd0: sda_low <= 1'b0;
                        2'd1: scl_low <= 1'b0;
                        2'd2: sda_low <= 1'b1;
                        2'd3: begin
                            scl_low <= 1'b1;
                            open    <= 1'b1;
                            state   <= has_byte ? BITS : has_stop ? STOP : IDLE;
                            if (!has_byte && !has_stop)
                                complete <= 1'b1;
                        end
                    endcase
                    BITS: case (quarter)
                        2'd0: sda_low <= ~shift_out[8];
                        2'd1: scl_low <= 1'b0;
                        2'd2: begin
                            if (bits != 4'd0)
                                shift_in <= {shift_in[6:0], sda};
                            else if (!reading)
                                nacked <= sda;
                            // Another master pulls a line that this one has released.
                            if (!reading && bits != 4'd0 && shift_out[8] && !sda) begin
                                arblost  <= 1'b1;
                                complete <= 1'b1;
                                open     <= 1'b0;
                                sda_low  <= 1'b0;
                                state    <= IDLE;
                            end
                        end
                        2'd3: begin
                            scl_low   <= 1'b1;
                            shift_out <= {shift_out[7:0], 1'b1};
                            bits      <= bits - 4'd1;
                            if (bits == 4'd0) begin
                                if (reading)
                                    rxdata <= shift_in;
                                state <= has_stop ? STOP : IDLE;
                                if (!has_stop)
                                    complete <= 1'b1;
                            end
                        end
                    endcase
                    STOP: case (quarter)
                        2'd0: sda_low <= 1'b1;
                        2'd1: scl_low <= 1'b0;
                        2'd2: sda_low <= 1'b0;
                        2'd3: begin
                            open     <= 1'b0;
                            complete <= 1'b1;
                            state    <= IDLE;
                        end
                    endcase
                    default: state <= IDLE;
                endcase
            end
        end

    always @*
        case (offset)
            12'h000: PRDATA = {16'd0, prescale};
            12'h004: PRDATA = {30'd0, ctrl};
            12'h008: PRDATA = {24'd0, txdata};
            12'h00C: PRDATA = {24'd0, rxdata};
            12'h014: PRDATA = {27'd0, arblost, complete, open, nacked, state != IDLE};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY    = 1'b1;
    assign PSLVERR   = 1'b0;
    assign scl_out   = 1'b0;
    assign sda_out   = 1'b0;
    assign scl_outen = scl_low;
    assign sda_outen = sda_low;
    assign irq       = complete & ctrl[1];
endmodule
