#pragma once

#include "utils_global.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Utils
{

// Files that appear whole or not at all.
//
// Every function returns false on failure and then stores one sentence that names the path and the
// reason in `*error` (which may be null). `*error` is left alone on success.
class TARVO_UTILS_EXPORT FileUtils
{
public:
    // Copies the contents of one file, overwriting `destination`; a new file gets the usual
    // permissions, not those of `source`. A destination that holds the same bytes already is not
    // touched.
    static bool copyFile(const QString &source, const QString &destination, QString *error);

    // Writes `bytes` to `path` through a temporary file in the same folder that replaces `path` at
    // the end. A file that holds the same bytes already is not touched. The folder must exist. A
    // link is followed; what is neither a plain file nor missing is refused.
    static bool writeFile(const QString &path, const QByteArray &bytes, QString *error);

    // The same for a file that is of no use after its program, which does not wait for the disk.
    static bool writePassingFile(const QString &path, const QByteArray &bytes, QString *error);

    // Writes each entry as one line: UTF-8, ended by a line feed. No entries give an empty file.
    static bool writeLines(const QString &path, const QStringList &lines, QString *error);

    // Reads the whole of a plain file; see readBoundedFile() in boundedfile.h, whose limit is 1 GiB
    // here.
    static bool readFile(const QString &path, QByteArray *bytes, QString *error);

    // Makes a folder with all missing parents; an existing folder is a success.
    static bool makePath(const QString &path, QString *error);
};

} // namespace Utils
