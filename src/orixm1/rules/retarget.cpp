#include "retarget.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "corepage.h"
#include "devicerules.h"
#include "dialogdefaults.h"
#include "tcmsizes.h"

#include <QStringList>

namespace TARVOORIXM1
{

namespace
{

struct Memory {
    QLatin1String sizeKey;
    QLatin1String internalKey;
    QLatin1String name;
};

constexpr Memory memories[] = {
    {Key::itcmSize, Key::internalInstructionMemory, "ITCM"_l1},
    {Key::dtcmSize, Key::internalDataMemory, "DTCM"_l1},
};

// What generation reads a value as, so that a text of a file equals a value of a dialog.
QVariant asRead(const Option &option, const QVariant &value)
{
    switch (option.type) {
    case OptionType::Bool:
        return value.toBool();
    case OptionType::Int:
        return value.toInt();
    case OptionType::String:
        break;
    }
    return value.toString();
}

QString sizeText(const QVariant &index)
{
    return tcmSizeList(index.toInt()).value(index.toInt());
}

class Mover
{
public:
    Mover(const OptionMap &options, const DEV::DeviceArg &from, const DEV::DeviceArg &to)
        : m_old(options)
        , m_from(from)
        , m_to(to)
    {
        m_result.options = options;
    }

    Retargeted run()
    {
        takeOutBlocks();
        moveInstructionMemory();
        keepSizes();
        limitDelay();
        keepMeanings();
        balanceSizes();
        nameDevice();
        collectLosses();
        return m_result;
    }

private:
    QVariant now(QLatin1String key) const
    {
        return generatedValue(m_result.options, key, m_to.device());
    }
    bool isOn(QLatin1String key) const { return now(key).toBool(); }
    void set(const QString &key, const QVariant &value) { m_result.options[key] = value; }

    void takeOutBlocks()
    {
        for (const RestrictedBlock &block : restrictedBlocks()) {
            if (isOn(block.key) && !block.isAvailable(m_to))
                set(block.key, false);
        }
    }

    void moveInstructionMemory()
    {
        if (!isInstructionMemoryExternalOnly(m_to.device()) ||
            !isOn(Key::internalInstructionMemory))
            return;
        set(Key::internalInstructionMemory, false);
        set(Key::externalInstructionMemory, true);
    }

    void keepSizes()
    {
        const int largest = tcmSizes(m_to.device()).full.size() - 1;
        for (const Memory &memory : memories) {
            const int before = defaultTcmSizeIndex(m_from.device());
            if (!m_from.isNull() && before != defaultTcmSizeIndex(m_to.device()) &&
                !m_old.contains(memory.sizeKey))
                set(memory.sizeKey, before);
            const QVariant size = now(memory.sizeKey);
            if (largest >= 0 && size.toInt() > largest &&
                isInDomain(*findOption(memory.sizeKey), size))
                set(memory.sizeKey, largest);
        }
    }

    void limitDelay()
    {
        const int largest = largestRgmiiInputDelay(m_to.device());
        const QVariant delay = now(Key::ethernetInputDelay);
        if (delay.toInt() > largest && isInDomain(*findOption(Key::ethernetInputDelay), delay))
            set(Key::ethernetInputDelay, largest);
    }

    // What is left open means one thing to generation; a dialog of the new device must not take it
    // for another. Where the dialogs of the old one did so already, it stays open.
    void keepMeanings()
    {
        QStringList wasUnset;
        const QVector<UnsetKey> before = unsetKeys(m_old, m_from.device());
        for (const UnsetKey &entry : before)
            wasUnset.append(entry.key);
        const QVector<UnsetKey> unset = unsetKeys(m_result.options, m_to.device());
        for (const UnsetKey &entry : unset) {
            if (!wasUnset.contains(entry.key))
                set(entry.key, entry.generated);
        }
    }

