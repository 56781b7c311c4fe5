#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>
#include <QVector>

#include <array>
#include <cstdint>
#include <optional>
#include <random>

// Random pieces of ARMv6-M code that begin with random registers, flags and memory and end with all
// of them recorded. Instructions are made of their bits alone: no assembler chooses them.
namespace Snippets
{

// The memory of a snippet, as it is recorded: bytes from `record` on.
namespace Layout
{
constexpr std::uint32_t record = 0x20000800;
constexpr std::uint32_t saved = 44;         // r0 to r7, lr
constexpr std::uint32_t stack = saved + 36; // what the stack pointer may reach
constexpr std::uint32_t data = stack + 160; // what else is loaded and stored
constexpr std::uint32_t end = data + 128;   // of the record
constexpr std::uint32_t launch = end;       // r0 to r7 and the code's address, before
constexpr std::uint32_t launchEnd = launch + 36;
} // namespace Layout

// In the order of a record.
inline QByteArrayList recordFields()
{
    QByteArrayList names = {"number", "flags", "sp", "r8", "r9", "r10", "r11", "r12"};
    names += {"primask", "psp", "control"};
    names += {"r0", "r1", "r2", "r3", "r4", "r5", "r6", "r7", "lr"};
    for (std::uint32_t at = Layout::stack; at < Layout::end; at += 4)
        names += (at < Layout::data ? "stack+" : "data+") +
                 QByteArray::number(at < Layout::data ? at - Layout::stack : at - Layout::data);
    return names;
}

// Bits of an instruction: d a register that is written, n and m registers that are read, i
// anything.
struct Form {
    const char *name;
    const char *bits;
};

constexpr Form computing[] = {
    {"LSLS (immediate)", "00000iiiiimmmddd"},
    {"LSRS (immediate)", "00001iiiiimmmddd"},
    {"ASRS (immediate)", "00010iiiiimmmddd"},
    {"ADDS (register)", "0001100mmmnnnddd"},
    {"SUBS (register)", "0001101mmmnnnddd"},
    {"ADDS (three bits)", "0001110iiinnnddd"},
    {"SUBS (three bits)", "0001111iiinnnddd"},
    {"MOVS (immediate)", "00100dddiiiiiiii"},
    {"CMP (immediate)", "00101nnniiiiiiii"},
    {"ADDS (eight bits)", "00110dddiiiiiiii"},
    {"SUBS (eight bits)", "00111dddiiiiiiii"},
    {"ANDS", "0100000000mmmddd"},
    {"EORS", "0100000001mmmddd"},
    {"LSLS (register)", "0100000010mmmddd"},
    {"LSRS (register)", "0100000011mmmddd"},
    {"ASRS (register)", "0100000100mmmddd"},
    {"ADCS", "0100000101mmmddd"},
    {"SBCS", "0100000110mmmddd"},
    {"RORS", "0100000111mmmddd"},
    {"TST", "0100001000mmmnnn"},
    {"RSBS", "0100001001nnnddd"},
    {"CMP (register)", "0100001010mmmnnn"},
    {"CMN", "0100001011mmmnnn"},
    {"ORRS", "0100001100mmmddd"},
    {"MULS", "0100001101mmmddd"},
    {"BICS", "0100001110mmmddd"},
    {"MVNS", "0100001111mmmddd"},
    {"ADR", "10100dddiiiiiiii"},
    {"SXTH", "1011001000mmmddd"},
    {"SXTB", "1011001001mmmddd"},
    {"UXTH", "1011001010mmmddd"},
    {"UXTB", "1011001011mmmddd"},
    {"REV", "1011101000mmmddd"},
    {"REV16", "1011101001mmmddd"},
    {"REVSH", "1011101011mmmddd"},
};

// Loads and stores of one register: by an immediate (of `bytes` each), or by an index.
struct AccessForm {
    const char *name;
    std::uint16_t code;
    int bytes;
    bool hasIndex;
    bool isLoad;
};

constexpr AccessForm accesses[] = {
    {"STR (immediate)", 0x6000, 4, false, false},  {"LDR (immediate)", 0x6800, 4, false, true},
    {"STRB (immediate)", 0x7000, 1, false, false}, {"LDRB (immediate)", 0x7800, 1, false, true},
    {"STRH (immediate)", 0x8000, 2, false, false}, {"LDRH (immediate)", 0x8800, 2, false, true},
    {"STR (register)", 0x5000, 4, true, false},    {"STRH (register)", 0x5200, 2, true, false},
    {"STRB (register)", 0x5400, 1, true, false},   {"LDRSB", 0x5600, 1, true, true},
    {"LDR (register)", 0x5800, 4, true, true},     {"LDRH (register)", 0x5A00, 2, true, true},
    {"LDRB (register)", 0x5C00, 1, true, true},    {"LDRSH", 0x5E00, 2, true, true},
};

struct Snippet {
    std::uint32_t seed = 0;
    std::vector<std::uint16_t> code;           // begins at an address that is divisible by four
    QByteArrayList literals;                   // words behind it; `@` stands for its address
    std::array<std::uint32_t, 15> registers{}; // the stack pointer's is set by the code
    std::uint32_t flags = 0;
    std::uint32_t processStack = 0;
    std::vector<std::uint32_t> memory;    // stack and data
    std::vector<std::size_t> computingAt; // halfwords that `computing` names
};

class Generator
{
public:
    explicit Generator(std::uint32_t seed)
        : m_random(seed)
    {
        m_snippet.seed = seed;
    }

