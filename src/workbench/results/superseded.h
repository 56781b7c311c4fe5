#pragma once

#include <QStringList>

namespace Workbench
{

enum class Language { Verilog, Vhdl };

// Of `files` (full paths), those that an IP left behind when it was generated in the other language
// before `last`: with Verilog "x.vhd" and its model "x.vho" beside an "x.v", with VHDL "x.v" beside
// an "x.vhd". In their order. Times tell nothing, since results that come out the same are not
// written again.
QStringList superseded(const QStringList &files, Language last);

} // namespace Workbench
