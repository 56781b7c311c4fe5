#include "projectfile.h"

#include "tr.h"

#include <reading/jsontext.h>
#include <utils/fileutils.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace Workbench
{

namespace
{

const QString formatKey = QStringLiteral("format");
const QString deviceKey = QStringLiteral("device");
const QString filesKey = QStringLiteral("files");
const QString topKey = QStringLiteral("top");

bool fail(const QString &path, const QString &reason, QString *error)
{
    if (error)
        *error = Tr::tr("Project \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason);
    return false;
}

// "line 3, column 5: …"
QString place(const QByteArray &text, const Reading::JsonMistake &mistake)
{
    const QByteArray before = text.left(mistake.offset);
    const int lineStart = before.lastIndexOf('\n') + 1;
    return Tr::tr("line %1, column %2: %3")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(before.mid(lineStart)).size() + 1)
        .arg(mistake.reason);
}

} // namespace

QByteArray ProjectFile::toText() const
{
    QJsonObject root = others;
    root.insert(formatKey, currentFormat);
    root.insert(deviceKey, deviceId);
    root.insert(filesKey, QJsonArray::fromStringList(files));
    root.insert(topKey, topModule);
    return QJsonDocument(root).toJson();
}

bool ProjectFile::fromText(const QByteArray &text, const QString &path, ProjectFile *file,
                           QString *error)
{
    const Reading::JsonMistake mistake = Reading::findJsonMistake(text);
    if (mistake.offset >= 0)
        return fail(path, place(text, mistake), error);
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError)
        return fail(path, parseError.errorString(), error);
    if (!document.isObject())
        return fail(path, Tr::tr("it holds no JSON object"), error);

    QJsonObject root = document.object();
    const QJsonValue format = root.take(formatKey);
    if (!format.isDouble() || format.toInt() < 1)
        return fail(path, Tr::tr("it has no format number (\"format\"), so it is no project"),
                    error);
    if (format.toDouble() > currentFormat)
        return fail(
            path,
            Tr::tr("it was written by a newer version of this program (format %1; this program "
                   "reads format %2)")
                .arg(format.toInt())
                .arg(currentFormat),
            error);

    ProjectFile result;
    const QJsonValue device = root.take(deviceKey);
    if (!device.isString() && !device.isUndefined())
        return fail(path, Tr::tr("\"device\" is no text"), error);
    result.deviceId = device.toString();
    const QJsonValue top = root.take(topKey);
    if (!top.isString() && !top.isUndefined())
        return fail(path, Tr::tr("\"top\" is no text"), error);
    result.topModule = top.toString();
    const QJsonValue files = root.take(filesKey);
    if (!files.isArray() && !files.isUndefined())
        return fail(path, Tr::tr("\"files\" is no list"), error);
    const QJsonArray entries = files.toArray();
    QSet<QString> listed;
    for (const QJsonValue &value : entries) {
        if (!value.isString() || value.toString().isEmpty())
            return fail(path, Tr::tr("\"files\" holds an entry that is no file name"), error);
        // "./a.v" and "a.v" are one file.
        const QString entry = QDir::cleanPath(value.toString());
        if (!listed.contains(entry)) {
            listed.insert(entry);
            result.files.append(value.toString());
        }
    }
    result.others = root;
    *file = result;
    return true;
}

bool ProjectFile::read(const QString &path, ProjectFile *file, QString *error)
{
    QByteArray text;
    return Utils::FileUtils::readFile(path, &text, error) && fromText(text, path, file, error);
}

bool ProjectFile::write(const QString &path, QString *error) const
{
    return Utils::FileUtils::writeFile(path, toText(), error);
}

} // namespace Workbench
