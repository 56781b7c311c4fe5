#include "dialogdriver.h"
#include "dialogs/expectedblocks.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <dev/devicedb.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>
#include <diagram/lineitem.h>
#include <diagram/textitem.h>
#include <dialogs/cortexm1.h>
#include <ui/tarvoorixm1dlg.h>

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QStyle>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <cmath>

using namespace TARVOORIXM1;
using TestSupport::ModalWatcher;

namespace
{

// Opens protected access to the number of connections.
struct Access : QObject {
    static int count(const QObject *sender, const char *signal)
    {
        return (sender->*&Access::receivers)(signal);
    }
};

// A view with the hands of a user.
class View : public IPView
{
public:
    explicit View(OptionMap *options, QWidget *parent = nullptr)
        : IPView(options, parent)
    {
        resize(1060, 620);
        if (!parent) {
            show();
            QApplication::setActiveWindow(this);
        }
    }

    QList<IPItem *> blocks() const
    {
        QList<IPItem *> found;
        for (QGraphicsItem *item : scene()->items(Qt::AscendingOrder)) {
            if (auto *block = qgraphicsitem_cast<IPItem *>(item))
                found.append(block);
        }
        return found;
    }
    IPItem *block(const QString &label, bool clickable = true) const
    {
        for (IPItem *candidate : blocks()) {
            if (candidate->text() == label && (!clickable || candidate->acceptHoverEvents()))
                return candidate;
        }
        return nullptr;
    }
    IPItem *block(const char *label) const { return block(QString::fromLatin1(label)); }
    LineItem *dropAt(int x, int y) const
    {
        for (QGraphicsItem *item : scene()->items()) {
            auto *line = qgraphicsitem_cast<LineItem *>(item);
            if (line && line->scenePos() == QPointF(x, y) && line->points().last() == QPoint(0, 30))
                return line;
        }
        return nullptr;
    }

    // In the viewport.
    QPoint middleOf(const IPItem *item) const
    {
        return mapFromScene(item->sceneBoundingRect().center());
    }
    // As a window system sends it: a click comes first.
    void doubleClick(const QPoint &position)
    {
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, position);
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, position);
    }
    void move(const QPoint &position)
    {
        QMouseEvent event(QEvent::MouseMove, position, viewport()->mapToGlobal(position),
                          Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(viewport(), &event);
    }
    void wheel(int angle)
    {
        const QPoint at = viewport()->rect().center();
        QWheelEvent event(at, viewport()->mapToGlobal(at), {}, {0, angle}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport(), &event);
    }
    qreal zoom() const { return transform().m11(); }

    QImage grabbed() { return viewport()->grab().toImage(); }
};

struct Item {
    const char *kind; // b: clickable block, f: fixed block, l: line, d: dashed line, t: text
    const char *parent;
    int x, y;
    int width, height;       // blocks; heads of lines
    const char *text;        // of blocks and texts; points of lines
    QRgb color = 0xff000000; // fill of blocks, colour of lines
};

constexpr QRgb none = 0x00000000;
constexpr QRgb white = 0xffffffff;
constexpr QRgb blue = 0xffadd8e6;
constexpr QRgb red = 0xffff0000;

// Everything that the diagram consists of, but for the blocks.
const Item fixedItems[] = {
    {"f", "", 0, 0, 1000, 560, "", none},
    {"f", "frame", 250, 30, 500, 160, "", blue},
    {"t", "frame", 10, 5, 0, 0, "Cortex-M1"},
    {"b", "system", 150, 50, 200, 60, "Cortex-M1", white},
    {"f", "system", 45, 65, 60, 30, "ITCM", none},
    {"f", "system", 395, 65, 60, 30, "DTCM", none},
    {"l", "system", 0, 25, 4, 3, "0,0 170,0 170,25"},
    {"t", "system", 40, 25, 0, 0, "IRQ[31:0]"},
    {"d", "system", 500, 25, 4, 3, "0,0 -170,0 -170,25"},
    {"t", "system", 400, 25, 0, 0, "DEBUG"},
    {"l", "system", 250, 110, 4, 3, "0,0 0,50"},
    {"t", "system", 250, 120, 0, 0, "AHB-Lite"},
    {"d", "frame", 0, 220, 4, 4, "0,0 1000,0", red},
    {"t", "frame", 10, 225, 0, 0, "AHB Bus"},
    {"l", "", 500, 190, 2, 3, "0,0 0,60"},
    {"l", "", 200, 250, 4, 4, "0,0 540,0"},
    {"d", "", 0, 350, 4, 4, "0,0 1000,0", red},
    {"t", "", 10, 355, 0, 0, "APB Bus"},
    {"l", "", 500, 250, 2, 3, "0,0 0,130"},
    {"f", "", 460, 380, 80, 40, "AHB2APB", white},
    {"l", "", 500, 420, 2, 3, "0,0 0,30"},
    {"l", "", 60, 450, 4, 4, "0,0 880,0"},
};

QString lineOf(const Item &item)
{
    return QStringLiteral("%1 in '%2' at %3,%4 %5x%6 '%7' #%8")
        .arg(QString::fromLatin1(item.kind), QString::fromLatin1(item.parent))
        .arg(item.x)
        .arg(item.y)
        .arg(item.width)
        .arg(item.height)
        .arg(QString::fromLatin1(item.text), QString::number(item.color, 16));
}

// Of all items: a block hangs from its bus's branch by a drop.
QStringList expectedLines()
{
    QStringList lines;
    for (const Item &item : fixedItems)
        lines.append(lineOf(item));
    for (const Expected::Block &block : Expected::blocks()) {
        const int branch = qstrcmp(block.module, "Tarvo AHB Bus") == 0 ? 250 : 450;
        for (const Expected::Box &box : block.boxes) {
            lines.append(lineOf(Item{"l", "", box.x + box.width / 2, branch, 2, 3, "0,0 0,30"}));
            lines.append(
                lineOf(Item{"b", "", box.x, branch + 30, box.width, 40, box.label, white}));
        }
    }
    return lines;
}

