// Times "orixm1 generate FILE --check" and a "generate" that has nothing to do, as whole processes
// in turn with "generate --no-synth" into fresh folders and with a program that only writes eight
// files. Prints medians of processor time and wall clock, and their ratios. The first run
// synthesises, which takes a while. bench_check [RUNS]

#include <wholeprocess.h>

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
