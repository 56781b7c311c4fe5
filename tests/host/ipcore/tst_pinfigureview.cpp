#include <ipcore/pinfigureview.h>

#include <QAccessible>
#include <QBuffer>
#include <QPainter>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using IPCore::PinFigureView;
using Utils::PinFigure;

namespace
{

PinFigure pin(const QString &name, int direction, bool bus = false)
{
    return {name, direction, bus, direction == 0 ? Qt::AlignLeft : Qt::AlignRight};
}

QList<PinFigure> manyPins(int count)
{
    QList<PinFigure> pins;
    for (int i = 0; i < count; ++i)
        pins.append(pin(
            QStringLiteral("SIGNAL%1%2").arg(i).arg(i % 2 ? QStringLiteral("[31:0]") : QString()),
            i % 3, i % 2));
    return pins;
}

// The whole figure at scale 1, as the widget paints it.
class Shown
{
public:
    explicit Shown(PinFigureView &view)
    {
        view.resize(view.figureSize() + QSize(2 * view.frameWidth(), 2 * view.frameWidth()));
        view.show();
        image = view.viewport()->grab().toImage();
        base = view.palette().color(QPalette::Base);
        ink = view.palette().color(QPalette::Text);
        const QFontMetrics metrics(view.font());
        em = metrics.height();
        left = em + em * 5 / 2;
        right = view.figureSize().width() - 1 - left;
    }

    // How many pixels of ink there are above each other in this column, within a pin's row.
    int inkAt(const QRect &row, int x) const
    {
        int count = 0;
        for (int y = row.top(); y <= row.bottom(); ++y) {
            const QColor color = image.pixelColor(x, y);
            count += qAbs(color.lightness() - ink.lightness()) <
                     qAbs(color.lightness() - base.lightness());
        }
        return count;
    }

    QImage image;
    QColor base;
    QColor ink;
    int em;
    int left; // the box's edges
    int right;
};

} // namespace

class tst_PinFigureView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutPinsTheBoxRemains();
    void rowsDoNotTouch_data();
    void rowsDoNotTouch();
    void namesAreWhole();
    void sidesFollowThePins();
    void headsShowTheDirection_data();
    void headsShowTheDirection();
    void busesAreThickAndSlashed();
    void theBusFlagCountsNotTheName();
    void followsThePalette();
    void manyPinsScroll();
    void controlAndWheelZoom();
    void zoomKeepsThePointUnderTheMouse();
    void keysZoomAndScroll();
    void aLargerFontMakesALargerFigure();
    void printsToSvg_data();
    void printsToSvg();
    void aClosedDeviceIsReported();
    void tellsAssistiveTools();
};

void tst_PinFigureView::withoutPinsTheBoxRemains()
{
    PinFigureView view;
    view.setLabel(QStringLiteral("TRNG"));
    const Shown shown(view);
    QVERIFY(shown.right - shown.left > 4 * shown.em);
    const int y = view.figureSize().height() / 2;
    QCOMPARE(shown.image.pixelColor(2, y), shown.base);
    // The box's two edges, and a fill that is not the ground.
    const auto isDark = [&](int x) { return shown.image.pixelColor(x, y).lightness() < 128; };
    QVERIFY(isDark(shown.left) || isDark(shown.left - 1));
    QVERIFY(isDark(shown.right) || isDark(shown.right + 1) || isDark(shown.right + 2));
    QVERIFY(shown.image.pixelColor(shown.left + 4, y) != shown.base);
    QCOMPARE(view.pinRect(0), QRect());
    QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(view.verticalScrollBar()->maximum(), 0);
}

void tst_PinFigureView::rowsDoNotTouch_data()
{
    QTest::addColumn<int>("count");
    for (int count : {1, 2, 3, 53, 192})
        QTest::addRow("%d pins", count) << count;
}

void tst_PinFigureView::rowsDoNotTouch()
{
    QFETCH(int, count);
    PinFigureView view;
    view.setLabel(QStringLiteral("Block"));
    view.setPins(manyPins(count));
    const QRect figure(QPoint(0, 0), view.figureSize());
    const int height = QFontMetrics(view.font()).height();
    for (int i = 0; i < count; ++i) {
        const QRect row = view.pinRect(i);
        QVERIFY(figure.contains(row));
        QVERIFY(row.height() > height);
        for (int j = 0; j < i; ++j)
            QVERIFY(!row.intersects(view.pinRect(j)));
    }
}

