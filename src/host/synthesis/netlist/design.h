#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVector>

namespace Synthesis
{

// The attribute of flip-flops that take a signal from another clock or from a pin, which sources
// set and netlists keep: what places and routes a netlist keeps such flip-flops close together.
constexpr char crossingAttribute[] = "async_reg";

// A port of a module.
struct Port {
    QByteArray name;
    QByteArray direction; // "input", "output" or "inout"
    int width = 1;
    int lowest = 0;        // index of the range's lowest bit
    bool isVector = false; // declared with a range, which may have one bit
    bool isRising = false; // [0:7] rather than [7:0]
    QByteArray note;       // what the design says about it, by an attribute "note"; may be empty

    // "[15:0]", empty for a single bit.
    QByteArray range() const;
    // The index of the bit at `position`, counted from the lowest one.
    int indexOf(int position) const
    {
        return lowest + (isRising ? width - 1 - position : position);
    }
};

struct ParameterValue {
    QByteArray bits; // from the highest one down; empty for a text
    QByteArray text;
};

// A bit of a netlist: a net, or a constant.
struct Bit {
    int net = -1;
    char constant = 0; // '0', '1', 'x' or 'z' where there is no net
};

using Bits = QVector<Bit>; // from the lowest one on

// What the synthesis tool's JSON form of a design says, as far as anything is made of it. All lists
// are in the order of the text, which sorts by name.
struct Design {
    struct ModulePort {
        Port port;
        Bits bits;
    };
    struct Parameter {
        QByteArray name;
        ParameterValue value;
    };
    struct CellPort {
        QByteArray name;
        QByteArray direction;
    };
    struct Cell {
        QByteArray name;
        bool isHidden = false;   // the tool has made the name up
        bool isCrossing = false; // has crossingAttribute
        QByteArray type;
        QVector<Parameter> parameters;
        QVector<CellPort> ports;
        QHash<QByteArray, Bits> connections; // by port; an open one may have no bits
    };
    struct Net {
        Port shape; // without a direction
        bool isHidden = false;
        Bits bits;
    };
    struct Module {
        QByteArray name;
        QByteArray note;         // as Port::note
        bool widthsVary = false; // ports may be as wide as a parameter says
        QVector<Parameter> defaults;
        QVector<ModulePort> ports;
        QVector<Cell> cells;
        QVector<Net> nets;
    };

    QVector<Module> modules;

    // Null if there is none of this name.
    const Module *find(const QByteArray &module) const;
};

// Reads a design, of which `only`, if given, names the one module that is wanted. Empty on success,
// otherwise a clause on what makes no sense, and the design is empty. Ports have a direction and 1
// to 1,048,576 bits, ranges begin within 30 bits, and a bit is "0", "1", "x", "z" or the number of
// a net. A text without modules is an empty design.
QString readDesign(const QByteArray &json, Design *design, const QByteArray &only = {});

} // namespace Synthesis
