#pragma once

#include "testsupport.h"

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <dev/devicedb.h>
#include <export/format.h>
#include <system/systemmap.h>

#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

// Programs for the processor from exported files: compiled, looked at, run in an emulator.
namespace CrossCompiled
{

using namespace TARVOORIXM1;

inline QByteArray latin1(QLatin1String text)
{
    return QByteArray(text.data(), text.size());
}

inline OptionMap everything()
{
    OptionMap options;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool)
            options.insert(option.key, true);
    }
    options.insert(Key::bigEndian, false);
    return options;
}

// Without memories of its own for instructions, data or both.
inline OptionMap without(bool instructions, bool data, OptionMap options = {})
{
    options.insert(Key::internalInstructionMemory, !instructions);
    options.insert(Key::internalDataMemory, !data);
    options.insert(Key::externalInstructionMemory, false);
    options.insert(Key::externalDataMemory, false);
    return options;
}

inline OptionMap with(std::initializer_list<QLatin1String> keys, OptionMap options = {})
{
    for (const QLatin1String key : keys)
        options.insert(key, true);
    return options;
}

// A configuration whose memories an emulated machine has: 256 KB for instructions, 16 KB for data.
inline OptionMap emulated(OptionMap options = {})
{
    options.insert(Key::itcmSize, 8);
    options.insert(Key::dtcmSize, 4);
    return options;
}

// Configurations that a program is linked for.
struct Case {
    const char *name;
    OptionMap options;
};

inline QVector<Case> cases()
{
    const auto inputs = [](int count) {
        OptionMap options = everything();
        options.insert(Key::numberOfInterrupts, count);
        return options;
    };
    OptionMap bare = everything();
    bare.insert(Key::osExtension, false);
    OptionMap big = everything();
    big.insert(Key::bigEndian, true);
    OptionMap smallest;
    smallest.insert(Key::itcmSize, 0);
    smallest.insert(Key::dtcmSize, 0);
    const OptionMap external = without(true, true);
    return {
        {"nothing said", {}},
        {"everything on", everything()},
        {"1 interrupt", inputs(1)},
        {"8 interrupts", inputs(8)},
        {"16 interrupts", inputs(16)},
        {"big-endian data", big},
        {"no operating system extension", bare},
        {"smallest memories", smallest},
        {"both memories external",
         with({Key::externalInstructionMemory, Key::externalDataMemory}, external)},
        {"instructions external", with({Key::externalInstructionMemory}, without(true, false))},
        {"data external", with({Key::externalDataMemory}, without(false, true))},
        {"data in the PSRAM", with({Key::enablePsram}, without(false, true))},
        {"data in the DDR3 memory", with({Key::enableDdr3}, without(false, true))},
        {"data behind the program", without(false, true)},
    };
}

// A row for each of them: a column "options".
inline void addCases()
{
    QTest::addColumn<OptionMap>("options");
    const QVector<Case> all = cases();
    for (const Case &entry : all)
        QTest::newRow(entry.name) << entry.options;
}

// What became of a program that was run.
struct Run {
    bool started = false;
    int status = -1; // -1 as well where it did not end in time
    QString output;  // and errors
    bool ok() const { return status == 0; }
};

