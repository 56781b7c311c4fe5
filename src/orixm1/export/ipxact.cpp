#include "ipxact.h"

#include "constraints.h"
#include "devicetree.h"
#include "drivers.h"
#include "header.h"
#include "ipxactbuses.h"
#include "ipxactdocument.h"
#include "linker.h"
#include "names.h"
#include "registers/registerdocs.h"
#include "registerview.h"
#include "rtl.h"
#include "startup.h"
#include "svd.h"

#include <QSet>

namespace TARVOORIXM1
{

namespace
{

using Ipxact::Bus;
using Ipxact::Document;
using Ipxact::Edition;
using Ipxact::Element;

// Of the whole address space: names of the map and of the space in which the processor sees it.
constexpr QLatin1String mapName = "processor"_l1;
constexpr quint64 addressSpaceSize = 0x100000000;

constexpr QLatin1String yes = "true"_l1;

// What reading does, of the three effects that the standard has.
QLatin1String readActionText(ReadEffect effect)
{
    switch (effect) {
    case ReadEffect::None:
        return {};
    case ReadEffect::Clear:
        return "clear"_l1;
    case ReadEffect::Set:
        return "set"_l1;
    case ReadEffect::Modify:
    case ReadEffect::External:
        return "modify"_l1;
    }
    return {};
}

// Empty: not told.
QLatin1String usageOf(RegionKind kind)
{
    switch (kind) {
    case RegionKind::TightlyCoupledMemory:
    case RegionKind::ExternalMemory:
    case RegionKind::MemoryDevice:
    case RegionKind::ReadWindow:
        return "memory"_l1;
    case RegionKind::Registers:
    case RegionKind::BlackBox:
        return "register"_l1;
    case RegionKind::ExtensionPort:
        return {};
    }
    return {};
}

QLatin1String accessOf(RegionKind kind)
{
    if (kind == RegionKind::ReadWindow)
        return "read-only"_l1;
    return usageOf(kind) == "memory"_l1 ? "read-write"_l1 : QLatin1String();
}

// The peripheral whose registers a region holds, and its place there.
struct Owner {
    const Peripheral *peripheral = nullptr;
    const PeripheralInstance *instance = nullptr;
};

Owner ownerOf(const SystemMap &map, const Region &region)
{
    if (region.kind != RegionKind::Registers)
        return {};
    for (const Peripheral &peripheral : map.peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            if (instance.name == region.name && instance.base == region.base)
                return {&peripheral, &instance};
        }
    }
    return {};
}

QString regionText(const SystemMap &map, const Region &region)
{
    const Owner owner = ownerOf(map, region);
    if (owner.instance)
        return instanceText(map, *owner.peripheral, *owner.instance);
    const QString kind = regionKindName(region.kind);
    return region.text.contains(kind) ? region.text : QString(kind + ": "_l1 + region.text);
}

QLatin1String directionText(PortDirection direction)
{
    switch (direction) {
    case PortDirection::Input:
        return "in"_l1;
    case PortDirection::Output:
        return "out"_l1;
    case PortDirection::Inout:
        return "inout"_l1;
    }
    return {};
}

struct FileType {
    QLatin1String suffix;
    QLatin1String type;
    QLatin1String user; // with the type "user"
};

constexpr FileType fileTypes[] = {
    {".v"_l1, "verilogSource-2001"_l1, {}},
    {".vh"_l1, "verilogSource-2001"_l1, {}},
    {".c"_l1, "cSource"_l1, {}},
    {".h"_l1, "cSource"_l1, {}},
    {".sdc"_l1, "SDC"_l1, {}},
    {".svd"_l1, "user"_l1, "svd"_l1},
    {".ld"_l1, "user"_l1, "linkerScript"_l1},
    {".x"_l1, "user"_l1, "linkerScript"_l1},
    {".dts"_l1, "user"_l1, "deviceTree"_l1},
    {".dtsi"_l1, "user"_l1, "deviceTree"_l1},
};

FileType fileTypeOf(const QString &path)
{
    for (const FileType &row : fileTypes) {
        if (path.endsWith(row.suffix))
            return row;
    }
    return {{}, "user"_l1, "text"_l1};
}

QStringList pathsOf(std::initializer_list<QVector<ExportedFile>> lists)
{
    QStringList paths;
    for (const QVector<ExportedFile> &files : lists) {
        for (const ExportedFile &file : files)
            paths.append(file.path);
    }
    return paths;
}

// Files with a purpose in common.
struct FileSet {
    QLatin1String name;
    QLatin1String text;
    QStringList files;
    QStringList included; // those of them that others include
};

QVector<FileSet> fileSetsOf(const SystemMap &map)
{
    const QStringList included = RtlPath::included(map);
    const QStringList software =
        pathsOf({svdFiles(map), headerFiles(map), linkerFiles(map), startupFiles(map),
                 driverFiles(map), devicetreeFiles(map)});
    QStringList headers;
    for (const QString &path : software) {
        if (path.endsWith(".h"_l1))
            headers.append(path);
    }
    QVector<FileSet> sets = {
        {"rtl"_l1, "Sources in the order of compilation, behind what they include."_l1,
         included + RtlPath::compiled(map), included},
        {"rtl_contents"_l1,
         "First contents of the instruction memory; tools that simulate or synthesise look for "
         "them below rtl in the folder in which they run."_l1,
         RtlPath::initialContents(map),
         {}},
        {"constraints"_l1, "Timing constraints."_l1, pathsOf({constraintFiles(map)}), {}},
        {"software"_l1, "What programs for the subsystem are made with."_l1, software, headers},
    };
    sets.erase(std::remove_if(sets.begin(), sets.end(),
                              [](const FileSet &set) { return set.files.isEmpty(); }),
               sets.end());
    return sets;
}

// A port's place in an interface.
struct PortMap {
    QString logical;
    const Port *port = nullptr;
    int line = -1; // of a vector; -1: the whole port
    bool isInverted = false;
};

class Component
{
public:
    Component(const SystemMap &map, Edition edition)
        : m_map(map)
        , m_xml(edition, "component"_l1, subsystemVlnv(map), description(map))
        , m_sets(fileSetsOf(map))
    {
    }

