#include "../synthesisrun.h"

#include <synthesis/simulationmodel.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace
{

// Clock cycles of a comparison. By hand more: TARVO_TEST_CYCLES=3000.
int cycles()
{
    return qMax(800, qEnvironmentVariableIntValue("TARVO_TEST_CYCLES"));
}

QString design(const QString &name)
{
    return QStringLiteral(DESIGNS_DIR "/") + name;
}

QStringList namesIn(const QByteArray &text, const char *pattern)
{
    const QRegularExpression expression(QLatin1String(pattern) + QString(),
                                        QRegularExpression::MultilineOption);
    QStringList names;
    auto match = expression.globalMatch(QString::fromUtf8(text));
    while (match.hasNext())
        names << match.next().captured(1);
    names.removeDuplicates();
    names.sort();
    return names;
}

QStringList instancesIn(const QByteArray &netlist)
{
    return namesIn(netlist, "^  (TV_\\w+) ");
}

QStringList modulesIn(const QByteArray &text)
{
    return namesIn(text, "^module (\\w+)");
}

QByteArray primitivesText()
{
    return TestSupport::contentsOf(QStringLiteral(":/tarvo/synthesis/primitives.v"));
}

// What the test bench prints for a file that holds the module "dut".
QByteArray simulate(const QString &file, const QString &folder, QByteArray *error)
{
    const QString program = folder + QStringLiteral("/simulation");
    if (execute(QStringLiteral("iverilog"),
                {QStringLiteral("-g2005"), QStringLiteral("-o"), program,
                 QStringLiteral("-Ptestbench.cycles=%1").arg(cycles()),
                 design(QStringLiteral("testbench.v")), file},
                error) != 0 ||
        !error->isEmpty())
        return {};
    QByteArray output;
    if (execute(QStringLiteral("vvp"), {QStringLiteral("-n"), program}, &output, folder) != 0)
        *error = output;
    return output;
}

// Likewise for VHDL files, with the stimulus that simulate() has left in the folder.
QByteArray simulateVhdl(const QStringList &files, const QString &folder, const QString &standard,
                        QByteArray *error)
{
    const QTemporaryDir libraries(folder + QStringLiteral("/work-XXXXXX"));
    const QString work = libraries.path();
    const QStringList options{QLatin1String("--std=") + standard,
                              QLatin1String("--workdir=") + work};
    const QString bench = design(QStringLiteral("testbench.vhd"));
    if (execute(QStringLiteral("ghdl"),
                QStringList{QStringLiteral("-a")} + options + files + QStringList{bench}, error,
                folder) != 0 ||
        !error->isEmpty())
        return {};
    QByteArray output;
    if (execute(QStringLiteral("ghdl"),
                QStringList{QStringLiteral("-r")} + options +
                    QStringList{QStringLiteral("testbench")},
                &output, folder) != 0)
        *error = output;
    return output;
}

// Compares two traces where the source leaves nothing open; the number of known bits in `*known`,
// of open ones in `*unknown`.
QByteArray difference(const QList<QByteArray> &expected, const QList<QByteArray> &actual,
                      int *known, int *unknown)
{
    if (actual.size() != expected.size())
        return "there are " + QByteArray::number(actual.size()) + " lines, not " +
               QByteArray::number(expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        const QByteArray &is = actual.at(i);
        const QByteArray &shall = expected.at(i);
        for (int bit = 0; bit < shall.size(); ++bit) {
            if (shall.at(bit) == 'x') {
                ++*unknown;
                continue;
            }
            ++*known;
            if (is.size() != shall.size() || is.at(bit) != shall.at(bit))
                return "line " + QByteArray::number(i) + '\n' + shall + '\n' + is;
        }
    }
    return {};
}

} // namespace

class TestNetlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void behavesLikeItsSource_data();
    void behavesLikeItsSource();
    void everyPrimitiveHasBeenCompared();
    void everyModelCompilesAlone();
    void mapsLargeMemoriesToBlockRam();

    void modelHoldsWhatTheNetlistNeeds();
    void modelLeavesUnchangedFilesUntouched();
    void modelRefusesNetlists_data();
    void modelRefusesNetlists();
    void modelReadsNetlistsOfAnyForm_data();
    void modelReadsNetlistsOfAnyForm();
    void modelStandsInForEmptyModules_data();
    void modelStandsInForEmptyModules();
    void modelsOfOneNameStandBesideEachOther();
    void modelNamesADestinationThatCannotBe();

