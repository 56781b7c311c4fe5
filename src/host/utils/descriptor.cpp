#include "descriptor.h"

#include "boundedfile.h"
#include "tr.h"

#include <reading/jsontext.h>
#include <reading/limits.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace Utils
{

namespace
{

// A failure is a clause. `room`: how many characters the keys may still have altogether, since each
// holds those of all objects around it.
Result<void> flatten(const QString &prefix, const QJsonObject &object, qint64 *room,
                     QVariantMap *map)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString key = prefix.isEmpty() ? it.key() : QString(prefix + u'.' + it.key());
        const QJsonValue value = it.value();
        *room -= key.size();
        if (*room < 0)
            return Failure{
                Tr::tr("the keys, each with those of the objects around it, have more than %1 "
                       "characters altogether")
                    .arg(Reading::Limits::descriptorKeys)};
        if (value.isObject()) {
            const Result<void> flat = flatten(key, value.toObject(), room, map);
            if (!flat)
                return flat;
        } else if (value.isArray()) {
            QStringList list;
            const QJsonArray array = value.toArray();
            for (const QJsonValue &entry : array)
                list.append(entry.toVariant().toString());
            map->insert(key, list);
        } else {
            map->insert(key, value.toVariant());
        }
    }
    return {};
}

// The target names the files of an IP: "<folder>/<target>.ipc". It is a failure, a clause, if it
// could name others.
Result<void> checkTarget(const QVariantMap &map)
{
    const QString key = QStringLiteral("ipcore.target");
    const QString target = map.value(key).toString();
    const bool isName = std::none_of(target.begin(), target.end(), [](QChar c) {
        return c == u'/' || c == u'\\' || c.category() == QChar::Other_Control;
    });
    if (!isName || target == QLatin1String(".") || target == QLatin1String(".."))
        return Failure{Tr::tr("\"%1\" is \"%2\", which is no name of a file").arg(key, target)};
    if (target.toUtf8().size() > Reading::Limits::targetNameLength)
        return Failure{Tr::tr("\"%1\" is longer than %2 bytes")
                           .arg(key, QString::number(Reading::Limits::targetNameLength))};
    return {};
}

} // namespace

Result<QVariantMap> readDescriptor(const QString &path)
{
    const Result<QByteArray> read = readBoundedFile(path, Reading::Limits::descriptor);
    if (!read)
        return Failure{read.reason()};
    const QByteArray bytes = *read;
    const QString shown = QDir::toNativeSeparators(path);
    const auto failAt = [&bytes, &shown](int offset, const QString &reason) {
        const Reading::TextPlace place = Reading::placeIn(bytes, offset);
        return Failure{
            Tr::tr("%1:%2:%3: %4.")
                .arg(shown, QString::number(place.line), QString::number(place.column), reason)};
    };

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        const Reading::JsonMistake mistake = Reading::findJsonMistake(bytes);
        if (mistake.offset >= 0)
            return failAt(mistake.offset, mistake.reason);
        if (parseError.error == QJsonParseError::IllegalUTF8String)
            return failAt(parseError.offset, Tr::tr("the text is not UTF-8"));
    }
    if (!document.isObject())
        return failAt(0, Tr::tr("the file holds no JSON object"));
    QVariantMap map;
    qint64 room = Reading::Limits::descriptorKeys;
    Result<void> checked = flatten(QString(), document.object(), &room, &map);
    if (checked)
        checked = checkTarget(map);
    if (!checked)
        return Failure{Tr::tr("%1: %2.").arg(shown, checked.reason())};
    return map;
}

} // namespace Utils
