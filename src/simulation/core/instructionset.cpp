#include "instructionset.h"

#include "coroutine.h"

#include <unicorn/unicorn.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

namespace CortexM1
{

namespace
{

constexpr std::uint64_t addressSpace = std::uint64_t(1) << 32;
constexpr std::uint64_t nowhere = 0xFFFFFFFE; // execution never gets there

int registerId(int number)
{
    switch (number) {
    case InstructionSet::stackPointer:
        return UC_ARM_REG_SP;
    case InstructionSet::linkRegister:
        return UC_ARM_REG_LR;
    default:
        return UC_ARM_REG_R0 + number;
    }
}

std::uint64_t mappedBytes(const MemoryBlock &block)
{
    return (block.bytes + std::uint64_t(MemoryBlock::page) - 1) & ~(MemoryBlock::page - 1ULL);
}

void demand(uc_err error)
{
    if (error != UC_ERR_OK)
        throw std::runtime_error(std::string("libunicorn: ") + uc_strerror(error));
}

} // namespace

struct InstructionSet::Engine {
    // A range of addresses without memory, as the library's call-backs know it.
    struct Gap {
        Engine *engine;
        std::uint32_t address;
    };

    Engine(const std::vector<MemoryBlock> &blocks, DataPort &dataPort)
        : memory(blocks)
        , port(dataPort)
        , program([this] { run(); })
    {
        demand(uc_open(UC_ARCH_ARM, static_cast<uc_mode>(UC_MODE_THUMB | UC_MODE_MCLASS), &uc));
        demand(uc_ctl_set_cpu_model(uc, UC_CPU_ARM_CORTEX_M0));
        std::sort(memory.begin(), memory.end(),
                  [](const MemoryBlock &a, const MemoryBlock &b) { return a.address < b.address; });
        gaps.reserve(memory.size() + 1); // the call-backs keep addresses of elements
        std::uint64_t end = 0;
        for (const MemoryBlock &block : memory) {
            mapGap(end, block.address);
            const std::uint64_t begin = block.address;
            const std::uint64_t mapped = mappedBytes(block);
            end = begin + mapped;
            demand(uc_mem_map_ptr(uc, begin, mapped, UC_PROT_ALL, block.contents));
            const std::uint64_t own = begin + (block.isCopy ? 0 : block.bytes);
            watch(UC_HOOK_MEM_WRITE, noteWrite, begin, own);
            watch(UC_HOOK_MEM_READ, loadBehind, own, end);
            watch(UC_HOOK_MEM_WRITE, storeBehind, own, end);
        }
        mapGap(end, addressSpace);
        uc_hook hook;
        demand(uc_hook_add(uc, &hook, UC_HOOK_CODE, reinterpret_cast<void *>(beforeInstruction),
                           this, 1, 0));
    }

    ~Engine()
    {
        leave();
        uc_close(uc);
    }

    // What the coroutine does. The library stays in its loop from one instruction to the next,
    // since beginning and ending that takes longer than most instructions; it is suspended before
    // each.
    void run()
    {
        for (;;) {
            isBeginning = true;
            isLeaving = false;
            error = uc_emu_start(uc, wanted | 1, nowhere, 0, 0);
            if (!isLeaving) {
                reached = read(UC_ARM_REG_PC) & ~1u;
                program.yield();
            } else if (!isWanted) {
                program.yield();
            }
        }
    }

    static void beforeInstruction(uc_engine *uc, std::uint64_t address, std::uint32_t, void *data)
    {
        auto *engine = static_cast<Engine *>(data);
        if (engine->isBeginning) {
            engine->isBeginning = false;
            return;
        }
        engine->error = UC_ERR_OK;
        engine->reached = static_cast<std::uint32_t>(address);
        engine->isInLoop = true;
        engine->program.yield();
        engine->isInLoop = false;
        if (engine->isWanted && engine->wanted == engine->reached && !engine->isChanged)
            return;
        engine->isLeaving = true;
        uc_emu_stop(uc);
    }

