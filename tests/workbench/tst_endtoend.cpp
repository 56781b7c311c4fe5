// A day with the workbench: from an empty folder to a generated subsystem that is changed later.

#include "hands.h"

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/kept/keptconfigurations.h>
#include <workbench/messages/logview.h>
#include <workbench/project/projectmodel.h>
#include <workbench/project/projectpane.h>
#include <workbench/results/resultpage.h>
#include <workbench/widgets/infobar.h>

#include <ipcore/pinfigureview.h>
#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>
#include <QTreeView>

using namespace Workbench;
using namespace TestSupport;

namespace
{

bool isIpDialog(const QWidget *modal)
{
    return modal->findChild<QGraphicsView *>() && modal->findChild<QLineEdit *>();
}

// Does things with a modal widget once it runs, so that dialogs may open from there.
void later(QWidget *modal, const std::function<void()> &call)
{
    QTimer::singleShot(0, modal, call);
}

// Walks to a block with Tab, opens it with Enter, switches a check box there and accepts.
bool switchOn(QWidget *dialog, const char *checkBox)
{
    auto *view = dialog->findChild<QGraphicsView *>();
    view->setFocus();
    bool switched = false;
    QTest::keyClick(view, Qt::Key_Home);
    for (int block = 0; block < 25 && !switched; ++block) {
        QTest::keyClick(view, Qt::Key_Tab);
        const ModalWatcher watcher([&switched, checkBox](QWidget *modal) {
            if (auto *box = modal->findChild<QCheckBox *>(QLatin1String(checkBox))) {
                QTest::keyClick(box, Qt::Key_Space);
                switched = box->isChecked();
                Bench::ok(modal)->click();
            } else {
                qobject_cast<QDialog *>(modal)->reject();
            }
        });
        QTest::keyClick(view, Qt::Key_Return);
    }
    return switched;
}

QString pinNames(const ResultPage *page)
{
    QStringList names;
    const QList<Utils::PinFigure> pins = page->figure()->pins();
    for (const Utils::PinFigure &pin : pins)
        names.append(pin.name());
    return names.join(u' ');
}

// What somebody does, counted: a click is one action, and so is a key.
class Person
{
public:
    int actions = 0;

    // Only what is seen and not covered can be clicked.
    bool click(QWidget *widget, const QPoint &at, Qt::MouseButton button = Qt::LeftButton)
    {
        QWidget *window = widget->window();
        if (!widget->isVisible() || !widget->isEnabled() ||
            window->childAt(widget->mapTo(window, at)) != widget)
            return false;
        ++actions;
        QTest::mouseClick(widget, button, {}, at);
        return true;
    }
    bool click(QWidget *widget) { return click(widget, widget->rect().center()); }
    bool click(QTabBar *tabs, const QString &title)
    {
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i).remove(u'&') == title)
                return click(tabs, tabs->tabRect(i).center());
        }
        return false;
    }
    // Two clicks.
    void doubleClick(QWidget *widget, const QPoint &at)
    {
        actions += 2;
        QTest::mouseClick(widget, Qt::LeftButton, {}, at);
        QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
    }
    bool chooseFromMenu(QWidget *widget, const QPoint &at, const char *beginning)
    {
        if (!click(widget, at, Qt::RightButton))
            return false;
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
        QCoreApplication::sendEvent(widget, &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        const auto entries = menu ? menu->actions() : QList<QAction *>();
        for (QAction *entry : entries) {
            if (!entry->text().startsWith(QLatin1String(beginning)))
                continue;
            ++actions;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
            return true;
        }
        return false;
    }
};

// Where a block of the diagram is, by its place in the scene.
QPoint placeOf(const QGraphicsView *view, const QPointF &corner)
{
    return view->mapFromScene(corner + QPointF(30, 20));
}

