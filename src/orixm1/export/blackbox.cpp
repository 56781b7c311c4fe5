#include "blackbox.h"

#include "config/latin1literal.h"
#include "filledtext.h"
#include "names.h"
#include "porttext.h"

namespace TARVOORIXM1
{

namespace
{

// Both languages have the same ports; in SystemVerilog what is not a net is a variable.
QString verilogPorts(const SystemMap &map, bool isSystemVerilog)
{
    QString text;
    for (const Port &port : map.ports) {
        const bool isNet = !isSystemVerilog || port.direction == PortDirection::Inout;
        const QString direction = port.direction == PortDirection::Input    ? "input "_l1
                                  : port.direction == PortDirection::Output ? "output"_l1
                                                                            : "inout "_l1;
        text += "    "_l1 + direction + (isNet ? " wire  "_l1 : " logic "_l1) +
                PortText::verilogRange(port).leftJustified(7) + u' ' + port.name +
                (&port == &map.ports.last() ? "  // "_l1 : ", // "_l1) + PortText::comment(port) +
                u'\n';
    }
    return text;
}

QString vhdlPorts(const SystemMap &map)
{
    const int width = PortText::longestName(map);
    QString text;
    for (const Port &port : map.ports) {
        const QLatin1String direction = port.direction == PortDirection::Input    ? "in   "_l1
                                        : port.direction == PortDirection::Output ? "out  "_l1
                                                                                  : "inout "_l1;
        const bool isLast = &port == &map.ports.last();
        text += "            "_l1 + port.name.leftJustified(width) + " : "_l1 +
                QString(direction).trimmed().leftJustified(6) + PortText::vhdlType(port) +
                (isLast ? "  -- "_l1 : "; -- "_l1) + PortText::comment(port) + u'\n';
    }
    return text;
}

const char verilogText[] =
    R"(// @top@ without its contents, in @language@: for synthesis and lint of a design that takes the netlist later.
// Compile this file or the subsystem itself, never both.
// verilator lint_off DECLFILENAME
// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
(* blackbox *)
module @top@ (
@ports@);
endmodule
)";

const char vhdlText[] =
    R"(-- @top@ as a component, VHDL-93: "use work.@package@.all;" in a design, and an instance binds to the
-- entity of that name, which the netlist or the simulation model brings, or stays open until there is one.
library ieee;
use ieee.std_logic_1164.all;

package @package@ is
    component @top@
        port (
@ports@        );
    end component;
end package;
)";

} // namespace

QVector<ExportedFile> blackboxFiles(const SystemMap &map)
{
    const QString top = topModuleName(map);
    const auto verilog = [&](QLatin1String suffix, const QString &language, bool isSystemVerilog) {
        return ExportedFile{
            fileName(map, suffix),
            filledText(verilogText, {{QStringLiteral("top"), top},
                                     {QStringLiteral("language"), language},
                                     {QStringLiteral("ports"), verilogPorts(map, isSystemVerilog)}})
                .toUtf8()};
    };
    return {verilog("_bb.v"_l1, QStringLiteral("Verilog"), false),
            verilog("_bb.sv"_l1, QStringLiteral("SystemVerilog"), true),
            {fileName(map, "_pkg.vhd"_l1),
             filledText(vhdlText, {{QStringLiteral("top"), top},
                                   {QStringLiteral("package"), symbolName(map, "_pkg"_l1)},
                                   {QStringLiteral("ports"), vhdlPorts(map)}})
                 .toUtf8()}};
}

} // namespace TARVOORIXM1
