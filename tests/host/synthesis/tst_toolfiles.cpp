#include <synthesis/netlist/designports.h>
#include <synthesis/netlist/library.h>
#include <synthesis/netlist/verilogscan.h>
#include <synthesis/netlist/vhdloutputs.h>
#include <synthesis/run/scratchfolder.h>
#include <synthesis/run/sourcestage.h>
#include <synthesis/run/toollog.h>
#include <testsupport.h>

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace Synthesis;

// What tools leave behind, as it should not be.
class tst_ToolFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void countsWhatAHierarchyHolds();
    void refusesHierarchiesWithoutBounds_data();
    void refusesHierarchiesWithoutBounds();
    void aWideHierarchyTakesNoTime();

    void refusesDesignsThatMakeNoSense_data();
    void refusesDesignsThatMakeNoSense();
    void openConnectionsOfPrimitives();

    void messagesAreToldOnce();
    void repeatedMessagesAreCounted_data();
    void repeatedMessagesAreCounted();
    void messagesBeyondTheLimitAreCounted();
    void aMessageInSeveralLinesIsToldOnce();
    void manyMessagesStayBounded();
    void anErrorOfNoToolHasItsPlace_data();
    void anErrorOfNoToolHasItsPlace();
    void aSourceThatNeverEndsIsRefused();

private:
    const SourceStage m_sources;
};

namespace
{

// `depth` modules, each with `width` instances of the next one; the last one has gates.
QByteArray tower(int depth, int width)
{
    QByteArray text;
    for (int level = 0; level < depth; ++level) {
        text += "module m" + QByteArray::number(level) + ";\n";
        for (int i = 0; i < width; ++i)
            text += (level + 1 < depth ? "m" + QByteArray::number(level + 1) : QByteArray("GATE")) +
                    " u" + QByteArray::number(i) + " (.a(b));\n";
        text += "endmodule\n";
    }
    return text;
}

// A design with a top module of these ports, cells and nets, in JSON.
QByteArray design(const QByteArray &ports, const QByteArray &cells = {},
                  const QByteArray &nets = {})
{
    return R"({"modules": {"top": {"ports": {)" + ports + R"(}, "cells": {)" + cells +
           R"(}, "netnames": {)" + nets + "}}}}";
}

const char soundPorts[] = R"("a": {"direction": "input", "bits": [2]},
                             "y": {"direction": "output", "bits": [3]})";

} // namespace

void tst_ToolFiles::initTestCase()
{
    QVERIFY(!Library::primitives().isEmpty());
}

void tst_ToolFiles::countsWhatAHierarchyHolds()
{
    QString mistake;
    QCOMPARE(scanVerilog(tower(3, 4)).leavesOf("m0", &mistake),
             (QMap<QByteArray, int>{{"GATE", 64}}));
    const VerilogOutline mixed =
        scanVerilog("module top; X a(); s b(), c(); endmodule module s; X a(); Y b(); e c(); "
                    "endmodule module e; endmodule module unused; Z a(); endmodule");
    QCOMPARE(mixed.leavesOf("top", &mistake),
             (QMap<QByteArray, int>{{"X", 3}, {"Y", 2}, {"e", 2}}));
    QCOMPARE(mixed.leavesOf("e", &mistake), (QMap<QByteArray, int>()));
    QCOMPARE(mistake, QString());
}

void tst_ToolFiles::refusesHierarchiesWithoutBounds_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("mistake");
    const QString tooMany = QStringLiteral("the module \"m0\" holds more than 100000000 instances");
    QTest::newRow("two to the power of forty") << tower(40, 2) << tooMany;
    QTest::newRow("more than any number holds") << tower(4000, 3) << tooMany;
    QTest::newRow("a module in itself") << QByteArray("module m0; m0 a(); endmodule")
                                        << QStringLiteral("the module \"m0\" contains itself");
    QTest::newRow("a module in itself further down")
        << QByteArray("module m0; m1 a(); endmodule module m1; m2 a(); endmodule "
                      "module m2; m1 b(); endmodule")
        << QStringLiteral("the module \"m1\" contains itself");
}

