// Pictures of a configuration on the result page, and what stands behind their places.

#include "hands.h"

#include <workbench/catalogue/mapset.h>
#include <workbench/results/lastrun.h>
#include <workbench/results/mapview.h>
#include <workbench/results/resultpage.h>
#include <workbench/software/softwarebrowser.h>
#include <workbench/software/softwarepage.h>
#include <workbench/widgets/vectorpicture.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Workbench;
using namespace TestSupport;

namespace
{

// A column of coloured fields of 200 x 40 on a page of 240.
QByteArray drawing(int fields, const char *colour, int height = 0)
{
    QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"240\" height=\"" +
                     QByteArray::number(height > 0 ? height : fields * 50) + "\">";
    for (int i = 0; i < fields; ++i)
        svg += "<rect x=\"20\" y=\"" + QByteArray::number(i * 50) +
               "\" width=\"200\" height=\"40\" fill=\"" + colour + "\"/>";
    return svg + "</svg>";
}

QVariantMap doorMap(int y, int x = 20, int width = 200, int height = 40)
{
    return {{QStringLiteral("x"), x},
            {QStringLiteral("y"), y},
            {QStringLiteral("width"), width},
            {QStringLiteral("height"), height},
            {QStringLiteral("text"), QStringLiteral("LAMP at %1").arg(y)},
            {QStringLiteral("document"), QStringLiteral("sheet/lamp.html")},
            {QStringLiteral("headings"), QStringList(QStringLiteral("Lamps"))}};
}

QVariantMap pictureMap(const QVariantList &doors)
{
    return {{QStringLiteral("title"), QStringLiteral("Lamp map")},
            {QStringLiteral("text"), QStringLiteral("Where the lamps hang")},
            {QStringLiteral("svg"), drawing(3, "#00ff00")},
            {QStringLiteral("darkSvg"), drawing(3, "#0000ff")},
            {QStringLiteral("doors"), doors}};
}

QVariantMap with(QVariantMap map, const char *key, const QVariant &value)
{
    map.insert(QLatin1String(key), value);
    return map;
}

QVariantMap answerOf(const QVariantMap &picture)
{
    return {{QStringLiteral("error"), QString()}, {QStringLiteral("maps"), QVariantList{picture}}};
}

MapPicture threeLamps()
{
    const auto read =
        MapSet::picturesOf(answerOf(pictureMap({doorMap(0), doorMap(50), doorMap(100)})));
    if (!read)
        qFatal("%s", qPrintable(read.reason()));
    return read->first();
}

} // namespace

class TestMapViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_bench.reset();
        QApplication::setPalette(m_palette);
    }

    void takesASoundAnswer()
    {
        const MapPicture picture = threeLamps();
        QCOMPARE(picture.title, QStringLiteral("Lamp map"));
        QCOMPARE(picture.light->size(), QSizeF(240, 150));
        QVERIFY(picture.dark);
        QCOMPARE(picture.doors.size(), 3);
        QCOMPARE(picture.doors.at(1).box, QRect(20, 50, 200, 40));
        QCOMPARE(picture.doors.at(1).headings, QStringList(QStringLiteral("Lamps")));
        QVariantMap plain = pictureMap({});
        plain.remove(QStringLiteral("darkSvg"));
        const auto read = MapSet::picturesOf(answerOf(plain));
        QVERIFY2(read, qPrintable(read.reason()));
        QVERIFY(!read->first().dark);
    }

    void refusesAHostileAnswerWhole_data()
    {
        QTest::addColumn<QVariantMap>("answer");
        QTest::addColumn<QString>("named");
        const auto picture = [](const char *phrase, const char *key, const QVariant &value,
                                const char *named) {
            QTest::newRow(phrase) << answerOf(with(pictureMap({doorMap(0)}), key, value))
                                  << QString::fromLatin1(named);
        };
        const auto door =
            [](const char *phrase, const char *key, const QVariant &value, const char *named) {
                QTest::newRow(phrase)
                    << answerOf(pictureMap({doorMap(100), with(doorMap(0), key, value)}))
                    << QString::fromLatin1(named);
            };
        QTest::newRow("an error of its own")
            << QVariantMap{{QStringLiteral("error"), QStringLiteral("Too dark.")}}
            << QStringLiteral("Too dark.");
        QTest::newRow("an error that is no text")
            << QVariantMap{{QStringLiteral("error"), 3}} << QStringLiteral("\"error\"");
        QTest::newRow("no maps") << QVariantMap() << QStringLiteral("\"maps\"");
        QTest::newRow("too many maps")
            << QVariantMap{{QStringLiteral("maps"),
                            QVariantList(QVector<QVariant>(9, pictureMap({})).toList())}}
            << QStringLiteral("\"maps\"");
        QTest::newRow("a map that is a number")
            << QVariantMap{{QStringLiteral("maps"), QVariantList{3}}} << QStringLiteral("\"maps\"");
        picture("no title", "title", QString(), "title");
        picture("a title of two lines", "title", QStringLiteral("a\nb"), "title");
        picture("doors that are a text", "doors", QStringLiteral("x"), "doors");
        picture("a drawing that is a text", "svg", QStringLiteral("<svg/>"), "svg");
        picture("a drawing with a picture of its own", "svg",
                QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"><image/></svg>"), "image");
        picture("a drawing with a script", "darkSvg",
                QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"><script/></svg>"), "script");
        picture("a drawing of 5 MiB", "svg", QByteArray(5 << 20, ' '), "4 MiB");
        picture("drawings of two sizes", "darkSvg", drawing(3, "#0000ff", 151), "size");
        picture("more than 1000 doors", "doors",
                QVariantList(QVector<QVariant>(1001, doorMap(0)).toList()), "1000");
        door("a door without a text", "text", QString(), "Lamp map");
        door("a door with a width that is a text", "width", QStringLiteral("40"), "Lamp map");
        door("a door without a width", "width", 0, "not in its picture");
        door("a door beside the picture", "x", 41, "not in its picture");
        door("a door above the picture", "y", -1, "not in its picture");
        door("a door of the greatest width", "width", 0x7fffffff, "not in its picture");
        door("a door on another one", "y", 61, "overlap");
        door("a document above the folder", "document", QStringLiteral("../x.html"), "../x.html");
        door("headings that are a text", "headings", QStringLiteral("Lamps"), "headings");
        door("a heading of two lines", "headings", QStringList(QStringLiteral("a\nb")), "headings");
    }
    void refusesAHostileAnswerWhole()
    {
        QFETCH(QVariantMap, answer);
        QFETCH(QString, named);
        const auto read = MapSet::picturesOf(answer);
        QVERIFY(!read);
        QVERIFY2(read.reason().contains(named), qPrintable(read.reason()));
    }

    void drawsThePictureForLightAndForDark()
    {
        MapView view(threeLamps());
        view.resize(400, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const auto colour = [&view] {
            QWidget *canvas = view.widget();
            return canvas->grab().toImage().pixelColor(canvas->width() / 2, canvas->height() / 2);
        };
        QCOMPARE(colour(), QColor(0, 255, 0));
        QPalette dark = m_palette;
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        view.setPalette(dark);
        QCOMPARE(colour(), QColor(0, 0, 255));
    }

    void placesStandWhereThePictureHasThem_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("points");
        QTest::newRow("much room") << 800 << 9;
        QTest::newRow("little room") << 160 << 9;
        QTest::newRow("large letters") << 800 << 20;
    }
    void placesStandWhereThePictureHasThem()
    {
        QFETCH(int, width);
        QFETCH(int, points);
        MapView view(threeLamps());
        QFont font = view.font();
        font.setPointSize(points);
        view.setFont(font);
        view.resize(width, 400);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QVERIFY(view.widget()->height() >= 0.69 * 150 * view.fontMetrics().height() / 15);
        const QImage image = view.widget()->grab().toImage();
        for (QAbstractButton *door : view.doors()) {
            const QRect box = door->geometry();
            QVERIFY(view.widget()->rect().contains(box));
            QCOMPARE(image.pixelColor(box.center()), QColor(0, 255, 0));
            QCOMPARE(image.pixelColor(box.center().x(), box.bottom() + 3).green() == 255 &&
                         image.pixelColor(box.center().x(), box.bottom() + 3).red() == 0,
                     false);
        }
    }

    void isOneStopForTabAndGoneThroughWithArrows()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *before = new QPushButton(QStringLiteral("before"));
        auto *view = new MapView(threeLamps());
        auto *after = new QPushButton(QStringLiteral("after"));
        for (QWidget *widget : {static_cast<QWidget *>(before), static_cast<QWidget *>(view),
                                static_cast<QWidget *>(after)})
            layout->addWidget(widget);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto press = [](int key) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        };
        before->setFocus();
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), view->doors().at(0));
        press(Qt::Key_Up); // there is none above
        QCOMPARE(QApplication::focusWidget(), view->doors().at(0));
        press(Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), view->doors().at(1));
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), after);
        QTest::keyClick(after, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), view->doors().at(1));
        press(Qt::Key_End);
        QCOMPARE(QApplication::focusWidget(), view->doors().at(2));
        press(Qt::Key_Home);
        press(Qt::Key_Right);
        press(Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), view->doors().at(0));
        QTest::keyClick(view->doors().at(0), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), before);

        // A frame shows where the focus is.
        const QImage without = view->widget()->grab().toImage();
        view->setFocus();
        QCOMPARE(QApplication::focusWidget(), view->doors().at(0));
        QVERIFY(view->widget()->grab().toImage() != without);
    }

    void opensADoorWithEnterSpaceAndAClick()
    {
        MapView view(threeLamps());
        view.show();
        QApplication::setActiveWindow(&view);
        QVERIFY(QTest::qWaitForWindowActive(&view));
        QSignalSpy opened(&view, &MapView::doorOpened);
        view.doors().at(2)->setFocus();
        QTest::keyClick(view.doors().at(2), Qt::Key_Return);
        QTest::keyClick(view.doors().at(2), Qt::Key_Enter);
        QTest::keyClick(view.doors().at(2), Qt::Key_Space);
        QTest::mouseClick(view.doors().at(1), Qt::LeftButton);
        QCOMPARE(opened.size(), 4);
        QCOMPARE(opened.at(0).first().value<MapDoor>().text, QStringLiteral("LAMP at 100"));
        QCOMPARE(opened.at(3).first().value<MapDoor>().text, QStringLiteral("LAMP at 50"));
    }

    void tellsScreenReadersWhatADoorIs()
    {
        MapView view(threeLamps());
        QAccessibleInterface *door = QAccessible::queryAccessibleInterface(view.doors().at(1));
        QVERIFY(door);
        QCOMPARE(door->text(QAccessible::Name), QStringLiteral("LAMP at 50"));
        QCOMPARE(door->role(), QAccessible::Button);
        QVERIFY(door->state().focusable);
        QVERIFY(door->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
        QAccessibleInterface *picture = QAccessible::queryAccessibleInterface(view.widget());
        QCOMPARE(picture->text(QAccessible::Name), QStringLiteral("Where the lamps hang"));
    }

    void bringsTheFocusedDoorIntoView()
    {
        MapView view(threeLamps());
        view.resize(300, 60);
        view.show();
        QApplication::setActiveWindow(&view);
        QVERIFY(QTest::qWaitForWindowActive(&view));
        view.doors().at(2)->setFocus();
        QVERIFY(view.verticalScrollBar()->value() > 0);
        const QRect seen(view.doors().at(2)->mapTo(view.viewport(), QPoint()),
                         view.doors().at(2)->size());
        QVERIFY(view.viewport()->rect().intersects(seen));
    }

    // The configurator and the workbench know each other's methods by name only.
    void everyDoorOfTheConfiguratorLeadsToItsHeading()
    {
        ResultPage *page = openResults("ip/sensor.ipc", sensorNode());
        const auto views = page->findChildren<MapView *>();
        QCOMPARE(views.size(), 2);
        const auto *tabs = page->findChild<QTabWidget *>(QStringLiteral("resultTabs"));
        QCOMPARE(tabs->count(), 4);
        QCOMPARE(tabs->tabText(2), QStringLiteral("Memory map"));
        QCOMPARE(tabs->tabText(3), QStringLiteral("Interrupts"));
        int opened = 0;
        for (MapView *view : views) {
            QVERIFY(view->doors().size() > 3);
            for (int i = 0; i < view->doors().size(); ++i) {
                view->doors().at(i)->click();
                const MapDoor door = view->picture().doors.at(i);
                auto *software = m_bench->window->findChild<SoftwarePage *>();
                QVERIFY(software && software->isVisible());
                auto *browser = software->findChild<SoftwareBrowser *>();
                QVERIFY(browser->isVisible());
                QCOMPARE(browser->textCursor().selectedText(), door.headings.last());
                const QRect heading = browser->cursorRect();
                QVERIFY2(browser->viewport()->rect().contains(heading.center()),
                         qPrintable(door.text));
                ++opened;
            }
        }
        QVERIFY(opened > 10);
    }

    void tellsThatADocumentOrAHeadingIsNotThere()
    {
        openResults("ip/sensor.ipc", sensorNode());
        SoftwarePage *software = m_bench->window->showSoftware(m_ipc);
        const auto told = [software] {
            return software->findChild<QLabel *>(QStringLiteral("exportTold"))->text();
        };
        QVERIFY(!software->showPlace(QStringLiteral("datasheet/none.html"), {}));
        QVERIFY2(told().contains(QLatin1String("none.html")), qPrintable(told()));
        const QString sheet = QStringLiteral("datasheet/tarvo_orix_m1.html");
        // A block is not below a chapter of another kind.
        QVERIFY(
            !software->showPlace(sheet, {QStringLiteral("Black boxes"), QStringLiteral("UART")}));
        QVERIFY2(told().contains(QLatin1String("UART")), qPrintable(told()));
        QVERIFY(software->showPlace(sheet, {QStringLiteral("Registers"), QStringLiteral("UART")}));
    }

    void aPluginWithoutMapsLeavesTheResultsAsTheyWere()
    {
        ResultPage *page =
            openResults("ip/lamp.ipc", "[General]\ntype=fake.blinker\n[Config]\nLamps=7\n");
        QCOMPARE(page->findChild<QTabWidget *>(QStringLiteral("resultTabs"))->count(), 2);
        QVERIFY(page->findChildren<MapView *>().isEmpty());
        QCOMPARE(page->files().first(), m_ipc);
    }

    void saysThatTheConfigurationHasChangedSinceTheRun()
    {
        ResultPage *page = openResults("ip/sensor.ipc", sensorNode(), sensorNode() + "\n");
        const auto about = page->findChildren<QLabel *>(QStringLiteral("mapAbout"));
        QCOMPARE(about.size(), 2);
        for (const QLabel *label : about)
            QVERIFY2(label->text().contains(QLatin1String("changed since")),
                     qPrintable(label->text()));
    }

    void tellsWhyThereAreNoMaps()
    {
        ResultPage *page = openResults("ip/sensor.ipc", "[General]\ntype=tarvo.tarvo_orix_m1\n"
                                                        "version=1.0\ntarget_device=TV9-12\n");
        QVERIFY(page->findChildren<MapView *>().isEmpty());
        QStringList messages;
        for (int i = 0; i < m_bench->window->messages()->rowCount(); ++i)
            messages.append(m_bench->window->messages()->index(i, 0).data().toString());
        QVERIFY2(messages.join(u'\n').contains(QLatin1String("TV9-12")),
                 qPrintable(messages.join(u'\n')));
    }

private:
    static QByteArray sensorNode()
    {
        return contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc"));
    }

    // The results of a run that has left this configuration, which may be another one now.
    ResultPage *openResults(const char *name, const QByteArray &ipc, const QByteArray &now = {})
    {
        m_bench = std::make_unique<Bench>("blinker");
        const QString project = m_bench->makeProject();
        m_ipc = QFileInfo(project).path() + u'/' + QLatin1String(name);
        QDir().mkpath(QFileInfo(m_ipc).path());
        write(m_ipc, ipc);
        Synthesis::RunReport report;
        report.summary = QStringLiteral("All is made.");
        QString error;
        const RunStore store(m_bench->folder() + QStringLiteral("/runs"));
        if (!store.keep(project, KeptRun::of(report, {m_ipc}), &error))
            qFatal("%s", qPrintable(error));
        if (!now.isEmpty())
            write(m_ipc, now);
        m_bench->window->setRunStore(store);
        m_bench->window->openProject(project);
        m_bench->action("Results of the Last Run")->trigger();
        return m_bench->window->results();
    }

    const QPalette m_palette = QApplication::palette();
    std::unique_ptr<Bench> m_bench;
    QString m_ipc;
};

TARVO_TEST_MAIN(QApplication, TestMapViews)
#include "tst_mapviews.moc"
