#include "descriptor.h"

#include "fileutils.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace Utils
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Utils::Descriptor", text);
}

void flatten(const QString &prefix, const QJsonObject &object, QVariantMap *map)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString key = prefix.isEmpty() ? it.key() : QString(prefix + u'.' + it.key());
        const QJsonValue value = it.value();
        if (value.isObject()) {
            flatten(key, value.toObject(), map);
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
}

} // namespace

QVariantMap readDescriptor(const QString &path, QString *error)
{
    QByteArray bytes;
    if (!FileUtils::readFile(path, &bytes, error))
        return {};

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        const QByteArray before = bytes.left(parseError.offset);
        const int line = before.count('\n') + 1;
        const int column = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1;
        if (error)
            *error = tr("%1:%2:%3: %4.")
                         .arg(QDir::toNativeSeparators(path), QString::number(line),
                              QString::number(column), parseError.errorString());
        return {};
    }
    if (!document.isObject()) {
        if (error)
            *error =
                tr("%1:1:1: the file holds no JSON object.").arg(QDir::toNativeSeparators(path));
        return {};
    }
    QVariantMap map;
    flatten(QString(), document.object(), &map);
    return map;
}

} // namespace Utils
