#include "markedprocesses.h"
#include "testsupport.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <signals.h>

#include <csignal>

// The script that changes the rules, on a project of one rule file and one test.
class tst_Mutate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEveryChangeOfAFile();
    void leavesOutWhatNobodyCanNotice();
    void listsAPlaceOnly_data();
    void listsAPlaceOnly();
    void aSampleDependsOnItsSeedAlone();
    void tellsWhatNobodyNoticed();
    void aSumOfNoticedChangesIsGood();
    void leavesNothingBehindWhenItIsInterrupted();
    void refusesWhatSaysNothing_data();
    void refusesWhatSaysNothing();

private:
    struct Result {
        int status;
        QString output;
        QString errors;
    };

    void start(QProcess &process, const QStringList &arguments) const;
    Result run(const QStringList &arguments) const;
    QStringList list(const QStringList &arguments) const;

    QTemporaryDir m_temporary;
    const TestSupport::Mark m_mark;
};

namespace
{

const QString fixture = QStringLiteral(TARVO_MUTATE_FIXTURE);
const QString limitFile = QStringLiteral("src/orixm1/rules/limit.cpp");

QMap<QString, QByteArray> filesOf(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(path, TestSupport::contentsOf(path));
    }
    return files;
}

} // namespace

void tst_Mutate::start(QProcess &process, const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), m_temporary.path());
    environment.insert(QString::fromLatin1(m_mark.name()), QString::fromLatin1(m_mark.value()));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TARVO_MUTATE_SCRIPT),
                  QStringList{QStringLiteral("--root"), fixture} + arguments);
}

tst_Mutate::Result tst_Mutate::run(const QStringList &arguments) const
{
    QProcess process;
    start(process, arguments);
    process.waitForFinished(110000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList tst_Mutate::list(const QStringList &arguments) const
{
    return run(QStringList{QStringLiteral("--list")} + arguments)
        .output.split(u'\n', Qt::SkipEmptyParts);
}

void tst_Mutate::listsEveryChangeOfAFile()
{
    const QString expected = QString::fromUtf8(
        TestSupport::contentsOf(QStringLiteral(TARVO_MUTATE_FIXTURE "/config-changes.txt")));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(list({QStringLiteral("--only"), QStringLiteral("config")}),
             expected.split(u'\n', Qt::SkipEmptyParts));
}

void tst_Mutate::leavesOutWhatNobodyCanNotice()
{
    const QStringList changes = list({QStringLiteral("--only"), QStringLiteral("limit.cpp:18")});
    QCOMPARE(changes.size(), 1);
    QVERIFY(changes.filter(QStringLiteral("number > 0")).isEmpty());
}

void tst_Mutate::listsAPlaceOnly_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<int>("count");
    QTest::newRow("a file") << limitFile << 18;
    QTest::newRow("its name") << QStringLiteral("limit.cpp") << 18;
    QTest::newRow("its folder") << QStringLiteral("rules") << 18;
    QTest::newRow("its folder, written as one") << QStringLiteral("src/orixm1/rules/") << 18;
    QTest::newRow("a line") << QStringLiteral("rules/limit.cpp:12") << 4;
    QTest::newRow("a line in the middle of a change") << QStringLiteral("table.cpp:10") << 2;
    QTest::newRow("part of a name") << QStringLiteral("imit.cpp") << 0;
}

void tst_Mutate::listsAPlaceOnly()
{
    QFETCH(QString, place);
    QTEST(list({QStringLiteral("--only"), place}).size(), "count");
}

void tst_Mutate::aSampleDependsOnItsSeedAlone()
{
    const QStringList all = list({});
    const auto sample = [this](const char *seed) {
        return list({QStringLiteral("--count"), QStringLiteral("8"), QStringLiteral("--seed"),
                     QString::fromLatin1(seed)});
    };
    const QStringList one = sample("1");
    QCOMPARE(one.size(), 8);
    for (const QString &change : one)
        QCOMPARE(all.count(change), 1);
    QCOMPARE(sample("1"), one);
    QVERIFY(sample("2") != one);
}

void tst_Mutate::tellsWhatNobodyNoticed()
{
    const QMap<QString, QByteArray> before = filesOf(fixture);
    const Result result = run({QStringLiteral("--only"), limitFile, QStringLiteral("--limit"),
                               QStringLiteral("3"), QStringLiteral("--jobs"), QStringLiteral("2")});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.output.startsWith(QStringLiteral("18 changes, 2 more accepted")),
             qPrintable(result.output));
    const QString place = limitFile + QStringLiteral(":12: ");
    const QStringList lines = result.output.split(u'\n');
    const int unnoticed = lines.indexOf(QStringLiteral("unnoticed:"));
    QVERIFY(unnoticed > 0);
    // In the order in which two copies came to it.
    QStringList told =
        lines.mid(unnoticed + 1, lines.indexOf(QString(), unnoticed) - unnoticed - 1);
    told.sort();
    const QString test = QStringLiteral("  ") + place + QStringLiteral("return number > 100; -> ");
    QCOMPARE(told, (QStringList{test + QStringLiteral("return number > 101;"),
                                test + QStringLiteral("return number > 99;"),
                                test + QStringLiteral("return number >= 100;")}));
    // What no longer ends, and what does not compile.
    QCOMPARE(lines.filter(QStringLiteral("number -= 2; -> {}")).size(), 1);
    QVERIFY(lines.filter(QStringLiteral("number -= 2; -> {}")).first().startsWith(u"noticed"));
    QCOMPARE(lines.filter(QStringLiteral("invalid")).size(), 1);
    QVERIFY(lines.filter(QStringLiteral("invalid")).first().endsWith(u"int limit = 9;"));
    QVERIFY(lines.contains(QStringLiteral("rules     noticed 14 of 17 (82 %)")));
    QVERIFY(lines.contains(QStringLiteral("all       noticed 14 of 17 (82 %); 1 did not compile")));
    QCOMPARE(filesOf(fixture), before);
    QCOMPARE(TestSupport::entriesOf(m_temporary.path()), QStringList());
}

