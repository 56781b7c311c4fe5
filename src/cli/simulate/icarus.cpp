#include "icarus.h"

#include "simulation.h"

namespace Cli
{

Utils::Result<void> Icarus::findTools()
{
    const auto compiler = Simulation::findTool("iverilog", "iverilog");
    if (!compiler)
        return Utils::Failure{compiler.reason()};
    const auto player = Simulation::findTool("vvp", "iverilog");
    if (!player)
        return Utils::Failure{player.reason()};
    m_compiler = *compiler;
    m_player = *player;
    return {};
}

Utils::Result<void> Icarus::build(Simulation &simulation, const Design &design)
{
    m_hasWaves = design.hasWaves;
    const auto staged = simulation.stage(design);
    if (!staged)
        return Utils::Failure{staged.reason()};
    QStringList arguments = {QStringLiteral("-g2012"), QStringLiteral("-s"),
                             QStringLiteral("board"), QStringLiteral("-o"),
                             QStringLiteral("board.vvp")};
    for (const QString &folder : staged->includeFolders)
        arguments.append(QLatin1String("-I") + folder);
    for (const QString &define : design.defines)
        arguments.append(QLatin1String("-D") + define);
    arguments += staged->sources;

    QString said;
    const auto result = simulation.runTool(
        {QStringLiteral("Icarus Verilog"), m_compiler, arguments}, [&said](const QString &line) {
            if (said.size() < 1 << 16)
                said += line + u'\n';
        });
    if (!result)
        return Utils::Failure{simulation.wasCancelled() ? QString() : said + result.reason()};
    return {};
}

Tool Icarus::run(const QStringList &plusArguments) const
{
    QStringList arguments = {QStringLiteral("-n"),       QStringLiteral("-i"),
                             QStringLiteral("-M"),       QStringLiteral("model"),
                             QStringLiteral("-m"),       QStringLiteral("cortexm1core"),
                             QStringLiteral("board.vvp")};
    if (m_hasWaves)
        arguments.append(QStringLiteral("-fst"));
    for (const QString &argument : plusArguments)
        arguments.append(u'+' + argument);
    return {QStringLiteral("The simulation"), m_player, arguments};
}

} // namespace Cli
