#include "core.h"

#include "lanes.h"
#include "text.h"

#include <utility>

namespace CortexM1
{

namespace
{

constexpr int addressBits = 18; // of ITCMADDR and DTCMADDR

} // namespace

Core::Core(const Configuration &configuration, Print print)
    : m_print(std::move(print))
    , m_processor(configuration, *this)
    , m_program([this] { run(); })
{
}

Core::~Core()
{
    abandon();
}

void Core::attach(DebuggerLink &link)
{
    m_debugger = std::make_unique<Debugger>(m_processor, link);
}

// What the coroutine does: a step a cycle, or as many cycles as it has accesses.
void Core::run()
{
    for (;;) {
        m_hasTakenTime = false;
        if (!m_debugger || m_debugger->mayStep()) {
            m_processor.step();
            m_isHeld = m_debugger && m_processor.hasEnded();
            while (m_isHeld) {
                m_isHeld = !m_debugger->mayEnd();
                if (m_isHeld)
                    m_program.yield();
            }
        }
        if (!m_hasTakenTime || m_isAbandoning)
            m_program.yield();
    }
}

// Lets an instruction that waits for the bus come to its end without it.
void Core::abandon()
{
    if (m_phase == Phase::Idle)
        return;
    m_isAbandoning = true;
    m_program.resume();
    m_isAbandoning = false;
    m_phase = Phase::Idle;
}

const Outputs &Core::clock(const Inputs &inputs)
{
    m_inputs = inputs;
    if (inputs.isReset) {
        abandon();
        m_processor.reset();
        if (m_debugger)
            m_debugger->noteReset();
        m_outputs = {};
        m_hasBeenReset = true;
    } else if (m_hasBeenReset && !m_outputs.isDone) {
        m_processor.tick(inputs.interrupts, inputs.nonMaskable,
                         m_debugger && m_debugger->isHalted());
        m_program.resume();
        m_outputs.requestsReset = m_processor.requestsReset();
        m_outputs.isLockedUp = m_processor.isLockedUp();
    }
    if (m_processor.hasEnded() && !m_isHeld) {
        m_outputs.isDone = true;
        m_outputs.hasPassed = m_processor.ending().passed;
    }
    return m_outputs;
}

// Runs in the coroutine, as what it calls. Between two calls of yield() lies a clock cycle.
TransferEnd Core::transfer(Transfer &transfer)
{
    if (m_isAbandoning)
        return TransferEnd::Abandoned;
    return transfer.port == Port::Bus ? transferOnBus(transfer) : accessMemory(transfer);
}

TransferEnd Core::accessMemory(Transfer &transfer)
{
    const bool isInstruction = transfer.port == Port::InstructionMemory;
    MemoryOutputs &pins = m_outputs.memory;
    m_phase = Phase::Memory;
    (isInstruction ? pins.isInstruction : pins.isData) = true;
    pins.address = transfer.address / 4 % (1u << addressBits);
    if (transfer.isWrite) {
        pins.lanes = lanesOf(transfer.address, transfer.bytes);
        pins.data = onAllLanes(transfer.data, transfer.bytes);
    }
    m_program.yield();
    pins = {};
    if (m_isAbandoning)
        return TransferEnd::Abandoned;

    m_phase = Phase::Idle;
    m_hasTakenTime = true;
    if (!transfer.isWrite) {
        const std::uint32_t unknown =
            isInstruction ? m_inputs.instructionMemoryUnknown : m_inputs.dataMemoryUnknown;
        const std::uint32_t word = isInstruction ? m_inputs.instructionMemory : m_inputs.dataMemory;
        transfer.unknown = fromLanes(unknown, transfer.address, transfer.bytes);
        transfer.data = fromLanes(word & ~unknown, transfer.address, transfer.bytes);
    }
    return TransferEnd::Done;
}

TransferEnd Core::transferOnBus(Transfer &transfer)
{
    m_phase = Phase::Address;
    m_outputs.address = transfer.address;
    m_outputs.isTransfer = true;
    m_outputs.isWrite = transfer.isWrite;
    m_outputs.size = transfer.bytes == 4 ? 2 : transfer.bytes == 2 ? 1 : 0;
    do {
        m_program.yield();
        if (m_isAbandoning)
            return TransferEnd::Abandoned;
    } while (!m_inputs.isReady);

    m_phase = Phase::Data;
    m_outputs.isTransfer = false;
    m_outputs.isWrite = false;
    m_outputs.data = onAllLanes(transfer.data, transfer.bytes);
    do {
        m_program.yield();
        if (m_isAbandoning)
            return TransferEnd::Abandoned;
    } while (!m_inputs.isReady);

    m_phase = Phase::Idle;
    if (m_inputs.isError)
        return TransferEnd::Error;
    if (transfer.isWrite)
        return TransferEnd::Done;
    const std::uint32_t unknown = fromLanes(m_inputs.unknown, transfer.address, transfer.bytes);
    if (unknown != 0)
        m_print("the read from " + hexadecimal(transfer.address) + " brings unknown bits, " +
                hexadecimal(unknown) + ", which are taken for 0\n");
    transfer.unknown = unknown;
    transfer.data = fromLanes(m_inputs.data & ~m_inputs.unknown, transfer.address, transfer.bytes);
    return TransferEnd::Done;
}

} // namespace CortexM1
