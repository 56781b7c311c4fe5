#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QVector>

namespace Synthesis
{

// A port of an elaborated module.
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
};

// The value of a parameter in the synthesis tool's JSON form.
struct ParameterValue {
    QByteArray bits; // from the highest one down; empty for a text
    QByteArray text;

    static ParameterValue read(const QJsonValue &json);
};

// A module without contents that the design instantiates.
struct BlackBox {
    struct Parameter {
        QByteArray name;
        QByteArray value; // Verilog text of the default
        QByteArray bits;  // the default from the highest bit down; empty for a text
        QByteArray text;
        bool isDeclared = true; // false: only instances tell of it, and the default stands for none
    };

    QByteArray name;
    QVector<Parameter> parameters;
    QVector<Port> ports;
};

// The modules of a design whose contents were taken away: the top and the black boxes.
class DesignPorts
{
public:
    // `outline` and `cells` are designs in the synthesis tool's JSON form: of `outline` the modules
    // are read, of `cells`, which may be empty, how wide the connections of the black boxes' ports
    // are, since a port may be as wide as a parameter says. Empty on success, otherwise a clause on
    // what is wrong with the texts.
    QString read(const QByteArray &outline, const QByteArray &cells);

    bool contains(const QByteArray &module) const;
    QVector<Port> ports(const QByteArray &module) const;
    // What the design says about the module, as Port::note.
    QByteArray note(const QByteArray &module) const;
    // All modules but the named ones, by name.
    QVector<BlackBox> blackBoxes(const QByteArrayList &except) const;

private:
    struct Usage {
        QHash<QByteArray, int> widths; // by port
        QByteArrayList parameters;
    };

    QJsonObject m_modules;
    QHash<QByteArray, Usage> m_usage; // by module
};

} // namespace Synthesis
