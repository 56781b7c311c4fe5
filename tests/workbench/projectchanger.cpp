// Changes a project as a workbench does: projectchanger PROJECT NAME COUNT. Adds the sources
// "NAME0.v" to "NAME<COUNT - 1>.v", one by one, and removes every second one of them again.

#include <project/project.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    QString error;
    const auto project = Workbench::Project::open(arguments.at(1), &error);
    if (!project) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    int status = 0;
    QObject::connect(project.get(), &Workbench::Project::failed, [&](const QString &message) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
        status = 1;
    });
    const int count = arguments.at(3).toInt();
    const auto source = [&](int i) {
        return QString(project->path() + u'/' + arguments.at(2) + QString::number(i) +
                       QStringLiteral(".v"));
    };
    for (int i = 0; i < count; ++i) {
        project->addFiles({source(i)});
        if (i % 2 == 1)
            project->removeFile(source(i - 1));
    }
    return status;
}
