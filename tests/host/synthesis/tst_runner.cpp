#include "synthesisrun.h"

#include <synthesis/simulationmodel.h>

#include <csignal>
#include <memory>
#include <unistd.h>

namespace
{

const QByteArray smallDesign = TestSupport::contentsOf(QStringLiteral(DESIGNS_DIR "/small.v"));

// Puts a folder of tests/fakes before PATH until the end of the scope.
class FakeTool
{
public:
    explicit FakeTool(const QString &name)
    {
        const QByteArray folder = QByteArray(FAKES_DIR "/") + name.toLatin1();
        qputenv("PATH", folder + ':' + m_path);
    }
    ~FakeTool() { qputenv("PATH", m_path); }

private:
    const QByteArray m_path = qgetenv("PATH");
};

class OnlyPath
{
public:
    explicit OnlyPath(const QString &folder) { qputenv("PATH", folder.toLocal8Bit()); }
    ~OnlyPath() { qputenv("PATH", m_path); }

private:
    const QByteArray m_path = qgetenv("PATH");
};

// The live processes of a group.
QStringList processesOf(qint64 group)
{
    QStringList result;
    for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        const QByteArray stat =
            TestSupport::contentsOf(QStringLiteral("/proc/") + entry + QStringLiteral("/stat"));
        // pid (name) state parent group …; the name may hold brackets.
        const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 3 && fields.at(2).toLongLong() == group && fields.at(0) != "Z")
            result << entry;
    }
    return result;
}

// Of the line "group … child …" that the sleeping tools print; 0 until it has come.
qint64 groupOf(const SynthesisRun &run)
{
    const QStringList log = run.log();
    return log.isEmpty() ? 0 : log.first().section(u' ', 1, 1).toLongLong();
}

QStringList outputsOf(const SynthesisRun &run)
{
    return TestSupport::entriesOf(run.job.outputDir);
}

} // namespace

class TestRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesNetlistTemplateAndLog();
    void reportsStagesAndLogWhileItRuns();
    void keepsBlackBoxesWithTheirPorts();
    void putsTheNotesOfADesignIntoTheTemplate();
    void leavesUnchangedOutputsUntouched();
    void takesPathsOfAnyKind_data();
    void takesPathsOfAnyKind();
    void namesRealPathsInErrors_data();
    void namesRealPathsInErrors();
    void givesTheSameBytesInEveryFolderAndLocale();
    void readsIncludesOfTheOutputFolderFirst();
    void seesMacrosAndParametersOfEarlierFiles();
    void readsSystemVerilogByItsSuffix();
    void readsMemoryContentsBesideTheSource();
    void readsAFileNamedTwiceOnce();

    void refusesJobs_data();
    void refusesJobs();
    void refusesAReadOnlyFolder();
    void namesAMissingTool_data();
    void namesAMissingTool();
    void reportsToolsThatFail_data();
    void reportsToolsThatFail();
    void reportsMistakesInSources_data();
    void reportsMistakesInSources();
    void keepsTheOldOutputsWhenARunFails();
    void succeedsAfterAFailure();
    void canStartAgainWhenFinished();
    void ignoresAStartWhileRunning();
    void refusesASecondRunInTheSameFolder();
    void cleansUpAfterAKilledRun();

    void cancelKillsTheWholeGroup_data();
    void cancelKillsTheWholeGroup();
    void cancelEndsARealRun();
    void cancelBeforeTheEndOfAFailedStartCounts();
    void deletionKillsTheWholeGroup();
    void cancelWithoutARunDoesNothing();

    void runsTheProjectTool();
    void theProjectToolWritesVhdlToo();
    void quotesPathsInTheProject_data();
    void quotesPathsInTheProject();
    void reportsProjectToolsThatFail_data();
    void reportsProjectToolsThatFail();
};

void TestRunner::makesNetlistTemplateAndLog()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    QVERIFY(!run.runner.isRunning());
    RUN_SUCCEEDS(run);

    QVERIFY(!run.runner.isRunning());
    QVERIFY(!run.runner.wasCancelled());
    QCOMPARE(run.runner.errorMsg(), QString());
    QCOMPARE(run.runner.detailErrorMsgs(), QStringList());
    QCOMPARE(outputsOf(run), QStringList({QStringLiteral("core.log"), QStringLiteral("core.vg"),
                                          QStringLiteral("core_tmp.v")}));

    const QByteArray netlist = run.netlist();
    QVERIFY(netlist.startsWith("// Netlist of top (tv_test 1.0)\n"));
    QVERIFY(netlist.contains("TV_RAMB_SDP"));
    QVERIFY(netlist.contains("TV_TBUF"));
    QVERIFY(netlist.contains("TV_DFFPE"));
    QVERIFY(netlist.contains("TV_DFFCE"));
    QVERIFY(netlist.contains("TV_LUT4"));
    QVERIFY(!netlist.contains("Yosys"));
    QVERIFY(!netlist.contains(run.folder.path().toUtf8()));
    QVERIFY(!netlist.contains("tarvo-run"));

    const QByteArray expected =
        "// Template of an instance: copy it into your design, and put a signal of yours into the\n"
        "// brackets of each port. Leave the brackets of an output that you do not use empty.\n"
        "\n"
        "top u_top (\n"
        "    .clk(clk_i),       // input\n"
        "    .rstn(rstn_i),     // input\n"
        "    .en(en_i),         // input\n"
        "    .din(din_i),       // input [15:0]\n"
        "    .count(count_o),   // output [15:0]\n"
        "    .io(io_io),        // inout [3:0]\n"
        "    .pad(pad_io),      // inout\n"
        "    .level(level_o),   // output [4:0]\n"
        "    .addr(addr_i),     // input [9:0]\n"
        "    .dout(dout_o),     // output [15:0]\n"
        "    .rising(rising_o), // output [0:2]\n"
        "    .offset(offset_i)  // input [11:8]\n"
        ");\n";
    QCOMPARE(TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v"))), expected);

    const QByteArray log = TestSupport::contentsOf(run.path(QStringLiteral(".log")));
    QCOMPARE(log, (run.log().join(u'\n') + u'\n').toUtf8());
    QVERIFY(log.contains(" 1 TV_RAMB_SDP\n"));
    QVERIFY(log.contains(" 4 TV_TBUF\n"));
    QVERIFY(log.contains(" 1 analog\n"));
}

