#include "dialogs/expectedblocks.h"

#include <windowwalk.h>

#include <config/descriptor.h>
#include <config/optionkeys.h>
#include <diagram/ipitem.h>
#include <diagram/ipview.h>
#include <dialogs/cortexm1.h>
#include <ipcore/ipcore.h>
#include <ipcore/pinfigureview.h>
#include <ui/tarvoorixm1dlg.h>

#include <dev/devicedb.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsScene>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

using namespace TARVOORIXM1;
using namespace TestSupport;

namespace
{

constexpr const char *device = "TV2KR-18C-QFN88P-C8/I7";

// The block dialogs by name, the core's among them; or the main dialog.
std::unique_ptr<QDialog> makeDialog(const QString &name, OptionMap *options)
{
    if (name == QLatin1String("main")) {
        auto dialog = std::make_unique<TarvoOrixM1Dlg>(OptionMap());
        dialog->prepareNew(QStringLiteral("/home/somebody/") +
                               QStringLiteral("a-folder-with-a-long-name/").repeated(8),
                           DEV::DeviceDb::bundled().findDevice(QLatin1String(device)));
        return dialog;
    }
    options->insert(Key::ipDeviceId, QString::fromLatin1(device));
    options->insert(Key::ipDevice, QStringLiteral("TV2KR-18C"));
    if (name == QLatin1String("CortexM1"))
        return std::make_unique<CortexM1>(options);
    for (const Expected::Block &block : Expected::blocks()) {
        if (name == QLatin1String(block.dialog))
            return std::unique_ptr<QDialog>(block.make(options, nullptr));
    }
    qFatal("there is no such dialog");
    return nullptr;
}

void addBlocks()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("CortexM1") << QStringLiteral("CortexM1");
    for (const Expected::Block &block : Expected::blocks())
        QTest::newRow(block.dialog) << QString::fromLatin1(block.dialog);
}

void addDialogs()
{
    addBlocks();
    QTest::newRow("main") << QStringLiteral("main");
}

} // namespace

class TestDialogKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setFont(m_font); }

    void tabWalksOptionsFigureButtons_data() { addBlocks(); }
    void tabWalksOptionsFigureButtons();
    void tabWalksTheDiagramBeforeOk();
    void focusIsSeenWhereverTabLeads_data() { addDialogs(); }
    void focusIsSeenWhereverTabLeads();
    void focusIsSeenAfterAClickOnTheDiagram();
    void everyWidgetHasANameAndIsReachedByTab_data() { addDialogs(); }
    void everyWidgetHasANameAndIsReachedByTab();
    void noKeyIsMarkedTwice_data() { addDialogs(); }
    void noKeyIsMarkedTwice();
    void everyButtonIsOnASmallScreenWithALargeFont_data() { addDialogs(); }
    void everyButtonIsOnASmallScreenWithALargeFont();
    void zoomButtonsCoverNoBlock_data();
    void zoomButtonsCoverNoBlock();
    void diagramZoomsByKeysOfEveryKeyboard();

private:
    QFont m_font = QApplication::font();
};

void TestDialogKeys::tabWalksOptionsFigureButtons()
{
    QFETCH(QString, name);
    OptionMap options;
    const auto dialog = makeDialog(name, &options);
    auto *block = static_cast<IPCore::MicroSysChildIPGenDlg *>(dialog.get());
    dialog->show();
    QTabWidget *tabs = block->tabWidget();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        tabs->tabBar()->setFocus();
        const TabWalk walk(dialog.get());
        QCOMPARE(walk.stops.first(), tabs->tabBar());
        const int figure = walk.indexOf(block->pinFigureView());
        QVERIFY(figure > 1); // there is an option before it
        for (int i = 1; i < figure; ++i)
            QVERIFY2(tabs->widget(page)->isAncestorOf(walk.stops.at(i)),
                     qPrintable(nameOf(walk.stops.at(i))));
        const auto fields = tabs->widget(page)->findChildren<QWidget *>();
        int before = 0;
        for (const QWidget *field : fields) {
            const bool isField = qobject_cast<const QAbstractButton *>(field) ||
                                 qobject_cast<const QComboBox *>(field) ||
                                 qobject_cast<const QLineEdit *>(field);
            before += isField && walk.stops.contains(const_cast<QWidget *>(field));
            QVERIFY2(!qobject_cast<const QScrollArea *>(field) ||
                         field->focusPolicy() == Qt::NoFocus,
                     qPrintable(nameOf(field)));
        }
        QVERIFY(before > 0);
        QCOMPARE(walk.stops.mid(figure + 1),
                 (QList<QWidget *>{block->buttonBox()->button(QDialogButtonBox::Ok),
                                   block->buttonBox()->button(QDialogButtonBox::Cancel)}));
        // In the order in which they stand.
        for (int i = 2; i < figure; ++i) {
            const QPoint above = walk.stops.at(i - 1)->mapTo(dialog.get(), QPoint());
            const QPoint here = walk.stops.at(i)->mapTo(dialog.get(), QPoint());
            QVERIFY2(here.y() > above.y() - 12, qPrintable(nameOf(walk.stops.at(i))));
        }
    }
}

void TestDialogKeys::tabWalksTheDiagramBeforeOk()
{
    OptionMap options;
    const auto dialog = makeDialog(QStringLiteral("main"), &options);
    dialog->show();
    dialog->findChild<QLineEdit *>(QStringLiteral("editCreateIn"))->setFocus();
    const TabWalk walk(dialog.get());
    const auto *box = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    const auto *view = dialog->findChild<IPView *>();
    QStringList names;
    for (const QWidget *stop : walk.stops) {
        names.append(stop == view                                    ? QStringLiteral("diagram")
                     : stop->parentWidget() == view                  ? stop->accessibleName()
                     : stop == box->button(QDialogButtonBox::Ok)     ? QStringLiteral("OK")
                     : stop == box->button(QDialogButtonBox::Cancel) ? QStringLiteral("Cancel")
                                                                     : stop->objectName());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("editCreateIn"), QStringLiteral("btnBrowse"),
                                 QStringLiteral("comboBoxLanguage"), QStringLiteral("diagram"),
                                 QStringLiteral("Zoom out"), QStringLiteral("Zoom in"),
                                 QStringLiteral("OK"), QStringLiteral("Cancel")}));
}

