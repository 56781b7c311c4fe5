// Shows that what a configuration generates does what its sources do: sources, Verilog model and
// VHDL model get the same pseudo-random values at all inputs, also those that black boxes drive,
// and must answer alike at all outputs, also those that go to black boxes, wherever the sources
// leave nothing open.
//
//   comparenetlist ORIXM1 RTL-FOLDER PROGRAM-FOLDER TEST-FOLDER CONFIGURATION [CYCLES]
//
// With KEEP in the environment the folder of the comparison stays, and its name is printed.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace
{

struct Port {
    QByteArray name;
    QByteArray direction; // "in", "out" or "inout"
    int width = 1;
    bool isVector = false;
    int left = 0;
    int right = 0;

    bool isClock() const
    {
        return name.toLower().contains("clk") && width == 1 && !name.toLower().contains("en");
    }
    QByteArray range() const
    {
        return isVector ? '[' + QByteArray::number(left) + ':' + QByteArray::number(right) + "] "
                        : QByteArray();
    }
};

struct Box {
    QByteArray name;
    QByteArray header;    // the Verilog module up to its body
    QByteArray component; // the VHDL declaration between "component name" and "end component"
    QVector<Port> ports;
};

[[noreturn]] void fail(const QByteArray &text)
{
    std::fprintf(stderr, "%s\n", text.constData());
    std::exit(1);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail("cannot read " + path.toUtf8() + ": " + file.errorString().toUtf8());
    return file.readAll();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        fail("cannot write " + path.toUtf8() + ": " + file.errorString().toUtf8());
}

QByteArray run(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        fail(program.toUtf8() + " failed:\n" + process.readAllStandardOutput() +
             process.readAllStandardError());
    return process.readAllStandardOutput();
}

QByteArray joined(const QVector<Port> &ports, const char *direction, const QByteArray &prefix)
{
    QByteArrayList names;
    for (const Port &port : ports) {
        if (port.direction == direction)
            names << prefix + port.name;
    }
    return names.join(", ");
}

// From the comments of the VHDL template.
QVector<Port> portsOfTop(const QByteArray &text)
{
    static const QRegularExpression line(
        QStringLiteral("^ +(\\w+) => \\S+ +-- (in|out|inout) std_logic(?:_vector\\((\\d+) \\w+ "
                       "(\\d+)\\))?$"),
        QRegularExpression::MultilineOption);
    QVector<Port> ports;
    for (auto it = line.globalMatch(QString::fromUtf8(text)); it.hasNext();) {
        const auto match = it.next();
        Port port;
        port.name = match.captured(1).toUtf8();
        port.direction = match.captured(2).toUtf8();
        port.isVector = !match.captured(3).isEmpty();
        port.left = match.captured(3).toInt();
        port.right = match.captured(4).toInt();
        port.width = std::abs(port.left - port.right) + 1;
        ports << port;
    }
    return ports;
}

QVector<Box> blackBoxes(const QByteArray &netlist, const QByteArray &vhdl)
{
    static const QRegularExpression declaration(
        QStringLiteral("^    (input|output|inout) (?:\\[(\\d+):(\\d+)\\] )?(\\w+),?$"),
        QRegularExpression::MultilineOption);
    const QByteArray start = "(* blackbox *)\nmodule ";
    QVector<Box> boxes;
    for (int at = netlist.indexOf(start); at >= 0; at = netlist.indexOf(start, at + 1)) {
        Box box;
        const int name = at + start.size();
        const int end = netlist.indexOf("endmodule", name);
        box.header = "module " + netlist.mid(name, end - name);
        const QRegularExpression word(QStringLiteral("^\\w+"));
        box.name = word.match(QString::fromUtf8(netlist.mid(name, 200))).captured().toUtf8();
        for (auto it = declaration.globalMatch(QString::fromUtf8(box.header)); it.hasNext();) {
            const auto match = it.next();
            Port port;
            port.direction = match.captured(1) == QLatin1String("input")    ? "in"
                             : match.captured(1) == QLatin1String("output") ? "out"
                                                                            : "inout";
            port.isVector = !match.captured(2).isEmpty();
            port.left = match.captured(2).toInt();
            port.right = match.captured(3).toInt();
            port.width = std::abs(port.left - port.right) + 1;
            port.name = match.captured(4).toUtf8();
            box.ports << port;
        }
        const QByteArray component = "    component " + box.name + '\n';
        const int from = vhdl.indexOf(component);
        if (from < 0 || box.ports.isEmpty())
            fail("black box " + box.name + " is not declared in both languages");
        box.component = vhdl.mid(from + component.size(), vhdl.indexOf("    end component;", from) -
                                                              from - component.size());
        boxes << box;
    }
    return boxes;
}

// Assigns random values to the ports of a direction; `prefix` precedes their names.
QByteArray randomValues(const QVector<Port> &ports, const char *direction, const QByteArray &prefix)
{
    QByteArray text;
    for (const Port &port : ports) {
        if (port.direction != direction || port.isClock())
            continue;
        const QByteArray name = prefix + port.name;
        QByteArrayList words;
        for (int i = 0; i < port.width; i += 32)
            words << "$random(seed)";
        QByteArray value = '{' + words.join(", ") + '}';
        if (port.name.toUpper().contains("READY"))
            value = "$random(seed) % 4 != 0";
        if (port.name == "hwRstn")
            value = "cycle > 8 && (cycle < 400 || $random(seed) % 256 != 0)";
        text += "        if ($random(seed) % 4 == 0) " + name + " = " + value + ";\n";
    }
    return text;
}

QByteArray verilogDriver(const Box &box, int seed)
{
    QByteArray text = box.header;
    for (const Port &port : box.ports) {
        if (port.direction == "out")
            text += "    reg " + port.range() + "r_" + port.name + " = 0;\n    assign " +
                    port.name + " = r_" + port.name + ";\n";
    }
    text += "    integer seed = " + QByteArray::number(seed) + ", stimulus, trace;\n";
    const bool isCore = box.name == "CortexM1Core";
    if (isCore)
        text += "`include \"core_drive.vh\"\n";
    text += "    initial begin\n        stimulus = $fopen(\"" + box.name +
            ".stimulus\");\n        trace = $fopen(\"" + box.name + ".trace\");\n    end\n";
    text += "    always @(tb.drive) begin\n" +
            (isCore ? QByteArray("        act;\n") : randomValues(box.ports, "out", "r_")) +
            "    end\n    always @(tb.drive_clocks) begin\n";
    for (const Port &port : box.ports) {
        if (port.direction == "out" && port.isClock())
            text += "        r_" + port.name + " = $random(seed);\n";
    }
    text += "    end\n";
    const QByteArray outputs = joined(box.ports, "out", "r_");
    const QByteArray inputs = joined(box.ports, "in", "");
    text += "    always @(tb.record) $fdisplay(stimulus, \"%b\", {" + outputs + "});\n";
    text += "    always @(tb.sample) $fdisplay(trace, \"%b\", {" + inputs + "});\n";
    return text + "endmodule\n";
}

QByteArray verilogBench(const QVector<Port> &ports, bool boxesHaveClocks, int cycles)
{
    QByteArray text = "module tb;\n    event drive, drive_clocks, record, sample;\n"
                      "    integer seed = 1, cycle, stimulus, trace;\n";
    QByteArrayList connections;
    QByteArray clocks;
    for (const Port &port : ports) {
        if (port.direction == "in") {
            text += "    reg " + port.range() + port.name + " = 0;\n";
        } else {
            text += "    wire " + port.range() + port.name + ";\n";
        }
        // Pins of both directions are pulled weakly, so that the design's drivers win.
        if (port.direction == "inout")
            text += "    reg " + port.range() + "d_" + port.name +
                    " = 0;\n    assign (weak1, weak0) " + port.name + " = d_" + port.name + ";\n";
        connections << '.' + port.name + '(' + port.name + ')';
        if (port.direction == "in" && port.isClock() && port.name != "HCLK")
            clocks += "            if ($random(seed) & 1) begin\n                " + port.name +
                      " = !" + port.name + ";\n                step;\n            end\n";
    }
    const QByteArrayList sources{joined(ports, "in", ""), joined(ports, "inout", "d_")};
    const QByteArrayList results{joined(ports, "out", ""), joined(ports, "inout", "")};
    const auto list = [](QByteArrayList lists) {
        lists.removeAll(QByteArray());
        return lists.join(", ");
    };
    text += "    Tarvo_ORIX_M1_Top dut (" + connections.join(", ") + ");\n" +
            "    task step;\n        begin\n            #1 -> record;\n"
            "            $fdisplay(stimulus, \"%b\", {" +
            list(sources) +
            "});\n            #8 -> sample;\n            $fdisplay(trace, \"%b\", {" +
            list(results) +
            "});\n            #1;\n        end\n    endtask\n"
            "    task change;\n    begin\n" +
            randomValues(ports, "in", "") + randomValues(ports, "inout", "d_") +
            "    end\n    endtask\n"
            "    initial begin\n        stimulus = $fopen(\"top.stimulus\");\n"
            "        trace = $fopen(\"top.trace\");\n        step;\n"
            "        for (cycle = 0; cycle < " +
            QByteArray::number(cycles) +
            "; cycle = cycle + 1) begin\n            HCLK = 1;\n            step;\n"
            "            -> drive;\n            change;\n            step;\n" +
            clocks + (boxesHaveClocks ? "            -> drive_clocks;\n            step;\n" : "") +
            "            HCLK = 0;\n            "
            "step;\n"
            "        end\n        $finish;\n    end\nendmodule\n";
    return text;
}

const QByteArray vhdlContext = "library ieee;\nuse ieee.std_logic_1164.all;\nuse std.textio.all;\n"
                               "use work.trace_text.all;\n";

// The process that applies a line of the stimulus every 10 ns and writes a line of the trace before
// the next.
QByteArray vhdlProcess(const QByteArray &name, const QVector<QPair<QByteArray, Port>> &targets,
                       const QByteArrayList &results)
{
    int width = 0;
    QByteArray assignments;
    for (const auto &target : targets) {
        const Port &port = target.second;
        const QByteArray first = QByteArray::number(width + 1);
        const bool weak = port.direction == "inout";
        if (port.isVector)
            assignments += "            " + target.first + " <= bits_of(bits(" + first + " to " +
                           QByteArray::number(width + port.width) + "), " +
                           (weak ? "true" : "false") + ");\n";
        else
            assignments += "            " + target.first + " <= bit_of(bits(" + first + "), " +
                           (weak ? "true" : "false") + ");\n";
        width += port.width;
    }
    QByteArray text = "    process\n        file stimulus : text open read_mode is \"" + name +
                      ".stimulus\";\n        file trace : text open write_mode is \"" + name +
                      ".trace\";\n        variable from, to_trace : line;\n"
                      "        variable bits : string(1 to " +
                      QByteArray::number(width) +
                      ");\n    begin\n        while not endfile(stimulus) loop\n"
                      "            readline(stimulus, from);\n            read(from, bits);\n" +
                      assignments + "            wait for 9 ns;\n";
    for (const QByteArray &result : results)
        text += "            write(to_trace, letters(" + result + "));\n";
    return text + "            writeline(trace, to_trace);\n            wait for 1 ns;\n"
                  "        end loop;\n        wait;\n    end process;\n";
}

QByteArray vhdlDriver(const Box &box)
{
    QVector<QPair<QByteArray, Port>> targets;
    QByteArrayList results;
    for (const Port &port : box.ports) {
        if (port.direction == "out")
            targets.append({port.name, port});
        else if (port.direction == "in")
            results << port.name;
    }
    return vhdlContext + "entity " + box.name + " is\n" + box.component +
           "end entity;\narchitecture replay of " + box.name + " is\nbegin\n" +
           vhdlProcess(box.name, targets, results) + "end architecture;\n\n";
}

QByteArray vhdlBench(const QVector<Port> &ports)
{
    QByteArray text = vhdlContext + "use work.all;\nentity tb is\nend entity;\n"
                                    "architecture bench of tb is\n"
                                    "    component Tarvo_ORIX_M1_Top\n        port (\n";
    QByteArrayList declarations;
    QByteArray signalTexts;
    QByteArrayList connections;
    QVector<QPair<QByteArray, Port>> targets;
    for (const char *direction : {"in", "inout"}) {
        for (const Port &port : ports) {
            if (port.direction == direction)
                targets.append({"s_" + port.name, port});
        }
    }
    QByteArrayList results;
    for (const char *direction : {"out", "inout"}) {
        for (const Port &port : ports) {
            if (port.direction == direction)
                results << "s_" + port.name;
        }
    }
    for (const Port &port : ports) {
        const QByteArray type = port.isVector
                                    ? "std_logic_vector(" + QByteArray::number(port.left) +
                                          (port.left < port.right ? " to " : " downto ") +
                                          QByteArray::number(port.right) + ")"
                                    : QByteArray("std_logic");
        declarations << "            " + port.name + " : " + port.direction + ' ' + type;
        signalTexts += "    signal s_" + port.name + " : " + type + ";\n";
        connections << port.name + " => s_" + port.name;
    }
    return text + declarations.join(";\n") + "\n        );\n    end component;\n" + signalTexts +
           "begin\n    dut : Tarvo_ORIX_M1_Top port map (" + connections.join(",\n        ") +
           ");\n" + vhdlProcess("top", targets, results) + "end architecture;\n";
}

const QByteArray vhdlPackage = R"(library ieee;
use ieee.std_logic_1164.all;

package trace_text is
    function bit_of(c : character; weak : boolean) return std_logic;
    function bits_of(text : string; weak : boolean) return std_logic_vector;
    function letters(bit : std_logic) return string;
    function letters(bits : std_logic_vector) return string;
end package;

package body trace_text is
    function bit_of(c : character; weak : boolean) return std_logic is
    begin
        if c = '1' then
            if weak then
                return 'H';
            end if;
            return '1';
        end if;
        if weak then
            return 'L';
        end if;
        return '0';
    end function;

    function bits_of(text : string; weak : boolean) return std_logic_vector is
        variable result : std_logic_vector(1 to text'length);
        variable at : positive := 1;
    begin
        for i in text'range loop
            result(at) := bit_of(text(i), weak);
            at := at + 1;
        end loop;
        return result;
    end function;

    function letters(bits : std_logic_vector) return string is
        variable result : string(1 to bits'length);
        variable at : positive := 1;
    begin
        for i in bits'range loop
            case bits(i) is
                when '0' | 'L' => result(at) := '0';
                when '1' | 'H' => result(at) := '1';
                when 'Z' => result(at) := 'z';
                when others => result(at) := 'x';
            end case;
            at := at + 1;
        end loop;
        return result;
    end function;

    function letters(bit : std_logic) return string is
        variable bits : std_logic_vector(1 to 1);
    begin
        bits(1) := bit;
        return letters(bits);
    end function;
end package body;

)";

struct Verdict {
    qint64 known = 0;
    qint64 open = 0;
    QByteArray difference;
};

Verdict compare(const QString &expected, const QString &actual)
{
    Verdict verdict;
    const QByteArrayList shall = read(expected).split('\n');
    const QByteArrayList is = read(actual).split('\n');
    if (shall.size() != is.size()) {
        verdict.difference =
            QByteArray::number(is.size()) + " lines, not " + QByteArray::number(shall.size());
        return verdict;
    }
    for (int line = 0; line < shall.size(); ++line) {
        const QByteArray &a = shall.at(line);
        const QByteArray &b = is.at(line);
        for (int bit = 0; bit < a.size(); ++bit) {
            if (a.at(bit) != '0' && a.at(bit) != '1') {
                ++verdict.open;
                continue;
            }
            ++verdict.known;
            if ((bit >= b.size() || a.at(bit) != b.at(bit)) && verdict.difference.isEmpty())
                verdict.difference = "line " + QByteArray::number(line + 1) + ", bit " +
                                     QByteArray::number(bit) + "\n  " + a + "\n  " + b;
        }
    }
    return verdict;
}

// The port that a column of a trace shows.
QByteArray nameOfColumn(const QVector<Port> &ports, const QByteArrayList &directions, int column)
{
    for (const QByteArray &direction : directions) {
        for (const Port &port : ports) {
            if (port.direction != direction)
                continue;
            if (column < port.width)
                return port.name + " bit " + QByteArray::number(column) + " from the left";
            column -= port.width;
        }
    }
    return {};
}

} // namespace

int main(int argc, char *argv[])
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 6)
        fail("usage: comparenetlist ORIXM1 RTL-FOLDER PROGRAM-FOLDER TEST-FOLDER CONFIGURATION "
             "[CYCLES]");
    const QString rtl = arguments.at(2);
    const int cycles = arguments.value(6, QStringLiteral("4000")).toInt();

    QTemporaryDir folder;
    const auto path = [&](const char *name) { return folder.filePath(QLatin1String(name)); };
    if (qEnvironmentVariableIsSet("KEEP")) {
        folder.setAutoRemove(false);
        std::puts(qPrintable(folder.path()));
    }
    // The configuration in VHDL, with contents for a memory that is to be initialised.
    QByteArrayList lines = read(arguments.at(5)).split('\n');
    QByteArray config;
    bool hasOptions = false;
    for (const QByteArray &line : qAsConst(lines)) {
        if (line.startsWith("LANG="))
            continue;
        if (line.startsWith("ITCM_Initialization_AbsolutePath="))
            config += "ITCM_Initialization_AbsolutePath=" + arguments.at(3).toUtf8() + '\n';
        else
            config += line + '\n';
        if (line == "[Config]") {
            config += "LANG=1\n";
            hasOptions = true;
        }
    }
    if (!hasOptions)
        config += "[Config]\nLANG=1\n";
    write(path("config.ipc"), config);

    const QJsonObject made =
        QJsonDocument::fromJson(run(arguments.at(1),
                                    {QStringLiteral("generate"), path("config.ipc"),
                                     QStringLiteral("--out"), path("ip"), QStringLiteral("--json")},
                                    folder.path()))
            .object();
    const QByteArray netlist = read(path("ip/temp/tv_orix_m1/tarvo_orix_m1.vg"));
    const QByteArray vhdl = read(path("ip/tarvo_orix_m1.vhd"));
    const QVector<Port> ports = portsOfTop(read(path("ip/tarvo_orix_m1_tmp.vhd")));
    const QVector<Box> boxes = blackBoxes(netlist, vhdl);
    if (boxes.isEmpty() || ports.size() < 4)
        fail("the netlist has no ports or no black boxes");

    QByteArray drivers = "`timescale 1ns / 1ns\n";
    QByteArray vhdlDrivers = vhdlPackage;
    for (int i = 0; i < boxes.size(); ++i) {
        drivers += verilogDriver(boxes.at(i), 100 + i) + '\n';
        vhdlDrivers += vhdlDriver(boxes.at(i));
    }
    const bool boxesHaveClocks = std::any_of(boxes.begin(), boxes.end(), [](const Box &box) {
        return std::any_of(box.ports.begin(), box.ports.end(), [](const Port &port) {
            return port.direction == "out" && port.isClock();
        });
    });
    write(path("bench.v"), "`timescale 1ns / 1ns\n" + verilogBench(ports, boxesHaveClocks, cycles));
    write(path("drivers.v"), drivers);
    write(path("bench.vhd"), vhdlDrivers + vhdlBench(ports));

    // The Verilog model without the empty modules.
    QString model = QString::fromUtf8(read(path("ip/tarvo_orix_m1.vo")));
    model.remove(
        QRegularExpression(QStringLiteral("\\(\\* blackbox \\*\\)\\nmodule .*?endmodule\\n"),
                           QRegularExpression::DotMatchesEverythingOption));
    write(path("model.v"), model.toUtf8());

    const QString includes = path("ip/temp/tv_orix_m1");
    QStringList sources;
    for (const QJsonValue &source : made.value(QLatin1String("sources")).toArray()) {
        // Parameters outside of modules, which only the licensed blocks use, are not for Icarus.
        const QByteArray text = read(source.toString());
        if (!text.contains("(* blackbox") && !text.startsWith("parameter "))
            sources << source.toString();
    }
    const QStringList common{QStringLiteral("-g2005"),  QStringLiteral("-s"),
                             QStringLiteral("tb"),      QLatin1String("-I") + includes,
                             QLatin1String("-I") + rtl, QLatin1String("-I") + arguments.at(4)};
    const QStringList benches{path("drivers.v"), path("bench.v")};
    const struct {
        const char *folder;
        QStringList files;
    } simulations[] = {{"source", sources}, {"verilog", {path("model.v")}}};
    for (const auto &simulation : simulations) {
        QDir(folder.path()).mkdir(QLatin1String(simulation.folder));
        const QString work = path(simulation.folder);
        run(QStringLiteral("iverilog"),
            common + QStringList{QStringLiteral("-o"), work + QLatin1String("/run")} +
                simulation.files + benches,
            work);
        run(QStringLiteral("vvp"), {QStringLiteral("-n"), QStringLiteral("run")}, work);
    }

    QDir(folder.path()).mkdir(QStringLiteral("vhdl"));
    const QString work = path("vhdl");
    QByteArrayList traces{"top"};
    for (const Box &box : boxes)
        traces << box.name;
    for (const QByteArray &trace : qAsConst(traces))
        QFile::copy(path("source/") + QString::fromUtf8(trace) + QLatin1String(".stimulus"),
                    work + u'/' + QString::fromUtf8(trace) + QLatin1String(".stimulus"));
    const QStringList ghdl{QStringLiteral("--std=93c"), QStringLiteral("--warn-no-library")};
    run(QStringLiteral("ghdl"),
        QStringList{QStringLiteral("-a")} + ghdl +
            QStringList{path("ip/tarvo_orix_m1.vho"), path("bench.vhd")},
        work);
    run(QStringLiteral("ghdl"),
        QStringList{QStringLiteral("-r")} + ghdl + QStringList{QStringLiteral("tb")}, work);

    bool same = true;
    for (const char *language : {"verilog", "vhdl"}) {
        for (int i = 0; i < traces.size(); ++i) {
            const QString file = QString::fromUtf8(traces.at(i)) + QLatin1String(".trace");
            const Verdict verdict = compare(path("source/") + file,
                                            folder.filePath(QLatin1String(language)) + u'/' + file);
            std::printf("%s %s: %lld bits compared, %lld open\n", language,
                        traces.at(i).constData(), verdict.known, verdict.open);
            if (!verdict.difference.isEmpty()) {
                same = false;
                const int bit = verdict.difference.mid(verdict.difference.indexOf("bit ") + 4)
                                    .split('\n')
                                    .first()
                                    .toInt();
                const QByteArray where = i == 0 ? nameOfColumn(ports, {"out", "inout"}, bit)
                                                : nameOfColumn(boxes.at(i - 1).ports, {"in"}, bit);
                std::printf("  %s differs: %s\n", where.constData(),
                            verdict.difference.constData());
            }
            // The comparison must say something.
            if (verdict.open > verdict.known) {
                same = false;
                std::puts("  most of it is open");
            }
        }
    }
    return same ? 0 : 1;
}