// The same text for an item of a scene.
QString lineOf(const QGraphicsItem *item)
{
    QString parent;
    if (item->parentItem())
        parent =
            item->parentItem()->parentItem() ? QStringLiteral("system") : QStringLiteral("frame");
    QString kind = QStringLiteral("t");
    QString text;
    int width = 0;
    int height = 0;
    QColor color = Qt::black;
    if (const auto *block = qgraphicsitem_cast<const IPItem *>(item)) {
        kind = block->isClickable() ? QStringLiteral("b") : QStringLiteral("f");
        text = block->text();
        width = int(block->boundingRect().width());
        height = int(block->boundingRect().height());
        color = block->fillColor();
        if (block->outlineColor() != QColor(Qt::black) || block->isRounded() || block->isActive())
            kind += u'!';
    } else if (const auto *line = qgraphicsitem_cast<const LineItem *>(item)) {
        kind = line->isDashed() ? QStringLiteral("d") : QStringLiteral("l");
        QStringList points;
        for (const QPoint &point : line->points())
            points.append(QStringLiteral("%1,%2").arg(point.x()).arg(point.y()));
        text = points.join(u' ');
        width = line->startStyle();
        height = line->endStyle();
        color = line->color();
    } else if (const auto *label = qgraphicsitem_cast<const TextItem *>(item)) {
        text = label->text();
    }
    return QStringLiteral("%1 in '%2' at %3,%4 %5x%6 '%7' #%8")
        .arg(kind, parent)
        .arg(int(item->x()))
        .arg(int(item->y()))
        .arg(width)
        .arg(height)
        .arg(text, QString::number(color.rgba(), 16));
}

struct SlotRow {
    const char *label;
    const char *slot;
    const char *key; // the option that the block's look follows
};

const std::vector<SlotRow> &slotRows()
{
    static const std::vector<SlotRow> list = [] {
        std::vector<SlotRow> rows = {{"Cortex-M1", SLOT(onCortexM1()), ""}};
        for (const Expected::Block &block : Expected::blocks()) {
            for (size_t i = 0; i < block.boxes.size(); ++i) {
                const Expected::Box &box = block.boxes.at(i);
                rows.push_back({box.label, block.slot, box.recolours ? block.shownBy(i).key : ""});
            }
        }
        return rows;
    }();
    return list;
}

struct AvailabilityRow {
    const char *label;
    const char *key;
    void (IPView::*set)(bool);
    int dropX;
    const char *slot;
};

const AvailabilityRow availabilityRows[] = {
    {"CAN", "Enable CAN", &IPView::setCanAvailable, 280, SLOT(onCan())},
    {"DDR3", "Enable DDR3", &IPView::setDdr3Available, 450, SLOT(onDDR3())},
    {"Ethernet", "Enable Ethernet", &IPView::setEthernetAvailable, 370, SLOT(onEhternet())},
    {"PSRAM", "Enable PSRAM", &IPView::setPsramAvailable, 560, SLOT(onPsram())},
    {"SPI-Flash", "Enable SPI", &IPView::setSpiFlashAvailable, 650, SLOT(onSpiFlash())},
};

// What assistive tools read.
QString announced(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

DEV::DeviceArg deviceOf(const char *name, const char *package)
{
    DEV::ChipFilter filter;
    filter.device = QString::fromLatin1(name);
    filter.package = QString::fromLatin1(package);
    return DEV::DeviceDb::bundled().filterDevice(filter).value(0);
}

} // namespace

class tst_IPView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsWhatTheTableSays();
    void paintsWhatTheTableSays();
    void psramHasItsToolTip();
    void everyBlockRunsItsSlot();
    void aDoubleClickOpensTheCore();
    void aDoubleClickNeedsNoClickBefore();
    void acceptedCoreUpdatesTheBlocks();
    void fixedBlocksOpenNothing();
    void hoveringLightsUpAndFades();
    void optionsColourTheirBlocks_data();
    void optionsColourTheirBlocks();
    void anyPortColoursItsBlock();
    void someBlocksAreNeverColoured();
    void unavailableBlocksAreGone_data();
    void unavailableBlocksAreGone();
    void devicesDecideWhatIsThere_data();
    void devicesDecideWhatIsThere();
    void wheelZoomsWithinLimits();
    void buttonsZoom();
    void buttonsStandInTheCorner();
    void draggingTheGroundPans();
    void draggingABlockDoesNotPan();
    void otherButtonsDoNotPan();
    void theCursorTellsWhatIsUnderIt();
    void tabWalksOverTheBlocks();
    void tabLeavesAtTheEnd();
    void enterOpensTheFocusedBlock();
    void theFocusedBlockIsFramedAndAnnounced();
    void keysZoom();
    void theDiagramFitsTheDialog();
    void labelsFitTheirBlocks_data();
    void labelsFitTheirBlocks();
    void picturesAreWritten();
    void unusablePicturePathsAreReported();
    void longSessionsBehaveAsTheModel();
};

void tst_IPView::holdsWhatTheTableSays()
{
    OptionMap map;
    const View view(&map);
    QStringList expected = expectedLines();
    QStringList actual;
    for (const QGraphicsItem *item : view.scene()->items(Qt::AscendingOrder))
        actual.append(lineOf(item));
    // Children come with their parents; the order is checked where it matters.
    expected.sort();
    actual.sort();
    QCOMPARE(actual, expected);

    const QList<IPItem *> blocks = view.blocks();
    QCOMPARE(blocks.first()->boundingRect(), QRectF(0, 0, 1000, 560)); // the frame lies below all
    for (const SlotRow &row : slotRows()) {
        // Nothing but the block is hit in its middle.
        const IPItem *block = view.block(row.label);
        QCOMPARE(view.scene()->itemAt(block->sceneBoundingRect().center(), {}), block);
    }
}

