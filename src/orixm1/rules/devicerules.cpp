#include "devicerules.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"

#include <iterator>

namespace TARVOORIXM1
{

namespace
{

struct DefaultSizeRow {
    QLatin1String devices;
    int index;
};

// The first matching row wins.
constexpr DefaultSizeRow defaultSizes[] = {
    {"TV1KL-5A/TV1KL-5B"_l1, 3},
    {"TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/TV2KL-9X/TV1KL-9A/TV2KL-18X"_l1, 4},
    {"TV2K-18/TV2KR-18/TV2K-18C/TV2KR-18C/TV2KLR-18C"_l1, 5},
    {"TV2K-55/TV2K-55C/TV2KL-55C/TV3K-50A"_l1, 6},
    {"TV5K-25A/TV5KRT-15A/TV5KRT-15B/TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A/"
     "TV5KS-25A/TV5KR-25A"_l1,
     5},
    {"TV5K-25B/TV5KS-25B/TV5KR-25B"_l1, 5},
    {"TV5KT-60ES/TV5KT-60B/TV5K-60B"_l1, 6},
    {"TV5KT-138/TV5KT-138B/TV5KT-75B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/"
     "TV5KT-138C/TV5KT-75C/TV5K-138B/TV5KS-138B"_l1,
     7},
    {"TV3K-20A/TV3KR-20A/TV3K-10A"_l1, 5},
};
constexpr int catchAllSizeIndex = 4;

struct PsramRow {
    QLatin1String device;
    QLatin1String packages;
};

constexpr PsramRow psramRows[] = {
    {"TV2KR-18C"_l1, "QFN88P/QFN88PF/eLQFP144P/eLQFP144PF"_l1},
    {"TV2KLR-18C"_l1, "QFN88"_l1},
};

constexpr QLatin1String smallDevices = "TV1KL-5A/TV1KL-5B"_l1;
constexpr QLatin1String withoutDdr3 = "TV1KL-5A/TV1KL-5B/TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/"
                                      "TV5KRT-15A/TV5KRT-15B/TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/"
                                      "TV5KT-15A"_l1;
constexpr QLatin1String lockedDdr3 = "TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C"_l1;
constexpr QLatin1String withoutDebug = "TV1L-9/TV1LR-9"_l1;
constexpr QLatin1String externalOnly = "TV5KRT-15A/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A"_l1;

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

const RestrictedBlock *RestrictedBlocks::begin() const
{
    return std::begin(restricted);
}

const RestrictedBlock *RestrictedBlocks::end() const
{
    return std::end(restricted);
}

bool allowsExternalInterrupts(int numberOfInterrupts)
{
    return numberOfInterrupts >= fewestForExternalInterrupts;
}

bool isInDeviceList(const QString &device, QLatin1String list)
{
    for (int from = 0; from <= list.size();) {
        int to = from;
        while (to < list.size() && list.data()[to] != '/')
            ++to;
        if (device == list.mid(from, to - from))
            return true;
        from = to + 1;
    }
    return false;
}

bool DeviceTest::matches(const QString &device) const
{
    if (prefix.size() > 0 && device.startsWith(prefix))
        return true;
    return list.size() > 0 && isInDeviceList(device, list);
}

int defaultTcmSizeIndex(const QString &device)
{
    for (const DefaultSizeRow &row : defaultSizes) {
        if (isInDeviceList(device, row.devices))
            return row.index;
    }
    return catchAllSizeIndex;
}

bool isPsramAvailable(const DEV::DeviceArg &device)
{
    for (const PsramRow &row : psramRows) {
        if (device.device() == row.device && isInDeviceList(device.package(), row.packages))
            return true;
    }
    return false;
}

bool isDdr3Available(const QString &device)
{
    return !isInDeviceList(device, withoutDdr3);
}

bool isSmallDevice(const QString &device)
{
    return isInDeviceList(device, smallDevices);
}

bool isDebugAvailable(const QString &device)
{
    return !isSmallDevice(device) && !isDebugUnavailable(device);
}

bool isDebugUnavailable(const QString &device)
{
    return isInDeviceList(device, withoutDebug);
}

bool isInstructionMemoryExternalOnly(const QString &device)
{
    return isInDeviceList(device, externalOnly);
}

bool isDdr3Locked(const QString &device)
{
    return isInDeviceList(device, lockedDdr3);
}

bool hasDdr3StopSignal(const QString &device)
{
    return isTv5k(device) || isTv3k(device);
}

int largestRgmiiInputDelay(const QString &device)
{
    return isTv5k(device) || isTv3k(device) ? 255 : 127;
}

bool isTv5k(const QString &device)
{
    return device.startsWith("TV5K"_l1);
}

bool isTv3k(const QString &device)
{
    return device.startsWith("TV3K"_l1);
}

bool isTv2k(const QString &device)
{
    return device.startsWith("TV2K"_l1);
}

} // namespace TARVOORIXM1
