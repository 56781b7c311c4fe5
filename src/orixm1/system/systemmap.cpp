#include "systemmap.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "generate/defines.h"
#include "generate/sourcefiles.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

Processor processorOf(const OptionMap &options)
{
    const auto on = [&options](QLatin1String key) { return isOn(options, key); };
    Processor processor;
    processor.interruptInputs = numberOf(options, Key::numberOfInterrupts);
    processor.hasOsExtension = on(Key::osExtension);
    processor.hasSmallMultiplier = on(Key::smallMultiplier);
    processor.isBigEndian = on(Key::bigEndian);
    processor.hasDebug = on(Key::enableDebug);
    const QString port = textOf(options, Key::debugPortSelect);
    const bool both = port == Value::jtagAndSerialWire;
    processor.hasJtag = processor.hasDebug && (both || port == Value::jtag);
    processor.hasSerialWire = processor.hasDebug && (both || port == Value::serialWire);
    processor.hasSmallDebug = processor.hasDebug && on(Key::smallDebug);
    // As generation writes them: the upper alias is never on.
    processor.itcmAtLowerAlias = on(Key::internalInstructionMemory);
    return processor;
}

QVector<Region> registerRegions(const QVector<Peripheral> &peripherals)
{
    QVector<Region> regions;
    for (const Peripheral &peripheral : peripherals) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            Region region;
            region.name = instance.name;
            region.base = instance.base;
            region.last = instance.base + (peripheral.span - 1);
            region.kind = RegionKind::Registers;
            region.bus = peripheral.bus;
            region.option = instance.option;
            region.text = instance.text.isEmpty() ? peripheral.text : instance.text;
            regions.append(region);
        }
    }
    return regions;
}

// `enabled` are those of `peripherals` that the configuration has.
QVector<InterruptLine> interruptLines(const QVector<Peripheral> &peripherals,
                                      const QVector<Peripheral> &enabled,
                                      const QVector<InterruptSource> &others,
                                      const OptionMap &options)
{
    QVector<InterruptLine> lines;
    for (const Peripheral &peripheral : enabled) {
        for (const PeripheralInstance &instance : peripheral.instances) {
            if (instance.interrupt == "NMI"_l1)
                lines.append({instance.name, InterruptLine::nonMaskable, instance.name, QString()});
        }
    }
    const QVector<InterruptSource> sources =
        enabledInterrupts(interruptSources(peripherals, others), options);
    for (const InterruptSource &source : sources) {
        for (int i = 0; i < source.count; ++i) {
            InterruptLine line;
            line.name = source.count > 1 ? source.name + QString::number(i) : source.name;
            line.number = source.number + i;
            line.source = source.name;
            line.lost = maskedInterrupt({line.name, line.number, 1, source.option}, options);
            lines.append(line);
        }
    }
    return lines;
}

QVector<FirmwareFile> firmwareFor(const QVector<Peripheral> &enabled,
                                  const QVector<FirmwareFile> &files)
{
    QVector<FirmwareFile> wanted;
    for (const FirmwareFile &file : files) {
        const bool serves =
            std::any_of(enabled.begin(), enabled.end(), [&](const Peripheral &entry) {
                return file.peripheral.isEmpty() || entry.name == file.peripheral;
            });
        if (serves)
            wanted.append(file);
    }
    return wanted;
}

bool hasInitialContents(const OptionMap &options)
{
    return isOn(options, Key::internalInstructionMemory) && isOn(options, Key::initializeItcm);
}

QVector<HardwareFile> rtlOf(const OptionMap &options, const DEV::DeviceArg &device,
                            const SystemDescription &description)
{
    using Use = HardwareFile::Use;
    QVector<HardwareFile> compiled;
    QVector<HardwareFile> included;
    for (const DataFile &file :
         isOn(options, Key::enableDebug) ? description.debugRtl : description.noDebugRtl) {
        switch (rtlUse(file.name, options, device.device())) {
        case RtlUse::Compiled:
            compiled.append({file.name, Use::Compiled, file.bytes});
            break;
        case RtlUse::Included:
            included.append({file.name, Use::Included, file.bytes});
            break;
        case RtlUse::Left:
            break;
        }
    }
    if (compiled.isEmpty())
        return {};
    OptionMap portable = options;
    if (hasInitialContents(options))
        portable.insert(Key::itcmInitializationAbsolutePath, QString(initialContentsFolder));
    const QVector<IncludeFile> generated = buildIncludeFiles(portable, device);
    for (const IncludeFile &file : generated)
        included.append({file.name, Use::Generated,
                         (file.lines + QStringList(QString())).join(u'\n').toUtf8()});
    return compiled + included;
}

} // namespace

Utils::Result<QVector<DataFile>> readInitialContents(const OptionMap &options,
                                                     const QString &generationFolder)
{
    QVector<DataFile> files;
    if (!hasInitialContents(options))
        return files;
    const QString named = QDir::cleanPath(textOf(options, Key::itcmInitializationAbsolutePath));
    const QDir folder(QDir(generationFolder).absoluteFilePath(named));
    for (int lane = 0; lane < 4; ++lane) {
        DataFile file{"itcm"_l1 + QString::number(lane), {}};
        QString reason;
        const QString path = folder.filePath(file.name);
        if (!Reading::readPlainFile(path, Reading::Limits::memoryFile, &file.bytes, &reason))
            return Utils::Failure{u'"' + QDir::toNativeSeparators(path) +
                                  "\": cannot be read: "_l1 + reason};
        files.append(file);
    }
    return files;
}

SystemMap systemMap(const OptionMap &options, const DEV::DeviceArg &device,
                    const SystemDescription &description)
{
    SystemMap map;
    map.device = device;
    map.processor = processorOf(options);
    map.options = options;
    map.peripherals = enabledPeripherals(description.peripherals, options);
    map.regions = fixedRegions(options, device.device()) + registerRegions(map.peripherals);
    std::sort(map.regions.begin(), map.regions.end(),
              [](const Region &a, const Region &b) { return a.base < b.base; });
    map.interrupts = interruptLines(description.peripherals, map.peripherals,
                                    description.otherInterrupts, options);
    map.ports = portsOf(options, device.device(), map.regions);
    map.clocks = clocksAmong(map.ports);
    map.resets = resetsAmong(map.ports);
    map.blackBoxes = blackBoxesOf(options, device.device());
    map.firmware = firmwareFor(map.peripherals, description.firmware);
    map.rtl = rtlOf(options, device, description);
    map.processorModels = description.processorModels;
    return map;
}

const Region *findRegion(const SystemMap &map, const QString &name)
{
    const auto found = std::find_if(map.regions.begin(), map.regions.end(),
                                    [&name](const Region &region) { return region.name == name; });
    return found == map.regions.end() ? nullptr : &*found;
}

const Region *regionAt(const SystemMap &map, quint32 address)
{
    const auto found =
        std::find_if(map.regions.begin(), map.regions.end(),
                     [address](const Region &region) { return region.contains(address); });
    return found == map.regions.end() ? nullptr : &*found;
}

bool isRefused(const SystemMap &map, quint32 address, BusAccess access)
{
    constexpr quint32 privateFirst = 0xE0000000;
    constexpr quint32 privateLast = 0xE00FFFFF;
    if (address >= privateFirst && address <= privateLast)
        return false;
    const Region *region = regionAt(map, address);
    return !region || (region->kind == RegionKind::ReadWindow && access == BusAccess::Write);
}

} // namespace TARVOORIXM1
