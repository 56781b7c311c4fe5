// Times "orixm1 generate FILE --check" and a "generate" that has nothing to do, as whole processes
// in turn with "generate --no-synth" into fresh folders and with a program that only writes eight
// files. Prints medians of processor time and wall clock, and their ratios. The first run
// synthesises, which takes a while. bench_check [RUNS]

#include <QByteArray>
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
    double wall = 0; // milliseconds
    double processor = 0;
};

double milliseconds(const timeval &time)
{
    return double(time.tv_sec) * 1000 + double(time.tv_usec) / 1000;
}

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
    return {elapsed.count(), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime)};
}

double median(QVector<Sample> samples, double Sample::*member)
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
    ::dup2(nowhere, STDERR_FILENO);

    const QByteArray made = dir.filePath(QStringLiteral("made")).toUtf8();
    runOnce({TARVO_COMMAND, "generate", TARVO_EXAMPLE, "--out", made});
    const char *const names[] = {"--check", "nothing to do", "--no-synth", "floor"};
    QVector<Sample> samples[4];
    for (int i = 0; i <= runs; ++i) {
        const QByteArray folder = dir.filePath(QString::number(i)).toUtf8();
        const QVector<QByteArray> commands[] = {
            {TARVO_COMMAND, "generate", TARVO_EXAMPLE, "--check", "--out", made},
            {TARVO_COMMAND, "generate", TARVO_EXAMPLE, "--out", made},
            {TARVO_COMMAND, "generate", TARVO_EXAMPLE, "--no-synth", "--out", folder + "/a"},
            {TARVO_FLOOR, folder + "/b"}};
        for (int command = 0; command < 4; ++command) {
            const Sample sample = runOnce(commands[command]);
            if (i > 0) // the first one warms the caches
                samples[command].append(sample);
        }
    }

    ::dup2(terminal, STDOUT_FILENO);
    const double reference = median(samples[2], &Sample::processor);
    const double wallReference = median(samples[2], &Sample::wall);
    std::printf("median of %d runs  processor, ms  of --no-synth   wall, ms  of --no-synth\n",
                runs);
    for (int command = 0; command < 4; ++command) {
        const double processor = median(samples[command], &Sample::processor);
        const double wall = median(samples[command], &Sample::wall);
        std::printf("%-18s %13.2f %14.2f %10.2f %14.2f\n", names[command], processor,
                    processor / reference, wall, wall / wallReference);
    }
    return 0;
}
