// The command "prove" around the proof itself, which tst_proof and the proofs of netlists try.

#include <testsupport.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

namespace
{

const QString command = QStringLiteral(TARVO_COMMAND);

} // namespace

class TestCliProve : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    // With temporary files in a folder of their own, and `tools` in front of the others.
    void start(QProcess &process, const QStringList &arguments, const QString &tools = {}) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), path("scratch"));
        if (!tools.isEmpty())
            environment.insert(QStringLiteral("PATH"),
                               tools + u':' + environment.value(QStringLiteral("PATH")));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_dir.path());
        process.start(command,
                      QStringList{QStringLiteral("prove"), QStringLiteral("core.ipc")} + arguments);
    }

    int run(const QStringList &arguments, QByteArray *out)
    {
        QProcess process;
        start(process, arguments);
        if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        *out = process.readAllStandardOutput();
        return process.exitCode();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("scratch")));
        QVERIFY(
            QFile::copy(QStringLiteral(TARVO_GOLDEN_DIR "/tv1lr-9c/config.ipc"), path("core.ipc")));
        QVERIFY(TestSupport::write(path("other.vg"), "module other (input a);\nendmodule\n"));
    }

    void whatIsNotProvenFails()
    {
        QByteArray out;
        const QStringList arguments = {QStringLiteral("--netlist"), QStringLiteral("other.vg"),
                                       QStringLiteral("--json"),    QStringLiteral("--out"),
                                       QStringLiteral("proof"),     QStringLiteral("--report"),
                                       QStringLiteral("report.md")};
        QCOMPARE(run(arguments, &out), 1);
        const QJsonObject object = QJsonDocument::fromJson(out).object();
        QCOMPARE(object.value(QLatin1String("result")).toString(), QStringLiteral("not decided"));
        QVERIFY(!object.value(QLatin1String("assumptions")).toArray().isEmpty());
        QVERIFY(!object.value(QLatin1String("errors")).toArray().isEmpty());
        int tried = 0;
        for (const QJsonValue &value : object.value(QLatin1String("parts")).toArray()) {
            const QJsonObject part = value.toObject();
            const QString result = part.value(QLatin1String("result")).toString();
            if (result == QLatin1String("assumed"))
                continue;
            QCOMPARE(result, QStringLiteral("not tried"));
            QVERIFY(!part.value(QLatin1String("reason")).toString().isEmpty());
            ++tried;
        }
        QCOMPARE(tried, 6);
        const QByteArray report = TestSupport::contentsOf(path("report.md"));
        QVERIFY(report.contains("Result: **not decided**"));
        QVERIFY(!report.contains(m_dir.path().toUtf8()));
        QCOMPARE(TestSupport::contentsOf(path("proof/proof.md")), report);
        QVERIFY(QFile::exists(path("proof/proof.json")));
        QVERIFY(TestSupport::entriesOf(path("scratch")).isEmpty());
    }

    void withoutVhdlThereIsNoPartOnIt()
    {
        QByteArray out;
        QCOMPARE(
            run({QStringLiteral("--netlist"), QStringLiteral("other.vg"),
                 QStringLiteral("--language"), QStringLiteral("verilog"), QStringLiteral("--json")},
                &out),
            1);
        QVERIFY(!out.contains("\"vhdl-logic\""));
    }

    void aMissingNetlistIsNamed()
    {
        for (const char *option : {"--netlist", "--vhdl-netlist"}) {
            QByteArray out;
            QCOMPARE(
                run({QLatin1String(option), QStringLiteral("missing.vg"), QStringLiteral("--json")},
                    &out),
                3);
            const QJsonObject error = QJsonDocument::fromJson(out)
                                          .object()
                                          .value(QLatin1String("errors"))
                                          .toArray()
                                          .at(0)
                                          .toObject();
            QCOMPARE(error.value(QLatin1String("file")).toString(), QStringLiteral("missing.vg"));
        }
    }

    void anInterruptEndsItClean()
    {
        const QString tool = path("tools/yosys");
        QVERIFY(TestSupport::write(tool, "#!/bin/sh\necho here > '" + path("mark").toUtf8() +
                                             "'\nexec sleep 1000\n"));
        QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner));
        for (const QStringList &arguments :
             {QStringList{}, QStringList{QStringLiteral("--netlist"), QStringLiteral("top.vg")}}) {
            QVERIFY(TestSupport::write(path("top.vg"), "module Tarvo_ORIX_M1_Top;\nendmodule\n"));
            QFile::remove(path("mark"));
            QProcess process;
            start(process, arguments, path("tools"));
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path("mark")), 60000);
            QCOMPARE(::kill(pid_t(process.processId()), SIGINT), 0);
            QVERIFY(process.waitForFinished(-1));
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), 130);
            QVERIFY(TestSupport::entriesOf(path("scratch")).isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestCliProve)
#include "tst_cliprove.moc"
