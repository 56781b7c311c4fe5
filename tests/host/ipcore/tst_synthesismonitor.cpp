#include <testsupport.h>

#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using IPCore::SynthesisHelper;
using IPCore::SynthesisMonitor;
using Synthesis::RunReport;

namespace
{

// A folder with a program "yosys" that runs a shell script, first on PATH.
class FakeTool
{
public:
    explicit FakeTool(const QByteArray &script)
    {
        const QString path = dir.filePath(QStringLiteral("yosys"));
        TestSupport::write(path, "#!/bin/bash\n" + script);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", dir.path().toUtf8() + ':' + m_before);
    }
    ~FakeTool() { qputenv("PATH", m_before); }

    QTemporaryDir dir;

private:
    QByteArray m_before = qgetenv("PATH");
};

const QByteArray endless = "echo '1. Executing Verilog-2005 frontend: a.v'; exec sleep 100000\n";

IPCore::SynthesizeArgs argsFor(const QTemporaryDir &dir, const QString &name)
{
    const QString source = dir.filePath(QStringLiteral("top.v"));
    TestSupport::write(source, "module top (input a, output y);\n"
                               "    assign y = !a & unknown;\nendmodule\n");
    IPCore::SynthesizeArgs args;
    args.outputDir = dir.filePath(name);
    QDir().mkpath(args.outputDir);
    args.targetName = name;
    args.options = {{QStringLiteral("top_module"), QStringLiteral("top")},
                    {QStringLiteral("source_files"), QStringList{source}}};
    return args;
}

} // namespace

class TestSynthesisMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(SynthesisMonitor::instance().activeRuns().isEmpty()); }

    void tellsOfARunFromBeginningToEnd()
    {
        auto &monitor = SynthesisMonitor::instance();
        QSignalSpy started(&monitor, &SynthesisMonitor::runStarted);
        QSignalSpy ended(&monitor, &SynthesisMonitor::runFinished);
        const QTemporaryDir dir;
        SynthesisHelper helper;
        helper.setArgs(argsFor(dir, QStringLiteral("one")));
        QSignalSpy finished(&helper, &SynthesisHelper::finished);
        QSignalSpy stages(&helper, &SynthesisHelper::stageChanged);
        QSignalSpy log(&helper, &SynthesisHelper::logReceived);
        int endedBefore = -1;
        connect(&helper, &SynthesisHelper::finished, this, [&] { endedBefore = ended.size(); });

        helper.start();
        QCOMPARE(started.size(), 1);
        QCOMPARE(started.first().first().value<IPCore::SynthesisHelper *>(), &helper);
        QCOMPARE(monitor.activeRuns(), QList<SynthesisHelper *>{&helper});
        QVERIFY(finished.wait(60000));
        QCOMPARE(endedBefore, 1);
        QCOMPARE(ended.size(), 1);
        QVERIFY(monitor.activeRuns().isEmpty());
        QVERIFY(stages.size() > 3);
        QVERIFY(log.size() > 10);

        const auto report = ended.first().first().value<RunReport>();
        QCOMPARE(report.exitCode, 0);
        QCOMPARE(report.job.targetName, QStringLiteral("one"));
        QCOMPARE(report.files.size(), 2);
        QVERIFY(report.count(Synthesis::Message::Warning) > 0);
        QCOMPARE(helper.report().files, report.files);
        QCOMPARE(helper.report().summary, report.summary);
    }

    void passesOnWhatAPlugInHasToSay()
    {
        QSignalSpy noticed(&SynthesisMonitor::instance(), &SynthesisMonitor::noticed);
        SynthesisHelper helper;
        const QStringList notices = {QStringLiteral("One."), QStringLiteral("Two.")};
        // As a plug-in calls it, which knows its name only.
        QObject *object = &helper;
        QVERIFY(QMetaObject::invokeMethod(object, "tellNotices", Q_ARG(QStringList, notices)));
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toStringList(), notices);
        QVERIFY(QMetaObject::invokeMethod(object, "tellNotices", Q_ARG(QStringList, {})));
        QCOMPARE(noticed.size(), 1);
    }

    void aFailedStartIsARunToo()
    {
        auto &monitor = SynthesisMonitor::instance();
        QSignalSpy started(&monitor, &SynthesisMonitor::runStarted);
        QSignalSpy ended(&monitor, &SynthesisMonitor::runFinished);
        SynthesisHelper helper;
        helper.start();
        QCOMPARE(started.size(), 1);
        QVERIFY(ended.wait());
        QCOMPARE(ended.first().first().value<RunReport>().exitCode, 1);
        QCOMPARE(ended.first().first().value<RunReport>().messages.size(), 1);
    }

    void cancelsAllRuns()
    {
        auto &monitor = SynthesisMonitor::instance();
        QSignalSpy ended(&monitor, &SynthesisMonitor::runFinished);
        const FakeTool fake(endless);
        const QTemporaryDir dir;
        SynthesisHelper first;
        SynthesisHelper second;
        first.setArgs(argsFor(dir, QStringLiteral("first")));
        second.setArgs(argsFor(dir, QStringLiteral("second")));
        QSignalSpy stage(&second, &SynthesisHelper::stageChanged);
        first.start();
        second.start();
        first.start(); // ignored
        QCOMPARE(monitor.activeRuns(), (QList<SynthesisHelper *>{&first, &second}));
        QTRY_COMPARE(stage.size(), 1);
        monitor.cancelAll();
        QTRY_COMPARE(ended.size(), 2);
        for (const QVariantList &arguments : ended)
            QVERIFY(arguments.first().value<RunReport>().cancelled);
        QVERIFY(!first.isRunning());
        QVERIFY(!second.isRunning());
        monitor.cancelAll();
    }

    void aDestroyedHelperEndsItsRun()
    {
        auto &monitor = SynthesisMonitor::instance();
        QSignalSpy ended(&monitor, &SynthesisMonitor::runFinished);
        const FakeTool fake(endless);
        const QTemporaryDir dir;
        auto helper = std::make_unique<SynthesisHelper>();
        helper->setArgs(argsFor(dir, QStringLiteral("one")));
        helper->start();
        helper.reset();
        QCOMPARE(ended.size(), 1);
        const auto report = ended.first().first().value<RunReport>();
        QVERIFY(report.cancelled);
        QVERIFY(report.exitCode != 0);
        QVERIFY(monitor.activeRuns().isEmpty());
    }

    void whoHearsOfTheEndMayDeleteTheHelper()
    {
        const QTemporaryDir dir;
        auto helper = std::make_unique<SynthesisHelper>();
        helper->setArgs(argsFor(dir, QStringLiteral("one")));
        bool deleted = false;
        const auto connection =
            connect(&SynthesisMonitor::instance(), &SynthesisMonitor::runFinished, this, [&] {
                helper.reset();
                deleted = true;
            });
        helper->start();
        QTRY_VERIFY_WITH_TIMEOUT(deleted, 60000);
        disconnect(connection);
    }
};

TARVO_TEST_MAIN(QApplication, TestSynthesisMonitor)
#include "tst_synthesismonitor.moc"