void tst_IPView::paintsWhatTheTableSays()
{
    OptionMap map = {{Key::enableRtc, true}};
    View view(&map);
    view.updateView();
    QCOMPARE(view.zoom(), 1.0);
    view.move({1, 1});
    const QImage image = view.grabbed();
    const auto at = [&](int x, int y) {
        return image.pixelColor(view.mapFromScene(QPointF(x, y)));
    };
    const QColor black(Qt::black);
    QCOMPARE(at(500, 10), QColor(Qt::white)); // paper
    QCOMPARE(at(0, 300), black);              // frame
    QCOMPARE(at(500, 560), black);
    QCOMPARE(at(260, 180), QColor(173, 216, 230)); // sub-system
    QCOMPARE(at(410, 130), QColor(Qt::white));     // core
    QCOMPARE(at(300, 55), black);                  // interrupt line
    QCOMPARE(at(420, 70), black);
    QCOMPARE(at(300, 97), QColor(173, 216, 230)); // a memory has no fill of its own
    QCOMPARE(at(295, 110), black);
    QCOMPARE(at(500, 150), black);                 // bus port
    QCOMPARE(at(300, 250), black);                 // AHB branch
    QCOMPARE(at(173, 283), QColor(Qt::white));     // GPIO, off
    QCOMPARE(at(433, 483), QColor(Qt::darkGreen)); // RTC, on
    QCOMPARE(at(500, 300), black);                 // bridge link
    QCOMPARE(at(463, 383), QColor(Qt::white));     // bridge
    int reds = 0;
    for (int x = 0; x < 1000; ++x)
        reds += at(x, 220) == QColor(Qt::red);
    QVERIFY2(reds > 400 && reds < 1000, qPrintable(QString::number(reds))); // dashed
}

void tst_IPView::psramHasItsToolTip()
{
    OptionMap map;
    const View view(&map);
    const QStringList lines = view.block("PSRAM")->toolTip().split(u'\n');
    QCOMPARE(lines.size(), 8);
    QCOMPARE(lines.first(), QStringLiteral("Note: Support Part Number:"));
    QCOMPARE(lines.at(1), QStringLiteral("    TV2KR-LV18QN88PES"));
    QCOMPARE(lines.at(5), QStringLiteral("    TV2KR-LV18EQ144PC9/I8"));
    QCOMPARE(lines.last(), QStringLiteral("    TV2KR-LV18EQ144PC7/I6"));
    QVERIFY(view.block("CAN")->toolTip().isEmpty());
}

void tst_IPView::everyBlockRunsItsSlot()
{
    OptionMap map;
    View view(&map);
    for (const SlotRow &row : slotRows()) {
        IPItem *block = view.block(row.label);
        QVERIFY2(block, row.label);
        QCOMPARE(Access::count(block, SIGNAL(doubleClicked())), 1);
        QVERIFY2(disconnect(block, SIGNAL(doubleClicked()), &view, row.slot), row.label);
        QCOMPARE(Access::count(block, SIGNAL(doubleClicked())), 0);
    }
    for (IPItem *block : view.blocks())
        QCOMPARE(Access::count(block, SIGNAL(doubleClicked())), 0);
}

void tst_IPView::aDoubleClickOpensTheCore()
{
    OptionMap map = {{Key::ipDeviceId, deviceOf("TV2KR-18C", "QFN88P").id()}};
    View view(&map);
    QWidget *parent = nullptr;
    const ModalWatcher watcher([&](QWidget *modal) {
        auto *page = qobject_cast<CortexM1 *>(modal);
        parent = page ? page->parentWidget() : nullptr;
        static_cast<QDialog *>(modal)->reject();
    });
    view.doubleClick(view.middleOf(view.block("Cortex-M1")));
    QCOMPARE(watcher.count(), 1);
    QCOMPARE(parent, &view);
    QCOMPARE(map.size(), 1);
    // A single click opens nothing, and neither does another button.
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.middleOf(view.block("Cortex-M1")));
    QTest::mouseDClick(view.viewport(), Qt::RightButton, {},
                       view.middleOf(view.block("Cortex-M1")));
    QCoreApplication::processEvents();
    QCOMPARE(watcher.count(), 1);
}

void tst_IPView::aDoubleClickNeedsNoClickBefore()
{
    OptionMap map;
    View view(&map);
    const ModalWatcher watcher([](QWidget *modal) { modal->close(); });
    // One after the other, with no release between.
    for (const char *label : {"CAN", "RTC", "Cortex-M1", "RTC", "RTC", "SPI"}) {
        IPItem *block = view.block(label);
        QList<IPItem *> clicked;
        QList<QMetaObject::Connection> connections;
        for (IPItem *each : view.blocks())
            connections.append(connect(each, &IPItem::doubleClicked, this,
                                       [&clicked, each] { clicked.append(each); }));
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.middleOf(block));
        for (const QMetaObject::Connection &connection : qAsConst(connections))
            disconnect(connection);
        QCOMPARE(clicked, QList<IPItem *>{block});
    }
}

