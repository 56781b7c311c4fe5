// The rules of AHB-Lite where a slave meets the bus. Where a master meets it, HSEL is 1 and what the master sees is also what the
// slave says.
//   BUS, PLACE     what a board is told of the bus and of an address of the slave
//   MOST_WAITS     wait states that a slave may make, an error response's first cycle included; -1: any number
//   ASSUME_MASTER, ASSUME_BUS, ASSUME_SLAVE   proofs take the rules of that side for granted (bus_rule.vh)
`include "bus_rule.vh"

module ahb_lite_checker #(
    parameter        BUS    = "AHB",
    parameter [31:0] PLACE  = 32'd0,
    parameter MOST_WAITS    = -1,
    parameter ASSUME_MASTER = 0,
    parameter ASSUME_BUS    = 0,
    parameter ASSUME_SLAVE  = 0
) (
    input wire        HCLK,
    input wire        HRESETn,
    // from the master
    input wire [31:0] HADDR,
    input wire [1:0]  HTRANS,
    input wire [2:0]  HBURST,
    input wire [2:0]  HSIZE,
    input wire [3:0]  HPROT,
    input wire        HWRITE,
    input wire [31:0] HWDATA,
    // of the bus
    input wire        HSEL,
    input wire        HREADY,
    input wire        HRESP,
    // from the slave
    input wire [31:0] HRDATA,
    input wire        HREADYOUT,
    input wire        HRESPOUT
);
    localparam [1:0] IDLE = 2'd0, BUSY = 2'd1, NONSEQ = 2'd2, SEQ = 2'd3;
    localparam [2:0] SINGLE = 3'd0, INCR = 3'd1;

    wire        active  = HTRANS[1];
    wire [42:0] control = {HADDR, HBURST, HSIZE, HPROT, HWRITE};

    // Of the clock cycle before: what the master showed and got.
    reg         waited;
    reg         refused;       // the first cycle of an error response
    reg  [1:0]  was_trans;
    reg  [42:0] was_control;
    reg  [31:0] was_wdata;

    // The data phase of the slave.
    reg         owns;
    reg         writes;
    reg  [3:0]  lanes;
    reg         began;         // it is not the first cycle
    reg         half;          // the slave has said the first cycle of an error response
    reg  [17:0] waits;
    wire [31:0] bits = {{8{lanes[3]}}, {8{lanes[2]}}, {8{lanes[1]}}, {8{lanes[0]}}};

    // The burst that the last transfer belongs to.
    reg         goes_on;       // it may have more transfers
    reg         excused;       // an error ends it at any place
    reg  [3:0]  left;          // transfers that one of fixed length still has
    reg  [31:0] next_address;
    reg  [31:10] page;          // where its last transfer was
    reg  [10:0] burst_control;
    wire        fixed = HBURST[2:1] != 2'd0;
    wire [3:0]  beats = HBURST[2:1] == 2'd1 ? 4'd3 : HBURST[2:1] == 2'd2 ? 4'd7 : 4'd15;   // after the first one
    wire [31:0] step  = 32'd1 << HSIZE;
    wire [31:0] span  = ({28'd0, beats} + 32'd1) << HSIZE;
    wire [31:0] after = HADDR + step;
    wire        wraps = fixed & ~HBURST[0];
    wire [31:0] follow = wraps ? (HADDR & ~(span - 32'd1)) | (after & (span - 32'd1)) : after;

    reg [3:0] reached;         // byte lanes of the address phase
    always @*
        case (HSIZE)
            3'd0:    reached = 4'b0001 << HADDR[1:0];
            3'd1:    reached = HADDR[1] ? 4'b1100 : 4'b0011;
            default: reached = 4'b1111;
        endcase

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            waited        <= 1'b0;
            refused       <= 1'b0;
            was_trans     <= IDLE;
            was_control   <= 43'd0;
            was_wdata     <= 32'd0;
            owns          <= 1'b0;
            writes        <= 1'b0;
            lanes         <= 4'd0;
            began         <= 1'b0;
            half          <= 1'b0;
            waits         <= 18'd0;
            goes_on       <= 1'b0;
            excused       <= 1'b0;
            left          <= 4'd0;
            next_address  <= 32'd0;
            page          <= 22'd0;
            burst_control <= 11'd0;
        end else begin
            if (ASSUME_MASTER != 2) begin
                waited      <= ~HREADY;
                refused     <= ~HREADY & HRESP;
                was_trans   <= HTRANS;
                was_control <= control;
                was_wdata   <= HWDATA;
                began       <= ~HREADY;
            end
            half        <= owns & HRESPOUT & ~HREADYOUT;
            if (HREADY) begin
                owns   <= HSEL & active;
                writes <= HWRITE;
                lanes  <= reached;
                waits  <= 18'd0;
            end else if (owns & waits != 18'h3FFFF && (MOST_WAITS < 0 || waits <= MOST_WAITS))
                waits <= waits + 18'd1;
            if (ASSUME_MASTER != 2)
                excused <= HRESP | (excused & ~(HREADY & (HTRANS == NONSEQ || HTRANS == IDLE)));
            if (HREADY && ASSUME_MASTER != 2)
                case (HTRANS)
                    NONSEQ, SEQ: begin
                        goes_on       <= HTRANS == NONSEQ ? HBURST != SINGLE : HBURST == INCR || left > 4'd1;
                        left          <= HTRANS == NONSEQ ? (fixed ? beats : 4'd0) : left - (left != 4'd0);
                        next_address  <= follow;
                        page          <= HADDR[31:10];
                        burst_control <= control[10:0];
                    end
                    IDLE: begin
                        goes_on <= 1'b0;
                        left    <= 4'd0;
                    end
                    default: ;
                endcase
        end

    wire stands = control == was_control;
    wire [31:0] place = PLACE;

    `BUS_RULES(HCLK, HRESETn,
               (ASSUME_MASTER == 2 ? HSEL === 1'b0 && `KNOWN(HREADY) : HTRANS === IDLE && HREADY === 1'b1 && HSEL === 1'b1) && !owns && !waited && !goes_on &&
                   !half && HREADYOUT === 1'b1 && HRESPOUT === 1'b0 && HRESP === 1'b0)
        // master
        `RULE(1'b1, ASSUME_MASTER, "HTRANS is known", `KNOWN(HTRANS))
        `RULE(active, ASSUME_MASTER, "HADDR, HBURST, HSIZE, HPROT and HWRITE are known", `KNOWN(control))
        `RULE(active, ASSUME_MASTER, "HSIZE is at most that of the bus", HSIZE <= 3'd2)
        `RULE(active, ASSUME_MASTER, "HADDR is aligned to HSIZE", (HADDR & (step - 32'd1)) == 32'd0)
        `RULE(waited && was_trans[1], ASSUME_MASTER, "a transfer stays while the bus waits",
              (HTRANS == was_trans && stands) || (refused && HTRANS == IDLE))
        `RULE(owns && writes && began, ASSUME_MASTER, "HWDATA stays while the bus waits",
              ((HWDATA ^ was_wdata) & bits) == 32'd0)
        `RULE(owns && writes, ASSUME_MASTER, "HWDATA is known where it is written", `KNOWN(HWDATA & bits))
        `RULE(HTRANS == SEQ || HTRANS == BUSY, ASSUME_MASTER, "SEQ and BUSY are within a burst", goes_on)
        `RULE(goes_on && (HTRANS == SEQ || HTRANS == BUSY), ASSUME_MASTER, "a burst goes on at the next address, as it began",
              HADDR == next_address && control[10:0] == burst_control)
        `RULE(goes_on && HTRANS == SEQ, ASSUME_MASTER, "a burst stays within 1 KB", HADDR[31:10] == page)
        `RULE(goes_on && left != 4'd0 && !excused, ASSUME_MASTER, "a burst of fixed length is not cut short",
              HTRANS == SEQ || HTRANS == BUSY)
        // interconnect
        `RULE(1'b1, ASSUME_BUS, "HREADY and HSEL are known", `KNOWN({HREADY, HSEL & active}))
        `RULE(owns, ASSUME_BUS, "the bus has the answer of the slave that is asked", HREADY === HREADYOUT && HRESP === HRESPOUT)
        // slave
        `RULE(1'b1, ASSUME_SLAVE, "HREADYOUT and HRESP are known", `KNOWN({HREADYOUT, HRESPOUT}))
        `RULE(!owns, ASSUME_SLAVE, "a slave that is not asked says ready and OKAY", HREADYOUT && !HRESPOUT)
        `RULE(half, ASSUME_SLAVE, "an error response has a second cycle", HREADYOUT && HRESPOUT)
        `RULE(HRESPOUT && HREADYOUT, ASSUME_SLAVE, "an error response has a first cycle", half)
        `RULE(owns && HREADYOUT && !HRESPOUT && !writes, ASSUME_SLAVE, "HRDATA is known where it is read", `KNOWN(HRDATA & bits))
        `RULE(owns && !HREADYOUT && MOST_WAITS >= 0, ASSUME_SLAVE, "a slave waits no longer than it may", waits < MOST_WAITS)
    `END_BUS_RULES
endmodule
