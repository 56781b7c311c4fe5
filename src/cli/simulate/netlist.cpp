#include "netlist.h"

#include "simulation.h"

#include <synthesis/runner.h>
#include <synthesis/simulationmodel.h>

#include <QEventLoop>

namespace Cli
{

using namespace TARVOORIXM1;

Utils::Result<void> makeNetlist(Simulation &simulation, const GenerationPlan &plan,
                                const QString &destination, Listener &listener)
{
    if (simulation.wasCancelled())
        return Utils::Failure{QString()};
    const SynthesisRequest &request = plan.request;
    Synthesis::Runner runner;
    runner.setTool(Synthesis::Tool::TarvoSynthesis);
    runner.setJob(
        {request.outputDir, request.ipName, request.targetName, request.device, request.options});
    QEventLoop loop;
    int exitCode = 1;
    QObject::connect(&simulation, &Simulation::cancelled, &runner, &Synthesis::Runner::cancel);
    QObject::connect(&runner, &Synthesis::Runner::stageChanged,
                     [&listener](const QString &stage) { listener.told(Severity::Note, stage); });
    QObject::connect(&runner, &Synthesis::Runner::finished, &loop, [&](int code) {
        exitCode = code;
        loop.quit();
    });
    runner.start();
    loop.exec();
    if (simulation.wasCancelled())
        return Utils::Failure{QString()};
    if (exitCode != 0) {
        QStringList lines = runner.detailErrorMsgs();
        if (!runner.errorMsg().isEmpty())
            lines.prepend(runner.errorMsg());
        return Utils::Failure{lines.join(u'\n')};
    }
    QString message;
    if (Synthesis::writeSimulationModel(plan.outputs.verilogNetlist, destination, &message) != 0)
        return Utils::Failure{message};
    return {};
}

} // namespace Cli