void tst_IPView::acceptedCoreUpdatesTheBlocks()
{
    OptionMap map = {{Key::ipDeviceId, deviceOf("TV2KR-18C", "QFN88P").id()}};
    View view(&map);
    map[Key::enableRtc] = true; // nobody has told the view
    bool accepts = false;
    const ModalWatcher watcher([&](QWidget *modal) {
        auto *page = qobject_cast<CortexM1 *>(modal);
        QVERIFY(page);
        QTest::mouseClick(
            page->buttonBox()->button(accepts ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
            Qt::LeftButton);
    });
    view.doubleClick(view.middleOf(view.block("Cortex-M1")));
    QVERIFY(!view.block("RTC")->isActive());
    accepts = true;
    view.doubleClick(view.middleOf(view.block("Cortex-M1")));
    QVERIFY(view.block("RTC")->isActive());
    QVERIFY(!view.block("Cortex-M1")->isActive());
    QCOMPARE(map.value(Key::numberOfInterrupts), QVariant(32));
    QCOMPARE(watcher.count(), 2);
}

void tst_IPView::fixedBlocksOpenNothing()
{
    OptionMap map;
    View view(&map);
    const ModalWatcher watcher([](QWidget *modal) { modal->close(); });
    for (const QPointF &point : {QPointF(320, 110), QPointF(680, 110), QPointF(500, 400),
                                 QPointF(260, 180), QPointF(20, 300), QPointF(500, 220)})
        view.doubleClick(view.mapFromScene(point));
    QCoreApplication::processEvents();
    QCOMPARE(watcher.count(), 0);
}

void tst_IPView::hoveringLightsUpAndFades()
{
    OptionMap map = {{Key::ipDeviceId, deviceOf("TV2KR-18C", "QFN88P").id()}};
    View view(&map);
    const auto fill = [&view](const char *label) {
        const QPoint corner = view.mapFromScene(view.block(label)->sceneBoundingRect().topLeft());
        return view.grabbed().pixelColor(corner + QPoint(3, 3));
    };
    view.move(view.mapFromScene(QPointF(20, 300)));
    QCOMPARE(fill("CAN"), QColor(Qt::white));
    view.move(view.middleOf(view.block("CAN")));
    QCOMPARE(fill("CAN"), QColor(Qt::cyan));
    view.block("CAN")->onConfigured(true);
    QCOMPARE(fill("CAN"), QColor(Qt::darkGreen));
    view.move(view.middleOf(view.block("GPIO")));
    QCOMPARE(fill("GPIO"), QColor(Qt::cyan));

    // The core's dialog takes the button's release; hovering goes on afterwards all the same.
    const ModalWatcher watcher([](QWidget *modal) { static_cast<QDialog *>(modal)->reject(); });
    const QPoint core = view.middleOf(view.block("Cortex-M1"));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, core);
    QMouseEvent press(QEvent::MouseButtonDblClick, core, view.viewport()->mapToGlobal(core),
                      Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &press);
    QCOMPARE(watcher.count(), 1);
    view.move(view.middleOf(view.block("RTC")));
    QCOMPARE(fill("RTC"), QColor(Qt::cyan));
    QCOMPARE(fill("Cortex-M1"), QColor(Qt::white));
}

void tst_IPView::optionsColourTheirBlocks_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("key");
    for (const SlotRow &row : slotRows()) {
        if (*row.key)
            QTest::newRow(row.label)
                << QString::fromLatin1(row.label) << QString::fromLatin1(row.key);
    }
}

void tst_IPView::optionsColourTheirBlocks()
{
    QFETCH(QString, label);
    QFETCH(QString, key);
    OptionMap map;
    View view(&map);
    for (const QVariant &value : {QVariant(true), QVariant(QStringLiteral("true"))}) {
        map[key] = value;
        view.updateView();
        for (const IPItem *block : view.blocks())
            QCOMPARE(block->isActive(), block->text() == label);
        map[key] = QStringLiteral("false");
        view.updateView();
        QVERIFY(!view.block(label)->isActive());
    }
    map.clear();
    view.updateView();
    QCOMPARE(map.size(), 0); // looking does not insert
}

void tst_IPView::anyPortColoursItsBlock()
{
    for (int port = 0; port <= 17; ++port) {
        OptionMap map = {{QStringLiteral("Enable_APB_Master%1").arg(port), true},
                         {QStringLiteral("Enable_AHB_Master%1").arg(port), true}};
        View view(&map);
        view.updateView();
        QCOMPARE(view.block("APB Master [1-16]")->isActive(), port >= 1 && port <= 16);
        QCOMPARE(view.block("AHB Master [1-6]")->isActive(), port >= 1 && port <= 6);
    }
}

void tst_IPView::someBlocksAreNeverColoured()
{
    OptionMap map = {
        {Key::enablePsram, true}, {QString(), true}, {QStringLiteral("Cortex-M1"), true}};
    View view(&map);
    view.setPsramAvailable(true);
    for (const IPItem *block : view.blocks())
        QVERIFY2(!block->isActive(), qPrintable(block->text()));
    view.block("PSRAM")->onConfigured(true);
    view.updateView();
    QVERIFY(view.block("PSRAM")->isActive()); // nor is it switched off
}

void tst_IPView::unavailableBlocksAreGone_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < 5; ++i)
        QTest::newRow(availabilityRows[i].label) << i;
}

