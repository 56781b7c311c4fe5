#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QVector>

namespace TARVOORIXM1
{

// Names in sources, token by token: comments, texts and numbers stay as they are unless a function
// says otherwise, and so does every byte of a text that has none of the names. Pure functions that
// take any bytes.
namespace SourceNames
{

// What sources in Verilog bring into a compilation.
struct Verilog {
    QSet<QByteArray> modules;      // that they define
    QSet<QByteArray> macros;       // that they define, use or ask for
    QSet<QByteArray> moduleMacros; // of these, those that stand for the name of a module
    QSet<QByteArray> files;        // names of included files; whoever knows them sets them
    // Texts between quotation marks that are names too, each with what stands in its place.
    QHash<QByteArray, QByteArray> texts;
};

// The names of sources that are compiled together. Of macros those are left out with which
// whoever compiles chooses something for all sources at once.
Verilog verilogNames(const QVector<QByteArray> &sources);

// With the prefix in front of each of the names: modules where they are defined and where they have
// an instance, macros, included files. The macro HAVE_ and a module's name keeps its beginning.
QByteArray prefixedVerilog(const QByteArray &source, const Verilog &names,
                           const QByteArray &prefix);

// The same in VHDL for each identifier in `names`, which are in lower case.
QByteArray prefixedVhdl(const QByteArray &source, const QSet<QByteArray> &names,
                        const QByteArray &prefix);

// The entities and packages that a source in VHDL declares, in lower case.
QSet<QByteArray> unitsOfVhdl(const QByteArray &source);

// What a header in C declares for whoever includes it: macros, types, their tags and enumerators,
// functions, variables, and the names that it hands to macros of its own outside of functions.
QSet<QByteArray> declaredInC(const QByteArray &header);

// With the prefix in front of each of the names, in place of underscores at their beginning; those
// with an underscore also in comments. `files` are names of included files.
QByteArray prefixedC(const QByteArray &source, const QSet<QByteArray> &names,
                     const QSet<QByteArray> &files, const QByteArray &prefix);

} // namespace SourceNames

} // namespace TARVOORIXM1