void tst_ToolFiles::refusesHierarchiesWithoutBounds()
{
    QFETCH(QByteArray, text);
    QString mistake;
    QVERIFY(scanVerilog(text).leavesOf("m0", &mistake).isEmpty());
    QTEST(mistake, "mistake");
}

// Every module instantiates all that follow: two to the power of the depth ways lead to the last.
void tst_ToolFiles::aWideHierarchyTakesNoTime()
{
    QByteArray text;
    constexpr int depth = 26;
    for (int level = 0; level < depth; ++level) {
        text += "module m" + QByteArray::number(level) + ";\n";
        for (int below = level + 1; below <= depth; ++below)
            text += "m" + QByteArray::number(below) + " u" + QByteArray::number(below) + " ();\n";
        text += "endmodule\n";
    }
    QString mistake;
    QCOMPARE(scanVerilog(text).leavesOf("m0", &mistake),
             (QMap<QByteArray, int>{{"m26", 1 << (depth - 1)}}));
    QCOMPARE(mistake, QString());
}

void tst_ToolFiles::refusesDesignsThatMakeNoSense_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("mistake");
    const auto row = [](const char *name, const QByteArray &text, const char *mistake) {
        QTest::newRow(name) << text << QString::fromUtf8(mistake);
    };
    row("a port without bits", design(R"("a": {"direction": "input", "bits": []})"),
        "the port \"a\" of \"top\" has no bits");
    row("a port without anything", design(R"("a": {})"),
        "the port \"a\" of \"top\" has no direction");
    row("a port that is a number", design(R"("a": 1)"),
        "the port \"a\" of \"top\" has no direction");
    row("an empty text as a bit", design(R"("a": {"direction": "input", "bits": [""]})"),
        "the port \"a\" of \"top\" has bits that are none");
    row("an unknown constant", design(R"("a": {"direction": "input", "bits": ["01"]})"),
        "the port \"a\" of \"top\" has bits that are none");
    row("a net below zero", design(R"("a": {"direction": "input", "bits": [-1]})"),
        "the port \"a\" of \"top\" has bits that are none");
    row("a net beyond all numbers", design(R"("a": {"direction": "input", "bits": [1e10]})"),
        "the port \"a\" of \"top\" has bits that are none");
    row("half a net", design(R"("a": {"direction": "input", "bits": [1.5]})"),
        "the port \"a\" of \"top\" has bits that are none");
    row("a range that ends beyond all numbers",
        design(R"("a": {"direction": "input", "offset": 2147483647, "bits": [2, 3]})"),
        "the port \"a\" of \"top\" has bits that are none");
    row("a cell with an unknown direction",
        design(soundPorts, R"("u": {"type": "T", "port_directions": {"p": "up"}})"),
        "the cell \"u\" in \"top\" has the port \"p\" without a direction");
    row("a cell with an empty bit",
        design(soundPorts, R"("u": {"type": "T", "connections": {"p": [""]}})"),
        "the cell \"u\" in \"top\" has something at \"p\" that are no bits");
    row("a net with an empty bit", design(soundPorts, {}, R"("n": {"bits": [""]})"),
        "the net \"n\" in \"top\" has bits that are none");
}

void tst_ToolFiles::refusesDesignsThatMakeNoSense()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, mistake);
    DesignPorts outline;
    QCOMPARE(outline.read(text, {}), mistake);
    QVERIFY(!outline.contains("top"));
    QCOMPARE(outline.read(design(soundPorts), text), mistake);
    VhdlNetlist netlist;
    QCOMPARE(vhdlNetlist("t", text, "top", {}, {}, &netlist),
             QStringLiteral("The netlist that the tool wrote cannot be used: %1.").arg(mistake));
    QVERIFY(netlist.netlist.isEmpty());
}

