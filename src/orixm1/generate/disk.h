#pragma once

#include "manifest.h"

#include <utils/result.h>

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>

#include <optional>

namespace TARVOORIXM1
{

// The files among which a generation keeps its record: those of the disk.
class Disk
{
public:
    virtual ~Disk() = default;

    virtual bool exists(const QString &path) const;
    // Of a plain file. A failure is a sentence.
    virtual Utils::Result<QByteArray> read(const QString &path) const;
    // Empty for what is no plain file or cannot be read.
    virtual QByteArray digestOf(const QString &path, Digest digest) const;
    // False: a sentence in `*error`.
    virtual bool copy(const QString &from, const QString &to, QString *error);
    virtual void remove(const QString &path);
};

// Sums of large files that are asked for again and again; a file whose size or times are others, or
// so recent that they may not tell, is read anew.
class DigestMemory
{
public:
    // As Disk::digestOf().
    QByteArray digestOf(const QString &path, Digest digest);

private:
    struct Entry {
        qint64 size;
        qint64 modified; // ms
        qint64 changed;  // likewise, of anything about the file
        QByteArray sum;
    };
    QHash<QString, Entry> m_entries;
};

// The disk as it would be: what is changed is changed in memory alone.
class ImaginedDisk : public Disk
{
public:
    // `memory` must outlive it; null: none.
    explicit ImaginedDisk(DigestMemory *memory);

    bool exists(const QString &path) const override;
    Utils::Result<QByteArray> read(const QString &path) const override;
    QByteArray digestOf(const QString &path, Digest digest) const override;
    bool copy(const QString &from, const QString &to, QString *error) override;
    void remove(const QString &path) override;

    void write(const QString &path, const QByteArray &bytes);
    // Nothing if the path was not written, or removed again.
    std::optional<QByteArray> written(const QString &path) const;
    QStringList paths() const { return m_written.keys(); } // that are written, in order
    // Those of the disk that would be gone, in order.
    const QStringList &removed() const { return m_removed; }

private:
    DigestMemory *m_memory;
    QMap<QString, QByteArray> m_written;
    QStringList m_removed;
};

} // namespace TARVOORIXM1
