#include "scratchfolder.h"

#include "tr.h"

#include <utils/folderlock.h>
#include <utils/systemerror.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

constexpr int longestWait = 10000; // ms

QString cannotUse(const QString &dir, const QString &reason)
{
    return Tr::tr("Cannot write into the output folder \"%1\": %2.")
        .arg(QDir::toNativeSeparators(dir), reason);
}

// Never follows a link: the folder holds links to the folders of the sources. What fails once may
// succeed the next time.
void removeTree(const QString &path)
{
    for (int i = 0; i < 3; ++i) {
        std::error_code error;
        std::filesystem::remove_all(QFile::encodeName(path).toStdString(), error);
        if (!error)
            return;
    }
}

// Waits until the tool of a run that was killed is gone, which the one who kills it tells by a lock
// of the folder. False if it does not go. Where folders cannot be locked there is no waiting.
bool isQuiet(const QString &path)
{
    const int fd = ::open(QFile::encodeName(path).constData(),
                          O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return true;
    QElapsedTimer clock;
    clock.start();
    bool held = false;
    do {
        if (held)
            ::poll(nullptr, 0, 10);
        held = ::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    } while (held && !clock.hasExpired(longestWait));
    ::close(fd);
    return !held;
}

} // namespace

ScratchFolder::~ScratchFolder()
{
    if (!m_path.isEmpty())
        removeTree(m_path);
    if (m_fd >= 0)
        ::close(m_fd);
}

QString ScratchFolder::create(const QString &outputDir, std::shared_ptr<Utils::FolderLock> lock)
{
    const QFileInfo info(outputDir);
    if (outputDir.isEmpty())
        return Tr::tr("No output folder is given.");
    if (!info.exists())
        return Tr::tr("The output folder \"%1\" does not exist.")
            .arg(QDir::toNativeSeparators(outputDir));
    if (!info.isDir())
        return Tr::tr("The output folder \"%1\" is not a folder.")
            .arg(QDir::toNativeSeparators(outputDir));
    if (::access(QFile::encodeName(outputDir).constData(), W_OK | X_OK) != 0)
        return cannotUse(outputDir, Utils::systemError());

    m_outputDir = info.absoluteFilePath();
    const QString path = m_outputDir + u'/' + name();
    if (!lock || !lock->covers(m_outputDir)) {
        QString error;
        lock = Utils::FolderLock::take(m_outputDir, &error);
        if (!lock)
            return error;
    }
    if (!isQuiet(path))
        return cannotUse(outputDir, Tr::tr("the tool of a run that was killed still works there"));

    removeTree(path);
    for (const QString &folder : {path, QString(path + QLatin1String("/tmp"))}) {
        if (::mkdir(QFile::encodeName(folder).constData(), 0777) != 0) {
            const QString reason = Utils::systemError();
            removeTree(path);
            return cannotUse(outputDir, reason);
        }
    }
    // Best effort: without it a run that follows a killed one may meet its tool.
    m_fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_fd >= 0)
        ::flock(m_fd, LOCK_EX | LOCK_NB);
    m_lock = std::move(lock);
    m_path = path;
    return {};
}

QString ScratchFolder::problem() const
{
    if (m_path.isEmpty())
        return {};
    const QByteArray sample(1 << 16, 'x');
    const QByteArray probe = QFile::encodeName(absolute(QStringLiteral("probe")));
    const int fd = ::open(probe.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    qint64 written = 0;
    ssize_t step = fd < 0 ? -1 : 1;
    while (step > 0 && written < sample.size()) {
        step = ::write(fd, sample.constData() + written, size_t(sample.size() - written));
        written += step;
    }
    const QString reason =
        step <= 0 || ::fsync(fd) != 0 ? Utils::systemError(step == 0 ? EIO : errno) : QString();
    if (fd >= 0)
        ::close(fd);
    ::unlink(probe.constData());
    return reason.isEmpty() ? QString() : cannotUse(m_outputDir, reason);
}

QString ScratchFolder::relative(const QString &file)
{
    return name() + u'/' + file;
}

QString ScratchFolder::absolute(const QString &file) const
{
    return m_path + u'/' + file;
}

} // namespace Synthesis
