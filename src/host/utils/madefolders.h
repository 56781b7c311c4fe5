#pragma once

#include "fileutils.h"

#include <QDir>
#include <QFileInfo>

namespace Utils
{

// Folders that are made for files and go again if these do not come.
class MadeFolders
{
public:
    bool make(const QString &folder, QString *error)
    {
        QStringList missing;
        QFileInfo info(folder);
        while (!info.exists() && info.absolutePath() != info.absoluteFilePath()) {
            missing.prepend(info.absoluteFilePath());
            info.setFile(info.absolutePath());
        }
        // Some may be made before another cannot be.
        m_folders += missing;
        return FileUtils::makePath(folder, error);
    }
    // Those that are empty.
    void takeBack()
    {
        while (!m_folders.isEmpty())
            QDir().rmdir(m_folders.takeLast());
    }

private:
    QStringList m_folders; // outermost first
};

} // namespace Utils
