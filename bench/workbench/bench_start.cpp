// Times, as whole processes in turn, the start of the workbench against that of an empty window
// which loads the same plug-in, both up to a painted window: without a project, and with one of
// some sources and an IP. bench_start [RUNS] [LIMIT]; fails if a ratio of the times is above LIMIT.

#include "../support/wholeprocess.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace
{

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

// The path of its file.
QByteArray makeProject(const QString &folder)
{
    QByteArray files;
    for (int i = 0; i < 20; ++i) {
        const QByteArray name = "module" + QByteArray::number(i) + ".v";
        write(folder + u'/' + QString::fromLatin1(name), "module m; endmodule\n");
        files += (i == 0 ? "\n    \"" : ",\n    \"") + name + '"';
    }
    write(folder + QLatin1String("/ip.ipc"), "[General]\ntype=tarvo_orix_m1\n"
                                             "target_device=TV2KR-18C-QFN88-C8/I7\n");
    write(folder + QLatin1String("/usual.tvproj"),
          "{\n  \"format\": 1,\n  \"device\": \"TV2KR-18C-QFN88-C8/I7\",\n  \"top\": \"\",\n"
          "  \"files\": [" +
              files + "\n  ]\n}\n");
    return QFile::encodeName(folder + QLatin1String("/usual.tvproj"));
}

double quantile(QVector<Sample> samples, double Sample::*member, double share)
{
    std::sort(samples.begin(), samples.end(),
              [member](const Sample &a, const Sample &b) { return a.*member < b.*member; });
    return samples.at(int(double(samples.size() - 1) * share)).*member;
}

void print(const char *name, const QVector<Sample> &samples, const QVector<Sample> &empty)
{
    std::printf("%-24s", name);
    for (double Sample::*member : {&Sample::wall, &Sample::processor})
        std::printf("  %s %6.1f ms (%.1f to %.1f), ratio %.2f",
                    member == &Sample::wall ? "time" : "processor", median(samples, member),
                    quantile(samples, member, 0.1), quantile(samples, member, 0.9),
                    median(samples, member) / median(empty, member));
    std::printf("\n");
}

} // namespace

int main(int argc, char *argv[])
{
    const int runs = argc > 1 ? std::atoi(argv[1]) : 41;
    const double limit = argc > 2 ? std::atof(argv[2]) : 0;
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    ::setenv("XDG_RUNTIME_DIR", QDir::tempPath().toLocal8Bit().constData(), 0);
    const QTemporaryDir folder;
    const QByteArray project = makeProject(folder.path());
    QVector<Sample> empty;
    QVector<Sample> without;
    QVector<Sample> with;
    for (int i = -2; i < runs; ++i) {
        const Sample a = runOnce({TARVO_EMPTY});
        const Sample b = runOnce({TARVO_WORKBENCH});
        const Sample c = runOnce({TARVO_WORKBENCH, project});
        if (i < 0)
            continue; // warms the caches
        empty.append(a);
        without.append(b);
        with.append(c);
    }
    std::printf("medians of %d (and from the tenth to the ninetieth of a hundred)\n", runs);
    print("empty window", empty, empty);
    print("workbench", without, empty);
    print("workbench, a project", with, empty);
    const double ratio = std::max(median(without, &Sample::wall), median(with, &Sample::wall)) /
                         median(empty, &Sample::wall);
    return limit > 0 && ratio > limit ? 1 : 0;
}
