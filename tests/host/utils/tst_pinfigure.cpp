#include <testsupport.h>

#include <utils/pinfigure.h>

#include <QTest>
#include <QVariant>

using Utils::PinFigure;

class TestPinFigure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesBackWhatItWasMadeFrom()
    {
        const PinFigure pin(QStringLiteral("gpio[15:0]"), PinFigure::Bidirectional, true,
                            Qt::AlignRight);
        QCOMPARE(pin.name(), QStringLiteral("gpio[15:0]"));
        QCOMPARE(pin.direction(), 2);
        QVERIFY(pin.isBus());
        QCOMPARE(pin.side(), Qt::AlignRight);
    }

    void directionsHaveTheirNumbers()
    {
        QCOMPARE(int(PinFigure::Input), 0);
        QCOMPARE(int(PinFigure::Output), 1);
        QCOMPARE(int(PinFigure::Bidirectional), 2);
    }

    void aDefaultPinIsANamelessInputAtTheLeft()
    {
        QVERIFY(PinFigure() == PinFigure(QString(), PinFigure::Input, false, Qt::AlignLeft));
    }

    void differsInEveryField_data()
    {
        QTest::addColumn<PinFigure>("other");
        QTest::addColumn<bool>("equal");
        const QString name = QStringLiteral("clk");
        QTest::newRow("none") << PinFigure(name, 0, false, Qt::AlignLeft) << true;
        QTest::newRow("name") << PinFigure(QStringLiteral("CLK"), 0, false, Qt::AlignLeft) << false;
        QTest::newRow("direction") << PinFigure(name, 1, false, Qt::AlignLeft) << false;
        QTest::newRow("bus") << PinFigure(name, 0, true, Qt::AlignLeft) << false;
        QTest::newRow("side") << PinFigure(name, 0, false, Qt::AlignRight) << false;
    }

    void differsInEveryField()
    {
        QFETCH(PinFigure, other);
        QFETCH(bool, equal);
        const PinFigure pin(QStringLiteral("clk"), 0, false, Qt::AlignLeft);
        QCOMPARE(pin == other, equal);
        QCOMPARE(pin != other, !equal);
        QCOMPARE(QVariant::fromValue(other).value<PinFigure>() == pin, equal);
    }

    void printsEveryField()
    {
        QString text;
        QDebug(&text) << PinFigure(QStringLiteral("d[7:0]"), 1, true, Qt::AlignRight) << 7;
        QCOMPARE(text.trimmed(),
                 QStringLiteral("PinFigure(\"d[7:0]\", 1, true, Qt::AlignRight) 7"));
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestPinFigure)
#include "tst_pinfigure.moc"
