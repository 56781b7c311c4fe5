#include "assembled.h"

#include <core/core.h>

using namespace CortexM1;

namespace
{

// A slave of AHB-Lite with memory at 0x40000000, some cycles slow, and errors from 0x50000000 on.
class Slave
{
public:
    explicit Slave(int waitStates)
        : m_waitStates(waitStates)
    {
    }

    // What it answers while the master's pins show this, and what the next edge does.
    Inputs clock(const Outputs &pins, std::uint32_t interrupts = 0)
    {
        Inputs inputs;
        inputs.isReset = false;
        inputs.interrupts = interrupts;
        inputs.unknown = ~0u;
        inputs.isReady = m_left == 0;
        if (m_isBusy) {
            inputs.isError = m_isError && m_left <= 1;
            if (m_left == 0) {
                finish(pins, &inputs);
                m_isBusy = false;
            } else {
                --m_left;
            }
        }
        if (inputs.isReady && pins.isTransfer) {
            log += (pins.isWrite ? "W" : "R") + QByteArray::number(1 << pins.size) + ' ' +
                   QByteArray::number(pins.address, 16) + ' ';
            m_isBusy = true;
            m_address = pins.address;
            m_isWrite = pins.isWrite;
            m_isError = pins.address >= 0x50000000;
            m_lanes = pins.size == 2 ? 0xFFFFFFFFu
                                     : (pins.size == 1 ? 0xFFFFu : 0xFFu) << 8 * (m_address & 3);
            m_left = m_isError ? 1 : m_waitStates;
        }
        return inputs;
    }

    QByteArray log;
    std::uint32_t memory[4] = {0x11223344, 0x55667788, 0, 0};

private:
    void finish(const Outputs &pins, Inputs *inputs)
    {
        std::uint32_t &word = memory[m_address >> 2 & 3];
        if (m_isError)
            return;
        if (m_isWrite) {
            word = (word & ~m_lanes) | (pins.data & m_lanes);
        } else {
            // Other lanes than the addressed ones say nothing.
            inputs->data = word;
            inputs->unknown = ~m_lanes;
        }
    }

    int m_waitStates;
    bool m_isBusy = false;
    bool m_isWrite = false;
    bool m_isError = false;
    std::uint32_t m_address = 0;
    std::uint32_t m_lanes = 0;
    int m_left = 0;
};

// The memories behind their pins: of each access the data stand after the next edge.
class Memories
{
public:
    explicit Memories(const std::vector<std::uint8_t> &program)
    {
        for (std::size_t i = 0; i < program.size(); ++i)
            m_words[0][i / 4] |= std::uint32_t(program[i]) << 8 * (i % 4);
    }

    void edge(const MemoryOutputs &pins)
    {
        for (const int memory : {0, 1}) {
            if (!(memory == 0 ? pins.isInstruction : pins.isData))
                continue;
            ++accesses;
            std::uint32_t &word = m_words[memory][pins.address & 511];
            if (pins.lanes == 0) {
                m_shown[memory] = word;
                m_known[memory] = true;
                continue;
            }
            log += QByteArray::number(pins.address, 16) + '/' +
                   QByteArray::number(pins.lanes, 2).rightJustified(4, '0') + ' ';
            for (int lane = 0; lane < 4; ++lane) {
                const std::uint32_t bits = 0xFFu << 8 * lane;
                if (pins.lanes >> lane & 1)
                    word = (word & ~bits) | (pins.data & bits);
            }
        }
    }

    void show(Inputs *inputs) const
    {
        inputs->instructionMemory = m_shown[0];
        inputs->instructionMemoryUnknown = m_known[0] ? 0 : ~0u;
        inputs->dataMemory = m_shown[1];
        inputs->dataMemoryUnknown = m_known[1] ? 0 : ~0u;
    }

    std::uint32_t word(std::uint32_t number) const { return m_words[1][number]; }

