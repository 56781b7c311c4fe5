#include <testsupport.h>

#include <workbench/messages/messagemodel.h>
#include <workbench/project/project.h>
#include <workbench/results/lastrun.h>
#include <workbench/results/resultpage.h>

#include <dev/devicedb.h>

#include <QTemporaryDir>
#include <QtTest>

using namespace Workbench;
using namespace TestSupport;

class TestLastRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QString error;
        m_project = Project::create(m_dir->filePath(QStringLiteral("p")), QStringLiteral("p"),
                                    DEV::DeviceDb::bundled().devices().first(), &error);
        QVERIFY2(m_project, qPrintable(error));
        m_delivered = QStringList(m_dir->filePath(QStringLiteral("top.vo")));
        write(m_delivered.first(), "module top;\nendmodule\n");
        m_window = std::make_unique<QWidget>();
        m_run = make();
        m_run->setProject(m_project.get());
    }
    void cleanup()
    {
        m_window.reset();
        m_project.reset();
        m_dir.reset();
    }

    void isThereOnceARunHasSucceeded()
    {
        QString error;
        QVERIFY(!m_run->isThere());
        QVERIFY(!m_run->prepare(&error));
        QVERIFY(!error.isEmpty());
        QSignalSpy changed(m_run, &LastRun::changed);
        m_run->setReport(report());
        QCOMPARE(changed.size(), 1);
        QVERIFY(m_run->isThere());
        QVERIFY(m_run->prepare(&error));
    }

    void onlyTheExpectedRunHasDeliveries()
    {
        QVERIFY(!m_run->setDelivered(m_delivered));
        m_run->setReport(report());
        QVERIFY(m_run->setDelivered(m_delivered));
        QCOMPARE(m_run->page()->files(), m_delivered);
        QVERIFY(!m_run->setDelivered({}));
        m_run->setReport(report());
        m_run->expect();
        QVERIFY(!m_run->setDelivered({}));
    }

    void comesBackAfterARestart()
    {
        m_run->setReport(report());
        QVERIFY(m_run->setDelivered(m_delivered));
        LastRun *later = make();
        later->setProject(m_project.get());
        QVERIFY(later->isThere());
        QString error;
        QVERIFY2(later->prepare(&error), qPrintable(error));
        QCOMPARE(later->page()->files(), m_delivered);
        QCOMPARE(m_messages.index(0, 0).data().toString(), report().summary);
    }

    void isForgottenWithItsProject()
    {
        m_run->setReport(report());
        m_run->setProject(nullptr);
        QVERIFY(!m_run->isThere());
        m_run->setProject(m_project.get());
        QVERIFY(!m_run->isThere()); // it was not kept
    }

private:
    static Synthesis::RunReport report()
    {
        Synthesis::RunReport report;
        report.summary = QStringLiteral("All is made.");
        report.exitCode = 0;
        return report;
    }

    LastRun *make()
    {
        auto *run = new LastRun(m_messages, m_window.get());
        run->setStore(RunStore(m_dir->filePath(QStringLiteral("runs"))));
        return run;
    }

    MessageModel m_messages;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<QWidget> m_window;
    LastRun *m_run = nullptr;
    QStringList m_delivered;
};

QTEST_MAIN(TestLastRun)
#include "tst_lastrun.moc"
