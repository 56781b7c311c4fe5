// The window goes while a run of the real plug-in is active.

#include "hands.h"

#include <ipcore/synthesishelper.h>
#include <ipcore/synthesismonitor.h>

#include <QGraphicsView>
#include <QLineEdit>

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

// A process that has ended but was not waited for is not alive.
bool isAlive(qint64 process)
{
    const QByteArray stat = contentsOf(QStringLiteral("/proc/%1/stat").arg(process));
    return !stat.isEmpty() && stat.mid(stat.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

class TestEndOfRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<Bench>(); }
    void cleanup() { m_bench.reset(); }

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

private:
    MainWindow *window() const { return m_bench->window.get(); }

    std::unique_ptr<Bench> m_bench;
};

TARVO_TEST_MAIN(QApplication, TestEndOfRun)
#include "tst_endofrun.moc"
