#pragma once

#include "result.h"
#include "utils_global.h"

#include <QByteArray>
#include <QString>

namespace Utils
{

// Reads a plain file of at most `limit` bytes; pipes, devices and folders are refused, and no call
// waits for anything but the disk. A failure is one sentence with path and reason.
TARVO_UTILS_EXPORT Result<QByteArray> readBoundedFile(const QString &path, qint64 limit);

// The same with the limit for an IP configuration (.ipc).
TARVO_UTILS_EXPORT Result<QByteArray> readConfigurationFile(const QString &path);

} // namespace Utils
