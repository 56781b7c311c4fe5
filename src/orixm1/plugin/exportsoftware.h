#pragma once

#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// The forms in which a configured subsystem is handed on to software, a map each, in the order in
// which a window lists them: "name", "title", "purpose" (a sentence), "standard" (may be empty),
// "files" (the most important ones) and "checkedBy" (tools); all texts.
QVariantList softwareFormats();

// The files of these formats for the configuration in an .ipc file; no names: of all formats. A
// file of another IP than `ipId` is refused, if that is not empty. `dataPath` is the folder with
// the IP's descriptor and registers. Writes nothing. The answer: "error" (a sentence, empty if all
// went well), "files", a map each: "path" (below the folder that they are meant for, with "/"),
// "format" (its name) and "bytes" (QByteArray), and "manifest", the name of the file in which an
// export keeps account of what it has written. With an error there are no files.
QVariantMap exportSoftware(const QString &ipcFile, const QStringList &formats, const QString &ipId,
                           const QString &dataPath, const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
