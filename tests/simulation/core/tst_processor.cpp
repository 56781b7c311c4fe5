#include "assembled.h"

#include <stdexcept>

using namespace CortexM1;

namespace
{

// A memory of bytes whose bits may be unknown.
struct OuterMemory {
    std::vector<std::uint8_t> contents;
    std::vector<std::uint8_t> unknown;

    void access(Transfer &transfer)
    {
        transfer.data = transfer.isWrite ? transfer.data : 0;
        for (int i = 0; i < transfer.bytes; ++i) {
            const std::size_t place = transfer.address % contents.size() + std::size_t(i);
            if (transfer.isWrite) {
                contents[place] = static_cast<std::uint8_t>(transfer.data >> 8 * i);
                unknown[place] = 0;
            } else {
                transfer.data |= std::uint32_t(contents[place] & ~unknown[place]) << 8 * i;
                transfer.unknown |= std::uint32_t(unknown[place]) << 8 * i;
            }
        }
    }
};

// Keeps the words that are written to 0x40000000; 0x40000004 sets the interrupt inputs, 0x40000008
// the non-maskable one, 0x4000000C puts MOVS R0, #2 to an address of the outer instruction memory,
// everything from 0x50000000 on answers with an error. Accesses to the outer memories are kept too.
class Board : public Surroundings
{
public:
    explicit Board(const Configuration &configuration = {},
                   const std::vector<std::uint8_t> &program = {})
        : instructions{program, {}}
    {
        instructions.contents.resize(configuration.itcmBytes);
        instructions.unknown.resize(configuration.itcmBytes);
        data.contents.resize(configuration.dtcmBytes, 0xA5);
        data.unknown.resize(configuration.dtcmBytes);
    }

    TransferEnd transfer(Transfer &transfer) override
    {
        if (transfer.port != Port::Bus) {
            const bool isData = transfer.port == Port::DataMemory;
            (isData ? data : instructions).access(transfer);
            // Neither fetches nor literals.
            if (isData || transfer.isWrite || transfer.address < Assembled::vectorsEnd)
                accesses += QByteArray(isData ? "D " : "I ") + (transfer.isWrite ? "W" : "R") +
                            QByteArray::number(transfer.bytes) + ' ' +
                            QByteArray::number(transfer.address, 16) + ", ";
            else
                fetches += QByteArray::number(transfer.address, 16) + ' ';
            return TransferEnd::Done;
        }
        if (transfer.address >= 0x50000000)
            return TransferEnd::Error;
        if (transfer.isWrite && transfer.address == 0x40000000)
            log += QByteArray::number(transfer.data) + ' ';
        else if (transfer.isWrite && transfer.address == 0x40000004)
            inputs = transfer.data;
        else if (transfer.isWrite && transfer.address == 0x40000008)
            nonMaskable = transfer.data != 0;
        else if (transfer.isWrite && transfer.address == 0x4000000C)
            instructions.contents[transfer.data] = 2;
        else
            transfer.data = 0x89ABCDEF;
        return TransferEnd::Done;
    }
    void print(const std::string &text) override { said += text; }

