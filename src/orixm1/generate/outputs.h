#pragma once

#include "config/choices.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace TARVOORIXM1
{

// A file that a run leaves and that goes to the output folder. Empty paths: the tool is unknown.
struct Output {
    QString source;
    QString file;
    bool isOptional = false; // not every run makes it
};

struct Outputs {
    QVector<Output> copied; // in this order; what every run makes first
    QString netlist;        // of `copied`
    QString instantiationTemplate;
    QString verilogNetlist; // what the simulation model is made from, whatever the language
    QString decoded;        // the simulation model that decoding makes
};

// Nothing in `tool` is a tool that nobody knows; nothing in `language` has the names of VHDL.
Outputs buildOutputs(std::optional<Tool> tool, std::optional<Language> language,
                     const QString &tempDir, const QString &outDir, const QString &target);

// What became of a run.
struct Collection {
    int status = 0; // 0: everything is in its place
    QStringList errors;
    QStringList files; // that are in place now
};

// Given (Create In folder, netlist, destination, message), makes the simulation model and returns 0
// on success.
using Decoder = std::function<int(const QString &, const QString &, const QString &, QString &)>;

// Copies the results of a run that ended with `exitCode` to the output folder and has the
// simulation model made. After a failed run nothing is copied: the status is its exit code and the
// errors are `details`.
Collection collectOutputs(int exitCode, const QStringList &details, const Outputs &outputs,
                          const QString &outDir, const Decoder &decode);

} // namespace TARVOORIXM1
