#include "synthesisrun.h"

#include <synthesis/resources.h>
#include <synthesis/runreport.h>

#include <QSet>

using Synthesis::Message;
using Synthesis::RunReport;

namespace
{

// One of everything that the tool warns about.
const QByteArray doubtfulDesign = "module part (input [7:0] a, output y);\n"
                                  "    assign y = &a;\n"
                                  "endmodule\n"
                                  "module top (input [3:0] a, output [2:0] y);\n"
                                  "    wire [1:0] u;\n"
                                  "    part p (.a(a), .y(y[0]));\n"
                                  "    assign y[1] = missing & a[0];\n"
                                  "    assign y[2] = u[1];\n"
                                  "endmodule\n";

QStringList textsOf(const RunReport &report, Message::Severity severity)
{
    QStringList texts;
    for (const Message &message : report.messages) {
        if (message.severity == severity)
            texts << message.toString();
    }
    return texts;
}

int countOf(const RunReport &report, const char *cell)
{
    for (const Synthesis::CellCount &count : report.cells) {
        if (count.cell == QLatin1String(cell))
            return count.count;
    }
    return 0;
}

Synthesis::ResourceUse useOf(const RunReport &report, const char *resource)
{
    for (const Synthesis::ResourceUse &use : report.resources) {
        if (use.resource == QLatin1String(resource))
            return use;
    }
    return {};
}

} // namespace

class TestReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyBeforeTheFirstRun()
    {
        const Synthesis::Runner runner;
        const RunReport report = runner.report();
        QCOMPARE(report.exitCode, 0);
        QVERIFY(report.messages.isEmpty());
        QVERIFY(report.cells.isEmpty());
        QVERIFY(report.files.isEmpty());
    }

    void tellsWhatASuccessMade()
    {
        SynthesisRun run;
        run.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
        RUN_SUCCEEDS(run);
        const RunReport report = run.runner.report();
        QCOMPARE(report.tool, Synthesis::Tool::TarvoSynthesis);
        QCOMPARE(report.job.targetName, QStringLiteral("core"));
        QCOMPARE(report.exitCode, 0);
        QVERIFY(!report.cancelled);
        QVERIFY(report.milliseconds > 0);
        QCOMPARE(report.count(Message::Error), 0);
        QCOMPARE(report.files, QStringList({run.path(QStringLiteral("_tmp.v")),
                                            run.path(QStringLiteral(".vg"))}));
        QCOMPARE(report.logFile, run.path(QStringLiteral(".log")));
        for (const QString &file : report.files)
            QVERIFY2(QFileInfo(file).isAbsolute() && QFileInfo::exists(file), qPrintable(file));

        QStringList names;
        for (const Synthesis::CellCount &cell : report.cells) {
            names << cell.cell;
            QVERIFY(cell.count > 0);
            QCOMPARE(cell.isBlackBox, cell.cell == QStringLiteral("analog"));
            QCOMPARE(run.netlist().count("\n  " + cell.cell.toUtf8() + ' '), cell.count);
        }
        QStringList sorted = names;
        sorted.sort();
        QCOMPARE(names, sorted);
        QVERIFY(names.contains(QStringLiteral("analog")));
        QCOMPARE(countOf(report, "TV_TBUF"), 4);
        QCOMPARE(useOf(report, "Tri-state drivers").used, 4);
        QCOMPARE(useOf(report, "Block RAM").used, 1);
        QCOMPARE(useOf(report, "Flip-flops").used, 16);
        QCOMPARE(useOf(report, "LUT4").used,
                 countOf(report, "TV_LUT1") + countOf(report, "TV_LUT2") +
                     countOf(report, "TV_LUT3") + countOf(report, "TV_LUT4"));
        QVERIFY2(report.summary.startsWith(QStringLiteral("Used ")) &&
                     report.summary.contains(QStringLiteral("16 Flip-flops")),
                 qPrintable(report.summary));
        const QString rest =
            QStringLiteral("Not counted are the contents of black boxes: 1 analog.");
        QCOMPARE(Synthesis::notCountedSentence(report.cells), rest);
        QVERIFY2(report.summary.endsWith(u' ' + rest), qPrintable(report.summary));
        QVERIFY(TestSupport::contentsOf(report.logFile).contains(rest.toUtf8() + '\n'));
    }

    void namesEveryBlackBoxWithItsCount()
    {
        const auto cell = [](const char *name, int count, bool isBlackBox) {
            return Synthesis::CellCount{QString::fromLatin1(name), count, isBlackBox};
        };
        QCOMPARE(Synthesis::notCountedSentence({}), QString());
        QCOMPARE(Synthesis::notCountedSentence({cell("TV_LUT4", 7, false)}), QString());
        QCOMPARE(Synthesis::notCountedSentence(
                     {cell("A", 1, true), cell("TV_LUT4", 7, false), cell("b c", 20, true)}),
                 QStringLiteral("Not counted are the contents of black boxes: 1 A, 20 b c."));
    }

    void aDesignWithoutBlackBoxesIsCountedWhole()
    {
        SynthesisRun run;
        run.addSource(QStringLiteral("top.v"),
                      "module top (input a, b, output y);\n    assign y = a & b;\nendmodule\n");
        RUN_SUCCEEDS(run);
        QCOMPARE(run.runner.report().summary, QStringLiteral("Used 1 LUT4."));
    }

    void comparesWithTheTotalsOfTheDevice()
    {
        SynthesisRun run;
        run.job.device =
            DEV::DeviceArg(QStringLiteral("TV9-1"), QStringLiteral("TV9-1"), {}, {}, {}, {});
        DEV::DeviceResources totals;
        totals.lut4 = 1000;
        totals.flipFlops = 15;
        totals.blockRam = 1;
        run.job.device.setResources(totals);
        run.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
        RUN_SUCCEEDS(run);
        const RunReport report = run.runner.report();
        QCOMPARE(useOf(report, "LUT4").available, 1000);
        QCOMPARE(useOf(report, "Block RAM").percent(), 100);
        QCOMPARE(useOf(report, "Carry").available, -1);
        QCOMPARE(useOf(report, "Tri-state drivers").available, -1);
        QVERIFY(useOf(report, "Flip-flops").exceeds());
        QVERIFY2(report.summary.contains(QStringLiteral("16 Flip-flops (107 %)")),
                 qPrintable(report.summary));
        QCOMPARE(textsOf(report, Message::Warning),
                 QStringList{QStringLiteral("The netlist needs 16 Flip-flops, but TV9-1 has 15.")});
    }

    void listsThePortsInOrder()
    {
        SynthesisRun run;
        run.addSource(
            QStringLiteral("top.v"),
            "module top (z, up, low, one, io);\n"
            "    input z; output [0:2] up; input [11:8] low; output [0:0] one; inout [3:0] io;\n"
            "    assign up = {z, low[9:8]}; assign one = z; assign io = z ? low : 4'bz;\n"
            "endmodule\n");
        RUN_SUCCEEDS(run);
        QStringList ports;
        for (const Synthesis::ReportPort &port : run.runner.report().ports)
            ports << QStringLiteral("%1 %2 %3 %4 %5")
                         .arg(port.name, port.direction)
                         .arg(port.msb)
                         .arg(port.lsb)
                         .arg(port.isVector);
        QCOMPARE(ports, QStringList(
                            {QStringLiteral("z input 0 0 0"), QStringLiteral("up output 0 2 1"),
                             QStringLiteral("low input 11 8 1"), QStringLiteral("one output 0 0 0"),
                             QStringLiteral("io inout 3 0 1")}));
    }

    void listsWarningsWithTheirPlaces()
    {
        SynthesisRun run;
        const QString path = run.addSource(QStringLiteral("a b/top.v"), doubtfulDesign);
        RUN_SUCCEEDS(run);
        const RunReport report = run.runner.report();
        const QStringList warnings = textsOf(report, Message::Warning);
        const QString all = warnings.join(u'\n');
        QVERIFY2(warnings.contains(
                     path + QStringLiteral(":7: Identifier \"missing\" is implicitly declared.")),
                 qPrintable(all));
        QVERIFY2(
            warnings.contains(QStringLiteral("Resizing cell port top.p.a from 4 bits to 8 bits.")),
            qPrintable(all));
        QVERIFY2(warnings.contains(QStringLiteral("Wire top.y [2] is used but has no driver.")),
                 qPrintable(all));
        QCOMPARE(report.count(Message::Warning), warnings.size());
        QCOMPARE(QSet<QString>(warnings.begin(), warnings.end()).size(), warnings.size());
        QVERIFY(!all.contains(QStringLiteral("tarvo-run")));
        for (const Message &message : report.messages) {
            QVERIFY(message.count > 0);
            QCOMPARE(message.line > 0, !message.file.isEmpty());
        }
    }

    void joinsAMessageOfSeveralLines()
    {
        SynthesisRun run;
        run.addSource(QStringLiteral("top.v"),
                      "module top (input a, b, output y);\n"
                      "    assign y = a & b;\n    assign y = a | b;\nendmodule\n");
        run.run(); // whether two drivers are an error is the tool's matter
        const RunReport report = run.runner.report();
        const QStringList all = textsOf(report, Message::Warning);
        const QStringList drivers = all.filter(QStringLiteral("conflicting drivers"));
        QCOMPARE(drivers.size(), 1);
        QVERIFY2(drivers.first().count(QStringLiteral("port Y[0] of cell")) == 2,
                 qPrintable(all.join(u'\n')));
    }

    void tellsWhyARunFailed()
    {
        SynthesisRun run;
        const QString path = run.addSource(QStringLiteral("top.v"),
                                           "module top (input a);\n\n  assign = a;\nendmodule\n");
        QCOMPARE(run.run(), 1);
        const RunReport report = run.runner.report();
        QCOMPARE(report.exitCode, 1);
        QVERIFY(!report.cancelled);
        QCOMPARE(report.summary, run.runner.errorMsg());
        QCOMPARE(textsOf(report, Message::Error), run.runner.detailErrorMsgs());
        QCOMPARE(report.messages.last().file, path);
        QVERIFY(report.messages.last().line == 3);
        QVERIFY(report.files.isEmpty());
        QVERIFY(report.cells.isEmpty());
        QVERIFY(report.ports.isEmpty());
        QVERIFY(QFileInfo::exists(report.logFile));
    }

    void aFailureWithoutAToolIsAMessageToo()
    {
        SynthesisRun run;
        run.addFile(QStringLiteral("/no/such/file.v"));
        QCOMPARE(run.run(), 1);
        const RunReport report = run.runner.report();
        QCOMPARE(textsOf(report, Message::Error), QStringList{run.runner.errorMsg()});
        QCOMPARE(report.logFile, QString());
    }

    void belongsToOneRunOnly()
    {
        SynthesisRun run;
        const QString path = run.addSource(QStringLiteral("top.v"), doubtfulDesign);
        RUN_SUCCEEDS(run);
        QVERIFY(!run.runner.report().messages.isEmpty());
        TestSupport::write(path,
                           "module top (input a, output y);\n    assign y = !a;\nendmodule\n");
        RUN_SUCCEEDS(run);
        QCOMPARE(textsOf(run.runner.report(), Message::Warning), QStringList());
    }

    void aCancelledRunSaysSo()
    {
        SynthesisRun run;
        run.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
        QObject::connect(&run.runner, &Synthesis::Runner::stageChanged,
                         [&] { run.runner.cancel(); });
        QCOMPARE(run.run(), 1);
        const RunReport report = run.runner.report();
        QVERIFY(report.cancelled);
        QCOMPARE(report.count(Message::Error), 0);
        QCOMPARE(report.summary, QStringLiteral("The synthesis was cancelled."));
        QVERIFY(report.files.isEmpty());
    }

    void progressAdvancesByStage()
    {
        SynthesisRun run;
        run.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
        QSignalSpy progressed(&run.runner, &Synthesis::Runner::progressed);
        RUN_SUCCEEDS(run);
        QCOMPARE(progressed.size(), run.stages().size());
        for (int i = 0; i < progressed.size(); ++i) {
            QCOMPARE(progressed.at(i).at(0).toInt(), i);
            QCOMPARE(progressed.at(i).at(1).toInt(), progressed.size());
        }
    }

    void percentagesAreRoundedUp_data()
    {
        QTest::addColumn<int>("used");
        QTest::addColumn<int>("available");
        QTest::addColumn<int>("percent");
        QTest::newRow("none used") << 0 << 100 << 0;
        QTest::newRow("one of many") << 1 << 100000 << 1;
        QTest::newRow("all") << 7 << 7 << 100;
        QTest::newRow("too many") << 8 << 7 << 115;
        QTest::newRow("no total") << 8 << -1 << -1;
        QTest::newRow("none there, none used") << 0 << 0 << 0;
        QTest::newRow("very many") << 2000000000 << 2000000000 << 100;
    }

    void percentagesAreRoundedUp()
    {
        QFETCH(int, used);
        QFETCH(int, available);
        QFETCH(int, percent);
        const Synthesis::ResourceUse use{QStringLiteral("LUT4"), used, available};
        QCOMPARE(use.percent(), percent);
        QCOMPARE(use.exceeds(), available >= 0 && used > available);
    }

    void messagesReadLikeACompilers()
    {
        const QString text = QStringLiteral("text");
        const QString file = QStringLiteral("/a b.v");
        QCOMPARE((Message{Message::Error, file, 3, text, 1}).toString(),
                 QStringLiteral("/a b.v:3: text"));
        QCOMPARE((Message{Message::Error, file, 0, text, 1}).toString(),
                 QStringLiteral("/a b.v: text"));
        QCOMPARE((Message{Message::Warning, {}, 0, text, 1}).toString(), text);
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestReport)
#include "tst_report.moc"