void TestRunner::reportsStagesAndLogWhileItRuns()
{
    SynthesisRun run;
    const QString source = run.addSource(QStringLiteral("top.v"), smallDesign);
    bool runningAtEveryLine = true;
    QObject::connect(&run.runner, &Synthesis::Runner::logReceived,
                     [&] { runningAtEveryLine = runningAtEveryLine && run.runner.isRunning(); });
    RUN_SUCCEEDS(run);
    QVERIFY(runningAtEveryLine);
    QCOMPARE(run.stages(),
             QStringList({QStringLiteral("Reading sources"), QStringLiteral("Elaborating"),
                          QStringLiteral("Optimizing"), QStringLiteral("Mapping memories"),
                          QStringLiteral("Mapping logic"), QStringLiteral("Writing netlist")}));
    QVERIFY(!run.log().filter(source).isEmpty());
}

void TestRunner::keepsBlackBoxesWithTheirPorts()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    RUN_SUCCEEDS(run);
    const QByteArray netlist = run.netlist();
    const QByteArray declaration =
        "// Define HAVE_analog where the real module is compiled as well.\n"
        "`ifndef HAVE_analog\n"
        "(* blackbox *)\n"
        "module analog #(\n"
        "    parameter MODE = \"slow\",\n"
        "    parameter WIDTH = 32'b00000000000000000000000000000010\n"
        ") (\n"
        "    input clk,\n"
        "    inout pad,\n"
        "    output [4:0] level\n"
        ");\n"
        "endmodule\n"
        "`define HAVE_analog\n"
        "`endif\n";
    QVERIFY2(netlist.endsWith(declaration), netlist.right(400).constData());
    QVERIFY(netlist.contains("u_analog"));

    const QString model = run.path(QStringLiteral(".vo"));
    QString message;
    QCOMPARE(Synthesis::writeSimulationModel(run.path(QStringLiteral(".vg")), model, &message), 0);
    QByteArray output;
    QVERIFY2(compiles({model}, &output), output.constData());
}

void TestRunner::putsTheNotesOfADesignIntoTheTemplate()
{
    SynthesisRun run;
    run.addSource(
        QStringLiteral("top.v"),
        "(* note = \"Two words.\\nAnd two lines.\" *)\n"
        "module top ((* note = \"active low\" *) input rstn, input plain, (* note = \"x\" *) "
        "output [1:0] y, (* keep, note = 3 *) output z);\n"
        "assign y = {2{!rstn}};\nassign z = plain;\nendmodule\n");
    RUN_SUCCEEDS(run);
    QVERIFY2(
        TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v")))
            .endsWith("// Two words.\n// And two lines.\n\ntop u_top (\n    // rstn: active low\n"
                      "    .rstn(rstn_i),   // input\n"
                      "    .plain(plain_i), // input\n    // y: x\n"
                      "    .y(y_o),         // output [1:0]\n"
                      "    .z(z_o)          // output\n);\n"),
        TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v"))).constData());
    run.job.options[QStringLiteral("write_vhdl")] = true;
    RUN_SUCCEEDS(run);
    const QByteArray vhdl = TestSupport::contentsOf(run.path(QStringLiteral("_tmp.vhd")));
    QVERIFY2(vhdl.contains("-- Two words.\n-- And two lines.\n\ncomponent top\n"),
             vhdl.constData());
    QVERIFY2(vhdl.contains("    port map (\n        -- rstn: active low\n        rstn => rstn_i,"),
             vhdl.constData());
    // Notes are no contents.
    QVERIFY(!run.netlist().contains("active low"));
}

void TestRunner::leavesUnchangedOutputsUntouched()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    RUN_SUCCEEDS(run);
    const QString netlist = run.path(QStringLiteral(".vg"));
    const QDateTime longAgo(QDate(2001, 2, 3), QTime(4, 5, 6));
    QFile file(netlist);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();
    RUN_SUCCEEDS(run);
    QCOMPARE(QFileInfo(netlist).lastModified(), longAgo);
}

