// Times "orixm1 generate FILE --no-synth" as a whole process in turn with a program that only
// writes eight files, and prints medians and the ratio of the medians. bench_command [RUNS]

#include <QByteArray>
#include <QDir>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

struct Sample {
    double milliseconds = 0;
    double mebibytes = 0; // peak resident memory
};

Sample runOnce(const QVector<QByteArray> &command)
{
    std::vector<char *> arguments;
    for (const QByteArray &argument : command)
        arguments.push_back(const_cast<char *>(argument.constData()));
    arguments.push_back(nullptr);
    const auto before = std::chrono::steady_clock::now();
    const pid_t child = ::vfork();
    if (child == 0) {
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    int status = 0;
    struct rusage usage = {};
    ::wait4(child, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - before;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", arguments.front());
        std::exit(1);
    }
    return {elapsed.count(), double(usage.ru_maxrss) / 1024};
}

template <class Member>
double median(QVector<Sample> samples, Member member)
{
    std::sort(samples.begin(), samples.end(),
              [member](const Sample &a, const Sample &b) { return a.*member < b.*member; });
    return samples.at(samples.size() / 2).*member;
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 51;
    const QTemporaryDir dir;
    if (runs < 1 || !dir.isValid())
        return 1;
    // What the commands print is not of interest here.
    const int terminal = ::dup(STDOUT_FILENO);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDOUT_FILENO);

    QVector<Sample> command;
    QVector<Sample> floor;
    for (int i = 0; i <= runs; ++i) {
        // Fresh folders, so that every file is written in every run.
        const QByteArray folder = dir.filePath(QString::number(i)).toUtf8();
        const Sample a = runOnce(
            {TARVO_COMMAND, "generate", TARVO_EXAMPLE, "--no-synth", "--out", folder + "/a"});
        const Sample b = runOnce({TARVO_FLOOR, folder + "/b"});
        if (i == 0)
            continue; // warms the caches
        command.append(a);
        floor.append(b);
    }

    ::dup2(terminal, STDOUT_FILENO);
    const double wall = median(command, &Sample::milliseconds);
    const double wallFloor = median(floor, &Sample::milliseconds);
    const double memory = median(command, &Sample::mebibytes);
    const double memoryFloor = median(floor, &Sample::mebibytes);
    std::printf("median of %d runs    generate      floor    ratio\n", runs);
    std::printf("wall clock, ms     %10.2f %10.2f %8.2f\n", wall, wallFloor, wall / wallFloor);
    std::printf("peak memory, MiB   %10.2f %10.2f %8.2f\n", memory, memoryFloor,
                memory / memoryFloor);
    return 0;
}
