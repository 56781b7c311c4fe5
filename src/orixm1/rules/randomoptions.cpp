#include "randomoptions.h"

#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "devicerules.h"
#include "dialogdefaults.h"
#include "newoptions.h"
#include "tcmsizes.h"

#include <random>

namespace TARVOORIXM1
{

namespace
{

// Distributions of the library differ from one implementation to the next; the engine does not.
class Lot
{
public:
    explicit Lot(quint64 seed)
        : m_engine(seed)
    {
    }
    // From 0 up to, but not, `limit`, which is positive.
    int below(int limit) { return int(m_engine() % quint64(limit)); }

private:
    std::mt19937_64 m_engine;
};

QVariant drawnValue(const Option &option, int density, Lot &lot)
{
    if (option.type == OptionType::Bool)
        return lot.below(4) < density;
    if (!option.choices.isEmpty())
        return optionValueFromText(option, option.choices.at(lot.below(option.choices.size())));
    return option.minimum + lot.below(option.maximum - option.minimum + 1);
}

bool isOpen(const Option &option)
{
    return option.type == OptionType::String && option.choices.isEmpty();
}

void drawMemories(const QString &device, Lot &lot, OptionMap *options)
{
    const bool outside = isInstructionMemoryExternalOnly(device) || lot.below(4) == 0;
    options->insert(Key::internalInstructionMemory, !outside);
    options->insert(Key::externalInstructionMemory, outside);
    const bool dataOutside = lot.below(4) == 0;
    options->insert(Key::internalDataMemory, !dataOutside);
    options->insert(Key::externalDataMemory, dataOutside);

    const TcmSizes sizes = tcmSizes(device);
    options->remove(Key::itcmSize);
    options->remove(Key::dtcmSize);
    if (sizes.full.isEmpty())
        return;
    int itcm = lot.below(sizes.full.size());
    int dtcm = lot.below(sizes.full.size());
    const TcmFit fit = tcmFit(sizes, itcm, dtcm);
    if (!fit.dtcm)
        dtcm = lot.below(sizes.reduced.size());
    else if (!fit.itcm)
        itcm = lot.below(sizes.reduced.size());
    options->insert(Key::itcmSize, itcm);
    options->insert(Key::dtcmSize, dtcm);
}

} // namespace

OptionMap randomOptions(quint64 seed, const DEV::DeviceArg &device)
{
    Lot lot(seed);
    const QString name = device.device();
    const int density = 1 + lot.below(4);
    OptionMap options;
    for (const Option &option : optionTable()) {
        if (!option.isOption || isOpen(option) || option.key == Key::initializeItcm)
            continue;
        const QVariant value = drawnValue(option, density, lot);
        if (lot.below(5) <= density)
            options.insert(option.key, value);
    }
    drawMemories(name, lot, &options);
    for (const RestrictedBlock &block : restrictedBlocks()) {
        if (!block.isAvailable(device))
            options.insert(block.key, false);
    }
    const int largestDelay = largestRgmiiInputDelay(name);
    if (numberOf(options, Key::ethernetInputDelay) > largestDelay)
        options.insert(Key::ethernetInputDelay, lot.below(largestDelay + 1));
    options = optionsForChoices(options, name, QString());
    if (!allowsExternalInterrupts(numberOf(options, Key::numberOfInterrupts)))
        options.remove(Key::externalInterrupts);
    return options;
}

} // namespace TARVOORIXM1