// Yosys gives an open pin no bits; the first instance does not tell how wide it is.
void tst_ToolFiles::openConnectionsOfPrimitives()
{
    const QByteArray directions = R"("port_directions": {"O": "output", "I0": "input"})";
    const QByteArray cells =
        R"("u0": {"hide_name": 0, "type": "TV_LUT1", "parameters": {"INIT": "01"}, )" + directions +
        R"(, "connections": {"O": [], "I0": []}},
        "u1": {"hide_name": 0, "type": "TV_LUT1", "parameters": {"INIT": "01"}, )" +
        directions + R"(, "connections": {"O": [3], "I0": [2]}})";
    const QByteArray text = design(soundPorts, cells);
    DesignPorts outline;
    QCOMPARE(outline.read(design(soundPorts), {}), QString());
    VhdlNetlist netlist;
    QCOMPARE(vhdlNetlist("t", text, "top", outline.ports("top"), {}, &netlist), QString());
    QVERIFY2(netlist.netlist.contains("I0 => 'Z'"), netlist.netlist.constData());
    QVERIFY(netlist.netlist.contains("O => open"));
    QVERIFY(netlist.netlist.contains("I0 => a"));
    QVERIFY(netlist.netlist.contains("O => y"));
}

void tst_ToolFiles::messagesAreToldOnce()
{
    ToolLog log;
    for (int round = 0; round < 3; ++round) {
        log.add(QStringLiteral("a.v:3: Warning: odd"), m_sources);
        log.add(QStringLiteral("a.v:4: Warning: odd"), m_sources);
        log.add(QStringLiteral("a.v:4: ERROR: odd"), m_sources);
        log.add(QStringLiteral("plain"), m_sources);
    }
    QCOMPARE(log.messages().size(), 3);
    for (const Message &message : log.messages())
        QCOMPARE(message.count, 3);
    QCOMPARE(log.errors(), QStringList{QStringLiteral("a.v:4: odd")});
    QCOMPARE(log.text().count('\n'), 12);
}

void tst_ToolFiles::repeatedMessagesAreCounted_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("counted"); // "3 text"
    const auto row = [](const char *name, const char *lines, const char *counted) {
        QTest::newRow(name) << QString::fromUtf8(lines).split(u'\n')
                            << QString::fromUtf8(counted).split(u'\n');
    };
    row("once", "Warning: odd", "1 odd");
    row("a warning", "Warning: odd\nWarning: odd", "2 odd");
    row("an error with its place", "a.v:3: ERROR: odd\na.v:3: ERROR: odd\na.v:3: ERROR: odd",
        "3 a.v:3: odd");
    row("with others between",
        "Warning: odd\nWarning: even\nplain\nWarning: odd\nERROR: odd\nWarning: odd",
        "3 odd\n1 even\n1 odd");
    row("at other places", "a.v:3: Warning: odd\na.v:4: Warning: odd\nb.v:3: Warning: odd",
        "1 a.v:3: odd\n1 a.v:4: odd\n1 b.v:3: odd");
    row("a place behind the text",
        "Warning: odd (a.v:3.1-3.4)\nWarning: odd (a.v:3.7-3.9)\na.v:3: Warning: odd",
        "3 a.v:3: odd");
    row("names that read alike", "Warning: wire `\\a' odd\nWarning: wire `a' odd",
        "2 wire \"a\" odd");
    row("of the project tool",
        "@E: CS101 :\"a.v\":3:1:3:4|odd\n@E: CS101 :\"a.v\":3:7|odd\n@W: CL1 :odd\n@W: "
        "CL2 :odd",
        "2 a.v:3: odd\n2 odd");
    row("of both tools", "@W: CL1 :\"a.v\":3:1|odd\na.v:3: Warning: odd", "2 a.v:3: odd");
    row("in several lines", "Warning: these:\n    one\nWarning: these:\n    one\nend",
        "2 these: one");
    row("in several lines that differ",
        "Warning: these:\n    one\nWarning: these:\n    two\nWarning: these:\n    one\nend",
        "2 these: one\n1 these: two");
    row("in one line and in several", "Warning: these: one\nWarning: these:\n    one\nend",
        "2 these: one");
}

void tst_ToolFiles::repeatedMessagesAreCounted()
{
    QFETCH(QStringList, lines);
    ToolLog log;
    for (const QString &line : qAsConst(lines))
        log.add(line, m_sources);
    QStringList counted;
    for (const Message &message : log.messages())
        counted << QString::number(message.count) + u' ' + message.toString();
    QTEST(counted, "counted");
}

