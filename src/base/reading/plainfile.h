#pragma once

#include <QByteArray>
#include <QString>

namespace Reading
{

// Reads a plain file of at most `limit` bytes. Never waits: what is no plain file (a pipe, a
// device, a folder) is refused, and of an endless one no more than the limit is read. A path that
// starts with ":/" is a resource. On failure `*bytes` is left alone and `*reason` says why, as a
// clause.
bool readPlainFile(const QString &path, qint64 limit, QByteArray *bytes, QString *reason);

// "256 KiB", "16 MiB"
QString sizeText(qint64 bytes);

} // namespace Reading
