#pragma once

#include <dev/devicearg.h>

#include <QByteArray>
#include <QString>

namespace Workbench
{

// What an IP configuration says of itself before its options. Read as text: no value of the file
// is interpreted beyond that.
struct IpcHead {
    QString type;
    // The id of the device, or what the older group "device" names; empty if the file names none.
    QString deviceName;
    // Null if the file names none, or one that the device database does not know.
    DEV::DeviceArg device;

    bool hasUnknownDevice() const { return !deviceName.isEmpty() && device.isNull(); }

    static IpcHead of(const QByteArray &text);
    // Empty if the file cannot be read. Files above 4 MiB are not looked at.
    static IpcHead read(const QString &path);

    // The device in words: "TV2KR-18C, QFN88P, C8/I7", or what the file names.
    QString deviceWords() const;
    static QString words(const DEV::DeviceArg &device);
    // How the device differs from the project's: a few words and a sentence, both empty where the
    // two are the same or one of them is not named.
    QString difference(const DEV::DeviceArg &project) const;
    QString differenceSentence(const DEV::DeviceArg &project) const;
};

} // namespace Workbench
