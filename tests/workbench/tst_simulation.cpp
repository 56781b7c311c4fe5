#include "hands.h"

#include <markedprocesses.h>

#include <workbench/editor/codeeditor.h>
#include <workbench/editor/editorpage.h>
#include <workbench/simulation/exampleproject.h>
#include <workbench/simulation/livereader.h>
#include <workbench/simulation/pinpanel.h>
#include <workbench/simulation/pinswitch.h>
#include <workbench/simulation/simulationchoices.h>
#include <workbench/simulation/simulationoffer.h>
#include <workbench/simulation/simulationpage.h>
#include <workbench/simulation/simulationrun.h>
#include <workbench/simulation/simulationstate.h>
#include <workbench/simulation/terminaltext.h>
#include <workbench/simulation/terminalview.h>
#include <workbench/widgets/infobar.h>
#include <workbench/window/startpage.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBlock>
#include <QTreeView>

using namespace Workbench;
using namespace TestSupport;

namespace
{

const QString fakeProgram = QStringLiteral(TARVO_FAKE_TOOLS "/simulator/simulate");

// The events as short texts.
QStringList wordsOf(const QVector<LiveEvent> &events)
{
    QStringList words;
    for (const LiveEvent &event : events) {
        switch (event.kind) {
        case LiveEvent::Stage:
            words.append(QStringLiteral("stage ") + event.text);
            break;
        case LiveEvent::Uart:
            words.append(QStringLiteral("uart %1 ").arg(event.number) +
                         QString::fromLatin1(event.bytes.toHex()));
            break;
        case LiveEvent::Text:
            words.append(QStringLiteral("text ") + event.text);
            break;
        case LiveEvent::Pins:
            words.append(QStringLiteral("pins %1 %2").arg(event.levels).arg(event.driven));
            break;
        case LiveEvent::Time:
            words.append(QStringLiteral("time %1").arg(event.clockCycles));
            break;
        case LiveEvent::Message:
            words.append(QStringLiteral("message %1 %2 %3:%4")
                             .arg(QString::number(event.severity), event.text, event.file,
                                  QString::number(event.line)));
            break;
        case LiveEvent::End:
            words.append(QStringLiteral("end %1 %2 %3 %4 %5")
                             .arg(QString::number(event.result), QString::number(event.status),
                                  QString::number(event.clockCycles), event.text,
                                  event.lines.join(u'/')));
            break;
        case LiveEvent::Unreadable:
            words.append(QStringLiteral("unreadable ") + event.text);
            break;
        }
    }
    return words;
}

QVariantMap kindMap(const char *name)
{
    return {{QStringLiteral("name"), QLatin1String(name)},
            {QStringLiteral("title"), QLatin1String(name)},
            {QStringLiteral("arguments"), QStringList(QStringLiteral("--x"))},
            {QStringLiteral("patterns"), QStringList(QStringLiteral("*.x"))},
            {QStringLiteral("several"), true}};
}

QVariantMap soundOffer()
{
    return {{QStringLiteral("error"), QString()},
            {QStringLiteral("program"), fakeProgram},
            {QStringLiteral("arguments"), QStringList(QStringLiteral("shine"))},
            {QStringLiteral("inputs"), QVariantList{kindMap("c"), kindMap("elf")}},
            {QStringLiteral("engines"), QVariantList{kindMap("slow")}},
            {QStringLiteral("wavesArguments"), QStringList(QStringLiteral("--waves"))},
            {QStringLiteral("wavesSuffix"), QStringLiteral("fst")},
            {QStringLiteral("uarts"), 2},
            {QStringLiteral("pins"), 16},
            {QStringLiteral("clock"), 50000000}};
}

// All events of a run, until its end.
QVector<LiveEvent> eventsOf(SimulationRun *run)
{
    QVector<LiveEvent> all;
    QObject::connect(run, &SimulationRun::received, run,
                     [&all](const QVector<LiveEvent> &events) { all += events; });
    run->start();
    const bool isOver = QTest::qWaitFor(
        [&all] { return !all.isEmpty() && all.last().kind == LiveEvent::End; }, 30000);
    if (!isOver)
        qFatal("the run does not end");
    return all;
}

} // namespace

