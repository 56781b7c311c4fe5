#include "fakeip.h"
#include "hands.h"

#include <windowwalk.h>

#include <workbench/companion/companion.h>
#include <workbench/companion/companiondesk.h>
#include <workbench/companion/meterbar.h>
#include <workbench/companion/meterpanel.h>
#include <workbench/companion/previewpanel.h>
#include <workbench/companion/stepspanel.h>
#include <workbench/render/diagramrenderer.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>

using namespace Workbench;
using namespace TestSupport;

namespace
{

// What a dialog has that tells less.
class SilentDialog : public QDialog
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariantMap configuration() const { return {}; }
};

// What it would generate is a text.
class PreviewingRoot : public LampRoot
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariantMap previewGeneration(const QVariantMap &configuration) const
    {
        Q_UNUSED(configuration)
        const QVariantMap file{{QStringLiteral("path"), QStringLiteral("lamps.v")},
                               {QStringLiteral("state"), QStringLiteral("changed")},
                               {QStringLiteral("notes"), QStringList()},
                               {QStringLiteral("before"), QStringLiteral("off\n")},
                               {QStringLiteral("after"), QStringLiteral("on\n")}};
        return {{QStringLiteral("error"), QString()},
                {QStringLiteral("text"), QStringLiteral("lamps.v: changed\n")},
                {QStringLiteral("files"), QVariantList{file}},
                {QStringLiteral("differences"), QVariantList()},
                {QStringLiteral("notes"), QStringList()}};
    }
};

Companion *companionOnScreen()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *companion = qobject_cast<Companion *>(window))
            return companion;
    }
    return nullptr;
}

} // namespace

