#pragma once

#include "design.h"

#include <QByteArrayList>

namespace Synthesis
{

// A module without contents that the design instantiates.
struct BlackBox {
    struct Parameter {
        QByteArray name;
        ParameterValue value;   // the default
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

    bool contains(const QByteArray &module) const { return m_outline.find(module); }
    // In the order of declaration.
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

    Design m_outline;
    QHash<QByteArray, Usage> m_usage; // by module
};

} // namespace Synthesis
