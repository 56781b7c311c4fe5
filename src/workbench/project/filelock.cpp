#include "filelock.h"

#include "tr.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Workbench
{

namespace
{

// Network file systems lock only what is open for writing.
int openForLock(const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_RDWR | O_CLOEXEC | O_NONBLOCK);
    return descriptor >= 0 || errno == ENOENT
               ? descriptor
               : ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

} // namespace

FileLock::FileLock(const QString &path, int patience)
{
    const QByteArray file = QFile::encodeName(path);
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    QElapsedTimer waited;
    waited.start();
    for (;;) {
        int descriptor = openForLock(file);
        const bool missing = descriptor < 0 && errno == ENOENT;
        if (missing)
            descriptor = ::open(folder.constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY);
        if (descriptor < 0) {
            fail(path, qt_error_string(errno));
            return;
        }
        while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            const int reason = errno;
            if (reason == EINTR)
                continue;
            if (reason == EWOULDBLOCK && waited.elapsed() < patience) {
                QThread::msleep(2);
                continue;
            }
            // A file system without locks: better none than no change at all.
            if (reason == ENOSYS || reason == EOPNOTSUPP || reason == EINVAL || reason == ENOLCK)
                break;
            ::close(descriptor);
            fail(path, reason == EWOULDBLOCK ? Tr::tr("another program is changing it")
                                             : qt_error_string(reason));
            return;
        }
        // Another holder may have replaced the file meanwhile.
        struct stat held = {};
        struct stat present = {};
        const bool there = ::stat(file.constData(), &present) == 0;
        const bool same = missing
                              ? !there
                              : there && ::fstat(descriptor, &held) == 0 &&
                                    held.st_dev == present.st_dev && held.st_ino == present.st_ino;
        if (same) {
            m_descriptor = descriptor;
            return;
        }
        ::close(descriptor);
        if (waited.elapsed() >= patience) {
            fail(path, Tr::tr("another program is changing it"));
            return;
        }
    }
}

FileLock::~FileLock()
{
    if (isHeld())
        ::close(m_descriptor);
}

void FileLock::fail(const QString &path, const QString &reason)
{
    m_error = Tr::tr("Cannot change \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason);
}

} // namespace Workbench
