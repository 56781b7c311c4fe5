#pragma once

#include <utils/result.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

namespace Cli
{

class Simulation;

// What is simulated.
struct Design {
    QStringList sources;          // full paths, without the processor
    QStringList includeFolders;   // full paths, beside those of the sources
    QStringList defines;          // "NAME" or "NAME=VALUE"
    QString modelFolder;          // with the processor's model
    QByteArray board;             // boardOf(), or another one
    bool hasForeignBoard = false; // the user's, which may include any file
    bool hasWaves = false;
};

// A program in the folder of a simulation.
struct Tool {
    QString name; // for people
    QString path;
    QStringList arguments;
};

// A Verilog simulator.
class Engine
{
public:
    virtual ~Engine() = default;

    // A failure names the program and the Debian package that has it.
    virtual Utils::Result<void> findTools() = 0;
    // Makes a program of the design. A failure is a text with what the compiler said; after a
    // cancellation it is empty.
    virtual Utils::Result<void> build(Simulation &simulation, const Design &design) = 0;
    // What runs it. `plusArguments`: without the plus.
    virtual Tool run(const QStringList &plusArguments) const = 0;
};

// The names of the engines, the one that is taken without a choice first.
QStringList engineNames();
// Null for an unknown name.
std::unique_ptr<Engine> makeEngine(const QString &name);

} // namespace Cli
