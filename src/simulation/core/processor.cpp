#include "processor.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace CortexM1
{

namespace
{

constexpr std::uint32_t upperAlias = 0x10000000;
constexpr std::uint32_t dataMemoryBase = 0x20000000;
constexpr std::uint32_t systemFirst = 0xE0000000;
constexpr std::uint32_t systemLast = 0xE00FFFFF;

constexpr std::uint32_t returnToHandler = 0xFFFFFFF1;
constexpr std::uint32_t returnToMainStack = 0xFFFFFFF9;
constexpr std::uint32_t returnToProcessStack = 0xFFFFFFFD;
constexpr std::uint32_t frameBytes = 32;
constexpr std::uint32_t frameWasMoved = 1u << 9; // in the kept status
constexpr std::uint32_t thumbState = 1u << 24;
constexpr std::uint32_t lockUpAddress = 0xFFFFFFFE;

constexpr std::uint32_t longestText = 1 << 20; // of one semihosting call

// What is not written here tells programs that rely on it.
constexpr std::uint8_t memoryGarbage = 0xA5;

std::uint32_t fromBytes(const std::uint8_t *bytes, int count)
{
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i)
        value |= std::uint32_t(bytes[i]) << 8 * i;
    return value;
}

const Configuration &supported(const Configuration &configuration)
{
    if (configuration.isBigEndian)
        throw std::runtime_error("a big-endian core (BE8) is not modelled");
    if (configuration.itcmBytes == 0 ||
        !(configuration.hasLowerAlias || configuration.hasUpperAlias))
        throw std::runtime_error("a core without instruction memory is not modelled");
    if (!configuration.hasLowerAlias)
        throw std::runtime_error(
            "a vector table outside of the instruction memory is not modelled");
    return configuration;
}

std::size_t wholePages(std::uint32_t bytes)
{
    return (std::size_t(bytes) + MemoryBlock::page - 1) & ~(std::size_t(MemoryBlock::page) - 1);
}

std::vector<MemoryBlock> memoryBlocks(const Configuration &configuration,
                                      std::vector<std::uint8_t> &itcm,
                                      std::vector<std::uint8_t> &dtcm)
{
    std::vector<MemoryBlock> blocks;
    const bool areCopies = configuration.hasOuterMemories;
    if (configuration.hasLowerAlias)
        blocks.push_back({0, configuration.itcmBytes, itcm.data(), areCopies});
    if (configuration.hasUpperAlias)
        blocks.push_back({upperAlias, configuration.itcmBytes, itcm.data(), areCopies});
    if (configuration.dtcmBytes != 0)
        blocks.push_back({dataMemoryBase, configuration.dtcmBytes, dtcm.data(), areCopies});
    return blocks;
}

std::string unknownBits(std::uint32_t address, std::uint32_t unknown)
{
    return "the read from " + hexadecimal(address) + " brings unknown bits, " +
           hexadecimal(unknown);
}

// Whether instructions may never come from there.
bool isExecuteNever(std::uint32_t address)
{
    return (address >= 0x40000000 && address < 0x60000000) || address >= 0xA0000000;
}

} // namespace

Processor::Processor(const Configuration &configuration, Surroundings &surroundings)
    : m_configuration(supported(configuration))
    , m_surroundings(surroundings)
    , m_itcm(wholePages(configuration.itcmBytes))
    , m_dtcm(wholePages(configuration.dtcmBytes), memoryGarbage)
    , m_memory(memoryBlocks(configuration, m_itcm, m_dtcm))
    , m_exceptions(configuration.interrupts)
    , m_system(m_configuration, m_exceptions)
    , m_instructions(m_memory, *this)
{
    reset();
}

