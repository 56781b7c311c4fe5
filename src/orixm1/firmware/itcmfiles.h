#pragma once

#include "image.h"
#include "system/systemmap.h"

#include <array>

namespace TARVOORIXM1
{

// The contents of the ITCM as its initialisation reads them.
struct ItcmFiles {
    static constexpr int count = 4;

    // Of the files "itcm0" to "itcm3", one for each byte lane (lane 0 holds bits 7 to 0): one byte
    // a line in hexadecimal, for the whole of the memory.
    std::array<QByteArray, count> texts;
    int size = 0; // bytes of the memory
    int used = 0; // that the image gives; the others are 00
    // What looks like a mistake in a program that starts from this memory: sentences.
    QStringList warnings;

    int free() const { return size - used; }
    static QString fileName(int lane); // "itcm0"
};

// Makes them of a program for the subsystem. A failure, a clause, where the subsystem has no ITCM,
// the image has bytes outside of it, or is for the other byte order.
Utils::Result<ItcmFiles> itcmFiles(const FirmwareImage &image, const SystemMap &map);

// Where the files of a configuration in the folder `ipcFolder` go if nobody says otherwise: where
// it looks for them already, else beside it. A full path.
QString itcmFolder(const OptionMap &options, const QString &ipcFolder);

// The options with which a generation starts the ITCM from the files in `folder`, an absolute
// path. One below `createIn`, the output folder, is stored relative to it, as the dialog does.
OptionMap withItcmFiles(OptionMap options, const QString &folder, const QString &createIn);

} // namespace TARVOORIXM1
