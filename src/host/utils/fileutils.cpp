#include "fileutils.h"

#include "boundedfile.h"
#include "filereplacement.h"
#include "systemerror.h"
#include "tr.h"
#include "utf8names.h"

#include <reading/limits.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Utils
{

namespace
{

bool fail(QString *error, const char *text, const QString &path, const QString &reason)
{
    if (error)
        *error = Tr::tr(text).arg(QDir::toNativeSeparators(path), reason);
    return false;
}

// The new folder's entry is on the disk.
bool syncParent(const QByteArray &folder)
{
    const int slash = folder.lastIndexOf('/');
    const QByteArray parent = slash <= 0 ? QByteArray("/") : folder.left(slash);
    const int fd = ::open(parent.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return errno == EACCES; // it may be written but not read
    const bool synced = uninterrupted([fd] { return ::fsync(fd); }) == 0 || errno == EINVAL ||
                        errno == EOPNOTSUPP || errno == ENOSYS;
    const int number = errno;
    ::close(fd);
    errno = number;
    return synced;
}

} // namespace

bool FileUtils::copyFile(const QString &source, const QString &destination, QString *error)
{
    QByteArray bytes;
    return readFile(source, &bytes, error) && writeFile(destination, bytes, error);
}

bool FileUtils::writeFile(const QString &path, const QByteArray &bytes, QString *error)
{
    FileReplacement file(path);
    return file.prepare(bytes, error) && file.place(error);
}

bool FileUtils::writePassingFile(const QString &path, const QByteArray &bytes, QString *error)
{
    FileReplacement file(path);
    file.setPassing();
    return file.prepare(bytes, error) && file.place(error);
}

bool FileUtils::writeLines(const QString &path, const QStringList &lines, QString *error)
{
    QByteArray bytes;
    for (const QString &line : lines)
        bytes += line.toUtf8() + '\n';
    return writeFile(path, bytes, error);
}

bool FileUtils::readFile(const QString &path, QByteArray *bytes, QString *error)
{
    const Result<QByteArray> read = readBoundedFile(path, Reading::Limits::anyFile);
    if (read)
        *bytes = *read;
    else if (error)
        *error = read.reason();
    return bool(read);
}

bool FileUtils::makePath(const QString &path, QString *error)
{
    if (path.isEmpty()) {
        if (error)
            *error = Tr::tr("Cannot make a folder without a name.");
        return false;
    }
    // What is meant has another name.
    if (isDamagedName(path) && !QFileInfo::exists(path))
        return fail(error, "Cannot make the folder \"%1\": %2.", path,
                    Tr::tr("its name is not UTF-8"));
    QStringList missing;
    QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    for (;;) {
        const QByteArray name = QFile::encodeName(info.absoluteFilePath());
        const QString shown = QDir::toNativeSeparators(info.absoluteFilePath());
        struct stat status = {};
        const bool found =
            ::stat(name.constData(), &status) == 0 || ::lstat(name.constData(), &status) == 0;
        if (found && S_ISDIR(status.st_mode))
            break;
        if (found)
            return fail(error, "Cannot make the folder \"%1\": %2.", path,
                        (S_ISLNK(status.st_mode) ? Tr::tr("\"%1\" is a link that leads nowhere")
                                                 : Tr::tr("\"%1\" is a file"))
                            .arg(shown));
        missing.prepend(info.absoluteFilePath());
        if (info.absolutePath() == info.absoluteFilePath())
            break;
        info.setFile(info.absolutePath());
    }
    for (const QString &folder : qAsConst(missing)) {
        const QByteArray name = QFile::encodeName(folder);
        const bool made = ::mkdir(name.constData(), 0777) == 0;
        if (made ? syncParent(name) : errno == EEXIST && QFileInfo(folder).isDir())
            continue;
        const int number = errno;
        if (made)
            ::rmdir(name.constData());
        const QString parent = QDir::toNativeSeparators(QFileInfo(folder).absolutePath());
        QString reason = Tr::tr("\"%1\" is not writable").arg(parent);
        if (number != EACCES || ::access(QFile::encodeName(parent).constData(), W_OK) == 0)
            reason = folder == missing.last()
                         ? systemError(number)
                         : QString(QLatin1Char('"') + QDir::toNativeSeparators(folder) +
                                   QLatin1String("\": ") + systemError(number));
        return fail(error, "Cannot make the folder \"%1\": %2.", path, reason);
    }
    return true;
}

} // namespace Utils
