#pragma once

#include "flow.h"

namespace Synthesis
{

// The platform's own synthesis: Yosys maps the design to the primitives of the library.
class YosysFlow : public Flow
{
public:
    using Flow::Flow;

    QString stageOf(const QString &line) override;
    QString explained(const QString &error) const override;
    QString commandDone(int command) override;
    int stagesDone() const override;
    int stageCount() const override;
    QString collect(Results *results) override;

protected:
    QString prepareTool() override;

private:
    QString addVhdl(const QVector<BlackBox> &blackBoxes, Results *results) const;

    int m_stage = -1;
};

} // namespace Synthesis
