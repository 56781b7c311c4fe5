// Times "orixm1 generate FILE --no-synth" as a whole process in turn with a program that only
// writes eight files, and prints medians and the ratio of the medians. bench_command [RUNS]

#include <wholeprocess.h>

#include <QDir>
#include <QTemporaryDir>

#include <fcntl.h>

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
    const double wall = median(command, &Sample::wall);
    const double wallFloor = median(floor, &Sample::wall);
    const double memory = median(command, &Sample::mebibytes);
    const double memoryFloor = median(floor, &Sample::mebibytes);
    std::printf("median of %d runs    generate      floor    ratio\n", runs);
    std::printf("wall clock, ms     %10.2f %10.2f %8.2f\n", wall, wallFloor, wall / wallFloor);
    std::printf("peak memory, MiB   %10.2f %10.2f %8.2f\n", memory, memoryFloor,
                memory / memoryFloor);
    return 0;
}
