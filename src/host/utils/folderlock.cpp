#include "folderlock.h"

#include "systemerror.h"
#include "tr.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Utils
{

namespace
{

constexpr int mostTries = 1000;

// Never waits, whatever stands there. A file of another user may be locked all the same.
int openLock(const QByteArray &path)
{
    constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    int fd =
        uninterrupted([&] { return ::open(path.constData(), O_RDWR | O_CREAT | flags, 0666); });
    if (fd < 0 && errno == EACCES) {
        fd = uninterrupted([&] { return ::open(path.constData(), O_RDONLY | flags); });
        if (fd < 0 && errno == ENOENT)
            errno = EACCES;
    }
    return fd;
}

} // namespace

std::shared_ptr<FolderLock> FolderLock::take(const QString &folder, QString *error)
{
    const QByteArray path = QFile::encodeName(folder) + "/.tarvo-run.lock";
    const QString shown = QDir::toNativeSeparators(QFile::decodeName(path));
    const auto fail = [&](const QString &reason) {
        if (error)
            *error = Tr::tr("Cannot write into the output folder \"%1\": %2.")
                         .arg(QDir::toNativeSeparators(folder), reason);
        return std::shared_ptr<FolderLock>();
    };
    const auto notMade = [&](int number) {
        return fail(
            Tr::tr("its lock file \"%1\" cannot be made: %2").arg(shown, systemError(number)));
    };

    const std::shared_ptr<FolderLock> lock(new FolderLock);
    struct stat status = {};
    if (folder.isEmpty() || ::stat(QFile::encodeName(folder).constData(), &status) != 0)
        return fail(systemError(folder.isEmpty() ? ENOENT : errno));
    lock->m_device = status.st_dev;
    lock->m_inode = status.st_ino;
    for (int i = 0; i < mostTries; ++i) {
        const int fd = openLock(path);
        if (fd < 0 && (errno == ELOOP || errno == EISDIR || errno == ENXIO))
            return fail(Tr::tr("its lock file \"%1\" is not a plain file; delete it").arg(shown));
        if (fd < 0)
            return notMade(errno);
        lock->m_fd = fd;
        if (::fstat(fd, &status) != 0)
            return notMade(errno);
        if (!S_ISREG(status.st_mode))
            return fail(Tr::tr("its lock file \"%1\" is not a plain file; delete it").arg(shown));
        if (uninterrupted([fd] { return ::flock(fd, LOCK_EX | LOCK_NB); }) != 0) {
            if (errno == EWOULDBLOCK)
                return fail(
                    Tr::tr("its lock file \"%1\" is held until that run ends: another run is "
                           "working there")
                        .arg(shown));
            return fail(
                Tr::tr("its lock file \"%1\" cannot be locked: %2").arg(shown, systemError()));
        }
        // Whoever had it before may have removed the file since it was opened here.
        struct stat named = {};
        if (::lstat(path.constData(), &named) == 0 && named.st_dev == status.st_dev &&
            named.st_ino == status.st_ino) {
            lock->m_path = path;
            return lock;
        }
        ::close(fd);
        lock->m_fd = -1;
    }
    return fail(Tr::tr("its lock file \"%1\" does not stay").arg(shown));
}

FolderLock::~FolderLock()
{
    struct stat own = {};
    struct stat named = {};
    // Removed while it is still held, so that nobody can have locked it again.
    if (!m_path.isEmpty() && ::fstat(m_fd, &own) == 0 && ::lstat(m_path.constData(), &named) == 0 &&
        own.st_dev == named.st_dev && own.st_ino == named.st_ino &&
        ::unlink(m_path.constData()) != 0)
        ::unlink(m_path.constData()); // what fails once may succeed the next time
    if (m_fd >= 0)
        ::close(m_fd);
}

bool FolderLock::covers(const QString &folder) const
{
    struct stat status = {};
    return ::stat(QFile::encodeName(folder).constData(), &status) == 0 &&
           status.st_dev == m_device && status.st_ino == m_inode;
}

} // namespace Utils