    // Executes an instruction, or nothing.
    void resume(bool withInstruction)
    {
        isWanted = withInstruction;
        program.resume();
        isChanged = false;
    }

    // Ends the library's loop, which some of its functions ask for.
    void leave()
    {
        if (isInLoop)
            resume(false);
    }

    void mapGap(std::uint64_t begin, std::uint64_t end)
    {
        if (begin >= end)
            return;
        gaps.push_back({this, static_cast<std::uint32_t>(begin)});
        demand(uc_mmio_map(uc, begin, end - begin, load, &gaps.back(), store, &gaps.back()));
    }

    void watch(int kind, uc_cb_hookmem_t callBack, std::uint64_t begin, std::uint64_t end)
    {
        if (begin >= end)
            return;
        uc_hook hook;
        demand(
            uc_hook_add(uc, &hook, kind, reinterpret_cast<void *>(callBack), this, begin, end - 1));
    }

    // Copies and the rest of a page are the port's. The library reads them right after this.
    static void loadBehind(uc_engine *, uc_mem_type, std::uint64_t address, int bytes, std::int64_t,
                           void *data)
    {
        auto *engine = static_cast<Engine *>(data);
        if (!engine->isData())
            return;
        const auto place = static_cast<std::uint32_t>(address);
        const std::uint32_t value = engine->port.load(place, bytes);
        const auto count = static_cast<std::size_t>(bytes);
        for (const MemoryBlock &block : engine->memory) {
            if (place - block.address >= mappedBytes(block))
                continue;
            std::uint8_t *copy = block.contents + (place - block.address);
            if (std::memcmp(copy, &value, count) == 0)
                continue;
            std::memcpy(copy, &value, count);
            engine->written.emplace_back(place, static_cast<std::uint32_t>(bytes));
        }
    }

    static void storeBehind(uc_engine *, uc_mem_type, std::uint64_t address, int bytes,
                            std::int64_t value, void *data)
    {
        auto *engine = static_cast<Engine *>(data);
        if (!engine->isData())
            return;
        engine->port.store(static_cast<std::uint32_t>(address), bytes,
                           static_cast<std::uint32_t>(value));
        engine->written.emplace_back(static_cast<std::uint32_t>(address),
                                     static_cast<std::uint32_t>(bytes));
    }

    // The library also looks for the next instruction, and not always in memory.
    bool isData()
    {
        if (accessesLeft == 0)
            return false;
        --accessesLeft;
        if (!saved) {
            for (int number = 0; number < registers; ++number)
                before[static_cast<std::size_t>(number)] = read(registerId(number));
            saved = true;
        }
        return true;
    }

    static std::uint64_t load(uc_engine *, std::uint64_t offset, unsigned bytes, void *data)
    {
        const Gap &gap = *static_cast<Gap *>(data);
        return gap.engine->isData()
                   ? gap.engine->port.load(gap.address + static_cast<std::uint32_t>(offset),
                                           static_cast<int>(bytes))
                   : 0;
    }

    static void store(uc_engine *, std::uint64_t offset, unsigned bytes, std::uint64_t value,
                      void *data)
    {
        const Gap &gap = *static_cast<Gap *>(data);
        if (gap.engine->isData())
            gap.engine->port.store(gap.address + static_cast<std::uint32_t>(offset),
                                   static_cast<int>(bytes), static_cast<std::uint32_t>(value));
    }

    static void noteWrite(uc_engine *, uc_mem_type, std::uint64_t address, int bytes, std::int64_t,
                          void *data)
    {
        auto *engine = static_cast<Engine *>(data);
        const auto place = static_cast<std::uint32_t>(address);
        const MemoryBlock *home = engine->homeOf(place);
        if (home && engine->hasRun(home->contents))
            engine->written.emplace_back(place, static_cast<std::uint32_t>(bytes));
    }

    std::uint32_t read(int id) const
    {
        std::uint32_t value = 0;
        uc_reg_read(uc, id, &value);
        return value;
    }