    QByteArray log;
    std::string said;
    std::uint32_t inputs = 0;
    bool nonMaskable = false;
    OuterMemory instructions;
    OuterMemory data;
    QByteArray accesses;
    QByteArray fetches; // addresses of words
};

struct Result {
    QByteArray log;
    std::string said;
    Ending ending;
    bool ended = false;
    bool lockedUp = false;
    bool sleeps = false;
    bool wantsReset = false;
};

Result runOn(Board &board, const Configuration &configuration,
             const std::vector<std::uint8_t> &filling, int steps)
{
    Processor processor(configuration, board);
    processor.setInstructionMemory(filling);
    for (int i = 0; i < steps && !processor.hasEnded(); ++i) {
        processor.tick(board.inputs, board.nonMaskable);
        processor.step();
    }
    return {board.log.trimmed(),      board.said,
            processor.ending(),       processor.hasEnded(),
            processor.isLockedUp(),   processor.isSleeping(),
            processor.requestsReset()};
}

// It has the same result whether the memories are the model's or the surroundings'.
Result run(const QByteArray &program, Configuration configuration = Assembled::smallCore(),
           int steps = 2000)
{
    const std::vector<std::uint8_t> contents =
        Assembled::contents(program, configuration.itcmBytes);
    Board board;
    const Result result = runOn(board, configuration, contents, steps);
    configuration.hasOuterMemories = true;
    Board outer(configuration, contents);
    const Result other = runOn(outer, configuration, {}, steps);
    if (result.log != other.log || result.said != other.said || result.ended != other.ended ||
        result.ending.passed != other.ending.passed ||
        result.ending.reason != other.ending.reason || result.lockedUp != other.lockedUp ||
        result.sleeps != other.sleeps || result.wantsReset != other.wantsReset)
        QTest::qFail(QByteArray("another result with outer memories: " + other.log + '"' +
                                QByteArray::fromStdString(other.ending.reason) + '"')
                         .constData(),
                     __FILE__, __LINE__);
    if (!board.accesses.isEmpty())
        QTest::qFail("memories of the model are accessed outside", __FILE__, __LINE__);
    return result;
}

Configuration outerCore()
{
    Configuration configuration = Assembled::smallCore();
    configuration.hasOuterMemories = true;
    return configuration;
}

// The accesses to these words, with what stands before each address.
QByteArray words(const QByteArray &kind, int first, int count)
{
    QByteArray result;
    for (int i = 0; i < count; ++i)
        result += kind + " " + QByteArray::number(first + 4 * i, 16) + ", ";
    return result;
}

// Enables the four interrupts with these priorities.
QByteArray enabled(const QByteArray &priorities)
{
    return "ldr r6, =0xE000E100\nmovs r0, #15\nstr r0, [r6]\n"
           "ldr r6, =0xE000E400\nldr r0, =" +
           priorities + "\nstr r0, [r6]\n";
}

const QByteArray end = "bkpt 0\n";

} // namespace

