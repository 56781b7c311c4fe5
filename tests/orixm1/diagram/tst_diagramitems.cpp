#include <diagram/ipitem.h>
#include <diagram/laidouttext.h>
#include <diagram/lineitem.h>

#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>
#include <QSignalSpy>
#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

constexpr int margin = 10;

// The item on a grey ground, painted once at scale 1 with `margin` pixels around (0, 0).
QImage painted(QGraphicsItem &item, bool hovered = false, QSize size = {100, 100})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.translate(margin, margin);
    QStyleOptionGraphicsItem option;
    if (hovered)
        option.state |= QStyle::State_MouseOver;
    item.paint(&painter, &option, nullptr);
    return image;
}

QColor at(const QImage &image, int x, int y)
{
    return image.pixelColor(x + margin, y + margin);
}

int countOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    }
    return count;
}

const QColor grey(Qt::gray);
const QColor black(Qt::black);
const QColor red(Qt::red);

} // namespace

class tst_DiagramItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBlockHasItsFlags();
    void blocksAreColoured_data();
    void blocksAreColoured();
    void aTransparentBlockShowsTheGround();
    void anEmptyLabelDrawsTheRectangleOnly();
    void aLabelIsCentredAndWrapped();
    void aLabelLooksAsDrawTextDrawsIt_data();
    void aLabelLooksAsDrawTextDrawsIt();
    void aLabelFollowsFontAndWidth();
    void roundedCornersAreCut();
    void repaintsOnChangesOnly();
    void aDoubleClickIsSignalled();
    void headsPointWhereTheyShould_data();
    void headsPointWhereTheyShould();
    void aLineWithoutHeadsIsJustTheLine();
    void aLineWithoutPointsDrawsNothing();
    void aDashedLineHasGaps();
    void aLineIsDrawnWithThePaintersPen();
    void aLineIsHitAlongItsStroke();
    void paintersAreLeftAsTheyWere();
};

void tst_DiagramItems::aBlockHasItsFlags()
{
    const IPItem item(60, 40, true, false, Qt::black, Qt::white, QStringLiteral("CAN"));
    QVERIFY(!item.isActive());
    QVERIFY(item.isClickable());
    QCOMPARE(item.flags(), QGraphicsItem::GraphicsItemFlags(QGraphicsItem::ItemIsSelectable));
    QVERIFY(item.acceptHoverEvents());
    QCOMPARE(item.acceptedMouseButtons(), Qt::MouseButtons(Qt::LeftButton));
    QCOMPARE(item.boundingRect(), QRectF(0, 0, 60, 40));
    QCOMPARE(item.textRect(), QRectF(1, 1, 58, 38));
}

void tst_DiagramItems::blocksAreColoured_data()
{
    QTest::addColumn<bool>("clickable");
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QColor>("outline");
    QTest::addColumn<QColor>("fill");
    const QColor own(1, 2, 3);
    const QColor ownFill(173, 216, 230);
    QTest::newRow("fixed") << false << false << false << own << ownFill;
    QTest::newRow("fixed, hovered") << false << false << true << own << ownFill;
    QTest::newRow("fixed, active") << false << true << false << own << ownFill;
    QTest::newRow("off") << true << false << false << black << QColor(Qt::white);
    QTest::newRow("off, hovered") << true << false << true << black << QColor(Qt::cyan);
    QTest::newRow("on") << true << true << false << black << QColor(Qt::darkGreen);
    QTest::newRow("on, hovered") << true << true << true << black << QColor(Qt::darkGreen);
}

void tst_DiagramItems::blocksAreColoured()
{
    QFETCH(bool, clickable);
    QFETCH(bool, active);
    QFETCH(bool, hovered);
    IPItem item(60, 40, clickable, false, QColor(1, 2, 3), QColor(173, 216, 230), QString());
    item.onConfigured(active);
    const QImage image = painted(item, hovered);
    QFETCH(QColor, outline);
    QFETCH(QColor, fill);
    QCOMPARE(at(image, 30, 20), fill);
    QCOMPARE(at(image, 1, 1), fill);
    QCOMPARE(at(image, 59, 39), fill);
    QCOMPARE(at(image, 0, 0), outline);
    QCOMPARE(at(image, 60, 40), outline);
    QCOMPARE(at(image, 30, 0), outline);
    QCOMPARE(at(image, 0, 20), outline);
    QCOMPARE(at(image, -1, 20), grey);
    QCOMPARE(at(image, 61, 20), grey);
    QCOMPARE(at(image, 30, 41), grey);
}

