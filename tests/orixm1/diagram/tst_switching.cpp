#include "dialogs/blockhands.h"
#include "dialogs/peripheralmodel.h"
#include "testsupport.h"

#include <config/optionkeys.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QToolTip>
#include <QtTest>

#include <random>

using namespace TARVOORIXM1;

namespace
{

class Draw
{
public:
    explicit Draw(unsigned seed)
        : m_random(seed)
    {
    }

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    QString oneOf(const QStringList &texts) { return texts.at(below(texts.size())); }

    // What a file may hold, well or badly written.
    OptionMap options()
    {
        OptionMap map;
        const QStringList devices = {QStringLiteral("TV2KR-18C"),  QStringLiteral("TV5KT-138B"),
                                     QStringLiteral("TV3K-1"),     QStringLiteral("TV1L-9"),
                                     QStringLiteral("TV1LR-9C"),   QStringLiteral("TV1KL-5A"),
                                     QStringLiteral("unheard-of"), QString()};
        map.insert(Key::ipDevice, oneOf(devices));
        for (const Expected::Block &block : Expected::blocks()) {
            for (const Expected::Switch &entry : block.switches) {
                const QString key = QString::fromLatin1(entry.key);
                switch (below(5)) {
                case 0:
                    map.insert(key, true);
                    break;
                case 1:
                    map.insert(key, oneOf({QStringLiteral("true"), QStringLiteral("false"),
                                           QStringLiteral("1"), QStringLiteral("0"), QString()}));
                    break;
                case 2:
                    map.insert(key, false);
                    break;
                default:
                    break;
                }
            }
        }
        if (below(3) > 0)
            map.insert(Key::canBufferDepth, oneOf({QStringLiteral("512"), QStringLiteral("100"),
                                                   QString(), QStringLiteral("65536")}));
        if (below(3) > 0)
            map.insert(Key::ethernetInterface, oneOf({QStringLiteral("MII"), QStringLiteral("mii"),
                                                      QStringLiteral("GMII/MII"), QString()}));
        if (below(3) > 0)
            map.insert(Key::ethernetInputDelay, below(400) - 50);
        if (below(3) > 0)
            map.insert(Key::ethernetClockDivider, QString::number(below(400)));
        if (below(3) == 0)
            map.insert(QStringLiteral("own"), 1);
        return map;
    }

private:
    std::mt19937 m_random;
};

// With types.
QStringList exactly(const OptionMap &map)
{
    QStringList lines;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        lines.append(it.key() + QLatin1Char('=') + it->toString() + QLatin1Char(' ') +
                     QString::fromLatin1(it->typeName()));
    return lines;
}

// A view with the hands of somebody at the keyboard.
class View : public IPView
{
public:
    explicit View(OptionMap *options)
        : IPView(options)
    {
        resize(1060, 620);
        show();
        QApplication::setActiveWindow(this);
        setFocus(Qt::TabFocusReason);
    }

    void focus(const QString &label)
    {
        for (int i = 0; i < 30 && (!focusedBlock() || focusedBlock()->text() != label); ++i)
            QTest::keyClick(this, Qt::Key_Tab);
        if (!focusedBlock())
            setFocus(Qt::TabFocusReason);
        QVERIFY(focusedBlock());
    }
    // Another way around: from the beginning.
    void focusFromStart(const QString &label)
    {
        clearFocus();
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, QPoint(3, 3));
        clearFocus();
        setFocus(Qt::TabFocusReason);
        focus(label);
        QCOMPARE(focusedBlock()->text(), label);
    }
    void space() { QTest::keyClick(this, Qt::Key_Space); }
    void spaceAndOn() { QTest::keyClick(this, Qt::Key_Space, Qt::ShiftModifier); }