class TestSimulation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("FAKE_SIMULATOR", fakeProgram.toUtf8()); }
    void cleanup()
    {
        m_bench.reset();
        qunsetenv("FAKE_EXAMPLES");
    }

    // What a simulation prints

    void readsEveryEvent_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("event");
        const auto row = [](const char *name, const char *line, const char *event) {
            QTest::newRow(name) << QByteArray(line) << QString::fromLatin1(event);
        };
        row("stage", R"({"event":"stage","stage":"simulator"})", "stage simulator");
        row("bytes", R"({"event":"uart","number":1,"text":"a\u00ff\u0000\n"})", "uart 1 61ff000a");
        row("text", R"({"event":"text","text":"a\u0007b"})", "text a b");
        row("pins", R"({"event":"gpio","levels":65535,"driven":1})", "pins 65535 1");
        row("time", R"({"event":"time","clockCycles":9007199254740992})", "time 9007199254740992");
        row("error with a place",
            R"({"event":"message","severity":"error","text":"no","file":"/a/b.c","line":7})",
            "message 0 no /a/b.c:7");
        row("warning without a place", R"({"event":"message","severity":"warning","text":"no"})",
            "message 1 no :0");
        row("message with a relative path",
            R"({"event":"message","severity":"note","text":"no","file":"b.c","line":7})",
            "message 2 no :0");
        row("message with a line that is none",
            R"({"event":"message","severity":"note","text":"no","file":"/b.c","line":-7})",
            "message 2 no /b.c:0");
        row("passed",
            R"({"event":"end","result":"passed","status":0,"reason":"","clockCycles":9,"lines":["a","b"]})",
            "end 0 0 9  a/b");
        row("failed", R"({"event":"end","result":"failed","status":1,"reason":"it did"})",
            "end 1 1 0 it did ");
        row("time limit", R"({"event":"end","result":"time limit","status":124})", "end 2 124 0  ");
        row("cancelled", R"({"event":"end","result":"cancelled","status":130})", "end 3 130 0  ");
        row("a result that is not known", R"({"event":"end","result":"won","status":"x"})",
            "end 1 1 0  ");
    }
    void readsEveryEvent()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, event);
        QCOMPARE(wordsOf(LiveReader().take(line + '\n')), QStringList(event));
        // In any pieces, and without the last line end.
        LiveReader reader;
        QVector<LiveEvent> events;
        for (const char c : qAsConst(line))
            events += reader.take(QByteArray(1, c));
        QVERIFY(events.isEmpty());
        QCOMPARE(wordsOf(reader.finish()), QStringList(event));
    }

    void bearsWhatIsNoEvent_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("events");
        const auto row = [](const char *name, const QByteArray &line, const char *events = "") {
            QTest::newRow(name) << line << QString::fromLatin1(events);
        };
        row("nothing", "");
        row("spaces", "  \t");
        row("no JSON", "hello \x1b[31m", "unreadable hello  [31m");
        row("a list", "[1]", "unreadable [1]");
        row("half an object", R"({"event":"time")", "unreadable {\"event\":\"time\"");
        row("another event", R"({"event":"tune","notes":3})");
        row("no event", R"({"clockCycles":3})");
        row("a UART that is none", R"({"event":"uart","number":16,"text":"x"})");
        row("a number that is no text", R"({"event":"uart","number":0,"text":7})");
        row("pins beyond the last", R"({"event":"gpio","levels":65536,"driven":0})");
        row("half a clock cycle", R"({"event":"time","clockCycles":1.5})");
        row("time that runs backwards", R"({"event":"time","clockCycles":-1})");
        row("too much time", R"({"event":"time","clockCycles":1e300})");
        row("a message without a text", R"({"event":"message","severity":"error"})");
    }
    void bearsWhatIsNoEvent()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, events);
        LiveReader reader;
        QCOMPARE(wordsOf(reader.take(line + '\n')).join(u';'), events);
        // The next line is read as if nothing had been.
        QCOMPARE(wordsOf(reader.take("{\"event\":\"time\",\"clockCycles\":1}\n")),
                 QStringList(QStringLiteral("time 1")));
    }

    void tellsOnlyThatALineIsTooLong()
    {
        LiveReader reader;
        const QByteArray piece(1 << 16, 'x');
        for (int i = 0; i < 40; ++i)
            QVERIFY(reader.take(piece).isEmpty());
        const QStringList words =
            wordsOf(reader.take("x\n{\"event\":\"time\",\"clockCycles\":1}\n"));
        QCOMPARE(words.size(), 2);
        QVERIFY2(words.first().startsWith(QLatin1String("unreadable")) &&
                     words.first().size() < 100,
                 qPrintable(words.first()));
        QCOMPARE(words.last(), QStringLiteral("time 1"));
        // As deep as a line can be.
        const QByteArray deep = QByteArray("{\"a\":").repeated(100000) + '\n';
        QCOMPARE(reader.take(deep).size(), 1);
        // A text for a list is cut, and so is a summary.
        const QByteArray lines = QByteArray("\"l\",").repeated(1000) + "\"l\"";
        const auto end = reader.take("{\"event\":\"end\",\"lines\":[" + lines + "],\"reason\":\"" +
                                     QByteArray(100000, 'r') + "\"}\n");
        QCOMPARE(end.size(), 1);
        QCOMPARE(end.first().lines.size(), LiveReader::linesLimit);
        QCOMPARE(end.first().text.size(), LiveReader::textLimit);
    }

    void writesALineForEachCommand()
    {
        const auto object = [](const QByteArray &line) {
            return line.count('\n') == 1 && line.endsWith('\n')
                       ? QJsonDocument::fromJson(line).object()
                       : QJsonObject();
        };
        const QJsonObject input = object(LiveReader::input(1, QByteArray("a\xff\n", 3)));
        QCOMPARE(input.value(QStringLiteral("uart")).toInt(-1), 1);
        QCOMPARE(input.value(QStringLiteral("text")).toString().toLatin1(),
                 QByteArray("a\xff\n", 3));
        const QJsonObject pins =
            object(LiveReader::pins(0xffff, 0x8001)).value(QStringLiteral("gpio")).toObject();
        QCOMPARE(pins.value(QStringLiteral("mask")).toInt(), 0xffff);
        QCOMPARE(pins.value(QStringLiteral("levels")).toInt(), 0x8001);
        QVERIFY(object(LiveReader::stop()).value(QStringLiteral("stop")).toBool());
    }

    // In words

    void tellsWhatBecameOfARun_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<qulonglong>("cycles");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("sentence");
        const auto row = [](LiveEvent::Result result, qulonglong cycles, const char *reason,
                            const char *sentence) {
            QTest::newRow(sentence) << int(result) << cycles << QString::fromLatin1(reason)
                                    << QString::fromLatin1(sentence);
        };
        row(LiveEvent::Passed, 5784, "", "Passed after 5,784 clock cycles");
        row(LiveEvent::Passed, 1, "", "Passed after 1 clock cycle");
        row(LiveEvent::Passed, 0, "", "Passed after 0 clock cycles");
        row(LiveEvent::Failed, 1234567, "main() returned 3",
            "Failed after 1,234,567 clock cycles: main() returned 3");
        row(LiveEvent::Failed, 0, "there is no simulator",
            "The program did not run: there is no simulator");
        row(LiveEvent::TimeLimit, 10000000, "",
            "Ended by the time limit after 10,000,000 clock cycles");
        row(LiveEvent::Cancelled, 77, "", "Stopped after 77 clock cycles");
        row(LiveEvent::Cancelled, 0, "", "Stopped before the program ran");
    }
    void tellsWhatBecameOfARun()
    {
        QFETCH(int, result);
        QFETCH(qulonglong, cycles);
        QFETCH(QString, reason);
        QFETCH(QString, sentence);
        LiveEvent end;
        end.kind = LiveEvent::End;
        end.result = LiveEvent::Result(result);
        end.clockCycles = cycles;
        end.text = reason;
        SimulationState state;
        state.phase = SimulationState::Running;
        QCOMPARE(state.result(), QString());
        state.take(end);
        QCOMPARE(state.result(), sentence);
        QVERIFY(!state.isActive());
    }

    void tellsHowFarARunIs()
    {
        const int clock = 50000000;
        SimulationState state;
        QCOMPARE(state.progress(clock), QString());
        state.phase = SimulationState::Running;
        const auto after = [&](const char *line) {
            state.take(LiveReader().take(QByteArray(line) + '\n').first());
            return state.progress(clock);
        };
        QCOMPARE(state.progress(clock), QStringLiteral("Starting…"));
        QCOMPARE(after(R"({"event":"stage","stage":"program"})"),
                 QStringLiteral("Compiling the program…"));
        QCOMPARE(after(R"({"event":"stage","stage":"simulator"})"),
                 QStringLiteral("Building the simulation…"));
        QCOMPARE(after(R"({"event":"stage","stage":"run"})"),
                 QStringLiteral("Running: 0.00 µs, 0 clock cycles"));
        QCOMPARE(after(R"({"event":"time","clockCycles":617500})"),
                 QStringLiteral("Running: 12.35 ms, 617,500 clock cycles"));
        QCOMPARE(after(R"({"event":"time","clockCycles":125000000})"),
                 QStringLiteral("Running: 2.50 s, 125,000,000 clock cycles"));
        state.phase = SimulationState::Stopping;
        QCOMPARE(state.progress(clock), QStringLiteral("Stopping…"));
    }

    // A terminal

    void showsBytesAsATerminalDoes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QByteArray &bytes, const char *shown) {
            QTest::newRow(name) << bytes << QString::fromUtf8(shown);
        };
        row("text", "a\tb", "a\tb");
        row("line feeds", "a\nb\n", "a\nb\n");
        row("returns and line feeds", "a\r\nb\r\n\r\n", "a\nb\n\n");
        row("returns alone", "a\rb", "a\nb");
        row("UTF-8", "\xc3\xa4\xe2\x82\xac", "ä€");
        row("no UTF-8",
            "a\xff"
            "b",
            "a\xef\xbf\xbd"
            "b");
        row("a backspace", "abc\b\bx", "ax");
        row("a rub out", "abc\b \bx", "abx");
        row("a backspace at the beginning of a line", "a\n\bx", "a\nx");
        row("control characters", QByteArray("\x1b[0m\x07\x7f\0", 7), "␛[0m␇␡␀");
        row("text that turns round", "\xe2\x80\xae", "\xef\xbf\xbd");
        row("a line without an end", QByteArray(TerminalText::lineLimit + 1, 'x'), "");
    }
    void showsBytesAsATerminalDoes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, shown);
        if (shown.isEmpty())
            shown = QString(TerminalText::lineLimit, u'x') + QStringLiteral("\nx");
        TerminalView whole;
        whole.take(bytes);
        QCOMPARE(whole.toPlainText(), shown);
        TerminalView pieces;
        for (const char c : qAsConst(bytes))
            pieces.take(QByteArray(1, c));
        QCOMPARE(pieces.toPlainText(), shown);
    }

    void keepsOnlyTheLastLines()
    {
        TerminalView view;
        for (int i = 0; i < TerminalView::lineCountLimit + 100; ++i)
            view.take(QByteArray::number(i) + '\n');
        QCOMPARE(view.blockCount(), TerminalView::lineCountLimit);
        QVERIFY(view.toPlainText().endsWith(
            QStringLiteral("\n%1\n").arg(TerminalView::lineCountLimit + 99)));
    }

    // What a plug-in answers

    void takesASoundOffer()
    {
        const auto offer = SimulationAnswer::offerOf(soundOffer());
        QVERIFY2(offer, qPrintable(offer.reason()));
        QCOMPARE(
            offer->commandLine(*offer->input(QStringLiteral("elf")),
                               {QStringLiteral("/a b"), QStringLiteral("/c")},
                               offer->engines.first(), QStringLiteral("/w.fst")),
            (QStringList{QStringLiteral("shine"), QStringLiteral("--x"), QStringLiteral("--waves"),
                         QStringLiteral("/w.fst"), QStringLiteral("--x"), QStringLiteral("/a b"),
                         QStringLiteral("/c")}));
        QVERIFY(!offer->input(QStringLiteral("marble")));
        const auto refused =
            SimulationAnswer::offerOf({{QStringLiteral("error"), QStringLiteral("Out of lamps.")}});
        QVERIFY(refused);
        QCOMPARE(refused->error, QStringLiteral("Out of lamps."));
    }

    void refusesAnOfferThatIsNotSound_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, const char *key, const QVariant &value) {
            QTest::newRow(name) << QString::fromLatin1(key) << value;
        };
        row("an error of two lines", "error", QStringLiteral("a\nb"));
        row("an error that is a number", "error", 3);
        row("no program", "program", QVariant());
        row("a program that is found by a search", "program", QStringLiteral("ls"));
        row("a folder as the program", "program", QStringLiteral("/tmp"));
        row("a file that is no program", "program", QStringLiteral(TARVO_SOURCE_DIR "/README.md"));
        row("arguments that are a number", "arguments", 3);
        row("an argument that is a number", "arguments", QVariantList{3});
        row("too many arguments", "arguments",
            QVariantList(QVector<QVariant>(51, QStringLiteral("x")).toList()));
        row("no inputs", "inputs", QVariantList());
        row("an input that is a text", "inputs", QVariantList{QStringLiteral("c")});
        row("an input without a name", "inputs", QVariantList{kindMap("")});
        row("an input twice", "inputs", QVariantList{kindMap("c"), kindMap("c")});
        row("no engines", "engines", QVariant());
        row("waves in another folder", "wavesSuffix", QStringLiteral("/../x"));
        row("waves without a name", "wavesSuffix", QString());
        row("too many UARTs", "uarts", 5);
        row("too few UARTs", "uarts", -1);
        row("too many pins", "pins", 17);
        row("pins that are a text", "pins", QStringLiteral("16"));
        row("a clock that stands", "clock", 0);
    }
    void refusesAnOfferThatIsNotSound()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QVariantMap answer = soundOffer();
        answer.insert(key, value);
        const auto offer = SimulationAnswer::offerOf(answer);
        QVERIFY(!offer);
        QVERIFY(!offer.reason().isEmpty());
    }

    void refusesExamplesThatCannotBeCopied()
    {
        const QString file = QStringLiteral(TARVO_EXAMPLES_DIR "/sensor-node.ipc");
        const QVariantMap sound{{QStringLiteral("title"), QStringLiteral("x")},
                                {QStringLiteral("configuration"), file},
                                {QStringLiteral("files"), QStringList(fakeProgram)},
                                {QStringLiteral("program"), fakeProgram}};
        QVERIFY(SimulationAnswer::examplesOf({sound}));
        const auto with = [&](const char *key, const QVariant &value) {
            QVariantMap example = sound;
            example.insert(QLatin1String(key), value);
            return SimulationAnswer::examplesOf({sound, example});
        };
        QVERIFY(!with("title", QString()));
        QVERIFY(!with("configuration", QStringLiteral("/nowhere.ipc")));
        QVERIFY(!with("configuration", QStringLiteral("sensor-node.ipc")));
        QVERIFY(!with("files", QStringList{fakeProgram, fakeProgram}));
        QVERIFY(!with("files", QStringList{fakeProgram, QStringLiteral("/nowhere.c")}));
        QVERIFY(!with("program", file));
        QVERIFY(!SimulationAnswer::examplesOf({3}));
    }

    void remembersTheChoicesOfTheLastIps()
    {
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        SimulationChoices choices(settings);
        QVERIFY(choices.of(QStringLiteral("/a.ipc")).files.isEmpty());
        SimulationChoice choice{QStringLiteral("c"),
                                {QStringLiteral("/x;y.c"), QStringLiteral("/ä.c")},
                                QStringLiteral("fast"),
                                true};
        choices.keep(QStringLiteral("/a.ipc"), choice);
        settings.sync();
        QSettings again(settings.fileName(), QSettings::IniFormat);
        const SimulationChoice kept = SimulationChoices(again).of(QStringLiteral("/a.ipc"));
        QCOMPARE(kept.input, choice.input);
        QCOMPARE(kept.files, choice.files);
        QCOMPARE(kept.engine, choice.engine);
        QVERIFY(kept.hasWaves);
        for (int i = 0; i < SimulationChoices::limit; ++i)
            choices.keep(QStringLiteral("/%1.ipc").arg(i), {});
        QVERIFY(choices.of(QStringLiteral("/a.ipc")).input.isEmpty());
        settings.setValue(QStringLiteral("simulations"), QStringLiteral("{[x"));
        QVERIFY(choices.of(QStringLiteral("/1.ipc")).input.isEmpty());
    }

    // A process

    void everyRunEndsWithAnEnd_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("it tells its end") << fakeProgram << QStringLiteral("hello")
                                          << QStringLiteral("Passed after 5,784 clock cycles");
        QTest::newRow("it tells a mistake")
            << fakeProgram << QStringLiteral("mistake")
            << QStringLiteral("The program did not run: the program does not compile");
        QTest::newRow("it says why on standard error")
            << fakeProgram << QStringLiteral("silent")
            << QStringLiteral("The program did not run: the simulator is not there");
        QTest::newRow("it says nothing")
            << fakeProgram << QStringLiteral("mute")
            << QStringLiteral("The program did not run: the program that simulates ended with "
                              "status 7 and told nothing");
        QTest::newRow("it crashes") << fakeProgram << QStringLiteral("dying")
                                    << QStringLiteral("The program did not run: the program that "
                                                      "simulates was ended by a signal");
        QTest::newRow("it is not there")
            << QStringLiteral("/nowhere/simulate") << QStringLiteral("hello")
            << QStringLiteral("/nowhere/simulate");
    }
    void everyRunEndsWithAnEnd()
    {
        QFETCH(QString, program);
        QFETCH(QString, kind);
        QFETCH(QString, sentence);
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("x.c")), kind.toUtf8() + '\n');
        SimulationRun run(program, {dir.filePath(QStringLiteral("x.c"))}, dir.path());
        const QVector<LiveEvent> events = eventsOf(&run);
        SimulationState state;
        int ends = 0;
        for (const LiveEvent &event : events) {
            state.take(event);
            ends += event.kind == LiveEvent::End;
        }
        QCOMPARE(ends, 1);
        QVERIFY2(state.result().contains(sentence), qPrintable(state.result()));
    }

    void whatDoesNotStopIsEnded()
    {
        const Mark mark;
        qputenv(mark.name(), mark.value());
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("x.c")), "stubborn\n");
        SimulationRun run(fakeProgram, {dir.filePath(QStringLiteral("x.c"))}, dir.path());
        run.setPatience(1, 1);
        connect(&run, &SimulationRun::received, &run, [&run](const QVector<LiveEvent> &events) {
            if (wordsOf(events).contains(QStringLiteral("time 1")))
                run.stop();
        });
        const LiveEvent end = eventsOf(&run).last();
        QCOMPARE(int(end.result), int(LiveEvent::Cancelled));
        QVERIFY(mark.processes().isEmpty());
        qunsetenv(mark.name());
    }

    void aRunThatIsDroppedIsEnded()
    {
        const Mark mark;
        qputenv(mark.name(), mark.value());
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("x.c")), "stubborn\n");
        auto run = std::make_unique<SimulationRun>(
            fakeProgram, QStringList(dir.filePath(QStringLiteral("x.c"))), dir.path());
        bool isRunning = false;
        connect(run.get(), &SimulationRun::received, this, [&isRunning] { isRunning = true; });
        run->start();
        QTRY_VERIFY(isRunning);
        QCOMPARE(mark.processes().size(), 1);
        run.reset();
        QVERIFY(mark.processes().isEmpty());
        qunsetenv(mark.name());
    }

    void aKilledWorkbenchLeavesNoProcess()
    {
        const Mark mark;
        const QTemporaryDir dir;
        write(dir.filePath(QStringLiteral("x.c")), "stubborn\n");
        QProcess owner;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(mark.name()), QString::fromLatin1(mark.value()));
        owner.setProcessEnvironment(environment);
        owner.start(QStringLiteral(TARVO_SIMULATION_OWNER),
                    {fakeProgram, dir.filePath(QStringLiteral("x.c"))});
        QVERIFY(owner.waitForReadyRead(30000));
        QVERIFY(owner.readLine().trimmed().toLongLong() > 0);
        QCOMPARE(mark.processes().size(), 2);
        owner.kill();
        QVERIFY(owner.waitForFinished(30000));
        QTRY_VERIFY(mark.processes().isEmpty());
    }

    // The page

    void runsAProgramAndShowsWhatItTells()
    {
        SimulationPage *page = openPage("hello\n");
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Simulate lamp")));
        QVERIFY(page->runButton()->isEnabled());
        QVERIFY(page->runButton()->hasFocus()); // what one does next
        QTest::mouseClick(page->runButton(), Qt::LeftButton);
        QVERIFY(!page->runButton()->isEnabled());
        QVERIFY(page->terminal(0)->hasFocus());
        waitForEnd(page);
        QCOMPARE(page->terminal(0)->toPlainText(), QStringLiteral("hello, world\n"));
        QCOMPARE(page->terminal(1)->toPlainText(), QStringLiteral("second"));
        QVERIFY(!page->terminal(2));
        QCOMPARE(page->findChild<QPlainTextEdit *>(QStringLiteral("terminal2"))->toPlainText(),
                 QStringLiteral("semihosting: said\n"));
        // What is new in the others is marked until it is looked at.
        auto *output = child<QComboBox>(page, "outputCombo");
        QCOMPARE(output->itemText(0), QStringLiteral("UART0"));
        QCOMPARE(output->itemText(1), QStringLiteral("UART1 •"));
        output->setCurrentIndex(1);
        QCOMPARE(output->itemText(1), QStringLiteral("UART1"));
        QVERIFY(page->terminal(1)->isVisible());

        QCOMPARE(child<QLabel>(page, "simulationResult")->text(),
                 QStringLiteral("Passed after 5,784 clock cycles"));
        QCOMPARE(child<QLabel>(page, "simulationProgress")->text(),
                 QStringLiteral("115.68 µs, 5,784 clock cycles"));
        QCOMPARE(page->messages()->rowCount(), 1);
        QCOMPARE(page->messages()->index(0, 0).data().toString(),
                 QStringLiteral("A line of the summary."));
        const auto &pins = page->pins()->pins();
        QCOMPARE(pins.size(), 16);
        QVERIFY(pins.at(0)->isHigh() && !pins.at(1)->isHigh() && pins.at(2)->isHigh());
        QVERIFY(pins.at(7)->isDriven() && !pins.at(8)->isDriven());
        QCOMPARE(arguments(), (QStringList{QStringLiteral("shine"), m_ipc, QStringLiteral("--slow"),
                                           QStringLiteral("--c"), m_program}));
        QVERIFY(page->runButton()->isEnabled());
        QVERIFY(!child<QPushButton>(page, "stopButton")->isEnabled());
        QVERIFY(!page->process());
    }

    void whatIsTypedReachesTheProgram()
    {
        SimulationPage *page = openPage("echo\n");
        QVERIFY(page->run());
        QTRY_COMPARE(page->state().clockCycles, 10ull);
        TerminalView *terminal = page->terminal(0);
        terminal->setFocus();
        QTest::keyClicks(terminal, QStringLiteral("a "));
        QTRY_COMPARE(terminal->toPlainText(), QStringLiteral("<a>< >"));
        QTest::keyClick(terminal, Qt::Key_Return);
        QTest::keyClick(terminal, Qt::Key_Backspace);
        QTRY_COMPARE(terminal->toPlainText(), QStringLiteral("<a>< ><\n>>"));
        // Short cuts stay what they are.
        QTest::keyClick(terminal, Qt::Key_C, Qt::ControlModifier);

        child<QComboBox>(page, "outputCombo")->setCurrentIndex(1);
        auto *line = child<QLineEdit>(page, "lineEdit");
        QTest::keyClicks(line, QStringLiteral("two words"));
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(page->terminal(1)->toPlainText(), QStringLiteral("<two words\n>"));
        QCOMPARE(line->text(), QString());
        QTest::keyClicks(line, QStringLiteral("x"));
        QTest::mouseClick(child<QPushButton>(page, "sendButton"), Qt::LeftButton);
        QTRY_COMPARE(page->terminal(1)->toPlainText(), QStringLiteral("<two words\n><x\n>"));
        // Lines of semihosting are not for typing.
        child<QComboBox>(page, "outputCombo")->setCurrentIndex(2);
        QVERIFY(!line->isEnabled());
        QCOMPARE(terminal->toPlainText(), QStringLiteral("<a>< ><\n>>"));

        QTest::mouseClick(child<QPushButton>(page, "stopButton"), Qt::LeftButton);
        waitForEnd(page);
        QCOMPARE(child<QLabel>(page, "simulationResult")->text(),
                 QStringLiteral("Stopped after 77 clock cycles"));
        // Nobody listens any more.
        QTest::keyClicks(terminal, QStringLiteral("z"));
        QCOMPARE(terminal->toPlainText(), QStringLiteral("<a>< ><\n>>"));
    }

    void switchesDrivePinsFromOutside()
    {
        SimulationPage *page = openPage("echo\n");
        const auto &pins = page->pins()->pins();
        // From the beginning.
        pins.at(3)->click();
        QCOMPARE(page->pins()->mask(), 8u);
        QVERIFY(page->run());
        const auto masks = [page] {
            return page->findChild<QPlainTextEdit *>(QStringLiteral("terminal2"))->toPlainText();
        };
        QTRY_COMPARE(masks(), QStringLiteral("mask 8\n"));
        QTRY_VERIFY(pins.at(3)->isHigh());
        // High, low, away; by the keyboard as by the mouse.
        QTest::keyClick(pins.at(15), Qt::Key_Space);
        QTRY_COMPARE(masks(), QStringLiteral("mask 8\nmask 32776\n"));
        QTRY_VERIFY(pins.at(15)->isHigh());
        QTest::mouseClick(pins.at(15), Qt::LeftButton);
        QTRY_VERIFY(!pins.at(15)->isHigh());
        QCOMPARE(page->pins()->mask(), 32776u);
        QCOMPARE(page->pins()->levels(), 8u);
        QTest::keyClick(pins.at(15), Qt::Key_Space);
        QCOMPARE(page->pins()->mask(), 8u);

        // The arrows walk, and every pin says what it is.
        pins.at(0)->setFocus();
        QTest::keyClick(pins.at(0), Qt::Key_Right);
        QVERIFY(pins.at(1)->hasFocus());
        QTest::keyClick(pins.at(1), Qt::Key_Left);
        QVERIFY(pins.at(0)->hasFocus());
        QTest::keyClick(pins.at(0), Qt::Key_Left);
        QVERIFY(pins.at(0)->hasFocus());
        QAccessibleInterface *access = QAccessible::queryAccessibleInterface(pins.at(3));
        QCOMPARE(access->role(), QAccessible::CheckBox);
        QCOMPARE(access->text(QAccessible::Name), QStringLiteral("Pin 3: high"));
        QCOMPARE(access->text(QAccessible::Description),
                 QStringLiteral("not driven by the subsystem, the switch drives it high"));
        page->end();
    }

    void pinsStandInTwoRowsWhereThePageIsNarrow()
    {
        SimulationPage *page = openPage("echo\n");
        const QVector<PinSwitch *> &pins = page->pins()->pins();
        QCOMPARE(pins.size(), 16);
        auto *area = page->findChild<QScrollArea *>();
        const auto rows = [&pins](const PinSwitch *pin) {
            return std::count_if(pins.begin(), pins.end(),
                                 [pin](const PinSwitch *other) { return other->y() == pin->y(); });
        };
        bool hasTurned = false;
        // Down and up again, without a window that has a least width.
        page->setParent(nullptr);
        page->show();
        const int least = page->minimumSizeHint().width();
        for (int step = -40; step <= 40; ++step) {
            page->resize(least + qAbs(step) * 20, 300);
            QCoreApplication::processEvents();
            QCoreApplication::processEvents(); // what follows a change of the rows
            QVERIFY2(area->horizontalScrollBar()->maximum() == 0,
                     qPrintable(QString::number(page->width())));
            const bool isOneRow = rows(pins.first()) == 16;
            QVERIFY(isOneRow || rows(pins.first()) == 8);
            QVERIFY(isOneRow || pins.at(8)->x() == pins.at(0)->x());
            QVERIFY(pins.at(8)->y() >= pins.at(0)->y());
            QCOMPARE(isOneRow, pins.at(8)->y() == pins.at(0)->y());
            if (step == -40)
                QVERIFY(isOneRow);
            hasTurned |= !isOneRow;
        }
        QVERIFY(hasTurned);
        delete page;
    }

    void aMessageOpensTheLineInC()
    {
        SimulationPage *page = openPage("mistake\nint main(void) { return 0 }\n");
        QVERIFY(page->run());
        waitForEnd(page);
        QCOMPARE(child<QLabel>(page, "simulationResult")->text(),
                 QStringLiteral("The program did not run: the program does not compile"));
        QCOMPARE(page->messages()->count(MessageModel::Error), 1);
        QCOMPARE(page->messages()->count(MessageModel::Note), 1);
        auto *list = child<QTreeView>(page, "simulationMessages");
        list->setCurrentIndex(page->messages()->index(0, 0));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Return);
        EditorPage *editor = m_bench->window->tabs()->currentPage();
        QVERIFY(editor);
        QCOMPARE(QFileInfo(editor->path()).canonicalFilePath(), m_program);
        QCOMPARE(editor->editor()->currentLine(), 2);
    }

    void whatIsEditedIsSavedBeforeItRuns()
    {
        SimulationPage *page = openPage("mute\n");
        m_bench->window->openPath(m_program);
        EditorPage *editor = m_bench->window->tabs()->currentPage();
        editor->startEditing();
        editor->editor()->selectAll();
        QTest::keyClicks(editor->editor(), QStringLiteral("hello"));
        QVERIFY(editor->isModified());
        m_bench->window->showSimulation(m_ipc);
        QVERIFY(page->run());
        waitForEnd(page);
        QVERIFY(!editor->isModified());
        QCOMPARE(page->terminal(0)->toPlainText(), QStringLiteral("hello, world\n"));
    }

    void theChoiceComesBackAfterARestart()
    {
        SimulationPage *page = openPage("hello\n");
        child<QComboBox>(page, "engineCombo")->setCurrentIndex(1);
        child<QCheckBox>(page, "wavesBox")->setChecked(true);
        QVERIFY(page->run());
        waitForEnd(page);
        const QString project = m_bench->window->project()->file();
        m_bench->reopen();
        m_bench->window->openProject(project);
        page = m_bench->window->showSimulation(m_ipc);
        QCOMPARE(page->files(), QStringList(m_program));
        QCOMPARE(child<QLineEdit>(page, "inputEdit")->text(),
                 QFileInfo(m_program).fileName()); // beside the configuration
        QCOMPARE(child<QComboBox>(page, "engineCombo")->currentText(), QStringLiteral("Fast lamp"));
        QVERIFY(child<QCheckBox>(page, "wavesBox")->isChecked());
        QVERIFY(page->runButton()->isEnabled());
    }

    void wavesAreWrittenWhenTheyAreWanted()
    {
        SimulationPage *page = openPage("hello\n");
        auto *open = child<QPushButton>(page, "openWavesButton");
        QVERIFY(page->run());
        waitForEnd(page);
        QVERIFY(!open->isEnabled());
        child<QCheckBox>(page, "wavesBox")->setChecked(true);
        QVERIFY(page->run());
        waitForEnd(page);
        const QString waves = QFileInfo(m_ipc).path() + QStringLiteral("/lamp.waves");
        QCOMPARE(page->waves(), waves);
        QVERIFY(arguments().contains(waves));
        QVERIFY(open->isEnabled());

        // The viewer gets the file; without it a bar tells where the file is and what shows it.
        const QByteArray path = qgetenv("PATH");
        const QString tools = m_bench->folder() + QStringLiteral("/tools");
        write(tools + QStringLiteral("/gtkwave"),
              "#!/bin/sh\necho \"$@\" > seen.new && mv seen.new seen\n");
        QFile::setPermissions(tools + QStringLiteral("/gtkwave"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", tools.toUtf8() + ':' + path);
        QTest::mouseClick(open, Qt::LeftButton);
        const QString seen = QFileInfo(waves).path() + QStringLiteral("/seen");
        QTRY_VERIFY(QFileInfo::exists(seen));
        QCOMPARE(contentsOf(seen).trimmed(), waves.toUtf8());
        qputenv("PATH", "/nowhere");
        QTest::mouseClick(open, Qt::LeftButton);
        qputenv("PATH", path);
        QVERIFY(page->infoBar()->text().contains(waves));
        QVERIFY(page->infoBar()->text().contains(QLatin1String("Debian package gtkwave")));
    }

    void aFloodIsBounded()
    {
        SimulationPage *page = openPage("flood\n");
        QVERIFY(page->run());
        waitForEnd(page);
        QCOMPARE(page->messages()->rowCount(), SimulationPage::messageLimit + 1);
        QVERIFY(page->messages()
                    ->index(SimulationPage::messageLimit, 0)
                    .data()
                    .toString()
                    .contains(QLatin1String("more messages")));
        QVERIFY(page->terminal(0)->blockCount() <= TerminalView::lineCountLimit);
        QVERIFY(child<QLabel>(page, "simulationResult")
                    ->text()
                    .startsWith(QLatin1String("Ended by the time limit")));
    }

    void whatCannotBeSimulatedSaysWhy_data()
    {
        QTest::addColumn<QByteArray>("plugin");
        QTest::addColumn<QString>("reason");
        QTest::newRow("it throws")
            << QByteArray("throwing-simulating") << QStringLiteral("the lamp is hot");
        QTest::newRow("its answer is not sound")
            << QByteArray("garbling-simulating") << QStringLiteral("\"program\"");
        QTest::newRow("it refuses") << QByteArray("refusing-simulating")
                                    << QStringLiteral("These lamps are real ones only.");
    }
    void whatCannotBeSimulatedSaysWhy()
    {
        QFETCH(QByteArray, plugin);
        QFETCH(QString, reason);
        SimulationPage *page = openPage("hello\n", plugin.constData());
        QVERIFY2(page->infoBar()->text().contains(reason), qPrintable(page->infoBar()->text()));
        QVERIFY(!page->infoBar()->isHidden());
        QVERIFY(!page->runButton()->isEnabled());
        QVERIFY(!page->run());
    }

    void onlyWhatCanBeSimulatedIsOffered()
    {
        openPage("hello\n");
        QVERIFY(!m_bench->action("Simulate")->isEnabled()); // no IP is selected
        openPage("hello\n", "exporting");
        QVERIFY(m_bench->window->tabs()->currentWidget());
        // The start page, which follows the folder, offers it for each IP whose plug-in can.
        const auto linksOf = [this](const char *name) {
            return m_bench->window->findChildren<QCommandLinkButton *>(QLatin1String(name));
        };
        const auto showsTheIp = [&] {
            const auto links = m_bench->window->findChildren<QCommandLinkButton *>();
            return std::any_of(links.begin(), links.end(), [this](const QCommandLinkButton *link) {
                return link->property("path").toString() == m_ipc;
            });
        };
        m_bench->window->tabs()->closeAll();
        QTRY_VERIFY(showsTheIp());
        QVERIFY(linksOf("simulateLink").isEmpty());
        openPage("hello\n");
        m_bench->window->tabs()->closeAll();
        QTRY_VERIFY(showsTheIp());
        const auto links = linksOf("simulateLink");
        QVERIFY(!links.isEmpty());
        QTest::mouseClick(links.last(), Qt::LeftButton);
        QTRY_COMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Simulate lamp")));
    }

    void aRunEndsWithItsTabAndItsProject()
    {
        const Mark mark;
        qputenv(mark.name(), mark.value());
        SimulationPage *page = openPage("stubborn\n");
        QVERIFY(page->run());
        QTRY_COMPARE(page->state().clockCycles, 1ull);
        QCOMPARE(mark.processes().size(), 1);
        m_bench->action("Close Tab")->trigger();
        QVERIFY(mark.processes().isEmpty());
        m_bench->window->showSimulation(m_ipc);
        QVERIFY(child<QLabel>(page, "simulationResult")
                    ->text()
                    .startsWith(QLatin1String("Stopped after 1 clock cycle")));
        QVERIFY(page->run());
        QTRY_COMPARE(page->state().clockCycles, 1ull);
        QVERIFY(m_bench->window->closeProject());
        QVERIFY(mark.processes().isEmpty());
        page = openPage("stubborn\n");
        QVERIFY(page->run());
        QTRY_COMPARE(page->state().clockCycles, 1ull);
        m_bench.reset(); // the window
        QVERIFY(mark.processes().isEmpty());
        qunsetenv(mark.name());
    }

    // Examples

    void anExampleRunsAfterThreeClicks()
    {
        prepareExample("hello\n");
        const SimulationPage *page = runInThreeClicks("A lamp that speaks");
        QVERIFY(page);
        QCOMPARE(m_bench->tabTexts(), QStringList(QStringLiteral("Simulate speaking")));
        QCOMPARE(page->terminal(0)->toPlainText(), QStringLiteral("hello, world\n"));
        const QString location = m_bench->folder() + QStringLiteral("/mine");

        // The files are the user's own.
        const QString folder = location + QStringLiteral("/speaking");
        QCOMPARE(m_bench->window->project()->file(), folder + QStringLiteral("/speaking.tvproj"));
        QCOMPARE(m_bench->window->project()->deviceId(), QStringLiteral("TV5K-138B-PBGA484-C1/I0"));
        QCOMPARE(page->files(), QStringList(folder + QStringLiteral("/firmware/hello.c")));
        QCOMPARE(contentsOf(folder + QStringLiteral("/firmware/other.c")), QByteArray("other"));
        QCOMPARE(m_bench->window->project()->ipFiles(), QStringList(page->ipcFile()));
    }

    // The configurator's own example, on its RTL.
    void theExampleOfTheProductRunsAfterThreeClicks()
    {
        QProcess help;
        help.start(QStringLiteral(TARVO_COMMAND),
                   {QStringLiteral("simulate"), QStringLiteral("--help")});
        QVERIFY(help.waitForFinished(-1));
        if (!help.readAllStandardOutput().contains("--live"))
            QSKIP("The command does not speak to programs.");
        const Mark mark;
        qputenv(mark.name(), mark.value());
        prepareExample("hello\n");
        const SimulationPage *page = runInThreeClicks("Hello from a sensor node");
        qunsetenv(mark.name());
        QVERIFY(page);
        const QString result = child<QLabel>(page, "simulationResult")->text();
        QVERIFY2(result.startsWith(QLatin1String("Passed after ")), qPrintable(result));
        QCOMPARE(page->terminal(0)->toPlainText(), QStringLiteral("hello, world\n"));
        QTRY_VERIFY(mark.processes().isEmpty());
    }

    void anExampleReplacesNothing()
    {
        prepareExample("hello\n");
        const QString location = m_bench->folder() + QStringLiteral("/mine");
        write(location + QStringLiteral("/speaking/firmware/hello.c"), "mine");
        QString proposed;
        bool mayReplace = true;
        {
            const ModalWatcher watcher([&](QWidget *modal) {
                auto *edit = child<QLineEdit>(modal, "exampleFolderEdit");
                proposed = edit->text();
                edit->setText(location + QStringLiteral("/speaking"));
                mayReplace = Bench::ok(modal)->isEnabled();
                qobject_cast<QDialog *>(modal)->reject();
            });
            QTest::mouseClick(exampleLink(), Qt::LeftButton);
            QTRY_COMPARE(watcher.count(), 1);
        }
        QCOMPARE(proposed, location + QStringLiteral("/speaking-2"));
        QVERIFY(!mayReplace);
        QVERIFY(!m_bench->window->project());

        SimulationExample example;
        example.configuration =
            qEnvironmentVariable("FAKE_EXAMPLES") + QStringLiteral("/speaking.ipc");
        QVERIFY(!ExampleProject::make(example, location + QStringLiteral("/speaking"), {}));
        QCOMPARE(entriesOf(location + QStringLiteral("/speaking")),
                 QStringList(QStringLiteral("firmware")));
        QCOMPARE(contentsOf(location + QStringLiteral("/speaking/firmware/hello.c")),
                 QByteArray("mine"));
        // One that cannot be copied whole leaves nothing.
        example.files = QStringList{example.configuration, QStringLiteral("/nowhere.c")};
        example.program = example.configuration;
        const auto made = ExampleProject::make(example, location + QStringLiteral("/third"), {});
        QVERIFY(!made);
        QVERIFY2(made.reason().contains(QLatin1String("/nowhere.c")), qPrintable(made.reason()));
        QCOMPARE(entriesOf(location), QStringList(QStringLiteral("speaking")));
    }

private:
    template <typename Widget>
    static Widget *child(const QWidget *parent, const char *name)
    {
        auto *found = parent->findChild<Widget *>(QLatin1String(name));
        if (!found)
            qFatal("there is no %s", name);
        return found;
    }

    // The page of an IP with two UARTs, with a program chosen: its first word is how the simulation
    // behaves.
    SimulationPage *openPage(const QByteArray &program, const char *plugin = "simulating")
    {
        m_bench = std::make_unique<Bench>(plugin);
        m_bench->window->openProject(m_bench->makeProject());
        const QString folder = m_bench->window->project()->path();
        m_ipc = folder + QStringLiteral("/lamp.ipc");
        m_program = folder + QStringLiteral("/program.c");
        write(m_ipc, "[General]\ntype=fake.blinker\ntarget_device=TV5K-138B-PBGA484-C1/I0\n"
                     "[Config]\nLamps=2\n");
        write(m_program, program);
        SimulationPage *page = m_bench->window->showSimulation(m_ipc);
        page->choose(QStringLiteral("c"), {m_program});
        return page;
    }

    // What the last run was started with.
    QStringList arguments() const
    {
        return QString::fromUtf8(
                   contentsOf(QFileInfo(m_program).path() + QStringLiteral("/arguments")))
            .split(u'\n', Qt::SkipEmptyParts);
    }

    static void waitForEnd(const SimulationPage *page)
    {
        QVERIFY(QTest::qWaitFor(
            [page] { return page->state().phase == SimulationState::Ended && !page->process(); },
            30000));
    }

    // A workbench with an example of the fake plug-in, whose copies go to "mine".
    void prepareExample(const QByteArray &program)
    {
        m_bench = std::make_unique<Bench>("simulating");
        const QString folder = m_bench->folder() + QStringLiteral("/examples");
        write(folder + QStringLiteral("/speaking.ipc"),
              "[General]\ntype=fake.blinker\ntarget_device=TV5K-138B-PBGA484-C1/I0\n"
              "[Config]\nLamps=1\n");
        write(folder + QStringLiteral("/hello.c"), program);
        write(folder + QStringLiteral("/other.c"), "other");
        qputenv("FAKE_EXAMPLES", folder.toUtf8());
        m_bench->settings.setValue(QStringLiteral("projectLocation"),
                                   QString(m_bench->folder() + QStringLiteral("/mine")));
        m_bench->reopen();
        m_bench->window->resize(1280, 800);
        QVERIFY(QTest::qWaitForWindowExposed(m_bench->window.get()));
        QCoreApplication::processEvents(); // lays out
    }

    QWidget *exampleLink(const char *title = "A lamp that speaks") const
    {
        const auto links =
            m_bench->window->findChildren<QCommandLinkButton *>(QStringLiteral("exampleLink"));
        for (QCommandLinkButton *link : links) {
            if (link->text().contains(QLatin1String(title)) && link->isVisible())
                return link;
        }
        qFatal("there is no example");
        return nullptr;
    }

    // Clicks what can be clicked at its place in its window.
    static bool clickOnce(QWidget *widget, int *clicks)
    {
        const QPoint place = widget->mapTo(widget->window(), widget->rect().center());
        if (!widget->isEnabled() || widget->window()->childAt(place) != widget)
            return false;
        ++*clicks;
        QTest::mouseClick(widget, Qt::LeftButton);
        return true;
    }

    // The page with the finished run of an example, from the start page; null if it takes more.
    SimulationPage *runInThreeClicks(const char *title) const
    {
        int clicks = 0;
        bool isAnswered = false;
        const ModalWatcher watcher(
            [&](QWidget *modal) { isAnswered = clickOnce(Bench::ok(modal), &clicks); });
        SimulationPage *page = nullptr;
        const auto isOpen = [&] {
            page = qobject_cast<SimulationPage *>(m_bench->window->tabs()->currentWidget());
            return page && page->isVisible() && page->runButton()->isEnabled();
        };
        if (!clickOnce(exampleLink(title), &clicks) || !QTest::qWaitFor(isOpen, 30000) ||
            !isAnswered || !clickOnce(page->runButton(), &clicks))
            return nullptr;
        const auto isOver = [&] {
            return page->state().phase == SimulationState::Ended && !page->process();
        };
        return QTest::qWaitFor(isOver, 60000) && clicks == 3 ? page : nullptr;
    }

    std::unique_ptr<Bench> m_bench;
    QString m_ipc;
    QString m_program;
};

TARVO_TEST_MAIN(QApplication, TestSimulation)
#include "tst_simulation.moc"
