#include <markedprocesses.h>

#include <QProcess>
#include <QtTest>

using TestSupport::Mark;

class tst_MarkedProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsAProcessThatChangesItsProgram();
    void findsWhatIsMarkedAndNothingElse();
};

void tst_MarkedProcesses::findsAProcessThatChangesItsProgram()
{
    const Mark mark;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(mark.name()), QString::fromLatin1(mark.value()));
    QProcess process;
    process.setProcessEnvironment(environment);
    // A program that becomes another as fast as it can, for ever.
    const QString script = QStringLiteral("[ -n \"$told\" ] || echo here; export told=1; "
                                          "exec sh -c \"$0\" \"$0\"");
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), script, script});
    QVERIFY(process.waitForReadyRead(-1));
    for (int i = 0; i < 500; ++i)
        QCOMPARE(mark.processes(), QList<qint64>{process.processId()});
    process.kill();
    QVERIFY(process.waitForFinished(-1));
    QVERIFY(mark.processes().isEmpty());
}

void tst_MarkedProcesses::findsWhatIsMarkedAndNothingElse()
{
    const Mark mark;
    const Mark other;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(mark.name()), QString::fromLatin1(mark.value()));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("cat"), QStringList());
    process.write("here\n");
    QVERIFY(process.waitForReadyRead(-1));
    QCOMPARE(mark.processes(), QList<qint64>{process.processId()});
    QCOMPARE(mark.processes("cat"), QList<qint64>{process.processId()});
    QVERIFY(mark.processes("ca").isEmpty());
    QVERIFY(other.processes().isEmpty());
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(-1));
}

QTEST_GUILESS_MAIN(tst_MarkedProcesses)
#include "tst_markedprocesses.moc"
