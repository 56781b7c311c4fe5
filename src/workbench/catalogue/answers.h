#pragma once

#include <QString>
#include <QVariantMap>

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
// In quotes, as a sentence names it: cut, and without what would not be seen.
QString shown(const QString &text);

} // namespace Workbench::Answers
