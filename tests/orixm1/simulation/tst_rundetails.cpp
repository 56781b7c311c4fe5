#include <core/statistics.h>
#include <simulation/rundetails.h>

#include <QtTest>

using namespace TARVOORIXM1;
using CortexM1::FaultCause;
using CortexM1::Statistics;

namespace
{

QByteArray fileOf(const Statistics &statistics, quint32 end = 0)
{
    return QByteArray::fromStdString(statistics.text(end));
}

RunStatistics readBack(const Statistics &statistics, quint32 end = 0)
{
    const auto run = readRunStatistics(fileOf(statistics, end));
    if (!run) {
        QTest::qFail(qPrintable(run.reason()), __FILE__, __LINE__);
        return {};
    }
    return *run;
}

Region region(const char *name, quint32 base, quint32 last, RegionKind kind = RegionKind::Registers)
{
    Region made;
    made.name = QString::fromLatin1(name);
    made.base = base;
    made.last = last;
    made.kind = kind;
    return made;
}

// Two instances of a block with three registers, a memory, and three interrupts, one of them lost.
SystemMap sampleMap()
{
    SystemMap map;
    map.regions = {region("ITCM", 0, 0x7FFF, RegionKind::TightlyCoupledMemory),
                   region("DDR", 0x30000000, 0x3FFFFFFF, RegionKind::MemoryDevice),
                   region("A0", 0x40000000, 0x40000FFF), region("A1", 0x40001000, 0x40001FFF)};
    Peripheral peripheral;
    for (quint32 i = 0; i < 3; ++i) {
        Register entry;
        entry.name = QStringLiteral("R%1").arg(i);
        entry.offset = 4 * i;
        peripheral.registers.append(entry);
    }
    for (const Region &place : {map.regions.at(2), map.regions.at(3)}) {
        PeripheralInstance instance;
        instance.name = place.name;
        instance.base = place.base;
        peripheral.instances.append(instance);
    }
    map.peripherals = {peripheral};
    map.interrupts = {{QStringLiteral("WDOG"), InterruptLine::nonMaskable, {}, {}},
                      {QStringLiteral("A0"), 0, {}, {}},
                      {QStringLiteral("A1"), 5, {}, {}},
                      {QStringLiteral("LOST"), 9, {}, QStringLiteral("why")}};
    return map;
}

RunDetails detailsOf(const Statistics &statistics)
{
    return runDetails(sampleMap(), readBack(statistics), {}, {});
}

const RunDetails::Block *blockNamed(const RunDetails &details, const char *name)
{
    for (const RunDetails::Block &block : details.blocks) {
        if (block.name == QLatin1String(name))
            return &block;
    }
    return nullptr;
}

} // namespace

