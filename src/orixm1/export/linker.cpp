#include "linker.h"

#include "config/latin1literal.h"
#include "names.h"
#include "programmemory.h"
#include "registers/registerdocs.h"
#include "startup.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

constexpr int vectorSize = 4; // bytes

constexpr quint64 largestStack = 4096; // bytes, of those that are kept free unasked

// "32K" or, where that is not whole, "0x00000123".
QString sizeText(quint64 bytes)
{
    constexpr quint64 kilo = 1024;
    constexpr quint64 mega = kilo * kilo;
    if (bytes % mega == 0)
        return QString::number(bytes / mega) + u'M';
    if (bytes % kilo == 0)
        return QString::number(bytes / kilo) + u'K';
    return "0x"_l1 + QString::number(bytes, 16).toUpper();
}

// The script's fixed text. Each @name@ is filled in.
const char scriptText[] = R"(
/* Bytes that are kept free for the stack and, at least, for the heap; the heap takes what is left.
 * Change them with -Wl,--defsym=__stack_size=0x800 and -Wl,--defsym=__heap_size=0x100 */
__stack_size = DEFINED(__stack_size) ? __stack_size : @stack size@;
__heap_size = DEFINED(__heap_size) ? __heap_size : 0;

/* What is executed stands apart from what is written. */
PHDRS
{
    text PT_LOAD FLAGS(5);
    data PT_LOAD FLAGS(6);
    thread PT_TLS FLAGS(4);
@segments@}

SECTIONS
{
    .vectors ORIGIN(REGION_TEXT) :
    {
        KEEP(*(.vectors))
    } > REGION_TEXT :text

    .text : ALIGN(4)
    {
        *(.text .text.*)
        KEEP(*(.init))
        KEEP(*(.fini))
        . = ALIGN(4);
    } > REGION_TEXT

    .rodata : ALIGN(4)
    {
        *(.rodata .rodata.*)
        *(.gcc_except_table .gcc_except_table.*)
        *(.note.gnu.build-id)
@tables@        . = ALIGN(4);
    } > REGION_TEXT

    .ARM.extab : { *(.ARM.extab .ARM.extab.*) } > REGION_TEXT
    .ARM.exidx :
    {
        PROVIDE(__exidx_start = .);
        *(.ARM.exidx .ARM.exidx.*)
        PROVIDE(__exidx_end = .);
    } > REGION_TEXT
    .eh_frame : { KEEP(*(.eh_frame)) } > REGION_TEXT

    .preinit_array : ALIGN(4)
    {
        __preinit_array_start = .;
        KEEP(*(.preinit_array))
        __preinit_array_end = .;
    } > REGION_TEXT
    .init_array : ALIGN(4)
    {
        __init_array_start = .;
        KEEP(*(SORT_BY_INIT_PRIORITY(.init_array.*)))
        KEEP(*(.init_array))
        __init_array_end = .;
    } > REGION_TEXT
    .fini_array : ALIGN(4)
    {
        __fini_array_start = .;
        KEEP(*(SORT_BY_INIT_PRIORITY(.fini_array.*)))
        KEEP(*(.fini_array))
        __fini_array_end = .;
    } > REGION_TEXT

    /* Variables of a thread, of which there is one, lie among data and zeros. Their zeros take no addresses, so .bss
     * leaves room. */
    .data : ALIGN(8)
    {
        __data_start = .;
        *(.data .data.*)
        *(.got .got.*)
        @own@
        . = ALIGN(8);
    } > REGION_DATA@values@ :data
    .tdata : ALIGN(8)
    {
        *(.tdata .tdata.*)
    } > REGION_DATA@values@ :data :thread
    .tbss (NOLOAD) : ALIGN(8) { *(.tbss .tbss.*) } > REGION_DATA :data :thread
    __data_load = LOADADDR(.data);

    .bss (NOLOAD) : ALIGN(8)
    {
        __bss_start = .;
        . += SIZEOF(.tbss);
        *(.bss .bss.* COMMON)
        @own_bss@
        . = ALIGN(4);
        __bss_end = .;
    } > REGION_DATA :data
    .noinit (NOLOAD) : ALIGN(8)
    {
        *(.noinit .noinit.*)
        @own_noinit@
        . = ALIGN(8);
        __heap_start = .;
    } > REGION_DATA
@further@}

/* The heap ends where the room for the stack begins, and the stack grows down from the end of the memory. What is
 * provided goes by names that C libraries ask for. */
