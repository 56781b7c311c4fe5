// How the rules of the bus checkers are stated.
//   `RULE(BOUND, ASSUMED, NAME, HOLDS) inside `BUS_RULES(CLOCK, RESET_N, QUIET) … `END_BUS_RULES: HOLDS in each clock cycle out of reset in which BOUND is
//   true. A simulation says "failed: bus rule: NAME" where it does not; on the board of a simulated subsystem (the macro
//   BUS_RULES_OF_BOARD) it tells the board's reader, with the clock cycle that bus_watch counts. A proof (Yosys:
//   read_verilog -formal) asserts the rule where ASSUMED is 0, and takes it for granted where it is 1. Where it is 2 another
//   checker has the rule, and it is left out.
//   QUIET is true only where every rule holds, which saves a simulation time.
//   `KNOWN(BITS): none of them is x or z. A proof knows only 0 and 1.
`ifdef FORMAL
`define BUS_RULES(CLOCK, RESET_N, QUIET) always @* if (RESET_N) begin
`define RULE(BOUND, ASSUMED, NAME, HOLDS) \
    if (ASSUMED == 1) assume (!(BOUND) || (HOLDS)); else if (ASSUMED == 0) assert (!(BOUND) || (HOLDS));
`define KNOWN(BITS) 1'b1
`else
`define BUS_RULES(CLOCK, RESET_N, QUIET) \
    integer violations = 0; \
    always @(posedge CLOCK) if (RESET_N === 1'b1 && (QUIET) !== 1'b1) begin
`define RULE(BOUND, ASSUMED, NAME, HOLDS) \
    if (ASSUMED != 2 && (BOUND) && (HOLDS) !== 1'b1) begin \
        violations = violations + 1; \
        `BUS_RULE_BROKEN(NAME) \
    end
`ifdef BUS_RULES_OF_BOARD
`define BUS_RULE_BROKEN(NAME) \
    if (violations == 1) $display("\036%0s rule %0d %0s %h %0s", board.mark, bus_watch.cycles, BUS, place, NAME); \
    bus_watch.broken = 1'b1;
`else
`define BUS_RULE_BROKEN(NAME) if (violations <= 100) $display("%0t: failed: bus rule: %0s (%m)", $time, NAME);
`endif
`define KNOWN(BITS) (^(BITS) !== 1'bx)
`endif
`define END_BUS_RULES end
