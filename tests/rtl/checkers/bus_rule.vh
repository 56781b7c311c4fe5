// How the rules of the bus checkers are stated.
//   `RULE(BOUND, ASSUMED, NAME, HOLDS) inside `BUS_RULES … `END_BUS_RULES: HOLDS in each clock cycle out of reset in which BOUND is
//   true. A simulation says "failed: bus rule: NAME" where it does not. A proof (Yosys: read_verilog -formal) asserts the rule
//   where ASSUMED is 0, and takes it for granted where it is 1. Where it is 2 another checker has the rule, and it is left out.
//   `KNOWN(BITS): none of them is x or z. A proof knows only 0 and 1.
`ifdef FORMAL
`define BUS_RULES(CLOCK, RESET_N) always @* if (RESET_N) begin
`define RULE(BOUND, ASSUMED, NAME, HOLDS) \
    if (ASSUMED == 1) assume (!(BOUND) || (HOLDS)); else if (ASSUMED == 0) assert (!(BOUND) || (HOLDS));
`define KNOWN(BITS) 1'b1
`else
`define BUS_RULES(CLOCK, RESET_N) \
    integer violations = 0; \
    always @(posedge CLOCK) if (RESET_N === 1'b1) begin
`define RULE(BOUND, ASSUMED, NAME, HOLDS) \
    if (ASSUMED != 2 && (BOUND) && (HOLDS) !== 1'b1) begin \
        violations = violations + 1; \
        if (violations <= 100) $display("%0t: failed: bus rule: %0s (%m)", $time, NAME); \
    end
`define KNOWN(BITS) (^(BITS) !== 1'bx)
`endif
`define END_BUS_RULES end