void Processor::setInstructionMemory(const std::vector<std::uint8_t> &contents)
{
    const std::size_t count = std::min<std::size_t>(contents.size(), m_configuration.itcmBytes);
    if (m_configuration.hasOuterMemories) {
        m_filling.assign(contents.begin(), contents.begin() + static_cast<std::ptrdiff_t>(count));
        m_filling.resize((count + 3) & ~std::size_t(3));
        return;
    }
    // In place: others know where the memory lies.
    std::copy_n(contents.begin(), count, m_itcm.begin());
    m_instructions.forget(0, static_cast<std::uint32_t>(count));
}

void Processor::reset()
{
    m_exceptions.reset();
    m_system.reset();
    for (int number = 0; number < InstructionSet::registers; ++number)
        m_instructions.setValue(number, 0);
    m_instructions.setValue(InstructionSet::linkRegister, 0xFFFFFFFF);
    m_instructions.setFlags(0);
    m_isThumb = true;
    m_primask = false;
    m_usesProcessStack = false;
    m_otherStack = 0;
    m_running = 0;
    m_event = false;
    m_sleep = Sleep::Awake;
    m_isStarted = false;
    m_isLockedUp = false;
    m_isAbandoned = false;
    m_hasFaulted = false;
}

void Processor::tick(std::uint32_t interruptInputs, bool nonMaskableInput, bool isHalted)
{
    const std::uint32_t before = m_exceptions.pendingInterrupts();
    m_exceptions.sample(interruptInputs, nonMaskableInput);
    if (m_configuration.hasOsExtension && !isHalted)
        m_system.tick();
    if (!isHalted) {
        ++m_statistics.cycles;
        m_statistics.asleep += m_sleep != Sleep::Awake;
    }
    if (m_system.pendingWakes() && (m_exceptions.pendingInterrupts() & ~before) != 0)
        m_event = true;
}

bool Processor::wakes() const
{
    return m_exceptions.preempting(false) != 0 || (m_sleep == Sleep::UntilEvent && m_event);
}

Processor::Next Processor::next() const
{
    if (!m_isStarted)
        return Next::Start;
    if (m_sleep != Sleep::Awake && !wakes())
        return Next::Nothing;
    if (m_exceptions.preempting(m_primask) != 0)
        return Next::Exception;
    return m_isLockedUp ? Next::Nothing : Next::Instruction;
}

void Processor::step()
{
    if (m_hasEnded)
        return;
    const Next what = next();
    if (what == Next::Start) {
        start();
        return;
    }
    if (m_sleep != Sleep::Awake && wakes()) {
        if (m_sleep == Sleep::UntilEvent)
            m_event = false;
        m_sleep = Sleep::Awake;
    }
    if (what == Next::Exception)
        enter(m_isLockedUp ? lockUpAddress : m_programCounter);
    else if (what == Next::Instruction)
        execute();
}

std::uint32_t Processor::registerValue(int number) const
{
    return number == 15 ? m_programCounter : m_instructions.value(number);
}

std::string Processor::statisticsText() const
{
    return m_statistics.text(m_hasEnded ? m_ending.programCounter : m_programCounter);
}

// ---- memory

std::uint8_t *Processor::memoryAt(std::uint32_t address, std::uint32_t bytes) const
{
    for (const MemoryBlock &block : m_memory) {
        const std::uint32_t offset = address - block.address;
        if (offset < block.bytes && block.bytes - offset >= bytes)
            return block.contents + offset;
    }
    return nullptr;
}

bool Processor::read(std::uint32_t address, int bytes, std::uint32_t &value)
{
    Transfer transfer{address, bytes, false, 0};
    const bool done = access(transfer);
    value = transfer.data;
    return done;
}

bool Processor::write(std::uint32_t address, int bytes, std::uint32_t value)
{
    Transfer transfer{address, bytes, true, value};
    return access(transfer);
}