void tst_Mutate::aSumOfNoticedChangesIsGood()
{
    const Result result = run({QStringLiteral("--only"), QStringLiteral("limit.cpp:6")});
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.endsWith(
        QStringLiteral("all       noticed 2 of 2 (100 %); 0 did not compile\n")));
}

void tst_Mutate::leavesNothingBehindWhenItIsInterrupted()
{
    QProcess process;
    start(process, {QStringLiteral("--only"), QStringLiteral("limit.cpp:19")});
    // A test that no longer ends is running, or about to.
    QTRY_VERIFY_WITH_TIMEOUT(
        !m_mark.processes("tst_limit").isEmpty() || process.state() == QProcess::NotRunning, 60000);
    QCOMPARE(process.state(), QProcess::Running);
    QVERIFY(!TestSupport::entriesOf(m_temporary.path()).isEmpty());
    QVERIFY(TestSupport::sendSignal(process, SIGINT));
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.exitCode(), 130);
    QCOMPARE(m_mark.processes(), QList<qint64>());
    QCOMPARE(TestSupport::entriesOf(m_temporary.path()), QStringList());
}

void tst_Mutate::refusesWhatSaysNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *name, const QStringList &arguments, const char *message) {
        QTest::newRow(name) << arguments << QString::fromLatin1(message);
    };
    row("an unknown argument", {QStringLiteral("--lst")},
        "unknown argument \"--lst\"; --help tells the known ones");
    row("no number", {QStringLiteral("--count"), QStringLiteral("many")},
        "--count needs a number, not \"many\"");
    row("no copies", {QStringLiteral("--jobs"), QStringLiteral("0")},
        "--jobs needs a number above 0");
    row("a missing value", {QStringLiteral("--only")}, "--only needs a value");
    row("a place that does not exist", {QStringLiteral("--only"), QStringLiteral("gone.cpp")},
        "there is no such change");
    row("a folder in the sources",
        {QStringLiteral("--folder"), QStringLiteral(TARVO_MUTATE_FIXTURE "/src")},
        "--folder must lie outside of the checkout or below its build folder");
    row("no checkout", {QStringLiteral("--root"), QStringLiteral("/")},
        "\"/\" is no checkout: it has no src/orixm1");
}

void tst_Mutate::refusesWhatSaysNothing()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Result result = run(arguments);
    QCOMPARE(result.errors, QString(QStringLiteral("mutate.sh: ") + message + u'\n'));
    QCOMPARE(result.status, 2);
    QCOMPARE(TestSupport::entriesOf(m_temporary.path()), QStringList());
}

TARVO_TEST_MAIN(QCoreApplication, tst_Mutate)

#include "tst_mutate.moc"
