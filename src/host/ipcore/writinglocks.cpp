#include "writinglocks.h"

#include <QCoreApplication>
#include <QTimer>
#include <QVector>

#include <algorithm>

namespace IPCore
{

namespace
{

int pauses = 0;

QVector<std::shared_ptr<Utils::FolderLock>> &kept()
{
    static QVector<std::shared_ptr<Utils::FolderLock>> locks;
    return locks;
}

auto find(const QString &folder)
{
    return std::find_if(kept().begin(), kept().end(),
                        [&folder](const auto &lock) { return lock->covers(folder); });
}

void giveBackLater()
{
    if (!QCoreApplication::instance())
        return;
    QTimer::singleShot(0, QCoreApplication::instance(), [] {
        if (pauses == 0)
            kept().clear();
    });
}

} // namespace

bool WritingLocks::take(const QString &folder, QString *error)
{
    if (pauses == 0 && find(folder) != kept().end())
        return true;
    std::shared_ptr<Utils::FolderLock> lock = Utils::FolderLock::take(folder, error);
    if (!lock)
        return false;
    kept() << std::move(lock);
    giveBackLater();
    return true;
}

std::shared_ptr<Utils::FolderLock> WritingLocks::handOver(const QString &folder)
{
    const auto found = find(folder);
    if (found == kept().end())
        return Utils::FolderLock::take(folder, nullptr);
    std::shared_ptr<Utils::FolderLock> lock = std::move(*found);
    kept().erase(found);
    return lock;
}

void WritingLocks::giveBack(const QString &folder)
{
    const auto found = find(folder);
    if (found != kept().end())
        kept().erase(found);
}

WritingLocks::Pause::Pause()
{
    ++pauses;
}

WritingLocks::Pause::~Pause()
{
    if (--pauses == 0 && !kept().isEmpty())
        giveBackLater();
}

} // namespace IPCore
