#include "../synthesisrun.h"

#include <QRegularExpression>

namespace
{

const QStringList standards{QStringLiteral("93"), QStringLiteral("93c"), QStringLiteral("08")};

// Ports of every kind of name and range, with what is inside them.
const QByteArray namesDesign =
    "(* blackbox *) module analog #(parameter MODE = \"slow\", parameter WIDTH = 2, parameter GAIN "
    "= -3,\n"
    "    parameter [3:0] TRIM = 4'b1x01, parameter in = 1)\n"
    "    (input clk_, inout pad, input [WIDTH-1:0] level, output [WIDTH-1:0] level__o, output "
    "[0:3] up,\n"
    "    input Open, input open);\n"
    "endmodule\n"
    "module top (input clk, input [11:8] rx_, input [0:2] a__b, input signal, output std_logic, "
    "output _x,\n"
    "    output A, input a, output [3:0] \\w.x , output \\end , output [1:0] constant, output "
    "fed,\n"
    "    output [1:0] nothing, output twice, output Twice, inout [1:0] pins, inout pad, output "
    "[3:0] last);\n"
    "    reg [3:0] count = 4'd5;\n"
    "    always @(posedge clk) count <= count + rx_;\n"
    "    assign \\w.x = count;\n"
    "    assign last = count;\n"
    "    assign std_logic = \\w.x [3] & a__b[0];\n"
    "    assign _x = std_logic | signal;\n"
    "    assign A = a;\n"
    "    assign \\end = !a;\n"
    "    assign constant = 2'b10;\n"
    "    assign fed = a__b[1];\n"
    "    assign twice = ^rx_;\n"
    "    assign Twice = twice;\n"
    "    assign pins = signal ? count[1:0] : 2'bzz;\n"
    "    analog #(.MODE(\"a \\\"b\\\"\"), .WIDTH(5), .GAIN(-7), .in(2)) \\u[0].analog (.clk_(clk), "
    ".pad(pad),\n"
    "        .level({count[0], 1'b1, rx_[10:8]}), .Open(a), .open(pins[1]));\n"
    "    analog #(.TRIM(4'b0110)) other (.clk_(clk), .level__o(nothing[0]));\n"
    "endmodule\n";

// Signals that come from elsewhere: two flip-flops each, in a module that stands twice, of which
// one is followed by the same signal under other names; a port is called as the attribute is.
const QByteArray crossingsDesign =
    "module sync #(parameter WIDTH = 1) (input clk, input rstn, input [WIDTH-1:0] d, output "
    "[WIDTH-1:0] q);\n"
    "    (* async_reg = \"true\" *) reg [WIDTH-1:0] meta;\n"
    "    (* async_reg = \"true\" *) reg [WIDTH-1:0] stable;\n"
    "    always @(posedge clk or negedge rstn)\n"
    "        if (!rstn) begin meta <= 0; stable <= 0; end\n"
    "        else begin meta <= d; stable <= meta; end\n"
    "    assign q = stable;\n"
    "endmodule\n"
    "module top (input clk, input rstn, input pin, input [2:0] pins, (* note = \"a pin\" *) output "
    "level,\n"
    "    output [2:0] levels, output reg risen, output async_reg);\n"
    "    (* keep *) wire inner;\n"
    "    sync u_pin (.clk(clk), .rstn(rstn), .d(pin), .q(inner));\n"
    "    sync #(.WIDTH(3)) u_pins (.clk(clk), .rstn(rstn), .d(pins), .q(levels));\n"
    "    assign level = inner;\n"
    "    assign async_reg = !inner;\n"
    "    always @(posedge clk or negedge rstn) if (!rstn) risen <= 0; else risen <= inner;\n"
    "endmodule\n";

void useVhdl(SynthesisRun &run)
{
    run.job.options[QStringLiteral("write_vhdl")] = true;
}

// Analyses the files one after the other and elaborates the unit, which fails without one; what
// GHDL says. Components without an entity are mentioned.
QByteArray elaborated(const QStringList &files, const QString &unit, const QString &standard)
{
    const QTemporaryDir work;
    const QStringList options{QLatin1String("--std=") + standard,
                              QLatin1String("--workdir=") + work.path()};
    QByteArray output;
    for (const QString &file : files) {
        if (execute(QStringLiteral("ghdl"),
                    QStringList{QStringLiteral("-a")} + options + QStringList{file}, &output) != 0)
            return "analysis: " + output;
        if (!output.isEmpty())
            return output;
    }
    const int code = execute(QStringLiteral("ghdl"),
                             QStringList{QStringLiteral("-r")} + options +
                                 QStringList{unit, QStringLiteral("--no-run")},
                             &output);
    return code == 0 ? output : "elaboration: " + output;
}

QString libraryIn(const SynthesisRun &run)
{
    const QString path = run.folder.filePath(QStringLiteral("primitives.vhd"));
    TestSupport::write(path,
                       TestSupport::contentsOf(QStringLiteral(":/tarvo/synthesis/primitives.vhd")));
    return path;
}

} // namespace

