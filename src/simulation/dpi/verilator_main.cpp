// The program of a simulation that Verilator has compiled: "board" has one port, its clock of
// 50 MHz. With traces, +waves=FILE writes all signals (FST).
#include "cortexm1core.h"

#include "Vboard.h"

#include <verilated.h>
#if VM_TRACE
#include <verilated_fst_c.h>
#endif

#include <cstdio>
#include <cstring>

// $finish says nothing of its own.
void vl_finish(const char *, int, const char *)
{
    Verilated::threadContextp()->gotFinish(true);
}

int main(int argc, char **argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 1 << 16); // each line at once
    VerilatedContext context;
    context.commandArgs(argc, argv);
    cortexm1_begin(argc, argv);

#if VM_TRACE
    context.traceEverOn(true);
#endif
    Vboard board(&context, "");    // so that names begin with "board"
    std::uint64_t halfPeriod = 10; // nanoseconds, in the simulation's unit
    for (int digit = context.timeprecision(); digit < -9; ++digit)
        halfPeriod *= 10;
#if VM_TRACE
    VerilatedFstC waves;
    const char *wavesFile = nullptr;
    bool hasWindow = false; // they are of a part of the run
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "+waves=", 7) == 0 && !wavesFile)
            wavesFile = argv[i] + 7;
        hasWindow = hasWindow || std::strncmp(argv[i], "+waves-", 7) == 0;
    }
    if (wavesFile)
        board.trace(&waves, 99);
#endif
    while (!context.gotFinish()) {
        board.eval();
#if VM_TRACE
        if (wavesFile && (!hasWindow || cortexm1_wants_waves())) {
            if (!waves.isOpen())
                waves.open(wavesFile);
            waves.dump(context.time());
        }
#endif
        context.timeInc(halfPeriod);
        board.clk = !board.clk;
    }
#if VM_TRACE
    if (waves.isOpen())
        waves.close();
#endif
    board.final();
    cortexm1_end();
    return std::fflush(stdout) == 0 ? 0 : 1;
}