private:
    QSet<QString> m_compared;
};

void TestNetlist::behavesLikeItsSource_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("primitives");
    const auto row = [](const char *title, const char *file, const char *primitives) {
        QTest::newRow(title) << QString(QLatin1String(file))
                             << QString(QLatin1String(primitives)).split(u' ');
    };
    row("tables of one to four inputs", "tables", "TV_LUT1 TV_LUT2 TV_LUT3 TV_LUT4");
    row("sums, differences and comparisons", "arithmetic", "TV_CARRY TV_LUT2 TV_DFFR TV_DFFS");
    row("comparisons with constants", "comparisons", "TV_CARRY TV_LUT4 TV_DFFR");
    row("flip-flops with enable and synchronous reset", "flip_flops",
        "TV_DFF TV_DFFE TV_DFFR TV_DFFRE TV_DFFS TV_DFFSE");
    row("flip-flops with clear and preset", "async_flip_flops",
        "TV_DFFC TV_DFFCE TV_DFFP TV_DFFPE TV_DFFCP TV_DFFCPE");
    row("flip-flops of the falling edge", "falling_edge",
        "TV_DFF TV_DFFC TV_DFFCE TV_DFFE TV_DFFP TV_DFFR TV_DFFRE TV_DFFSE");
    row("values at power-up", "power_up_values", "TV_DFF TV_DFFC TV_DFFE TV_DFFPE");
    row("latches", "latches", "TV_DL");
    row("tri-state pins", "tri_states", "TV_TBUF");
    row("small memories", "small_memory", "TV_RAMD");
    row("block RAM of every word size", "block_ram_widths", "TV_RAMB_SDP");
    row("block RAM with byte enables", "block_ram_bytes", "TV_RAMB_SDP");
    row("block RAM with two ports", "block_ram_two_ports", "TV_RAMB_TDP");
    row("odd names", "odd_names", "TV_DFFR TV_CARRY TV_TBUF");
    row("read-only memory", "read_only_memory", "TV_RAMB_SDP TV_LUT4");
}

void TestNetlist::behavesLikeItsSource()
{
    QFETCH(QString, file);
    QFETCH(QStringList, primitives);
    const QString source = design(QStringLiteral("equivalence/") + file + QStringLiteral(".v"));
    SynthesisRun run;
    run.job.options[QStringLiteral("top_module")] = QStringLiteral("dut");
    run.job.options[QStringLiteral("write_vhdl")] = true;
    run.addFile(source);
    RUN_SUCCEEDS(run);
    const QStringList instances = instancesIn(run.netlist());
    for (const QString &primitive : primitives) {
        QVERIFY2(instances.contains(primitive), qPrintable(instances.join(u' ')));
        m_compared.insert(primitive);
    }

    const QString model = run.path(QStringLiteral(".vo"));
    QString message;
    QCOMPARE(Synthesis::writeSimulationModel(run.path(QStringLiteral(".vg")), model, &message), 0);
    QByteArray error;
    const QList<QByteArray> expected = simulate(source, run.folder.path(), &error).split('\n');
    QVERIFY2(error.isEmpty(), error.constData());
    const QList<QByteArray> actual = simulate(model, run.folder.path(), &error).split('\n');
    QVERIFY2(error.isEmpty(), error.constData());

    QVERIFY(expected.size() > 8 * cycles());
    int known = 0;
    int unknown = 0;
    const QByteArray verilog = difference(expected, actual, &known, &unknown);
    QVERIFY2(verilog.isEmpty(), verilog.constData());
    // The comparison says something.
    QVERIFY(unknown * 100 < known);
    QVERIFY(QSet<QByteArray>(expected.begin(), expected.end()).size() > 1000);

    const QString library = run.folder.filePath(QStringLiteral("primitives.vhd"));
    TestSupport::write(library,
                       TestSupport::contentsOf(QStringLiteral(":/tarvo/synthesis/primitives.vhd")));
    struct Variant {
        QString standard;
        QStringList files;
    };
    const QString vho = run.path(QStringLiteral(".vho"));
    const QString vhg = run.path(QStringLiteral(".vhg"));
    const Variant variants[] = {{QStringLiteral("93"), {vho}},
                                {QStringLiteral("08"), {library, vhg}}};
    for (const Variant &variant : variants) {
        const QList<QByteArray> trace =
            simulateVhdl(variant.files, run.folder.path(), variant.standard, &error).split('\n');
        QVERIFY2(error.isEmpty(), error.constData());
        const QByteArray vhdl = difference(expected, trace, &known, &unknown);
        QVERIFY2(vhdl.isEmpty(), QByteArray(variant.standard.toLatin1() + ": " + vhdl).constData());
    }
}

