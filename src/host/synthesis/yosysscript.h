#pragma once

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
inline constexpr char netlist[] = "netlist.v";
inline constexpr char outline[] = "outline.json";
inline constexpr char cells[] = "cells.json";

// Arguments that run `script`: warnings, errors and the titles of the steps are shown.
QStringList arguments();

// Reads the sources and writes the ports of `top` and of the black boxes to `outline`.
QByteArray elaboration(const SourceStage &sources, const QString &top);

// Maps the design to the primitives of the library and writes `netlist`, `cells` and `outline`.
QByteArray synthesis(const SourceStage &sources, const QString &top);

} // namespace YosysScript

} // namespace Synthesis
