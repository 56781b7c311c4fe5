#pragma once

#include <dev/devicearg.h>

#include <QString>

namespace TARVOORIXM1
{

// Which devices a rule is about. Every comparison is exact and case-sensitive.
struct DeviceTest {
    QLatin1String prefix; // names that start with this, if not empty
    QLatin1String list;   // or members of this "/"-separated list

    bool matches(const QString &device) const;
};

// Whether `device` is an element of the "/"-separated literal `list`.
bool isInDeviceList(const QString &device, QLatin1String list);

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
// In delay steps.
int largestRgmiiInputDelay(const QString &device);

// What a device may be without, and the switch that asks for it.
struct RestrictedBlock {
    QLatin1String key;
    QLatin1String name;
    bool (*isAvailable)(const DEV::DeviceArg &);
    bool dependsOnPackage = false;
};

struct RestrictedBlocks {
    const RestrictedBlock *begin() const;
    const RestrictedBlock *end() const;
};
inline RestrictedBlocks restrictedBlocks()
{
    return {};
}

// With fewer inputs the core has none for external interrupts.
bool allowsExternalInterrupts(int numberOfInterrupts);

// Families by name prefix.
bool isTv5k(const QString &device);
bool isTv3k(const QString &device);
bool isTv2k(const QString &device);

} // namespace TARVOORIXM1