void TestNetlist::everyPrimitiveHasBeenCompared()
{
    const QStringList primitives = modulesIn(primitivesText());
    QVERIFY(primitives.size() >= 20);
    if (m_compared.isEmpty())
        QSKIP("needs the comparisons before it");
    QStringList compared = m_compared.values();
    compared.sort();
    QCOMPARE(compared, primitives);
}

void TestNetlist::everyModelCompilesAlone()
{
    const QTemporaryDir folder;
    const QStringList primitives = modulesIn(primitivesText());
    for (const QString &primitive : primitives) {
        const QString netlist = folder.filePath(QStringLiteral("netlist.v"));
        const QString model = folder.filePath(QStringLiteral("model.vo"));
        TestSupport::write(netlist, "module top;\n  " + primitive.toUtf8() + " u ();\nendmodule\n");
        QString message;
        QVERIFY2(Synthesis::writeSimulationModel(netlist, model, &message) == 0,
                 qPrintable(message));
        QCOMPARE(modulesIn(TestSupport::contentsOf(model)),
                 QStringList({primitive, QStringLiteral("top")}));
        QByteArray output;
        execute(QStringLiteral("iverilog"),
                {QStringLiteral("-g2005"), QStringLiteral("-Wall"),
                 QStringLiteral("-Wno-timescale"), QStringLiteral("-Wno-portbind"),
                 QStringLiteral("-tnull"), model},
                &output);
        // Only the open inputs may be remarked upon.
        for (const QByteArray &line : output.split('\n'))
            QVERIFY2(line.isEmpty() || line.contains("floating") || line.contains("dangling"),
                     line.constData());
    }
}

void TestNetlist::mapsLargeMemoriesToBlockRam()
{
    SynthesisRun run;
    run.addFile(design(QStringLiteral("large_memories.v")));
    RUN_SUCCEEDS(run);
    // 2 * 512 KB in blocks of 2 KB.
    QVERIFY2(run.log().contains(QStringLiteral("     512 TV_RAMB_SDP")),
             qPrintable(run.log().join(u'\n')));
    QVERIFY(run.netlist().count("TV_DFF") < 100);
}

void TestNetlist::modelHoldsWhatTheNetlistNeeds()
{
    SynthesisRun run;
    run.addFile(design(QStringLiteral("small.v")));
    RUN_SUCCEEDS(run);
    const QString model = run.path(QStringLiteral(".vo"));
    QString message = QStringLiteral("untouched");
    QCOMPARE(Synthesis::writeSimulationModel(run.path(QStringLiteral(".vg")), model, &message), 0);
    QCOMPARE(message, QStringLiteral("untouched"));
    const QByteArray text = TestSupport::contentsOf(model);
    // The netlist, up to the contents of its empty module.
    const QByteArray netlist = run.netlist();
    QVERIFY(text.startsWith(netlist.left(netlist.lastIndexOf("endmodule"))));
    QStringList expected = instancesIn(run.netlist());
    QVERIFY(expected.size() > 5);
    expected << QStringLiteral("analog") << QStringLiteral("top");
    expected.sort();
    QCOMPARE(modulesIn(text), expected);
    QByteArray output;
    QVERIFY2(compiles({model}, &output), output.constData());
}

void TestNetlist::modelLeavesUnchangedFilesUntouched()
{
    const QTemporaryDir folder;
    const QString netlist = folder.filePath(QStringLiteral("a.v"));
    const QString model = folder.filePath(QStringLiteral("a.vo"));
    TestSupport::write(
        netlist,
        "module top (output y);\n  TV_LUT1 #(.INIT(2'h1)) u (.O(y), .I0(1'b0));\nendmodule");
    QString message;
    QCOMPARE(Synthesis::writeSimulationModel(netlist, model, &message), 0);
    const QDateTime longAgo(QDate(2001, 2, 3), QTime(4, 5, 6));
    QFile file(model);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(Synthesis::writeSimulationModel(netlist, model, &message), 0);
    QCOMPARE(QFileInfo(model).lastModified(), longAgo);
}

