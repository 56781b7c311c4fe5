#include "upgrade.h"

#include "config/choices.h"
#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "config/nearest.h"
#include "config/optionkeys.h"
#include "config/optiontable.h"
#include "config/optionvalue.h"
#include "optionmeaning.h"
#include "retarget.h"
#include "tcmsizes.h"

#include <dev/devicedb.h>

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <optional>

namespace TARVOORIXM1
{

namespace
{

constexpr QLatin1String targetDevice = "target_device"_l1;
constexpr QLatin1String typeEntry = "type"_l1;
constexpr QLatin1String versionEntry = "version"_l1;
constexpr QLatin1String deviceGroup = "device"_l1;

QString quoted(const QString &text)
{
    constexpr int limit = 60;
    return u'"' + (text.size() > limit ? QString(text.left(limit) + QChar(0x2026)) : text) + u'"';
}

// Without what people leave out or put in between words.
QString bare(const QString &text)
{
    QString letters;
    for (const QChar c : text) {
        if (c.isLetterOrNumber())
            letters += c.toCaseFolded();
    }
    return letters;
}

QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar c : text) {
        if (c.isDigit())
            digits += c;
    }
    return digits;
}

// The one of `known` that a slip of the pen has made `text` of; empty if that is not clear. A
// number is never taken for another one.
QString meantText(const QString &text, const QStringList &known)
{
    const QString letters = bare(text);
    constexpr int longest = 100;
    if (letters.isEmpty() || letters.size() > longest)
        return {};
    int best = qMax(1, letters.size() / 6);
    QStringList meant;
    for (const QString &candidate : known) {
        if (digitsOf(candidate) != digitsOf(text))
            continue;
        const int distance = slips(letters, bare(candidate));
        if (distance > best)
            continue;
        if (distance < best)
            meant.clear();
        best = distance;
        meant.append(candidate);
    }
    return meant.size() == 1 ? meant.first() : QString();
}

std::optional<int> wholeNumber(const QString &text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    constexpr double most = 1e9;
    if (!ok || number < -most || number > most || number != double(int(number)))
        return {};
    return int(number);
}

std::optional<bool> truthOf(const QString &text)
{
    for (const char *yes : {"yes", "on", "y", "t", "enabled"}) {
        if (text.compare(QLatin1String(yes), Qt::CaseInsensitive) == 0)
            return true;
    }
    for (const char *no : {"no", "off", "n", "f", "disabled", ""}) {
        if (text.compare(QLatin1String(no), Qt::CaseInsensitive) == 0)
            return false;
    }
    return {};
}

// The index of a size that somebody wrote in kilobytes.
std::optional<int> sizeIndex(const QString &text)
{
    constexpr int lastIndex = 9;
    QString size = text.trimmed();
    if (size.endsWith("KB"_l1, Qt::CaseInsensitive))
        size = size.chopped(2).trimmed();
    const int index = tcmSizeList(lastIndex).indexOf(size + " KB"_l1);
    return index < 0 ? std::optional<int>() : index;
}

// The smallest choice that is enough, or the largest there is.
QString nextChoice(const QStringList &choices, int number)
{
    QString largest;
    for (const QString &choice : choices) {
        largest = choice;
        if (choice.toInt() >= number)
            break;
    }
    return largest;
}

// What was meant by a value that is none of the option's; invalid if that cannot be told.
QVariant meantValue(const Option &option, const QString &stored)
{
    const QString text = stored.trimmed();
    if (const QVariant typed = optionValueFromText(option, text);
        typed.isValid() && isInDomain(option, typed))
        return typed;
    if (option.type == OptionType::Bool) {
        const std::optional<bool> truth = truthOf(text);
        const std::optional<int> number = wholeNumber(text);
        return truth ? QVariant(*truth) : number ? QVariant(*number != 0) : QVariant();
    }
    if (option.key == Key::itcmSize || option.key == Key::dtcmSize) {
        if (const std::optional<int> index = sizeIndex(text))
            return *index;
    }
    if (option.key == Key::lang && languageNames().contains(text, Qt::CaseInsensitive))
        return languageNames().indexOf(meantText(text, languageNames()));
    const std::optional<int> number = wholeNumber(text);
    if (option.choices.isEmpty())
        return number && option.minimum <= option.maximum
                   ? QVariant(qBound(option.minimum, *number, option.maximum))
                   : QVariant();
    bool numbers = false;
    option.choices.first().toInt(&numbers);
    const QString choice = numbers ? number ? nextChoice(option.choices, *number) : QString()
                           : option.choices.contains(text) ? text
                                                           : meantText(text, option.choices);
    return choice.isEmpty() ? QVariant() : optionValueFromText(option, choice);
}

