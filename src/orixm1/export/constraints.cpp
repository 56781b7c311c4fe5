#include "constraints.h"

#include "config/latin1literal.h"
#include "filledtext.h"
#include "names.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// The file's fixed text. Tools that place and route take it as Tcl; names of cells are those of the
// netlist, with the path of the instance that a design gives the subsystem in front.
const char head[] =
    R"(# Timing of @top@: its clocks, and its signals that come from pins or from other clocks.
#
# Before this file is read, set what holds of your design:
#   @name@_path       path of the instance with a separator at its end, or a pattern
#   @name@_settle_ns  longest way between the two flip-flops of a synchronizer: what it leaves of HCLK's period is
#                            there to settle
#   @name@_are_ports  1 where the signals below are ports of the whole design under these names, so that the
#                            asynchronous ones need no timing; with 0 that is left to you
# and the periods of the clocks that your design has not made yet, in ns; one without a period is left to you:
@periods@if {![info exists @name@_path]} { set @name@_path "*" }
if {![info exists @name@_settle_ns]} { set @name@_settle_ns 2.0 }
if {![info exists @name@_are_ports]} { set @name@_are_ports 0 }

# A clock at a port. All are asynchronous to each other.
set @name@_clocks {}
proc @name@_clock {port} {
    global @name@_clocks @name@_${port}_ns
    if {[info exists @name@_${port}_ns]} {
        create_clock -name $port -period [set @name@_${port}_ns] [get_ports $port]
        lappend @name@_clocks -group $port
    }
}

# A port that no clock times.
proc @name@_asynchronous {port} {
    global @name@_are_ports
    if {$@name@_are_ports} { set_false_path -from [get_ports $port] }
}

# A signal that passes two flip-flops of HCLK, which carry the attribute async_reg in the netlist: the first, "meta", may
# settle late, and the second, "stable", is what the logic sees.
proc @name@_crossing {synchronizer} {
    global @name@_path @name@_settle_ns
    set meta [get_cells "${@name@_path}${synchronizer}.meta*_reg"]
    set stable [get_cells "${@name@_path}${synchronizer}.stable*_reg"]
    set_false_path -to $meta
    set_max_delay -from $meta -to $stable $@name@_settle_ns
}
)";

// Asynchronous without a synchronizer: resets, and what a block takes as it comes.
bool isAsynchronous(const SystemMap &map, const Port &port)
{
    if (port.role == PortRole::Clock || port.role == PortRole::Unused || !port.clock.isEmpty() ||
        !port.synchronizer.isEmpty())
        return false;
    return port.direction == PortDirection::Input ||
           std::any_of(map.resets.begin(), map.resets.end(),
                       [&port](const ExternalSource &reset) { return reset.port == port.name; });
}

} // namespace

QVector<ExportedFile> constraintFiles(const SystemMap &map)
{
    const QString name = symbolName(map, ""_l1);
    QString periods;
    QString clocks;
    QString asynchronous;
    QString crossings;
    const auto call = [&name](QLatin1String command, const Port &port,
                              const QString &argument) -> QString {
        return "# "_l1 + port.name + ": "_l1 + port.text + u'\n' + name + command + u' ' +
               argument + u'\n';
    };
    for (const Port &port : map.ports) {
        const bool isClock =
            std::any_of(map.clocks.begin(), map.clocks.end(),
                        [&port](const ExternalSource &clock) { return clock.port == port.name; });
        // One that is sampled is a signal like others.
        if (!port.synchronizer.isEmpty()) {
            crossings += call("_crossing"_l1, port, port.synchronizer);
        } else if (isClock) {
            periods += "#   set "_l1 + name + u'_' + port.name + "_ns 20.0\n"_l1;
            clocks += call("_clock"_l1, port, port.name);
        } else if (isAsynchronous(map, port)) {
            asynchronous += call("_asynchronous"_l1, port, port.name);
        }
    }
    QString text = filledText(head, {{QStringLiteral("periods"), periods},
                                     {QStringLiteral("top"), topModuleName(map)},
                                     {QStringLiteral("name"), name}});
    text += "\n# Clocks\n"_l1 + clocks + "if {[llength $"_l1 + name +
            "_clocks] > 2} { eval set_clock_groups -asynchronous $"_l1 + name + "_clocks }\n"_l1;
    if (!asynchronous.isEmpty())
        text += "\n# Signals that no clock times\n"_l1 + asynchronous;
    if (!crossings.isEmpty())
        text += "\n# Signals that HCLK samples\n"_l1 + crossings;
    return {{fileName(map, ".sdc"_l1), text.toUtf8()}};
}

} // namespace TARVOORIXM1
