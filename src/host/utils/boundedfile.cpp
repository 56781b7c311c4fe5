#include "boundedfile.h"

#include "tr.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QDir>

namespace Utils
{

bool readBoundedFile(const QString &path, qint64 limit, QByteArray *bytes, QString *error)
{
    QString reason;
    if (!path.isEmpty() && Reading::readPlainFile(path, limit, bytes, &reason))
        return true;
    if (error)
        *error =
            path.isEmpty()
                ? Tr::tr("Cannot read a file without a name.")
                : Tr::tr("Cannot read \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason);
    return false;
}

bool readConfigurationFile(const QString &path, QByteArray *bytes, QString *error)
{
    return readBoundedFile(path, Reading::Limits::configuration, bytes, error);
}

} // namespace Utils
