#include "dialogdriver.h"
#include "dialogs/expectedblocks.h"

#include <config/optionkeys.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>

#include <QAccessible>
#include <QGraphicsScene>
#include <QMenu>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

using namespace TARVOORIXM1;
using TestSupport::ModalWatcher;

// The diagram as assistive tools meet it.
class tst_AccessibleDiagram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyShownBoxIsAChild();
    void everyBlockTellsWhatItIsAndDoes_data();
    void everyBlockTellsWhatItIsAndDoes();
    void boxesThatOpenNothingAreTexts();
    void switchesAsSpaceDoes();
    void pressOpensTheDialogAndAnswersAtOnce();
    void showsTheMenuOfTheBlock();
    void takesTheKeyboard();
    void tabLeavesAButtonAtOnce();
    void isWhereItIsSeenAtAnyZoom_data();
    void isWhereItIsSeenAtAnyZoom();
    void findsWhatIsAtAPoint();
    void hiddenBlocksAreDisabledAndSayWhy();
    void lockedBlocksSayWhy();
    void nothingIsLeftOfADeletedView();
    void anActionOutlivedByNothingDoesNothing();

private:
    QAccessibleInterface *diagram() const
    {
        return QAccessible::queryAccessibleInterface(m_view.get());
    }
    QAccessibleInterface *box(const QString &name) const
    {
        for (int i = 0; i < diagram()->childCount(); ++i) {
            QAccessibleInterface *child = diagram()->child(i);
            if (child->text(QAccessible::Name) == name && qobject_cast<IPItem *>(child->object()))
                return child;
        }
        return nullptr;
    }
    QAccessibleInterface *box(const char *name) const { return box(QString::fromLatin1(name)); }
    static void act(QAccessibleInterface *on, const QString &action)
    {
        on->actionInterface()->doAction(action);
    }
    static const Expected::Block *expected(const QString &label, size_t *index)
    {
        for (const Expected::Block &block : Expected::blocks()) {
            for (*index = 0; *index < block.boxes.size(); ++*index) {
                if (label == QLatin1String(block.boxes[*index].label))
                    return &block;
            }
        }
        return nullptr;
    }

    OptionMap m_options;
    std::unique_ptr<IPView> m_view;
};

void tst_AccessibleDiagram::init()
{
    m_options = {{Key::ipDevice, QStringLiteral("TV2KR-18C")}};
    m_view = std::make_unique<IPView>(&m_options);
    m_view->resize(1060, 620);
    m_view->updateView();
    m_view->show();
    QApplication::setActiveWindow(m_view.get());
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
}

void tst_AccessibleDiagram::cleanup()
{
    m_view.reset();
}

void tst_AccessibleDiagram::everyShownBoxIsAChild()
{
    QVERIFY(diagram());
    QStringList labels;
    for (const QGraphicsItem *item : m_view->scene()->items()) {
        const auto *shown = qgraphicsitem_cast<const IPItem *>(item);
        if (shown && !shown->text().isEmpty())
            labels.append(shown->text());
    }
    QVERIFY(labels.size() > 20);
    QStringList names;
    QStringList others;
    for (int i = 0; i < diagram()->childCount(); ++i) {
        QAccessibleInterface *child = diagram()->child(i);
        QVERIFY(child && child->isValid());
        QCOMPARE(child->parent(), diagram());
        QCOMPARE(diagram()->indexOfChild(child), i);
        (qobject_cast<IPItem *>(child->object()) ? names : others)
            .append(child->text(QAccessible::Name));
    }
    QVERIFY(!diagram()->child(diagram()->childCount()));
    QCOMPARE(names.mid(0, 3), (QStringList{QStringLiteral("Cortex-M1"), QStringLiteral("GPIO"),
                                           QStringLiteral("CAN")})); // the keyboard's way
    labels.sort();
    names.sort();
    QCOMPARE(names, labels);
    QVERIFY(others.contains(QLatin1String("Zoom in")));
    QVERIFY(others.contains(QLatin1String("Zoom out")));
}

void tst_AccessibleDiagram::everyBlockTellsWhatItIsAndDoes_data()
{
    QTest::addColumn<QString>("label");
    QTest::newRow("the core") << QStringLiteral("Cortex-M1");
    for (const Expected::Block &block : Expected::blocks()) {
        for (const auto &box : block.boxes)
            QTest::newRow(box.label) << QString::fromLatin1(box.label);
    }
}

