// Times a project with many sources, against one with a quarter of them: reading its file, showing
// it in the tree, adding the sources at once and taking one out. bench_project [SOURCES] [LIMIT];
// fails if a ratio is above LIMIT. Linear time gives 4.

#include <workbench/project/project.h>
#include <workbench/project/projectmodel.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace Workbench;

namespace
{

constexpr const char *stepNames[] = {"add", "open", "show", "remove"};
constexpr int stepCount = 4;

struct Times {
    double milliseconds[stepCount] = {};
};

Times measure(int sources)
{
    const QTemporaryDir dir;
    QStringList paths;
    for (int i = 0; i < sources; ++i)
        paths.append(dir.path() + QStringLiteral("/src/module%1.v").arg(i));
    QString error;
    Times times;
    QElapsedTimer timer;
    int step = 0;
    const auto lap = [&] {
        times.milliseconds[step++] = double(timer.nsecsElapsed()) / 1e6;
        timer.restart();
    };
    auto project = Project::create(dir.path(), QStringLiteral("p"), {}, &error);
    timer.start();
    project->addFiles(paths);
    lap();
    project = Project::open(project->file(), &error);
    lap();
    ProjectModel model;
    model.setProject(project.get());
    model.finishReading();
    if (model.rowCount(model.groupIndex(ProjectModel::Sources)) != sources)
        qFatal("sources are missing");
    lap();
    project->removeFile(paths.last());
    lap();
    return times;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int sources = argc > 1 ? std::atoi(argv[1]) : 40000;
    const double limit = argc > 2 ? std::atof(argv[2]) : 0;
    measure(sources / 4); // warms the caches
    const Times few = measure(sources / 4);
    const Times many = measure(sources);
    bool good = true;
    for (int step = 0; step < stepCount; ++step) {
        const double ratio = many.milliseconds[step] / few.milliseconds[step];
        std::printf("%-6s %8.1f ms with %d sources, %8.1f ms with %d: ratio %.1f\n",
                    stepNames[step], few.milliseconds[step], sources / 4, many.milliseconds[step],
                    sources, ratio);
        good = good && (limit <= 0 || ratio <= limit);
    }
    return good ? 0 : 1;
}
