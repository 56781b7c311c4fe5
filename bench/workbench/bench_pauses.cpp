// Tells the longest pause of the event loop while the workbench opens, shows, saves and closes
// much: a netlist of many bytes, a project with many IPs, a run with many messages, the results of
// such runs. bench_pauses [MEGABYTES] [IPS] [MESSAGES] [LIMIT]. A pause is told as time and as what
// of it this thread had the processor, which other programs do not change much; fails if one has
// more than LIMIT milliseconds of the processor.

#include <workbench/catalogue/ipcatalogue.h>
#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/editor/editortabs.h>
#include <workbench/editor/findbar.h>
#include <workbench/messages/messagemodel.h>
#include <workbench/messages/messagesview.h>
#include <workbench/project/project.h>
#include <workbench/results/runstore.h>
#include <workbench/window/mainwindow.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <functional>

using namespace Workbench;

namespace
{

double processorTime()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1000 + double(time.tv_nsec) / 1e6;
}

// Turns of the event loop, as a timer sees them that is always due.
class Turns
{
public:
    explicit Turns(double limit)
        : m_limit(limit)
    {
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { turn(); });
        m_timer.start();
    }

    // Runs `deed` from the event loop, and the loop on until `isDone` and all is quiet.
    void measure(const char *name, const std::function<void()> &deed,
                 const std::function<bool()> &isDone = {})
    {
        settle(50);
        m_longest = m_longestOwn = 0;
        QElapsedTimer whole;
        whole.start();
        turn(true);
        deed();
        turn();
        while (isDone && !isDone())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        settle(200);
        const bool isLong = m_limit > 0 && m_longestOwn > m_limit;
        std::printf("%-48s longest pause %7.1f ms (processor %7.1f ms), done after %7.0f ms%s\n",
                    name, m_longest, m_longestOwn, double(whole.elapsed()) - 200,
                    isLong ? ": above the limit" : "");
        std::fflush(stdout);
        m_isGood = m_isGood && !isLong;
    }
    bool isGood() const { return m_isGood; }

private:
    void turn(bool first = false)
    {
        const double own = processorTime();
        if (!first) {
            m_longest = qMax(m_longest, double(m_clock.nsecsElapsed()) / 1e6);
            m_longestOwn = qMax(m_longestOwn, own - m_own);
        }
        m_clock.restart();
        m_own = own;
    }

    static void settle(int milliseconds)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_limit;
    bool m_isGood = true;
    double m_own = 0;
    double m_longest = 0;
    double m_longestOwn = 0;
};

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

void showResults(const MainWindow &window)
{
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->shortcut() == QKeySequence(int(Qt::CTRL) + Qt::Key_R) && action->isEnabled())
            return action->trigger();
    }
    qFatal("there are no results");
}

QByteArray netlist(int megabytes)
{
    QByteArray text = "module big ();\n";
    text.reserve((megabytes << 20) + 200);
    while (text.size() < megabytes << 20)
        text += "  TV_LUT4 #(.INIT(16'h8000)) lut_" + QByteArray::number(text.size()) +
                " (.A(n1), .B(n2), .C(n3), .D(n4), .Y(n5));\n";
    return text + "endmodule\n";
}

} // namespace

