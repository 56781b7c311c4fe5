#include "boundedfile.h"

#include "tr.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>

namespace Utils
{

Result<QByteArray> readBoundedFile(const QString &path, qint64 limit)
{
    if (path.isEmpty())
        return Failure{Tr::tr("Cannot read a file without a name.")};
    QByteArray bytes;
    QString reason;
    if (Reading::readPlainFile(path, limit, &bytes, &reason))
        return bytes;
    return Failure{Tr::tr("Cannot read \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason)};
}

Result<QByteArray> readConfigurationFile(const QString &path)
{
    return readBoundedFile(path, Reading::Limits::configuration);
}

} // namespace Utils
