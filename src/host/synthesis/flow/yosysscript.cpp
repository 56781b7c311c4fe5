#include "yosysscript.h"

#include "netlist/design.h"
#include "netlist/library.h"
#include "run/scratchfolder.h"
#include "run/sourcestage.h"

#include <QStringList>

#include <string_view>

namespace Synthesis
{

namespace
{

// Arrays beyond this number of words that no memory primitive fits would become too many
// flip-flops.
constexpr int mostWordsInLogic = 4096;

// A module that comes after all others of a design, which are written in the order of their names.
constexpr char endMark[] = "\xff\xff\xff";

QByteArray scratch(const char *file)
{
    return ScratchFolder::relative(QLatin1String(file)).toLatin1();
}

// What the outputs in a language are made from, beside the Verilog netlist.
QByteArray furtherNetlist(Language language)
{
    switch (language) {
    case Language::Verilog:
        return {};
    case Language::Vhdl:
        return "write_json " + scratch(YosysScript::mapped) + '\n';
    }
    Q_UNREACHABLE();
}

// "  connect <net> <width>'<bits>" of a module, where all bits are x or z. The connections of cells
// lie deeper.
bool isOpenDriver(const char *first, const char *last)
{
    constexpr std::string_view start = "  connect ";
    if (last != first && last[-1] == '\n')
        --last;
    if (std::size_t(last - first) < start.size() || std::string_view(first, start.size()) != start)
        return false;
    const char *at = last;
    while (at != first && (at[-1] == 'x' || at[-1] == 'z'))
        --at;
    if (at == last || at[-1] != '\'')
        return false;
    const char *const quote = --at;
    while (at != first && at[-1] >= '0' && at[-1] <= '9')
        --at;
    return at != quote && at[-1] == ' ';
}

} // namespace

QStringList YosysScript::arguments(const char *file)
{
    return {
        QStringLiteral("-Q"), QStringLiteral("-T"),
        QStringLiteral("-v"), QStringLiteral("2"),
        QStringLiteral("-w"), QStringLiteral("limited support for tri-state logic"),
        QStringLiteral("-s"), ScratchFolder::relative(QLatin1String(file)),
    };
}

QByteArray YosysScript::readSources(const SourceStage &sources, const QString &top)
{
    QByteArray includes;
    for (const QString &dir : sources.includeDirs())
        includes += " -I" + dir.toLatin1();
    QByteArray text;
    for (const QString &file : sources.staged()) {
        const bool system = file.endsWith(QLatin1String(".sv"), Qt::CaseInsensitive) ||
                            file.endsWith(QLatin1String(".svh"), Qt::CaseInsensitive);
        text += QByteArray("read_verilog") + (system ? " -sv" : "") + includes + ' ' +
                file.toLatin1() + '\n';
    }
    return text + "hierarchy -check -top " + top.toLatin1() + '\n';
}

QByteArray YosysScript::elaboration(const SourceStage &sources, const QString &top)
{
    return readSources(sources, top) + "hierarchy -top " + top.toLatin1() +
           " -purge_lib\nblackbox " + top.toLatin1() + "\nwrite_json " + scratch(outline) + '\n';
}

QByteArray YosysScript::reading(const SourceStage &sources, const QString &top)
{
    return "read_verilog -lib " + scratch("primitives.v") + '\n' +
           readSources(sources, top)
           // One module: no name depends on how a parameter is spelled, and tri-states meet their
           // pins.
           +
           "setattr -mod -unset keep_hierarchy\n"
           // Before anything takes "not driven" for "does not matter".
           "proc -noopt\n"
           // The flip-flops themselves, since a wire of the same net may come to stand for theirs.
           "setattr -set " +
           QByteArray(crossingAttribute) + " \"true\" a:" + crossingAttribute +
           " %ci1 t:$*dff* %i\n"
           "techmap -map " +
           scratch("map_tristate.v") +
           "\n"
           "tribuf\n"
           "add -mod " +
           endMark + "\nwrite_rtlil " + scratch(design) + '\n';
}

QByteArray YosysScript::mapping(const QString &top, Language language)
{
    QByteArray primitives;
    const QByteArrayList names = Library::primitives();
    for (const QByteArray &name : names)
        primitives += " t:" + name;

    const QByteArray topName = top.toLatin1();
    return "read_rtlil " + scratch(design) +
           "\n"
           "flatten\n"
           "chformal -remove\n"
           "opt_expr\n"
           "opt_clean\n"
           "check\n"
           "opt -nodffe -nosdff\n"
           "wreduce\n"
           "peepopt\n"
           "opt_clean\n"
           "alumacc\n"
           "opt\n"
           "memory -nomap\n"
           "opt_clean\n"
           "memory_libmap -lib " +
           scratch("memories.txt") +
           "\n"
           "select -assert-none t:$mem_v2 r:SIZE>" +
           QByteArray::number(mostWordsInLogic) +
           " %i r:WR_PORTS>0 %i\n"
           "techmap -map " +
           scratch("map_memories.v") +
           "\n"
           "opt -fast -full\n"
           "memory_map\n"
           "opt -fast -full\n"
           "techmap -map +/techmap.v -map " +
           scratch("map_carry.v") +
           "\n"
           "opt -fast\n"
           "dfflegalize -cell $_DFF_?_ 01 -cell $_DFFE_?P_ 01 -cell $_SDFF_?P?_ 01 -cell "
           "$_SDFFE_?P?P_ 01"
           " -cell $_DFF_?P?_ 01 -cell $_DFFE_?P?P_ 01 -cell $_DFFSR_?PP_ 01 -cell $_DFFSRE_?PPP_ "
           "01"
           " -cell $_DLATCH_P_ 01\n"
           "opt_merge\n"
           "opt_clean\n"
           "abc -lut 4\n"
           "opt_clean\n"
           "techmap -map " +
           scratch("map_cells.v") +
           "\n"
           "clean\n"
           "select -assert-none t:$*\n"
           "hierarchy -top " +
           topName +
           " -purge_lib\n"
           "rename -wire -suffix _reg a:" +
           crossingAttribute +
           "\nsetattr -unset src -unset hdlname -unset module_not_derived\n"
           "write_verilog " +
           scratch(netlist) + "\n" + furtherNetlist(language) + "delete" + primitives +
           "\n"
           "write_json " +
           scratch(cells) +
           "\n"
           "blackbox " +
           topName +
           "\n"
           "write_json " +
           scratch(outline) + '\n';
}

bool YosysScript::takeEndMark(QByteArray *text)
{
    const QByteArray end = QByteArray("module \\") + endMark + "\nend\n";
    if (!text->endsWith(end))
        return false;
    text->chop(end.size());
    return true;
}

QByteArray YosysScript::withoutOpenDrivers(const QByteArray &text)
{
    QByteArray result;
    result.reserve(text.size());
    for (int from = 0; from < text.size();) {
        int end = text.indexOf('\n', from);
        end = end < 0 ? text.size() : end + 1;
        if (!isOpenDriver(text.constData() + from, text.constData() + end))
            result.append(text.constData() + from, end - from);
        from = end;
    }
    return result;
}

} // namespace Synthesis