    // `used` counts the instructions by name.
    Snippet make(QMap<QByteArray, int> &used)
    {
        m_used = &used;
        for (std::uint32_t &value : m_snippet.registers)
            value = interesting();
        m_snippet.flags = m_random() & 0xF0000000;
        m_snippet.processStack = m_random() & ~3u;
        for (std::uint32_t at = Layout::stack; at < Layout::end; at += 4)
            m_snippet.memory.push_back(interesting());

        const std::uint32_t sp = address(Layout::stack) + 4 * (below(20) + 12);
        emit(0xB080 | (address(Layout::launchEnd) - sp) / 4); // SUB SP
        m_known[13] = sp;
        const std::uint32_t steps = 8 + below(20);
        for (std::uint32_t i = 0; i < steps && here() < 600; ++i)
            step();
        // All registers into the record, without any other that would be free.
        emit(0xB080 | (*m_known[13] - address(Layout::stack)) / 4);
        emit(0xB5FF); // PUSH {r0-r7, lr}
        emit(0xF3EF);
        emit(0x8000); // MRS r0, APSR
        emit(0x4669); // MOV r1, SP
        literalInto(2, "finish + 1");
        emit(0x4710); // BX r2
        placeLiterals();
        return m_snippet;
    }

private:
    static std::uint32_t address(std::uint32_t place) { return Layout::record + place; }
    std::uint32_t below(std::uint32_t count) { return m_random() % count; }
    bool oneOf(std::uint32_t count) { return below(count) == 0; }
    int lowRegister() { return static_cast<int>(below(8)); }

    // Values at which carries, signs and shifts change, among any others.
    std::uint32_t interesting()
    {
        static constexpr std::uint32_t edges[] = {0,          1,          0x7FFFFFFF, 0x80000000,
                                                  0xFFFFFFFF, 0x80000001, 0x0000FFFF, 0x00008000,
                                                  0x00000080, 0x000000FF, 31,         32,
                                                  33,         255,        256};
        switch (below(4)) {
        case 0:
            return edges[below(std::size(edges))];
        case 1:
            return below(64);
        default:
            return m_random();
        }
    }

    // Any register but SP and PC that may be written.
    int target()
    {
        for (;;) {
            const int number = static_cast<int>(below(15));
            if (number != 13 && !(number == 14 && m_keepsLink))
                return number;
        }
    }

    std::size_t here() const { return m_snippet.code.size() * 2; }
    void emit(std::uint32_t code) { m_snippet.code.push_back(static_cast<std::uint16_t>(code)); }
    void count(const char *name) { ++(*m_used)[name]; }
    void forget(int number) { m_known[static_cast<std::size_t>(number)].reset(); }
    std::optional<std::uint32_t> &known(int number)
    {
        return m_known[static_cast<std::size_t>(number)];
    }