    // The context menu, by the keyboard or with the mouse.
    QMenu *menu(QContextMenuEvent::Reason reason = QContextMenuEvent::Keyboard,
                const QPoint &position = QPoint(5, 5))
    {
        QContextMenuEvent event(reason, position, viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(viewport(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    IPItem *block(const QString &label) const
    {
        for (QGraphicsItem *item : scene()->items()) {
            auto *found = qgraphicsitem_cast<IPItem *>(item);
            if (found && found->text() == label)
                return found;
        }
        return nullptr;
    }
};

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    for (const QAction *action : menu->actions())
        texts.append(action->text());
    return texts;
}

QAction *actionOf(const QMenu *menu, const char *beginning)
{
    for (QAction *action : menu->actions()) {
        if (action->text().startsWith(QLatin1String(beginning)))
            return action;
    }
    return nullptr;
}

} // namespace

// Switching a block in the diagram, without its dialog.
class tst_Switching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesWhatTheDialogWould_data();
    void storesWhatTheDialogWould();
    void portsGoOnAndOffTogether_data();
    void portsGoOnAndOffTogether();
    void sixBlocksTakeSixKeys();
    void theLastBlockKeepsTheFocus();
    void plusAndMinusAreOnAndOff_data();
    void plusAndMinusAreOnAndOff();
    void whatCannotBeSwitchedSaysWhy();
    void theMenuOffersWhatTheBlockCan();
    void theMenuIsThatOfTheBlockUnderTheMouse();
    void aStateThatTheDiagramDoesNotShowIsSaid();
    void tellsTheBlockUnderMouseOrFocus();
    void pointingFramesABlock();
};

void tst_Switching::storesWhatTheDialogWould_data()
{
    QTest::addColumn<int>("block");
    QTest::addColumn<int>("box");
    for (size_t i = 0; i < Expected::blocks().size(); ++i) {
        const Expected::Block &block = Expected::blocks()[i];
        for (size_t box = 0; box < block.boxes.size() && !block.hasPorts(); ++box)
            QTest::newRow(block.boxes[box].label) << int(i) << int(box);
    }
}

void tst_Switching::storesWhatTheDialogWould()
{
    QFETCH(int, block);
    QFETCH(int, box);
    const Expected::Block &expected = Expected::blocks().at(size_t(block));
    const Expected::Switch &row = expected.switches.at(size_t(box));
    const QString label = QString::fromLatin1(expected.boxes.at(size_t(box)).label);
    OptionMap map;
    View view(&map);
    view.focusFromStart(label);
    const QSignalSpy changes(&view, &IPView::optionsChanged);
    Draw draw(unsigned(100 * block + box));
    int told = 0;
    int refused = 0;
    constexpr int configurations = 60;
    for (int i = 0; i < configurations; ++i) {
        const OptionMap before = draw.options();
        // The rules of the dialog.
        PeripheralModel::Dialog model(expected, before);
        OptionMap stored = before;
        const bool isUsable = model.usable.at(size_t(box));
        if (isUsable) {
            model.click(box);
            model.store(stored);
        }
        // The dialog, with a mouse.
        if (i < 6 && isUsable) {
            OptionMap driven = before;
            Hands hands(expected.dialog, &driven);
            hands.click(row.objectName);
            hands.ok();
            QCOMPARE(exactly(driven), exactly(stored));
        }
        map = before;
        view.updateView();
        view.space();
        QCOMPARE(exactly(map), exactly(stored));
        told += isUsable ? 1 : 0;
        refused += isUsable ? 0 : 1;
        QCOMPARE(changes.count(), told);
        if (!isUsable)
            QVERIFY(view.notice().contains(label));
        QVERIFY(!QApplication::activeModalWidget());
        if (label != QLatin1String("PSRAM"))
            QCOMPARE(view.focusedBlock()->isActive(),
                     map.value(QString::fromLatin1(row.key)).toBool());
    }
    QCOMPARE(refused > 0, label == QLatin1String("DDR3"));
    QCOMPARE(told + refused, configurations);
}

void tst_Switching::portsGoOnAndOffTogether_data()
{
    QTest::addColumn<int>("block");
    for (size_t i = 0; i < Expected::blocks().size(); ++i) {
        if (Expected::blocks()[i].hasPorts())
            QTest::newRow(Expected::blocks()[i].title) << int(i);
    }
}

void tst_Switching::portsGoOnAndOffTogether()
{
    QFETCH(int, block);
    const Expected::Block &expected = Expected::blocks().at(size_t(block));
    OptionMap map;
    View view(&map);
    view.focusFromStart(QString::fromLatin1(expected.title));
    Draw draw{unsigned(block)};
    for (int i = 0; i < 8; ++i) {
        const bool on = i % 2 == 0;
        OptionMap before = draw.options();
        before.insert(QString::fromLatin1(expected.switches[0].key), !on);
        OptionMap driven = before;
        Hands hands(expected.dialog, &driven);
        for (const Expected::Switch &row : expected.switches) {
            if (hands.isOn(row.objectName) != on)
                hands.click(row.objectName);
        }
        hands.ok();
        map = before;
        view.updateView();
        QMenu *menu = view.menu();
        QVERIFY(menu);
        QAction *action = actionOf(menu, on ? "Switch All Ports On" : "Switch All Ports Off");
        QVERIFY(action && action->isEnabled());
        action->trigger();
        menu->close();
        QCOMPARE(exactly(map), exactly(driven));
        QCOMPARE(view.focusedBlock()->isActive(), on);
        menu = view.menu();
        QVERIFY(!actionOf(menu, on ? "Switch All Ports On" : "Switch All Ports Off")->isEnabled());
        QVERIFY(actionOf(menu, on ? "Switch All Ports Off" : "Switch All Ports On")->isEnabled());
        menu->close();
        // One switch for all is not what its dialog has.
        const OptionMap unchanged = map;
        view.space();
        QCOMPARE(exactly(map), exactly(unchanged));
        QVERIFY(!view.notice().isEmpty());
    }
}

// From the first of them on, nothing else is pressed.
void tst_Switching::sixBlocksTakeSixKeys()
{
    OptionMap map;
    View view(&map);
    view.focusFromStart(QStringLiteral("UART0"));
    const QSignalSpy changes(&view, &IPView::optionsChanged);
    const QStringList labels = {QStringLiteral("UART0"),     QStringLiteral("UART1"),
                                QStringLiteral("Timer0"),    QStringLiteral("Timer1"),
                                QStringLiteral("Watch Dog"), QStringLiteral("RTC")};
    for (const QString &label : labels) {
        QCOMPARE(view.focusedBlock()->text(), label);
        view.spaceAndOn();
        // What was switched is told, though the focus has gone on.
        QVERIFY(view.block(label)->isActive());
        QCOMPARE(view.notice(), label + QStringLiteral(" is switched on."));
        QCOMPARE(view.accessibleDescription(), view.notice());
    }
    QCOMPARE(changes.count(), 6);
    QCOMPARE(view.accessibleName(), QStringLiteral("TRNG, switched off"));
    // Space stays.
    view.space();
    QCOMPARE(view.accessibleName(), QStringLiteral("TRNG, switched on"));
    // As much is stored as with Space.
    OptionMap other;
    View slow(&other);
    for (const QString &label : labels) {
        slow.focusFromStart(label);
        slow.space();
    }
    map.remove(Key::enableTrng);
    QCOMPARE(exactly(map), exactly(other));
}

void tst_Switching::theLastBlockKeepsTheFocus()
{
    OptionMap map;
    View view(&map);
    view.focusFromStart(QStringLiteral("SD-Card"));
    view.spaceAndOn();
    QVERIFY(map.value(Key::enableSdCard).toBool());
    // Where a block has no switch of its own, it is said why, and the focus stays.
    QCOMPARE(view.focusedBlock()->text(), QStringLiteral("APB Master [1-16]"));
    const OptionMap before = map;
    view.spaceAndOn();
    QCOMPARE(view.focusedBlock()->text(), QStringLiteral("APB Master [1-16]"));
    QVERIFY(view.notice().contains(QLatin1String("+ and -")));
    QCOMPARE(map, before);
    view.focusFromStart(QStringLiteral("Cortex-M1"));
    view.spaceAndOn();
    QCOMPARE(view.focusedBlock()->text(), QStringLiteral("Cortex-M1"));
    QCOMPARE(view.notice(), QStringLiteral("Cortex-M1 cannot be switched off."));
}

void tst_Switching::plusAndMinusAreOnAndOff_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("a block") << "CAN" << QString(Key::enableCan) << QString(Key::enableCan);
    QTest::newRow("one of two in a dialog")
        << "UART1" << QString(Key::enableUart1) << QString(Key::enableUart1);
    QTest::newRow("all AHB ports") << "AHB Master [1-6]"
                                   << "Enable_AHB_Master1"
                                   << "Enable_AHB_Master6";
    QTest::newRow("all APB ports") << "APB Master [1-16]"
                                   << "Enable_APB_Master1"
                                   << "Enable_APB_Master16";
}

