#include "fileutils.h"

#include "boundedfile.h"
#include "utf8names.h"

#include <reading/limits.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Utils
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Utils::FileUtils", text);
}

bool fail(QString *error, const char *text, const QString &path, const QString &reason)
{
    if (error)
        *error = tr(text).arg(QDir::toNativeSeparators(path), reason);
    return false;
}

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (QFileInfo(path).size() != bytes.size() || !file.open(QIODevice::ReadOnly))
        return false;
    return file.readAll() == bytes;
}

// Writes on after a partial success, so that the device's error string tells the reason of a
// failure.
bool writeAll(QIODevice *device, const QByteArray &bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 step = device->write(bytes.constData() + written, bytes.size() - written);
        if (step <= 0)
            return false;
        written += step;
    }
    return true;
}

} // namespace

bool FileUtils::copyFile(const QString &source, const QString &destination, QString *error)
{
    QByteArray bytes;
    return readFile(source, &bytes, error) && writeFile(destination, bytes, error);
}

bool FileUtils::writeFile(const QString &path, const QByteArray &bytes, QString *error)
{
    if (path.isEmpty()) {
        if (error)
            *error = tr("Cannot write a file without a name.");
        return false;
    }
    const QFileInfo info(path);
    if (info.isDir())
        return fail(error, "Cannot write \"%1\": %2.", path, tr("it is a folder"));
    // A device or a pipe would be replaced by a plain file, and reading one may never end.
    if (info.exists() && !info.isFile())
        return fail(error, "Cannot write \"%1\": %2.", path, tr("it is not a plain file"));
    if (info.exists() && holds(path, bytes))
        return true;
    if (!info.exists() && isDamagedName(path))
        return fail(error, "Cannot write \"%1\": %2.", path, tr("its name is not UTF-8"));

    // A chain of links is followed to its end, where QSaveFile would replace the second link.
    QSaveFile file(info.isSymLink() && info.exists() ? info.canonicalFilePath() : path);
    // With a buffer the last bytes are written by commit(), which takes a full disk for a success.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return fail(error, "Cannot write \"%1\": %2.", path, file.errorString());
    if (!writeAll(&file, bytes) || !file.commit())
        return fail(error, "Cannot write \"%1\": %2.", path, file.errorString());
    return true;
}

bool FileUtils::writeLines(const QString &path, const QStringList &lines, QString *error)
{
    QByteArray bytes;
    for (const QString &line : lines)
        bytes += line.toUtf8() + '\n';
    return writeFile(path, bytes, error);
}

bool FileUtils::readFile(const QString &path, QByteArray *bytes, QString *error)
{
    return readBoundedFile(path, Reading::Limits::anyFile, bytes, error);
}

bool FileUtils::makePath(const QString &path, QString *error)
{
    if (path.isEmpty()) {
        if (error)
            *error = tr("Cannot make a folder without a name.");
        return false;
    }
    // What is meant has another name.
    if (isDamagedName(path) && !QFileInfo::exists(path))
        return fail(error, "Cannot make the folder \"%1\": %2.", path, tr("its name is not UTF-8"));
    if (QDir().mkpath(path))
        return true;
    // mkpath gives no reason: look for the nearest ancestor that stands in the way.
    QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    while (!info.exists() && info.absolutePath() != info.absoluteFilePath())
        info.setFile(info.absolutePath());
    QString reason = tr("the folder cannot be made");
    if (!info.isDir())
        reason = tr("\"%1\" is a file").arg(QDir::toNativeSeparators(info.absoluteFilePath()));
    else if (!info.isWritable())
        reason =
            tr("\"%1\" is not writable").arg(QDir::toNativeSeparators(info.absoluteFilePath()));
    return fail(error, "Cannot make the folder \"%1\": %2.", path, reason);
}

} // namespace Utils
