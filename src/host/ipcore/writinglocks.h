#pragma once

#include <utils/folderlock.h>

#include <QString>

#include <memory>

namespace IPCore
{

// The right to write into an IP's folder on its way from makeDirs(), which an IP calls first, to
// the run that it starts. An IP goes that way without returning to the event loop, so what no run
// has taken over by then is given back.
namespace WritingLocks
{

// Takes the right and keeps it. An IP that is told of a failure and tries again is not hindered by
// what it has taken before. False, and a sentence in `*error`, if that is not possible.
bool take(const QString &folder, QString *error);

// What take() has kept for a folder; without that, what can be had now. Null if another has it.
std::shared_ptr<Utils::FolderLock> handOver(const QString &folder);

// The IP writes nothing more into this folder.
void giveBack(const QString &folder);

// While an object lives, a window of the host is shown in the middle of an IP's way: the event loop
// runs, but nothing is given back.
class Pause
{
public:
    Pause();
    ~Pause();
    Q_DISABLE_COPY(Pause)
};

} // namespace WritingLocks

} // namespace IPCore
