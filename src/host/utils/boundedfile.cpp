#include "boundedfile.h"

#include <reading/limits.h>
#include <reading/plainfile.h>

#include <QCoreApplication>
#include <QDir>

namespace Utils
{

Result<QByteArray> readBoundedFile(const QString &path, qint64 limit)
{
    const auto tr = [](const char *text) {
        return QCoreApplication::translate("Utils::FileUtils", text);
    };
    if (path.isEmpty())
        return Failure{tr("Cannot read a file without a name.")};
    QByteArray bytes;
    QString reason;
    if (Reading::readPlainFile(path, limit, &bytes, &reason))
        return bytes;
    return Failure{tr("Cannot read \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason)};
}

Result<QByteArray> readConfigurationFile(const QString &path)
{
    return readBoundedFile(path, Reading::Limits::configuration);
}

} // namespace Utils