    QByteArray write()
    {
        writeInterfaces();
        if (!m_xml.is2022())
            writeAddressSpace();
        writeMemoryMap();
        writeModel();
        writeFileSets();
        writeProcessor();
        return m_xml.bytes();
    }

private:
    static QString description(const SystemMap &map)
    {
        QString text = "Subsystem with a Cortex-M1 processor"_l1;
        const QString device = map.device.device();
        if (!device.isEmpty())
            text += " on "_l1 + device;
        return text +
               ". The memory map is what the processor sees on its buses, without the registers of "
               "its own from 0xE0000000; addresses in no block give an error response."_l1;
    }

    // ---- interfaces

    void writeInterfaces()
    {
        const Element interfaces(m_xml, "busInterfaces"_l1);
        for (const Region &region : m_map.regions)
            writeBus(region);
        for (const ExternalSource &source : m_map.clocks)
            writeSource(source, Ipxact::clock, "CLK"_l1);
        for (const ExternalSource &source : m_map.resets)
            writeSource(source, Ipxact::reset, "RESETn"_l1);
        for (const Port &port : m_map.ports) {
            if (port.role == PortRole::Interrupt)
                writeInterrupts(port);
        }
    }

    // Names differ from each other, whatever regions and ports are called.
    QString interfaceName(const QString &wanted)
    {
        QString name = wanted;
        for (int number = 2; m_interfaceNames.contains(name); ++number)
            name = wanted + u'_' + QString::number(number);
        m_interfaceNames.insert(name);
        return name;
    }

    void openInterface(const QString &name, const QString &text)
    {
        m_xml.open("busInterface"_l1);
        m_xml.named(interfaceName(name), text);
    }

    void writeBusType(const Bus &bus, const QVector<PortMap> &maps)
    {
        m_xml.vlnvReference("busType"_l1, bus.vlnv());
        const Element types(m_xml, "abstractionTypes"_l1);
        const Element type(m_xml, "abstractionType"_l1);
        m_xml.vlnvReference("abstractionRef"_l1, bus.abstraction());
        const Element list(m_xml, "portMaps"_l1);
        for (const PortMap &map : maps) {
            const Element element(m_xml, "portMap"_l1);
            if (map.isInverted)
                m_xml.attribute("invert"_l1, yes);
            {
                const Element logical(m_xml, "logicalPort"_l1);
                m_xml.text("name"_l1, map.logical);
                if (map.line < 0 && map.port->isVector()) {
                    const Element range(m_xml, "range"_l1);
                    m_xml.range(map.port->width() - 1, 0);
                }
            }
            const Element physical(m_xml, "physicalPort"_l1);
            m_xml.text("name"_l1, map.port->name);
            if (!map.port->isVector())
                continue;
            const Element part(m_xml, "partSelect"_l1);
            const Element range(m_xml, "range"_l1);
            m_xml.range(map.line < 0 ? map.port->left : map.line,
                        map.line < 0 ? map.port->right : map.line);
        }
    }

