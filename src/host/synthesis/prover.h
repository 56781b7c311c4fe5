#pragma once

#include "synthesis_global.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Synthesis
{

// One statement of a proof.
struct ProofPart {
    enum Result {
        Proven,
        Refuted,
        NotDecided, // tried without an answer: `reason` says why
        NotTried,   // asked for, but `reason` speaks against it
        Assumed     // taken for granted by the others
    };

    QString id;     // "logic"
    QString name;   // a phrase: "The netlist computes what the sources say"
    QString method; // a sentence
    Result result = NotTried;
    QString reason;               // a sentence; empty: there is nothing to say
    QStringList differences{};    // names of places, or what differs at them; the first ones
    QStringList counterexample{}; // "NAME = 1": values with which the first place differs

    bool isOpen() const { return result != Proven && result != Assumed; }
};

// "proven", "refuted", "not decided", "not tried", "assumed"
TARVO_SYNTHESIS_EXPORT QString proofResultName(ProofPart::Result result);

struct ProofReport {
    QList<ProofPart> parts;
    QStringList tools;       // with their versions
    QStringList assumptions; // sentences
    struct File {
        QString name; // "sources.ys"
        QByteArray bytes;
    };
    QList<File> files; // scripts, and what the tools have said of them

    // Everything that was tried is proven.
    TARVO_SYNTHESIS_EXPORT bool isProven() const;
};

struct ProofJob {
    // A folder that exists, where the run makes its own; first include folder of the sources.
    QString outputDir;
    QString topModule;
    QStringList sources; // as in Job
    QString netlist;     // Verilog, of the platform's own synthesis
    QString vhdlNetlist; // empty: there is none, and no part on it
    QString noVhdl;      // why a VHDL netlist that was asked for is not there; empty: none was
    int stepSeconds = 0; // the longest time of one run of a tool; 0: any
};

// Proves that netlists do what their sources say: the Verilog netlist by logic between registers,
// memories, pins and black boxes that both have by name; the VHDL netlist cell by cell against the
// Verilog netlist. Needs Yosys with its ABC, and GHDL for VHDL, and an event loop's thread.
class TARVO_SYNTHESIS_EXPORT Prover : public QObject
{
    Q_OBJECT

public:
    explicit Prover(const ProofJob &job, QObject *parent = nullptr);
    ~Prover() override;

    // Runs to the end, with an event loop of its own; false after a cancellation.
    bool run();
    // Ends what runs; nothing is left of it.
    void cancel();

    ProofReport report() const;

Q_SIGNALS:
    // A short phrase for people.
    void stageChanged(const QString &stage);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace Synthesis
