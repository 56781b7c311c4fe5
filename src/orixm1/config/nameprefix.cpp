#include "nameprefix.h"

#include "latin1literal.h"
#include "optionkeys.h"
#include "optionvalue.h"

#include <QStringList>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

struct Words {
    QLatin1String language;
    QLatin1String words; // with a blank between them
};

constexpr Words reserved[] = {
    {"Verilog"_l1,
     "always and assign automatic begin buf bufif0 bufif1 case casex casez cell cmos config "
     "deassign default defparam design disable edge else end endcase endconfig endfunction "
     "endgenerate endmodule endprimitive endspecify endtable endtask event for force forever fork "
     "function generate genvar highz0 highz1 if ifnone incdir include initial inout input instance "
     "integer join large liblist library localparam macromodule medium module nand negedge nmos "
     "nor "
     "noshowcancelled not notif0 notif1 or output parameter pmos posedge primitive pull0 pull1 "
     "pulldown pullup pulsestyle_ondetect pulsestyle_onevent rcmos real realtime reg release "
     "repeat "
     "rnmos rpmos rtran rtranif0 rtranif1 scalared showcancelled signed small specify specparam "
     "strong0 strong1 supply0 supply1 table task time tran tranif0 tranif1 tri tri0 tri1 triand "
     "trior trireg unsigned use uwire vectored wait wand weak0 weak1 while wire wor xnor xor"_l1},
    {"SystemVerilog"_l1,
     "accept_on alias always_comb always_ff always_latch assert assume before bind bins binsof bit "
     "break byte chandle checker class clocking const constraint context continue cover covergroup "
     "coverpoint cross dist do endchecker endclass endclocking endgroup endinterface endpackage "
     "endprogram endproperty endsequence enum eventually expect export extends extern final "
     "first_match foreach forkjoin global iff ignore_bins illegal_bins implements implies import "
     "inside int interconnect interface intersect join_any join_none let local logic longint "
     "matches modport nettype new nexttime null package packed priority program property protected "
     "pure rand randc randcase randsequence ref reject_on restrict return s_always s_eventually "
     "s_nexttime s_until s_until_with sequence shortint shortreal soft solve static string strong "
     "struct super sync_accept_on sync_reject_on tagged this throughout timeprecision timeunit "
     "type "
     "typedef union unique unique0 until until_with untyped var virtual void wait_order weak "
     "wildcard with within"_l1},
    {"VHDL"_l1,
     "abs access after alias all and architecture array assert assume assume_guarantee attribute "
     "begin block body buffer bus case component configuration constant context cover default "
     "disconnect downto else elsif end entity exit fairness file for force function generate "
     "generic group guarded if impure in inertial inout is label library linkage literal loop map "
     "mod nand new next nor not null of on open or others out package parameter port postponed "
     "procedure process property protected pure range record register reject release rem report "
     "restrict restrict_guarantee return rol ror select sequence severity shared signal sla sll "
     "sra "
     "srl strong subtype then to transport type unaffected units until use variable vmode vprop "
     "vunit wait when while with xnor xor work ieee std"_l1},
    {"C"_l1,
     "auto break case char const continue default do double else enum extern float for goto if "
     "inline int long register restrict return short signed sizeof static struct switch typedef "
     "union unsigned void volatile while alignas alignof bool constexpr false nullptr "
     "static_assert "
     "thread_local true typeof typeof_unqual asm"_l1},
    {"C++"_l1,
     "and and_eq bitand bitor catch char8_t char16_t char32_t class co_await co_return co_yield "
     "compl concept const_cast consteval constinit decltype delete dynamic_cast explicit export "
     "friend mutable namespace new noexcept not not_eq operator or or_eq private protected public "
     "reinterpret_cast requires static_cast template this throw try typeid typename using virtual "
     "wchar_t xor xor_eq std"_l1},
};

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// The language that the word belongs to; empty if it is free. VHDL does not tell capitals apart,
// and for a reader neither do the others.
QString languageOf(const QString &word)
{
    for (const Words &row : reserved) {
        if (QString(row.words).split(u' ').contains(word.toLower()))
            return row.language;
    }
    return {};
}

// Why the prefix cannot be had, as a part of a sentence.
QString reasonAgainst(const QString &prefix)
{
    const auto strange = std::find_if(prefix.begin(), prefix.end(), [](QChar c) {
        return !isLetter(c) && !isDigit(c) && c != u'_';
    });
    if (strange != prefix.end())
        return QStringLiteral("it has characters other than letters from a to z, digits and "
                              "underscores");
    if (!isLetter(prefix.at(0)))
        return QStringLiteral("it does not begin with a letter");
    if (!prefix.endsWith(u'_'))
        return QStringLiteral("it does not end in the underscore that joins it to a name");
    if (prefix.contains("__"_l1))
        return QStringLiteral("VHDL has no two underscores in a row");
    if (prefix.size() > longestPrefix)
        return QStringLiteral("it has more than %1 characters").arg(longestPrefix);
    const QString word = prefix.chopped(1);
    const QString language = languageOf(word);
    return language.isEmpty() ? QString() : u'"' + word + "\" is a reserved word of "_l1 + language;
}

// What is near and can be had; empty if nothing is.
QString nearPrefix(const QString &prefix)
{
    QString near;
    for (const QChar c : prefix) {
        const QChar taken = isLetter(c) || isDigit(c) ? c : QChar(u'_');
        const bool isLeading = near.isEmpty() && !isLetter(taken);
        if (!isLeading && (taken != u'_' || !near.endsWith(u'_')))
            near += taken;
    }
    if (near.size() > longestPrefix)
        near.truncate(longestPrefix - 1);
    if (!near.isEmpty() && !near.endsWith(u'_'))
        near += u'_';
    if (!near.isEmpty() && !languageOf(near.chopped(1)).isEmpty())
        near.insert(near.size() - 1, u'0');
    return near.isEmpty() || !reasonAgainst(near).isEmpty() ? QString() : near;
}

} // namespace

PrefixMistake prefixMistake(const QString &prefix)
{
    const QString reason = prefix.isEmpty() ? QString() : reasonAgainst(prefix);
    if (reason.isEmpty())
        return {};
    return {u'"' + prefix + "\" cannot be the prefix of names: "_l1 + reason + u'.',
            nearPrefix(prefix)};
}

QString prefixDomain()
{
    return QStringLiteral("empty, or letters, digits and single underscores, the first a letter, "
                          "the last an underscore, at most %1, and no reserved word")
        .arg(longestPrefix);
}

QString prefixPattern()
{
    return QStringLiteral("^([A-Za-z][A-Za-z0-9]*(_[A-Za-z0-9]+)*_)?$");
}

QString prefixOf(const OptionMap &options)
{
    const QString prefix = textOf(options, Key::namePrefix);
    return prefixMistake(prefix).text.isEmpty() ? prefix : QString();
}

QString refusedPrefix(const OptionMap &options)
{
    const QString mistake = prefixMistake(textOf(options, Key::namePrefix)).text;
    return mistake.isEmpty() ? QString() : QString(mistake + " So there are no files with it."_l1);
}

} // namespace TARVOORIXM1
