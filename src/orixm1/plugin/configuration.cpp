#include "configuration.h"

#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "rules/generationfolder.h"
#include "system/description.h"

#include <dev/devicedb.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace TARVOORIXM1
{

namespace
{

// Why the file cannot be used; empty if it can.
QString unusable(const QString &ipcFile)
{
    if (!QFileInfo(ipcFile).isFile())
        return shownPath(ipcFile) + " is no file."_l1;
    QFile file(ipcFile);
    if (!file.open(QIODevice::ReadOnly))
        return shownPath(ipcFile) + " cannot be read: "_l1 + file.errorString() + u'.';
    return IpcFile::danger(ipcFile);
}

} // namespace

QString shownPath(const QString &path)
{
    return u'"' + QDir::toNativeSeparators(path) + u'"';
}

Utils::Result<Configuration> readConfiguration(const QString &ipcFile, const QString &ipId,
                                               const DEV::DeviceDb &devices)
{
    const auto fail = [&ipcFile](const QString &reason) {
        return Utils::Failure{shownPath(ipcFile) + u' ' + reason};
    };
    if (const QString error = unusable(ipcFile); !error.isEmpty())
        return Utils::Failure{error};
    QSettings settings(ipcFile, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError)
        return fail("is no IP configuration file."_l1);
    if (!IpcFile::isVersionAccepted(settings))
        return fail("has a version that this IP does not know."_l1);
    Configuration read;
    read.type = IpcFile::type(settings);
    if (!ipId.isEmpty() && !read.type.isEmpty() && read.type != ipId)
        return fail("is a configuration of \""_l1 + read.type + "\", not of this IP."_l1);
    read.device = IpcFile::readDevice(settings, devices);
    read.deviceText = IpcFile::deviceText(settings);
    IpcFile::readOptions(settings, read.options);
    read.others = IpcFile::otherEntries(settings);
    return read;
}

Utils::Result<SystemMap> readSystem(const QString &ipcFile, const QString &ipId,
                                    const QString &dataPath, const DEV::DeviceDb &devices)
{
    const Utils::Result<Configuration> read = readConfiguration(ipcFile, ipId, devices);
    if (!read)
        return Utils::Failure{read.reason()};
    if (read->device.isNull())
        return Utils::Failure{read->deviceText.isEmpty()
                                  ? QString(shownPath(ipcFile) + " names no device."_l1)
                                  : QString(shownPath(ipcFile) + " is made for the device \""_l1 +
                                            read->deviceText + "\", which is not known."_l1)};
    const Utils::Result<SystemDescription> description = readSystemDescription(dataPath);
    if (!description)
        return Utils::Failure{description.reason()};
    SystemMap map = systemMap(read->options, read->device, *description);
    if (const auto contents =
            readInitialContents(read->options, generationFolder(QFileInfo(ipcFile).absolutePath())))
        map.initialContents = *contents;
    return map;
}

} // namespace TARVOORIXM1
