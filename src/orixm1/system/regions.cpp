#include "regions.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "generate/defines.h"
#include "rules/corepins.h"
#include "rules/dialogdefaults.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// A region that has the same place in every configuration that has it.
struct RegionRow {
    QLatin1String name;
    quint32 base;
    quint32 last;
    RegionKind kind;
    QLatin1String bus;
    QLatin1String option;
    QLatin1String ports;
    QLatin1String text;
};

constexpr RegionRow rows[] = {
    {"CAN"_l1, 0x41000000, 0x41FFFFFF, RegionKind::BlackBox, "AHB"_l1, Key::enableCan, "CAN_"_l1,
     "CAN controller"_l1},
    {"ETH"_l1, 0x42000000, 0x42FFFFFF, RegionKind::BlackBox, "AHB"_l1, Key::enableEthernet,
     QLatin1String(), "Ethernet MAC"_l1},
    {"TRNG"_l1, 0x5000A000, 0x5000AFFF, RegionKind::BlackBox, "APB"_l1, Key::enableTrng,
     QLatin1String(), "true random number generator"_l1},
    {"SPIFLASH_WINDOW"_l1, 0x68000000, 0x68FFFFFF, RegionKind::ReadWindow, "AHB"_l1,
     Key::enableSpiFlash, "FLASH_SPI_"_l1, "contents of the SPI-Flash"_l1},
    {"PSRAM"_l1, 0x70000000, 0x7FFFFFFF, RegionKind::MemoryDevice, "AHB"_l1, Key::enablePsram,
     QLatin1String(), "PSRAM"_l1},
    {"DDR3"_l1, 0xA0000000, 0xBFFFFFFF, RegionKind::MemoryDevice, "AHB"_l1, Key::enableDdr3,
     "DDR_"_l1, "DDR3 memory"_l1},
};

// Of the AHB extension ports 1 to 6, 16 MB each; of the APB ones, 1 MB each without a gap.
constexpr quint32 ahbPortBases[Key::ahbMasterCount] = {0x80000000, 0x81000000, 0x86000000,
                                                       0x89000000, 0x8A000000, 0x8B000000};
constexpr quint32 ahbPortSize = 0x01000000;
constexpr quint32 apbPortBase = 0x60000000;
constexpr quint32 apbPortSize = 0x00100000;

constexpr quint32 itcmBase = 0x00000000;
constexpr quint32 dtcmBase = 0x20000000;
constexpr quint32 externalMemorySize = 0x20000000;

// Bytes of a tightly coupled memory: those of the size code that generation writes for it.
quint32 tcmBytes(const OptionMap &options, QLatin1String key, const QString &device)
{
    const int index = generatedValue(options, key, device).toInt();
    return 512u << QString(tcmSizeCode(index)).toUInt(nullptr, 2);
}

void addMemories(QVector<Region> &regions, const OptionMap &options, const QString &device)
{
    const auto add = [&](QLatin1String name, quint32 base, quint32 size, RegionKind kind,
                         QLatin1String bus, QLatin1String option, const QString &ports,
                         QLatin1String text) {
        regions.append({name, base, base + (size - 1), kind, bus, option, ports, text});
    };
    const CoreSwitches core = coreSwitches(options);
    if (isOn(options, Key::internalInstructionMemory))
        add("ITCM"_l1, itcmBase, tcmBytes(options, Key::itcmSize, device),
            RegionKind::TightlyCoupledMemory, "TCM"_l1, Key::internalInstructionMemory, QString(),
            "instruction memory"_l1);
    if (core.externalInstructionMemory)
        add("EXTFLASH"_l1, itcmBase, externalMemorySize, RegionKind::ExternalMemory, "AHB"_l1,
            Key::externalInstructionMemory, "EXTFLASH0H"_l1, "external instruction memory"_l1);
    if (isOn(options, Key::internalDataMemory))
        add("DTCM"_l1, dtcmBase, tcmBytes(options, Key::dtcmSize, device),
            RegionKind::TightlyCoupledMemory, "TCM"_l1, Key::internalDataMemory, QString(),
            "data memory"_l1);
    if (core.externalDataMemory)
        add("EXTSRAM"_l1, dtcmBase, externalMemorySize, RegionKind::ExternalMemory, "AHB"_l1,
            Key::externalDataMemory, "EXTSRAM0H"_l1, "external data memory"_l1);
}

void addPorts(QVector<Region> &regions, const OptionMap &options)
{
    const auto add = [&](QLatin1String bus, QLatin1String key, QLatin1String signal, int port,
                         quint32 base, quint32 size) {
        const QString option = Key::extensionPortKey(key, port);
        if (!isOn(options, option))
            return;
        const QString name = bus + QString::number(port);
        regions.append({name, base, base + (size - 1), RegionKind::ExtensionPort, bus, option,
                        name + signal, bus + " extension port "_l1 + QString::number(port)});
    };
    for (int port = 1; port <= Key::apbMasterCount; ++port)
        add("APB"_l1, Key::enableApbMaster, "P"_l1, port,
            apbPortBase + quint32(port - 1) * apbPortSize, apbPortSize);
    for (int port = 1; port <= Key::ahbMasterCount; ++port)
        add("AHB"_l1, Key::enableAhbMaster, "H"_l1, port, ahbPortBases[port - 1], ahbPortSize);
}

} // namespace

bool isMemory(RegionKind kind)
{
    switch (kind) {
    case RegionKind::TightlyCoupledMemory:
    case RegionKind::ExternalMemory:
    case RegionKind::MemoryDevice:
        return true;
    case RegionKind::ReadWindow:
    case RegionKind::Registers:
    case RegionKind::BlackBox:
    case RegionKind::ExtensionPort:
        return false;
    }
    return false;
}

QString regionKindName(RegionKind kind)
{
    switch (kind) {
    case RegionKind::TightlyCoupledMemory:
        return QStringLiteral("tightly coupled memory");
    case RegionKind::ExternalMemory:
        return QStringLiteral("port to an external memory");
    case RegionKind::MemoryDevice:
        return QStringLiteral("memory device");
    case RegionKind::ReadWindow:
        return QStringLiteral("read window");
    case RegionKind::Registers:
        return QStringLiteral("registers");
    case RegionKind::BlackBox:
        return QStringLiteral("black box");
    case RegionKind::ExtensionPort:
        return QStringLiteral("extension port");
    }
    return {};
}

QVector<Region> fixedRegions(const OptionMap &options, const QString &device)
{
    QVector<Region> regions;
    addMemories(regions, options, device);
    for (const RegionRow &row : rows) {
        if (isOn(options, row.option))
            regions.append(
                {row.name, row.base, row.last, row.kind, row.bus, row.option, row.ports, row.text});
    }
    addPorts(regions, options);
    std::sort(regions.begin(), regions.end(),
              [](const Region &a, const Region &b) { return a.base < b.base; });
    return regions;
}

} // namespace TARVOORIXM1
