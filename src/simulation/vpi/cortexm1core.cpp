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
#include "core/core.h"
#include "core/elfimage.h"
#include "core/tcplink.h"

#include <vpi_user.h>

#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

constexpr std::size_t mostOutput = 1 << 20; // bytes; a program that floods is cut off

struct Instance {
    std::unique_ptr<CortexM1::TcpLink> debugger;
    std::unique_ptr<CortexM1::Core> core;
    std::string mistake; // why there is no core
    std::size_t printed = 0;
    bool isReported = false;
};

std::vector<std::unique_ptr<Instance>> &instances()
{
    static std::vector<std::unique_ptr<Instance>> all;
    return all;
}

// The arguments of the call that runs.
std::vector<vpiHandle> arguments()
{
    std::vector<vpiHandle> result;
    const vpiHandle call = vpi_handle(vpiSysTfCall, nullptr);
    if (const vpiHandle all = vpi_iterate(vpiArgument, call)) {
        while (const vpiHandle argument = vpi_scan(all))
            result.push_back(argument);
    }
    return result;
}

int integer(vpiHandle argument)
{
    s_vpi_value value;
    value.format = vpiIntVal;
    vpi_get_value(argument, &value);
    return value.value.integer;
}

std::string text(vpiHandle argument)
{
    s_vpi_value value;
    value.format = vpiStringVal;
    vpi_get_value(argument, &value);
    return value.value.str;
}

std::uint32_t memoryBytes(int code)
{
    return code == 0 ? 0 : 512u << code;
}

void print(Instance &instance, const std::string &piece)
{
    if (instance.printed <= mostOutput && instance.printed + piece.size() > mostOutput)
        vpi_printf("\n(the rest of the program's output is cut off)\n");
    instance.printed += piece.size();
    if (instance.printed <= mostOutput)
        vpi_printf("%s", piece.c_str());
}

// What stands behind +NAME= on the simulator's command line; null without it.
const char *plusArgument(const std::string &name)
{
    s_vpi_vlog_info info;
    if (!vpi_get_vlog_info(&info))
        return nullptr;
    const std::string start = "+" + name + "=";
    for (int i = 0; i < info.argc; ++i) {
        if (std::string(info.argv[i]).compare(0, start.size(), start) == 0)
            return info.argv[i] + start.size();
    }
    return nullptr;
}

void openDebugger(Instance &instance)
{
    const char *argument = plusArgument("gdb");
    if (!argument)
        return;
    const std::string digits = argument;
    const bool isNumber = !digits.empty() && digits.size() <= 5 &&
                          digits.find_first_not_of("0123456789") == std::string::npos;
    const int port = isNumber ? std::stoi(digits) : -1;
    if (port < 0 || port > 65535)
        throw std::runtime_error("+gdb takes a port from 0 to 65535, not \"" + digits + "\"");
    instance.debugger = std::make_unique<CortexM1::TcpLink>(static_cast<std::uint16_t>(port));
    instance.core->attach(*instance.debugger);
    vpi_printf("The program waits for gdb at 127.0.0.1:%d\n", int(instance.debugger->port()));
    vpi_flush();
}

