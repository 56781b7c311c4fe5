#pragma once

#include <synthesis/prover.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Cli
{

// What a proof has been about, for its report; names of files without their folders.
struct ProofSubject {
    QString configuration;
    QString device;
    QString netlist; // "freshly made", or a file's name
    QString vhdlNetlist;
};

// One word for all: "proven", "refuted" or "not decided".
QString verdictOf(const Synthesis::ProofReport &report);

// The report in its forms. No form holds a time or a path.
QStringList linesOf(const ProofSubject &subject, const Synthesis::ProofReport &report);
QJsonObject jsonOf(const ProofSubject &subject, const Synthesis::ProofReport &report);
QString markdownOf(const ProofSubject &subject, const Synthesis::ProofReport &report);

} // namespace Cli