    int accesses = 0;
    QByteArray log; // of writes: word and lanes

private:
    std::uint32_t m_words[2][512] = {};
    std::uint32_t m_shown[2] = {};
    bool m_known[2] = {};
};

enum class MemoriesAre { Inner, Outer };

struct Bench {
    explicit Bench(const QByteArray &program, int waitStates = 0,
                   MemoriesAre memoriesAre = MemoriesAre::Inner)
        : contents(Assembled::contents(program, 2048))
        , core(configuration(memoriesAre), [this](const std::string &text) { said += text; })
        , slave(waitStates)
        , memories(contents)
    {
        if (memoriesAre == MemoriesAre::Inner)
            core.processor().setInstructionMemory(contents);
        core.clock({});
    }

    static Configuration configuration(MemoriesAre memoriesAre)
    {
        Configuration configuration = Assembled::smallCore();
        configuration.hasOuterMemories = memoriesAre == MemoriesAre::Outer;
        return configuration;
    }

    // Until the program ends, or so many clock cycles. Returns how many it took.
    int run(int cycles = 500)
    {
        for (int i = 0; i < cycles; ++i) {
            if (pins.isDone)
                return i;
            // The inputs answer to what the pins show now; what clock() says is shown next, and
            // to the memories at once.
            Inputs inputs = slave.clock(pins);
            memories.show(&inputs);
            pins = core.clock(inputs);
            memories.edge(pins.memory);
        }
        return cycles;
    }

    std::string said;
    const std::vector<std::uint8_t> contents;
    Core core;
    Slave slave;
    Memories memories;
    Outputs pins;
};

} // namespace

Q_DECLARE_METATYPE(MemoriesAre)