void open(Instance &instance, const std::vector<vpiHandle> &args)
{
    std::string firmware = text(args[1]);
    const char *fromEnvironment = std::getenv("CORTEXM1_FIRMWARE");
    if (firmware.empty() && fromEnvironment)
        firmware = fromEnvironment;
    const std::string memories = text(args[9]);
    CortexM1::Configuration configuration;
    configuration.hasOuterMemories = memories == "rtl";
    if (!configuration.hasOuterMemories && memories != "model") {
        instance.mistake = "+tcm=" + memories + " is neither +tcm=model nor +tcm=rtl";
        return;
    }
    if (configuration.hasOuterMemories && plusArgument("gdb")) {
        instance.mistake = "+gdb needs +tcm=model"; // elsewhere each look would take time
        return;
    }
    if (firmware.empty() && !configuration.hasOuterMemories) {
        instance.mistake = "no program is named: +firmware=FILE";
        return;
    }
    configuration.interrupts = integer(args[2]);
    configuration.hasOsExtension = integer(args[3]) != 0;
    configuration.isBigEndian = integer(args[4]) != 0;
    configuration.hasLowerAlias = integer(args[5]) != 0;
    configuration.hasUpperAlias = integer(args[6]) != 0;
    configuration.itcmBytes = memoryBytes(integer(args[7]));
    configuration.dtcmBytes = memoryBytes(integer(args[8]));
    try {
        instance.core = std::make_unique<CortexM1::Core>(
            configuration, [&instance](const std::string &piece) { print(instance, piece); });
        if (firmware.empty())
            return; // the memory has it from the start
        std::vector<std::uint8_t> contents(configuration.itcmBytes);
        std::size_t end = 0;
        instance.mistake = CortexM1::readElf(firmware, configuration.hasUpperAlias, contents, &end);
        if (configuration.hasOuterMemories)
            contents.resize(end);
        instance.core->processor().setInstructionMemory(contents);
        if (instance.mistake.empty())
            openDebugger(instance);
    } catch (const std::exception &error) {
        instance.mistake = error.what();
    }
}

PLI_INT32 callOpen(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = arguments();
    if (args.size() != 10) {
        vpi_printf("$cortexm1_open takes 10 arguments\n");
        vpi_control(vpiFinish, 1);
        return 0;
    }
    instances().push_back(std::make_unique<Instance>());
    open(*instances().back(), args);
    s_vpi_value value;
    value.format = vpiIntVal;
    value.value.integer = static_cast<PLI_INT32>(instances().size());
    vpi_put_value(args[0], &value, nullptr, vpiNoDelay);
    return 0;
}

// `memories`: null where they are in the model.
CortexM1::Outputs clock(Instance &instance, vpiHandle pins, vpiHandle memories)
{
    if (!instance.mistake.empty()) {
        CortexM1::Outputs outputs;
        outputs.isDone = true;
        return outputs;
    }
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
    return instance.core->clock(inputs);
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

void report(Instance &instance, const CortexM1::Outputs &outputs)
{
    if (!outputs.isDone || instance.isReported)
        return;
    instance.isReported = true;
    if (outputs.hasPassed)
        vpi_printf("PASS\n");
    else
        vpi_printf("FAIL: %s\n", instance.mistake.empty()
                                     ? instance.core->processor().ending().reason.c_str()
                                     : instance.mistake.c_str());
}

PLI_INT32 callClock(PLI_BYTE8 *)
{
    const std::vector<vpiHandle> args = arguments();
    const bool hasMemories = args.size() == 5;
    const std::size_t number =
        hasMemories || args.size() == 3 ? static_cast<std::size_t>(integer(args[0])) : 0;
    if (number == 0 || number > instances().size()) {
        vpi_printf("$cortexm1_clock is called without $cortexm1_open\n");
        vpi_control(vpiFinish, 1);
        return 0;
    }
    Instance &instance = *instances()[number - 1];
    const CortexM1::Outputs outputs = clock(instance, args[1], hasMemories ? args[3] : nullptr);
    report(instance, outputs);

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

void addTask(const char *name, PLI_INT32 (*call)(PLI_BYTE8 *))
{
    s_vpi_systf_data task{};
    task.type = vpiSysTask;
    task.tfname = name;
    task.calltf = call;
    vpi_register_systf(&task);
}

PLI_INT32 forgetInstances(p_cb_data)
{
    instances().clear();
    return 0;
}

void addTasks()
{
    addTask("$cortexm1_open", callOpen);
    addTask("$cortexm1_clock", callClock);
    s_cb_data atEnd{};
    atEnd.reason = cbEndOfSimulation;
    atEnd.cb_rtn = forgetInstances;
    vpi_register_cb(&atEnd);
}

} // namespace

// The entry points of the module; the simulator looks for the name.
extern "C" __attribute__((visibility("default"))) void (*vlog_startup_routines[])();
void (*vlog_startup_routines[])() = {addTasks, nullptr};