void TestNetlist::modelRefusesNetlists_data()
{
    QTest::addColumn<QByteArray>("netlist");
    QTest::addColumn<QString>("message");
    const QString incomplete = QStringLiteral("\"%1\" is not a complete Verilog netlist.");
    QTest::newRow("empty") << QByteArray() << incomplete;
    QTest::newRow("no module") << QByteArray("// nothing\n`define X 1\n") << incomplete;
    QTest::newRow("garbage") << QByteArray("\xff\x00\x01 module", 10) << incomplete;
    QTest::newRow("ends in a module") << QByteArray("module top; wire a;\n") << incomplete;
    QTest::newRow("ends in an instance") << QByteArray("module top; TV_LUT1 u (.O(") << incomplete;
    QTest::newRow("ends in a comment") << QByteArray("module top; endmodule /* more") << incomplete;
    QTest::newRow("ends in a string")
        << QByteArray("module a; endmodule module top; X #(.S(\"endmodule") << incomplete;
    const QString unknown = QStringLiteral(
        "The netlist \"%1\" instantiates %2, for which there is no simulation model.");
    QTest::newRow("unknown module")
        << QByteArray("module top; nowhere u (); TV_LUT1 v (); endmodule")
        << QString(unknown).replace(QStringLiteral("%2"), QStringLiteral("\"nowhere\""));
    QTest::newRow("several unknown modules")
        << QByteArray("module top; zz u (); aa #(3) v (), w (); \\b+c  x (); endmodule")
        << QString(unknown).replace(QStringLiteral("%2"),
                                    QStringLiteral("\"aa\", \"b+c\", \"zz\""));
}

void TestNetlist::modelRefusesNetlists()
{
    QFETCH(QByteArray, netlist);
    QFETCH(QString, message);
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("a.v"));
    TestSupport::write(source, netlist);
    TestSupport::write(folder.filePath(QStringLiteral("a.vo")), "old");
    QString actual;
    QVERIFY(Synthesis::writeSimulationModel(source, folder.filePath(QStringLiteral("a.vo")),
                                            &actual) != 0);
    QCOMPARE(actual, message.replace(QStringLiteral("%1"), source));
    QCOMPARE(TestSupport::contentsOf(folder.filePath(QStringLiteral("a.vo"))), QByteArray("old"));
    QVERIFY(Synthesis::writeSimulationModel(source, folder.filePath(QStringLiteral("a.vo")),
                                            nullptr) != 0);
}

void TestNetlist::modelReadsNetlistsOfAnyForm_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("models");
    const QStringList lut{QStringLiteral("TV_LUT1")};
    QTest::newRow("plain") << QByteArray("TV_LUT1 u (.O(a), .I0(b));") << lut;
    QTest::newRow("escaped names")
        << QByteArray("wire \\TV_DFF ; TV_LUT1 \\u.v[0]  (.O(a), .I0(\\TV_DFF ));") << lut;
    QTest::newRow("parameters") << QByteArray("TV_LUT1 #( .INIT ( 2'h1 ) ) u (.O(a), .I0(b));")
                                << lut;
    QTest::newRow("short parameter") << QByteArray("TV_LUT1 #2 u (a, b);") << lut;
    QTest::newRow("array of instances") << QByteArray("TV_LUT1 u [1:0] (.O(a), .I0(b));") << lut;
    QTest::newRow("attributes and comments")
        << QByteArray("(* note = \"TV_DFF u ();\" *) /* TV_DFF u (); */ TV_LUT1 // TV_DFF u ();\n "
                      "u (.O(a), .I0(b));")
        << lut;
    QTest::newRow("no space") << QByteArray("TV_LUT1 u(.O(a),.I0(b));") << lut;
    QTest::newRow("names of primitives as signals")
        << QByteArray("wire TV_DFF; assign TV_DFF = b; TV_LUT1 u (.O(a), .I0(TV_DFF));") << lut;
    QTest::newRow("behind statements")
        << QByteArray("reg r; initial begin r = 0; end always @(posedge b) begin : label if (b) r "
                      "<= 1; else r <= 0; end\n"
                      "always @(*) case (b) 1: r = b; default: r = 0; endcase\n"
                      "assign a[1] = r; and g (a[0], b, b); TV_LUT1 u (.O(), .I0(b));")
        << lut;
    QTest::newRow("in a generate block")
        << QByteArray("genvar i; generate for (i = 0; i < 2; i = i + 1) begin : g TV_LUT1 u "
                      "(.O(a[i]), .I0(b)); end\n"
                      "if (1) TV_LUT2 v (.O(), .I0(b), .I1(b)); else TV_LUT2 w (.O(), .I0(b), "
                      ".I1(b)); endgenerate")
        << QStringList{QStringLiteral("TV_LUT1"), QStringLiteral("TV_LUT2")};
    QTest::newRow("text with names")
        << QByteArray("initial $display(\"TV_DFF u (); \\\" TV_DFF v ();\"); TV_LUT1 u (a[0], b);")
        << lut;
    QTest::newRow("nothing") << QByteArray("assign a = {2{b}};") << QStringList();
}