    // The side of an interconnect to which a slave is connected.
    void writeBus(const Region &region)
    {
        QVector<PortMap> maps;
        for (const Port &port : m_map.ports) {
            if (port.bus == region.name && !port.signal.isEmpty())
                maps.append({port.signal, &port});
        }
        if (maps.isEmpty())
            return;
        openInterface(region.name, regionText(m_map, region));
        writeBusType(region.bus == "APB"_l1 ? Ipxact::apb : Ipxact::ahbLite, maps);
        {
            const Element mode(m_xml, m_xml.is2022() ? "mirroredTarget"_l1 : "mirroredSlave"_l1);
            const Element addresses(m_xml, "baseAddresses"_l1);
            {
                if (m_xml.is2022())
                    m_xml.open("remapAddresses"_l1);
                m_xml.hex("remapAddress"_l1, region.base);
                if (m_xml.is2022())
                    m_xml.close();
            }
            m_xml.hex("range"_l1, region.size());
        }
        m_xml.text("connectionRequired"_l1, yes);
        m_xml.number("bitsInLau"_l1, 8);
        m_xml.text("endianness"_l1, m_map.processor.isBigEndian ? "big"_l1 : "little"_l1);
        m_xml.close();
    }

    const Port *portNamed(const QString &name) const
    {
        const auto found = std::find_if(m_map.ports.begin(), m_map.ports.end(),
                                        [&name](const Port &port) { return port.name == name; });
        return found == m_map.ports.end() ? nullptr : &*found;
    }

    void writeSource(const ExternalSource &source, const Bus &bus, QLatin1String logical)
    {
        const Port *port = portNamed(source.port);
        if (!port)
            return;
        const bool isInverted = &bus == &Ipxact::reset && !source.isActiveLow;
        openInterface(source.port, source.text);
        writeBusType(bus, {{logical, port, -1, isInverted}});
        m_xml.emptyElement(m_xml.target());
        m_xml.close();
    }

    // Each line has an interface of its own, since each has a source of its own.
    void writeInterrupts(const Port &port)
    {
        for (int line = port.right; line <= port.left; ++line) {
            const InterruptLine *interrupt = interruptOf(port, line - qMax(0, port.right));
            QString text = port.text;
            if (interrupt && !interrupt->lost.isEmpty())
                text += ". This one never reaches the processor: "_l1 + interrupt->lost;
            openInterface(port.isVector() ? QString(port.name + QString::number(line)) : port.name,
                          text);
            writeBusType(Ipxact::interrupt,
                         {{QStringLiteral("IRQ"), &port, port.isVector() ? line : -1}});
            m_xml.emptyElement(m_xml.target());
            if (interrupt && interrupt->lost.isEmpty()) {
                const Element parameters(m_xml, "parameters"_l1);
                writeInterrupt(*interrupt);
            }
            m_xml.close();
        }
    }

    // The interrupt that a port requests with a line; null if there is none.
    const InterruptLine *interruptOf(const Port &port, int line) const
    {
        for (const InterruptLine &interrupt : m_map.interrupts) {
            if (interrupt.source == port.name && line-- == 0)
                return &interrupt;
        }
        return nullptr;
    }

    void writeInterrupt(const InterruptLine &line)
    {
        if (line.number == InterruptLine::nonMaskable)
            m_xml.parameter("NMI_"_l1 + line.name, QStringLiteral("1"),
                            QStringLiteral("the non-maskable interrupt"));
        else
            m_xml.parameter("IRQ_"_l1 + line.name, QString::number(line.number),
                            QStringLiteral("number of the interrupt"));
    }

    // ---- addresses

    void writeRegionPlace(QLatin1String element, const Region &region)
    {
        const Element segment(m_xml, element);
        m_xml.named(region.name, regionText(m_map, region));
        m_xml.hex("addressOffset"_l1, region.base);
        m_xml.hex("range"_l1, region.size());
    }

