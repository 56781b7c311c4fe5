#pragma once

#include "result.h"
#include "utils_global.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Utils
{

// What the last write of a set of files has left below a folder. Its text (JSON, a file a line)
// holds neither times nor places, so that equal sets have equal texts.
struct TARVO_UTILS_EXPORT BundleManifest {
    struct File {
        QString path; // below the folder, with "/"
        QString group;
        QByteArray sha256; // of its bytes, 64 lower-case hexadecimal digits

        bool operator==(const File &other) const
        {
            return path == other.path && group == other.group && sha256 == other.sha256;
        }
    };

    QVector<File> files; // by path, each once
    QStringList groups;  // that were written, also those without a file; in any order

    QByteArray toText() const;
    // A failure is a sentence with `path` and, where there is one, the place.
    static Result<BundleManifest> fromText(const QByteArray &text, const QString &path);
};

// Why no file of a set may have this path, as a clause; empty if one may. A path names a file below
// a folder: it is relative and goes through neither "." nor "..", and no name in it begins with
// ".tarvo-", as temporary files and locks do.
TARVO_UTILS_EXPORT QString bundlePathMistake(const QString &path);

} // namespace Utils