class tst_RunDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatTheModelHasCounted()
    {
        Statistics statistics;
        statistics.cycles = 5000000000u;
        statistics.asleep = 7;
        statistics.instructions = 8;
        statistics.starts = 2;
        statistics.countTransfer(0x40000002, 2, true, false, 0x10);
        statistics.countTransfer(0x40000000, 4, false, true, 0x12);
        statistics.countTransfer(0x40000001, 1, false, false, 0x14);
        statistics.countException(19);
        statistics.countException(19);
        statistics.countFault(FaultCause::Misaligned, 0x16);
        statistics.countUnknown(0x40000004, 0xFF, 0x18);
        statistics.countLockUp(0x1A);
        const RunStatistics run = readBack(statistics, 0x1C);
        QCOMPARE(run.cycles, quint64(5000000000u));
        QCOMPARE(run.asleep, quint64(7));
        QCOMPARE(run.instructions, quint64(8));
        QCOMPARE(run.starts, quint64(2));
        QCOMPARE(run.words.size(), 1);
        QCOMPARE(run.words.value(0x40000000).reads, quint64(2));
        QCOMPARE(run.words.value(0x40000000).writes, quint64(1));
        QCOMPARE(run.exceptions, (QMap<int, quint64>{{19, 2}}));
        QCOMPARE(run.errorCount, quint64(1));
        QCOMPARE(run.errors.first().address, 0x40000000u);
        QCOMPARE(run.errors.first().bytes, 4);
        QVERIFY(!run.errors.first().isWrite);
        QCOMPARE(run.errors.first().programCounter, 0x12u);
        QCOMPARE(run.faultCount, quint64(1));
        QCOMPARE(run.faults.first().cause, QStringLiteral("misaligned"));
        QCOMPARE(run.unknownCount, quint64(1));
        QCOMPARE(run.unknownReads.first().bits, 0xFFu);
        QCOMPARE(run.lockUpCount, quint64(1));
        QCOMPARE(run.lockUps.first(), 0x1Au);
        QCOMPARE(run.end, 0x1Cu);
    }

    void refusesOtherFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const QByteArray head = "statistics 1\n";
        QTest::newRow("nothing") << QByteArray() << QStringLiteral("line 1");
        QTest::newRow("another version")
            << QByteArray("statistics 2\nend 0x0\n") << QStringLiteral("line 1");
        QTest::newRow("cut off") << head + "cycles 1\n" << QStringLiteral("line 3");
        QTest::newRow("cut off in its last line")
            << head + "end 0x00" << QStringLiteral("not complete");
        QTest::newRow("an unknown line") << head + "x 1\nend 0x0\n" << QStringLiteral("line 2");
        QTest::newRow("a number too few") << head + "cycles\nend 0x0\n" << QStringLiteral("line 2");
        QTest::newRow("a number too many") << head + "cycles 1 2\nend 0x0\n"
                                           << QStringLiteral("line 2");
        QTest::newRow("no number") << head + "cycles x\nend 0x0\n" << QStringLiteral("line 2");
        QTest::newRow("no address") << head + "lockup 12\nend 0x0\n" << QStringLiteral("line 2");
        QTest::newRow("an address that is too large") << head + "lockup 0x100000000\nend 0x0\n"
                                                      << QStringLiteral("line 2");
        QTest::newRow("neither read nor write") << head + "error 0x0 4 look 0x0\nend 0x0\n"
                                                << QStringLiteral("line 2");
    }

    void refusesOtherFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const auto run = readRunStatistics(bytes);
        QVERIFY(!run);
        QVERIFY2(run.reason().contains(reason), qPrintable(run.reason()));
    }

    void aMillionAddressesAndErrorsStayBounded()
    {
        Statistics statistics;
        for (quint32 i = 0; i < 1000000; ++i)
            statistics.countTransfer(i * 4096 + 4 * (i & 1023), 4, i & 1, true, i);
        for (quint32 i = 0; i < 1000000; ++i) {
            statistics.countFault(FaultCause::Bus, i);
            statistics.countUnknown(i, 1, i);
            statistics.countLockUp(i);
        }
        const QByteArray file = fileOf(statistics);
        QVERIFY2(file.size() < 8 << 20, qPrintable(QString::number(file.size())));
        const RunStatistics run = readBack(statistics);
        RunStatistics::Counts sum = run.elsewhere;
        QVERIFY(sum.reads != 0);
        for (const auto &part : {run.words, run.pages}) {
            for (const RunStatistics::Counts &counts : part) {
                sum.reads += counts.reads;
                sum.writes += counts.writes;
            }
        }
        QCOMPARE(sum.reads, quint64(500000));
        QCOMPARE(sum.writes, quint64(500000));
        QCOMPARE(run.errorCount, quint64(1000000));
        QCOMPARE(run.errors.size(), 100);
        QCOMPARE(run.faultCount, quint64(1000000));
        QCOMPARE(run.faults.size(), 100);
        QCOMPARE(run.unknownReads.size(), 100);
        QCOMPARE(run.lockUps.size(), 100);
    }

    void namesRegistersOfAnAccessedBlockThatNobodyTouched()
    {
        Statistics statistics;
        statistics.countTransfer(0x40000005, 1, false, false, 0);
        const RunDetails details = detailsOf(statistics);
        QVERIFY(!blockNamed(details, "ITCM"));
        QVERIFY(!blockNamed(details, ""));
        QCOMPARE(blockNamed(details, "A0")->reads, quint64(1));
        QCOMPARE(blockNamed(details, "A0")->untouched.join(u' '), QStringLiteral("R0 R2"));
        QCOMPARE(blockNamed(details, "A1")->reads, quint64(0));
        QVERIFY(blockNamed(details, "A1")->untouched.isEmpty());
    }

    void countsAddressesOfNoBlock()
    {
        Statistics statistics;
        statistics.countTransfer(0x90000000, 4, true, true, 0x20);
        const RunDetails details = detailsOf(statistics);
        QCOMPARE(blockNamed(details, "")->writes, quint64(1));
        QCOMPARE(details.errors.first().block, QString());
        QCOMPARE(details.errors.first().place.address, 0x20u);
    }

    void saysWhereRegistersAreNotToldApart()
    {
        Statistics statistics;
        for (quint32 i = 0; i < Statistics::mostWords + 10; ++i)
            statistics.countTransfer(0x30000000 + 4 * i, 4, false, false, 0);
        statistics.countTransfer(0x40000000, 4, false, false, 0);
        const RunDetails details = detailsOf(statistics);
        QCOMPARE(blockNamed(details, "DDR")->reads, quint64(Statistics::mostWords + 10));
        QCOMPARE(blockNamed(details, "A0")->reads, quint64(1));
        QVERIFY(!blockNamed(details, "A0")->isComplete);
        QVERIFY(blockNamed(details, "A0")->untouched.isEmpty());
        QVERIFY(blockNamed(details, "A1")->isComplete);
    }

    void namesInterruptsThatWereTakenAndThatWereNot()
    {
        Statistics statistics;
        statistics.countException(3);
        statistics.countException(16 + 5);
        const RunDetails details = detailsOf(statistics);
        QCOMPARE(details.interruptsNeverTaken.join(u' '), QStringLiteral("WDOG A0"));
        QCOMPARE(details.exceptions.size(), 2);
        QCOMPARE(details.exceptions.at(0).name, QStringLiteral("HardFault"));
        QCOMPARE(details.exceptions.at(1).name, QStringLiteral("A1"));
    }

    void everyCauseOfAFaultHasWords()
    {
        for (const FaultCause cause :
             {FaultCause::Bus, FaultCause::Undefined, FaultCause::Misaligned, FaultCause::State,
              FaultCause::Supervisor, FaultCause::Stacking, FaultCause::Unstacking,
              FaultCause::VectorTable}) {
            Statistics statistics;
            statistics.countFault(cause, 0);
            const QString text = detailsOf(statistics).faults.first().cause;
            QVERIFY2(text.contains(u' '), qPrintable(text));
        }
    }
};

QTEST_APPLESS_MAIN(tst_RunDetails)
#include "tst_rundetails.moc"
