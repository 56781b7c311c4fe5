#pragma once

#include <utils/result.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Workbench
{

// What a project file (.tvproj) holds: a JSON text with one source a line, made for version
// control.
struct ProjectFile {
    // The format that this program reads and writes.
    static constexpr int currentFormat = 1;
    static constexpr const char *suffix = "tvproj";

    QString deviceId;
    // In the order of compilation, with "/" separators, relative to the project's folder.
    QStringList files;
    QString topModule;
    // Entries that this program does not know. They are kept.
    QJsonObject others;

    // The same content gives the same bytes.
    QByteArray toText() const;

    // A failure is a sentence with the path and the reason; a text that is no JSON is reported with
    // its line and column.
    static Utils::Result<ProjectFile> fromText(const QByteArray &text, const QString &path);
    static Utils::Result<ProjectFile> read(const QString &path);
    Utils::Result<void> write(const QString &path) const;

    bool operator==(const ProjectFile &other) const
    {
        return deviceId == other.deviceId && files == other.files && topModule == other.topModule &&
               others == other.others;
    }
};

} // namespace Workbench
