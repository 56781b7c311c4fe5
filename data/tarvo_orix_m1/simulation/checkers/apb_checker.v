// The rules of the APB (with strobes, protection, wait states and error response) for one bus: a master, and the slave in each of
// SLOTS slots.
//   SLOTS          select lines
//   BUS, PLACE     what a board is told of the bus and of its first address
//   MOST_WAITS     wait states that a slave may make; -1: any number
//   ASSUME_MASTER, ASSUME_SLAVE   proofs take the rules of that side for granted (bus_rule.vh)
`include "bus_rule.vh"

module apb_checker #(
    parameter        BUS    = "APB",
    parameter [31:0] PLACE  = 32'd0,
    parameter SLOTS         = 1,
    parameter MOST_WAITS    = -1,
    parameter ASSUME_MASTER = 0,
    parameter ASSUME_SLAVE  = 0
) (
    input wire             PCLK,
    input wire             PRESETn,
    input wire [SLOTS-1:0] PSEL,
    input wire             PENABLE,
    input wire             PWRITE,
    input wire [31:0]      PADDR,
    input wire [31:0]      PWDATA,
    input wire [3:0]       PSTRB,
    input wire [2:0]       PPROT,
    input wire [31:0]      PRDATA,
    input wire             PREADY,
    input wire             PSLVERR,
    // from the master: it gives up an access that is not ready in this cycle
    input wire             LATE
);
    wire selected = |PSEL;
    wire access   = selected & PENABLE;
    wire last     = access & PREADY;
    wire given_up = access & LATE & (PREADY !== 1'b1);
    wire [31:0] lanes   = {{8{PSTRB[3]}}, {8{PSTRB[2]}}, {8{PSTRB[1]}}, {8{PSTRB[0]}}};
    wire [31:0] place   = PLACE | PADDR;
    wire [SLOTS+41:0] control = {PSEL, PWRITE, PADDR, PSTRB, PPROT, 2'b00};

    // Of the clock cycle before.
    reg               running;    // a transfer had begun and did not end
    reg               dropped;    // it was given up
    reg [SLOTS+41:0]  was_control;
    reg [31:0]        was_wdata;
    reg [15:0]        waits;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            running     <= 1'b0;
            dropped     <= 1'b0;
            was_control <= {(SLOTS + 42){1'b0}};
            was_wdata   <= 32'd0;
            waits       <= 16'd0;
        end else begin
            running     <= selected & ~last & ~given_up;
            dropped     <= given_up;
            was_control <= control;
            was_wdata   <= PWDATA;
            if (access & ~PREADY & waits != 16'hFFFF && (MOST_WAITS < 0 || waits <= MOST_WAITS))
                waits <= waits + 16'd1;
            else if (!access | PREADY)
                waits <= 16'd0;
        end

    `BUS_RULES(PCLK, PRESETn, PSEL === {SLOTS{1'b0}} && PENABLE === 1'b0 && !running && !dropped)
        // master
        `RULE(1'b1, ASSUME_MASTER, "PSEL is known", `KNOWN(PSEL))
        `RULE(`KNOWN(PSEL), ASSUME_MASTER, "one PSEL at most", (PSEL & (PSEL - 1'b1)) == {SLOTS{1'b0}})
        `RULE(selected, ASSUME_MASTER, "PENABLE, PWRITE, PADDR, PSTRB and PPROT are known",
              `KNOWN({PENABLE, PWRITE, PADDR, PSTRB, PPROT}))
        `RULE(!selected, ASSUME_MASTER, "PENABLE is low while nothing is selected", !PENABLE)
        `RULE(selected && !running, ASSUME_MASTER, "a transfer begins with a setup cycle", !PENABLE)
        `RULE(dropped, ASSUME_MASTER, "nothing is selected after an access that is given up", !selected)
        `RULE(running, ASSUME_MASTER, "PENABLE follows the setup cycle until PREADY", access)
        `RULE(running && `KNOWN({control, was_control}), ASSUME_MASTER, "PSEL, PWRITE, PADDR, PSTRB and PPROT stay until PREADY",
              control == was_control)
        `RULE(running && PWRITE, ASSUME_MASTER, "PWDATA stays until PREADY", ((PWDATA ^ was_wdata) & lanes) == 32'd0)
        `RULE(selected && PWRITE, ASSUME_MASTER, "PWDATA is known where PSTRB is set", `KNOWN(PWDATA & lanes))
        `RULE(selected && !PWRITE, ASSUME_MASTER, "PSTRB is 0 in reads", PSTRB == 4'd0)
        // slave
        `RULE(access, ASSUME_SLAVE, "PREADY is known in an access", `KNOWN(PREADY))
        `RULE(last, ASSUME_SLAVE, "PSLVERR is known with PREADY", `KNOWN(PSLVERR))
        `RULE(last && !PWRITE && !PSLVERR, ASSUME_SLAVE, "PRDATA is known with PREADY", `KNOWN(PRDATA))
        `RULE(access && !PREADY && MOST_WAITS >= 0, ASSUME_SLAVE, "a slave waits no longer than it may", waits < MOST_WAITS)
    `END_BUS_RULES
endmodule