inline Run run(const QString &folder, const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    Run result;
    result.started = process.waitForStarted();
    if (!result.started) {
        result.output = program + QStringLiteral(": ") + process.errorString();
        return result;
    }
    const bool ended = process.waitForFinished(20000);
    if (!ended) {
        process.kill();
        process.waitForFinished();
    }
    result.output = QString::fromUtf8(process.readAll());
    if (ended && process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    if (!ended)
        result.output += QStringLiteral("\nended: it ran for longer than 20 s");
    return result;
}

// A folder with exported files and a program that is made of them.
class Project
{
public:
    explicit Project(const SystemMap &map)
        : m_map(map)
    {
        for (const char *name : {"linker", "startup"}) {
            const Format *format = findFormat(QString::fromLatin1(name));
            if (!format)
                continue;
            const QVector<ExportedFile> files = format->files(map);
            for (const ExportedFile &file : files)
                write(file.path, file.bytes);
        }
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }
    QByteArray contents(const QString &name) const { return TestSupport::contentsOf(path(name)); }
    bool write(const QString &name, const QByteArray &bytes) const
    {
        return TestSupport::write(path(name), bytes);
    }

    QStringList machine() const
    {
        QStringList options = {QStringLiteral("-mcpu=cortex-m1"), QStringLiteral("-mthumb")};
        if (m_map.processor.isBigEndian)
            options.append(QStringLiteral("-mbig-endian"));
        return options;
    }
    static QStringList strict()
    {
        return QStringLiteral("-std=c99 -Wall -Wextra -pedantic -Wconversion -Werror").split(u' ');
    }

    Run gcc(const QStringList &arguments) const
    {
        return run(folder(), QStringLiteral("arm-none-eabi-gcc"), machine() + arguments);
    }
    // Start-up code, system set-up and "main.c", made into "program.elf".
    Run link(const QStringList &more = {}) const
    {
        QStringList arguments = strict();
        arguments += QStringLiteral("-Os -ffreestanding -nostdlib -nostartfiles -L . "
                                    "-T tarvo_orix_m1.ld -Wl,--fatal-warnings -Wl,--gc-sections "
                                    "-ffunction-sections -fdata-sections -o program.elf "
                                    "startup_tarvo_orix_m1.c system_tarvo_orix_m1.c main.c")
                         .split(u' ');
        if (m_map.processor.isBigEndian)
            arguments.append(QStringLiteral("-Wl,--be8"));
        return gcc(arguments + more);
    }
    Run emulate(const QString &machine = QStringLiteral("microbit")) const
    {
        return run(folder(), QStringLiteral("qemu-system-arm"),
                   {QStringLiteral("-M"), machine, QStringLiteral("-nographic"),
                    QStringLiteral("-monitor"), QStringLiteral("none"), QStringLiteral("-serial"),
                    QStringLiteral("none"), QStringLiteral("-semihosting-config"),
                    QStringLiteral("enable=on,target=native"), QStringLiteral("-kernel"),
                    QStringLiteral("program.elf")});
    }

    // A symbol of "program.elf": its value and its kind as nm tells it.
    struct Symbol {
        quint32 value = 0;
        QString kind; // empty: there is none
    };
    QHash<QString, Symbol> symbols(const QString &file = QStringLiteral("program.elf")) const
    {
        QHash<QString, Symbol> all;
        const Run told = run(folder(), QStringLiteral("arm-none-eabi-nm"), {file});
        const QStringList lines = told.output.split(u'\n');
        for (const QString &line : lines) {
            const QStringList words = line.simplified().split(u' ');
            if (words.size() == 3)
                all.insert(words.at(2), {words.at(0).toUInt(nullptr, 16), words.at(1)});
            else if (words.size() == 2)
                all.insert(words.at(1), {0, words.at(0)});
        }
        return all;
    }

    struct Section {
        quint32 size = 0;
        quint32 address = 0;
        quint32 load = 0;
        bool isThere = false;
    };
    QHash<QString, Section> sections() const
    {
        QHash<QString, Section> all;
        const Run told = run(folder(), QStringLiteral("arm-none-eabi-objdump"),
                             {QStringLiteral("-h"), QStringLiteral("program.elf")});
        const QStringList lines = told.output.split(u'\n');
        for (const QString &line : lines) {
            const QStringList words = line.simplified().split(u' ');
            bool isNumber = false;
            words.first().toInt(&isNumber);
            if (isNumber && words.size() >= 6)
                all.insert(words.at(1),
                           {words.at(2).toUInt(nullptr, 16), words.at(3).toUInt(nullptr, 16),
                            words.at(4).toUInt(nullptr, 16), true});
        }
        return all;
    }

    // The vector table as the processor reads it.
    QVector<quint32> vectors() const
    {
        QVector<quint32> words;
        run(folder(), QStringLiteral("arm-none-eabi-objcopy"),
            {QStringLiteral("-O"), QStringLiteral("binary"), QStringLiteral("-j"),
             QStringLiteral(".vectors"), QStringLiteral("program.elf"),
             QStringLiteral("vectors.bin")});
        const QByteArray bytes = contents(QStringLiteral("vectors.bin"));
        for (int i = 0; i + 4 <= bytes.size(); i += 4)
            words.append(m_map.processor.isBigEndian
                             ? qFromBigEndian<quint32>(bytes.constData() + i)
                             : qFromLittleEndian<quint32>(bytes.constData() + i));
        return words;
    }

private:
    SystemMap m_map;
    QTemporaryDir m_folder;
};

// Maps of configurations, from the data folder of the build.
class Maps
{
public:
    Maps()
    {
        const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
        if (description)
            m_description = *description;
    }
    bool isValid() const { return !m_description.peripherals.isEmpty(); }
    SystemMap map(const OptionMap &options) const
    {
        DEV::ChipFilter filter;
        filter.device = QStringLiteral("TV2KR-18C");
        return systemMap(options, DEV::DeviceDb::bundled().filterDevice(filter).value(0),
                         m_description);
    }

private:
    SystemDescription m_description;
};

// Semihosting without a C library, for programs that an emulator runs.
const char semihosting[] = R"(
#include <stdint.h>
static inline void ask(uintptr_t operation, uintptr_t parameter)
{
    register uintptr_t r0 __asm__("r0") = operation;
    register uintptr_t r1 __asm__("r1") = parameter;
    __asm__ volatile("bkpt 0xab" : "+r"(r0) : "r"(r1) : "memory");
}
static inline void say(const char *text)
{
    ask(4, (uintptr_t)text);
}
static inline void leave(void)
{
    ask(0x18, 0x20026);
}
)";

} // namespace CrossCompiled
