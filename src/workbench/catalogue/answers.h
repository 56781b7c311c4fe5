#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

QT_FORWARD_DECLARE_CLASS(QObject)

// What plug-ins answer comes from strangers: only texts that a window can show are taken.
namespace Workbench::Answers
{

constexpr int textLimit = 2000; // characters

// Whether it has no characters but those that are seen.
bool isPlain(const QString &text);
// A text of the map; an absent one is empty. False if it is no text, too long or not plain.
bool takeText(const QVariantMap &map, const QString &key, QString *text);
// Why no file below a folder may have this path, a clause; empty if one may.
QString pathMistake(const QString &path);
// At most `limit` texts of a list; an absent one is empty. False as above.
bool takeTexts(const QVariantMap &map, const QString &key, int limit, QStringList *texts);
// A number from `least` to `most`; false if there is none.
bool takeNumber(const QVariantMap &map, const QString &key, int least, int most, int *number);
// In quotes, as a sentence names it: cut, and without what would not be seen.
QString shown(const QString &text);

// Whether the object, which may be null, has an invokable method that returns this type.
bool offers(const QObject *object, const char *method, int type);
// Whether the object, which may be null, has this signal.
bool tells(const QObject *object, const char *signal);

} // namespace Workbench::Answers
