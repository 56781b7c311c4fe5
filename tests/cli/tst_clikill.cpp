#include <markedprocesses.h>
#include <signals.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace
{

constexpr int rounds = 12;

// Takes the place of the subsystem's sources, so that a run is short.
const QByteArray source =
    "module Tarvo_ORIX_M1_Top (input HCLK, input hwRstn, input [7:0] a, output reg [7:0] y);\n"
    "    reg [7:0] memory [0:2047];\n"
    "    reg [10:0] at;\n"
    "    always @(posedge HCLK or negedge hwRstn)\n"
    "        if (!hwRstn) at <= 11'd0; else at <= at + 11'd1;\n"
    "    always @(posedge HCLK) memory[at] <= a;\n"
    "    always @(posedge HCLK) y <= memory[~at];\n"
    "endmodule\n";

} // namespace

// "orixm1 generate" that ends at a random moment. The seed of the moments is printed when a test
// fails; TARVO_TEST_SEED repeats it.
class tst_CliKill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void leavesNothingBehind_data();
    void leavesNothingBehind();
    void takesTheToolsChildrenAlong();
    void theManifestTellsTheTruthAfterwards();

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    QStringList arguments(const char *out) const;
    std::unique_ptr<QProcess> start(const char *out, const QStringList &further = {}) const;
    void configure(bool gpio) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    TestSupport::Mark m_mark;
    QRandomGenerator m_random;
    uint m_seed = 0;
};

void tst_CliKill::init()
{
    bool given = false;
    m_seed = uint(qEnvironmentVariableIntValue("TARVO_TEST_SEED", &given));
    if (!given)
        m_seed = QRandomGenerator::global()->generate() & 0x7fffffff;
    m_random.seed(m_seed);

    m_dir = std::make_unique<QTemporaryDir>();
    TestSupport::write(path("ip/data/debug/top.v"), source);
    QVERIFY(QFile::copy(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"),
                        path("ip/tarvo_orix_m1.ipspec")));
    configure(false);
}

void tst_CliKill::configure(bool gpio) const
{
    TestSupport::write(path("config.ipc"), QByteArray("[General]\n"
                                                      "target_device=TV2KR-18C-QFN88P-C8/I7\n"
                                                      "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n"
                                                      "[Config]\nLANG=1\n") +
                                               (gpio ? "Enable%20GPIO=true\n" : ""));
}

void tst_CliKill::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning("TARVO_TEST_SEED=%u", m_seed);
}

QStringList tst_CliKill::arguments(const char *out) const
{
    return {QStringLiteral("--data"), path("ip"), QStringLiteral("generate"), path("config.ipc"),
            QStringLiteral("--out"),  path(out)};
}

std::unique_ptr<QProcess> tst_CliKill::start(const char *out, const QStringList &further) const
{
    auto process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(m_mark.name()), QString::fromLatin1(m_mark.value()));
    process->setProcessChannelMode(QProcess::MergedChannels);
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), path("cache"));
    process->setProcessEnvironment(environment);
    process->start(QStringLiteral(TARVO_COMMAND), arguments(out) + further);
    return process;
}

void tst_CliKill::leavesNothingBehind_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGKILL") << SIGKILL;
}

void tst_CliKill::leavesNothingBehind()
{
    QFETCH(int, signal);
    QElapsedTimer clock;
    clock.start();
    auto reference = start("reference");
    QVERIFY(reference->waitForFinished(240000));
    int length = int(clock.elapsed());
    QVERIFY2(reference->exitCode() == 0, reference->readAll().constData());
    const QStringList outputs = TestSupport::entriesOf(path("reference"));
    const QStringList results = TestSupport::entriesOf(path("reference/temp/tv_orix_m1"));
    QCOMPARE(outputs.size(), 5);

    int killed = 0;
    for (int round = 0; round < rounds; ++round) {
        clock.start();
        auto process = start("out", {QStringLiteral("--no-cache"), QStringLiteral("--force")});
        const int moment = m_random.bounded(length);
        bool happened = false;
        QTimer::singleShot(moment, process.get(), [&] {
            happened = true;
            if (process->state() != QProcess::NotRunning)
                TestSupport::sendSignal(*process, signal);
        });
        QTRY_VERIFY_WITH_TIMEOUT(process->state() == QProcess::NotRunning, 240000);
        killed += happened ? 1 : 0;
        // The machine may have more time for it than before.
        if (!happened)
            length = std::min(length, int(clock.elapsed()) + 1);
        // What is killed goes when the kernel gets round to it.
        QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes(), QList<qint64>(), 60000);

        // Whatever is there is whole.
        const auto isWhole = [&](const QString &file) {
            const QString made = path("out/") + file;
            return !QFileInfo::exists(made) ||
                   TestSupport::contentsOf(made) ==
                       TestSupport::contentsOf(path("reference/") + file);
        };
        for (const QString &name : outputs)
            QVERIFY2(name == QLatin1String("temp") || isWhole(name), qPrintable(name));
        for (const QString &name : results)
            // What the manifest says then has a test of its own.
            QVERIFY2(name.endsWith(QLatin1String(".log")) ||
                         name == QLatin1String("manifest.json") ||
                         isWhole(QLatin1String("temp/tv_orix_m1/") + name),
                     qPrintable(name));
    }
    QVERIFY2(killed > rounds / 4, qPrintable(QString::number(killed)));

    auto last = start("out");
    QVERIFY(last->waitForFinished(240000));
    QVERIFY2(last->exitCode() == 0, last->readAll().constData());
    // Joined, so that a difference is shown by its names.
    QCOMPARE(TestSupport::entriesOf(path("out/temp/tv_orix_m1")).join(u' '), results.join(u' '));
    for (const QString &name : outputs)
        QCOMPARE(TestSupport::contentsOf(path("out/") + name),
                 TestSupport::contentsOf(path("reference/") + name));
}

