#pragma once

#include "designports.h"

#include <QByteArray>
#include <QVector>

namespace Synthesis
{

// The Verilog texts that a run leaves. Another output language is a file like this one beside it.

// `body` is the netlist as the tool wrote it; its leading comment, which names the tool's build, is
// replaced by one that says `title`, and of its attributes only crossingAttribute stays. Black
// boxes follow as modules without contents, marked by an attribute, each unless the macro HAVE_ and
// its name says that it is there.
QByteArray verilogNetlist(const QByteArray &title, const QByteArray &body,
                          const QVector<BlackBox> &blackBoxes);

// The directives that set the time scale of a file.
QByteArray verilogTimeScale();

// `netlist`, the text of verilogNetlist(), with stand-ins in its black boxes.
QByteArray withVerilogStandIns(const QByteArray &netlist);

// Each line of `note` behind `sign`, which begins a comment.
QByteArray commentLines(const QByteArray &sign, const QByteArray &note);

// An instance of `module` to paste into a design, with `note` on top and the notes of its ports.
QByteArray verilogTemplate(const QByteArray &module, const QVector<Port> &ports,
                           const QByteArray &note = {});

} // namespace Synthesis