    // LDR (literal).
    int literalInto(int number, const QByteArray &word)
    {
        m_literalUses.push_back({m_snippet.code.size(), m_snippet.literals.size()});
        emit(0x4800u | static_cast<unsigned>(number) << 8);
        m_snippet.literals.append(word);
        forget(number);
        return m_snippet.literals.size() - 1;
    }
    void valueInto(int number, std::uint32_t value)
    {
        count("LDR (literal)");
        literalInto(number, QByteArray::number(value));
        known(number) = value;
    }
    void placeLiterals()
    {
        if (m_snippet.code.size() % 2 != 0)
            emit(0xBF00);
        for (const auto &[at, index] : m_literalUses) {
            const std::size_t base = (at * 2 + 4) & ~std::size_t(3);
            m_snippet.code[at] |= static_cast<std::uint16_t>(
                (here() + 4 * static_cast<std::size_t>(index) - base) / 4);
        }
    }

    void step()
    {
        const std::uint32_t choice = below(100);
        if (choice < 64)
            straightStep();
        else if (choice < 70)
            pushOrPop();
        else if (choice < 75)
            moveStack();
        else if (choice < 88)
            jump();
        else if (choice < 92)
            callLeaf();
        else if (choice < 98)
            special();
        else
            callSupervisor();
    }

    // What neither branches nor moves the stack.
    void straightStep()
    {
        const std::uint32_t choice = below(64);
        if (choice < 36)
            compute();
        else if (choice < 42)
            computeHigh();
        else if (choice < 54)
            accessOne();
        else if (choice < 58)
            accessByStack();
        else
            accessSeveral();
    }

    void compute()
    {
        const Form &form = computing[below(std::size(computing))];
        std::uint32_t code = 0;
        int written = -1;
        int shift = -1;
        for (int i = 0; i < 16; ++i) {
            const char bit = form.bits[i];
            code = code << 1 | (bit == '1' || (bit != '0' && oneOf(2)));
            if (bit == 'd')
                written = static_cast<int>(code & 7);
            if (bit == 'm')
                shift = static_cast<int>(code & 7);
        }
        const bool shifts = (code & 0xFFC0) == 0x4080 || (code & 0xFFC0) == 0x40C0 ||
                            (code & 0xFFC0) == 0x4100 || (code & 0xFFC0) == 0x41C0;
        if (shifts && shift != written && oneOf(2)) {
            const std::uint32_t by = below(40);
            emit(0x2000u | static_cast<unsigned>(shift) << 8 | by);
            known(shift) = by;
        }
        count(form.name);
        m_snippet.computingAt.push_back(m_snippet.code.size());
        emit(code);
        if (written < 0)
            return;
        const std::optional<std::uint32_t> before = known(written);
        forget(written);
        if (code >> 11 == 4)
            known(written) = code & 0xFF;
        else if (code >> 11 == 6 && before)
            known(written) = *before + (code & 0xFF);
        else if (code >> 11 == 7 && before)
            known(written) = *before - (code & 0xFF);
    }

    // ADD, CMP and MOV of any registers.
    void computeHigh()
    {
        const int destination = target();
        int source = static_cast<int>(below(16));
        const auto with = [&](std::uint32_t code) {
            const auto d = static_cast<std::uint32_t>(destination);
            return code | (d & 8) << 4 | static_cast<std::uint32_t>(source) << 3 | (d & 7);
        };
        switch (below(3)) {
        case 0:
            count("ADD (any register)");
            emit(with(0x4400));
            forget(destination);
            return;
        case 1:
            if (source == 15 || (source < 8 && destination < 8))
                source = 8;
            count("CMP (any register)");
            emit(with(0x4500));
            return;
        default:
            count("MOV (any register)");
            emit(with(0x4600));
            if (source == 15)
                forget(destination);
            else
                known(destination) = known(source);
        }
    }

    // Where `bytes` can be accessed, a multiple of `size`.
    std::uint32_t place(std::uint32_t bytes, std::uint32_t size)
    {
        const std::uint32_t first = address(Layout::stack);
        return first + below((Layout::end - Layout::stack - bytes) / size + 1) * size;
    }
    static bool isPlace(std::uint32_t at, std::uint32_t bytes, std::uint32_t size)
    {
        return at >= address(Layout::stack) && at <= address(Layout::end) - bytes && at % size == 0;
    }

