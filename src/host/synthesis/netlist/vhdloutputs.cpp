#include "vhdloutputs.h"

#include "designcheck.h"
#include "library.h"
#include "standins.h"
#include "tr.h"
#include "verilogoutputs.h"
#include "vhdlnames.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <optional>

namespace Synthesis
{

namespace
{

// What the text refers to without declaring it.
const QByteArrayList &predefined()
{
    static const QByteArrayList names{
        "ieee",    "std",    "work",      "std_logic_1164", "std_logic", "std_logic_vector",
        "integer", "string", "character", "netlist"};
    return names;
}

constexpr char context[] = "library ieee;\nuse ieee.std_logic_1164.all;\n";

// "(7 downto 0)", or "(0 to 7)".
QByteArray slice(int left, int right, bool isRising)
{
    return '(' + QByteArray::number(left) + (isRising ? " to " : " downto ") +
           QByteArray::number(right) + ')';
}

QByteArray typeOf(const Port &port)
{
    if (!port.isVector)
        return "std_logic";
    const int highest = port.lowest + port.width - 1;
    return "std_logic_vector" +
           (port.isRising ? slice(port.lowest, highest, true) : slice(highest, port.lowest, false));
}

QByteArray modeOf(const Port &port)
{
    return port.direction == "input" ? "in" : port.direction == "output" ? "out" : "inout";
}

QByteArray indented(const QByteArray &text, const QByteArray &by)
{
    QByteArray result;
    const QByteArrayList lines = text.split('\n');
    for (const QByteArray &line : lines)
        result += line.isEmpty() ? QByteArray("\n") : by + line + '\n';
    result.chop(1);
    return result;
}

// The names of a module's ports: each in its own form, two that only letter case tells apart as
// extended ones.
QByteArrayList portNames(const QVector<Port> &ports)
{
    QHash<QByteArray, int> alike;
    for (const Port &port : ports)
        ++alike[port.name.toLower()];
    QByteArrayList names;
    VhdlNames region;
    region.reserve(predefined());
    for (const Port &port : ports) {
        if (alike.value(port.name.toLower()) > 1)
            region.reserve({port.name});
        names << region.add(port.name);
    }
    return names;
}

QByteArray portClause(const QVector<Port> &ports)
{
    if (ports.isEmpty())
        return {};
    const QByteArrayList names = portNames(ports);
    QByteArrayList lines;
    for (int i = 0; i < ports.size(); ++i)
        lines << "        " + names.at(i) + " : " + modeOf(ports.at(i)) + ' ' + typeOf(ports.at(i));
    return "    port (\n" + lines.join(";\n") + "\n    );\n";
}

// What a generic is made of.
enum class Kind { Bit, Vector, Integer, Text };

std::optional<qint64> integerOf(const QByteArray &bits)
{
    if (bits.isEmpty() || bits.size() > 32 ||
        !std::all_of(bits.begin(), bits.end(), [](char c) { return c == '0' || c == '1'; }))
        return {};
    qint64 value = 0;
    for (const char bit : bits)
        value = 2 * value + (bit == '1');
    if (bits.size() == 32 && bits.at(0) == '1')
        value -= qint64(1) << 32;
    // The least integer of all has no place in the range that the language guarantees.
    return value == -(qint64(1) << 31) ? std::optional<qint64>() : value;
}

char logicLiteral(char bit)
{
    return bit == 'x' ? 'X' : bit == 'z' ? 'Z' : bit;
}

// In lines of 64 digits, in hexadecimal where all bits are known.
QByteArray vectorLiteral(const QByteArray &bits)
{
    constexpr int digits = 64;
    const bool known =
        bits.size() % 4 == 0 && bits.size() > 4 && !bits.contains('x') && !bits.contains('z');
    QByteArray text;
    if (known) {
        for (int i = 0; i < bits.size(); i += 4)
            text += QByteArray::number(bits.mid(i, 4).toInt(nullptr, 2), 16).toUpper();
    } else {
        for (const char bit : bits)
            text += logicLiteral(bit);
    }
    QByteArrayList lines;
    for (int i = 0; i < text.size(); i += digits)
        lines << (known ? "X\"" : "\"") + text.mid(i, digits) + '"';
    return lines.join(" &\n            ");
}

QByteArray textLiteral(const QByteArray &text)
{
    QByteArrayList parts;
    QByteArray plain;
    for (const char c : text) {
        if (c >= ' ' && c <= '~') {
            plain += c == '"' ? QByteArray("\"\"") : QByteArray(1, c);
            continue;
        }
        if (!plain.isEmpty())
            parts << '"' + plain + '"';
        plain.clear();
        parts << "character'val(" + QByteArray::number(int(uchar(c))) + ')';
    }
    if (!plain.isEmpty() || parts.isEmpty())
        parts << '"' + plain + '"';
    // A single character would be no string.
    return parts.size() == 1 && !parts.first().startsWith('"') ? "\"\" & " + parts.first()
                                                               : parts.join(" & ");
}

QByteArray bitsOfText(const QByteArray &text)
{
    QByteArray bits;
    for (const char c : text)
        bits += QByteArray::number(int(uchar(c)), 2).rightJustified(8, '0');
    return bits;
}

QByteArray literal(Kind kind, const ParameterValue &value)
{
    const QByteArray bits = value.bits.isEmpty() ? bitsOfText(value.text) : value.bits;
    switch (kind) {
    case Kind::Bit:
        return QByteArray("'") + logicLiteral(bits.isEmpty() ? 'x' : bits.back()) + '\'';
    case Kind::Vector:
        return vectorLiteral(bits);
    case Kind::Integer:
        return QByteArray::number(integerOf(bits).value_or(0));
    case Kind::Text:
        return textLiteral(value.text);
    }
    return {};
}

// As primitives.vhd declares them.
Kind kindInPrimitive(const QByteArray &primitive, const QByteArray &generic)
{
    if (generic.endsWith("WIDTH"))
        return Kind::Integer;
    if (generic.endsWith("NEG") || generic == "SUB" ||
        (generic == "INIT" && (primitive.startsWith("TV_DFF") || primitive == "TV_DL")))
        return Kind::Bit;
    return Kind::Vector;
}

// Where a bit is: a signal or port, or an element of one.
struct Place {
    QByteArray name;
    int index = 0;
    bool isElement = false;
    bool isRising = false;

