#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>
#include <QVector>
#include <QtEndian>

#include <cstdint>
#include <random>

// Programs in which exceptions happen, and what the architecture says that they log.
//
// A case begins in thread mode with interrupts 0 to 3 enabled at priority 0 and r7 at the log;
// handlers return by themselves unless they branch away. `%` in a label is the case's number.
// Handlers start with r0 undefined; they share r4 to r7 with what they interrupt.
namespace ExceptionCases
{

struct Handler {
    const char *name; // nmi, fault, svc, pendsv, systick, irq0 to irq3
    QByteArray text;
};

struct Case {
    const char *name;
    QByteArray main;
    QVector<Handler> handlers;
    QByteArray log;
    // Why the emulator departs from the architecture, if it does, and what it logs instead.
    QByteArray emulatorsLog = {};
    const char *departure = nullptr;
};

// The two halves of a handler that is interrupted, or might be.
inline Handler around(const char *name, int first, const QByteArray &between)
{
    return {name, "push {r4, lr}\nlog " + QByteArray::number(first) + "\n" + between + "\nlog " +
                      QByteArray::number(first + 1) + "\npop {r4, pc}\n"};
}

inline Handler logs(const char *name, int value)
{
    return {name, "log " + QByteArray::number(value) + "\n"};
}

// Logs where the fault was, as bytes behind `here`, and goes on behind the instruction.
inline Handler faultAt(const QByteArray &bytes = "2")
{
    return {"fault", "log 3\nldr r1, [sp, #24]\nldr r2, =here%\nsubs r2, r1, r2\nlogr r2\n"
                     "adds r1, #" +
                         bytes + "\nstr r1, [sp, #24]\n"};
}

// The instruction at `here` faults; r4 must not change.
inline Case faulting(const char *name, const QByteArray &instruction, const QByteArray &bytes = "2",
                     const char *departure = nullptr)
{
    return {name,
            "ldr r5, =0x60000000\nldr r6, =0x20000701\nmovs r4, #77\nmovs r3, #0\nhere%: " +
                instruction + "\nlogr r4\n",
            {faultAt(bytes)},
            "3 0 77",
            "77",
            departure};
}

// Jumps away from a place to which the fault's handler comes back.
inline QByteArray goesTo(const QByteArray &address, const QByteArray &jump)
{
    return "ldr r1, =" + address + "\n" + jump + "\nbl done\n.pool\nhere%: log 1\n";
}

// Logs where the fault was and the state that was meant there.
inline Handler faultGoesOn()
{
    return {"fault", "ldr r1, [sp, #24]\nlogr r1\nldr r1, [sp, #28]\nlsls r2, r1, #7\n"
                     "lsrs r2, #31\nlogr r2\nldr r2, =0x01000000\norrs r1, r2\n"
                     "str r1, [sp, #28]\nldr r2, =here%\nstr r2, [sp, #24]\n"};
}

inline QVector<Case> cases()
{
    const QByteArray process =
        "ldr r1, =0x20000700\nmsr psp, r1\nmovs r1, #2\nmsr control, r1\nisb\n";
    const char *const largerProcessors =
        "ARMv6-M does not have the instruction; the emulator takes those of 16 bits that larger "
        "processors have";
    const char *const lateSupervisorCall =
        "a fault by a supervisor call is synchronous and returns to the call itself; the emulator "
        "keeps the address behind it";
    const QByteArray threeInTurn = "10 11 20 21 30 31 1";
    QVector<Case> all = {
        // Priorities
        {"all priorities nest",
         "prios 0x004080C0\npend 0\nlog 1\n",
         {around("irq0", 10, "ipsr\npend 1"),
          around("irq1", 20, "ipsr\npend 2"),
          around("irq2", 30, "ipsr\npend 3"),
          around("irq3", 40, "ipsr\nudf 0\nlog 9"),
          {"fault", "log 50\nipsr\nicsr 0x80000000\nldr r1, [sp, #24]\nadds r1, #2\n"
                    "str r1, [sp, #24]\nlog 51\n"},
          {"nmi", "log 60\nipsr\n"}},
         "10 16 20 17 30 18 40 19 50 3 60 2 51 9 41 31 21 11 1"},
        {"an equal priority waits",
         "prios 0x40404040\npend 2\nlog 1\n",
         {around("irq2", 10, "pend 0"), around("irq0", 20, "")},
         "10 11 20 21 1"},
        {"a less urgent one waits",
         "prios 0x0040C080\npend 2\nlog 1\n",
         {around("irq2", 10, "pend 1\npend 0"), around("irq0", 20, ""), around("irq1", 30, "")},
         "10 11 20 21 30 31 1"},
        {"of equals the lowest number comes first",
         "cpsid i\npend 3\npend 1\npend 2\nlog 9\ncpsie i\nisb\nlog 1\n",
         {around("irq1", 10, ""), around("irq2", 20, ""), around("irq3", 30, "")},
         "9 " + threeInTurn},
        {"the most urgent comes first",
         "prios 0x004080C0\ncpsid i\npend 1\npend 2\npend 3\nlog 9\ncpsie i\nisb\nlog 1\n",
         {around("irq3", 10, ""), around("irq2", 20, ""), around("irq1", 30, "")},
         "9 " + threeInTurn},
        {"the system's exceptions have priorities, too",
         "shpr3 0x40C00000\nprios 0x80\ncpsid i\npend 0\nicsr 0x14000000\ncpsie i\nisb\nlog 1\n",
         {around("systick", 10, ""), around("irq0", 20, ""), around("pendsv", 30, "")},
         threeInTurn},
        {"of equals the system's exceptions come first",
         "cpsid i\npend 0\nicsr 0x14000000\ncpsie i\nisb\nlog 1\n",
         {around("pendsv", 10, ""), around("systick", 20, ""), around("irq0", 30, "")},
         threeInTurn},
        {"a pending one becomes more urgent",
         "prios 0xC080\npend 0\nlog 1\n",
         {around("irq0", 10, "pend 1\nlog 12\nprios 0x4080\ndsb\nisb"), around("irq1", 20, "")},
         "10 12 20 21 11 1"},
        {"priorities read back with two bits",
         "prios 0xFFFFFFFF\nat 0xE000E400\nshpr2 0xFFFFFFFF\nat 0xE000ED1C\nshpr3 0xFFFF0000\n"
         "at 0xE000ED20\n",
         {},
         "0xC0C0C0C0 0xC0000000 0xC0C00000"},
        // Pending and enabled
        {"a disabled interrupt stays pending until it is enabled",
         "disable 1\npend 1\nat 0xE000E200\nat 0xE000E100\nlog 1\nenable 1\nlog 2\n",
         {logs("irq1", 10)},
         "2 13 1 10 2"},
        {"a pending interrupt is taken back",
         "cpsid i\npend 1\npend 2\nunpend 1\nat 0xE000E280\ncpsie i\nisb\nlog 1\n",
         {logs("irq1", 10), logs("irq2", 20)},
         "4 20 1"},
        {"a handler that requests itself runs again",
         "movs r5, #0\npend 0\nlog 1\n",
         {{"irq0", "log 10\nadds r5, #1\ncmp r5, #3\nbeq 1f\npend 0\n1: log 11\n"}},
         "10 11 10 11 10 11 1"},
        {"an active interrupt is not pending",
         "pend 0\nlog 1\n",
         {{"irq0", "at 0xE000E200\nstateof\n"}},
         "0 16 1"},
        {"the state tells what is pending",
         "cpsid i\nprios 0x80C0\npend 0\npend 1\nicsr 0x04000000\nstateof\n"
         "icsr 0x02000000\nstateof\nunpend 1\nstateof\nunpend 0\nstateof\n",
         {},
         "0x0440F000 0x00411000 0x00410000 0"},
        {"PendSV and the timer are taken back",
         "cpsid i\nicsr 0x14000000\nicsr 0x08000000\nstateof\nicsr 0x02000000\n"
         "stateof\ncpsie i\nisb\nlog 1\n",
         {logs("pendsv", 10), logs("systick", 20)},
         "0x0400F000 0 1"},
        // PRIMASK
        {"PRIMASK holds interrupts back, but neither faults nor the non-maskable one",
         "cpsid i\npend 0\nicsr 0x90000000\nlog 1\nhere%: udf 0\nlog 2\ncpsie i\nisb\nlog 4\n",
         {logs("irq0", 10), logs("nmi", 20), logs("pendsv", 30), faultAt()},
         "20 1 3 0 2 30 10 4"},
        {"PRIMASK stays set across a handler that sets it",
         "pend 0\nmrs r1, primask\nlogr r1\nlog 1\npend 1\nlog 2\ncpsie i\nisb\nlog 4\n",
         {{"irq0", "log 10\ncpsid i\n"}, logs("irq1", 20)},
         "10 1 1 2 20 4"},
        {"PRIMASK in a handler holds back what is more urgent",
         "prios 0x00C0\npend 0\nlog 1\n",
         {around("irq0", 10, "cpsid i\npend 1\nlog 12\ncpsie i\nisb"), logs("irq1", 20)},
         "10 12 20 11 1"},
        {"WFI wakes though PRIMASK is set",
         "cpsid i\npend 0\nwfi\nlog 1\ncpsie i\nisb\nlog 2\n",
         {logs("irq0", 10)},
         "1 10 2"},
        {"WFI sleeps until the timer",
         "timer 20000\nwfi\nlog 1\n",
         {{"systick", "log 10\nstoptimer\n"}},
         "10 1"},
        {"the timer goes on",
         "movs r5, #0\ntimer 20000\n1: cmp r5, #3\nbne 1b\nlog 1\n",
         {{"systick", "log 10\nadds r5, #1\ncmp r5, #3\nbne 1f\nstoptimer\n1:\n"}},
         "10 10 10 1"},
        {"the timer tells once that it came to zero",
         "cpsid i\ntimer 2000\nnop\nmovs r2, #0\nstr r2, [r1, #4]\n"
         "1: ldr r2, [r1]\nlsrs r2, #17\nbcc 1b\n"
         "ldr r2, [r1]\nlogr r2\nstateof\nicsr 0x02000000\n",
         {},
         "7 0x0400F000"},
        // Chains, stacks and what is kept
        {"the next handler finds the frame and the registers that the first one left",
         "shpr3 0x00C00000\npend 0\nlogr r1\n",
         {{"irq0", "log 10\nicsr 0x10000000\nmov r5, sp\nmovs r1, #41\nmovs r2, #42\n"
                   "movs r3, #43\nmov r12, r3\n"},
          {"pendsv", "logr r1\nlogr r2\nlogr r3\nmov r3, r12\nlogr r3\nmov r1, lr\nlogr r1\n"
                     "mov r1, sp\nsubs r1, r5\nlogr r1\n"}},
         "10 41 42 43 43 0xFFFFFFF9 0 0xE000E200"},
        {"a chain of three, the most urgent first",
         "prios 0x004080C0\nmovs r5, #0\ncpsid i\npend 0\npend 1\npend 2\ncpsie i\nisb\nlog 1\n",
         {{"irq2", "log 10\nmov r5, sp\n"},
          {"irq1", "log 20\nmov r1, sp\nsubs r1, r5\nlogr r1\n"},
          {"irq0", "log 30\nmov r1, sp\nsubs r1, r5\nlogr r1\n"}},
         "10 20 0 30 0 1"},
        {"the link register tells what is left",
         "prios 0x00C0\npend 0\nlog 1\n",
         {{"irq0", "push {r4, lr}\nmov r1, lr\nlogr r1\npend 1\npop {r4, pc}\n"},
          {"irq1", "mov r1, lr\nlogr r1\n"}},
         "0xFFFFFFF9 0xFFFFFFF1 1"},
        {"the process stack has the frame",
         process + "svc 0\nmrs r1, control\nlogr r1\nmov r1, sp\nlogr r1\n",
         {{"svc", "mov r1, lr\nlogr r1\nmrs r1, psp\nlogr r1\nmrs r1, control\nlogr r1\n"
                  "mrs r1, msp\nmov r2, sp\nsubs r1, r2\nlogr r1\n"}},
         "0xFFFFFFFD 0x200006E0 0 0 2 0x20000700"},
        {"a frame is aligned to eight bytes",
         "mov r4, sp\nsub sp, #4\nmovs r1, #0\nmsr apsr_nzcvq, r1\nsvc 0\nadd sp, #4\n"
         "mov r1, sp\nsubs r1, r4\nlogr r1\n",
         {{"svc", "ldr r1, [sp, #28]\nlogr r1\nmov r1, sp\nsubs r1, r4, r1\nlogr r1\n"}},
         "0x01000200 40 0"},
        {"the frame has what ran",
         "prios 0x00C0\nshpr2 0\npend 0\nlog 1\n",
         {{"irq0", "push {r4, lr}\nldr r1, =0xF0000000\nmsr apsr_nzcvq, r1\nsvc 7\n"
                   "mrs r1, xpsr\nlogr r1\npop {r4, pc}\n"},
          {"svc", "ldr r1, [sp, #28]\nlogr r1\nldr r1, [sp, #24]\nsubs r1, #2\nldrb r1, [r1]\n"
                  "logr r1\nmovs r1, #0\nmsr apsr_nzcvq, r1\n"}},
         "0xF1000010 7 0xF0000010 1"},
        {"all of a frame comes back",
         "movs r1, #1\nmovs r2, #2\nmovs r3, #3\nmovs r0, #12\nmov r12, r0\nmovs r0, #14\n"
         "mov lr, r0\nmovs r0, #100\nsvc 0\nlogr r0\nlogr r1\nlogr r2\nlogr r3\nmov r0, r12\n"
         "logr r0\nmov r0, lr\nlogr r0\n",
         {{"svc", "movs r1, #0\nmovs r2, #0\nmovs r3, #0\nmov r12, r3\n"}},
         "100 1 2 3 12 14"},
        {"a handler goes on elsewhere, on another stack",
         "log 1\nsvc 0\nbl done\nthere%: logr r1\nmov r1, lr\nlogr r1\nmov r1, sp\nlogr r1\n"
         "mrs r1, control\nlogr r1\n",
         {{"svc", "ldr r1, =0x20000600\nmovs r2, #51\nstr r2, [r1, #4]\nmovs r2, #52\n"
                  "str r2, [r1, #20]\nldr r2, =there%\nstr r2, [r1, #24]\nldr r2, =0x01000000\n"
                  "str r2, [r1, #28]\nmsr psp, r1\nldr r1, =0xFFFFFFFD\nmov lr, r1\n"}},
         "1 51 52 0x20000620 2"},
        {"a handler cannot choose its stack",
         "svc 0\nmrs r1, control\nlogr r1\n",
         {{"svc", "movs r1, #2\nmsr control, r1\nisb\nmrs r1, control\nlogr r1\n"}},
         "0 0"},
        {"a handler cannot write which exception runs",
         "svc 0\nipsr\n",
         {{"svc", "movs r1, #5\nmsr ipsr, r1\nmsr xpsr_nzcvq, r1\nipsr\nmrs r1, epsr\nlogr r1\n"}},
         "11 0 0"},
        {"there are four flags",
         "ldr r1, =0xFFFFFFFF\nmsr apsr_nzcvq, r1\nmrs r1, apsr\nlogr r1\n",
         {},
         "0xF0000000",
         "0xF8000000",
         "ARMv6-M has no Q flag; the emulator keeps one"},
        // Faults
        {"a supervisor call that PRIMASK holds back is a fault",
         "cpsid i\nhere%: svc 5\nnop\nnop\nlog 1\n",
         {faultAt(), logs("svc", 9)},
         "3 0 1",
         "3 2 1",
         lateSupervisorCall},
        {"a supervisor call in a handler of its own priority is a fault",
         "svc 1\nlog 1\n",
         {{"svc", "push {r4, lr}\nlog 9\nhere%: svc 5\nnop\nnop\nlog 10\npop {r4, pc}\n"},
          faultAt()},
         "9 3 0 10 1",
         "9 3 2 10 1",
         lateSupervisorCall},
        {"a fault in a handler returns to it",
         "pend 0\nlog 1\n",
         {around("irq0", 10, "here%: udf 0"), faultAt()},
         "10 3 0 11 1"},
        {"a fault comes before what is pending",
         "shpr3 0\ncpsid i\npend 0\nhere%: udf 0\nlog 1\ncpsie i\nisb\nlog 2\n",
         {faultAt(), logs("irq0", 10)},
         "3 0 1 10 2"},
        {"the fault's handler is not interrupted, but by the non-maskable one",
         "here%: udf 0\nlog 1\n",
         {{"fault", "log 3\npend 0\nicsr 0x90000000\nlog 4\nldr r1, [sp, #24]\nadds r1, #2\n"
                    "str r1, [sp, #24]\n"},
          logs("nmi", 20),
          logs("pendsv", 30),
          logs("irq0", 40)},
         "3 20 4 30 40 1"},
        {"the non-maskable one waits for its own end",
         "movs r5, #0\nicsr 0x80000000\nlog 1\n",
         {{"nmi", "log 20\nadds r5, #1\ncmp r5, #2\nbeq 1f\nicsr 0x80000000\n1: log 21\n"}},
         "20 21 20 21 1"},
        {"a jump to an even address", goesTo("0x100", "bx r1"), {faultGoesOn()}, "0x00000100 0 1"},
        {"a call of an even address", goesTo("0x100", "blx r1"), {faultGoesOn()}, "0x00000100 0 1"},
        {"a return to an even address",
         goesTo("0x100", "push {r1}\npop {pc}"),
         {faultGoesOn()},
         "0x00000100 0 1"},
        {"a stack that cannot be written",
         process + "ldr r1, =0x60000100\nmsr psp, r1\nsvc 0\nlog 1\n",
         {{"fault", "log 3\nmov r1, lr\nlogr r1\nbl done\n"}, {"svc", "log 9\nbl done\n"}},
         "3 0xFFFFFFFD"},
        {"a stack that cannot be read",
         process + "svc 0\nlog 1\n",
         {{"fault", "log 3\nmov r1, lr\nlogr r1\nipsr\nldr r1, =0x200006E0\nmsr psp, r1\n"},
          {"svc", "log 9\nldr r1, =0x60000100\nmsr psp, r1\n"}},
         "9 3 0xFFFFFFFD 3 1"},
    };
    all += {
        faulting("an undefined instruction", "udf 0"),
        faulting("a long undefined instruction", ".hword 0xF7F0, 0xA000", "4"),
        faulting("a long instruction of larger processors", ".hword 0xF240, 0x0401 @ MOVW", "4"),
        faulting("a long load of larger processors", ".hword 0xF8D6, 0x4000 @ LDR.W", "4"),
        faulting("a short instruction of larger processors", ".hword 0xB104 @ CBZ", "2",
                 largerProcessors),
        faulting("a condition of larger processors", ".hword 0xBF08 @ IT", "2", largerProcessors),
        faulting("a mask of larger processors", ".hword 0xB661 @ CPSIE f", "2", largerProcessors),
        faulting("an endianness of larger processors", ".hword 0xB658 @ SETEND", "2",
                 largerProcessors),
        faulting("a word's load that is not aligned", "ldr r4, [r6]"),
        faulting("a word's load by an index that is not aligned", "ldr r4, [r6, r3]"),
        faulting("a halfword's load that is not aligned", "ldrh r4, [r6, #2]"),
        faulting("a halfword's load by an index that is not aligned", "ldrh r4, [r6, r3]"),
        faulting("a signed halfword's load that is not aligned", "ldrsh r4, [r6, r3]"),
        faulting("a word's store that is not aligned", "str r4, [r6, #4]"),
        faulting("a word's store by an index that is not aligned", "str r4, [r6, r3]"),
        faulting("a halfword's store that is not aligned", "strh r4, [r6]"),
        faulting("a halfword's store by an index that is not aligned", "strh r4, [r6, r3]"),
        faulting("several loads that are not aligned", "ldm r6!, {r4, r5}"),
        faulting("several stores that are not aligned", "stm r6!, {r4, r5}"),
        faulting("a word's load from nowhere", "ldr r4, [r5]"),
        faulting("a halfword's load from nowhere", "ldrh r4, [r5, #2]"),
        faulting("a byte's load from nowhere", "ldrb r4, [r5, #1]"),
        faulting("a signed byte's load from nowhere", "ldrsb r4, [r5, r3]"),
        faulting("a word's store to nowhere", "str r4, [r5, #4]"),
        faulting("a halfword's store to nowhere", "strh r4, [r5]"),
        faulting("a byte's store to nowhere", "strb r4, [r5, #3]"),
        faulting("several loads from nowhere", "ldm r5!, {r2, r4}"),
        faulting("several stores to nowhere", "stm r5!, {r2, r4}"),
    };
    return all;
}

inline QByteArray oneOf(std::uint32_t choice, const char *ifNone, const char *otherwise)
{
    return choice == 0 ? ifNone : otherwise;
}

// Handlers that request, enable, mask and call at random, a dozen of times in all. What they log is
// for the comparison only.
inline Case randomCase(std::uint32_t seed)
{
    std::mt19937 random(seed);
    const auto below = [&](std::uint32_t count) -> std::uint32_t { return random() % count; };
    const auto number = [&](std::uint32_t count) -> QByteArray {
        return QByteArray::number(below(count));
    };
    // `mayFault`: what could lock up.
    const auto operations = [&](std::uint32_t most, bool mayFault) -> QByteArray {
        static const QByteArrayList requests = {"0x10000000", "0x08000000", "0x04000000",
                                                "0x02000000", "0x14000000", "0x80000000"};
        QByteArray text;
        for (std::uint32_t left = 1 + below(most); left > 0; --left) {
            switch (below(mayFault ? 12 : 9)) {
            case 0:
            case 1:
            case 2:
                text += "pend " + number(4) + '\n';
                break;
            case 3:
                text += "icsr " + requests[static_cast<int>(below(6))] + '\n';
                break;
            case 4:
                text += "unpend " + number(4) + '\n';
                break;
            case 5:
                text += "disable " + number(4) + '\n';
                break;
            case 6:
                text += "enable " + number(4) + '\n';
                break;
            case 7:
                text += "stateof\nat 0xE000E200\n";
                break;
            case 8:
                text += "mrs r1, primask\nlogr r1\n";
                break;
            case 9:
                text += oneOf(below(2), "cpsid i\n", "cpsie i\nisb\n");
                break;
            default:
                // A call that is a fault returns to itself, or in the emulator behind itself.
                text += oneOf(below(3), "udf 0\n", "svc 0\nnop\nnop\n");
            }
        }
        return text;
    };
    const auto priorities = [&]() -> QByteArray {
        return "0x" + QByteArray::number(static_cast<quint32>(random()), 16);
    };
    Case result{"random", {}, {}, {}};
    result.main = "movs r5, #12\nmovs r2, #9\nsub sp, #" + number(2) + " * 4\nprios " +
                  priorities() + "\nshpr2 " + priorities() + "\nshpr3 " + priorities() + '\n' +
                  operations(6, true) + "prios " + priorities() + '\n' + operations(6, true) +
                  "cpsie i\nisb\nmov r1, sp\nlogr r1\n";
    int id = 10;
    for (const char *name :
         {"nmi", "fault", "svc", "pendsv", "systick", "irq0", "irq1", "irq2", "irq3"}) {
        const bool isFault = name == QByteArray("fault");
        const bool isUrgent = isFault || name == QByteArray("nmi");
        // The frame tells what was interrupted and whether it was moved; r2, what a chain has left.
        const std::uint32_t kept = 2 + below(2);
        const QByteArray saved = oneOf(kept - 2, "{r4, ", "{r4, r6, ");
        const QByteArray address = "[sp, #" + QByteArray::number(4 * kept + 24) + "]\n";
        QByteArray text = "push " + saved + "lr}\nlog " + QByteArray::number(id) +
                          "\nlogr r2\nldr r1, [sp, #" + QByteArray::number(4 * kept + 28) +
                          "]\nlsls r1, #22\nlsrs r1, #22\nlogr r1\n";
        if (isFault)
            text += "ldr r1, " + address + "adds r1, #2\nstr r1, " + address;
        text += "subs r5, #1\nbpl 8f\nb 9f\n8:\n" + operations(4, !isUrgent) + "9: log " +
                QByteArray::number(id + 1) + "\nmovs r2, #" + QByteArray::number(id + 2) +
                "\npop " + saved + "pc}\n";
        result.handlers.append({name, text});
        id += 10;
    }
    return result;
}

// What the emulator does not do: without a memory protection unit it runs instructions from
// everywhere. The architecture lets nothing run from devices and the system's addresses.
inline QVector<Case> casesOfTheArchitectureAlone()
{
    return {
        {"a jump to a device", goesTo("0x40000101", "bx r1"), {faultGoesOn()}, "0x40000100 1 1"},
        {"a jump to the processor's registers",
         goesTo("0xE000E001", "bx r1"),
         {faultGoesOn()},
         "0xE000E000 1 1"},
        {"a handler's return outside of handlers",
         goesTo("0xFFFFFFF9", "bx r1"),
         {faultGoesOn()},
         "0xFFFFFFF8 1 1"},
        {"a call is no handler's return",
         "svc 0\nlog 1\n",
         {{"svc", "push {r4, lr}\n" + goesTo("0xFFFFFFF9", "blx r1") + "\npop {r4, pc}\n"},
          faultGoesOn()},
         "0xFFFFFFF8 1 1 1"},
        {"a move to the program counter is no handler's return",
         "svc 0\nlog 1\n",
         {{"svc", "push {r4, lr}\n" + goesTo("0xFFFFFFF9", "mov pc, r1") + "\npop {r4, pc}\n"},
          faultGoesOn()},
         "0xFFFFFFF8 1 1 1"},
    };
}

// Each ends in lock-up.
inline QVector<Case> lockUps()
{
    return {
        {"an undefined instruction in the fault's handler", "udf 0\n", {{"fault", "udf 0\n"}}, {}},
        {"a bus error in the fault's handler",
         "udf 0\n",
         {{"fault", "ldr r1, =0x60000000\nldr r1, [r1]\n"}},
         {}},
        {"an access that is not aligned in the fault's handler",
         "udf 0\n",
         {{"fault", "ldr r1, =0x20000701\nldr r1, [r1]\n"}},
         {}},
        {"a supervisor call in the fault's handler", "udf 0\n", {{"fault", "svc 0\n"}}, {}},
        {"an undefined instruction in the non-maskable handler",
         "icsr 0x80000000\n",
         {{"nmi", "udf 0\n"}},
         {}},
        {"a jump to an even address in the fault's handler",
         "udf 0\n",
         {{"fault", "ldr r1, =0x100\nbx r1\n"}},
         {}},
    };
}

// Runs the case with the number that the word `first` has, and those behind it, each from a reset,
// and writes number, count of words and words of each.
inline QByteArray program(const QVector<Case> &all)
{
    static const QByteArrayList names = {"nmi",  "fault", "svc",  "pendsv", "systick",
                                         "irq0", "irq1",  "irq2", "irq3"};
    QByteArray text = R"(
.syntax unified
.cpu cortex-m1
.thumb
.macro logr register
    stm r7!, {\register}
.endm
.macro log value
    movs r0, #\value
    logr r0
.endm
.macro ipsr
    mrs r0, ipsr
    logr r0
.endm
.macro at address
    ldr r1, =\address
    ldr r1, [r1]
    logr r1
.endm
@ Without the bit that only larger processors have, the emulator's too.
.macro stateof
    ldr r1, =0xE000ED04
    ldr r1, [r1]
    ldr r0, =0x800
    bics r1, r0
    logr r1
.endm
.macro put address, value
    ldr r0, =\value
    ldr r1, =\address
    str r0, [r1]
    dsb
    isb
.endm
.macro enable number
    put 0xE000E100, (1 << \number)
.endm
.macro disable number
    put 0xE000E180, (1 << \number)
.endm
.macro pend number
    put 0xE000E200, (1 << \number)
.endm
.macro unpend number
    put 0xE000E280, (1 << \number)
.endm
.macro prios value
    put 0xE000E400, \value
.endm
.macro shpr2 value
    put 0xE000ED1C, \value
.endm
.macro shpr3 value
    put 0xE000ED20, \value
.endm
.macro icsr value
    put 0xE000ED04, \value
.endm
.macro timer cycles
    ldr r1, =0xE000E010
    ldr r0, =\cycles
    str r0, [r1, #4]
    str r0, [r1, #8]
    movs r0, #7
    str r0, [r1]
.endm
.macro stoptimer
    put 0xE000E010, 4
    icsr 0x02000000
.endm
.equ state, 0x20000100          @ magic, number of the case
.equ block, 0x20000110
.equ vectors, 0x20000200
.equ record, 0x20001000
.word 0x20000800, start + 1
)";
    for (int number = 2; number < 20; ++number) {
        static const QByteArrayList vectors = {
            "", "",    "nmi", "fault", "",       "",        "",     "",     "",     "",
            "", "svc", "",    "",      "pendsv", "systick", "irq0", "irq1", "irq2", "irq3"};
        text += ".word " +
                (vectors[number].isEmpty() ? "0" : QByteArray("go_" + vectors[number] + " + 1")) +
                '\n';
    }
    text += R"(
first: .word 0xF1257000
start:
    ldr r4, =state
    ldr r5, =0x600DCA5E
    ldr r0, [r4]
    cmp r0, r5
    beq 1f
    str r5, [r4]
    ldr r0, =first
    ldr r0, [r0]
    lsls r0, #20
    lsrs r0, #20
    str r0, [r4, #4]
1:  ldr r0, [r4, #4]
    ldr r6, =count
    cmp r0, r6
    bhs end
    ldr r7, =record
    stm r7!, {r0}
    adds r7, #4
    movs r1, #40                @ its entry and the handlers of all
    muls r0, r1
    ldr r6, =all
    adds r6, r0
    ldm r6!, {r5}
    ldr r4, =vectors
    movs r1, #9
2:  ldm r6!, {r0}
    stm r4!, {r0}
    subs r1, #1
    bne 2b
    enable 0
    enable 1
    enable 2
    enable 3
    bx r5
.pool
done:
    ldr r4, =record             @ r7: its end
    subs r0, r7, r4
    ldr r5, =block
    str r4, [r5, #4]
    str r0, [r5, #8]
    subs r0, #8
    lsrs r0, #2
    str r0, [r4, #4]
    movs r0, #1                 @ SYS_OPEN
    ldr r1, =terminal
    bkpt 0xAB
    str r0, [r5]
    movs r0, #5                 @ SYS_WRITE
    movs r1, r5
    bkpt 0xAB
    ldr r4, =state
    ldr r0, [r4, #4]
    adds r0, #1
    str r0, [r4, #4]
    put 0xE000ED0C, 0x05FA0004
    b .
end:
    movs r0, #0x18              @ SYS_EXIT
    ldr r1, =0x20026
    bkpt 0xAB
unexpected:
    log 255
    b done
.pool
.align 2
terminal: .word 1f, 4, 3
1:  .asciz ":tt"
.align 2
)";
    for (int i = 0; i < names.size(); ++i)
        text += "go_" + names[i] + ": ldr r0, =vectors\nldr r0, [r0, #" +
                QByteArray::number(4 * i) + "]\nbx r0\n";
    text += ".pool\n";
    QByteArray table;
    for (int i = 0; i < all.size(); ++i) {
        const QByteArray number = QByteArray::number(i);
        QByteArray piece = "main%: " + all[i].main + "\nbl done\n.pool\n";
        table += ".word main" + number + " + 1";
        for (const QByteArray &name : names) {
            QByteArray entry = "unexpected";
            for (const Handler &handler : all[i].handlers) {
                if (handler.name != name)
                    continue;
                entry = name + '_' + number;
                piece += entry + ": " + handler.text + "\nbx lr\n.pool\n";
            }
            table += ", " + entry + " + 1";
        }
        table += '\n';
        text += piece.replace('%', number);
    }
    return text + ".align 2\nall:\n" + table + ".equ count, " + QByteArray::number(all.size()) +
           '\n';
}

// The same program, beginning with another case.
inline QByteArray beginningWith(QByteArray elf, int number)
{
    const QByteArray mark("\x00\x70\x25\xF1", 4);
    const int at = elf.indexOf(mark);
    elf[at] = static_cast<char>(number & 0xFF);
    elf[at + 1] = static_cast<char>(0x70 | number >> 8);
    return elf;
}

// What each case logged, by its number; small numbers are decimal.
inline QMap<int, QByteArray> logs(const QByteArray &output)
{
    QMap<int, QByteArray> result;
    const auto word = [&](int at) { return qFromLittleEndian<quint32>(output.constData() + at); };
    for (int at = 0; at + 8 <= output.size();) {
        const int number = static_cast<int>(word(at));
        const quint32 count = word(at + 4);
        at += 8;
        QByteArrayList words;
        for (quint32 i = 0; i < count && at + 4 <= output.size(); ++i, at += 4) {
            const quint32 value = word(at);
            words += value < 256
                         ? QByteArray::number(value)
                         : "0x" + QByteArray::number(value, 16).toUpper().rightJustified(8, '0');
        }
        result[number] = words.join(' ');
    }
    return result;
}

} // namespace ExceptionCases
