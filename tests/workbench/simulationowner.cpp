// Runs a program as the workbench runs simulations: simulationowner PROGRAM ARGUMENT…, until it is
// killed. Prints the program's process when the first event has come.

#include <workbench/simulation/simulationrun.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Workbench::SimulationRun run(arguments.value(1), arguments.mid(2), QStringLiteral("/"));
    bool isTold = false;
    QObject::connect(&run, &Workbench::SimulationRun::received, [&] {
        if (!isTold)
            std::printf("%lld\n", static_cast<long long>(run.processId()));
        isTold = true;
        std::fflush(stdout);
    });
    run.start();
    return QCoreApplication::exec();
}