// A process that has ended but was not waited for is not alive.
bool isAlive(qint64 process)
{
    const QByteArray stat = contentsOf(QStringLiteral("/proc/%1/stat").arg(process));
    return !stat.isEmpty() && stat.mid(stat.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

class TestEndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bench = std::make_unique<Bench>();
        m_bench->settings.setValue(QStringLiteral("projectLocation"), m_bench->folder());
    }
    void cleanup() { m_bench.reset(); }

    void fromAnEmptyFolderToAChangedSubsystem()
    {
        makeProjectByDialog();
        if (QTest::currentTestFailed())
            return;
        const QString folder = m_bench->folder() + QStringLiteral("/sensor");
        const QString ip = folder + QStringLiteral("/tarvo_orix_m1");
        QCOMPARE(window()->project()->path(), folder);

        // Enter in the catalogue; GPIO on in the diagram; OK.
        auto *catalogue = window()->findChild<QTreeView *>(QStringLiteral("catalogueTree"));
        {
            const ModalWatcher watcher([](QWidget *modal) {
                if (!isIpDialog(modal))
                    return;
                later(modal, [modal] {
                    QVERIFY(switchOn(modal, "enableGpioCheckBox"));
                    Bench::ok(modal)->click();
                });
            });
            QTest::keyClick(catalogue, Qt::Key_Return);
        }
        checkResults(ip, QStringLiteral("gpio"));
        if (QTest::currentTestFailed())
            return;
        QVERIFY(
            !pinNames(window()->results()).contains(QLatin1String("uart"), Qt::CaseInsensitive));

        // Home; a month later.
        QVERIFY(window()->close());
        m_bench->reopen();
        window()->openProject(folder + QStringLiteral("/sensor.tvproj"));
        QVERIFY(m_bench->tabTexts().contains(QStringLiteral("Results")));
        auto *tree = window()->findChild<QTreeView *>(QStringLiteral("projectTree"));
        const QModelIndex ipc = tree->model()->index(0, 0, tree->model()->index(0, 0));
        QCOMPARE(ipc.data().toString(), QStringLiteral("tarvo_orix_m1/tarvo_orix_m1.ipc"));
        tree->setCurrentIndex(ipc);
        checkMarks(ip);
        if (QTest::currentTestFailed())
            return;
        const QByteArray before = contentsOf(ip + QStringLiteral("/tarvo_orix_m1.v"));
        {
            const ModalWatcher watcher([](QWidget *modal) {
                if (!isIpDialog(modal))
                    return;
                later(modal, [modal] {
                    QVERIFY(switchOn(modal, "enableUart0CheckBox"));
                    Bench::ok(modal)->click();
                });
            });
            QTest::keyClick(tree, Qt::Key_Return);
        }
        checkResults(ip, QStringLiteral("uart"));
        if (QTest::currentTestFailed())
            return;
        QVERIFY(pinNames(window()->results()).contains(QLatin1String("gpio"), Qt::CaseInsensitive));
        QVERIFY(contentsOf(ip + QStringLiteral("/tarvo_orix_m1.v")) != before);
        // It stands in the project once.
        QCOMPARE(window()->project()->files(),
                 QStringList(ip + QStringLiteral("/tarvo_orix_m1.v")));
    }

    // As somebody does who has just made a project.
    void configuredPreviewedUndoneAndGeneratedInTwelveActions()
    {
        window()->openProject(m_bench->makeProject());
        window()->resize(1280, 800);
        QVERIFY(QTest::qWaitForWindowExposed(window()));
        QCoreApplication::processEvents(); // lays out
        Person person;
        bool isBegun = false;
        bool isDone = false;
        const ModalWatcher watcher([&](QWidget *modal) {
            // The IP's dialog is the parent of the block's, and comes up again when that goes.
            if (isIpDialog(modal)) {
                if (isBegun)
                    return;
                isBegun = true;
                later(modal, [&person, &isDone, modal] {
                    isDone = configure(modal, &person);
                    if (!isDone)
                        qobject_cast<QDialog *>(modal)->reject();
                });
            } else if (auto *gpio =
                           modal->findChild<QCheckBox *>(QStringLiteral("enableGpioCheckBox"))) {
                later(modal, [&person, modal, gpio] {
                    QVERIFY(person.click(gpio, QPoint(8, gpio->height() / 2)));
                    QVERIFY(gpio->isChecked());
                    QVERIFY(person.click(Bench::ok(modal)));
                });
            }
        });
        auto *link = window()->findChild<QPushButton *>(QStringLiteral("createIpLink"));
        QVERIFY(link);
        QVERIFY(person.click(link));
        QTRY_VERIFY_WITH_TIMEOUT(window()->tabs()->count() > 0 ||
                                     (isBegun && !QApplication::activeModalWidget()),
                                 120000);
        QVERIFY2(isDone, qPrintable(QString::number(person.actions)));
        checkResults(window()->project()->path() + QStringLiteral("/tarvo_orix_m1"),
                     QStringLiteral("gpio"));
        QVERIFY(
            !pinNames(window()->results()).contains(QLatin1String("uart"), Qt::CaseInsensitive));
        QVERIFY2(person.actions <= 12, qPrintable(QString::number(person.actions)));
        QVERIFY(person.actions > 6); // it was not done behind the user's back
    }

    void aChangeOfLanguageTellsWhatIsLeftOver()
    {
        window()->openProject(m_bench->makeProject());
        const QString ip = window()->project()->path() + QStringLiteral("/tarvo_orix_m1");
        const QString verilog = ip + QStringLiteral("/tarvo_orix_m1.v");
        const QString vhdl = ip + QStringLiteral("/tarvo_orix_m1.vhd");
        const auto generate = [this, &ip](int language) {
            const ModalWatcher watcher([language](QWidget *modal) {
                if (!isIpDialog(modal))
                    return;
                later(modal, [modal, language] {
                    auto *box = modal->findChild<QComboBox *>(QStringLiteral("comboBoxLanguage"));
                    QVERIFY(box);
                    box->setCurrentIndex(language);
                    Bench::ok(modal)->click();
                });
            });
            if (QFileInfo::exists(ip))
                window()->openPath(ip + QStringLiteral("/tarvo_orix_m1.ipc"));
            else
                window()->createSelectedIp(0);
        };
        auto *bar = window()->results()->findChild<InfoBar *>();
        const auto isOld = [this](const QString &name) {
            const auto *list =
                window()->results()->findChild<QListWidget *>(QStringLiteral("fileList"));
            return list->findItems(name, Qt::MatchExactly).isEmpty() &&
                   list->findItems(name + QStringLiteral(" (of an earlier run)"), Qt::MatchExactly)
                           .size() == 1;
        };

        generate(0);
        QCOMPARE(window()->project()->files(), QStringList(verilog));
        QVERIFY(bar->isHidden());

        write(verilog + QStringLiteral(".unsaved"), "// not of this run\n");
        generate(1);
        QCOMPARE(window()->project()->files(), QStringList({verilog, vhdl}));
        QVERIFY(!window()->results()->files().contains(verilog + QStringLiteral(".unsaved")));
        QVERIFY(window()->results()->files().contains(verilog));
        QVERIFY(isOld(QStringLiteral("tarvo_orix_m1.v")));
        QVERIFY(isOld(QStringLiteral("tarvo_orix_m1_tmp.v")));
        QVERIFY(!isOld(QStringLiteral("tarvo_orix_m1.vo")));
        QVERIFY(!bar->isHidden());
        QVERIFY2(bar->text().contains(QLatin1String("lists tarvo_orix_m1.v,")),
                 qPrintable(bar->text()));
        bar->findChild<QPushButton *>()->click();
        QVERIFY(bar->isHidden());
        QCOMPARE(window()->project()->files(), QStringList(vhdl));
        QVERIFY(QFileInfo::exists(verilog));

        // And back. The same netlist as at first is the newer one again.
        generate(0);
        QCOMPARE(window()->project()->files(), QStringList({vhdl, verilog}));
        QVERIFY(isOld(QStringLiteral("tarvo_orix_m1.vhd")));
        QVERIFY(isOld(QStringLiteral("tarvo_orix_m1.vho")));
        QVERIFY(!isOld(QStringLiteral("tarvo_orix_m1.v")));
        QVERIFY(!bar->isHidden());
    }

    void aFailedRunCanBeTriedAgain()
    {
        window()->openProject(m_bench->makeProject());
        QString errorTitle;
        QString errorDetails;
        auto tool = std::make_unique<FakeTool>("erring");
        const ModalWatcher watcher([&](QWidget *modal) {
            if (isIpDialog(modal)) {
                later(modal, [modal] { Bench::ok(modal)->click(); });
            } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
                box->button(QMessageBox::Yes)->click(); // the folder of the first try is there
            } else if (const auto *details =
                           modal->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"))) {
                errorTitle = modal->findChild<QLabel *>(QStringLiteral("titleLabel"))->text();
                errorDetails = details->toPlainText();
                // The messages are in the list behind the window too.
                QVERIFY(window()->messages()->count(MessageModel::Error) > 0);
                tool.reset();
                qobject_cast<QDialog *>(modal)->reject();
                QTimer::singleShot(0, this, [] {
                    QWidget *dialog = QApplication::activeModalWidget();
                    QVERIFY(dialog && isIpDialog(dialog)); // still open: OK once more
                    Bench::ok(dialog)->click();
                });
            }
        });
        window()->createSelectedIp(0);
        QVERIFY(!errorTitle.isEmpty());
        QVERIFY2(errorDetails.contains(QLatin1String("first mistake")), qPrintable(errorDetails));
        checkResults(window()->project()->path() + QStringLiteral("/tarvo_orix_m1"), QString());
    }

    void aCancelledRunLeavesTheDialogOpen()
    {
        window()->openProject(m_bench->makeProject());
        const FakeTool tool("sleeping");
        bool cancelled = false;
        bool isStillOpen = false;
        int others = 0;
        const QObject scope; // of the connection below
        const ModalWatcher watcher([&](QWidget *modal) {
            if (isIpDialog(modal)) {
                isStillOpen = cancelled;
                later(modal, [modal, isStillOpen] {
                    if (isStillOpen)
                        qobject_cast<QDialog *>(modal)->reject();
                    else
                        Bench::ok(modal)->click();
                });
            } else if (modal->findChild<QLabel *>(QStringLiteral("stageLabel"))) {
                auto *cancel =
                    modal->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel);
                connect(&IPCore::SynthesisMonitor::instance(),
                        &IPCore::SynthesisMonitor::runFinished, &scope,
                        [&cancelled](const Synthesis::RunReport &report) {
                            cancelled = report.cancelled;
                        });
                later(modal, [cancel] { cancel->click(); });
            } else {
                ++others; // cancelling is no error
                qobject_cast<QDialog *>(modal)->reject();
            }
        });
        window()->createSelectedIp(0);
        QVERIFY(isStillOpen);
        QVERIFY(cancelled);
        // OK has stored it: nothing was dropped with the dialog.
        QVERIFY(QFileInfo::exists(window()->project()->path() +
                                  QStringLiteral("/tarvo_orix_m1/tarvo_orix_m1.ipc")));
        QVERIFY(window()->kept()->items().isEmpty());
        QVERIFY(window()->infoBar()->isHidden());
        QCOMPARE(others, 0);
        QVERIFY(window()->project()->files().isEmpty());
        QVERIFY(m_bench->tabTexts().isEmpty());
        QCOMPARE(window()->findChild<QLabel *>(QStringLiteral("runLabel"))->text(),
                 QStringLiteral("Synthesis cancelled"));
    }

    void aRunEndsWithTheWindow()
    {
        window()->openProject(m_bench->makeProject());
        const FakeTool tool("sleeping");
        QSignalSpy closed(window(), &MainWindow::closed);
        QList<qint64> processes;
        const QObject scope; // of the connections below
        const ModalWatcher watcher([&](QWidget *modal) {
            if (isIpDialog(modal) && processes.isEmpty())
                later(modal, [modal] { Bench::ok(modal)->click(); });
        });
        connect(&IPCore::SynthesisMonitor::instance(), &IPCore::SynthesisMonitor::runStarted,
                &scope, [&](IPCore::SynthesisHelper *helper) {
                    connect(
                        helper, &IPCore::SynthesisHelper::logReceived, &scope,
                        [&](const QString &line) { // "group 12 child 34"
                            const QStringList words = line.split(u' ');
                            processes = {words.value(1).toLongLong(), words.value(3).toLongLong()};
                            QTimer::singleShot(0, window(), &MainWindow::shutDown);
                        });
                });
        window()->createSelectedIp(0); // returns though nobody closes its dialog
        QTRY_COMPARE(closed.size(), 1);
        QCOMPARE(processes.size(), 2);
        for (const qint64 process : qAsConst(processes)) {
            QVERIFY(process > 1);
            QTRY_VERIFY(!isAlive(process));
        }
    }

    void anIpDialogThatIsCancelledLeavesNothing()
    {
        window()->openProject(m_bench->makeProject());
        const QStringList before = entriesOf(window()->project()->path());
        const ModalWatcher watcher(
            [](QWidget *modal) { qobject_cast<QDialog *>(modal)->reject(); });
        window()->createSelectedIp(0);
        QCOMPARE(entriesOf(window()->project()->path()), before);
        QVERIFY(m_bench->tabTexts().isEmpty());
    }

