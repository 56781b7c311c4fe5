// Times, as whole processes in turn, the start of the workbench against that of an empty window
// which loads the same plug-in, both up to a painted window. bench_start [RUNS] [LIMIT]; fails if
// the ratio of the medians is above LIMIT.

#include <QByteArray>
#include <QVector>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

// Milliseconds from start to end; negative if the program failed.
double run(const char *program)
{
    const auto before = std::chrono::steady_clock::now();
    const pid_t child = ::vfork();
    if (child == 0) {
        ::execl(program, program, static_cast<char *>(nullptr));
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    const std::chrono::duration<double, std::milli> spent =
        std::chrono::steady_clock::now() - before;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? spent.count() : -1;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 41;
    const double limit = argc > 2 ? std::atof(argv[2]) : 0;
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QVector<double> empty;
    QVector<double> workbench;
    QVector<double> ratios;
    for (int i = -2; i < runs; ++i) {
        const double a = run(TARVO_EMPTY);
        const double b = run(TARVO_WORKBENCH);
        if (a < 0 || b < 0) {
            std::fprintf(stderr, "a program failed\n");
            return 1;
        }
        if (i < 0)
            continue; // warms the caches
        empty.append(a);
        workbench.append(b);
        ratios.append(b / a);
    }
    const double ratio = median(workbench) / median(empty);
    std::printf("empty window %.1f ms, workbench %.1f ms (medians of %d)\n", median(empty),
                median(workbench), runs);
    std::printf("ratio of medians %.2f, median of ratios %.2f\n", ratio, median(ratios));
    return limit > 0 && ratio > limit ? 1 : 0;
}
