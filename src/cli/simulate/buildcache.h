#pragma once

#include <QByteArray>
#include <QString>

namespace Cli
{

// Simulations, and other things that have been built for one, kept by what they were built from.
// Any number of processes may use one folder, and any of them may be killed: an entry is whole, or
// it is not found. Where the folder cannot be used, nothing is kept.
class BuildCache
{
public:
    static constexpr int mostEntries = 30;
    static constexpr qint64 mostBytes = 512 << 20; // of all entries

    // Below the user's folder for such things (XDG_CACHE_HOME).
    static QString usersFolder();

    explicit BuildCache(const QString &folder)
        : m_folder(folder)
    {
    }

    // What tells a program on this machine from the one that was there before an update.
    static QByteArray stampOf(const QString &program);

    // `key`: text that tells everything the result depends on. Empty: there is none.
    QByteArray find(const QByteArray &key) const;
    // The entries that were used longest ago go.
    void keep(const QByteArray &key, const QByteArray &program) const;

private:
    QString pathOf(const QByteArray &key) const;
    void trim() const;

    const QString m_folder;
};

} // namespace Cli
