#pragma once

#include <synthesis/job.h>

#include <QByteArray>
#include <QString>

namespace Synthesis
{

class SourceStage;

// Scripts for Yosys. File names are relative to the output folder.
namespace YosysScript
{

// Names of files in the scratch folder.
inline constexpr char script[] = "run.ys";
inline constexpr char mappingScript[] = "map.ys";
inline constexpr char design[] = "design.il";
inline constexpr char netlist[] = "netlist.v";
inline constexpr char outline[] = "outline.json";
inline constexpr char mapped[] = "mapped.json";
inline constexpr char cells[] = "cells.json";

// Arguments that run a script of the scratch folder: warnings, errors and the titles of the steps
// are shown.
QStringList arguments(const char *file);

// Reads the sources and elaborates `top`. They are one compilation unit: macros and file-level
// parameters of a file are known in all later ones.
QByteArray readSources(const SourceStage &sources, const QString &top);

// Reads the sources and writes the ports of `top` and of the black boxes to `outline`.
QByteArray elaboration(const SourceStage &sources, const QString &top);

// Reads the sources and writes the elaborated `design`, with a mark at its end.
QByteArray reading(const SourceStage &sources, const QString &top);

// Whether the text of a design is complete; takes the mark off. The tool does not notice a write
// that fails: what comes after it is missing.
bool takeEndMark(QByteArray *text);

// The text of a design without the constants that say "not driven" of nets of a module: a pin that
// is never driven may be read all the same, and with its constant, which the text calls unknown, it
// would be no plain net.
QByteArray withoutOpenDrivers(const QByteArray &text);

// Maps the `design` to the primitives of the library and writes `netlist`, `cells` and `outline`,
// and what else the outputs in `language` are made from: for VHDL the netlist once more in JSON, as
// `mapped`.
QByteArray mapping(const QString &top, Language language);

} // namespace YosysScript

} // namespace Synthesis