    QByteArray text() const
    {
        return isElement ? name + '(' + QByteArray::number(index) + ')' : name;
    }
};

// A bit of a netlist: a net, or a constant.
struct Bit {
    int net = -1;
    char constant = 0;
};

QVector<Bit> bitsOf(const QJsonValue &json)
{
    QVector<Bit> result;
    const QJsonArray array = json.toArray();
    result.reserve(array.size());
    for (const QJsonValue &value : array) {
        if (value.isString())
            result << Bit{-1, value.toString().at(0).toLatin1()};
        else
            result << Bit{value.toInt(), 0};
    }
    return result;
}

struct Net {
    QByteArray name;
    bool isHidden = false;
    bool isPort = false;
    int lowest = 0;
    bool isRising = false;
    QVector<Bit> bits;

    Port shape() const
    {
        Port port;
        port.width = bits.size();
        port.lowest = lowest;
        port.isRising = isRising;
        port.isVector = port.width != 1 || lowest != 0 || isRising;
        return port;
    }
};

struct Cell {
    QByteArray name;
    bool isHidden = false;
    QByteArray type;
    QJsonObject parameters;
    QJsonObject connections;
};

int indexIn(const Port &shape, int position)
{
    return shape.isRising ? shape.lowest + shape.width - 1 - position : shape.lowest + position;
}

class Writer
{
public:
    Writer(const QJsonObject &module, const QByteArray &top, const QVector<Port> &ports,
           const QVector<BlackBox> &blackBoxes)
        : m_top(top)
        , m_ports(ports)
        , m_blackBoxes(blackBoxes)
    {
        read(module);
    }

