#include "descriptor.h"

#include "fileutils.h"
#include "jsonmistake.h"

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

// The place is a line and a column in characters, both from 1.
QVariantMap fail(const QString &path, const QByteArray &bytes, int offset, const QString &reason,
                 QString *error)
{
    const QByteArray before = bytes.left(offset);
    const int line = before.count('\n') + 1;
    const int column =
        QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).toUcs4().size() + 1;
    if (error)
        *error = tr("%1:%2:%3: %4.")
                     .arg(QDir::toNativeSeparators(path), QString::number(line),
                          QString::number(column), reason);
    return {};
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
        const JsonMistake mistake = findJsonMistake(bytes);
        if (mistake.offset >= 0)
            return fail(path, bytes, mistake.offset, mistake.reason, error);
        if (parseError.error == QJsonParseError::IllegalUTF8String)
            return fail(path, bytes, parseError.offset, tr("the text is not UTF-8"), error);
    }
    if (!document.isObject())
        return fail(path, bytes, 0, tr("the file holds no JSON object"), error);
    QVariantMap map;
    flatten(QString(), document.object(), &map);
    return map;
}

} // namespace Utils