void TestNetlist::modelReadsNetlistsOfAnyForm()
{
    QFETCH(QByteArray, body);
    QFETCH(QStringList, models);
    const QTemporaryDir folder;
    const QString netlist = folder.filePath(QStringLiteral("a.v"));
    const QString model = folder.filePath(QStringLiteral("a.vo"));
    TestSupport::write(netlist,
                       "`timescale 1ns / 1ps\nmodule top (a, b);\n  output [1:0] a;\n  input b;\n" +
                           body + "\nendmodule\n");
    QString message;
    QVERIFY2(Synthesis::writeSimulationModel(netlist, model, &message) == 0, qPrintable(message));
    QCOMPARE(modulesIn(TestSupport::contentsOf(model)),
             models + QStringList{QStringLiteral("top")});
    QByteArray output;
    const int code = execute(QStringLiteral("iverilog"),
                             {QStringLiteral("-g2005"), QStringLiteral("-tnull"), model}, &output);
    QVERIFY2(code == 0, output.constData());
}

void TestNetlist::modelStandsInForEmptyModules_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("ports");
    QTest::addColumn<QByteArray>("said"); // of what is done in place of the module
    const QByteArray ahb =
        "input HCLK, input HRESETn, input HSEL, input [1:0] HTRANS, input HREADY, "
        "output HREADYOUT, output HRESP";
    const QByteArray apb = "input PCLK, input PSEL, input PENABLE, output PREADY, output PSLVERR";
    const QByteArray error = "so that an access gets an error response";
    const QByteArray open = "so that its outputs are open";
    QTest::newRow("slave of AHB") << QByteArray("box") << ahb << error;
    QTest::newRow("slave of AHB with more pins")
        << QByteArray("box")
        << QByteArray(ahb +
                      ", input [31:0] HADDR, output [31:0] HRDATA, output [0:3] up, inout pad")
        << error + " (address %h)\", HADDR);";
    QTest::newRow("slave of APB") << QByteArray("box") << apb << error;
    QTest::newRow("slave of APB with more pins")
        << QByteArray("box")
        << QByteArray(apb + ", input [11:0] PADDR, output [31:0] PRDATA, output \\a.b ")
        << error + " (address %h)\", PADDR);";
    QTest::newRow("name with signs") << QByteArray("\\a%\"b\"\\box ") << apb << error;
    QTest::newRow("a pin is missing")
        << QByteArray("box") << QByteArray(ahb).replace("HSEL", "SEL") << open;
    QTest::newRow("a pin of another width")
        << QByteArray("box") << QByteArray(ahb).replace("output HRESP", "output [1:0] HRESP")
        << open;
    QTest::newRow("a pin of another direction")
        << QByteArray("box") << QByteArray(apb).replace("output PREADY", "input PREADY") << open;
    QTest::newRow("a pin in the way of the stand-in's names")
        << QByteArray("box") << QByteArray(ahb + ", input stand_in") << open;
    QTest::newRow("no slave") << QByteArray("box") << QByteArray("input a, output b") << open;
    QTest::newRow("no ports") << QByteArray("box") << QByteArray() << open;
}