void tst_Switching::plusAndMinusAreOnAndOff()
{
    QFETCH(QString, label);
    QFETCH(QString, first);
    QFETCH(QString, last);
    OptionMap map;
    View view(&map);
    view.focusFromStart(label);
    const QSignalSpy changes(&view, &IPView::optionsChanged);
    QTest::keyClick(&view, Qt::Key_Plus);
    QVERIFY(map.value(first).toBool() && map.value(last).toBool());
    QVERIFY(view.focusedBlock()->isActive());
    const OptionMap on = map;
    QTest::keyClick(&view, Qt::Key_Plus, Qt::ShiftModifier); // as some keyboards have it
    QCOMPARE(exactly(map), exactly(on));
    QCOMPARE(changes.count(), 1); // it is so already: no step
    QCOMPARE(view.notice(), label + QStringLiteral(" is switched on."));
    // One port less is not all of them.
    map.insert(last, false);
    view.updateView();
    QTest::keyClick(&view, Qt::Key_Plus, Qt::KeypadModifier);
    QCOMPARE(exactly(map), exactly(on));
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(!map.value(first).toBool() && !map.value(last).toBool());
    QVERIFY(!view.focusedBlock()->isActive());
    QCOMPARE(changes.count(), 3);
    QTest::keyClick(&view, Qt::Key_Minus, Qt::KeypadModifier);
    QCOMPARE(changes.count(), 3);
    QCOMPARE(view.focusedBlock()->text(), label);
}

