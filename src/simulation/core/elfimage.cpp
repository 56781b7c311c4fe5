#include "elfimage.h"

#include "text.h"

#include <gelf.h>
#include <libelf.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>

namespace CortexM1
{

namespace
{

constexpr std::size_t largestFile = 64 << 20; // with debug information
constexpr std::uint64_t upperAlias = 0x10000000;

} // namespace

std::string readElf(const std::string &path, bool hasUpperAlias,
                    std::vector<std::uint8_t> &contents, std::size_t *end)
{
    const std::string name = "\"" + path + "\" ";
    std::ifstream file(path, std::ios::binary);
    std::vector<char> bytes;
    while (file && bytes.size() <= largestFile) {
        char piece[16384];
        file.read(piece, sizeof piece);
        bytes.insert(bytes.end(), piece, piece + file.gcount());
    }
    if (bytes.size() > largestFile)
        return name + "is too long";
    if (!file.eof() || (bytes.empty() && file.bad()))
        return name + "cannot be read";

    elf_version(EV_CURRENT);
    const std::unique_ptr<Elf, int (*)(Elf *)> elf(elf_memory(bytes.data(), bytes.size()), elf_end);
    GElf_Ehdr header;
    if (!elf || elf_kind(elf.get()) != ELF_K_ELF || !gelf_getehdr(elf.get(), &header))
        return name + "is no ELF file";
    if (header.e_machine != EM_ARM || header.e_ident[EI_CLASS] != ELFCLASS32)
        return name + "is no program for ARM";
    if (header.e_ident[EI_DATA] != ELFDATA2LSB)
        return name + "is big-endian, which is not modelled";
    if (header.e_type != ET_EXEC)
        return name + "is not linked";

    std::size_t count = 0;
    if (elf_getphdrnum(elf.get(), &count) != 0)
        return name + "has a broken table of segments";
    std::vector<std::uint8_t> result = contents;
    std::uint64_t loaded = 0;
    for (std::size_t i = 0; i < count; ++i) {
        GElf_Phdr segment;
        if (!gelf_getphdr(elf.get(), static_cast<int>(i), &segment))
            return name + "has a broken table of segments";
        if (segment.p_type != PT_LOAD || segment.p_filesz == 0)
            continue;
        if (segment.p_offset > bytes.size() || segment.p_filesz > bytes.size() - segment.p_offset)
            return name + "ends within a segment";
        std::uint64_t address = segment.p_paddr;
        if (hasUpperAlias && address >= upperAlias && address - upperAlias < result.size())
            address -= upperAlias;
        if (address > result.size() || segment.p_filesz > result.size() - address)
            return name + "has " + std::to_string(segment.p_filesz) + " bytes for " +
                   hexadecimal(static_cast<std::uint32_t>(segment.p_paddr)) +
                   ", which the instruction memory of " + std::to_string(result.size()) +
                   " bytes does not hold";
        const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(segment.p_offset);
        std::transform(begin, begin + static_cast<std::ptrdiff_t>(segment.p_filesz),
                       result.begin() + static_cast<std::ptrdiff_t>(address),
                       [](char byte) { return static_cast<std::uint8_t>(byte); });
        loaded = std::max(loaded, address + segment.p_filesz);
    }
    if (loaded == 0)
        return name + "has nothing to load";
    if (end)
        *end = static_cast<std::size_t>(loaded);
    contents = std::move(result);
    return {};
}

} // namespace CortexM1