    // A register for an address.
    int freeLow(int other = -1)
    {
        for (;;) {
            const int number = lowRegister();
            if (number != other)
                return number;
        }
    }

    void accessOne()
    {
        const AccessForm &form = accesses[below(std::size(accesses))];
        const auto size = static_cast<std::uint32_t>(form.bytes);
        const int value = form.isLoad ? freeLow() : lowRegister();
        int base = lowRegister();
        std::uint32_t code = form.code | static_cast<std::uint32_t>(value);
        if (form.hasIndex) {
            int index = lowRegister();
            const bool fits =
                known(base) && known(index) && isPlace(*known(base) + *known(index), size, size);
            if (!fits) {
                index = freeLow();
                if (!known(index) || oneOf(2))
                    valueInto(index, oneOf(2) ? below(64) : interesting());
                base = freeLow(index);
                valueInto(base, place(size, size) - *known(index));
            }
            code |= static_cast<std::uint32_t>(index) << 6;
        } else {
            std::uint32_t number = below(32);
            if (!known(base) || !isPlace(*known(base) + number * size, size, size)) {
                base = freeLow();
                if (known(base) && isPlace(*known(base), size, size))
                    number = 0;
                else
                    valueInto(base, place(size, size) - number * size);
            }
            code |= number << 6;
        }
        count(form.name);
        emit(code | static_cast<std::uint32_t>(base) << 3);
        if (form.isLoad)
            forget(value);
    }

    // LDR, STR and ADD relative to the stack pointer.
    void accessByStack()
    {
        const std::uint32_t kind = below(3);
        const int value = kind == 0 ? lowRegister() : freeLow();
        const auto at = static_cast<std::uint32_t>(value) << 8;
        const std::uint32_t words = (address(Layout::end) - *known(13)) / 4;
        if (kind == 2) {
            const std::uint32_t offset = below(256);
            count("ADD (to the stack pointer)");
            emit(0xA800 | at | offset);
            known(value) = *known(13) + offset * 4;
            return;
        }
        count(kind == 0 ? "STR (stack)" : "LDR (stack)");
        emit((kind == 0 ? 0x9000 : 0x9800) | at | below(words));
        if (kind != 0)
            forget(value);
    }

    // LDM and STM.
    void accessSeveral()
    {
        const bool isLoad = oneOf(2);
        std::uint32_t list = 1 + below(255);
        const int base = freeLow();
        const std::uint32_t bit = 1u << base;
        // A base that is not the first one stored would leave what is stored open.
        if (!isLoad && (list & bit) && (list & (bit - 1)))
            list &= ~bit;
        const std::uint32_t bytes = 4 * ones(list);
        if (!known(base) || !isPlace(*known(base), bytes, 4))
            valueInto(base, place(bytes, 4));
        count(isLoad ? "LDM" : "STM");
        emit((isLoad ? 0xC800u : 0xC000u) | static_cast<std::uint32_t>(base) << 8 | list);
        const std::uint32_t after = *known(base) + bytes;
        if (isLoad)
            forgetAll(list);
        if (!isLoad || !(list & bit))
            known(base) = after;
    }
    void forgetAll(std::uint32_t list)
    {
        for (int i = 0; i < 8; ++i) {
            if (list >> i & 1)
                forget(i);
        }
    }

    // How many words can be pushed, popped.
    std::uint32_t room() { return (*known(13) - address(Layout::stack)) / 4; }
    std::uint32_t filled() { return (address(Layout::data) - *known(13)) / 4; }

    static std::uint32_t ones(std::uint32_t bits)
    {
        std::uint32_t result = 0;
        for (; bits != 0; bits &= bits - 1)
            ++result;
        return result;
    }

    void pushOrPop()
    {
        const bool isPop = oneOf(2);
        const std::uint32_t list = 1 + below(isPop ? 255 : 511);
        const std::uint32_t words = ones(list);
        if (words > (isPop ? filled() : room()))
            return;
        count(isPop ? "POP" : "PUSH");
        emit((isPop ? 0xBC00 : 0xB400) | list);
        if (isPop)
            forgetAll(list);
        *known(13) += isPop ? words * 4 : 0 - words * 4;
    }

