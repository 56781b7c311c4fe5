#include "campaign.h"

#include <QtTest>

using namespace Faults;

// A part of what longfaults does. The seed of what is random is fixed, since the long form varies
// it.
class TestFaults : public QObject
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

    void everyFaultIsToldAndDoesNoHarm_data()
    {
        QTest::addColumn<int>("command");
        QTest::newRow("a new configuration") << int(New);
        QTest::newRow("include files only") << int(IncludeFiles);
        QTest::newRow("an export") << int(Export);
    }

    void everyFaultIsToldAndDoesNoHarm()
    {
        QFETCH(int, command);
        int fired = 0;
        for (const char *kind : kinds) {
            const int calls = m_campaign->calls(Command(command), kind);
            QVERIFY(calls >= 0);
            for (int at = 1; at <= calls; ++at) {
                // Each place with one error, where something is written with each.
                const bool matters =
                    !strcmp(kind, "write") || !strcmp(kind, "fsync") || !strcmp(kind, "rename");
                for (int i = 0; i < (matters ? 4 : 1); ++i) {
                    Fault fault;
                    fault.kind = kind;
                    fault.at = at;
                    fault.effect = errorNumbers[(at + i) % 4];
                    run(Command(command), fault);
                    if (QTest::currentTestFailed())
                        return;
                    fired += m_campaign->fired() ? 1 : 0;
                }
            }
        }
        QVERIFY2(fired > 20, qPrintable(QString::number(fired)));
    }

    void shortCountsChangeNothing_data()
    {
        everyFaultIsToldAndDoesNoHarm_data();
    }

    void shortCountsChangeNothing()
    {
        QFETCH(int, command);
        const int calls = m_campaign->calls(Command(command), "write");
        QVERIFY(calls > 0);
        for (int at = 1; at <= calls; ++at) {
            Fault fault;
            fault.kind = "write";
            fault.at = at;
            fault.effect = ShortCount;
            run(Command(command), fault);
            if (QTest::currentTestFailed())
                return;
            QVERIFY(m_campaign->fired());
            QCOMPARE(m_campaign->status(), 0);
        }
    }

    void aDiskThatTakesNothingKeepsTheOldFiles_data()
    {
        QTest::addColumn<int>("command");
        QTest::addColumn<QByteArray>("kind");
        for (const char *kind : {"write", "fsync", "rename"}) {
            QTest::addRow("a new configuration, %s", kind) << int(New) << QByteArray(kind);
            QTest::addRow("include files only, %s", kind) << int(IncludeFiles) << QByteArray(kind);
            QTest::addRow("a whole run, %s", kind) << int(Generate) << QByteArray(kind);
            QTest::addRow("an export, %s", kind) << int(Export) << QByteArray(kind);
        }
    }

    void aDiskThatTakesNothingKeepsTheOldFiles()
    {
        QFETCH(int, command);
        QFETCH(QByteArray, kind);
        Fault fault;
        fault.kind = kind;
        fault.at = 1;
        fault.effect = ENOSPC;
        fault.lasting = true;
        run(Command(command), fault);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(m_campaign->fired());
        QVERIFY(m_campaign->status() > 0);
    }

    void faultsOfAWholeRun_data()
    {
        QTest::addColumn<QByteArray>("programs");
        QTest::addColumn<int>("samples");
        QTest::newRow("in the program") << QByteArray("orixm1") << 16;
        QTest::newRow("in the tool") << QByteArray("yosys:yosys-abc") << 6;
    }

    void faultsOfAWholeRun()
    {
        QFETCH(QByteArray, programs);
        QFETCH(int, samples);
        QRandomGenerator random(7);
        QVector<Fault> places;
        for (const char *kind : kinds) {
            Fault fault;
            fault.kind = kind;
            fault.programs = programs;
            const int calls = m_campaign->calls(Generate, kind, programs);
            QVERIFY(calls >= 0);
            for (fault.at = 1; fault.at <= calls; ++fault.at)
                places << fault;
        }
        QVERIFY2(places.size() > 50, qPrintable(QString::number(places.size())));
        for (int i = 0; i < samples; ++i) {
            Fault fault = places.at(random.bounded(places.size()));
            fault.effect = errorNumbers[random.bounded(4)];
            run(Generate, fault);
            if (QTest::currentTestFailed())
                return;
        }
    }

    // The tool does not notice that its disk takes nothing.
    void aLostWriteInTheToolIsNoResult()
    {
        const int calls = m_campaign->calls(Generate, "write", "yosys:yosys-abc");
        QVERIFY(calls > 5);
        for (const int at : {1, 2, calls / 2, calls}) {
            Fault fault;
            fault.kind = "write";
            fault.at = at;
            fault.effect = ENOSPC;
            fault.lasting = true;
            fault.programs = "yosys:yosys-abc";
            run(Generate, fault);
            if (QTest::currentTestFailed())
                return;
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

TARVO_TEST_MAIN(QCoreApplication, TestFaults)
#include "tst_faults.moc"
