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

// An entry is the digest of the program, a line feed and the program.
QByteArray BuildCache::find(const QByteArray &key) const
{
    const QString path = pathOf(key);
    const auto entry = Utils::readBoundedFile(path, mostBytes);
    if (!entry)
        return {};
    const int end = entry->indexOf('\n');
    const QByteArray program = entry->mid(end + 1);
    if (end < 0 || entry->left(end) != digest(program))
        return {};
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
    return program;
}

void BuildCache::keep(const QByteArray &key, const QByteArray &program) const
{
    if (Utils::FileUtils::makePath(m_folder, nullptr) &&
        Utils::FileUtils::writeFile(pathOf(key), digest(program) + '\n' + program, nullptr))
        trim();
}

void BuildCache::trim() const
{
    const QFileInfoList entries =
        QDir(m_folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Time);
    int count = 0;
    qint64 bytes = 0;
    for (const QFileInfo &entry : entries) {
        ++count;
        bytes += entry.size();
        if (count > mostEntries || bytes > mostBytes)
            QFile::remove(entry.filePath());
    }
}

} // namespace Cli
