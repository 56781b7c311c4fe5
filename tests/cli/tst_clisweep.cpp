#include <markedprocesses.h>
#include <signals.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

// Takes the place of the subsystem's sources, so that a run is short.
const QByteArray source =
    "module Tarvo_ORIX_M1_Top (input HCLK, input hwRstn, output reg [7:0] y);\n"
    "    always @(posedge HCLK or negedge hwRstn)\n"
    "        if (!hwRstn) y <= 8'd0; else y <= y + 8'd1;\n"
    "endmodule\n";

struct Run {
    int status = -1;
    QByteArray out;
    QByteArray err;

    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
    QStringList states() const
    {
        QStringList list;
        const QJsonArray points = json().value(QLatin1String("points")).toArray();
        for (const QJsonValue &point : points)
            list.append(point.toObject().value(QLatin1String("state")).toString());
        return list;
    }
};

} // namespace

// "orixm1 sweep" as people run it: as a process.
class tst_CliSweep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_environment = QProcessEnvironment::systemEnvironment();
        for (const char *variant : {"debug", "no_debug"})
            QVERIFY(TestSupport::write(
                path("ip/data/") + QLatin1String(variant) + QLatin1String("/top.v"), source));
        QVERIFY(QFile::copy(QStringLiteral(TARVO_IP_DATA_DIR "/tarvo_orix_m1.ipspec"),
                            path("ip/tarvo_orix_m1.ipspec")));
        plan("[1, 2]");
    }

    void wrongUsageIsStatusTwo()
    {
        QCOMPARE(run({"sweep", "plan.json"}).status, 2);
        QCOMPARE(run({"sweep", "--out", "out"}).status, 2);
        QCOMPARE(run({"sweep", "plan.json", "--out", "out", "--table"}).status, 2);
        QCOMPARE(run({"sweep", "--out", "out", "--point", "../a"}).status, 2);
        QCOMPARE(run({"sweep", "plan.json", "--out", "out", "--no-synth", "--snakemake"}).status,
                 2);
        QVERIFY(!QFileInfo::exists(path("out")));
    }

    void aMistakeStartsNothing()
    {
        TestSupport::write(path("plan.json"), "{\"devices\": [\"TV2KR-18C\"],\n\"grids\": {}}");
        const Run told = run({"sweep", "plan.json", "--out", "out", "--json"});
        QCOMPARE(told.status, 3);
        QVERIFY2(told.err.contains("plan.json:2:10: grids: Unknown key \"grids\". Did you mean "
                                   "\"grid\"?"),
                 told.err.constData());
        const QJsonObject error =
            told.json().value(QLatin1String("errors")).toArray().first().toObject();
        QCOMPARE(error.value(QLatin1String("line")).toInt(), 2);
        QCOMPARE(error.value(QLatin1String("key")).toString(), QStringLiteral("grids"));
        QCOMPARE(error.value(QLatin1String("file")).toString(), QStringLiteral("plan.json"));
        QVERIFY(!QFileInfo::exists(path("out")));
    }

    void tellsWhatIsPossibleWithoutSynthesis()
    {
        const Run told =
            run({"sweep", TARVO_EXAMPLES_DIR "/sweep.json", "--out", "out", "--no-synth", "--json"},
                false);
        QVERIFY2(told.status == 0, told.err.constData());
        QVERIFY(told.err.isEmpty());
        QCOMPARE(told.states(),
                 QStringList(QVector<QString>(12, QStringLiteral("possible")).toList()));
        QCOMPARE(TestSupport::entriesOf(path("out")),
                 QStringList({QStringLiteral("sweep.csv"), QStringLiteral("sweep.json"),
                              QStringLiteral("sweep.svg")}));
    }

    void writesTheFilesOfEachPointOnRequest()
    {
        QCOMPARE(run({"sweep", "plan.json", "--out", "out", "--no-synth", "--files"}).status, 0);
        const QString folder = path("out/points/") + name(2);
        QVERIFY(QFileInfo::exists(folder + QLatin1String("/temp/tv_orix_m1/parameter.vh")));
        QCOMPARE(
            run({"check", QFile::encodeName(folder + QLatin1String("/tarvo_orix_m1.ipc"))}).status,
            0);
    }

    void synthesisesOnceAndAgainWhatHasChanged()
    {
        Run first = run({"sweep", "plan.json", "--out", "out", "--json", "-j", "2"});
        QVERIFY2(first.status == 0, first.err.constData());
        QCOMPARE(first.states(), states({"done", "done"}));
        QVERIFY(first.err.isEmpty());
        const QString log = QLatin1String("/temp/tv_orix_m1/tarvo_orix_m1.log");
        const QString result = path("out/points/") + name(1) + QLatin1String("/result.json");
        const auto changed = [&result] { return QFileInfo(result).lastModified(); };
        const QDateTime before = changed();
        const QByteArray csv = TestSupport::contentsOf(path("out/sweep.csv"));
        QVERIFY2(csv.contains(",done,,1,"), csv.constData());
        // Nothing that is kept names the machine.
        for (const char *file : {"build.ninja", "points.json", "sweep.json", "sweep.csv"})
            QVERIFY2(!TestSupport::contentsOf(path("out/") + QLatin1String(file))
                          .contains(QFile::encodeName(m_dir->path())),
                     file);

        // The same again, and a larger plan.
        plan("[1, 3]");
        QVERIFY(QFile::remove(path("out/points/") + name(1) + log));
        const Run larger = run({"sweep", "plan.json", "--out", "out", "--json"});
        QCOMPARE(larger.states(), states({"done", "done"}));
        QCOMPARE(changed(), before);
        QVERIFY(!QFileInfo::exists(path("out/points/") + name(1) + log));

        // Other RTL.
        TestSupport::write(path("ip/data/debug/top.v"),
                           QByteArray(source).replace("[7:0]", "[9:0]"));
        const Run again = run({"sweep", "plan.json", "--out", "out", "--json"});
        QVERIFY2(again.status == 0, again.err.constData());
        QVERIFY(QFileInfo::exists(path("out/points/") + name(1) + log));
        QVERIFY(TestSupport::contentsOf(path("out/sweep.csv")) != csv);
    }

    void resultsOfAnotherToolDoNotHold()
    {
        // The tool under another version.
        QVERIFY(TestSupport::write(path("bin/yosys"),
                                   "#!/bin/sh\n"
                                   "[ \"$1\" = -V ] && { echo Yosys 99; exit; }\n"
                                   "exec \"$REAL_YOSYS\" \"$@\"\n"));
        QVERIFY(QFile::setPermissions(path("bin/yosys"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        const QString real = QStandardPaths::findExecutable(QStringLiteral("yosys"));
        QProcessEnvironment other = QProcessEnvironment::systemEnvironment();
        other.insert(QStringLiteral("REAL_YOSYS"), real);
        other.insert(QStringLiteral("PATH"), path("bin:") + other.value(QStringLiteral("PATH")));
        QProcessEnvironment without = other;
        QVERIFY(QDir().mkpath(path("few")));
        without.insert(QStringLiteral("PATH"), path("few"));

        const QString result = path("out/points/") + name(1) + QLatin1String("/result.json");
        const auto tool = [&result] {
            return QJsonDocument::fromJson(TestSupport::contentsOf(result))
                .object()
                .value(QLatin1String("tool"))
                .toString();
        };
        plan("[1]");
        QCOMPARE(run({"sweep", "plan.json", "--out", "out", "--json"}).states(), states({"done"}));
        const QString first = tool();
        QVERIFY2(first.startsWith(QLatin1String("Yosys ")), qPrintable(first));

        // Neither looking nor running takes it for its own; only a machine without a tool does.
        m_environment = other;
        QCOMPARE(run({"sweep", "--out", "out", "--table", "--json"}).states(),
                 states({"not done"}));
        m_environment = without;
        QCOMPARE(run({"sweep", "--out", "out", "--table", "--json"}).states(), states({"done"}));
        m_environment = other;
        QCOMPARE(run({"sweep", "plan.json", "--out", "out", "--json"}).states(), states({"done"}));
        QCOMPARE(tool(), QStringLiteral("Yosys 99"));
        m_environment = QProcessEnvironment::systemEnvironment();
        QCOMPARE(run({"sweep", "plan.json", "--out", "out", "--json"}).states(), states({"done"}));
        QCOMPARE(tool(), first);
    }

    void aPointThatFailsDoesNotEndTheOthers()
    {
        TestSupport::write(path("plan.json"),
                           "{\"devices\": [\"TV2KR-18C\"], \"list\": ["
                           "{\"name\": \"good\"}, {\"name\": \"bad\", \"Enable Debug\": false}, "
                           "{\"name\": \"large\", \"ITCM_Size\": 9}]}");
        TestSupport::write(path("ip/data/no_debug/top.v"), "module broken(;\n");
        const Run told = run({"sweep", "plan.json", "--out", "out", "--json"});
        QCOMPARE(told.status, 1);
        QCOMPARE(told.states(), states({"done", "failed", "not possible"}));
        const QJsonArray errors = told.json().value(QLatin1String("errors")).toArray();
        QCOMPARE(errors.size(), 1);
        QVERIFY(errors.first()
                    .toObject()
                    .value(QLatin1String("text"))
                    .toString()
                    .contains(QLatin1String("top.v")));
    }

    void endsCleanWhenItIsEnded_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGKILL") << SIGKILL;
    }

    void endsCleanWhenItIsEnded()
    {
        QFETCH(int, signal);
        const TestSupport::Mark mark;
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(mark.name()), QString::fromLatin1(mark.value()));
        environment.insert(QStringLiteral("PATH"), QLatin1String(FAKES_DIR "/sleeping:") +
                                                       environment.value(QStringLiteral("PATH")));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_dir->path());
        process.start(QStringLiteral(TARVO_COMMAND),
                      words({"--data", "ip", "sweep", "plan.json", "--out", "out", "-j", "2"}));
        QTRY_COMPARE_WITH_TIMEOUT(mark.processes("sleep").size(), 2, 60000);
        QVERIFY(TestSupport::sendSignal(process, signal));
        QVERIFY(process.waitForFinished(-1));
        QTRY_COMPARE_WITH_TIMEOUT(mark.processes(), QList<qint64>(), 60000);
        QVERIFY(!QFileInfo::exists(path("out/points/") + name(1) + QLatin1String("/result.json")));
        if (signal != SIGKILL) {
            QCOMPARE(process.exitCode(), 130);
            const QByteArray csv = TestSupport::contentsOf(path("out/sweep.csv"));
            QCOMPARE(csv.count(",not done,"), 2);
        }
        // And goes on from there.
        const Run told = run({"sweep", "plan.json", "--out", "out", "--json"});
        QVERIFY2(told.status == 0, told.err.constData());
        QCOMPARE(told.states(), states({"done", "done"}));
    }

    void writesAWorkflowAndCollectsWhatItsJobsHaveDone()
    {
        const Run written = run({"sweep", "plan.json", "--out", "out", "--snakemake", "--json"});
        QVERIFY2(written.status == 0, written.err.constData());
        QCOMPARE(written.states(), states({"not done", "not done"}));
        QVERIFY(TestSupport::contentsOf(path("out/Snakefile")).contains("rule point:"));
        const QByteArray point = name(1).toUtf8();
        QCOMPARE(run({"sweep", "--out", "out", "--point", point.constData()}).status, 0);
        const Run table = run({"sweep", "--out", "out", "--table", "--json"});
        QCOMPARE(table.states(), states({"done", "not done"}));
    }

private:
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }
    static QString name(int size)
    {
        return QStringLiteral("TV2KR-18C-QFN88P-C8-I7.ITCM_Size=%1").arg(size);
    }
    static QStringList words(std::initializer_list<const char *> list)
    {
        QStringList result;
        for (const char *word : list)
            result.append(QString::fromUtf8(word));
        return result;
    }
    static QStringList states(std::initializer_list<const char *> list) { return words(list); }
    void plan(const char *sizes) const
    {
        QVERIFY(TestSupport::write(path("plan.json"),
                                   "{\"devices\": [\"TV2KR-18C-QFN88P-C8/I7\"], \"grid\": "
                                   "{\"ITCM_Size\": " +
                                       QByteArray(sizes) + "}}"));
    }
    Run run(std::initializer_list<const char *> arguments, bool withOwnIp = true) const
    {
        QProcess process;
        process.setWorkingDirectory(m_dir->path());
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(TARVO_COMMAND),
                      (withOwnIp ? words({"--data", "ip"}) : QStringList()) + words(arguments));
        if (!process.waitForFinished(-1))
            return {};
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QProcessEnvironment m_environment;
};

TARVO_TEST_MAIN(QCoreApplication, tst_CliSweep)
#include "tst_clisweep.moc"
