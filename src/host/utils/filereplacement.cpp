#include "filereplacement.h"

#include "systemerror.h"
#include "tr.h"
#include "utf8names.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Utils
{

namespace
{

constexpr int mostLinks = 40;
constexpr int mostTries = 100;

// Closing tells nothing new of a file that is on the disk already, or was only read.
void close(int *fd)
{
    if (*fd >= 0)
        ::close(*fd);
    *fd = -1;
}

// A call that fails once may succeed the next time.
bool remove(const QByteArray &path)
{
    return ::unlink(path.constData()) == 0 || errno == ENOENT || ::unlink(path.constData()) == 0;
}

bool writeAll(int fd, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const ssize_t step = uninterrupted([&] {
            return ::write(fd, bytes.constData() + written, size_t(bytes.size() - written));
        });
        if (step == 0)
            errno = EIO;
        if (step <= 0)
            return false;
        written += step;
    }
    return true;
}

// From the start; false if it cannot be read.
bool readAll(int fd, qint64 size, QByteArray *bytes)
{
    char buffer[1 << 16];
    bytes->clear();
    bytes->reserve(int(size));
    while (bytes->size() < size) {
        const ssize_t step =
            uninterrupted([&] { return ::pread(fd, buffer, sizeof buffer, off_t(bytes->size())); });
        if (step <= 0)
            return false;
        bytes->append(buffer, int(step));
    }
    return true;
}

bool isUnsupported(int number)
{
    return number == EINVAL || number == EOPNOTSUPP || number == ENOSYS;
}

// Some file systems have nothing to synchronize.
bool sync(int fd)
{
    return uninterrupted([fd] { return ::fsync(fd); }) == 0 || isUnsupported(errno);
}

QByteArray folderOf(const QByteArray &path)
{
    const int slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : slash == 0 ? QByteArray("/") : path.left(slash);
}

} // namespace

FileReplacement::FileReplacement(const QString &path, const QString &stagingFolder)
    : m_path(path)
    , m_target(QFile::encodeName(path))
    , m_stagingFolder(QFile::encodeName(stagingFolder))
{
}

FileReplacement::~FileReplacement()
{
    discard();
    close(&m_old);
}

bool FileReplacement::fail(QString *error, const QString &reason) const
{
    if (error)
        *error = Tr::tr("Cannot write \"%1\": %2.").arg(QDir::toNativeSeparators(m_path), reason);
    return false;
}

QByteArray FileReplacement::folder() const
{
    return folderOf(m_target);
}

// Hidden, the same for each try, so that what a killed process may have left is used up, and short
// however long the file's own name is.
QByteArray FileReplacement::ownName() const
{
    const QByteArray name = m_target.mid(m_target.lastIndexOf('/') + 1);
    const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex();
    return folder() + "/.tarvo-" + hash.left(16) + ".new";
}

void FileReplacement::discard()
{
    close(&m_fd);
    if (!m_named.isEmpty())
        remove(m_named);
    m_named.clear();
}