    QString write();
    const QByteArray &entity() const { return m_entity; }
    const QByteArray &architecture() const { return m_architecture; }
    // Those that are instantiated, in the order of the library.
    QByteArrayList primitives() const;
    // Declarations of the black boxes, as components or as entities without contents.
    QByteArray blackBoxTexts(bool asEntities) const;

private:
    void read(const QJsonObject &module);
    const BlackBox *blackBox(const QByteArray &type) const;
    QVector<Port> portsOf(const QByteArray &type) const;
    Kind kindOf(const BlackBox &box, const QByteArray &parameter) const;
    Kind findKind(const BlackBox &box, const QByteArray &parameter) const;

    void countUses();
    bool isRead(const QVector<Bit> &bits) const;
    void placePorts();
    void placeNets();
    void placeVector(const Net &net);
    void placeBit(int net, const QByteArray &name);
    void declare(const QByteArray &name, const QByteArray &type);
    QByteArray textOf(const Bit &bit);
    void connectPorts();
    void drive(const QByteArray &target, const QByteArray &value);
    QByteArray genericMap(const Cell &cell);
    QByteArray portMap(const Cell &cell);
    QByteArrayList associations(const QByteArray &name, const Port &formal, QVector<Bit> bits);

    QByteArray m_top;
    QVector<Port> m_ports;
    QVector<BlackBox> m_blackBoxes;
    mutable QHash<QPair<QByteArray, QByteArray>, Kind> m_kinds; // by black box and parameter
    QVector<QVector<Bit>> m_portBits;
    QVector<Cell> m_cells;
    QVector<Net> m_nets;
    QHash<QByteArray, QVector<Port>> m_primitivePorts;

