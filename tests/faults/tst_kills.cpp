#include "campaign.h"

#include <QtTest>

using namespace Faults;

// A part of what longfaults does. The seed of what is random is fixed, since the long form varies
// it.
class TestKills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
#ifdef TARVO_SANITIZED
        QSKIP("the sanitizers' run-time library wants to be loaded before every other");
#endif
        m_campaign = std::make_unique<Campaign>(QStringLiteral(TARVO_COMMAND));
        const QString complaint = m_campaign->prepare();
        QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    }

    void nothingStaysWhenKilledBetweenForkAndExec_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<int>("effect");
        QTest::newRow("as a child is made") << QByteArray("fork") << int(KillBefore);
        QTest::newRow("when a child is made") << QByteArray("fork") << int(KillAfter);
        QTest::newRow("while a child is about to become the tool")
            << QByteArray("exec") << int(KillMain);
    }

    void nothingStaysWhenKilledBetweenForkAndExec()
    {
        QFETCH(QByteArray, kind);
        QFETCH(int, effect);
        const int calls = m_campaign->calls(Generate, kind);
        QVERIFY(calls > 0);
        for (int at = 1; at <= calls; ++at) {
            Fault fault;
            fault.kind = kind;
            fault.at = at;
            fault.effect = effect;
            run(Generate, fault);
            if (QTest::currentTestFailed())
                return;
            QVERIFY(m_campaign->fired());
        }
    }

    void nothingIsHalfWhenKilled()
    {
        QRandomGenerator random(11);
        for (const Command command : {New, IncludeFiles, Export}) {
            for (const char *kind : {"write", "rename", "unlink"}) {
                const int calls = m_campaign->calls(command, kind);
                for (int at = 1; at <= calls; ++at) {
                    Fault fault;
                    fault.kind = kind;
                    fault.at = at;
                    fault.effect = at % 2 == 0 ? KillBefore : KillAfter;
                    run(command, fault);
                    if (QTest::currentTestFailed())
                        return;
                }
            }
        }
        for (int i = 0; i < 5; ++i) {
            const QString complaint = m_campaign->killAfter(Generate, random.bounded(500));
            QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
        }
    }

    void ofTwoRunsIntoOneFolderOneIsWhole_data()
    {
        QTest::addColumn<int>("command");
        QTest::addColumn<int>("pairs");
        QTest::newRow("include files only") << int(IncludeFiles) << 40;
        QTest::newRow("exports") << int(Export) << 20;
        QTest::newRow("whole runs") << int(Generate) << 5;
    }

    void ofTwoRunsIntoOneFolderOneIsWhole()
    {
        QFETCH(int, command);
        QFETCH(int, pairs);
        QRandomGenerator random(13);
        for (int i = 0; i < pairs; ++i) {
            const QString complaint =
                m_campaign->pair(Command(command), i % 2 == 0 ? 0 : random.bounded(10000));
            QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
        }
    }

private:
    void run(Command command, const Fault &fault)
    {
        const QString complaint = m_campaign->run(command, fault);
        QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    }

    std::unique_ptr<Campaign> m_campaign;
};

TARVO_TEST_MAIN(QCoreApplication, TestKills)
#include "tst_kills.moc"
