#pragma once

#include "engine.h"

namespace Cli
{

// Icarus Verilog: starts at once, since what was compiled is kept.
class Icarus : public Engine
{
public:
    Utils::Result<void> findTools() override;
    Utils::Result<void> build(Simulation &simulation, const Design &design) override;
    Tool run(const QStringList &plusArguments) const override;

private:
    QByteArray keyOf(const Design &design, const QStringList &arguments) const;

    QString m_compiler;
    QString m_player;
    bool m_hasWaves = false;
};

} // namespace Cli
