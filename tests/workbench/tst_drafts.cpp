// What is in the dialog of an IP outlives it: on the start page, and when the program is killed.

#include "hands.h"

#include <workbench/kept/keptconfigurations.h>

#include <QCommandLinkButton>
#include <QGraphicsView>
#include <QLabel>
#include <QProcess>

using namespace Workbench;
using namespace TestSupport;

namespace
{

QVariantMap optionsOf(QWidget *dialog)
{
    QVariantMap configuration;
    QMetaObject::invokeMethod(dialog, "configuration", Q_RETURN_ARG(QVariantMap, configuration));
    return configuration.value(QStringLiteral("options")).toMap();
}

// Switches the first blocks after the processor on, as many as that.
void switchOn(QWidget *dialog, int blocks)
{
    auto *view = dialog->findChild<QGraphicsView *>();
    QVERIFY(view);
    view->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view, Qt::Key_Tab);
    for (int i = 0; i < blocks; ++i)
        QTest::keyClick(view, Qt::Key_Space, Qt::ShiftModifier);
}

} // namespace

class TestDrafts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bench = std::make_unique<Bench>();
        m_project = m_bench->makeProject();
        window()->openProject(m_project);
    }
    void cleanup() { m_bench.reset(); }

    void outlivesAKilledWorkbench()
    {
        const QString settings = m_bench->settings.fileName();
        m_bench->window.reset();
        QProcess owner;
        owner.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        owner.start(QStringLiteral(TARVO_DRAFT_OWNER), {settings, m_project});
        QVERIFY(owner.waitForStarted());
        QByteArray told;
        QTRY_VERIFY_WITH_TIMEOUT((told += owner.readAllStandardOutput()).contains('\n') ||
                                     owner.state() == QProcess::NotRunning,
                                 60000);
        QCOMPARE(told, QByteArray("GPIO on, CAN on\n"));
        owner.kill();
        QVERIFY(owner.waitForFinished(30000));
        QCOMPARE(owner.exitStatus(), QProcess::CrashExit);

        m_bench->reopen();
        // With no project open it is offered by its whole path.
        QCOMPARE(links().size(), 1);
        window()->openProject(m_project);
        QCOMPARE(links().size(), 1);
        QVariantMap options;
        const ModalWatcher watcher([&](QWidget *modal) {
            options = optionsOf(modal);
            qobject_cast<QDialog *>(modal)->reject();
        });
        links().first()->click();
        QTRY_COMPARE(watcher.count(), 1);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY(options.value(QStringLiteral("Enable GPIO")).toBool());
        QVERIFY(options.value(QStringLiteral("Enable CAN")).toBool());
        QCOMPARE(window()->kept()->items().size(), 1); // until OK
    }

    void isOfferedByNameTimeAndSteps()
    {
        leave(5);
        QCOMPARE(window()->kept()->items().size(), 1);
        const KeptConfigurations::Item item = window()->kept()->items().first();
        QCOMPARE(item.steps.size(), 5);
        QCOMPARE(links().size(), 1);
        const QCommandLinkButton *link = links().first();
        const QString name = m_bench->catalogue.entries().first().name;
        QVERIFY2(link->text().startsWith(name + QStringLiteral(": ")), qPrintable(link->text()));
        QVERIFY2(link->text().contains(QLatin1String("tarvo_orix_m1.ipc")),
                 qPrintable(link->text()));
        for (const QString &part :
             {item.steps.last(), QStringLiteral("and 2 more before"),
              QLocale().toString(item.time, QLocale::ShortFormat), item.device})
            QVERIFY2(link->description().contains(part), qPrintable(link->description()));
        // It is the first thing to be done, above everything that was there before.
        const auto labels = window()->findChildren<QLabel *>();
        const auto heading = std::find_if(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->text() == QLatin1String("Go on with a draft");
        });
        QVERIFY(heading != labels.end());
        const auto others = window()->findChildren<QCommandLinkButton *>();
        for (const QCommandLinkButton *other : others)
            QVERIFY(other == link || other->window() != link->window() ||
                    other->mapTo(window(), QPoint()).y() > link->mapTo(window(), QPoint()).y());
    }

    void whatWasUndoneIsNoDraft()
    {
        bool wasKept = false;
        bool wasForgotten = false;
        const ModalWatcher watcher([&](QWidget *modal) {
            switchOn(modal, 1);
            wasKept = QTest::qWaitFor([&] { return window()->kept()->items().size() == 1; }, 10000);
            QTest::keyClick(modal->findChild<QGraphicsView *>(), Qt::Key_Z, Qt::ControlModifier);
            wasForgotten =
                QTest::qWaitFor([&] { return window()->kept()->items().isEmpty(); }, 10000);
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        window()->createSelectedIp(0);
        QCOMPARE(watcher.count(), 1);
        QVERIFY(wasKept);
        QVERIFY(wasForgotten);
        QVERIFY(window()->kept()->items().isEmpty());
        QVERIFY(links().isEmpty());
    }

    void whatOkHasStoredIsNoDraft()
    {
        const FakeTool tool("erring"); // the dialog stays open after OK
        int boxes = 0;
        QPointer<QWidget> dialog;
        const ModalWatcher watcher([&](QWidget *modal) {
            if (modal->findChild<QGraphicsView *>() && !dialog) {
                dialog = modal;
                QTimer::singleShot(0, modal, [modal] {
                    switchOn(modal, 1);
                    Bench::ok(modal)->click();
                });
            } else if (modal != dialog &&
                       !modal->findChild<QLabel *>(QStringLiteral("stageLabel"))) {
                ++boxes;
                qobject_cast<QDialog *>(modal)->reject();
                QTimer::singleShot(0, dialog, [&] { qobject_cast<QDialog *>(dialog)->reject(); });
            }
        });
        window()->createSelectedIp(0);
        QVERIFY(boxes > 0);
        QVERIFY(QFileInfo::exists(window()->project()->path() +
                                  QStringLiteral("/tarvo_orix_m1/tarvo_orix_m1.ipc")));
        QVERIFY(window()->kept()->items().isEmpty());
    }

    void oneDialogIsOneDraftHoweverOftenItChanges()
    {
        QStringList ids;
        const ModalWatcher watcher([&](QWidget *modal) {
            auto *view = modal->findChild<QGraphicsView *>();
            view->setFocus(Qt::TabFocusReason);
            QTest::keyClick(view, Qt::Key_Tab);
            for (int i = 1; i <= 3; ++i) {
                QTest::keyClick(view, Qt::Key_Space, Qt::ShiftModifier);
                const auto isKept = [&] {
                    const auto items = window()->kept()->items();
                    return items.size() == 1 && items.first().steps.size() == i;
                };
                if (QTest::qWaitFor(isKept, 10000))
                    ids.append(window()->kept()->items().first().id);
            }
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        window()->createSelectedIp(0);
        ids.removeDuplicates();
        QCOMPARE(ids.size(), 3);
        QCOMPARE(window()->kept()->items().size(), 1);
        QCOMPARE(entriesOf(window()->kept()->folder()).size(), 1);
    }

private:
    MainWindow *window() const { return m_bench->window.get(); }

    // Opens the dialog, switches blocks on and leaves it with Escape.
    void leave(int blocks)
    {
        const ModalWatcher watcher([&](QWidget *modal) {
            switchOn(modal, blocks);
            QTest::keyClick(modal, Qt::Key_Escape);
        });
        window()->createSelectedIp(0);
    }

    // Those of the start page that are seen.
    QList<QCommandLinkButton *> links() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        return window()->findChildren<QCommandLinkButton *>(QStringLiteral("bringBackLink"));
    }

    std::unique_ptr<Bench> m_bench;
    QString m_project;
};

TARVO_TEST_MAIN(QApplication, TestDrafts)
#include "tst_drafts.moc"
