#include "vhdlsignals.h"

#include "vhdltext.h"

#include <algorithm>

namespace Synthesis
{

QByteArray VhdlPlace::text() const
{
    return isElement ? name + '(' + QByteArray::number(index) + ')' : name;
}

VhdlSignals::VhdlSignals(const Design::Module &module, const QVector<Port> &ports,
                         const CellPorts &cellPorts, const VhdlNames &names)
    : m_ports(ports)
    , m_portNames(vhdlPortNames(ports))
    , m_names(names)
{
    QHash<QByteArray, Bits> bitsOfPorts;
    for (const Design::ModulePort &port : module.ports) {
        bitsOfPorts.insert(port.port.name, port.bits);
        m_netsOfPorts.insert(port.port.name);
    }
    for (const Port &port : ports)
        m_portBits << bitsOfPorts.value(port.name);
    countUses(module, cellPorts);
    placePorts();
    placeNets(module, usedNets(module, cellPorts));
    connectPorts();
    driveOpenNets();
}

void VhdlSignals::countUses(const Design::Module &module, const CellPorts &cellPorts)
{
    for (const Design::Cell &cell : module.cells) {
        const QVector<Port> ports = cellPorts.value(cell.type);
        for (const Port &port : ports) {
            const Bits bits = cell.connections.value(port.name);
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

bool VhdlSignals::isRead(const Bits &bits) const
{
    return std::any_of(bits.begin(), bits.end(), [&](const Bit &bit) {
        return bit.net >= 0 && (m_read.contains(bit.net) || m_onPorts.contains(bit.net));
    });
}

void VhdlSignals::placePorts()
{
    m_names.reserve(m_portNames);
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
            const Bits &bits = m_portBits.at(i);
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
                m_places.insert(net, VhdlPlace{m_portNames.at(i), port.indexOf(position),
                                               port.isVector, port.isRising});
            }
        }
    }
}

// Nets that nothing reads need no signal, unless they are a part of an output that is read.
QSet<int> VhdlSignals::usedNets(const Design::Module &module, const CellPorts &cellPorts) const
{
    QSet<int> used = m_read + m_onPorts;
    for (const Design::Cell &cell : module.cells) {
        const QVector<Port> ports = cellPorts.value(cell.type);
        for (const Port &port : ports) {
            const Bits bits = cell.connections.value(port.name);
            if (port.direction != "output" || !isRead(bits))
                continue;
            for (const Bit &bit : bits) {
                if (bit.net >= 0)
                    used.insert(bit.net);
            }
        }
    }
    return used;
}

void VhdlSignals::placeNets(const Design::Module &module, const QSet<int> &used)
{
    const auto isWhole = [&](const Design::Net &net) {
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
    QVector<const Design::Net *> nets;
    nets.reserve(module.nets.size());
    for (const Design::Net &net : module.nets)
        nets << &net;
    std::stable_sort(nets.begin(), nets.end(), [](const Design::Net *a, const Design::Net *b) {
        return a->bits.size() > b->bits.size();
    });
    for (const bool ofPorts : {false, true}) {
        for (const Design::Net *net : qAsConst(nets)) {
            if (!net->isHidden && m_netsOfPorts.contains(net->shape.name) == ofPorts &&
                isWhole(*net))
                placeVector(*net);
        }
    }
    for (const bool ofPorts : {false, true}) {
        for (const Design::Net *net : qAsConst(nets)) {
            if (net->isHidden || m_netsOfPorts.contains(net->shape.name) != ofPorts)
                continue;
            for (int i = 0; i < net->bits.size(); ++i) {
                const int bit = net->bits.at(i).net;
                if (bit < 0 || !used.contains(bit) || m_places.contains(bit))
                    continue;
                QByteArray name = stemOf(*net);
                if (net->shape.isVector)
                    name += '[' + QByteArray::number(net->shape.indexOf(i)) + ']';
                placeBit(bit, m_names.add(name));
            }
        }
    }
    for (const Design::Net *net : qAsConst(nets)) {
        if (net->isHidden && isWhole(*net))
            placeVector(*net);
    }
    QVector<int> rest;
    for (const int net : used) {
        if (!m_places.contains(net))
            rest << net;
    }
    std::sort(rest.begin(), rest.end());
    for (const int net : qAsConst(rest))
        placeBit(net, m_names.addNumbered("n"));
}

// A signal is not the port that it has its name from.
QByteArray VhdlSignals::stemOf(const Design::Net &net) const
{
    return m_netsOfPorts.contains(net.shape.name) ? net.shape.name + "_buf" : net.shape.name;
}

void VhdlSignals::placeVector(const Design::Net &net)
{
    const Port &shape = net.shape;
    const QByteArray name = net.isHidden ? m_names.addNumbered("n") : m_names.add(stemOf(net));
    declare(name, VhdlText::typeOf(shape));
    for (int i = 0; i < net.bits.size(); ++i)
        m_places.insert(net.bits.at(i).net,
                        VhdlPlace{name, shape.indexOf(i), shape.isVector, shape.isRising});
}

void VhdlSignals::placeBit(int net, const QByteArray &name)
{
    declare(name, "std_logic");
    m_places.insert(net, VhdlPlace{name, 0, false, false});
}

// Ports that show something that is elsewhere.
void VhdlSignals::connectPorts()
{
    for (int i = 0; i < m_ports.size(); ++i) {
        const Port &port = m_ports.at(i);
        const Bits &bits = m_portBits.at(i);
        if (port.direction == "input")
            continue;
        QHash<int, VhdlPlace> open; // by position
        for (int position = 0; position < bits.size(); ++position) {
            const VhdlPlace own{m_portNames.at(i), port.indexOf(position), port.isVector,
                                port.isRising};
            const Bit &bit = bits.at(position);
            if (bit.net < 0 || placeOf(bit).text() != own.text())
                open.insert(position, own);
        }
        if (open.size() == bits.size() && connectWhole(m_portNames.at(i), port, bits))
            continue;
        for (int position = 0; position < bits.size(); ++position) {
            if (open.contains(position))
                drive(open.value(position).text(), textOf(bits.at(position)));
        }
    }
}

// In one assignment where a whole signal is shown.
bool VhdlSignals::connectWhole(const QByteArray &name, const Port &port, const Bits &bits)
{
    if (!port.isVector || bits.isEmpty() || bits.first().net < 0)
        return false;
    const VhdlPlace first = placeOf(bits.first());
    if (!first.isElement || first.isRising != port.isRising)
        return false;
    const int step = port.isRising ? -1 : 1;
    for (int position = 0; position < bits.size(); ++position) {
        const VhdlPlace place = placeOf(bits.at(position));
        if (bits.at(position).net < 0 || place.name != first.name ||
            place.index != first.index + step * position)
            return false;
    }
    const int left = first.index + step * (port.width - 1);
    drive(name, first.name + VhdlText::slice(left, first.index, port.isRising));
    return true;
}

void VhdlSignals::driveOpenNets()
{
    QVector<int> nets;
    for (auto it = m_places.begin(); it != m_places.end(); ++it) {
        if (!m_driven.contains(it.key()))
            nets << it.key();
    }
    std::sort(nets.begin(), nets.end());
    for (const int net : qAsConst(nets))
        drive(m_places.value(net).text(), VhdlText::literal('z'));
}

QByteArray VhdlSignals::textOf(const Bit &bit) const
{
    return bit.net < 0 ? VhdlText::literal(bit.constant) : placeOf(bit).text();
}

VhdlPlace VhdlSignals::addSignal(char constant)
{
    const VhdlPlace place{m_names.addNumbered("n"), 0, false, false};
    declare(place.name, "std_logic");
    if (constant != 'z')
        drive(place.name, VhdlText::literal(constant));
    return place;
}

void VhdlSignals::declare(const QByteArray &name, const QByteArray &type)
{
    m_declarations += "    signal " + name + " : " + type + ";\n";
}

void VhdlSignals::drive(const QByteArray &target, const QByteArray &value)
{
    m_assignments += "    " + target + " <= " + value + ";\n";
}

} // namespace Synthesis
