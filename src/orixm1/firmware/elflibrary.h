#pragma once

#include <QByteArray>
#include <QLibrary>
#include <QString>

#include <gelf.h>
#include <libelf.h>

#include <memory>

namespace TARVOORIXM1
{

// Functions of a shared library, taken one by one.
class LazyLibrary
{
public:
    LazyLibrary(const char *name, int version)
        : m_library(QString::fromLatin1(name), version)
    {
    }

    template <typename Function>
    void take(const char *name, Function *function)
    {
        *function = m_isWhole ? reinterpret_cast<Function>(m_library.resolve(name)) : nullptr;
        m_isWhole = *function != nullptr;
    }

    bool isWhole() const { return m_isWhole; }

private:
    QLibrary m_library;
    bool m_isWhole = true;
};

// Loaded with the first ELF image, so that programs and plug-ins start without it.
class ElfLibrary
{
public:
    // Null where the machine does not have it.
    static const ElfLibrary *instance();

    decltype(&elf_version) version = nullptr;
    decltype(&elf_errmsg) errmsg = nullptr;
    decltype(&elf_memory) memory = nullptr;
    decltype(&elf_end) end = nullptr;
    decltype(&elf_kind) kind = nullptr;
    decltype(&elf_getphdrnum) getphdrnum = nullptr;
    decltype(&elf_getshdrstrndx) getshdrstrndx = nullptr;
    decltype(&elf_nextscn) nextscn = nullptr;
    decltype(&elf_getdata) getdata = nullptr;
    decltype(&elf_strptr) strptr = nullptr;
    decltype(&gelf_getehdr) getehdr = nullptr;
    decltype(&gelf_getphdr) getphdr = nullptr;
    decltype(&gelf_getshdr) getshdr = nullptr;
    decltype(&gelf_getchdr) getchdr = nullptr;
    decltype(&gelf_getsym) getsym = nullptr;

    QString reason() const { return QString::fromUtf8(errmsg(-1)); }

    // `bytes` outlives it; the library asks for memory of its own, though it only reads. Null if it
    // refuses.
    using Image = std::unique_ptr<Elf, decltype(&elf_end)>;
    Image open(QByteArray &bytes) const
    {
        return Image(memory(bytes.data(), size_t(bytes.size())), end);
    }

private:
    ElfLibrary();

    LazyLibrary m_library{"elf", 1}; // libelf.so.1
    bool m_isWhole = false;
};

} // namespace TARVOORIXM1