void TestRunner::takesPathsOfAnyKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << QStringLiteral(" a  b ");
    QTest::newRow("double quotes") << QStringLiteral("a\"b\"");
    QTest::newRow("single quotes") << QStringLiteral("a'b");
    QTest::newRow("backslashes") << QStringLiteral("a\\b\\n");
    QTest::newRow("dollar signs") << QStringLiteral("$HOME$(x)`y`");
    QTest::newRow("brackets") << QStringLiteral("[exit 1]{(<>)}");
    QTest::newRow("percent signs") << QStringLiteral("%1 %2 %s %n");
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("Gr\u00fc\u00dfe \u65e5\u672c");
    QTest::newRow("leading hyphen") << QStringLiteral("-o -x");
    QTest::newRow("comment signs") << QStringLiteral("#a;b&c|d");
    QTest::newRow("patterns") << QStringLiteral("*?~");
    QTest::newRow("line end") << QStringLiteral("a\nb");
    QTest::newRow("leading dot") << QStringLiteral("..a");
    QTest::newRow("long") << QString(200, u'n');
}

void TestRunner::takesPathsOfAnyKind()
{
    QFETCH(QString, name);
    SynthesisRun run;
    run.setOutputDir(run.folder.filePath(name + QStringLiteral(" out")));
    run.job.targetName = name;
    TestSupport::write(run.folder.filePath(name + QStringLiteral("/part.vh")), "`define WIDTH 3\n");
    run.addSource(name + u'/' + name + QStringLiteral(".v"),
                  "`include \"part.vh\"\nmodule top (input a, output [`WIDTH:0] y); assign y = "
                  "{4{!a}}; endmodule\n");
    RUN_SUCCEEDS(run);
    QVERIFY(run.netlist().contains("output [3:0] y"));
    QVERIFY(!run.netlist().contains(name.toUtf8()));
    QVERIFY(
        TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v"))).contains("// output [3:0]"));
    QCOMPARE(outputsOf(run).size(), 3);
}

void TestRunner::namesRealPathsInErrors_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("part.v");
    QTest::newRow("blanks and signs") << QStringLiteral("a b $[%1].v");
    QTest::newRow("below a folder") << QStringLiteral("a b/part.v");
}

void TestRunner::namesRealPathsInErrors()
{
    QFETCH(QString, name);
    SynthesisRun run;
    const QString path = run.addSource(name, "module top (input a);\n\n  assign = a;\nendmodule\n");
    QCOMPARE(run.run(), 1);
    QCOMPARE(run.runner.errorMsg(), QStringLiteral("Yosys found an error."));
    QCOMPARE(run.runner.detailErrorMsgs().size(), 1);
    QVERIFY2(
        run.runner.detailErrorMsgs().first().startsWith(path + QStringLiteral(":3: syntax error")),
        run.report().constData());
    QCOMPARE(outputsOf(run), QStringList{QStringLiteral("core.log")});
}

void TestRunner::givesTheSameBytesInEveryFolderAndLocale()
{
    struct Place {
        const char *folder;
        const char *locale;
        const char *user;
        const char *zone;
    };
    const Place places[] = {
        {"a", "C", "alice", "UTC"},
        {"another, much longer/name of \u00e4 folder", "de_DE.UTF-8", "bob", "Asia/Tokyo"}};
    const QByteArray names[] = {"LC_ALL", "USER", "TZ"};
    QByteArray saved[3];
    for (int i = 0; i < 3; ++i)
        saved[i] = qgetenv(names[i]);

    QVector<QByteArray> results;
    for (const Place &place : places) {
        qputenv("LC_ALL", place.locale);
        qputenv("USER", place.user);
        qputenv("TZ", place.zone);
        SynthesisRun run;
        run.setOutputDir(
            run.folder.filePath(QString::fromUtf8(place.folder) + QStringLiteral("/out")));
        run.addSource(QString::fromUtf8(place.folder) + QStringLiteral("/sources/top.v"),
                      smallDesign);
        RUN_SUCCEEDS(run);
        QString message;
        const QString model = run.path(QStringLiteral(".vo"));
        QCOMPARE(Synthesis::writeSimulationModel(run.path(QStringLiteral(".vg")), model, &message),
                 0);
        results << run.netlist() << TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v")))
                << TestSupport::contentsOf(model);
    }
    for (int i = 0; i < 3; ++i)
        qputenv(names[i], saved[i]);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!results.at(i).isEmpty());
        QCOMPARE(results.at(i), results.at(i + 3));
    }
}

void TestRunner::readsIncludesOfTheOutputFolderFirst()
{
    SynthesisRun run;
    const QByteArray source = "module %(input a, output [`WIDTH-1:0] y); assign y = a; endmodule\n";
    TestSupport::write(run.job.outputDir + QStringLiteral("/width.vh"), "`define WIDTH 3\n");
    TestSupport::write(run.folder.filePath(QStringLiteral("lib/width.vh")), "`define WIDTH 9\n");
    TestSupport::write(run.folder.filePath(QStringLiteral("lib/beside.vh")), "`define BESIDE 1\n");
    run.addSource(QStringLiteral("lib/top.v"), "`include \"width.vh\"\n`include \"beside.vh\"\n" +
                                                   QByteArray(source).replace('%', "top"));
    RUN_SUCCEEDS(run);
    QVERIFY(run.netlist().contains("output [2:0] y"));
}

