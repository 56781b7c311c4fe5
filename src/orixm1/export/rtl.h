#pragma once

#include "format.h"

#include <QStringList>

namespace TARVOORIXM1
{

// The RTL of the subsystem in "rtl", with what it includes and the first contents of its memory:
// all that a tool needs of the subsystem. None where the data folder has no RTL.
QVector<ExportedFile> rtlFiles(const SystemMap &map);

// Paths below the folder that is exported to. Whatever lists sources asks here.
namespace RtlPath
{

// The folder of include files, also of the generated ones.
QString includeFolder();
// What synthesis compiles, in the order of compilation.
QStringList compiled(const SystemMap &map);
// The same for a simulation in which a stand-in plays the processor; the stand-in is not in it.
QStringList simulated(const SystemMap &map);
// What these include.
QStringList included(const SystemMap &map);
// The folder of what the instruction memory reads when it begins.
QString contentsFolder(const SystemMap &map);
// What the instruction memory reads when it begins: relative to the folder that tools run in.
QStringList initialContents(const SystemMap &map);

} // namespace RtlPath

} // namespace TARVOORIXM1
