#include "constraints.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

namespace
{

// The file's fixed text. Tools that place and route take it as Tcl; names are those of the netlist,
// with the path of the instance that a design gives the subsystem in front.
const char head[] =
    R"(# Signals that reach Tarvo_ORIX_M1 from pins or from other clocks. Each passes two flip-flops of HCLK, which carry the
# attribute async_reg in the netlist: the first, "meta", may settle late, and the second, "stable", is what the logic sees.
#
# Before this file is read, set what does not hold of your design:
#   tarvo_orix_m1_path       path of the instance with a separator at its end, or a pattern
#   tarvo_orix_m1_settle_ns  longest way between the two flip-flops: what it leaves of HCLK's period is there to settle
if {![info exists tarvo_orix_m1_path]} { set tarvo_orix_m1_path "*" }
if {![info exists tarvo_orix_m1_settle_ns]} { set tarvo_orix_m1_settle_ns 2.0 }

proc tarvo_orix_m1_crossing {synchronizer} {
    global tarvo_orix_m1_path tarvo_orix_m1_settle_ns
    set meta [get_cells "${tarvo_orix_m1_path}${synchronizer}.meta*_reg"]
    set stable [get_cells "${tarvo_orix_m1_path}${synchronizer}.stable*_reg"]
    set_false_path -to $meta
    set_max_delay -from $meta -to $stable $tarvo_orix_m1_settle_ns
}

)";

} // namespace

QVector<ExportedFile> constraintFiles(const SystemMap &map)
{
    QString text;
    for (const Port &port : map.ports) {
        if (!port.synchronizer.isEmpty())
            text += "# "_l1 + port.name + ": "_l1 + port.text + "\ntarvo_orix_m1_crossing "_l1 +
                    port.synchronizer + u'\n';
    }
    if (text.isEmpty())
        return {};
    return {{QStringLiteral("tarvo_orix_m1.sdc"), head + text.toUtf8()}};
}

} // namespace TARVOORIXM1
