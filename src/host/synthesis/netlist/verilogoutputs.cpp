#include "verilogoutputs.h"

#include "standins.h"
#include "verilogscan.h"

#include <algorithm>

namespace Synthesis
{

namespace
{

constexpr char boxStart[] = "(* blackbox *)\nmodule ";

// The macro that says that a module is there: names of macros have no escaped form.
QByteArray macroOf(const QByteArray &module)
{
    QByteArray macro = "HAVE_";
    for (const char c : module) {
        const bool isWord =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
        macro += isWord ? QByteArray(1, c) : "_x" + QByteArray(1, c).toHex() + '_';
    }
    return macro;
}

QByteArray verilogValue(const ParameterValue &value)
{
    if (!value.bits.isEmpty())
        return QByteArray::number(value.bits.size()) + "'b" + value.bits;
    QByteArray text = value.text;
    text.replace('\\', "\\\\").replace('"', "\\\"").replace('\n', "\\n").replace('\t', "\\t");
    return '"' + text + '"';
}

QByteArray declaration(const BlackBox &box)
{
    QByteArrayList parameters;
    for (const BlackBox::Parameter &parameter : box.parameters)
        parameters << "    parameter " + verilogName(parameter.name) + " = " +
                          (parameter.isDeclared ? verilogValue(parameter.value) : "0");
    QByteArrayList ports;
    for (const Port &port : box.ports) {
        const QByteArray range = port.range();
        ports << "    " + port.direction + ' ' + (range.isEmpty() ? range : range + ' ') +
                     verilogName(port.name);
    }
    QByteArray text = boxStart + verilogName(box.name);
    if (!parameters.isEmpty())
        text += " #(\n" + parameters.join(",\n") + "\n)";
    if (!ports.isEmpty())
        text += " (\n" + ports.join(",\n") + "\n)";
    text += ";\nendmodule\n";
    const QByteArray macro = macroOf(box.name);
    return "// Define " + macro + " where the real module is compiled as well.\n`ifndef " + macro +
           '\n' + text + "`define " + macro + "\n`endif\n";
}

// "    input [31:0] HADDR," of a declaration.
bool readPort(const QByteArray &line, Port *port)
{
    QByteArrayList words = line.simplified().split(' ');
    static const QByteArrayList directions{"input", "output", "inout"};
    if (!line.startsWith("    ") || words.size() < 2 || !directions.contains(words.first()))
        return false;
    port->direction = words.takeFirst();
    if (words.first().startsWith('[')) {
        const QByteArrayList ends = words.takeFirst().mid(1).chopped(1).split(':');
        const int left = ends.first().toInt();
        const int right = ends.last().toInt();
        port->isVector = true;
        port->isRising = left < right;
        port->lowest = std::min(left, right);
        port->width = std::max(left, right) - port->lowest + 1;
    }
    port->name = words.value(0);
    if (port->name.startsWith('\\'))
        port->name.remove(0, 1);
    else if (port->name.endsWith(','))
        port->name.chop(1);
    return true;
}

QByteArray signalName(const Port &port)
{
    const char *suffix = port.direction == "input"    ? "_i"
                         : port.direction == "output" ? "_o"
                                                      : "_io";
    return verilogName(port.name + suffix);
}

QByteArray oneLine(QByteArray text)
{
    return text.replace('\n', ' ').replace('\r', ' ');
}

// Of the lines with an attribute of the tool's text, those that matter behind it.
QByteArray withCrossingsOnly(const QByteArray &netlist)
{
    QByteArray result;
    result.reserve(netlist.size());
    for (int from = 0; from < netlist.size();) {
        int end = netlist.indexOf('\n', from);
        end = end < 0 ? netlist.size() : end + 1;
        const char *at = netlist.constData() + from;
        while (*at == ' ')
            ++at;
        const bool isAttribute = qstrncmp(at, "(* ", 3) == 0;
        if (!isAttribute || qstrncmp(at + 3, crossingAttribute, qstrlen(crossingAttribute)) == 0)
            result.append(netlist.constData() + from, end - from);
        from = end;
    }
    return result;
}

} // namespace

QByteArray verilogNetlist(const QByteArray &title, const QByteArray &body,
                          const QVector<BlackBox> &blackBoxes)
{
    QByteArray netlist = body;
    if (netlist.startsWith("/*"))
        netlist.remove(0, netlist.indexOf("*/") + 2);
    QByteArray text = "// " + oneLine(title) + "\n\n" + verilogTimeScale() +
                      "// Bits of a vector may depend on each other without being a loop.\n"
                      "/* verilator lint_off UNOPTFLAT */\n\n" +
                      withCrossingsOnly(netlist.trimmed()) + '\n';
    for (const BlackBox &box : blackBoxes)
        text += '\n' + declaration(box);
    return text;
}

QByteArray verilogTimeScale()
{
    return "// There are no delays here. Files behind this one without a time scale of their own "
           "get "
           "this one, unless\n// TARVO_NO_TIMESCALE is defined.\n"
           "`ifndef TARVO_NO_TIMESCALE\n`timescale 1ns / 1ps\n`endif\n\n";
}

QByteArray withVerilogStandIns(const QByteArray &netlist)
{
    QByteArray text;
    int copied = 0;
    for (int at = netlist.indexOf(boxStart); at >= 0; at = netlist.indexOf(boxStart, copied)) {
        const int name = at + int(qstrlen(boxStart));
        const int end = netlist.indexOf("\nendmodule\n", name) + 1;
        if (end <= 0)
            break;
        const QByteArrayList lines = netlist.mid(name, end - name).split('\n');
        QByteArray module = lines.first().split(' ').first();
        module = module.startsWith('\\') ? module.mid(1)
                 : module.endsWith(';')  ? module.chopped(1)
                                         : module;
        QVector<Port> ports;
        for (const QByteArray &line : lines) {
            Port port;
            if (readPort(line, &port))
                ports << port;
        }
        text += netlist.mid(copied, end - copied) + verilogStandIn(module, ports);
        copied = end;
    }
    return text + netlist.mid(copied);
}

QByteArray commentLines(const QByteArray &sign, const QByteArray &note)
{
    QByteArray text;
    if (note.isEmpty())
        return text;
    for (const QByteArray &line : note.split('\n'))
        text += sign + oneLine(line) + '\n';
    return text;
}

QByteArray verilogTemplate(const QByteArray &module, const QVector<Port> &ports,
                           const QByteArray &note)
{
    QByteArray text =
        "// Template of an instance: copy it into your design, and put a signal of yours into the\n"
        "// brackets of each port. Leave the brackets of an output that you do not use empty.\n";
    if (!note.isEmpty())
        text += '\n' + commentLines("// ", note);
    text += '\n';
    text += verilogName(module) + " u_" + module;
    if (ports.isEmpty())
        return text + " ();\n";

    QByteArrayList connections;
    int widest = 0;
    for (const Port &port : ports) {
        const QByteArray comma = &port == &ports.last() ? QByteArray() : QByteArray(",");
        connections << "    ." + verilogName(port.name) + '(' + signalName(port) + ')' + comma;
        widest = std::max(widest, connections.last().size());
    }
    text += " (\n";
    for (int i = 0; i < ports.size(); ++i) {
        const QByteArray range = ports.at(i).range();
        text += commentLines("    // " + ports.at(i).name + ": ", ports.at(i).note);
        text += connections.at(i).leftJustified(widest) + " // " + ports.at(i).direction +
                (range.isEmpty() ? QByteArray() : QByteArray(' ' + range)) + '\n';
    }
    return text + ");\n";
}

} // namespace Synthesis
