#pragma once

#include <QString>

namespace TARVOORIXM1
{

// The folder of the ITCM's initialisation files: `path` itself if it is absolute, otherwise taken
// from the output folder `createIn`.
QString absoluteItcmPath(const QString &path, const QString &createIn);

// What is wrong with the folder, as a sentence for the user; empty if it can be used. It has to be
// an existing folder: a file does not do.
QString itcmPathError(const QString &path, const QString &createIn);

} // namespace TARVOORIXM1