void tst_Switching::whatCannotBeSwitchedSaysWhy()
{
    OptionMap map = {{Key::ipDevice, QStringLiteral("TV1L-9")}, {Key::enableDdr3, true}};
    const OptionMap before = map;
    View view(&map);
    view.focusFromStart(QStringLiteral("Cortex-M1"));
    view.space();
    QCOMPARE(view.notice(), QStringLiteral("Cortex-M1 cannot be switched off."));
    QCOMPARE(view.accessibleDescription(), view.notice());
    QCOMPARE(QToolTip::text(), view.notice());
    view.focus(QStringLiteral("DDR3"));
    QVERIFY(view.notice().isEmpty()); // it was that of the key before
    view.space();
    QVERIFY(view.notice().contains(QLatin1String("TV1L-9")));
    QCOMPARE(map, before);
    // Without a block in focus, the key is nobody's.
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(3, 3));
    view.space();
    QVERIFY(view.notice().isEmpty());
    QCOMPARE(map, before);
}

void tst_Switching::theMenuOffersWhatTheBlockCan()
{
    OptionMap map = {{Key::enableRtc, true}};
    View view(&map);
    view.updateView();
    view.focusFromStart(QStringLiteral("RTC"));
    QMenu *menu = view.menu();
    QVERIFY(menu);
    QAction *off = actionOf(menu, "Switch RTC Off");
    QVERIFY(off && off->isEnabled());
    QVERIFY(actionOf(menu, "Open RTC..."));
    QVERIFY(actionOf(menu, "Find..."));
    QVERIFY(actionOf(menu, "Save Picture As..."));
    off->trigger();
    menu->close();
    QVERIFY(!map.value(Key::enableRtc).toBool());
    menu = view.menu();
    QVERIFY(actionOf(menu, "Switch RTC On"));
    menu->close();
    view.focus(QStringLiteral("Cortex-M1"));
    view.focusFromStart(QStringLiteral("Cortex-M1"));
    menu = view.menu();
    QAction *none = actionOf(menu, "Switch Cortex-M1");
    QVERIFY(none && !none->isEnabled());
    menu->close();
}