int main(int argc, char *argv[])
{
    const int megabytes = argc > 1 ? std::atoi(argv[1]) : 60;
    const int ips = argc > 2 ? std::atoi(argv[2]) : 1000;
    const int messages = argc > 3 ? std::atoi(argv[3]) : 10000;
    const double limit = argc > 4 ? std::atof(argv[4]) : 0;
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString netlistFile = folder.filePath(QStringLiteral("big.vo"));
    const QString changedFile = folder.filePath(QStringLiteral("changed.vo"));
    QByteArray text = netlist(megabytes);
    write(netlistFile, text);
    write(changedFile, text.replace(text.size() / 10 * 9, 4, "////"));

    QString error;
    const QString projectFolder = folder.filePath(QStringLiteral("p"));
    auto project = Project::create(projectFolder, QStringLiteral("p"), {}, &error);
    QStringList sources;
    for (int i = 0; i < ips; ++i) {
        const QString ipFolder = projectFolder + QStringLiteral("/ip%1").arg(i);
        QDir().mkpath(ipFolder);
        write(ipFolder + QStringLiteral("/a.ipc"), "[General]\ntype=tarvo_orix_m1\n"
                                                   "target_device=TV2KR-18C-QFN88-C8/I7\n");
        sources.append(ipFolder + QStringLiteral("/a.vo"));
        write(sources.last(), "module a; endmodule\n");
    }
    project->addFiles(sources);
    const QString projectFile = project->file();
    project.reset();

    Synthesis::RunReport report;
    report.summary = QStringLiteral("Synthesis is done.");
    report.files = QStringList{netlistFile};
    for (int i = 0; i < messages; ++i) {
        Synthesis::Message message;
        message.severity = Synthesis::Message::Warning;
        message.text = QStringLiteral("Wire n%1 is used but has no driver.").arg(i);
        message.file = QStringLiteral("/a/source%1.v").arg(i % 100);
        message.line = i + 1;
        report.messages.append(message);
    }

    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    IpCatalogue catalogue;
    MainWindow window(catalogue, settings);
    window.setRunStore(RunStore(folder.filePath(QStringLiteral("runs"))));
    window.resize(1280, 800);
    window.show();
    Turns turns(limit);

    auto *tabs = window.findChild<EditorTabs *>();
    const auto page = [tabs] { return tabs->currentPage(); };
    const auto isQuiet = [page] { return !page() || !page()->isBusy(); };
    turns.measure(
        "netlist: open", [&] { window.openPath(netlistFile); }, isQuiet);
    turns.measure("netlist: to its end", [&] { page()->editor()->moveCursor(QTextCursor::End); });
    turns.measure("netlist: to a line in the middle",
                  [&] { page()->goToLine(page()->editor()->lineCount() / 2); });
    turns.measure("netlist: a page down", [&] {
        QScrollBar *bar = page()->editor()->verticalScrollBar();
        bar->setValue(bar->value() + bar->pageStep());
    });
    turns.measure(
        "netlist: it changes on disk",
        [&] {
            QFile::remove(netlistFile);
            QFile::rename(changedFile, netlistFile);
            page()->checkDisk();
        },
        isQuiet);
    turns.measure("netlist: a change", [&] {
        page()->startEditing();
        page()->editor()->insertPlainText(QStringLiteral("// mine\n"));
    });
    turns.measure(
        "netlist: save", [&] { page()->startSaving(); }, isQuiet);
    turns.measure(
        "netlist: save, and type meanwhile",
        [&] {
            page()->editor()->insertPlainText(QStringLiteral("// more\n"));
            page()->startSaving();
            QTimer::singleShot(20, page(), [&] {
                page()->editor()->insertPlainText(QStringLiteral("// again\n"));
            });
        },
        isQuiet);
    const auto isFound = [page] {
        const auto *state = page()->findBar()->findChild<QLabel *>(QStringLiteral("findState"));
        const QString told = state->text();
        return !told.isEmpty() && !told.contains(QLatin1String("ore than")) &&
               told != FindBar::tr("Searching…");
    };
    turns.measure(
        "netlist: search",
        [&] {
            auto *edit = page()->findBar()->findChild<QLineEdit *>(QStringLiteral("findEdit"));
            edit->setText(QStringLiteral("lut_1"));
            page()->findBar()->start();
            page()->findBar()->findNext();
        },
        isFound);
    turns.measure("netlist: save and close", [&] {
        page()->startSaving();
        tabs->closeTab(tabs->currentIndex());
    });
    turns.measure(
        "netlist: open again", [&] { window.openPath(netlistFile); }, isQuiet);
    turns.measure("netlist: close", [&] { tabs->closeTab(tabs->currentIndex()); });

    auto *model = window.findChild<MessageModel *>();
    turns.measure("messages: of a run", [&] { model->setReport(report); });
    turns.measure("messages: shown", [&] { window.log(); });
    auto *view = window.findChild<MessagesView *>();
    if (view) {
        auto *list = view->findChild<QAbstractItemView *>();
        turns.measure("messages: to the end", [&] { list->scrollToBottom(); });
        turns.measure("messages: all selected", [&] { list->selectAll(); });
    }
    turns.measure("messages: 1,000 more, one by one", [&] {
        for (int i = 0; i < 1000; ++i)
            model->append(MessageModel::Warning, QStringLiteral("more"));
    });
    turns.measure("messages: cleared", [&] { model->clear(); });

    turns.measure("project with many IPs: open", [&] { window.openProject(projectFile); });
    turns.measure("project with many IPs: another source",
                  [&] { window.project()->addFiles({projectFolder + QStringLiteral("/b.v")}); });
    turns.measure("project with many IPs: wider window", [&] { window.resize(1400, 900); });

    RunStore store(folder.filePath(QStringLiteral("runs")));
    report.messages = report.messages.mid(0, 1000);
    KeptRun kept = KeptRun::of(report, {});
    for (int i = 0; i < ips; ++i) {
        auto &figures = kept.figures[projectFolder + QStringLiteral("/ip%1/a").arg(i)];
        for (const char *resource : {"LUT", "FF", "CARRY", "BRAM", "DSP", "IO", "PLL", "CLK"})
            figures.insert(QString::fromLatin1(resource), i);
    }
    if (!store.keep(projectFile, kept, &error))
        qFatal("%s", qPrintable(error));
    window.setRunStore(store);
    const auto areShown = [&window] {
        const auto *heading = window.findChild<QLabel *>(QStringLiteral("resultHeading"));
        return heading && !heading->text().isEmpty();
    };
    turns.measure(
        "results: of the runs before, with that netlist", [&] { showResults(window); }, areShown);
    turns.measure("project with many IPs: close", [&] { window.closeProject(); });
    return turns.isGood() ? 0 : 1;
}