class TestProcessor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesExceptionsInOrder_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QByteArray>("log");
        const auto row = [](const char *name, const QByteArray &program, const QByteArray &log) {
            QTest::newRow(name) << program << log;
        };
        const auto handler = [](const char *name, int first, const QByteArray &between,
                                int last) -> QByteArray {
            return QByteArray(name) + ": push {r4, lr}\nlog " + QByteArray::number(first) + "\n" +
                   between + "\nlog " + QByteArray::number(last) + "\npop {r4, pc}\n";
        };
        const QByteArray lower = "movs r1, #0\nstr r1, [r7, #4]\n";
        const QByteArray raise1 = "movs r1, #1\nstr r1, [r7, #4]\n";
        const QByteArray raise2 = "movs r1, #2\nstr r1, [r7, #4]\n";
        row("a more urgent interrupt interrupts a handler",
            enabled("0x000000C0") + raise1 + "log 1\n" + end + handler("irq0", 10, raise2, 11) +
                handler("irq1", 20, lower, 21),
            QByteArray("10 20 21 11 1"));
        row("an equal one waits for its end",
            enabled("0x0000C0C0") + raise1 + "log 1\n" + end + handler("irq0", 10, raise2, 11) +
                handler("irq1", 20, lower, 21),
            QByteArray("10 11 20 21 1"));
        row("of equals the lowest number comes first",
            enabled("0x80808080") + "movs r1, #14\nstr r1, [r7, #4]\nlog 1\n" + end +
                handler("irq1", 10, "movs r1, #12\nstr r1, [r7, #4]\n", 11) +
                handler("irq2", 20, "movs r1, #8\nstr r1, [r7, #4]\n", 21) +
                handler("irq3", 30, lower, 31),
            QByteArray("10 11 20 21 30 31 1"));
        row("a level that stays requests again",
            enabled("0") + raise1 + "log 1\n" + end +
                "irq0: log 5\nadds r5, #1\ncmp r5, #2\nbeq 1f\nbx lr\n1: " + lower + "bx lr\n",
            QByteArray("5 5 1"));
        row("a pulse while the handler runs is kept",
            enabled("0") + raise1 + "nop\nlog 1\n" + end + "irq0: log 5\n" + lower +
                "adds r5, #1\ncmp r5, #2\nbeq 1f\n" + raise1 + lower + "1: bx lr\n",
            QByteArray("5 5 1"));
        row("PRIMASK holds interrupts back",
            enabled("0") + "cpsid i\n" + raise1 + "log 1\ncpsie i\nlog 2\n" + end +
                handler("irq0", 10, lower, 11),
            QByteArray("1 10 11 2"));
        row("a disabled interrupt stays pending",
            QByteArray("ldr r6, =0xE000E200\n") + raise1 + lower +
                "ldr r0, [r6]\nstr r0, [r7]\nldr r6, =0xE000E280\nmovs r0, #1\nstr r0, [r6]\n"
                "ldr r0, [r6]\nstr r0, [r7]\n" +
                end,
            QByteArray("1 0"));
        row("PRIMASK does not hold back the non-maskable one",
            "cpsid i\nmovs r1, #1\nstr r1, [r7, #8]\nnop\nlog 1\n" + end +
                "nmi: log 7\nmovs r1, #0\nstr r1, [r7, #8]\nmrs r0, ipsr\nstr r0, [r7]\nbx lr\n",
            QByteArray("7 2 1"));
        row("a supervisor call returns behind itself",
            "log 1\nsvc 5\nlog 2\n" + end +
                "svc: ldr r0, [sp, #24]\nsubs r0, #2\nldrb r0, [r0]\nstr r0, [r7]\nbx lr\n",
            QByteArray("1 5 2"));
        row("a supervisor call that cannot be taken is a fault",
            "cpsid i\nsvc 5\n" + end + "fault: log 3\nbkpt 0\nsvc: log 9\n", QByteArray("3"));
        row("PendSV runs when the others are done",
            "ldr r6, =0xE000ED20\nldr r0, =0x00C00000\nstr r0, [r6]\nsvc 0\nlog 2\n" + end +
                "svc: ldr r6, =0xE000ED04\nmovs r0, #1\nlsls r0, #28\nstr r0, [r6]\nlog 8\nbx "
                "lr\n"
                "pendsv: log 9\nbx lr\n",
            QByteArray("8 9 2"));
        row("the system timer counts clock cycles",
            "ldr r6, =0xE000E010\nmovs r0, #19\nstr r0, [r6, #4]\nstr r0, [r6, #8]\nmovs r0, "
            "#7\n"
            "str r0, [r6]\n1: cmp r5, #3\nbne 1b\nlog 1\n" +
                end + "systick: adds r5, #1\nlog 4\nbx lr\n",
            QByteArray("4 4 4 1"));
        row("the frame is aligned and the stack as before",
            "mov r4, sp\nsub sp, #4\nsvc 0\nadd sp, #4\nmov r0, sp\nsubs r0, r4\nstr r0, "
            "[r7]\n" +
                end + "svc: mov r0, sp\nlsls r0, #29\nstr r0, [r7]\nbx lr\n",
            QByteArray("0 0"));
        row("flags and registers are as before",
            "movs r0, #1\nmovs r1, #2\nmovs r2, #3\nmovs r3, #4\nmov r12, r3\ncmp r0, r0\nsvc "
            "0\n"
            "bne 1f\nadds r0, r1\nadds r0, r2\nadds r0, r3\nadd r0, r12\nstr r0, [r7]\n1: " +
                end +
                "svc: movs r0, #0\nmovs r1, #0\nmovs r2, #0\nmovs r3, #1\nmov r12, r3\nbx lr\n",
            QByteArray("14"));
        row("the process stack keeps the frame",
            "ldr r0, =0x20000200\nmsr psp, r0\nmovs r0, #2\nmsr control, r0\nsvc 0\nmov r0, sp\n"
            "uxtb r0, r0\nstr r0, [r7]\n" +
                end +
                "svc: mrs r0, psp\nuxtb r0, r0\nstr r0, [r7]\nmov r0, lr\nuxtb r0, r0\nstr r0, "
                "[r7]\n"
                "mov r0, sp\nlsrs r0, #8\nuxtb r0, r0\nstr r0, [r7]\nbx lr\n",
            QByteArray("224 253 4 0"));
        row("WFI sleeps until an interrupt, PRIMASK or not",
            "ldr r6, =0xE000E010\nmovs r0, #50\nstr r0, [r6, #4]\nstr r0, [r6, #8]\nmovs r0, "
            "#7\n"
            "str r0, [r6]\ncpsid i\nwfi\nlog 1\ncpsie i\nlog 2\n" +
                end + "systick: log 4\nmovs r0, #0\nstr r0, [r6]\nbx lr\n",
            QByteArray("1 4 2"));
        row("an event ends WFE at once", "sev\nwfe\nlog 1\n" + end, QByteArray("1"));
    }

    void takesExceptionsInOrder()
    {
        QFETCH(QByteArray, program);
        QFETCH(QByteArray, log);
        const Result result = run(program);
        QCOMPARE(result.log, log);
        QVERIFY2(result.ended && result.ending.passed, result.ending.reason.c_str());
    }

    // Each ends in the fault's handler, which logs how far behind `here` the kept address is and
    // the register r4, which the instruction must not have changed.
    void faultsTellTheInstruction_data()
    {
        QTest::addColumn<QByteArray>("instruction");
        QTest::newRow("a load that the bus refuses") << QByteArray("ldr r4, [r5]");
        QTest::newRow("a store that the bus refuses") << QByteArray("strb r4, [r5]");
        QTest::newRow("several loads") << QByteArray("ldm r5!, {r0, r4}");
        QTest::newRow("several stores") << QByteArray("stm r5!, {r0, r4}");
        QTest::newRow("a word that is not aligned") << QByteArray("ldr r4, [r7, r6]");
        QTest::newRow("a halfword that is not aligned") << QByteArray("ldrsh r4, [r7, r6]");
        QTest::newRow("an undefined instruction") << QByteArray("udf #1");
        QTest::newRow("a long undefined instruction") << QByteArray(".hword 0xF7F0, 0xA001");
        QTest::newRow("an instruction of larger processors") << QByteArray(".hword 0xB104 @ CBZ");
        QTest::newRow("a condition of larger processors") << QByteArray(".hword 0xBF08 @ IT");
    }

    void faultsTellTheInstruction()
    {
        QFETCH(QByteArray, instruction);
        const Result result = run(
            "ldr r5, =0x50000000\nmovs r4, #77\nmovs r6, #1\nhere: " + instruction +
            "\nnop\nbkpt 1\nfault: ldr r0, [sp, #24]\nldr r1, =here\nsubs r0, r1\n"
            "str r0, [r7]\nstr r4, [r7]\nldr r1, =0x50000000\nsubs r5, r1\nstr r5, [r7]\nbkpt 0");
        QCOMPARE(result.log, QByteArray("0 77 0"));
    }

    void faultsAtTheTargetOfAJump_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::addColumn<QByteArray>("address");
        QTest::newRow("the other state") << QByteArray("0x100") << QByteArray("256");
        QTest::newRow("a device") << QByteArray("0x40000101") << QByteArray("1073742080");
        QTest::newRow("an exception's return outside of exceptions")
            << QByteArray("0xFFFFFFF9") << QByteArray("4294967288");
    }

    // Only BX and POP leave a handler.
    void doesNotLeaveAHandlerByACall()
    {
        const Result result = run("svc 0\nbkpt 1\nsvc: log 1\nldr r0, =0xFFFFFFF9\nblx r0\n"
                                  "fault: ldr r0, [sp, #24]\nstr r0, [r7]\nbkpt 0");
        QCOMPARE(result.log, QByteArray("1 4294967288"));
    }

    void faultsAtTheTargetOfAJump()
    {
        QFETCH(QByteArray, target);
        QFETCH(QByteArray, address);
        const Result result =
            run("ldr r0, =" + target + "\nbx r0\nfault: ldr r0, [sp, #24]\nstr r0, [r7]\nbkpt 0");
        QCOMPARE(result.log, address);
    }

    void locksUpWhenTheFaultsHandlerFaults()
    {
        const Result result = run("udf #0\nfault: log 3\nudf #0\nbkpt 1\n");
        QCOMPARE(result.log, QByteArray("3"));
        QVERIFY(result.lockedUp);
        QVERIFY(!result.ended);
    }

    void locksUpWithoutAVectorOfItsOwnState()
    {
        // The vector table's second word is even: the first instruction faults, and so does its
        // handler.
        Board board;
        Processor processor(Assembled::smallCore(), board);
        processor.setInstructionMemory(std::vector<std::uint8_t>(64));
        for (int i = 0; i < 5; ++i) {
            processor.tick(0, false);
            processor.step();
        }
        QVERIFY(processor.isLockedUp());
    }

    void seesTheBusBehindASmallMemory()
    {
        // 2 KB of instructions and 1 KB of data.
        QCOMPARE(run("ldr r6, =0x07FC\nldr r5, =0xABCD\nstr r5, [r6]\nldr r0, [r6]\nstr r0, [r7]\n"
                     "ldr r0, [r6, #4]\nstr r0, [r7]\nldr r6, =0x20000400\nstr r5, [r6]\n"
                     "ldrh r0, [r6]\nstr r0, [r7]\nbkpt 0\n")
                     .log,
                 QByteArray("43981 2309737967 52719"));
        QCOMPARE(run("ldr r6, =0x07FE\nldm r6!, {r0}\nfault: log 3\nbkpt 0\n").log,
                 QByteArray("3"));
    }

    void sleepsWithoutAnInterrupt()
    {
        const Result result = run("wfi\nlog 1\n");
        QVERIFY(result.sleeps);
        QCOMPARE(result.log, QByteArray());
    }

    void requestsAResetWithTheKeyOnly()
    {
        const QByteArray write = "ldr r6, =0xE000ED0C\nstr r0, [r6]\nbkpt 0\n";
        QVERIFY(run("ldr r0, =0x05FA0004\n" + write).wantsReset);
        QVERIFY(!run("ldr r0, =0x05FB0004\n" + write).wantsReset);
    }

    void runsWhatWasWrittenOverAnInstruction_data()
    {
        QTest::addColumn<QByteArray>("base");
        QTest::newRow("at its own address") << QByteArray("0");
        QTest::newRow("at the other alias") << QByteArray("0x10000000");
    }

    void runsWhatWasWrittenOverAnInstruction()
    {
        QFETCH(QByteArray, base);
        Configuration configuration = Assembled::smallCore();
        configuration.hasUpperAlias = true;
        const Result result = run("ldr r6, =here + " + base +
                                      "\nmovs r5, #0\nb here\n"
                                      "again: ldr r0, =0x2002\nstrh r0, [r6]\n"
                                      "here: movs r0, #1\nstr r0, [r7]\nadds r5, #1\ncmp r5, #2\n"
                                      "bne again\nbkpt 0\n",
                                  configuration);
        QCOMPARE(result.log, QByteArray("1 2"));
    }

    void runsWhatAnotherWroteOverAnInstruction()
    {
        Board board(outerCore(),
                    Assembled::contents("ldr r6, =here\nmovs r5, #0\nb here\n"
                                        "again: str r6, [r7, #12]\n"
                                        "here: movs r0, #1\nstr r0, [r7]\nadds r5, #1\n"
                                        "cmp r5, #2\nbne again\nbkpt 0\n",
                                        2048));
        QVERIFY(runOn(board, outerCore(), {}, 50).ending.passed);
        QCOMPARE(board.log, QByteArray("1 2 "));
    }

    void accessesOuterMemories_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QByteArray>("accesses");
        const QByteArray start = words("I R4", 0, 2);
        const QByteArray base = "ldr r6, =0x20000100\n";
        const auto row = [&](const char *name, const QByteArray &program,
                             const QByteArray &accesses) {
            QTest::newRow(name) << program << start + accesses;
        };
        row("vectors at the start", "", "");
        row("words", base + "str r6, [r6, #4]\nldr r0, [r6, #4]\n",
            "D W4 20000104, D R4 20000104, ");
        row("halfwords",
            base + "movs r1, #10\nstrh r6, [r6, #2]\nldrh r0, [r6, #2]\nldrsh r0, [r6, r1]\n",
            "D W2 20000102, D R2 20000102, D R2 2000010a, ");
        row("bytes",
            base + "movs r1, #9\nstrb r6, [r6, #3]\nldrb r0, [r6, #1]\nldrsb r0, [r6, r1]\n",
            "D W1 20000103, D R1 20000101, D R1 20000109, ");
        row("several registers", base + "stm r6!, {r0-r3}\nsubs r6, #8\nldm r6!, {r4, r5}\n",
            words("D W4", 0x20000100, 4) + words("D R4", 0x20000108, 2));
        row("the stack", "push {r0-r7, lr}\npop {r0-r7}\n",
            words("D W4", 0x200003DC, 9) + words("D R4", 0x200003DC, 8));
        row("a return from a function", "bl 1f\nb 2f\n1: push {r4, lr}\npop {r4, pc}\n2:\n",
            words("D W4", 0x200003F8, 2) + words("D R4", 0x200003F8, 2));
        row("an exception", "svc 0\nbkpt 0\nsvc: bx lr\n",
            words("D W4", 0x200003E0, 8) + "I R4 2c, " + words("D R4", 0x200003E0, 8));
        row("an exception in an exception's place",
            "ldr r0, =0xE000ED04\nmovs r1, #1\nlsls r1, #28\nldr r2, =0xE000ED20\n"
            "ldr r3, =0x00C00000\nstr r3, [r2]\nsvc 0\nbkpt 0\n"
            "svc: str r1, [r0]\nbx lr\npendsv: bx lr\n",
            words("D W4", 0x200003E0, 8) + "I R4 2c, I R4 38, " + words("D R4", 0x200003E0, 8));
        row("a fault", "udf #0\nfault: bkpt 0\n", words("D W4", 0x200003E0, 8) + "I R4 c, ");
        row("a store into the instruction memory", "ldr r6, =0x700\nstrb r6, [r6, #1]\n",
            "I W1 701, ");
        row("a text", base + "ldr r0, =0x6948\nstr r0, [r6]\nmovs r0, #4\nmov r1, r6\nbkpt 0xAB\n",
            "D W4 20000100, D R1 20000100, D R1 20000101, D R1 20000102, ");
        row("nothing behind the end of a memory",
            "ldr r6, =0x20000400\nstr r6, [r6]\nldr r6, =0x800\nldr r0, [r6]\n", "");
    }

    void accessesOuterMemories()
    {
        QFETCH(QByteArray, program);
        QFETCH(QByteArray, accesses);
        Board board(outerCore(), Assembled::contents(program + "bkpt 0\n", 2048));
        const Result result = runOn(board, outerCore(), {}, 100);
        QVERIFY2(result.ending.passed, result.ending.reason.c_str());
        QCOMPARE(board.accesses, accesses);
    }

    void fetchesEveryInstruction()
    {
        // From 0x50 on: LDR and its literal, two in a word, a long one in one word and one across
        // two words, and again after a jump.
        Board board(outerCore(), Assembled::contents("nop\nnop\nnop\ndsb\nnop\ndsb\nb 1f\n"
                                                     "nop\nnop\n1: b 2f\n2: bkpt 0\n",
                                                     2048));
        QVERIFY(runOn(board, outerCore(), {}, 100).ending.passed);
        QCOMPARE(board.fetches, QByteArray("50 70 50 54 54 58 5c 5c 60 60 68 68 "));
    }

    void runsFromTheOuterDataMemory()
    {
        Board board(outerCore(), Assembled::contents("ldr r0, =0x20000101\nbx r0\n", 2048));
        board.data.contents[0x101] = 0xBE; // BKPT 0
        board.data.contents[0x100] = 0x00;
        QVERIFY(runOn(board, outerCore(), {}, 100).ending.passed);
        QVERIFY2(board.accesses.endsWith("D R4 20000100, "), board.accesses);
    }

    void fillsTheOuterMemoryOnceBeforeItRuns()
    {
        Board board(outerCore());
        Processor processor(outerCore(), board);
        std::vector<std::uint8_t> program = Assembled::contents("movs r0, #1\nbkpt 0\n", 2048);
        program.resize(99); // and the rest of its word
        processor.setInstructionMemory(program);
        for (int i = 0; i < 10 && !processor.hasEnded(); ++i)
            processor.step();
        QVERIFY(processor.ending().passed);
        QCOMPARE(board.accesses, words("I W4", 0, 25) + words("I R4", 0, 2));
        program.resize(100);
        QVERIFY(std::equal(program.begin(), program.end(), board.instructions.contents.begin()));
        board.accesses.clear();
        processor.reset();
        processor.step();
        QCOMPARE(board.accesses, QByteArray()); // a program that has ended stays ended
    }

    void keepsTheOuterMemoryThroughAReset()
    {
        Board board(outerCore());
        Processor processor(outerCore(), board);
        processor.setInstructionMemory(Assembled::contents("1: b 1b\n", 2048));
        processor.step();
        board.accesses.clear();
        processor.reset();
        processor.step();
        QCOMPARE(board.accesses, words("I R4", 0, 2));
    }

    // What a program does not use may be unknown.
    void endsWithUnknownBits_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<int>("place"); // of an unknown nibble
        QTest::addColumn<QByteArray>("message");
        const QByteArray base = "ldr r6, =0x20000100\n";
        const int data = 0x20000000;
        const auto brings = [](const char *address, const char *bits) -> QByteArray {
            return QByteArray("the read from ") + address + " brings unknown bits, " + bits +
                   " (at 0x000000";
        };
        QTest::newRow("a word") << base + "ldr r0, [r6]\n"
                                << data + 0x102 << brings("0x20000100", "0x000F0000");
        QTest::newRow("a halfword") << base + "ldrh r0, [r6, #2]\n"
                                    << data + 0x103 << brings("0x20000102", "0x00000F00");
        QTest::newRow("a byte") << base + "ldrb r0, [r6, #1]\n"
                                << data + 0x101 << brings("0x20000101", "0x0000000F");
        QTest::newRow("the byte beside it") << base + "ldrb r0, [r6, #1]\n"
                                            << data + 0x102 << QByteArray();
        QTest::newRow("a byte that was written") << base + "strb r6, [r6, #1]\nldrb r0, [r6, #1]\n"
                                                 << data + 0x101 << QByteArray();
        QTest::newRow("one of several words") << base + "ldm r6!, {r0-r3}\n"
                                              << data + 0x108 << brings("0x20000108", "0x0000000F");
        QTest::newRow("the stack") << QByteArray("sub sp, #8\npop {r0, pc}\n") << data + 0x3FC
                                   << brings("0x200003FC", "0x0000000F");
        QTest::newRow("the stack's vector")
            << QByteArray() << 1 << brings("0x00000000", "0x00000F00");
        QTest::newRow("a handler's vector")
            << QByteArray("svc 0\nsvc: bkpt 1\n") << 0x2C << brings("0x0000002C", "0x0000000F");
        QTest::newRow("an instruction")
            << QByteArray() << 0x52 << brings("0x00000052", "0x0000000F");
        QTest::newRow("the second half of an instruction")
            << QByteArray("nop\ndsb\n") << 0x57 << brings("0x00000056", "0x00000F00");
        QTest::newRow("the half beside an instruction")
            << QByteArray("b 1f\nnop\nnop\n1:\n") << 0x56 << QByteArray();
        QTest::newRow("a text") << QByteArray("movs r0, #4\nldr r1, =0x20000100\nbkpt 0xAB\n")
                                << data + 0x100 << brings("0x20000100", "0x0000000F");
    }

    void endsWithUnknownBits()
    {
        QFETCH(QByteArray, program);
        QFETCH(int, place);
        QFETCH(QByteArray, message);
        Board board(outerCore(), Assembled::contents(program + "bkpt 0\n", 2048));
        OuterMemory &memory = place < 0x20000000 ? board.instructions : board.data;
        memory.unknown[std::size_t(place % 0x20000000)] = 0x0F;
        const Result result = runOn(board, outerCore(), {}, 100);
        QVERIFY(result.ended && !result.lockedUp);
        QCOMPARE(result.ending.passed, message.isEmpty());
        QVERIFY2(message.isEmpty() ||
                     QByteArray::fromStdString(result.ending.reason).startsWith(message),
                 result.ending.reason.c_str());
    }

    void saysWhatItDoesNotModel_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("instructions on the bus")
            << QByteArray("ldr r0, =0x60000001\nbx r0\n")
            << QByteArray(
                   "running from 0x60000000, outside of the tightly coupled memories, is not "
                   "modelled (at 0x60000000)");
        QTest::newRow("the end of the memory") << QByteArray("ldr r0, =0x7FF\nbx r0\n")
                                               << QByteArray("running from 0x00000800, outside");
        QTest::newRow("an unknown register")
            << QByteArray("ldr r0, =0xE000E300\nldr r0, [r0]\n")
            << QByteArray("the register at 0xE000E300 is not modelled (at 0x");
        QTest::newRow("a part of a register")
            << QByteArray("ldr r0, =0xE000E400\nldrb r0, [r0]\n")
            << QByteArray("an access of 1 bytes to the register at 0xE000E400 is not modelled");
        QTest::newRow("another alias of the instruction memory")
            << QByteArray("ldr r0, =0xE000E008\nmovs r1, #16\nstr r1, [r0]\n")
            << QByteArray("moving the instruction memory to another alias is not modelled");
        QTest::newRow("unprivileged execution")
            << QByteArray("movs r0, #1\nmsr control, r0\n")
            << QByteArray("unprivileged execution is not modelled");
        QTest::newRow("a return to nowhere")
            << QByteArray("svc 0\nsvc: ldr r0, =0xFFFFFFF1\nbx r0\n")
            << QByteArray("leaving exception 11 with 0xFFFFFFF1 has no defined result");
        QTest::newRow("a semihosting operation")
            << QByteArray("movs r0, #6\nbkpt 0xAB\n")
            << QByteArray("the semihosting operation 0x00000006 is not modelled");
        QTest::newRow("a semihosting text of the bus")
            << QByteArray("movs r0, #4\nldr r1, =0x50000000\nbkpt 0xAB\n")
            << QByteArray("a semihosting text at 0x50000000 cannot be read");
    }

    void saysWhatItDoesNotModel()
    {
        QFETCH(QByteArray, program);
        QFETCH(QByteArray, message);
        const Result result = run(program);
        QVERIFY(result.ended && !result.ending.passed);
        QVERIFY2(QByteArray::fromStdString(result.ending.reason).startsWith(message),
                 result.ending.reason.c_str());
    }

    void refusesConfigurations_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("big-endian") << 0 << QByteArray("a big-endian core (BE8) is not modelled");
        QTest::newRow("no instruction memory")
            << 1 << QByteArray("a core without instruction memory is not modelled");
        QTest::newRow("no memory at the vectors")
            << 2 << QByteArray("a vector table outside of the instruction memory is not modelled");
    }

    void refusesConfigurations()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, message);
        Configuration configuration = Assembled::smallCore();
        configuration.isBigEndian = kind == 0;
        configuration.itcmBytes = kind == 1 ? 0 : 2048;
        configuration.hasLowerAlias = kind != 2;
        configuration.hasUpperAlias = kind == 2;
        Board board;
        try {
            const Processor processor(configuration, board);
            QFAIL("it is taken");
        } catch (const std::runtime_error &error) {
            QCOMPARE(QByteArray(error.what()), message);
        }
    }

    void hasNoExtensionWhereItIsOff()
    {
        Configuration configuration = Assembled::smallCore();
        configuration.hasOsExtension = false;
        QCOMPARE(run("svc 0\nfault: log 3\nbkpt 0\nsvc: bkpt 1\n", configuration).log,
                 QByteArray("3"));
        const Result timer =
            run("ldr r6, =0xE000E010\nmovs r0, #7\nstr r0, [r6, #4]\nstr r0, [r6]\n"
                "ldr r0, [r6]\nstr r0, [r7]\nldr r0, [r6, #4]\nstr r0, [r7]\nbkpt 0\n",
                configuration);
        QCOMPARE(timer.log, QByteArray("0 0"));
        QCOMPARE(run("msr psp, r0\n", configuration).ending.reason.substr(0, 58),
                 std::string("the process stack without the OS extension is not modelled"));
    }

    void hasTheInterruptsThatAreInUse()
    {
        const QByteArray program = "ldr r6, =0xE000E100\nldr r0, =0xFFFFFFFF\nstr r0, [r6]\n"
                                   "ldr r0, [r6]\nstr r0, [r7]\nbkpt 0\n";
        Configuration configuration = Assembled::smallCore();
        for (const int interrupts : {1, 8, 16, 32}) {
            configuration.interrupts = interrupts;
            QCOMPARE(run(program, configuration).log,
                     QByteArray::number((quint64(1) << interrupts) - 1));
        }
    }

    void saysWhatTheProgramSays()
    {
        const Result result = run("movs r0, #4\nldr r1, =text\nbkpt 0xAB\n"
                                  "movs r0, #3\nldr r1, =text + 1\nbkpt 0xAB\n"
                                  "movs r0, #1\nldr r1, =open\nbkpt 0xAB\nstr r0, [r7]\n"
                                  "movs r0, #5\nldr r1, =block\nbkpt 0xAB\nstr r0, [r7]\n"
                                  "movs r0, #0x18\nldr r1, =0x20026\nbkpt 0xAB\n.pool\n"
                                  "block: .word 1, text, 2\nopen: .word name, 4, 3\n"
                                  "text: .asciz \"Hello\\n\"\nname: .asciz \":tt\"\n");
        QCOMPARE(result.said, std::string("Hello\neHe"));
        QCOMPARE(result.log, QByteArray("2 0"));
        QVERIFY(result.ending.passed);
    }

    void tellsHowAProgramEnds_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<bool>("passes");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("another reason")
            << QByteArray("movs r0, #0x18\nldr r1, =0x20023\nbkpt 0xAB\n") << false
            << QByteArray("exit 0x00020023");
        QTest::newRow("status 0")
            << QByteArray("movs r0, #0x20\nldr r1, =1f\nbkpt 0xAB\n.align 2\n1: .word 0x20026, 0\n")
            << true << QByteArray("exit 0");
        QTest::newRow("status 7")
            << QByteArray("movs r0, #0x20\nldr r1, =1f\nbkpt 0xAB\n.align 2\n1: .word 0x20026, 7\n")
            << false << QByteArray("exit 7");
        QTest::newRow("a breakpoint")
            << QByteArray("bkpt 3\n") << false << QByteArray("BKPT 3 at 0x");
    }

    void tellsHowAProgramEnds()
    {
        QFETCH(QByteArray, program);
        QFETCH(bool, passes);
        QFETCH(QByteArray, reason);
        const Result result = run(program);
        QVERIFY(result.ended);
        QCOMPARE(result.ending.passed, passes);
        QVERIFY2(QByteArray::fromStdString(result.ending.reason).startsWith(reason),
                 result.ending.reason.c_str());
    }
};

QTEST_APPLESS_MAIN(TestProcessor)
#include "tst_processor.moc"