void tst_AccessibleDiagram::everyBlockTellsWhatItIsAndDoes()
{
    QFETCH(QString, label);
    QAccessibleInterface *block = box(label);
    QVERIFY(block);
    size_t index = 0;
    const Expected::Block *row = expected(label, &index);
    const bool isSwitch = row && !row->hasPorts();
    QCOMPARE(block->role(), isSwitch ? QAccessible::CheckBox : QAccessible::Button);
    QVERIFY(block->state().focusable);
    QVERIFY(!block->state().disabled && !block->state().invisible && !block->state().offscreen);
    QCOMPARE(bool(block->state().checkable), isSwitch);
    QCOMPARE(bool(block->state().checked), false);
    QStringList actions{QAccessibleActionInterface::pressAction(),
                        QAccessibleActionInterface::showMenuAction(),
                        QAccessibleActionInterface::setFocusAction()};
    if (isSwitch)
        actions.prepend(QAccessibleActionInterface::toggleAction());
    QCOMPARE(block->actionInterface()->actionNames(), actions);
    for (const QString &action : qAsConst(actions))
        QVERIFY(!block->actionInterface()->localizedActionDescription(action).isEmpty());
    QVERIFY(block->window());

    if (!row) {
        QCOMPARE(block->text(QAccessible::Value), QString());
        return;
    }
    m_options.insert(QLatin1String(row->switches.at(index).key), true);
    m_view->updateView();
    QCOMPARE(bool(block->state().checked), isSwitch);
    QCOMPARE(block->text(QAccessible::Value),
             isSwitch ? QStringLiteral("switched on")
                      : QStringLiteral("1 of %1 ports switched on").arg(row->switches.size()));
}

void tst_AccessibleDiagram::boxesThatOpenNothingAreTexts()
{
    for (const char *name : {"ITCM", "DTCM", "AHB2APB"}) {
        QAccessibleInterface *text = box(name);
        QVERIFY(text);
        QCOMPARE(text->role(), QAccessible::StaticText);
        QVERIFY(!text->actionInterface());
        QVERIFY(!text->state().focusable && !text->state().checkable);
    }
}

void tst_AccessibleDiagram::switchesAsSpaceDoes()
{
    OptionMap byKey = m_options;
    {
        IPView other(&byKey);
        other.updateView();
        other.show();
        QApplication::setActiveWindow(&other);
        other.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&other, Qt::Key_Tab); // from the core to GPIO
        QTest::keyClick(&other, Qt::Key_Space);
    }
    QSignalSpy changed(m_view.get(), &IPView::optionsChanged);
    act(box("GPIO"), QAccessibleActionInterface::toggleAction());
    QVERIFY(m_options.value(Key::enableGpio).toBool());
    QCOMPARE(m_options, byKey);
    QCOMPARE(changed.count(), 1);
    QVERIFY(box("GPIO")->state().checked);
    act(box("GPIO"), QAccessibleActionInterface::toggleAction());
    QVERIFY(!m_options.value(Key::enableGpio).toBool());
    QVERIFY(!box("GPIO")->state().checked);
    // One that the picture does not show as on.
    act(box("PSRAM"), QAccessibleActionInterface::toggleAction());
    QVERIFY(box("PSRAM")->state().checked);
}

void tst_AccessibleDiagram::pressOpensTheDialogAndAnswersAtOnce()
{
    for (const char *name : {"Cortex-M1", "GPIO", "AHB Master [1-6]"}) {
        QString title;
        const ModalWatcher watcher([&title](QWidget *modal) {
            title = modal->windowTitle();
            qobject_cast<QDialog *>(modal)->reject();
        });
        act(box(name), QAccessibleActionInterface::pressAction());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(m_view->focusedBlock()->text(), QLatin1String(name));
        QTRY_VERIFY(!title.isEmpty());
    }
}

void tst_AccessibleDiagram::showsTheMenuOfTheBlock()
{
    act(box("UART1"), QAccessibleActionInterface::showMenuAction());
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QVERIFY(menu->actions().first()->text().contains(QLatin1String("UART1")));
    menu->close();
}

void tst_AccessibleDiagram::takesTheKeyboard()
{
    m_view->clearFocus();
    act(box("RTC"), QAccessibleActionInterface::setFocusAction());
    QVERIFY(m_view->hasFocus());
    QCOMPARE(m_view->focusedBlock()->text(), QStringLiteral("RTC"));
    QVERIFY(box("RTC")->state().focused);
    QVERIFY(!diagram()->state().focused);
    QCOMPARE(diagram()->focusChild(), box("RTC"));
}

// Whatever blocks are left that Tab would have gone to.
void tst_AccessibleDiagram::tabLeavesAButtonAtOnce()
{
    m_view->show();
    m_view->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), m_view->window());
    const auto buttons = m_view->findChildren<QAbstractButton *>();
    QVERIFY(buttons.size() > 1);
    for (QAbstractButton *button : buttons) {
        if (!button->isVisible())
            continue;
        for (const Qt::KeyboardModifier back : {Qt::NoModifier, Qt::ShiftModifier}) {
            m_view->setFocus(Qt::TabFocusReason);
            button->setFocus();
            QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(button));
            QTest::keyClick(button, back ? Qt::Key_Backtab : Qt::Key_Tab, back);
            QVERIFY2(QApplication::focusWidget() != button, qPrintable(button->accessibleName()));
        }
    }
}