    void writeAddressSpace()
    {
        const Element spaces(m_xml, "addressSpaces"_l1);
        const Element space(m_xml, "addressSpace"_l1);
        m_xml.named(mapName, QStringLiteral("what the processor addresses"));
        writeSpaceSize();
        if (!m_map.regions.isEmpty()) {
            const Element segments(m_xml, "segments"_l1);
            for (const Region &region : m_map.regions)
                writeRegionPlace("segment"_l1, region);
        }
        m_xml.number("addressUnitBits"_l1, 8);
    }

    void writeSpaceSize()
    {
        m_xml.hex("range"_l1, addressSpaceSize);
        m_xml.number("width"_l1, 32);
    }

    void writeMemoryMap()
    {
        const Element maps(m_xml, "memoryMaps"_l1);
        const Element map(m_xml, "memoryMap"_l1);
        m_xml.named(mapName, QStringLiteral("what answers the processor"));
        for (const Region &region : m_map.regions)
            writeBlock(region);
        m_xml.number("addressUnitBits"_l1, 8);
    }

    void writeBlock(const Region &region)
    {
        const Element block(m_xml, "addressBlock"_l1);
        m_xml.named(region.name, regionText(m_map, region));
        m_xml.hex("baseAddress"_l1, region.base);
        m_xml.hex("range"_l1, region.size());
        m_xml.number("width"_l1, 32);
        if (usageOf(region.kind).size() > 0)
            m_xml.text("usage"_l1, usageOf(region.kind));
        if (accessOf(region.kind).size() > 0)
            writeAccess(accessOf(region.kind));
        writeInterruptsOf(region);
        if (const Peripheral *peripheral = ownerOf(m_map, region).peripheral) {
            for (const Register &entry : peripheral->registers)
                writeRegister(entry);
        }
    }

    void writeInterruptsOf(const Region &region)
    {
        QVector<InterruptLine> lines;
        for (const InterruptLine &line : m_map.interrupts) {
            if (line.source == region.name && line.lost.isEmpty())
                lines.append(line);
        }
        if (lines.isEmpty())
            return;
        const Element parameters(m_xml, "parameters"_l1);
        for (const InterruptLine &line : qAsConst(lines))
            writeInterrupt(line);
    }

    // Of a block or a register.
    void writeAccess(QLatin1String access)
    {
        if (!m_xml.is2022()) {
            m_xml.text("access"_l1, access);
            return;
        }
        const Element policies(m_xml, "accessPolicies"_l1);
        const Element policy(m_xml, "accessPolicy"_l1);
        m_xml.text("access"_l1, access);
    }

    void writeRegister(const Register &entry)
    {
        const Element element(m_xml, "register"_l1);
        m_xml.named(entry.name, registerText(entry));
        m_xml.hex("addressOffset"_l1, entry.offset);
        m_xml.number("size"_l1, 32);
        writeAccess(accessText(entry));
        for (const RegisterField &field : entry.fields)
            writeField(entry, field);
    }

    void writeField(const Register &entry, const RegisterField &field)
    {
        const Element element(m_xml, "field"_l1);
        m_xml.named(field.name, field.text);
        m_xml.number("bitOffset"_l1, field.low);
        if (m_xml.is2022()) {
            writeWidth(field);
            writeResets(field);
            {
                const Element policies(m_xml, "fieldAccessPolicies"_l1);
                const Element policy(m_xml, "fieldAccessPolicy"_l1);
                m_xml.text("access"_l1, accessText(isRead(field), isWritten(entry, field)));
                writeEffects(entry, field);
            }
            writeValues(entry, field);
        } else {
            writeResets(field);
            writeWidth(field);
            m_xml.text("access"_l1, accessText(isRead(field), isWritten(entry, field)));
            writeValues(entry, field);
            writeEffects(entry, field);
        }
    }

    void writeWidth(const RegisterField &field)
    {
        m_xml.number("bitWidth"_l1, field.width());
        // Hardware changes what software cannot simply write.
        if (field.access != RegisterAccess::ReadWrite && isRead(field))
            m_xml.text("volatile"_l1, yes);
    }

    void writeResets(const RegisterField &field)
    {
        if (!field.hasReset)
            return;
        const Element resets(m_xml, "resets"_l1);
        const Element reset(m_xml, "reset"_l1);
        m_xml.hex("value"_l1, field.reset);
    }

