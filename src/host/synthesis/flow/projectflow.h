#pragma once

#include "flow.h"

namespace Synthesis
{

// Synthesis by Synplify Pro in batch mode on a project file, which stays beside the outputs.
class ProjectFlow : public Flow
{
public:
    using Flow::Flow;

    QString stageOf(const QString &line) override;
    QStringList furtherLog() const override;
    int stagesDone() const override { return m_stage; }
    int stageCount() const override { return 3; }
    QString collect(Results *results) override;

protected:
    QString prepareTool() override;

private:
    QString implementation() const;
    // The implementation's folder while the run lasts, relative to the scratch folder.
    QString resultFile(const char *suffix) const;
    // Reads the output with this suffix and adds it to the results.
    QString addOutput(const char *suffix, Results *results) const;
    QByteArray projectFile() const;

    int m_stage = 0;
};

// `text` as one quoted word of a Tcl script.
QByteArray tclWord(const QString &text);

} // namespace Synthesis
