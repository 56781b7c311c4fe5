#pragma once

#include "coroutine.h"
#include "debugger.h"
#include "processor.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace CortexM1
{

// The pins of CortexM1Core in the middle of a clock cycle, when all of them have settled.
struct Inputs {
    bool isReset = true;
    bool nonMaskable = false;
    std::uint32_t interrupts = 0;
    bool isReady = true;       // HREADY
    bool isError = false;      // HRESP
    std::uint32_t data = 0;    // HRDATA
    std::uint32_t unknown = 0; // bits of HRDATA that are neither 0 nor 1
    // ITCMRDATA and DTCMRDATA, and their unknown bits. Only outer memories count.
    std::uint32_t instructionMemory = 0;
    std::uint32_t instructionMemoryUnknown = 0;
    std::uint32_t dataMemory = 0;
    std::uint32_t dataMemoryUnknown = 0;
};

// What the pins of outer memories show at once, for the next rising edge only.
struct MemoryOutputs {
    bool isInstruction = false; // ITCMEN
    bool isData = false;        // DTCMEN
    unsigned lanes = 0;         // ITCMWE or DTCMWE
    std::uint32_t address = 0;  // ITCMADDR or DTCMADDR: of words, from the memory's first one
    std::uint32_t data = 0;     // ITCMWDATA or DTCMWDATA, on all lanes that it may belong to
};

// What the pins show from the next rising edge on.
struct Outputs {
    std::uint32_t address = 0;  // HADDR
    bool isTransfer = false;    // HTRANS: not idle
    bool isSequential = false;  // HTRANS: goes on with a burst
    int burst = 0;              // HBURST
    int size = 2;               // HSIZE
    bool isWrite = false;       // HWRITE
    std::uint32_t data = 0;     // HWDATA, on all lanes that it may belong to
    bool requestsReset = false; // SYSRESETREQ
    bool isLockedUp = false;    // LOCKUP
    bool isDone = false;        // the program has ended
    bool hasPassed = false;
    MemoryOutputs memory;
};

// A processor behind pins: each call of clock() is one cycle, in which an instruction is executed
// or an access goes on. With outer memories an instruction takes a cycle for each of their accesses
// instead, the fetch among them.
class Core : private Surroundings
{
public:
    using Print = std::function<void(const std::string &)>;

    // Throws std::runtime_error with the reason for a configuration that is not modelled.
    Core(const Configuration &configuration, Print print);
    ~Core() override;

    Processor &processor() { return m_processor; }

    // From now on a debugger may halt the processor; clock() waits meanwhile. Once, before the
    // first clock cycle, and not with outer memories. `link` outlives the core.
    void attach(DebuggerLink &link);

    const Outputs &clock(const Inputs &inputs);

private:
    enum class Phase { Idle, Address, Data, Memory };

    TransferEnd transfer(Transfer &transfer) override;
    TransferEnd transferOnBus(Transfer &transfer);
    TransferEnd accessMemory(Transfer &transfer);
    void print(const std::string &text) override { m_print(text); }
    void run();
    void abandon();

    const Print m_print;
    Processor m_processor;
    std::unique_ptr<Debugger> m_debugger; // if one is attached
    Coroutine m_program;
    Inputs m_inputs;
    Outputs m_outputs;
    Phase m_phase = Phase::Idle;
    bool m_isAbandoning = false;
    bool m_hasTakenTime = false; // the current step, by outer memories
    bool m_hasBeenReset = false;
    bool m_isHeld = false; // ended, but the debugger still looks
};

} // namespace CortexM1
