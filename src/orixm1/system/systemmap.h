#pragma once

#include "description.h"
#include "ports.h"
#include "regions.h"

#include <dev/devicearg.h>

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
};

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
