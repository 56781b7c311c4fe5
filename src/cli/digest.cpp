#include "digest.h"

#include <nettle/sha2.h>

namespace Cli
{

QByteArray fastSha256(const QByteArray &bytes)
{
    sha256_ctx context;
    sha256_init(&context);
    sha256_update(&context, size_t(bytes.size()),
                  reinterpret_cast<const uint8_t *>(bytes.constData()));
    QByteArray sum(SHA256_DIGEST_SIZE, '\0');
    sha256_digest(&context, size_t(sum.size()), reinterpret_cast<uint8_t *>(sum.data()));
    return sum.toHex();
}

} // namespace Cli
