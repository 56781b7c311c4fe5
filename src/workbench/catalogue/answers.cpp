#include "answers.h"

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

QString shown(const QString &text)
{
    const QString cut = text.size() > 100 ? text.left(100) + QChar(0x2026) : text;
    QString result;
    for (const QChar c : cut)
        result += c.isPrint() || c == QChar(0x2026) ? c : QChar(0xfffd);
    return u'"' + result + u'"';
}

} // namespace Workbench::Answers
