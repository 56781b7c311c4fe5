#pragma once

#include "utils_global.h"

#include <QByteArray>
#include <QString>

namespace Utils
{

// Reads a plain file of at most `limit` bytes; pipes, devices and folders are refused, and no call
// waits for anything but the disk. On failure returns false, leaves `*bytes` alone and stores one
// sentence with path and reason in `*error` (may be null).
TARVO_UTILS_EXPORT bool readBoundedFile(const QString &path, qint64 limit, QByteArray *bytes,
                                        QString *error);

// The same with the limit for an IP configuration (.ipc).
TARVO_UTILS_EXPORT bool readConfigurationFile(const QString &path, QByteArray *bytes,
                                              QString *error);

} // namespace Utils
