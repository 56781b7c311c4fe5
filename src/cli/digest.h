#pragma once

#include <QByteArray>

namespace Cli
{

// SHA-256 in hexadecimal digits, as sha256() of the generation makes it, with what the processor
// has for it: several times as fast.
QByteArray fastSha256(const QByteArray &bytes);

} // namespace Cli
