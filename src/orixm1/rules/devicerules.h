#pragma once

#include "devicetable.h"

#include <dev/devicearg.h>

#include <QString>

namespace TARVOORIXM1
{

// The index of the device's default TCM size; index i means 2^i KB. 4 (16 KB) for a device that no
// rule names.
int defaultTcmSizeIndex(const QString &device);

// Which device-dependent blocks a device can have.
bool isPsramAvailable(const DEV::DeviceArg &device);
bool isDdr3Available(const QString &device);
// The smallest devices, which have neither debug, Ethernet, CAN nor SPI-Flash.
bool isSmallDevice(const QString &device);
// Whether debug can be switched on.
bool isDebugAvailable(const QString &device);
// Devices, the smallest aside, whose debug can't be switched on.
bool isDebugUnavailable(const QString &device);
// Devices whose instruction memory is always external.
bool isInstructionMemoryExternalOnly(const QString &device);
// Devices on which the DDR3 block cannot be switched on, although a stored configuration may have
// it.
bool isDdr3Locked(const QString &device);
// Devices whose DDR3 controller has a stop output.
bool hasDdr3StopSignal(const QString &device);
// The macro of the variant of the DDR3 controller, empty for the plain one; none for a device about
// whose controller nothing is known.
std::optional<QLatin1String> ddr3Variant(const QString &device);
// The variant of the PSRAM interface; null for a device that cannot have PSRAM in its package.
const PsramVariant *psramVariant(const DEV::DeviceArg &device);
// In delay steps.
int largestRgmiiInputDelay(const QString &device);
// The RTL files that are not compiled for the device, "/"-separated.
QLatin1String excludedSources(const QString &device, bool debug);

// What a device may be without, and the switch that asks for it.
struct RestrictedBlock {
    QLatin1String key;
    QLatin1String name;
    bool (*isAvailable)(const DEV::DeviceArg &);
    bool dependsOnPackage = false;
};

Rows<RestrictedBlock> restrictedBlocks();

// With fewer inputs the core has none for external interrupts.
bool allowsExternalInterrupts(int numberOfInterrupts);

} // namespace TARVOORIXM1
