#pragma once

#include "config/optionmap.h"

#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// What answers at a range of addresses.
enum class RegionKind {
    TightlyCoupledMemory, // read and written by the processor without waiting
    ExternalMemory,       // whatever memory the user connects to the port
    MemoryDevice,         // memory behind a licensed controller
    ReadWindow,           // contents of a memory device; writing gives an error response
    Registers,            // described registers of a peripheral
    BlackBox,             // a licensed block, whose registers its supplier describes
    ExtensionPort,        // whatever the user connects to the port
};

// A range of addresses that one block answers. What lies in no region of a configuration gives an
// error response.
struct Region {
    QString name; // unique in a map and an identifier of C: "ITCM", "UART0", "AHB3"
    quint32 base = 0;
    quint32 last = 0; // the last byte, inclusive: a region may end with the address space
    RegionKind kind = RegionKind::Registers;
    QString bus;    // "TCM", "AHB" or "APB"
    QString option; // key of the bool option that switches it on
    QString ports;  // how the names of its ports begin; empty where it has no common beginning
    QString text;   // a phrase for documents

    quint64 size() const { return quint64(last) - base + 1; } // bytes
    bool contains(quint32 address) const { return address >= base && address <= last; }
};

// Whether software executes from the region in the usual configuration of a linker.
bool isMemory(RegionKind kind);

// "TCM memory", "extension port", …: the kind in words.
QString regionKindName(RegionKind kind);

// The regions of a configuration that no register description tells of, by address: memories,
// windows, black boxes and ports. `device` gives the sizes of memories that the options leave out.
QVector<Region> fixedRegions(const OptionMap &options, const QString &device);

} // namespace TARVOORIXM1