    void writeValues(const Register &entry, const RegisterField &field)
    {
        if (field.values.isEmpty())
            return;
        const QLatin1String usage = valuesUsage(field, isWritten(entry, field));
        const Element list(m_xml, "enumeratedValues"_l1);
        for (const FieldValue &value : field.values) {
            const Element element(m_xml, "enumeratedValue"_l1);
            m_xml.attribute("usage"_l1, usage.size() > 0 ? usage : "read-write"_l1);
            m_xml.named(value.name, value.text);
            m_xml.hex("value"_l1, value.value);
        }
    }

    void writeEffects(const Register &entry, const RegisterField &field)
    {
        const bool written = isWritten(entry, field);
        const QLatin1String writes = writeEffectText(field);
        if (written && writes.size() > 0)
            m_xml.text("modifiedWriteValue"_l1, writes);
        const WrittenValues allowed = written ? writtenValues(field) : WrittenValues::Any;
        // Without a constraint any value may be written.
        if (allowed == WrittenValues::Named ||
            (allowed == WrittenValues::Range && field.minimum > 0)) {
            const Element constraint(m_xml, "writeValueConstraint"_l1);
            if (allowed == WrittenValues::Named) {
                m_xml.text("useEnumeratedValues"_l1, yes);
            } else {
                m_xml.hex("minimum"_l1, field.minimum);
                m_xml.hex("maximum"_l1, largestValue(field));
            }
        }
        const QLatin1String reads = readActionText(field.readEffect);
        if (isRead(field) && reads.size() > 0)
            m_xml.text("readAction"_l1, reads);
    }

    // ---- model

    void writeModel()
    {
        const Element model(m_xml, "model"_l1);
        {
            const Element views(m_xml, "views"_l1);
            writeView("rtl"_l1, "sources in Verilog"_l1);
            writeView("netlist"_l1, "netlist of a run of synthesis"_l1);
        }
        {
            const Element instantiations(m_xml, "instantiations"_l1);
            writeInstantiation("rtl"_l1,
                               QStringLiteral("compiled with the folder of the included files as "
                                              "an include folder"));
            writeInstantiation("netlist"_l1, "in "_l1 + fileName(m_map, ".v"_l1) +
                                                 ", which a run of synthesis writes where the "
                                                 "subsystem is generated: no file of this set"_l1);
        }
        const Element ports(m_xml, "ports"_l1);
        for (const Port &port : m_map.ports)
            writePort(port);
    }

    void writeView(QLatin1String name, QLatin1String text)
    {
        const Element view(m_xml, "view"_l1);
        m_xml.named(name, text);
        for (const QLatin1String use : {":*Simulation:"_l1, ":*Synthesis:"_l1})
            m_xml.text("envIdentifier"_l1, use);
        m_xml.text("componentInstantiationRef"_l1, QString(name) + "_verilog"_l1);
    }

    void writeInstantiation(QLatin1String view, const QString &text)
    {
        const Element instantiation(m_xml, "componentInstantiation"_l1);
        m_xml.named(QString(view) + "_verilog"_l1, text);
        m_xml.text("language"_l1, "verilog"_l1);
        m_xml.text("moduleName"_l1, topModuleName(m_map));
        for (const FileSet &set : qAsConst(m_sets)) {
            if (!QString(set.name).startsWith(view))
                continue;
            const Element reference(m_xml, "fileSetRef"_l1);
            m_xml.text("localName"_l1, set.name);
        }
    }

    void writePort(const Port &port)
    {
        QString text = port.text;
        if (port.needsPullUp)
            text += "; needs a pull-up resistor outside"_l1;
        const Element element(m_xml, "port"_l1);
        m_xml.named(port.name, text);
        const Element wire(m_xml, "wire"_l1);
        m_xml.text("direction"_l1, directionText(port.direction));
        if (m_xml.is2022())
            writeQualifier(port);
        if (!port.isVector())
            return;
        const Element vectors(m_xml, "vectors"_l1);
        const Element vector(m_xml, "vector"_l1);
        m_xml.range(port.left, port.right);
    }