void tst_IPView::unavailableBlocksAreGone()
{
    QFETCH(int, row);
    const AvailabilityRow &entry = availabilityRows[row];
    const QString key = QString::fromLatin1(entry.key);
    OptionMap map;
    View view(&map);
    IPItem *block = view.block(entry.label);
    LineItem *drop = view.dropAt(entry.dropX, 250);
    QVERIFY(drop);
    const QPoint middle = view.middleOf(block);
    QVERIFY(!view.isBlockAvailable(key)); // nothing is registered before the device is known
    QVERIFY(block->isVisible());

    map[QString::fromLatin1(entry.key)] = true;
    (view.*entry.set)(false);
    QVERIFY(!view.isBlockAvailable(key));
    QVERIFY(!block->isVisible());
    QVERIFY(!block->isClickable());
    QVERIFY(!drop->isVisible());
    QCOMPARE(Access::count(block, SIGNAL(doubleClicked())), 0);
    {
        QSignalSpy spy(block, &IPItem::doubleClicked);
        const ModalWatcher watcher([](QWidget *modal) { modal->close(); });
        view.doubleClick(middle);
        QCoreApplication::processEvents();
        QCOMPARE(spy.count(), 0);
        QCOMPARE(watcher.count(), 0);
    }
    int hidden = 0;
    for (const QGraphicsItem *item : view.scene()->items())
        hidden += !item->isVisible();
    QCOMPARE(hidden, 2);
    if (key == QLatin1String("Enable SPI")) // its own block stays and is recoloured
        QVERIFY(view.block("SPI")->isVisible() && view.block("SPI")->isActive());

    (view.*entry.set)(true);
    (view.*entry.set)(true);
    QVERIFY(view.isBlockAvailable(key));
    QVERIFY(block->isVisible() && block->isClickable() && drop->isVisible());
    QCOMPARE(Access::count(block, SIGNAL(doubleClicked())), 1);
    QSignalSpy spy(block, &IPItem::doubleClicked);
    const ModalWatcher watcher([](QWidget *modal) { modal->close(); });
    view.doubleClick(middle);
    QCOMPARE(spy.count(), 1);
    QVERIFY(disconnect(block, SIGNAL(doubleClicked()), &view, entry.slot));
}

void tst_IPView::devicesDecideWhatIsThere_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("missing");
    const auto row = [](const char *device, const char *package, const char *missing) {
        QTest::addRow("%s %s", device, package)
            << QString::fromLatin1(device) << QString::fromLatin1(package)
            << QString::fromLatin1(missing);
    };
    row("TV2KR-18C", "QFN88P", "");
    row("TV2KR-18C", "eLQFP144PF", "");
    row("TV2KR-18C", "QFN88", "PSRAM");
    row("TV2KLR-18C", "QFN88", "");
    row("TV1KL-5A", "", "CAN DDR3 Ethernet PSRAM SPI-Flash");
    row("TV1L-9", "", "DDR3 PSRAM");
    row("TV2K-18", "", "PSRAM");
}

void tst_IPView::devicesDecideWhatIsThere()
{
    QFETCH(QString, device);
    QFETCH(QString, package);
    QFETCH(QString, missing);
    TarvoOrixM1Dlg dialog{OptionMap()};
    dialog.prepareNew(QStringLiteral("/tmp"),
                      deviceOf(device.toLatin1().constData(), package.toLatin1().constData()));
    const auto *view = dialog.findChild<IPView *>();
    QStringList hidden;
    for (const QGraphicsItem *item : view->scene()->items()) {
        const auto *block = qgraphicsitem_cast<const IPItem *>(item);
        if (block && !block->isVisible())
            hidden.append(block->text());
    }
    hidden.sort();
    QCOMPARE(hidden.join(u' '), missing);
}

void tst_IPView::wheelZoomsWithinLimits()
{
    OptionMap map;
    View view(&map);
    QCOMPARE(view.zoom(), 1.0);
    for (int step = 1; step <= 7; ++step) {
        view.wheel(120);
        QCOMPARE(view.zoom(), std::pow(1.2, step));
    }
    view.wheel(120);
    view.wheel(120);
    QCOMPARE(view.zoom(), 4.0);
    view.wheel(120);
    QCOMPARE(view.zoom(), 4.0);
    view.wheel(0);
    QCOMPARE(view.zoom(), 4.0);
    view.wheel(-120);
    QCOMPARE(view.zoom(), 3.2);
    for (int i = 0; i < 30; ++i)
        view.wheel(-15); // however little
    QCOMPARE(view.zoom(), 0.1);
    QCOMPARE(view.transform(), QTransform::fromScale(0.1, 0.1));

    // Each factor by itself, and nothing but factors.
    view.setTransform(QTransform(2, 1, 1, 0.11, 5, 5));
    view.zoomOut();
    QCOMPARE(view.transform(), QTransform::fromScale(1.6, 0.1));
    view.setTransform(QTransform::fromScale(3.9, 1));
    view.zoomIn();
    QCOMPARE(view.transform(), QTransform::fromScale(4, 1.2));
}

void tst_IPView::buttonsZoom()
{
    OptionMap map;
    View view(&map);
    const QList<QToolButton *> buttons =
        view.findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.size(), 2);
    for (const QToolButton *button : buttons) {
        QVERIFY(!button->icon().isNull());
        QVERIFY(!button->icon().availableSizes().isEmpty()); // the picture has been found
        QVERIFY(!button->accessibleName().isEmpty());
    }
    QTest::mouseClick(buttons.at(1), Qt::LeftButton);
    QCOMPARE(view.zoom(), 1.2);
    QTest::mouseClick(buttons.at(0), Qt::LeftButton);
    QCOMPARE(view.zoom(), 1.2 * 0.8);
}

void tst_IPView::buttonsStandInTheCorner()
{
    OptionMap map;
    View view(&map);
    for (const QSize &size : {QSize(600, 400), QSize(1100, 700)}) {
        view.resize(size);
        const auto buttons =
            view.findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
        const int edge = view.style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
        const int spacing = view.style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing);
        const QRect out = buttons.at(0)->geometry();
        const QRect in = buttons.at(1)->geometry();
        QCOMPARE(out.size(), buttons.at(0)->sizeHint());
        QCOMPARE(in.size(), buttons.at(1)->sizeHint());
        QCOMPARE(out.bottomRight(), QPoint(size.width() - edge, size.height() - edge));
        QCOMPARE(in.right(), out.right());
        QCOMPARE(in.bottom(), out.top() - spacing);
    }
}

