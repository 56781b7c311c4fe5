#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace CortexM1
{

// Memory of the model that instructions reach without a bus.
struct MemoryBlock {
    static constexpr std::uint32_t page = 4096; // what libunicorn maps

    std::uint32_t address = 0; // a multiple of a page
    std::uint32_t bytes = 0;
    // Whole pages, of which the rest is nobody's; outlives the instruction set; may stand at
    // several addresses.
    std::uint8_t *contents = nullptr;
    // What counts is behind the port, which sees every access; instructions run from `contents`.
    bool isCopy = false;
};

// Where data accesses go that meet no memory block, or a copy. Called from within an instruction.
class DataPort
{
public:
    virtual ~DataPort() = default;
    // `bytes`: 1, 2 or 4; the address is a multiple of it. A fault is the port's own matter.
    virtual std::uint32_t load(std::uint32_t address, int bytes) = 0;
    virtual void store(std::uint32_t address, int bytes, std::uint32_t value) = 0;
};

// Executes computing, branching, loading and storing instructions, one at a time, by libunicorn.
// What concerns modes and exceptions never comes here.
class InstructionSet
{
public:
    static constexpr int stackPointer = 13;
    static constexpr int linkRegister = 14;
    static constexpr int registers = 15; // without the program counter

    // Throws std::runtime_error if the library refuses.
    InstructionSet(const std::vector<MemoryBlock> &memory, DataPort &port);
    ~InstructionSet();
    InstructionSet(const InstructionSet &) = delete;
    InstructionSet &operator=(const InstructionSet &) = delete;

    // `number`: 0 to 14.
    std::uint32_t value(int number) const;
    void setValue(int number, std::uint32_t value);

    // N, Z, C and V in the upper four bits.
    std::uint32_t flags() const;
    void setFlags(std::uint32_t flags);

    // Executes the instruction at `programCounter` and sets that to the next one. False, with
    // nothing changed, if there is no such instruction. `accesses`: how often it loads or stores;
    // the port sees no more than these.
    bool execute(std::uint32_t &programCounter, int accesses);

    // Undoes what the current instruction has done to the registers.
    void restore();

    // To be told of every change of memory that execute() did not make.
    void forget(std::uint32_t address, std::uint32_t bytes);

private:
    struct Engine;
    const std::unique_ptr<Engine> m_engine;
};

} // namespace CortexM1
