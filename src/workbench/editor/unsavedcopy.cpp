#include "unsavedcopy.h"

#include <QDir>
#include <QFileInfo>

namespace Workbench::UnsavedCopy
{

namespace
{

const QString suffix = QStringLiteral(".unsaved");

QString copyOf(const QString &path, int n)
{
    return path + suffix + (n > 1 ? QString::number(n) : QString());
}

} // namespace

QString freePath(const QString &path)
{
    int n = 1;
    while (QFileInfo::exists(copyOf(path, n)))
        ++n;
    return copyOf(path, n);
}

QString newestOf(const QString &path)
{
    const QFileInfo info(path);
    const QFileInfoList entries = info.dir().entryInfoList(QDir::Files, QDir::Time);
    for (const QFileInfo &entry : entries) {
        if (originalOf(entry.fileName()) == info.fileName())
            return entry.filePath();
    }
    return {};
}

QString originalOf(const QString &copy)
{
    const int at = copy.lastIndexOf(suffix);
    if (at < 1 || copy.at(at - 1) == u'/')
        return {};
    const QString path = copy.left(at);
    return copyOf(path, copy.mid(at + suffix.size()).toInt()) == copy ? path : QString();
}

} // namespace Workbench::UnsavedCopy
