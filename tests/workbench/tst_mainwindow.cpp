#include "hands.h"

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/messages/logview.h>
#include <workbench/widgets/infobar.h>
#include <workbench/window/startpage.h>

#include <core/editormanager.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <ipcore/ipcore.h>
#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QClipboard>
#include <QCommandLinkButton>
#include <QDialog>
#include <QDockWidget>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTreeView>

using namespace Workbench;
using namespace TestSupport;

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<Bench>(); }
    void cleanup() { m_bench.reset(); }

    void isWhatTheHostsEntryPointsLeadTo()
    {
        QCOMPARE(Core::ViewManager::dialogParent(), window());
        QVERIFY(!Core::ProjectManager::currentProject());
        window()->openProject(m_bench->makeProject());
        QCOMPARE(Core::ProjectManager::currentProject(), window()->project());
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "x\n");
        QVERIFY(Core::EditorManager::openEditor(file, false));
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("x.v")));
        IPCore::addFilesToProject({file});
        QCOMPARE(window()->project()->files(), QStringList(file));
        m_bench->window.reset();
        QVERIFY(!Core::ViewManager::dialogParent());
        QVERIFY(!Core::ProjectManager::currentProject());
        QVERIFY(!Core::EditorManager::openEditor(file, false));
    }

    void aFileThatCannotBeOpenedForAPluginIsAMessage()
    {
        QVERIFY(!Core::EditorManager::openEditor(QStringLiteral("/no/such.v"), false));
        QVERIFY(m_bench->message(0).contains(QLatin1String("/no/such.v")));
    }

    void startPageOffersTheNextStep()
    {
        QVERIFY(window()->findChild<QCommandLinkButton *>(QStringLiteral("newProjectLink")));
        window()->openProject(m_bench->makeProject());
        auto *create = findLink(QStringLiteral("createIpLink"));
        QVERIFY(create);
        QVERIFY(create->text().contains(QLatin1String("Tarvo_ORIX_M1")));
        // The other IP does not support the device.
        QCOMPARE(links(QStringLiteral("createIpLink")), 1);
        QString opened;
        const ModalWatcher watcher([&opened](QWidget *modal) {
            opened = modal->windowTitle();
            qobject_cast<QDialog *>(modal)->reject();
        });
        create->click();
        QTRY_VERIFY(!opened.isEmpty());
    }

    void startPageLeadsToRecentProjects()
    {
        const QString file = m_bench->makeProject();
        window()->openProject(file);
        window()->closeProject();
        QVERIFY(!window()->project());
        m_bench->reopen();
        const auto all = window()->findChildren<QCommandLinkButton *>();
        for (QCommandLinkButton *link : all) {
            if (link->property("path").toString() == file)
                link->click();
        }
        QTRY_VERIFY(window()->project());
        QCOMPARE(window()->windowTitle(), QStringLiteral("board - Tarvo Workbench"));
    }

    void aMissingRecentProjectIsToldAndForgotten()
    {
        const QString file = m_bench->makeProject();
        window()->openProject(file);
        window()->closeProject();
        QFile::remove(file);
        const auto boxes = boxesOf([&] { window()->openProject(file); });
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes.first().text.contains(file));
        QVERIFY(m_bench->settings.value(QStringLiteral("recentProjects")).toStringList().isEmpty());
    }

    void aBrokenProjectLeavesTheOpenOneAlone_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");
        QTest::newRow("broken") << QByteArray("{\n broken") << QStringLiteral("line 2");
        QTest::newRow("newer") << QByteArray("{\"format\": 99}") << QStringLiteral("newer version");
    }

    void aBrokenProjectLeavesTheOpenOneAlone()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        window()->openProject(m_bench->makeProject());
        const QString broken = m_bench->folder() + QStringLiteral("/broken.tvproj");
        write(broken, text);
        const auto boxes = boxesOf([&] { QVERIFY(!window()->openPath(broken)); });
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(boxes.first().text.contains(reason), qPrintable(boxes.first().text));
        QCOMPARE(window()->project()->name(), QStringLiteral("board"));
        QCOMPARE(contentsOf(broken), text);
    }

    void aProjectOfAnUnknownDeviceOpensAndSaysSo()
    {
        const QString file = m_bench->folder() + QStringLiteral("/old.tvproj");
        write(file, "{\"format\": 1, \"device\": \"TV9-1\"}");
        QVERIFY(window()->openProject(file));
        QVERIFY(window()->infoBar()->text().contains(QLatin1String("TV9-1")));
    }

    void deviceIsShownAndCanBeChanged()
    {
        window()->openProject(m_bench->makeProject());
        auto *button = window()->findChild<QPushButton *>(QStringLiteral("deviceButton"));
        QVERIFY(button->text().contains(QLatin1String("TV2KR-18C")));
        const ModalWatcher watcher([](QWidget *modal) {
            auto *edit = modal->findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
            QTest::keyClicks(edit, QStringLiteral("tv5k-138 "));
            QTest::keyClick(edit, Qt::Key_Down);
            QTest::keyClick(edit, Qt::Key_Return);
        });
        button->click();
        QVERIFY2(button->text().contains(QLatin1String("TV5K-138")), qPrintable(button->text()));
        QVERIFY(contentsOf(window()->project()->file()).contains("TV5K-138"));
    }

    void anIpWithoutAProjectAsksForOne()
    {
        const auto boxes = boxesOf([this] { window()->createSelectedIp(0); }, QMessageBox::Cancel);
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes.first().text.contains(QLatin1String("project")));
    }

    void aConfigurationOpensTheIpThatItsTypeNames()
    {
        const QString ipc = m_bench->folder() + QStringLiteral("/b/lamp.ipc");
        write(ipc, "[General]\ntype=fake.blinker\n");
        QString title;
        const ModalWatcher watcher([&title](QWidget *modal) {
            title = modal->windowTitle();
            qobject_cast<QDialog *>(modal)->accept();
        });
        QVERIFY(window()->openPath(ipc));
        QCOMPARE(title, ipc); // the fake shows what it was given
    }

    void aConfigurationOfNoKnownTypeIsReported()
    {
        const QString ipc = m_bench->folder() + QStringLiteral("/lamp.ipc");
        write(ipc, "[General]\ntype=fake.lamp\n");
        const auto boxes = boxesOf([&] { QVERIFY(!window()->openPath(ipc)); });
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes.first().text.contains(QLatin1String("fake.lamp")));
    }

    void dropsOpenWhatTheyAre()
    {
        const QString project = m_bench->makeProject();
        const QString text = m_bench->folder() + QStringLiteral("/a b.v");
        write(text, "x\n");
        const QString ipc = m_bench->folder() + QStringLiteral("/lamp.ipc");
        write(ipc, "[General]\ntype=fake.blinker\n");
        int dialogs = 0;
        const ModalWatcher watcher([&dialogs](QWidget *modal) {
            ++dialogs;
            qobject_cast<QDialog *>(modal)->reject();
        });
        QMimeData data;
        data.setUrls(
            {QUrl::fromLocalFile(project), QUrl::fromLocalFile(text), QUrl::fromLocalFile(ipc)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window(), &drop);
        QTRY_COMPARE(dialogs, 1);
        QVERIFY(window()->project());
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("a b.v")));
    }

    void aPluginThatThrowsIsReported()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/throwingdialog"), true);
        MainWindow own(catalogue, m_bench->settings);
        DEV::ChipFilter tv5k;
        tv5k.series = QStringLiteral("TV5K");
        const auto boxes = boxesOf([&] {
            own.createIp(0, m_bench->folder(), DEV::DeviceDb::bundled().filterDevice(tv5k).first());
        });
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(boxes.first().text.contains(QLatin1String("the lamp is broken")),
                 qPrintable(boxes.first().text));
    }

    void pluginsThatCannotBeUsedAreShown()
    {
        IpCatalogue catalogue;
        catalogue.loadFolder(QStringLiteral(TARVO_FAKE_PLUGINS "/throwing"), true);
        MainWindow own(catalogue, m_bench->settings);
        own.show();
        QVERIFY(own.infoBar()->text().contains(QLatin1String("throwing")));
        QCOMPARE(own.messages()->count(MessageModel::Warning), 1);
        QString listed;
        const ModalWatcher watcher([&listed](QWidget *modal) {
            const auto *tree = modal->findChild<QTreeView *>(QStringLiteral("pluginList"));
            listed = tree->model()->index(0, 1).data().toString();
            qobject_cast<QDialog *>(modal)->reject();
        });
        own.infoBar()->findChild<QPushButton *>()->click();
        QVERIFY2(listed.contains(QLatin1String("out of lamps")), qPrintable(listed));
    }

    void goesToALine()
    {
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "1\n2\n3\n4\n");
        window()->openPath(file);
        const ModalWatcher watcher([](QWidget *modal) {
            auto *dialog = qobject_cast<QInputDialog *>(modal);
            dialog->setIntValue(3);
            dialog->accept();
        });
        m_bench->action("Go to Line")->trigger();
        QCOMPARE(window()->tabs()->currentPage()->editor()->currentLine(), 3);
        QVERIFY(window()
                    ->findChild<QLabel *>(QStringLiteral("cursorLabel"))
                    ->text()
                    .contains(QLatin1String("Line 3")));
    }

    void copyGoesToTheWidgetWithTheFocus()
    {
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "hello\n");
        window()->openPath(file);
        CodeEditor *editor = window()->tabs()->currentPage()->editor();
        editor->setFocus();
        QVERIFY(QTest::qWaitFor([editor] { return editor->hasFocus(); }));
        m_bench->action("Select All")->trigger();
        m_bench->action("Copy")->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("hello\n"));
    }

    void remembersItsState()
    {
        window()->resize(777, 555);
        auto *dock = window()->findChild<QDockWidget *>(QStringLiteral("catalogueDock"));
        dock->hide();
        window()->close();
        m_bench->reopen();
        QCOMPARE(window()->size(), QSize(777, 555));
        QVERIFY(window()->findChild<QDockWidget *>(QStringLiteral("catalogueDock"))->isHidden());
    }

    void unsavedChangesHoldTheWindowOpen()
    {
        const QString file = m_bench->folder() + QStringLiteral("/x.v");
        write(file, "old\n");
        window()->openPath(file);
        EditorPage *page = window()->tabs()->currentPage();
        page->startEditing();
        QTest::keyClicks(page->editor(), QStringLiteral("new "));
        boxesOf([this] { QVERIFY(!window()->close()); }, QMessageBox::Cancel);
        QVERIFY(window()->isVisible());
        boxesOf([this] { QVERIFY(window()->close()); }, QMessageBox::Save);
        QCOMPARE(contentsOf(file), QByteArray("new old\n"));
    }

    void aRunHoldsTheWindowOpenUntilItMayEnd()
    {
        const FakeTool tool("sleeping");
        IPCore::SynthesisHelper helper;
        helper.setArgs(job());
        helper.start();
        QVERIFY(helper.isRunning());
        QSignalSpy closed(window(), &MainWindow::closed);
        boxesOf([this] { QVERIFY(!window()->close()); }, QMessageBox::Cancel); // stays
        QVERIFY(helper.isRunning());
        QVERIFY(closed.isEmpty());

        const ModalWatcher watcher([](QWidget *modal) {
            const auto buttons = modal->findChildren<QPushButton *>();
            for (QPushButton *button : buttons) {
                if (button->text().contains(QLatin1String("End Run")))
                    button->click();
            }
        });
        window()->close();
        QTRY_COMPARE(closed.size(), 1);
        QVERIFY(!helper.isRunning());
        QVERIFY(!window()->isVisible());
    }

    void shutsDownWithoutAskingAndClosesDialogs()
    {
        window()->openProject(m_bench->makeProject());
        QSignalSpy closed(window(), &MainWindow::closed);
        QTimer::singleShot(0, window(), &MainWindow::shutDown);
        window()->createSelectedIp(0); // returns, though nobody closes its dialog
        QTRY_COMPARE(closed.size(), 1);
    }

    void shutsDownAndKeepsUnsavedChanges()
    {
        const QString file = m_bench->folder() + QStringLiteral("/a.v");
        write(file, "module a;\nendmodule\n");
        window()->openPath(file);
        EditorPage *page = window()->tabs()->currentPage();
        QVERIFY(page);
        page->startEditing();
        page->editor()->insertPlainText(QStringLiteral("// "));
        QSignalSpy closed(window(), &MainWindow::closed);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("a\\.v\\.unsaved")));
        window()->shutDown();
        QTRY_COMPARE(closed.size(), 1);
        QCOMPARE(contentsOf(file), QByteArray("module a;\nendmodule\n"));
        QCOMPARE(contentsOf(file + QStringLiteral(".unsaved")),
                 QByteArray("// module a;\nendmodule\n"));
    }

    void aRunFillsMessagesAndLog()
    {
        const FakeTool tool("erring");
        write(m_bench->folder() + QStringLiteral("/a.v"), "module top;\n\n\n\n\n\n\nendmodule\n");
        IPCore::SynthesisHelper helper;
        helper.setArgs(job());
        QSignalSpy finished(&helper, &IPCore::SynthesisHelper::finished);
        helper.start();
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(window()->messages()->count(MessageModel::Error) >= 2);
        QVERIFY(window()->log()->toPlainText().contains(QLatin1String("first mistake")));
        QVERIFY(!window()->findChild<QDockWidget *>(QStringLiteral("outputDock"))->isHidden());
        m_bench->action("Next Message")->trigger();
        const EditorPage *page = window()->tabs()->currentPage();
        QVERIFY(page);
        QCOMPARE(page->editor()->currentLine(), 7);
        QCOMPARE(window()->tabs()->tabText(0), QStringLiteral("a.v"));
        QVERIFY(!m_bench->action("Results of the Last Run")->isEnabled());
    }

    void everyActionWithoutADialogHasAnEffectOrIsDisabled()
    {
        // Nothing is open: what needs a file or a project is disabled.
        for (const char *name :
             {"Save", "Save All", "Close Tab", "Edit File", "Find", "Go to Line", "Close Project",
              "Create IP", "Add Source Files", "New Source File", "Remove from Project", "Move Up",
              "Move Down", "Top Module", "Device", "Results of the Last Run"})
            QVERIFY2(!m_bench->action(name)->isEnabled(), name);
    }

    void sourcesMoveAndLeaveByKeyboard()
    {
        window()->openProject(m_bench->makeProject());
        const QString folder = window()->project()->path();
        for (const char *name : {"a.v", "b.v"})
            write(folder + u'/' + QLatin1String(name), "x\n");
        window()->project()->addFiles(
            {folder + QStringLiteral("/a.v"), folder + QStringLiteral("/b.v")});
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("projectTree"));
        const QModelIndex sources = tree->model()->index(1, 0);
        tree->setCurrentIndex(tree->model()->index(1, 0, sources));
        m_bench->action("Move Up")->trigger();
        QCOMPARE(window()->project()->files().first(), QString(folder + QStringLiteral("/b.v")));
        tree->setCurrentIndex(tree->model()->index(1, 0, sources));
        QTest::keyClick(tree, Qt::Key_Return);
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("a.v")));
        m_bench->action("Remove from Project")->trigger();
        QCOMPARE(window()->project()->files().size(), 1);
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/a.v")));
    }

private:
    MainWindow *window() const { return m_bench->window.get(); }

    QCommandLinkButton *findLink(const QString &name) const
    {
        return window()->findChild<QCommandLinkButton *>(name);
    }
    int links(const QString &name) const
    {
        const auto *page = window()->findChild<StartPage *>()->widget();
        return page->findChildren<QCommandLinkButton *>(name).size();
    }

    IPCore::SynthesizeArgs job() const
    {
        IPCore::SynthesizeArgs args;
        args.outputDir = m_bench->folder() + QStringLiteral("/temp");
        QDir().mkpath(args.outputDir);
        args.targetName = QStringLiteral("top");
        const QString source = m_bench->folder() + QStringLiteral("/a.v");
        if (!QFileInfo::exists(source))
            write(source, "module top; endmodule\n");
        args.options = {{QStringLiteral("top_module"), QStringLiteral("top")},
                        {QStringLiteral("source_files"), QStringList{source}}};
        return args;
    }

    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestMainWindow)
#include "tst_mainwindow.moc"
