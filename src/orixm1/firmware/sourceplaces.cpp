#include "sourceplaces.h"

#include "config/latin1literal.h"
#include "elflibrary.h"

#include <QDir>
#include <QHash>

#include <dwarf.h>
#include <elfutils/libdw.h>

#include <algorithm>
#include <tuple>

namespace TARVOORIXM1
{

namespace
{

// Far above what the instruction memory can hold.
constexpr int mostFunctions = 1 << 18;
constexpr int mostLines = 1 << 21;
constexpr int longestName = 4096;
constexpr quint64 mostUnpacked = 64 << 20; // bytes of compressed sections together

class DwarfLibrary
{
public:
    // Null where the machine does not have it.
    static const DwarfLibrary *instance()
    {
        static DwarfLibrary library;
        return library.m_library.isWhole() ? &library : nullptr;
    }

    decltype(&dwarf_begin_elf) begin = nullptr;
    decltype(&dwarf_end) end = nullptr;
    decltype(&dwarf_nextcu) nextcu = nullptr;
    decltype(&dwarf_offdie) offdie = nullptr;
    decltype(&dwarf_attr) attr = nullptr;
    decltype(&dwarf_formstring) formstring = nullptr;
    decltype(&dwarf_getsrclines) getsrclines = nullptr;
    decltype(&dwarf_onesrcline) onesrcline = nullptr;
    decltype(&dwarf_lineaddr) lineaddr = nullptr;
    decltype(&dwarf_lineno) lineno = nullptr;
    decltype(&dwarf_linesrc) linesrc = nullptr;
    decltype(&dwarf_lineendsequence) lineendsequence = nullptr;

private:
    DwarfLibrary()
    {
        m_library.take("dwarf_begin_elf", &begin);
        m_library.take("dwarf_end", &end);
        m_library.take("dwarf_nextcu", &nextcu);
        m_library.take("dwarf_offdie", &offdie);
        m_library.take("dwarf_attr", &attr);
        m_library.take("dwarf_formstring", &formstring);
        m_library.take("dwarf_getsrclines", &getsrclines);
        m_library.take("dwarf_onesrcline", &onesrcline);
        m_library.take("dwarf_lineaddr", &lineaddr);
        m_library.take("dwarf_lineno", &lineno);
        m_library.take("dwarf_linesrc", &linesrc);
        m_library.take("dwarf_lineendsequence", &lineendsequence);
    }

    LazyLibrary m_library{"dw", 1}; // libdw.so.1
};

QString noLines()
{
    return QStringLiteral("The program has no debug information: compile it with -g.");
}

QString textOf(const char *bytes)
{
    return QString::fromUtf8(bytes, int(qstrnlen(bytes, longestName)));
}

} // namespace

class SourcePlaces::Reader
{
public:
    Reader(const ElfLibrary &library, Elf *elf, SourcePlaces &places)
        : m_library(library)
        , m_elf(elf)
        , m_places(places)
    {
    }

    void read()
    {
        size_t names = 0;
        if (m_library.getshdrstrndx(m_elf, &names) != 0)
            return;
        bool hasLines = false;
        quint64 unpacked = 0;
        QString refusal;
        for (Elf_Scn *section = nullptr; (section = m_library.nextscn(m_elf, section));) {
            GElf_Shdr header;
            if (!m_library.getshdr(section, &header))
                continue;
            const QByteArray name = m_library.strptr(m_elf, names, header.sh_name);
            if (header.sh_type == SHT_SYMTAB)
                readSymbols(section, header);
            hasLines = hasLines || name == ".debug_line";
            GElf_Chdr packed;
            if ((header.sh_flags & SHF_COMPRESSED) != 0)
                unpacked += m_library.getchdr(section, &packed)
                                ? std::min<quint64>(packed.ch_size, mostUnpacked + 1)
                                : mostUnpacked + 1;
            if (name.startsWith(".zdebug") || unpacked > mostUnpacked)
                refusal = QStringLiteral("The debug information of the program is packed in a way "
                                         "that is not read.");
            // The library would open the file that is named there.
            if (name == ".gnu_debugaltlink")
                refusal =
                    QStringLiteral("The debug information of the program is in another file.");
        }
        sortFunctions();
        if (refusal.isEmpty())
            refusal = hasLines ? readLines() : noLines();
        if (m_places.m_lines.isEmpty())
            m_places.m_problem = refusal.isEmpty() ? noLines() : refusal;
    }

private:
    void readSymbols(Elf_Scn *section, const GElf_Shdr &header)
    {
        Elf_Data *data = m_library.getdata(section, nullptr);
        if (!data)
            return;
        GElf_Sym symbol;
        for (int i = 0; m_functions.size() < mostFunctions && m_library.getsym(data, i, &symbol);
             ++i) {
            if (GELF_ST_TYPE(symbol.st_info) != STT_FUNC || symbol.st_shndx == SHN_UNDEF)
                continue;
            const char *name = m_library.strptr(m_elf, header.sh_link, symbol.st_name);
            if (name && *name)
                m_functions.append(
                    {GELF_ST_BIND(symbol.st_info) == STB_WEAK,
                     {quint32(symbol.st_value) & ~1u, quint32(symbol.st_size), textOf(name)}});
        }
    }