bool Processor::access(Transfer &transfer)
{
    if (m_isAbandoned || m_hasEnded)
        return false;
    std::string mistake;
    const TransferEnd end = reach(transfer, mistake);
    if (transfer.isOnBus && end != TransferEnd::Abandoned)
        m_statistics.countTransfer(transfer.address, transfer.bytes, transfer.isWrite,
                                   end == TransferEnd::Error, m_programCounter);
    if (transfer.isOnBus && transfer.unknown != 0)
        m_statistics.countUnknown(transfer.address, transfer.unknown, m_programCounter);
    if (!mistake.empty())
        refuse(mistake);
    if (end == TransferEnd::Abandoned)
        m_isAbandoned = true;
    return end == TransferEnd::Done;
}

// What an access meets: memory, the processor's own registers, the bus. `mistake`: of an access
// that the model does not have.
TransferEnd Processor::reach(Transfer &transfer, std::string &mistake)
{
    const auto bytes = static_cast<std::uint32_t>(transfer.bytes);
    if (std::uint8_t *memory = memoryAt(transfer.address, bytes)) {
        if (m_configuration.hasOuterMemories) {
            transfer.port =
                transfer.address < dataMemoryBase ? Port::InstructionMemory : Port::DataMemory;
            const TransferEnd end = m_surroundings.transfer(transfer);
            if (end != TransferEnd::Done || transfer.unknown == 0)
                return end;
            mistake = unknownBits(transfer.address, transfer.unknown);
            return TransferEnd::Error;
        }
        if (!transfer.isWrite) {
            transfer.data = fromBytes(memory, transfer.bytes);
            return TransferEnd::Done;
        }
        for (int i = 0; i < transfer.bytes; ++i)
            memory[i] = static_cast<std::uint8_t>(transfer.data >> 8 * i);
        m_instructions.forget(transfer.address, bytes);
        return TransferEnd::Done;
    }
    if (transfer.address >= systemFirst && transfer.address <= systemLast) {
        mistake = "an access of " + std::to_string(bytes) + " bytes to the register at " +
                  hexadecimal(transfer.address) + " is not modelled";
        if (transfer.bytes == 4)
            mistake = transfer.isWrite ? m_system.write(transfer.address, transfer.data)
                                       : m_system.read(transfer.address, m_running, transfer.data);
        return mistake.empty() ? TransferEnd::Done : TransferEnd::Error;
    }
    transfer.isOnBus = true;
    return m_surroundings.transfer(transfer);
}

std::uint32_t Processor::load(std::uint32_t address, int bytes)
{
    std::uint32_t value = 0;
    if (!m_hasFaulted)
        m_hasFaulted = !read(address, bytes, value);
    return value;
}

void Processor::store(std::uint32_t address, int bytes, std::uint32_t value)
{
    if (!m_hasFaulted)
        m_hasFaulted = !write(address, bytes, value);
}

// ---- instructions

// Writes what the program begins with. After a reset on the way it begins anew.
bool Processor::fillMemory()
{
    for (std::uint32_t address = 0; address < m_filling.size(); address += 4) {
        if (!write(address, 4, fromBytes(m_filling.data() + address, 4)))
            return false;
    }
    m_filling.clear();
    return true;
}

void Processor::start()
{
    m_isStarted = true;
    ++m_statistics.starts;
    if (!fillMemory())
        return;
    std::uint32_t stack = 0;
    std::uint32_t entry = 0;
    if (!read(0, 4, stack) || !read(4, 4, entry)) {
        if (!m_isAbandoned && !m_hasEnded) {
            m_statistics.countFault(FaultCause::VectorTable, m_programCounter);
            lockUp();
        }
        return;
    }
    m_instructions.setValue(InstructionSet::stackPointer, stack);
    m_programCounter = entry & ~1u;
    m_isThumb = entry & 1;
}

// The halves of the next instruction, the second one of a long one only. Where the program cannot
// go on, false.
bool Processor::fetch(std::uint16_t &first, std::uint16_t &second)
{
    Transfer word;
    return fetchHalf(m_programCounter, word, first) &&
           (!isLong(first) || fetchHalf(m_programCounter + 2, word, second));
}

