#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QMap>
#include <QSet>
#include <QStringList>

namespace Synthesis
{

// What a proof does to texts between two runs of a tool. All of it is pure.
namespace ProofText
{

// The words that a list of Yosys has for its members, "DESIGN/NAME" each, without the design.
QSet<QByteArray> listed(const QByteArray &list);

// A design in RTLIL, made ready for a comparison. `shared` are the registers that the other design
// has as well: all others become OWN_STATE. `pins` are those that cells drive: pins of both
// directions become outputs if something drives them, and inputs if not.
QByteArray cut(const QByteArray &design, const QSet<QByteArray> &shared,
               const QSet<QByteArray> &pins);

// A cell that is taken out of a design, as a comparison of logic does not see it.
struct Cell {
    QByteArray type;
    QMap<QByteArray, QByteArray> parameters; // that differ from those of the declaration
};

using Cells = QMap<QByteArray, Cell>; // by name

// `declarations`: the types of these cells in RTLIL, with the values that go without saying.
Cells cellsOf(const QByteArray &declarations, const QByteArray &design);

// The ports of a design in RTLIL: direction and width ("output 4") by name.
QMap<QByteArray, QByteArray> portsOf(const QByteArray &design, const QByteArray &top);

// The modules that a Verilog netlist leaves empty, as text.
QByteArray blackBoxes(const QByteArray &netlist);

// The names of the cells that have none but a number in a Verilog netlist, in their order.
QByteArrayList unnamedCells(const QByteArray &netlist);

// Verilog that GHDL has made of a VHDL netlist, with the cells called as in the Verilog netlist:
// `unnamed` has the names of those that the VHDL netlist calls otherwise. Only the module `top` is
// kept. Their numbers, if they differ, make a clause in `*mistake`.
QByteArray calledAsInVerilog(const QByteArray &text, const QByteArrayList &unnamed,
                             const QByteArray &top, QString *mistake);

// The place of a comparison, by the name of its net, for people: "register u_x.count[3], next
// value".
QString placeOf(QByteArray name);

// What a tool has said without what differs from run to run: times and memory.
QString withoutTimes(const QString &line);

} // namespace ProofText

} // namespace Synthesis
