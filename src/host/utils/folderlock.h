#pragma once

#include "utils_global.h"

#include <QString>

#include <memory>

#include <sys/types.h>

namespace Utils
{

// The right to write into a folder: at most one object at a time has it, in all processes. It ends
// with the object and, whatever may happen, with the process: the system holds it for an open file.
//
// The file, ".tarvo-run.lock" in the folder, is removed at the end. A killed process leaves it,
// which hinders nobody.
class TARVO_UTILS_EXPORT FolderLock
{
public:
    // Does not wait. Null if there is no such folder, it is in use or the file cannot be made: one
    // sentence with the folder, the file and the reason is in `*error` (may be null) then.
    static std::shared_ptr<FolderLock> take(const QString &folder, QString *error);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    // Whether `folder` is the folder, by whatever name.
    bool covers(const QString &folder) const;

private:
    FolderLock() = default;

    QByteArray m_path;
    int m_fd = -1;
    dev_t m_device = 0; // of the folder
    ino_t m_inode = 0;
};

} // namespace Utils