// `word`: what an outer memory was last read for, which holds two halves.
bool Processor::fetchHalf(std::uint32_t address, Transfer &word, std::uint16_t &half)
{
    std::uint8_t *memory = memoryAt(address, 2);
    if (!memory) {
        refuse("running from " + hexadecimal(m_programCounter) +
               ", outside of the tightly coupled memories, is not modelled");
        return false;
    }
    half = static_cast<std::uint16_t>(fromBytes(memory, 2));
    if (!m_configuration.hasOuterMemories)
        return true;

    const Port port = address < dataMemoryBase ? Port::InstructionMemory : Port::DataMemory;
    if (word.port == Port::Bus || word.address != (address & ~3u)) {
        word = {address & ~3u, 4, false, 0, port, 0};
        const TransferEnd end = m_surroundings.transfer(word);
        if (end == TransferEnd::Abandoned)
            m_isAbandoned = true;
        if (end != TransferEnd::Done)
            return false;
    }
    const std::uint32_t shift = 8 * (address & 2);
    const std::uint32_t unknown = word.unknown >> shift & 0xFFFF;
    if (unknown != 0) {
        refuse(unknownBits(address, unknown));
        return false;
    }
    const auto fetched = static_cast<std::uint16_t>(word.data >> shift);
    if (fetched != half) {
        half = fetched;
        memory[0] = static_cast<std::uint8_t>(half);
        memory[1] = static_cast<std::uint8_t>(half >> 8);
        m_instructions.forget(address, 2);
    }
    return true;
}

void Processor::execute()
{
    const std::uint32_t address = m_programCounter;
    if (!m_isThumb || isExecuteNever(address)) {
        fault(FaultCause::State, address);
        return;
    }
    std::uint16_t first = 0;
    std::uint16_t second = 0;
    if (!fetch(first, second))
        return;
    ++m_statistics.instructions;

    const Instruction instruction = decode(first, second);
    m_hasFaulted = false;
    switch (instruction.kind) {
    case InstructionKind::Access:
        if (isMisaligned(first)) {
            fault(FaultCause::Misaligned, address);
            return;
        }
        break;
    case InstructionKind::Computing:
        break;
    default:
        executeSystem(instruction, first, second);
        return;
    }
    const bool exists = m_instructions.execute(m_programCounter, instruction.accesses);
    if (exists && !m_hasFaulted)
        return;
    m_instructions.restore();
    m_programCounter = address;
    fault(exists ? FaultCause::Bus : FaultCause::Undefined, address);
}

void Processor::executeSystem(const Instruction &instruction, std::uint16_t first,
                              std::uint16_t second)
{
    const std::uint32_t next = m_programCounter + static_cast<std::uint32_t>(instruction.bytes);
    switch (instruction.kind) {
    case InstructionKind::PopAndBranch:
        popAndBranch(first);
        return;
    case InstructionKind::BranchExchange:
    case InstructionKind::BranchLinkExchange: {
        const std::uint32_t target = registerValue(first >> 3 & 15);
        if (instruction.kind == InstructionKind::BranchLinkExchange) {
            m_instructions.setValue(InstructionSet::linkRegister, next | 1);
            jump(target);
        } else {
            exchange(target);
        }
        return;
    }
    case InstructionKind::SupervisorCall:
        callSupervisor();
        return;
    case InstructionKind::Breakpoint:
        if ((first & 0xFF) == 0xAB)
            semihost();
        else
            end((first & 0xFF) == 0,
                "BKPT " + std::to_string(first & 0xFF) + " at " + hexadecimal(m_programCounter));
        break;
    case InstructionKind::WaitForInterrupt:
        m_sleep = Sleep::UntilInterrupt;
        break;
    case InstructionKind::WaitForEvent:
        if (!m_event)
            m_sleep = Sleep::UntilEvent;
        m_event = false;
        break;
    case InstructionKind::SendEvent:
        m_event = true;
        break;
    case InstructionKind::Nothing:
        break;
    case InstructionKind::EnableInterrupts:
        m_primask = false;
        break;
    case InstructionKind::DisableInterrupts:
        m_primask = true;
        break;
    case InstructionKind::MoveToSpecial:
        moveToSpecial(second & 0xFF, registerValue(first & 15));
        break;
    case InstructionKind::MoveFromSpecial: {
        const int target = second >> 8 & 15;
        if (target < InstructionSet::registers)
            m_instructions.setValue(target, moveFromSpecial(second & 0xFF));
        break;
    }
    case InstructionKind::Computing:
    case InstructionKind::Access:
    case InstructionKind::Undefined:
        fault(FaultCause::Undefined, m_programCounter);
        return;
    }
    m_programCounter = next;
}

