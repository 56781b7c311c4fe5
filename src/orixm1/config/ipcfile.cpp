#include "ipcfile.h"

#include "latin1literal.h"
#include "optionkeys.h"

#include <dev/devicedb.h>

#include <reading/inientries.h>
#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace TARVOORIXM1
{
namespace IpcFile
{

namespace
{

constexpr QLatin1String targetDevice = "target_device"_l1;
constexpr QLatin1String deviceGroup = "device"_l1;
constexpr QLatin1String versionEntry = "version"_l1;
constexpr QLatin1String typeEntry = "type"_l1;

} // namespace

QString danger(const QString &ipcFile)
{
    const QFileInfo info(ipcFile);
    if (!info.exists() || info.isDir())
        return {};
    QByteArray bytes;
    QString reason;
    if (Reading::readPlainFile(ipcFile, Reading::Limits::configuration, &bytes, &reason))
        reason = Reading::foreignIniValue(bytes);
    if (reason.isEmpty())
        return {};
    return u'"' + QDir::toNativeSeparators(ipcFile) + "\" cannot be used: "_l1 + reason + u'.';
}

bool isVersionAccepted(const QSettings &settings)
{
    return settings.value(versionEntry).toString() == acceptedVersion;
}

DEV::DeviceArg readDevice(QSettings &settings, const DEV::DeviceDb &devices)
{
    if (settings.contains(targetDevice))
        return devices.findDevice(settings.value(targetDevice).toString());
    if (!settings.childGroups().contains(deviceGroup, Qt::CaseSensitive))
        return {};
    settings.beginGroup(deviceGroup);
    DEV::ChipFilter filter;
    filter.id = settings.value(QStringLiteral("id")).toString();
    filter.package = settings.value(QStringLiteral("package")).toString();
    filter.speed = settings.value(QStringLiteral("speed")).toString();
    settings.endGroup();
    return devices.filterDevice(filter).value(0);
}

void readOptions(QSettings &settings, OptionMap &options)
{
    settings.beginGroup(configGroup);
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        if (key != Key::createInPath)
            options.insert(key, settings.value(key));
    }
    settings.endGroup();
}

QVariantMap otherEntries(QSettings &settings)
{
    QVariantMap entries;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        const QString group = key.section(u'/', 0, -2);
        const bool isKnown = group == configGroup || group == deviceGroup || key == targetDevice ||
                             key == typeEntry || key == versionEntry;
        if (!isKnown)
            entries.insert(key, settings.value(key));
    }
    return entries;
}

QVariantMap frame(QSettings &settings)
{
    QVariantMap entries;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (key.section(u'/', 0, -2) != configGroup)
            entries.insert(key, settings.value(key));
    }
    return entries;
}

QString type(const QSettings &settings)
{
    return settings.value(typeEntry).toString();
}

QString deviceIdOf(const QVariantMap &header)
{
    return header.value(targetDevice).toString();
}

QString deviceText(const QSettings &settings)
{
    return settings.value(targetDevice, settings.value(deviceGroup + QStringLiteral("/id")))
        .toString();
}

QVariantMap header(const QString &deviceId, const QVariantMap &ipInfo)
{
    return {
        {targetDevice, deviceId},
        {typeEntry, ipInfo.value(InfoKey::id).toString()},
        {versionEntry, QString(acceptedVersion)},
    };
}

QVariantMap movedHeader(const QVariantMap &others, const QString &type, const QString &deviceId)
{
    QVariantMap entries = others;
    entries.insert(targetDevice, deviceId);
    entries.insert(typeEntry, type);
    entries.insert(versionEntry, QString(acceptedVersion));
    return entries;
}

QString path(const QString &createInPath, const QVariantMap &ipInfo)
{
    return createInPath + u'/' + ipInfo.value(InfoKey::target).toString() + suffix;
}

} // namespace IpcFile
} // namespace TARVOORIXM1
