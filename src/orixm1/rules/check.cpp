#include "check.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "config/plaintext.h"
#include "devicerules.h"
#include "dialogdefaults.h"
#include "generationfolder.h"
#include "itcmcontents.h"
#include "itcmpath.h"
#include "tcmsizes.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// Collects the findings about one configuration.
class Checker
{
public:
    Checker(const OptionMap &options, const DEV::DeviceArg &device, const QString &createInPath)
        : m_options(options)
        , m_device(device)
        , m_createInPath(createInPath)
    {
    }

    QVector<Finding> run()
    {
        for (auto it = m_options.cbegin(); it != m_options.cend(); ++it)
            checkEntry(it.key(), it.value());
        checkMemoryChoice(Key::internalInstructionMemory, Key::externalInstructionMemory,
                          QStringLiteral("instruction"));
        checkMemoryChoice(Key::internalDataMemory, Key::externalDataMemory, QStringLiteral("data"));
        checkInitialisation();
        checkInterrupts();
        checkCan();
        checkEthernet();
        if (!m_device.isNull()) {
            checkDevice();
            checkSizes();
        }
        checkGeneratedTexts();
        checkUnsetKeys();
        return m_findings;
    }

private:
    void add(Finding::Severity severity, const QString &key, const QString &message)
    {
        m_findings.append({severity, key, message});
    }

    bool isOn(QLatin1String key) const { return TARVOORIXM1::isOn(m_options, key); }
    QString textOf(QLatin1String key) const { return TARVOORIXM1::textOf(m_options, key); }

    void checkEntry(const QString &key, const QVariant &value)
    {
        if (key == Key::createInPath) {
            add(Finding::Warning, key, QStringLiteral("is ignored: the folder of the file counts"));
            return;
        }
        const Option *option = findOption(key);
        if (!option) {
            // Looking for it takes time; a file with so many is no slip of the pen.
            constexpr int mostSlips = 100;
            const QString nearest =
                ++m_unknownKeys <= mostSlips ? nearestOptionKey(key) : QString();
            add(Finding::Warning, key,
                nearest.isEmpty()
                    ? QStringLiteral("unknown key")
                    : QStringLiteral("unknown key; the nearest known one is \"%1\"").arg(nearest));
            return;
        }
        const QVariant typed = optionValueFromText(*option, value.toString());
        if (!typed.isValid() || (value.type() == QVariant::StringList)) {
            add(Finding::Error, key,
                "\""_l1 + shown(value) + "\" is no "_l1 + typeName(option->type));
        } else if (!isInDomain(*option, typed)) {
            add(Finding::Error, key,
                "\""_l1 + shown(value) + "\" is out of its domain: "_l1 + domainText(*option));
        }
    }

    static QString shown(const QVariant &value)
    {
        constexpr int limit = 60;
        const QString text = value.type() == QVariant::StringList
                                 ? value.toStringList().join(", "_l1)
                                 : value.toString();
        return text.size() > limit ? QString(text.left(limit) + QChar(0x2026)) : text;
    }

    void checkMemoryChoice(QLatin1String internalKey, QLatin1String externalKey,
                           const QString &memory)
    {
        const bool internal = isOn(internalKey);
        const bool external = isOn(externalKey);
        if (internal && external)
            add(Finding::Warning, externalKey,
                QStringLiteral("is ignored: the internal %1 memory is chosen as well").arg(memory));
        if (!internal && !external)
            add(Finding::Warning, internalKey,
                QStringLiteral("neither internal nor external %1 memory is chosen").arg(memory));
    }

