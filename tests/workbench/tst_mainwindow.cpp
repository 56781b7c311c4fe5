#include "hands.h"

#include <shownitems.h>

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/kept/keptconfigurations.h>
#include <workbench/messages/logview.h>
#include <workbench/project/ipchead.h>
#include <workbench/widgets/infobar.h>
#include <workbench/window/startpage.h>

#include <core/editormanager.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <ipcore/ipcore.h>
#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QClipboard>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDialog>
#include <QDockWidget>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTreeView>
#include <QTreeWidget>

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

    void startPageShowsTheFirstOfManyIps()
    {
        const QString file = m_bench->makeProject();
        for (int i = 0; i < 40; ++i)
            write(QFileInfo(file).path() + QStringLiteral("/ip%1.ipc").arg(i), "[General]\n");
        window()->openProject(file);
        int shown = 0;
        const auto all = window()->findChildren<QCommandLinkButton *>();
        for (QCommandLinkButton *link : all)
            shown += link->property("path").toString().endsWith(QLatin1String(".ipc")) ? 1 : 0;
        QCOMPARE(shown, 12);
        const auto *more = window()->findChild<QLabel *>(QStringLiteral("moreIpsLabel"));
        QVERIFY(more);
        QCOMPARE(more->text(), QStringLiteral("28 more are in the tree of the project."));
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

    void whatAPlugInHasToSayOfARunJoinsItsMessages()
    {
        IPCore::SynthesisHelper helper;
        const QStringList notices = {QStringLiteral("\"a.v\" is in \"a.v.edited\" now.")};
        const int before = window()->messages()->count(MessageModel::Warning);
        QVERIFY(QMetaObject::invokeMethod(&helper, "tellNotices", Q_ARG(QStringList, notices)));
        QCOMPARE(window()->messages()->count(MessageModel::Warning), before + 1);
        QVERIFY(window()->messages()->toText().contains(notices.first()));
        QVERIFY(!window()->findChild<QDockWidget *>(QStringLiteral("outputDock"))->isHidden());
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

    void shutsDownThroughWhatADialogAsks()
    {
        class AskingDialog : public QDialog
        {
        public:
            using QDialog::QDialog;
            void reject() override
            {
                QMessageBox(QMessageBox::Question, QString(), QStringLiteral("Really?"),
                            QMessageBox::Cancel, this)
                    .exec();
                QDialog::reject();
            }
        };
        AskingDialog dialog(window());
        QSignalSpy closed(window(), &MainWindow::closed);
        QTimer::singleShot(0, window(), &MainWindow::shutDown);
        dialog.exec(); // returns, though nobody answers
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
        EditorPage *page = window()->tabs()->currentPage();
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

    void anotherIpIsOfferedAFolderOfItsOwn()
    {
        window()->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        QVERIFY(!window()->project()->device().isNull());
        const QString folder = window()->project()->path();
        const int blinker = m_bench->catalogue.indexOf(QStringLiteral("fake.blinker"));
        const ModalWatcher watcher(
            [](QWidget *modal) { qobject_cast<QDialog *>(modal)->accept(); });
        QHash<QString, QByteArray> made;
        for (const char *place : {"", "/ip2", "/ip3"}) {
            window()->createSelectedIp(blinker);
            const QString ipc =
                folder + QLatin1String(place) + QStringLiteral("/blinker/blinker.ipc");
            QVERIFY2(QFileInfo::exists(ipc), qPrintable(ipc));
            write(ipc, contentsOf(ipc) + "; of " + place + '\n');
            made.insert(ipc, contentsOf(ipc));
            for (auto it = made.begin(); it != made.end(); ++it)
                QCOMPARE(contentsOf(it.key()), it.value());
            QCOMPARE(window()->project()->ipFiles().size(), made.size());
        }
    }

    void theFirstIpFindsATakenFolder()
    {
        window()->openProject(m_bench->makeProject());
        const QString folder = window()->project()->path();
        QString proposed;
        const ModalWatcher watcher([&proposed](QWidget *modal) {
            proposed = modal->findChild<QLineEdit *>(QStringLiteral("editCreateIn"))->text();
            qobject_cast<QDialog *>(modal)->reject();
        });
        window()->createSelectedIp(0);
        QCOMPARE(proposed, QString(folder + QStringLiteral("/tarvo_orix_m1")));
        QDir(folder).mkdir(QStringLiteral("tarvo_orix_m1")); // something of the user's
        QVERIFY(!QFileInfo::exists(folder + QStringLiteral("/ip2")));
        window()->createSelectedIp(0);
        QCOMPARE(proposed, QString(folder + QStringLiteral("/ip2/tarvo_orix_m1")));
    }

    void aReplacedConfigurationComesBack_data()
    {
        QTest::addColumn<bool>("byHost");
        QTest::newRow("written by the host") << true;
        QTest::newRow("written by the plug-in") << false;
    }

    void aReplacedConfigurationComesBack()
    {
        QFETCH(bool, byHost);
        window()->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        const QString ipc = window()->project()->path() + QStringLiteral("/blinker/blinker.ipc");
        const QByteArray first = "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                                 "type=fake.blinker\n\n[Config]\nLamps=3\n; mine\n";
        write(ipc, first);
        if (byHost) {
            IPCore::writeIPConfig(ipc, {{QStringLiteral("type"), QStringLiteral("fake.blinker")}},
                                  {{QStringLiteral("Lamps"), 4}});
        } else {
            const int blinker = m_bench->catalogue.indexOf(QStringLiteral("fake.blinker"));
            const ModalWatcher watcher(
                [](QWidget *modal) { qobject_cast<QDialog *>(modal)->accept(); });
            window()->createIp(blinker, window()->project()->path(), window()->project()->device());
        }
        const QByteArray second = contentsOf(ipc);
        QVERIFY(second != first);

        // After a restart the start page tells file, time and device.
        m_bench->reopen();
        window()->openProject(m_bench->folder() + QStringLiteral("/board/board.tvproj"));
        QCOMPARE(links(QStringLiteral("bringBackLink")), 1);
        auto *link = findLink(QStringLiteral("bringBackLink"));
        QVERIFY(link->text().contains(QLatin1String("blinker/blinker.ipc")));
        QVERIFY2(link->description().contains(QLatin1String("TV2KR-18C, QFN88P, C8/I7")),
                 qPrintable(link->description()));
        const QDateTime time = window()->kept()->items().first().time;
        QVERIFY(qAbs(time.secsTo(QDateTime::currentDateTime())) < 120);
        QVERIFY(link->description().contains(QLocale().toString(time, QLocale::ShortFormat)));
        QCOMPARE(contentsOf(window()->kept()->items().first().copy), first); // a whole file

        const QString id = link->property("keptId").toString();
        boxesOf([&] { QVERIFY(!window()->bringBack(id)); }, QMessageBox::Cancel);
        QCOMPARE(contentsOf(ipc), second);
        const auto boxes = boxesOf([&] { QVERIFY(window()->bringBack(id)); }, QMessageBox::Yes);
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes.first().text.contains(ipc));
        QCOMPARE(contentsOf(ipc), first);
        // And what it replaced is kept in turn.
        QCOMPARE(window()->kept()->items().size(), 1);
        QCOMPARE(contentsOf(window()->kept()->items().first().copy), second);
    }

    void keepsALimitedNumberOfCopies()
    {
        KeptConfigurations *kept = window()->kept();
        QString error;
        const auto keep = [&](int file, int content) {
            QVERIFY2(kept->keep(KeptConfigurations::Replaced,
                                m_bench->folder() + QStringLiteral("/%1/a.ipc").arg(file),
                                QByteArray::number(content), &error),
                     qPrintable(error));
        };
        for (int i = 0; i < KeptConfigurations::limitForOneFile + 3; ++i)
            keep(0, i);
        QCOMPARE(kept->items().size(), KeptConfigurations::limitForOneFile);
        QCOMPARE(contentsOf(kept->items().first().copy),
                 QByteArray::number(KeptConfigurations::limitForOneFile + 2));
        keep(0, 5); // once more: it becomes the newest
        QCOMPARE(kept->items().size(), KeptConfigurations::limitForOneFile);
        QCOMPARE(contentsOf(kept->items().first().copy), QByteArray("5"));
        for (int i = 1; i <= KeptConfigurations::limit; ++i)
            keep(i, i);
        QCOMPARE(kept->items().size(), KeptConfigurations::limit);
        QCOMPARE(entriesOf(kept->folder()).size(), KeptConfigurations::limit);
        // A copy that was not finished is none.
        QDir(kept->folder()).mkdir(QStringLiteral("99991231-000000-000-000"));
        QCOMPARE(kept->items().size(), KeptConfigurations::limit);
        m_bench->reopen();
        QCOMPARE(window()->kept()->items().size(), KeptConfigurations::limit);
    }

    void keptConfigurationsAreListedAndDeleted()
    {
        KeptConfigurations *kept = window()->kept();
        QString error;
        for (const char *name : {"/a.ipc", "/b.ipc"})
            QVERIFY(kept->keep(KeptConfigurations::Replaced,
                               m_bench->folder() + QLatin1String(name), "[General]\n", &error));
        const ModalWatcher watcher([&](QWidget *modal) {
            auto *list = modal->findChild<QTreeWidget *>(QStringLiteral("keptList"));
            QCOMPARE(list->topLevelItemCount(), 2);
            QVERIFY(list->topLevelItem(0)->text(0).endsWith(QLatin1String("b.ipc")));
            const auto elideModes = elideModesOf(list);
            QVERIFY(elideModes.size() > 2);
            QCOMPARE(elideModes.keys(Qt::ElideLeft), QList<int>{0}); // its folders go, not its name
            modal->findChild<QPushButton *>(QStringLiteral("deleteButton"))->click();
            QCOMPARE(list->topLevelItemCount(), 1);
            qobject_cast<QDialog *>(modal)->reject();
        });
        m_bench->action("Bring Back a Configuration")->trigger();
        QCOMPARE(watcher.count(), 1);
        QCOMPARE(kept->items().size(), 1);
        QVERIFY(kept->items().first().origin.endsWith(QLatin1String("a.ipc")));
    }

    void aDialogDroppedByMistakeComesBack()
    {
        window()->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        const QString ipc = window()->project()->path() + QStringLiteral("/lamp/lamp.ipc");
        const QByteArray stored = "[General]\ntype=fake.blinker\ntarget_device=" +
                                  window()->project()->deviceId().toUtf8() +
                                  "\n[Config]\nLamps=3\n";
        write(ipc, stored);
        const auto drop = [](bool change) {
            return [change](QWidget *modal) {
                if (change)
                    QMetaObject::invokeMethod(modal, "change");
                QTest::keyClick(modal, Qt::Key_Escape);
            };
        };
        {
            const ModalWatcher watcher(drop(false)); // nothing was changed
            window()->openPath(ipc);
        }
        QVERIFY(window()->kept()->items().isEmpty());
        {
            const ModalWatcher watcher(drop(true));
            window()->openPath(ipc);
        }
        QCOMPARE(window()->kept()->items().size(), 1);
        QVERIFY(!window()->infoBar()->isHidden());
        QVERIFY(window()->infoBar()->text().contains(QLatin1String("\"lamp/lamp.ipc\"")));
        QCOMPARE(contentsOf(ipc), stored);
        window()->closeProject();
        {
            const ModalWatcher watcher(drop(true));
            window()->openPath(ipc);
        }
        QVERIFY(window()->infoBar()->text().contains(u'"' + QDir::toNativeSeparators(ipc) + u'"'));

        m_bench->reopen();
        window()->openProject(m_bench->folder() + QStringLiteral("/board/board.tvproj"));
        auto *link = findLink(QStringLiteral("bringBackLink"));
        QVERIFY(link);
        QVERIFY(link->description().contains(QLatin1String("without OK")));
        QVariantMap seen;
        bool accept = false;
        const ModalWatcher watcher([&](QWidget *modal) {
            QMetaObject::invokeMethod(modal, "configuration", Q_RETURN_ARG(QVariantMap, seen));
            if (accept)
                qobject_cast<QDialog *>(modal)->accept();
            else
                qobject_cast<QDialog *>(modal)->reject();
        });
        const QString id = link->property("keptId").toString();
        QVERIFY(window()->bringBack(id));
        QCOMPARE(
            seen.value(QStringLiteral("options")).toMap().value(QStringLiteral("Lamps")).toInt(),
            7);
        QCOMPARE(seen.value(QStringLiteral("file")).toString(), ipc); // where OK would store it
        QCOMPARE(contentsOf(ipc), stored);
        QCOMPARE(window()->kept()->items().size(), 1); // still to be had
        accept = true;
        QVERIFY(window()->bringBack(id));
        QVERIFY(window()->kept()->items().isEmpty());
    }

    void theConfiguratorsDialogDroppedByMistakeComesBack()
    {
        window()->openProject(m_bench->makeProject());
        bool vhdl = false;
        QString createIn;
        const ModalWatcher watcher([&](QWidget *modal) {
            auto *language = modal->findChild<QComboBox *>(QStringLiteral("comboBoxLanguage"));
            createIn = modal->findChild<QLineEdit *>(QStringLiteral("editCreateIn"))->text();
            vhdl = language->currentIndex() == 1;
            language->setCurrentIndex(1);
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        window()->createSelectedIp(0);
        QVERIFY(!vhdl);
        QCOMPARE(window()->kept()->items().size(), 1);
        const KeptConfigurations::Item item = window()->kept()->items().first();
        QVERIFY(item.isNew);
        QVERIFY(!QFileInfo::exists(item.origin));
        QVERIFY(!contentsOf(item.copy).contains("createin_path"));
        QVERIFY(window()->bringBack(item.id));
        QVERIFY(vhdl);
        QCOMPARE(createIn, QFileInfo(item.origin).path());
        QCOMPARE(window()->kept()->items().size(), 1); // unchanged since
        // Another IP took the place meanwhile.
        write(item.origin, "[General]\n");
        QVERIFY(window()->bringBack(item.id));
        QCOMPARE(createIn, QString(QFileInfo(item.origin).path() + QStringLiteral("-2")));
    }

    void changesOfTheEditorOutliveAPluginThatEndsTheProgram()
    {
        const QString file = m_bench->folder() + QStringLiteral("/a.v");
        write(file, "module a;\n");
        window()->openPath(file);
        EditorPage *page = window()->tabs()->currentPage();
        page->startEditing();
        page->editor()->insertPlainText(QStringLiteral("// "));
        QByteArray during;
        const ModalWatcher watcher([&](QWidget *modal) {
            during = contentsOf(file + QStringLiteral(".unsaved"));
            qobject_cast<QDialog *>(modal)->reject();
        });
        const QString ipc = m_bench->folder() + QStringLiteral("/lamp.ipc");
        write(ipc, "[General]\ntype=fake.blinker\n");
        window()->openPath(ipc);
        QCOMPARE(during, QByteArray("// module a;\n"));
        QVERIFY(!QFileInfo::exists(file + QStringLiteral(".unsaved")));
        QVERIFY(page->isModified());
    }

    void theWindowClosesWhenALargeFileIsSaved()
    {
        m_bench = std::make_unique<Bench>();
        const QString file = m_bench->folder() + QStringLiteral("/a.v");
        const QByteArray text = QByteArray("wire a;\n").repeated(EditorPage::pieceLimit / 4);
        write(file, text);
        window()->openPath(file);
        EditorPage *page = window()->tabs()->currentPage();
        QTRY_VERIFY_WITH_TIMEOUT(!page->isLoading(), 60000);
        page->startEditing();
        page->editor()->insertPlainText(QStringLiteral("// "));
        m_bench->action("Save")->trigger();
        QVERIFY(page->isSaving());
        QVERIFY(window()->close());
        QCOMPARE(contentsOf(file), "// " + text);
    }

    void anIpMovesToAnotherDevice()
    {
        m_bench = std::make_unique<Bench>("moving");
        window()->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        const QString ipc = window()->project()->path() + QStringLiteral("/lamp/lamp.ipc");
        const QByteArray stored = "[General]\ntype=fake.blinker\n"
                                  "target_device=TV2KR-18C-QFN88P-C8/I7\n[Config]\nLamps=99\n";
        write(ipc, stored);
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("projectTree"));
        const auto select = [&] {
            QTRY_COMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), 1);
            tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
        };
        select();
        QVERIFY(tree->currentIndex().data().toString().contains(QLatin1String("TV5K-138B")));
        QAction *move = m_bench->action("Move to Device");
        QVERIFY(move->isEnabled());
        QVERIFY(tree->actions().contains(move)); // in the context menu
        bool agree = false;
        QStringList losses;
        const ModalWatcher watcher([&](QWidget *modal) {
            if (auto *list = modal->findChild<QListWidget *>(QStringLiteral("lossList"))) {
                for (int i = 0; i < list->count(); ++i)
                    losses.append(list->item(i)->text());
            }
            if (auto *button = modal->findChild<QPushButton *>(QStringLiteral("moveButton"));
                button && agree)
                button->click();
            else if (button)
                qobject_cast<QDialog *>(modal)->reject();
            else
                Bench::ok(modal)->click(); // the project's device is proposed
        });
        move->trigger();
        QCOMPARE(losses, QStringList(QStringLiteral("The third lamp is left out.")));
        QCOMPARE(contentsOf(ipc), stored);
        QVERIFY(window()->kept()->items().isEmpty());
        agree = true;
        move->trigger();
        QVERIFY(contentsOf(ipc).contains("TV5K-138B-PBGA484-C1/I0"));
        QCOMPARE(window()->kept()->items().size(), 1);
        QCOMPARE(contentsOf(window()->kept()->items().first().copy), stored);
        select();
        QCOMPARE(tree->currentIndex().data().toString(), QStringLiteral("lamp/lamp.ipc"));
    }

    void movingIsDisabledWhereThePluginCannot()
    {
        window()->openProject(m_bench->makeProject());
        QAction *move = m_bench->action("Move to Device");
        QVERIFY(!move->isEnabled());
        write(window()->project()->path() + QStringLiteral("/lamp/lamp.ipc"),
              "[General]\ntype=fake.blinker\n");
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("projectTree"));
        QTRY_COMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), 1);
        tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
        QVERIFY(!move->isEnabled());
        QVERIFY2(move->toolTip().contains(QLatin1String("Blinker cannot move")),
                 qPrintable(move->toolTip()));
    }

    void tellsWhichIpsAreForTheOldDevice()
    {
        m_bench = std::make_unique<Bench>("moving");
        window()->openProject(m_bench->makeProject("TV5K-138B-PBGA484-C1/I0"));
        const QString ipc = window()->project()->path() + QStringLiteral("/lamp/lamp.ipc");
        write(ipc, "[General]\ntype=fake.blinker\ntarget_device=" +
                       window()->project()->deviceId().toUtf8() + '\n');
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("projectTree"));
        QTRY_COMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), 1);
        bool picked = false;
        const ModalWatcher watcher([&](QWidget *modal) {
            if (auto *button = modal->findChild<QPushButton *>(QStringLiteral("moveButton"))) {
                button->click();
                return;
            }
            auto *edit = modal->findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
            QTest::keyClicks(edit, QStringLiteral("tv5k-138b pbga676"));
            QTest::keyClick(edit, Qt::Key_Down);
            picked = Bench::ok(modal)->isEnabled();
            QTest::keyClick(edit, Qt::Key_Return);
        });
        m_bench->action("Device")->trigger();
        QVERIFY(picked);
        QVERIFY(!window()->infoBar()->isHidden());
        QVERIFY2(window()->infoBar()->text().contains(QLatin1String("TV5K-138B, PBGA484")),
                 qPrintable(window()->infoBar()->text()));
        window()->infoBar()->findChild<QPushButton *>()->click();
        QCOMPARE(IpcHead::read(ipc).deviceName, window()->project()->deviceId());
    }

    void aConfigurationOfAnUnknownDeviceHasAWayOut()
    {
        const QTemporaryDir dir;
        const QString ipc = dir.filePath(QStringLiteral("lamp.ipc"));
        const QByteArray stored = "[General]\ntype=fake.blinker\ntarget_device=TV9-1\n";
        for (const char *kind : {"blinker", "moving"}) {
            m_bench = std::make_unique<Bench>(kind);
            write(ipc, stored);
            QString text;
            QStringList buttons;
            QString choose;
            int opened = 0;
            const ModalWatcher watcher([&](QWidget *modal) {
                if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                    text = box->text();
                    QAbstractButton *chosen = box->button(QMessageBox::Cancel);
                    buttons.clear();
                    for (QAbstractButton *button : box->buttons()) {
                        buttons.append(button->text().remove(u'&'));
                        if (!choose.isEmpty() && buttons.last().startsWith(choose))
                            chosen = button;
                    }
                    chosen->click();
                } else if (auto *move =
                               modal->findChild<QPushButton *>(QStringLiteral("moveButton"))) {
                    move->click();
                } else if (auto *edit =
                               modal->findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"))) {
                    QTest::keyClicks(edit, QStringLiteral("tv5k-138b pbga484 c1"));
                    QTest::keyClick(edit, Qt::Key_Down);
                    QTest::keyClick(edit, Qt::Key_Return);
                } else {
                    ++opened;
                    qobject_cast<QDialog *>(modal)->reject();
                }
            });
            QVERIFY(!window()->openPath(ipc));
            QVERIFY2(text.contains(QLatin1String("TV9-1")) && text.contains(ipc), qPrintable(text));
            QCOMPARE(opened, 0);
            choose = QStringLiteral("Open All");
            QVERIFY(window()->openPath(ipc));
            QCOMPARE(opened, 1);
            QCOMPARE(contentsOf(ipc), stored);
            const bool canMove = qstrcmp(kind, "moving") == 0;
            QCOMPARE(buttons.filter(QStringLiteral("Move")).size(), canMove ? 1 : 0);
            if (!canMove)
                continue;
            choose = QStringLiteral("Move");
            QVERIFY(window()->openPath(ipc));
            QCOMPARE(opened, 2);
            QVERIFY(contentsOf(ipc).contains("target_device=TV5K-138B-PBGA484-C1/I0"));
        }
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
