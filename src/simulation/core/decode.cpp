#include "decode.h"

#include <bitset>

namespace CortexM1
{

namespace
{

using Kind = InstructionKind;

int ones(unsigned bits)
{
    return static_cast<int>(std::bitset<16>(bits).count());
}

// Loads or stores of a list of registers; an empty list is no instruction.
Instruction several(unsigned list)
{
    return list == 0 ? Instruction{} : Instruction{Kind::Access, 2, ones(list)};
}

// Instructions of 32 bits.
Instruction decodeLong(std::uint16_t first, std::uint16_t second)
{
    if ((first & 0xF800) == 0xF000 && (second & 0xD000) == 0xD000)
        return {Kind::Computing, 4}; // BL
    if ((first & 0xFFF0) == 0xF380 && (second & 0xFF00) == 0x8800)
        return {Kind::MoveToSpecial, 4};
    if (first == 0xF3EF && (second & 0xF000) == 0x8000)
        return {Kind::MoveFromSpecial, 4};
    const int barrier = second >> 4 & 15; // DSB, DMB, ISB
    if (first == 0xF3BF && (second & 0xFF00) == 0x8F00 && barrier >= 4 && barrier <= 6)
        return {Kind::Nothing, 4};
    return {Kind::Undefined, 4};
}

Instruction decodeHint(std::uint16_t code)
{
    if ((code & 15) != 0)
        return {}; // IT
    switch (code >> 4 & 15) {
    case 2:
        return {Kind::WaitForEvent};
    case 3:
        return {Kind::WaitForInterrupt};
    case 4:
        return {Kind::SendEvent};
    default:
        return {Kind::Nothing};
    }
}

// 0xB000 to 0xBFFF.
Instruction decodeMiscellaneous(std::uint16_t code)
{
    switch (code >> 8 & 15) {
    case 0x0: // ADD SP, SUB SP
    case 0x2: // SXTH, SXTB, UXTH, UXTB
        return {Kind::Computing};
    case 0x4:
    case 0x5: // PUSH
    case 0xC: // POP
        return several(code & 0x1FF);
    case 0x6:
        if (code == 0xB662)
            return {Kind::EnableInterrupts};
        if (code == 0xB672)
            return {Kind::DisableInterrupts};
        return {};
    case 0xA: // REV, REV16, REVSH
        return {(code & 0xC0) == 0x80 ? Kind::Undefined : Kind::Computing};
    case 0xD:
        return {Kind::PopAndBranch};
    case 0xE:
        return {Kind::Breakpoint};
    case 0xF:
        return decodeHint(code);
    default:
        return {};
    }
}

} // namespace

Instruction decode(std::uint16_t first, std::uint16_t second)
{
    if (isLong(first))
        return decodeLong(first, second);
    switch (first >> 12) {
    case 0x4:
        if (first >= 0x4800)
            return {Kind::Access, 2, 1}; // LDR (literal)
        if ((first & 0xFF07) == 0x4700)
            return {first & 0x80 ? Kind::BranchLinkExchange : Kind::BranchExchange};
        return {(first & 0xFF00) == 0x4700 ? Kind::Undefined : Kind::Computing};
    case 0x5:
    case 0x6:
    case 0x7:
    case 0x8:
    case 0x9:
        return {Kind::Access, 2, 1};
    case 0xB:
        return decodeMiscellaneous(first);
    case 0xC:
        return several(first & 0xFF);
    case 0xD:
        if ((first & 0xFF00) == 0xDF00)
            return {Kind::SupervisorCall};
        return {(first & 0xFF00) == 0xDE00 ? Kind::Undefined : Kind::Computing};
    default:
        return {Kind::Computing};
    }
}

AddressOf addressOf(std::uint16_t access)
{
    const int base = access >> 3 & 7;
    const std::uint32_t number = access >> 6 & 31u;
    switch (access >> 12) {
    case 0x5: {
        static constexpr std::uint32_t divisors[] = {4, 2, 1, 1, 4, 2, 1, 2};
        return {base, access >> 6 & 7, 0, divisors[access >> 9 & 7]};
    }
    case 0x6:
        return {base, -1, number * 4, 4};
    case 0x8:
        return {base, -1, number * 2, 2};
    case 0xC:
        return {access >> 8 & 7, -1, 0, 4};
    default:
        return {}; // bytes, or relative to the stack or the program counter
    }
}

AccessRange accessRange(std::uint16_t code, const std::array<std::uint32_t, 16> &registers)
{
    const Instruction instruction = decode(code, 0);
    if (isLong(code) ||
        (instruction.kind != Kind::Access && instruction.kind != Kind::PopAndBranch))
        return {};
    const std::uint32_t stack = registers[13];
    const std::uint32_t words = (code & 0xFFu) * 4; // of an offset in words
    const bool isLoad = code >> 11 & 1;
    const auto listed = static_cast<std::uint32_t>(4 * ones(code & 0xFF));
    const auto at = [&](std::uint32_t bytes, bool isWrite) -> AccessRange {
        const AddressOf parts = addressOf(code);
        const std::uint32_t index =
            parts.index < 0 ? 0 : registers[static_cast<std::size_t>(parts.index)];
        return {registers[static_cast<std::size_t>(parts.base)] + index + parts.offset, bytes,
                isWrite};
    };
    switch (code >> 12) {
    case 0x4:
        return {((registers[15] + 4) & ~3u) + words, 4, false};
    case 0x5: {
        const std::uint32_t bytes = addressOf(code).divisor;
        return at(bytes, (code >> 9 & 7) < 3);
    }
    case 0x6:
        return at(4, !isLoad);
    case 0x7:
        return {registers[code >> 3 & 7u] + (code >> 6 & 31u), 1, !isLoad};
    case 0x8:
        return at(2, !isLoad);
    case 0x9:
        return {stack + words, 4, !isLoad};
    case 0xB: { // with LR or PC
        const std::uint32_t bytes = listed + (code >> 8 & 1) * 4u;
        return isLoad ? AccessRange{stack, bytes, false} : AccessRange{stack - bytes, bytes, true};
    }
    case 0xC:
        return at(listed, !isLoad);
    default:
        return {};
    }
}

} // namespace CortexM1
