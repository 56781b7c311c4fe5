#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Cli
{

class Environment;

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
    bool leavesChecksOut = false; // of the rules of the buses

    QString script; // of transfers, in place of a program; empty: none
};

// Runs the command and returns the exit status; messages have been printed then.
int runSimulate(Environment &environment, const SimulateArguments &arguments);

} // namespace Cli
