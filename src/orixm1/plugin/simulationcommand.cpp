#include "simulationcommand.h"

#include "commandprogram.h"
#include "config/latin1literal.h"
#include "configuration.h"

#include <reading/filelist.h>

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

// What a simulation starts with.
struct InputKind {
    const char *name;
    const char *title;
    const char *option;
    const char *patterns; // of file names
    bool takesSeveral;
};
constexpr InputKind inputKinds[] = {
    {"c", "C files", "--c", "*.c", true},
    {"firmware", "Program (ELF)", "--firmware", "*.elf *.axf *.out", false},
    {"script", "Script of transfers", "--script", "*.play", false},
};

struct EngineChoice {
    const char *name; // as --engine takes it; the first one is what it takes by itself
    const char *title;
    const char *purpose;
};
constexpr EngineChoice engineChoices[] = {
    {"icarus", "Icarus Verilog", "Starts at once"},
    {"verilator", "Verilator", "Takes time to build, then runs many times faster"},
};

// A program of the examples, for a configuration of theirs.
struct Example {
    const char *title;
    const char *purpose;
    const char *configuration;
    const char *program; // in "firmware"
};
constexpr Example examples[] = {
    {"Hello from a sensor node",
     "A small subsystem with UARTs and GPIO, and programs in C that run on it before there is "
     "hardware.",
     "sensor-node.ipc", "hello.c"},
};

QVariantMap refusal(const QString &error)
{
    return {{QStringLiteral("error"), error}};
}

} // namespace

QVariantMap simulationCommand(const QString &ipcFile, const QString &ipId, const QString &dataPath,
                              const DEV::DeviceDb &devices)
{
    const Utils::Result<SystemMap> map = readSystem(ipcFile, ipId, dataPath, devices);
    if (!map)
        return refusal(map.reason());
    if (map->processor.isBigEndian)
        return refusal(shownPath(ipcFile) + " cannot be simulated: the model of the processor has "
                                            "no big-endian data."_l1);
    const QString program = commandProgram(dataPath);
    if (program.isEmpty())
        return refusal("The program \""_l1 + commandProgramName +
                       "\", which simulates, is not installed with the plug-in."_l1);
    QVariantList inputs;
    for (const InputKind &kind : inputKinds)
        inputs.append(QVariantMap{
            {QStringLiteral("name"), QLatin1String(kind.name)},
            {QStringLiteral("title"), QLatin1String(kind.title)},
            {QStringLiteral("arguments"), QStringList(QLatin1String(kind.option))},
            {QStringLiteral("patterns"), QString::fromLatin1(kind.patterns).split(u' ')},
            {QStringLiteral("several"), kind.takesSeveral}});
    QVariantList engines;
    for (const EngineChoice &engine : engineChoices) {
        QStringList arguments;
        if (&engine != engineChoices)
            arguments = QStringList{QStringLiteral("--engine"), QLatin1String(engine.name)};
        engines.append(QVariantMap{{QStringLiteral("name"), QLatin1String(engine.name)},
                                   {QStringLiteral("title"), QLatin1String(engine.title)},
                                   {QStringLiteral("purpose"), QLatin1String(engine.purpose)},
                                   {QStringLiteral("arguments"), arguments}});
    }
    int uarts = 0;
    for (const char *name : {"UART0", "UART1"}) {
        // They count from 0; a subsystem with the second alone shows a first that is silent.
        if (findRegion(*map, QLatin1String(name)))
            uarts = name[4] - '0' + 1;
    }
    return {{QStringLiteral("error"), QString()},
            {QStringLiteral("program"), program},
            {QStringLiteral("arguments"),
             QStringList{QStringLiteral("simulate"),
                         QDir::cleanPath(QFileInfo(ipcFile).absoluteFilePath()),
                         QStringLiteral("--live")}},
            {QStringLiteral("inputs"), inputs},
            {QStringLiteral("engines"), engines},
            {QStringLiteral("wavesArguments"), QStringList(QStringLiteral("--waves"))},
            {QStringLiteral("wavesSuffix"), QStringLiteral("fst")},
            {QStringLiteral("uarts"), uarts},
            {QStringLiteral("pins"), findRegion(*map, QStringLiteral("GPIO")) ? 16 : 0},
            {QStringLiteral("clock"), 50000000}};
}

QVariantList simulationExamples(const QString &dataPath)
{
    const QDir folder(QDir(dataPath).absoluteFilePath(QStringLiteral("examples")));
    const QDir firmware(folder.filePath(QStringLiteral("firmware")));
    QStringList files;
    const QStringList names =
        Reading::filesEndingIn(firmware, {QLatin1String(".c"), QLatin1String(".h")});
    for (const QString &name : names)
        files.append(firmware.filePath(name));
    QVariantList list;
    for (const Example &example : examples) {
        const QString configuration = folder.filePath(QLatin1String(example.configuration));
        const QString program = firmware.filePath(QLatin1String(example.program));
        if (!QFileInfo(configuration).isFile() || !files.contains(program))
            continue;
        list.append(QVariantMap{{QStringLiteral("title"), QLatin1String(example.title)},
                                {QStringLiteral("purpose"), QLatin1String(example.purpose)},
                                {QStringLiteral("configuration"), configuration},
                                {QStringLiteral("files"), files},
                                {QStringLiteral("input"), QStringLiteral("c")},
                                {QStringLiteral("program"), program}});
    }
    return list;
}

} // namespace TARVOORIXM1
