#pragma once

#include <QString>
#include <QVariantMap>

namespace DEV
{
class DeviceDb;
}

namespace TARVOORIXM1
{

// How the folder of an .ipc file of the IP `ipId` stands to what a generation would put there:
// {"error": a sentence, and then nothing else; "state": "fresh", "missing", "stale", "edited" or
// "foreign"; "reasons": what has changed since, a line each; "files": what a generation makes, a
// map each with "path" (full) and "state"; "watched": full paths of the user's files and folders on
// which all that depends}. No tool is started, so its version is not compared. Nothing is written.
QVariantMap generationAnswer(const QString &ipcFile, const QString &ipId, const QVariantMap &ipInfo,
                             const DEV::DeviceDb &devices);

} // namespace TARVOORIXM1
