#include <diagram/diagramtable.h>
#include <diagram/labelfont.h>

#include <QFontMetricsF>
#include <QtTest>

using namespace TARVOORIXM1;

class tst_LabelFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNeverLargerThanTheUsersOwn()
    {
        QFont font;
        font.setPixelSize(9);
        QCOMPARE(fittingFont(font, {{QStringLiteral("a"), {500, 500}}}).pixelSize(), 9);
        QCOMPARE(fittingFont(font, {}).pixelSize(), 9);
    }

    void isNeverTooSmallToRead()
    {
        QFont font;
        font.setPixelSize(20);
        QCOMPARE(fittingFont(font, {{QStringLiteral("too much"), {1, 1}}}).pixelSize(), 4);
        font.setPixelSize(2);
        QCOMPARE(fittingFont(font, {}).pixelSize(), 4);
    }

    void isTheLargestInWhichEveryWordFits()
    {
        QFont font;
        font.setPixelSize(40);
        const QString word = QStringLiteral("Extension");
        const QFont fitting =
            fittingFont(font, {{QStringLiteral("x"), {500, 500}}, {word, {60, 500}}});
        QVERIFY(QFontMetricsF(fitting).horizontalAdvance(word) <= 60.5);
        QFont larger = fitting;
        larger.setPixelSize(fitting.pixelSize() + 1);
        QVERIFY(QFontMetricsF(larger).horizontalAdvance(word) > 59.5);
    }

    void breaksBetweenWords()
    {
        QFont font;
        font.setPixelSize(30);
        const QString words = QStringLiteral("one one");
        const QFont wide = fittingFont(font, {{words, {60, 500}}});
        const QFont flat = fittingFont(font, {{words, {60, QFontMetricsF(wide).lineSpacing()}}});
        QVERIFY(wide.pixelSize() > flat.pixelSize()); // two lines, and one
        QVERIFY(QFontMetricsF(flat).horizontalAdvance(words) <= 60.5);
    }

    void theDiagramsLabelsAreThoseOfItsBlocks()
    {
        const QList<BlockLabel> labels = diagramLabels();
        int blocks = 0;
        for (const DiagramRow &row : diagramRows())
            blocks += row.kind == DiagramRow::Block && row.text.size() > 0;
        QCOMPARE(labels.size(), blocks);
        for (const BlockLabel &label : labels)
            QVERIFY2(!label.text.isEmpty() && !label.room.isEmpty(), qPrintable(label.text));
    }
};

QTEST_MAIN(tst_LabelFont)
#include "tst_labelfont.moc"
