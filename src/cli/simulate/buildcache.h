#pragma once

#include <QByteArray>
#include <QString>

namespace Cli
{

// What takes long to make (simulations, results of synthesis), kept by what it was made from. Any
// number of processes may use one folder, and any of them may be killed: an entry is whole, or it
// is not found. Where the folder cannot be used, nothing is kept.
class BuildCache
{
public:
    static constexpr int mostEntries = 200;
    static constexpr qint64 mostBytes = 512 << 20; // of all entries

    // For simulations, below the user's folder for such things (XDG_CACHE_HOME).
    static QString usersFolder();

    explicit BuildCache(const QString &folder, int entries = mostEntries, qint64 bytes = mostBytes)
        : m_folder(folder)
        , m_mostEntries(entries)
        , m_mostBytes(bytes)
    {
    }

    // What tells a program on this machine from the one that was there before an update.
    static QByteArray stampOf(const QString &program);

    // `key`: text that tells everything the result depends on. Empty: there is none. An entry that
    // is not what was kept is removed; a sentence on it is in `*note` (may be null) then.
    QByteArray find(const QByteArray &key, QString *note = nullptr) const;
    // The entries that were used longest ago go.
    void keep(const QByteArray &key, const QByteArray &program) const;
    // Removes an entry that makes no sense, as find() does.
    void drop(const QByteArray &key, QString *note) const;

private:
    QString pathOf(const QByteArray &key) const;
    void trim(const QString &newest) const;

    const QString m_folder;
    const int m_mostEntries;
    const qint64 m_mostBytes;
};

} // namespace Cli
