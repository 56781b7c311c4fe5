#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace TARVOORIXM1
{

// Where a run leaves its results and where they go. Empty: there is no such file.
struct OutputPaths {
    QString netlistSource;
    QString netlist;
    QString verilogNetlist; // what the simulation model is made from, whatever the language
    QString modelSource;    // an additional simulation model that the run may have made
    QString model;
    QString templateSource;
    QString instantiationTemplate;
    QString decoded; // the simulation model that decoding makes
};

// `tool` is the text of the tool choice; `languageIndex` 0 means Verilog and any other index VHDL
// names.
OutputPaths outputPaths(const QString &tool, int languageIndex, const QString &tempDir,
                        const QString &outDir, const QString &target);

// What became of a run.
struct Collection {
    int status = 0; // 0: everything is in its place
    QStringList errors;
};

// Given (Create In folder, netlist, destination, message), makes the simulation model and returns 0
// on success.
using Decoder = std::function<int(const QString &, const QString &, const QString &, QString &)>;

// Copies the results of a run that ended with `exitCode` to the output folder and has the
// simulation model made. After a failed run nothing is copied: the status is its exit code and the
// errors are `details`.
Collection collectOutputs(int exitCode, const QStringList &details, const OutputPaths &paths,
                          const QString &outDir, const Decoder &decode);

} // namespace TARVOORIXM1