    void write(int id, std::uint32_t value)
    {
        uc_reg_write(uc, id, &value);
        isChanged = true;
    }

    // The memory that has an address.
    MemoryBlock *homeOf(std::uint32_t address)
    {
        for (MemoryBlock &block : memory) {
            if (address - block.address < block.bytes)
                return &block;
        }
        return nullptr;
    }

    void noteRunningFrom(std::uint32_t address)
    {
        if (lastRunFrom && address - lastRunFrom->address < lastRunFrom->bytes)
            return;
        lastRunFrom = homeOf(address);
        if (lastRunFrom && !hasRun(lastRunFrom->contents))
            runFrom.push_back(lastRunFrom->contents);
    }

    bool hasRun(const std::uint8_t *contents) const
    {
        return std::find(runFrom.begin(), runFrom.end(), contents) != runFrom.end();
    }

    // Translated instructions are kept by address: those of every address at which the bytes stand
    // go.
    void forget(std::uint32_t address, std::uint32_t bytes)
    {
        const MemoryBlock *home = homeOf(address);
        if (!home || !hasRun(home->contents))
            return;
        leave();
        for (const MemoryBlock &block : memory) {
            if (block.contents == home->contents) {
                const std::uint64_t begin = block.address + (address - home->address);
                uc_ctl_remove_cache(uc, begin, begin + bytes);
            }
        }
    }

    uc_engine *uc = nullptr;
    std::vector<MemoryBlock> memory;
    DataPort &port;
    std::vector<Gap> gaps;
    Coroutine program;
    std::vector<const std::uint8_t *> runFrom; // memories that have instructions
    const MemoryBlock *lastRunFrom = nullptr;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> written; // address and bytes
    std::array<std::uint32_t, registers> before{};
    bool saved = false;
    int accessesLeft = 0;

    std::uint32_t wanted = 0;  // the instruction to execute
    bool isWanted = false;     // or none
    std::uint32_t reached = 0; // the one behind it
    uc_err error = UC_ERR_OK;  // of the executed one
    bool isBeginning = false;  // the library's loop
    bool isInLoop = false;     // suspended there
    bool isLeaving = false;    // that loop
    bool isChanged = false;    // a register, since the loop was suspended
};

InstructionSet::InstructionSet(const std::vector<MemoryBlock> &memory, DataPort &port)
    : m_engine(std::make_unique<Engine>(memory, port))
{
}

InstructionSet::~InstructionSet() = default;

std::uint32_t InstructionSet::value(int number) const
{
    return m_engine->read(registerId(number));
}

void InstructionSet::setValue(int number, std::uint32_t value)
{
    m_engine->write(registerId(number), number == stackPointer ? value & ~3u : value);
}

std::uint32_t InstructionSet::flags() const
{
    return m_engine->read(UC_ARM_REG_APSR) & 0xF0000000;
}

void InstructionSet::setFlags(std::uint32_t flags)
{
    m_engine->write(UC_ARM_REG_APSR, flags & 0xF0000000);
}

bool InstructionSet::execute(std::uint32_t &programCounter, int accesses)
{
    m_engine->saved = false;
    m_engine->accessesLeft = accesses;
    m_engine->noteRunningFrom(programCounter);
    m_engine->wanted = programCounter;
    m_engine->resume(true);
    if (m_engine->error == UC_ERR_INSN_INVALID)
        return false;
    programCounter = m_engine->reached;
    for (const auto &[address, bytes] : m_engine->written)
        m_engine->forget(address, bytes);
    m_engine->written.clear();
    return true;
}

void InstructionSet::restore()
{
    if (!m_engine->saved)
        return;
    for (int number = 0; number < registers; ++number)
        m_engine->write(registerId(number), m_engine->before[static_cast<std::size_t>(number)]);
}

void InstructionSet::forget(std::uint32_t address, std::uint32_t bytes)
{
    m_engine->forget(address, bytes);
}

} // namespace CortexM1