private:
    MainWindow *window() const { return m_bench->window.get(); }

    // GPIO on in its dialog, UART0 on in its menu, a look at the preview, UART0 undone, OK.
    static bool configure(QWidget *dialog, Person *person)
    {
        auto *view = dialog->findChild<QGraphicsView *>();
        person->doubleClick(view->viewport(), placeOf(view, {170, 280}));
        if (!person->chooseFromMenu(view->viewport(), placeOf(view, {30, 480}), "Switch UART0 On"))
            return false;
        QWidget *companion = nullptr;
        const auto isThere = [&companion] {
            const auto windows = QApplication::topLevelWidgets();
            for (QWidget *window : windows) {
                if (window->objectName() == QLatin1String("companion") && window->isVisible())
                    companion = window;
            }
            return companion != nullptr;
        };
        if (!QTest::qWaitFor(isThere, 30000))
            return false;
        auto *tabs = companion->findChild<QTabBar *>();
        if (!person->click(tabs, QStringLiteral("Preview")))
            return false;
        const auto isPreviewed = [companion] {
            const auto labels = companion->findChildren<QLabel *>();
            return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
                return label->isVisible() &&
                       label->text().startsWith(QLatin1String("OK would write"));
            });
        };
        if (!QTest::qWaitFor(isPreviewed, 30000) || !person->click(tabs, QStringLiteral("Steps")))
            return false;
        auto *undo = companion->findChild<QPushButton *>(QStringLiteral("undoButton"));
        QWidget *ok = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))
                          ->button(QDialogButtonBox::Ok);
        const auto isReady = [undo] { return undo->isVisible() && undo->isEnabled(); };
        return QTest::qWaitFor(isReady, 30000) && person->click(undo) && person->click(ok);
    }

    // The tree tells what is out of date, whoever changes a file, and who edits what is generated
    // is told.
    void checkMarks(const QString &ip)
    {
        const QString file = ip + QStringLiteral("/tarvo_orix_m1.ipc");
        const auto index = [&] {
            return window()->findChild<ProjectPane *>()->model()->indexOf(file);
        };
        const auto isBehind = [&] { return index().data(ProjectModel::BehindRole).toBool(); };
        const auto set = [&](const char *option) {
            return QProcess::execute(QStringLiteral(TARVO_COMMAND),
                                     {QStringLiteral("set"), file, QLatin1String(option)});
        };
        const qint64 icon = index().data(Qt::DecorationRole).value<QIcon>().cacheKey();
        QVERIFY(!isBehind());
        QCOMPARE(set("Enable I2C=true"), 0);
        QTRY_VERIFY(isBehind());
        for (const int role : {int(Qt::ToolTipRole), int(Qt::AccessibleTextRole)}) {
            const QString told = index().data(role).toString();
            QVERIFY2(told.contains(QLatin1String("out of date")), qPrintable(told));
            QVERIFY2(told.contains(QLatin1String("I2C")), qPrintable(told));
        }
        QVERIFY(index().data(Qt::DecorationRole).value<QIcon>().cacheKey() != icon);
        QCOMPARE(set("Enable I2C=false"), 0);
        QTRY_VERIFY(!isBehind()); // as it was generated
        const QString header = ip + QStringLiteral("/temp/tv_orix_m1/parameter.vh");
        const QByteArray text = contentsOf(header);
        QVERIFY(window()->openPath(header));
        EditorPage *page = window()->tabs()->currentPage();
        page->startEditing();
        QVERIFY(!page->infoBar()->isHidden());
        QVERIFY2(page->infoBar()->text().contains(file), qPrintable(page->infoBar()->text()));
        QVERIFY(page->infoBar()->findChild<QPushButton *>()->text().contains(
            QLatin1String("Configuration")));
        QTest::keyClicks(page->editor(), QStringLiteral("// mine"));
        QVERIFY(window()->tabs()->savePage(page));
        QTRY_VERIFY(isBehind());
        write(header, text);
        QTRY_VERIFY(!isBehind());
        QVERIFY(window()->tabs()->closeTab(window()->tabs()->currentIndex()));
    }

    void makeProjectByDialog()
    {
        const ModalWatcher watcher([](QWidget *modal) {
            QVERIFY(!Bench::ok(modal)->isEnabled());
            QTest::keyClicks(modal->findChild<QLineEdit *>(QStringLiteral("nameEdit")),
                             QStringLiteral("sensor"));
            QVERIFY(!Bench::ok(modal)->isEnabled());
            auto *filter = modal->findChild<QLineEdit *>(QStringLiteral("deviceFilterEdit"));
            QTest::keyClicks(filter, QStringLiteral("tv2kr-18c qfn88p c8"));
            QTest::keyClick(filter, Qt::Key_Down);
            QVERIFY(Bench::ok(modal)->isEnabled());
            Bench::ok(modal)->click();
        });
        m_bench->action("New Project")->trigger();
        QVERIFY(window()->project());
        QCOMPARE(window()->project()->device().device(), QStringLiteral("TV2KR-18C"));
    }

    // After a successful run into the folder `ip`.
    void checkResults(const QString &ip, const QString &pin)
    {
        QCOMPARE(m_bench->tabTexts(),
                 QStringList({QStringLiteral("tarvo_orix_m1.v"),
                              QStringLiteral("tarvo_orix_m1_tmp.v"), QStringLiteral("Results")}));
        QCOMPARE(window()->project()->files(),
                 QStringList(ip + QStringLiteral("/tarvo_orix_m1.v")));
        EditorPage *netlist = window()->tabs()->pageOf(ip + QStringLiteral("/tarvo_orix_m1.v"));
        QVERIFY(netlist);
        QCOMPARE(netlist->editor()->toPlainText().toUtf8(),
                 contentsOf(ip + QStringLiteral("/tarvo_orix_m1.v")));
        QCOMPARE(window()->messages()->count(MessageModel::Error), 0);
        QVERIFY(m_bench->message(0).startsWith(QLatin1String("tarvo_orix_m1")));
        QVERIFY(!window()->log()->toPlainText().isEmpty());
        QVERIFY(window()->results()->files().contains(ip + QStringLiteral("/tarvo_orix_m1.ipc")));
        QVERIFY(window()->results()->files().contains(ip + QStringLiteral("/tarvo_orix_m1.vo")));
        QVERIFY(window()->results()->figure()->pins().size() > 3);
        QVERIFY2(pinNames(window()->results()).contains(pin, Qt::CaseInsensitive),
                 qPrintable(pinNames(window()->results())));
    }

    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestEndToEnd)
#include "tst_endtoend.moc"