    QSet<int> m_read; // nets that an input, or a port of both directions, is connected to
    QSet<int> m_onPorts;
    QSet<int> m_driven; // nets that an output is connected to
    QHash<int, Place> m_places;
    VhdlNames m_names;
    QByteArray m_declarations;
    QByteArray m_assignments;
    QByteArray m_entity;
    QByteArray m_architecture;
};

void Writer::read(const QJsonObject &module)
{
    const QJsonObject ports = module.value(QLatin1String("ports")).toObject();
    for (const Port &port : qAsConst(m_ports))
        m_portBits << bitsOf(
            ports.value(QString::fromUtf8(port.name)).toObject().value(QLatin1String("bits")));
    const QJsonObject cells = module.value(QLatin1String("cells")).toObject();
    for (auto it = cells.begin(); it != cells.end(); ++it) {
        const QJsonObject json = it.value().toObject();
        Cell cell;
        cell.name = it.key().toUtf8();
        cell.isHidden = json.value(QLatin1String("hide_name")).toInt() != 0;
        cell.type = json.value(QLatin1String("type")).toString().toUtf8();
        cell.parameters = json.value(QLatin1String("parameters")).toObject();
        cell.connections = json.value(QLatin1String("connections")).toObject();
        if (!blackBox(cell.type) && !m_primitivePorts.contains(cell.type)) {
            // As wide as the widest connection: one that is left open has no bits.
            QVector<Port> &shapes = m_primitivePorts[cell.type];
            const QJsonObject directions = json.value(QLatin1String("port_directions")).toObject();
            for (auto port = directions.begin(); port != directions.end(); ++port) {
                Port shape;
                shape.name = port.key().toUtf8();
                shape.direction = port.value().toString().toLatin1();
                shape.width = 1;
                shapes << shape;
            }
        }
        if (const auto shapes = m_primitivePorts.find(cell.type);
            shapes != m_primitivePorts.end()) {
            for (Port &shape : *shapes) {
                const QJsonValue bits = cell.connections.value(QString::fromUtf8(shape.name));
                shape.width = std::max(shape.width, bits.toArray().size());
                shape.isVector = shape.width > 1;
            }
        }
        m_cells << cell;
    }
    const QJsonObject nets = module.value(QLatin1String("netnames")).toObject();
    for (auto it = nets.begin(); it != nets.end(); ++it) {
        const QJsonObject json = it.value().toObject();
        Net net;
        net.name = it.key().toUtf8();
        net.isHidden = json.value(QLatin1String("hide_name")).toInt() != 0;
        net.isPort = ports.contains(it.key());
        net.lowest = json.value(QLatin1String("offset")).toInt();
        net.isRising = json.value(QLatin1String("upto")).toInt() != 0;
        net.bits = bitsOf(json.value(QLatin1String("bits")));
        m_nets << net;
    }
}

const BlackBox *Writer::blackBox(const QByteArray &type) const
{
    const auto found = std::find_if(m_blackBoxes.begin(), m_blackBoxes.end(),
                                    [&](const BlackBox &box) { return box.name == type; });
    return found == m_blackBoxes.end() ? nullptr : &*found;
}

QVector<Port> Writer::portsOf(const QByteArray &type) const
{
    const BlackBox *box = blackBox(type);
    return box ? box->ports : m_primitivePorts.value(type);
}

QByteArrayList Writer::primitives() const
{
    QByteArrayList result;
    const QByteArrayList all = Library::primitives();
    for (const QByteArray &name : all) {
        if (m_primitivePorts.contains(name))
            result << name;
    }
    return result;
}

Kind Writer::kindOf(const BlackBox &box, const QByteArray &parameter) const
{
    const QPair<QByteArray, QByteArray> key(box.name, parameter);
    auto known = m_kinds.constFind(key);
    if (known == m_kinds.constEnd())
        known = m_kinds.insert(key, findKind(box, parameter));
    return known.value();
}

// One kind that fits the default and the values of all instances.
Kind Writer::findKind(const BlackBox &box, const QByteArray &parameter) const
{
    QVector<ParameterValue> values;
    for (const BlackBox::Parameter &candidate : box.parameters) {
        if (candidate.name == parameter && candidate.isDeclared)
            values << ParameterValue{candidate.bits, candidate.text};
    }
    bool texts = values.isEmpty() || values.first().bits.isEmpty();
    for (const Cell &cell : m_cells) {
        const QJsonValue json = cell.parameters.value(QString::fromUtf8(parameter));
        if (cell.type != box.name || json.isUndefined())
            continue;
        values << ParameterValue::read(json);
        texts = texts && values.last().bits.isEmpty();
    }
    if (texts)
        return Kind::Text;
    const bool integers =
        std::all_of(values.begin(), values.end(), [](const ParameterValue &value) {
            return value.bits.size() == 32 && integerOf(value.bits);
        });
    return integers ? Kind::Integer : Kind::Vector;
}

QByteArray Writer::blackBoxTexts(bool asEntities) const
{
    QByteArray text;
    for (const BlackBox &box : m_blackBoxes) {
        QByteArrayList generics;
        VhdlNames region;
        for (const BlackBox::Parameter &parameter : box.parameters) {
            const Kind kind = kindOf(box, parameter.name);
            const char *type = kind == Kind::Integer ? "integer"
                               : kind == Kind::Text  ? "string"
                                                     : "std_logic_vector";
            generics << "        " + region.add(parameter.name) + " : " + type +
                            " := " + literal(kind, ParameterValue{parameter.bits, parameter.text});
        }
        const QByteArray name = vhdlName(box.name);
        QByteArray body;
        if (!generics.isEmpty())
            body += "    generic (\n" + generics.join(";\n") + "\n    );\n";
        body += portClause(box.ports);
        if (asEntities)
            text += "\n-- A block that the netlist leaves empty. An architecture of it that is "
                    "analysed "
                    "behind this file,\n-- into the same library, takes the place of this one.\n" +
                    QByteArray(context) + "\nentity " + name + " is\n" + body + "end entity;\n\n" +
                    vhdlStandIn(name, box.ports, portNames(box.ports));
        else
            text += "component " + name + '\n' + body + "end component;\n";
    }
    return text;
}

void Writer::countUses()
{
    for (const Cell &cell : qAsConst(m_cells)) {
        const QVector<Port> ports = portsOf(cell.type);
        for (const Port &port : ports) {
            const QVector<Bit> bits = bitsOf(cell.connections.value(QString::fromUtf8(port.name)));
            for (const Bit &bit : bits) {
                if (bit.net < 0)
                    continue;
                if (port.direction != "output")
                    m_read.insert(bit.net);
                if (port.direction != "input")
                    m_driven.insert(bit.net);
            }
        }
    }
}

bool Writer::isRead(const QVector<Bit> &bits) const
{
    return std::any_of(bits.begin(), bits.end(), [&](const Bit &bit) {
        return bit.net >= 0 && (m_read.contains(bit.net) || m_onPorts.contains(bit.net));
    });
}

void Writer::placePorts()
{
    const QByteArrayList names = portNames(m_ports);
    m_names.reserve(names);
    QHash<int, int> shown; // how many elements of outputs are one net
    for (int i = 0; i < m_ports.size(); ++i) {
        for (const Bit &bit : qAsConst(m_portBits.at(i))) {
            if (bit.net >= 0) {
                m_onPorts.insert(bit.net);
                shown[bit.net] += m_ports.at(i).direction == "output";
            }
        }
    }
    // An input is where its nets are, then what has both directions, then an output that nothing
    // inside reads.
    for (const char *direction : {"input", "inout", "output"}) {
        for (int i = 0; i < m_ports.size(); ++i) {
            const Port &port = m_ports.at(i);
            const QVector<Bit> &bits = m_portBits.at(i);
            if (port.direction != direction)
                continue;
            for (int position = 0; position < bits.size(); ++position) {
                const int net = bits.at(position).net;
                if (net < 0)
                    continue;
                if (port.direction != "output")
                    m_driven.insert(net);
                if (m_places.contains(net))
                    continue;
                if (port.direction == "output" &&
                    (m_read.contains(net) || shown.value(net) > 1 || !m_driven.contains(net)))
                    continue;
                m_places.insert(
                    net, Place{names.at(i), indexIn(port, position), port.isVector, port.isRising});
            }
        }
    }
}

void Writer::declare(const QByteArray &name, const QByteArray &type)
{
    m_declarations += "    signal " + name + " : " + type + ";\n";
}

void Writer::placeVector(const Net &net)
{
    const Port shape = net.shape();
    const QByteArray name = net.isHidden ? m_names.addNumbered("n")
                                         : m_names.add(net.isPort ? net.name + "_buf" : net.name);
    declare(name, typeOf(shape));
    for (int i = 0; i < net.bits.size(); ++i)
        m_places.insert(net.bits.at(i).net,
                        Place{name, indexIn(shape, i), shape.isVector, shape.isRising});
}

void Writer::placeBit(int net, const QByteArray &name)
{
    declare(name, "std_logic");
    m_places.insert(net, Place{name, 0, false, false});
}

void Writer::placeNets()
{
    // Nets that nothing reads need no signal, unless they are a part of an output that is read.
    QSet<int> used = m_read + m_onPorts;
    for (const Cell &cell : qAsConst(m_cells)) {
        const QVector<Port> ports = portsOf(cell.type);
        for (const Port &port : ports) {
            const QVector<Bit> bits = bitsOf(cell.connections.value(QString::fromUtf8(port.name)));
            if (port.direction != "output" || !isRead(bits))
                continue;
            for (const Bit &bit : bits) {
                if (bit.net >= 0)
                    used.insert(bit.net);
            }
        }
    }
    const auto isWhole = [&](const Net &net) {
        QSet<int> seen;
        return !net.bits.isEmpty() &&
               std::all_of(net.bits.begin(), net.bits.end(), [&](const Bit &bit) {
                   const bool fresh = bit.net >= 0 && used.contains(bit.net) &&
                                      !m_places.contains(bit.net) && !seen.contains(bit.net);
                   seen.insert(bit.net);
                   return fresh;
               });
    };
    // The widest first, names of the design before the tool's, whole nets before single bits.
    std::stable_sort(m_nets.begin(), m_nets.end(),
                     [](const Net &a, const Net &b) { return a.bits.size() > b.bits.size(); });
    for (const bool ports : {false, true}) {
        for (const Net &net : qAsConst(m_nets)) {
            if (!net.isHidden && net.isPort == ports && isWhole(net))
                placeVector(net);
        }
    }
    for (const bool ports : {false, true}) {
        for (const Net &net : qAsConst(m_nets)) {
            if (net.isHidden || net.isPort != ports)
                continue;
            const Port shape = net.shape();
            for (int i = 0; i < net.bits.size(); ++i) {
                const int bit = net.bits.at(i).net;
                if (bit < 0 || !used.contains(bit) || m_places.contains(bit))
                    continue;
                const QByteArray stem = ports ? net.name + "_buf" : net.name;
                placeBit(bit,
                         m_names.add(shape.isVector
                                         ? stem + '[' + QByteArray::number(indexIn(shape, i)) + ']'
                                         : stem));
            }
        }
    }
    for (const Net &net : qAsConst(m_nets)) {
        if (net.isHidden && isWhole(net))
            placeVector(net);
    }
    QVector<int> rest;
    for (const int net : qAsConst(used)) {
        if (!m_places.contains(net))
            rest << net;
    }
    std::sort(rest.begin(), rest.end());
    for (const int net : qAsConst(rest))
        placeBit(net, m_names.addNumbered("n"));
}

QByteArray Writer::textOf(const Bit &bit)
{
    if (bit.net < 0)
        return QByteArray("'") + logicLiteral(bit.constant) + '\'';
    return m_places.value(bit.net).text();
}

void Writer::drive(const QByteArray &target, const QByteArray &value)
{
    m_assignments += "    " + target + " <= " + value + ";\n";
}

// What is driven by no cell: ports that show something that is elsewhere, and nets that nothing
// drives.
void Writer::connectPorts()
{
    const QByteArrayList names = portNames(m_ports);
    for (int i = 0; i < m_ports.size(); ++i) {
        const Port &port = m_ports.at(i);
        const QVector<Bit> &bits = m_portBits.at(i);
        if (port.direction == "input")
            continue;
        QVector<int> open;
        for (int position = 0; position < bits.size(); ++position) {
            const Place own{names.at(i), indexIn(port, position), port.isVector, port.isRising};
            const Bit &bit = bits.at(position);
            if (bit.net < 0 || m_places.value(bit.net).text() != own.text())
                open << position;
        }
        // In one assignment where a whole signal is shown.
        bool whole = port.isVector && open.size() == bits.size() && bits.first().net >= 0;
        const Place first = whole ? m_places.value(bits.first().net) : Place{};
        whole = whole && first.isElement && first.isRising == port.isRising;
        for (int position = 0; whole && position < bits.size(); ++position) {
            const Place place = m_places.value(bits.at(position).net);
            whole = bits.at(position).net >= 0 && place.name == first.name &&
                    place.index == first.index + (port.isRising ? -position : position);
        }
        if (whole) {
            const int left = first.index + (port.isRising ? -1 : 1) * (port.width - 1);
            drive(names.at(i), first.name + slice(left, first.index, port.isRising));
            continue;
        }
        for (const int position : qAsConst(open)) {
            const Place own{names.at(i), indexIn(port, position), port.isVector, port.isRising};
            drive(own.text(), textOf(bits.at(position)));
        }
    }

    QVector<int> nets;
    for (auto it = m_places.begin(); it != m_places.end(); ++it) {
        if (!m_driven.contains(it.key()))
            nets << it.key();
    }
    std::sort(nets.begin(), nets.end());
    for (const int net : qAsConst(nets))
        drive(m_places.value(net).text(), "'Z'");
}

QByteArray Writer::genericMap(const Cell &cell)
{
    const BlackBox *box = blackBox(cell.type);
    QByteArrayList lines;
    for (auto it = cell.parameters.begin(); it != cell.parameters.end(); ++it) {
        const QByteArray name = it.key().toUtf8();
        const Kind kind = box ? kindOf(*box, name) : kindInPrimitive(cell.type, name);
        lines << "            " + vhdlName(name) + " => " +
                     literal(kind, ParameterValue::read(it.value()));
    }
    return lines.isEmpty() ? QByteArray()
                           : "        generic map (\n" + lines.join(",\n") + "\n        )\n";
}

QByteArrayList Writer::associations(const QByteArray &name, const Port &formal, QVector<Bit> bits)
{
    const bool isInput = formal.direction == "input";
    if (formal.direction == "output" && !isRead(bits))
        return {name + " => open"};
    // No element of a port may be left out; what is not connected is not driven.
    while (bits.size() < formal.width)
        bits << Bit{-1, 'z'};
    bits.resize(formal.width);
    if (!isInput) {
        for (Bit &bit : bits) {
            if (bit.net >= 0)
                continue;
            const QByteArray signal = m_names.addNumbered("n");
            declare(signal, "std_logic");
            if (formal.direction == "inout" && bit.constant != 'z')
                drive(signal, textOf(bit));
            const int net = -2 - m_places.size();
            m_places.insert(net, Place{signal, 0, false, false});
            m_driven.insert(net);
            bit = Bit{net, 0};
        }
    }
    const auto placeOf = [&](const Bit &bit) { return m_places.value(bit.net); };
    const auto isConstant = [](const Bit &bit) { return bit.net == -1; };
    if (!formal.isVector)
        return {name + " => " +
                (isConstant(bits.first()) ? textOf(bits.first()) : placeOf(bits.first()).text())};

    QByteArrayList result;
    for (int high = formal.width - 1; high >= 0;) {
        int low = high;
        const Bit &first = bits.at(high);
        const auto goesOn = [&](int position) {
            const Bit &bit = bits.at(position);
            if (formal.isRising || isConstant(bit) != isConstant(first))
                return false;
            if (isConstant(bit))
                return true;
            const Place place = placeOf(bit);
            const Place start = placeOf(first);
            return place.isElement && !place.isRising && place.name == start.name &&
                   place.index == start.index - (high - position);
        };
        while (low > 0 && goesOn(low - 1))
            --low;
        const Place highest = placeOf(first);
        const int top = indexIn(formal, high);
        if (high == low) {
            const QByteArray value = isConstant(first) ? textOf(first) : highest.text();
            result << name + '(' + QByteArray::number(top) + ") => " + value;
        } else {
            QByteArray target = name;
            if (high - low + 1 != formal.width)
                target += slice(top, indexIn(formal, low), false);
            QByteArray value = "\"";
            for (int i = high; i >= low && isConstant(first); --i)
                value += logicLiteral(bits.at(i).constant);
            value += '"';
            if (!isConstant(first))
                value = highest.name + slice(highest.index, placeOf(bits.at(low)).index, false);
            result << target + " => " + value;
        }
        high = low - 1;
    }
    return result;
}

QByteArray Writer::portMap(const Cell &cell)
{
    const QVector<Port> ports = portsOf(cell.type);
    const QByteArrayList names = portNames(ports);
    QByteArrayList lines;
    for (int i = 0; i < ports.size(); ++i) {
        const QVector<Bit> bits =
            bitsOf(cell.connections.value(QString::fromUtf8(ports.at(i).name)));
        lines += associations(names.at(i), ports.at(i), bits);
    }
    if (lines.isEmpty())
        return {};
    return "        port map (\n            " + lines.join(",\n            ") + "\n        )";
}

QString Writer::write()
{
    // Two pins that are one net would need a wire between them, which the language has not.
    QHash<int, QByteArray> pins;
    for (int i = 0; i < m_ports.size(); ++i) {
        if (m_ports.at(i).direction != "inout")
            continue;
        for (const Bit &bit : m_portBits.at(i)) {
            if (bit.net < 0)
                continue;
            if (pins.contains(bit.net) && pins.value(bit.net) != m_ports.at(i).name)
                return Tr::tr("The ports \"%1\" and \"%2\" are one net, which VHDL cannot express.")
                    .arg(QString::fromUtf8(pins.value(bit.net)),
                         QString::fromUtf8(m_ports.at(i).name));
            pins.insert(bit.net, m_ports.at(i).name);
        }
    }
    m_names.reserve(predefined());
    m_names.reserve({vhdlName(m_top)});
    for (const Cell &cell : qAsConst(m_cells))
        m_names.reserve({vhdlName(cell.type)});

    countUses();
    placePorts();
    placeNets();
    connectPorts();

    QByteArray instances;
    for (const Cell &cell : qAsConst(m_cells)) {
        const QByteArray label = cell.isHidden ? m_names.addNumbered("u") : m_names.add(cell.name);
        instances +=
            "    " + label + " : " + vhdlName(cell.type) + '\n' + genericMap(cell) + portMap(cell);
        if (instances.endsWith(")\n"))
            instances.chop(1);
        instances += ";\n";
    }

    const QByteArray name = vhdlName(m_top);
    // Editions before 2008 bind a component to an entity that is directly visible only.
    m_entity = QByteArray(context) + "use work.all;\n" + "\nentity " + name + " is\n" +
               portClause(m_ports) + "end entity;\n";
    QByteArray components;
    const QByteArrayList used = primitives();
    for (const QByteArray &primitive : used)
        components += indented(Library::vhdlComponent(primitive), "    ");
    components += indented(blackBoxTexts(false), "    ");
    m_architecture = "architecture netlist of " + name + " is\n" + components + m_declarations +
                     "begin\n" + m_assignments + instances + "end architecture;\n";
    return {};
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
    const QJsonObject modules =
        QJsonDocument::fromJson(design).object().value(QLatin1String("modules")).toObject();
    const QJsonObject module = modules.value(QString::fromUtf8(top)).toObject();
    if (module.isEmpty())
        return Tr::tr("The netlist that the tool wrote has no module \"%1\".")
            .arg(QString::fromUtf8(top));
    if (const QString mistake = designMistake({{QString::fromUtf8(top), module}});
        !mistake.isEmpty())
        return Tr::tr("The netlist that the tool wrote cannot be used: %1.").arg(mistake);
    Writer writer(module, top, ports, blackBoxes);
    if (QString error = writer.write(); !error.isEmpty())
        return error;
    const QByteArray comment = "-- " + oneLine(title) + "\n\n";
    const QByteArray body = writer.entity() + '\n' + writer.architecture();
    result->netlist = comment + body;
    result->model = comment + Library::vhdlPackage();
    const QByteArrayList primitives = writer.primitives();
    for (const QByteArray &primitive : primitives)
        result->model += '\n' + Library::vhdlModel(primitive);
    result->model += writer.blackBoxTexts(true) + "\n" + body;
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
    text += "\ncomponent " + name + '\n' + portClause(ports) + "end component;\n\n" +
            vhdlName("u_" + module) + " : " + name;
    if (ports.isEmpty())
        return text + ";\n";
    const QByteArrayList names = portNames(ports);
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
        text += lines.at(i).leftJustified(widest) + " -- " + modeOf(ports.at(i)) + ' ' +
                typeOf(ports.at(i)) + '\n';
    }
    return text + "    );\n";
}

} // namespace Synthesis
