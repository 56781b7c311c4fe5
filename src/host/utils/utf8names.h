#pragma once

#include "utils_global.h"

#include <QString>

namespace Utils
{

// File names are UTF-8 in these programs. One that is not cannot be kept as a text: written back it
// would be another name, and a file or folder of that name would be made.

// A sentence that shows the first argument that is not UTF-8; empty if all can be kept.
TARVO_UTILS_EXPORT QString nonUtf8Argument(int argc, const char *const *argv);

// A sentence on the current folder if its name is not UTF-8, so that no file in it can be named;
// empty otherwise.
TARVO_UTILS_EXPORT QString nonUtf8CurrentFolder();

// Whether a name was read from bytes that are not UTF-8.
TARVO_UTILS_EXPORT bool isDamagedName(const QString &path);

} // namespace Utils