__data_end = __data_start + ((SIZEOF(.data) + SIZEOF(.tdata) + 3) & ~3);
__stack_top = (ORIGIN(REGION_DATA) + LENGTH(REGION_DATA)) & ~7;
__heap_end = __stack_top - ((__stack_size + 7) & ~7);
PROVIDE(end = __heap_start);
PROVIDE(_end = __heap_start);
PROVIDE(__end__ = __heap_start);
PROVIDE(__bss_start__ = __bss_start);
PROVIDE(__bss_end__ = __bss_end);
PROVIDE(__dso_handle = 0);
PROVIDE(__tls_base = __data_start + SIZEOF(.data));
PROVIDE(__arm32_tls_tcb_offset = 8);

ASSERT(ADDR(.vectors) == 0, "The vector table does not lie at address 0, where the processor reads it.")
ASSERT(SIZEOF(.vectors) == @vector bytes@, "The vector table does not have @vectors@ entries: link the @startup@ that was exported with this script.")
ASSERT(__data_end == __data_start || __data_load + (__data_end - __data_start) <= ORIGIN(REGION_TEXT) + LENGTH(REGION_TEXT), "Program and initial values of its data do not fit into @text memory@.")
ASSERT(__heap_start + __heap_size + ((__stack_size + 7) & ~7) <= __stack_top, "Data, heap (__heap_size) and stack (__stack_size) do not fit into @data memory@.")
)";

// A sentence as lines of a comment.
QString wrapped(const QString &text)
{
    QString lines;
    QString line = QStringLiteral(" *");
    const QStringList words = text.split(u' ');
    for (const QString &word : words) {
        if (line.size() + 1 + word.size() > 98) {
            lines += line + u'\n';
            line = QStringLiteral(" *");
        }
        line += u' ' + word;
    }
    return lines + line + u'\n';
}

QString obstacleLines(const ProgramMemory &memory)
{
    return memory.canStart() ? QString() : "\nASSERT(0, \""_l1 + memory.obstacle() + "\")\n"_l1;
}

// Sentences of what the user decides, for the head of a file.
QString sizeNotes(const ProgramMemory &memory)
{
    QString notes;
    for (const LinkedMemory &entry : memory.all) {
        if (!entry.sizeSymbol.isEmpty())
            notes += wrapped(entry.name + ": "_l1 + sizeText(entry.size) +
                             " is the range of addresses. Give the size of the memory that is "
                             "there, in bytes: -Wl,--defsym="_l1 +
                             entry.sizeSymbol + "=0x100000"_l1);
    }
    return notes.isEmpty() ? QString() : " *\n"_l1 + notes;
}

QString memoryLine(const QString &name, const LinkedMemory &entry, const QString &length)
{
    return "    "_l1 + name + " ("_l1 + entry.attributes + ") : ORIGIN = "_l1 +
           hexAddress(entry.base) + ", LENGTH = "_l1 + length + " /* "_l1 + entry.text + " */\n"_l1;
}

QString memoryScript(const SystemMap &map, const ProgramMemory &memory)
{
    QString text = "/* Memories of the subsystem "_l1 + systemName(map) +
                   " for scripts of GNU ld:\n"
                   " * INCLUDE "_l1 +
                   fileName(map, "_memory.ld"_l1) +
                   "\n"
                   " *\n"
                   " * REGION_TEXT takes vectors, code, constants and the initial values of data; "
                   "REGION_DATA takes\n"
                   " * data, heap and stack.\n"_l1;
    text += sizeNotes(memory) + " */\n"_l1;
    if (!memory.all.isEmpty()) {
        text += "MEMORY\n{\n"_l1;
        for (const LinkedMemory &entry : memory.all) {
            const QString size = sizeText(entry.size);
            text += memoryLine(entry.name, entry,
                               entry.sizeSymbol.isEmpty()
                                   ? size
                                   : "DEFINED("_l1 + entry.sizeSymbol + ") ? "_l1 +
                                         entry.sizeSymbol + " : "_l1 + size);
        }
        text += "}\n"_l1;
    }
    const auto alias = [&](QLatin1String name, int index) {
        if (index >= 0)
            text += "REGION_ALIAS(\""_l1 + name + "\", "_l1 + memory.all.at(index).name + ")\n"_l1;
        else
            text += "/* no "_l1 + name + " */\n"_l1;
    };
    alias("REGION_TEXT"_l1, memory.text);
    alias("REGION_DATA"_l1, memory.data);
    return text;
}