class Upgrader
{
public:
    Upgrader(const QVariantMap &entries, const QString &ipId, const DEV::DeviceDb &devices,
             const DEV::DeviceArg &chosen)
        : m_ipId(ipId)
        , m_devices(devices)
        , m_chosen(chosen)
    {
        for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
            if (it.key().section(u'/', 0, -2) == IpcFile::configGroup)
                m_result.options.insert(it.key().section(u'/', -1), texts(it.value()));
            else
                m_result.frame.insert(it.key(), it.value());
        }
    }

    Upgraded run()
    {
        mendIdentity();
        const DEV::DeviceArg device = mendDevice();
        takeInStrays();
        if (m_result.options.remove(Key::createInPath) > 0)
            tell(Key::createInPath, "is ignored: the folder of the file counts"_l1,
                 "is removed"_l1);
        const QStringList keys = m_result.options.keys();
        for (const QString &key : keys) {
            if (!findOption(key))
                mendKey(key);
        }
        const QStringList known = m_result.options.keys();
        for (const QString &key : known) {
            if (const Option *option = findOption(key))
                mendValue(*option, device);
        }
        if (!device.isNull())
            fitDevice(device);
        return m_result;
    }

private:
    // QSettings gives a list of values instead of texts where one begins with an "@".
    static QVariant texts(const QVariant &value)
    {
        return value.type() == QVariant::List ? QVariant(value.toStringList()) : value;
    }

    void tell(const QString &key, const QString &problem, const QString &fix, bool isMade = true)
    {
        m_result.mends.append({key, problem, fix, isMade});
    }

    QString frameText(const QString &key) const
    {
        const auto entry = m_result.frame.constFind(key);
        return entry == m_result.frame.cend() ? QString() : entry->toString();
    }

    void setEntry(QLatin1String key, const QString &text, const QString &problem)
    {
        m_result.frame.insert(key, text);
        tell(key, problem, "becomes "_l1 + quoted(text));
    }

    void mendIdentity()
    {
        const QString version = frameText(versionEntry);
        if (version != IpcFile::acceptedVersion) {
            setEntry(versionEntry, IpcFile::acceptedVersion,
                     version.isEmpty()
                         ? QStringLiteral("is missing")
                         : "is "_l1 + quoted(version) + ", a format that is not known"_l1);
        }
        if (frameText(typeEntry).isEmpty())
            setEntry(typeEntry, m_ipId, QStringLiteral("is missing"));
    }

    // An older form of the device, which nobody writes any more.
    DEV::DeviceArg groupDevice() const
    {
        DEV::ChipFilter filter;
        filter.id = frameText(deviceGroup + QStringLiteral("/id"));
        filter.package = frameText(deviceGroup + QStringLiteral("/package"));
        filter.speed = frameText(deviceGroup + QStringLiteral("/speed"));
        return m_devices.filterDevice(filter).value(0);
    }

    QStringList groupKeys() const
    {
        QStringList keys;
        for (const char *name : {"id", "package", "speed"}) {
            const QString key = deviceGroup + u'/' + QLatin1String(name);
            if (m_result.frame.contains(key))
                keys.append(key);
        }
        return keys;
    }

    // The device that a text means beyond doubt: letter case and speed grade apart, or by its part
    // number. Null if there is none.
    DEV::DeviceArg meantDevice(const QString &text) const
    {
        const QList<DEV::DeviceArg> all = m_devices.devices();
        QVector<DEV::DeviceArg> byPart;
        QVector<DEV::DeviceArg> otherSpeed;
        for (const DEV::DeviceArg &device : all) {
            if (device.id().compare(text.trimmed(), Qt::CaseInsensitive) == 0)
                return device;
            if (device.partNumber().compare(text.trimmed(), Qt::CaseInsensitive) == 0)
                byPart.append(device);
            const QString body = device.device() + u'-' + device.package();
            const QString start = text.trimmed().left(body.size() + 1);
            if (start.compare(body, Qt::CaseInsensitive) == 0 ||
                start.compare(body + u'-', Qt::CaseInsensitive) == 0)
                otherSpeed.append(device);
        }
        if (byPart.size() == 1)
            return byPart.first();
        return byPart.isEmpty() && !otherSpeed.isEmpty() ? otherSpeed.first() : DEV::DeviceArg();
    }

    DEV::DeviceArg mendDevice()
    {
        const bool isNamed = m_result.frame.contains(targetDevice);
        const QString text = frameText(targetDevice);
        const QStringList group = groupKeys();
        DEV::DeviceArg device = isNamed           ? m_devices.findDevice(text)
                                : group.isEmpty() ? DEV::DeviceArg()
                                                  : groupDevice();
        if (device.isNull()) {
            const QString problem =
                isNamed           ? "is "_l1 + quoted(text) + ", a device that is not known"_l1
                : group.isEmpty() ? QStringLiteral("is missing")
                                  : QStringLiteral("is missing, and the group [device] "
                                                   "fits no device that is known");
            device = m_chosen.isNull() && isNamed ? meantDevice(text) : m_chosen;
            if (device.isNull()) {
                tell(targetDevice, problem, deviceHint(text), false);
                return device;
            }
            setEntry(targetDevice, device.id(), problem);
        } else if (!isNamed) {
            setEntry(targetDevice, device.id(),
                     QStringLiteral("is missing: the group [device] is an older form"));
        }
        for (const QString &key : group) {
            m_result.frame.remove(key);
            tell(key, QStringLiteral("is an older form of \"target_device\""),
                 QStringLiteral("is removed"));
        }
        return device;
    }

    QString deviceHint(const QString &text) const
    {
        const QString option = QStringLiteral("name one with --device");
        QStringList ids;
        const QList<DEV::DeviceArg> all = m_devices.devices();
        for (const DEV::DeviceArg &device : all)
            ids.append(device.id());
        const QString nearest = nearestText(text, ids);
        return nearest.isEmpty()
                   ? option
                   : QString(option + "; the nearest known one is "_l1 + quoted(nearest));
    }

    // Options that stand at the top level, or in a group whose name is spelled otherwise.
    void takeInStrays()
    {
        const QStringList keys = m_result.frame.keys();
        for (const QString &key : keys) {
            const QString group = key.section(u'/', 0, -2);
            const QString option = key.section(u'/', -1);
            if ((!group.isEmpty() &&
                 group.compare(IpcFile::configGroup, Qt::CaseInsensitive) != 0) ||
                !findOption(option))
                continue;
            const QString problem = "is outside of the group ["_l1 + IpcFile::configGroup +
                                    "], where nothing reads it"_l1;
            if (m_result.options.contains(option)) {
                tell(key, problem, QStringLiteral("is left: the group has the option already"),
                     false);
                continue;
            }
            m_result.options.insert(option, m_result.frame.take(key));
            tell(key, problem, QStringLiteral("is moved into it"));
        }
    }

    void mendKey(const QString &key)
    {
        QStringList keys;
        for (const Option &option : optionTable())
            keys.append(option.key);
        const QString meant = meantText(key, keys);
        const QString problem = QStringLiteral("is no option");
        if (!meant.isEmpty() && !m_result.options.contains(meant)) {
            m_result.options.insert(meant, m_result.options.take(key));
            tell(key, problem, "becomes "_l1 + quoted(meant));
            return;
        }
        // Looking for it takes time; a file with so many is no slip of the pen.
        constexpr int mostSlips = 100;
        const QString nearest = !meant.isEmpty()               ? meant
                                : ++m_unknownKeys <= mostSlips ? nearestOptionKey(key)
                                                               : QString();
        QString fix = QStringLiteral("is left; \"unset\" removes it");
        if (!nearest.isEmpty()) {
            fix += ", and the nearest option, "_l1 + quoted(nearest);
            fix += m_result.options.contains(nearest) ? ", is there already"_l1 : ", is not set"_l1;
        }
        tell(key, problem, fix, false);
    }

    void mendValue(const Option &option, const DEV::DeviceArg &device)
    {
        const OptionMeaning stored = meaningOf(m_result.options, option.key, device);
        const QVariant raw = valueOf(m_result.options, option.key);
        const QString text = valueText(raw);
        const bool isTyped =
            raw.type() != QVariant::StringList && optionValueFromText(option, text).isValid();
        if (isTyped && isInDomain(option, stored.value))
            return;
        // A text without limits whose commas part it is one text all the same.
        const bool isOpenList = raw.type() == QVariant::StringList && domainText(option).isEmpty();
        const QString problem = isOpenList
                                    ? QStringLiteral("is several texts with commas between them")
                                    : "is "_l1 + quoted(text) + ", not "_l1 + domainText(option);
        const QVariant meant = isOpenList ? QVariant(text) : meantValue(option, text);
        const QVariant value = meant.isValid() ? meant : option.dialogDefault;
        if (value.isValid()) {
            m_result.options.insert(option.key, value);
            tell(option.key, problem, "becomes "_l1 + shown(value));
            return;
        }
        m_result.options.remove(option.key);
        const OptionMeaning absent = meaningOf(m_result.options, option.key, device);
        tell(option.key, problem,
             "is removed, which means "_l1 +
                 (device.isNull() && absent.origin == OptionMeaning::DeviceDefault
                      ? QStringLiteral("the device's own")
                      : shown(absent.value)));
    }

    static QString shown(const QVariant &value)
    {
        return value.type() == QVariant::String ? quoted(value.toString()) : valueText(value);
    }

    void fitDevice(const DEV::DeviceArg &device)
    {
        const Retargeted moved = retarget(m_result.options, device, device);
        for (auto it = moved.options.cbegin(); it != moved.options.cend(); ++it) {
            const OptionMeaning before = meaningOf(m_result.options, it.key(), device);
            const OptionMeaning after = meaningOf(moved.options, it.key(), device);
            if (before.isSameAs(after))
                continue;
            const auto loss =
                std::find_if(moved.losses.begin(), moved.losses.end(),
                             [&it](const Loss &entry) { return entry.key == it.key(); });
            const QString problem =
                loss != moved.losses.end()
                    ? "does not fit "_l1 + device.device() + ": "_l1 +
                          lossSentence(*loss, moved, device).chopped(1)
                    : "is "_l1 + shown(before.value) + ", which does not fit "_l1 + device.device();
            tell(it.key(), problem, "becomes "_l1 + shown(after.value));
        }
        m_result.options = moved.options;
    }

    const QString m_ipId;
    const DEV::DeviceDb &m_devices;
    const DEV::DeviceArg &m_chosen;
    int m_unknownKeys = 0;
    Upgraded m_result;
};

} // namespace