void tst_ToolFiles::messagesBeyondTheLimitAreCounted()
{
    ToolLog log;
    for (int i = 0; i < 10003; ++i)
        log.add(QStringLiteral("a.v:%1: ERROR: odd").arg(i + 1), m_sources);
    // One that is told, and one that is not.
    log.add(QStringLiteral("a.v:1: ERROR: odd"), m_sources);
    log.add(QStringLiteral("a.v:10002: ERROR: odd"), m_sources);
    log.addError(QStringLiteral("a.v:10000: odd"));
    log.addError(QStringLiteral("gone"));
    QCOMPARE(log.messages().size(), 10001);
    QCOMPARE(log.messages().at(0).count, 2);
    QCOMPARE(log.messages().at(1).count, 1);
    QCOMPARE(log.messages().at(9999).count, 2);
    QCOMPARE(log.messages().at(10000).text,
             QStringLiteral("There are more errors; the log has them."));
    QCOMPARE(log.messages().at(10000).count, 5);
}

void tst_ToolFiles::aMessageInSeveralLinesIsToldOnce()
{
    ToolLog log;
    for (int round = 0; round < 3; ++round) {
        log.add(QStringLiteral("Warning: these:"), m_sources);
        log.add(QStringLiteral("    one"), m_sources);
        log.add(QStringLiteral("    two:"), m_sources);
    }
    log.add(QStringLiteral("Warning: these:"), m_sources);
    log.add(QStringLiteral("    three"), m_sources);
    log.add(QStringLiteral("end"), m_sources);
    QCOMPARE(log.messages().size(), 2);
    QCOMPARE(log.messages().at(0).text, QStringLiteral("these: one two:"));
    QCOMPARE(log.messages().at(0).count, 3);
    QCOMPARE(log.messages().at(1).text, QStringLiteral("these: three"));
}

// More different ones than are told.
void tst_ToolFiles::manyMessagesStayBounded()
{
    ToolLog log;
    constexpr int all = 20000;
    for (int i = 0; i < all; ++i)
        log.add(QStringLiteral("a.v:%1: Warning: odd").arg(i + 1), m_sources);
    log.add(QStringLiteral("a.v:1: ERROR: the one that counts"), m_sources);
    QCOMPARE(log.messages().size(), 10002);
    QCOMPARE(log.messages().at(10000).text,
             QStringLiteral("There are more warnings; the log has them."));
    QCOMPARE(log.messages().at(10000).count, all - 10000);
    QCOMPARE(log.errors(), QStringList{QStringLiteral("a.v:1: the one that counts")});
    // Of an endless output only the beginning is kept.
    const QString line(1 << 16, u'x');
    for (int i = 0; i < 1100; ++i)
        log.add(line, m_sources);
    QVERIFY(log.text().size() < (65 << 20));
    QVERIFY(log.text().endsWith("\nThe log ends here: it is larger than 64 MiB.\n"));
}

void tst_ToolFiles::anErrorOfNoToolHasItsPlace_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *error, const char *file, int line,
                        const char *text) {
        QTest::newRow(name) << QString::fromUtf8(error) << QString::fromUtf8(file) << line
                            << QString::fromUtf8(text);
    };
    row("file and line", "/a b/itcm0:12: x: 3", "/a b/itcm0", 12, "x: 3");
    row("file", "/a b/itcm0: gone", "/a b/itcm0", 0, "gone");
    row("neither", "gone", "", 0, "gone");
}

void tst_ToolFiles::anErrorOfNoToolHasItsPlace()
{
    QFETCH(QString, error);
    ToolLog log;
    log.addError(error);
    QCOMPARE(log.messages().size(), 1);
    const Message message = log.messages().first();
    QCOMPARE(message.severity, Message::Error);
    QTEST(message.file, "file");
    QTEST(message.line, "line");
    QTEST(message.text, "text");
    QCOMPARE(log.errors(), QStringList{error});
}

void tst_ToolFiles::aSourceThatNeverEndsIsRefused()
{
    QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("a.v"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const ScratchFolder scratch;
    SourceStage stage;
    QCOMPARE(stage.prepare({pipe}, scratch),
             QStringLiteral("The source file \"%1\" is not a plain file.").arg(pipe));
}

TARVO_TEST_MAIN(QCoreApplication, tst_ToolFiles)

#include "tst_toolfiles.moc"
