#pragma once

#include <config/optionkeys.h>
#include <config/optionmap.h>
#include <config/optiontable.h>
#include <dev/devicearg.h>
#include <rules/devicerules.h>

#include <random>

// Random configurations that are the same ones for the same seed on every machine.
namespace TestSupport
{

using Random = std::mt19937;

// From 0 up to, but not, `limit`.
inline int below(int limit, Random &random)
{
    return int(random() % unsigned(limit));
}

// What the device can have; some configurations have little on, others nearly everything. The sizes
// of the memories and their first contents are left to the caller.
inline TARVOORIXM1::OptionMap drawnOptions(const DEV::DeviceArg &device, Random &random)
{
    using namespace TARVOORIXM1;
    OptionMap map;
    const int density = 1 + below(4, random);
    for (const Option &option : optionTable()) {
        if (!option.isOption || below(5, random) > density)
            continue;
        if (option.type == OptionType::Bool)
            map.insert(option.key, below(4, random) < density);
        else if (!option.choices.isEmpty())
            map.insert(option.key, option.choices.at(below(option.choices.size(), random)));
    }
    for (const RestrictedBlock &block : restrictedBlocks()) {
        if (!block.isAvailable(device))
            map.insert(block.key, false);
    }
    if (!map.contains(Key::canBufferDepth))
        map.insert(Key::canBufferDepth, findOption(Key::canBufferDepth)->choices.first());
    map.remove(Key::initializeItcm);
    return map;
}

} // namespace TestSupport
