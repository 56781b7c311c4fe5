#pragma once

#include <QByteArray>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// The files from which the instruction memory of the configuration in an .ipc file starts with a
// program: an ELF or Intel HEX image, or a binary one that begins at address 0. A file of another
// IP than `ipId` is refused, if that is not empty. `dataPath` is the folder with the IP's
// registers. Writes nothing. The answer: "error" (a sentence, empty if all went well), "files", a
// map each: "path" (the file's name) and "bytes" (QByteArray), "size", "used" and "free" (bytes of
// the memory) and "warnings" (sentences). With an error there is nothing else.
QVariantMap firmwareFiles(const QString &ipcFile, const QByteArray &image, const QString &ipId,
                          const QString &dataPath, const DEV::DeviceDb &devices);

// Lets the configuration initialise its memory from such files in `folder`, one beside the .ipc
// file or a full path; empty: where it does already, else "itcm" beside it. Without `write` only
// tells what that would be. The answer: "error", "folder" (full path) and "changed" (bool: the
// .ipc file differs from what stands there, or would).
QVariantMap startFromFirmware(const QString &ipcFile, const QString &folder, bool write,
                              const QString &ipId, const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
