#include "scratchfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace Synthesis
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Synthesis", text);
}

QString cannotUse(const QString &dir, const QString &reason)
{
    return tr("Cannot write into the output folder \"%1\": %2.")
        .arg(QDir::toNativeSeparators(dir), reason);
}

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

// Never follows a link: the folder holds links to the folders of the sources.
void removeTree(const QString &path)
{
    std::error_code ignored;
    std::filesystem::remove_all(QFile::encodeName(path).toStdString(), ignored);
}

} // namespace

ScratchFolder::~ScratchFolder()
{
    if (!m_path.isEmpty())
        removeTree(m_path);
}

QString ScratchFolder::create(const QString &outputDir)
{
    const QFileInfo info(outputDir);
    if (outputDir.isEmpty())
        return tr("No output folder is given.");
    if (!info.exists())
        return tr("The output folder \"%1\" does not exist.")
            .arg(QDir::toNativeSeparators(outputDir));
    if (!info.isDir())
        return tr("The output folder \"%1\" is not a folder.")
            .arg(QDir::toNativeSeparators(outputDir));
    if (::access(QFile::encodeName(outputDir).constData(), W_OK | X_OK) != 0)
        return cannotUse(outputDir, systemError());

    m_outputDir = info.absoluteFilePath();
    const QString path = m_outputDir + u'/' + name();
    auto lock = std::make_unique<QLockFile>(QString(path + QLatin1String(".lock")));
    lock->setStaleLockTime(0); // a run may take any time; only a dead owner makes a lock stale
    if (!lock->tryLock()) {
        if (lock->error() == QLockFile::LockFailedError)
            return cannotUse(outputDir, tr("another run is working there"));
        // The lock does not say why it could not be made; a file of its own does.
        QFile probe(QString(path + QLatin1String(".probe")));
        const bool opened =
            probe.open(QIODevice::WriteOnly) && probe.write("x") == 1 && probe.flush();
        const QString reason = opened ? tr("no lock file can be made there") : probe.errorString();
        probe.remove();
        return cannotUse(outputDir, reason);
    }

    removeTree(path);
    for (const QString &folder : {path, QString(path + QLatin1String("/tmp"))}) {
        if (::mkdir(QFile::encodeName(folder).constData(), 0777) != 0) {
            const QString reason = systemError();
            removeTree(path);
            return cannotUse(outputDir, reason);
        }
    }
    m_lock = std::move(lock);
    m_path = path;
    return {};
}

QString ScratchFolder::problem() const
{
    if (m_path.isEmpty())
        return {};
    const QByteArray sample(1 << 16, 'x');
    QFile probe(absolute(QStringLiteral("probe")));
    const bool written = probe.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                         probe.write(sample) == sample.size();
    // A short write leaves no reason; the next one gives it.
    if (!written && probe.isOpen())
        probe.write(sample);
    const QString reason = written ? QString() : probe.errorString();
    probe.remove();
    return written ? QString() : cannotUse(m_outputDir, reason);
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
