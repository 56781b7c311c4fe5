#pragma once

#include <QString>

// Copies of what was not saved when the program was ended: "a.v.unsaved", "a.v.unsaved2", ...
// beside "a.v".
namespace Workbench::UnsavedCopy
{

// A path for a copy of `path` at which nothing exists.
QString freePath(const QString &path);
// The newest copy beside the file; empty if there is none.
QString newestOf(const QString &path);
// What `copy` is a copy of; empty if by its name it is none. The name alone for a name.
QString originalOf(const QString &copy);

} // namespace Workbench::UnsavedCopy
