#include "assembled.h"

#include <core/core.h>

#include <deque>
#include <memory>

using namespace CortexM1;

namespace
{

using Event = DebuggerLink::Event;

// A debugger that says what the test tells it to.
class Script : public DebuggerLink
{
public:
    Event receive(std::string &bytes, bool waits) override
    {
        if (m_events.empty())
            return waits ? Event::Interrupted : Event::Nothing;
        const auto [event, text] = m_events.front();
        m_events.pop_front();
        bytes = text;
        return event;
    }
    void send(const std::string &bytes) override { sent += QByteArray::fromStdString(bytes); }
    void close() override { isClosed = true; }

    void add(Event event, const std::string &bytes = {}) { m_events.emplace_back(event, bytes); }

    QByteArray sent;
    bool isClosed = false;

private:
    std::deque<std::pair<Event, std::string>> m_events;
};

// What the replies say, with acknowledgements as they are.
QByteArray contents(const QByteArray &sent)
{
    PacketReader reader;
    reader.feed(sent.toStdString());
    QByteArrayList result;
    std::string packet;
    for (;;) {
        switch (reader.next(packet)) {
        case Received::Nothing:
            return result.join(' ');
        case Received::Packet:
            result.append(QByteArray::fromStdString(packet));
            break;
        case Received::Acknowledged:
            result.append("+");
            break;
        case Received::Refused:
            result.append("-");
            break;
        default:
            result.append("?");
        }
    }
}

QByteArray hex(const QByteArray &text)
{
    return text.toHex();
}

// A processor on a bus without wait states: a word of memory at 0x40000000 and every 16 bytes
// further, errors from 0x50000000 on, no answer at 0x60000000. A debugger is connected.
struct Bench {
    explicit Bench(const QByteArray &program, bool isConnected = true)
        : core(std::make_unique<Core>(Assembled::smallCore(),
                                      [this](const std::string &text) { said += text; }))
    {
        core->processor().setInstructionMemory(Assembled::contents(program, 2048));
        core->attach(link);
        core->clock({});
        if (isConnected) {
            link.add(Event::Connected);
            clock(3);
            QTest::qVerify(ask("QStartNoAckMode") == "+ OK", "acknowledgements", "", __FILE__,
                           __LINE__);
        }
    }

    void clock(int cycles = 1)
    {
        for (int i = 0; i < cycles; ++i) {
            Inputs inputs;
            inputs.isReset = pins.requestsReset && answersReset;
            inputs.interrupts = interrupts;
            if (m_isBusy && m_address >= 0x60000000) {
                inputs.isReady = false;
            } else if (m_isBusy) {
                inputs.isError = m_address >= 0x50000000;
                if (m_isWrite && !inputs.isError)
                    word = pins.data;
                inputs.data = word;
            }
            if (inputs.isReady) {
                m_isBusy = pins.isTransfer;
                m_isWrite = pins.isWrite;
                m_address = pins.address;
                if (m_isBusy)
                    log += (pins.isWrite ? "W" : "R") + QByteArray::number(1 << pins.size) + "@" +
                           QByteArray::number(pins.address, 16) + ' ';
            }
            if (inputs.isReset)
                m_isBusy = false;
            pins = core->clock(inputs);
        }
    }

    // The reply, if there is one within so many clock cycles.
    QByteArray ask(const QByteArray &packet, int cycles = 400)
    {
        return say(framed(packet.toStdString()), cycles);
    }

    // The same for bytes as they stand on the line.
    QByteArray say(const std::string &bytes, int cycles = 400)
    {
        link.sent.clear();
        link.add(Event::Bytes, bytes);
        for (int i = 0; i < cycles; ++i) {
            clock();
            const QByteArray reply = contents(link.sent);
            if (!reply.isEmpty() && reply != "+")
                return reply;
        }
        return contents(link.sent);
    }

    QByteArray programCounter() { return ask("pf"); }

