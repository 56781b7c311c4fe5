#pragma once

#include "engine.h"

namespace Cli
{

// Verilator: compiles the design, which takes seconds, and then runs it fast. What has been built
// is kept.
class Verilator : public Engine
{
public:
    Utils::Result<void> findTools() override;
    Utils::Result<void> build(Simulation &simulation, const Design &design) override;
    Tool run(const QStringList &plusArguments) const override;

private:
    Utils::Result<QByteArray> output(Simulation &simulation, const QStringList &arguments) const;
    Utils::Result<QByteArray> compile(Simulation &simulation, const QStringList &arguments) const;

    QString m_compiler;
    QString m_program;
};

} // namespace Cli