class TestCompanion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(m_dir->filePath(QStringLiteral("settings.ini")),
                                                 QSettings::IniFormat);
        qputenv("MEASURE_LOG", QFile::encodeName(log()));
        m_window = std::make_unique<QWidget>();
        m_desk = new CompanionDesk(*m_settings, companionPanels(*m_settings), m_window.get());
        m_root = std::make_unique<LampRoot>();
        m_dialog = std::make_unique<LampDialog>();
        m_meter = nullptr;
    }
    void cleanup()
    {
        m_dialog.reset();
        m_window.reset();
        QApplication::setFont(m_font);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!companionOnScreen());
    }

    // The window

    void goesBesideTheDialogWhereThereIsRoom_data()
    {
        QTest::addColumn<QRect>("dialog");
        QTest::addColumn<QRect>("place");
        QTest::newRow("at the right") << QRect(100, 50, 800, 600) << QRect(900, 50, 400, 700);
        QTest::newRow("just at the right") << QRect(700, 50, 800, 600) << QRect(1500, 50, 400, 700);
        QTest::newRow("at the left") << QRect(701, 50, 800, 600) << QRect(301, 50, 400, 700);
        QTest::newRow("over a corner") << QRect(200, 50, 1600, 600) << QRect(1500, 50, 400, 400);
        QTest::newRow("above the end of the screen")
            << QRect(100, 600, 800, 300) << QRect(900, 300, 400, 700);
        QTest::newRow("below the panel of the desktop")
            << QRect(100, -20, 800, 600) << QRect(900, 0, 400, 700);
    }
    void goesBesideTheDialogWhereThereIsRoom()
    {
        QFETCH(QRect, dialog);
        QFETCH(QRect, place);
        QCOMPARE(Companion::placeBeside(dialog, {400, 700}, {0, 0, 1900, 1000}), place);
        // On a second screen too.
        const QPoint offset(1900, 40);
        QCOMPARE(Companion::placeBeside(dialog.translated(offset), {400, 700},
                                        QRect(0, 0, 1900, 1000).translated(offset)),
                 place.translated(offset));
    }

    void isNeverLargerThanTheScreen()
    {
        QCOMPARE(Companion::placeBeside({0, 0, 200, 3000}, {5000, 3000}, {0, 0, 800, 600}),
                 QRect(0, 0, 800, 600));
    }

    void isAsWideAsThereIsRoomBesideTheDialog_data()
    {
        QTest::addColumn<QRect>("dialog");
        QTest::addColumn<int>("width");
        QTest::newRow("room enough") << QRect(100, 50, 800, 600) << 700;
        QTest::newRow("just enough at the right") << QRect(400, 50, 800, 600) << 700;
        QTest::newRow("most at the right") << QRect(500, 50, 800, 600) << 600;
        QTest::newRow("most at the left") << QRect(650, 50, 800, 600) << 650;
        QTest::newRow("hardly any") << QRect(100, 50, 1700, 600) << 100;
    }
    void isAsWideAsThereIsRoomBesideTheDialog()
    {
        QFETCH(QRect, dialog);
        for (const QPoint &offset : {QPoint(), QPoint(1900, 40)}) {
            const QRect screen = QRect(0, 0, 1900, 1000).translated(offset);
            const QRect place = dialog.translated(offset);
            const int width = Companion::widthBeside(place, 700, screen);
            QTEST(width, "width");
            QVERIFY(!Companion::placeBeside(place, {width, 700}, screen).intersects(place));
        }
    }

    // Beside a narrow dialog two texts can be read side by side.
    void takesTheRoomBesideTheDialog()
    {
        m_dialog->setGeometry(0, 0, 120, 300);
        openDialog();
        const QWidget *companion = m_desk->companion();
        QVERIFY(companion->width() > companion->sizeHint().width());
        QVERIFY(!companion->geometry().intersects(m_dialog->frameGeometry()));
    }

    void comesBackWhereItWasPut()
    {
        openDialog();
        m_dialog->hide();
        QVERIFY(!m_settings->contains(QStringLiteral("window/companion"))); // nobody has put it
        const auto again = [this] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            m_meter = nullptr;
            openDialog();
        };
        again();
        const QSize size = m_desk->companion()->size() + QSize(30, -20);
        const QPoint place(40, 30);
        m_desk->companion()->resize(size);
        m_desk->companion()->move(place);
        m_dialog->hide();
        again();
        QCOMPARE(m_desk->companion()->size(), size);
        QCOMPARE(m_desk->companion()->pos(), place);
        m_dialog->hide();
        // A screen that is gone, and what is none.
        m_settings->setValue(QStringLiteral("window/companion"), QRect(90000, -5000, 9000, 9000));
        again();
        const QRect screen = m_dialog->screen()->availableGeometry();
        QVERIFY(screen.contains(m_desk->companion()->frameGeometry()));
        m_dialog->hide();
        m_settings->setValue(QStringLiteral("window/companion"), QStringLiteral("here"));
        again();
        QVERIFY(screen.contains(m_desk->companion()->frameGeometry()));
        m_dialog->hide();
    }

    void aDialogThatOffersNothingGetsNone_data()
    {
        QTest::addColumn<int>("lack");
        QTest::newRow("a plug-in without a root") << 0;
        QTest::newRow("a plug-in that estimates nothing") << 1;
        QTest::newRow("a dialog that does not tell its changes") << 2;
    }
    void aDialogThatOffersNothingGetsNone()
    {
        QFETCH(int, lack);
        QObject plain;
        SilentDialog silent;
        QObject *roots[] = {nullptr, &plain, m_root.get()};
        m_desk->follow(&silent, roots[lack]);
        silent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&silent));
        QCoreApplication::processEvents();
        QVERIFY(!m_desk->companion());
        QVERIFY(!companionOnScreen());
    }

    void onlyWhatAppliesHasATab()
    {
        QObject plain;
        m_desk->follow(m_dialog.get(), &plain);
        m_dialog->show();
        QTRY_VERIFY(m_desk->companion() && m_desk->companion()->isVisible());
        QCOMPARE(m_desk->companion()->tabs()->count(), 1);
        QVERIFY(qobject_cast<StepsPanel *>(m_desk->companion()->tabs()->widget(0)));
    }

    void comesUpBesideItsDialogWithoutTheFocus()
    {
        openDialog();
        QCOMPARE(m_desk->companion()->parentWidget(), m_dialog.get());
        QVERIFY(m_desk->companion()->isWindow());
        QTRY_COMPARE(QApplication::activeWindow(), m_dialog.get());
        QTRY_COMPARE(QApplication::focusWidget(), m_dialog->edit);
        QCOMPARE(m_desk->companion()->tabs()->count(), 2);
    }

    void canBeUsedThoughItsDialogIsModal()
    {
        m_dialog->setWindowModality(Qt::ApplicationModal);
        openDialog();
        auto *check = m_desk->companion()->findChild<QCheckBox *>(QStringLiteral("measureCheck"));
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
        QVERIFY(!check->isChecked());
        QCOMPARE(QApplication::activeModalWidget(), m_dialog.get());
    }

    void aKeyLeadsThereAndBack()
    {
        openDialog();
        QTRY_COMPARE(QApplication::focusWidget(), m_dialog->edit);
        QTest::keyClick(m_dialog->edit, Qt::Key_F6);
        QTRY_COMPARE(QApplication::activeWindow(), m_desk->companion());
        QTRY_VERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->window(), m_desk->companion());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
        QTRY_COMPARE(QApplication::focusWidget(), m_dialog->edit);
        QTest::keyClick(m_dialog->edit, Qt::Key_F6);
        QTRY_COMPARE(QApplication::activeWindow(), m_desk->companion());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QTRY_COMPARE(QApplication::focusWidget(), m_dialog->edit);
        QVERIFY(m_desk->companion()->isVisible());
    }

    void isHiddenUntilItIsWantedAgain()
    {
        openDialog();
        m_desk->companion()->close();
        QVERIFY(!m_desk->companion()->isVisible());
        QVERIFY(!m_desk->action()->isChecked());
        m_dialog->close();

        // It is remembered.
        CompanionDesk other(*m_settings, companionPanels(*m_settings), m_window.get());
        QVERIFY(!other.action()->isChecked());
        other.follow(m_dialog.get(), m_root.get());
        m_dialog->show();
        QTRY_VERIFY(other.companion());
        QVERIFY(!other.companion()->isVisible());
        QCOMPARE(m_root->asked, 1); // in the window before

        QTest::keyClick(m_dialog->edit, Qt::Key_F6);
        QTRY_COMPARE(QApplication::activeWindow(), other.companion());
        QVERIFY(other.action()->isChecked());
        other.action()->trigger();
        QVERIFY(!other.companion()->isVisible());
        m_dialog->close();
    }

    void goesWithItsDialog_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("accepted") << 0;
        QTest::newRow("rejected") << 1;
        QTest::newRow("destroyed") << 2;
    }
    void goesWithItsDialog()
    {
        QFETCH(int, way);
        openDialog();
        m_root->way = QStringLiteral("sleep");
        meter()->setPause(0);
        m_dialog->setLamps(4);
        QTRY_VERIFY(meter()->isMeasuring());
        QPointer<Companion> companion = m_desk->companion();
        if (way == 0)
            m_dialog->accept();
        else if (way == 1)
            m_dialog->reject();
        else
            m_dialog.reset();
        QTRY_VERIFY(!companion);
        QVERIFY(!m_desk->companion());
        QVERIFY(m_settings->value(QStringLiteral("companion/shown"), true).toBool());
    }

    void theWorkbenchHasItBesideTheDialogOfAnIp()
    {
        Bench bench("measuring");
        const QString file = bench.folder() + QStringLiteral("/lamps.ipc");
        QVERIFY(write(file, "[General]\ntype=fake.blinker\n[Config]\nLamps=3\n"));
        QString figure;
        bool keptFocus = false;
        QTimer looking;
        connect(&looking, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            Companion *companion = bench.window->companion();
            if (!dialog || !companion || !companion->isVisible())
                return;
            const auto *bar = companion->findChild<MeterBar *>();
            if (!bar)
                return;
            figure = MeterText::figure(bar->reading());
            keptFocus = dialog->isActiveWindow();
            dialog->reject();
        });
        looking.start(0);
        QVERIFY(bench.window->openIp(file));
        QCOMPARE(figure, QString(QChar(0x2248)) + QStringLiteral(" 3 of 5 (60 %)"));
        QVERIFY(keptFocus);
        QVERIFY(!bench.window->companion());

        // Not where it is not wanted.
        bench.action("Companion of IP Dialogs")->trigger();
        bool wasSeen = true;
        const ModalWatcher watcher([&](QWidget *modal) {
            QCoreApplication::processEvents();
            wasSeen = bench.window->companion() && bench.window->companion()->isVisible();
            qobject_cast<QDialog *>(modal)->reject();
        });
        QVERIFY(bench.window->openIp(file));
        QVERIFY(!wasSeen);
    }

    void whatDrawsADiagramGetsNone()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/measuring"), true);
        const QString file = m_dir->filePath(QStringLiteral("lamps.ipc"));
        QVERIFY(write(file, "[General]\ntype=fake.blinker\n"));
        bool wasSeen = false;
        int looks = 0;
        QTimer looking;
        connect(&looking, &QTimer::timeout, this, [&] {
            ++looks;
            wasSeen = wasSeen || companionOnScreen();
        });
        looking.start(0);
        DiagramRenderer renderer(catalogue);
        QString error;
        QVERIFY2(renderer.render(file, m_dir->filePath(QStringLiteral("x.svg")), &error),
                 qPrintable(error));
        QVERIFY(looks > 0);
        QVERIFY(!wasSeen);
    }

    void isWalkedThroughWithTheKeyboard_data()
    {
        QTest::addColumn<int>("tab");
        QTest::newRow("meter") << 0;
        QTest::newRow("steps") << 1;
    }
    void isWalkedThroughWithTheKeyboard()
    {
        QFETCH(int, tab);
        openDialog();
        Companion *companion = m_desk->companion();
        companion->tabs()->setCurrentIndex(tab);
        QTRY_VERIFY(meter()->bars().size() == 5);
        QCOMPARE(sharedMnemonics(mnemonicTexts(companion)).join(u';'), QString());
        const TabWalk walk(companion);
        QCOMPARE(walk.unseen().join(u';'), QString());
        if (tab == 0) {
            for (const MeterBar *bar : meter()->bars())
                QVERIFY2(walk.indexOf(bar) >= 0, qPrintable(bar->title()));
        }
    }

    void isWholeOnASmallScreenWithALargeFont_data() { isWalkedThroughWithTheKeyboard_data(); }
    void isWholeOnASmallScreenWithALargeFont()
    {
        QFETCH(int, tab);
        QFont large = m_font;
        large.setPointSize(16);
        QApplication::setFont(large);
        openDialog();
        m_desk->companion()->tabs()->setCurrentIndex(tab);
        QCOMPARE(cutOff(m_desk->companion(), smallScreen()).join(u';'), QString());
    }

    // The meter

    void showsTheEstimateWithItsRange()
    {
        openDialog();
        QCOMPARE(figures(), (QStringList{approximately("300 of 1000 (30 %)"),
                                         approximately("150 of 2000 (8 %)"),
                                         QStringLiteral("= 24 of 500 (5 %)"), QStringLiteral("= 3"),
                                         QStringLiteral("= 12 of 40 (30 %)")}));
        QCOMPARE(MeterText::range(meter()->bars().first()->reading()),
                 QStringLiteral("between 285 and 315"));
        QVERIFY2(text("meterState").startsWith(approximately("Estimated.")),
                 qPrintable(text("meterState")));
        QCOMPARE(text("meterBlackBoxes"),
                 QStringLiteral("Not counted are the contents of black boxes: 1 LampCore (from "
                                "its supplier)."));
    }

    void followsTheDialogAndAsksOnceForManyChanges()
    {
        openDialog();
        const int before = m_root->asked;
        QSignalSpy refreshed(meter(), &MeterPanel::refreshed);
        for (int lamps = 0; lamps <= 9; ++lamps)
            m_dialog->setLamps(lamps);
        QCOMPARE(m_root->asked, before);
        QVERIFY(refreshed.wait());
        QCOMPARE(m_root->asked, before + 1);
        QCOMPARE(figures().first(), approximately("900 of 1000 (90 %)"));
    }

    void saysWhatDoesNotFit_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("low");
        QTest::addColumn<int>("high");
        QTest::addColumn<int>("available");
        QTest::addColumn<QString>("verdict");
        QTest::addColumn<QString>("spoken");
        QTest::newRow("all of it") << 100 << 100 << 100 << 100 << ""
                                   << "100 of 100";
        QTest::newRow("the whole range fits") << 95 << 90 << 100 << 100 << ""
                                              << "about 95 of 100, between 90 and 100";
        QTest::newRow("the end of the range does not") << 95 << 90 << 101 << 100 << "may not fit"
                                                       << "about 95 of 100, between 90 and 101, "
                                                          "may not fit";
        QTest::newRow("the value does not")
            << 101 << 90 << 110 << 100 << "does not fit: about 1 too many"
            << "about 101 of 100, between 90 and 110, does not fit: about 1 too many";
        QTest::newRow("exactly one too many")
            << 101 << 101 << 101 << 100 << "does not fit: 1 too many"
            << "101 of 100, does not fit: 1 too many";
        QTest::newRow("the device has none") << 2 << 2 << 2 << 0 << "does not fit: 2 too many"
                                             << "2 of 0, does not fit: 2 too many";
        QTest::newRow("nobody knows") << 2 << 1 << 3 << -1 << ""
                                      << "about 2, between 1 and 3, of how many is not known";
    }
    void saysWhatDoesNotFit()
    {
        QFETCH(int, value);
        QFETCH(int, low);
        QFETCH(int, high);
        QFETCH(int, available);
        QFETCH(QString, verdict);
        QFETCH(QString, spoken);
        const ResourceReading reading{QStringLiteral("LUT4"), value, low, high, available};
        QCOMPARE(MeterText::verdict(reading), verdict);
        QCOMPARE(MeterText::spoken(reading), spoken);
        // The text is there in the picture too, so that red is not the only sign.
        MeterBar bar(QStringLiteral("LUT4"));
        bar.setReading(reading);
        MeterBar fitting(QStringLiteral("LUT4"));
        fitting.setReading({QStringLiteral("LUT4"), 1, 1, 1, 100});
        const int line = bar.fontMetrics().height();
        QCOMPARE(bar.sizeHint().height(),
                 fitting.sizeHint().height() + (verdict.isEmpty() ? 0 : line));
        bar.resize(bar.sizeHint());
        const QImage seen = bar.grab().toImage();
        const QImage lowest = seen.copy(0, seen.height() - line, seen.width(), line);
        int dots = 0;
        for (int x = 0; x < lowest.width(); ++x) {
            for (int y = 0; y < lowest.height(); ++y)
                dots += lowest.pixel(x, y) != seen.pixel(0, 0);
        }
        QCOMPARE(dots > 100, !verdict.isEmpty() || !MeterText::range(reading).isEmpty());
    }

    // Then the texts below the bars go beside them.
    void isSeenWholeWhereThereIsLittleRoom()
    {
        openDialog();
        Companion *companion = m_desk->companion();
        const auto isWhole = [this] {
            const auto areas = meter()->findChildren<QScrollArea *>();
            return areas.first()->verticalScrollBar()->maximum() == 0;
        };
        const auto areCompact = [this] { return meter()->bars().first()->isCompact(); };
        const int around = companion->height() - meter()->height();
        companion->resize(companion->width(), 2000);
        QTRY_VERIFY(!areCompact());
        const int needed = around + meter()->sizeHint().height();
        const MeterBar *bar = meter()->bars().first();
        const int saved = meter()->bars().size() * (bar->heightIn(false) - bar->heightIn(true));
        QVERIFY(saved > 5 * bar->fontMetrics().height());
        companion->resize(companion->width(), needed + 1);
        QTRY_VERIFY(isWhole());
        QVERIFY(!areCompact());
        companion->resize(companion->width(), needed - saved + 1);
        QTRY_VERIFY(areCompact());
        QTRY_VERIFY(isWhole());
        // What a bar says is still there, the share before the range.
        const QImage range = meter()->bars().first()->grab().toImage();
        Q_EMIT m_dialog->pointedAt(QStringLiteral("Bulb"));
        QTRY_VERIFY(!shares().first().isEmpty());
        QVERIFY(meter()->bars().first()->grab().toImage() != range);
        companion->resize(companion->width(), needed + 1);
        QTRY_VERIFY(!areCompact());
        QTRY_VERIFY(isWhole());
    }

    void isHeardAsWellAsSeen()
    {
        openDialog();
        QAccessibleInterface *bar = QAccessible::queryAccessibleInterface(meter()->bars().first());
        QVERIFY(bar);
        QCOMPARE(bar->text(QAccessible::Name), QStringLiteral("LUT4"));
        QCOMPARE(bar->text(QAccessible::Value),
                 QStringLiteral("about 300 of 1000, between 285 and 315"));
        QVERIFY(bar->valueInterface());
        QCOMPARE(bar->valueInterface()->currentValue(), QVariant(300));
        QCOMPARE(bar->valueInterface()->maximumValue(), QVariant(1000));
        QCOMPARE(bar->role(), QAccessible::ProgressBar);
        QVERIFY(bar->state().focusable);
        QCOMPARE(bar->text(QAccessible::Description), QString());
        Q_EMIT m_dialog->pointedAt(QStringLiteral("Bulb"));
        QTRY_COMPARE(bar->text(QAccessible::Description), approximately("80", "Bulb "));
    }

    void everyWidgetHasANameAndIsReachedByTab()
    {
        openDialog();
        QWidget *window = m_desk->companion();
        auto *tabs = window->findChild<QTabWidget *>();
        QVERIFY(tabs && tabs->count() >= 2);
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            QCoreApplication::processEvents();
            QCOMPARE(unnamed(window).join(u';'), QString());
            const TabWalk walk(window, 200, false);
            QCOMPARE(unreached(window, walk).join(u';'), QString());
        }
    }

    void showsTheShareOfTheBlockThatIsPointedAt()
    {
        openDialog();
        MeterBar *bar = meter()->bars().first();
        m_desk->companion()->resize(800, 800); // without scroll bars that come and go
        QTRY_VERIFY(bar->width() > 700 && !bar->isCompact());
        const QImage without = bar->grab().toImage();
        Q_EMIT m_dialog->pointedAt(QStringLiteral("Bulb"));
        QTRY_COMPARE(
            shares(),
            (QStringList{approximately("80", "Bulb "), approximately("40", "Bulb "),
                         QStringLiteral("Bulb: none"), QStringLiteral("Bulb: none"), QString()}));
        QVERIFY(bar->grab().toImage() != without);
        Q_EMIT m_dialog->pointedAt(QStringLiteral("nobody knows"));
        QTRY_COMPARE(shares().join(QString()), QString());
        QCOMPARE(bar->grab().toImage(), without);

        // Who goes to the meter to read it points at nothing any more.
        Q_EMIT m_dialog->pointedAt(QStringLiteral("Bulb"));
        QTRY_VERIFY(!shares().first().isEmpty());
        QTest::keyClick(m_dialog->edit, Qt::Key_F6);
        QTRY_COMPARE(QApplication::activeWindow(), m_desk->companion());
        Q_EMIT m_dialog->pointedAt(QString());
        auto *pointing = meter()->findChild<QTimer *>(QStringLiteral("pointingTimer"));
        QVERIFY(pointing);
        QTRY_VERIFY(!pointing->isActive());
        QVERIFY(!shares().first().isEmpty());
    }

    void takesNoEstimateThatIsNotSound_data()
    {
        QTest::addColumn<QVariantMap>("answer");
        QTest::addColumn<QString>("reason");
        const auto with = [](const char *key, const QVariant &value) {
            QVariantMap answer = LampRoot::usual(3);
            answer.insert(QLatin1String(key), value);
            return answer;
        };
        const auto resources = [&](const QVariantMap &resource) {
            return with("resources", QVariantList{resource});
        };
        const auto changed = [&](const char *key, const QVariant &value) {
            QVariantMap resource = LampRoot::reading("LUT4", 10, 9, 11, 20);
            resource.insert(QLatin1String(key), value);
            return resources(resource);
        };
        const QVariantMap good = LampRoot::reading("LUT4", 10, 9, 11, 20);
        const QString wrong = QStringLiteral("\"resources\"");
        QTest::newRow("an error") << QVariantMap{{QStringLiteral("error"),
                                                  QStringLiteral("These lamps are unknown.")}}
                                  << QStringLiteral("These lamps are unknown.");
        QTest::newRow("an error that is no text")
            << with("error", 3) << QStringLiteral("\"error\"");
        QTest::newRow("an error of two lines")
            << with("error", QStringLiteral("a\nb")) << QStringLiteral("\"error\"");
        QTest::newRow("no resources") << with("resources", QVariantList()) << wrong;
        QTest::newRow("resources that are no list") << with("resources", 3) << wrong;
        QTest::newRow("a resource that is no map") << with("resources", QVariantList{3}) << wrong;
        QTest::newRow("a resource twice") << with("resources", QVariantList{good, good}) << wrong;
        QTest::newRow("too many")
            << with("resources",
                    QVariantList(
                        QVector<QVariant>(EstimateAnswer::resourceLimit + 1, good).toList()))
            << wrong;
        QTest::newRow("a value below its range") << changed("value", 8) << wrong;
        QTest::newRow("a value above its range") << changed("value", 12) << wrong;
        QTest::newRow("a value as a text") << changed("value", QStringLiteral("10")) << wrong;
        QTest::newRow("a negative range") << changed("low", -1) << wrong;
        QTest::newRow("a range that ends before it begins") << changed("high", 8) << wrong;
        QTest::newRow("a device with less than nothing") << changed("available", -2) << wrong;
        QTest::newRow("no name") << changed("resource", QString()) << wrong;
        QTest::newRow("pins that are none") << with("pins", 3) << QStringLiteral("\"pins\"");
        QTest::newRow("blocks that are none") << with("blocks", 3) << QStringLiteral("\"blocks\"");
        QTest::newRow("a block without a name")
            << with("blocks", QVariantList{QVariantMap()}) << QStringLiteral("\"blocks\"");
        QTest::newRow("a black box without a number")
            << with("blackBoxes",
                    QVariantList{QVariantMap{{QStringLiteral("cell"), QStringLiteral("X")}}})
            << QStringLiteral("\"blackBoxes\"");
    }
    void takesNoEstimateThatIsNotSound()
    {
        QFETCH(QVariantMap, answer);
        QFETCH(QString, reason);
        openDialog();
        m_root->answer = answer;
        refreshBy([&] { m_dialog->setLamps(4); });
        QVERIFY(meter()->bars().isEmpty());
        QVERIFY2(text("meterError").contains(reason) && text("meterError").endsWith(u'.'),
                 qPrintable(text("meterError")));
        QVERIFY(!meter()->isMeasuring());
        // The next one counts again.
        m_root->answer.clear();
        refreshBy([&] { m_dialog->setLamps(5); });
        QCOMPARE(meter()->bars().size(), 5);
        QCOMPARE(text("meterError"), QString());
    }

    void saysThatAPlugInFailed_data()
    {
        QTest::addColumn<bool>("isDialog");
        QTest::newRow("the dialog") << true;
        QTest::newRow("the plug-in") << false;
    }
    void saysThatAPlugInFailed()
    {
        QFETCH(bool, isDialog);
        openDialog();
        m_dialog->isBroken = isDialog;
        m_root->isBroken = !isDialog;
        refreshBy([&] { m_dialog->setLamps(4); });
        QVERIFY2(text("meterError").contains(QLatin1String("the lamp is hot")),
                 qPrintable(text("meterError")));
    }

    // Measuring

    void isExactAfterAPauseForExactlyThisConfiguration()
    {
        openDialog();
        meter()->setPause(0);
        measureBy([&] { m_dialog->setLamps(4); });
        const QString exact = QStringLiteral("= 407 of 1000 (41 %)");
        QCOMPARE(figures().mid(0, 2), (QStringList{exact, QStringLiteral("= 200 of 2000 (10 %)")}));
        QVERIFY2(text("meterState").startsWith(QLatin1String("= Exact")),
                 qPrintable(text("meterState")));

        // Another one is estimated again, and this one is known from now on.
        meter()->setPause(1000000);
        refreshBy([&] { m_dialog->setLamps(6); });
        QCOMPARE(figures().first(), approximately("600 of 1000 (60 %)"));
        meter()->setPause(0);
        refreshBy([&] { m_dialog->setLamps(4); });
        QCOMPARE(figures().first(), exact);
        QVERIFY(!meter()->isMeasuring());
        QCOMPARE(contentsOf(log()), QByteArray("4\n"));
    }

    void aChangeEndsTheRun()
    {
        openDialog();
        m_root->way = QStringLiteral("sleep");
        meter()->setPause(0);
        m_dialog->setLamps(4);
        QTRY_VERIFY(!contentsOf(log()).isEmpty());
        QVERIFY(meter()->isMeasuring());
        QVERIFY2(text("meterState").contains(QLatin1String("in the background")),
                 qPrintable(text("meterState")));
        // A change that changes nothing does not.
        refreshBy([&] { m_dialog->setLamps(4); });
        QVERIFY(meter()->isMeasuring());
        const QString folder = QFile::decodeName(contentsOf(log()).trimmed());
        QVERIFY(QFileInfo(folder).isDir());
        meter()->setPause(1000000);
        refreshBy([&] { m_dialog->setLamps(5); });
        QVERIFY(!meter()->isMeasuring());
        QVERIFY(!QFileInfo::exists(folder));
    }

    void hidingItEndsTheRun()
    {
        openDialog();
        m_root->way = QStringLiteral("sleep");
        meter()->setPause(0);
        m_dialog->setLamps(4);
        QTRY_VERIFY(meter()->isMeasuring());
        m_desk->companion()->tabs()->setCurrentIndex(1);
        QVERIFY(meter()->isMeasuring()); // it is ready when somebody comes back
        m_desk->action()->trigger();
        QVERIFY(!meter()->isMeasuring());
        const int before = m_root->asked;
        m_dialog->setLamps(5);
        m_desk->action()->trigger();
        QTRY_COMPARE(m_root->asked, before + 1);
        QTRY_COMPARE(meter()->bars().first()->reading().value, 500);
        QTRY_VERIFY(meter()->isMeasuring());
    }

    void canBeSwitchedOffAndIsRemembered()
    {
        openDialog();
        m_root->way = QStringLiteral("sleep");
        meter()->setPause(0);
        auto *check = meter()->findChild<QCheckBox *>(QStringLiteral("measureCheck"));
        auto *pause = meter()->findChild<QSpinBox *>(QStringLiteral("measurePause"));
        QCOMPARE(pause->value(), 5);
        m_dialog->setLamps(4);
        QTRY_VERIFY(meter()->isMeasuring());
        pause->setValue(17);
        check->click();
        QVERIFY(!meter()->isMeasuring());
        QVERIFY(!pause->isEnabled());
        refreshBy([&] { m_dialog->setLamps(5); });
        QVERIFY(!meter()->isMeasuring());
        m_dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_meter = nullptr;
        openDialog();
        check = meter()->findChild<QCheckBox *>(QStringLiteral("measureCheck"));
        pause = meter()->findChild<QSpinBox *>(QStringLiteral("measurePause"));
        QVERIFY(!check->isChecked());
        QCOMPARE(pause->value(), 17);
        m_root->way = QStringLiteral("count");
        meter()->setPause(0);
        measureBy([&] { check->click(); });
        QCOMPARE(figures().first(), QStringLiteral("= 507 of 1000 (51 %)"));
    }

    void whyItIsNotMeasuredIsASentence_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QVariantMap>("otherwise");
        QTest::addColumn<QString>("reason");
        const auto with = [](const char *key, const QVariant &value) {
            return QVariantMap{{QLatin1String(key), value}};
        };
        const QString count = QStringLiteral("count");
        QTest::newRow("the program says so")
            << QStringLiteral("refuse") << QVariantMap() << "These lamps do not shine.";
        QTest::newRow("the plug-in says so")
            << count << with("error", QStringLiteral("It is night.")) << "It is night.";
        QTest::newRow("a program that is not there")
            << count << with("program", QStringLiteral("/no/such")) << "\"program\"";
        QTest::newRow("a program by its name alone")
            << count << with("program", QStringLiteral("sh")) << "\"program\"";
        QTest::newRow("arguments that are none")
            << count << with("arguments", 3) << "\"arguments\"";
        QTest::newRow("a file elsewhere")
            << count << with("file", QStringLiteral("../x.ipc")) << "\"file\"";
        QTest::newRow("a hidden file")
            << count << with("file", QStringLiteral(".x.ipc")) << "\"file\"";
        QTest::newRow("a configuration that is no bytes")
            << count << with("configuration", QStringLiteral("x")) << "\"configuration\"";
        QTest::newRow("a configuration without an end")
            << count
            << with("configuration", QByteArray(EstimateAnswer::configurationLimit + 1, 'x'))
            << "\"configuration\"";
    }
    void whyItIsNotMeasuredIsASentence()
    {
        QFETCH(QString, way);
        QFETCH(QVariantMap, otherwise);
        QFETCH(QString, reason);
        openDialog();
        m_root->way = way;
        m_root->otherwise = otherwise;
        meter()->setPause(0);
        measureBy([&] { m_dialog->setLamps(4); });
        QVERIFY2(text("meterState").contains(reason), qPrintable(text("meterState")));
        QCOMPARE(figures().first(), approximately("400 of 1000 (40 %)"));
    }

    void takesNoNumbersThatAreNone_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("as it should be")
            << QByteArray("{\"resources\": [{\"resource\": \"LUT4\", \"used\": 3}]}") << true;
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("no object") << QByteArray("[]") << false;
        QTest::newRow("no resources") << QByteArray("{\"resources\": []}") << false;
        QTest::newRow("no name") << QByteArray("{\"resources\": [{\"used\": 3}]}") << false;
        QTest::newRow("no number")
            << QByteArray("{\"resources\": [{\"resource\": \"LUT4\"}]}") << false;
        QTest::newRow("a negative number")
            << QByteArray("{\"resources\": [{\"resource\": \"LUT4\", \"used\": -3}]}") << false;
        QTest::newRow("half a number")
            << QByteArray("{\"resources\": [{\"resource\": \"LUT4\", \"used\": 3.5}]}") << false;
        QTest::newRow("a resource twice")
            << QByteArray("{\"resources\": [{\"resource\": \"LUT4\", \"used\": 3},"
                          "{\"resource\": \"LUT4\", \"used\": 4}]}")
            << false;
    }
    void takesNoNumbersThatAreNone()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, isTaken);
        const auto uses = EstimateAnswer::measuredUseOf(json);
        QCOMPARE(bool(uses), isTaken);
        QCOMPARE(uses.reason().isEmpty(), isTaken);
    }

    // The steps

    void listsTheStepsAndMarksWhereItIs()
    {
        openDialog();
        QCOMPARE(stepTexts(), (QStringList{QStringLiteral("What the file has"),
                                           QStringLiteral("1. First lamp on"),
                                           QStringLiteral("2. Second lamp on (now)"),
                                           QStringLiteral("3. Third lamp on (undone)")}));
        const StepsModel &model = steps()->model();
        QVERIFY(model.index(2).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(model.index(3).data(Qt::FontRole).value<QFont>().italic());
        QVERIFY(!model.index(1).data(Qt::FontRole).isValid());
    }

    void stepsAreUndoneAndDoneAgain_data()
    {
        QTest::addColumn<QByteArray>("way");
        QTest::addColumn<int>("current");
        QTest::newRow("Undo") << QByteArray("undoButton") << 1;
        QTest::newRow("Redo") << QByteArray("redoButton") << 3;
        QTest::newRow("Back to What the File Has") << QByteArray("backButton") << 0;
        QTest::newRow("Ctrl+Z") << QByteArray("Ctrl+Z") << 1;
        QTest::newRow("Ctrl+Y") << QByteArray("Ctrl+Y") << 3;
        QTest::newRow("Ctrl+Shift+Z") << QByteArray("Ctrl+Shift+Z") << 3;
        QTest::newRow("Enter on a step") << QByteArray("enter") << 1;
    }
    void stepsAreUndoneAndDoneAgain()
    {
        QFETCH(QByteArray, way);
        QFETCH(int, current);
        openDialog();
        m_desk->companion()->tabs()->setCurrentIndex(1);
        QTest::keyClick(m_dialog->edit, Qt::Key_F6);
        QTRY_COMPARE(QApplication::activeWindow(), m_desk->companion());
        auto *list = steps()->findChild<QListView *>(QStringLiteral("stepList"));
        list->setFocus();
        if (way == "enter") {
            list->setCurrentIndex(list->model()->index(1, 0));
            QTest::keyClick(list, Qt::Key_Return);
        } else if (way.startsWith("Ctrl")) {
            const int key = QKeySequence(QString::fromLatin1(way))[0];
            QTest::keyClick(list, Qt::Key(key & ~int(Qt::KeyboardModifierMask)),
                            Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
        } else {
            QTest::mouseClick(steps()->findChild<QPushButton *>(QString::fromLatin1(way)),
                              Qt::LeftButton);
        }
        QCOMPARE(m_dialog->current, current);
        QCOMPARE(steps()->model().current(), current);
        QVERIFY(stepTexts().at(current).endsWith(QLatin1String("(now)")));
    }

    // Also where a text has the focus, and beside a dialog that has the same keys for itself: a
    // dialog's shortcuts reach its tool windows.
    void theKeysOfUndoAreTheSameInEveryTab()
    {
        m_root = std::make_unique<PreviewingRoot>();
        auto *own = new QAction(m_dialog.get());
        own->setShortcuts({QKeySequence(Qt::CTRL + Qt::Key_Z), QKeySequence(Qt::CTRL + Qt::Key_Y)});
        connect(own, &QAction::triggered, m_dialog.get(), [] { QFAIL("the dialog took the key"); });
        m_dialog->addAction(own);
        openDialog();
        QTest::keyClick(m_dialog->edit, Qt::Key_F6);
        QTRY_COMPARE(QApplication::activeWindow(), m_desk->companion());
        QTabWidget *tabs = m_desk->companion()->tabs();
        QCOMPARE(tabs->count(), 3);
        int tried = 0;
        int texts = 0;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            auto *preview = qobject_cast<PreviewPanel *>(tabs->widget(tab));
            if (preview)
                preview->refresh();
            const auto places = tabs->widget(tab)->findChildren<QWidget *>() << tabs->tabBar();
            for (QWidget *place : places) {
                if (!(place->focusPolicy() & Qt::TabFocus) || !place->isVisible() ||
                    !place->isEnabled() || place->focusProxy() ||
                    place->inherits("QAbstractSpinBox"))
                    continue;
                place->setFocus();
                QTRY_COMPARE(QApplication::focusWidget(), place);
                m_dialog->goToStep(2);
                QTRY_COMPARE(steps()->model().current(), 2);
                QTest::keyClick(place, Qt::Key_Z, Qt::ControlModifier);
                QVERIFY2(m_dialog->current == 1, place->metaObject()->className());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Y, Qt::ControlModifier);
                QVERIFY2(m_dialog->current == 2, place->metaObject()->className());
                ++tried;
                texts += place->inherits("QPlainTextEdit");
            }
        }
        QVERIFY(tried >= 8);
        QCOMPARE(texts, 2);
    }

    void buttonsOfferWhatCanBeDone()
    {
        openDialog();
        const auto enabled = [this] {
            QString text;
            for (const char *name : {"undoButton", "redoButton", "backButton"})
                text += steps()->findChild<QPushButton *>(QLatin1String(name))->isEnabled() ? u'x'
                                                                                            : u'-';
            return text;
        };
        QCOMPARE(enabled(), QStringLiteral("xxx"));
        m_dialog->goToStep(0);
        QTRY_COMPARE(enabled(), QStringLiteral("-x-"));
        m_dialog->goToStep(3);
        QTRY_COMPARE(enabled(), QStringLiteral("x-x"));
        m_dialog->names.clear();
        m_dialog->goToStep(0);
        QTRY_COMPARE(enabled(), QStringLiteral("---"));
        QCOMPARE(stepTexts(), QStringList(QStringLiteral("What the file has (now)")));
    }

    void stepsThatCannotBeUsedAreASentence_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<QString>("name");
        QTest::newRow("more than there are") << 4 << "x";
        QTest::newRow("less than none") << -1 << "x";
        QTest::newRow("a step of two lines") << 1 << "x\ny";
        QTest::newRow("a step without a name") << 1 << "";
    }
    void stepsThatCannotBeUsedAreASentence()
    {
        QFETCH(int, current);
        QFETCH(QString, name);
        openDialog();
        const QStringList before = stepTexts();
        m_dialog->names[1] = name;
        m_dialog->current = current;
        QSignalSpy refreshed(steps(), &StepsPanel::refreshed);
        Q_EMIT m_dialog->configurationChanged();
        QVERIFY(refreshed.wait());
        QVERIFY2(text("stepError").endsWith(u'.'), qPrintable(text("stepError")));
        QCOMPARE(stepTexts(), before);
    }

    void aDialogThatStaysIsToldOf()
    {
        openDialog();
        m_dialog->isStuck = true;
        steps()->findChild<QPushButton *>(QStringLiteral("undoButton"))->click();
        QCOMPARE(text("stepError"), QStringLiteral("The dialog cannot go there now."));
        QCOMPARE(steps()->model().current(), 2);
    }