    Script link;
    std::string said;
    std::unique_ptr<Core> core;
    Outputs pins;
    QByteArray log;
    std::uint32_t word = 0x44332211;
    std::uint32_t interrupts = 0;
    bool answersReset = true;

private:
    bool m_isBusy = false;
    bool m_isWrite = false;
    std::uint32_t m_address = 0;
};

// The first instruction of a program stands at 0x50, the test's own ones from 0x52 on.
const QByteArray endless = "1: adds r0, #1\nb 1b\n";
const QByteArray passing = "movs r0, #1\nmovs r0, #2\nmovs r0, #3\nbkpt 0\n";

} // namespace

class TestDebugger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void waitsForADebuggerBeforeTheFirstInstruction()
    {
        Bench bench(passing, false);
        bench.clock(100);
        QVERIFY(!bench.pins.isDone);
        QCOMPARE(bench.core->processor().registerValue(15), 0x50u);
        bench.link.add(Event::Connected);
        QCOMPARE(bench.ask("?"), QByteArray("+ S05"));
        QCOMPARE(bench.ask("pf"), QByteArray("+ 50000000"));
        QCOMPARE(bench.ask("pd"), QByteArray("+ 00040020"));
    }

    void tellsWhatItSupports()
    {
        Bench bench(passing);
        QCOMPARE(bench.ask("qSupported:multiprocess+"),
                 QByteArray("PacketSize=4000;qXfer:features:read+;QStartNoAckMode+"));
        QCOMPARE(bench.ask("vCont?"), QByteArray("vCont;c;C;s;S"));
        QCOMPARE(bench.ask("vMustReplyEmpty"), QByteArray());
        QCOMPARE(bench.ask("qfThreadInfo"), QByteArray("m1"));
        QCOMPARE(bench.ask("qsThreadInfo"), QByteArray("l"));
        QCOMPARE(bench.ask("qAttached"), QByteArray("1"));
        QCOMPARE(bench.ask("Hg0"), QByteArray("OK"));
        const QByteArray request = "qXfer:features:read:target.xml:";
        const QByteArray all = bench.ask(request + "0,2000");
        QVERIFY2(all.startsWith("l<?xml") && all.endsWith("</target>\n"), all);
        QCOMPARE(all.count("<reg "), Processor::debugRegisters);
        QCOMPARE(bench.ask(request + "0,10"), "m" + all.mid(1, 16));
        QCOMPARE(bench.ask(request + "10,2000"), "l" + all.mid(17));
        QCOMPARE(bench.ask(request + QByteArray::number(all.size() - 1, 16) + ",10"),
                 QByteArray("l"));
    }

    void readsAndWritesRegisters()
    {
        Bench bench(passing);
        const int plain[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14};
        for (const int number : plain) {
            const QByteArray name = QByteArray::number(number, 16);
            QCOMPARE(bench.ask("P" + name + "=" + hex("ab" + QByteArray(2, char(number)))),
                     QByteArray("OK"));
            QCOMPARE(bench.ask("p" + name), hex("ab" + QByteArray(2, char(number))));
        }
        QCOMPARE(bench.ask("p10"), QByteArray("00000001"));
        QCOMPARE(bench.ask("P10=000000f1"), QByteArray("OK"));
        QCOMPARE(bench.ask("p10"), QByteArray("000000f1"));
        QCOMPARE(bench.ask("P13=01000000"), QByteArray("OK")); // PRIMASK
        QCOMPARE(bench.ask("p13"), QByteArray("01000000"));
        // The stack in use is one of the two.
        QCOMPARE(bench.ask("P12=10030020"), QByteArray("OK")); // PSP
        QCOMPARE(bench.ask("pd"), QByteArray("00040020"));
        QCOMPARE(bench.ask("P14=02000000"), QByteArray("OK")); // CONTROL
        QCOMPARE(bench.ask("pd"), QByteArray("10030020"));
        QCOMPARE(bench.ask("p11"), QByteArray("00040020")); // MSP
        QCOMPARE(bench.ask("P14=01000000"), QByteArray("E03"));
        // All at once, both ways.
        const QByteArray before = bench.ask("g");
        QCOMPARE(before.size(), 8 * Processor::debugRegisters);
        QCOMPARE(bench.ask("P14=00000000"), QByteArray("OK"));
        QCOMPARE(bench.ask("Pd=00020020"), QByteArray("OK"));
        QCOMPARE(bench.ask("P5=ffffffff"), QByteArray("OK"));
        QVERIFY(bench.ask("g") != before);
        QCOMPARE(bench.ask("G" + before), QByteArray("OK"));
        QCOMPARE(bench.ask("g"), before);
    }

    void stepsOverOneInstruction_data()
    {
        QTest::addColumn<QByteArray>("packet");
        QTest::newRow("plainly") << QByteArray("s");
        QTest::newRow("as a list of actions") << QByteArray("vCont;s:1;c");
        QTest::newRow("with a signal") << QByteArray("vCont;S05:1");
    }

    void stepsOverOneInstruction()
    {
        QFETCH(QByteArray, packet);
        Bench bench(passing);
        for (const char *place : {"52000000", "54000000", "56000000"}) {
            QCOMPARE(bench.ask(packet), QByteArray("S05"));
            QCOMPARE(bench.programCounter(), QByteArray(place));
        }
        QCOMPARE(bench.ask("p0"), QByteArray("02000000"));
        QCOMPARE(bench.ask("s54"), QByteArray("S05"));
        QCOMPARE(bench.programCounter(), QByteArray("56000000"));
    }

    void haltsAtBreakpoints_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::newRow("software") << QByteArray("0");
        QTest::newRow("hardware") << QByteArray("1");
    }

    void haltsAtBreakpoints()
    {
        QFETCH(QByteArray, kind);
        Bench bench(passing);
        const QByteArray before = bench.ask("m50,10");
        QCOMPARE(bench.ask("Z" + kind + ",56,2"), QByteArray("OK"));
        QCOMPARE(bench.ask("m50,10"), before);
        QCOMPARE(bench.ask("c"), QByteArray("S05"));
        QCOMPARE(bench.programCounter(), QByteArray("56000000"));
        QCOMPARE(bench.ask("p0"), QByteArray("02000000"));
        QCOMPARE(bench.ask("z" + kind + ",56,2"), QByteArray("OK"));
        QCOMPARE(bench.ask("vCont;c"), QByteArray("W00"));
        QVERIFY(bench.pins.isDone && bench.pins.hasPassed && bench.link.isClosed);
    }

    void haltsBeforeWatchedAccesses_data()
    {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<QByteArray>("point");
        QTest::addColumn<QByteArray>("stop");
        const auto row = [](const char *name, const char *program, const char *point,
                            const char *stop) {
            QTest::newRow(name) << QByteArray(program) << QByteArray(point) << QByteArray(stop);
        };
        row("a word is written", "ldr r1, =0x20000100\nhere: str r0, [r1, #4]\n", "2,20000104,4",
            "T05watch:20000104;");
        row("a byte of it is watched", "ldr r1, =0x20000100\nhere: str r0, [r1, #4]\n",
            "2,20000107,1", "T05watch:20000107;");
        row("a word is read", "ldr r1, =0x20000100\nhere: ldr r0, [r1, r2]\n", "3,20000100,4",
            "T05rwatch:20000100;");
        row("of a table only a part", "ldr r1, =0x20000100\nhere: ldrh r0, [r1, #6]\n",
            "4,20000104,8", "T05awatch:20000104;");
        row("a byte on the bus is written", "here: strb r0, [r7, #3]\n", "4,40000003,1",
            "T05awatch:40000003;");
        row("a byte by an index", "ldr r1, =0x20000100\nmovs r2, #7\nhere: ldrsb r0, [r1, r2]\n",
            "3,20000107,1", "T05rwatch:20000107;");
        row("a halfword by an index", "ldr r1, =0x20000100\nmovs r2, #6\nhere: strh r0, [r1, r2]\n",
            "2,20000106,2", "T05watch:20000106;");
        row("a constant", "here: ldr r1, 1f\nb 2f\n.align 2\n1: .word 7\n2:\n", "3,58,4",
            "T05rwatch:00000058;");
        row("a push", "here: push {r0, r1, lr}\n", "2,200003f4,4", "T05watch:200003F4;");
        row("a pop", "push {r0, r1}\nhere: pop {r0, r1}\n", "3,200003fc,4", "T05rwatch:200003FC;");
        row("a return", "ldr r0, =2f+1\npush {r0}\nhere: pop {pc}\n2:\n", "3,200003fc,4",
            "T05rwatch:200003FC;");
        row("on the stack", "sub sp, #8\nhere: str r0, [sp, #4]\n", "2,200003fc,4",
            "T05watch:200003FC;");
        row("several words", "ldr r1, =0x20000100\nhere: stmia r1!, {r2, r3, r4}\n", "2,20000108,4",
            "T05watch:20000108;");
        row("several words are read", "ldr r1, =0x20000100\nhere: ldmia r1!, {r2, r3}\n",
            "3,20000104,4", "T05rwatch:20000104;");
    }

    void haltsBeforeWatchedAccesses()
    {
        QFETCH(QByteArray, program);
        QFETCH(QByteArray, point);
        QFETCH(QByteArray, stop);
        // Its neighbours are touched on the way and must not halt.
        Bench bench(program + "movs r6, #1\nbkpt 0\n");
        QCOMPARE(bench.ask("Z" + point), QByteArray("OK"));
        QCOMPARE(bench.ask("c"), stop);
        QCOMPARE(bench.ask("?"), stop);
        QCOMPARE(bench.ask("p6"), QByteArray("00000000"));
        // It goes on with the access.
        QCOMPARE(bench.ask("c"), QByteArray("W00"));
    }

    void doesNotHaltAtOtherAccesses()
    {
        Bench bench("ldr r1, =0x20000100\nstr r0, [r1]\nldr r0, [r1, #4]\nstrb r0, [r1, #8]\n"
                    "ldrb r0, [r1, #7]\nbkpt 0\n");
        for (const char *point :
             {"Z2,20000104,4", "Z3,20000100,4", "Z4,20000109,1", "Z3,20000108,1"})
            QCOMPARE(bench.ask(point), QByteArray("OK"));
        QCOMPARE(bench.ask("c"), QByteArray("W00"));
    }

    void interruptsARunningProgram()
    {
        Bench bench(endless);
        QCOMPARE(bench.ask("c"), QByteArray());
        QCOMPARE(bench.say("\x03"), QByteArray("S02"));
        QCOMPARE(bench.ask("?"), QByteArray("S02"));
        const QByteArray count = bench.ask("p0");
        bench.clock(50);
        QCOMPARE(bench.ask("p0"), count);
        // One that comes late does nothing.
        QCOMPARE(bench.say("\x03", 5), QByteArray());
    }

    void readsAndWritesMemory()
    {
        Bench bench(passing);
        QCOMPARE(bench.ask("M20000010,5:0102030405"), QByteArray("OK"));
        QCOMPARE(bench.ask("m20000010,5"), QByteArray("0102030405"));
        QCOMPARE(bench.say(framed("X20000011,3:}#$")), QByteArray("OK"));
        QCOMPARE(bench.ask("m20000010,5"), "01" + hex("}#$") + "05");
        QCOMPARE(bench.ask("X20000011,0:"), QByteArray("OK"));
        // Fewer bytes than were asked for, where the memory ends.
        QCOMPARE(bench.ask("me000ed20,10"), QByteArray("0000000000000000"));
    }

    void runsInstructionsThatItHasWritten()
    {
        Bench bench("1: movs r0, #1\nnop\nb 1b\n");
        QCOMPARE(bench.ask("Z0,54,2"), QByteArray("OK"));
        QCOMPARE(bench.ask("c"), QByteArray("S05"));
        QCOMPARE(bench.ask("p0"), QByteArray("01000000"));
        QCOMPARE(bench.ask("M52,2:0720"), QByteArray("OK"));
        QCOMPARE(bench.ask("s"), QByteArray("S05"));
        QCOMPARE(bench.ask("c"), QByteArray("S05"));
        QCOMPARE(bench.ask("p0"), QByteArray("07000000"));
    }

    void reachesTheBusWhileItIsHalted()
    {
        Bench bench(passing);
        QCOMPARE(bench.ask("m40000000,4"), QByteArray("11223344"));
        QCOMPARE(bench.ask("m40000001,7"), QByteArray("22334411223344"));
        QCOMPARE(bench.log, QByteArray("R4@40000000 R1@40000001 R2@40000002 R4@40000004 "));
        bench.log.clear();
        QCOMPARE(bench.ask("M40000000,4:78563412"), QByteArray("OK"));
        QCOMPARE(bench.word, 0x12345678u);
        QCOMPARE(bench.log, QByteArray("W4@40000000 "));
        QCOMPARE(bench.programCounter(), QByteArray("50000000"));
    }

    void saysWhyAnAccessFails_data()
    {
        QTest::addColumn<QByteArray>("packet");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("a read on the bus")
            << QByteArray("m50000000,4")
            << QByteArray("read from 0x50000000: the bus answers with an error");
        QTest::newRow("a write on the bus")
            << QByteArray("M50000000,1:00")
            << QByteArray("write to 0x50000000: the bus answers with an error");
        QTest::newRow("a register of the processor that is not there")
            << QByteArray("me0001000,4")
            << QByteArray("read from 0xE0001000: the register at 0xE0001000 is not modelled");
        QTest::newRow("a byte of one")
            << QByteArray("me000ed01,1")
            << QByteArray("read from 0xE000ED01: an access of 1 bytes to the register at "
                          "0xE000ED01 is not modelled");
    }

    void saysWhyAnAccessFails()
    {
        QFETCH(QByteArray, packet);
        QFETCH(QByteArray, reason);
        Bench bench(passing);
        QCOMPARE(bench.ask(packet), QByteArray("E02"));
        const QByteArray status = bench.ask("qRcmd," + hex("status"));
        QVERIFY2(status.contains(hex(reason)), QByteArray::fromHex(status.mid(1)));
        // The program does not notice.
        QCOMPARE(bench.ask("c"), QByteArray("W00"));
    }

    void letsNoTimePassForTheProcessor()
    {
        Bench bench("ldr r6, =0xE000E010\nldr r0, =0xFFFFFF\nstr r0, [r6, #4]\nmovs r0, #5\n"
                    "str r0, [r6]\n" +
                    endless);
        QCOMPARE(bench.ask("c"), QByteArray());
        QCOMPARE(bench.say("\x03"), QByteArray("S02"));
        const QByteArray value = bench.ask("me000e018,4");
        QVERIFY(value != "00000000");
        bench.ask("m40000000,40");
        bench.clock(20);
        QCOMPARE(bench.ask("me000e018,4"), value);
        QCOMPARE(bench.ask("s"), QByteArray("S05"));
        QVERIFY(bench.ask("me000e018,4") != value);
    }

    void answersMalformedPackets_data()
    {
        QTest::addColumn<QByteArray>("packet");
        for (const char *packet : {"p",
                                   "pzz",
                                   "p15",
                                   "p1 ",
                                   "P0",
                                   "P0=12",
                                   "P15=00000000",
                                   "G00",
                                   "m",
                                   "m0",
                                   "m0,",
                                   "m,4",
                                   "m123456789,4",
                                   "m0,4x",
                                   "M0,2:01",
                                   "M0,1:0g",
                                   "M0,1",
                                   "X0,2:a",
                                   "X0,1:}",
                                   "Z0",
                                   "Z0,zz,2",
                                   "Z0,0",
                                   "Z0,0,2;",
                                   "cxyz",
                                   "s1,2",
                                   "vCont;",
                                   "vCont;t",
                                   "qRcmd,1",
                                   "qXfer:features:read:target.xml:0",
                                   "qXfer:features:read:target.xml:ffff,1"})
            QTest::newRow(packet) << QByteArray(packet);
    }

    void answersMalformedPackets()
    {
        QFETCH(QByteArray, packet);
        Bench bench(passing);
        const std::string line = packet.contains('}') ? "$X0,1:}#9c" : framed(packet.toStdString());
        QCOMPARE(bench.say(line), QByteArray("E01"));
        QCOMPARE(bench.programCounter(), QByteArray("50000000"));
    }

    void asksAgainForWhatCameBroken()
    {
        Bench bench(passing, false);
        bench.link.add(Event::Connected);
        QCOMPARE(bench.say("$?#00"), QByteArray("-"));
        QCOMPARE(bench.say("$?#3f"), QByteArray("+ S05"));
        QCOMPARE(bench.say("-"), QByteArray("S05"));
        const std::string tooLong = "$" + std::string(longestPacket + 1, '\0') + "#00";
        QCOMPARE(bench.say(tooLong), QByteArray("+ E01"));
    }

    void goesOnWhenTheDebuggerGoes_data()
    {
        QTest::addColumn<bool>("detaches");
        QTest::newRow("with a farewell") << true;
        QTest::newRow("without") << false;
    }

    void goesOnWhenTheDebuggerGoes()
    {
        QFETCH(bool, detaches);
        Bench bench(passing);
        QCOMPARE(bench.ask("Z0,54,2"), QByteArray("OK"));
        if (detaches)
            QCOMPARE(bench.ask("D"), QByteArray("OK"));
        bench.link.add(Event::Disconnected);
        bench.clock(50);
        QVERIFY(bench.pins.isDone && bench.pins.hasPassed);
    }

    void staysHaltedWhenOnlyThePortIsTried()
    {
        Bench bench(passing, false);
        bench.link.add(Event::Connected);
        bench.link.add(Event::Bytes, "noise $g#00");
        bench.link.add(Event::Disconnected);
        bench.clock(50);
        QVERIFY(!bench.pins.isDone);
        bench.link.add(Event::Connected);
        QCOMPARE(bench.ask("pf"), QByteArray("+ 50000000"));
    }

    void haltsWhenTheNextDebuggerComes()
    {
        Bench bench(endless);
        QCOMPARE(bench.ask("D"), QByteArray("OK"));
        bench.link.add(Event::Disconnected);
        bench.clock(100);
        bench.link.add(Event::Connected);
        QCOMPARE(bench.ask("?"), QByteArray("+ S05"));
        const QByteArray count = bench.ask("p0");
        QVERIFY(count != "+ 00000000");
        bench.clock(100);
        QCOMPARE(bench.ask("p0"), count);
    }

    void endsTheProgram()
    {
        Bench bench(endless);
        bench.ask("k", 20);
        QVERIFY(bench.pins.isDone && !bench.pins.hasPassed && bench.link.isClosed);
        QCOMPARE(bench.core->processor().ending().reason,
                 std::string("the debugger has ended the program"));
    }

    void showsAProgramThatFailed()
    {
        Bench bench("movs r3, #9\nbkpt 7\n");
        QCOMPARE(bench.ask("c"), "O" + hex("FAIL: BKPT 7 at 0x00000054\n") + " S06");
        bench.clock(50);
        QVERIFY(!bench.pins.isDone);
        QCOMPARE(bench.ask("p3"), QByteArray("09000000"));
        QCOMPARE(bench.ask("m40000000,4"), QByteArray("11223344"));
        QCOMPARE(bench.ask("c"), QByteArray("W01"));
        QVERIFY(bench.pins.isDone && !bench.pins.hasPassed);
    }

    void haltsInLockUp()
    {
        Bench bench("udf #0\nfault: udf #1\n");
        QCOMPARE(bench.ask("c"), QByteArray("S0b"));
        QVERIFY(bench.pins.isLockedUp);
        QVERIFY(bench.ask("qRcmd," + hex("status")).contains(hex("locked up")));
    }

    void resetsOnRequest()
    {
        Bench bench(endless);
        QCOMPARE(bench.ask("c"), QByteArray());
        bench.say("\x03");
        QVERIFY(bench.programCounter() != "50000000");
        QCOMPARE(bench.ask("qRcmd," + hex("reset")), QByteArray("OK"));
        QCOMPARE(bench.programCounter(), QByteArray("50000000"));
        QCOMPARE(bench.ask("p0"), QByteArray("00000000"));
        QVERIFY(!bench.pins.requestsReset);
    }

    void saysThatNoResetComes()
    {
        Bench bench(endless);
        bench.answersReset = false;
        const QByteArray reply = bench.ask("qRcmd," + hex("reset"), 110000);
        QVERIFY2(reply.startsWith("O" + hex("the subsystem does not")), reply);
        QVERIFY2(reply.endsWith(" OK"), reply);
        bench.clock();
        QVERIFY(!bench.pins.requestsReset);
        QCOMPARE(bench.programCounter(), QByteArray("50000000"));
    }

    void explainsItsOwnCommands()
    {
        Bench bench(passing);
        const QByteArray reply = bench.ask("qRcmd," + hex("help"));
        QVERIFY(reply.contains(hex("monitor reset")) && reply.endsWith(" OK"));
    }

    void haltsBehindASleepOnlyWhenItIsOver()
    {
        // PRIMASK holds the interrupt back: the program goes on behind WFI at once.
        Bench bench("ldr r6, =0xE000E100\nmovs r0, #1\nstr r0, [r6]\ncpsid i\nwfi\nmovs r0, #7\n"
                    "bkpt 0\n");
        QCOMPARE(bench.ask("Z0,5c,2"), QByteArray("OK"));
        QCOMPARE(bench.ask("c"), QByteArray());
        QVERIFY(bench.core->processor().isSleeping());
        bench.interrupts = 1;
        bench.clock(5);
        QCOMPARE(contents(bench.link.sent), QByteArray("S05"));
        QCOMPARE(bench.programCounter(), QByteArray("5c000000"));
    }

    void haltsOnceWhereAnInterruptComes()
    {
        Bench bench("ldr r6, =0xE000E100\nmovs r0, #1\nstr r0, [r6]\n1: adds r5, #1\nb 1b\n"
                    "irq0: ldr r0, =0x40000000\nldr r0, [r0]\nbx lr\n");
        QCOMPARE(bench.ask("Z0,5a,2"), QByteArray("OK")); // the branch of the loop
        QCOMPARE(bench.ask("c"), QByteArray("S05"));
        // A step takes the interrupt.
        bench.interrupts = 1;
        bench.clock(2);
        bench.interrupts = 0;
        QCOMPARE(bench.ask("s"), QByteArray("S05"));
        QCOMPARE(bench.ask("p10"), QByteArray("10000001"));
        // Back from it the program has not run the instruction yet.
        QCOMPARE(bench.ask("c"), QByteArray("S05"));
        QCOMPARE(bench.ask("p10").right(2), QByteArray("01"));
        QCOMPARE(bench.programCounter(), QByteArray("5a000000"));
        QCOMPARE(bench.ask("p5"), QByteArray("01000000"));
    }

    void forgetsAnAccessThatAResetEnds()
    {
        Bench bench(passing);
        QCOMPARE(bench.ask("m60000000,4"), QByteArray());
        bench.link.sent.clear();
        bench.core->clock({}); // a reset
        QCOMPARE(contents(bench.link.sent), QByteArray("E02"));
        bench.core->clock({});
        bench.pins = {};
        QCOMPARE(bench.programCounter(), QByteArray("50000000"));
    }

    void endsWithinAnAccess()
    {
        Bench bench(passing);
        QCOMPARE(bench.ask("m60000000,4"), QByteArray());
        bench.core.reset();
        QCOMPARE(contents(bench.link.sent), QByteArray("E02"));
    }

    void boundsTheNumberOfBreakpoints()
    {
        Bench bench(passing);
        int taken = 0;
        while (taken < 5000 && bench.ask("Z0," + QByteArray::number(4 * taken, 16) + ",2") == "OK")
            ++taken;
        QCOMPARE(taken, 1024);
        QCOMPARE(bench.ask("z0,0,2"), QByteArray("OK"));
        QCOMPARE(bench.ask("Z1,100,2"), QByteArray("OK"));
    }
};

QTEST_GUILESS_MAIN(TestDebugger)
#include "tst_debugger.moc"
