#include "devicerules.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"

namespace TARVOORIXM1
{

namespace
{

bool has(const QString &device, DeviceTrait trait)
{
    return deviceClass(device).traits.testFlag(trait);
}

bool isNoSmallDevice(const DEV::DeviceArg &device)
{
    return !isSmallDevice(device.device());
}

constexpr int fewestForExternalInterrupts = 16;

constexpr RestrictedBlock restricted[] = {
    {Key::enablePsram, "PSRAM"_l1, isPsramAvailable, true},
    {Key::enableDdr3, "DDR3"_l1,
     [](const DEV::DeviceArg &device) { return isDdr3Available(device.device()); }},
    {Key::enableEthernet, "Ethernet"_l1, isNoSmallDevice},
    {Key::enableCan, "CAN"_l1, isNoSmallDevice},
    {Key::enableSpiFlash, "SPI-Flash"_l1, isNoSmallDevice},
    {Key::enableDebug, "debug"_l1,
     [](const DEV::DeviceArg &device) { return isDebugAvailable(device.device()); }},
};

} // namespace

Rows<RestrictedBlock> restrictedBlocks()
{
    return restricted;
}

bool allowsExternalInterrupts(int numberOfInterrupts)
{
    return numberOfInterrupts >= fewestForExternalInterrupts;
}

int defaultTcmSizeIndex(const QString &device)
{
    return deviceClass(device).tcm.preset;
}

const PsramVariant *psramVariant(const DEV::DeviceArg &device)
{
    for (const PsramVariant &row : deviceClass(device.device()).psram) {
        if (isInDeviceList(device.package(), row.packages))
            return &row;
    }
    return nullptr;
}

bool isPsramAvailable(const DEV::DeviceArg &device)
{
    return psramVariant(device) != nullptr;
}

bool isDdr3Available(const QString &device)
{
    return !has(device, DeviceTrait::NoDdr3);
}

bool isSmallDevice(const QString &device)
{
    return has(device, DeviceTrait::Small);
}

bool isDebugAvailable(const QString &device)
{
    return !isSmallDevice(device) && !isDebugUnavailable(device);
}

bool isDebugUnavailable(const QString &device)
{
    return has(device, DeviceTrait::DebugLocked);
}

bool isInstructionMemoryExternalOnly(const QString &device)
{
    return has(device, DeviceTrait::ExternalInstructions);
}

bool isDdr3Locked(const QString &device)
{
    return has(device, DeviceTrait::Ddr3Locked);
}

bool hasDdr3StopSignal(const QString &device)
{
    return deviceFamily(device).ddr3StopSignal;
}

std::optional<QLatin1String> ddr3Variant(const QString &device)
{
    const std::optional<QLatin1String> own = deviceClass(device).ddr3Variant;
    return own ? own : deviceFamily(device).ddr3Variant;
}

int largestRgmiiInputDelay(const QString &device)
{
    return deviceFamily(device).largestRgmiiDelay;
}

QLatin1String excludedSources(const QString &device, bool debug)
{
    if (!debug)
        return deviceFamily(device).excludedMemories;
    return has(device, DeviceTrait::DebugItcm2kc) ? "itcmdbg.v"_l1 : "itcmdbg_2kc.v"_l1;
}

} // namespace TARVOORIXM1
