#include "elflibrary.h"

namespace TARVOORIXM1
{

const ElfLibrary *ElfLibrary::instance()
{
    static ElfLibrary library;
    return library.m_isWhole ? &library : nullptr;
}

ElfLibrary::ElfLibrary()
{
    m_library.take("elf_version", &version);
    m_library.take("elf_errmsg", &errmsg);
    m_library.take("elf_memory", &memory);
    m_library.take("elf_end", &end);
    m_library.take("elf_kind", &kind);
    m_library.take("elf_getphdrnum", &getphdrnum);
    m_library.take("elf_getshdrstrndx", &getshdrstrndx);
    m_library.take("elf_nextscn", &nextscn);
    m_library.take("elf_getdata", &getdata);
    m_library.take("elf_strptr", &strptr);
    m_library.take("gelf_getehdr", &getehdr);
    m_library.take("gelf_getphdr", &getphdr);
    m_library.take("gelf_getshdr", &getshdr);
    m_library.take("gelf_getchdr", &getchdr);
    m_library.take("gelf_getsym", &getsym);
    m_isWhole = m_library.isWhole() && version(EV_CURRENT) != EV_NONE;
}

} // namespace TARVOORIXM1