// FLASH and RAM do not overlap: a memory that has to be both is divided in halves.
QString rustMemory(const SystemMap &map, const ProgramMemory &memory)
{
    QString text =
        "/* Memories of the subsystem "_l1 + systemName(map) +
        " under the names that start-up code for Rust\n"
        " * (cortex-m-rt) asks for. It takes numbers only: what the comments leave to you is "
        "changed here.\n */\n"_l1;
    const bool shared = memory.text >= 0 && memory.text == memory.data;
    const auto line = [&](const QString &name, LinkedMemory entry) {
        if (!entry.sizeSymbol.isEmpty())
            entry.text += ": the range of addresses; give the size of the memory there"_l1;
        text += memoryLine(name, entry, sizeText(entry.size));
    };
    if (!memory.all.isEmpty())
        text += "MEMORY\n{\n"_l1;
    for (int i = 0; i < memory.all.size(); ++i) {
        LinkedMemory entry = memory.all.at(i);
        if (i == memory.text) {
            if (shared) {
                entry.size /= 2;
                entry.text += ", its first half; move the border as you need"_l1;
            }
            entry.attributes = QStringLiteral("rx");
            line(QStringLiteral("FLASH"), entry);
            if (shared) {
                entry = memory.all.at(i);
                entry.base += quint32(entry.size / 2);
                entry.size -= entry.size / 2;
                entry.text += ", its second half"_l1;
            }
        }
        if (i == memory.data)
            line(QStringLiteral("RAM"), entry);
        else if (i != memory.text)
            line(entry.name, entry);
    }
    if (!memory.all.isEmpty())
        text += "}\n"_l1;
    return text + obstacleLines(memory);
}

// Input sections that a program names to put something into a memory.
QString ownSections(const QString &section)
{
    return "*("_l1 + section + u' ' + section + ".*)"_l1;
}

QString segmentOf(const LinkedMemory &memory)
{
    return memory.name.toLower();
}

QString sectionOf(const LinkedMemory &memory)
{
    return u'.' + segmentOf(memory);
}

// The sections of memories beside those for text and data.
const char furtherText[] = R"(
    @section@ : ALIGN(8)
    {
        @own@
        . = ALIGN(4);
    } > @memory@ AT> REGION_TEXT :@segment@
    @section@_bss (NOLOAD) : ALIGN(8)
    {
        @own_bss@
        . = ALIGN(4);
    } > @memory@ AT> @memory@ :@segment@_zeros
    @section@_noinit (NOLOAD) : ALIGN(8)
    {
        @own_noinit@
    } > @memory@ AT> @memory@ :@segment@_zeros
)";

const char windowText[] = R"(
    @section@ :
    {
        KEEP(@own@)
    } > @memory@ :@segment@
)";

using Filled = QVector<QPair<QLatin1String, QString>>;

QString filled(const char *text, const Filled &values)
{
    QString result = QString::fromLatin1(text);
    for (const auto &[name, value] : values)
        result.replace(name, value);
    return result;
}

QString furtherSections(const ProgramMemory &memory)
{
    QString text;
    const auto add = [&](const char *form, int index) {
        const LinkedMemory &entry = memory.all.at(index);
        const QString section = sectionOf(entry);
        text += filled(form, {{"@section@"_l1, section},
                              {"@own@"_l1, ownSections(section)},
                              {"@own_bss@"_l1, ownSections(section + "_bss"_l1)},
                              {"@own_noinit@"_l1, ownSections(section + "_noinit"_l1)},
                              {"@memory@"_l1, entry.name},
                              {"@segment@"_l1, segmentOf(entry)}});
    };
    for (const int index : memory.further)
        add(furtherText, index);
    for (const int index : memory.windows)
        add(windowText, index);
    return text;
}

// Tables that the start-up code follows.
QString furtherTables(const ProgramMemory &memory)
{
    if (memory.further.isEmpty())
        return {};
    QString copy;
    QString zero;
    for (const int index : memory.further) {
        const QString section = sectionOf(memory.all.at(index));
        const auto ends = [](const QString &name) -> QString {
            return " LONG(ADDR("_l1 + name + ")) LONG(ADDR("_l1 + name + ") + SIZEOF("_l1 + name +
                   "))\n"_l1;
        };
        copy += "        LONG(LOADADDR("_l1 + section + "))"_l1 + ends(section);
        zero += "       "_l1 + ends(section + "_bss"_l1);
    }
    return "        . = ALIGN(4);\n        __copy_table_start = .;\n"_l1 + copy +
           "        __copy_table_end = .;\n        __zero_table_start = .;\n"_l1 + zero +
           "        __zero_table_end = .;\n"_l1;
}

