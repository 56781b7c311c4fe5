#include <testsupport.h>

#include <sweep/table.h>
#include <sweep/tradeoff.h>
#include <sweep/workflow.h>

#include <QJsonArray>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace TARVOORIXM1;

namespace
{

SweepResult resultOf(int number, PointState state, int used)
{
    SweepResult result;
    result.name = QStringLiteral("TV2KR-18C.ITCM_Size=%1").arg(number);
    result.device =
        number % 2 == 0 ? QStringLiteral("TV2KR-18C-QFN88P-C8/I7") : QStringLiteral("TV5K-25A");
    result.settings = {{QStringLiteral("ITCM_Size"), number}};
    result.state = state;
    if (state == PointState::Done)
        result.resources = {{QStringLiteral("LUT4"), used, 20000, used / 200 + 1},
                            {QStringLiteral("Flip-flops"), used / 2, 20000, used / 400 + 1},
                            {QStringLiteral("Tri-state drivers"), 0, -1, -1}};
    return result;
}

SweepTable tableOf(int count)
{
    SweepTable table;
    table.keys = QStringList{QStringLiteral("ITCM_Size")};
    for (int i = 0; i < count; ++i)
        table.results.append(resultOf(i, PointState::Done, 1000 + 37 * i));
    return table;
}

// Texts of a drawing, in their order; a mistake in the XML is told as the last one.
QStringList textsOf(const QByteArray &svg)
{
    QXmlStreamReader reader(svg);
    QStringList texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("text"))
            texts.append(reader.readElementText());
    }
    if (reader.hasError())
        texts.append(QLatin1String("mistake: ") + reader.errorString());
    return texts;
}

} // namespace

class tst_SweepTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quotesWhatCsvNeedsQuoted();
    void tellsFiguresAndReasons();
    void countsStates();
    void readsItsIndexBack();
    void refusesBrokenIndexes_data();
    void refusesBrokenIndexes();
    void picturesAreWellFormed_data();
    void picturesAreWellFormed();
    void drawsOneResourceOverThePoints();
    void workflowsHoldNoPathOfTheMachine();
};

void tst_SweepTable::quotesWhatCsvNeedsQuoted()
{
    SweepTable table = tableOf(1);
    table.results.append(resultOf(7, PointState::Impossible, 0));
    table.results.last().reason = QStringLiteral("no \"such\" thing, or\nanother");
    const QByteArray csv = tableCsv(table);
    QVERIFY2(csv.startsWith("point,device,state,reason,ITCM_Size,LUT4,LUT4 available,LUT4 %,"),
             csv.constData());
    QVERIFY(csv.contains("TV2KR-18C.ITCM_Size=0,TV2KR-18C-QFN88P-C8/I7,done,,0,1000,20000,6,"));
    QVERIFY(csv.contains(",not possible,\"no \"\"such\"\" thing, or\nanother\",7,,,,"));
    QVERIFY(csv.endsWith("\r\n"));
}

void tst_SweepTable::tellsFiguresAndReasons()
{
    SweepTable table = tableOf(2);
    table.results.append(resultOf(9, PointState::Failed, 0));
    table.results.last().reason = QStringLiteral("the reason");
    const QStringList lines = tableLines(table);
    QCOMPARE(lines.size(), 5);
    QVERIFY(lines.first().contains(QLatin1String("FLIP-FLOPS")));
    // Nobody uses it.
    QVERIFY(!lines.first().contains(QLatin1String("TRI-STATE")));
    QVERIFY(lines.at(2).endsWith(QLatin1String("1037 (6 %)   518 (3 %)")));
    QCOMPARE(lines.last(), QStringLiteral("TV2KR-18C.ITCM_Size=9: failed: the reason"));
}

void tst_SweepTable::countsStates()
{
    SweepTable table = tableOf(3);
    QCOMPARE(countSentence(table), QStringLiteral("3 points: 3 done."));
    table.results[0].state = PointState::Impossible;
    table.results[1].state = PointState::Open;
    QCOMPARE(countSentence(table), QStringLiteral("3 points: 1 done, 1 not possible, 1 not done."));
    const QJsonObject object = tableJson(table);
    QCOMPARE(object.value(QLatin1String("points")).toArray().size(), 3);
    QCOMPARE(object.value(QLatin1String("counts")).toObject().value(QLatin1String("done")).toInt(),
             1);
}

