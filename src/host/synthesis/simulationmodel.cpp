#include "simulationmodel.h"

namespace Synthesis {

int writeSimulationModel(const QString &, const QString &, QString *)
{
    return 1;
}

} // namespace Synthesis