void TestRunner::seesMacrosAndParametersOfEarlierFiles()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("options.v"),
                  "`define WITH_Y\nparameter DEPTH = 6;\nparameter UNUSED = \"text\";\n");
    run.addSource(QStringLiteral("more.vh"), "`ifdef WITH_Y\n`define NAME y\n`endif\n");
    run.addSource(QStringLiteral("other.v"), "parameter DEPTH = 6;\n");
    run.addSource(
        QStringLiteral("top.v"),
        "module top (input a, output [DEPTH-1:0] `NAME); assign y = {DEPTH{a}}; endmodule\n");
    RUN_SUCCEEDS(run);
    QVERIFY(run.netlist().contains("output [5:0] y"));

    SynthesisRun reversed;
    reversed.addSource(QStringLiteral("top.v"),
                       "module top (input a, output y);\n`ifdef LATE\nbroken\n`endif\n"
                       "assign y = !a; endmodule\n");
    reversed.addSource(QStringLiteral("late.v"), "`define LATE\n");
    RUN_SUCCEEDS(reversed);
}

void TestRunner::readsSystemVerilogByItsSuffix()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("old.v"),
                  "module old (input logic, output bit); assign bit = !logic; endmodule\n");
    run.addSource(QStringLiteral("top.SV"),
                  "module top (input logic a, output logic y); old u (a, y); endmodule\n");
    RUN_SUCCEEDS(run);

    SynthesisRun other;
    other.addSource(QStringLiteral("top.v"),
                    "module top (input logic a, output y); assign y = a; endmodule\n");
    QCOMPARE(other.run(), 1);
    QVERIFY2(other.report().contains("top.v:1: syntax error"), other.report().constData());
}

void TestRunner::readsMemoryContentsBesideTheSource()
{
    SynthesisRun run;
    QByteArray contents;
    for (int i = 0; i < 1024; ++i)
        contents += QByteArray::number((i * 2654435761u) & 0xffff, 16) + '\n';
    TestSupport::write(run.folder.filePath(QStringLiteral("lib/contents.hex")), contents);
    run.addSource(QStringLiteral("lib/top.v"),
                  "module top (input clk, input [9:0] addr, output reg [15:0] q);\n"
                  "    reg [15:0] mem [0:1023];\n"
                  "    initial $readmemh(\"contents.hex\", mem);\n"
                  "    always @(posedge clk) q <= mem[addr];\n"
                  "endmodule\n");
    RUN_SUCCEEDS(run);
    QVERIFY(run.netlist().contains("TV_RAMB_"));
    QVERIFY(run.netlist().contains(".INIT(16384'h"));
}

void TestRunner::readsAFileNamedTwiceOnce()
{
    SynthesisRun run;
    const QString path = run.addSource(
        QStringLiteral("top.v"), "module top (input a, output y); assign y = !a; endmodule\n");
    run.addFile(path);
    run.addFile(run.folder.filePath(QStringLiteral("out/../top.v")));
    RUN_SUCCEEDS(run);
}

void TestRunner::refusesJobs_data()
{
    QTest::addColumn<QString>("outputDir");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("message");
    const QString sources = QStringLiteral("source_files");
    const QString good = QStringLiteral("out");
    QTest::newRow("no sources") << good << sources << QVariant(QStringList())
                                << QStringLiteral("There are no source files.");
    QTest::newRow("a missing source")
        << good << sources << QVariant(QStringList{QStringLiteral("/no/such.v")})
        << QStringLiteral("The source file \"/no/such.v\" does not exist.");
    QTest::newRow("a folder as source")
        << good << sources << QVariant(QStringList{QStringLiteral("/proc")})
        << QStringLiteral("The source file \"/proc\" is a folder.");
    QTest::newRow("an empty source name")
        << good << sources << QVariant(QStringList{QString()})
        << QStringLiteral("The list of source files holds an empty name.");
    QTest::newRow("a VHDL source")
        << good << sources << QVariant(QStringList{QStringLiteral("%1/part.VHD")})
        << QStringLiteral("part.VHD\" is VHDL, which cannot be read");
    QTest::newRow("no top module") << good << QStringLiteral("top_module") << QVariant(QString())
                                   << QStringLiteral("\"\" cannot be the name of the top module.");
    QTest::newRow("a script as top module")
        << good << QStringLiteral("top_module") << QVariant(QStringLiteral("x; shell"))
        << QStringLiteral("cannot be the name of the top module.");
    QTest::newRow("no output folder")
        << QString() << sources << QVariant() << QStringLiteral("No output folder is given.");
    QTest::newRow("a missing output folder") << QStringLiteral("nowhere") << sources << QVariant()
                                             << QStringLiteral("nowhere\" does not exist.");
    QTest::newRow("a file as output folder") << QStringLiteral("file") << sources << QVariant()
                                             << QStringLiteral("file\" is not a folder.");
    QTest::newRow("an output folder below a file")
        << QStringLiteral("file/out") << sources << QVariant()
        << QStringLiteral("file/out\" does not exist.");
    QTest::newRow("an output folder that takes no files")
        << QStringLiteral("/proc/self") << sources << QVariant()
        << QStringLiteral("Cannot write into the output folder \"/proc/self\": ");
}

