#include "outputset.h"

#include <utils/fileutils.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace Synthesis
{

namespace
{

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QFileInfo(path).size() == bytes.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == bytes;
}

QString cannotWrite(const QString &path, const QString &reason)
{
    return QCoreApplication::translate("Synthesis", "Cannot write \"%1\": %2.")
        .arg(QDir::toNativeSeparators(path), reason);
}

} // namespace

QString placeOutputs(const QVector<Output> &outputs, const ScratchFolder &scratch)
{
    struct Pending {
        QString from;
        QString to;
    };
    QVector<Pending> files;
    for (const Output &output : outputs) {
        const QFileInfo info(output.path);
        if (info.isDir())
            return cannotWrite(output.path,
                               QCoreApplication::translate("Synthesis", "it is a folder"));
        if (holds(output.path, output.bytes))
            continue;
        const QString name =
            scratch.absolute(QLatin1String("output") + QString::number(files.size()));
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(output.bytes) != output.bytes.size() || !file.flush() ||
            ::fsync(file.handle()) != 0)
            return cannotWrite(output.path, file.errorString());
        if (info.exists())
            file.setPermissions(info.permissions());
        // A link stays, and what it leads to is replaced.
        files << Pending{name, info.exists() ? info.canonicalFilePath() : output.path};
    }
    for (const Pending &file : qAsConst(files)) {
        if (std::rename(QFile::encodeName(file.from).constData(),
                        QFile::encodeName(file.to).constData()) == 0)
            continue;
        if (errno != EXDEV)
            return cannotWrite(file.to, QString::fromLocal8Bit(std::strerror(errno)));
        // The output lies on another disk, by a link.
        QString reason;
        if (!Utils::FileUtils::copyFile(file.from, file.to, &reason))
            return reason;
    }
    return {};
}

} // namespace Synthesis
