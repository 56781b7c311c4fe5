#include "pins.h"

#include "config/latin1literal.h"
#include "filledtext.h"
#include "names.h"
#include "porttext.h"

namespace TARVOORIXM1
{

namespace
{

const char head[] =
    R"(# Where the ports of @top@ leave the device (@device@). Each line waits behind a "#": put the pin of the
# package in place of PIN and take the "#" away; a port that your design uses inside of the device stays as it is.
#
# Before this file is read, define what your tool does with a line:
#   proc @proc@ {port pin direction pull} { … }
# port is "GPIO[3]" for a line of a vector, direction "input", "output" or "inout", pull "up" or "none".
if {[info commands @proc@] eq ""} {
    proc @proc@ {port pin direction pull} {
        error "define \"@proc@\" before this file is read: it has a pin for $port"
    }
}
)";

} // namespace

QVector<ExportedFile> pinFiles(const SystemMap &map)
{
    const QString proc = symbolName(map, "_pin"_l1);
    QString text = filledText(head, {{QStringLiteral("top"), topModuleName(map)},
                                     {QStringLiteral("device"), plainLine(map.device.partNumber())},
                                     {QStringLiteral("proc"), proc}});
    const int width = PortText::longestName(map) + 6; // "{", "}", "[15]"
    QString block;
    for (const Port &port : map.ports) {
        if (port.block != block)
            text += "\n# "_l1 + plainLine(port.block) + u'\n';
        block = port.block;
        text += "# "_l1 + port.name + PortText::verilogRange(port) + ": "_l1 +
                PortText::comment(port) + u'\n';
        for (int bit = port.width() - 1; bit >= 0; --bit) {
            const QString line =
                port.isVector()
                    ? QString(port.name + u'[' + QString::number(port.right + bit) + u']')
                    : port.name;
            text += "# "_l1 + proc + u' ' + QString(u'{' + line + u'}').leftJustified(width) +
                    " PIN "_l1 + directionName(port.direction) + u' ' +
                    (port.needsPullUp ? "up"_l1 : "none"_l1) + u'\n';
        }
    }
    return {{fileName(map, "_pins.tcl"_l1), text.toUtf8()}};
}

} // namespace TARVOORIXM1
