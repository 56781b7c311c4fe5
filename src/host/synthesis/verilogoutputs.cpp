#include "verilogoutputs.h"

#include "verilogscan.h"

#include <algorithm>

namespace Synthesis
{

namespace
{

QByteArray declaration(const BlackBox &box)
{
    QByteArrayList parameters;
    for (const BlackBox::Parameter &parameter : box.parameters)
        parameters << "    parameter " + verilogName(parameter.name) + " = " + parameter.value;
    QByteArrayList ports;
    for (const Port &port : box.ports) {
        const QByteArray range = port.range();
        ports << "    " + port.direction + ' ' + (range.isEmpty() ? range : range + ' ') +
                     verilogName(port.name);
    }
    const QByteArray name = verilogName(box.name);
    QByteArray text = "(* blackbox *)\nmodule " + name;
    if (!parameters.isEmpty())
        text += " #(\n" + parameters.join(",\n") + "\n)";
    if (!ports.isEmpty())
        text += " (\n" + ports.join(",\n") + "\n)";
    text += ";\nendmodule\n";
    if (name.startsWith('\\')) // no name of a macro
        return text;
    return "// Define HAVE_" + name + " where the real module is compiled as well.\n`ifndef HAVE_" +
           name + '\n' + text + "`endif\n";
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

} // namespace

QByteArray verilogNetlist(const QByteArray &title, const QByteArray &body,
                          const QVector<BlackBox> &blackBoxes)
{
    QByteArray netlist = body;
    if (netlist.startsWith("/*"))
        netlist.remove(0, netlist.indexOf("*/") + 2);
    QByteArray text = "// " + oneLine(title) + "\n\n" + netlist.trimmed() + '\n';
    for (const BlackBox &box : blackBoxes)
        text += '\n' + declaration(box);
    return text;
}

QByteArray verilogTemplate(const QByteArray &module, const QVector<Port> &ports)
{
    QByteArray text =
        "// Template of an instance: copy it into your design, and put a signal of yours into the\n"
        "// brackets of each port. Leave the brackets of an output that you do not use empty.\n\n";
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
        text += connections.at(i).leftJustified(widest) + " // " + ports.at(i).direction +
                (range.isEmpty() ? QByteArray() : QByteArray(' ' + range)) + '\n';
    }
    return text + ");\n";
}

} // namespace Synthesis
