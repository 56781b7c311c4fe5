#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Cli
{

class Environment;

struct NewArguments {
    QString device;
    QString package;
    QString speed;
    QString language;
    QStringList settings; // "KEY=VALUE"
    QString outDir;
    bool force = false;
    bool json = false;
};

struct RetargetArguments {
    QString file;
    QString device;
    QString package;
    QString speed;
    QString out; // file; empty: in place
    bool force = false;
    bool dryRun = false;
    bool json = false;
};

struct GenerateArguments {
    QString file;
    QString outDir; // empty: the file's folder
    bool synthesise = true;
    bool json = false;
    bool verbose = false;
    bool check = false; // only tell how the files stand
    bool force = false; // run, whatever stands there
    bool cache = true;
};

struct FirmwareArguments {
    QString image;
    QString file;
    QString outDir;   // empty: see the command's help
    QString form;     // "elf", "hex", "bin"; empty: found from the image
    quint32 base = 0; // address of the first byte of a binary image
    bool initialise = false;
    bool json = false;
};

struct ExportArguments {
    QString file;        // needed unless `list`
    QStringList formats; // names; none: all
    QString outDir;      // likewise
    bool list = false;
    bool check = false;
    bool json = false;
    QString netlist; // of a run, for the figures of resources; empty: none
};

struct SimulateArguments {
    QString file;
    QString firmware;                 // ELF; or
    QStringList sources;              // in C
    QString engine;                   // of engineNames()
    QString uart0;                    // "-": standard output, else a file
    quint64 timeout = 0;              // clock cycles
    QString waves;                    // file; empty: none
    QStringList reports;              // files
    std::optional<quint64> wavesFrom; // clock cycle; of the part that waves are wanted of
    std::optional<quint64> wavesTo;
    std::optional<QString> wavesAt; // event
    QString uart0Input;             // files; empty: none
    QString uart1Input;
    QString eeprom;
    QString flash;
    QString sd;
    QString eepromResult;
    QString flashResult;
    QString sdResult;
    bool crossesUarts = false;

    bool hasProgram = true; // one of those above, or of what else can be one
    QString model = QStringLiteral("rtl");
    QString tcm = QStringLiteral("model");
    int gdbPort = -1;                // 0: a free one; -1: no debugger
    QString board;                   // file; empty: the made one
    QString writeBoard;              // file; empty: simulate
    QString uart1;                   // as `uart0`, which may be "pty"; empty: nowhere
    bool readsStandardInput = false; // for the UART that is on the terminal
    bool live = false;

    QString script; // of transfers, in place of a program; empty: none
};

// Each runs one command and returns the exit status; messages have been printed then.
int runNew(Environment &environment, const NewArguments &arguments);
int runRetarget(Environment &environment, const RetargetArguments &arguments);
int runGenerate(Environment &environment, const GenerateArguments &arguments);
// The same with `check`.
int runGenerateCheck(Environment &environment, const GenerateArguments &arguments);
int runCheck(Environment &environment, const QString &file, bool json);
// An empty `outDir` means the file's folder.
int runSources(Environment &environment, const QString &file, const QString &outDir, bool json);
int runPins(Environment &environment, const QString &file, bool json);
int runFirmware(Environment &environment, const FirmwareArguments &arguments);
enum class RegistersForm { Table, Json, Markdown, CHeader };
// An empty `file` means all peripherals.
int runRegisters(Environment &environment, const QString &file, RegistersForm form);
int runExport(Environment &environment, const ExportArguments &arguments);
int runSimulate(Environment &environment, const SimulateArguments &arguments);
int runOptions(bool json);
int runDevices(Environment &environment, const QString &series, bool json);

} // namespace Cli
