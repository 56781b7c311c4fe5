#pragma once

#include <array>
#include <cstdint>

namespace CortexM1
{

// What a processor has to know of an instruction before something executes it. Instructions are
// those of ARMv6-M; what is none of them is undefined.
enum class InstructionKind {
    Computing, // branches within the mode included
    Access,    // loads or stores
    PopAndBranch,
    BranchExchange,
    BranchLinkExchange,
    SupervisorCall,
    Breakpoint,
    WaitForInterrupt,
    WaitForEvent,
    SendEvent,
    Nothing, // hints and barriers
    EnableInterrupts,
    DisableInterrupts,
    MoveToSpecial,
    MoveFromSpecial,
    Undefined
};

struct Instruction {
    InstructionKind kind = InstructionKind::Undefined;
    int bytes = 2;
    int accesses = 0; // of an Access: how many
};

// `second` counts only behind a first half of a long instruction.
Instruction decode(std::uint16_t first, std::uint16_t second);

inline bool isLong(std::uint16_t first)
{
    return first >= 0xE800;
}

// By how much the address of an Access must be divisible, and how it is made.
struct AddressOf {
    int base = 0;             // number of a register
    int index = -1;           // of another, -1: none
    std::uint32_t offset = 0; // in bytes
    std::uint32_t divisor = 1;
};
AddressOf addressOf(std::uint16_t access);

// What an Access or a PopAndBranch touches; no bytes: nothing.
struct AccessRange {
    std::uint32_t address = 0;
    std::uint32_t bytes = 0;
    bool isWrite = false;
};
// `registers`: before the instruction, the program counter as its address.
AccessRange accessRange(std::uint16_t code, const std::array<std::uint32_t, 16> &registers);

} // namespace CortexM1
