// Times "orixm1 sweep --no-synth" as a whole process with a plan of ten points in turn with one of
// a thousand, and prints medians and their ratio. bench_sweep [RUNS]

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

double millisecondsOf(const QByteArray &plan, const QByteArray &folder)
{
    const QByteArrayList words = {TARVO_COMMAND, "sweep", plan, "--no-synth", "--out", folder};
    std::vector<char *> arguments;
    for (const QByteArray &word : words)
        arguments.push_back(const_cast<char *>(word.constData()));
    arguments.push_back(nullptr);
    const auto before = std::chrono::steady_clock::now();
    const pid_t child = ::vfork();
    if (child == 0) {
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - before;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", arguments.front());
        std::exit(1);
    }
    return elapsed.count();
}

double median(QVector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples.at(samples.size() / 2);
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 11;
    const QTemporaryDir dir;
    if (runs < 1 || !dir.isValid())
        return 1;
    const auto write = [&dir](const char *name, const QByteArray &text) {
        QFile file(dir.filePath(QLatin1String(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            std::exit(1);
        return file.fileName().toUtf8();
    };
    const QByteArray ten = write("ten.json", R"({"devices": ["TV2KR-18C"],
        "grid": {"ITCM_Size": [0, 1, 2, 3, 4], "Enable RTC": [false, true]}})");
    const QByteArray thousand = write("thousand.json", R"({"devices": ["TV2KR-18C"],
        "grid": {"ITCM_Size": [0, 1, 2, 3, 4], "DTCM_Size": [0, 1, 2, 3, 4],
                 "Enable RTC": [false, true], "Enable SPI": [false, true],
                 "Enable I2C": [false, true],
                 "ETHERNET_INPUT_DELAY": [0, 1, 2, 3, 4]}})");
    const int terminal = ::dup(STDOUT_FILENO);
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDOUT_FILENO);
    QVector<double> few;
    QVector<double> many;
    for (int i = 0; i <= runs; ++i) {
        const QByteArray folder = dir.filePath(QString::number(i)).toUtf8();
        const double a = millisecondsOf(ten, folder + "a");
        const double b = millisecondsOf(thousand, folder + "b");
        if (i == 0)
            continue; // warms the caches
        few.append(a);
        many.append(b);
    }
    ::dup2(terminal, STDOUT_FILENO);
    std::printf("median of %d runs    10 points  1000 points    ratio\n", runs);
    std::printf("wall clock, ms     %10.2f %12.2f %8.2f\n", median(few), median(many),
                median(many) / median(few));
    return 0;
}