    void checkInitialisation()
    {
        if (!isOn(Key::initializeItcm))
            return;
        if (!isOn(Key::internalInstructionMemory)) {
            add(Finding::Warning, Key::initializeItcm,
                QStringLiteral("is ignored: the instruction memory is not internal"));
            return;
        }
        const QString path = textOf(Key::itcmInitializationPath);
        if (path.isEmpty()) {
            add(Finding::Error, Key::itcmInitializationPath,
                QStringLiteral("is empty although the ITCM is to be initialised"));
        } else if (!QDir(QDir(m_createInPath).absoluteFilePath(path)).exists()) {
            add(Finding::Error, Key::itcmInitializationPath,
                "the folder \""_l1 + path + "\" does not exist"_l1);
        }
        const QString absolute = textOf(Key::itcmInitializationAbsolutePath);
        if (absolute.isEmpty()) {
            add(Finding::Error, Key::itcmInitializationAbsolutePath,
                QStringLiteral("is empty, so that generation has no folder to name"));
        } else if (!QDir(absolute).exists()) {
            add(Finding::Error, Key::itcmInitializationAbsolutePath,
                "the folder \""_l1 + absolute + "\" does not exist"_l1);
        } else if (!QFileInfo(absolute).isAbsolute()) {
            add(Finding::Warning, Key::itcmInitializationAbsolutePath,
                QStringLiteral("is not absolute"));
        } else {
            checkItcmContents();
        }
    }

    void checkItcmContents()
    {
        // Without a device the size may be unknown.
        if (m_device.isNull() && !m_options.contains(Key::itcmSize))
            return;
        const QVector<ItcmMistake> mistakes =
            itcmMistakes(m_options, m_device.device(), generationFolder(m_createInPath));
        for (const ItcmMistake &mistake : mistakes)
            add(Finding::Error, Key::itcmInitializationAbsolutePath, mistake.text());
    }

    void checkInterrupts()
    {
        const int interrupts = numberOf(m_options, Key::numberOfInterrupts);
        if (isOn(Key::externalInterrupts) && !allowsExternalInterrupts(interrupts))
            add(Finding::Warning, Key::externalInterrupts,
                QStringLiteral("needs 16 or 32 interrupts"));
    }

    void checkCan()
    {
        if (isOn(Key::enableCan) && textOf(Key::canBufferDepth).isEmpty())
            add(Finding::Error, Key::canBufferDepth,
                QStringLiteral(
                    "is not set although CAN is on: the generated parameter has no value"));
    }

    // What stands in a generated line as it is.
    void checkGeneratedTexts()
    {
        if (isOn(Key::enableCan))
            checkGeneratedText(Key::canBufferDepth, textOf(Key::canBufferDepth));
        if (!isOn(Key::initializeItcm) || !isOn(Key::internalInstructionMemory))
            return;
        checkGeneratedText(Key::itcmInitializationAbsolutePath,
                           textOf(Key::itcmInitializationAbsolutePath));
        // The dialogs make the absolute path of this one.
        checkGeneratedText(Key::itcmInitializationPath,
                           absoluteItcmPath(textOf(Key::itcmInitializationPath), m_createInPath));
    }

    void checkGeneratedText(QLatin1String key, const QString &text)
    {
        const QString unsafe = unsafeCharacter(text);
        if (!unsafe.isEmpty())
            add(Finding::Error, key,
                QStringLiteral("\"%1\" holds %2, which a generated line cannot hold")
                    .arg(shown(text).simplified(), unsafe));
    }

    // Keys that generation reads otherwise than the dialogs, which would change the result without
    // a choice of the user.
    void checkUnsetKeys()
    {
        const QVector<UnsetKey> unset = unsetKeys(m_options, m_device.device());
        for (const UnsetKey &entry : unset) {
            const bool isTold =
                std::any_of(m_findings.begin(), m_findings.end(), [&entry](const Finding &told) {
                    return told.key == entry.key || told.key == otherMemory(entry.key);
                });
            if (isTold || (entry.key == Key::ethernetInputDelay && !isRgmii()))
                continue;
            add(Finding::Warning, entry.key,
                QStringLiteral("is not set: %1 is generated, but its dialog shows %2 and stores "
                               "that with OK")
                    .arg(entry.generated.toString(), entry.dialog.toString()));
        }
    }

    // Of the two keys that say where a memory is, the one beside `key`; empty for any other key.
    static QString otherMemory(const QString &key)
    {
        constexpr QLatin1String pairs[][2] = {
            {Key::internalInstructionMemory, Key::externalInstructionMemory},
            {Key::internalDataMemory, Key::externalDataMemory}};
        for (const auto &pair : pairs) {
            if (key == pair[0])
                return pair[1];
            if (key == pair[1])
                return pair[0];
        }
        return {};
    }

