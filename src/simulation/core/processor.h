#pragma once

#include "decode.h"
#include "exceptions.h"
#include "instructionset.h"
#include "statistics.h"
#include "systemspace.h"

#include <cstdint>
#include <string>
#include <vector>

namespace CortexM1
{

enum class Port { Bus, InstructionMemory, DataMemory };

struct Transfer {
    std::uint32_t address = 0; // a multiple of `bytes`
    int bytes = 4;             // 1, 2 or 4
    bool isWrite = false;
    std::uint32_t data = 0; // in the low bits; of a read the result
    Port port = Port::Bus;  // another one only where the memories are the surroundings'
    // Result of a read from a memory: bits that are neither 0 nor 1, which `data` has as 0. They
    // end the program where it uses them.
    std::uint32_t unknown = 0;
    bool isOnBus = false; // set where it was made on the bus
};

enum class TransferEnd {
    Done,
    Error,    // the slave's answer
    Abandoned // the processor is about to be reset
};

// What a processor sees of the world.
class Surroundings
{
public:
    virtual ~Surroundings() = default;
    // Returns when the transfer has ended. Memories answer without errors.
    virtual TransferEnd transfer(Transfer &transfer) = 0;
    // What the program says, piece by piece.
    virtual void print(const std::string &text) = 0;
};

// How a program ended.
struct Ending {
    bool passed = false;
    std::string reason; // a part of a sentence
    std::uint32_t programCounter = 0;
};

// An ARMv6-M processor at the level of instructions: each takes one step, however long its accesses
// take. What it does not model ends the program with a message. Time, pins and the memories'
// contents are the caller's.
//
// Programs speak by semihosting (BKPT 0xAB): SYS_OPEN of ":tt", SYS_CLOSE, SYS_WRITEC, SYS_WRITE0,
// SYS_WRITE, SYS_ISTTY, SYS_ERRNO, SYS_EXIT, SYS_EXIT_EXTENDED. Any other BKPT ends the program,
// with 0 as passed.
class Processor : private DataPort
{
public:
    // Throws std::runtime_error with the reason for a configuration that is not modelled.
    Processor(const Configuration &configuration, Surroundings &surroundings);

    // Sets the first bytes of the memory, at most all. Memories survive a reset. A memory of the
    // surroundings is written, in words, before the program begins for the first time.
    void setInstructionMemory(const std::vector<std::uint8_t> &contents);

    // Begins at the vector table with the next step.
    void reset();

    // One clock cycle, before its step: inputs are sampled, the system timer counts unless a
    // debugger has halted the processor.
    void tick(std::uint32_t interruptInputs, bool nonMaskableInput, bool isHalted = false);

    // One instruction, or the entry of an exception.
    void step();

    // What step() would do now.
    enum class Next { Start, Instruction, Exception, Nothing };
    Next next() const;

    bool hasEnded() const { return m_hasEnded; }
    const Ending &ending() const { return m_ending; }
    bool isLockedUp() const { return m_isLockedUp; }
    bool isSleeping() const { return m_sleep != Sleep::Awake; }
    bool requestsReset() const { return m_system.resetRequested(); }

    // What has been executed, from the construction on; what a debugger does is left out.
    Statistics &statistics() { return m_statistics; }
    const Statistics &statistics() const { return m_statistics; }
    // Their text, with where the program is, or where it ended.
    std::string statisticsText() const;

    // For messages and tests. `number`: 0 to 15.
    std::uint32_t registerValue(int number) const;
    std::uint32_t flags() const { return m_instructions.flags(); }
    int runningException() const { return m_running; }

    // For a debugger, between two steps, from the first instruction on. Registers 0 to 15 are as
    // above, these follow.
    static constexpr int programStatus = 16; // xPSR
    static constexpr int mainStack = 17;
    static constexpr int processStack = 18;
    static constexpr int primask = 19;
    static constexpr int control = 20;
    static constexpr int debugRegisters = 21;
    std::uint32_t debugRegister(int number) const;
    // False, with nothing changed, for what is not modelled. The number of the exception in xPSR
    // does not change. A new program counter wakes.
    bool setDebugRegister(int number, std::uint32_t value);
    // An access without effect on the program; returns when it has ended. Of a failure `mistake`
    // says why, and is empty if that was the bus.
    TransferEnd debugAccess(Transfer &transfer, std::string &mistake);
    // What the instruction that comes next loads or stores.
    AccessRange nextAccess() const;
    void requestReset(bool requested) { m_system.requestReset(requested); }
    void stop(const std::string &reason) { end(false, reason); }

private:
    enum class Sleep { Awake, UntilInterrupt, UntilEvent };

    std::uint32_t load(std::uint32_t address, int bytes) override;
    void store(std::uint32_t address, int bytes, std::uint32_t value) override;

    std::uint8_t *memoryAt(std::uint32_t address, std::uint32_t bytes) const;
    bool fetch(std::uint16_t &first, std::uint16_t &second);
    bool fetchHalf(std::uint32_t address, Transfer &word, std::uint16_t &half);
    bool read(std::uint32_t address, int bytes, std::uint32_t &value);
    bool write(std::uint32_t address, int bytes, std::uint32_t value);
    bool access(Transfer &transfer);
    TransferEnd reach(Transfer &transfer, std::string &mistake);

    void start();
    bool fillMemory();
    bool wakes() const;
    void execute();
    void executeSystem(const Instruction &instruction, std::uint16_t first, std::uint16_t second);
    bool isMisaligned(std::uint16_t access) const;
    void popAndBranch(std::uint16_t code);
    void jump(std::uint32_t target);
    void exchange(std::uint32_t target);
    void callSupervisor();
    void moveToSpecial(int number, std::uint32_t value);
    std::uint32_t moveFromSpecial(int number);

    void enter(std::uint32_t returnAddress);
    void take(int number);
    void leave(std::uint32_t exceptionReturn);
    void fault(FaultCause cause, std::uint32_t returnAddress);
    void lockUp();
    void selectStack(bool process);

    void semihost();
    bool readText(std::uint32_t address, std::uint32_t bytes, bool toZero, std::string &text);
    void end(bool passed, const std::string &reason);
    void refuse(const std::string &what);

    const Configuration m_configuration;
    Surroundings &m_surroundings;
    std::vector<std::uint8_t> m_itcm; // whole pages; a copy of what is outside
    std::vector<std::uint8_t> m_dtcm;
    std::vector<std::uint8_t> m_filling; // what is still to be written outside, whole words
    std::vector<MemoryBlock> m_memory;
    Exceptions m_exceptions;
    SystemSpace m_system;
    InstructionSet m_instructions;

    std::uint32_t m_programCounter = 0;
    bool m_isThumb = true;
    bool m_primask = false;
    bool m_usesProcessStack = false; // CONTROL.SPSEL, never set in a handler
    std::uint32_t m_otherStack = 0;  // the stack pointer that is not in use
    int m_running = 0;               // IPSR
    bool m_event = false;
    Sleep m_sleep = Sleep::Awake;
    bool m_isStarted = false;
    bool m_isLockedUp = false;
    bool m_isAbandoned = false;
    bool m_hasFaulted = false; // an access of the current instruction
    bool m_hasEnded = false;
    Ending m_ending;
    Statistics m_statistics;
};

} // namespace CortexM1