    void moveStack()
    {
        const std::uint32_t to =
            address(Layout::stack) + 4 * below((Layout::data - Layout::stack) / 4);
        const std::uint32_t from = *known(13);
        const int by = freeLow();
        const auto number = static_cast<std::uint32_t>(by);
        switch (below(4)) {
        case 0:
            count("ADD or SUB (immediate, stack pointer)");
            emit(to >= from ? 0xB000 | (to - from) / 4 : 0xB080 | (from - to) / 4);
            break;
        case 1:
            count("ADD (register, stack pointer)");
            valueInto(by, to - from);
            emit(0x4485 | number << 3);
            break;
        case 2:
            count("MOV (stack pointer)");
            valueInto(by, to);
            emit(0x4685 | number << 3);
            break;
        default:
            count("MSR (stack pointer)");
            valueInto(by, to);
            emit(0xF380 | number);
            emit(0x8808);
        }
        known(13) = to;
    }

    void someSteps()
    {
        const std::uint32_t steps = 1 + below(4);
        for (std::uint32_t i = 0; i < steps; ++i)
            straightStep();
    }

    QByteArray codeAddress(std::size_t place) const
    {
        return "@ + " + QByteArray::number(static_cast<qulonglong>(place));
    }

    // Jumps forward, by every kind of jump, over some instructions.
    void jump()
    {
        const std::uint32_t kind = below(room() < 9 ? 6 : 8);
        const int by = freeLow();
        const auto number = static_cast<std::uint32_t>(by);
        int literal = -1;
        std::uint32_t pushed = 0;
        switch (kind) {
        case 4:
        case 5:
        case 7:
            literal = literalInto(by, {});
            break;
        case 6:
            literal = literalInto(by, {});
            pushed = below(256);
            emit(0xB400 | 1u << by);
            if (pushed != 0)
                emit(0xB400 | pushed);
            break;
        case 3:
            emit(0x2000 | number << 8);
            forget(by);
            break;
        default:
            break;
        }
        const auto before = m_known;
        const std::size_t at = m_snippet.code.size();
        switch (kind) {
        case 0:
        case 1:
            count("B (conditional)");
            emit(0xD000 | below(14) << 8);
            break;
        case 2:
            if (oneOf(2)) {
                count("B");
                emit(0xE000);
            } else {
                count("BL");
                emit(0xF000);
                emit(0xF800);
            }
            break;
        case 3:
            count("ADD (program counter)");
            emit(0x4487 | number << 3);
            break;
        case 4:
            count("BX");
            emit(0x4700 | number << 3);
            break;
        case 5:
            count("BLX");
            emit(0x4780 | number << 3);
            break;
        case 6:
            count("POP (program counter)");
            emit(0xBD00 | pushed);
            break;
        default:
            count("MOV (program counter)");
            emit(0x4687 | number << 3);
        }
        auto after = before;
        someSteps();
        const std::size_t distance = here() - (at * 2 + 4);
        if (kind <= 1) {
            m_snippet.code[at] |= static_cast<std::uint16_t>(distance / 2);
            for (std::size_t i = 0; i < after.size(); ++i) {
                if (after[i] != m_known[i])
                    after[i].reset();
            }
        } else if (kind == 2) {
            const bool isLong = m_snippet.code[at] == 0xF000;
            m_snippet.code[at + isLong] |= static_cast<std::uint16_t>(distance / 2);
            if (isLong)
                after[14].reset();
        } else if (kind == 3) {
            m_snippet.code[at - 1] |= static_cast<std::uint16_t>(distance);
        } else {
            m_snippet.literals[literal] = codeAddress(here()) + (kind == 7 ? "" : " + 1");
            if (kind == 5)
                after[14].reset();
        }
        m_known = after;
    }

    // BL to instructions that return.
    void callLeaf()
    {
        const std::size_t over = m_snippet.code.size();
        emit(0xE000);
        const std::size_t leaf = here();
        const std::uint32_t list = below(256);
        const bool pushes = oneOf(3) && room() > ones(list);
        forget(14);
        m_keepsLink = true;
        if (pushes) {
            // Nothing between may store to the stack.
            emit(0xB500 | list);
            compute();
            count("PUSH and POP of a call");
            emit(0xBD00 | list);
            forgetAll(list);
        } else {
            someSteps();
            emit(oneOf(2) ? 0x4770 : 0x46F7); // BX LR, MOV PC, LR
        }
        m_keepsLink = false;
        m_snippet.code[over] |= static_cast<std::uint16_t>((here() - (over * 2 + 4)) / 2);
        count("BL (backward)");
        const auto distance = static_cast<std::uint32_t>(leaf - (here() + 4));
        emit(0xF400 | (distance >> 12 & 0x3FF));
        emit(0xF800 | (distance >> 1 & 0x7FF));
    }

