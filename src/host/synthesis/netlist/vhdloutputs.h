#pragma once

#include "designports.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace Synthesis
{

// The VHDL texts that a run leaves (VHDL-93 and later); the counterpart of verilogoutputs.h.
//
// Ports are std_logic or std_logic_vector with the ranges of the design. Names that are no basic
// identifier of VHDL, such as "rx_" or "signal", are extended identifiers ("\rx_\") everywhere.

struct VhdlNetlist {
    QByteArray
        netlist; // structure: components of the primitives and black boxes, and their instances
    QByteArray model; // the same with the models that it needs: complete in itself
};

// Writes the module `top` of `design`, a flat netlist in the synthesis tool's JSON form that
// instantiates primitives of the library and `blackBoxes` only. Empty on success, otherwise one
// sentence.
QString vhdlNetlist(const QByteArray &title, const QByteArray &design, const QByteArray &top,
                    const QVector<Port> &ports, const QVector<BlackBox> &blackBoxes,
                    VhdlNetlist *result);

// The component declaration of `module` and an instance of it to paste into a design, with `note`
// on top and the notes of its ports.
QByteArray vhdlTemplate(const QByteArray &module, const QVector<Port> &ports,
                        const QByteArray &note = {});

} // namespace Synthesis
