#include "hands.h"

#include <workbench/catalogue/answers.h>
#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/project/projectmodel.h>
#include <workbench/project/projectpane.h>
#include <workbench/session/sessionstore.h>
#include <workbench/simulation/simulationpage.h>
#include <workbench/software/softwarepage.h>
#include <workbench/widgets/infobar.h>
#include <workbench/window/newprojectdialog.h>
#include <workbench/window/sessionkeeper.h>
#include <workbench/window/startpage.h>

#include <QClipboard>
#include <QCommandLinkButton>
#include <QDesktopServices>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QScrollBar>
#include <QTabBar>
#include <QToolBar>
#include <QTreeView>

using namespace Workbench;
using namespace TestSupport;

namespace
{

// Everything about the tabs that a person would miss.
QStringList shown(const MainWindow *window)
{
    QStringList lines;
    const EditorTabs *tabs = window->tabs();
    for (int i = 0; i < tabs->count(); ++i) {
        QString line = tabs->tabText(i) + u' ' + tabs->pathOf(i);
        if (const auto *page = qobject_cast<const EditorPage *>(tabs->widget(i))) {
            const EditorPage::Place place = page->place();
            line += QStringLiteral(" %1:%2 %3+%4")
                        .arg(place.line)
                        .arg(place.column)
                        .arg(place.top)
                        .arg(place.left);
        }
        lines.append(line + (i == tabs->currentIndex() ? QLatin1String(" <") : QLatin1String()));
    }
    return lines;
}

// What a context menu offers when it comes up; chooses an entry of it.
QStringList entriesOfMenu(const std::function<void()> &open, const QString &chosen = {})
{
    QStringList entries;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        watch.stop();
        QAction *found = nullptr;
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (action->isSeparator())
                continue;
            QString text = action->text();
            text.remove(u'&');
            entries.append(action->isEnabled() ? text : QString(u'(' + text + u')'));
            if (text == chosen)
                found = action;
        }
        if (found)
            menu->setActiveAction(found);
        QTest::keyClick(menu, found ? Qt::Key_Return : Qt::Key_Escape);
    });
    watch.start(0);
    open();
    return entries;
}

} // namespace

// Takes the place of the desktop's file manager.
class Folders : public QObject
{
    Q_OBJECT

public:
    Folders() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Folders() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toLocalFile()); }
};

class TestSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<Bench>("taking"); }
    void cleanup() { m_bench.reset(); }

    // What comes back

    void whateverWasOpenComesBackAsItWas_data()
    {
        QTest::addColumn<int>("seed");
        QTest::addColumn<bool>("isKilled");
        QTest::addColumn<bool>("hasProject");
        for (int seed = 1; seed <= 6; ++seed)
            QTest::addRow("sequence %d", seed) << seed << (seed % 2 == 0) << (seed % 4 != 3);
    }
    void whateverWasOpenComesBackAsItWas()
    {
        QFETCH(int, seed);
        QFETCH(bool, isKilled);
        QFETCH(bool, hasProject);
        QRandomGenerator random{quint32(seed)};
        const auto below = [&random](int limit) { return int(random.bounded(limit)); };
        const QStringList files = makeFiles(7);
        const QString ipc = m_bench->folder() + QStringLiteral("/board/lamp.ipc");
        const QString project = m_bench->makeProject();
        write(ipc, "[General]\ntype=fake.blinker\n");
        if (hasProject)
            window()->openProject(project);
        for (int restart = 0; restart < 2; ++restart) {
            for (int step = 0; step < 12; ++step) {
                EditorTabs *tabs = window()->tabs();
                const int tab = tabs->count() > 0 ? below(tabs->count()) : -1;
                switch (below(8)) {
                case 0:
                case 1:
                case 2:
                    QVERIFY(window()->openPath(files.at(below(files.size()))));
                    break;
                case 3:
                    if (tab >= 0)
                        QVERIFY(tabs->closeTab(tab));
                    break;
                case 4:
                    if (tab >= 0)
                        tabs->tabBar()->moveTab(tab, below(tabs->count()));
                    break;
                case 5:
                    if (tab >= 0)
                        tabs->setCurrentIndex(tab);
                    break;
                case 6:
                    if (below(2) == 0)
                        window()->showSoftware(ipc);
                    else
                        window()->showSimulation(ipc);
                    break;
                case 7:
                    if (EditorPage *page = tabs->currentPage()) {
                        page->goToLine(1 + below(400));
                        for (int i = below(9); i > 0; --i)
                            page->editor()->moveCursor(QTextCursor::Right);
                        if (below(2) == 0) // away from the cursor
                            page->editor()->verticalScrollBar()->setValue(below(300));
                    }
                    break;
                }
            }
            const QStringList before = shown(window());
            if (isKilled) {
                // As it is some time after the last change, without any farewell.
                const QString file = hasProject ? project : QString();
                const SessionRecord now = recordOf(window());
                QTRY_COMPARE(SessionStore(m_bench->settings).record(file).toText(), now.toText());
            } else {
                QVERIFY(window()->close());
            }
            m_bench->reopen();
            window()->restoreSession();
            QCOMPARE(window()->project() != nullptr, hasProject);
            QCOMPARE(shown(window()), before);
            QCoreApplication::processEvents();
            QCOMPARE(shown(window()), before);
            QVERIFY(window()->infoBar()->isHidden());
        }
    }

    void eachProjectHasTabsOfItsOwn()
    {
        const QStringList files = makeFiles(3);
        const QString first = m_bench->makeProject();
        const QString second = otherProject();
        window()->openProject(first);
        window()->openPath(files.at(0));
        window()->openPath(files.at(1));
        const QStringList before = shown(window());
        window()->openProject(second);
        QVERIFY(shown(window()).isEmpty());
        window()->openPath(files.at(2));
        const QStringList other = shown(window());
        window()->openProject(first);
        QCOMPARE(shown(window()), before);
        window()->openProject(second);
        QCOMPARE(shown(window()), other);
    }

    void aClosedProjectStaysClosed()
    {
        window()->openProject(m_bench->makeProject());
        window()->closeProject();
        window()->close();
        m_bench->reopen();
        window()->restoreSession();
        QVERIFY(!window()->project());
    }

    void anEmptyWindowDoesNotForgetWhatAnotherHadOpen()
    {
        const QString project = m_bench->makeProject();
        window()->openProject(project);
        QSettings settings(m_bench->settings.fileName(), QSettings::IniFormat);
        auto second = std::make_unique<MainWindow>(m_bench->catalogue, settings);
        second->show();
        QVERIFY(window()->close());
        QVERIFY(second->close());
        second.reset();
        m_bench->reopen();
        window()->restoreSession();
        QVERIFY(window()->project());
        QCOMPARE(window()->project()->file(), project);
    }

    void twoWindowsLoseNothingOfEachOther()
    {
        const QStringList files = makeFiles(4);
        const QString first = m_bench->makeProject();
        const QString second = otherProject();
        QSettings settings(m_bench->settings.fileName(), QSettings::IniFormat);
        auto other = std::make_unique<MainWindow>(m_bench->catalogue, settings);
        other->show();
        window()->openProject(first);
        other->openProject(second);
        for (int i = 0; i < 4; ++i) {
            (i % 2 == 0 ? window() : other.get())->openPath(files.at(i));
            window()->session()->save();
            other->session()->save();
        }
        const QStringList before = shown(window());
        const QStringList beforeOther = shown(other.get());
        other.reset();
        m_bench->reopen();
        window()->openProject(second);
        QCOMPARE(shown(window()), beforeOther);
        window()->openProject(first);
        QCOMPARE(shown(window()), before);
    }

    void filesThatAreGoneAreToldOnce()
    {
        const QStringList files = makeFiles(3);
        window()->openProject(m_bench->makeProject());
        for (const QString &file : files)
            window()->openPath(file);
        window()->close();
        QFile::remove(files.at(0));
        QFile::remove(files.at(2));
        m_bench->reopen();
        window()->restoreSession();
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("f1.v")));
        const QString told = window()->infoBar()->text();
        QVERIFY(!window()->infoBar()->isHidden());
        QVERIFY2(told.contains(files.at(0)) && told.contains(files.at(2)), qPrintable(told));
        window()->close();
        m_bench->reopen();
        window()->restoreSession();
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("f1.v")));
        QVERIFY(window()->infoBar()->isHidden());
    }

    void aProjectThatCannotBeOpenedIsToldOnceAboveTheStartPage_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("gone") << QByteArray();
        QTest::newRow("broken") << QByteArray("{\n nothing");
        QTest::newRow("of a newer version") << QByteArray("{\"format\": 99}");
    }
    void aProjectThatCannotBeOpenedIsToldOnceAboveTheStartPage()
    {
        QFETCH(QByteArray, text);
        const QString project = m_bench->makeProject();
        window()->openProject(project);
        window()->close();
        if (text.isEmpty())
            QVERIFY(QFile::remove(project));
        else
            write(project, text);
        m_bench->reopen();
        const auto boxes = boxesOf([this] { window()->restoreSession(); });
        QCOMPARE(boxes.size(), 0);
        QVERIFY(!window()->project());
        QVERIFY(!window()->infoBar()->isHidden());
        QVERIFY2(window()->infoBar()->text().contains(project),
                 qPrintable(window()->infoBar()->text()));
        QVERIFY(window()->findChild<StartPage *>()->isVisible());
        window()->close();
        m_bench->reopen();
        window()->restoreSession();
        QVERIFY(window()->infoBar()->isHidden());
    }

    void startsThatEndWhileTheyOpenThingsAreNotRepeatedForEver()
    {
        const QString project = m_bench->makeProject();
        window()->openProject(project);
        window()->close();
        m_bench->settings.setValue(QStringLiteral("session/attempts"), 2);
        m_bench->reopen();
        window()->restoreSession();
        QVERIFY(!window()->project());
        auto *open = window()->infoBar()->findChild<QPushButton *>();
        QVERIFY(open);
        open->click();
        QVERIFY(window()->project());
        QTRY_COMPARE(m_bench->settings.value(QStringLiteral("session/attempts")).toInt(), 0);
    }

    void aStartBringsNothingBackIfItIsNotWanted()
    {
        window()->openProject(m_bench->makeProject());
        QAction *reopen = m_bench->action("Reopen the Last Project at Start");
        QVERIFY(reopen->isChecked());
        reopen->trigger();
        window()->close();
        m_bench->reopen();
        window()->restoreSession();
        QVERIFY(!window()->project());
        m_bench->settings.setValue(QStringLiteral("session/restore"), true);
        window()->restoreSession();
        QVERIFY(window()->project());
    }

    void nothingOfAFileIsKeptButItsPath()
    {
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "veryprivate\n");
        window()->openPath(file);
        window()->tabs()->currentPage()->startEditing();
        QTest::keyClicks(window()->tabs()->currentPage()->editor(), QStringLiteral("secret"));
        window()->session()->save();
        const QByteArray kept = contentsOf(m_bench->settings.fileName());
        QVERIFY(kept.contains("x.v"));
        QVERIFY(!kept.contains("private") && !kept.contains("secret"));
        boxesOf([this] { window()->close(); }, QMessageBox::Discard);
    }

    void valuesThatMakeNoSenseAreIgnored_data()
    {
        QTest::addColumn<QString>("key");
        for (const char *key : {"session/last", "session/attempts", "session/restore",
                                "session/splitters", "session/windowSum", "session/projects/none",
                                "session/device", "window/geometry", "window/state", "session"})
            QTest::newRow(key) << QString::fromLatin1(key);
    }
    void valuesThatMakeNoSenseAreIgnored()
    {
        QFETCH(QString, key);
        const QVector<QVariant> values = {
            QByteArray("\x00\xff\x80[{", 5),
            QByteArray(70000, '\xff'),
            QStringLiteral("[").repeated(200000),
            QStringLiteral(R"({"format":1,"tabs":7,"current":"x"})"),
            QStringLiteral(R"({"format":1,"tabs":[{"kind":"file","path":"../x"},)"
                           R"({"kind":"file","path":"/dev/zero","line":-5,"top":1e300},)"
                           R"({"kind":"file","path":"/","line":1e9},7],"current":99})"),
            QStringLiteral(R"({"resultSplitter":[1e30,-4],"x":{}})"),
            -2147483647,
            QStringList{QStringLiteral("/a"), QStringLiteral("/b")},
            QStringLiteral("/no/such\n.tvproj")};
        for (const QVariant &value : values) {
            m_bench->window.reset();
            m_bench->settings.setValue(key, value);
            m_bench->settings.sync();
            m_bench->reopen();
            const auto boxes = boxesOf([this] { window()->restoreSession(); });
            QCOMPARE(boxes.size(), 0);
            QVERIFY(!window()->project());
            QCOMPARE(window()->tabs()->count(), 0);
            QVERIFY(window()->isVisible());
            QVERIFY(window()->width() > 300 && window()->height() > 200);
            QVERIFY(onAScreen(window()));
        }
        // And the next one is kept as usual.
        window()->openProject(m_bench->makeProject());
        window()->close();
        m_bench->reopen();
        m_bench->settings.setValue(QStringLiteral("session/restore"), true);
        window()->restoreSession();
        QVERIFY(window()->project());
    }

    void aWindowOfAScreenThatIsGoneComesOntoOneThatThereIs()
    {
        QMainWindow far;
        far.setGeometry(20000, 15000, 700, 500);
        SessionStore store(m_bench->settings);
        m_bench->window.reset();
        store.setWindowState({far.saveGeometry(), {}});
        m_bench->reopen();
        QVERIFY(onAScreen(window()));
    }

    void onlyTheLastProjectsAreKept()
    {
        SessionStore store(m_bench->settings);
        SessionRecord record;
        record.tabs.append({SessionTab::File, QStringLiteral("/a.v")});
        for (int i = 0; i < SessionStore::projectLimit + 10; ++i)
            store.keep(QStringLiteral("/p%1.tvproj").arg(i), record);
        m_bench->settings.beginGroup(QStringLiteral("session/projects"));
        const int kept = m_bench->settings.childKeys().size();
        m_bench->settings.endGroup();
        QVERIFY(kept <= SessionStore::projectLimit);
        QCOMPARE(store.record(QStringLiteral("/p%1.tvproj").arg(SessionStore::projectLimit + 9)),
                 record);
    }

    void aProgramThatWasKilledComesBackAndAProjectThatIsNamedWins()
    {
        const QString first = m_bench->makeProject();
        const QString second = otherProject();
        const QString file = m_bench->folder() + QStringLiteral("/program.ini");
        const auto read = [&](const QString &key) {
            return QSettings(file, QSettings::IniFormat).value(key);
        };
        const auto start = [&](QProcess *program, const QStringList &named) {
            program->start(QStringLiteral(TARVO_WORKBENCH),
                           QStringList{QStringLiteral("--settings"), file} + named);
            return program->waitForStarted();
        };
        const auto kill = [](QProcess *program) {
            program->kill();
            program->waitForFinished();
        };
        const QString last = QStringLiteral("session/last");
        const QString recent = QStringLiteral("recentProjects");
        QProcess program;
        QVERIFY(start(&program, {first}));
        QTRY_COMPARE_WITH_TIMEOUT(read(last).toString(), first, 20000);
        kill(&program);
        QSettings(file, QSettings::IniFormat).remove(recent);
        // By itself it opens that project again.
        QVERIFY(start(&program, {}));
        QTRY_COMPARE_WITH_TIMEOUT(read(recent).toStringList(), QStringList(first), 20000);
        kill(&program);
        QSettings(file, QSettings::IniFormat).remove(recent);
        QVERIFY(start(&program, {second}));
        QTRY_COMPARE_WITH_TIMEOUT(read(last).toString(), second, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(read(recent).toStringList(), QStringList(second), 20000);
        kill(&program);
    }

    // Title and tool bar

    void theTitleTellsFileProjectAndUnsavedChanges()
    {
        const QString file = makeFiles(1).first();
        window()->openPath(file);
        QCOMPARE(window()->windowTitle(), QStringLiteral("f0.v[*] - Tarvo Workbench"));
        window()->openProject(m_bench->makeProject());
        QCOMPARE(window()->windowTitle(), QStringLiteral("board - Tarvo Workbench"));
        window()->openPath(file);
        QCOMPARE(window()->windowTitle(), QStringLiteral("f0.v[*] - board - Tarvo Workbench"));
        QVERIFY(!window()->isWindowModified());
        EditorPage *page = window()->tabs()->currentPage();
        page->startEditing();
        QTest::keyClicks(page->editor(), QStringLiteral("x"));
        QVERIFY(window()->isWindowModified());
        QVERIFY(window()->tabs()->savePage(page));
        QVERIFY(!window()->isWindowModified());
    }

    void theToolBarHidesAndStaysSo()
    {
        auto *bar = window()->findChild<QToolBar *>(QStringLiteral("mainToolBar"));
        QVERIFY(bar->isVisible());
        for (const QAction *action : bar->actions()) {
            QVERIFY(action->isSeparator() || !action->icon().isNull());
            QVERIFY(action->isSeparator() || !action->toolTip().isEmpty());
        }
        const QAction *switching = bar->toggleViewAction();
        const auto menus = window()->findChildren<QMenu *>();
        QVERIFY(std::any_of(menus.begin(), menus.end(), [switching](const QMenu *menu) {
            return menu->actions().contains(const_cast<QAction *>(switching));
        }));
        bar->toggleViewAction()->trigger();
        QVERIFY(!bar->isVisible());
        window()->close();
        m_bench->reopen();
        bar = window()->findChild<QToolBar *>(QStringLiteral("mainToolBar"));
        QVERIFY(bar->isHidden());
        bar->toggleViewAction()->trigger();
        QVERIFY(bar->isVisible());
    }

    // Context menus

    void tabsHaveAMenuByMouseAndKeys_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("mouse") << 0;
        QTest::newRow("menu key") << 1;
        QTest::newRow("shift and F10") << 2;
    }
    void tabsHaveAMenuByMouseAndKeys()
    {
        QFETCH(int, way);
        const Folders folders;
        const QStringList files = makeFiles(3);
        window()->openProject(m_bench->makeProject());
        for (const QString &file : files)
            window()->openPath(file);
        window()->project()->addFiles({files.at(1)});
        window()->tabs()->setCurrentIndex(1);
        QTabBar *bar = window()->tabs()->tabBar();
        const auto open = [&] {
            if (way == 0) {
                const QPoint place = bar->tabRect(1).center();
                QContextMenuEvent event(QContextMenuEvent::Mouse, place, bar->mapToGlobal(place));
                QCoreApplication::sendEvent(bar, &event);
            } else if (way == 1) {
                QTest::keyClick(bar, Qt::Key_Menu);
            } else {
                QTest::keyClick(bar, Qt::Key_F10, Qt::ShiftModifier);
            }
        };
        QCOMPARE(entriesOfMenu(open, QStringLiteral("Copy the Path")),
                 QStringList({QStringLiteral("Close"), QStringLiteral("Close the Others"),
                              QStringLiteral("Show in the Project"),
                              QStringLiteral("Open the Folder"), QStringLiteral("Copy the Path")}));
        QCOMPARE(QGuiApplication::clipboard()->text(), files.at(1));
        entriesOfMenu(open, QStringLiteral("Open the Folder"));
        QCOMPARE(folders.opened, QStringList(QFileInfo(files.at(1)).path()));
        entriesOfMenu(open, QStringLiteral("Show in the Project"));
        QCOMPARE(window()->findChild<ProjectPane *>()->selectedFile(), files.at(1));
        entriesOfMenu(open, QStringLiteral("Close the Others"));
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("f1.v")));
    }

    void closingTheOthersAsksForUnsavedChanges()
    {
        const QStringList files = makeFiles(3);
        for (const QString &file : files)
            window()->openPath(file);
        window()->tabs()->currentPage()->startEditing();
        QTest::keyClicks(window()->tabs()->currentPage()->editor(), QStringLiteral("x"));
        const auto boxes =
            boxesOf([this] { QVERIFY(!window()->tabs()->closeOthers(0)); }, QMessageBox::Cancel);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(window()->tabs()->count(), 3);
        boxesOf([this] { QVERIFY(window()->tabs()->closeOthers(0)); }, QMessageBox::Discard);
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("f0.v")));
    }

    void filesOfTheProjectHaveAMenuByKeys()
    {
        const Folders folders;
        window()->openProject(m_bench->makeProject());
        const QString file = makeFiles(1).first();
        window()->project()->addFiles({file});
        auto *pane = window()->findChild<ProjectPane *>();
        pane->select(file);
        const auto open = [&] { QTest::keyClick(pane->tree(), Qt::Key_F10, Qt::ShiftModifier); };
        const QStringList entries = entriesOfMenu(open, QStringLiteral("Copy the Path"));
        for (const char *text :
             {"Open Selected", "Open the Folder", "Copy the Path", "Remove from Project"})
            QVERIFY2(entries.contains(QLatin1String(text)), text);
        QCOMPARE(QGuiApplication::clipboard()->text(), file);
        entriesOfMenu(open, QStringLiteral("Open the Folder"));
        QCOMPARE(folders.opened, QStringList(QFileInfo(file).path()));
        entriesOfMenu(open, QStringLiteral("Open Selected"));
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("f0.v")));
        entriesOfMenu(open, QStringLiteral("Remove from Project"));
        QVERIFY(window()->project()->files().isEmpty());
    }

    void entriesOfTheCatalogueHaveAMenuByKeys()
    {
        window()->openProject(m_bench->makeProject());
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("catalogueTree"));
        tree->setFocus();
        const QStringList entries =
            entriesOfMenu([&] { QTest::keyClick(tree, Qt::Key_F10, Qt::ShiftModifier); });
        QVERIFY2(entries.contains(QStringLiteral("Create IP…")), qPrintable(entries.join(u';')));
        QVERIFY(entries.contains(QStringLiteral("Help on This IP")));
    }

    // What is out of date

    void anIpWhosePlugInSaysNothingIsMarkedByTimes()
    {
        const QString project = m_bench->makeProject();
        const QString ipc = m_bench->folder() + QStringLiteral("/board/lamp/lamp.ipc");
        const QString made = m_bench->folder() + QStringLiteral("/board/lamp/lamp.v");
        write(ipc, "[General]\ntype=fake.blinker\n");
        write(made, "x\n");
        const auto setTime = [](const QString &path, int secondsAgo) {
            QFile file(path);
            return file.open(QIODevice::ReadWrite) &&
                   file.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo),
                                    QFileDevice::FileModificationTime);
        };
        QVERIFY(setTime(ipc, 100));
        QVERIFY(setTime(made, 200));
        window()->openProject(project);
        const ProjectModel *model = window()->findChild<ProjectPane *>()->model();
        const auto isBehind = [&] {
            return model->indexOf(ipc).data(ProjectModel::BehindRole).toBool();
        };
        QTRY_VERIFY(isBehind());
        for (const int role : {int(Qt::ToolTipRole), int(Qt::AccessibleTextRole)})
            QVERIFY(model->indexOf(ipc).data(role).toString().contains(QLatin1String("newer")));
        QVERIFY(setTime(made, 50));
        QTRY_VERIFY(!isBehind());
        QVERIFY(setTime(ipc, 10));
        QTRY_VERIFY(isBehind());
        write(m_bench->folder() + QStringLiteral("/board/lamp/new.v"), "y\n");
        QTRY_VERIFY(!isBehind());
    }

    void whatAPlugInSaysOfItsStateIsTakenWholeOrNotAtAll_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, const char *key, const QVariant &value) {
            QTest::newRow(name) << QString::fromLatin1(key) << value;
        };
        const auto file = [](const QVariant &path) {
            return QVariantList{QVariantMap{{QStringLiteral("path"), path}}};
        };
        row("an error", "error", QStringLiteral("It is dark."));
        row("an error that is no text", "error", 7);
        row("no state", "state", QString());
        row("a state that is no text", "state", 3);
        row("a state of two lines", "state", QStringLiteral("a\nb"));
        row("reasons that are no texts", "reasons", QVariantList{1, 2});
        row("a reason with control characters", "reasons", QStringList(QStringLiteral("\x1b[0m")));
        row("files that are no list", "files", QStringLiteral("/a"));
        row("a path that is not full", "files", file(QStringLiteral("a.v")));
        row("a path that is a number", "files", file(7));
        row("too many files", "files", [&file] {
            QVariantList list;
            for (int i = 0; i <= Answers::generatedFileLimit; ++i)
                list += file(QStringLiteral("/a"));
            return list;
        }());
        row("watched paths that are not full", "watched", QStringList(QStringLiteral("a.v")));
        row("watched paths that are no list", "watched", 1);
    }
    void whatAPlugInSaysOfItsStateIsTakenWholeOrNotAtAll()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QVariantMap answer{
            {QStringLiteral("error"), QString()},
            {QStringLiteral("state"), QStringLiteral("stale")},
            {QStringLiteral("reasons"), QStringList(QStringLiteral("a lamp more"))},
            {QStringLiteral("files"),
             QVariantList{QVariantMap{{QStringLiteral("path"), QStringLiteral("/a/lamp.v")}}}},
            {QStringLiteral("watched"), QStringList(QStringLiteral("/a/lamp.ipc"))}};
        const auto sound = Answers::ipStateOf(answer);
        QVERIFY(sound);
        QVERIFY(sound->isBehind());
        QCOMPARE(sound->files, QStringList(QStringLiteral("/a/lamp.v")));
        answer.insert(key, value);
        const auto taken = Answers::ipStateOf(answer);
        QVERIFY(!taken);
        QVERIFY(!taken.reason().isEmpty());
    }

    // First steps

    void aNewSubsystemNeedsADeviceAndNothingElse()
    {
        m_bench->settings.setValue(QStringLiteral("projectLocation"), m_bench->folder());
        m_bench->reopen();
        QCommandLinkButton *link = nullptr;
        const auto links =
            window()->findChildren<QCommandLinkButton *>(QStringLiteral("newSubsystemLink"));
        for (QCommandLinkButton *candidate : links) {
            if (candidate->text().contains(QLatin1String("Tarvo_ORIX_M1")))
                link = candidate;
        }
        QVERIFY(link);
        QStringList titles;
        const ModalWatcher watcher([&titles](QWidget *modal) {
            titles.append(modal->windowTitle());
            if (auto *dialog = qobject_cast<NewProjectDialog *>(modal)) {
                auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
                QTest::keyClicks(edit, QStringLiteral("tv2kr-18c"));
                QTest::keyClick(edit, Qt::Key_Down);
                QTest::keyClick(edit, Qt::Key_Return);
            } else {
                qobject_cast<QDialog *>(modal)->reject();
            }
        });
        link->click();
        QTRY_COMPARE(titles.size(), 2);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY2(titles.first().contains(QLatin1String("Tarvo_ORIX_M1")),
                 qPrintable(titles.first()));
        QVERIFY(window()->project());
        QVERIFY(window()->project()->path().startsWith(m_bench->folder() + u'/'));
        QVERIFY(window()->project()->deviceId().contains(QLatin1String("TV2KR-18C")));
    }

    void aNewSubsystemIsNotForADeviceThatCannotHaveIt()
    {
        NewProjectDialog dialog(m_bench->folder());
        QVERIFY(QDir(m_bench->folder()).mkdir(QStringLiteral("subsystem")));
        dialog.propose(QStringLiteral("Lamp"), QStringLiteral("TV2KR-18C-QFN88P-C8/I7"),
                       [](const DEV::DeviceArg &device) {
                           return device.device().startsWith(QLatin1String("TV5K"))
                                      ? QString()
                                      : QStringLiteral("It is too small.");
                       });
        QVERIFY(!Bench::ok(&dialog)->isEnabled());
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("hintLabel"))->text(),
                 QStringLiteral("It is too small."));
        QCOMPARE(dialog.name(), QStringLiteral("subsystem_2"));
    }

