// Saves pictures of the workbench at work: workbenchpictures FOLDER [all] [dark] [large]. Without
// "all" those that the documents show; with "large" in 16 points on a small screen.
// workbenchpictures FOLDER [--language=en,de,zh_CN] [--scheme=light,dark] [--scale=1,2]
// [--screen=1366x768,1600x1000] saves all of them, in a folder for each combination, on screens of
// its own (Xvfb), and tells what a window cuts off there.

#include <dialogdriver.h>
#include <testsupport.h>
#include <windowwalk.h>

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/companion/companion.h>
#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/editortabs.h>
#include <workbench/editor/findbar.h>
#include <workbench/kept/keptconfigurations.h>
#include <workbench/language/languages.h>
#include <workbench/messages/messagemodel.h>
#include <workbench/project/projectmodel.h>
#include <workbench/results/mapview.h>
#include <workbench/results/resultpage.h>
#include <workbench/simulation/pinpanel.h>
#include <workbench/simulation/pinswitch.h>
#include <workbench/simulation/simulationpage.h>
#include <workbench/simulation/simulationrun.h>
#include <workbench/software/softwaremodel.h>
#include <workbench/software/softwarepage.h>
#include <workbench/widgets/programstyle.h>
#include <workbench/window/helpwindow.h>
#include <workbench/window/mainwindow.h>

#include <dev/devicedb.h>
#include <ipcore/ipcore.h>
#include <ipcore/screenfit.h>
#include <ipcore/synthesismonitor.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QGraphicsView>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

#include <cstdio>
#include <sys/resource.h>

using namespace Workbench;
using namespace TestSupport;

namespace
{

QDir folder;
bool all = false;
bool onScreen = false; // of its own
bool failed = false;
QStringList namesOfActions; // in English

// What can be told without looking: it does not fit, or it is cut.
void tellFaults(QWidget *window, const QByteArray &name)
{
    const QSize room = window->screen()->availableSize();
    QStringList faults = cutTexts(window) + sidewaysPages(window) + sidewaysViews(window) +
                         misplaced(window) + stuckButtons(window);
    const QSize size = window->size();
    const QSize most = window->windowType() == Qt::Popup ? room : IPCore::roomOnScreen(window);
    const bool isMain = qobject_cast<MainWindow *>(window);
    if (!isMain && (size.width() > most.width() || size.height() > most.height()))
        faults.append(QStringLiteral("%1x%2 on %3x%4")
                          .arg(size.width())
                          .arg(size.height())
                          .arg(room.width())
                          .arg(room.height()));
    if (isMain && (size.width() > room.width() || size.height() > room.height()))
        faults.append(QStringLiteral("at least %1x%2").arg(size.width()).arg(size.height()));
    const auto views = window->findChildren<QAbstractItemView *>();
    for (const QAbstractItemView *view : views) {
        if (view->isVisible() && view->horizontalScrollBar()->maximum() > 0)
            faults.append(
                QStringLiteral("%1 scrolls sideways: %2 of %3")
                    .arg(nameOf(view))
                    .arg(view->viewport()->width())
                    .arg(view->viewport()->width() + view->horizontalScrollBar()->maximum()));
        if (view->isVisible() && view->window() == window &&
            !qobject_cast<const QHeaderView *>(view) &&
            view->viewport()->height() < 2 * view->fontMetrics().height())
            faults.append(QStringLiteral("%1 shows no two lines").arg(nameOf(view)));
    }
    for (const QString &fault : qAsConst(faults))
        std::printf("%s/%s: %s\n", qPrintable(folder.dirName()), name.constData(),
                    qPrintable(fault));
    std::fflush(stdout);
}

// As large as a window gets below a title bar.
QSize mostOnScreen()
{
    return QApplication::primaryScreen()->availableSize() - QSize(0, 28);
}

void save(QWidget *window, const QByteArray &name, bool inDocuments)
{
    if (!all && !inDocuments)
        return;
    if (onScreen && qobject_cast<MainWindow *>(window))
        window->resize(mostOnScreen()); // it may have needed more for a while
    if (onScreen && !window->isActiveWindow() && window->windowType() != Qt::Popup) {
        window->activateWindow();
        (void)QTest::qWaitFor([window] { return window->isActiveWindow(); }, 500);
    }
    QTest::qWait(50); // paints, and what is queued
    if (onScreen)
        tellFaults(window, name);
    const QString path = folder.filePath(QString::fromLatin1(name) + QLatin1String(".png"));
    if (window->grab().save(path))
        return;
    std::fprintf(stderr, "%s cannot be written\n", qPrintable(path));
    failed = true;
}

// Milliseconds that processes which were started from here and have ended were computing.
qint64 computedByTools()
{
    rusage used = {};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto milliseconds = [](const timeval &time) {
        return qint64(time.tv_sec) * 1000 + time.tv_usec / 1000;
    };
    return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

QList<QAction *> actionsOf(const MainWindow &window)
{
    return window.findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
}

// By its English name.
QAction *action(const MainWindow &window, const char *text)
{
    const int index = namesOfActions.indexOf(QLatin1String(text));
    if (index < 0)
        qFatal("there is no action \"%s\"", text);
    return actionsOf(window).at(index);
}

void learnActions(const MainWindow &window)
{
    for (const QAction *known : actionsOf(window)) {
        QString name = known->text();
        name.remove(u'&');
        name.remove(QChar(0x2026));
        namesOfActions.append(name);
    }
}

void useDarkPalette()
{
    QPalette palette;
    const QColor window(45, 45, 48);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(70, 70, 50));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Light, QColor(70, 70, 74));
    palette.setColor(QPalette::Midlight, QColor(58, 58, 61));
    palette.setColor(QPalette::Mid, QColor(36, 36, 38));
    palette.setColor(QPalette::Dark, QColor(28, 28, 30));
    palette.setColor(QPalette::Shadow, QColor(10, 10, 10));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    QApplication::setPalette(palette);
}

