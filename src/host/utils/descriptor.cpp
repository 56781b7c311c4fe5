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

// A clause on what cannot be taken; empty otherwise. `room`: how many characters the keys may still
// have altogether, since each holds those of all objects around it.
QString flatten(const QString &prefix, const QJsonObject &object, qint64 *room, QVariantMap *map)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString key = prefix.isEmpty() ? it.key() : QString(prefix + u'.' + it.key());
        const QJsonValue value = it.value();
        *room -= key.size();
        if (*room < 0)
            return Tr::tr("the keys, each with those of the objects around it, have more than %1 "
                          "characters altogether")
                .arg(Reading::Limits::descriptorKeys);
        if (value.isObject()) {
            const QString mistake = flatten(key, value.toObject(), room, map);
            if (!mistake.isEmpty())
                return mistake;
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

// The target names the files of an IP: "<folder>/<target>.ipc". A clause if it could name others.
QString targetMistake(const QVariantMap &map)
{
    const QString key = QStringLiteral("ipcore.target");
    const QString target = map.value(key).toString();
    const bool isName = std::none_of(target.begin(), target.end(), [](QChar c) {
        return c == u'/' || c == u'\\' || c.category() == QChar::Other_Control;
    });
    if (!isName || target == QLatin1String(".") || target == QLatin1String(".."))
        return Tr::tr("\"%1\" is \"%2\", which is no name of a file").arg(key, target);
    if (target.toUtf8().size() > Reading::Limits::targetNameLength)
        return Tr::tr("\"%1\" is longer than %2 bytes")
            .arg(key, QString::number(Reading::Limits::targetNameLength));
    return {};
}

// The place is a line and a column in characters, both from 1.
QVariantMap fail(const QString &path, const QByteArray &bytes, int offset, const QString &reason,
                 QString *error)
{
    const QByteArray before = bytes.left(offset);
    const int line = before.count('\n') + 1;
    const int column =
        QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).toUcs4().size() + 1;
    if (error)
        *error = Tr::tr("%1:%2:%3: %4.")
                     .arg(QDir::toNativeSeparators(path), QString::number(line),
                          QString::number(column), reason);
    return {};
}

} // namespace

QVariantMap readDescriptor(const QString &path, QString *error)
{
    QByteArray bytes;
    if (!readBoundedFile(path, Reading::Limits::descriptor, &bytes, error))
        return {};

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        const Reading::JsonMistake mistake = Reading::findJsonMistake(bytes);
        if (mistake.offset >= 0)
            return fail(path, bytes, mistake.offset, mistake.reason, error);
        if (parseError.error == QJsonParseError::IllegalUTF8String)
            return fail(path, bytes, parseError.offset, Tr::tr("the text is not UTF-8"), error);
    }
    if (!document.isObject())
        return fail(path, bytes, 0, Tr::tr("the file holds no JSON object"), error);
    QVariantMap map;
    qint64 room = Reading::Limits::descriptorKeys;
    QString mistake = flatten(QString(), document.object(), &room, &map);
    if (mistake.isEmpty())
        mistake = targetMistake(map);
    if (mistake.isEmpty())
        return map;
    if (error)
        *error = Tr::tr("%1: %2.").arg(QDir::toNativeSeparators(path), mistake);
    return {};
}

} // namespace Utils
