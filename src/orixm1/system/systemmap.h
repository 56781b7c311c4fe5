#pragma once

#include "description.h"
#include "ports.h"
#include "regions.h"

#include <dev/devicearg.h>

#include <QLatin1String>

#include <optional>

namespace TARVOORIXM1
{

// The processor as a configuration has it. An ARMv6-M core without a vector table offset register,
// memory protection or floating point.
struct Processor {
    int interruptInputs = 32;
    int priorityBits = 2;       // of an interrupt; fixed
    bool hasOsExtension = true; // SysTick, SVCall and PendSV
    bool hasSmallMultiplier = false;
    bool isBigEndian = false; // BE8: data big-endian, instructions little-endian
    bool hasDebug = true;
    bool hasJtag = true; // counts with hasDebug only
    bool hasSerialWire = true;
    bool hasSmallDebug = false;
    // Where the internal instruction memory stands after reset; both false without one.
    bool itcmAtLowerAlias = true;  // 0x00000000
    bool itcmAtUpperAlias = false; // 0x10000000
};

// One interrupt of the processor and what requests it.
struct InterruptLine {
    static constexpr int nonMaskable = -1; // the number of the NMI

    QString name; // unique, an identifier of C: "UART0", "EXTINT2"
    int number = 0;
    QString source; // name of the region or of the port that requests it
    QString lost;   // why it never reaches the processor, as a part of a sentence; empty if it does
};

// Something that a device has in a limited number, and what a netlist takes of it.
struct ResourceLine {
    QString name; // "LUT4"
    int used = 0;
    int available = -1; // -1: not known
};

// What a run of synthesis found.
struct ResourceFigures {
    QVector<ResourceLine> lines;
    QString notCounted; // a sentence of what the lines leave out; empty: nothing
};

// A text that tools read which compile or simulate the subsystem.
struct HardwareFile {
    enum class Use {
        Compiled,  // in the order of compilation
        Included,  // by others
        Generated, // included; made of the configuration
    };

    QString name; // without a folder
    Use use = Use::Compiled;
    QByteArray bytes;
};

// Everything that software and integration need to know of one configured subsystem. A plain value
// that is made once; every document and hand-off file is a function of it.
struct SystemMap {
    DEV::DeviceArg device;
    Processor processor;
    OptionMap options;
    QVector<Region> regions;           // by address, not overlapping
    QVector<Peripheral> peripherals;   // with the instances that are on, by first instance
    QVector<InterruptLine> interrupts; // by number; the non-maskable one first, if it is there
    QVector<Port> ports;               // of the top module, in its order
    QVector<ExternalSource> clocks;
    QVector<ExternalSource> resets;
    QVector<BlackBox> blackBoxes;
    QVector<FirmwareFile> firmware; // for the peripherals that are on, by name
    // The RTL of the subsystem: what synthesis compiles in the order of compilation, then what that
    // includes, by name, with what a generation writes last. A memory with first contents reads
    // them from the folder initialContentsFolder; otherwise no byte differs from a generation's.
    QVector<HardwareFile> rtl;
    // Stand-ins of the processor for simulation, by name.
    QVector<DataFile> processorModels;
    // The first contents of the instruction memory: whoever can read them sets them
    // (readInitialContents()), systemMap() knows none.
    QVector<DataFile> initialContents;
    // Of a netlist of this configuration: whoever has one sets them, systemMap() knows none.
    std::optional<ResourceFigures> resources;
    // What all names begin with that the subsystem brings into a design or a program; empty: they
    // are the usual ones. prefixed() sets it, systemMap() does not.
    QString prefix;
};

// Where the RTL of a map looks for the first contents of a memory, from the folder in which its
// tools run.
inline constexpr QLatin1String initialContentsFolder("rtl/itcm");

// The files that a configuration gives the instruction memory as its first contents; none where it
// gives none. `generationFolder` is where a relative folder starts from. A failure is a sentence
// with the file and the reason.
Utils::Result<QVector<DataFile>> readInitialContents(const OptionMap &options,
                                                     const QString &generationFolder);

// Reads nothing and never fails: values that no option may have are taken as generation takes them.
SystemMap systemMap(const OptionMap &options, const DEV::DeviceArg &device,
                    const SystemDescription &description);

// The region with this name; null if the map has none.
const Region *findRegion(const SystemMap &map, const QString &name);

// The region that answers at an address; null if nothing does.
const Region *regionAt(const SystemMap &map, quint32 address);

enum class BusAccess { Read, Write };

// Whether an access gets an error response whatever software did before: everything that is in no
// region, and writing to a read window. Not so the processor's own registers, from 0xE0000000 to
// 0xE00FFFFF, which are part of every processor and of no map.
bool isRefused(const SystemMap &map, quint32 address, BusAccess access);

} // namespace TARVOORIXM1