void TestNetlist::modelStandsInForEmptyModules()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, ports);
    QFETCH(QByteArray, said);
    SynthesisRun run;
    run.job.options[QStringLiteral("write_vhdl")] = true;
    run.addSource(QStringLiteral("top.v"), "(* blackbox *) module " + name + " (" + ports +
                                               ");\nendmodule\nmodule top (input a);\n(* keep *) " +
                                               name + " u ();\nendmodule\n");
    RUN_SUCCEEDS(run);
    const QString model = run.path(QStringLiteral(".vo"));
    QString message;
    QVERIFY2(Synthesis::writeSimulationModel(run.path(QStringLiteral(".vg")), model, &message) == 0,
             qPrintable(message));
    const QByteArray text = TestSupport::contentsOf(model);
    QVERIFY2(text.contains(said), text.constData());
    QByteArray output;
    execute(QStringLiteral("iverilog"),
            {QStringLiteral("-g2005"), QStringLiteral("-Wall"), QStringLiteral("-Wno-portbind"),
             QStringLiteral("-o"), run.path(QStringLiteral(".sim")), model},
            &output);
    for (const QByteArray &line : output.split('\n'))
        QVERIFY2(line.isEmpty() || line.contains("floating"), line.constData());
    if (said.contains("open")) {
        QCOMPARE(execute(QStringLiteral("vvp"),
                         {QStringLiteral("-n"), run.path(QStringLiteral(".sim"))}, &output),
                 0);
        QCOMPARE(output, QByteArray("top.u: no model of box is there, " + said + '\n'));
    }
    const QByteArray vhdl = TestSupport::contentsOf(run.path(QStringLiteral(".vho")));
    QVERIFY2(vhdl.contains(said.left(said.indexOf(" (")) + "\" severity warning;"),
             vhdl.constData());
    const QTemporaryDir work;
    for (const char *standard : {"--std=93", "--std=08"})
        QVERIFY2(
            execute(QStringLiteral("ghdl"),
                    {QStringLiteral("-a"), QLatin1String(standard),
                     QLatin1String("--workdir=") + work.path(), run.path(QStringLiteral(".vho"))},
                    &output) == 0 &&
                output.isEmpty(),
            output.constData());
}

void TestNetlist::modelsOfOneNameStandBesideEachOther()
{
    const QTemporaryDir folder;
    QStringList models;
    for (const char *top : {"one", "two"}) {
        SynthesisRun run;
        run.addSource(
            QStringLiteral("top.v"),
            "(* blackbox *) module plain (input a);\nendmodule\n"
            "(* blackbox *) module \\a+b (input a);\nendmodule\nmodule " +
                QByteArray(top) +
                " (input c, input [3:0] d, output reg [3:0] q);\nalways @(posedge c) q <= "
                "q + d;\nplain u (.a(c));\n\\a+b v (.a(c));\nendmodule\n");
        run.job.options[QStringLiteral("top_module")] = QLatin1String(top);
        RUN_SUCCEEDS(run);
        models << folder.filePath(QLatin1String(top) + QStringLiteral(".vo"));
        QString message;
        QCOMPARE(Synthesis::writeSimulationModel(run.path(QStringLiteral(".vg")), models.last(),
                                                 &message),
                 0);
    }
    models << folder.filePath(QStringLiteral("primitives.v"));
    TestSupport::write(models.last(), primitivesText());
    QByteArray output;
    QVERIFY2(compiles(models, &output), output.constData());
    std::reverse(models.begin(), models.end());
    QVERIFY2(compiles(models, &output), output.constData());
}

void TestNetlist::modelNamesADestinationThatCannotBe()
{
    const QTemporaryDir folder;
    const QString netlist = folder.filePath(QStringLiteral("a.v"));
    TestSupport::write(netlist, "module top; endmodule\n");
    QString message;
    QVERIFY(Synthesis::writeSimulationModel(netlist, netlist + QStringLiteral("/a.vo"), &message) !=
            0);
    QVERIFY2(message.contains(netlist + QStringLiteral("/a.vo")), qPrintable(message));
    message.clear();
    QVERIFY(Synthesis::writeSimulationModel(folder.filePath(QStringLiteral("none.v")), netlist,
                                            &message) != 0);
    QVERIFY2(message.contains(QStringLiteral("none.v")), qPrintable(message));
    QVERIFY(Synthesis::writeSimulationModel(QString(), QString(), &message) != 0);
    QCOMPARE(TestSupport::contentsOf(netlist), QByteArray("module top; endmodule\n"));
}

TARVO_TEST_MAIN(QCoreApplication, TestNetlist)
#include "tst_netlist.moc"