QString sectionNotes(const ProgramMemory &memory)
{
    QString notes;
    for (const int index : memory.further) {
        const LinkedMemory &entry = memory.all.at(index);
        const QString section = sectionOf(entry);
        notes += wrapped("In "_l1 + entry.name + ": __attribute__((section(\""_l1 + section +
                         "\"))) for variables with a value, \""_l1 + section +
                         "_bss\" for such that begin with 0, \""_l1 + section +
                         "_noinit\" for such that start-up leaves alone. Start-up writes there "
                         "after SystemInit() and only if a program uses the first two."_l1);
    }
    for (const int index : memory.windows) {
        const LinkedMemory &entry = memory.all.at(index);
        notes += wrapped("In "_l1 + entry.name + " (read only): __attribute__((section(\""_l1 +
                         sectionOf(entry) +
                         "\"))) for constants. They are no part of what is loaded at address 0: "
                         "write them to the device."_l1);
    }
    notes += wrapped(QStringLiteral("Start-up leaves variables in the section \".noinit\" alone."));
    if (memory.text == memory.data)
        notes += wrapped("Data, heap and stack lie behind the program in "_l1 +
                         memory.all.at(memory.data).name +
                         ": the configuration has no other memory for them. Initial values are "
                         "there once, so a restart without loading finds them changed."_l1);
    return notes.isEmpty() ? QString() : " *\n"_l1 + notes;
}

QString head(const SystemMap &map, const ProgramMemory &memory)
{
    const bool big = map.processor.isBigEndian;
    return "/* Linker script of the subsystem "_l1 + systemName(map) +
           " for GNU ld. DIR is the folder of this "
           "file:\n * arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb"_l1 +
           (big ? " -mbig-endian -Wl,--be8"_l1 : QLatin1String()) + " -nostartfiles -L DIR -T "_l1 +
           fileName(map, ".ld"_l1) + " ...\n"_l1 + sizeNotes(memory) +
           (memory.canStart() ? sectionNotes(memory) : QString()) + " */\n"_l1 +
           "OUTPUT_FORMAT(\""_l1 + (big ? "elf32-bigarm"_l1 : "elf32-littlearm"_l1) +
           "\")\nOUTPUT_ARCH(arm)\nENTRY(Reset_Handler)\n\nINCLUDE "_l1 +
           fileName(map, "_memory.ld"_l1) + u'\n';
}

QString furtherSegments(const ProgramMemory &memory)
{
    QString text;
    for (const int index : memory.further) {
        const QString segment = segmentOf(memory.all.at(index));
        text += "    "_l1 + segment + " PT_LOAD FLAGS(6);\n    "_l1 + segment +
                "_zeros PT_LOAD FLAGS(6);\n"_l1;
    }
    for (const int index : memory.windows)
        text += "    "_l1 + segmentOf(memory.all.at(index)) + " PT_LOAD FLAGS(4);\n"_l1;
    return text;
}

QString script(const SystemMap &map, const ProgramMemory &memory)
{
    QString text = head(map, memory);
    if (!memory.canStart())
        return text + "\nSECTIONS\n{\n    /DISCARD/ : { *(*) }\n}\n"_l1 + obstacleLines(memory);
    const LinkedMemory &data = memory.all.at(memory.data);
    const bool shared = memory.text == memory.data;
    // What a program puts into the memory for data by its name lies among the data.
    const QString own = sectionOf(data);
    const int vectors = systemVectors + vectoredInterrupts(map.processor);
    return text +
           filled(scriptText,
                  {
                      {"@stack size@"_l1, QString::number(std::min(data.size / 4, largestStack))},
                      {"@segments@"_l1, furtherSegments(memory)},
                      {"@tables@"_l1, furtherTables(memory)},
                      {"@own@"_l1, ownSections(own)},
                      {"@own_bss@"_l1, ownSections(own + "_bss"_l1)},
                      {"@own_noinit@"_l1, ownSections(own + "_noinit"_l1)},
                      {"@values@"_l1, shared ? QString() : QStringLiteral(" AT> REGION_TEXT")},
                      {"@further@"_l1, furtherSections(memory)},
                      {"@vector bytes@"_l1, QString::number(vectors * vectorSize)},
                      {"@vectors@"_l1, QString::number(vectors)},
                      {"@text memory@"_l1, memory.all.at(memory.text).name},
                      {"@data memory@"_l1, data.name},
                      {"@startup@"_l1, startupFile(map)},
                  });
}

} // namespace

QVector<ExportedFile> linkerFiles(const SystemMap &map)
{
    const ProgramMemory memory = programMemory(map);
    return {{fileName(map, ".ld"_l1), script(map, memory).toUtf8()},
            {fileName(map, "_memory.ld"_l1), memoryScript(map, memory).toUtf8()},
            {ownName(map, QStringLiteral("memory.x")), rustMemory(map, memory).toUtf8()}};
}

} // namespace TARVOORIXM1
