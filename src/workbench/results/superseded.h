#pragma once

#include <synthesis/job.h>

#include <QStringList>

namespace Workbench
{

using Synthesis::Language;

// Of `files` (full paths), those that an IP left behind when it was generated in the other language
// before `last`: with Verilog "x.vhd" and its model "x.vho" beside an "x.v", with VHDL "x.v" beside
// an "x.vhd". In their order. Times tell nothing, since results that come out the same are not
// written again.
QStringList superseded(const QStringList &files, Language last);

} // namespace Workbench