void TestRunner::refusesJobs()
{
    QFETCH(QString, outputDir);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, message);
    SynthesisRun run;
    TestSupport::write(run.folder.filePath(QStringLiteral("file")), "x");
    TestSupport::write(run.folder.filePath(QStringLiteral("part.VHD")), "x");
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    run.job.outputDir = outputDir;
    if (!outputDir.isEmpty() && QDir::isRelativePath(outputDir))
        run.job.outputDir = run.folder.filePath(outputDir);
    if (value.isValid()) {
        if (value.type() == QVariant::StringList)
            value = value.toStringList().replaceInStrings(QStringLiteral("%1"), run.folder.path());
        run.job.options[key] = value;
    }

    run.start();
    QCOMPARE(run.finished.count(), 0); // never from within start()
    QVERIFY(run.runner.isRunning());
    QVERIFY(run.finished.wait());
    QCOMPARE(run.finished.first().first().toInt(), 1);
    QVERIFY2(run.runner.errorMsg().contains(message), run.report().constData());
    QVERIFY(!run.runner.isRunning());
    QCOMPARE(TestSupport::entriesOf(run.folder.filePath(QStringLiteral("out"))), QStringList());
}

void TestRunner::refusesAReadOnlyFolder()
{
    if (::geteuid() == 0)
        QSKIP("permissions do not bind root");
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    QFile::setPermissions(run.job.outputDir, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const int code = run.run();
    QFile::setPermissions(run.job.outputDir,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QCOMPARE(code, 1);
    QVERIFY2(run.runner.errorMsg().contains(QStringLiteral("Permission denied")),
             run.report().constData());
}

void TestRunner::namesAMissingTool_data()
{
    QTest::addColumn<int>("tool");
    QTest::addColumn<QString>("message");
    QTest::newRow("own tool")
        << int(Synthesis::Tool::TarvoSynthesis)
        << QStringLiteral("Yosys is not installed: no program \"yosys\" was found on PATH.");
    QTest::newRow("project tool")
        << int(Synthesis::Tool::SynplifyPro)
        << QStringLiteral(
               "Synplify Pro is not installed: no program \"synplify_pro\" was found on PATH.");
}

void TestRunner::namesAMissingTool()
{
    QFETCH(int, tool);
    QFETCH(QString, message);
    SynthesisRun run;
    run.runner.setTool(Synthesis::Tool(tool));
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    const OnlyPath path(run.job.outputDir);
    QCOMPARE(run.run(), 1);
    QCOMPARE(run.runner.errorMsg(), message);
    QCOMPARE(outputsOf(run), QStringList());
}

void TestRunner::reportsToolsThatFail_data()
{
    QTest::addColumn<QString>("fake");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("details");
    QTest::newRow("crashing") << QStringLiteral("crashing")
                              << QStringLiteral("Yosys crashed (signal 11).") << QStringList();
    QTest::newRow("killed with half an output")
        << QStringLiteral("dying") << QStringLiteral("Yosys crashed (signal 9).") << QStringList();
    QTest::newRow("garbage and no output")
        << QStringLiteral("garbling")
        << QStringLiteral("Yosys reported success but did not write \"%1/core.vg\".")
        << QStringList();
    QTest::newRow("half an output and success")
        << QStringLiteral("halfway")
        << QStringLiteral(
               "Yosys reported success but what it wrote for \"%1/core.vg\" is not complete.")
        << QStringList();
    QTest::newRow("errors with and without a place")
        << QStringLiteral("erring") << QStringLiteral("Yosys found 2 errors.")
        << QStringList{QStringLiteral("%2/a.v:7: first mistake"),
                       QStringLiteral("Module \"nowhere\" referenced in module \"top\" in cell "
                                      "\"u0\" is not part of the design.")};
}

void TestRunner::reportsToolsThatFail()
{
    QFETCH(QString, fake);
    QFETCH(QString, message);
    QFETCH(QStringList, details);
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    const FakeTool tool(fake);
    QCOMPARE(run.run(), 1);
    QCOMPARE(run.runner.errorMsg(), message.replace(QStringLiteral("%1"), run.job.outputDir));
    QCOMPARE(run.runner.detailErrorMsgs(),
             details.replaceInStrings(QStringLiteral("%2"), run.folder.path()));
    for (const QString &entry : outputsOf(run))
        QCOMPARE(entry, QStringLiteral("core.log"));
    for (const QString &line : run.log())
        QVERIFY(line.size() <= 65536);
}

void TestRunner::reportsMistakesInSources_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("detail");
    const QString one = QStringLiteral("Yosys found an error.");
    QTest::newRow("missing module")
        << QByteArray("module top (input a);\n  nowhere u0 (a);\nendmodule\n") << one
        << QStringLiteral("Module \"nowhere\" referenced in module \"top\" in cell \"u0\" is not "
                          "part of the design.");
    QTest::newRow("missing top") << QByteArray("module other (input a);\nwire b;\nendmodule\n")
                                 << one << QStringLiteral("Module \"top\" not found!");
    QTest::newRow("missing include")
        << QByteArray("module top (input a);\n`include \"no such.vh\"\nendmodule\n") << one
        << QStringLiteral("%1/top.v:2: Can't open include file \"no such.vh\"!");
    QTest::newRow("missing macro")
        << QByteArray("module top (input a);\n\nwire b = `NO;\nendmodule\n") << one
        << QStringLiteral("%1/top.v:3: Unimplemented compiler directive or undefined macro `NO.");
    QTest::newRow("missing memory contents")
        << QByteArray("module top (input a, input [1:0] s, output y);\nreg m [0:3];\ninitial "
                      "$readmemh(\"no.hex\", m);\n"
                      "assign y = m[s];\nendmodule\n")
        << one << QStringLiteral("%1/top.v: Can not open file `no.hex` for \\$readmemh.");
    QTest::newRow("large memory that nothing fits")
        << QByteArray(
               "module top (input clk, input [13:0] a, b, c, input [7:0] d, output [7:0] y, z);\n"
               "reg [7:0] m [0:16383];\nreg [7:0] y, z;\n"
               "always @(posedge clk) begin m[a] <= d; m[b] <= ~d; m[c] <= d + 1; y <= m[a]; z <= "
               "m[d]; end\n"
               "endmodule\n")
        << QStringLiteral("A large memory fits no memory primitive") << QString();
}

void TestRunner::reportsMistakesInSources()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, message);
    QFETCH(QString, detail);
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), source);
    QCOMPARE(run.run(), 1);
    QVERIFY2(run.runner.errorMsg().startsWith(message), run.report().constData());
    QCOMPARE(run.runner.detailErrorMsgs().size(), 1);
    if (!detail.isEmpty())
        QCOMPARE(run.runner.detailErrorMsgs().first(),
                 detail.replace(QStringLiteral("%1"), run.folder.path()));
    QCOMPARE(outputsOf(run), QStringList{QStringLiteral("core.log")});
}

