#pragma once

#include "result.h"
#include "utils_global.h"

#include <QString>
#include <QVariantMap>

namespace Utils
{

// Reads a JSON descriptor file as a flat map: the key of a nested value is the chain of its object
// keys joined with dots ("ipcore.doc.summary"); arrays become string lists, strings, numbers and
// booleans keep their types, null is an invalid variant. A file that cannot be read, is larger than
// 1 MiB, is no JSON object, or whose "ipcore.target" is more than the name of a file is a failure:
// a sentence with the path and, for malformed text, line and column (both from 1).
TARVO_UTILS_EXPORT Result<QVariantMap> readDescriptor(const QString &path);

} // namespace Utils