// Saves the dialog that the call opens, and closes it.
void saveDialog(const std::function<void()> &call, const QByteArray &name,
                const std::function<void(QWidget *)> &prepare = {})
{
    const ModalWatcher watcher([&](QWidget *modal) {
        if (prepare)
            prepare(modal);
        save(modal, name, false);
        qobject_cast<QDialog *>(modal)->reject();
    });
    call();
}

void savePicturesOfSettings(MainWindow &window)
{
    for (int page = 0; page < 3; ++page) {
        const QByteArray name = "workbench-settings" + QByteArray::number(page);
        saveDialog([&] { action(window, "Settings")->trigger(); }, name.constData(),
                   [page](QWidget *dialog) {
                       dialog->findChild<QTabWidget *>()->setCurrentIndex(page);
                       if (auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("tools/vvp")))
                           edit->setText(QStringLiteral("/opt/none/vvp"));
                   });
    }
}

// In a file, which is closed again, and in the guide.
void savePicturesOfSearches(MainWindow &window)
{
    const QString file = window.project()->path() + QStringLiteral("/blink.v");
    write(file, "module blink (input clk, output led);\n  reg [23:0] count;\n"
                "  always @(posedge clk)\n    count <= count + 1;\n  assign led = count[23];\n"
                "endmodule\n");
    window.openPath(file);
    EditorPage *page = window.tabs()->currentPage();
    page->startEditing();
    page->findBar()->startReplacing();
    const auto type = [page](const char *field, const char *text) {
        auto *edit = page->findBar()->findChild<QLineEdit *>(QLatin1String(field));
        edit->setText(QLatin1String(text));
        Q_EMIT edit->textEdited(edit->text());
    };
    type("findEdit", "count");
    type("replaceEdit", "ticks");
    page->findBar()->findNext();
    save(&window, "workbench-replace", false);
    page->findBar()->findChild<QAbstractButton *>(QStringLiteral("expressionBox"))->click();
    type("findEdit", "count[");
    save(&window, "workbench-replace-wrong", false);
    window.tabs()->closeAll();
    window.showGuide();
    window.help()
        ->findChild<QLineEdit *>(QStringLiteral("helpFindEdit"))
        ->setText(QStringLiteral("memory map"));
    save(window.help(), "workbench-guide-contents", false);
    window.help()->findChild<QTabWidget *>(QStringLiteral("helpSide"))->setCurrentIndex(1);
    save(window.help(), "workbench-guide-search", false);
    window.help()->close();
}