void TestRunner::keepsTheOldOutputsWhenARunFails()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    RUN_SUCCEEDS(run);
    const QByteArray netlist = run.netlist();
    const QByteArray instance = TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v")));
    for (const char *fake : {"dying", "halfway", "garbling"}) {
        const FakeTool tool(QLatin1String(fake) + QString());
        QCOMPARE(run.run(), 1);
        QCOMPARE(run.netlist(), netlist);
        QCOMPARE(TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v"))), instance);
        QCOMPARE(outputsOf(run).size(), 3);
    }
}

void TestRunner::succeedsAfterAFailure()
{
    SynthesisRun run;
    const QString source = run.addSource(QStringLiteral("top.v"), "module top (input a;\n");
    QCOMPARE(run.run(), 1);
    QVERIFY(!run.runner.detailErrorMsgs().isEmpty());
    TestSupport::write(source, "module top (input a, output y); assign y = !a; endmodule\n");
    RUN_SUCCEEDS(run);
    QCOMPARE(run.runner.errorMsg(), QString());
    QCOMPARE(run.runner.detailErrorMsgs(), QStringList());
    {
        const FakeTool tool(QStringLiteral("crashing"));
        QCOMPARE(run.run(), 1);
    }
    RUN_SUCCEEDS(run);
}

void TestRunner::canStartAgainWhenFinished()
{
    SynthesisRun run;
    const QString source = run.addSource(QStringLiteral("top.v"), "module top (input a;\n");
    bool again = false;
    QObject::connect(&run.runner, &Synthesis::Runner::finished, [&] {
        if (again)
            return;
        again = true;
        TestSupport::write(source, "module top (input a, output y); assign y = !a; endmodule\n");
        run.runner.start();
    });
    run.start();
    QTRY_COMPARE(run.finished.count(), 2);
    QCOMPARE(run.finished.at(0).first().toInt(), 1);
    QCOMPARE(run.finished.at(1).first().toInt(), 0);
}

void TestRunner::ignoresAStartWhileRunning()
{
    const FakeTool tool(QStringLiteral("sleeping"));
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    run.start();
    QTRY_VERIFY(groupOf(run) > 0);
    run.runner.start();
    run.runner.cancel();
    QVERIFY(run.finished.wait());
    QCoreApplication::processEvents();
    QCOMPARE(run.finished.count(), 1);
    QCOMPARE(run.log().size(), 1);
}

void TestRunner::refusesASecondRunInTheSameFolder()
{
    SynthesisRun second;
    const QString source = second.addSource(QStringLiteral("top.v"), smallDesign);
    SynthesisRun first;
    first.addFile(source);
    {
        const FakeTool tool(QStringLiteral("sleeping"));
        first.start();
        QTRY_VERIFY(groupOf(first) > 0);
    }
    second.job.outputDir = first.job.outputDir;
    QCOMPARE(second.run(), 1);
    QVERIFY2(second.runner.errorMsg().endsWith(QStringLiteral("another run is working there.")),
             second.report().constData());
    QVERIFY(first.runner.isRunning());
    first.runner.cancel();
    QVERIFY(first.finished.wait());
    RUN_SUCCEEDS(second);
}

