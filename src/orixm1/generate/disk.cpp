#include "disk.h"

#include "config/tr.h"

#include <reading/limits.h>
#include <reading/plainfile.h>
#include <utils/fileutils.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace TARVOORIXM1
{

namespace
{

constexpr qint64 smallFile = Reading::Limits::mebibyte;
constexpr qint64 settled = 2000; // ms after which a change shows in a file's times

bool readFrom(const QString &path, QByteArray *bytes)
{
    QString reason;
    return Reading::readPlainFile(path, Reading::Limits::anyFile, bytes, &reason);
}

} // namespace

bool Disk::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

Utils::Result<QByteArray> Disk::read(const QString &path) const
{
    QByteArray bytes;
    QString reason;
    if (Reading::readPlainFile(path, Reading::Limits::anyFile, &bytes, &reason))
        return bytes;
    return Utils::Failure{
        Tr::tr("\"%1\" cannot be read: %2.").arg(QDir::toNativeSeparators(path), reason)};
}

QByteArray Disk::digestOf(const QString &path, Digest digest) const
{
    QByteArray bytes;
    return readFrom(path, &bytes) ? digest(bytes) : QByteArray();
}

bool Disk::copy(const QString &from, const QString &to, QString *error)
{
    return Utils::FileUtils::copyFile(from, to, error);
}

void Disk::remove(const QString &path)
{
    QFile::remove(path);
}

QByteArray DigestMemory::digestOf(const QString &path, Digest digest)
{
    const QFileInfo info(path);
    if (!info.exists() || info.size() <= smallFile)
        return Disk().digestOf(path, digest);
    const Entry now{info.size(), info.lastModified().toMSecsSinceEpoch(),
                    info.metadataChangeTime().toMSecsSinceEpoch(), QByteArray()};
    const auto found = m_entries.constFind(path);
    if (found != m_entries.constEnd() && found->size == now.size &&
        found->modified == now.modified && found->changed == now.changed)
        return found->sum;
    const qint64 newest = std::max(now.modified, now.changed);
    const bool isSettled = QDateTime::currentMSecsSinceEpoch() - newest > settled;
    const QByteArray sum = Disk().digestOf(path, digest);
    m_entries.remove(path);
    if (isSettled && !sum.isEmpty())
        m_entries.insert(path, {now.size, now.modified, now.changed, sum});
    return sum;
}

ImaginedDisk::ImaginedDisk(DigestMemory *memory)
    : m_memory(memory)
{
}

std::optional<QByteArray> ImaginedDisk::written(const QString &path) const
{
    const auto found = m_written.constFind(path);
    return found == m_written.constEnd() ? std::nullopt : std::optional<QByteArray>(*found);
}

bool ImaginedDisk::exists(const QString &path) const
{
    return m_written.contains(path) || (!m_removed.contains(path) && Disk::exists(path));
}

Utils::Result<QByteArray> ImaginedDisk::read(const QString &path) const
{
    if (const auto bytes = written(path))
        return *bytes;
    if (m_removed.contains(path))
        return Utils::Failure{Tr::tr("\"%1\" cannot be read: %2.")
                                  .arg(QDir::toNativeSeparators(path), qt_error_string(ENOENT))};
    return Disk::read(path);
}

QByteArray ImaginedDisk::digestOf(const QString &path, Digest digest) const
{
    if (const auto bytes = written(path))
        return digest(*bytes);
    if (m_removed.contains(path))
        return {};
    return m_memory ? m_memory->digestOf(path, digest) : Disk::digestOf(path, digest);
}

bool ImaginedDisk::copy(const QString &from, const QString &to, QString *)
{
    QByteArray bytes;
    if (const auto there = written(from))
        bytes = *there;
    else
        readFrom(from, &bytes);
    write(to, bytes);
    return true;
}

void ImaginedDisk::write(const QString &path, const QByteArray &bytes)
{
    m_removed.removeAll(path);
    m_written.insert(path, bytes);
}

void ImaginedDisk::remove(const QString &path)
{
    m_written.remove(path);
    if (Disk::exists(path) && !m_removed.contains(path))
        m_removed.append(path);
}

} // namespace TARVOORIXM1
