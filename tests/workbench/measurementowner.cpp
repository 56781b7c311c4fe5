// Measures as the workbench does: measurementowner PROGRAM WAY, until it is killed.

#include <workbench/companion/measurement.h>

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Workbench::MeasureCommand command;
    command.program = arguments.value(1);
    command.file = QStringLiteral("lamps.ipc");
    command.configuration = "[Config]\nLamps=1\n";
    command.arguments = QStringList{arguments.value(2), command.file};
    Workbench::Measurement measurement(command);
    measurement.start();
    return QCoreApplication::exec();
}
