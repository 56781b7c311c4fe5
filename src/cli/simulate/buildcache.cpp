#include "buildcache.h"

#include <utils/boundedfile.h>
#include <utils/fileutils.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Cli
{

namespace
{

// In hexadecimal digits.
QByteArray digest(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// With the key, so that an entry under the name of another is none.
QByteArray digest(const QByteArray &key, const QByteArray &program)
{
    return digest(digest(key) + digest(program));
}

} // namespace

QString BuildCache::usersFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QLatin1String("/tarvo/simulate");
}

QByteArray BuildCache::stampOf(const QString &program)
{
    const QFileInfo file(QFileInfo(program).canonicalFilePath());
    return file.filePath().toUtf8() + ' ' + QByteArray::number(file.size()) + ' ' +
           QByteArray::number(file.lastModified().toMSecsSinceEpoch()) + '\n';
}

QString BuildCache::pathOf(const QByteArray &key) const
{
    return m_folder + u'/' + QString::fromLatin1(digest(key));
}

// An entry is the digest of key and program, a line feed and the program.
QByteArray BuildCache::find(const QByteArray &key, QString *note) const
{
    const QString path = pathOf(key);
    if (const QFileInfo info(path); !info.exists() && !info.isSymLink())
        return {};
    const auto entry = Utils::readBoundedFile(path, m_mostBytes);
    const int end = entry ? entry->indexOf('\n') : -1;
    const QByteArray program = end >= 0 ? entry->mid(end + 1) : QByteArray();
    if (end < 0 || entry->left(end) != digest(key, program)) {
        drop(key, note);
        return {};
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
    return program;
}

void BuildCache::drop(const QByteArray &key, QString *note) const
{
    const QString path = pathOf(key);
    const bool isGone = QFile::remove(path);
    if (note)
        *note = QLatin1String("The cache's entry \"") + path +
                QLatin1String("\" is not what was kept there; it is not used") +
                QLatin1String(isGone ? " and removed." : ".");
}

void BuildCache::keep(const QByteArray &key, const QByteArray &program) const
{
    if (Utils::FileUtils::makePath(m_folder, nullptr) &&
        Utils::FileUtils::writeFile(pathOf(key), digest(key, program) + '\n' + program, nullptr))
        trim(pathOf(key));
}

void BuildCache::trim(const QString &newest) const
{
    const QFileInfoList entries =
        QDir(m_folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Time);
    // Several may have come within the disk's unit of time.
    int count = 1;
    qint64 bytes = QFileInfo(newest).size();
    if (bytes > m_mostBytes)
        QFile::remove(newest);
    for (const QFileInfo &entry : entries) {
        if (entry.fileName() == QFileInfo(newest).fileName())
            continue;
        ++count;
        bytes += entry.size();
        if (count > m_mostEntries || bytes > m_mostBytes)
            QFile::remove(entry.filePath());
    }
}

} // namespace Cli