void tst_AccessibleDiagram::isWhereItIsSeenAtAnyZoom_data()
{
    QTest::addColumn<int>("steps");
    for (const int steps : {-9, -3, 0, 2, 9})
        QTest::addRow("%d steps", steps) << steps;
}

void tst_AccessibleDiagram::isWhereItIsSeenAtAnyZoom()
{
    QFETCH(int, steps);
    for (int i = 0; i < qAbs(steps); ++i)
        steps < 0 ? m_view->zoomOut() : m_view->zoomIn();
    m_view->move(37, 21);
    int seen = 0;
    for (int i = 0; i < diagram()->childCount(); ++i) {
        QAccessibleInterface *child = diagram()->child(i);
        const auto *item = qobject_cast<IPItem *>(child->object());
        if (!item)
            continue;
        const QRect rect = child->rect();
        const QRectF scene = item->sceneBoundingRect();
        const qreal zoom = m_view->transform().m11();
        QVERIFY(qAbs(rect.width() - scene.width() * zoom) <= 2);
        QVERIFY(qAbs(rect.height() - scene.height() * zoom) <= 2);
        const QPoint middle = m_view->viewport()->mapFromGlobal(rect.center());
        const bool isSeen = m_view->viewport()->rect().contains(middle);
        QVERIFY(!isSeen || !child->state().offscreen);
        if (!isSeen)
            continue;
        ++seen;
        QCOMPARE(m_view->itemAt(middle), item);
        QCOMPARE(diagram()->childAt(rect.center().x(), rect.center().y()), child);
    }
    QVERIFY(seen > 0);
    QCOMPARE(seen<20, steps> 0); // the others are elsewhere
}

void tst_AccessibleDiagram::findsWhatIsAtAPoint()
{
    const auto *button = m_view->findChild<QToolButton *>();
    const QPoint middle = button->mapToGlobal(button->rect().center());
    QCOMPARE(diagram()->childAt(middle.x(), middle.y())->object(), button);
    const QPoint corner = m_view->viewport()->mapToGlobal(QPoint(2, 2));
    QVERIFY(!diagram()->childAt(corner.x(), corner.y()));
}

void tst_AccessibleDiagram::hiddenBlocksAreDisabledAndSayWhy()
{
    QAccessibleInterface *can = box("CAN");
    m_view->setCanAvailable(false);
    QVERIFY(!box("CAN"));
    QVERIFY(can->state().invisible);
    QVERIFY(can->state().disabled);
    QVERIFY(can->text(QAccessible::Description).contains(QLatin1String("TV2KR-18C")));
    QVERIFY(!can->actionInterface());
    QCOMPARE(diagram()->indexOfChild(can), -1);
    m_view->setCanAvailable(true);
    QCOMPARE(box("CAN"), can);
    QVERIFY(!can->state().disabled);
}

// Whatever toggle refuses has the reason in its description, and nothing else has.
void tst_AccessibleDiagram::lockedBlocksSayWhy()
{
    int refused = 0;
    for (const char *device : {"TV2KR-18C", "TV5K-138B", "TV5K-25A", "TV3K-10A", "TV1L-9",
                               "TV2K-55", "TV5KT-15B", "unheard-of"}) {
        for (int i = 0; i < diagram()->childCount(); ++i) {
            QAccessibleInterface *block = diagram()->child(i);
            if (block->role() != QAccessible::CheckBox)
                continue;
            m_options = {{Key::ipDevice, QString::fromLatin1(device)}};
            m_view->updateView();
            const QString remark = block->text(QAccessible::Description);
            act(block, QAccessibleActionInterface::toggleAction());
            const bool isRefused = m_view->notice().contains(QLatin1String("cannot"));
            refused += isRefused;
            QCOMPARE(remark.contains(QLatin1String("cannot be switched on")), isRefused);
        }
    }
    QVERIFY(refused > 0);
}

void tst_AccessibleDiagram::nothingIsLeftOfADeletedView()
{
    QVector<QAccessible::Id> ids{QAccessible::uniqueId(diagram())};
    for (int i = 0; i < diagram()->childCount(); ++i)
        ids.append(QAccessible::uniqueId(diagram()->child(i)));
    QVERIFY(ids.size() > 20);
    m_view.reset();
    for (const QAccessible::Id id : qAsConst(ids)) {
        QAccessibleInterface *left = QAccessible::accessibleInterface(id);
        QVERIFY(!left || !left->isValid());
    }
}

void tst_AccessibleDiagram::anActionOutlivedByNothingDoesNothing()
{
    act(box("GPIO"), QAccessibleActionInterface::pressAction());
    const ModalWatcher watcher([](QWidget *) { QFAIL("there is no view any more"); });
    m_view.reset();
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_AccessibleDiagram)
#include "tst_accessiblediagram.moc"
