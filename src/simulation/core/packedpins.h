#pragma once

#include "core.h"

#include <cstdint>

namespace CortexM1
{

// The pins as vectors of a Verilog simulator, the lowest word first:
//
//   inputs {reset, NMI, HREADY, HRESP, IRQ, HRDATA}
//   outputs {HBURST, done, passed, SYSRESETREQ, LOCKUP, HTRANS, HSIZE, HWRITE, HADDR, HWDATA}
//   memory inputs {DTCMRDATA, ITCMRDATA}
//   memory outputs {ITCMEN, DTCMEN, write enables, word address, write data}
constexpr int inputWords = 3;
constexpr int outputWords = 3;
constexpr int memoryWords = 2; // each way

// A word of a vector; the bits of `unknown` are neither 0 nor 1.
struct PackedWord {
    std::uint32_t value = 0;
    std::uint32_t unknown = 0;

    std::uint32_t known() const { return value & ~unknown; }
};

inline Inputs unpackedInputs(const PackedWord *words)
{
    const std::uint32_t controls = words[2].known();
    Inputs inputs;
    inputs.data = words[0].value;
    inputs.unknown = words[0].unknown;
    inputs.interrupts = words[1].known();
    inputs.isError = controls & 1;
    inputs.isReady = controls & 2;
    inputs.nonMaskable = controls & 4;
    inputs.isReset = controls & 8;
    return inputs;
}

inline void unpackMemories(const PackedWord *words, Inputs &inputs)
{
    inputs.instructionMemory = words[0].value;
    inputs.instructionMemoryUnknown = words[0].unknown;
    inputs.dataMemory = words[1].value;
    inputs.dataMemoryUnknown = words[1].unknown;
}

inline void packOutputs(const Outputs &outputs, std::uint32_t *words)
{
    words[0] = outputs.data;
    words[1] = outputs.address;
    words[2] = unsigned(outputs.isWrite) | static_cast<unsigned>(outputs.size) << 1 |
               unsigned(outputs.isSequential) << 4 | unsigned(outputs.isTransfer) << 5 |
               unsigned(outputs.isLockedUp) << 6 | unsigned(outputs.requestsReset) << 7 |
               unsigned(outputs.hasPassed) << 8 | unsigned(outputs.isDone) << 9 |
               static_cast<unsigned>(outputs.burst) << 10;
}

inline void packMemories(const MemoryOutputs &outputs, std::uint32_t *words)
{
    words[0] = outputs.data;
    words[1] = outputs.address | outputs.lanes << 18 | unsigned(outputs.isData) << 22 |
               unsigned(outputs.isInstruction) << 23;
}

} // namespace CortexM1
