#include "movetodevice.h"

#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "rules/retarget.h"

#include <dev/devicedb.h>
#include <ipcore/ipcore.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace TARVOORIXM1
{

namespace
{

QVariantMap answer(const QString &error, const QString &device = QString(),
                   const QStringList &losses = QStringList(), bool changed = false)
{
    return {{QStringLiteral("error"), error},
            {QStringLiteral("device"), device},
            {QStringLiteral("losses"), losses},
            {QStringLiteral("changed"), changed}};
}

QString shown(const QString &path)
{
    return u'"' + QDir::toNativeSeparators(path) + u'"';
}

// Why the file cannot be used; empty if it can.
QString unusable(const QString &ipcFile)
{
    if (!QFileInfo(ipcFile).isFile())
        return shown(ipcFile) + " is no file."_l1;
    QFile file(ipcFile);
    if (!file.open(QIODevice::ReadOnly))
        return shown(ipcFile) + " cannot be read: "_l1 + file.errorString() + u'.';
    return IpcFile::danger(ipcFile);
}

} // namespace

QVariantMap moveToDevice(const QString &ipcFile, const QString &deviceId, bool write,
                         const QString &ipId, const DEV::DeviceDb &devices)
{
    if (const QString error = unusable(ipcFile); !error.isEmpty())
        return answer(error);
    const DEV::DeviceArg to = devices.findDevice(deviceId);
    if (to.isNull())
        return answer("The device \""_l1 + deviceId + "\" is not known."_l1);
    OptionMap options;
    QVariantMap header;
    DEV::DeviceArg from;
    QString before;
    {
        QSettings settings(ipcFile, QSettings::IniFormat);
        if (settings.status() != QSettings::NoError)
            return answer(shown(ipcFile) + " is no IP configuration file."_l1);
        if (!IpcFile::isVersionAccepted(settings))
            return answer(shown(ipcFile) + " has a version that this IP does not know."_l1);
        const QString type = IpcFile::type(settings);
        if (!ipId.isEmpty() && !type.isEmpty() && type != ipId)
            return answer(shown(ipcFile) + " is a configuration of \""_l1 + type +
                          "\", not of this IP."_l1);
        from = IpcFile::readDevice(settings, devices);
        before = IpcFile::deviceText(settings);
        IpcFile::readOptions(settings, options);
        header =
            IpcFile::movedHeader(IpcFile::otherEntries(settings), IpcFile::type(settings), to.id());
    }
    const Retargeted moved = retarget(options, from, to);
    QStringList losses;
    for (const Loss &loss : moved.losses)
        losses.append(lossSentence(loss, moved, to));
    const bool changed = before != to.id() || moved.options != options;
    if (write && changed) {
        IPCore::writeIPConfig(ipcFile, header, moved.options);
        // The host tells nobody whether it could write.
        const QSettings settings(ipcFile, QSettings::IniFormat);
        if (IpcFile::deviceText(settings) != to.id())
            return answer(shown(ipcFile) + " could not be written."_l1, to.id(), losses, false);
    }
    return answer(QString(), to.id(), losses, changed);
}

} // namespace TARVOORIXM1
