#include "ipxactbuses.h"

namespace TARVOORIXM1::Ipxact
{

namespace
{

constexpr Bus rows[] = {
    {"ahb_lite"_l1,
     "AHB-Lite between an interconnect and one slave: 32 bits of address and data, a select line "
     "for each slave."_l1,
     true},
    {"apb"_l1,
     "APB with PSTRB and PPROT: 32 bits of address and data, a select line for each slave."_l1,
     true},
    {"clock"_l1, "A clock."_l1},
    {"reset"_l1, "A reset, active low."_l1},
    {"interrupt"_l1, "An interrupt request, active while high."_l1},
};

enum class Kind { Plain, Address, Data, Clock, Reset, Interrupt };

constexpr QLatin1String in = "in"_l1;
constexpr QLatin1String out = "out"_l1;
constexpr QLatin1String none = QLatin1String(); // the side does not have the signal

// A signal of a bus.
struct Signal {
    QLatin1String bus;
    QLatin1String name;
    int width; // lines; 0: as the component has them
    QLatin1String onInitiator;
    QLatin1String onTarget;
    bool isRequired;
    QLatin1String text;
    Kind kind = Kind::Plain;
};

// A select line, HREADYOUT and what the interconnect makes of it stand between interconnect and
// slave alone.
constexpr Signal signalRows[] = {
    {"ahb_lite"_l1, "HCLK"_l1, 1, in, in, true, "clock"_l1, Kind::Clock},
    {"ahb_lite"_l1, "HRESETn"_l1, 1, in, in, true, "reset, active low"_l1, Kind::Reset},
    {"ahb_lite"_l1, "HSEL"_l1, 1, none, in, true, "the address is one of the slave"_l1},
    {"ahb_lite"_l1, "HADDR"_l1, 32, out, in, true, "address"_l1, Kind::Address},
    {"ahb_lite"_l1, "HTRANS"_l1, 2, out, in, true, "kind of the transfer"_l1},
    {"ahb_lite"_l1, "HWRITE"_l1, 1, out, in, true, "1 writes"_l1},
    {"ahb_lite"_l1, "HSIZE"_l1, 3, out, in, true, "size of the transfer"_l1},
    {"ahb_lite"_l1, "HBURST"_l1, 3, out, in, false, "kind of the burst"_l1},
    {"ahb_lite"_l1, "HPROT"_l1, 4, out, in, false, "protection of the transfer"_l1},
    {"ahb_lite"_l1, "HMASTLOCK"_l1, 1, out, in, false, "the transfer is locked"_l1},
    {"ahb_lite"_l1, "HMASTER"_l1, 4, none, in, false, "number of the master"_l1},
    {"ahb_lite"_l1, "HWDATA"_l1, 32, out, in, true, "data written"_l1, Kind::Data},
    {"ahb_lite"_l1, "HRDATA"_l1, 32, in, out, true, "data read"_l1, Kind::Data},
    {"ahb_lite"_l1, "HREADY"_l1, 1, in, in, true, "the transfer before has finished"_l1},
    {"ahb_lite"_l1, "HREADYOUT"_l1, 1, none, out, true, "the slave has finished"_l1},
    {"ahb_lite"_l1, "HRESP"_l1, 0, in, out, true, "response; any value but 0 is an error"_l1},
    {"apb"_l1, "PCLK"_l1, 1, in, in, true, "clock"_l1, Kind::Clock},
    {"apb"_l1, "PRESETn"_l1, 1, in, in, true, "reset, active low"_l1, Kind::Reset},
    {"apb"_l1, "PSEL"_l1, 1, out, in, true, "the address is one of the slave"_l1},
    {"apb"_l1, "PADDR"_l1, 32, out, in, true, "address"_l1, Kind::Address},
    {"apb"_l1, "PENABLE"_l1, 1, out, in, true, "second and further cycles of the transfer"_l1},
    {"apb"_l1, "PWRITE"_l1, 1, out, in, true, "1 writes"_l1},
    {"apb"_l1, "PSTRB"_l1, 4, out, in, false, "bytes that are written"_l1},
    {"apb"_l1, "PPROT"_l1, 3, out, in, false, "protection of the transfer"_l1},
    {"apb"_l1, "PWDATA"_l1, 32, out, in, true, "data written"_l1, Kind::Data},
    {"apb"_l1, "PRDATA"_l1, 32, in, out, true, "data read"_l1, Kind::Data},
    {"apb"_l1, "PREADY"_l1, 1, in, out, true, "the slave has finished"_l1},
    {"apb"_l1, "PSLVERR"_l1, 1, in, out, true, "the transfer has failed"_l1},
    {"clock"_l1, "CLK"_l1, 1, out, in, true, "clock"_l1, Kind::Clock},
    {"reset"_l1, "RESETn"_l1, 1, out, in, true, "reset, active low"_l1, Kind::Reset},
    {"interrupt"_l1, "IRQ"_l1, 1, out, in, true, "requests while high"_l1, Kind::Interrupt},
};

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QByteArray busDocument(Edition edition, const Bus &bus)
{
    Document document(edition, "busDefinition"_l1, bus.vlnv(), bus.text);
    // Between the two sides of an AHB-Lite stands an interconnect, which makes the select lines.
    document.text("directConnection"_l1, boolText(&bus != &ahbLite));
    document.text("isAddressable"_l1, boolText(bus.isAddressable));
    return document.bytes();
}

void writeQualifier(Document &document, Kind kind)
{
    QLatin1String name;
    switch (kind) {
    case Kind::Plain:
        return;
    case Kind::Address:
        name = "isAddress"_l1;
        break;
    case Kind::Data:
        name = "isData"_l1;
        break;
    case Kind::Clock:
        name = "isClock"_l1;
        break;
    case Kind::Reset:
        name = "isReset"_l1;
        break;
    case Kind::Interrupt:
        if (!document.is2022())
            return;
        name = "isInterrupt"_l1;
        break;
    }
    const Element qualifier(document, "qualifier"_l1);
    const Element is(document, name);
    if (kind == Kind::Reset && document.is2022())
        document.attribute("level"_l1, QStringLiteral("low"));
    document.characters(boolText(true));
}

void writeSide(Document &document, QLatin1String side, const Signal &signal,
               QLatin1String direction)
{
    const Element element(document, side);
    const bool isThere = direction.size() > 0;
    document.text("presence"_l1, !isThere            ? "illegal"_l1
                                 : signal.isRequired ? "required"_l1
                                                     : "optional"_l1);
    if (!isThere)
        return;
    if (signal.width > 0)
        document.number("width"_l1, signal.width);
    document.text("direction"_l1, direction);
}

QByteArray abstractionDocument(Edition edition, const Bus &bus)
{
    Document document(edition, "abstractionDefinition"_l1, bus.abstraction(),
                      QString(bus.text) + " Its signals as ports of modules."_l1);
    document.vlnvReference("busType"_l1, bus.vlnv());
    {
        const Element ports(document, "ports"_l1);
        for (const Signal &signal : signalRows) {
            if (signal.bus != bus.name)
                continue;
            const Element port(document, "port"_l1);
            document.text("logicalName"_l1, signal.name);
            document.describe(signal.text);
            const Element wire(document, "wire"_l1);
            writeQualifier(document, signal.kind);
            writeSide(document, document.is2022() ? "onInitiator"_l1 : "onMaster"_l1, signal,
                      signal.onInitiator);
            writeSide(document, document.is2022() ? "onTarget"_l1 : "onSlave"_l1, signal,
                      signal.onTarget);
        }
    }
    return document.bytes();
}

} // namespace

const Bus &ahbLite = rows[0];
const Bus &apb = rows[1];
const Bus &clock = rows[2];
const Bus &reset = rows[3];
const Bus &interrupt = rows[4];

Rows<Bus> buses()
{
    return rows;
}

QVector<ExportedFile> busFiles(Edition edition, const QString &folder)
{
    QVector<ExportedFile> files;
    for (const Bus &bus : rows) {
        files.append({folder + bus.file(), busDocument(edition, bus)});
        files.append({folder + bus.abstractionFile(), abstractionDocument(edition, bus)});
    }
    return files;
}

} // namespace TARVOORIXM1::Ipxact
