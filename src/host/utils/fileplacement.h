#pragma once

#include "result.h"
#include "utils_global.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace Utils
{

// A file of a folder.
struct PlacedFile {
    QString name; // without "/"
    QByteArray bytes;
};

// Files that take their places in a folder together: all of them or none. Unlike writeBundle() it
// leaves no account of them there, and what stood in their places is gone.
class TARVO_UTILS_EXPORT FilePlacement
{
public:
    FilePlacement();
    ~FilePlacement();
    FilePlacement(const FilePlacement &) = delete;
    FilePlacement &operator=(const FilePlacement &) = delete;

    // Once: makes the folder if need be and writes the files. All are on the disk before the first
    // has its place; a file that holds its bytes already is not touched. A failure is a sentence
    // with path and reason, and all is as it was.
    Result<void> place(const QString &folder, const QVector<PlacedFile> &files);
    // After place(): puts back what was there before.
    void revert();
    // Of the files, in their order.
    QStringList paths() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils
