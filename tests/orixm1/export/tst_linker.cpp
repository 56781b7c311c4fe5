// The exported linker script and memories: programs are linked with them, looked at and run.

#include "crosscompiled.h"

using namespace TARVOORIXM1;
using namespace CrossCompiled;

namespace
{

QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromLatin1(text, int(size));
}

// Has something for each kind of section, in small.
const char program[] = R"(
#include <stdint.h>
static const uint32_t constants[4] = {1, 2, 3, 4};
static volatile uint32_t data[3] = {5, 6, 7};
static volatile uint32_t zeros[5];
__attribute__((section(".noinit"))) static volatile uint32_t left;
__attribute__((constructor)) static void construct(void)
{
    ++zeros[0];
}
int main(void);
int main(void)
{
    left = constants[data[0] & 3] + zeros[1];
    return (int)left;
}
)";

// Programs with an array of so many bytes.
QByteArray withArray(const QByteArray &declaration)
{
    return QByteArray(program)
        .replace("int main(void);", declaration + "\n#define LAST(array) (sizeof(array) - 1)\n"
                                                  "int main(void);")
        .replace("return (int)left;", "return (int)left + array[left] + array[LAST(array)];");
}

const Region *memoryAt(const SystemMap &map, quint32 address)
{
    const Region *region = regionAt(map, address);
    return region && isMemory(region->kind) ? region : nullptr;
}

} // namespace

class tst_Linker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everythingLiesInItsMemory_data();
    void everythingLiesInItsMemory();
    void memoriesAreThoseOfTheMap_data();
    void memoriesAreThoseOfTheMap();
    void rustFindsFlashAndRam_data();
    void rustFindsFlashAndRam();
    void sizeOfAConnectedMemoryIsTheUsers_data();
    void sizeOfAConnectedMemoryIsTheUsers();
    void sectionsNamedAfterMemoriesLieInThem();
    void instructionMemoryStandsWhereItsAliasesAre_data();
    void instructionMemoryStandsWhereItsAliasesAre();
    void codeStaysLittleEndianAmongBigEndianData();
    void refusesWhatCannotRun_data();
    void refusesWhatCannotRun();
    void saysWhyNoProgramCanStart_data();
    void saysWhyNoProgramCanStart();
    void runsWithDataBehindTheProgram();
    void cLibrariesWorkWithTheirStartUpOff_data();
    void cLibrariesWorkWithTheirStartUpOff();

private:
    Maps m_maps;
};

void tst_Linker::initTestCase()
{
    QVERIFY(m_maps.isValid());
}

void tst_Linker::everythingLiesInItsMemory_data()
{
    addCases();
}

void tst_Linker::everythingLiesInItsMemory()
{
    QFETCH(OptionMap, options);
    const SystemMap map = m_maps.map(options);
    const Project project(map);
    QVERIFY(project.write("main.c"_s, program));
    const Run linked = project.link({"-Wl,--warn-rwx-segments"_s});
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(linked.output, QString());
    const auto sections = project.sections();
    const auto symbols = project.symbols();
    const Region *text = memoryAt(map, 0);
    QVERIFY(text);
    // The first memory for data, or the one for the program.
    const Region *data = text;
    for (auto it = map.regions.rbegin(); it != map.regions.rend(); ++it) {
        if (isMemory(it->kind) && it->base >= 0x20000000)
            data = &*it;
    }

    QCOMPARE(sections.value(".vectors"_s).address, 0u);
    for (const char *name : {".vectors", ".text", ".rodata", ".init_array"}) {
        const auto section = sections.value(QString::fromLatin1(name));
        QVERIFY2(section.isThere && section.size > 0, name);
        QVERIFY2(text->contains(section.address), name);
        QCOMPARE(section.load, section.address);
    }
    for (const char *name : {".data", ".bss", ".noinit"}) {
        const auto section = sections.value(QString::fromLatin1(name));
        QVERIFY2(section.isThere && section.size > 0, name);
        QVERIFY2(data->contains(section.address), name);
    }
    const auto values = sections.value(".data"_s);
    QVERIFY(text->contains(values.load));
    QVERIFY(text->contains(values.load + values.size - 1));
    QCOMPARE(values.load == values.address, data == text);

    const auto value = [&symbols](const char *name) {
        return symbols.value(QString::fromLatin1(name)).value;
    };
    for (const char *name : {"__stack_top", "__data_start", "__data_end", "__data_load",
                             "__bss_start", "__bss_end", "__heap_start", "__heap_end"}) {
        QVERIFY2(symbols.contains(QString::fromLatin1(name)), name);
        QCOMPARE(value(name) % 4, 0u);
    }
    QCOMPARE(value("__data_start"), values.address);
    QCOMPARE(value("__data_load"), values.load);
    QVERIFY(value("__data_end") - value("__data_start") >= 12);
    QCOMPARE(value("__bss_start"), sections.value(".bss"_s).address);
    QCOMPARE(value("__bss_end"), value("__bss_start") + sections.value(".bss"_s).size);
    QVERIFY(value("__data_end") <= value("__bss_start"));
    // What start-up leaves alone is neither copied nor zeroed, and no part of the heap.
    const auto left = sections.value(".noinit"_s);
    QVERIFY(left.address >= value("__bss_end"));
    QVERIFY(value("__heap_start") >= left.address + left.size);
    QVERIFY(value("__heap_start") < value("__heap_end"));
    QVERIFY(value("__heap_end") < value("__stack_top"));
    QCOMPARE(quint64(value("__stack_top")), quint64(data->last) + 1);
    QCOMPARE(value("__stack_top") - value("__heap_end"),
             quint32(std::min<quint64>(4096, data->size() / 4)));
}

void tst_Linker::memoriesAreThoseOfTheMap_data()
{
    addCases();
    QTest::newRow("no memory at all") << without(true, true);
    QTest::newRow("no instruction memory") << without(true, false);
    QTest::newRow("no data memory beside external instructions")
        << with({Key::externalInstructionMemory}, without(true, true));
}

// A script of the user's includes them; the linker tells what it has read.
void tst_Linker::memoriesAreThoseOfTheMap()
{
    QFETCH(OptionMap, options);
    const SystemMap map = m_maps.map(options);
    const Project project(map);
    QByteArray script = "INCLUDE tarvo_orix_m1_memory.ld\n";
    QMap<QString, QPair<quint32, quint32>> expected;
    for (const Region &region : map.regions) {
        if (!isMemory(region.kind) && region.kind != RegionKind::ReadWindow)
            continue;
        const QByteArray name = region.name.toLatin1();
        script += "origin_" + name + " = ORIGIN(" + name + ");\nlength_" + name + " = LENGTH(" +
                  name + ");\n";
        expected.insert(region.name, {region.base, quint32(region.size())});
    }
    script += "SECTIONS { .all 0 : { *(.none) } /DISCARD/ : { *(*) } }\n";
    QVERIFY(project.write("own.ld"_s, script));
    QVERIFY(project.write("own.c"_s, "typedef int nothing;\n"));
    const Run linked =
        project.gcc("-nostdlib -nostartfiles -L . -T own.ld own.c -o program.elf"_s.split(u' '));
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    const auto symbols = project.symbols();
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        QVERIFY2(symbols.contains("origin_"_s + it.key()), qPrintable(it.key()));
        QCOMPARE(symbols.value("origin_"_s + it.key()).value, it->first);
        QCOMPARE(symbols.value("length_"_s + it.key()).value, it->second);
    }
    // And no other.
    const QString text = QString::fromUtf8(project.contents("tarvo_orix_m1_memory.ld"_s));
    const QRegularExpression line("^ +([A-Z0-9_]+) \\((\\w+)\\) : ORIGIN"_s,
                                  QRegularExpression::MultilineOption);
    QStringList names;
    for (auto it = line.globalMatch(text); it.hasNext();)
        names.append(it.next().captured(1));
    names.sort();
    QCOMPARE(names, QStringList(expected.keys()));
}

void tst_Linker::rustFindsFlashAndRam_data()
{
    addCases();
}

void tst_Linker::rustFindsFlashAndRam()
{
    QFETCH(OptionMap, options);
    const SystemMap map = m_maps.map(options);
    const Project project(map);
    QVERIFY(project.write("own.ld"_s, R"(
INCLUDE memory.x
ENTRY(main)
SECTIONS
{
    .vectors ORIGIN(FLASH) : { KEEP(*(.vectors)) } > FLASH
    .text : { *(.text .text.* .rodata .rodata.*) } > FLASH
    .init_array : { *(.init_array .init_array.*) } > FLASH
    .data : { *(.data .data.*) } > RAM AT> FLASH
    .bss : { *(.bss .bss.* .noinit) } > RAM
}
flash = ORIGIN(FLASH);
flash_length = LENGTH(FLASH);
ram = ORIGIN(RAM);
ram_length = LENGTH(RAM);
)"));
    QVERIFY(project.write("main.c"_s, program));
    const Run linked = project.gcc("-Os -ffreestanding -nostdlib -nostartfiles -L . -T own.ld "
                                   "-Wl,--fatal-warnings -o program.elf main.c"_s.split(u' '));
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    const auto symbols = project.symbols();
    const quint64 flash = symbols.value("flash"_s).value;
    const quint64 flashEnd = flash + symbols.value("flash_length"_s).value;
    const quint64 ram = symbols.value("ram"_s).value;
    const quint64 ramEnd = ram + symbols.value("ram_length"_s).value;
    QCOMPARE(flash, quint64(0));
    QVERIFY(flashEnd <= ram);
    const Region *text = memoryAt(map, 0);
    const Region *data = memoryAt(map, quint32(ram));
    QVERIFY(text && data);
    QCOMPARE(ramEnd, quint64(data->last) + 1);
    QCOMPARE(flashEnd, text == data ? ram : text->size());
    QCOMPARE(project.sections().value(".data"_s).address, quint32(ram));
}

void tst_Linker::sizeOfAConnectedMemoryIsTheUsers_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QString>("flag");
    QTest::addColumn<quint32>("stackTop"); // 0: the program does not fit
    const OptionMap external =
        with({Key::externalInstructionMemory, Key::externalDataMemory}, without(true, true));
    QTest::newRow("nothing told: the range")
        << external << "-Wl,--defsym=ANOTHER=1" << quint32(0x40000000);
    QTest::newRow("data memory of 64 KB")
        << external << "-Wl,--defsym=EXTSRAM_SIZE=0x10000" << quint32(0x20010000);
    QTest::newRow("data memory of no whole number of words")
        << external << "-Wl,--defsym=EXTSRAM_SIZE=0x10005" << quint32(0x20010000);
    QTest::newRow("instruction memory of 128 KB")
        << external << "-Wl,--defsym=EXTFLASH_SIZE=0x20000" << quint32(0x40000000);
    QTest::newRow("instruction memory of 64 bytes")
        << external << "-Wl,--defsym=EXTFLASH_SIZE=64" << quint32(0);
    QTest::newRow("PSRAM of 8 MB") << with({Key::enablePsram}, without(false, true))
                                   << "-Wl,--defsym=PSRAM_SIZE=0x800000" << quint32(0x70800000);
    QTest::newRow("DDR3 memory of 128 MB")
        << with({Key::enableDdr3}, without(false, true)) << "-Wl,--defsym=DDR3_SIZE=0x8000000"
        << quint32(0xA8000000);
}

void tst_Linker::sizeOfAConnectedMemoryIsTheUsers()
{
    QFETCH(OptionMap, options);
    QFETCH(QString, flag);
    QFETCH(quint32, stackTop);
    const Project project(m_maps.map(options));
    QVERIFY(project.write("main.c"_s, program));
    const Run linked = project.link({flag});
    QCOMPARE(linked.ok(), stackTop != 0);
    if (stackTop != 0)
        QCOMPARE(project.symbols().value("__stack_top"_s).value, stackTop);
    else
        QVERIFY2(linked.output.contains("`EXTFLASH' overflowed by "_s), qPrintable(linked.output));
}

void tst_Linker::sectionsNamedAfterMemoriesLieInThem()
{
    const SystemMap map = m_maps.map(everything());
    const Project project(map);
    QVERIFY(project.write("main.c"_s, QByteArray(program) + R"(
#define IN(name) __attribute__((used, section(name)))
IN(".psram") uint32_t psram = 1;
IN(".psram_bss") uint32_t psram_zeros[4];
IN(".psram_noinit") uint32_t psram_left[4];
IN(".ddr3") uint32_t ddr3 = 2;
IN(".ddr3_bss") uint32_t ddr3_zeros[4];
IN(".ddr3_noinit") uint32_t ddr3_left[4];
IN(".dtcm") uint32_t dtcm = 3;
IN(".spiflash_window") const uint32_t font[4] = {1, 2, 3, 4};
)"));
    // Without the collection of what nothing uses.
    const Run linked = project.link({"-Wl,--no-gc-sections"_s});
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    const auto symbols = project.symbols();
    for (const auto &[symbol, region] :
         {std::make_pair("psram", "PSRAM"), std::make_pair("psram_zeros", "PSRAM"),
          std::make_pair("psram_left", "PSRAM"), std::make_pair("ddr3", "DDR3"),
          std::make_pair("ddr3_zeros", "DDR3"), std::make_pair("ddr3_left", "DDR3"),
          std::make_pair("dtcm", "DTCM"), std::make_pair("font", "SPIFLASH_WINDOW")}) {
        const Region *there = findRegion(map, QString::fromLatin1(region));
        QVERIFY2(there->contains(symbols.value(QString::fromLatin1(symbol)).value), symbol);
    }
    const auto sections = project.sections();
    const Region *text = findRegion(map, "ITCM"_s);
    for (const char *name : {".psram", ".ddr3", ".data"})
        QVERIFY2(text->contains(sections.value(QString::fromLatin1(name)).load), name);
    // An image of what is loaded has the bytes of these alone: 4 of each, and no zeros.
    const Run copied = run(project.folder(), "arm-none-eabi-objcopy"_s,
                           "-O binary -R .spiflash_window program.elf image.bin"_s.split(u' '));
    QVERIFY2(copied.ok(), qPrintable(copied.output));
    const auto last = sections.value(".ddr3"_s);
    QCOMPARE(quint32(project.contents("image.bin"_s).size()), last.load + last.size);
    QVERIFY(last.load + last.size < text->size());
}

void tst_Linker::instructionMemoryStandsWhereItsAliasesAre_data()
{
    QTest::addColumn<bool>("lower");
    QTest::addColumn<bool>("upper");
    QTest::addColumn<bool>("external"); // memory at address 0 beside it
    QTest::addColumn<QString>("line");  // of the memories; empty: none of its own
    QTest::addColumn<bool>("links");
    const QString atZero = "ITCM (rwx) : ORIGIN = 0x00000000, LENGTH = 32K /* instruction memory"_s;
    const QString above = "ITCM (rwx) : ORIGIN = 0x10000000, LENGTH = 32K /* instruction memory"_s;
    QTest::newRow("lower") << true << false << false << atZero + " */"_s << true;
    QTest::newRow("both") << true << true << false << atZero + ", also at 0x10000000 */"_s << true;
    QTest::newRow("upper") << false << true << false << above + " */"_s << false;
    QTest::newRow("upper, external memory below")
        << false << true << true << above + " */"_s << true;
    QTest::newRow("none") << false << false << false << QString() << false;
}

// No option switches an upper alias on, so that the maps are made by hand.
void tst_Linker::instructionMemoryStandsWhereItsAliasesAre()
{
    QFETCH(bool, lower);
    QFETCH(bool, upper);
    QFETCH(bool, external);
    QFETCH(QString, line);
    QFETCH(bool, links);
    SystemMap map = m_maps.map({});
    map.processor.itcmAtLowerAlias = lower;
    map.processor.itcmAtUpperAlias = upper;
    if (external) {
        Region region;
        region.name = "EXTFLASH"_s;
        region.last = 0x0FFFFFFF;
        region.kind = RegionKind::ExternalMemory;
        map.regions.prepend(region);
    }
    const Project project(map);
    const QString memories = QString::fromUtf8(project.contents("tarvo_orix_m1_memory.ld"_s));
    if (line.isEmpty())
        QVERIFY2(!memories.contains("ITCM"_s), qPrintable(memories));
    else
        QVERIFY2(memories.contains(line), qPrintable(memories));
    QVERIFY(project.write("main.c"_s, QByteArray(program) + (external ? R"(
__attribute__((used, section(".itcm"))) uint32_t fast = 1;
)"
                                                                      : "")));
    const Run linked = project.link({"-Wl,--no-gc-sections"_s});
    QCOMPARE(linked.ok(), links);
    if (!links)
        QVERIFY2(linked.output.contains("nothing answers at address 0"_s),
                 qPrintable(linked.output));
    else
        QCOMPARE(project.sections().value(".vectors"_s).address, 0u);
    if (external)
        QCOMPARE(project.symbols().value("fast"_s).value, 0x10000000u);
}

void tst_Linker::codeStaysLittleEndianAmongBigEndianData()
{
    OptionMap options;
    options.insert(Key::bigEndian, true);
    const Project project(m_maps.map(options));
    QVERIFY(project.write("main.c"_s, program));
    Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    const Run header = run(project.folder(), "arm-none-eabi-readelf"_s, {"-h"_s, "program.elf"_s});
    QVERIFY2(header.output.contains("big endian"_s) && header.output.contains("BE8"_s),
             qPrintable(header.output));
    run(project.folder(), "arm-none-eabi-objcopy"_s,
        "-O binary program.elf image.bin"_s.split(u' '));
    const QByteArray image = project.contents("image.bin"_s);
    const auto symbols = project.symbols();
    const int reset = int(symbols.value("Reset_Handler"_s).value & ~1u);
    QVERIFY(image.size() > reset + 4);
    // LDR R0, [PC, #…] is 0x48…, MOV SP, R0 is 0x4685; the first vector is a word of data.
    QCOMPARE(quint8(image.at(reset + 1)), quint8(0x48));
    QCOMPARE(image.mid(reset + 2, 2).toHex(), QByteArray("8546"));
    QCOMPARE(qFromBigEndian<quint32>(image.constData()), symbols.value("__stack_top"_s).value);

    // Objects of the other kind are no mistake that stays unnoticed.
    QVERIFY(project.write("other.c"_s, "extern int other;\nint other = 1;\n"));
    const Run compiled = run(project.folder(), "arm-none-eabi-gcc"_s,
                             "-mcpu=cortex-m1 -mthumb -c other.c -o other.o"_s.split(u' '));
    QVERIFY2(compiled.ok(), qPrintable(compiled.output));
    linked = project.link({"other.o"_s});
    QVERIFY(!linked.ok());
    QVERIFY2(linked.output.contains("endian"_s), qPrintable(linked.output));
}

void tst_Linker::refusesWhatCannotRun_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QStringList>("flags");
    QTest::addColumn<QString>("message");
    OptionMap small;
    small.insert(Key::itcmSize, 1);
    small.insert(Key::dtcmSize, 1);
    QTest::newRow("program too large")
        << small << withArray("static const volatile uint8_t array[4000] = {1};") << QStringList()
        << "region `ITCM' overflowed by ";
    QTest::newRow("initial values too large for the instruction memory")
        << small << withArray("static volatile uint8_t array[1960] = {1};") << QStringList()
        << "Program and initial values of its data do not fit into ITCM.";
    QTest::newRow("zeros too large") << small << withArray("static volatile uint8_t array[4000];")
                                     << QStringList() << "region `DTCM' overflowed by ";
    QTest::newRow("no room for the stack")
        << small << withArray("static volatile uint8_t array[1800];") << QStringList()
        << "Data, heap (__heap_size) and stack (__stack_size) do not fit into DTCM.";
    QTest::newRow("stack larger than the memory")
        << small << QByteArray(program) << QStringList("-Wl,--defsym=__stack_size=4096"_s)
        << "Data, heap (__heap_size) and stack (__stack_size) do not fit into DTCM.";
    QTest::newRow("no room for the heap that is asked for")
        << small << QByteArray(program) << QStringList("-Wl,--defsym=__heap_size=2000"_s)
        << "Data, heap (__heap_size) and stack (__stack_size) do not fit into DTCM.";
    QTest::newRow("no room for the stack behind the program")
        << without(false, true, small)
        << withArray("static const volatile uint8_t array[1400] = {1};") << QStringList()
        << "Data, heap (__heap_size) and stack (__stack_size) do not fit into ITCM.";
    QTest::newRow("a second table of vectors")
        << OptionMap()
        << QByteArray(program) +
               "__attribute__((used, section(\".vectors\"))) static const uint32_t more = 1;\n"
        << QStringList()
        << "The vector table does not have 48 entries: link the "
           "startup_tarvo_orix_m1.c that was exported with this script.";
}

void tst_Linker::refusesWhatCannotRun()
{
    QFETCH(OptionMap, options);
    QFETCH(QByteArray, source);
    QFETCH(QStringList, flags);
    QFETCH(QString, message);
    const Project project(m_maps.map(options));
    QVERIFY(project.write("main.c"_s, source));
    const Run linked = project.link(flags);
    QVERIFY(!linked.ok());
    QVERIFY2(linked.output.contains(message), qPrintable(linked.output));
    QVERIFY(!QFile::exists(project.path("program.elf"_s)));
}

void tst_Linker::saysWhyNoProgramCanStart_data()
{
    QTest::addColumn<OptionMap>("options");
    QTest::addColumn<QString>("message");
    const QString noInstructions = "This configuration has no instruction memory: nothing answers "
                                   "at address 0, where the processor starts."_s;
    QTest::newRow("no instruction memory") << without(true, false) << noInstructions;
    QTest::newRow("no memory at all") << without(true, true) << noInstructions;
    QTest::newRow("other memories only")
        << with({Key::enablePsram, Key::enableDdr3, Key::enableSpiFlash}, without(true, true))
        << noInstructions;
    QTest::newRow("no data memory beside external instructions")
        << with({Key::externalInstructionMemory, Key::enableSpiFlash}, without(true, true))
        << "This configuration has no memory for data: a program has no place for its stack."_s;
}

