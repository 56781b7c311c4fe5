#pragma once

#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// Moves the configuration in an .ipc file to another device, or only tells what that would cost. A
// file of another IP than `ipId` is refused, if that is not empty. The answer: "error" (text, empty
// if all went well), "device" (id of the new device), "losses" (sentences) and "changed" (bool: the
// file differs from what stands there, or would).
QVariantMap moveToDevice(const QString &ipcFile, const QString &deviceId, bool write,
                         const QString &ipId, const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