void tst_DiagramItems::aTransparentBlockShowsTheGround()
{
    IPItem item(60, 30, false, false, Qt::black, Qt::transparent, QString());
    const QImage image = painted(item);
    QCOMPARE(at(image, 30, 15), grey);
    QCOMPARE(at(image, 0, 15), black);
}

void tst_DiagramItems::anEmptyLabelDrawsTheRectangleOnly()
{
    IPItem item(60, 40, true, false, Qt::black, Qt::white, QString());
    const QImage image = painted(item);
    QCOMPARE(countOf(image, Qt::white), 59 * 39);
    QCOMPARE(countOf(image, black), 61 * 41 - 59 * 39);
}

void tst_DiagramItems::aLabelIsCentredAndWrapped()
{
    IPItem item(40, 80, true, false, Qt::black, Qt::white, QStringLiteral("MM MM"));
    const QImage image = painted(item);
    int left = 100, right = 0, top = 100, bottom = 0;
    for (int y = 2; y < 79; ++y) {
        for (int x = 2; x < 39; ++x) {
            if (at(image, x, y).lightness() > 128)
                continue;
            left = qMin(left, x);
            right = qMax(right, x);
            top = qMin(top, y);
            bottom = qMax(bottom, y);
        }
    }
    QVERIFY(left < right);
    QVERIFY2(qAbs((left + right) / 2 - 20) <= 2, qPrintable(QString::number((left + right) / 2)));
    QVERIFY2(qAbs((top + bottom) / 2 - 40) <= 4, qPrintable(QString::number((top + bottom) / 2)));
    // Two lines: taller than one.
    QVERIFY(bottom - top > QFontMetrics(QFont()).lineSpacing());
}

void tst_DiagramItems::aLabelLooksAsDrawTextDrawsIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qreal>("scale");
    const QStringList texts = {QStringLiteral("GPIO"), QStringLiteral("AHB-Lite to APB Bridge"),
                               QStringLiteral("Dual Timer"), QStringLiteral("UnbreakableLongName")};
    for (const QString &text : texts) {
        for (const qreal scale : {0.5, 1.0, 1.25, 2.0, 3.7})
            QTest::addRow("%s at %.2f", qPrintable(text), scale) << text << scale;
    }
}

void tst_DiagramItems::aLabelLooksAsDrawTextDrawsIt()
{
    QFETCH(QString, text);
    QFETCH(qreal, scale);
    const QRectF rect(3, 2, 70, 45);
    QImage expected(300, 200, QImage::Format_RGB32);
    expected.fill(Qt::white);
    QImage actual = expected;
    QPainter plain(&expected);
    QPainter cached(&actual);
    for (QPainter *painter : {&plain, &cached}) {
        painter->setRenderHint(QPainter::TextAntialiasing);
        painter->scale(scale, scale);
        painter->setPen(Qt::black);
    }
    plain.drawText(rect, int(Qt::AlignCenter) | Qt::TextWordWrap, text);
    LaidOutText label(text);
    label.drawCentred(&cached, rect);
    QCOMPARE(actual, expected);
    QVERIFY(countOf(actual, Qt::white) < actual.width() * actual.height());
}

void tst_DiagramItems::aLabelFollowsFontAndWidth()
{
    LaidOutText label(QStringLiteral("one two three four"));
    QFont large = QGuiApplication::font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    for (const QFont &font : {QGuiApplication::font(), large}) {
        for (const int width : {40, 90}) {
            const QRectF rect(0, 0, width, 90);
            QImage expected(100, 100, QImage::Format_RGB32);
            expected.fill(Qt::white);
            QImage actual = expected;
            QPainter plain(&expected);
            plain.setFont(font);
            plain.drawText(rect, int(Qt::AlignCenter) | Qt::TextWordWrap, label.text());
            QPainter cached(&actual);
            cached.setFont(font);
            label.drawCentred(&cached, rect);
            QCOMPARE(actual, expected);
        }
    }
}