class TestCore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transfersBytesHalfwordsAndWords_data()
    {
        QTest::addColumn<int>("waitStates");
        QTest::newRow("at once") << 0;
        QTest::newRow("with a wait state") << 1;
        QTest::newRow("slowly") << 7;
    }

    void transfersBytesHalfwordsAndWords()
    {
        QFETCH(int, waitStates);
        Bench bench("ldrb r0, [r7, #1]\nstrb r0, [r7, #8]\nldrh r0, [r7, #6]\nstrh r0, [r7, #10]\n"
                    "ldm r7!, {r1, r2}\nstr r2, [r7, #4]\ncmp r7, r7\nbkpt 0\n",
                    waitStates);
        const int cycles = bench.run();
        QVERIFY2(bench.pins.hasPassed, bench.core.processor().ending().reason.c_str());
        QCOMPARE(
            bench.slave.log,
            QByteArray("R1 40000001 W1 40000008 R2 40000006 W2 4000000a R4 40000000 R4 40000004 "
                       "W4 4000000c "));
        QCOMPARE(bench.slave.memory[2], 0x55660033u);
        QCOMPARE(bench.slave.memory[3], 0x55667788u);
        QCOMPARE(bench.said, std::string());
        // Two cycles for each of seven transfers beside the waiting, and the instructions.
        QVERIFY2(cycles >= 14 + 7 * waitStates && cycles <= 30 + 7 * waitStates,
                 QByteArray::number(cycles));
    }

    void tellsUnknownBitsThatAProgramReads()
    {
        Bench bench("ldr r0, [r7]\nbkpt 0\n");
        for (int i = 0; i < 50 && !bench.pins.isDone; ++i) {
            Inputs inputs = bench.slave.clock(bench.pins);
            inputs.unknown |= 0x80;
            bench.pins = bench.core.clock(inputs);
        }
        QVERIFY(bench.pins.isDone);
        QCOMPARE(bench.said,
                 std::string("the read from 0x40000000 brings unknown bits, 0x00000080, "
                             "which are taken for 0\n"));
        QCOMPARE(bench.core.processor().registerValue(0), 0x11223344u & ~0x80u);
    }

    void takesAnErrorForAFault()
    {
        Bench bench("ldr r6, =0x50000000\nldr r0, [r6]\nbkpt 1\nfault: bkpt 0\n");
        bench.run();
        QVERIFY2(bench.pins.hasPassed, bench.core.processor().ending().reason.c_str());
    }

    void writesTheLanesOfAMemory_data()
    {
        QTest::addColumn<QByteArray>("store");
        QTest::addColumn<QByteArray>("lanes");
        QTest::addColumn<quint32>("word");
        QTest::newRow("a word") << QByteArray("str r0, [r6]") << QByteArray("1111") << 0x12345678u;
        QTest::newRow("the lower half")
            << QByteArray("strh r0, [r6]") << QByteArray("0011") << 0xFFFF5678u;
        QTest::newRow("the upper half")
            << QByteArray("strh r0, [r6, #2]") << QByteArray("1100") << 0x5678FFFFu;
        QTest::newRow("byte 0") << QByteArray("strb r0, [r6]") << QByteArray("0001") << 0xFFFFFF78u;
        QTest::newRow("byte 1") << QByteArray("strb r0, [r6, #1]") << QByteArray("0010")
                                << 0xFFFF78FFu;
        QTest::newRow("byte 2") << QByteArray("strb r0, [r6, #2]") << QByteArray("0100")
                                << 0xFF78FFFFu;
        QTest::newRow("byte 3") << QByteArray("strb r0, [r6, #3]") << QByteArray("1000")
                                << 0x78FFFFFFu;
    }

    void writesTheLanesOfAMemory()
    {
        QFETCH(QByteArray, store);
        QFETCH(QByteArray, lanes);
        QFETCH(quint32, word);
        Bench bench("ldr r6, =0x20000104\nldr r0, =0x12345678\nmovs r1, #0\nmvns r1, r1\n"
                    "str r1, [r6]\n" +
                        store + "\nldr r2, [r6]\nldrb r3, [r6, #2]\nldrh r4, [r6, #2]\nbkpt 0\n",
                    0, MemoriesAre::Outer);
        bench.run();
        QVERIFY2(bench.pins.hasPassed, bench.core.processor().ending().reason.c_str());
        QCOMPARE(bench.memories.log, "41/1111 41/" + lanes + " ");
        QCOMPARE(bench.memories.word(0x41), word);
        QCOMPARE(bench.core.processor().registerValue(2), word);
        QCOMPARE(bench.core.processor().registerValue(3), word >> 16 & 0xFF);
        QCOMPARE(bench.core.processor().registerValue(4), word >> 16);
    }

    void accessesAMemoryInEveryCycle()
    {
        // Two vectors, LDR with its literal, PUSH and POP with four words each, SVC with eight
        // words, a vector and eight words, BX and BKPT.
        Bench bench("push {r0-r3}\npop {r0-r3}\nsvc 0\nbkpt 0\nsvc: bx lr\n", 0,
                    MemoriesAre::Outer);
        const int cycles = bench.run();
        QVERIFY2(bench.pins.hasPassed, bench.core.processor().ending().reason.c_str());
        QCOMPARE(bench.memories.accesses, 2 + 2 + 5 + 5 + 1 + 17 + 1 + 1);
        QCOMPARE(cycles, bench.memories.accesses + 1); // what the last one reads comes behind it
    }

    void leavesThePinsOfInnerMemories()
    {
        Bench bench("push {r0-r3}\npop {r0-r3}\nsvc 0\nbkpt 0\nsvc: bx lr\n");
        bench.run();
        QVERIFY(bench.pins.hasPassed);
        QCOMPARE(bench.memories.accesses, 0);
    }

    void endsWithUnknownBitsOfAMemory()
    {
        Bench bench("ldr r0, [r7]\nbkpt 0\n", 0, MemoriesAre::Outer);
        for (int i = 0; i < 50 && !bench.pins.isDone; ++i) {
            Inputs inputs = bench.slave.clock(bench.pins);
            bench.memories.show(&inputs);
            inputs.instructionMemoryUnknown |= i == 2 ? 0x10u : 0;
            bench.pins = bench.core.clock(inputs);
            bench.memories.edge(bench.pins.memory);
        }
        QVERIFY(bench.pins.isDone && !bench.pins.hasPassed && !bench.pins.isLockedUp);
        QCOMPARE(bench.core.processor().ending().reason,
                 std::string("the read from 0x00000004 brings unknown bits, 0x00000010 (at "
                             "0x00000000)"));
    }

    // Wherever in a transfer a reset comes: the program begins anew, and its memory is as before.
    void canBeResetAtAnyTime_data()
    {
        QTest::addColumn<MemoriesAre>("memories");
        QTest::newRow("with inner memories") << MemoriesAre::Inner;
        QTest::newRow("with outer memories") << MemoriesAre::Outer;
    }

    void canBeResetAtAnyTime()
    {
        QFETCH(MemoriesAre, memories);
        const bool isOuter = memories == MemoriesAre::Outer;
        const QByteArray program =
            "ldr r6, =0x20000000\nldr r1, [r6]\nldr r0, =0x1234\ncmp r0, r1\n"
            "beq 1f\nstr r0, [r6]\n2: ldm r7!, {r1, r2}\nsubs r7, #8\nstr r1, [r7, #8]\nb 2b\n"
            "1: bkpt 0\n";
        for (int cycle = isOuter ? 16 : 12; cycle < 50; ++cycle) {
            Bench bench(program, 2, memories);
            bench.run(cycle);
            QVERIFY(!bench.pins.isDone);
            bench.pins = bench.core.clock({});
            QVERIFY(!bench.pins.isTransfer && !bench.pins.isWrite);
            QVERIFY(!bench.pins.memory.isInstruction && !bench.pins.memory.isData);
            bench.slave = Slave(2); // it is reset as well
            bench.run();
            QVERIFY2(bench.pins.hasPassed, QByteArray::number(cycle));
        }
    }

    void canBeEndedInATransfer()
    {
        for (int cycle = 1; cycle < 12; ++cycle) {
            Bench bench("1: ldm r7!, {r1, r2}\nsubs r7, #8\nb 1b\n", 1);
            QCOMPARE(bench.run(cycle), cycle);
        }
    }

    void doesNothingBeforeItsFirstReset()
    {
        Core core(Assembled::smallCore(), [](const std::string &) {});
        Inputs inputs;
        inputs.isReset = false;
        for (int i = 0; i < 60; ++i)
            core.clock(inputs);
        QVERIFY(!core.clock(inputs).isLockedUp);
        core.clock({}); // and the empty memory faults behind it
        for (int i = 0; i < 60; ++i)
            core.clock(inputs);
        QVERIFY(core.clock(inputs).isLockedUp);
    }

    void holdsTheRequestForAReset()
    {
        Bench bench("ldr r6, =0xE000ED0C\nldr r0, =0x05FA0004\nstr r0, [r6]\n1: b 1b\n");
        bench.run(50);
        QVERIFY(bench.pins.requestsReset);
        bench.pins = bench.core.clock({});
        QVERIFY(!bench.pins.requestsReset);
    }

    void takesInterruptsFromItsPins()
    {
        Bench bench("ldr r6, =0xE000E100\nmovs r0, #2\nstr r0, [r6]\n1: b 1b\nirq1: bkpt 0\n");
        bench.run(30);
        QVERIFY(!bench.pins.isDone);
        for (int i = 0; i < 10; ++i)
            bench.pins = bench.core.clock(bench.slave.clock(bench.pins, 0xFFFFFFFD));
        QVERIFY(!bench.pins.isDone);
        for (int i = 0; i < 10; ++i)
            bench.pins = bench.core.clock(bench.slave.clock(bench.pins, 2));
        QVERIFY(bench.pins.hasPassed);
    }
};

QTEST_APPLESS_MAIN(TestCore)
#include "tst_core.moc"
