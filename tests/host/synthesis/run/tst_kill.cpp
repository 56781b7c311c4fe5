#include "../synthesisrun.h"

#include <markedprocesses.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace
{

constexpr int rounds = 22;

QByteArray bytesOf(const SynthesisRun &run, const char *suffix)
{
    return TestSupport::contentsOf(run.path(QLatin1String(suffix)));
}

const char *const suffixes[] = {".vg", ".vhg", ".vho", "_tmp.vhd"};

} // namespace

// Runs that end at a random moment. The seed of the moments is printed when a test fails;
// TARVO_TEST_SEED repeats it.
class TestKill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        bool given = false;
        m_seed = uint(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
        if (!given)
            m_seed = QRandomGenerator::global()->generate() & 0x7fffffff;
        m_random.seed(m_seed);
        qputenv(m_mark.name(), m_mark.value());
    }

    void cleanup()
    {
        if (QTest::currentTestFailed())
            qWarning("TARVO_TEST_SEED=%u", m_seed);
    }

    void leavesNothingBehind_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("the tool is killed") << 0;
        QTest::newRow("the run is cancelled") << 1;
        QTest::newRow("the runner is destroyed") << 2;
    }

    void leavesNothingBehind()
    {
        QFETCH(int, way);
        SynthesisRun reference;
        prepare(reference);
        QElapsedTimer clock;
        clock.start();
        RUN_SUCCEEDS(reference);
        int length = int(clock.elapsed());

        QSet<QString> names;
        for (const char *suffix : suffixes)
            names.insert(QLatin1String("core") + QLatin1String(suffix));
        SynthesisRun place;
        int ended = 0;
        for (int round = 0; round < rounds; ++round) {
            SynthesisRun run;
            prepare(run);
            run.job.outputDir = place.job.outputDir;
            const int moment = m_random.bounded(length);
            bool happened = false;
            std::unique_ptr<Synthesis::Runner> runner = std::make_unique<Synthesis::Runner>();
            QSignalSpy finished(runner.get(), &Synthesis::Runner::finished);
            QTimer later;
            later.setSingleShot(true);
            connect(&later, &QTimer::timeout, runner.get(), [&] {
                happened = true;
                if (way == 0) {
                    const QList<qint64> tools = m_mark.processes("yosys");
                    for (const qint64 pid : tools)
                        ::kill(pid_t(pid), SIGKILL);
                    if (tools.isEmpty()) // between two of them
                        later.start(1);
                } else if (way == 1) {
                    runner->cancel();
                }
            });
            later.start(moment);
            runner->setJob(run.job);
            clock.start();
            runner->start();
            QTRY_VERIFY_WITH_TIMEOUT(happened || !finished.isEmpty(), 240000);
            if (way != 2)
                QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty(), 240000);
            const bool success = !finished.isEmpty() && finished.first().first().toInt() == 0;
            ended += success ? 0 : 1;
            // The machine may have more time for it than before.
            if (success)
                length = std::min(length, int(clock.elapsed()) + 1);
            runner.reset();

            // What is killed goes when the kernel gets round to it.
            QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes(), QList<qint64>(), 60000);
            QStringList entries = TestSupport::entriesOf(place.job.outputDir);
            entries.removeAll(QStringLiteral("core.log"));
            QCOMPARE(QSet<QString>(entries.begin(), entries.end()) - names, QSet<QString>());
            for (const char *suffix : suffixes)
                QVERIFY2(!QFile::exists(place.path(QLatin1String(suffix))) ||
                             bytesOf(place, suffix) == bytesOf(reference, suffix),
                         suffix);
            QVERIFY(success || entries.isEmpty() || entries.size() == int(std::size(suffixes)));
        }
        QVERIFY2(ended > rounds / 4, qPrintable(QString::number(ended)));

        SynthesisRun next;
        prepare(next);
        next.job.outputDir = place.job.outputDir;
        RUN_SUCCEEDS(next);
        for (const char *suffix : suffixes)
            QVERIFY(bytesOf(next, suffix) == bytesOf(reference, suffix));
        QCOMPARE(TestSupport::entriesOf(place.job.outputDir).size(), 1 + int(std::size(suffixes)));
    }

    // Whoever is killed of those who watch, the rest goes too.
    void nothingStaysWithoutTheGuard()
    {
        const QByteArray before = qgetenv("PATH");
        qputenv("PATH", QByteArray(FAKES_DIR "/sleeping:") + before);
        SynthesisRun run;
        prepare(run);
        run.start();
        qputenv("PATH", before);
        QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes("sleep").size(), 1, 60000);
        const auto parentOf = [](qint64 process) {
            const QByteArray stat =
                TestSupport::contentsOf(QStringLiteral("/proc/%1/stat").arg(process));
            return stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
        };
        // Of the tool's child, the tool.
        const qint64 guard = parentOf(parentOf(m_mark.processes("sleep").first()));
        QVERIFY(guard != ::getpid());
        QVERIFY(guard > 1);
        ::kill(pid_t(guard), SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(!run.finished.isEmpty(), 60000);
        QVERIFY(run.finished.first().first().toInt() != 0);
        QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes(), QList<qint64>(), 60000);
    }

private:
    static void prepare(SynthesisRun &run)
    {
        run.job.options[QStringLiteral("write_vhdl")] = true;
        run.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
    }

    TestSupport::Mark m_mark;
    QRandomGenerator m_random;
    uint m_seed = 0;
};

TARVO_TEST_MAIN(QCoreApplication, TestKill)
#include "tst_kill.moc"
