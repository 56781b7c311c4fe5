#pragma once

#include "job.h"
#include "synthesis_global.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace Synthesis
{

enum class Tool { SynplifyPro = 0, TarvoSynthesis = 1 };

// What a tool, or the runner itself, has to say about a run.
struct Message {
    enum Severity { Error, Warning };

    Severity severity = Error;
    QString file; // full path; empty where no place is known
    int line = 0; // 0: not known
    QString text;
    int count = 1; // how often it was said

    // "file:line: text", or what of it is known.
    TARVO_SYNTHESIS_EXPORT QString toString() const;
};

// How often a netlist instantiates a module.
struct CellCount {
    QString cell;
    int count = 0;
    bool isBlackBox = false; // no primitive of the library: a licensed block, for example
};

// What the netlist takes of something that a device has in a limited number.
struct ResourceUse {
    QString resource; // "LUT4", "Flip-flops", …
    int used = 0;
    int available = -1; // -1: the device database knows no total

    // Of the available, rounded up, so that nothing used is 0; -1 without a total.
    TARVO_SYNTHESIS_EXPORT int percent() const;
    bool exceeds() const { return available >= 0 && used > available; }
};

struct ReportPort {
    QString name;
    QString direction; // "input", "output" or "inout"
    int msb = 0;
    int lsb = 0; // greater than `msb` for a range like [0:7]
    bool isVector = false;
};

// What came of a run. A plain value.
struct RunReport {
    Tool tool = Tool::TarvoSynthesis;
    Job job;
    int exitCode = 0; // 0: the files belong to this job
    bool cancelled = false;
    qint64 milliseconds = 0;
    QString summary;         // what was used and what that leaves out, or why there is no result
    QList<Message> messages; // in the order in which they came; none twice
    // After a success only:
    QList<CellCount> cells; // sorted by name
    QList<ResourceUse> resources;
    QList<ReportPort> ports; // of the top module, in the order of declaration
    QStringList files; // full paths of the results, the netlist last; all are there, whether or not
                       // this run had to touch them
    QString logFile;   // full path; empty if no log could be kept

    TARVO_SYNTHESIS_EXPORT int count(Message::Severity severity) const;
};

} // namespace Synthesis

Q_DECLARE_METATYPE(Synthesis::RunReport)