void tst_PinFigureView::namesAreWhole()
{
    PinFigureView view;
    const QFontMetrics metrics(view.font());
    const QString longest = QStringLiteral("A_VERY_LONG_NAME_THAT_GOES_ON_AND_ON[1023:0]");
    view.setPins({pin(longest, 0, true), pin(longest, 1, true)});
    const Shown shown(view);
    const int width = metrics.horizontalAdvance(longest);
    QVERIFY(shown.right - shown.left > 2 * width);
    // Ink on the first and the last glyph of both, and a gap in the middle.
    const QRect left = view.pinRect(0);
    int first = shown.image.width(), last = 0;
    for (int x = shown.left + 4; x < shown.right - 3; ++x) {
        if (shown.inkAt(left, x)) {
            first = qMin(first, x);
            last = qMax(last, x);
        }
    }
    QVERIFY(last - first > 2 * width);
    int gap = 0;
    for (int x = shown.left + 4; x < shown.right - 3; ++x)
        gap = shown.inkAt(left, x) ? 0 : gap + 1, first = qMax(first, gap);
    QVERIFY(first > shown.em);

    view.setLabel(QStringLiteral("a label that is wider than all the names ").repeated(4));
    QVERIFY(view.figureSize().width() > QFontMetrics(view.font()).horizontalAdvance(view.label()));
}

void tst_PinFigureView::sidesFollowThePins()
{
    PinFigureView view;
    view.setPins({pin(QStringLiteral("a"), 1), pin(QStringLiteral("b"), 0),
                  pin(QStringLiteral("c"), 2), pin(QStringLiteral("d"), 0)});
    const int middle = view.figureSize().width() / 2;
    QVERIFY(view.pinRect(0).left() >= middle);
    QVERIFY(view.pinRect(1).right() < middle);
    QCOMPARE(view.pinRect(0).top(), view.pinRect(1).top());
    QCOMPARE(view.pinRect(2).top(), view.pinRect(0).bottom() + 1);
    QCOMPARE(view.pinRect(3).top(), view.pinRect(2).top());
}

void tst_PinFigureView::headsShowTheDirection_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("bus");
    QTest::addColumn<bool>("headAtBox");
    QTest::addColumn<bool>("headOutside");
    for (bool bus : {false, true}) {
        const char *what = bus ? "bus" : "wire";
        QTest::addRow("input %s", what) << 0 << bus << true << false;
        QTest::addRow("output %s", what) << 1 << bus << false << true;
        QTest::addRow("inout %s", what) << 2 << bus << true << true;
    }
}

void tst_PinFigureView::headsShowTheDirection()
{
    QFETCH(int, direction);
    QFETCH(bool, bus);
    PinFigureView view;
    view.setPins({pin(QStringLiteral("x"), direction, bus)});
    const Shown shown(view);
    const QRect row = view.pinRect(0);
    const int stub = shown.em * 5 / 2;
    // A head is wide at its back, a third of a row's height from its tip.
    const int back = row.height() * 2 / 5;
    const int atBox = direction == 0 ? shown.left - back : shown.right + back;
    const int outside = direction == 0 ? shown.left - stub + back : shown.right + stub - back;
    const int wide = row.height() / 4;
    QTEST(shown.inkAt(row, atBox) >= wide, "headAtBox");
    QTEST(shown.inkAt(row, outside) >= wide, "headOutside");
    // Tips are pointed.
    QFETCH(bool, headAtBox);
    if (headAtBox && !bus)
        QVERIFY(shown.inkAt(row, direction == 0 ? shown.left - 3 : shown.right + 4) < wide);
}

void tst_PinFigureView::busesAreThickAndSlashed()
{
    PinFigureView view;
    view.setPins({pin(QStringLiteral("wire"), 0), pin(QStringLiteral("bus"), 0, true)});
    const Shown shown(view);
    const int stub = shown.em * 5 / 2;
    const int plain = shown.left - stub + 3; // near the outer end
    const int middle = shown.left - stub / 2;
    const QRect wire = view.pinRect(0);
    const QRect bus = view.pinRect(1);
    QVERIFY(shown.inkAt(bus, plain) >= 2 * shown.inkAt(wire, plain));
    QVERIFY(shown.inkAt(wire, plain) >= 1);
    QCOMPARE(shown.inkAt(wire, middle), shown.inkAt(wire, plain));
    // The slash stands out above and below: its ends are found beside the middle.
    int slash = 0;
    for (int y = bus.top(); y < bus.bottom(); ++y) {
        for (int x = middle - 5; x <= middle + 5; ++x) {
            if (shown.image.pixelColor(x, y).lightness() < 128) {
                ++slash;
                break;
            }
        }
    }
    QVERIFY(slash >= bus.height() / 3);
}

