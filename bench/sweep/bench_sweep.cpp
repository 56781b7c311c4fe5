// Times "orixm1 sweep --no-synth" as a whole process with a plan of ten points in turn with one of
// a thousand, and prints medians and their ratio. bench_sweep [RUNS]

#include <wholeprocess.h>

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>

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
    QVector<Sample> few;
    QVector<Sample> many;
    for (int i = 0; i <= runs; ++i) {
        const QByteArray folder = dir.filePath(QString::number(i)).toUtf8();
        const Sample a =
            runOnce({TARVO_COMMAND, "sweep", ten, "--no-synth", "--out", folder + "a"});
        const Sample b =
            runOnce({TARVO_COMMAND, "sweep", thousand, "--no-synth", "--out", folder + "b"});
        if (i == 0)
            continue; // warms the caches
        few.append(a);
        many.append(b);
    }
    ::dup2(terminal, STDOUT_FILENO);
    std::printf("median of %d runs    10 points  1000 points    ratio\n", runs);
    std::printf("wall clock, ms     %10.2f %12.2f %8.2f\n", median(few, &Sample::wall),
                median(many, &Sample::wall),
                median(many, &Sample::wall) / median(few, &Sample::wall));
    return 0;
}