void tst_IPView::draggingTheGroundPans()
{
    OptionMap map;
    View view(&map);
    view.resize(500, 300);
    const QPoint start(200, 150);
    view.horizontalScrollBar()->setValue(200);
    view.verticalScrollBar()->setValue(100);
    const int x = view.horizontalScrollBar()->value();
    const int y = view.verticalScrollBar()->value();
    const IPItem *under = nullptr;
    for (QGraphicsItem *item : view.items(start)) {
        if (!under)
            under = qgraphicsitem_cast<IPItem *>(item);
    }
    QVERIFY(!under || !under->isClickable());
    const auto move = [&view](const QPoint &to) {
        QMouseEvent event(QEvent::MouseMove, to, view.viewport()->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, {});
        QCoreApplication::sendEvent(view.viewport(), &event);
    };
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, start);
    QCOMPARE(view.cursor().shape(), Qt::ClosedHandCursor);
    move(start + QPoint(-30, -20));
    QCOMPARE(view.horizontalScrollBar()->value(), x + 30);
    QCOMPARE(view.verticalScrollBar()->value(), y + 20);
    move(start + QPoint(-25, -30));
    QCOMPARE(view.horizontalScrollBar()->value(), x + 25);
    QCOMPARE(view.verticalScrollBar()->value(), y + 30);
    QCOMPARE(view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, start);
    QCOMPARE(view.cursor().shape(), Qt::OpenHandCursor);
    move(start);
    QCOMPARE(view.horizontalScrollBar()->value(), x + 25);
}

void tst_IPView::draggingABlockDoesNotPan()
{
    OptionMap map;
    View view(&map);
    view.resize(500, 300);
    view.centerOn(view.block("CAN"));
    const int x = view.horizontalScrollBar()->value();
    const QPoint start = view.middleOf(view.block("CAN"));
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, start);
    QVERIFY(view.cursor().shape() != Qt::ClosedHandCursor);
    QMouseEvent move(QEvent::MouseMove, start - QPoint(40, 0), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view.viewport(), &move);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, start - QPoint(40, 0));
    QCOMPARE(view.horizontalScrollBar()->value(), x);
}

void tst_IPView::otherButtonsDoNotPan()
{
    OptionMap map;
    View view(&map);
    const QPoint ground = view.mapFromScene(QPointF(20, 300));
    for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(view.viewport(), button, {}, ground);
        QVERIFY(view.cursor().shape() != Qt::ClosedHandCursor);
        QTest::mouseRelease(view.viewport(), button, {}, ground);
    }
    // Another button's release does not end it.
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, ground);
    QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, ground);
    QCOMPARE(view.cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, ground);
    QCOMPARE(view.cursor().shape(), Qt::OpenHandCursor);
}

void tst_IPView::theCursorTellsWhatIsUnderIt()
{
    OptionMap map;
    View view(&map);
    const auto over = [&view](const QPointF &point) {
        view.move(view.mapFromScene(point));
        return view.viewport()->cursor().shape();
    };
    QCOMPARE(over({500, 110}), Qt::ArrowCursor);
    QCOMPARE(over({260, 180}), Qt::OpenHandCursor); // the sub-system is no button
    QCOMPARE(over({280, 300}), Qt::ArrowCursor);
    QCOMPARE(over({500, 400}), Qt::OpenHandCursor);
    QCOMPARE(over({480, 220}), Qt::OpenHandCursor);
    view.setCanAvailable(false);
    QCOMPARE(over({281, 300}), Qt::OpenHandCursor);
    view.setCanAvailable(true);
    QCOMPARE(over({282, 300}), Qt::ArrowCursor);
    for (const QToolButton *button : view.findChildren<QToolButton *>())
        QCOMPARE(button->cursor().shape(), Qt::ArrowCursor);
}

void tst_IPView::tabWalksOverTheBlocks()
{
    OptionMap map;
    View view(&map);
    view.setEthernetAvailable(false);
    view.setFocus(Qt::TabFocusReason);
    QVERIFY(view.hasFocus());
    QStringList expected;
    for (const SlotRow &row : slotRows()) {
        if (qstrcmp(row.label, "Ethernet") != 0)
            expected.append(QString::fromLatin1(row.label));
    }
    QStringList walked;
    for (int i = 0; i < expected.size(); ++i) {
        QVERIFY(view.focusedBlock());
        walked.append(view.focusedBlock()->text());
        QTest::keyClick(&view, Qt::Key_Tab);
    }
    QCOMPARE(walked, expected);
}

void tst_IPView::tabLeavesAtTheEnd()
{
    QWidget window;
    auto *before = new QLineEdit(&window);
    OptionMap map;
    auto *view = new View(&map, &window);
    window.show();
    QApplication::setActiveWindow(&window);
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), view);
    QCOMPARE(view->focusedBlock(), view->block("Cortex-M1"));
    QTest::keyClick(view, Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), before);
    QVERIFY(!view->focusedBlock());
    QTest::keyClick(before, Qt::Key_Tab);
    for (size_t i = 0; i < slotRows().size(); ++i) {
        QCOMPARE(QApplication::focusWidget(), view);
        QTest::keyClick(view, Qt::Key_Tab);
    }
    QWidget *button = QApplication::focusWidget();
    QVERIFY(qobject_cast<QToolButton *>(button));
    QTest::keyClick(button, Qt::Key_Backtab);
    QCOMPARE(view->focusedBlock(), view->block("APB Master [1-16]"));
    // A hidden block loses the focus, a click takes it away.
    QTest::keyClick(view, Qt::Key_Backtab);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(3, 3));
    QVERIFY(!view->focusedBlock());
}