void tst_PinFigureView::theBusFlagCountsNotTheName()
{
    PinFigureView view;
    view.setPins({pin(QStringLiteral("AHB1HSIZE[2:0] "), 0, true),
                  pin(QStringLiteral("odd[1:0]"), 0, false)});
    const Shown shown(view);
    const int x = shown.left - shown.em * 5 / 2 + 3;
    QVERIFY(shown.inkAt(view.pinRect(0), x) >= 2 * shown.inkAt(view.pinRect(1), x));
}

void tst_PinFigureView::followsThePalette()
{
    PinFigureView view;
    view.setPins(manyPins(6));
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(20, 20, 30));
    dark.setColor(QPalette::Text, QColor(240, 240, 230));
    for (const QPalette &palette : {QPalette(Qt::lightGray), dark}) {
        view.setPalette(palette);
        const Shown shown(view);
        QCOMPARE(shown.image.pixelColor(2, 2), palette.color(QPalette::Base));
        const QRect row = view.pinRect(2);
        QVERIFY(shown.inkAt(row, shown.right + shown.em) >= 1);
        QVERIFY(shown.inkAt(row, shown.right + shown.em) < row.height());
    }
}

void tst_PinFigureView::manyPinsScroll()
{
    PinFigureView view;
    view.setLabel(QStringLiteral("APB Master"));
    view.setPins(manyPins(192));
    view.resize(view.sizeHint());
    view.show();
    QVERIFY(view.height() < view.figureSize().height());
    QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
    QCOMPARE(view.verticalScrollBar()->maximum(),
             view.figureSize().height() - view.viewport()->height());
    const QImage before = view.viewport()->grab().toImage();
    const QPoint at = view.viewport()->rect().center();
    QWheelEvent wheel(at, view.viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &wheel);
    const int moved = view.verticalScrollBar()->value();
    QVERIFY(moved > 0);
    QCOMPARE(view.zoom(), 1.0);
    const QImage after = view.viewport()->grab().toImage();
    // The picture has moved up; edges may be smoothed a little differently.
    int different = 0;
    for (int y = 0; y < after.height() - moved; ++y) {
        for (int x = 0; x < after.width(); ++x)
            different += after.pixel(x, y) != before.pixel(x, y + moved);
    }
    QVERIFY2(different < after.width() * after.height() / 1000,
             qPrintable(QString::number(different)));
    QVERIFY(after != before);
    view.setPins({});
    QCOMPARE(view.verticalScrollBar()->maximum(), 0);
}

void tst_PinFigureView::controlAndWheelZoom()
{
    PinFigureView view;
    view.setPins(manyPins(20));
    view.resize(200, 200);
    view.show();
    const auto turn = [&view](int angle) {
        const QPoint at = view.viewport()->rect().center();
        QWheelEvent wheel(at, view.viewport()->mapToGlobal(at), {}, {0, angle}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view.viewport(), &wheel);
    };
    const int before = view.verticalScrollBar()->maximum();
    turn(120);
    QVERIFY(view.zoom() > 1);
    QVERIFY(view.verticalScrollBar()->maximum() > before);
    turn(-120);
    QCOMPARE(view.zoom(), 1.0);
    for (int i = 0; i < 40; ++i)
        turn(120);
    QCOMPARE(view.zoom(), PinFigureView::maximumZoom);
    for (int i = 0; i < 80; ++i)
        turn(-120);
    QCOMPARE(view.zoom(), PinFigureView::minimumZoom);
}

void tst_PinFigureView::zoomKeepsThePointUnderTheMouse()
{
    PinFigureView view;
    view.setPins(manyPins(60));
    view.resize(200, 200);
    view.show();
    view.verticalScrollBar()->setValue(300);
    view.horizontalScrollBar()->setValue(40);
    const QPoint at(60, 80);
    const QPoint pointBefore(at.x() + 40, at.y() + 300);
    view.setZoom(2, at);
    const QPointF pointAfter = QPointF(at.x() + view.horizontalScrollBar()->value(),
                                       at.y() + view.verticalScrollBar()->value()) /
                               2;
    QVERIFY((pointAfter - pointBefore).manhattanLength() < 2);
}