class TestVhdl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesBothNetlistsModelAndTemplate()
    {
        SynthesisRun verilog;
        verilog.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
        RUN_SUCCEEDS(verilog);
        SynthesisRun run;
        useVhdl(run);
        run.addFile(QStringLiteral(DESIGNS_DIR "/small.v"));
        RUN_SUCCEEDS(run);
        QCOMPARE(TestSupport::entriesOf(run.job.outputDir),
                 QStringList({QStringLiteral("core.log"), QStringLiteral("core.vg"),
                              QStringLiteral("core.vhg"), QStringLiteral("core.vho"),
                              QStringLiteral("core_tmp.vhd")}));
        QCOMPARE(run.runner.report().files,
                 QStringList({run.path(QStringLiteral("_tmp.vhd")), run.path(QStringLiteral(".vg")),
                              run.path(QStringLiteral(".vho")), run.path(QStringLiteral(".vhg"))}));
        QCOMPARE(run.netlist(), verilog.netlist());

        // The same instances.
        const QByteArray vhdl = TestSupport::contentsOf(run.path(QStringLiteral(".vhg")));
        QVERIFY(vhdl.startsWith("-- Netlist of top (tv_test 1.0)\n"));
        const QList<Synthesis::CellCount> cells = run.runner.report().cells;
        QVERIFY(cells.size() > 5);
        for (const Synthesis::CellCount &cell : cells) {
            const QRegularExpression instance(QLatin1String("^    \\S+ : ") + cell.cell +
                                                  QLatin1String("$"),
                                              QRegularExpression::MultilineOption);
            int count = 0;
            for (auto it = instance.globalMatch(QString::fromUtf8(vhdl)); it.hasNext(); it.next())
                ++count;
            QVERIFY2(count == cell.count, qPrintable(cell.cell));
            QCOMPARE(vhdl.count("component " + cell.cell.toUtf8() + '\n'), 1);
        }
    }

    void namesAndMarksTheFlipFlopsOfCrossings()
    {
        SynthesisRun run;
        useVhdl(run);
        run.addSource(QStringLiteral("top.v"), crossingsDesign);
        RUN_SUCCEEDS(run);
        const QByteArray verilog = run.netlist();
        const QByteArray vhdl = TestSupport::contentsOf(run.path(QStringLiteral(".vhg")));
        const QByteArrayList names{"u_pin.meta",       "u_pin.stable",    "u_pins.meta[0]",
                                   "u_pins.meta[1]",   "u_pins.meta[2]",  "u_pins.stable[0]",
                                   "u_pins.stable[1]", "u_pins.stable[2]"};
        for (const QByteArray &name : names) {
            const QByteArray cell =
                "  (* async_reg = \"true\" *)\n  TV_DFFC \\" + name + "_reg  (\n";
            QVERIFY2(verilog.count(cell) == 1, QByteArray(cell + "in\n" + verilog).constData());
            const QByteArray label = "\\" + name + "_reg\\";
            QVERIFY2(vhdl.count("    " + label + " : TV_DFFC\n") == 1,
                     QByteArray(label + "in\n" + vhdl).constData());
            QCOMPARE(vhdl.count("    attribute async_reg of " + label + " : label is \"true\";\n"),
                     1);
        }
        QCOMPARE(verilog.count("_reg  ("), names.size()); // that of "risen" is none of them
        QCOMPARE(vhdl.count("attribute async_reg of "), names.size());
        // No other attribute gets through.
        QCOMPARE(verilog.count("(*"), verilog.count("(* async_reg = \"true\" *)"));
    }

    void isTakenByEveryEdition_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::newRow("a little of everything")
            << TestSupport::contentsOf(QStringLiteral(DESIGNS_DIR "/small.v"));
        QTest::newRow("odd names") << namesDesign;
        QTest::newRow("clock crossings") << crossingsDesign;
        QTest::newRow("no instances") << QByteArray(
            "module top (input a, output [3:0] y);\n    assign y[2] = a;\nendmodule\n");
    }

    void isTakenByEveryEdition()
    {
        QFETCH(QByteArray, source);
        SynthesisRun run;
        useVhdl(run);
        run.addSource(QStringLiteral("top.v"), source);
        RUN_SUCCEEDS(run);
        const QString library = libraryIn(run);
        const QString netlist = run.path(QStringLiteral(".vhg"));
        const QString model = run.path(QStringLiteral(".vho"));

        // The template inside an architecture of its own.
        const QByteArray text = TestSupport::contentsOf(run.path(QStringLiteral("_tmp.vhd")));
        const int split = text.indexOf("end component;\n") + int(qstrlen("end component;\n"));
        QByteArray declarations;
        const QRegularExpression comment(QStringLiteral("=> (\\S+?),? +-- (?:in|out|inout) (.*)$"),
                                         QRegularExpression::MultilineOption);
        for (auto it = comment.globalMatch(QString::fromUtf8(text)); it.hasNext();) {
            const auto match = it.next();
            declarations +=
                "signal " + match.captured(1).toUtf8() + " : " + match.captured(2).toUtf8() + ";\n";
        }
        const QString wrapper = run.folder.filePath(QStringLiteral("wrapper.vhd"));
        TestSupport::write(wrapper, "library ieee;\nuse ieee.std_logic_1164.all;\nuse work.all;\n"
                                    "entity wrapper is\nend entity;\n"
                                    "architecture test of wrapper is\n" +
                                        text.left(split) + declarations + "begin\n" +
                                        text.mid(split) + "end architecture;\n");
        for (const QString &standard : standards) {
            QCOMPARE(elaborated({model, wrapper}, QStringLiteral("wrapper"), standard),
                     QByteArray());
            const QByteArray said = elaborated({library, netlist}, QStringLiteral("top"), standard);
            // Only a block that no one has a model of is missing.
            for (const QByteArray &line : said.split('\n'))
                QVERIFY2(!line.contains("warning") || line.contains("\"analog\" is not bound") ||
                             line.contains("in default configuration"),
                         said.constData());
            QVERIFY2(!said.contains("error"), said.constData());
        }
    }

    void keepsNamesThatArePossible()
    {
        SynthesisRun run;
        useVhdl(run);
        run.addSource(QStringLiteral("top.v"), namesDesign);
        RUN_SUCCEEDS(run);
        const QByteArray text = TestSupport::contentsOf(run.path(QStringLiteral(".vhg")));
        for (const char *port :
             {"clk : in std_logic;", "\\rx_\\ : in std_logic_vector(11 downto 8);",
              "\\a__b\\ : in std_logic_vector(0 to 2);", "\\signal\\ : in std_logic;",
              "\\std_logic\\ : out std_logic;", "\\_x\\ : out std_logic;", "\\A\\ : out std_logic;",
              "\\a\\ : in std_logic;", "\\w.x\\ : out std_logic_vector(3 downto 0);",
              "\\end\\ : out std_logic;", "\\constant\\ : out std_logic_vector(1 downto 0);",
              "\\twice\\ : out std_logic;", "\\Twice\\ : out std_logic;",
              "pins : inout std_logic_vector(1 downto 0);",
              "last : out std_logic_vector(3 downto 0)\n"})
            QVERIFY2(text.contains(QByteArray("        ") + port), port);
        QVERIFY(text.contains("    \\u[0].analog\\ : analog\n"));
        QVERIFY(text.contains("    other : analog\n"));
        QVERIFY(text.contains("    fed <= \\a__b\\(1);\n"));
        QVERIFY(text.contains("    \\constant\\(0) <= '0';\n"));
    }

    void declaresBlackBoxesWithTheirGenerics()
    {
        SynthesisRun run;
        useVhdl(run);
        run.addSource(QStringLiteral("top.v"), namesDesign);
        RUN_SUCCEEDS(run);
        const QByteArray text = TestSupport::contentsOf(run.path(QStringLiteral(".vhg")));
        const QByteArray component =
            "    component analog\n"
            "        generic (\n"
            "            GAIN : integer := -3;\n"
            "            MODE : string := \"slow\";\n"
            "            TRIM : std_logic_vector := \"1X01\";\n"
            "            WIDTH : integer := 2;\n"
            "            \\in\\ : integer := 1\n"
            "        );\n"
            "        port (\n"
            "            \\clk_\\ : in std_logic;\n"
            "            pad : inout std_logic;\n"
            "            level : in std_logic_vector(4 downto 0);\n"
            "            \\level__o\\ : out std_logic_vector(1 downto 0);\n"
            "            up : out std_logic_vector(0 to 3);\n"
            "            \\Open\\ : in std_logic;\n"
            "            \\open\\ : in std_logic\n"
            "        );\n"
            "    end component;\n";
        QVERIFY2(text.contains(component),
                 text.mid(text.indexOf("component analog"), 900).constData());
        QVERIFY(text.contains("MODE => \"a \"\"b\"\"\""));
        QVERIFY(text.contains("GAIN => -7"));
        QVERIFY(text.contains("TRIM => \"0110\""));
    }

    void givesTheSameBytesInEveryFolder()
    {
        QVector<QByteArray> results;
        for (const char *folder : {"a", "another, much longer/name of a folder"}) {
            SynthesisRun run;
            useVhdl(run);
            run.setOutputDir(run.folder.filePath(QLatin1String(folder) + QStringLiteral("/out")));
            run.addSource(QLatin1String(folder) + QStringLiteral("/src/top.v"), namesDesign);
            RUN_SUCCEEDS(run);
            for (const char *suffix : {".vhg", ".vho", "_tmp.vhd"}) {
                results << TestSupport::contentsOf(run.path(QLatin1String(suffix)));
                QVERIFY(!results.last().isEmpty());
                QVERIFY(!results.last().contains(run.folder.path().toUtf8()));
                QVERIFY(!results.last().contains("tarvo-run"));
                QVERIFY(!results.last().contains("Yosys"));
            }
        }
        for (int i = 0; i < 3; ++i)
            QCOMPARE(results.at(i), results.at(i + 3));
    }

    void saysWhatVhdlCannotExpress()
    {
        SynthesisRun run;
        useVhdl(run);
        run.addSource(QStringLiteral("top.v"), "module top (inout left, inout right);\n"
                                               "    assign left = right;\nendmodule\n");
        QCOMPARE(run.run(), 1);
        QCOMPARE(run.runner.errorMsg(), QStringLiteral("The ports \"left\" and \"right\" are one "
                                                       "net, which VHDL cannot express."));
        QCOMPARE(TestSupport::entriesOf(run.job.outputDir),
                 QStringList{QStringLiteral("core.log")});
    }

    void everyModelIsThereInBothLanguages()
    {
        const auto names = [](const char *file, const char *pattern) {
            QStringList found;
            const QString text = QString::fromUtf8(
                TestSupport::contentsOf(QLatin1String(":/tarvo/synthesis/") + QLatin1String(file)));
            const QRegularExpression expression(QString(QLatin1String(pattern)),
                                                QRegularExpression::MultilineOption);
            for (auto it = expression.globalMatch(text); it.hasNext();)
                found << it.next().captured(1);
            return found;
        };
        const QStringList verilog = names("primitives.v", "^module (\\w+)");
        QVERIFY(verilog.size() > 20);
        QCOMPARE(names("primitives.vhd", "^entity (\\w+) is$"), verilog);
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestVhdl)
#include "tst_vhdl.moc"