void TestRunner::cleansUpAfterAKilledRun()
{
    SynthesisRun run;
    const QString source = run.addSource(QStringLiteral("sources/top.v"), smallDesign);
    const QString left = run.job.outputDir + QStringLiteral("/.tarvo-run");
    TestSupport::write(left + QStringLiteral("/netlist.v"), "module top");
    QVERIFY(QFile::link(QFileInfo(source).path(), left + QStringLiteral("/dir0")));
    RUN_SUCCEEDS(run);
    QCOMPARE(outputsOf(run).size(), 3);
    QCOMPARE(TestSupport::contentsOf(source),
             smallDesign); // links are removed, not what they lead to
}

void TestRunner::cancelKillsTheWholeGroup_data()
{
    QTest::addColumn<QString>("fake");
    QTest::newRow("tool that ends when asked") << QStringLiteral("sleeping");
    QTest::newRow("tool that must be killed") << QStringLiteral("stubborn");
}

void TestRunner::cancelKillsTheWholeGroup()
{
    QFETCH(QString, fake);
    const FakeTool tool(fake);
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    run.start();
    QTRY_VERIFY(groupOf(run) > 0);
    const qint64 group = groupOf(run);
    QVERIFY(processesOf(group).size() >= 2);
    QVERIFY(group != ::getpgrp());

    run.runner.cancel();
    run.runner.cancel();
    QVERIFY(run.runner.isRunning());
    QVERIFY(run.finished.wait(20000));
    QVERIFY(run.finished.first().first().toInt() != 0);
    QVERIFY(run.runner.wasCancelled());
    QCOMPARE(run.runner.errorMsg(), QStringLiteral("The synthesis was cancelled."));
    QCOMPARE(run.runner.detailErrorMsgs(), QStringList());
    QTRY_COMPARE(processesOf(group), QStringList());
    QCOMPARE(outputsOf(run), QStringList{QStringLiteral("core.log")});
    QCOMPARE(run.finished.count(), 1);
}

void TestRunner::cancelEndsARealRun()
{
    SynthesisRun run;
    run.addSource(QStringLiteral("top.v"), smallDesign);
    QObject::connect(&run.runner, &Synthesis::Runner::stageChanged, [&](const QString &stage) {
        if (stage == QStringLiteral("Mapping memories"))
            run.runner.cancel();
    });
    QCOMPARE(run.run(), 1);
    QVERIFY(run.runner.wasCancelled());
    QCOMPARE(outputsOf(run), QStringList{QStringLiteral("core.log")});
    run.runner.disconnect();
    SynthesisRun next;
    next.job = run.job;
    RUN_SUCCEEDS(next);
    QVERIFY(!next.runner.wasCancelled());
}

void TestRunner::cancelBeforeTheEndOfAFailedStartCounts()
{
    SynthesisRun run;
    run.start(); // there are no sources
    run.runner.cancel();
    QVERIFY(run.finished.wait());
    QVERIFY(run.runner.wasCancelled());
    QVERIFY(run.finished.first().first().toInt() != 0);
}

void TestRunner::deletionKillsTheWholeGroup()
{
    const FakeTool tool(QStringLiteral("stubborn"));
    QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("top.v"));
    const QString output = folder.filePath(QStringLiteral("out"));
    TestSupport::write(source, smallDesign);
    QDir().mkpath(output);

    SynthesisRun model;
    model.addFile(source);
    model.setOutputDir(output);
    auto runner = std::make_unique<Synthesis::Runner>();
    QSignalSpy finished(runner.get(), &Synthesis::Runner::finished);
    QSignalSpy log(runner.get(), &Synthesis::Runner::logReceived);
    runner->setJob(model.job);
    runner->start();
    QTRY_VERIFY(!log.isEmpty());
    const qint64 group = log.first().first().toString().section(u' ', 1, 1).toLongLong();
    QVERIFY(!processesOf(group).isEmpty());

    runner.reset();
    QTRY_COMPARE(processesOf(group), QStringList());
    QCOMPARE(finished.count(), 0);
    QCOMPARE(TestSupport::entriesOf(output), QStringList());

    // Also right after the start, before the tool can have begun.
    runner = std::make_unique<Synthesis::Runner>();
    runner->setJob(model.job);
    runner->start();
    runner.reset();
    QCOMPARE(TestSupport::entriesOf(output), QStringList());
}

void TestRunner::cancelWithoutARunDoesNothing()
{
    SynthesisRun run;
    run.runner.cancel();
    QVERIFY(!run.runner.wasCancelled());
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    RUN_SUCCEEDS(run);
    run.runner.cancel();
    QVERIFY(!run.runner.wasCancelled());
    QCOMPARE(run.finished.count(), 1);
}