bool Processor::isMisaligned(std::uint16_t access) const
{
    const AddressOf parts = addressOf(access);
    if (parts.divisor == 1)
        return false;
    std::uint32_t address = registerValue(parts.base) + parts.offset;
    if (parts.index >= 0)
        address += registerValue(parts.index);
    return address % parts.divisor != 0;
}

void Processor::popAndBranch(std::uint16_t code)
{
    std::uint32_t stack = m_instructions.value(InstructionSet::stackPointer);
    std::array<std::uint32_t, 9> values{}; // the last one is the program counter's
    for (int number = 0; number <= 8; ++number) {
        if (number < 8 && !(code >> number & 1))
            continue;
        if (!read(stack, 4, values[static_cast<std::size_t>(number)])) {
            fault(FaultCause::Bus, m_programCounter);
            return;
        }
        stack += 4;
    }
    for (int number = 0; number < 8; ++number) {
        if (code >> number & 1)
            m_instructions.setValue(number, values[static_cast<std::size_t>(number)]);
    }
    m_instructions.setValue(InstructionSet::stackPointer, stack);
    exchange(values[8]);
}

// To an address whose lowest bit names the state.
void Processor::jump(std::uint32_t target)
{
    m_programCounter = target & ~1u;
    m_isThumb = target & 1;
}

// The same, or out of an exception.
void Processor::exchange(std::uint32_t target)
{
    if (m_running != 0 && target >> 28 == 0xF) {
        leave(target);
        return;
    }
    jump(target);
}

void Processor::callSupervisor()
{
    const bool isPossible =
        m_configuration.hasOsExtension &&
        m_exceptions.priority(supervisorCall) < m_exceptions.executionPriority(m_primask);
    if (!isPossible) {
        fault(FaultCause::Supervisor, m_programCounter);
        return;
    }
    m_exceptions.setPending(supervisorCall, true);
    enter(m_programCounter + 2);
}

void Processor::moveToSpecial(int number, std::uint32_t value)
{
    if (number < 8) {
        if ((number & 4) == 0)
            m_instructions.setFlags(value);
        return;
    }
    switch (number) {
    case 8: // MSP
    case 9: // PSP
        if (number == 9 && !m_configuration.hasOsExtension)
            refuse("the process stack without the OS extension is not modelled");
        else if ((number == 9) == m_usesProcessStack)
            m_instructions.setValue(InstructionSet::stackPointer, value);
        else
            m_otherStack = value & ~3u;
        return;
    case 16: // PRIMASK
        m_primask = value & 1;
        return;
    case 20: // CONTROL
        if (value & 1)
            refuse("unprivileged execution is not modelled");
        else if ((value & 2) && !m_configuration.hasOsExtension)
            refuse("the process stack without the OS extension is not modelled");
        else if (m_running == 0)
            selectStack(value & 2);
        return;
    default:
        refuse("MSR of the special register " + std::to_string(number) + " is not modelled");
    }
}

