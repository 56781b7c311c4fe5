#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Synthesis
{

class SourceStage;

// Scripts of a proof for Yosys, and commands for its ABC. File names are relative to the output
// folder; all but the sources' stand in the scratch folder. Names of designs: "sources", "netlist",
// "verilog", "vhdl". A design passes through NAME.whole (RTLIL, with NAME.pins and NAME.states
// beside it), NAME.cut (ProofText::cut()) and NAME.logic, of which nothing is left but logic.
namespace ProofScript
{

// Names of files in the scratch folder.
inline constexpr char netlist[] = "netlist.v";
inline constexpr char vhdlNetlist[] = "netlist.vhd";
inline constexpr char readByGhdl[] = "vhdl.v";
inline constexpr char blackBoxes[] = "boxes.v";
inline constexpr char declarations[] = "declarations.il";
inline constexpr char miter[] = "miter.aig";
inline constexpr char outputs[] = "outputs.aig";
inline constexpr char counterexample[] = "counterexample.txt";

QByteArray scratchName(const QByteArray &file);

// Writes the declarations of all cells that a comparison may take out.
QByteArray declare();

// The sources up to the mapping of their memories, and cut at state, memories, pins and black
// boxes.
QByteArray sourcesWhole(const SourceStage &sources, const QString &top);
// The Verilog netlist with the primitives' models, cut alike.
QByteArray netlistWhole(const QString &top);
// Both netlists as they are written, cell by cell.
QByteArray netlistsAsWritten(const QString &top);

// From NAME.cut to NAME.logic.
QByteArray isolate(const QByteArray &first, const QByteArray &second);

// Writes `miter`, which says 1 where the two designs differ.
QByteArray compare(const QByteArray &first, const QByteArray &second);
// Writes `outputs`, the same with an output for each place where they may differ.
QByteArray compareEach(const QByteArray &first, const QByteArray &second);

// Commands that prove that `miter` never says 1, and write where it does to `counterexample`.
QString decide();
enum class Verdict { Equal, Different, Unknown };
// What ABC has said of it.
Verdict verdictOf(const QStringList &said);

// Arguments of Yosys for a script of the scratch folder.
QStringList arguments(const QByteArray &script);
// Arguments of GHDL that make Verilog of `vhdlNetlist`.
QStringList ghdlArguments(const QString &top);

} // namespace ProofScript

} // namespace Synthesis