// What stands beside the dialog of an IP, after a step that was taken back and one that was not.
void savePicturesOfCompanion(MainWindow &window, const QString &ipc)
{
    const ModalWatcher watcher([](QWidget *modal) {
        auto *companion = modal->findChild<Companion *>();
        auto *view = modal->findChild<QGraphicsView *>();
        if (!companion || !view)
            return;
        view->setFocus(Qt::BacktabFocusReason); // to the last block
        for (int i = 0; i < 2; ++i) {
            QTest::keyClick(view, Qt::Key_Backtab);
            QTest::keyClick(view, Qt::Key_Space);
        }
        QMetaObject::invokeMethod(modal, "goToStep", Q_ARG(int, 1));
        QMetaObject::invokeMethod(modal, "pointAt", Q_ARG(QString, QStringLiteral("GPIO")));
        const char *const names[] = {"workbench-meter", "workbench-steps", "workbench-preview"};
        for (int i = 0; i < companion->tabs()->count() && i < int(std::size(names)); ++i) {
            companion->tabs()->setCurrentIndex(i);
            QTest::qWait(1000); // it waits for a pause itself
            save(companion, names[i], i != 1);
        }
        save(modal, "workbench-ipdialog", false);
        qobject_cast<QDialog *>(modal)->reject();
    });
    window.openPath(ipc);
}

// The maps of the result page, with the focus on a place, and what stands behind one.
void savePicturesOfMaps(MainWindow &window)
{
    if (!all)
        return;
    auto *tabs = window.results()->findChild<QTabWidget *>(QStringLiteral("resultTabs"));
    for (const char *name : {"workbench-memorymap", "workbench-interruptmap"}) {
        tabs->setCurrentIndex(tabs->currentIndex() < 2 ? 2 : 3);
        QAbstractButton *door = tabs->currentWidget()->findChild<MapView *>()->doors().value(3);
        door->setFocus();
        save(&window, name, false);
        if (tabs->currentIndex() == tabs->count() - 1)
            door->click();
    }
    save(&window, "workbench-door", false);
    action(window, "Results of the Last Run")->trigger();
    tabs->setCurrentIndex(0);
}

// What keeps the user from losing something or being misled.
void savePicturesOfCare(MainWindow &window)
{
    const QString bytes = window.project()->path() + QStringLiteral("/bytes.v");
    write(bytes, "module bytes; // UTF-8: \xC3\xA4 \xE2\x82\xAC\n"
                 "wire\xC2\xA0x; // a no-break space\n"
                 "// ends with CRLF\r\n"
                 "// a byte: \xFF, a control character: \x1B, CR: \r\n"
                 "// U+2028: \xE2\x80\xA8, reordering: \xE2\x80\xAE, soft hyphen: \xC2\xAD\n"
                 "endmodule\n");
    window.openPath(bytes);
    save(&window, "workbench-bytes", false);

    QString error;
    const QString lamp = window.project()->path() + QStringLiteral("/lamp/lamp.ipc");
    const QByteArray before = "[General]\ntype=fake.blinker\n"
                              "target_device=TV5K-138B-PBGA484-C1/I0\n[Config]\nLamps=99\n";
    write(lamp, before);
    window.kept()->keep(KeptConfigurations::Replaced, lamp, before + "[x]\n", &error);
    window.kept()->keep(KeptConfigurations::Dropped, lamp, before + "[y]\n", &error);
    window.tabs()->closeAll();
    window.openProject(window.project()->file());
    save(&window, "workbench-drift", false);
    saveDialog([&] { action(window, "Bring Back a Configuration")->trigger(); }, "workbench-kept");
    saveDialog([&] { window.bringBack(window.kept()->items().last().id); }, "workbench-bringback");
    const DEV::DeviceArg other =
        DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV5K-138C-PBGA484-C1/I0"));
    saveDialog([&] { window.moveIp(lamp, other); }, "workbench-move");
    write(lamp, "[General]\ntype=fake.blinker\ntarget_device=TV9-12-QFN48-C5\n");
    saveDialog([&] { window.openIp(lamp); }, "workbench-unknowndevice");
    QFile::remove(lamp);
    for (const KeptConfigurations::Item &item : window.kept()->items())
        window.kept()->forget(item.id);
}