std::uint32_t Processor::moveFromSpecial(int number)
{
    if (number < 8)
        return ((number & 1) ? static_cast<std::uint32_t>(m_running) : 0) |
               ((number & 4) ? 0 : m_instructions.flags());
    switch (number) {
    case 8:
    case 9:
        return (number == 9) == m_usesProcessStack
                   ? m_instructions.value(InstructionSet::stackPointer)
                   : m_otherStack;
    case 16:
        return m_primask;
    case 20:
        return m_usesProcessStack ? 2 : 0;
    default:
        refuse("MRS of the special register " + std::to_string(number) + " is not modelled");
        return 0;
    }
}

// ---- exceptions

// Keeps what the running code needs and begins the most urgent pending exception.
void Processor::enter(std::uint32_t returnAddress)
{
    const std::uint32_t stack = m_instructions.value(InstructionSet::stackPointer);
    const bool moves = stack & 4;
    const std::uint32_t frame = (stack - frameBytes) & ~7u;
    const std::uint32_t status = m_instructions.flags() | (moves ? frameWasMoved : 0) |
                                 (m_isThumb ? thumbState : 0) |
                                 static_cast<std::uint32_t>(m_running);
    const std::uint32_t words[] = {registerValue(0),  registerValue(1),
                                   registerValue(2),  registerValue(3),
                                   registerValue(12), registerValue(InstructionSet::linkRegister),
                                   returnAddress,     status};
    bool kept = true;
    for (std::uint32_t i = 0; i < 8 && kept; ++i)
        kept = write(frame + 4 * i, 4, words[i]);
    if (m_isAbandoned || m_hasEnded)
        return;

    m_instructions.setValue(InstructionSet::stackPointer, frame);
    m_instructions.setValue(InstructionSet::linkRegister, m_running != 0 ? returnToHandler
                                                          : m_usesProcessStack
                                                              ? returnToProcessStack
                                                              : returnToMainStack);
    if (!kept) {
        m_statistics.countFault(FaultCause::Stacking, m_programCounter);
        if (m_exceptions.executionPriority(m_primask) <= hardFaultPriority) {
            lockUp();
            return;
        }
        m_exceptions.setPending(hardFault, true);
    }
    take(m_exceptions.preempting(m_primask));
}

// Begins an exception; the link register says already how it is to be left.
void Processor::take(int number)
{
    std::uint32_t handler = 0;
    if (!read(static_cast<std::uint32_t>(4 * number), 4, handler)) {
        if (m_isAbandoned || m_hasEnded)
            return;
        m_statistics.countFault(FaultCause::VectorTable, m_programCounter);
        lockUp();
        return;
    }
    selectStack(false);
    m_statistics.countException(number);
    m_exceptions.activate(number);
    m_running = number;
    m_programCounter = handler & ~1u;
    m_isThumb = handler & 1;
    m_isLockedUp = false;
    m_event = true;
}