void tst_Linker::saysWhyNoProgramCanStart()
{
    QFETCH(OptionMap, options);
    QFETCH(QString, message);
    const Project project(m_maps.map(options));
    QVERIFY(project.write("main.c"_s, program));
    const Run linked = project.link();
    QVERIFY(!linked.ok());
    QVERIFY2(linked.output.contains(message), qPrintable(linked.output));
    // And nothing else, but for the driver's own line.
    QCOMPARE(linked.output.count(u'\n'), 2);
    QVERIFY(project.write("own.ld"_s, "INCLUDE memory.x\nSECTIONS { /DISCARD/ : { *(*) } }\n"));
    const Run rust =
        project.gcc("-nostdlib -nostartfiles -L . -T own.ld main.c -o program.elf"_s.split(u' '));
    QVERIFY(!rust.ok());
    QVERIFY2(rust.output.contains(message), qPrintable(rust.output));
}

// The emulated machine has memory that can be written at address 0.
void tst_Linker::runsWithDataBehindTheProgram()
{
    const Project project(m_maps.map(without(false, true, emulated())));
    QVERIFY(project.write("main.c"_s, QByteArray(semihosting) + R"(
static volatile uint32_t value = 0x12345678;
static volatile uint32_t zeros[9];
extern uint32_t __stack_top[], __bss_end[];
int main(void);
int main(void)
{
    say(value == 0x12345678 && zeros[8] == 0 && (uintptr_t)__stack_top == 0x40000 &&
        (uintptr_t)__bss_end < 0x40000 ? "runs\n" : "fails\n");
    leave();
    return 0;
}
)"));
    const Run linked = project.link();
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.emulate("mps2-an385"_s).output, "runs\n"_s);
}

void tst_Linker::cLibrariesWorkWithTheirStartUpOff_data()
{
    QTest::addColumn<QStringList>("library");
    QTest::newRow("newlib") << "--specs=rdimon.specs"_s.split(u' ');
    QTest::newRow("newlib, the small one")
        << "--specs=nano.specs --specs=rdimon.specs"_s.split(u' ');
    QTest::newRow("newlib, its start-up linked as well, in vain")
        << "--specs=nano.specs --specs=rdimon.specs --start-up"_s.split(u' ');
    QTest::newRow("newlib, optimized while linking")
        << "--specs=nano.specs --specs=rdimon.specs -flto"_s.split(u' ');
    QTest::newRow("picolibc") << "--specs=picolibc.specs --oslib=semihost"_s.split(u' ');
}

// A heap, variables of the library's own, also those of a thread, and output.
void tst_Linker::cLibrariesWorkWithTheirStartUpOff()
{
    QFETCH(QStringList, library);
    const Project project(m_maps.map(emulated()));
    QVERIFY(project.write("main.c"_s, R"(
#include <errno.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
extern void initialise_monitor_handles(void) __attribute__((weak));
extern char __heap_start[], __heap_end[];
static volatile uint32_t *volatile vectors;
int main(void);
int main(void)
{
    uint32_t first, second;
    char *text;
    int error;
    if (initialise_monitor_handles)
        initialise_monitor_handles();
    first = vectors[1];
    second = vectors[2];
    errno = 0;
    (void)strtol("99999999999999", NULL, 10);
    error = errno;
    text = malloc(100);
    sprintf(text, "%s %d", "seven is", 7);
    printf("%s, %s, %s, %s\n", text, error == ERANGE ? "errno" : "no errno",
           text >= __heap_start && text < __heap_end ? "heap" : "no heap",
           vectors[1] == first && vectors[2] == second ? "vectors" : "vectors overwritten");
    exit(0);
}
)"));
    QStringList flags = library;
    if (flags.removeAll("--start-up"_s) == 0)
        flags.append("-nostartfiles"_s);
    const Run linked = project.gcc(
        "-std=c99 -Wall -Wextra -Os -L . -T tarvo_orix_m1.ld -Wl,--fatal-warnings "
        "-o program.elf startup_tarvo_orix_m1.c system_tarvo_orix_m1.c main.c"_s.split(u' ') +
        flags);
    QVERIFY2(linked.ok(), qPrintable(linked.output));
    QCOMPARE(project.emulate().output, "seven is 7, errno, heap, vectors\n"_s);
}

TARVO_TEST_MAIN(QCoreApplication, tst_Linker)

#include "tst_linker.moc"