void TestDialogKeys::focusIsSeenWhereverTabLeads()
{
    QFETCH(QString, name);
    OptionMap options;
    const auto dialog = makeDialog(name, &options);
    dialog->show();
    const auto *tabs = dialog->findChild<QTabWidget *>();
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            dialog->findChild<QTabWidget *>()->setCurrentIndex(page);
        const TabWalk walk(dialog.get());
        QVERIFY(walk.stops.size() > 3);
        QCOMPARE(walk.unseen().join(u';'), QString());
    }
}

void TestDialogKeys::focusIsSeenAfterAClickOnTheDiagram()
{
    OptionMap options;
    const auto dialog = makeDialog(QStringLiteral("main"), &options);
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    auto *view = dialog->findChild<IPView *>();
    auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("editCreateIn"));
    edit->setFocus();
    const QImage without = view->grab().toImage();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(8, 8)); // on no block
    QVERIFY(view->hasFocus());
    QVERIFY(!view->focusedBlock());
    QVERIFY(view->grab().toImage() != without);
    edit->setFocus();
    QVERIFY(view->grab().toImage() == without);
}

void TestDialogKeys::everyWidgetHasANameAndIsReachedByTab()
{
    QFETCH(QString, name);
    OptionMap options;
    const auto dialog = makeDialog(name, &options);
    dialog->show();
    const auto *tabs = dialog->findChild<QTabWidget *>();
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            dialog->findChild<QTabWidget *>()->setCurrentIndex(page);
        QVERIFY(interactiveWidgets(dialog.get()).size() > 3);
        QCOMPARE(unnamed(dialog.get()).join(u';'), QString());
        const TabWalk walk(dialog.get(), 200, false);
        QCOMPARE(unreached(dialog.get(), walk).join(u';'), QString());
    }
}

void TestDialogKeys::noKeyIsMarkedTwice()
{
    QFETCH(QString, name);
    OptionMap options;
    const auto dialog = makeDialog(name, &options);
    dialog->show();
    QCOMPARE(sharedMnemonics(mnemonicTexts(dialog.get())).join(u';'), QString());
}

void TestDialogKeys::everyButtonIsOnASmallScreenWithALargeFont()
{
    QFETCH(QString, name);
    QFont large = m_font;
    large.setPointSize(16);
    QApplication::setFont(large);
    OptionMap options;
    const auto dialog = makeDialog(name, &options);
    const auto *tabs = dialog->findChild<QTabWidget *>();
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            dialog->findChild<QTabWidget *>()->setCurrentIndex(page);
        QCOMPARE(cutOff(dialog.get(), smallScreen()).join(u';'), QString());
    }
    QVERIFY(dialog->minimumSizeHint().boundedTo(smallScreen()) == dialog->minimumSizeHint());
}

void TestDialogKeys::zoomButtonsCoverNoBlock_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("steps");
    QTest::newRow("as the form has it") << QSize(847, 755) << 0;
    QTest::newRow("wide") << QSize(1900, 500) << 0;
    QTest::newRow("high") << QSize(847, 1300) << 0;
    QTest::newRow("small") << QSize(600, 480) << 0;
    QTest::newRow("enlarged") << QSize(847, 755) << 3;
    QTest::newRow("reduced") << QSize(847, 755) << -2;
}

void TestDialogKeys::zoomButtonsCoverNoBlock()
{
    QFETCH(QSize, size);
    QFETCH(int, steps);
    for (const int points : {0, 16}) {
        QFont font = m_font;
        if (points)
            font.setPointSize(points);
        QApplication::setFont(font);
        OptionMap options;
        const auto dialog = makeDialog(QStringLiteral("main"), &options);
        dialog->show();
        dialog->resize(size);
        QCoreApplication::processEvents();
        auto *view = dialog->findChild<IPView *>();
        for (int i = 0; i < qAbs(steps); ++i)
            steps > 0 ? view->zoomIn() : view->zoomOut();
        QCoreApplication::processEvents();
        const auto buttons = view->findChildren<QToolButton *>();
        QCOMPARE(buttons.size(), 2);
        const auto items = view->scene()->items();
        for (const QToolButton *button : buttons) {
            QVERIFY(view->rect().contains(button->geometry()));
            for (const QGraphicsItem *item : items) {
                if (!qgraphicsitem_cast<const IPItem *>(item))
                    continue;
                // What is seen of the block.
                const QRect block = view->mapFromScene(item->sceneBoundingRect())
                                        .boundingRect()
                                        .intersected(view->viewport()->rect());
                QVERIFY2(!button->geometry().intersects(block.translated(view->viewport()->pos())),
                         qPrintable(button->toolTip()));
            }
        }
    }
}

void TestDialogKeys::diagramZoomsByKeysOfEveryKeyboard()
{
    OptionMap options;
    IPView view(&options);
    const qreal before = view.transform().m11();
    QTest::keyClick(&view, Qt::Key_Equal, Qt::ControlModifier);
    QVERIFY(view.transform().m11() > before);
    QTest::keyClick(&view, Qt::Key_Minus, Qt::ControlModifier);
    QVERIFY(view.transform().m11() < before);
}

QTEST_MAIN(TestDialogKeys)
#include "tst_dialogkeys.moc"