// The kernel tells only the tool of its parent's death; the tool's own child has to be found too.
void tst_CliKill::takesTheToolsChildrenAlong()
{
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QByteArray(FAKES_DIR "/sleeping:") + before);
    const auto process = start("out");
    qputenv("PATH", before);
    QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes("sleep").size(), 1, 60000);
    QVERIFY(m_mark.processes().size() >= 3);
    TestSupport::sendSignal(*process, SIGKILL);
    QVERIFY(process->waitForFinished(240000));
    QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes(), QList<qint64>(), 60000);
}

// Runs of two configurations by turns, with results of the tool and of the cache, none to its end.
void tst_CliKill::theManifestTellsTheTruthAfterwards()
{
    constexpr int kills = 50;
    const QString check = QStringLiteral("--check");
    const char *const references[] = {"reference0", "reference1"};
    const QStringList withTool = {QStringLiteral("--no-cache"), QStringLiteral("--force")};
    int lengths[2] = {0, 0}; // with the tool, from the cache
    QElapsedTimer clock;
    for (const bool gpio : {false, true}) {
        configure(gpio);
        auto reference = start(references[gpio]);
        QVERIFY(reference->waitForFinished(240000));
        QVERIFY2(reference->exitCode() == 0, reference->readAll().constData());
    }
    for (const bool isCached : {false, true}) {
        clock.start();
        auto timed = start("timed", isCached ? QStringList() : withTool);
        QVERIFY(timed->waitForFinished(240000));
        lengths[isCached] = int(clock.elapsed());
        QVERIFY(QDir(path("timed")).removeRecursively());
    }

    int stale = 0;
    for (int round = 0; round < kills; ++round) {
        const bool gpio = m_random.bounded(2) != 0;
        const bool isCached = round % 4 != 0;
        configure(gpio);
        auto process = start("out", isCached ? QStringList() : withTool);
        QTimer::singleShot(int(m_random.bounded(lengths[isCached])), process.get(), [&] {
            if (process->state() != QProcess::NotRunning)
                TestSupport::sendSignal(*process, SIGKILL);
        });
        QTRY_VERIFY_WITH_TIMEOUT(process->state() == QProcess::NotRunning, 240000);

        auto told = start("out", {check, QStringLiteral("--json")});
        QVERIFY(told->waitForFinished(240000));
        const QByteArray text = told->readAll();
        const QJsonObject object = QJsonDocument::fromJson(text).object();
        const QJsonArray files = object.value(QStringLiteral("files")).toArray();
        QVERIFY2(files.size() >= 7, text.constData());
        const bool isFresh = object.value(QStringLiteral("state")) == QStringLiteral("fresh");
        QCOMPARE(told->exitCode(), isFresh ? 0 : 1);
        stale += isFresh ? 0 : 1;
        for (const QJsonValue &value : files) {
            const QJsonObject file = value.toObject();
            const QString name = file.value(QStringLiteral("path")).toString();
            const QString state = file.value(QStringLiteral("state")).toString();
            // Nobody has edited anything.
            QVERIFY2(state != QStringLiteral("edited"), text.constData());
            const bool isThere = QFileInfo::exists(path("out/") + name);
            QVERIFY2(isThere == (state != QStringLiteral("missing")), text.constData());
            if (state == QStringLiteral("fresh"))
                QVERIFY2(TestSupport::contentsOf(path("out/") + name) ==
                             TestSupport::contentsOf(path(references[gpio]) + u'/' + name),
                         text.constData());
        }
    }
    QVERIFY(stale > 0);

    QTRY_COMPARE_WITH_TIMEOUT(m_mark.processes(), QList<qint64>(), 60000);
    configure(false);
    auto last = start("out");
    QVERIFY(last->waitForFinished(240000));
    QVERIFY2(last->exitCode() == 0, last->readAll().constData());
    auto told = start("out", {check});
    QVERIFY(told->waitForFinished(240000));
    QVERIFY2(told->exitCode() == 0, told->readAll().constData());
}

TARVO_TEST_MAIN(QCoreApplication, tst_CliKill)
#include "tst_clikill.moc"
