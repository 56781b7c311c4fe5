// Runs a testbench that Verilator has compiled, module tb, and writes which of its lines and bits
// were reached to the file that is named.
#include "Vtb.h"

#include <verilated.h>
#include <verilated_cov.h>

#include <memory>

int main(int argc, char **argv)
{
    const auto context = std::make_unique<VerilatedContext>();
    context->commandArgs(argc, argv);
    const auto bench = std::make_unique<Vtb>(context.get());
    while (!context->gotFinish()) {
        bench->eval();
        if (!bench->eventsPending())
            break;
        context->time(bench->nextTimeSlot());
    }
    bench->final();
    context->coveragep()->write(argv[argc - 1]);
    return 0;
}
