#pragma once

#include "utils_global.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>
#include <sys/types.h>

namespace Utils
{

// New contents of one file on their way to its place. Everything that is written goes through here:
// what the system reports as an error is an error, and then the old contents stay.
//
// The contents have no name until they are complete and on the disk, so that a process that is
// killed leaves nothing behind; where the file system cannot do that, they have a hidden name of
// their own. A link is followed and stays. The permissions of an existing file stay.
//
// Functions that return false store one sentence with path and reason in `*error` (may be null).
class TARVO_UTILS_EXPORT FileReplacement
{
public:
    // The folder of `path` must exist. Where the contents need a name of their own it is in
    // `stagingFolder`, if that is given and on the same disk, else beside the file.
    explicit FileReplacement(const QString &path, const QString &stagingFolder = {});
    // For a file that goes with its folder, before prepare(): it appears in one step as well, but
    // nobody waits for the disk.
    void setPassing() { m_isPassing = true; }
    // Takes back what was prepared and not placed.
    ~FileReplacement();
    FileReplacement(const FileReplacement &) = delete;
    FileReplacement &operator=(const FileReplacement &) = delete;

    // Once: writes the contents to the disk; nothing can be seen of them yet. A file that holds the
    // same bytes already will not be touched.
    bool prepare(const QByteArray &bytes, QString *error);
    // After prepare(): puts the contents in place in one step, on the disk too. After a failure the
    // old contents are there.
    bool place(QString *error);
    // After place(): puts the old contents back, or removes the file if there was none. What cannot
    // be put back stays as it is.
    void revert();

private:
    bool fail(QString *error, const QString &reason) const;
    bool resolve(QString *error);
    int openNameless() const;
    int openNamed();
    void setApart(const struct stat &status) const;
    bool write(QString *error, bool onDisk = true);
    bool link(int *errorNumber);
    bool move(QString *error);
    bool syncFolder(int *errorNumber);
    QByteArray folder() const;
    QByteArray ownName() const;
    void discard();

    QString m_path; // as given, for messages
    QByteArray m_target;
    QByteArray m_stagingFolder;
    QByteArray m_bytes;
    QByteArray m_named; // the contents' own name; empty: none
    int m_fd = -1;
    int m_old = -1;
    mode_t m_mode = 0; // of the old file
    bool m_exists = false;
    bool m_unchanged = false;
    bool m_placed = false;
    bool m_isPassing = false;
};

} // namespace Utils