    bool isRgmii() const { return textOf(Key::ethernetInterface) == Value::rgmii; }

    void checkEthernet()
    {
        if (!isOn(Key::enableEthernet))
            return;
        const QString name = m_device.device();
        const int largest = largestRgmiiInputDelay(name);
        const QVariant delay = valueOf(m_options, Key::ethernetInputDelay);
        // What no device has is reported already.
        if (!m_device.isNull() && delay.toInt() > largest &&
            isInDomain(*findOption(Key::ethernetInputDelay), delay))
            add(Finding::Error, Key::ethernetInputDelay,
                QStringLiteral("is more than %1, the largest delay of %2")
                    .arg(QString::number(largest), name));
    }

    void checkDevice()
    {
        const QString name = m_device.device();
        for (const RestrictedBlock &block : restrictedBlocks()) {
            if (block.isAvailable(m_device) || !generatedValue(m_options, block.key, name).toBool())
                continue;
            QString what = block.name;
            if (block.dependsOnPackage)
                what += " in package "_l1 + m_device.package();
            add(Finding::Error, block.key, QStringLiteral("%1 cannot have %2").arg(name, what));
        }
        if (isInstructionMemoryExternalOnly(name) && isOn(Key::internalInstructionMemory))
            add(Finding::Error, Key::internalInstructionMemory,
                QStringLiteral("the instruction memory of %1 is always external").arg(name));

        const QString storedId = textOf(Key::ipDeviceId);
        if (!storedId.isEmpty() && storedId != m_device.id())
            add(Finding::Warning, Key::ipDeviceId,
                "is \""_l1 + storedId + "\", but the target device is \""_l1 + m_device.id() +
                    u'"');
        const QString storedName = textOf(Key::ipDevice);
        if (!storedName.isEmpty() && storedName != name)
            add(Finding::Warning, Key::ipDevice,
                "is \""_l1 + storedName + "\", but the target device is \""_l1 + name + u'"');
    }

    // -1: the memory is not internal, or its index is reported already.
    int internalSize(QLatin1String sizeKey, QLatin1String internalKey, const TcmSizes &sizes)
    {
        if (!isOn(internalKey) || sizes.full.isEmpty())
            return -1;
        const QString name = m_device.device();
        const int index = generatedValue(m_options, sizeKey, name).toInt();
        if (index < 0 || index > 9)
            return -1;
        if (index >= sizes.full.size()) {
            add(Finding::Error, sizeKey,
                QStringLiteral("%1 is more than %2 has: at most %3")
                    .arg(tcmSizeList(index).constLast(), name, sizes.largest));
            return -1;
        }
        return index;
    }

    void checkSizes()
    {
        const TcmSizes sizes = tcmSizes(m_device.device());
        const int itcm = internalSize(Key::itcmSize, Key::internalInstructionMemory, sizes);
        const int dtcm = internalSize(Key::dtcmSize, Key::internalDataMemory, sizes);
        if (itcm < 0 || dtcm < 0)
            return;
        const TcmFit fit = tcmFit(sizes, itcm, dtcm);
        if (!fit.itcm && !fit.dtcm) {
            add(Finding::Error, Key::dtcmSize,
                QStringLiteral("both memories have the device's largest size, %1; one may have %2 "
                               "at most then")
                    .arg(sizes.largest, sizes.reduced.last()));
        } else if (!fit.both()) {
            add(Finding::Error, fit.dtcm ? Key::itcmSize : Key::dtcmSize,
                QStringLiteral("may be %1 at most while the other memory has %2")
                    .arg(sizes.reduced.last(), sizes.largest));
        }
    }

    const OptionMap &m_options;
    const DEV::DeviceArg &m_device;
    const QString m_createInPath;
    int m_unknownKeys = 0;
    QVector<Finding> m_findings;
};

} // namespace

QVector<Finding> checkOptions(const OptionMap &options, const DEV::DeviceArg &device,
                              const QString &createInPath)
{
    return Checker(options, device, createInPath).run();
}

} // namespace TARVOORIXM1