void tst_Switching::theMenuIsThatOfTheBlockUnderTheMouse()
{
    OptionMap map;
    View view(&map);
    const auto at = [&](const char *label) {
        return view.mapFromScene(
            view.block(QString::fromLatin1(label))->sceneBoundingRect().center());
    };
    QMenu *menu = view.menu(QContextMenuEvent::Mouse, at("CAN"));
    QVERIFY(actionOf(menu, "Switch CAN On"));
    actionOf(menu, "Switch CAN On")->trigger();
    menu->close();
    QCOMPARE(map.value(Key::enableCan), QVariant(true));
    QCOMPARE(map.value(Key::canBufferDepth), QVariant(QStringLiteral("256")));
    for (const char *fixed : {"ITCM", "AHB2APB"}) {
        menu = view.menu(QContextMenuEvent::Mouse, at(fixed));
        QVERIFY2(!actionOf(menu, "Switch"), qPrintable(textsOf(menu).join(u',')));
        QVERIFY(actionOf(menu, "Find..."));
        menu->close();
    }
    view.setCanAvailable(false);
    menu = view.menu(QContextMenuEvent::Mouse, at("CAN"));
    QVERIFY(!actionOf(menu, "Switch"));
    menu->close();
}

void tst_Switching::aStateThatTheDiagramDoesNotShowIsSaid()
{
    OptionMap map;
    View view(&map);
    view.focusFromStart(QStringLiteral("PSRAM"));
    view.space();
    QCOMPARE(map.value(Key::enablePsram), QVariant(true));
    QCOMPARE(view.notice(), QStringLiteral("PSRAM is switched on."));
    view.space();
    QCOMPARE(view.notice(), QStringLiteral("PSRAM is switched off."));
}

void tst_Switching::tellsTheBlockUnderMouseOrFocus()
{
    OptionMap map;
    View view(&map);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(3, 3));
    QStringList told;
    connect(&view, &IPView::pointedAt, [&](const QString &label) { told.append(label); });
    const auto move = [&](const QPoint &at) {
        QMouseEvent event(QEvent::MouseMove, at, view.viewport()->mapToGlobal(at), Qt::NoButton,
                          Qt::NoButton, {});
        QCoreApplication::sendEvent(view.viewport(), &event);
    };
    const auto over = [&](const char *label) {
        move(view.mapFromScene(
            view.block(QString::fromLatin1(label))->sceneBoundingRect().center()));
    };
    over("UART0");
    over("UART0");
    over("ITCM");
    move({3, 3});
    QCOMPARE(told, QStringList({QStringLiteral("UART0"), QStringLiteral("ITCM"), QString()}));
    told.clear();
    view.focusFromStart(QStringLiteral("GPIO"));
    QCOMPARE(told.value(0), QStringLiteral("Cortex-M1"));
    QCOMPARE(told.last(), QStringLiteral("GPIO"));
    told.clear();
    over("RTC");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view.viewport(), &leave);
    QCOMPARE(told, QStringList({QStringLiteral("RTC"), QStringLiteral("GPIO")}));
}

void tst_Switching::pointingFramesABlock()
{
    OptionMap map;
    View view(&map);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(3, 3));
    const QSignalSpy told(&view, &IPView::pointedAt);
    const auto look = [&] {
        QCoreApplication::processEvents();
        return view.viewport()->grab().toImage();
    };
    const QImage none = look();
    QVERIFY(look() == none);
    view.pointAt(QStringLiteral("SPI-Flash"));
    const QImage framed = look();
    QVERIFY(framed != none);
    view.pointAt(QStringLiteral("ITCM"));
    const QImage other = look();
    QVERIFY(other != none && other != framed);
    for (const char *nothing : {"", "no such block"}) {
        view.pointAt(QStringLiteral("SPI-Flash"));
        QVERIFY(look() == framed);
        view.pointAt(QString::fromLatin1(nothing));
        QVERIFY(look() == none);
    }
    view.setSpiFlashAvailable(false);
    const QImage gone = look();
    view.pointAt(QStringLiteral("SPI-Flash"));
    QVERIFY(look() == gone);
    QCOMPARE(told.count(), 0); // pointing is not the user's
}

QTEST_MAIN(tst_Switching)
#include "tst_switching.moc"
