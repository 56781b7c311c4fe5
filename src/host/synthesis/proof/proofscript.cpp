#include "proofscript.h"

#include "flow/yosysscript.h"
#include "run/scratchfolder.h"

#include <QRegularExpression>

namespace Synthesis
{

using ProofScript::scratchName;

namespace
{

// What is done alike to both designs.
QByteArray cutScript(const QByteArray &top, const QByteArray &name)
{
    return "opt_clean\n"
           "dffunmap\n"
           "simplemap\n"
           "dfflegalize -cell $_DFF_?_ 01 -cell $_DFF_?P?_ 01\n"
           "opt_clean\n"
           "rename -hide t:TV_TBUF t:$_DFF*\n"
           "rename -wire t:TV_TBUF t:$_DFF*\n"
           "read_verilog -lib " +
           scratchName("proof_boundary.v") +
           "\n"
           "techmap -map " +
           scratchName("proof_cut.v") +
           "\n"
           "simplemap\n"
           "opt_clean\n"
           "hierarchy -top " +
           top +
           " -purge_lib\n"
           "select -assert-none t:$_DFF* t:$_DLATCH* t:$_SR* t:$mem*\n"
           "tee -q -o " +
           scratchName(name + ".pins") +
           " select -list i:* o:* %i t:* %co1 %i\n"
           "tee -q -o " +
           scratchName(name + ".states") +
           " select -list t:STATE\n"
           "rename " +
           top + ' ' + name + "\nwrite_rtlil " + scratchName(name + ".whole") + '\n';
}

QByteArray asWritten(const QByteArray &top, const QByteArray &name, const QByteArray &files)
{
    return "read_verilog -lib " + scratchName("primitives.v") + "\nread_verilog " + files +
           "\nhierarchy -check -top " + top + "\nopt_clean\ntee -q -o " +
           scratchName(name + ".pins") +
           " select -list i:* o:* %i t:* %co1 %i\n"
           "hierarchy -top " +
           top + " -purge_lib\nrename " + top + ' ' + name + "\nwrite_rtlil " +
           scratchName(name + ".whole") + "\ndesign -reset\n";
}

QByteArray toLogic(const QByteArray &name)
{
    return "read_rtlil " + scratchName(name + ".cut") + "\nhierarchy -top " + name +
           "\ntechmap -map " + scratchName("proof_own_state.v") + "\nopt_clean\ncd " + name +
           "\nselect -set taken t:* t:$* %d\n"
           "expose -evert @taken\n"
           "cd ..\n"
           "write_rtlil " +
           scratchName(name + ".logic") + "\ndesign -reset\n";
}

QByteArray miterScript(const QByteArray &first, const QByteArray &second, const QByteArray &options,
                       const QByteArray &file)
{
    return "read_rtlil " + scratchName(first + ".logic") + "\nread_rtlil " +
           scratchName(second + ".logic") + "\nmiter -equiv" + options + " -flatten " + first +
           ' ' + second +
           " miter\n"
           "hierarchy -top miter\n"
           "flatten\n"
           "setundef -zero -undriven\n"
           "setundef -init -zero\n"
           "techmap\n"
           "opt_clean\n"
           "aigmap\n"
           "write_aiger -symbols " +
           scratchName(file) + '\n';
}

} // namespace

QByteArray ProofScript::scratchName(const QByteArray &file)
{
    return ScratchFolder::relative(QString::fromLatin1(file)).toLatin1();
}

QByteArray ProofScript::declare()
{
    return "read_verilog -lib " + scratchName("primitives.v") + "\nread_verilog -lib " +
           scratchName("proof_boundary.v") + "\nread_verilog " + scratchName(blackBoxes) +
           "\nwrite_rtlil " + scratchName(declarations) + '\n';
}

QByteArray ProofScript::sourcesWhole(const SourceStage &sources, const QString &top)
{
    return "read_verilog -lib " + scratchName("primitives.v") + '\n' +
           YosysScript::readSources(sources, top) +
           "setattr -mod -unset keep_hierarchy\n"
           "proc -noopt\n"
           "techmap -map " +
           scratchName("map_tristate.v") +
           "\n"
           "tribuf\n"
           "flatten\n"
           "opt_expr\n"
           "opt_clean\n"
           "opt\n"
           "memory -nomap\n"
           "opt_clean\n"
           "memory_libmap -lib " +
           scratchName("memories.txt") + "\ntechmap -map " + scratchName("map_memories.v") +
           "\n"
           "memory_map\n"
           "opt_clean\n"
           "alumacc\n"
           "techmap\n"
           "simplemap\n"
           "techmap -map " +
           scratchName("map_cells.v") + " t:$_TBUF_\n" + cutScript(top.toLatin1(), "sources");
}

QByteArray ProofScript::netlistWhole(const QString &top)
{
    return "read_verilog -lib " + scratchName("primitives.v") + "\nread_verilog " +
           scratchName(netlist) + "\nhierarchy -check -top " + top.toLatin1() +
           "\ntechmap -autoproc -map " + scratchName("primitives.v") +
           " t:TV_* t:TV_RAM* t:TV_TBUF %u %d\n" + cutScript(top.toLatin1(), "netlist");
}

QByteArray ProofScript::netlistsAsWritten(const QString &top)
{
    return asWritten(top.toLatin1(), "verilog", scratchName(netlist)) +
           asWritten(top.toLatin1(), "vhdl",
                     scratchName(blackBoxes) + ' ' + scratchName(readByGhdl));
}

QByteArray ProofScript::isolate(const QByteArray &first, const QByteArray &second)
{
    return toLogic(first) + toLogic(second);
}

QByteArray ProofScript::compare(const QByteArray &first, const QByteArray &second)
{
    return miterScript(first, second, {}, miter);
}

QByteArray ProofScript::compareEach(const QByteArray &first, const QByteArray &second)
{
    return miterScript(first, second, " -make_outcmp", outputs);
}

QString ProofScript::decide()
{
    return QString::fromLatin1("read_aiger " + scratchName(miter) +
                               "; strash; zero; &get; &scorr; &put; dprove; write_cex -n " +
                               scratchName(counterexample));
}

ProofScript::Verdict ProofScript::verdictOf(const QStringList &said)
{
    // The second of each is said where no state is left on one side only.
    static const QRegularExpression equal(
        QStringLiteral("^(Networks are equivalent\\.|UNSATISFIABLE)"));
    static const QRegularExpression different(
        QStringLiteral("^(Networks are (not equivalent|NOT EQUIVALENT)\\.|SATISFIABLE)"));
    bool isEqual = false;
    bool isDifferent = false;
    for (const QString &line : said) {
        isEqual = isEqual || equal.match(line).hasMatch();
        isDifferent = isDifferent || different.match(line).hasMatch();
    }
    if (isEqual == isDifferent)
        return Verdict::Unknown;
    return isEqual ? Verdict::Equal : Verdict::Different;
}

QStringList ProofScript::arguments(const QByteArray &script)
{
    return {QStringLiteral("-Q"), QStringLiteral("-T"), QStringLiteral("-q"), QStringLiteral("-s"),
            QString::fromLatin1(scratchName(script))};
}

QStringList ProofScript::ghdlArguments(const QString &top)
{
    return {QStringLiteral("--synth"),
            QStringLiteral("--std=93c"),
            QStringLiteral("--out=verilog"),
            QString::fromLatin1(scratchName(vhdlNetlist)),
            QStringLiteral("-e"),
            top};
}

} // namespace Synthesis
