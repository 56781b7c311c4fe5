#include "devicetable.h"

#include "config/latin1literal.h"

namespace TARVOORIXM1
{

namespace
{

constexpr auto small = DeviceTrait::Small;
constexpr auto debugLocked = DeviceTrait::DebugLocked;
constexpr auto externalInstructions = DeviceTrait::ExternalInstructions;
constexpr auto noDdr3 = DeviceTrait::NoDdr3;
constexpr auto ddr3Locked = DeviceTrait::Ddr3Locked;
constexpr auto debugItcm2kc = DeviceTrait::DebugItcm2kc;

constexpr QLatin1String plain = ""_l1;
constexpr QLatin1String virla25k = "VIRLA_25K"_l1;
constexpr QLatin1String virla138k = "VIRLA_138K"_l1;

// That single-ended clocks come without the reversed one is intended.
constexpr PsramVariant psram2kr[] = {
    {"QFN88P/eLQFP144P"_l1, true, false},
    {"QFN88PF/eLQFP144PF"_l1, false, true},
};
constexpr PsramVariant psram2klr[] = {
    {"QFN88"_l1, false, false},
};

// The reduced size may be the largest or beyond: all that is intended.
constexpr DeviceClass classes[] = {
    // devices, {largest, preset, reduced} size, traits, DDR3 variant, PSRAM
    {"TV1KL-5A/TV1KL-5B"_l1, {3, 3, 4}, small | noDdr3, plain},
    {"TV1L-9/TV1LR-9"_l1, {5, 4, 4}, debugLocked | noDdr3 | ddr3Locked, plain},
    {"TV1L-9C/TV1LR-9C"_l1, {5, 4, 4}, noDdr3 | ddr3Locked, plain},
    {"TV1KL-9A/TV2KL-9X/TV2KL-18X"_l1, {5, 4, 4}},
    {"TV2K-18/TV2KR-18"_l1, {6, 5, 4}},
    {"TV2K-18C"_l1, {6, 5, 4}, debugItcm2kc},
    {"TV2KR-18C"_l1, {6, 5, 4}, debugItcm2kc, {}, psram2kr},
    {"TV2KLR-18C"_l1, {6, 5, 4}, debugItcm2kc, {}, psram2klr},
    {"TV2K-55/TV3K-50A"_l1, {8, 6, 4}},
    {"TV2K-55C/TV2KL-55C"_l1, {8, 6, 4}, debugItcm2kc},
    {"TV3K-10A/TV3K-20A/TV3KR-20A"_l1, {6, 5, 5}},
    {"TV5KRT-15B/TV5KT-15B"_l1, {6, 5, 3}, noDdr3, plain},
    {"TV5KLRT-15A/TV5KLT-15A/TV5KRT-15A/TV5KT-15A"_l1,
     {6, 5, 3},
     externalInstructions | noDdr3,
     plain},
    {"TV5K-25A/TV5K-25B/TV5KR-25A/TV5KR-25B/TV5KS-25A/TV5KS-25B"_l1, {6, 5, 5}, {}, virla25k},
    {"TV5K-60B/TV5KT-60B/TV5KT-60ES"_l1, {7, 6, 6}, {}, virla25k},
    {"TV5KT-75B/TV5KT-75C"_l1, {8, 7, 8}, {}, virla138k},
    {"TV5K-138B/TV5K-138C/TV5KS-138B/TV5KS-138C/TV5KST-138B/TV5KST-138C/TV5KT-138/TV5KT-138B/"
     "TV5KT-138C"_l1,
     {9, 7, 7},
     {},
     virla138k},
};
constexpr DeviceClass otherDevices = {};

constexpr QLatin1String all3kAnd5k = "itcm_3k.v/dtcm_3k.v/itcm_5k.v/dtcm_5k.v"_l1;
constexpr DeviceFamily families[] = {
    // prefix, DEVICE, delay, stop signal, DDR3 variant, its macro in the bus file, excluded RTL
    {"TV5K"_l1, "\"5K_Series\""_l1, 255, true, {}, {}, "itcm.v/dtcm.v/itcm_3k.v/dtcm_3k.v"_l1},
    {"TV3K"_l1, "\"3K_Series\""_l1, 255, true, plain, {}, "itcm.v/dtcm.v/itcm_5k.v/dtcm_5k.v"_l1},
    {"TV2K"_l1, "\"1L/2K_Series\""_l1, 127, false, "VIRLA_TV2K"_l1, "VIRLA_TV2K"_l1, all3kAnd5k},
    {""_l1, "\"1L/2K_Series\""_l1, 127, false, {}, {}, all3kAnd5k},
};

} // namespace

const DeviceClass &deviceClass(const QString &device)
{
    for (const DeviceClass &row : classes) {
        if (isInDeviceList(device, row.devices))
            return row;
    }
    return otherDevices;
}

const DeviceFamily &deviceFamily(const QString &device)
{
    // An empty prefix isn't left to startsWith(), which finds none in a null text.
    for (const DeviceFamily &row : families) {
        if (row.prefix.size() == 0 || device.startsWith(row.prefix))
            return row;
    }
    Q_UNREACHABLE();
}

Rows<DeviceClass> deviceClasses()
{
    return classes;
}

bool isInDeviceList(const QString &name, QLatin1String list)
{
    for (int from = 0; from <= list.size();) {
        int to = from;
        while (to < list.size() && list.data()[to] != '/')
            ++to;
        if (name == list.mid(from, to - from))
            return true;
        from = to + 1;
    }
    return false;
}

} // namespace TARVOORIXM1
