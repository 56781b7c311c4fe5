#include "itcmfiles.h"

#include "config/latin1literal.h"
#include "config/optionkeys.h"
#include "config/optionvalue.h"
#include "registers/registerdocs.h"
#include "rules/itcmpath.h"

#include <QDir>

namespace TARVOORIXM1
{

namespace
{

constexpr int vectorBytes = 4;

QString range(quint32 first, quint32 last)
{
    return hexAddress(first) + " to "_l1 + hexAddress(last);
}

QByteArray laneText(const QByteArray &memory, int lane)
{
    constexpr char digits[] = "0123456789abcdef";
    QByteArray text;
    text.reserve(memory.size() / ItcmFiles::count * 3);
    for (int i = lane; i < memory.size(); i += ItcmFiles::count) {
        const quint8 byte = quint8(memory.at(i));
        text.append(digits[byte >> 4]);
        text.append(digits[byte & 0xF]);
        text.append('\n');
    }
    return text;
}

// A word of data as the processor reads it.
quint32 wordAt(const QByteArray &memory, int at, bool isBigEndian)
{
    quint32 word = 0;
    for (int i = 0; i < vectorBytes; ++i) {
        const int index = isBigEndian ? i : vectorBytes - 1 - i;
        word = word << 8 | quint8(memory.at(at + index));
    }
    return word;
}

bool gives(const FirmwareImage &image, quint32 address)
{
    for (const ImagePart &part : image.parts) {
        if (address >= part.address && address <= part.last())
            return true;
    }
    return false;
}

bool isStackTop(quint32 address, const SystemMap &map)
{
    const Region *below = regionAt(map, address - 1);
    return address % 4 == 0 && below && isMemory(below->kind);
}

// Where the processor starts: the first two words of the memory at 0.
QStringList startWarnings(const FirmwareImage &image, const SystemMap &map,
                          const QByteArray &memory, quint32 base)
{
    if (!gives(image, base) || !gives(image, base + 2 * vectorBytes - 1))
        return {"The image gives no bytes for "_l1 + range(base, base + 2 * vectorBytes - 1) +
                ", where the processor finds its stack pointer and its first instruction."_l1};
    QStringList warnings;
    const quint32 stack = wordAt(memory, 0, map.processor.isBigEndian);
    const quint32 reset = wordAt(memory, vectorBytes, map.processor.isBigEndian);
    if (!isStackTop(stack, map))
        warnings.append("The initial stack pointer, "_l1 + hexAddress(stack) +
                        ", is not the end of words in a memory of the configuration."_l1);
    if ((reset & 1) == 0)
        warnings.append("The reset vector, "_l1 + hexAddress(reset) +
                        ", is even: the processor knows Thumb instructions only."_l1);
    else if (!gives(image, reset & ~1u))
        warnings.append("The reset vector, "_l1 + hexAddress(reset) +
                        ", points to no byte of the image."_l1);
    return warnings;
}

} // namespace

QString ItcmFiles::fileName(int lane)
{
    return "itcm"_l1 + QString::number(lane);
}

Utils::Result<ItcmFiles> itcmFiles(const FirmwareImage &image, const SystemMap &map)
{
    const Region *itcm = findRegion(map, QStringLiteral("ITCM"));
    if (!itcm)
        return Utils::Failure{QStringLiteral(
            "the configuration has no internal instruction memory that could be initialised")};
    if (image.isBigEndian && *image.isBigEndian != map.processor.isBigEndian) {
        const auto order = [](bool big) { return big ? "big-endian"_l1 : "little-endian"_l1; };
        return Utils::Failure{"its data are "_l1 + order(*image.isBigEndian) +
                              ", and the processor of the configuration is "_l1 +
                              order(map.processor.isBigEndian)};
    }
    ItcmFiles files;
    files.size = int(itcm->size());
    QByteArray memory(files.size, '\0');
    for (const ImagePart &part : image.parts) {
        if (!itcm->contains(part.address) || !itcm->contains(part.last())) {
            const quint32 first = itcm->contains(part.address) ? itcm->last + 1 : part.address;
            return Utils::Failure{"it gives bytes for "_l1 + range(first, part.last()) +
                                  "; the instruction memory has "_l1 + QString::number(files.size) +
                                  " bytes, "_l1 + range(itcm->base, itcm->last)};
        }
        memory.replace(int(part.address - itcm->base), part.bytes.size(), part.bytes);
        files.used += part.bytes.size();
    }
    for (int lane = 0; lane < ItcmFiles::count; ++lane)
        files.texts[size_t(lane)] = laneText(memory, lane);
    files.warnings = startWarnings(image, map, memory, itcm->base);
    if (image.form == ImageForm::Elf && !(image.entry && gives(image, *image.entry)))
        files.warnings.append(
            QStringLiteral("The entry point of the ELF file is no byte of the image."));
    return files;
}

QString itcmFolder(const OptionMap &options, const QString &ipcFolder)
{
    const QString path = textOf(options, Key::itcmInitializationPath);
    if (isOn(options, Key::initializeItcm) && !path.isEmpty())
        return QDir::cleanPath(absoluteItcmPath(path, ipcFolder));
    return ipcFolder + "/itcm"_l1;
}

OptionMap withItcmFiles(OptionMap options, const QString &folder, const QString &createIn)
{
    const QDir base(createIn);
    const QString relative = base.relativeFilePath(folder);
    const bool isInside = !QDir::isAbsolutePath(relative) && relative != ".."_l1 &&
                          !relative.startsWith("../"_l1) && relative != "."_l1 &&
                          !relative.isEmpty();
    options.insert(Key::initializeItcm, true);
    options.insert(Key::itcmInitializationPath, isInside ? relative : folder);
    options.insert(Key::itcmInitializationAbsolutePath, folder);
    return options;
}

} // namespace TARVOORIXM1