private:
    QString log() const { return m_dir->filePath(QStringLiteral("log")); }

    static QString approximately(const char *text, const char *before = "")
    {
        return QString(QLatin1String(before) + QChar(0x2248) + QLatin1Char(' ') +
                       QLatin1String(text));
    }

    // And waits for the meter's first look.
    void openDialog()
    {
        m_desk->follow(m_dialog.get(), m_root.get());
        m_dialog->show();
        QApplication::setActiveWindow(m_dialog.get());
        m_dialog->edit->setFocus();
        QTRY_VERIFY(m_desk->companion() && m_desk->companion()->isVisible());
        meter()->setIdle(false);
        QTRY_VERIFY(!meter()->bars().isEmpty());
    }

    MeterPanel *meter()
    {
        if (!m_meter)
            m_meter = m_desk->companion()->findChild<MeterPanel *>();
        return m_meter;
    }
    StepsPanel *steps() { return m_desk->companion()->findChild<StepsPanel *>(); }

    template <typename Deed>
    void refreshBy(Deed deed)
    {
        QSignalSpy refreshed(meter(), &MeterPanel::refreshed);
        deed();
        QVERIFY(refreshed.wait(30000));
    }
    template <typename Deed>
    void measureBy(Deed deed)
    {
        QSignalSpy measured(meter(), &MeterPanel::measured);
        deed();
        QVERIFY(measured.wait(60000));
    }

    QStringList figures()
    {
        QStringList texts;
        for (const MeterBar *bar : meter()->bars())
            texts.append(MeterText::figure(bar->reading()));
        return texts;
    }
    QStringList shares()
    {
        QStringList texts;
        for (const MeterBar *bar : meter()->bars())
            texts.append(bar->shareText());
        return texts;
    }
    QStringList stepTexts()
    {
        QStringList texts;
        for (int row = 0; row < steps()->model().rowCount(); ++row)
            texts.append(steps()->model().index(row).data().toString());
        return texts;
    }
    QString text(const char *label)
    {
        return m_desk->companion()->findChild<QLabel *>(QLatin1String(label))->text();
    }

    const QFont m_font = QApplication::font();
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<QWidget> m_window;
    CompanionDesk *m_desk = nullptr; // owned by the window
    std::unique_ptr<LampRoot> m_root;
    std::unique_ptr<LampDialog> m_dialog;
    QPointer<MeterPanel> m_meter;
};

QTEST_MAIN(TestCompanion)
#include "moc_fakeip.cpp"
#include "tst_companion.moc"