void tst_PinFigureView::keysZoomAndScroll()
{
    PinFigureView view;
    view.setPins(manyPins(60));
    view.resize(200, 200);
    view.show();
    QCOMPARE(view.focusPolicy(), Qt::StrongFocus);
    QTest::keyClick(&view, Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(view.zoom() > 1);
    QTest::keyClick(&view, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(view.zoom(), 1.0);
    QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
    QVERIFY(view.zoom() < 1);
    QTest::keyClick(&view, Qt::Key_Down);
    QVERIFY(view.verticalScrollBar()->value() > 0);
}

void tst_PinFigureView::aLargerFontMakesALargerFigure()
{
    PinFigureView view;
    view.setPins(manyPins(10));
    const QSize before = view.figureSize();
    QFont font = view.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    view.setFont(font);
    QVERIFY(view.figureSize().width() > before.width() * 1.6);
    QVERIFY(view.figureSize().height() > before.height() * 1.6);
}

void tst_PinFigureView::printsToSvg_data()
{
    QTest::addColumn<int>("count");
    for (int count : {0, 20, 192})
        QTest::addRow("%d pins", count) << count;
}

void tst_PinFigureView::printsToSvg()
{
    QFETCH(int, count);
    PinFigureView view;
    QPalette dark(Qt::black);
    view.setPalette(dark);
    view.setLabel(QStringLiteral("Cortex-M1 <&>"));
    view.setPins(manyPins(count));
    view.setZoom(2, {});
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::ReadWrite));
    QVERIFY(view.writeSvg(&buffer));
    QStringList texts;
    QXmlStreamReader xml(buffer.data());
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("text"))
            texts.append(xml.readElementText().trimmed());
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(texts.contains(QStringLiteral("Cortex-M1 <&>")));
    for (const PinFigure &each : view.pins())
        QVERIFY2(texts.contains(each.name()), qPrintable(each.name()));

    QSvgRenderer renderer(buffer.data());
    QVERIFY(renderer.isValid());
    QImage image(renderer.defaultSize(), QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white)); // paper, whatever the screen looks like
    int dark2 = 0;
    for (int x = 0; x < image.width(); ++x)
        dark2 += image.pixelColor(x, image.height() / 2).lightness() < 64;
    QVERIFY(dark2 > 0);
    QCOMPARE(view.zoom(), 2.0);
}

void tst_PinFigureView::aClosedDeviceIsReported()
{
    const PinFigureView view;
    const QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("absent/figure.svg")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(".*")));
    QVERIFY(!view.writeSvg(&file));
}

void tst_PinFigureView::tellsAssistiveTools()
{
    PinFigureView view;
    view.setLabel(QStringLiteral("CAN"));
    view.setPins({pin(QStringLiteral("a"), 0), pin(QStringLiteral("b"), 1),
                  pin(QStringLiteral("c"), 1), pin(QStringLiteral("d"), 2)});
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&view);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Pins of CAN"));
    QCOMPARE(interface->text(QAccessible::Description),
             QStringLiteral("1 inputs, 2 outputs, 1 bidirectional"));
    QCOMPARE(interface->role(), QAccessible::List);
    view.show();
    QCOMPARE(interface->childCount(), 4);
    QVERIFY(!interface->child(4));
    QStringList names;
    for (int i = 0; i < 4; ++i) {
        QAccessibleInterface *child = interface->child(i);
        QCOMPARE(child->role(), QAccessible::ListItem);
        QCOMPARE(child->parent(), interface);
        QCOMPARE(interface->indexOfChild(child), i);
        const QPoint middle = child->rect().center();
        QCOMPARE(interface->childAt(middle.x(), middle.y()), child);
        names.append(child->text(QAccessible::Name));
    }
    QCOMPARE(names, (QStringList{QStringLiteral("a, input"), QStringLiteral("b, output"),
                                 QStringLiteral("c, output"), QStringLiteral("d, bidirectional")}));
    const QRect before = interface->child(3)->rect();
    view.setZoom(2, {});
    QCOMPARE(interface->child(3)->rect().height(), 2 * before.height());

    // A client that holds the last pin.
    const QAccessible::Id held = QAccessible::uniqueId(interface->child(3));
    view.setPins({pin(QStringLiteral("x"), 0)});
    QVERIFY(!QAccessible::accessibleInterface(held)->isValid());
    QVERIFY(QAccessible::accessibleInterface(held)->state().invalid);
}

QTEST_MAIN(tst_PinFigureView)
#include "tst_pinfigureview.moc"