void Processor::leave(std::uint32_t exceptionReturn)
{
    const bool toHandler = exceptionReturn == returnToHandler;
    const bool toProcessStack = exceptionReturn == returnToProcessStack;
    const bool isKnown = toHandler || exceptionReturn == returnToMainStack ||
                         (toProcessStack && m_configuration.hasOsExtension);
    if (!isKnown || toHandler != (m_exceptions.activeCount() > 1)) {
        refuse("leaving exception " + std::to_string(m_running) + " with " +
               hexadecimal(exceptionReturn) + " has no defined result");
        return;
    }
    m_exceptions.deactivate(m_running);
    m_event = true;

    // What is pending now begins at once; the frame stays where it is.
    const int next = m_exceptions.preempting(m_primask);
    if (next != 0) {
        m_instructions.setValue(InstructionSet::linkRegister, exceptionReturn);
        take(next);
        return;
    }

    const std::uint32_t frame =
        toProcessStack ? m_otherStack : m_instructions.value(InstructionSet::stackPointer);
    std::array<std::uint32_t, 8> words{};
    for (std::uint32_t i = 0; i < 8; ++i) {
        if (!read(frame + 4 * i, 4, words[i])) {
            if (m_isAbandoned || m_hasEnded)
                return;
            m_statistics.countFault(FaultCause::Unstacking, m_programCounter);
            if (m_exceptions.executionPriority(m_primask) <= hardFaultPriority) {
                lockUp();
                return;
            }
            m_exceptions.setPending(hardFault, true);
            m_instructions.setValue(InstructionSet::linkRegister, exceptionReturn);
            take(m_exceptions.preempting(m_primask));
            return;
        }
    }
    const std::uint32_t status = words[7];
    const int running = static_cast<int>(status & 0x3F);
    if (toHandler ? !m_exceptions.isActive(running) : running != 0) {
        refuse("returning to exception " + std::to_string(running) + " with " +
               hexadecimal(exceptionReturn) + " has no defined result");
        return;
    }
    selectStack(toProcessStack);
    for (int i = 0; i < 4; ++i)
        m_instructions.setValue(i, words[static_cast<std::size_t>(i)]);
    m_instructions.setValue(12, words[4]);
    m_instructions.setValue(InstructionSet::linkRegister, words[5]);
    m_instructions.setFlags(status);
    m_instructions.setValue(InstructionSet::stackPointer,
                            frame + frameBytes + (status & frameWasMoved ? 4 : 0));
    m_running = running;
    m_programCounter = words[6] & ~1u;
    m_isThumb = status & thumbState;
    // Back where it was locked up.
    if (words[6] == lockUpAddress)
        lockUp();
    if (!toHandler && m_system.sleepsOnExit())
        m_sleep = Sleep::UntilInterrupt;
}

void Processor::fault(FaultCause cause, std::uint32_t returnAddress)
{
    if (m_isAbandoned || m_hasEnded)
        return;
    m_statistics.countFault(cause, returnAddress);
    if (m_exceptions.executionPriority(m_primask) <= hardFaultPriority) {
        lockUp();
        return;
    }
    m_exceptions.setPending(hardFault, true);
    enter(returnAddress);
}

void Processor::lockUp()
{
    if (!m_isLockedUp)
        m_statistics.countLockUp(m_programCounter);
    m_isLockedUp = true;
}

void Processor::selectStack(bool process)
{
    if (process == m_usesProcessStack)
        return;
    m_usesProcessStack = process;
    const std::uint32_t old = m_instructions.value(InstructionSet::stackPointer);
    m_instructions.setValue(InstructionSet::stackPointer, m_otherStack);
    m_otherStack = old;
}

// ---- for a debugger

std::uint32_t Processor::debugRegister(int number) const
{
    const std::uint32_t inUse = m_instructions.value(InstructionSet::stackPointer);
    switch (number) {
    case programStatus:
        return m_instructions.flags() | (m_isThumb ? thumbState : 0) |
               static_cast<std::uint32_t>(m_running);
    case mainStack:
        return m_usesProcessStack ? m_otherStack : inUse;
    case processStack:
        return m_usesProcessStack ? inUse : m_otherStack;
    case primask:
        return m_primask;
    case control:
        return m_usesProcessStack ? 2 : 0;
    default:
        return registerValue(number);
    }
}

bool Processor::setDebugRegister(int number, std::uint32_t value)
{
    const bool hasOs = m_configuration.hasOsExtension;
    switch (number) {
    case 15:
        m_programCounter = value & ~1u;
        m_sleep = Sleep::Awake;
        m_isLockedUp = false;
        return true;
    case programStatus:
        m_instructions.setFlags(value);
        m_isThumb = value & thumbState;
        return true;
    case mainStack:
    case processStack:
        if (number == processStack && !hasOs)
            return value == m_otherStack;
        if ((number == processStack) == m_usesProcessStack)
            m_instructions.setValue(InstructionSet::stackPointer, value);
        else
            m_otherStack = value & ~3u;
        return true;
    case primask:
        m_primask = value & 1;
        return true;
    case control:
        if (value == debugRegister(control))
            return true;
        if ((value & ~2u) != 0 || !hasOs || m_running != 0)
            return false;
        selectStack(value & 2);
        return true;
    default:
        m_instructions.setValue(number, value);
        return true;
    }
}

