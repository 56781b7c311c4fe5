#pragma once

#include "config/rows.h"

#include <QFlags>
#include <QLatin1String>
#include <QString>

#include <optional>

namespace TARVOORIXM1
{

// Size indexes of the tightly coupled memories; index i means 2^i KB, -1 none. The defaults are
// those of a device that no class names.
struct TcmFacts {
    int largest = -1;
    int preset = 4;
    int reduced = 4; // the most for one memory while the other has the largest size
};

// The PSRAM interface in some packages.
struct PsramVariant {
    QLatin1String packages; // "/"-separated
    bool clockReverse;
    bool singleEndedClocks;
};

enum class DeviceTrait {
    Small = 1, // neither debug, Ethernet, CAN nor SPI-Flash, and defaults of its own on the page
    DebugLocked = 2,          // can't be switched on; on a small device the page still offers it
    ExternalInstructions = 4, // the instruction memory is never internal
    NoDdr3 = 8,               // the diagram doesn't offer the block
    Ddr3Locked = 16,          // nor can its dialog switch it on, whoever opens it
    DebugItcm2kc = 32,        // has a debug ITCM of its own in the RTL
};
Q_DECLARE_FLAGS(DeviceTraits, DeviceTrait)
Q_DECLARE_OPERATORS_FOR_FLAGS(DeviceTraits)

// Devices that all rules treat alike.
struct DeviceClass {
    QLatin1String devices; // names, "/"-separated
    TcmFacts tcm = {};
    DeviceTraits traits = {};
    // The macro of the DDR3 controller's variant, empty for the plain one. Not set: the family's.
    // What the file says has nothing to do with whether the block is offered.
    std::optional<QLatin1String> ddr3Variant = {};
    Rows<PsramVariant> psram = {}; // none: no PSRAM
};

// What follows from the beginning of a name alone, also of names that no class has.
struct DeviceFamily {
    QLatin1String prefix;
    QLatin1String macDevice; // the DEVICE parameter of the Ethernet MAC
    // Two facts that happen to go together.
    int largestRgmiiDelay; // in delay steps
    bool ddr3StopSignal;
    std::optional<QLatin1String> ddr3Variant; // of a class without its own; not set: no DDR3 file
    QLatin1String ddr3BusMacro;               // in the bus file beside the block; may be empty
    QLatin1String excludedMemories;           // RTL files, "/"-separated, left out without debug
};

// The row that names the device, or one of nothing but defaults.
const DeviceClass &deviceClass(const QString &device);

// The first row whose prefix fits; the last fits every name.
const DeviceFamily &deviceFamily(const QString &device);

// All rows, for those who look at the table as a whole.
Rows<DeviceClass> deviceClasses();

// Whether `name` is an element of the "/"-separated literal `list`: exactly, case-sensitively.
bool isInDeviceList(const QString &name, QLatin1String list);

} // namespace TARVOORIXM1
