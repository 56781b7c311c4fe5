// The core as tasks of a Verilog simulator:
//
//   $cortexm1_open(handle, firmware, interrupts, os, be8, lower, upper, itcm size code, dtcm size
//   code, memories)
//   $cortexm1_clock(handle, inputs, outputs)
//   $cortexm1_clock(handle, inputs, outputs, memory inputs, memory outputs)
//
// with inputs {reset, NMI, HREADY, HRESP, IRQ, HRDATA} and outputs {done, passed, SYSRESETREQ,
// LOCKUP, HTRANS, HSIZE, HWRITE, HADDR, HWDATA}. `memories` is "model", or "rtl", where the clock
// also takes {DTCMRDATA, ITCMRDATA} and gives {ITCMEN, DTCMEN, write enables, word address, write
// data}.
//
// With +gdb=PORT a debugger may connect to the port of the loop-back address; 0 takes a free one,
// and a line says which. The simulation stands still while the debugger has the program halted.
// Only memories of the model have a debugger.
#include "boardtasks.h"
#include "calls.h"

#include <memory>
#include <vector>

namespace
{

std::vector<std::unique_ptr<CortexM1::Session>> &sessions()
{
    static std::vector<std::unique_ptr<CortexM1::Session>> all;
    return all;
}

PLI_INT32 callOpen(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = Vpi::arguments();
    if (args.size() != 10)
        return Vpi::refuseCall("$cortexm1_open takes 10 arguments");
    CortexM1::Parameters parameters;
    parameters.interrupts = Vpi::integer(args[2]);
    parameters.hasOsExtension = Vpi::integer(args[3]) != 0;
    parameters.isBigEndian = Vpi::integer(args[4]) != 0;
    parameters.hasLowerAlias = Vpi::integer(args[5]) != 0;
    parameters.hasUpperAlias = Vpi::integer(args[6]) != 0;
    parameters.itcmSize = Vpi::integer(args[7]);
    parameters.dtcmSize = Vpi::integer(args[8]);
    sessions().push_back(std::make_unique<CortexM1::Session>(
        Vpi::simulator(), parameters, Vpi::text(args[1]), Vpi::text(args[9])));
    Vpi::setInteger(args[0], static_cast<int>(sessions().size()));
    return 0;
}

// `memories`: null where they are in the model.
CortexM1::Inputs inputsOf(vpiHandle pins, vpiHandle memories)
{
    s_vpi_value value;
    value.format = vpiVectorVal;
    vpi_get_value(pins, &value);
    const s_vpi_vecval *words = value.value.vector; // HRDATA, IRQ, {reset, NMI, HREADY, HRESP}
    const auto isHigh = [&](int bit) {
        return (static_cast<unsigned>(words[2].aval & ~words[2].bval) >> bit & 1) != 0;
    };
    CortexM1::Inputs inputs;
    inputs.data = static_cast<std::uint32_t>(words[0].aval);
    inputs.unknown = static_cast<std::uint32_t>(words[0].bval);
    inputs.interrupts = static_cast<std::uint32_t>(words[1].aval & ~words[1].bval);
    inputs.isError = isHigh(0);
    inputs.isReady = isHigh(1);
    inputs.nonMaskable = isHigh(2);
    inputs.isReset = isHigh(3);
    if (memories) {
        vpi_get_value(memories, &value);
        inputs.instructionMemory = static_cast<std::uint32_t>(value.value.vector[0].aval);
        inputs.instructionMemoryUnknown = static_cast<std::uint32_t>(value.value.vector[0].bval);
        inputs.dataMemory = static_cast<std::uint32_t>(value.value.vector[1].aval);
        inputs.dataMemoryUnknown = static_cast<std::uint32_t>(value.value.vector[1].bval);
    }
    return inputs;
}

void showMemoryPins(vpiHandle pins, const CortexM1::MemoryOutputs &outputs)
{
    s_vpi_vecval words[2] = {};
    words[0].aval = static_cast<PLI_INT32>(outputs.data);
    words[1].aval = static_cast<PLI_INT32>(outputs.address | outputs.lanes << 18 |
                                           unsigned(outputs.isData) << 22 |
                                           unsigned(outputs.isInstruction) << 23);
    s_vpi_value value;
    value.format = vpiVectorVal;
    value.value.vector = words;
    vpi_put_value(pins, &value, nullptr, vpiNoDelay);
}

PLI_INT32 callClock(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = Vpi::arguments();
    const bool hasMemories = args.size() == 5;
    const std::size_t number =
        hasMemories || args.size() == 3 ? static_cast<std::size_t>(Vpi::integer(args[0])) : 0;
    if (number == 0 || number > sessions().size())
        return Vpi::refuseCall("$cortexm1_clock is called without $cortexm1_open");
    const CortexM1::Outputs outputs =
        sessions()[number - 1]->clock(inputsOf(args[1], hasMemories ? args[3] : nullptr));

    s_vpi_vecval words[3] = {};
    words[0].aval = static_cast<PLI_INT32>(outputs.data);
    words[1].aval = static_cast<PLI_INT32>(outputs.address);
    words[2].aval = outputs.isWrite | outputs.size << 1 | (outputs.isTransfer ? 2 : 0) << 4 |
                    outputs.isLockedUp << 6 | outputs.requestsReset << 7 | outputs.hasPassed << 8 |
                    outputs.isDone << 9;
    s_vpi_value value;
    value.format = vpiVectorVal;
    value.value.vector = words;
    vpi_put_value(args[2], &value, nullptr, vpiNoDelay);
    if (hasMemories)
        showMemoryPins(args[4], outputs.memory);
    return 0;
}

PLI_INT32 forgetSessions(p_cb_data)
{
    sessions().clear();
    Vpi::finishBoard();
    return 0;
}

void addTasks()
{
    Vpi::addTask("$cortexm1_open", callOpen);
    Vpi::addTask("$cortexm1_clock", callClock);
    Vpi::addBoardTasks();
    s_cb_data atEnd{};
    atEnd.reason = cbEndOfSimulation;
    atEnd.cb_rtn = forgetSessions;
    vpi_register_cb(&atEnd);
}

} // namespace

// The entry points of the module; the simulator looks for the name.
extern "C" __attribute__((visibility("default"))) void (*vlog_startup_routines[])();
void (*vlog_startup_routines[])() = {addTasks, nullptr};
