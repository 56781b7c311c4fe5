#include "config/latin1literal.h"
#include "elflibrary.h"
#include "parts.h"
#include "registers/registerdocs.h"

namespace TARVOORIXM1
{

namespace
{

// What kind of ELF file it is and why that is no program for the processor, as a clause; empty if
// it is one.
QString unsuitable(const GElf_Ehdr &header)
{
    if (header.e_ident[EI_CLASS] != ELFCLASS32 || header.e_machine != EM_ARM)
        return QStringLiteral("it is an ELF file for another processor than a 32-bit ARM");
    if (header.e_type != ET_EXEC)
        return QStringLiteral("it is an ELF file that is not linked to an executable");
    if (header.e_ident[EI_DATA] == ELFDATA2MSB && (header.e_flags & EF_ARM_BE8) == 0)
        return QStringLiteral("its instructions are big-endian (BE32): link it with --be8");
    return {};
}

} // namespace

Utils::Result<FirmwareImage> readElfImage(const QByteArray &bytes)
{
    const ElfLibrary *library = ElfLibrary::instance();
    if (!library)
        return Utils::Failure{
            QStringLiteral("ELF images need libelf.so.1, which is not installed")};
    QByteArray copy = bytes;
    const ElfLibrary::Image elf = library->open(copy);
    if (!elf)
        return Utils::Failure{"it is no ELF file: "_l1 + library->reason()};
    // What is something else, or too short to tell, is no mistake to the library.
    if (library->kind(elf.get()) != ELF_K_ELF)
        return Utils::Failure{QStringLiteral("it is no ELF file")};
    GElf_Ehdr header;
    size_t count = 0;
    if (!library->getehdr(elf.get(), &header) || library->getphdrnum(elf.get(), &count) != 0)
        return Utils::Failure{"it is no complete ELF file: "_l1 + library->reason()};
    if (const QString reason = unsuitable(header); !reason.isEmpty())
        return Utils::Failure{reason};

    FirmwareImage image;
    image.form = ImageForm::Elf;
    image.isBigEndian = header.e_ident[EI_DATA] == ELFDATA2MSB;
    image.entry = quint32(header.e_entry) & ~1u;
    image.entryIsThumb = header.e_entry & 1;
    for (size_t i = 0; i < count; ++i) {
        const auto fail = [i](const QString &reason) {
            return Utils::Failure{"segment "_l1 + QString::number(i) + ": "_l1 + reason};
        };
        GElf_Phdr segment;
        if (!library->getphdr(elf.get(), int(i), &segment))
            return fail("cannot be read: "_l1 + library->reason());
        if (segment.p_type != PT_LOAD || segment.p_filesz == 0)
            continue;
        const quint64 size = quint64(bytes.size());
        if (segment.p_offset > size || segment.p_filesz > size - segment.p_offset)
            return fail(QStringLiteral("its contents lie outside of the file"));
        if (segment.p_paddr + segment.p_filesz > quint64(1) << 32)
            return fail("from "_l1 + hexAddress(quint32(segment.p_paddr)) +
                        " on it runs beyond the end of the address space"_l1);
        image.parts.append(
            {quint32(segment.p_paddr), bytes.mid(int(segment.p_offset), int(segment.p_filesz))});
    }
    return image;
}

} // namespace TARVOORIXM1
