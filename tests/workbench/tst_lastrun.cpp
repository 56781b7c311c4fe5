#include <testsupport.h>

#include <workbench/messages/messagemodel.h>
#include <workbench/project/project.h>
#include <workbench/results/lastrun.h>
#include <workbench/results/resultpage.h>
#include <workbench/results/resulttables.h>

#include <dev/devicedb.h>

#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QTableView>
#include <QTemporaryDir>
#include <QThreadPool>
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

    void comparesWithTheRunBeforeOfTheSameIp()
    {
        const auto finish = [this](const char *ip, int luts, int carry) {
            m_run->expect();
            m_run->setReport(report(ip, luts, carry));
            QVERIFY(m_run->setDelivered(m_delivered));
        };
        finish("lamp", 100, 5);
        QCOMPARE(changes(*m_run), QStringList()); // there is nothing to compare with
        finish("bell", 7, 7);
        QCOMPARE(changes(*m_run), QStringList());
        finish("lamp", 1112, 2);
        QCOMPARE(changes(*m_run), (QStringList{QLatin1Char('+') + QLocale().toString(1012),
                                               QChar(0x2212) + QStringLiteral("3")}));
        QCOMPARE(
            changes(*m_run, Qt::AccessibleDescriptionRole),
            (QStringList{QLocale().toString(1012) + QLatin1String(" more than in the run before"),
                         QStringLiteral("3 fewer than in the run before")}));
        // A look at it after a restart changes nothing.
        for (int i = 0; i < 2; ++i) {
            m_run = make();
            m_run->setProject(m_project.get());
            QString error;
            QVERIFY2(m_run->prepare(&error), qPrintable(error));
            QCOMPARE(changes(*m_run).last(), QChar(0x2212) + QStringLiteral("3"));
        }
        finish("lamp", 1112, 2);
        QCOMPARE(changes(*m_run), (QStringList{QStringLiteral("="), QStringLiteral("=")}));
        QCOMPARE(changes(*m_run, Qt::AccessibleDescriptionRole).first(),
                 QStringLiteral("As many as in the run before"));
        finish("bell", 6, 7);
        QCOMPARE(changes(*m_run),
                 (QStringList{QChar(0x2212) + QStringLiteral("1"), QStringLiteral("=")}));
    }

    // A large report is read elsewhere.
    void comesBackLaterIfThereIsMuch()
    {
        const Synthesis::RunReport much = longReport("lamp", 5);
        m_run->setReport(much);
        QVERIFY(m_run->setDelivered(m_delivered));
        m_run = make();
        m_run->setProject(m_project.get());
        QString error;
        QVERIFY2(m_run->prepare(&error), qPrintable(error));
        QCOMPARE(m_run->page()->files(), QStringList());
        QTRY_COMPARE(m_run->page()->files(), m_delivered);
        QCOMPARE(m_messages.rowCount(), much.messages.size() + 1);
        // Who needs it now waits for it.
        m_run = make();
        m_run->setProject(m_project.get());
        QVERIFY2(m_run->complete(&error), qPrintable(error));
        QCOMPARE(m_run->page()->report().messages.size(), much.messages.size());
        // And so does the end of the next run, which is compared with it.
        m_run->expect();
        m_run->setReport(longReport("lamp", 8));
        QCOMPARE(changes(*m_run).first(), QStringLiteral("+3"));
        QVERIFY(m_run->setDelivered(m_delivered));
        // Which reads nothing if that has been read meanwhile.
        m_run->expect();
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(QDir(m_dir->filePath(QStringLiteral("runs"))).removeRecursively());
        m_run->setReport(longReport("lamp", 10));
        QCOMPARE(changes(*m_run).first(), QStringLiteral("+2"));
        QVERIFY(m_run->setDelivered(m_delivered));
        // Another project does not get it.
        m_run = make();
        m_run->setProject(m_project.get());
        QVERIFY(m_run->prepare(&error));
        m_run->setProject(nullptr);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(!m_run->isShown());
    }

    void saysWhyMuchDoesNotComeBack()
    {
        m_run->setReport(longReport("lamp", 5));
        QVERIFY(m_run->setDelivered(m_delivered));
        const QString folder = m_dir->filePath(QStringLiteral("runs"));
        const QStringList kept = QDir(folder).entryList(QDir::Files);
        QCOMPARE(kept.size(), 1);
        write(folder + u'/' + kept.first(), QByteArray(1 << 20, 'x'));
        m_run = make();
        m_run->setProject(m_project.get());
        QString error;
        QVERIFY(m_run->prepare(&error));
        const auto told = [this] {
            return m_run->page()->findChild<QLabel *>(QStringLiteral("resultSummary"))->text();
        };
        QTRY_VERIFY2(told().contains(kept.first()), qPrintable(told()));
        QVERIFY(!m_run->complete(&error));
        QVERIFY2(error.contains(kept.first()), qPrintable(error));
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
    // What the column of the table says that compares; empty: there is none.
    static QStringList changes(LastRun &run, int role = Qt::DisplayRole)
    {
        const auto *table = run.page()->findChild<QTableView *>(QStringLiteral("resourceTable"));
        const QAbstractItemModel *model = table->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->columnCount() > ResourceModel::Change)
                texts.append(model->index(row, ResourceModel::Change).data(role).toString());
        }
        return texts;
    }

    static Synthesis::RunReport report(const char *ip = "", int luts = 0, int carry = 0)
    {
        Synthesis::RunReport report;
        report.job.targetName = QLatin1String(ip);
        report.resources = {{QStringLiteral("LUT4"), luts, 20000},
                            {QStringLiteral("Carry"), carry, -1}};
        report.summary = QStringLiteral("All is made.");
        report.exitCode = 0;
        return report;
    }

    static Synthesis::RunReport longReport(const char *ip, int luts)
    {
        Synthesis::RunReport result = report(ip, luts);
        for (int i = 0; i < 3000; ++i) {
            Synthesis::Message message;
            message.severity = Synthesis::Message::Warning;
            message.text = QStringLiteral("Wire n%1 is used but has no driver.").arg(i);
            result.messages.append(message);
        }
        return result;
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