    // Of functions at one address the first one that is not weak.
    void sortFunctions()
    {
        std::stable_sort(
            m_functions.begin(), m_functions.end(), [](const Found &a, const Found &b) {
                return std::tie(a.symbol.address, a.isWeak) < std::tie(b.symbol.address, b.isWeak);
            });
        for (const Found &found : qAsConst(m_functions)) {
            if (m_places.m_functions.isEmpty() ||
                m_places.m_functions.last().address != found.symbol.address)
                m_places.m_functions.append(found.symbol);
        }
    }

    // Why there are none; empty for no particular reason.
    QString readLines()
    {
        const DwarfLibrary *library = DwarfLibrary::instance();
        if (!library)
            return QStringLiteral("Lines of C need libdw.so.1, which is not installed; the Debian "
                                  "package libdw1 has it.");
        const std::unique_ptr<Dwarf, decltype(library->end)> dwarf(
            library->begin(m_elf, DWARF_C_READ, nullptr), library->end);
        if (!dwarf)
            return {};
        Dwarf_Off next = 0;
        size_t headerBytes = 0;
        for (Dwarf_Off unit = 0; library->nextcu(dwarf.get(), unit, &next, &headerBytes, nullptr,
                                                 nullptr, nullptr) == 0 &&
                                 next > unit;
             unit = next) {
            Dwarf_Die die;
            if (library->offdie(dwarf.get(), unit + headerBytes, &die))
                readUnit(*library, die);
        }
        // Where one piece of code ends another one may begin.
        std::stable_sort(
            m_places.m_lines.begin(), m_places.m_lines.end(), [](const Line &a, const Line &b) {
                return a.address != b.address ? a.address < b.address : a.file < 0 && b.file >= 0;
            });
        return {};
    }

    void readUnit(const DwarfLibrary &library, Dwarf_Die &die)
    {
        Dwarf_Lines *lines = nullptr;
        size_t count = 0;
        if (library.getsrclines(&die, &lines, &count) != 0)
            return;
        Dwarf_Attribute attribute;
        const char *compiledIn = library.attr(&die, DW_AT_comp_dir, &attribute)
                                     ? library.formstring(&attribute)
                                     : nullptr;
        const QString folder = compiledIn ? textOf(compiledIn) + u'/' : QString();
        m_fileIndices.clear();
        for (size_t i = 0; i < count && m_places.m_lines.size() < mostLines; ++i) {
            Dwarf_Line *line = library.onesrcline(lines, i);
            Dwarf_Addr address = 0;
            int number = 0;
            bool isEnd = false;
            if (!line || library.lineaddr(line, &address) != 0 ||
                library.lineno(line, &number) != 0 || library.lineendsequence(line, &isEnd) != 0)
                continue;
            const char *file =
                isEnd || number <= 0 ? nullptr : library.linesrc(line, nullptr, nullptr);
            if (file || isEnd)
                m_places.m_lines.append(
                    {quint32(address), file ? indexOf(file, folder) : -1, number});
        }
    }

    // `folder`: what the names of a unit's files are given from.
    int indexOf(const char *file, const QString &folder)
    {
        const QByteArray bytes(file, int(qstrnlen(file, longestName)));
        const auto found = m_fileIndices.constFind(bytes);
        if (found != m_fileIndices.constEnd())
            return *found;
        const int index = m_places.m_files.size();
        const QString name = QString::fromUtf8(bytes);
        m_places.m_files.append(QDir::cleanPath(QDir::isAbsolutePath(name) ? name : folder + name));
        m_fileIndices.insert(bytes, index);
        return index;
    }

    struct Found {
        bool isWeak = false;
        FunctionSymbol symbol;
    };

    const ElfLibrary &m_library;
    Elf *const m_elf;
    SourcePlaces &m_places;
    QVector<Found> m_functions;
    QHash<QByteArray, int> m_fileIndices; // of the unit
};

SourcePlaces::SourcePlaces(const QByteArray &elf)
{
    const ElfLibrary *library = ElfLibrary::instance();
    if (!library)
        return;
    QByteArray copy = elf;
    const ElfLibrary::Image image = library->open(copy);
    if (image && library->kind(image.get()) == ELF_K_ELF)
        Reader(*library, image.get(), *this).read();
}

SourcePlace SourcePlaces::at(quint32 address) const
{
    SourcePlace place;
    const auto function = std::upper_bound(
        m_functions.begin(), m_functions.end(), address,
        [](quint32 wanted, const FunctionSymbol &symbol) { return wanted < symbol.address; });
    if (function != m_functions.begin()) {
        const FunctionSymbol &symbol = *std::prev(function);
        if (symbol.bytes == 0 || address - symbol.address < symbol.bytes)
            place.function = symbol.name;
    }
    const auto line =
        std::upper_bound(m_lines.begin(), m_lines.end(), address,
                         [](quint32 wanted, const Line &entry) { return wanted < entry.address; });
    if (line != m_lines.begin() && std::prev(line)->file >= 0) {
        place.file = m_files.at(std::prev(line)->file);
        place.line = std::prev(line)->line;
    }
    return place;
}

} // namespace TARVOORIXM1
