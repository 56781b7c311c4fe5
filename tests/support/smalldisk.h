#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <cerrno>
#include <cstring>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

// A real disk that is full, for tests of what happens then.
namespace TestSupport
{

// Mounts a file system of 64 KiB at `folder`, for this process only; it is gone when the process
// ends. Returns the reason if that is not possible.
inline QString mountSmallDisk(const QString &folder)
{
    if (geteuid() != 0)
        return QStringLiteral("only root can mount a small disk");
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=64k") != 0)
        return QStringLiteral("no small disk can be mounted here: ") +
               QString::fromLocal8Bit(strerror(errno));
    return {};
}

inline void unmount(const QString &folder)
{
    umount(QFile::encodeName(folder).constData());
}

// Fills the disk up to `free` bytes with the file "filler".
inline bool fillDisk(const QString &disk, int free)
{
    QFile filler(QString(disk + QLatin1String("/filler")));
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    while (filler.write(QByteArray(4096, 'f')) == 4096) {
    }
    return filler.resize(filler.size() - free);
}

} // namespace TestSupport