void TestRunner::runsTheProjectTool()
{
    const FakeTool tool(QStringLiteral("project"));
    SynthesisRun run;
    run.runner.setTool(Synthesis::Tool::SynplifyPro);
    run.job.device = DEV::DeviceArg(
        QStringLiteral("TV2KR-18C"), QStringLiteral("TV2KR-18"), QStringLiteral("C"),
        QStringLiteral("QFN88P"), QStringLiteral("C8/I7"), QStringLiteral("TV2KR-LV18QN88PC8/I7"));
    const QString source = run.addSource(
        QStringLiteral("top.v"), "module top (input a, output y); assign y = !a; endmodule\n");
    RUN_SUCCEEDS(run);
    QCOMPARE(outputsOf(run), QStringList({QStringLiteral("core.log"), QStringLiteral("core.prj"),
                                          QStringLiteral("core_tmp.v"),
                                          QStringLiteral("project.txt"), QStringLiteral("rev_1")}));
    QCOMPARE(TestSupport::entriesOf(run.job.outputDir + QStringLiteral("/rev_1")),
             QStringList{QStringLiteral("core.vm")});
    QVERIFY(TestSupport::contentsOf(run.path(QStringLiteral("_tmp.v")))
                .contains(".y(y_o)  // output\n"));

    const QList<QByteArray> project =
        TestSupport::contentsOf(run.job.outputDir + QStringLiteral("/project.txt")).split('\n');
    const QByteArray includes = run.job.outputDir.toUtf8() + ';' + run.folder.path().toUtf8();
    const QByteArrayList expected{QByteArray("add_file|-verilog|" + source.toUtf8()),
                                  "impl|-add|rev_1|-type|fpga",
                                  "set_option|-technology|TV2KR",
                                  "set_option|-part|TV2KR-18C",
                                  "set_option|-package|QFN88P",
                                  "set_option|-speed_grade|C8/I7",
                                  "set_option|-top_module|top",
                                  "set_option|-disable_io_insertion|1",
                                  QByteArray("set_option|-include_path|" + includes),
                                  "impl|-active|rev_1"};
    for (const QByteArray &line : expected)
        QVERIFY2(project.contains(line), line.constData());
    QCOMPARE(run.stages(),
             QStringList({QStringLiteral("Reading sources"), QStringLiteral("Mapping logic"),
                          QStringLiteral("Writing template")}));
}

void TestRunner::theProjectToolWritesVhdlToo()
{
    const FakeTool tool(QStringLiteral("project"));
    SynthesisRun run;
    run.runner.setTool(Synthesis::Tool::SynplifyPro);
    run.job.options[QStringLiteral("write_vhdl")] = true;
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    RUN_SUCCEEDS(run);
    QCOMPARE(TestSupport::entriesOf(run.job.outputDir + QStringLiteral("/rev_1")),
             QStringList({QStringLiteral("core.vhm"), QStringLiteral("core.vm")}));
    QVERIFY(TestSupport::contentsOf(run.path(QStringLiteral("_tmp.vhd")))
                .contains("a => a_i, -- in std_logic\n"));
    QVERIFY(!QFile::exists(run.path(QStringLiteral("_tmp.v"))));
    QCOMPARE(run.runner.report().files.last(),
             QString(run.job.outputDir + QStringLiteral("/rev_1/core.vhm")));
}

void TestRunner::quotesPathsInTheProject_data()
{
    takesPathsOfAnyKind_data();
}

void TestRunner::quotesPathsInTheProject()
{
    QFETCH(QString, name);
    const FakeTool tool(QStringLiteral("project"));
    SynthesisRun run;
    run.runner.setTool(Synthesis::Tool::SynplifyPro);
    run.setOutputDir(run.folder.filePath(name + QStringLiteral(" out")));
    run.job.targetName = name;
    const QString source =
        run.addSource(name + u'/' + name + QStringLiteral(".v"),
                      "module top (input a, output y); assign y = !a; endmodule\n");
    RUN_SUCCEEDS(run);
    const QByteArray project =
        TestSupport::contentsOf(run.job.outputDir + QStringLiteral("/project.txt"));
    QVERIFY2(project.startsWith("add_file|-verilog|" + source.toUtf8() + '\n'),
             project.constData());
    QVERIFY(QFile::exists(run.job.outputDir + QStringLiteral("/rev_1/") + name +
                          QStringLiteral(".vm")));
}

void TestRunner::reportsProjectToolsThatFail_data()
{
    QTest::addColumn<QString>("fake");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QStringList>("details");
    QTest::newRow("error") << QStringLiteral("project-erring")
                           << QStringLiteral("Synplify Pro found an error.")
                           << QStringList{QStringLiteral("/somewhere/a b.v:12: no such thing")};
    QTest::newRow("no result")
        << QStringLiteral("project-idle")
        << QStringLiteral("Synplify Pro reported success but did not write \"%1/rev_1/core.vm\".")
        << QStringList();
}

void TestRunner::reportsProjectToolsThatFail()
{
    QFETCH(QString, fake);
    QFETCH(QString, message);
    QFETCH(QStringList, details);
    const FakeTool tool(fake);
    SynthesisRun run;
    run.runner.setTool(Synthesis::Tool::SynplifyPro);
    run.addSource(QStringLiteral("top.v"),
                  "module top (input a, output y); assign y = !a; endmodule\n");
    QCOMPARE(run.run(), 1);
    QCOMPARE(run.runner.errorMsg(), message.replace(QStringLiteral("%1"), run.job.outputDir));
    QCOMPARE(run.runner.detailErrorMsgs(), details);
    QVERIFY(!QFile::exists(run.job.outputDir + QStringLiteral("/rev_1/core.vm")));
    QVERIFY(!QFile::exists(run.job.outputDir + QStringLiteral("/.tarvo-run")));
}

TARVO_TEST_MAIN(QCoreApplication, TestRunner)
#include "tst_runner.moc"
