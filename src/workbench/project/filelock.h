#pragma once

#include <QString>

namespace Workbench
{

// Keeps other holders of such a lock, in this process and in others, away from a file that is
// replaced as a whole: who holds it holds the file that stands at the path at that time. Where no
// file stands there, its folder is held. Nothing is left on disk, and the kernel releases the lock
// when the process ends, however it ends. On a file system without locks nothing is held.
class FileLock
{
public:
    // Waits at most `patience` milliseconds.
    FileLock(const QString &path, int patience);
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;
    ~FileLock();

    bool isHeld() const { return m_descriptor >= 0; }
    // A sentence with path and reason if the lock could not be had.
    QString error() const { return m_error; }

private:
    void fail(const QString &path, const QString &reason);

    int m_descriptor = -1;
    QString m_error;
};

} // namespace Workbench
