#pragma once

#include "image.h"

namespace TARVOORIXM1
{

// Puts parts in order and joins those that touch. Bytes that two parts give must agree: otherwise
// the failure, a clause, names the first address where they do not.
Utils::Result<QVector<ImagePart>> joinedParts(QVector<ImagePart> parts);

// The readers of the forms; see readImage().
Utils::Result<FirmwareImage> readElfImage(const QByteArray &bytes);
Utils::Result<FirmwareImage> readHexImage(const QByteArray &bytes);
Utils::Result<FirmwareImage> readBinaryImage(const QByteArray &bytes, quint32 base);

} // namespace TARVOORIXM1
