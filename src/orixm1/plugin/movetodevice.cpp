#include "movetodevice.h"

#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "configuration.h"
#include "rules/retarget.h"

#include <dev/devicedb.h>
#include <ipcore/ipcore.h>

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

} // namespace

QVariantMap moveToDevice(const QString &ipcFile, const QString &deviceId, bool write,
                         const QString &ipId, const DEV::DeviceDb &devices)
{
    const Utils::Result<Configuration> read = readConfiguration(ipcFile, ipId, devices);
    if (!read)
        return answer(read.reason());
    const DEV::DeviceArg to = devices.findDevice(deviceId);
    if (to.isNull())
        return answer("The device \""_l1 + deviceId + "\" is not known."_l1);
    const Retargeted moved = retarget(read->options, read->device, to);
    QStringList losses;
    for (const Loss &loss : moved.losses)
        losses.append(lossSentence(loss, moved, to));
    const bool changed = read->deviceText != to.id() || moved.options != read->options;
    if (write && changed) {
        IPCore::writeIPConfig(ipcFile, IpcFile::movedHeader(read->others, read->type, to.id()),
                              moved.options);
        // The host tells nobody whether it could write.
        const QSettings settings(ipcFile, QSettings::IniFormat);
        if (IpcFile::deviceText(settings) != to.id())
            return answer(shownPath(ipcFile) + " could not be written."_l1, to.id(), losses, false);
    }
    return answer(QString(), to.id(), losses, changed);
}

} // namespace TARVOORIXM1
