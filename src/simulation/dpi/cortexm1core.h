#pragma once

// The processor's model and what a board exchanges with the world, as C functions for a compiled
// simulation. Those that the Verilog text imports stand there: cortexm1_open, cortexm1_clock,
// cortexm1_clock_memories (cortex_m1_core_isa.v), and board_... (the board).

#ifdef __cplusplus
extern "C" {
#endif

// Before everything else. The arguments of the program, which have to stay; those with a plus are
// the simulation's.
void cortexm1_begin(int count, const char *const *arguments);
// Whether waves are written now, where they are of a part of the run (+waves-...): what the board has
// asked for last.
int cortexm1_wants_waves(void);
// After the simulation.
void cortexm1_end(void);

#ifdef __cplusplus
}
#endif
