#pragma once

#include <utils/result.h>

#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>
#include <QVector>

namespace Workbench
{

// A kind of files that a simulation starts from.
struct SimulationInput {
    QString name; // unique
    QString title;
    QStringList arguments; // before the files
    QStringList patterns;  // of file names
    bool takesSeveral = false;
};

struct SimulationEngine {
    QString name; // unique
    QString title;
    QString purpose;
    QStringList arguments;
};

// How programs are run on a configured IP, as its plug-in tells it.
struct SimulationOffer {
    QString error; // why they are not, a sentence of the plug-in's; empty if they are
    QString program;
    QStringList arguments; // the first ones
    QVector<SimulationInput> inputs;
    QVector<SimulationEngine> engines;
    QStringList wavesArguments; // before the file; empty: there are no waves
    QString wavesSuffix;
    int uarts = 0;
    int pins = 0;
    int clock = 0; // clock cycles a second

    // Null if there is none with this name.
    const SimulationInput *input(const QString &name) const;
    const SimulationEngine *engine(const QString &name) const;
    // The arguments for a run; no name of a file for waves: without.
    QStringList commandLine(const SimulationInput &input, const QStringList &files,
                            const SimulationEngine &engine, const QString &waves) const;
};

// An example that can be copied and run as it is; full paths.
struct SimulationExample {
    QString title;
    QString purpose; // a sentence
    QString configuration;
    QStringList files;
    QString input;   // the name of a kind
    QString program; // one of the files
};

// What plug-ins answer is taken as it comes from a stranger: all of it if it is sound, or nothing.
// A failure is a clause.
namespace SimulationAnswer
{

// Counts.
constexpr int kindLimit = 20;
constexpr int argumentLimit = 50;
constexpr int exampleLimit = 20;
constexpr int fileLimit = 200;
constexpr int uartLimit = 4;
constexpr int pinLimit = 16;

Utils::Result<SimulationOffer> offerOf(const QVariantMap &answer);
Utils::Result<QVector<SimulationExample>> examplesOf(const QVariantList &answer);

} // namespace SimulationAnswer

} // namespace Workbench