void tst_DiagramItems::roundedCornersAreCut()
{
    IPItem item(60, 40, false, true, Qt::black, Qt::white, QString());
    const QImage image = painted(item);
    QCOMPARE(at(image, 0, 0), grey);
    QCOMPARE(at(image, 1, 1), grey);
    QCOMPARE(at(image, 60, 40), grey);
    QCOMPARE(at(image, 30, 0), black);
    QCOMPARE(at(image, 30, 20), QColor(Qt::white));
}

void tst_DiagramItems::repaintsOnChangesOnly()
{
    class Counter : public IPItem
    {
    public:
        using IPItem::IPItem;
        int paints = 0;
        void paint(QPainter *painter, const QStyleOptionGraphicsItem *option,
                   QWidget *widget) override
        {
            ++paints;
            IPItem::paint(painter, option, widget);
        }
    };
    QGraphicsScene scene;
    auto *item = new Counter(60, 40, true, false, Qt::black, Qt::white, QString());
    scene.addItem(item);
    QGraphicsView view(&scene);
    view.show();
    QTRY_VERIFY(item->paints > 0);
    QCoreApplication::processEvents();
    const auto repaints = [item] {
        const int before = item->paints;
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        return item->paints > before;
    };
    repaints();
    item->onConfigured(false);
    item->setClickable(true);
    QVERIFY(!repaints());
    item->onConfigured(true);
    QVERIFY(repaints());
    item->setClickable(false);
    QVERIFY(repaints());
    item->onConfigured(true);
    item->setClickable(false);
    QVERIFY(!repaints());
}

void tst_DiagramItems::aDoubleClickIsSignalled()
{
    QGraphicsScene scene;
    auto *item = new IPItem(60, 40, true, false, Qt::black, Qt::white, QString());
    scene.addItem(item);
    QSignalSpy spy(item, &IPItem::doubleClicked);
    const auto send = [&](QEvent::Type type, Qt::MouseButton button) {
        QGraphicsSceneMouseEvent event(type);
        event.setScenePos({20, 20});
        event.setButton(button);
        event.setButtons(button);
        QCoreApplication::sendEvent(&scene, &event);
    };
    for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
        send(QEvent::GraphicsSceneMousePress, button);
        send(QEvent::GraphicsSceneMouseRelease, button);
        QCOMPARE(spy.count(), 0);
        send(QEvent::GraphicsSceneMouseDoubleClick, button);
        send(QEvent::GraphicsSceneMouseRelease, button);
        QCOMPARE(spy.count(), button == Qt::LeftButton ? 1 : 0);
    }
    QVERIFY(item->isSelected()); // the base class has had the event
}

void tst_DiagramItems::headsPointWhereTheyShould_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QPoint>("first");
    QTest::addColumn<QPoint>("last");
    QTest::newRow("left") << 0 << QPoint(8, -6) << QPoint(8, 6);
    QTest::newRow("right") << 1 << QPoint(-8, -6) << QPoint(-8, 6);
    QTest::newRow("up") << 2 << QPoint(-6, 8) << QPoint(6, 8);
    QTest::newRow("down") << 3 << QPoint(-6, -8) << QPoint(6, -8);
    QTest::newRow("none") << 4 << QPoint() << QPoint();
    QTest::newRow("another") << 7 << QPoint() << QPoint();
    QTest::newRow("a negative one") << -1 << QPoint() << QPoint();
}

void tst_DiagramItems::headsPointWhereTheyShould()
{
    QFETCH(int, style);
    QFETCH(QPoint, first);
    QFETCH(QPoint, last);
    const QPoint tip(40, 40);
    // The line itself runs away from where heads are looked for.
    for (bool atStart : {true, false}) {
        const QPoint far(41, 41);
        LineItem line(atStart ? QList<QPoint>{tip, far} : QList<QPoint>{far, tip}, false, Qt::red,
                      atStart ? style : 4, atStart ? 4 : style);
        const QImage image = painted(line);
        for (int dx = -9; dx <= 9; ++dx) {
            for (int dy = -9; dy <= 9; ++dy) {
                if (qAbs(dx) + qAbs(dy) < 4)
                    continue; // near the line
                // On a leg: on the segment from the tip to one of the outer points.
                const auto isOnLeg = [&](const QPoint &outer) {
                    if (outer.isNull() || dx * outer.x() < 0 || dy * outer.y() < 0)
                        return false;
                    return dx * outer.y() == dy * outer.x() && qAbs(dx) <= qAbs(outer.x());
                };
                const bool expected = isOnLeg(first) || isOnLeg(last);
                const bool isRed = at(image, tip.x() + dx, tip.y() + dy) == red;
                if (expected)
                    QVERIFY2(isRed, qPrintable(QStringLiteral("%1 %2").arg(dx).arg(dy)));
                else if (isRed) // a pixel beside a leg, as lines are rastered
                    QVERIFY2(!first.isNull() && qAbs(dx) <= 8 && qAbs(dy) <= 8 &&
                                 dx * (first.x() + last.x()) + dy * (first.y() + last.y()) > 0,
                             qPrintable(QStringLiteral("%1 %2").arg(dx).arg(dy)));
            }
        }
    }
}