private:
    MainWindow *window() const { return m_bench->window.get(); }

    static bool onAScreen(const QWidget *window)
    {
        const auto screens = QGuiApplication::screens();
        return std::any_of(screens.begin(), screens.end(), [window](const QScreen *screen) {
            const QRect seen = screen->availableGeometry() & window->frameGeometry();
            return seen.width() > 200 && seen.height() > 150;
        });
    }

    // What is to be kept of a window.
    static SessionRecord recordOf(const MainWindow *window)
    {
        SessionRecord record;
        for (int i = 0; i < window->tabs()->count(); ++i) {
            const QWidget *page = window->tabs()->widget(i);
            SessionTab tab;
            tab.path = window->tabs()->pathOf(i);
            if (const auto *file = qobject_cast<const EditorPage *>(page)) {
                const EditorPage::Place place = file->place();
                tab = {SessionTab::File, tab.path, place.line, place.column, place.top, place.left};
            } else {
                tab.kind = qobject_cast<const SoftwarePage *>(page) ? SessionTab::HandOff
                                                                    : SessionTab::Simulation;
            }
            record.tabs.append(tab);
        }
        record.current = window->tabs()->currentIndex();
        return record;
    }

    QStringList makeFiles(int count) const
    {
        QStringList files;
        for (int i = 0; i < count; ++i) {
            files.append(m_bench->folder() + QStringLiteral("/f%1.v").arg(i));
            QByteArray text;
            for (int line = 0; line < 60 * (i + 1); ++line)
                text += "assign a[" + QByteArray::number(line) + "] = b;\n";
            write(files.last(), text);
        }
        return files;
    }

    QString otherProject() const
    {
        QString error;
        const auto project = Project::create(m_bench->folder() + QStringLiteral("/other"),
                                             QStringLiteral("other"), {}, &error);
        return project ? project->file() : QString();
    }

    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestSession)
#include "tst_session.moc"