// A program on the example; on the way what a run looks like.
void savePicturesOfSimulation(MainWindow &window, const QString &ipc)
{
    const QString program = window.project()->path() + QStringLiteral("/firmware/hello.c");
    write(program, contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/firmware/hello.c")));
    SimulationPage *page = window.showSimulation(ipc);
    page->choose(QStringLiteral("c"), {program});
    save(&window, "workbench-simulation-before", false);
    const auto pins = page->pins()->pins();
    if (pins.size() > 4)
        pins.at(4)->click();
    if (!page->run())
        std::fprintf(stderr, "nothing is simulated\n");
    save(&window, "workbench-simulation-running", false);
    if (!QTest::qWaitFor([page] { return !page->process(); }, 120000))
        failed = true;
    save(&window, "workbench-simulation", true);
    saveDialog([&] { window.openExample(0, 0); }, "workbench-example");
}

// What a menu shows, where there is room for it.
void saveMenu(QMenu *menu, const QByteArray &name)
{
    Q_EMIT menu->aboutToShow();
    menu->popup({});
    save(menu, name, false);
    menu->close();
}

// The menu that the place of a view brings up; `by` stands for the mouse.
void saveContextMenu(QWidget *view, const QPoint &place, const QByteArray &name)
{
    QTimer look;
    int tries = 0;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
            look.stop();
            save(menu, name, false);
            menu->close();
        } else if (++tries > 20) {
            look.stop();
            std::fprintf(stderr, "%s: no menu\n", name.constData());
            failed = true;
        }
    });
    look.start(20);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->mapToGlobal(place));
    QApplication::sendEvent(view, &event);
    while (look.isActive())
        QTest::qWait(10);
}

void saveContextMenuOf(const MainWindow &window, const char *viewName, const QByteArray &name)
{
    auto *view = window.findChild<QAbstractItemView *>(QLatin1String(viewName));
    if (!view->currentIndex().isValid())
        view->setCurrentIndex(view->model()->index(0, 0));
    saveContextMenu(view->viewport(), view->visualRect(view->currentIndex()).center(), name);
}

void savePicturesOfMenus(MainWindow &window)
{
    int number = 0;
    const auto entries = window.menuBar()->actions();
    for (const QAction *entry : entries)
        saveMenu(entry->menu(), "menu" + QByteArray::number(number++));
    saveContextMenuOf(window, "projectTree", "context-project");
    saveContextMenuOf(window, "catalogueTree", "context-catalogue");
    QTabBar *bar = window.tabs()->tabBar();
    saveContextMenu(bar, bar->tabRect(window.tabs()->currentIndex()).center(), "context-tab");
    if (EditorPage *page = window.tabs()->currentPage())
        saveContextMenu(page->editor()->viewport(), {40, 40}, "context-editor");
}

// Each tab of the results, and the dialogs that ask for a file's name.
void savePicturesOfResults(MainWindow &window)
{
    action(window, "Results of the Last Run")->trigger();
    auto *tabs = window.results()->findChild<QTabWidget *>(QStringLiteral("resultTabs"));
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        save(&window, "results" + QByteArray::number(tab), false);
    }
    tabs->setCurrentIndex(0);
    auto *tree = window.findChild<QTreeView *>(QStringLiteral("projectTree"));
    tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0))); // the IP
    saveDialog([&] { action(window, "Block Diagram")->trigger(); }, "export-diagram");
    saveDialog([&] { action(window, "Resources")->trigger(); }, "export-resources");
}