Upgraded upgraded(const QVariantMap &entries, const QString &ipId, const DEV::DeviceDb &devices,
                  const DEV::DeviceArg &chosen)
{
    const auto isMade = [](const Mend &mend) { return mend.isMade; };
    Upgraded result = Upgrader(entries, ipId, devices, chosen).run();
    // What was in the way of an entry may be gone now: a value that made no sense, for example,
    // where the same option stands elsewhere too.
    constexpr int mostRounds = 20;
    for (int round = 0; round < mostRounds; ++round) {
        if (std::all_of(result.mends.begin(), result.mends.end(), isMade) ||
            std::none_of(result.mends.begin(), result.mends.end(), isMade))
            break;
        QVariantMap mended = result.frame;
        for (auto it = result.options.cbegin(); it != result.options.cend(); ++it)
            mended.insert(IpcFile::configGroup + u'/' + it.key(), it.value());
        const Upgraded again = Upgrader(mended, ipId, devices, chosen).run();
        if (std::none_of(again.mends.begin(), again.mends.end(), isMade))
            break;
        QVector<Mend> mends;
        std::copy_if(result.mends.begin(), result.mends.end(), std::back_inserter(mends), isMade);
        result = {again.frame, again.options, mends + again.mends};
    }
    return result;
}

} // namespace TARVOORIXM1
