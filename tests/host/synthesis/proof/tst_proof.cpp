// Proofs of a small design: what is equal is proven, and each kind of change is refuted.

#include "../synthesisrun.h"

#include <synthesis/proof/counterexample.h>
#include <synthesis/proof/proofscript.h>
#include <synthesis/proof/prooftext.h>
#include <synthesis/prover.h>

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

using namespace Synthesis;

namespace
{

const ProofPart *partOf(const ProofReport &report, const QString &id)
{
    for (const ProofPart &part : report.parts) {
        if (part.id == id)
            return &part;
    }
    return nullptr;
}

QByteArray told(const ProofReport &report)
{
    QByteArray text;
    for (const ProofPart &part : report.parts)
        text += part.id.toUtf8() + ": " + proofResultName(part.result).toUtf8() + ' ' +
                part.reason.toUtf8() + ' ' + part.differences.join(u';').toUtf8() + ' ' +
                part.counterexample.join(u';').toUtf8() + '\n';
    return text;
}

// A text with the first match of a pattern replaced, where "\1" is its first group; empty if there
// is none.
QByteArray changed(const QByteArray &text, const QString &pattern, const QString &by)
{
    QString result = QString::fromUtf8(text);
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    const auto match = expression.match(result);
    if (!match.hasMatch())
        return {};
    QString inserted = by;
    inserted.replace(QLatin1String("\\1"), match.captured(1));
    result.replace(match.capturedStart(), match.capturedLength(), inserted);
    return result.toUtf8();
}

} // namespace

class TestProof : public QObject
{
    Q_OBJECT

private:
    SynthesisRun m_run;
    QByteArray m_verilog;
    QByteArray m_vhdl;

    QString inFolder(const char *name) const { return m_run.folder.filePath(QLatin1String(name)); }

    ProofJob jobOf(const QByteArray &verilog, const QByteArray &vhdl)
    {
        ProofJob job;
        job.outputDir = m_run.job.outputDir;
        job.topModule = QStringLiteral("top");
        job.sources = m_run.job.options.value(QStringLiteral("source_files")).toStringList();
        job.netlist = inFolder("given.vg");
        TestSupport::write(job.netlist, verilog);
        if (!vhdl.isEmpty()) {
            job.vhdlNetlist = inFolder("given.vhg");
            TestSupport::write(job.vhdlNetlist, vhdl);
        }
        job.stepSeconds = 200;
        return job;
    }

    ProofReport reportOf(const ProofJob &job)
    {
        Prover prover(job);
        return prover.run() ? prover.report() : ProofReport{};
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_run.runner.setTool(Synthesis::Tool::TarvoSynthesis);
        m_run.job.options[QStringLiteral("write_vhdl")] = true;
        m_run.addFile(QStringLiteral(DESIGNS_DIR "/proof.v"));
        QVERIFY2(m_run.run() == 0, m_run.report());
        m_verilog = m_run.netlist();
        m_vhdl = TestSupport::contentsOf(m_run.path(QStringLiteral(".vhg")));
        QVERIFY(!m_vhdl.isEmpty());
    }

    void equalNetlistsAreProven()
    {
        const ProofReport report = reportOf(jobOf(m_verilog, m_vhdl));
        QVERIFY2(report.isProven(), told(report));
        for (const char *id :
             {"ports", "cells", "initial-values", "logic", "vhdl-cells", "vhdl-logic"})
            QCOMPARE(partOf(report, QLatin1String(id))->result, ProofPart::Proven);
        QCOMPARE(partOf(report, QStringLiteral("memory-mapping"))->result, ProofPart::Assumed);
        QCOMPARE(report.tools.size(), 3);
        // Nothing of this run's time or place.
        const QByteArray again = told(report);
        for (const ProofReport::File &file : report.files) {
            QVERIFY2(!file.bytes.contains(m_run.folder.path().toUtf8()), qPrintable(file.name));
            QVERIFY2(!file.bytes.contains(" sec"), qPrintable(file.name));
        }
        QVERIFY(!again.contains(m_run.folder.path().toUtf8()));
        QVERIFY(!QFileInfo::exists(m_run.job.outputDir + QLatin1String("/.tarvo-run")));
    }

