#pragma once

#include "latin1literal.h"
#include "optionmap.h"

#include <dev/chipfilter.h>
#include <dev/devicearg.h>

#include <QString>

QT_FORWARD_DECLARE_CLASS(QSettings)

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// The .ipc file: an INI file with the identity of an IP at the top level and its options in the
// group "Config".
namespace IpcFile
{

inline constexpr QLatin1String acceptedVersion = "1.0"_l1;
inline constexpr QLatin1String configGroup = "Config"_l1;
inline constexpr QLatin1String suffix = ".ipc"_l1;

// Why QSettings must not open the file, as a sentence for the user: what is no plain file may never
// end, and an object in it may overflow the stack. Empty where nothing speaks against it, also for
// a file that does not exist.
QString danger(const QString &ipcFile);

// The text of a file's "version" entry must be exactly this; also false when the entry is missing.
bool isVersionAccepted(const QSettings &settings);

// The device that the file names: the one with the id "target_device", or, in a file without that
// entry, the first that matches the group "device". A null record when the file names none or an
// unknown one.
DEV::DeviceArg readDevice(QSettings &settings, const DEV::DeviceDb &devices);

// Inserts every entry of the group "Config" into `options`, except the folder of the file's author.
void readOptions(QSettings &settings, OptionMap &options);

// Every entry that is neither an option nor part of the identity, by its full key: what somebody
// else has put into the file.
QVariantMap otherEntries(QSettings &settings);

// Every entry outside of the options, by its full key: what stays when only options are edited.
QVariantMap frame(QSettings &settings);

// The id of the IP that the file belongs to.
QString type(const QSettings &settings);

// What the file says of its device, for messages.
QString deviceText(const QSettings &settings);

// The top-level entries of a new file.
QVariantMap header(const QString &deviceId, const QVariantMap &ipInfo);
// The id of the device in such a header; empty if it has none.
QString deviceIdOf(const QVariantMap &header);

// All entries of a file outside of its options, for the same configuration on another device:
// its other entries and type are kept.
QVariantMap movedHeader(const QVariantMap &others, const QString &type, const QString &deviceId);

// createInPath + "/" + the descriptor's target + ".ipc"
QString path(const QString &createInPath, const QVariantMap &ipInfo);

} // namespace IpcFile

} // namespace TARVOORIXM1
