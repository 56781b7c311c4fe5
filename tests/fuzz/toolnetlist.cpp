#include "fuzz.h"

#include <synthesis/netlist/designports.h>
#include <synthesis/netlist/verilogoutputs.h>
#include <synthesis/netlist/verilogscan.h>
#include <synthesis/netlist/vhdloutputs.h>

#include <QResource>

using namespace Synthesis;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text = Fuzz::bytesOf(data, size);
    DesignPorts design;
    const QString mistake = design.read(text, text);
    if (!mistake.isEmpty()) {
        REQUIRE(!design.contains("top"));
        return 0;
    }
    const QVector<Port> ports = design.ports("top");
    for (const Port &port : ports)
        REQUIRE(port.width > 0);
    QVector<BlackBox> blackBoxes = design.blackBoxes({"top"});
    verilogTemplate("top", ports);
    vhdlTemplate("top", ports);
    const QByteArray body = "module top;\nendmodule\n";
    REQUIRE(!verilogNetlist("title", body, blackBoxes).isEmpty());

    VhdlNetlist netlist;
    const QString error = vhdlNetlist("title", text, "top", ports, blackBoxes, &netlist);
    REQUIRE(error.isEmpty() != netlist.netlist.isEmpty());
    REQUIRE(error.isEmpty() != netlist.model.isEmpty());
    if (!error.isEmpty())
        return 0;
    // A text of VHDL-93: printable ASCII, and every unit has an end.
    for (const char c : netlist.netlist)
        REQUIRE(c == '\n' || (c >= ' ' && c <= '~'));
    REQUIRE(netlist.netlist.endsWith("end architecture;\n"));
    REQUIRE(netlist.model.endsWith("end architecture;\n"));
    return 0;
}
