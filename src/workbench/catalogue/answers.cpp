#include "answers.h"

#include "tr.h"

#include <QStringList>

#include <QMetaMethod>
#include <QObject>

#include <algorithm>

namespace Workbench::Answers
{

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.isPrint() || c.isSurrogate(); });
}

bool takeText(const QVariantMap &map, const QString &key, QString *text)
{
    const QVariant value = map.value(key);
    if (!value.isValid()) {
        text->clear();
        return true;
    }
    if (value.userType() != QMetaType::QString)
        return false;
    *text = value.toString();
    return text->size() <= textLimit && isPlain(*text);
}

QString pathMistake(const QString &path)
{
    if (path.isEmpty() || path.toUtf8().size() > 1000)
        return Tr::tr("it is empty or too long");
    if (!isPlain(path) || path.contains(u'\\') || path.contains(u':'))
        return Tr::tr("it has characters that no path may have");
    const QStringList names = path.split(u'/');
    for (const QString &name : names) {
        if (name.isEmpty() || name.startsWith(u'.') || name.toUtf8().size() > 200)
            return Tr::tr("it does not name a file below a folder");
    }
    return {};
}

bool takeTexts(const QVariantMap &map, const QString &key, int limit, QStringList *texts)
{
    const QVariant value = map.value(key);
    texts->clear();
    if (!value.isValid())
        return true;
    if (value.userType() != QMetaType::QStringList && value.userType() != QMetaType::QVariantList)
        return false;
    const QVariantList list = value.toList();
    if (list.size() > limit)
        return false;
    for (const QVariant &entry : list) {
        QString text;
        if (entry.userType() != QMetaType::QString || !takeText({{key, entry}}, key, &text))
            return false;
        texts->append(text);
    }
    return true;
}

bool takeNumber(const QVariantMap &map, const QString &key, int least, int most, int *number)
{
    const QVariant value = map.value(key);
    *number = value.userType() == QMetaType::Int ? value.toInt() : least - 1;
    return *number >= least && *number <= most;
}

QString shown(const QString &text)
{
    const QString cut = text.size() > 100 ? text.left(100) + QChar(0x2026) : text;
    QString result;
    for (const QChar c : cut)
        result += c.isPrint() || c == QChar(0x2026) ? c : QChar(0xfffd);
    return u'"' + result + u'"';
}

bool offers(const QObject *object, const char *method, int type)
{
    const int number = object ? object->metaObject()->indexOfMethod(method) : -1;
    return number >= 0 && object->metaObject()->method(number).returnType() == type;
}

bool tells(const QObject *object, const char *signal)
{
    return object && object->metaObject()->indexOfSignal(signal) >= 0;
}

} // namespace Workbench::Answers
