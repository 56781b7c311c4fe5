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

Utils::Result<ProjectFile> ProjectFile::fromText(const QByteArray &text, const QString &path)
{
    const auto fail = [&path](const QString &reason) {
        return Utils::Failure{
            Tr::tr("Project \"%1\": %2.").arg(QDir::toNativeSeparators(path), reason)};
    };
    const Reading::JsonText json = Reading::readJson(text);
    if (json.mistake.offset >= 0) {
        const Reading::TextPlace place = Reading::placeIn(text, json.mistake.offset);
        return fail(Tr::tr("line %1, column %2: %3")
                        .arg(QString::number(place.line), QString::number(place.column),
                             json.mistake.reason));
    }
    if (!json.document.isObject())
        return fail(Tr::tr("it holds no JSON object"));

    QJsonObject root = json.document.object();
    const QJsonValue format = root.take(formatKey);
    if (!format.isDouble() || format.toInt() < 1)
        return fail(Tr::tr("it has no format number (\"format\"), so it is no project"));
    if (format.toDouble() > currentFormat)
        return fail(
            Tr::tr("it was written by a newer version of this program (format %1; this program "
                   "reads format %2)")
                .arg(format.toInt())
                .arg(currentFormat));

    ProjectFile result;
    const QJsonValue device = root.take(deviceKey);
    if (!device.isString() && !device.isUndefined())
        return fail(Tr::tr("\"device\" is no text"));
    result.deviceId = device.toString();
    const QJsonValue top = root.take(topKey);
    if (!top.isString() && !top.isUndefined())
        return fail(Tr::tr("\"top\" is no text"));
    result.topModule = top.toString();
    const QJsonValue files = root.take(filesKey);
    if (!files.isArray() && !files.isUndefined())
        return fail(Tr::tr("\"files\" is no list"));
    const QJsonArray entries = files.toArray();
    QSet<QString> listed;
    for (const QJsonValue &value : entries) {
        if (!value.isString() || value.toString().isEmpty())
            return fail(Tr::tr("\"files\" holds an entry that is no file name"));
        // "./a.v" and "a.v" are one file.
        const QString entry = QDir::cleanPath(value.toString());
        if (!listed.contains(entry)) {
            listed.insert(entry);
            result.files.append(value.toString());
        }
    }
    result.others = root;
    return result;
}

Utils::Result<ProjectFile> ProjectFile::read(const QString &path)
{
    QByteArray text;
    QString error;
    if (!Utils::FileUtils::readFile(path, &text, &error))
        return Utils::Failure{error};
    return fromText(text, path);
}

Utils::Result<void> ProjectFile::write(const QString &path) const
{
    QString error;
    if (!Utils::FileUtils::writeFile(path, toText(), &error))
        return Utils::Failure{error};
    return {};
}

} // namespace Workbench