void tst_IPView::enterOpensTheFocusedBlock()
{
    OptionMap map = {{Key::ipDeviceId, deviceOf("TV2KR-18C", "QFN88P").id()}};
    View view(&map);
    const ModalWatcher watcher([](QWidget *modal) {
        QVERIFY(qobject_cast<CortexM1 *>(modal));
        static_cast<QDialog *>(modal)->reject();
    });
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(watcher.count(), 0);
    view.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(watcher.count(), 1);
    QTest::keyClick(&view, Qt::Key_Enter);
    QCOMPARE(watcher.count(), 2);
    QCOMPARE(view.focusedBlock(), view.block("Cortex-M1"));
    // A block that has gone is not opened.
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Tab);
    QCOMPARE(view.focusedBlock(), view.block("CAN"));
    view.setCanAvailable(false);
    QVERIFY(!view.focusedBlock());
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(watcher.count(), 2);
}

void tst_IPView::theFocusedBlockIsFramedAndAnnounced()
{
    OptionMap map = {{Key::enableGpio, true}};
    View view(&map);
    view.updateView();
    const QColor highlight = view.palette().color(QPalette::Highlight);
    const auto isFramed = [&](const char *label) {
        const QPointF left = view.block(label)->sceneBoundingRect().topLeft() + QPointF(-4, 20);
        return view.grabbed().pixelColor(view.mapFromScene(left)) == highlight;
    };
    QVERIFY(!isFramed("GPIO"));
    QCOMPARE(announced(&view), QStringLiteral("Block diagram"));
    view.setFocus(Qt::TabFocusReason);
    QCOMPARE(announced(&view), QStringLiteral("Cortex-M1"));
    QTest::keyClick(&view, Qt::Key_Tab);
    QVERIFY(isFramed("GPIO"));
    QVERIFY(!isFramed("CAN"));
    QCOMPARE(announced(&view), QStringLiteral("GPIO, switched on"));
    QTest::keyClick(&view, Qt::Key_Tab);
    QVERIFY(!isFramed("GPIO"));
    QVERIFY(isFramed("CAN"));
    QCOMPARE(announced(&view), QStringLiteral("CAN, switched off"));
    map[Key::enableCan] = true;
    view.updateView();
    QCOMPARE(announced(&view), QStringLiteral("CAN, switched on"));
    map.clear();
    view.updateView();
    view.clearFocus();
    QVERIFY(!isFramed("CAN"));
    // Painting of the items is as before.
    const QPoint corner = view.mapFromScene(view.block("CAN")->sceneBoundingRect().topLeft());
    QCOMPARE(view.grabbed().pixelColor(corner + QPoint(2, 2)), QColor(Qt::white));
}

void tst_IPView::keysZoom()
{
    OptionMap map;
    View view(&map);
    QTest::keyClick(&view, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(view.zoom(), 1.2);
    QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(view.zoom(), 1.2 * 0.8);
    QTest::keyClick(&view, Qt::Key_0, Qt::ControlModifier);
    QVERIFY(view.isFitted());
}

void tst_IPView::theDiagramFitsTheDialog()
{
    TarvoOrixM1Dlg dialog{OptionMap()};
    dialog.prepareNew(QStringLiteral("/tmp"), deviceOf("TV2KR-18C", "QFN88P"));
    dialog.show();
    auto *view = dialog.findChild<IPView *>();
    QCOMPARE(dialog.size(), QSize(847, 755));
    const auto isWhole = [view] {
        QCoreApplication::processEvents();
        const QRect shown = view->mapFromScene(QRectF(0, 0, 1000, 560)).boundingRect();
        return view->viewport()->rect().contains(shown) &&
               !view->horizontalScrollBar()->maximum() && !view->verticalScrollBar()->maximum();
    };
    QVERIFY(isWhole());
    QVERIFY(view->transform().m11() > 0.75);
    QCOMPARE(view->transform().m11(), view->transform().m22());
    dialog.resize(1300, 1000);
    QVERIFY(isWhole());
    QVERIFY(view->transform().m11() > 1.2);
    // The user's own zoom stays.
    view->zoomIn();
    const QTransform chosen = view->transform();
    dialog.resize(847, 755);
    QCOMPARE(view->transform(), chosen);
}

void tst_IPView::labelsFitTheirBlocks_data()
{
    QTest::addColumn<int>("points");
    for (int points : {6, 9, 12, 24})
        QTest::addRow("%d points", points) << points;
}

void tst_IPView::labelsFitTheirBlocks()
{
    QFETCH(int, points);
    OptionMap map;
    View view(&map);
    QFont font = view.font();
    font.setPointSize(points);
    view.setFont(font);
    const QFont used = view.viewport()->font();
    QVERIFY(used.pixelSize() >= 8);
    const QFontMetricsF metrics(used);
    for (const IPItem *block : view.blocks()) {
        const QRectF needed = metrics.boundingRect(
            block->textRect(), Qt::AlignCenter | Qt::TextWordWrap, block->text());
        QVERIFY2(block->text().isEmpty() || block->textRect().contains(needed),
                 qPrintable(block->text()));
    }
    // Other texts stay clear of the blocks.
    for (QGraphicsItem *item : view.scene()->items()) {
        const auto *text = qgraphicsitem_cast<TextItem *>(item);
        if (!text)
            continue;
        QCOMPARE(text->font().pixelSize(), used.pixelSize());
        for (const IPItem *block : view.blocks()) {
            if (!block->text().isEmpty())
                QVERIFY2(!block->sceneBoundingRect().intersects(text->sceneBoundingRect()),
                         qPrintable(text->text() + u' ' + block->text()));
        }
    }
}

void tst_IPView::picturesAreWritten()
{
    const QTemporaryDir folder;
    OptionMap map = {{Key::enableRtc, true}};
    View view(&map);
    view.updateView();
    view.setFocus(Qt::TabFocusReason);
    QString error;
    const auto write = [&](const char *name) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        if (!view.saveDiagram(path, &error))
            qWarning("%s", qPrintable(error));
        return TestSupport::contentsOf(path);
    };
    const QByteArray svg = write("a.svg");
    QSvgRenderer renderer(svg);
    QVERIFY(renderer.isValid());
    for (const SlotRow &row : slotRows()) {
        const QStringList words = QString::fromLatin1(row.label).split(u' ');
        for (const QString &word : words)
            QVERIFY2(svg.contains(word.toLatin1()), row.label);
    }
    const auto check = [](const QImage &image) {
        const qreal scale = image.width() / 1010.0;
        const auto at = [&](qreal x, qreal y) {
            return image.pixelColor(int((x + 5) * scale), int((y + 5) * scale));
        };
        QCOMPARE(at(500, 15), QColor(Qt::white));
        QCOMPARE(at(260, 180), QColor(173, 216, 230));
        QCOMPARE(at(434, 484), QColor(Qt::darkGreen));
        QCOMPARE(at(176, 286), QColor(Qt::white));
        QCOMPARE(at(396, 110), QColor(173, 216, 230)); // no focus frame around the core
    };
    QImage drawn(2020, 1140, QImage::Format_RGB32);
    drawn.fill(Qt::gray);
    QPainter painter(&drawn);
    renderer.render(&painter);
    painter.end();
    check(drawn);
    const QImage png = QImage::fromData(write("a.png"), "PNG");
    QCOMPARE(png.size(), QSize(2020, 1140));
    check(png);
    const QByteArray pdf = write("a.PDF");
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QVERIFY(pdf.contains("/CreationDate (D:00000000000000"));
    QVERIFY(pdf.contains("/Count 1"));
    QCOMPARE(write("b.PDF"), pdf);
    QCOMPARE(write("b.svg"), svg);
    QCOMPARE(TestSupport::entriesOf(folder.path()).size(), 5); // no left-overs
}

