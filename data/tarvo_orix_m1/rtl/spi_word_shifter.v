// Shifts words over SPI as master, from a FIFO and to one, and drives the automatic select.
// A word is taken bit by bit from the head of the FIFO, which is popped with its last bit.  Words follow each other without
// a gap while they are there in time; `half` = 0 gives an SCLK of half the clock.
//   LOG_WIDTH  a word has at most 2 ** LOG_WIDTH bits: 3, 4 or 5; 0: 8, and no automatic select nor delay
module spi_word_shifter #(
    parameter LOG_WIDTH = 5
) (
    input  wire                        clk,
    input  wire                        rstn,
    input  wire                        stop,       // ends everything at once
    // The form of words: stands still while `active`.
    input  wire                        cpol,       // level of sclk at rest
    input  wire                        cpha,       // 0: sample at the first edge, 1: at the second
    input  wire                        lsb_first,
    input  wire                        loop,       // hears itself instead of miso
    input  wire [(LOG_WIDTH != 0 ? LOG_WIDTH : 3)-1:0] top_bit,    // bits of a word - 1, at least 3
    input  wire [1:0]                  delay,      // cycles from an edge of sclk to its sample
    input  wire [15:0]                 half,       // cycles of half a period of sclk - 1
    input  wire                        auto_select, // selects on its own
    input  wire                        burst,      // stays selected while words follow each other
    input  wire [7:0]                  setup,
    input  wire [7:0]                  hold,
    input  wire [7:0]                  idle,

    input  wire [(8<<(LOG_WIDTH != 0 ? LOG_WIDTH - 3 : 0))-1:0] tx_word,
    input  wire                        tx_waiting,
    output wire                        tx_take,
    output reg  [(8<<(LOG_WIDTH != 0 ? LOG_WIDTH - 3 : 0))-1:0] rx_word,    // bits above those of a word are 0
    output reg                         rx_done,    // rx_word is complete, for one cycle
    output wire                        active,

    output reg                         sclk,
    output reg                         mosi,
    input  wire                        miso,
    output reg                         selected);
    localparam LOG = LOG_WIDTH != 0 ? LOG_WIDTH : 3, PLAIN = LOG_WIDTH == 0;
    localparam [2:0] REST = 3'd0, SETUP = 3'd1, RUN = 3'd2, HOLD = 3'd3, IDLE = 3'd4;
    reg [2:0]           state;
    reg [15:0]          count;
    reg                 second;     // the next edge of sclk is the second one of its bit
    reg                 final_bit;  // the last bit of a word is on its way
    reg                 ended;      // the last edge has been made, half a period is left
    reg [LOG-1:0]       tx_index;
    reg [LOG-1:0]       rx_index;
    reg [3:1]           due;        // samples to come, by the cycles that are left

    wire [LOG-1:0] first_index = PLAIN ? {LOG{1'b0}} : lsb_first ? {LOG{1'b0}} : top_bit;
    wire [LOG-1:0] last_index  = PLAIN ? {LOG{1'b1}} : lsb_first ? top_bit : {LOG{1'b0}};
    wire [LOG-1:0] one_further = {{(LOG - 1){PLAIN ? 1'b0 : ~lsb_first}}, 1'b1};    // +1 or -1

    wire tick  = count == 16'd0;
    wire late  = |due;
    wire go    = (state == REST) & tx_waiting & ~late;
    wire begun = (go & ~auto_select) | ((state == SETUP) & tick);
    wire step  = (state == RUN) & tick & ~ended;
    wire over  = (state == RUN) & tick & ended;
    wire turn  = step & second & final_bit;         // the last edge of a word
    wire more  = tx_waiting & (~selected | burst);
    wire place = (begun & ~cpha) | (step & (second ^ cpha) & ~(turn & ~more));

    wire at_last = tx_index == last_index;
    assign tx_take = place & at_last;
    assign active  = (state != REST) | late | rx_done;

    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            state     <= REST;
            count     <= 16'd0;
            second    <= 1'b0;
            final_bit <= 1'b0;
            ended     <= 1'b0;
            tx_index  <= {LOG{1'b0}};
            sclk      <= 1'b0;
            mosi      <= 1'b0;
            selected  <= 1'b0;
        end else begin
            if (state == REST)
                count <= PLAIN ? half : auto_select ? {8'd0, setup} : half;
            else if (!tick)
                count <= count - 16'd1;
            else if (over)
                count <= {8'd0, hold};
            else
                count <= (state == HOLD) ? {8'd0, idle} : half;

            if (stop) begin
                state    <= REST;
                selected <= 1'b0;
            end else
                case (state)
                    REST: if (go) begin
                        state    <= PLAIN ? RUN : auto_select ? SETUP : RUN;
                        selected <= auto_select;
                    end
                    SETUP: if (tick) state <= PLAIN ? REST : RUN;
                    RUN: if (over) state <= PLAIN ? REST : selected ? HOLD : REST;
                    HOLD: if (tick) begin
                        state    <= PLAIN ? REST : IDLE;
                        selected <= 1'b0;
                    end
                    default: if (tick) state <= REST;
                endcase

            if (state != RUN) begin
                second <= 1'b0;
                ended  <= 1'b0;
            end else if (step) begin
                second <= ~second;
                ended  <= turn & ~more;
            end

            if (state == REST)
                sclk <= cpol;
            else if (step)
                sclk <= ~sclk;

            if (place)
                mosi <= tx_word[PLAIN ? tx_index ^ {LOG{~lsb_first}} : tx_index];
            if (state == REST && !begun)
                tx_index <= first_index;
            else if (place)
                tx_index <= at_last ? first_index : tx_index + one_further;
            if (state == REST || turn)
                final_bit <= 1'b0;
            else if (place)
                final_bit <= at_last;
        end

    // Samples keep their own count of bits, since they may be late.
    wire [1:0] wait_for = loop ? 2'd0 : delay;
    wire edge_in        = step & ~(second ^ cpha);
    wire sample         = due[1] | (edge_in & (wait_for == 2'd0));
    wire rx_last        = PLAIN ? final_bit : rx_index == last_index;
    integer n;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            due      <= 3'd0;
            rx_index <= {LOG{1'b0}};
            rx_word  <= {(1 << LOG){1'b0}};
            rx_done  <= 1'b0;
        end else begin
            due[3]  <= edge_in & (wait_for == 2'd3) & ~stop;
            due[2]  <= (due[3] | (edge_in & (wait_for == 2'd2))) & ~stop;
            due[1]  <= (due[2] | (edge_in & (wait_for == 2'd1))) & ~stop;
            rx_done <= sample & rx_last & ~stop;
            if ((state == REST && !late) || (sample && rx_last))
                rx_index <= PLAIN ? {LOG{1'b0}} : first_index;
            else if (sample)
                rx_index <= PLAIN ? {LOG{1'b0}} : rx_index + one_further;
            for (n = 0; n < (1 << LOG); n = n + 1)
                if (PLAIN ? 1'b0 : begun) rx_word[n] <= 1'b0;
                else if (PLAIN ? sample : sample && rx_index == n[LOG-1:0])
                    rx_word[n] <= PLAIN ? (lsb_first ? (n == 7 ? (loop ? mosi : miso) : rx_word[n == 7 ? 0 : n + 1])
                                          : n == 0 ? (loop ? mosi : miso) : rx_word[n == 0 ? 0 : n - 1]) : loop ? mosi : miso;
        end
endmodule