// Follows links, also to a file that is not there yet.
bool FileReplacement::resolve(QString *error)
{
    struct stat status = {};
    for (int i = 0;; ++i) {
        if (::lstat(m_target.constData(), &status) != 0) {
            if (errno != ENOENT)
                return fail(error, systemError());
            return true;
        }
        if (!S_ISLNK(status.st_mode))
            break;
        char buffer[4096];
        const ssize_t size = ::readlink(m_target.constData(), buffer, sizeof buffer);
        if (size < 0 || i == mostLinks)
            return fail(error, systemError(size < 0 ? errno : ELOOP));
        const QByteArray target(buffer, int(size));
        m_target = target.startsWith('/') ? target : QByteArray(folder() + '/' + target);
    }
    if (S_ISDIR(status.st_mode))
        return fail(error, Tr::tr("it is a folder"));
    // A device or a pipe would be replaced by a plain file, and reading one may never end.
    if (!S_ISREG(status.st_mode))
        return fail(error, Tr::tr("it is not a plain file"));
    m_exists = true;
    m_mode = status.st_mode & 0777;
    // For a comparison and for revert(). Where it cannot be read there is neither.
    m_old = ::open(m_target.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    return true;
}

int FileReplacement::openNameless() const
{
    return uninterrupted(
        [this] { return ::open(folder().constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0666); });
}

int FileReplacement::openNamed()
{
    QByteArray place = folder();
    struct stat beside = {};
    struct stat staging = {};
    if (!m_stagingFolder.isEmpty() && ::stat(place.constData(), &beside) == 0 &&
        ::stat(m_stagingFolder.constData(), &staging) == 0 && beside.st_dev == staging.st_dev)
        place = m_stagingFolder;
    for (int i = 0; i < mostTries; ++i) {
        m_named = place + "/.tarvo-" +
                  QByteArray::number(QRandomGenerator::global()->generate64(), 16) + ".new";
        const int fd = uninterrupted([this] {
            return ::open(m_named.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
        });
        if (fd >= 0 || errno != EEXIST) {
            if (fd < 0)
                m_named.clear();
            return fd;
        }
    }
    m_named.clear();
    return -1;
}

// Whoever looks at time and size alone, as QSettings does in milliseconds, notices the new contents
// also where they come within the same tick of the clock as the old ones.
void FileReplacement::setApart(const struct stat &status) const
{
    const auto milliseconds = [](const struct timespec &time) {
        return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
    };
    struct stat old = {};
    if (m_old < 0 || ::fstat(m_old, &old) != 0)
        return;
    const qint64 before = milliseconds(old.st_mtim);
    const qint64 ahead = before - milliseconds(status.st_mtim);
    constexpr qint64 otherClock = 1000; // a file from further ahead is none of the last writes
    if (ahead < 0 || ahead > otherClock)
        return;
    const qint64 next = before + 1;
    const struct timespec times[2] = {{0, UTIME_OMIT},
                                      {time_t(next / 1000), long(next % 1000) * 1000000}};
    ::futimens(m_fd, times);
}

bool FileReplacement::write(QString *error, bool onDisk)
{
    if (m_fd < 0)
        return fail(error, systemError());
    struct stat status = {};
    bool written = writeAll(m_fd, m_bytes) && ::fstat(m_fd, &status) == 0 &&
                   (!m_exists || (status.st_mode & 0777) == m_mode || ::fchmod(m_fd, m_mode) == 0);
    if (written) {
        setApart(status);
        written = m_isPassing || sync(m_fd) || !onDisk;
    }
    if (written)
        return true;
    const int number = errno;
    discard();
    return fail(error, systemError(number));
}

bool FileReplacement::prepare(const QByteArray &bytes, QString *error)
{
    if (m_path.isEmpty()) {
        if (error)
            *error = Tr::tr("Cannot write a file without a name.");
        return false;
    }
    if (isDamagedName(m_path) && !QFileInfo::exists(m_path))
        return fail(error, Tr::tr("its name is not UTF-8"));
    if (!resolve(error))
        return false;
    struct stat status = {};
    QByteArray old;
    if (m_old >= 0 && ::fstat(m_old, &status) == 0 && status.st_size == bytes.size() &&
        readAll(m_old, status.st_size, &old) && old == bytes) {
        m_unchanged = true;
        return true;
    }
    if (m_exists && ::access(m_target.constData(), W_OK) != 0)
        return fail(error, errno == EACCES ? Tr::tr("it is not writable") : systemError());
    m_bytes = bytes;
    m_fd = openNameless();
    // Old kernels see a folder that is opened for writing.
    if (m_fd < 0 && (isUnsupported(errno) || errno == EISDIR || errno == ENOENT))
        m_fd = openNamed();
    return write(error);
}

// Gives the nameless contents their place. Where another process is doing the same for the same
// file, the later one wins.
bool FileReplacement::link(int *errorNumber)
{
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(m_fd);
    const auto linkTo = [&self](const QByteArray &name) {
        return ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, name.constData(),
                        AT_SYMLINK_FOLLOW) == 0;
    };
    if (!m_exists && linkTo(m_target))
        return true;
    if (!m_exists && errno != EEXIST) {
        *errorNumber = errno;
        return false;
    }
    const QByteArray own = ownName();
    for (int i = 0; i < mostTries; ++i) {
        if (!linkTo(own)) {
            *errorNumber = errno;
            if (errno == EEXIST && remove(own))
                continue;
            return false;
        }
        m_named = own;
        const bool renamed = std::rename(own.constData(), m_target.constData()) == 0;
        *errorNumber = errno;
        if (renamed)
            m_named.clear();
        if (renamed || *errorNumber != ENOENT)
            return renamed;
    }
    return false;
}

bool FileReplacement::syncFolder(int *errorNumber)
{
    int fd = uninterrupted(
        [this] { return ::open(folder().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    // A folder that may be written but not read: the whole disk, then.
    const bool synced = fd >= 0 ? sync(fd) : errno == EACCES ? ::syncfs(m_fd) == 0 : false;
    *errorNumber = errno;
    close(&fd);
    return synced;
}

// Gives the contents that are on the disk their place.
bool FileReplacement::move(QString *error)
{
    int number = 0;
    if (m_named.isEmpty()) {
        if (link(&number))
            return true;
        // Where there are no such links the contents need a name from the start.
        if (!isUnsupported(number) && number != EPERM && number != EXDEV && number != ENOENT &&
            number != EMLINK) {
            discard();
            return fail(error, systemError(number));
        }
        discard();
        m_fd = openNamed();
        if (!write(error))
            return false;
    }
    const auto rename = [this, &number] {
        const bool renamed = std::rename(m_named.constData(), m_target.constData()) == 0;
        number = errno;
        if (renamed)
            m_named.clear();
        return renamed;
    };
    if (rename())
        return true;
    discard();
    if (number != EXDEV || m_stagingFolder.isEmpty())
        return fail(error, systemError(number));
    m_stagingFolder.clear();
    m_fd = openNamed();
    if (!write(error))
        return false;
    if (rename())
        return true;
    discard();
    return fail(error, systemError(number));
}

bool FileReplacement::place(QString *error)
{
    if (m_unchanged)
        return true;
    if (m_fd < 0)
        return fail(error, systemError(EBADF));
    if (!move(error))
        return false;
    m_placed = true;
    int number = 0;
    if (m_isPassing || syncFolder(&number)) {
        close(&m_fd);
        return true;
    }
    revert();
    return fail(error, systemError(number));
}

void FileReplacement::revert()
{
    if (!m_placed)
        return;
    m_placed = false;
    close(&m_fd);
    if (!m_exists) {
        remove(m_target);
        return;
    }
    struct stat status = {};
    if (m_old < 0 || ::fstat(m_old, &status) != 0 || !readAll(m_old, status.st_size, &m_bytes))
        return;
    m_fd = openNameless();
    if (m_fd < 0)
        m_fd = openNamed();
    // The disk may be why they are put back.
    if (write(nullptr, false))
        move(nullptr);
    discard();
}

} // namespace Utils
