#pragma once

#include "designports.h"
#include "vhdlnames.h"

#include <QHash>
#include <QSet>

namespace Synthesis
{

// Where a bit is: a signal or port, or an element of one.
struct VhdlPlace {
    QByteArray name;
    int index = 0;
    bool isElement = false;
    bool isRising = false;

    QByteArray text() const;
};

// The ports of what a netlist instantiates, by the type of the cell.
using CellPorts = QHash<QByteArray, QVector<Port>>;

// The signals of an architecture: where each net of a module is, and what no cell drives.
class VhdlSignals
{
public:
    // `ports` are those of the module. `names` are taken already by what else the architecture
    // names.
    VhdlSignals(const Design::Module &module, const QVector<Port> &ports,
                const CellPorts &cellPorts, const VhdlNames &names);

    // Whether an input of a cell, or a port of the module, is connected to one of the nets.
    bool isRead(const Bits &bits) const;
    VhdlPlace placeOf(const Bit &bit) const { return m_places.value(bit.net); }
    // Of a net or a constant.
    QByteArray textOf(const Bit &bit) const;
    // A new signal of one bit that is no net of the module; a constant other than 'z' drives it.
    VhdlPlace addSignal(char constant);

    const QByteArray &declarations() const { return m_declarations; }
    const QByteArray &assignments() const { return m_assignments; }
    // For what else the architecture names.
    VhdlNames &names() { return m_names; }

private:
    void countUses(const Design::Module &module, const CellPorts &cellPorts);
    QSet<int> usedNets(const Design::Module &module, const CellPorts &cellPorts) const;
    void placePorts();
    void placeNets(const Design::Module &module, const QSet<int> &used);
    void placeVector(const Design::Net &net);
    void placeBit(int net, const QByteArray &name);
    QByteArray stemOf(const Design::Net &net) const;
    void connectPorts();
    bool connectWhole(const QByteArray &name, const Port &port, const Bits &bits);
    void driveOpenNets();
    void declare(const QByteArray &name, const QByteArray &type);
    void drive(const QByteArray &target, const QByteArray &value);

    QVector<Port> m_ports;
    QVector<Bits> m_portBits;
    QByteArrayList m_portNames;
    QSet<QByteArray> m_netsOfPorts; // by name
    QSet<int> m_read; // nets that an input, or a port of both directions, is connected to
    QSet<int> m_onPorts;
    QSet<int> m_driven; // nets that an output is connected to
    QHash<int, VhdlPlace> m_places;
    VhdlNames m_names;
    QByteArray m_declarations;
    QByteArray m_assignments;
};

} // namespace Synthesis
