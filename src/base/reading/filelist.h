#pragma once

#include <QStringList>

#include <initializer_list>

class QDir;

namespace Reading
{

// The names of the folder's files that end so, in any case of letters, by name. What QDir's own
// filters do for it takes as long as many a folder: each is made a regular expression.
QStringList filesEndingIn(const QDir &folder, std::initializer_list<QLatin1String> endings);

} // namespace Reading
