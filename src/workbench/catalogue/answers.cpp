#include "answers.h"

#include "tr.h"

#include <QMetaMethod>
#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <algorithm>

namespace Workbench::Answers
{

namespace
{

// A text without characters that are not seen, as long as a line of people's may be.
bool takeLine(const QVariant &value, QString *text)
{
    *text = value.toString();
    return value.userType() == QMetaType::QString && text->size() <= previewLineLimit &&
           isPlain(*text);
}

bool takeLines(const QVariantMap &map, const QString &key, QStringList *lines)
{
    const QVariant value = map.value(key);
    if (!value.isValid())
        return true;
    *lines = value.toStringList();
    return value.userType() == QMetaType::QStringList && lines->size() <= previewFileLimit &&
           std::all_of(lines->begin(), lines->end(), [](const QString &line) {
               return line.size() <= previewLineLimit && isPlain(line);
           });
}

// The contents of a file, whatever they are.
bool takeContents(const QVariantMap &map, const QString &key, std::optional<QString> *text)
{
    const QVariant value = map.value(key);
    if (!value.isValid())
        return true;
    *text = value.toString();
    return value.userType() == QMetaType::QString;
}

bool isBelow(const QString &path)
{
    const QStringList names = path.split(u'/');
    return std::none_of(names.begin(), names.end(), [](const QString &name) {
        return name.isEmpty() || name == u'.' || name == QLatin1String("..");
    });
}

bool takeList(const QVariantMap &map, const QString &key, int limit, QVariantList *list)
{
    const QVariant value = map.value(key);
    *list = value.toList();
    return value.userType() == QMetaType::QVariantList && list->size() <= limit;
}

} // namespace

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

Utils::Result<IpState> ipStateOf(const QVariantMap &answer)
{
    QString error;
    if (!takeText(answer, QStringLiteral("error"), &error))
        return Utils::Failure{Tr::tr("its \"error\" is no plain text")};
    if (!error.isEmpty())
        return Utils::Failure{error};
    IpState state;
    if (!takeText(answer, QStringLiteral("state"), &state.name) || state.name.isEmpty())
        return Utils::Failure{Tr::tr("its \"state\" is no plain text")};
    if (!takeLines(answer, QStringLiteral("reasons"), &state.reasons))
        return Utils::Failure{Tr::tr("its \"reasons\" are no plain texts")};
    const auto isPath = [](const QString &path) {
        return path.startsWith(u'/') && path.size() <= textLimit && !path.contains(QChar(0));
    };
    QVariantList files;
    if (!takeList(answer, QStringLiteral("files"), generatedFileLimit, &files))
        return Utils::Failure{
            Tr::tr("its \"files\" are no list, or more than %1").arg(generatedFileLimit)};
    for (const QVariant &entry : qAsConst(files)) {
        const QVariant path = entry.toMap().value(QStringLiteral("path"));
        if (path.userType() != QMetaType::QString || !isPath(path.toString()))
            return Utils::Failure{Tr::tr("%1 is no full path").arg(shown(path.toString()))};
        state.files.append(path.toString());
    }
    const QVariant watched = answer.value(QStringLiteral("watched"));
    state.watched = watched.toStringList();
    if ((watched.isValid() && watched.userType() != QMetaType::QStringList) ||
        state.watched.size() > generatedFileLimit ||
        !std::all_of(state.watched.begin(), state.watched.end(), isPath))
        return Utils::Failure{Tr::tr("its \"watched\" are no full paths")};
    return state;
}

Utils::Result<Preview> previewOf(const QVariantMap &answer)
{
    Preview preview;
    if (!takeText(answer, QStringLiteral("error"), &preview.error))
        return Utils::Failure{Tr::tr("its \"error\" is no plain text")};
    if (!preview.error.isEmpty())
        return preview;
    std::optional<QString> text;
    if (!takeContents(answer, QStringLiteral("text"), &text) || !text)
        return Utils::Failure{Tr::tr("its \"text\" is no text")};
    preview.text = *text;
    QVariantList files;
    QVariantList differences;
    if (!takeList(answer, QStringLiteral("files"), previewFileLimit, &files))
        return Utils::Failure{
            Tr::tr("its \"files\" are no list, or more than %1").arg(previewFileLimit)};
    if (!takeList(answer, QStringLiteral("differences"), previewDifferenceLimit, &differences))
        return Utils::Failure{
            Tr::tr("its \"differences\" are no list, or more than %1").arg(previewDifferenceLimit)};
    if (!takeLines(answer, QStringLiteral("notes"), &preview.notes))
        return Utils::Failure{Tr::tr("its \"notes\" are no plain texts")};
    for (const QVariant &entry : qAsConst(files)) {
        const QVariantMap map = entry.toMap();
        PreviewedFile file;
        if (!takeText(map, QStringLiteral("path"), &file.path) || !isBelow(file.path))
            return Utils::Failure{
                Tr::tr("%1 is no path below the output folder").arg(shown(file.path))};
        if (!takeText(map, QStringLiteral("state"), &file.state) || file.state.isEmpty() ||
            !takeLines(map, QStringLiteral("notes"), &file.notes) ||
            !takeContents(map, QStringLiteral("before"), &file.before) ||
            !takeContents(map, QStringLiteral("after"), &file.after))
            return Utils::Failure{
                Tr::tr("what it says of %1 makes no sense").arg(shown(file.path))};
        preview.files.append(file);
    }
    for (const QVariant &entry : qAsConst(differences)) {
        const QVariantMap map = entry.toMap();
        PreviewedDifference difference;
        if (!takeLine(map.value(QStringLiteral("kind")), &difference.kind) ||
            !takeLine(map.value(QStringLiteral("text")), &difference.text))
            return Utils::Failure{Tr::tr("one of its differences is no plain text")};
        preview.differences.append(difference);
    }
    return preview;
}

} // namespace Workbench::Answers