    void special()
    {
        static constexpr std::uint32_t readable[] = {0, 1, 2, 3, 5, 6, 7, 8, 9, 16, 20};
        switch (below(8)) {
        case 0:
        case 1: {
            const int to = target();
            const std::uint32_t from = readable[below(std::size(readable))];
            count("MRS");
            emit(0xF3EF);
            emit(0x8000 | static_cast<std::uint32_t>(to) << 8 | from);
            forget(to);
            return;
        }
        case 2:
        case 3: {
            // What else these names have cannot be written. The emulator would keep a Q flag,
            // bit 27, which ARMv6-M does not have.
            const int by = freeLow();
            valueInto(by, m_random() & ~(1u << 27));
            count("MSR (flags)");
            emit(0xF380 | static_cast<std::uint32_t>(by));
            emit(0x8800 | below(4));
            return;
        }
        case 4: {
            const int by = freeLow();
            if (oneOf(2)) {
                count("MSR (process stack)");
                valueInto(by, m_random() & ~3u);
                emit(0xF380 | static_cast<std::uint32_t>(by));
                emit(0x8809);
            } else {
                count("MSR (without effect)");
                emit(0xF380 | static_cast<std::uint32_t>(by));
                emit(0x8805 + below(3));
            }
            return;
        }
        case 5:
            count("MSR (PRIMASK)");
            m_mayMask = true;
            emit(0xF380 | static_cast<std::uint32_t>(target()));
            emit(0x8810);
            return;
        case 6:
            m_mayMask = oneOf(2);
            count(m_mayMask ? "CPSID" : "CPSIE");
            emit(m_mayMask ? 0xB672 : 0xB662);
            return;
        default:
            hint();
        }
    }

    void hint()
    {
        switch (below(4)) {
        case 0:
            count("NOP, YIELD and reserved hints");
            emit(oneOf(2) ? 0xBF00 + 0x10 * below(2) : 0xBF50 + 0x10 * below(11));
            return;
        case 1:
            count("SEV, WFE");
            emit(0xBF40);
            emit(0xBF20);
            return;
        default:
            count("DSB, DMB, ISB");
            emit(0xF3BF);
            emit(0x8F4F + 0x10 * below(3));
        }
    }

    // Its handler adds the number to r0.
    void callSupervisor()
    {
        if (room() < 9)
            return;
        if (m_mayMask)
            emit(0xB662);
        m_mayMask = false;
        count("SVC");
        emit(0xDF00 | below(256));
        forget(0);
    }