void savePicturesOfQuestions(MainWindow &window)
{
    const QString file = window.project()->path() + QStringLiteral("/a_changed_source.v");
    write(file, "module a_changed_source;\nendmodule\n");
    window.openPath(file);
    saveDialog([&] { action(window, "Go to Line")->trigger(); }, "go-to-line");
    saveDialog([&] { action(window, "Top Module")->trigger(); }, "top-module");
    saveDialog([&] { window.newSubsystem(0); }, "new-subsystem");
    saveDialog([&] { window.open(); }, "open");
    EditorPage *page = window.tabs()->currentPage();
    page->startEditing();
    QTest::keyClicks(page->editor(), QStringLiteral("// changed"));
    saveDialog([&] { window.tabs()->closeAll(); }, "unsaved");
    boxesOf([&] { window.tabs()->closeAll(); }, QMessageBox::Discard);
}

// The parts that the keys of a value or the commas of a list name; `standard` without.
QStringList chosen(QStringList *arguments, const char *option, const char *standard)
{
    const QString start = QLatin1String(option) + u'=';
    QString value = QLatin1String(standard);
    for (int i = 0; i < arguments->size(); ++i) {
        if (arguments->at(i).startsWith(start))
            value = arguments->takeAt(i--).mid(start.size());
    }
    return value.split(u',', Qt::SkipEmptyParts);
}

// Runs this program once for each screen and scale, on a display of that size.
int saveOnScreens(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QStringList screens = chosen(&arguments, "--screen", "1366x768,1600x1000");
    const QStringList scales = chosen(&arguments, "--scale", "1,2");
    bool isDone = true;
    for (const QString &screen : screens) {
        QProcess display;
        display.setStandardErrorFile(QProcess::nullDevice());
        display.start(QStringLiteral("Xvfb"),
                      {QStringLiteral("-displayfd"), QStringLiteral("1"),
                       QStringLiteral("-noreset"), QStringLiteral("-screen"), QStringLiteral("0"),
                       screen + QStringLiteral("x24"), QStringLiteral("-nolisten"),
                       QStringLiteral("tcp")});
        while (!display.canReadLine()) {
            if (!display.waitForReadyRead())
                qFatal("Xvfb does not start: %s", qPrintable(display.errorString()));
        }
        const QString number = QString::fromLatin1(display.readLine()).trimmed();
        for (const QString &scale : scales) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("DISPLAY"), u':' + number);
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
            environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
            QProcess run;
            run.setProcessEnvironment(environment);
            run.setProcessChannelMode(QProcess::ForwardedChannels);
            run.start(QCoreApplication::applicationFilePath(),
                      arguments + QStringList{QStringLiteral("--on=%1@%2").arg(screen, scale)});
            run.waitForFinished(-1);
            isDone = isDone && run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0;
        }
        display.terminate();
        display.waitForFinished();
    }
    return isDone ? 0 : 1;
}