    void changesAreRefuted_data()
    {
        QTest::addColumn<bool>("isVhdl");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("part");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, bool isVhdl, const char *pattern, const char *by,
                            const char *part, const char *named) {
            QTest::newRow(name) << isVhdl << QString::fromLatin1(pattern) << QString::fromLatin1(by)
                                << QString::fromLatin1(part) << QString::fromLatin1(named);
        };
        row("constant of a table", false, "16'h8000", "16'h8001", "logic", "match");
        row("clock edge of a flip-flop", false, "TV_DFFCE _", "TV_DFFCE #(.NEG(1'h1)) _", "logic",
            "count");
        row("preset in place of a clear", false, "TV_DFFCE (_[^;]*)[.]CLR", "TV_DFFPE \\1.PRE",
            "logic", "count");
        row("other input of a flip-flop", false, "\\.CE\\(en\\)", ".CE(1'h1)", "logic",
            "register count");
        row("sum of another sign", false, "SUB\\(1'h1\\)", "SUB(1'h0)", "logic", "difference");
        row("enable of a pin", false, "\\.OE\\([^)]*\\)", ".OE(1'h1)", "logic",
            "tri-state driver of io");
        row("edge of a block RAM", false, "WR_NEG\\(1'h0\\)", "WR_NEG(1'h1)", "cells", "WR_NEG");
        row("contents of a block RAM", false, "\\.INIT\\(16384'h([0-9a-fx]*)c0de",
            ".INIT(16384'hc0df", "initial-values", "INIT differs, first in bit 0");
        row("first value of a register", false, "TV_DFF #\\(\\s*\\.INIT\\(1'h1\\)",
            "TV_DFF #(\n    .INIT(1'h0)", "initial-values", "register started");
        row("port of another width", false,
            "output \\[3:0\\] difference;\\s*wire \\[3:0\\] difference;",
            "output [4:0] difference;\n  wire [4:0] difference;", "ports", "difference");
        row("constant of a table in VHDL", true, "INIT => X\"8000\"", "INIT => X\"8001\"",
            "vhdl-cells", "INIT");
        row("clock edge in VHDL", true, ": TV_DFFCE$", ": TV_DFFCE generic map (NEG => '1')",
            "vhdl-cells", "NEG");
        row("bit of a port in VHDL", true, "I0 => ([a-z]+)\\(0\\)", "I0 => a(1)", "vhdl-logic",
            "I0");
    }

    void changesAreRefuted()
    {
        QFETCH(bool, isVhdl);
        QFETCH(QString, pattern);
        QFETCH(QString, by);
        QFETCH(QString, part);
        QFETCH(QString, named);
        const QByteArray text = changed(isVhdl ? m_vhdl : m_verilog, pattern, by);
        QVERIFY2(!text.isEmpty(), isVhdl ? m_vhdl : m_verilog);
        const ProofReport report =
            reportOf(isVhdl ? jobOf(m_verilog, text) : jobOf(text, QByteArray()));
        QVERIFY2(!report.isProven(), told(report));
        const ProofPart *refuted = partOf(report, part);
        QVERIFY2(refuted->result == ProofPart::Refuted, told(report));
        QVERIFY2(refuted->differences.join(u'\n').contains(named), told(report));
        if (part.endsWith(QLatin1String("logic")))
            QVERIFY2(!refuted->counterexample.isEmpty(), told(report));
    }

    // What is said of the cells that both have is no proof of all.
    void whereCellsAreMissingNothingOfThemIsProven()
    {
        const ProofReport report = reportOf(
            jobOf(changed(m_verilog, QStringLiteral("u_analog"), QStringLiteral("u_other")), {}));
        QVERIFY2(partOf(report, QStringLiteral("cells"))->result == ProofPart::Refuted,
                 told(report));
        QVERIFY(
            partOf(report, QStringLiteral("cells"))
                ->differences.contains(QStringLiteral("u_analog (analog): only in the sources")));
        for (const char *id : {"initial-values", "logic"})
            QVERIFY2(partOf(report, QLatin1String(id))->isOpen(), told(report));
    }

    void whatNoToolReadsIsNotDecided()
    {
        const ProofReport report = reportOf(jobOf(
            changed(m_verilog, QStringLiteral("^  assign "), QStringLiteral("  assign = ")), {}));
        QVERIFY(!report.isProven());
        const ProofPart *logic = partOf(report, QStringLiteral("logic"));
        QVERIFY2(logic->result == ProofPart::NotDecided, told(report));
        QVERIFY2(logic->reason.contains(QLatin1String("netlist.v:")), told(report));
    }

    void aStepThatDoesNotEndIsNotDecided()
    {
        QTemporaryDir tools;
        const QString slow = tools.filePath(QStringLiteral("yosys-abc"));
        QVERIFY(TestSupport::write(slow, "#!/bin/sh\nwhile :; do :; done\n"));
        QVERIFY(QFile::setPermissions(slow, QFile::ReadOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", tools.path().toUtf8() + ':' + path);
        ProofJob job = jobOf(m_verilog, {});
        job.stepSeconds = 2;
        const ProofReport report = reportOf(job);
        qputenv("PATH", path);
        const ProofPart *logic = partOf(report, QStringLiteral("logic"));
        QVERIFY2(logic->result == ProofPart::NotDecided, told(report));
        QVERIFY2(logic->reason.contains(QLatin1String("did not end within 2 s")), told(report));
        QVERIFY(!report.isProven());
    }

    void aCancelledProofLeavesNothing()
    {
        Prover prover(jobOf(m_verilog, m_vhdl));
        QObject::connect(&prover, &Prover::stageChanged,
                         [&](const QString &) { QTimer::singleShot(0, &prover, &Prover::cancel); });
        QVERIFY(!prover.run());
        QVERIFY(!prover.report().isProven());
    }

    void missingToolsAreNamed()
    {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        const ProofReport report = reportOf(jobOf(m_verilog, m_vhdl));
        qputenv("PATH", path);
        for (const char *id : {"logic", "vhdl-logic"}) {
            const ProofPart *part = partOf(report, QLatin1String(id));
            QCOMPARE(part->result, ProofPart::NotTried);
            QVERIFY2(part->reason.contains(QLatin1String("\"yosys\"")), told(report));
        }
        QVERIFY(!report.isProven());
    }

    void withoutGhdlTheVerilogNetlistIsProven()
    {
        QTemporaryDir tools;
        for (const char *name : {"yosys", "yosys-abc"})
            QVERIFY(QFile::link(QStandardPaths::findExecutable(QLatin1String(name)),
                                tools.filePath(QLatin1String(name))));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", tools.path().toUtf8());
        const ProofReport report = reportOf(jobOf(m_verilog, m_vhdl));
        qputenv("PATH", path);
        QVERIFY2(partOf(report, QStringLiteral("logic"))->result == ProofPart::Proven,
                 told(report));
        const ProofPart *vhdl = partOf(report, QStringLiteral("vhdl-logic"));
        QCOMPARE(vhdl->result, ProofPart::NotTried);
        QVERIFY2(vhdl->reason.contains(QLatin1String("\"ghdl\"")), told(report));
        QVERIFY(!report.isProven());
    }

    void aReportWithoutAnyProofIsNone()
    {
        ProofReport report;
        QVERIFY(!report.isProven());
        report.parts.append({QStringLiteral("a"), {}, {}, ProofPart::Assumed, {}});
        QVERIFY(!report.isProven());
        report.parts.append({QStringLiteral("b"), {}, {}, ProofPart::Proven, {}});
        QVERIFY(report.isProven());
        report.parts.append({QStringLiteral("c"), {}, {}, ProofPart::NotTried, {}});
        QVERIFY(!report.isProven());
    }

    void onlyAnswersAreVerdicts_data()
    {
        QTest::addColumn<QStringList>("said");
        QTest::addColumn<int>("verdict");
        const auto row = [](const char *name, const QStringList &said,
                            ProofScript::Verdict verdict) {
            QTest::newRow(name) << said << int(verdict);
        };
        using Verdict = ProofScript::Verdict;
        const QString equal = QStringLiteral("Networks are equivalent.  Time = 0.1 sec");
        const QString different = QStringLiteral("SATISFIABLE    Time = 0.1 sec");
        row("equal", {equal}, Verdict::Equal);
        row("equal without state", {QStringLiteral("UNSATISFIABLE  Time =     0.01 sec")},
            Verdict::Equal);
        row("different", {different}, Verdict::Different);
        row("undecided", {QStringLiteral("Networks are UNDECIDED.")}, Verdict::Unknown);
        row("nothing", {}, Verdict::Unknown);
        row("both", {equal, different}, Verdict::Unknown);
        row("in the middle", {QStringLiteral("maybe UNSATISFIABLE")}, Verdict::Unknown);
    }

    void onlyAnswersAreVerdicts()
    {
        QFETCH(QStringList, said);
        QFETCH(int, verdict);
        QCOMPARE(int(ProofScript::verdictOf(said)), verdict);
    }

    void scriptsTreatBothDesignsAlike()
    {
        const QByteArray script = ProofScript::isolate("one", "two");
        const int second = script.indexOf("read_rtlil", 1);
        QByteArray first = script.left(second);
        QCOMPARE(first.replace("one", "two"), script.mid(second));
        const QByteArray both = ProofScript::netlistsAsWritten(QStringLiteral("top"));
        QCOMPARE(both.count("design -reset"), 2);
        const QByteArray cut = ProofScript::netlistWhole(QStringLiteral("top"));
        // What is left beside logic would not be compared.
        QVERIFY(cut.contains("select -assert-none t:$_DFF* t:$_DLATCH* t:$_SR* t:$mem*"));
    }

    void readsCellsAndPorts()
    {
        const QByteArray declarations = "module \\BOX\n  parameter \\A 4'0000\n  parameter \\B "
                                        "\"hi\"\n  parameter \\C\nend\n";
        const QByteArray design =
            "module \\top\n  wire width 4 output 2 \\y\n  wire inout 1 \\p\n"
            "  wire inout 3 \\q\n"
            "  cell \\BOX \\u1\n    parameter \\A 4'0000\n    parameter \\B "
            "16'0110100001101001\n    parameter \\C 1\n    connect \\X \\y\n  "
            "end\n  cell $and $1\n  end\n  cell \\STATE \\s\n  end\n"
            "  connect \\p \\y\n  connect \\q 1'z\nend\n";
        const auto cells = ProofText::cellsOf(declarations, design);
        QCOMPARE(cells.keys(), QByteArrayList({"s", "u1"}));
        QCOMPARE(cells.value("u1").parameters.keys(), QByteArrayList({"C"}));
        const QByteArray cut = ProofText::cut(design, {}, {});
        const auto ports = ProofText::portsOf(cut, "top");
        QCOMPARE(ports.value("y"), QByteArray("output 4"));
        QCOMPARE(ports.value("p"), QByteArray("output 1"));
        QCOMPARE(ports.value("q"), QByteArray("input 1"));
        QCOMPARE(ProofText::cellsOf(declarations, cut).keys(), QByteArrayList({"u1"}));
        QCOMPARE(ProofText::cellsOf(declarations, ProofText::cut(design, {"s"}, {})).size(), 2);
    }

    void callsCellsAsInVerilog()
    {
        QString mistake;
        const QByteArray text =
            "module other (\n  x\nmodule top (\n  TV_LUT1 u1 (\n    .O(\\a.b\\),"
            "\n  TV_LUT1 \\u_x.y\\ (\n  assign p = 1'bZ;\n";
        QCOMPARE(
            ProofText::calledAsInVerilog(text, {"_7_"}, "top", &mistake),
            QByteArray("module top (\n  TV_LUT1 _7_ (\n    .O(\\a.b ),\n  TV_LUT1 \\u_x.y  (\n"));
        QVERIFY2(mistake.isEmpty(), qPrintable(mistake));
        ProofText::calledAsInVerilog(text, {"_7_", "_8_"}, "top", &mistake);
        QVERIFY(!mistake.isEmpty());
    }

    void circuitsThatAreNotWholeAreRefused()
    {
        // One and-gate of two inputs, inverted.
        const QByteArray whole = "aig 3 2 0 1 1\n7\n\x02\x02i0 in_a\ni1 in_b\no0 cmp_y\nc\n";
        AndCircuit circuit;
        QVERIFY(circuit.read(whole));
        const Counterexample example = counterexampleOf(circuit, "pi0000=1\npi0001=1\n");
        QCOMPARE(example.places, QByteArrayList({"y"}));
        QCOMPARE(example.values.size(), 2);
        QCOMPARE(example.values.first(), qMakePair(QByteArray("a"), true));
        for (int size = 0; size < 18; ++size) {
            AndCircuit part;
            QVERIFY2(!part.read(whole.left(size)), QByteArray::number(size));
        }
        AndCircuit bad;
        QVERIFY(!bad.read("aig 3 2 0 1 1\n9\n\x02\x02"));
        QVERIFY(!bad.read("aig 3 2 0 1 1\n7\n\x7f\x02"));
    }
};

QTEST_GUILESS_MAIN(TestProof)
#include "tst_proof.moc"
