#pragma once

#include "project/ipstate.h"

#include <utils/result.h>

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QVector>

#include <optional>

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

constexpr int generatedFileLimit = 2000;
// What generationState() of a plug-in has answered, all of it or nothing. A failure is a sentence
// of the plug-in's or a clause.
Utils::Result<IpState> ipStateOf(const QVariantMap &answer);

// A file that a generation would be concerned with.
struct PreviewedFile {
    QString path;  // below the output folder
    QString state; // "new", "changed", …; a plug-in may have further ones
    QStringList notes;
    // Nothing: there is no file, or what it holds is not known or too long.
    std::optional<QString> before;
    std::optional<QString> after;
};
struct PreviewedDifference {
    QString kind; // "option", "port", …
    QString text;
};
struct Preview {
    QString error; // the plug-in's sentence; everything else is empty then
    QString text;  // all of it, for people
    QVector<PreviewedFile> files;
    QVector<PreviewedDifference> differences;
    QStringList notes;
};
constexpr int previewFileLimit = 2000;
constexpr int previewDifferenceLimit = 20000;
constexpr int previewLineLimit = 20000; // characters of a difference or a note
// What previewGeneration() of a plug-in has answered, all of it or nothing. A failure is a clause.
Utils::Result<Preview> previewOf(const QVariantMap &answer);

} // namespace Workbench::Answers
