#include "hands.h"

#include <markedprocesses.h>

#include <workbench/companion/measurement.h>

#include <QDirIterator>
#include <QProcess>
#include <QSignalSpy>

#include <sched.h>

using namespace Workbench;
using namespace TestSupport;

namespace
{

MeasureCommand commandOf(const char *way, const QByteArray &configuration = "[Config]\nLamps=2\n")
{
    MeasureCommand command;
    command.program = QStringLiteral(TARVO_FAKE_TOOLS "/measurer/measure");
    command.arguments = QStringList{QString::fromLatin1(way), QStringLiteral("lamps.ipc")};
    command.file = QStringLiteral("lamps.ipc");
    command.configuration = configuration;
    return command;
}

QMap<QString, int> mapOf(const Utils::Result<QVector<MeasuredUse>> &result)
{
    QMap<QString, int> map;
    if (!result)
        return map;
    for (const MeasuredUse &use : *result)
        map.insert(use.resource, use.used);
    return map;
}

} // namespace

class TestMeasurement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_mark = std::make_unique<Mark>();
        qputenv(m_mark->name(), m_mark->value());
        qputenv("MEASURE_LOG", QFile::encodeName(log()));
        qputenv("MEASURE_HOME", qgetenv("HOME"));
    }
    void cleanup() { qunsetenv(m_mark->name()); }

    void countsWhatTheConfigurationTakes()
    {
        Measurement measurement(commandOf("count"));
        measurement.setIdle(false);
        QVERIFY(run(measurement));
        QCOMPARE(mapOf(measurement.result()),
                 (QMap<QString, int>{{QStringLiteral("LUT4"), 207},
                                     {QStringLiteral("Flip-flops"), 100}}));
    }

    void leavesTheProcessorToOthersAndSeesTheUsersCache()
    {
        Measurement measurement(commandOf("conditions"));
        QVERIFY(run(measurement));
        QCOMPARE(mapOf(measurement.result()),
                 (QMap<QString, int>{{QStringLiteral("nice"), 19},
                                     {QStringLiteral("policy"), SCHED_IDLE},
                                     {QStringLiteral("home"), 1},
                                     {QStringLiteral("files"), 2}})); // its own, and "tmp"
    }

    void failsWithASentence_data()
    {
        QTest::addColumn<QByteArray>("way");
        QTest::addColumn<QString>("reason");
        QTest::newRow("that the program tells")
            << QByteArray("refuse") << QStringLiteral("These lamps do not shine.");
        QTest::newRow("of its own") << QByteArray("fail") << QStringLiteral("exit code 3");
        QTest::newRow("about an answer that is none")
            << QByteArray("garble") << QStringLiteral("no \"resources\"");
    }
    void failsWithASentence()
    {
        QFETCH(QByteArray, way);
        QFETCH(QString, reason);
        Measurement measurement(commandOf(way.constData()));
        measurement.setIdle(false);
        QVERIFY(run(measurement));
        QVERIFY(!measurement.result());
        const QString told = measurement.result().reason();
        QVERIFY2(told.contains(reason) && told.endsWith(u'.'), qPrintable(told));
    }

    void failsWithASentenceWhereThereIsNoProgram()
    {
        MeasureCommand command = commandOf("count");
        command.program = m_dir->filePath(QStringLiteral("gone"));
        Measurement measurement(command);
        QVERIFY(run(measurement));
        QVERIFY2(measurement.result().reason().contains(command.program),
                 qPrintable(measurement.result().reason()));
    }

    void nothingStaysWhenItIsEnded_data()
    {
        QTest::addColumn<QByteArray>("way");
        QTest::newRow("a program with a child") << QByteArray("sleep");
        QTest::newRow("what is in a session of its own and still writes") << QByteArray("outlive");
    }
    void nothingStaysWhenItIsEnded()
    {
        QFETCH(QByteArray, way);
        auto measurement = std::make_unique<Measurement>(commandOf(way.constData()));
        measurement->setIdle(false);
        measurement->start();
        QTRY_VERIFY_WITH_TIMEOUT(!logged().isEmpty(), 30000);
        const QString folder = logged();
        QVERIFY(QFileInfo(folder).isDir());
        QVERIFY(m_mark->processes().size() >= 2);
        measurement.reset();
        QCOMPARE(m_mark->processes(), QList<qint64>());
        QVERIFY2(!QFileInfo::exists(folder), qPrintable(folder));
    }

    void nothingStaysWhenTheWorkbenchIsKilled_data() { nothingStaysWhenItIsEnded_data(); }
    void nothingStaysWhenTheWorkbenchIsKilled()
    {
        QFETCH(QByteArray, way);
        QProcess owner;
        owner.start(
            QStringLiteral(TARVO_MEASUREMENT_OWNER),
            {QStringLiteral(TARVO_FAKE_TOOLS "/measurer/measure"), QString::fromLatin1(way)});
        QVERIFY(owner.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(!logged().isEmpty(), 60000);
        const QString folder = logged();
        QVERIFY(QFileInfo(folder).isDir());
        owner.kill();
        QVERIFY(owner.waitForFinished(30000));
        QTRY_COMPARE_WITH_TIMEOUT(m_mark->processes(), QList<qint64>(), 60000);
        QVERIFY2(!QFileInfo::exists(folder), qPrintable(folder));
    }

    // And keeps the result for the next time.
    void measuresWhatThePlugInConfigures()
    {
        Bench bench;
        QObject *root =
            bench.catalogue.rootOf(bench.catalogue.indexOf(QStringLiteral("Tarvo_ORIX_M1")));
        QVERIFY(root);
        const QVariantMap configuration{
            {QStringLiteral("file"), m_dir->filePath(QStringLiteral("x.ipc"))},
            {QStringLiteral("header"),
             QVariantMap{
                 {QStringLiteral("target_device"), QStringLiteral("TV2KR-18C-QFN88P-C8/I7")},
                 {QStringLiteral("type"), QStringLiteral("tarvo.tarvo_orix_m1")},
                 {QStringLiteral("version"), QStringLiteral("1.0")}}},
            {QStringLiteral("options"), QVariantMap()}};
        QVariantMap answer;
        QVERIFY(QMetaObject::invokeMethod(root, "measureCommand", Qt::DirectConnection,
                                          Q_RETURN_ARG(QVariantMap, answer),
                                          Q_ARG(QVariantMap, configuration)));
        const auto command = EstimateAnswer::measureCommandOf(answer);
        QVERIFY2(command, qPrintable(command.reason()));
        QVERIFY2(command->error.isEmpty(), qPrintable(command->error));
        const QByteArray before = qgetenv("XDG_CACHE_HOME");
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_dir->filePath(QStringLiteral("cache"))));
        Measurement measurement(*command);
        measurement.setIdle(false);
        const bool isDone = run(measurement);
        qputenv("XDG_CACHE_HOME", before);
        QVERIFY(isDone);
        QVERIFY2(measurement.result(), qPrintable(measurement.result().reason()));
        const QMap<QString, int> uses = mapOf(measurement.result());
        QVERIFY(uses.value(QStringLiteral("LUT4")) > 100);
        QVERIFY(uses.value(QStringLiteral("Block RAM")) > 0);
        QCOMPARE(entriesOf(m_dir->path()), QStringList(QStringLiteral("cache")));
        QDirIterator kept(m_dir->filePath(QStringLiteral("cache")), QDir::Files,
                          QDirIterator::Subdirectories);
        QVERIFY(kept.hasNext());
    }

private:
    QString log() const { return m_dir->filePath(QStringLiteral("log")); }
    QString logged() const
    {
        const QByteArray text = contentsOf(log());
        return text.endsWith('\n') ? QFile::decodeName(text.trimmed()) : QString();
    }

    static bool run(Measurement &measurement)
    {
        QSignalSpy finished(&measurement, &Measurement::finished);
        measurement.start();
        return finished.wait(100000);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Mark> m_mark;
};

QTEST_MAIN(TestMeasurement)
#include "tst_measurement.moc"