    std::mt19937 m_random;
    Snippet m_snippet;
    QMap<QByteArray, int> *m_used = nullptr;
    std::array<std::optional<std::uint32_t>, 15> m_known; // what registers hold for certain
    std::vector<std::pair<std::size_t, int>> m_literalUses;
    bool m_keepsLink = false; // the link register is in use
    bool m_mayMask = false;
};

// The program that runs them one after the other and writes a record of each.
inline QByteArray program(const std::vector<Snippet> &snippets)
{
    const auto hexadecimal = [](std::uint32_t value) -> QByteArray {
        return "0x" + QByteArray::number(value, 16);
    };
    QByteArray text = R"(
.syntax unified
.cpu cortex-m1
.thumb
.word 0x20004000, start + 1, fault + 1, fault + 1
.rept 7
.word 0
.endr
.word svc + 1, 0, 0, fault + 1, fault + 1
start:
    movs r0, #1             @ SYS_OPEN
    ldr r1, =terminal
    bkpt 0xAB
    ldr r1, =block
    str r0, [r1]
    ldr r0, =record
    str r0, [r1, #4]
    ldr r0, =recordBytes
    str r0, [r1, #8]
    ldr r0, =record
    movs r1, #0
    str r1, [r0]
next:
    ldr r0, =record
    ldr r1, [r0]
    lsls r1, #2
    ldr r0, =all
    ldr r7, [r0, r1]
    cmp r7, #0
    beq end
    ldr r1, =stackAndData   @ memory
    movs r2, #memoryWords / 4
    movs r0, #headerBytes
    adds r0, r7
1:  ldm r0!, {r3-r6}
    stm r1!, {r3-r6}
    subs r2, #1
    bne 1b
    movs r6, r7
    ldm r6!, {r0-r4}        @ r8 to r12
    mov r8, r0
    mov r9, r1
    mov r10, r2
    mov r11, r3
    mov r12, r4
    ldm r6!, {r0, r1, r5}   @ lr, psp, flags
    mov lr, r0
    msr psp, r1
    ldr r7, =launch         @ r0 to r7, code
    mov sp, r7
    ldm r6!, {r0-r3}
    stm r7!, {r0-r3}
    ldm r6!, {r0-r4}
    stm r7!, {r0-r4}
    msr apsr_nzcvq, r5
    pop {r0-r7, pc}
finish:
    ldr r2, =record
    str r0, [r2, #4]
    str r1, [r2, #8]
    mov r0, r8
    str r0, [r2, #12]
    mov r0, r9
    str r0, [r2, #16]
    mov r0, r10
    str r0, [r2, #20]
    mov r0, r11
    str r0, [r2, #24]
    mov r0, r12
    str r0, [r2, #28]
    mrs r0, primask
    str r0, [r2, #32]
    mrs r0, psp
    str r0, [r2, #36]
    mrs r0, control
    str r0, [r2, #40]
    cpsie i
    ldr r0, =0x20004000
    mov sp, r0
    movs r0, #5             @ SYS_WRITE
    ldr r1, =block
    bkpt 0xAB
    ldr r2, =record
    ldr r0, [r2]
    adds r0, #1
    str r0, [r2]
    b next
svc:
    ldr r1, [sp, #24]
    subs r1, #2
    ldrb r1, [r1]
    ldr r2, [sp]
    adds r2, r1
    str r2, [sp]
    movs r3, #0
    mov r12, r3
    bx lr
fault:
    ldr r1, =0x20023
    b 1f
end:
    ldr r1, =0x20026
1:  movs r0, #0x18          @ SYS_EXIT
    bkpt 0xAB
.pool
.align 2
terminal: .word 1f, 4, 3
1:  .asciz ":tt"
.equ block, 0x20000400
)";
    text += ".equ record, " + hexadecimal(Layout::record) + "\n.equ recordBytes, " +
            QByteArray::number(Layout::end) + "\n.equ stackAndData, record + " +
            QByteArray::number(Layout::stack) + "\n.equ launch, record + " +
            QByteArray::number(Layout::launch) + "\n.equ memoryWords, " +
            QByteArray::number((Layout::end - Layout::stack) / 4) + "\n.equ headerBytes, 68\n";
    QByteArray table;
    for (std::size_t i = 0; i < snippets.size(); ++i) {
        const Snippet &snippet = snippets[i];
        const QByteArray name = QByteArray::number(static_cast<qulonglong>(i));
        const auto &r = snippet.registers;
        text += ".align 2\nh" + name + ": .word ";
        for (std::size_t number = 8; number <= 12; ++number)
            text += hexadecimal(r[number]) + ", ";
        text += hexadecimal(r[14]) + ", " + hexadecimal(snippet.processStack) + ", " +
                hexadecimal(snippet.flags);
        for (std::size_t number = 0; number <= 7; ++number)
            text += ", " + hexadecimal(r[number]);
        text += ", c" + name + " + 1\n";
        for (const std::uint32_t word : snippet.memory)
            text += ".word " + hexadecimal(word) + '\n';
        text += "c" + name + ":\n";
        for (const std::uint16_t half : snippet.code)
            text += ".hword " + hexadecimal(half) + '\n';
        for (QByteArray literal : snippet.literals)
            text += ".word " + (literal.isEmpty() ? "0" : literal.replace("@", "c" + name)) + '\n';
        table += ".word h" + name + '\n';
    }
    return text + ".align 2\nall:\n" + table + ".word 0\n";
}

} // namespace Snippets