    void balanceSizes()
    {
        const TcmSizes sizes = tcmSizes(m_to.device());
        for (const Memory &memory : memories) {
            if (!isInDomain(*findOption(memory.sizeKey), now(memory.sizeKey)))
                return;
        }
        if (!isOn(Key::internalInstructionMemory) ||
            tcmFit(sizes, now(Key::itcmSize).toInt(), now(Key::dtcmSize).toInt()).both())
            return;
        if (!isOn(Key::internalDataMemory)) {
            // The size of a memory that is outside counts for nothing, but the page looks at it
            // before it knows.
            if (m_from.device() != m_to.device())
                set(Key::dtcmSize, sizes.reduced.size() - 1);
            return;
        }
        // The page takes a memory for external that a file calls both; generation does not.
        OptionMap internal = m_result.options;
        internal[Key::externalInstructionMemory] = false;
        internal[Key::externalDataMemory] = false;
        const OptionMap page = acceptedCoreOptions(internal, m_to.device());
        for (const Memory &memory : memories) {
            if (page.value(memory.sizeKey).toInt() != now(memory.sizeKey).toInt())
                set(memory.sizeKey, page.value(memory.sizeKey));
        }
    }

    void nameDevice()
    {
        if (m_old.contains(Key::ipDeviceId))
            set(Key::ipDeviceId, m_to.id());
        if (m_old.contains(Key::ipDevice))
            set(Key::ipDevice, m_to.device());
    }

    // Whether the old configuration made something of the key.
    bool counted(const QString &key) const
    {
        const auto wasOn = [this](QLatin1String needed) {
            return generatedValue(m_old, needed, m_from.device()).toBool();
        };
        if (key == Key::ethernetInputDelay)
            return wasOn(Key::enableEthernet) && isOn(Key::enableEthernet) &&
                   generatedValue(m_old, Key::ethernetInterface, m_from.device()).toString() ==
                       Value::rgmii;
        for (const Memory &memory : memories) {
            if (key == memory.sizeKey)
                return wasOn(memory.internalKey) && isOn(memory.internalKey) &&
                       (!m_from.isNull() || m_old.contains(key));
        }
        // Told with the internal memory that it replaces.
        return key != Key::externalInstructionMemory;
    }

    void collectLosses()
    {
        for (const Option &option : optionTable()) {
            if (!option.isOption)
                continue;
            const QVariant before =
                asRead(option, generatedValue(m_old, option.key, m_from.device()));
            const QVariant after =
                asRead(option, generatedValue(m_result.options, option.key, m_to.device()));
            if (before != after && counted(option.key))
                m_result.losses.append({option.key, before, after});
        }
    }

    const OptionMap &m_old;
    const DEV::DeviceArg &m_from;
    const DEV::DeviceArg &m_to;
    Retargeted m_result;
};

} // namespace

Retargeted retarget(const OptionMap &options, const DEV::DeviceArg &from, const DEV::DeviceArg &to)
{
    return Mover(options, from, to).run();
}

QString lossSentence(const Loss &loss, const Retargeted &result, const DEV::DeviceArg &to)
{
    const QString name = to.device();
    for (const RestrictedBlock &block : restrictedBlocks()) {
        if (loss.key != block.key)
            continue;
        QString title = block.name;
        title[0] = title.at(0).toUpper();
        const QString owner =
            block.dependsOnPackage ? QString(name + " in package "_l1 + to.package()) : name;
        return title + " is taken out: "_l1 + owner + " cannot have it."_l1;
    }
    for (const Memory &memory : memories) {
        if (loss.key != memory.sizeKey)
            continue;
        QString sentence = "The "_l1 + memory.name + " shrinks from "_l1 + sizeText(loss.before) +
                           " to "_l1 + sizeText(loss.after) + ": "_l1 + name +
                           " has no more for it"_l1;
        const QString largest = tcmSizes(name).largest;
        if (sizeText(loss.after) != largest)
            sentence += " beside another memory of "_l1 + largest;
        sentence += u'.';
        if (loss.key == Key::itcmSize && isOn(result.options, Key::initializeItcm))
            sentence += QStringLiteral(" Its initialisation files have to be made for that size.");
        return sentence;
    }
    if (loss.key == Key::ethernetInputDelay)
        return "The RGMII input delay falls from "_l1 + loss.before.toString() + " to "_l1 +
               loss.after.toString() + ", the largest of "_l1 + name + u'.';
    if (loss.key == Key::internalInstructionMemory) {
        QString sentence = "The instruction memory moves outside: "_l1 + name +
                           " cannot have it inside. The ITCM"_l1;
        if (isOn(result.options, Key::initializeItcm))
            sentence += " and its initialisation are"_l1;
        else
            sentence += " is"_l1;
        return sentence + " lost."_l1;
    }
    return u'"' + loss.key + "\" changes from "_l1 + loss.before.toString() + " to "_l1 +
           loss.after.toString() + u'.';
}

} // namespace TARVOORIXM1
