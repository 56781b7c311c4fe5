#include "itcmpath.h"

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

QString absoluteItcmPath(const QString &path, const QString &createIn)
{
    return QFileInfo(path).isRelative() ? QFileInfo(createIn + u'/' + path).absoluteFilePath()
                                        : path;
}

QString itcmPathError(const QString &path, const QString &createIn)
{
    if (path.isEmpty())
        return QStringLiteral("ITCM Initialization Path is empty.");
    if (!QDir(absoluteItcmPath(path, createIn)).exists())
        return QStringLiteral("ITCM Initialization Path is not exist.");
    return {};
}

} // namespace TARVOORIXM1
