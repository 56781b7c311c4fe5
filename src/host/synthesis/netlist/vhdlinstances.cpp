#include "vhdlinstances.h"

#include "vhdltext.h"

#include <QSet>

#include <algorithm>

namespace Synthesis
{

namespace
{

// What an element of a port is connected to: a constant, or what is at a place.
struct Actual {
    char constant = 0;
    VhdlPlace place;

    QByteArray text() const { return constant ? VhdlText::literal(constant) : place.text(); }
};

QByteArray genericMap(const Design::Cell &cell, const VhdlGenerics &generics)
{
    QByteArrayList lines;
    for (const Design::Parameter &parameter : cell.parameters)
        lines << "            " + vhdlName(parameter.name) + " => " +
                     genericLiteral(generics.kindOf(cell.type, parameter.name), parameter.value);
    return lines.isEmpty() ? QByteArray()
                           : "        generic map (\n" + lines.join(",\n") + "\n        )\n";
}

QVector<Actual> actualsOf(const Port &formal, Bits bits, VhdlSignals *nets)
{
    // No element of a port may be left out; what is not connected is not driven.
    while (bits.size() < formal.width)
        bits << Bit{-1, 'z'};
    bits.resize(formal.width);
    QVector<Actual> actuals;
    actuals.reserve(bits.size());
    for (const Bit &bit : qAsConst(bits)) {
        if (bit.net >= 0)
            actuals << Actual{0, nets->placeOf(bit)};
        else if (formal.direction == "input")
            actuals << Actual{bit.constant, {}};
        else
            actuals << Actual{0, nets->addSignal(formal.direction == "inout" ? bit.constant : 'z')};
    }
    return actuals;
}

// Whether the element at `low` may be in one association with those from `high` down to it.
bool goesOn(const QVector<Actual> &actuals, int high, int low)
{
    const Actual &first = actuals.at(high);
    const Actual &next = actuals.at(low);
    if (first.constant || next.constant)
        return first.constant && next.constant;
    return next.place.isElement && !next.place.isRising && next.place.name == first.place.name &&
           next.place.index == first.place.index - (high - low);
}

// Of the elements from `high` down to `low` together.
QByteArray sliceOf(const QVector<Actual> &actuals, int high, int low)
{
    if (!actuals.at(high).constant)
        return actuals.at(high).place.name +
               VhdlText::slice(actuals.at(high).place.index, actuals.at(low).place.index, false);
    QByteArray digits;
    for (int i = high; i >= low; --i)
        digits += VhdlText::logicValue(actuals.at(i).constant);
    return '"' + digits + '"';
}

QByteArrayList associations(const QByteArray &name, const Port &formal, const Bits &bits,
                            VhdlSignals *nets)
{
    if (formal.direction == "output" && !nets->isRead(bits))
        return {name + " => open"};
    const QVector<Actual> actuals = actualsOf(formal, bits, nets);
    if (!formal.isVector)
        return {name + " => " + actuals.first().text()};

    QByteArrayList result;
    for (int high = formal.width - 1; high >= 0;) {
        int low = high;
        while (!formal.isRising && low > 0 && goesOn(actuals, high, low - 1))
            --low;
        const int top = formal.indexOf(high);
        if (high == low)
            result << name + '(' + QByteArray::number(top) + ") => " + actuals.at(high).text();
        else if (high - low + 1 == formal.width)
            result << name + " => " + sliceOf(actuals, high, low);
        else
            result << name + VhdlText::slice(top, formal.indexOf(low), false) + " => " +
                          sliceOf(actuals, high, low);
        high = low - 1;
    }
    return result;
}

QByteArray portMap(const Design::Cell &cell, const QVector<Port> &ports, VhdlSignals *nets)
{
    const QByteArrayList names = vhdlPortNames(ports);
    QByteArrayList lines;
    for (int i = 0; i < ports.size(); ++i)
        lines +=
            associations(names.at(i), ports.at(i), cell.connections.value(ports.at(i).name), nets);
    if (lines.isEmpty())
        return {};
    return "        port map (\n            " + lines.join(",\n            ") + "\n        )";
}

} // namespace

CellPorts cellPorts(const QVector<Design::Cell> &cells, const QVector<BlackBox> &blackBoxes)
{
    CellPorts result;
    QSet<QByteArray> boxes;
    for (const BlackBox &box : blackBoxes) {
        boxes.insert(box.name);
        if (!result.contains(box.name))
            result.insert(box.name, box.ports);
    }
    for (const Design::Cell &cell : cells) {
        if (boxes.contains(cell.type))
            continue;
        const bool isFirst = !result.contains(cell.type);
        QVector<Port> &ports = result[cell.type];
        if (isFirst) {
            for (const Design::CellPort &port : cell.ports) {
                Port shape;
                shape.name = port.name;
                shape.direction = port.direction;
                ports << shape;
            }
        }
        // As wide as the widest connection: one that is left open has no bits.
        for (Port &port : ports) {
            port.width = std::max(port.width, cell.connections.value(port.name).size());
            port.isVector = port.width > 1;
        }
    }
    return result;
}

QByteArray vhdlInstances(const QVector<Design::Cell> &cells, const CellPorts &ports,
                         const VhdlGenerics &generics, VhdlSignals *nets, QByteArrayList *crossings)
{
    QByteArray text;
    for (const Design::Cell &cell : cells) {
        VhdlNames &names = nets->names();
        const QByteArray label = cell.isHidden ? names.addNumbered("u") : names.add(cell.name);
        if (cell.isCrossing)
            *crossings << label;
        text += "    " + label + " : " + vhdlName(cell.type) + '\n' + genericMap(cell, generics) +
                portMap(cell, ports.value(cell.type), nets);
        if (text.endsWith(")\n"))
            text.chop(1);
        text += ";\n";
    }
    return text;
}

} // namespace Synthesis
