// The core as tasks of a Verilog simulator:
//
//   $cortexm1_open(handle, firmware, interrupts, os, be8, lower, upper, itcm size code, dtcm size
//   code, memories)
//   $cortexm1_clock(handle, inputs, outputs)
//   $cortexm1_clock(handle, inputs, outputs, memory inputs, memory outputs)
//   $cortexm1_names(handle, program counter, function name, register name)
//
// The vectors are those of core/packedpins.h. `memories` is "model", or "rtl", where the clock also
// takes and gives the memories' pins.
//
// With +gdb=PORT a debugger may connect to the port of the loop-back address; 0 takes a free one,
// and a line says which. The simulation stands still while the debugger has the program halted.
// Only memories of the model have a debugger.
#include "boardtasks.h"
#include "calls.h"
#include "core/packedpins.h"

#include <array>
#include <cstring>
#include <map>
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

template <int count>
std::array<CortexM1::PackedWord, count> wordsOf(vpiHandle vector)
{
    s_vpi_value value;
    value.format = vpiVectorVal;
    vpi_get_value(vector, &value);
    std::array<CortexM1::PackedWord, count> words;
    for (int i = 0; i < count; ++i)
        words[i] = {static_cast<std::uint32_t>(value.value.vector[i].aval),
                    static_cast<std::uint32_t>(value.value.vector[i].bval)};
    return words;
}

template <int count>
void show(vpiHandle vector, const std::array<std::uint32_t, count> &words)
{
    s_vpi_vecval vecvals[count] = {};
    for (int i = 0; i < count; ++i)
        vecvals[i].aval = static_cast<PLI_INT32>(words[i]);
    s_vpi_value value;
    value.format = vpiVectorVal;
    value.value.vector = vecvals;
    vpi_put_value(vector, &value, nullptr, vpiNoDelay);
}

PLI_INT32 callClock(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = Vpi::arguments();
    const bool hasMemories = args.size() == 5;
    const std::size_t number =
        hasMemories || args.size() == 3 ? static_cast<std::size_t>(Vpi::integer(args[0])) : 0;
    if (number == 0 || number > sessions().size())
        return Vpi::refuseCall("$cortexm1_clock is called without $cortexm1_open");
    CortexM1::Inputs inputs =
        CortexM1::unpackedInputs(wordsOf<CortexM1::inputWords>(args[1]).data());
    if (hasMemories)
        CortexM1::unpackMemories(wordsOf<CortexM1::memoryWords>(args[3]).data(), inputs);
    const CortexM1::Outputs &outputs = sessions()[number - 1]->clock(inputs);
    std::array<std::uint32_t, CortexM1::outputWords> shown;
    CortexM1::packOutputs(outputs, shown.data());
    show<CortexM1::outputWords>(args[2], shown);
    if (hasMemories) {
        std::array<std::uint32_t, CortexM1::memoryWords> memories;
        CortexM1::packMemories(outputs.memory, memories.data());
        show<CortexM1::memoryWords>(args[4], memories);
    }
    return 0;
}

void setText(vpiHandle target, const char *text)
{
    std::string copy = text;
    s_vpi_value value;
    value.format = vpiStringVal;
    value.value.str = copy.data();
    vpi_put_value(target, &value, nullptr, vpiNoDelay);
}

// What has not changed is not set: waves grow with each change, and time goes by.
PLI_INT32 callNames(PLI_BYTE8 *)
{
    static std::map<std::size_t, CortexM1::Session::Shown> before;
    const std::vector<vpiHandle> args = Vpi::arguments();
    const std::size_t number =
        args.size() == 4 ? static_cast<std::size_t>(Vpi::integer(args[0])) : 0;
    if (number == 0 || number > sessions().size())
        return Vpi::refuseCall("$cortexm1_names is called without $cortexm1_open");
    const CortexM1::Session::Shown shown = sessions()[number - 1]->shown();
    CortexM1::Session::Shown &old = before[number];
    if (shown.programCounter != old.programCounter)
        Vpi::setInteger(args[1], static_cast<int>(shown.programCounter));
    if (std::strcmp(shown.functionName, old.functionName) != 0)
        setText(args[2], shown.functionName);
    if (std::strcmp(shown.registerName, old.registerName) != 0)
        setText(args[3], shown.registerName);
    old = shown;
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
    Vpi::addTask("$cortexm1_names", callNames);
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