// Makes the project that is not there yet.
QString projectIn(const QString &home)
{
    const QString path = home + QStringLiteral("/sensor-node");
    const QString file = path + QStringLiteral("/sensor-node.tvproj");
    if (QFileInfo::exists(file))
        return file;
    QString error;
    const auto project = Project::create(
        path, QStringLiteral("sensor-node"),
        DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7")), &error);
    return project ? project->file() : QString();
}

// Generates the example, and shows its results.
void savePicturesOfRun(MainWindow &window, const QString &ipc)
{
    Synthesis::RunReport done;
    QObject::connect(&IPCore::SynthesisMonitor::instance(), &IPCore::SynthesisMonitor::runFinished,
                     &window, [&done](const Synthesis::RunReport &report) { done = report; });
    const qint64 before = computedByTools();
    write(ipc, contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc")));
    {
        const ModalWatcher watcher([](QWidget *modal) {
            if (modal->findChild<QGraphicsView *>())
                QTimer::singleShot(0, modal, [modal] {
                    modal->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
                });
            else if (modal->findChild<QWidget *>(QStringLiteral("stageLabel")))
                save(modal, "workbench-progress", false);
        });
        window.openPath(ipc);
    }
    // What the tool has computed is what it takes on a machine that does nothing else.
    const QStringList results = window.results()->files();
    done.milliseconds = computedByTools() - before;
    window.results()->setReport(done);
    window.results()->setDelivered(results);
    save(&window, "workbench-results", true);
}

// All that one window shows. The project stays in the folder `home` for the next.
void savePictures(IpCatalogue &catalogue, QSettings &settings, const QString &home,
                  const QSize &size)
{
    MainWindow window(catalogue, settings);
    window.setRunStore(RunStore(home + QStringLiteral("/runs")));
    window.resize(size);
    window.show();
    save(&window, "workbench-start", false);

    const auto fillProject = [](QWidget *dialog) {
        dialog->findChild<QLineEdit *>(QStringLiteral("nameEdit"))
            ->setText(QStringLiteral("sensor-node"));
        auto *filter = dialog->findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
        filter->setText(QStringLiteral("tv2kr qfn88p"));
        QTest::keyClick(filter, Qt::Key_Down);
    };
    saveDialog([&] { window.newProject(); }, "workbench-newproject", fillProject);

    const QString projectFile = projectIn(home);
    window.openProject(projectFile);
    save(&window, "workbench-project", false);
    saveDialog([&] { action(window, "Device")->trigger(); }, "workbench-device");
    saveDialog([&] { action(window, "Plug-ins")->trigger(); }, "workbench-plugins");
    saveDialog([&] { action(window, "About Tarvo Workbench")->trigger(); }, "workbench-about");
    savePicturesOfSettings(window);
    if (all)
        savePicturesOfSearches(window);

    const QString ipFolder = window.project()->path() + QStringLiteral("/tarvo_orix_m1");
    const QString ipc = ipFolder + QStringLiteral("/tarvo_orix_m1.ipc");
    if (QFile::exists(ipc)) { // from a window before this one
        action(window, "Results of the Last Run")->trigger();
        save(&window, "workbench-oldresults", false);
    } else {
        savePicturesOfRun(window, ipc);
    }
    savePicturesOfMaps(window);

    if (onScreen)
        savePicturesOfResults(window);

    savePicturesOfCompanion(window, ipc);

    window.openPath(ipFolder + QStringLiteral("/tarvo_orix_m1_tmp.v"));
    window.tabs()->currentPage()->goToLine(12);
    save(&window, "workbench-editor", true);
    window.tabs()->currentPage()->findBar()->start();
    QTest::keyClick(window.tabs()->currentPage()->editor(), Qt::Key_X);
    save(&window, "workbench-bars", false);
    window.openPath(ipc, 1);
    save(&window, "workbench-ipc", false);
    window.openPath(projectFile, 1);
    save(&window, "workbench-json", false);

    SoftwarePage *software = window.showSoftware(ipc);
    if (const auto &files = software->model()->files(); !files.isEmpty())
        software->select(files.first().path);
    save(&window, "workbench-software", true);
    for (const SoftwareFile &file : software->model()->files()) {
        if (!SoftwareSet::isDocument(file))
            continue;
        software->select(file.path);
        save(&window, "workbench-datasheet", false);
    }

    software->showProgram();
    save(&window, "workbench-program", false);

    savePicturesOfSimulation(window, ipc);

    if (onScreen) {
        savePicturesOfQuestions(window);
        window.openPath(ipFolder + QStringLiteral("/tarvo_orix_m1_tmp.v"));
        savePicturesOfMenus(window);
    }
    if (all)
        savePicturesOfCare(window);

    Synthesis::RunReport report;
    report.exitCode = 1;
    report.summary = QStringLiteral("The synthesis tool found 1 error.");
    report.job.targetName = QStringLiteral("tarvo_orix_m1");
    Synthesis::Message mistake;
    mistake.file = ipFolder + QStringLiteral("/tarvo_orix_m1_tmp.v");
    mistake.line = 3;
    mistake.text = QStringLiteral("syntax error, unexpected TOK_ID");
    Synthesis::Message warning = mistake;
    warning.severity = Synthesis::Message::Warning;
    warning.text = QStringLiteral("the wire is used but has no driver");
    warning.count = 4;
    report.messages = {mistake, warning};
    window.closeProject();
    window.openProject(projectFile);
    window.messages()->setReport(report);
    window.findChild<QDockWidget *>(QStringLiteral("outputDock"))->show();
    save(&window, "workbench-messages", false);
    action(window, "Results of the Last Run")->trigger();
    save(&window, "workbench-oldresults", false);
    saveDialog([&] { IPCore::showErrorMsgs(report.summary, {mistake.toString()}); },
               "workbench-error");
    window.showGuide();
    save(window.help(), "workbench-guide", false);
    window.help()->close();
    window.closeProject();
    save(&window, "workbench-recent", false);
    if (onScreen)
        return;
    window.resize(800, 560);
    save(&window, "workbench-small", false);
}

// As the program loads it, in the language of its texts.
void load(IpCatalogue &catalogue)
{
    catalogue.setDataFolders({QStringLiteral(TARVO_SHARE_FOLDER)});
    catalogue.loadFolder(QStringLiteral(TARVO_PLUGIN_FOLDER), true);
    if (all) {
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/moving"), false);
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/crashing-starting"), false);
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/missingsymbol"), false);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    TestSupport::useUtf8();
    const auto given = [&](const char *option) {
        return std::any_of(argv + 1, argv + argc, [option](const char *argument) {
            return qstrncmp(argument, option, qstrlen(option)) == 0;
        });
    };
    onScreen = given("--on=");
    if (!onScreen && given("--"))
        return saveOnScreens(argc, argv);

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const QStringList languages = chosen(&arguments, "--language", onScreen ? "en,de,zh_CN" : "en");
    const QStringList schemes = chosen(&arguments, "--scheme", onScreen ? "light,dark" : "light");
    const QString on = chosen(&arguments, "--on", "").value(0);
    all = arguments.removeAll(QStringLiteral("all")) > 0 || onScreen;
    QSize size(1280, 800);
    if (arguments.removeAll(QStringLiteral("large")) > 0) {
        QFont font = QApplication::font();
        font.setPointSize(16);
        QApplication::setFont(font);
        size = QSize(1366, 698);
    }
    if (onScreen)
        size = mostOnScreen();
    if (arguments.removeAll(QStringLiteral("dark")) > 0)
        useDarkPalette();
    const QDir top(arguments.value(0));

    const QTemporaryDir temporary;
    const QString home = QFileInfo(temporary.path()).canonicalFilePath();
    if (onScreen)
        QApplication::setStyle(new ProgramStyle);
    {
        QSettings settings(home + QStringLiteral("/english.ini"), QSettings::IniFormat);
        IpCatalogue catalogue;
        learnActions(MainWindow(catalogue, settings));
    }
    const QPalette light = QApplication::palette();
    for (const QString &language : languages) {
        const Languages texts(language);
        IpCatalogue catalogue;
        load(catalogue);
        for (const QString &scheme : schemes) {
            folder = top;
            if (onScreen) {
                if (scheme == QLatin1String("dark"))
                    useDarkPalette();
                else
                    QApplication::setPalette(light);
                folder = QDir(top.filePath(language + u'-' + scheme + u'-' + on));
                folder.mkpath(QStringLiteral("."));
            }
            const QString file = home + u'/' + language + scheme + QStringLiteral(".ini");
            QSettings settings(file, QSettings::IniFormat);
            settings.setValue(QStringLiteral("companion/measure"), false); // no run nobody sees
            settings.setValue(QStringLiteral("projectLocation"), QStringLiteral("/home/me"));
            savePictures(catalogue, settings, home, size);
        }
    }
    return failed ? 1 : 0;
}
