#pragma once

#include "result.h"
#include "utils_global.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Utils
{

// A file of a set.
struct BundleFile {
    QString path; // below the folder, with "/": "drivers/uart.c"
    QByteArray bytes;
    QString group; // the part of the set that it belongs to
};

// A set of files below a folder, made anew from time to time. A manifest in the folder says what
// was written, so that a file that is out of date can be told from one that somebody has changed.
struct Bundle {
    QString folder;            // made when it is written
    QString manifest;          // the name of a file in the folder
    QVector<BundleFile> files; // no path twice
    QStringList groups;        // that `files` speaks for, also those without a file
    // What the manifest names of other groups stays as it is; otherwise it is left over.
    bool keepsOtherGroups = true;
};

// One file as it stands below the folder.
struct BundleEntry {
    enum State {
        Fresh, // holds the bytes of the set
        Missing,
        Stale,    // as the last write has left it; the set has other bytes by now
        Edited,   // neither: changed since the last write, or never written by one
        LeftOver, // as an earlier write has left it; the set has no such file any more
        LeftOverEdited
    };

    QString path;
    QString group;
    State state = Fresh; // before a write, if there was one
    // By a write: the file below the folder that holds now what stood in an edited one.
    QString keptAs;
};

struct BundleReport {
    QVector<BundleEntry> entries; // those of the set in its order, then the others by path
    // Sentences for the user: a manifest that counts for nothing, edited files and what has become
    // of them.
    QStringList messages;

    // Whether every file holds what it is to hold, and none is left over.
    bool isFresh() const { return count(BundleEntry::Fresh) == entries.size(); }
    int count(BundleEntry::State state) const
    {
        int number = 0;
        for (const BundleEntry &entry : entries)
            number += entry.state == state ? 1 : 0;
        return number;
    }
};

// What a write would do.
struct BundlePlan {
    BundleReport report; // that it would return
    // In the order in which they are placed: what is kept of edited files (in no group), the files
    // that do not hold their bytes, the manifest (in no group). Left-over files are removed.
    QVector<BundleFile> written;
};

// "fresh", "missing", "stale", "edited", "left over", "left over and edited"
TARVO_UTILS_EXPORT QString bundleStateName(BundleEntry::State state);

// The groups that the folder's manifest names; empty where there is no sound manifest.
TARVO_UTILS_EXPORT QStringList bundleGroups(const QString &folder, const QString &manifest);

// Compares the set with what stands below its folder, which need not exist; writes nothing. A
// failure is a sentence: a path that leaves the folder, a file that cannot be read.
TARVO_UTILS_EXPORT Result<BundleReport> checkBundle(const Bundle &bundle);

// What writeBundle() would do with the folder as it stands; writes nothing. A failure as of
// checkBundle().
TARVO_UTILS_EXPORT Result<BundlePlan> planBundle(const Bundle &bundle);

// Writes the set and its manifest, whole or not at all: all files are on the disk before the first
// has its place, and if one cannot have its own, all is as it was. Files that hold their bytes
// already are not touched. What somebody has changed is not lost: the contents of an edited file
// stand in NAME.edited (or NAME.edited-2, …) beside it afterwards, and an edited file that is left
// over stays and is the user's from then on. Other files that are left over are removed.
//
// Takes FolderLock on the folder. A failure is a sentence with path and reason.
TARVO_UTILS_EXPORT Result<BundleReport> writeBundle(const Bundle &bundle);

} // namespace Utils
