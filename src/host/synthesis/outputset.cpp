#include "outputset.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <memory>
#include <vector>

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

QString placeOutputs(const QVector<Output> &outputs)
{
    std::vector<std::unique_ptr<QSaveFile>> files;
    for (const Output &output : outputs) {
        if (QFileInfo(output.path).isDir())
            return cannotWrite(output.path,
                               QCoreApplication::translate("Synthesis", "it is a folder"));
        if (holds(output.path, output.bytes))
            continue;
        auto file = std::make_unique<QSaveFile>(output.path);
        if (!file->open(QIODevice::WriteOnly) || file->write(output.bytes) != output.bytes.size() ||
            !file->flush())
            return cannotWrite(output.path, file->errorString());
        files.push_back(std::move(file));
    }
    for (const auto &file : files) {
        if (!file->commit())
            return cannotWrite(file->fileName(), file->errorString());
    }
    return {};
}

} // namespace Synthesis