void tst_SweepTable::readsItsIndexBack()
{
    SweepTable table = tableOf(3);
    table.results[1].state = PointState::Impossible;
    table.results[1].reason = QStringLiteral("why");
    table.pictureX = QStringLiteral("LUT4");
    table.pictureY = QStringLiteral("Carry");
    const auto read = readIndex(indexText(table));
    QVERIFY2(read, qPrintable(read.reason()));
    QCOMPARE(indexText(*read), indexText(table));
    QCOMPARE(read->pictureY, table.pictureY);
    QVERIFY(read->results.at(0).resources.isEmpty());
}

void tst_SweepTable::refusesBrokenIndexes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("{");
    QTest::newRow("no points") << QByteArray("{\"points\": []}");
    QTest::newRow("a name that leaves the folder")
        << QByteArray("{\"points\": [{\"point\": \"../a\"}]}");
    QTest::newRow("a hidden name") << QByteArray("{\"points\": [{\"point\": \".a\"}]}");
    QTest::newRow("no name") << QByteArray("{\"points\": [7]}");
}

void tst_SweepTable::refusesBrokenIndexes()
{
    QFETCH(QByteArray, text);
    const auto read = readIndex(text);
    QVERIFY(!read);
    QVERIFY(!read.reason().isEmpty());
}

void tst_SweepTable::picturesAreWellFormed_data()
{
    QTest::addColumn<int>("points");
    for (const int count : {0, 1, 2, 12, 60, 61, 1000})
        QTest::newRow(qPrintable(QString::number(count))) << count;
}

void tst_SweepTable::picturesAreWellFormed()
{
    QFETCH(int, points);
    const QByteArray svg = tradeOffPicture(tableOf(points));
    const QStringList texts = textsOf(svg);
    QVERIFY2(!texts.last().startsWith(QLatin1String("mistake")), qPrintable(texts.last()));
    QVERIFY(svg.contains("prefers-color-scheme: dark"));
    const int listed = texts.filter(QLatin1String("TV2KR-18C.ITCM_Size=")).size();
    QVERIFY(points > 60 ? listed == 0 : listed >= points);
    // A mark for each point and each device in the legend, the page and the frame.
    const int marks = svg.count("<rect ");
    QCOMPARE(marks, points == 0 ? 1 : points + qMin(points, 2) + 2);
    // Nothing is drawn outside of the picture.
    QXmlStreamReader reader(svg);
    int height = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("svg"))
            height = reader.attributes().value(QLatin1String("height")).toInt();
        else if (reader.attributes().hasAttribute(QLatin1String("y")))
            QVERIFY(reader.attributes().value(QLatin1String("y")).toInt() <= height);
    }

    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("a.svg"));
    QVERIFY(TestSupport::write(file, svg));
    QProcess process;
    process.start(QStringLiteral("xmllint"), {QStringLiteral("--noout"), file});
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.exitCode(), 0);
}

void tst_SweepTable::drawsOneResourceOverThePoints()
{
    SweepTable table = tableOf(3);
    table.pictureY = QStringLiteral("LUT4");
    const QStringList texts = textsOf(tradeOffPicture(table));
    QVERIFY(texts.contains(QStringLiteral("Number of the point")));
    QCOMPARE(texts.filter(QLatin1String(": 1037")).size(), 1);
    table.pictureX = QStringLiteral("Flip-flops");
    QVERIFY(textsOf(tradeOffPicture(table)).contains(QStringLiteral("LUT4 over Flip-flops")));
}

void tst_SweepTable::workflowsHoldNoPathOfTheMachine()
{
    const QByteArray ninja = ninjaFile({QStringLiteral("a.b=1")}, QStringLiteral("my ip.ipc"));
    QVERIFY(ninja.contains("exec \"$${ORIXM1:-orixm1}\""));
    QVERIFY(ninja.contains("build points/a.b=1/result.json: point points/a.b=1/my$ ip.ipc\n"));
    const QByteArray snake = snakefile(QStringLiteral("it's {one}.ipc"));
    QVERIFY(snake.contains("'points/{name}/it\\'s {{one}}.ipc'"));
    for (const QByteArray &text : {ninja, snake})
        QVERIFY(!text.contains(" /") && !text.contains("\"/"));
}

TARVO_TEST_MAIN(QCoreApplication, tst_SweepTable)
#include "tst_sweeptable.moc"
