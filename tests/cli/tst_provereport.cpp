// What is told of a proof, in its forms.

#include <provereport.h>

#include <QJsonArray>
#include <QTest>

using namespace Cli;
using Synthesis::ProofPart;
using Synthesis::ProofReport;

namespace
{

ProofReport reportWith(ProofPart::Result result)
{
    ProofReport report;
    report.tools = QStringList{QStringLiteral("Yosys 1")};
    report.assumptions = QStringList{QStringLiteral("A *star* is | a bar.")};
    ProofPart assumed{QStringLiteral("reading"), QStringLiteral("reading"), QString(),
                      ProofPart::Assumed, QString()};
    ProofPart proven = assumed;
    proven.result = ProofPart::Proven;
    ProofPart part = assumed;
    part.id = QStringLiteral("logic");
    part.name = QStringLiteral("the logic");
    part.result = result;
    part.reason = QStringLiteral("A reason.");
    part.differences = QStringList{QStringLiteral("count[3]")};
    part.counterexample = QStringList{QStringLiteral("en = 1")};
    report.parts = {assumed, proven, part};
    return report;
}

const ProofSubject subject{QStringLiteral("my_core.ipc"), QStringLiteral("TV1"),
                           QStringLiteral("core.vg"), QString()};

} // namespace

class TestProveReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingMustBeProven_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("verdict");
        QTest::newRow("proven") << int(ProofPart::Proven) << "proven";
        QTest::newRow("assumed") << int(ProofPart::Assumed) << "proven";
        QTest::newRow("refuted") << int(ProofPart::Refuted) << "refuted";
        QTest::newRow("not decided") << int(ProofPart::NotDecided) << "not decided";
        QTest::newRow("not tried") << int(ProofPart::NotTried) << "not decided";
    }

    void everythingMustBeProven()
    {
        QFETCH(int, result);
        QFETCH(QString, verdict);
        const ProofReport report = reportWith(ProofPart::Result(result));
        QCOMPARE(verdictOf(report), verdict);
        QCOMPARE(linesOf(subject, report).last(), QString(QLatin1String("Result: ") + verdict));
        QCOMPARE(jsonOf(subject, report).value(QLatin1String("result")).toString(), verdict);
        QVERIFY(
            markdownOf(subject, report)
                .contains(QString(QLatin1String("Result: **") + verdict + QLatin1String("**"))));
    }

    void eachFormTellsAll()
    {
        const ProofReport report = reportWith(ProofPart::Refuted);
        const QJsonObject part =
            jsonOf(subject, report).value(QLatin1String("parts")).toArray().at(2).toObject();
        QCOMPARE(part.value(QLatin1String("differences")).toArray().at(0).toString(),
                 QStringLiteral("count[3]"));
        const QString text = linesOf(subject, report).join(u'\n');
        const QString markdown = markdownOf(subject, report);
        for (const char *word : {"A reason.", "en = 1", "Yosys 1", "core.vg"}) {
            QVERIFY2(text.contains(QLatin1String(word)), word);
            QVERIFY2(markdown.contains(QLatin1String(word)), word);
        }
        QVERIFY(text.contains(QLatin1String("differs: count[3]")));
    }

    void nothingOfTheReportIsTakenForMarkdown()
    {
        const QString markdown = markdownOf(subject, reportWith(ProofPart::Proven));
        QVERIFY(markdown.contains(QLatin1String("A \\*star\\* is \\| a bar.")));
        QVERIFY(markdown.contains(QLatin1String("# Proof of my\\_core.ipc")));
    }
};

QTEST_GUILESS_MAIN(TestProveReport)
#include "tst_provereport.moc"
