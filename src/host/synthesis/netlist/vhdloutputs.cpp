#include "vhdloutputs.h"

#include "library.h"
#include "standins.h"
#include "tr.h"
#include "verilogoutputs.h"
#include "vhdlinstances.h"
#include "vhdltext.h"

#include <QSet>

#include <algorithm>

namespace Synthesis
{

namespace
{

// Two pins that are one net would need a wire between them, which the language has not.
QString pinMistake(const Design::Module &module, const QVector<Port> &ports)
{
    QHash<QByteArray, Bits> bits;
    for (const Design::ModulePort &port : module.ports)
        bits.insert(port.port.name, port.bits);
    QHash<int, QByteArray> pins;
    for (const Port &port : ports) {
        if (port.direction != "inout")
            continue;
        for (const Bit &bit : bits.value(port.name)) {
            if (bit.net < 0)
                continue;
            if (pins.contains(bit.net) && pins.value(bit.net) != port.name)
                return Tr::tr("The ports \"%1\" and \"%2\" are one net, which VHDL cannot express.")
                    .arg(QString::fromUtf8(pins.value(bit.net)), QString::fromUtf8(port.name));
            pins.insert(bit.net, port.name);
        }
    }
    return {};
}

// Those that are instantiated, in the order of the library.
QByteArrayList usedPrimitives(const QVector<Design::Cell> &cells,
                              const QVector<BlackBox> &blackBoxes)
{
    QSet<QByteArray> types;
    for (const Design::Cell &cell : cells)
        types.insert(cell.type);
    for (const BlackBox &box : blackBoxes)
        types.remove(box.name);
    QByteArrayList result = Library::primitives();
    result.erase(std::remove_if(result.begin(), result.end(),
                                [&](const QByteArray &name) { return !types.contains(name); }),
                 result.end());
    return result;
}

// The generics and ports of an entity or a component.
QByteArray interfaceOf(const BlackBox &box, const VhdlGenerics &generics)
{
    QByteArrayList lines;
    VhdlNames region;
    for (const BlackBox::Parameter &parameter : box.parameters) {
        const GenericKind kind = generics.kindOf(box.name, parameter.name);
        lines << "        " + region.add(parameter.name) + " : " + typeNameOf(kind) +
                     " := " + genericLiteral(kind, parameter.value);
    }
    QByteArray text;
    if (!lines.isEmpty())
        text += "    generic (\n" + lines.join(";\n") + "\n    );\n";
    return text + VhdlText::portClause(box.ports);
}

QByteArray componentOf(const BlackBox &box, const VhdlGenerics &generics)
{
    return "component " + vhdlName(box.name) + '\n' + interfaceOf(box, generics) +
           "end component;\n";
}

// An entity without contents.
QByteArray entityOf(const BlackBox &box, const VhdlGenerics &generics)
{
    const QByteArray name = vhdlName(box.name);
    return "\n-- A block that the netlist leaves empty. An architecture of it that is analysed "
           "behind this file,\n-- into the same library, takes the place of this one.\n" +
           QByteArray(VhdlText::context) + "\nentity " + name + " is\n" +
           interfaceOf(box, generics) + "end entity;\n\n" +
           vhdlStandIn(name, box.ports, vhdlPortNames(box.ports));
}

// Of an architecture: what marks the instances with these labels as crossings.
QByteArray attributesOf(const QByteArrayList &crossings)
{
    if (crossings.isEmpty())
        return {};
    const QByteArray name = crossingAttribute;
    QByteArray text = "    attribute " + name + " : string;\n";
    for (const QByteArray &label : crossings)
        text += "    attribute " + name + " of " + label + " : label is \"true\";\n";
    return text;
}

QByteArray oneLine(QByteArray text)
{
    return text.replace('\n', ' ').replace('\r', ' ');
}

} // namespace

QString vhdlNetlist(const QByteArray &title, const QByteArray &design, const QByteArray &top,
                    const QVector<Port> &ports, const QVector<BlackBox> &blackBoxes,
                    VhdlNetlist *result)
{
    Design read;
    if (const QString mistake = readDesign(design, &read, top); !mistake.isEmpty())
        return Tr::tr("The netlist that the tool wrote cannot be used: %1.").arg(mistake);
    const Design::Module *const module = read.find(top);
    if (!module)
        return Tr::tr("The netlist that the tool wrote has no module \"%1\".")
            .arg(QString::fromUtf8(top));
    if (QString mistake = pinMistake(*module, ports); !mistake.isEmpty())
        return mistake;

    VhdlNames names;
    names.reserve(vhdlPredefined());
    names.reserve({vhdlName(top)});
    for (const Design::Cell &cell : module->cells)
        names.reserve({vhdlName(cell.type)});
    const CellPorts portsOfCells = cellPorts(module->cells, blackBoxes);
    const VhdlGenerics generics(module->cells, blackBoxes);
    VhdlSignals nets(*module, ports, portsOfCells, names);
    QByteArrayList crossings;
    const QByteArray instances =
        vhdlInstances(module->cells, portsOfCells, generics, &nets, &crossings);

    const QByteArray comment = "-- " + oneLine(title) + "\n\n";
    QByteArray components;
    QByteArray models = Library::vhdlPackage();
    const QByteArrayList primitives = usedPrimitives(module->cells, blackBoxes);
    for (const QByteArray &primitive : primitives) {
        components += Library::vhdlComponent(primitive);
        models += '\n' + Library::vhdlModel(primitive);
    }
    for (const BlackBox &box : blackBoxes) {
        components += componentOf(box, generics);
        models += entityOf(box, generics);
    }
    const QByteArray name = vhdlName(top);
    // Editions before 2008 bind a component to an entity that is directly visible only.
    const QByteArray body =
        QByteArray(VhdlText::context) + "use work.all;\n\nentity " + name + " is\n" +
        VhdlText::portClause(ports) + "end entity;\n\narchitecture netlist of " + name + " is\n" +
        VhdlText::indented(components, "    ") + nets.declarations() + attributesOf(crossings) +
        "begin\n" + nets.assignments() + instances + "end architecture;\n";
    result->netlist = comment + body;
    result->model = comment + models + '\n' + body;
    return {};
}

QByteArray vhdlTemplate(const QByteArray &module, const QVector<Port> &ports,
                        const QByteArray &note)
{
    const QByteArray name = vhdlName(module);
    QByteArray text =
        "-- Template of an instance: copy the declaration before the \"begin\" of your "
        "architecture and the\n"
        "-- instance behind it, and put a signal of yours behind each \"=>\", or "
        "\"open\" for an output that you\n"
        "-- do not use.\n";
    if (!note.isEmpty())
        text += '\n' + commentLines("-- ", note);
    text += "\ncomponent " + name + '\n' + VhdlText::portClause(ports) + "end component;\n\n" +
            vhdlName("u_" + module) + " : " + name;
    if (ports.isEmpty())
        return text + ";\n";
    const QByteArrayList names = vhdlPortNames(ports);
    QByteArrayList lines;
    VhdlNames signalNames;
    int widest = 0;
    for (int i = 0; i < ports.size(); ++i) {
        const QByteArray &direction = ports.at(i).direction;
        const char *suffix = direction == "input" ? "_i" : direction == "output" ? "_o" : "_io";
        lines << "        " + names.at(i) + " => " + signalNames.add(ports.at(i).name + suffix) +
                     (i + 1 < ports.size() ? "," : "");
        widest = std::max(widest, lines.last().size());
    }
    text += "\n    port map (\n";
    for (int i = 0; i < ports.size(); ++i) {
        text += commentLines("        -- " + names.at(i) + ": ", ports.at(i).note);
        text += lines.at(i).leftJustified(widest) + " -- " + VhdlText::modeOf(ports.at(i)) + ' ' +
                VhdlText::typeOf(ports.at(i)) + '\n';
    }
    return text + "    );\n";
}

} // namespace Synthesis