void tst_DiagramItems::aLineWithoutHeadsIsJustTheLine()
{
    LineItem line({{0, 0}, {50, 0}, {50, 25}}, false, Qt::red, 4, 4);
    const QImage image = painted(line);
    QCOMPARE(countOf(image, red), 51 + 25);
    QCOMPARE(at(image, 50, 0), red);
    QCOMPARE(at(image, 25, 12), grey);
}

void tst_DiagramItems::aLineWithoutPointsDrawsNothing()
{
    LineItem line({}, false, Qt::red, 3, 3);
    QCOMPARE(countOf(painted(line), grey), 100 * 100);
    QVERIFY(line.shape().isEmpty());
}

void tst_DiagramItems::aDashedLineHasGaps()
{
    LineItem line({{0, 10}, {80, 10}}, true, Qt::red, 4, 4);
    const QImage image = painted(line);
    const int count = countOf(image, red);
    QVERIFY2(count > 30 && count < 75, qPrintable(QString::number(count)));
}

// Recoloured, but otherwise as it is: without a pen only the heads, which have one of their own,
// and dashes, which make a pen of none, are seen.
void tst_DiagramItems::aLineIsDrawnWithThePaintersPen()
{
    const auto count = [](bool dashed, int style, const QList<QPen> &pens) {
        LineItem line({{0, 20}, {60, 20}}, dashed, Qt::red, style, 4);
        QImage image(100, 100, QImage::Format_RGB32);
        QStyleOptionGraphicsItem option;
        for (const QPen &pen : pens) {
            image.fill(Qt::gray);
            QPainter painter(&image);
            painter.translate(margin, margin);
            painter.setPen(pen);
            line.paint(&painter, &option, nullptr);
        }
        const int reds = countOf(image, red);
        return reds + countOf(image, grey) == 100 * 100 ? reds : -1;
    };
    const QPen without(Qt::NoPen);
    const QPen thin(Qt::blue);
    const QPen thick(Qt::blue, 3);
    QCOMPARE(count(false, 4, {without}), 0);
    QCOMPARE(count(false, 4, {thin, without}), 0);
    QCOMPARE(count(false, 4, {without, thin}), 61);
    QVERIFY(count(false, 4, {thick}) > 3 * 60);
    const int head = count(false, 0, {without});
    QVERIFY2(head > 10 && head < 40, qPrintable(QString::number(head)));
    const int dashes = count(true, 4, {without});
    QVERIFY2(dashes > 20 && dashes < 60, qPrintable(QString::number(dashes)));
}

void tst_DiagramItems::aLineIsHitAlongItsStroke()
{
    const LineItem line({{0, 0}, {50, 0}, {50, 25}}, false, Qt::red, 4, 3);
    QVERIFY(line.contains({25, 0}));
    QVERIFY(line.contains({50, 12}));
    QVERIFY(line.contains({44, 17})); // the head's leg
    QVERIFY(!line.contains({25, 12}));
    QVERIFY(line.boundingRect().contains(QRectF(0, 0, 56, 25)));
}

void tst_DiagramItems::paintersAreLeftAsTheyWere()
{
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen(Qt::blue, 3);
    painter.setPen(pen);
    QStyleOptionGraphicsItem option;
    LineItem({{0, 0}, {9, 0}}, true, Qt::red, 2, 3).paint(&painter, &option, nullptr);
    IPItem(9, 9, true, false, Qt::black, Qt::white, QStringLiteral("x"))
        .paint(&painter, &option, nullptr);
    QCOMPARE(painter.pen(), pen);
    QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
}

QTEST_MAIN(tst_DiagramItems)
#include "tst_diagramitems.moc"
