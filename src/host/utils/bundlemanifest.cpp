#include "bundlemanifest.h"

#include "tr.h"
#include "utf8names.h"

#include <reading/jsontext.h>
#include <reading/limits.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace Utils
{

namespace
{

constexpr int currentVersion = 1;

constexpr QLatin1String versionKey("version");
constexpr QLatin1String groupsKey("groups");
constexpr QLatin1String filesKey("files");
constexpr QLatin1String pathKey("path");
constexpr QLatin1String groupKey("group");
constexpr QLatin1String hashKey("sha256");

bool isHash(const QString &text)
{
    return text.size() == 64 && std::all_of(text.begin(), text.end(), [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
           });
}

bool isName(const QString &text)
{
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar c) {
        return c.category() == QChar::Other_Control;
    });
}

} // namespace

QString bundlePathMistake(const QString &path)
{
    if (path.isEmpty())
        return Tr::tr("it has no name");
    if (!isName(path) || isDamagedName(path) || QString::fromUtf8(path.toUtf8()) != path)
        return Tr::tr("it is no name of a file");
    if (path.startsWith(u'/'))
        return Tr::tr("it is an absolute path");
    const QStringList names = path.split(u'/');
    for (const QString &name : names) {
        if (name == QLatin1String(".."))
            return Tr::tr("it leads out of the folder");
        if (name.isEmpty() || name == QLatin1String("."))
            return Tr::tr("it is no plain path");
        if (name.startsWith(QLatin1String(".tarvo-")))
            return Tr::tr("names that begin with \".tarvo-\" are kept for locks and temporary "
                          "files");
    }
    return {};
}

QByteArray BundleManifest::toText() const
{
    QStringList names = groups;
    names.sort();
    names.removeDuplicates();
    QVector<File> sorted = files;
    std::sort(sorted.begin(), sorted.end(),
              [](const File &one, const File &other) { return one.path < other.path; });
    QByteArray text = "{\n  \"files\": [";
    const char *separator = "\n";
    for (const File &file : qAsConst(sorted)) {
        const QJsonObject object{
            {pathKey, file.path}, {groupKey, file.group}, {hashKey, QLatin1String(file.sha256)}};
        text +=
            separator + QByteArray("    ") + QJsonDocument(object).toJson(QJsonDocument::Compact);
        separator = ",\n";
    }
    text += sorted.isEmpty() ? "],\n" : "\n  ],\n";
    text += "  \"groups\": " +
            QJsonDocument(QJsonArray::fromStringList(names)).toJson(QJsonDocument::Compact) +
            ",\n  \"version\": " + QByteArray::number(currentVersion) + "\n}\n";
    return text;
}

Result<BundleManifest> BundleManifest::fromText(const QByteArray &text, const QString &path)
{
    const QString shown = QDir::toNativeSeparators(path);
    const auto failAt = [&](int offset, const QString &reason) {
        const Reading::TextPlace place = Reading::placeIn(text, offset);
        return Failure{
            Tr::tr("%1:%2:%3: %4.")
                .arg(shown, QString::number(place.line), QString::number(place.column), reason)};
    };
    if (text.size() > Reading::Limits::bundleManifest)
        return Failure{Tr::tr("%1: %2.").arg(shown, Tr::tr("the file is larger than 4 MiB"))};
    const Reading::JsonText json = Reading::readJson(text);
    if (json.mistake.offset >= 0)
        return failAt(json.mistake.offset, json.mistake.reason);
    if (!json.document.isObject())
        return failAt(0, Tr::tr("the file holds no JSON object"));
    const QJsonObject object = json.document.object();
    const auto failOn = [&](const Reading::JsonPath &value, const QString &reason) {
        return failAt(Reading::findJsonValue(text, value), reason);
    };
    if (object.value(versionKey).toInt() != currentVersion)
        return failOn({versionKey}, Tr::tr("its version is not 1"));

    BundleManifest manifest;
    const QJsonArray groups = object.value(groupsKey).toArray();
    for (int i = 0; i < groups.size(); ++i) {
        const QString name = groups.at(i).toString();
        if (!isName(name))
            return failOn({groupsKey, i}, Tr::tr("a group has no name"));
        manifest.groups.append(name);
    }
    const QJsonArray files = object.value(filesKey).toArray();
    if (files.size() > Reading::Limits::bundleFiles)
        return failOn({filesKey}, Tr::tr("there are more than %1 files")
                                      .arg(QString::number(Reading::Limits::bundleFiles)));
    QSet<QString> paths;
    for (int i = 0; i < files.size(); ++i) {
        const QJsonObject entry = files.at(i).toObject();
        const File file = {entry.value(pathKey).toString(), entry.value(groupKey).toString(),
                           entry.value(hashKey).toString().toLatin1()};
        if (const QString mistake = bundlePathMistake(file.path); !mistake.isEmpty())
            return failOn({filesKey, i, pathKey},
                          Tr::tr("\"%1\" is no file of the set: %2").arg(file.path, mistake));
        if (paths.contains(file.path))
            return failOn({filesKey, i, pathKey}, Tr::tr("\"%1\" is there twice").arg(file.path));
        if (!isName(file.group))
            return failOn({filesKey, i, groupKey}, Tr::tr("\"%1\" has no group").arg(file.path));
        if (!isHash(entry.value(hashKey).toString()))
            return failOn({filesKey, i, hashKey},
                          Tr::tr("\"%1\" has no SHA-256 sum").arg(file.path));
        paths.insert(file.path);
        manifest.files.append(file);
    }
    std::sort(manifest.files.begin(), manifest.files.end(),
              [](const File &one, const File &other) { return one.path < other.path; });
    return manifest;
}

} // namespace Utils