void tst_IPView::unusablePicturePathsAreReported()
{
    const QTemporaryDir folder;
    OptionMap map;
    const View view(&map);
    for (const char *name : {"a.bmp", "a", "missing/a.svg"}) {
        QString error;
        QVERIFY(!view.saveDiagram(folder.filePath(QString::fromLatin1(name)), &error));
        QVERIFY2(error.contains(QString::fromLatin1(name)), qPrintable(error));
    }
    QVERIFY(TestSupport::entriesOf(folder.path()).isEmpty());
}

// Thousands of things that the user, the dialogs and the device do, against the rules as plain
// variables.
void tst_IPView::longSessionsBehaveAsTheModel()
{
    QRandomGenerator random(77);
    OptionMap map = {{Key::ipDeviceId, deviceOf("TV2KR-18C", "QFN88P").id()}};
    View view(&map);
    bool accepts = false;
    int opened = 0;
    const ModalWatcher watcher([&](QWidget *modal) {
        auto *page = qobject_cast<CortexM1 *>(modal);
        if (!page) {
            modal->close();
            return;
        }
        ++opened;
        QTest::mouseClick(
            page->buttonBox()->button(accepts ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
            Qt::LeftButton);
    });

    qreal scale = 1;
    QSet<QString> gone;
    QHash<QString, bool> active;
    const auto look = [&] { // what a refresh shows
        for (const SlotRow &row : slotRows()) {
            const QString label = QString::fromLatin1(row.label);
            const QString key = QString::fromLatin1(row.key);
            bool on = !key.isEmpty() && map.value(key).toBool();
            const int ports = label.startsWith(QLatin1String("AHB"))   ? 6
                              : label.startsWith(QLatin1String("APB")) ? 16
                                                                       : 0;
            for (int port = 1; port <= ports; ++port)
                on |= map.value(key.left(17) + QString::number(port)).toBool();
            active[label] = on;
        }
    };
    look();

    int expectedOpened = 0;
    for (int step = 0; step < 4000; ++step) {
        const int action = random.bounded(100);
        if (action < 40) {
            const SlotRow &row = slotRows().at(size_t(random.bounded(int(slotRows().size()))));
            QString key = QString::fromLatin1(row.key);
            if (key.startsWith(QLatin1String("Enable_")))
                key = key.left(17) + QString::number(random.bounded(1, 17));
            if (!key.isEmpty())
                map[key] = random.bounded(2) == 1;
        } else if (action < 55) {
            view.updateView();
            look();
        } else if (action < 70) {
            const AvailabilityRow &row = availabilityRows[random.bounded(5)];
            const bool available = random.bounded(2) == 1;
            (view.*row.set)(available);
            if (available)
                gone.remove(QString::fromLatin1(row.label));
            else
                gone.insert(QString::fromLatin1(row.label));
            look();
        } else if (action < 85) {
            const bool in = random.bounded(2) == 1;
            view.wheel(in ? 120 : -120);
            scale = in ? qMin(scale * 1.2, 4.0) : qMax(scale * 0.8, 0.1);
        } else if (action < 87) {
            view.setTransform(QTransform());
            scale = 1;
            view.centerOn(500, 280);
            accepts = random.bounded(2) == 1;
            view.doubleClick(view.middleOf(view.block("Cortex-M1")));
            ++expectedOpened;
            if (accepts)
                look();
        } else {
            view.move(QPoint(random.bounded(view.width()), random.bounded(view.height())));
        }

        QCOMPARE(view.zoom(), scale);
        QCOMPARE(opened, expectedOpened);
        for (const SlotRow &row : slotRows()) {
            const QString label = QString::fromLatin1(row.label);
            const IPItem *block = view.block(row.label);
            QVERIFY2(block->isActive() == active.value(label),
                     qPrintable(QStringLiteral("step %1 %2").arg(step).arg(label)));
            QVERIFY(block->isVisible() != gone.contains(label));
            QVERIFY(block->isClickable() != gone.contains(label));
        }
    }
    QVERIFY(opened > 20);
}

QTEST_MAIN(tst_IPView)
#include "tst_ipview.moc"