TransferEnd Processor::debugAccess(Transfer &transfer, std::string &mistake)
{
    return reach(transfer, mistake);
}

AccessRange Processor::nextAccess() const
{
    std::array<std::uint32_t, 16> registers{};
    for (int number = 0; number < 16; ++number)
        registers[static_cast<std::size_t>(number)] = registerValue(number);
    const std::uint8_t *memory = memoryAt(m_programCounter, 2);
    return memory ? accessRange(static_cast<std::uint16_t>(fromBytes(memory, 2)), registers)
                  : AccessRange();
}

// ---- the program and its reader

void Processor::semihost()
{
    constexpr std::uint32_t applicationExit = 0x20026;
    const std::uint32_t operation = registerValue(0);
    const std::uint32_t argument = registerValue(1);
    std::uint32_t words[3] = {};
    // Reads `count` words of arguments.
    const auto arguments = [&](std::uint32_t count) {
        for (std::uint32_t i = 0; i < count; ++i) {
            if (!read(argument + 4 * i, 4, words[i])) {
                refuse("the arguments of a semihosting call at " + hexadecimal(argument) +
                       " cannot be read");
                return false;
            }
        }
        return true;
    };
    std::string text;
    std::uint32_t result = 0;
    switch (operation) {
    case 0x01: // SYS_OPEN
        if (!arguments(3) || !readText(words[0], words[2], false, text))
            return;
        result = text == ":tt" ? (words[1] < 4 ? 1 : 2) : 0xFFFFFFFF;
        break;
    case 0x02: // SYS_CLOSE
    case 0x13: // SYS_ERRNO
        break;
    case 0x03: // SYS_WRITEC
        if (!readText(argument, 1, false, text))
            return;
        m_surroundings.print(text);
        break;
    case 0x04: // SYS_WRITE0
        if (!readText(argument, longestText, true, text))
            return;
        m_surroundings.print(text);
        break;
    case 0x05: // SYS_WRITE
        if (!arguments(3) || !readText(words[1], words[2], false, text))
            return;
        m_surroundings.print(text);
        break;
    case 0x09: // SYS_ISTTY
        result = 1;
        break;
    case 0x18: // SYS_EXIT
        end(argument == applicationExit, "exit " + hexadecimal(argument));
        return;
    case 0x20: // SYS_EXIT_EXTENDED
        if (!arguments(2))
            return;
        end(words[0] == applicationExit && words[1] == 0, words[0] == applicationExit
                                                              ? "exit " + std::to_string(words[1])
                                                              : "exit " + hexadecimal(words[0]));
        return;
    default:
        refuse("the semihosting operation " + hexadecimal(operation) + " is not modelled");
        return;
    }
    m_instructions.setValue(0, result);
}

bool Processor::readText(std::uint32_t address, std::uint32_t bytes, bool toZero, std::string &text)
{
    if (bytes > longestText) {
        refuse("a semihosting text of " + std::to_string(bytes) + " bytes is too long");
        return false;
    }
    for (std::uint32_t i = 0; i < bytes; ++i) {
        std::uint32_t byte = 0;
        if (!read(address + i, 1, byte)) {
            refuse("a semihosting text at " + hexadecimal(address + i) + " cannot be read");
            return false;
        }
        if (toZero && byte == 0)
            return true;
        text += static_cast<char>(byte);
    }
    return true;
}

void Processor::end(bool passed, const std::string &reason)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_ending = {passed, reason, m_programCounter};
}

void Processor::refuse(const std::string &what)
{
    end(false, what + " (at " + hexadecimal(m_programCounter) + ")");
}

} // namespace CortexM1
