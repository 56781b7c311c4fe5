#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace TARVOORIXM1
{

// How a program is stored in a file.
enum class ImageForm { Elf, IntelHex, Binary };

// "elf", "hex" or "bin".
QString imageFormName(ImageForm form);
std::optional<ImageForm> imageFormNamed(const QString &name);
QStringList imageFormNames();

// Bytes for consecutive addresses.
struct ImagePart {
    quint32 address = 0;
    QByteArray bytes; // at least one; they end with the address space at the latest

    quint32 last() const { return address + quint32(bytes.size() - 1); }
};

// What a program puts into memories before it starts.
struct FirmwareImage {
    ImageForm form = ImageForm::Binary;
    QVector<ImagePart> parts;        // by address; neither overlapping nor touching
    std::optional<bool> isBigEndian; // in memory; an ELF image tells
    std::optional<quint32> entry;    // address of the first instruction; where the image tells
    bool entryIsThumb = false;       // counts with `entry` only
};

// Reads an image. Without a form it is found from the first bytes: ELF by its mark, Intel HEX by
// its colon, anything else is binary. `base` is where the first byte of a binary image stands.
//
// Of an ELF image, an executable for a 32-bit ARM processor, the loaded segments count, at the
// addresses where they are stored before the program starts (LMA); what the program itself zeroes
// does not. Of Intel HEX all record types with 16, 20 and 32-bit addresses. A byte that is given
// twice with different values is a failure, as is an image without any byte. A failure is a clause
// that names the line or the segment.
Utils::Result<FirmwareImage> readImage(const QByteArray &bytes, std::optional<ImageForm> form = {},
                                       quint32 base = 0);

} // namespace TARVOORIXM1