    void writeQualifier(const Port &port)
    {
        if (port.role == PortRole::Clock || port.role == PortRole::Interrupt) {
            const Element qualifier(m_xml, "qualifier"_l1);
            m_xml.text(port.role == PortRole::Clock ? "isClock"_l1 : "isInterrupt"_l1, yes);
        } else if (port.role == PortRole::Reset) {
            const Element qualifier(m_xml, "qualifier"_l1);
            const Element is(m_xml, "isReset"_l1);
            m_xml.attribute("level"_l1, port.isActiveLow ? "low"_l1 : "high"_l1);
            m_xml.characters(yes);
        }
    }

    // ---- files and processor

    void writeFileSets()
    {
        if (m_sets.isEmpty())
            return;
        const Element sets(m_xml, "fileSets"_l1);
        for (const FileSet &set : qAsConst(m_sets)) {
            const Element element(m_xml, "fileSet"_l1);
            m_xml.named(set.name, set.text);
            for (const QString &path : set.files) {
                const Element file(m_xml, "file"_l1);
                m_xml.text("name"_l1, "../"_l1 + path);
                const FileType type = fileTypeOf(path);
                m_xml.open("fileType"_l1);
                if (type.user.size() > 0)
                    m_xml.attribute("user"_l1, type.user);
                m_xml.characters(type.type);
                m_xml.close();
                if (set.included.contains(path))
                    m_xml.text("isIncludeFile"_l1, yes);
            }
        }
    }

    void writeProcessor()
    {
        const Element processors(m_xml, "cpus"_l1);
        const Element processor(m_xml, "cpu"_l1);
        m_xml.named(QStringLiteral("CM1"),
                    m_map.processor.isBigEndian
                        ? QStringLiteral("ARMv6-M; its data are big-endian, its instructions not")
                        : QStringLiteral("ARMv6-M, little-endian"));
        if (!m_xml.is2022()) {
            m_xml.reference("addressSpaceRef"_l1, "addressSpaceRef"_l1, mapName);
            return;
        }
        writeSpaceSize();
        if (!m_map.regions.isEmpty()) {
            const Element regions(m_xml, "regions"_l1);
            for (const Region &region : m_map.regions)
                writeRegionPlace("region"_l1, region);
        }
        m_xml.number("addressUnitBits"_l1, 8);
        m_xml.text("memoryMapRef"_l1, mapName);
    }

    const SystemMap &m_map;
    Document m_xml;
    const QVector<FileSet> m_sets;
    QSet<QString> m_interfaceNames;
};

struct CatalogEntry {
    Vlnv vlnv;
    QString file;
};

void writeEntries(Document &document, QLatin1String element, const QVector<CatalogEntry> &entries)
{
    const Element list(document, element);
    for (const CatalogEntry &entry : entries) {
        const Element file(document, "ipxactFile"_l1);
        document.vlnvReference("vlnv"_l1, entry.vlnv);
        document.text("name"_l1, entry.file);
    }
}

QByteArray catalog(const SystemMap &map, Edition edition)
{
    Vlnv vlnv = subsystemVlnv(map);
    vlnv.name += "_catalog"_l1;
    Document document(edition, "catalog"_l1, vlnv,
                      QStringLiteral("The subsystem and the definitions of its buses."));
    QVector<CatalogEntry> definitions;
    QVector<CatalogEntry> abstractions;
    for (const Bus &bus : Ipxact::buses()) {
        definitions.append({bus.vlnv(), bus.file()});
        abstractions.append({bus.abstraction(), bus.abstractionFile()});
    }
    writeEntries(document, "busDefinitions"_l1, definitions);
    writeEntries(document, "abstractionDefinitions"_l1, abstractions);
    writeEntries(document, "components"_l1, {{subsystemVlnv(map), fileName(map, ".xml"_l1)}});
    return document.bytes();
}

QVector<ExportedFile> filesOf(const SystemMap &map, Edition edition, const QString &folder)
{
    return QVector<ExportedFile>{
               {folder + fileName(map, ".xml"_l1), Component(map, edition).write()},
               {folder + fileName(map, "_catalog.xml"_l1), catalog(map, edition)}} +
           Ipxact::busFiles(edition, folder);
}

} // namespace

QVector<ExportedFile> ipxact2014Files(const SystemMap &map)
{
    return filesOf(map, Edition::Year2014, QStringLiteral("ipxact/"));
}

QVector<ExportedFile> ipxact2022Files(const SystemMap &map)
{
    return filesOf(map, Edition::Year2022, QStringLiteral("ipxact-2022/"));
}

} // namespace TARVOORIXM1
